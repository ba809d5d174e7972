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
/// @return What of the stream has no setting like it, each a sentence's part.
std::vector<std::string> applyMedia(const KvMediaInfo& info, KvMvcSettings& settings);

/// Whether rate and buffer of the base view are the stream's own; without, they are made up.
bool hasSignalledBuffer(const KvMediaInfo& info);

/// Multiplies maximum rate and buffer; the buffer's fullness stays the same share of it.
void scaleLimits(double factor, KvMvcViewSettings& view);

/// The same, and the average.
void scaleRates(double factor, KvMvcViewSettings& view);

} // namespace kv
