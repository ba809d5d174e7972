// The facts that only an H.264 stream's own headers tell, and those that they tell better.
#pragma once

#include "h264_scan.h"

#include <kv_config_gui_mvc/media_info.h>

namespace kv
{

/// Those of the base view.
/// @param isWhole The scan has seen the stream's end.
void describeH264(KvMediaInfo& info, const H264Scan& scan, bool isWhole);

/// Those of further views, which may be in the base view's stream or in one of their own.
void describeViews(KvMediaInfo& info, const H264Scan& scan, bool isWhole);

} // namespace kv
