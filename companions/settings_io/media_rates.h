// Rates and buffers of a stream, as settings.
#pragma once

#include <kv_config_gui_mvc/media_info.h>
#include <kv_config_gui_mvc/settings_record.h>

#include <string>
#include <vector>

namespace kv
{

/// Puts rates and buffer over a preset's, in both view sub-records. A maximum rate and a buffer
/// that are not signalled have the preset's proportion to the rate.
/// @param notes Gets what is taken for what is not known.
/// @param untold Gets names of what the stream does not tell by itself.
void applyRates(const KvMediaInfo& info, KvMvcSettings& settings, std::vector<std::string>& notes,
                std::vector<std::string>& untold);

/// Whether rate and buffer of the base view are the stream's own; without, they are made up.
bool hasSignalledBuffer(const KvMediaInfo& info);

/// Multiplies maximum rate and buffer; the buffer's fullness stays the same share of it.
void scaleLimits(double factor, KvMvcViewSettings& view);

/// The same, and the average.
void scaleRates(double factor, KvMvcViewSettings& view);

} // namespace kv
