// What a stream tells, by hand.
#pragma once

#include <kv_config_gui_mvc/media_info.h>

namespace kvtest
{

/// A progressive stream of 1920 x 1080, 25 frames a second, 8 Mbit/s, High at level 4.
inline KvMediaInfo plainStream()
{
    KvMediaInfo info{};
    info.codec = KV_MEDIA_CODEC_H264;
    info.width = 1920;
    info.height = 1080;
    info.frame_rate_num = 25;
    info.frame_rate_den = 1;
    info.pixel_aspect_num = info.pixel_aspect_den = 1;
    info.chroma_format = 1;
    info.bit_depth_luma = info.bit_depth_chroma = 8;
    info.profile_idc = 100;
    info.level_idc = 40;
    info.num_ref_frames = 4;
    info.num_views = 1;
    info.bit_rate = 8000000;
    return info;
}

} // namespace kvtest
