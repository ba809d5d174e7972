// Settings come from standard input and pipes, and go to standard output and pipes.

#include "ExampleSettings.h"
#include "HostProgram.h"

#include <QDir>
#include <QJsonDocument>
#include <QProcess>
#include <QTest>

class TestHostStreams : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standardInputReadsAsAFile_data();
    void standardInputReadsAsAFile();
    void standardInputIsAnyText_data();
    void standardInputIsAnyText();
    void badInputIsRefused_data();
    void badInputIsRefused();
    void standardOutputGetsTheFile_data();
    void standardOutputGetsTheFile();
    void checkedSettingsGoOnWithoutMessages_data();
    void checkedSettingsGoOnWithoutMessages();
    void commandsWorkInAPipe();
    void unixPipesAndDevices_data();
    void unixPipesAndDevices();
    void noTemporaryFolderIsNeeded_data();
    void noTemporaryFolderIsNeeded();
    void librariesNeedNotWriteToPipes();
};

namespace
{

const QString a = QStringLiteral("a.ini");
const QString b = QStringLiteral("b.ini");
const QString prefix = QStringLiteral("kv-mvc-settings: ");

QStringList words(const QString& line)
{
    return line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// Two files, and encoders whose messages depend on the width: a.ini has width 2, which is
/// corrected, and b.ini width 1, which is refused.
void prepare(HostProgram& program)
{
    program.addStub(QStringLiteral("stub_encoder"), QStringLiteral("kv_mvcenc"));
    KvMvcSettings settings = exampleSettings();
    settings.views[0].width = 2;
    program.writeSettings(a, settings);
    settings.views[0].width = 1;
    program.writeSettings(b, settings);
}

} // namespace

void TestHostStreams::standardInputReadsAsAFile_data()
{
    QTest::addColumn<QString>("line");
    // "%1" is the first file.
    for (const char* line :
         {"show %1", "show --json %1", "check %1", "check --json %1", "diff %1 b.ini",
          "diff b.ini %1", "diff --json %1 a.ini", "check %1 -o fixed.ini"}) {
        QTest::newRow(line) << QString::fromLatin1(line);
    }
}

void TestHostStreams::standardInputReadsAsAFile()
{
    QFETCH(QString, line);
    HostProgram program;
    prepare(program);
    const QString fixed = QStringLiteral("fixed.ini");
    const HostProgram::Result named = program.run(words(line.arg(a)));
    const QByteArray fixedByName = program.content(fixed);
    program.setContent(fixed, {});
    const HostProgram::Result result =
        program.run(words(line.arg(QLatin1Char('-'))), {}, program.content(a));
    QCOMPARE(result.error, named.error);
    QCOMPARE(result.output, named.output);
    QCOMPARE(result.exitCode, named.exitCode);
    QVERIFY(result.exitCode != 2);
    QCOMPARE(program.content(fixed), fixedByName);
}

void TestHostStreams::standardInputIsAnyText_data()
{
    QTest::addColumn<QByteArray>("mark");
    QTest::addColumn<QByteArray>("lineEnd");
    QTest::newRow("Windows") << QByteArray() << QByteArray("\r\n");
    QTest::newRow("byte-order mark") << QByteArray("\xEF\xBB\xBF") << QByteArray("\n");
    QTest::newRow("both") << QByteArray("\xEF\xBB\xBF") << QByteArray("\r\n");
}

void TestHostStreams::standardInputIsAnyText()
{
    QFETCH(QByteArray, mark);
    QFETCH(QByteArray, lineEnd);
    HostProgram program;
    prepare(program);
    const HostProgram::Result result =
        program.run({QStringLiteral("diff"), QStringLiteral("-"), a}, {},
                    mark + program.content(a).replace("\n", lineEnd));
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 0);
}

void TestHostStreams::badInputIsRefused_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QString>("error");
    const QString media = prefix + QStringLiteral("cannot read '<stdin>': no text of a settings "
                                                  "file; media are read from files, not from a "
                                                  "stream\n");
    QTest::newRow("nothing")
        << QByteArray()
        << QStringLiteral(
               "<stdin>:1: section 'record' is missing; its keys are num_views and split_views\n"
               "<stdin>:1: section 'view 0' is missing\n");
    QTest::newRow("errors") << QByteArray("[record]\nnonsense\n[nothing]\n")
                            << QStringLiteral("<stdin>:2: neither a section nor a 'key = value' "
                                              "line: 'nonsense'\n"
                                              "<stdin>:3: unknown section 'nothing'\n");
    QTest::newRow("no text") << QByteArray("\x00\x00\x01\xB3", 4) << media;
    QTest::newRow("film") << "YUV4MPEG2 W16 H16\nFRAME\n" + QByteArray(384, '\x40') << media;
    QTest::newRow("long film") << "YUV4MPEG2 W1920 H1080\nFRAME\n" +
                                      QByteArray(2 * 1024 * 1024, '\x40')
                               << media;
    QTest::newRow("key without a section")
        << QByteArray("# two\n\nnum_views = 2\n")
        << QStringLiteral(
               "<stdin>:3: key 'num_views' before the first section, which is [record]\n");
#ifndef Q_OS_WIN
    // There is no library that knows media there, and so the settings' own words.
    QTest::newRow("other text")
        << QByteArray("To be, or not to be.\nnum_views = 2\n")
        << prefix + QStringLiteral(
                        "<stdin>: no media, and no text of a settings file: it has no [section]\n");
#endif
    QTest::newRow("text of another encoding")
        << QByteArray("[record]\n# Gr\xF6\xDF"
                      "e\n")
        << prefix + QStringLiteral("cannot read '<stdin>': not valid UTF-8 text\n");
    QTest::newRow("no end") << QByteArray(2 * 1024 * 1024, '#')
                            << prefix + QStringLiteral("cannot read '<stdin>': too large\n");
}

void TestHostStreams::badInputIsRefused()
{
    QFETCH(QByteArray, input);
    QFETCH(QString, error);
    HostProgram program;
    prepare(program);
    for (const char* line : {"show -", "diff a.ini -"}) {
        const HostProgram::Result result = program.run(words(QString::fromLatin1(line)), {}, input);
        QCOMPARE(result.error, error);
        QCOMPARE(result.output, QString());
        QCOMPARE(result.exitCode, 2);
    }
}

void TestHostStreams::standardOutputGetsTheFile_data()
{
    QTest::addColumn<QString>("line");
    for (const char* line : {"defaults 2", "import a.ini", "check a.ini"}) {
        QTest::newRow(line) << QString::fromLatin1(line);
    }
}

void TestHostStreams::standardOutputGetsTheFile()
{
    QFETCH(QString, line);
    HostProgram program;
    prepare(program);
    const QString output = QStringLiteral("-o");
    program.run(words(line) + QStringList{output, QStringLiteral("file.cfg")});
    const HostProgram::Result result =
        program.run(words(line) + QStringList{output, QStringLiteral("-")});
    QCOMPARE(result.output.toUtf8(), program.content(QStringLiteral("file.cfg")));
    QVERIFY(!result.output.isEmpty());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(program.fileNames(), QStringList({a, b, QStringLiteral("file.cfg")}));
}

void TestHostStreams::checkedSettingsGoOnWithoutMessages_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("messages");
    QTest::addColumn<QString>("holds");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("corrected") << a << QStringLiteral("warning: width 2 corrected to 16\n")
                               << QStringLiteral("\nwidth = 16\n") << 0;
    QTest::newRow("refused") << b
                             << QStringLiteral("error: width 1 is below 16\n"
                                               "warning: 100 % of 0.500 is less\n"
                                               "note: the picture of 1 x 2\n")
                             << QString() << 1;
}

void TestHostStreams::checkedSettingsGoOnWithoutMessages()
{
    QFETCH(QString, file);
    QFETCH(QString, messages);
    QFETCH(QString, holds);
    QFETCH(int, exitCode);
    HostProgram program;
    prepare(program);
    const HostProgram::Result result = program.run(
        {QStringLiteral("check"), QStringLiteral("-"), QStringLiteral("-o"), QStringLiteral("-")},
        {}, program.content(file));
    QCOMPARE(result.error, messages);
    QVERIFY2(result.output.contains(holds), qPrintable(result.output));
    QCOMPARE(result.output.isEmpty(), holds.isEmpty());
    QCOMPARE(result.exitCode, exitCode);
}

void TestHostStreams::commandsWorkInAPipe()
{
    HostProgram program;
    prepare(program);
    QProcess defaults;
    QProcess show;
    defaults.setWorkingDirectory(program.path(QString()));
    defaults.setStandardOutputProcess(&show);
    defaults.start(program.program(), {QStringLiteral("defaults"), QStringLiteral("2")});
    show.start(program.program(), {QStringLiteral("show"), QStringLiteral("-")});
    QVERIFY(defaults.waitForFinished());
    QVERIFY(show.waitForFinished());
    QCOMPARE(QString::fromUtf8(show.readAllStandardError()), QString());
    QVERIFY(show.readAllStandardOutput().contains(" 1002 "));
    QCOMPARE(show.exitCode(), 0);
}

void TestHostStreams::unixPipesAndDevices_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("output");
    const auto row = [](const char* name, const char* script, const char* output) {
        QTest::newRow(name) << QString::fromLatin1(script) << QString::fromLatin1(output);
    };
    row("standard output by its name, a pipe", "\"$program\" defaults 2 -o /dev/stdout | grep 1002",
        "width = 1002\n");
    row("standard output by its name, a file",
        "\"$program\" defaults 2 -o /dev/stdout > x.txt && grep 1002 x.txt", "width = 1002\n");
    row("standard input by its name, a pipe", "cat a.ini | \"$program\" diff /dev/stdin b.ini",
        "Picture width, base view: 2 -> 1\n");
    row("standard input by its name, a file", "\"$program\" diff /dev/stdin b.ini < a.ini",
        "Picture width, base view: 2 -> 1\n");
    row("pipes of a name, read",
        "mkfifo one two; cat a.ini > one & cat b.ini > two & \"$program\" diff one two",
        "Picture width, base view: 2 -> 1\n");
    row("pipe of a name, written",
        "mkfifo one; cat one & \"$program\" check a.ini -o one > /dev/null; wait", "width = 16\n");
    row("no device without an end", "\"$program\" show /dev/zero 2>&1",
        "kv-mvc-settings: cannot read '/dev/zero': no text of a settings file; media are read from "
        "files, not from a stream\n");
    row("dialogs write files only", "\"$program\" edit a.ini -o /dev/null 2>&1",
        "kv-mvc-settings: cannot write '/dev/null': the name of a settings file ends in .cfg or "
        ".ini\n");
}

void TestHostStreams::unixPipesAndDevices()
{
#ifdef Q_OS_WIN
    QSKIP("for the pipes and devices of Unix");
#endif
    QFETCH(QString, script);
    QFETCH(QString, output);
    HostProgram program;
    prepare(program);
    const HostProgram::Result result = program.runScript(script);
    QCOMPARE(result.error, QString());
    QVERIFY2(result.output.contains(output), qPrintable(result.output));
}

void TestHostStreams::noTemporaryFolderIsNeeded_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("defaults") << QStringLiteral("defaults 2") << QString() << 0;
    QTest::newRow("import") << QStringLiteral("import a.ini") << QString() << 0;
    QTest::newRow("check") << QStringLiteral("check - -o -")
                           << QStringLiteral("warning: width 2 corrected to 16\n") << 0;
    QTest::newRow("show") << QStringLiteral("show -") << QString() << 0;
    QTest::newRow("messages")
        << QStringLiteral("show bad.ini")
        << QStringLiteral(
               "bad.ini:1: section 'record' is missing; its keys are num_views and split_views\n"
               "bad.ini:1: section 'view 0' is missing\n")
        << 2;
}

void TestHostStreams::noTemporaryFolderIsNeeded()
{
#ifndef Q_OS_LINUX
    QSKIP("other systems have no files without a folder");
#endif
    QFETCH(QString, line);
    QFETCH(QString, error);
    QFETCH(int, exitCode);
    HostProgram program;
    prepare(program);
    program.setContent(QStringLiteral("bad.ini"), "");
    const HostProgram::Result result = program.run(
        words(line), {{QStringLiteral("TMPDIR"), QStringLiteral("/proc")}}, program.content(a));
    QCOMPARE(result.error, error);
    QCOMPARE(result.output.isEmpty(), exitCode != 0);
    QCOMPARE(result.exitCode, exitCode);
}

void TestHostStreams::librariesNeedNotWriteToPipes()
{
    HostProgram program;
    prepare(program);
    program.removeLibrary(QStringLiteral("kv_mvc_settings_io"));
    program.addStub(QStringLiteral("stub_settings_io"), QStringLiteral("kv_mvc_settings_io"));
    const HostProgram::Result result =
        program.run({QStringLiteral("defaults"), QStringLiteral("2")});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, QStringLiteral("a line\n"));
    QCOMPARE(result.exitCode, 0);
}

QTEST_GUILESS_MAIN(TestHostStreams)
#include "tst_host_streams.moc"
