#pragma once

#include <kv_config_gui_mvc/companions.h>

/// The functions of the companion libraries that the dialog calls; null where a library or a
/// function is missing.
struct CompanionFunctions {
    KvMvcDefaults defaults = nullptr;
    KvMvcCheck check = nullptr;
    KvMvcSettingsIoGetApi settingsIoGetApi = nullptr;
    KvMvcLocalizeConvert localizeConvert = nullptr;
};

/// The process's one set of functions, filled while a call of the module lasts.
CompanionFunctions& companionFunctions();
