// The presets: every field of the record is set on purpose, with its reason beside it.

#include "check.h"

namespace kv::encoder
{

namespace
{

/// What the presets differ in.
struct Preset {
    int number;
    int views;
    int baseTarget;
};

constexpr Preset presets[] = {
    {KV_MVC_VIDEO_TYPE_NONE, 1, 20'000'000},
    {KV_MVC_MULTIVIEW_HIGH, 2, 20'000'000},
    {KV_MVC_STEREO_HIGH, 2, 20'000'000},
    // Discs average 17 to 31 Mbit/s in the base view.
    {KV_MVC_BLURAY_3D, 2, 22'000'000},
};

const Preset& findPreset(int number)
{
    for (const Preset& preset : presets) {
        if (preset.number == number) {
            return preset;
        }
    }
    return presets[0];
}

void setPicture(KvMvcViewSettings& view)
{
    view.width = 1920; // the one picture format that every disc of the kind carries
    view.height = 1080;
    view.frame_rate = 24000.0 / 1001;
    view.interlace_mode = KV_MVC_PROGRESSIVE;  // film; Multiview High has nothing else
    view.field_order = KV_MVC_TOP_FIELD_FIRST; // of no effect in progressive pictures
    view.pulldown = KV_MVC_PULLDOWN_OFF;       // players show 23.976 as it is
    view.display_aspect_x = 16;
    view.display_aspect_y = 9;
    view.pixel_aspect_x = KV_MVC_ASPECT_UNSET; // follows from the display aspect: 1:1
    view.pixel_aspect_y = KV_MVC_ASPECT_UNSET;
    view.chroma_format = KV_MVC_CHROMA_420; // all that the multiview profiles and discs take
    view.bit_depth_luma = 8;
    view.bit_depth_chroma = 8;
}

void setGop(KvMvcViewSettings& view)
{
    view.i_interval = 24;      // one second, the longest that a disc allows
    view.force_i = 1;          // a scene change may bring an I picture at any place
    view.ref_distance = 3;     // two B pictures; 24 is eight groups of three
    view.idr_marker = 1;       // every I picture is an entry point, in all views at once
    view.scene_detection = 1;  // an I picture costs least where prediction fails anyway
    view.fixed_i_position = 0; // the interval starts anew at a scene change
    view.adaptive_b = 0;       // one regular pattern, the same in all views
    view.reference_b = 0;      // no reference B pictures: no frames of the buffer for them
    view.pyramid_b = 0;        // needs reference B pictures
    // Two views share the 8 frames of level 4.1, of which B pictures that the other view is
    // predicted from take one; so a view can be added to plain High as well.
    view.num_ref_frames = 3;
}

void setTools(KvMvcViewSettings& view)
{
    view.min_partition = KV_MVC_PARTITION_8X8;    // smallest with no vector limit at 3.1 and up
    view.subpixel_mode = KV_MVC_SUBPIXEL_QUARTER; // full precision of the standard
    view.motion_search = 64;                      // fast film motion; level 4.1 allows 512
    view.weighted_p = 0;                          // players are known to fail on it
    view.fast_reference = 1;                      // costs next to nothing in quality
    view.fast_subblock = 1;                       // likewise
    view.fast_intra = 0;                          // quality before speed
    view.fast_inter = 0;                          // likewise
    view.simple_rd = 0;                           // likewise
    view.hadamard = 1;                            // nearer to the coded cost than differences
    view.brightness = 0;                          // adaptive quantization is a matter of taste:
    view.contrast = 0;                            // not used
    view.complexity = 0;
    view.deblocking = 1;              // visible blocks otherwise
    view.entropy_mode = KV_MVC_CABAC; // fewer bits; all these profiles have it
    view.num_slices = 4;              // discs and two views of this size at level 4.1 need four
    view.multi_slice = 1;
    view.num_threads = 0; // the encoder's choice
}

void setRates(KvMvcViewSettings& view, int target, int maximum)
{
    view.bitrate_mode = KV_MVC_VARIABLE_BITRATE; // disc practice
    view.bitrate = target;
    view.max_bitrate = maximum;
    view.bitrate_units = KV_MVC_UNITS_BYTES_PERCENT; // percent stay right when the buffer changes
    view.bitrate_buffer = maximum / 8;               // one second; 30 Mbit is the disc's most
    view.vbv_initial = 50;                           // the middle: as safe on either side
    view.vbv_target = 50;                            // likewise
    view.hrd_mode = 1;                               // discs require it; rate and buffer are given
    view.frame_size_i = 0;                           // no limit beyond the level's own
    view.frame_size_p = 0;
    view.frame_size_b = 0;
    view.frame_size_bref = 0;
    view.quant_i = 22;   // good quality for whoever turns to a quantizer mode
    view.quant_p = 24;   // predicted pictures bear a coarser one,
    view.quant_b = 26;   // and those that nothing refers to the coarsest
    view.quant_min = 2;  // the lowest that the dialog shows
    view.quant_max = 51; // the standard's highest
}

} // namespace

void setDefaults(KvMvcSettings& record, int number)
{
    const Preset& preset = findPreset(number);
    record = KvMvcSettings{}; // the encoder's own fields start at zero
    record.num_views = preset.views;
    record.split_views = 0; // one stream with all views
    for (KvMvcViewSettings& view : record.views) {
        view.video_type = preset.number;
        view.profile = KV_MVC_PROFILE_HIGH; // of the base view; every 2D player has it
        view.level = 41; // lowest for the rates of two views, so that one can be added; the disc's
        setPicture(view);
        setGop(view);
        setTools(view);
    }
    setRates(record.views[0], preset.baseTarget, 30'000'000);
    // The second view is predicted from the first: discs give it half the bits.
    setRates(record.views[1], preset.baseTarget / 2, 15'000'000);
}

} // namespace kv::encoder
