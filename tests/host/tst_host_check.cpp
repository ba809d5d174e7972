#include "ExampleSettings.h"
#include "HostProgram.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

class TestHostCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messagesAndVerdict_data();
    void messagesAndVerdict();
    void messagesOfAnyLengthAreWhole();
    void correctionsAreSavedElsewhere();
    void nothingIsSavedWhenRefused();
    void json();
    void firstEncoderNameWins();
    void realEncoderAcceptsItsDefaults_data();
    void realEncoderAcceptsItsDefaults();
    void realEncoderRefusesWhatCannotBe();
};

namespace
{

const QString a = QStringLiteral("a.ini");
const QString fixedName = QStringLiteral("fixed.ini");

KvMvcSettings settingsOfWidth(int width)
{
    KvMvcSettings settings = exampleSettings();
    settings.views[0].width = width;
    return settings;
}

/// The program beside the encoder whose messages depend on the width, and settings of a width.
void prepare(HostProgram& program, int width)
{
    program.addStub(QStringLiteral("stub_encoder"), QStringLiteral("kv_mvcenc"));
    program.writeSettings(a, settingsOfWidth(width));
}

} // namespace

void TestHostCheck::messagesAndVerdict_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("output");
    QTest::addColumn<int>("exitCode");
    const QStringList none;
    const QStringList notes = {QStringLiteral("--notes")};
    const QString refusal = QStringLiteral("note: the picture of 1 x 2\n"
                                           "error: width 1 is below 16\n"
                                           "warning: 100 % of 0.500 is less\n");
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

void TestHostCheck::nothingIsSavedWhenRefused()
{
    HostProgram program;
    prepare(program, 1);
    const HostProgram::Result result =
        program.run({QStringLiteral("check"), a, QStringLiteral("-o"), fixedName});
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
    QCOMPARE(QJsonDocument::fromJson(result.output.toUtf8()), QJsonDocument::fromJson(R"json({
        "accepted": false,
        "messages": [{"kind": "note", "text": "the picture of 1 x 2"},
                     {"kind": "error", "text": "width 1 is below 16"},
                     {"kind": "warning", "text": "100 % of 0.500\nis less"}],
        "corrections": []})json"));

    program.writeSettings(a, settingsOfWidth(2));
    result = program.run(arguments);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(QJsonDocument::fromJson(result.output.toUtf8()), QJsonDocument::fromJson(R"json({
        "accepted": true,
        "messages": [{"kind": "warning", "text": "width 2 corrected to 16"}],
        "corrections": [{"setting": "width", "name": "Picture width", "view": 0,
                         "before": {"value": 2, "text": "2"},
                         "after": {"value": 16, "text": "16"}}]})json"));
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
    result = program.run({QStringLiteral("check"), a});
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
