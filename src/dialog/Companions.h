#pragma once

#include "ForeignText.h"
#include "Trace.h"

#include <kv_config_gui_mvc/companions.h>

#include <exception>
#include <optional>

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

/// Makes a call of a companion while the dialog is open. No exception may leave one; what does
/// ends here, as unwinding the dialog's event loop would leave a window that believes to be shown.
/// @param name Of what is called, for the trace.
/// @return What the exception says, empty when it says nothing; no value when there was none.
template <class Call>
std::optional<QString> thrownBy(const char* name, Call call)
{
    QString words;
    try {
        call();
        return std::nullopt;
    } catch (const std::exception& exception) {
        words = foreignText(exception.what());
    } catch (...) {
        // Says nothing.
    }
    trace::say([&] {
        return QStringLiteral("%1 threw an exception: %2").arg(QLatin1String(name), words);
    });
    return words;
}

/// A text of the encoder's, as a message's format, in the user's language; the text itself where
/// there is none.
const char* localized(const char* text);
