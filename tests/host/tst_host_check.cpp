#include "CheckTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace check_test;

class TestHostCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messagesAndVerdict_data();
    void messagesAndVerdict();
    void messagesOfAnyLengthAreWhole();
    void correctionsAreSavedElsewhere();
    void nothingIsSavedWhenRefused_data();
    void nothingIsSavedWhenRefused();
    void json();
    void messagesAreInTheUsersLanguage_data();
    void messagesAreInTheUsersLanguage();
    void textsAreFoundAsTheDialogFindsThem();
    void languagesThatThereAreNot_data();
    void languagesThatThereAreNot();
    void jsonFitsItsSchema_data();
    void jsonFitsItsSchema();
    void schemaRefuses();
    void firstEncoderNameWins();
    void realEncoderAcceptsItsDefaults_data();
    void realEncoderAcceptsItsDefaults();
    void realEncoderRefusesWhatCannotBe();
};

namespace
{

const QString fixedName = QStringLiteral("fixed.ini");

} // namespace

void TestHostCheck::messagesAndVerdict_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("output");
    QTest::addColumn<int>("exitCode");
    const QStringList none;
    const QStringList notes = {QStringLiteral("--notes")};
    // Whatever the order in which the encoder says it.
    const QString refusal = QStringLiteral("error: width 1 is below 16\n"
                                           "warning: 100 % of 0.500 is less\n"
                                           "note: the picture of 1 x 2\n");
    const QString correction = QStringLiteral("warning: width 2 corrected to 16\n");
    const QString note = QStringLiteral("note: no printf\n");
    QTest::newRow("accepted in silence") << 1920 << none << QString() << 0;
    QTest::newRow("refused") << 1 << none << refusal << 1;
    QTest::newRow("refused, with notes") << 1 << notes << refusal << 1;
    QTest::newRow("accepted with a correction") << 2 << none << correction << 0;
    QTest::newRow("accepted with nothing but notes") << 4 << none << QString() << 0;
    // The encoder asked for memory and, in vain, for a function that is not on offer.
    QTest::newRow("accepted, with notes") << 4 << notes << note << 0;
    QTest::newRow("refused with nothing but notes")
        << 5 << none << QStringLiteral("note: no reason\n") << 1;
    const QStringList strict = {QStringLiteral("--strict")};
    const QString risk = QStringLiteral("risk: width 7 of 16\n");
    QTest::newRow("accepted with a risk") << 7 << none << risk << 0;
    QTest::newRow("a risk after a correction")
        << 8 << none << risk + QStringLiteral("warning: width 8 corrected to 7\n") << 0;
    QTest::newRow("a risk, strictly") << 7 << strict << risk << 1;
    QTest::newRow("a correction, strictly") << 2 << strict << correction << 0;
}

void TestHostCheck::messagesAndVerdict()
{
    QFETCH(int, width);
    QFETCH(QStringList, options);
    QFETCH(QString, output);
    QFETCH(int, exitCode);
    HostProgram program;
    prepare(program, width);
    const QByteArray before = program.content(a);
    const HostProgram::Result result =
        program.run(QStringList{QStringLiteral("check"), a} + options);
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, output);
    QCOMPARE(result.exitCode, exitCode);
    QCOMPARE(program.content(a), before);
    QCOMPARE(program.fileNames(), QStringList{a});
}

void TestHostCheck::messagesOfAnyLengthAreWhole()
{
    HostProgram program;
    prepare(program, 3);
    const HostProgram::Result result =
        program.run({QStringLiteral("check"), QStringLiteral("--notes"), a});
    QCOMPARE(result.output.size(), 6 + 100000 + 2);
    QCOMPARE(result.output,
             QStringLiteral("note: ") + QString(100000, QLatin1Char('x')) + QStringLiteral(".\n"));
    QCOMPARE(result.exitCode, 0);
}

void TestHostCheck::correctionsAreSavedElsewhere()
{
    HostProgram program;
    prepare(program, 2);
    const QByteArray before = program.content(a);
    const HostProgram::Result result =
        program.run({QStringLiteral("check"), a, QStringLiteral("-o"), fixedName});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(program.content(a), before);
    const KvMvcSettings expected = settingsOfWidth(16);
    const KvMvcSettings saved = program.readSettings(fixedName);
    QVERIFY(std::memcmp(&saved, &expected, sizeof saved) == 0);
}

void TestHostCheck::nothingIsSavedWhenRefused_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("by the encoder") << 1;
    QTest::newRow("by --strict") << 7;
}

void TestHostCheck::nothingIsSavedWhenRefused()
{
    QFETCH(int, width);
    HostProgram program;
    prepare(program, width);
    const HostProgram::Result result = program.run(
        {QStringLiteral("check"), a, QStringLiteral("-o"), fixedName, QStringLiteral("--strict")});
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(program.fileNames(), QStringList{a});
}

void TestHostCheck::json()
{
    HostProgram program;
    prepare(program, 1);
    const QStringList arguments = {QStringLiteral("check"), QStringLiteral("--json"), a};
    HostProgram::Result result = program.run(arguments);
    QCOMPARE(result.exitCode, 1);
    // What this encoder does not tell is null.
    QCOMPARE(QJsonDocument::fromJson(result.output.toUtf8()), QJsonDocument::fromJson(R"json({
        "format_version": 1, "accepted": false, "level": null,
        "messages": [{"kind": "note", "text": "the picture of 1 x 2", "rule": null, "setting": null,
                      "view": null, "value": null, "limit": null, "level": null},
                     {"kind": "error", "text": "width 1 is below 16", "rule": null, "setting": null,
                      "view": null, "value": null, "limit": null, "level": null},
                     {"kind": "warning", "text": "100 % of 0.500\nis less", "rule": null,
                      "setting": null, "view": null, "value": null, "limit": null, "level": null}],
        "corrections": []})json"));

    program.writeSettings(a, settingsOfWidth(2));
    result = program.run(arguments);
    QCOMPARE(result.exitCode, 0);
    const QJsonObject corrected = QJsonDocument::fromJson(result.output.toUtf8()).object();
    QCOMPARE(corrected[QStringLiteral("accepted")], QJsonValue(true));
    QCOMPARE(corrected[QStringLiteral("corrections")].toArray(), QJsonDocument::fromJson(R"json([
                {"setting": "width", "name": "Picture width", "view": 0,
                 "before": {"value": 2, "text": "2"}, "after": {"value": 16, "text": "16"}}])json")
                                                                     .array());

    program.writeSettings(a, settingsOfWidth(7));
    result = program.run(arguments + QStringList{QStringLiteral("--strict")});
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(QJsonDocument::fromJson(result.output.toUtf8()), QJsonDocument::fromJson(R"json({
        "format_version": 1, "accepted": false, "level": "3.1",
        "messages": [{"kind": "risk", "text": "width 7 of 16", "rule": "width.odd",
                      "setting": "width", "view": 1, "value": 7, "limit": 16.5, "level": "1b"}],
        "corrections": []})json"));
}

void TestHostCheck::messagesAreInTheUsersLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* locale, const char* option,
                        const char* text) {
        QStringList options;
        if (*option != '\0') {
            options = QStringList{QStringLiteral("--language"), QString::fromLatin1(option)};
        }
        QTest::newRow(name) << QString::fromLatin1(locale) << options << QString::fromUtf8(text);
    };
    const char* const english = "The picture width has to be at least 16 (now 0).";
    const char* const german = "Die Bildbreite muss mindestens 16 sein (jetzt 0).";
    const char* const japanese = "ピクチャの幅は 16 以上にしてください (現在 0)。";
    row("German asked for", "C", "de", german);
    row("Japanese asked for", "C", "ja", japanese);
#ifndef Q_OS_WIN
    row("German", "de_DE.UTF-8", "", german);
    row("Austrian German", "de_AT.UTF-8", "", german);
    row("Japanese", "ja_JP.UTF-8", "", japanese);
    row("French", "fr_FR.UTF-8", "", english);
    row("English asked for by a German", "de_DE.UTF-8", "en", english);
#endif
    row("none", "C", "", english);
}

void TestHostCheck::messagesAreInTheUsersLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QStringList, options);
    QFETCH(QString, text);
    HostProgram program;
    program.addBuiltLibrary(QStringLiteral("kv_mvcenc"));
    program.addTexts();
    KvMvcSettings settings = exampleSettings();
    settings.views[0].width = 0;
    settings.views[1].width = 0;
    program.writeSettings(a, settings);
    const QMap<QString, QString> environment = {{QStringLiteral("LC_ALL"), locale},
                                                {QStringLiteral("LANGUAGE"), QString()}};
    HostProgram::Result result =
        program.run(QStringList{QStringLiteral("check"), a} + options, environment);
    QCOMPARE(result.error, QString());
    QVERIFY2(result.output.contains(QStringLiteral("error: ") + text + QLatin1Char('\n')),
             qPrintable(result.output));
    result = program.run(
        QStringList{QStringLiteral("check"), QStringLiteral("--json"), a} + options, environment);
    bool found = false;
    const QJsonObject all = QJsonDocument::fromJson(result.output.toUtf8()).object();
    for (const QJsonValue& message : all[QStringLiteral("messages")].toArray()) {
        // The rule has its name in all languages.
        found = found ||
                (message[QStringLiteral("text")].toString() == text &&
                 message[QStringLiteral("rule")].toString() == QStringLiteral("picture.width"));
    }
    QVERIFY2(found, qPrintable(result.output));
}

void TestHostCheck::textsAreFoundAsTheDialogFindsThem()
{
    // It has its language where its translation is, and the messages beside that.
    HostProgram program;
    program.addBuiltLibrary(QStringLiteral("kv_mvcenc"));
    program.addBuiltLibrary(QStringLiteral("mvc_gui_texts"));
    KvMvcSettings settings = exampleSettings();
    settings.views[0].width = 0;
    program.writeSettings(a, settings);
    const QMap<QString, QString> german = {
        {QStringLiteral("LC_ALL"), QStringLiteral("de_DE.UTF-8")},
        {QStringLiteral("LANGUAGE"), QString()}};
    const QString english = QStringLiteral("error: The picture width has to be at least 16");
    HostProgram::Result result = program.run({QStringLiteral("check"), a}, german);
    QVERIFY2(result.output.contains(english), qPrintable(result.output));
    QCOMPARE(result.error, QString());
}

void TestHostCheck::languagesThatThereAreNot_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("line");
    QTest::newRow("unknown") << QStringLiteral("fr")
                             << QStringLiteral("--language does not know 'fr': en, de, ja");
    QTest::newRow("without texts")
        << QStringLiteral("de") << QStringLiteral("there are no texts for --language de");
}

void TestHostCheck::languagesThatThereAreNot()
{
    QFETCH(QString, language);
    QFETCH(QString, line);
    HostProgram program;
    prepare(program, 1);
    const HostProgram::Result result =
        program.run({QStringLiteral("check"), QStringLiteral("--language"), language, a});
    QCOMPARE(result.error, QStringLiteral("kv-mvc-settings: %1\n").arg(line));
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
}

void TestHostCheck::jsonFitsItsSchema_data()
{
    QTest::addColumn<QString>("encoder");
    QTest::addColumn<int>("width");
    for (const int width : {1, 2, 5, 7}) {
        QTest::addRow("another encoder, %d", width) << QStringLiteral("stub") << width;
    }
    QTest::newRow("no messages") << QStringLiteral("stub") << 1920;
    QTest::newRow("corrections") << QStringLiteral("real") << 1920;
    QTest::newRow("errors") << QStringLiteral("real") << 0;
    QTest::newRow("no level") << QStringLiteral("real") << 100000;
}

void TestHostCheck::jsonFitsItsSchema()
{
    QFETCH(QString, encoder);
    QFETCH(int, width);
    HostProgram program;
    if (encoder == QStringLiteral("stub")) {
        prepare(program, width);
    } else {
        program.addBuiltLibrary(QStringLiteral("kv_mvcenc"));
        KvMvcSettings settings = settingsOfWidth(width);
        // A code, a rate and a switch to correct.
        settings.views[0].pulldown = 99;
        settings.views[0].frame_rate = -1;
        settings.views[1].hadamard = 7;
        program.writeSettings(a, settings);
    }
    const HostProgram::Result result =
        program.run({QStringLiteral("check"), QStringLiteral("--json"), a});
    QCOMPARE(result.error, QString());
    QCOMPARE(problemOf(result), QString());
}

void TestHostCheck::schemaRefuses()
{
    for (const char* const text : {"{}", R"({"format_version": 1, "accepted": true})",
                                   R"({"format_version": 2, "accepted": true, "level": null,
                                       "messages": [], "corrections": []})",
                                   R"({"format_version": 1, "accepted": true, "level": null,
                                       "messages": [{"kind": "hint"}], "corrections": []})"}) {
        QVERIFY2(!problemOf({0, QString::fromLatin1(text), {}}).isEmpty(), text);
    }
}

void TestHostCheck::firstEncoderNameWins()
{
    HostProgram program;
    program.setContent(QStringLiteral("library"), "no library");
    program.addLibrary(program.path(QStringLiteral("library")), QStringLiteral("kv_mvcenc"));
    program.addStub(QStringLiteral("stub_encoder"), QStringLiteral("kv_mvcenc_b"));
    program.writeSettings(a, settingsOfWidth(2));
    const HostProgram::Result result = program.run({QStringLiteral("check"), a});
    QCOMPARE(result.output, QStringLiteral("warning: width 2 corrected to 16\n"));
    QCOMPARE(result.error, QString());
}

void TestHostCheck::realEncoderAcceptsItsDefaults_data()
{
    QTest::addColumn<QString>("preset");
    for (const char* preset : {"0", "1", "2", "3"}) {
        QTest::newRow(preset) << QString::fromLatin1(preset);
    }
}

void TestHostCheck::realEncoderAcceptsItsDefaults()
{
    QFETCH(QString, preset);
    HostProgram program;
    program.addBuiltLibrary(QStringLiteral("kv_mvcenc"));
    HostProgram::Result result =
        program.run({QStringLiteral("defaults"), preset, QStringLiteral("-o"), a});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
    result = program.run({QStringLiteral("check"), QStringLiteral("--strict"), a});
    QCOMPARE(result.output, QString());
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
}

void TestHostCheck::realEncoderRefusesWhatCannotBe()
{
    HostProgram program;
    program.addBuiltLibrary(QStringLiteral("kv_mvcenc"));
    KvMvcSettings settings = exampleSettings();
    settings.views[0].width = 0;
    settings.views[1].width = 0;
    program.writeSettings(a, settings);
    const HostProgram::Result result = program.run({QStringLiteral("check"), a});
    QVERIFY2(result.output.contains(QStringLiteral("error: ")), qPrintable(result.output));
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 1);
}

QTEST_GUILESS_MAIN(TestHostCheck)
#include "tst_host_check.moc"
