#pragma once

#include <kv_config_gui_mvc/settings_record.h>

#include <string>
#include <string_view>

namespace kv
{

/// Sets what "KEY=VALUE" says: of a view after "view0." or "view1.", otherwise of all views.
/// @return What is wrong with it; the record is unchanged then.
std::string assignSetting(std::string_view assignment, KvMvcSettings& settings);

} // namespace kv
