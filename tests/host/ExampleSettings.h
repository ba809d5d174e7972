#pragma once

#include <kv_config_gui_mvc/settings_record.h>

/// A stereo record whose two views differ in rate control, with a value in every kind of field.
inline KvMvcSettings exampleSettings()
{
    KvMvcViewSettings base = {};
    base.profile = KV_MVC_PROFILE_HIGH;
    base.level = 41;
    base.i_interval = 24;
    base.ref_distance = 3;
    base.interlace_mode = KV_MVC_MBAFF;
    base.width = 1920;
    base.height = 1080;
    base.frame_rate = 24000.0 / 1001.0;
    base.num_ref_frames = 2;
    base.motion_search = 63;
    base.quant_i = 24;
    base.quant_p = 25;
    base.quant_b = 27;
    base.bitrate_mode = KV_MVC_VARIABLE_BITRATE;
    base.bitrate_buffer = 3750000;
    base.bitrate = 20000000;
    base.max_bitrate = 30000000;
    base.min_partition = KV_MVC_PARTITION_8X8;
    base.entropy_mode = KV_MVC_CABAC;
    base.hadamard = 1;
    base.pixel_aspect_x = KV_MVC_ASPECT_UNSET;
    base.pixel_aspect_y = KV_MVC_ASPECT_UNSET;
    base.vbv_initial = 90;
    base.vbv_target = 80;
    base.bitrate_units = KV_MVC_UNITS_BYTES_PERCENT;
    base.frame_size_i = 1500000;
    base.hrd_mode = 1;
    base.deblocking = 1;
    base.video_type = KV_MVC_STEREO_HIGH;
    base.pulldown = KV_MVC_PULLDOWN_OFF;
    base.bit_depth_luma = 8;
    base.bit_depth_chroma = 8;
    base.chroma_format = KV_MVC_CHROMA_420;
    base.scene_detection = 1;
    base.multi_slice = 1;
    base.num_slices = 4;
    base.reference_b = 1;
    base.subpixel_mode = KV_MVC_SUBPIXEL_QUARTER;
    base.display_aspect_x = 16;
    base.display_aspect_y = 9;
    base.quant_min = 2;
    base.quant_max = 51;
    base.force_i = 1;
    base.adaptive_b = 1;
    base.field_order = KV_MVC_TOP_FIELD_FIRST;
    base.fast_reference = 1;
    base.contrast = -20;

    KvMvcSettings settings = {};
    settings.num_views = 2;
    settings.views[0] = base;
    settings.views[1] = base;
    KvMvcViewSettings& second = settings.views[1];
    second.bitrate_mode = KV_MVC_CONSTANT_BITRATE;
    second.bitrate_units = KV_MVC_UNITS_BITS_90KHZ;
    second.bitrate = 10000000;
    second.max_bitrate = 10000000;
    second.bitrate_buffer = 12000000;
    second.vbv_initial = 54000;
    second.vbv_target = 45000;
    return settings;
}
