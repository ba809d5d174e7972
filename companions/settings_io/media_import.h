// Settings from media files, with the help of the stream information and the encoder library.
#pragma once

#include <kv_config_gui_mvc/settings_record.h>

#include <filesystem>
#include <string>
#include <vector>

namespace kv
{

/// Fills the record with the settings that fit a media file's video.
/// @param settings Written only on success.
/// @param notes    What the settings could not take over.
/// @return Why not; empty for success.
std::string importMedia(const std::filesystem::path& file, KvMvcSettings& settings,
                        std::vector<std::string>& notes);

} // namespace kv
