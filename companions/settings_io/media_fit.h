// What is changed of imported settings so that the encoder takes them.
#pragma once

#include "encoder_check.h"

#include <kv_config_gui_mvc/media_info.h>

#include <string>
#include <vector>

namespace kv
{

/// Makes the settings that applyMedia() left such that the encoder's check takes them.
///
/// What the file does not say is changed first, and then as little of what it says as can be. When
/// nothing helps, the settings stay as they are. On success they are what the check makes of them.
/// @return What of the file was changed, or why the encoder refuses the settings.
std::vector<std::string> fitToEncoder(KvMvcCheck check, const KvMediaInfo& info,
                                      KvMvcSettings& settings);

} // namespace kv
