// The whole check, and the defaults.
#pragma once

#include <kv_config_gui_mvc/settings_record.h>

#include "report.h"

namespace kv::encoder
{

/// Corrects the record where that is safe, then judges it. Writes listed fields of the views in use
/// and the two counts of the record; never a reserved byte.
/// @return Whether the settings are acceptable.
bool checkSettings(KvMvcSettings& record, Report& report);

/// Overwrites the whole record with a preset's defaults; unknown numbers are 0.
void setDefaults(KvMvcSettings& record, int preset);

} // namespace kv::encoder
