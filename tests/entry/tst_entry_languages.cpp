// The user's language: translation files and the localization library.

#include "Sandbox.h"

#include <QDir>
#include <QFile>
#include <QTest>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace
{

/// A language of the user: the name of its locale, and Windows' number of it.
struct UserLanguage {
    const char* locale;
    int number;
};
constexpr UserLanguage german = {"de_DE.UTF-8", 0x0407};
constexpr UserLanguage austrianGerman = {"de_AT.UTF-8", 0x0C07};
constexpr UserLanguage japanese = {"ja_JP.UTF-8", 0x0411};
constexpr UserLanguage noLanguage = {"C.UTF-8", 0x0409};
constexpr UserLanguage english = {"en_US.UTF-8", 0x0409};
constexpr UserLanguage french = {"fr_FR.UTF-8", 0x040C};

/// Whether a process can be run with that language. On Windows the user has one for all processes,
/// which under Wine is that of the first one's environment: this program is run once with each.
bool canBeChosen([[maybe_unused]] const UserLanguage& language)
{
#ifdef Q_OS_WIN
    const QByteArray locale = qgetenv("LC_ALL");
    return locale.isEmpty() ? GetUserDefaultLangID() == language.number : locale == language.locale;
#else
    return true;
#endif
}

constexpr const char* notChosen = "a test of users of another language";

/// Puts a translation into the folder: there the dialog's last tab is called `text`.
void translate(const Sandbox& sandbox, const char* folder, const char* name, const char* text)
{
    const QString target = sandbox.path(QLatin1String(folder));
    QDir().mkpath(target);
    const QString source = qEnvironmentVariable("KV_ENTRY_TRANSLATIONS") + QLatin1Char('/') +
                           QLatin1String(text) + QLatin1String(".qm");
    QVERIFY2(
        QFile::copy(source, target + QLatin1Char('/') + QLatin1String(name) + QLatin1String(".qm")),
        qPrintable(source));
}

} // namespace

Q_DECLARE_METATYPE(UserLanguage)

class TestEntryLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void languages_data();
    void languages();
    void withoutLocalizationLibraryTheDialogIsTranslated();
    void localizationLibraryLiesBesideTheTranslation();
    void firstPathWithATranslationIsUsed();
    void besideTheModuleComesLast();
    void besideTheModuleIsNotTheHostsApplications();
    void fileOfThatNameOnly_data();
    void fileOfThatNameOnly();
    void localizationLibraryWithoutFunctions_data();
    void localizationLibraryWithoutFunctions();
    void secondCallInTheHostsApplication();

private:
    static QMap<QString, QString> environment(const Sandbox& sandbox, const UserLanguage& language);
    static const QStringList ownCall;
};

const QStringList TestEntryLanguages::ownCall = {QStringLiteral("flags=0x10"),
                                                 QStringLiteral("call"), QStringLiteral("mapped")};

QMap<QString, QString> TestEntryLanguages::environment(const Sandbox& sandbox,
                                                       const UserLanguage& language)
{
    // The application's library paths begin so.
    return {{QStringLiteral("LC_ALL"), QString::fromLatin1(language.locale)},
            {QStringLiteral("LANGUAGE"), QString()},
            {QStringLiteral("QT_PLUGIN_PATH"), sandbox.path(QStringLiteral("first")) +
                                                   QDir::listSeparator() +
                                                   sandbox.path(QStringLiteral("second"))}};
}

void TestEntryLanguages::initTestCase()
{
#ifdef Q_OS_WIN
    if (!qEnvironmentVariableIsSet("LC_ALL")) {
        return;
    }
    // Otherwise Wine's user may speak English in all runs.
    for (const UserLanguage& language :
         {german, austrianGerman, japanese, noLanguage, english, french}) {
        if (!canBeChosen(language)) {
            continue;
        }
        QCOMPARE(int(GetUserDefaultLangID()), language.number);
        return;
    }
    QFAIL("no test is of this locale");
#endif
}

void TestEntryLanguages::languages_data()
{
    QTest::addColumn<UserLanguage>("user");
    QTest::addColumn<QString>("tab");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("log");
    const auto row = [](const char* name, const UserLanguage& user, const char* tab,
                        const char* language, const char* log) {
        QTest::newRow(name) << user << QString::fromLatin1(tab) << QString::fromLatin1(language)
                            << QString::fromLatin1(log);
    };
    row("German", german, "Deutsch", "language 7", "Breite 5");
    row("Austrian German", austrianGerman, "Deutsch", "language 7", "Breite 5");
    row("Japanese", japanese, "Nihongo", "language 17", "Breite 5");
    row("none", noLanguage, "Views", "", "width 5");
    row("English", english, "Views", "", "width 5");
    row("French", french, "Views", "", "width 5");
}

void TestEntryLanguages::languages()
{
    QFETCH(UserLanguage, user);
    QFETCH(QString, tab);
    QFETCH(QString, language);
    QFETCH(QString, log);
    if (!canBeChosen(user)) {
        QSKIP(notChosen);
    }
    const Sandbox sandbox;
    sandbox.addRequired();
    translate(sandbox, "second", "gui_mvc_de", "Deutsch");
    translate(sandbox, "second", "gui_mvc_jp", "Nihongo");
    translate(sandbox, "second", "gui_mvc_fr", "Francais");
    translate(sandbox, "second", "gui_mvc_en", "English");
    sandbox.add("stub_entry_texts", "mvc_gui_texts", "second");

    const auto run = sandbox.run(ownCall, environment(sandbox, user));
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    QCOMPARE(run.value("last tab"), tab);
    QCOMPARE(run.value("log"), log);
    QCOMPARE(run.value("mapped"), QStringLiteral("kv_config_gui_mvc"));
    const QStringList texts = run.log.filter(QStringLiteral("mvc_gui_texts"));
    if (language.isEmpty()) {
        QCOMPARE(texts, QStringList());
        return;
    }
    QCOMPARE(run.log.count(language), 1);
    // Told its language right after it was loaded; gone before the other libraries.
    QCOMPARE(texts, QStringList({QStringLiteral("load second/mvc_gui_texts"),
                                 QStringLiteral("unload second/mvc_gui_texts")}));
    QCOMPARE(run.log.indexOf(language), run.log.indexOf(texts[0]) + 1);
    QVERIFY(run.log.indexOf(texts[1]) < run.log.indexOf(QLatin1String("unload host/kv_mvcenc")));
}

void TestEntryLanguages::withoutLocalizationLibraryTheDialogIsTranslated()
{
    if (!canBeChosen(german)) {
        QSKIP(notChosen);
    }
    const Sandbox sandbox;
    sandbox.addRequired();
    translate(sandbox, "second", "gui_mvc_de", "Deutsch");
    const auto run = sandbox.run(ownCall, environment(sandbox, german));
    QCOMPARE(run.value("last tab"), QStringLiteral("Deutsch"));
    QCOMPARE(run.value("log"), QStringLiteral("width 5"));
}

void TestEntryLanguages::localizationLibraryLiesBesideTheTranslation()
{
    if (!canBeChosen(german)) {
        QSKIP(notChosen);
    }
    // Not in another path, nor beside the host.
    const Sandbox sandbox;
    sandbox.addRequired();
    translate(sandbox, "second", "gui_mvc_de", "Deutsch");
    QDir().mkpath(sandbox.path(QStringLiteral("first")));
    sandbox.add("stub_entry_texts", "mvc_gui_texts", "first");
    sandbox.add("stub_entry_texts", "mvc_gui_texts", "host");
    const auto run = sandbox.run(ownCall, environment(sandbox, german));
    QCOMPARE(run.value("last tab"), QStringLiteral("Deutsch"));
    QCOMPARE(run.value("log"), QStringLiteral("width 5"));
    QCOMPARE(run.log.filter(QStringLiteral("mvc_gui_texts")), QStringList());
}

void TestEntryLanguages::firstPathWithATranslationIsUsed()
{
    if (!canBeChosen(german)) {
        QSKIP(notChosen);
    }
    const Sandbox sandbox;
    sandbox.addRequired();
    translate(sandbox, "first", "gui_mvc_de", "Erste");
    translate(sandbox, "second", "gui_mvc_de", "Zweite");
    sandbox.add("stub_entry_texts", "mvc_gui_texts", "second");
    const auto run = sandbox.run(ownCall, environment(sandbox, german));
    QCOMPARE(run.value("last tab"), QStringLiteral("Erste"));
    QCOMPARE(run.log.filter(QStringLiteral("mvc_gui_texts")), QStringList());
}

void TestEntryLanguages::besideTheModuleComesLast()
{
    if (!canBeChosen(german)) {
        QSKIP(notChosen);
    }
    const Sandbox sandbox(Sandbox::Module::Apart);
    sandbox.addRequired();
    translate(sandbox, "module", "gui_mvc_de", "Zweite");
    sandbox.add("stub_entry_texts", "mvc_gui_texts", "module");
    const auto alone = sandbox.run(ownCall, environment(sandbox, german));
    QCOMPARE(alone.value("last tab"), QStringLiteral("Zweite"));
    QCOMPARE(alone.value("log"), QStringLiteral("Breite 5"));

    translate(sandbox, "second", "gui_mvc_de", "Erste");
    const auto second = sandbox.run(ownCall, environment(sandbox, german));
    QCOMPARE(second.value("last tab"), QStringLiteral("Erste"));
    QCOMPARE(second.value("log"), QStringLiteral("width 5"));
}

void TestEntryLanguages::besideTheModuleIsNotTheHostsApplications()
{
    if (!canBeChosen(german)) {
        QSKIP(notChosen);
    }
    const Sandbox sandbox(Sandbox::Module::Apart);
    sandbox.addRequired();
    translate(sandbox, "module", "gui_mvc_de", "Deutsch");
    const auto run = sandbox.run({QStringLiteral("application"), QStringLiteral("ext=application"),
                                  QStringLiteral("flags=0x10000010"), QStringLiteral("call"),
                                  QStringLiteral("delete")},
                                 environment(sandbox, german));
    QCOMPARE(run.value("last tab"), QStringLiteral("Views"));
}

void TestEntryLanguages::fileOfThatNameOnly_data()
{
    QTest::addColumn<UserLanguage>("user");
    QTest::newRow("German") << german;
    QTest::newRow("Japanese") << japanese;
}

void TestEntryLanguages::fileOfThatNameOnly()
{
    QFETCH(UserLanguage, user);
    if (!canBeChosen(user)) {
        QSKIP(notChosen);
    }
    const Sandbox sandbox;
    sandbox.addRequired();
    translate(sandbox, "first", "gui_mvc", "Falsch");
    translate(sandbox, "second", "gui_mvc_ja", "Falsch");
    QCOMPARE(sandbox.run(ownCall, environment(sandbox, user)).value("last tab"),
             QStringLiteral("Views"));
}

void TestEntryLanguages::localizationLibraryWithoutFunctions_data()
{
    QTest::addColumn<QString>("log");
    QTest::newRow("stub_entry_empty") << QStringLiteral("width 5");
    QTest::newRow("stub_entry_texts_without_language") << QStringLiteral("Breite 5");
}

void TestEntryLanguages::localizationLibraryWithoutFunctions()
{
    QFETCH(QString, log);
    if (!canBeChosen(german)) {
        QSKIP(notChosen);
    }
    const Sandbox sandbox;
    sandbox.addRequired();
    translate(sandbox, "second", "gui_mvc_de", "Deutsch");
    sandbox.add(QTest::currentDataTag(), "mvc_gui_texts", "second");
    const auto run = sandbox.run(ownCall, environment(sandbox, german));
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    QCOMPARE(run.value("last tab"), QStringLiteral("Deutsch"));
    QCOMPARE(run.value("log"), log);
    QCOMPARE(run.value("mapped"), QStringLiteral("kv_config_gui_mvc"));
}

void TestEntryLanguages::secondCallInTheHostsApplication()
{
    if (!canBeChosen(german)) {
        QSKIP(notChosen);
    }
    const Sandbox sandbox;
    sandbox.addRequired();
    translate(sandbox, "second", "gui_mvc_de", "Deutsch");
    sandbox.add("stub_entry_texts", "mvc_gui_texts", "second");
    const auto run = sandbox.run({QStringLiteral("application"), QStringLiteral("ext=application"),
                                  QStringLiteral("flags=0x10000010"), QStringLiteral("call"),
                                  QStringLiteral("call"), QStringLiteral("mapped"),
                                  QStringLiteral("translate"), QStringLiteral("delete")},
                                 environment(sandbox, german));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.values("last tab"),
             QStringList({QStringLiteral("Deutsch"), QStringLiteral("Deutsch")}));
    QCOMPARE(run.values("log"),
             QStringList({QStringLiteral("Breite 5"), QStringLiteral("Breite 5")}));
    QCOMPARE(run.value("mapped"), QStringLiteral("kv_config_gui_mvc"));
    // The host's own texts are not the module's to translate.
    QCOMPARE(run.value("translated"), QStringLiteral("Views"));
}

QTEST_MAIN(TestEntryLanguages)
#include "tst_entry_languages.moc"
