#include "ApplicationSetup.h"

#include "Bindings.h"
#include "dialog/Trace.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QTranslator>

#include <kv_config_gui_mvc/companion_library.h>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace
{

struct LanguageRow {
    std::int32_t language;
    QLocale::Language locale;
    const char* code;
};

// "jp" is no ISO 639 code, but the one in the names of the translation files.
constexpr LanguageRow languageRows[] = {{KV_MVC_LANGUAGE_GERMAN, QLocale::German, "de"},
                                        {KV_MVC_LANGUAGE_JAPANESE, QLocale::Japanese, "jp"}};

bool isUsers(const LanguageRow& row)
{
#ifdef Q_OS_WIN
    return row.language == (GetUserDefaultLangID() & 0xFF);
#else
    return row.locale == QLocale::system().language();
#endif
}

/// One for all calls; it goes with the module. No application has it then, as each call takes it
/// back.
QTranslator& processTranslator()
{
    static QTranslator translator;
    return translator;
}

} // namespace

void addOwnFolder(QCoreApplication& application)
{
    char folder[KV_MVC_LIBRARY_TEXT] = "";
    kvMvcOwnFolder(folder);
    const QString path = QDir(QString::fromUtf8(folder)).path();
    if (folder[0] != '\0' && !application.libraryPaths().contains(path)) {
        application.setLibraryPaths(application.libraryPaths() << path);
    }
}

void setUpApplication(QCoreApplication& application)
{
    for (const LanguageRow& row : languageRows) {
        if (!isUsers(row)) {
            continue;
        }
        trace::say([&] { return QStringLiteral("language: %1").arg(QLatin1String(row.code)); });
        const QString file = QLatin1String("gui_mvc_") + QLatin1String(row.code);
        // No delimiters: "gui_mvc.qm" is no translation into this language.
        const QString noDelimiters(QLatin1String(""));
        for (const QString& directory : application.libraryPaths()) {
            const bool loaded = processTranslator().load(file, directory, noDelimiters);
            trace::say([&] {
                return QStringLiteral("%1.qm: %2 %3")
                    .arg(file, loaded ? QStringLiteral("from") : QStringLiteral("not in"),
                         directory);
            });
            if (!loaded) {
                continue;
            }
            application.installTranslator(&processTranslator());
            bindings::loadLocalization(directory, row.language);
            break;
        }
    }
}

void restoreApplication(QCoreApplication& application)
{
    application.removeTranslator(&processTranslator());
    (void)processTranslator().load(QString());
}
