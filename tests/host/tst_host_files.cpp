#include "ExampleSettings.h"
#include "HostProgram.h"

#include <QFile>
#include <QTest>

class TestHostFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void presetsByNumberAndName_data();
    void presetsByNumberAndName();
    void outputIsTheFilesText();
    void outputFileIsReplaced();
    void importWritesSettings();
    void importRefusesWhatIsNoMedia_data();
    void importRefusesWhatIsNoMedia();
    void cLocaleAddsNoWords();
};

namespace
{

const QString a = QStringLiteral("a.ini");
const QString b = QStringLiteral("b.cfg");
const QString defaultsCommand = QStringLiteral("defaults");
const QString importCommand = QStringLiteral("import");
const QString outputSwitch = QStringLiteral("-o");

/// Its presets are told apart by the width: 1000 and the preset's number.
void addEncoder(HostProgram& program)
{
    program.addStub(QStringLiteral("stub_encoder"), QStringLiteral("kv_mvcenc"));
}

} // namespace

void TestHostFiles::presetsByNumberAndName_data()
{
    QTest::addColumn<QString>("preset");
    QTest::addColumn<int>("width");
    const auto row = [](const char* preset, int width) {
        QTest::newRow(preset) << QString::fromLatin1(preset) << width;
    };
    row("0", 1000);
    row("1", 1001);
    row("2", 1002);
    row("3", 1003);
    row("None", 1000);
    row("Multivew High", 1001);
    row("Multiview High", 1001);
    row("multiview-high", 1001);
    row("Stereo High", 1002);
    row("stereo-high", 1002);
    row("STEREO HIGH", 1002);
    row("Blu-ray 3D", 1003);
    row("blu-ray-3d", 1003);
}

void TestHostFiles::presetsByNumberAndName()
{
    QFETCH(QString, preset);
    QFETCH(int, width);
    HostProgram program;
    addEncoder(program);
    const HostProgram::Result result = program.run({defaultsCommand, preset, outputSwitch, a});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(program.readSettings(a).views[0].width, width);
}

void TestHostFiles::outputIsTheFilesText()
{
    HostProgram program;
    addEncoder(program);
    const HostProgram::Result printed = program.run({defaultsCommand, QStringLiteral("2")});
    QCOMPARE(printed.error, QString());
    QCOMPARE(printed.exitCode, 0);
    QCOMPARE(program.fileNames(), QStringList());
    program.run({defaultsCommand, QStringLiteral("2"), outputSwitch, a});
    QCOMPARE(printed.output.toUtf8(), program.content(a));
    QVERIFY(printed.output.contains(QStringLiteral("1002")));
}

void TestHostFiles::outputFileIsReplaced()
{
    HostProgram program;
    addEncoder(program);
    program.setContent(b, "something else");
    const HostProgram::Result result =
        program.run({defaultsCommand, QStringLiteral("1"), QStringLiteral("--output"), b});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(program.readSettings(b).views[0].width, 1001);
    QCOMPARE(program.fileNames(), QStringList{b});
}

void TestHostFiles::importWritesSettings()
{
    const HostProgram program;
    const KvMvcSettings example = exampleSettings();
    program.writeSettings(a, example);
    HostProgram::Result result = program.run({importCommand, a});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output.toUtf8(), program.content(a));

    result = program.run({importCommand, a, outputSwitch, b});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 0);
    const KvMvcSettings imported = program.readSettings(b);
    QVERIFY(std::memcmp(&imported, &example, sizeof example) == 0);
}

void TestHostFiles::importRefusesWhatIsNoMedia_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"a.m2p", "a.m2t", "a.m2v", "a.m4p", "a.mp2", "a.mp4", "a.mpeg",
                             "a.mpg", "a.mpv", "a.mxf", "a.trp", "a.ts", "a.vob", "a.ifo"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void TestHostFiles::importRefusesWhatIsNoMedia()
{
    QFETCH(QString, name);
    HostProgram program;
    addEncoder(program);
    program.setContent(name, "This is no video.\n");
    program.setContent(b, "kept");
    const HostProgram::Result result = program.run({importCommand, name, outputSwitch, b});
    QVERIFY2(result.error.startsWith(QStringLiteral("kv-mvc-settings: ")),
             qPrintable(result.error));
    QVERIFY2(result.error.contains(name), qPrintable(result.error));
    QCOMPARE(result.error.count(QLatin1Char('\n')), 1);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(program.content(b), QByteArray("kept"));
}

void TestHostFiles::cLocaleAddsNoWords()
{
    HostProgram program;
    addEncoder(program);
    const HostProgram::Result result =
        program.run({defaultsCommand, QStringLiteral("1"), outputSwitch, a},
                    {{QStringLiteral("LC_ALL"), QStringLiteral("C")}});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
}

QTEST_GUILESS_MAIN(TestHostFiles)
#include "tst_host_files.moc"
