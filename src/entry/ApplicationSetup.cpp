#include "ApplicationSetup.h"

#include "Bindings.h"

#include <QCoreApplication>
#include <QTranslator>

#include <kv_config_gui_mvc/companions.h>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <QLocale>
#endif

namespace
{

/// The user's primary language by Windows' numbers; 0 where only the listed ones matter.
std::int32_t primaryUserLanguage()
{
#ifdef Q_OS_WIN
    return GetUserDefaultLangID() & 0xFF;
#else
    switch (QLocale::system().language()) {
    case QLocale::German:
        return KV_MVC_LANGUAGE_GERMAN;
    case QLocale::Japanese:
        return KV_MVC_LANGUAGE_JAPANESE;
    default:
        return 0;
    }
#endif
}

struct LanguageRow {
    std::int32_t language;
    const char* code;
};

// "jp" is no ISO 639 code, but the one in the names of the translation files.
constexpr LanguageRow languageRows[] = {{KV_MVC_LANGUAGE_GERMAN, "de"},
                                        {KV_MVC_LANGUAGE_JAPANESE, "jp"}};

/// One for the process, never destroyed: an application may outlive this module's own objects.
QTranslator& processTranslator()
{
    static auto* const translator = new QTranslator;
    return *translator;
}

} // namespace

void setUpApplication(QCoreApplication& application)
{
    const std::int32_t language = primaryUserLanguage();
    for (const LanguageRow& row : languageRows) {
        if (row.language != language)
            continue;
        const QString file = QLatin1String("gui_mvc_") + QLatin1String(row.code);
        // No delimiters: "gui_mvc.qm" is no translation into this language.
        const QString noDelimiters(QLatin1String(""));
        for (const QString& directory : application.libraryPaths()) {
            if (!processTranslator().load(file, directory, noDelimiters))
                continue;
            application.installTranslator(&processTranslator());
            bindings::loadLocalization(directory, language);
            break;
        }
    }
}

void restoreApplication(QCoreApplication& application)
{
    application.removeTranslator(&processTranslator());
    (void)processTranslator().load(QString());
}
