// The user's language: translation files and the localization library.

#include "Sandbox.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

namespace
{

/// Compiles a translation of the dialog's last tab to FOLDER/NAME.qm.
void translate(const Sandbox& sandbox, const QString& folder, const QString& name,
               const char* language, const char* text)
{
    QDir().mkpath(sandbox.path(folder));
    const QString source = sandbox.path(folder + QLatin1Char('/') + name + QLatin1String(".ts"));
    QFile file(source);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE TS>"
                          "<TS version=\"2.1\" language=\"") +
               language +
               "\"><context><name>AVCVideoEncoderDlg</name><message><source>Views</source>"
               "<translation>" +
               text + "</translation></message></context></TS>");
    file.close();
    QProcess compiler;
    compiler.start(QStringLiteral(KV_LRELEASE), {QStringLiteral("-silent"), source});
    QVERIFY(compiler.waitForFinished());
    QVERIFY2(compiler.exitCode() == 0, compiler.readAllStandardError().constData());
    QVERIFY(QFile::remove(source));
}

} // namespace

class TestEntryLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void languages_data();
    void languages();
    void withoutLocalizationLibraryTheDialogIsTranslated();
    void localizationLibraryLiesBesideTheTranslation();
    void firstPathWithATranslationIsUsed();
    void fileOfThatNameOnly();
    void localizationLibraryWithoutFunctions_data();
    void localizationLibraryWithoutFunctions();
    void secondCallInTheHostsApplication();

private:
    static QMap<QString, QString> environment(const Sandbox& sandbox, const char* locale);
    static const QStringList ownCall;
};

const QStringList TestEntryLanguages::ownCall = {QStringLiteral("flags=0x10"),
                                                 QStringLiteral("call"), QStringLiteral("mapped")};

QMap<QString, QString> TestEntryLanguages::environment(const Sandbox& sandbox, const char* locale)
{
    // The application's library paths begin so.
    return {{QStringLiteral("LC_ALL"), QString::fromLatin1(locale)},
            {QStringLiteral("LANGUAGE"), QString()},
            {QStringLiteral("QT_PLUGIN_PATH"), sandbox.path(QStringLiteral("first")) +
                                                   QLatin1Char(':') +
                                                   sandbox.path(QStringLiteral("second"))}};
}

void TestEntryLanguages::languages_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("tab");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("log");
    QTest::newRow("German") << QStringLiteral("de_DE.UTF-8") << QStringLiteral("Ansichten?")
                            << QStringLiteral("language 7") << QStringLiteral("Breite 5");
    QTest::newRow("Austrian German")
        << QStringLiteral("de_AT.UTF-8") << QStringLiteral("Ansichten?")
        << QStringLiteral("language 7") << QStringLiteral("Breite 5");
    QTest::newRow("Japanese") << QStringLiteral("ja_JP.UTF-8") << QStringLiteral("Nihongo?")
                              << QStringLiteral("language 17") << QStringLiteral("Breite 5");
    QTest::newRow("none") << QStringLiteral("C.UTF-8") << QStringLiteral("Views") << QString()
                          << QStringLiteral("width 5");
    QTest::newRow("English") << QStringLiteral("en_US.UTF-8") << QStringLiteral("Views")
                             << QString() << QStringLiteral("width 5");
    QTest::newRow("French") << QStringLiteral("fr_FR.UTF-8") << QStringLiteral("Views") << QString()
                            << QStringLiteral("width 5");
}

void TestEntryLanguages::languages()
{
    QFETCH(QString, locale);
    QFETCH(QString, tab);
    QFETCH(QString, language);
    QFETCH(QString, log);
    const Sandbox sandbox;
    sandbox.addRequired();
    translate(sandbox, QStringLiteral("second"), QStringLiteral("gui_mvc_de"), "de_DE",
              "Ansichten?");
    translate(sandbox, QStringLiteral("second"), QStringLiteral("gui_mvc_jp"), "ja_JP", "Nihongo?");
    translate(sandbox, QStringLiteral("second"), QStringLiteral("gui_mvc_fr"), "fr_FR", "Vues?");
    sandbox.add("stub_entry_texts", "mvc_gui_texts", "second");

    const auto run = sandbox.run(ownCall, environment(sandbox, locale.toLatin1().constData()));
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    QCOMPARE(run.value("last tab"), tab);
    QCOMPARE(run.value("log"), log);
    QCOMPARE(run.value("mapped"), QStringLiteral("kv_config_gui_mvc.so"));
    const QStringList texts = run.log.filter(QStringLiteral("mvc_gui_texts"));
    if (language.isEmpty()) {
        QCOMPARE(texts, QStringList());
        return;
    }
    QCOMPARE(run.log.count(language), 1);
    // Told its language right after it was loaded; gone before the other libraries.
    QCOMPARE(texts, QStringList({QStringLiteral("load second/mvc_gui_texts.so"),
                                 QStringLiteral("unload second/mvc_gui_texts.so")}));
    QCOMPARE(run.log.indexOf(language), run.log.indexOf(texts[0]) + 1);
    QVERIFY(run.log.indexOf(texts[1]) < run.log.indexOf(QLatin1String("unload host/kv_mvcenc.so")));
}

void TestEntryLanguages::withoutLocalizationLibraryTheDialogIsTranslated()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    translate(sandbox, QStringLiteral("second"), QStringLiteral("gui_mvc_de"), "de_DE",
              "Ansichten?");
    const auto run = sandbox.run(ownCall, environment(sandbox, "de_DE.UTF-8"));
    QCOMPARE(run.value("last tab"), QStringLiteral("Ansichten?"));
    QCOMPARE(run.value("log"), QStringLiteral("width 5"));
}

void TestEntryLanguages::localizationLibraryLiesBesideTheTranslation()
{
    // Not in another path, nor beside the host.
    const Sandbox sandbox;
    sandbox.addRequired();
    translate(sandbox, QStringLiteral("second"), QStringLiteral("gui_mvc_de"), "de_DE",
              "Ansichten?");
    QDir().mkpath(sandbox.path(QStringLiteral("first")));
    sandbox.add("stub_entry_texts", "mvc_gui_texts", "first");
    sandbox.add("stub_entry_texts", "mvc_gui_texts", "host");
    const auto run = sandbox.run(ownCall, environment(sandbox, "de_DE.UTF-8"));
    QCOMPARE(run.value("last tab"), QStringLiteral("Ansichten?"));
    QCOMPARE(run.value("log"), QStringLiteral("width 5"));
    QCOMPARE(run.log.filter(QStringLiteral("mvc_gui_texts")), QStringList());
}

void TestEntryLanguages::firstPathWithATranslationIsUsed()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    translate(sandbox, QStringLiteral("first"), QStringLiteral("gui_mvc_de"), "de_DE", "Erste");
    translate(sandbox, QStringLiteral("second"), QStringLiteral("gui_mvc_de"), "de_DE", "Zweite");
    sandbox.add("stub_entry_texts", "mvc_gui_texts", "second");
    const auto run = sandbox.run(ownCall, environment(sandbox, "de_DE.UTF-8"));
    QCOMPARE(run.value("last tab"), QStringLiteral("Erste"));
    QCOMPARE(run.log.filter(QStringLiteral("mvc_gui_texts")), QStringList());
}

void TestEntryLanguages::fileOfThatNameOnly()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    translate(sandbox, QStringLiteral("first"), QStringLiteral("gui_mvc"), "de_DE", "Falsch");
    translate(sandbox, QStringLiteral("second"), QStringLiteral("gui_mvc_ja"), "ja_JP", "Falsch");
    for (const char* locale : {"de_DE.UTF-8", "ja_JP.UTF-8"})
        QCOMPARE(sandbox.run(ownCall, environment(sandbox, locale)).value("last tab"),
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
    const Sandbox sandbox;
    sandbox.addRequired();
    translate(sandbox, QStringLiteral("second"), QStringLiteral("gui_mvc_de"), "de_DE",
              "Ansichten?");
    sandbox.add(QTest::currentDataTag(), "mvc_gui_texts", "second");
    const auto run = sandbox.run(ownCall, environment(sandbox, "de_DE.UTF-8"));
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    QCOMPARE(run.value("last tab"), QStringLiteral("Ansichten?"));
    QCOMPARE(run.value("log"), log);
    QCOMPARE(run.value("mapped"), QStringLiteral("kv_config_gui_mvc.so"));
}

void TestEntryLanguages::secondCallInTheHostsApplication()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    translate(sandbox, QStringLiteral("second"), QStringLiteral("gui_mvc_de"), "de_DE",
              "Ansichten?");
    sandbox.add("stub_entry_texts", "mvc_gui_texts", "second");
    const auto run = sandbox.run({QStringLiteral("application"), QStringLiteral("ext=application"),
                                  QStringLiteral("flags=0x10000010"), QStringLiteral("call"),
                                  QStringLiteral("call"), QStringLiteral("mapped"),
                                  QStringLiteral("translate"), QStringLiteral("delete")},
                                 environment(sandbox, "de_DE.UTF-8"));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.values("last tab"),
             QStringList({QStringLiteral("Ansichten?"), QStringLiteral("Ansichten?")}));
    QCOMPARE(run.values("log"),
             QStringList({QStringLiteral("Breite 5"), QStringLiteral("Breite 5")}));
    QCOMPARE(run.value("mapped"), QStringLiteral("kv_config_gui_mvc.so"));
    // The host's own texts are not the module's to translate.
    QCOMPARE(run.value("translated"), QStringLiteral("Views"));
}

QTEST_MAIN(TestEntryLanguages)
#include "tst_entry_languages.moc"
