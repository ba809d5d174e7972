// Settings that make a stream like one that was found in a media file.
#pragma once

#include <kv_config_gui_mvc/media_info.h>
#include <kv_config_gui_mvc/settings_record.h>

#include <string>
#include <vector>

namespace kv
{

/// KvMvcVideoType whose defaults fit the stream's views and the profile that they are coded in.
int32_t fittingPreset(const KvMediaInfo& info);

/// Puts the facts of a stream over a preset's defaults, in both view sub-records. What is not known
/// of the stream stays as it was.
/// @return What of the stream has no setting like it, and what is not known of it, each a
///         sentence's part.
std::vector<std::string> applyMedia(const KvMediaInfo& info, KvMvcSettings& settings);

} // namespace kv
