// How the pictures of a stream are coded, as settings.
#pragma once

#include <kv_config_gui_mvc/media_info.h>
#include <kv_config_gui_mvc/settings_record.h>

#include <string>
#include <vector>

namespace kv
{

/// Whether the stream itself shows its groups of pictures and its slices.
bool showsCoding(const KvMediaInfo& info);

/// Puts groups of pictures, tools, slices, pulldown and the references of further views over a
/// preset's, in both view sub-records.
/// @param notes Gets what of the stream there is no setting for, and where nothing of it is known.
/// @param untold Gets names of what the stream does not tell by itself.
void applyCoding(const KvMediaInfo& info, KvMvcSettings& settings, std::vector<std::string>& notes,
                 std::vector<std::string>& untold);

} // namespace kv
