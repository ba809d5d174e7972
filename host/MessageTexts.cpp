#include "MessageTexts.h"

#include "Failure.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>
#include <QTranslator>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace
{

struct LanguageRow {
    std::int32_t language;
    QLocale::Language locale;
    const char* option;
    /// In the name of the dialog's translation.
    const char* code;
};

constexpr LanguageRow languageRows[] = {
    {KV_MVC_LANGUAGE_GERMAN, QLocale::German, "de", "de"},
    {KV_MVC_LANGUAGE_JAPANESE, QLocale::Japanese, "ja", "jp"},
};

constexpr char english[] = "en";

bool isUsers(const LanguageRow& row)
{
#ifdef Q_OS_WIN
    return row.language == (GetUserDefaultLangID() & 0xFF);
#else
    return row.locale == QLocale::system().language();
#endif
}

/// @return Null: English.
const LanguageRow* findLanguage(const QString& option)
{
    QStringList known = {QLatin1String(english)};
    for (const LanguageRow& row : languageRows) {
        if (option.isEmpty() ? isUsers(row) : option == QLatin1String(row.option)) {
            return &row;
        }
        known << QLatin1String(row.option);
    }
    if (!option.isEmpty() && option != QLatin1String(english)) {
        throw Failure(QStringLiteral("--language does not know '%1': %2")
                          .arg(option, known.join(QStringLiteral(", "))));
    }
    return nullptr;
}

/// @return Null where no folder has the dialog's translation with a library beside it.
std::unique_ptr<Library> findLibrary(const LanguageRow& row)
{
    const QString file = QLatin1String("gui_mvc_") + QLatin1String(row.code);
    for (const QString& folder : QCoreApplication::libraryPaths()) {
        // No delimiters: "gui_mvc.qm" is no translation into this language.
        if (!QTranslator().load(file, folder, QLatin1String(""))) {
            continue;
        }
        try {
            return std::make_unique<Library>(folder, std::vector{KV_MVC_LOCALIZE_LIBRARY});
        } catch (const Failure&) {
            return nullptr;
        }
    }
    return nullptr;
}

} // namespace

MessageTexts::MessageTexts(const QString& language)
{
    const LanguageRow* const row = findLanguage(language);
    if (row == nullptr) {
        return;
    }
    m_library = findLibrary(*row);
    if (m_library == nullptr) {
        if (!language.isEmpty()) {
            throw Failure(QStringLiteral("there are no texts for --language %1").arg(language));
        }
        return;
    }
    m_library->function<KvMvcLocalizeSetLanguage>(KV_MVC_LOCALIZE_SET_LANGUAGE)(row->language);
    m_convert = m_library->function<KvMvcLocalizeConvert>(KV_MVC_LOCALIZE_CONVERT);
}

QCommandLineOption languageOption()
{
    return {QStringLiteral("language"),
            QStringLiteral("Prints the encoder's messages in this language: en, de or ja; the "
                           "user's when it is not given."),
            QStringLiteral("LANGUAGE")};
}
