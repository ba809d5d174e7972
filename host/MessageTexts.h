#pragma once

#include "Library.h"

#include <QCommandLineOption>
#include <QString>

#include <kv_config_gui_mvc/companions.h>

#include <memory>

/// The encoder's messages in the user's language, by the localization library; found as the
/// settings dialog finds it, beside the dialog's own translation. Needs an application object.
class MessageTexts
{
public:
    /// @param language Of languageOption(); empty: the user's.
    /// @throws Failure when there is no such language, or no texts in one that was asked for.
    explicit MessageTexts(const QString& language);

    /// @return Null for English; valid as long as this object.
    [[nodiscard]] KvMvcLocalizeConvert convert() const { return m_convert; }

private:
    std::unique_ptr<Library> m_library;
    KvMvcLocalizeConvert m_convert = nullptr;
};

/// "--language".
QCommandLineOption languageOption();
