#include "ExampleSettings.h"
#include "HostProgram.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

namespace
{

const QString prefix = QStringLiteral("kv-mvc-settings: ");

QStringList words(const QString& line)
{
    return line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

class TestHostCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wrongArgumentsGetOneLine_data();
    void wrongArgumentsGetOneLine();
    void helpNamesEveryCommand();
    void everyCommandHasHelp_data();
    void everyCommandHasHelp();
    void versionIsTheProjects();
    void badFilesGetTheirReasonsAndLeaveAllAsItWas_data();
    void badFilesGetTheirReasonsAndLeaveAllAsItWas();
    void everyErrorOfAFileIsTold();
    void placesInAFileAreToldAsCompilersDo();
    void unreadableFileGetsOneLine();
    void fullOutputIsTrouble();
};

void TestHostCommands::wrongArgumentsGetOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("line");

    const auto row = [](const char* name, const QString& arguments, const char* line) {
        QTest::newRow(name) << words(arguments) << QString::fromLatin1(line);
    };
    const auto text = [](const char* literal) { return QString::fromLatin1(literal); };

    row("no command", {}, "no command; see 'kv-mvc-settings --help'");
    row("unknown command", text("frobnicate"),
        "unknown command 'frobnicate'; see 'kv-mvc-settings --help'");
    row("unknown option", text("--bogus"),
        "unknown option '--bogus'; see 'kv-mvc-settings --help'");
    row("show nothing", text("show"), "too few arguments; see 'kv-mvc-settings show --help'");
    row("show two", text("show a b"), "too many arguments; see 'kv-mvc-settings show --help'");
    row("show with an option of others", text("show a -o b"),
        "unknown option '-o'; see 'kv-mvc-settings show --help'");
    row("command with a slip", text("chekc a"), "unknown command 'chekc'; did you mean 'check'?");
    row("command unfinished", text("def 2"), "unknown command 'def'; did you mean 'defaults'?");
    row("command of two letters", text("ex a"),
        "unknown command 'ex'; see 'kv-mvc-settings --help'");
    row("option with a slip", text("show --jsno a"),
        "unknown option '--jsno'; did you mean '--json'?");
    row("option with a value", text("edit --hostin=own"),
        "unknown option '--hostin'; did you mean '--hosting'?");
    row("option with one hyphen", text("check -strict a"),
        "unknown option '-strict'; did you mean '--strict'?");
    row("option of the program", text("--versoin"),
        "unknown option '--versoin'; did you mean '--version'?");
    row("option like no other", text("show --bogus a"),
        "unknown option '--bogus'; see 'kv-mvc-settings show --help'");
    row("preset with a slip", text("defaults sterio-high"),
        "there is no preset 'sterio-high'; did you mean 'stereo-high'?");
    row("preset of two words", text("defaults multivew-hihg"),
        "there is no preset 'multivew-hihg'; did you mean 'multiview-high'?");
    row("check nothing", text("check"), "too few arguments; see 'kv-mvc-settings check --help'");
    row("diff one", text("diff a"), "too few arguments; see 'kv-mvc-settings diff --help'");
    row("diff three", text("diff a b c"), "too many arguments; see 'kv-mvc-settings diff --help'");
    row("import nothing", text("import"), "too few arguments; see 'kv-mvc-settings import --help'");
    row("edit two", text("edit a b"), "too many arguments; see 'kv-mvc-settings edit --help'");
    row("value missing", text("edit --title"),
        "missing value after '--title'; see 'kv-mvc-settings edit --help'");
    row("value too many", text("show --json=1 a"),
        "unexpected value after '--json'; see 'kv-mvc-settings show --help'");
    row("preset number", text("defaults 4"),
        "there is no preset '4'; there are 0 None, 1 Multivew High, 2 Stereo High, 3 Blu-ray 3D");
    row("preset name", text("edit --preset stereo"),
        "there is no preset 'stereo'; did you mean 'stereo-high'?");
    row("preset unfinished, with a slip", text("defaults stero"),
        "there is no preset 'stero'; did you mean 'stereo-high'?");
    row("preset like no other", text("defaults vhs"),
        "there is no preset 'vhs'; there are 0 None, 1 Multivew High, 2 Stereo High, 3 Blu-ray 3D");
    row("lock", text("edit --lock size,colour"),
        "--lock does not know 'colour': video-type, size, frame-rate, pixel-ratio, profile, level, "
        "views");
    row("hosting", text("edit --hosting foreign"),
        "--hosting does not know 'foreign': own, host, native");
    row("native without window", text("edit --hosting native"), "--hosting native needs --parent");
    row("window without native", text("edit --parent 17"), "--parent needs --hosting native");
    row("window no number", text("edit --hosting native --parent xterm"),
        "--parent: 'xterm' is no window identifier");
    row("window null", text("edit --hosting native --parent 0"),
        "--parent: '0' is no window identifier");
    row("banner", text("edit --banner none.png"), "cannot read 'none.png': there is no such file");
    row("edit from a stream", text("edit -"),
        "the dialog works on files, not on standard input; see 'kv-mvc-settings edit --help'");
    row("edit to a stream", text("edit -o -"),
        "cannot write '-': the name of a settings file ends in .cfg or .ini");
    row("import from a stream", text("import -"),
        "media are read from files, not from standard input; see 'kv-mvc-settings import "
        "--help'");
    row("diff of one stream", text("diff - -"), "standard input can be only one of the two files");
    row("two outputs in one stream", text("check a.ini --json -o -"),
        "--json and '-o -' both write to standard output");
    row("banner from a stream", text("edit --banner -"), "cannot read '-': there is no such file");
    QTest::newRow("empty file name")
        << QStringList{text("show"), QString()}
        << text("an argument is empty; see 'kv-mvc-settings show --help'");
}

void TestHostCommands::wrongArgumentsGetOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, line);
    const HostProgram program;
    const HostProgram::Result result = program.run(arguments);
    QCOMPARE(result.error, prefix + line + QLatin1Char('\n'));
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
}

void TestHostCommands::helpNamesEveryCommand()
{
    const HostProgram program;
    const HostProgram::Result result = program.run({QStringLiteral("--help")});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
    for (const char* line :
         {"\n  edit [FILE] ", "\n  show FILE ", "\n  check FILE... ", "\n  report FILE ",
          "\n  set FILE KEY=VALUE... ", "\n  defaults PRESET ", "\n  diff A B ",
          "\n  import MEDIA ", "\n  export FILE ", "\n  doctor ", "\n  -h, --help ",
          "\n  -v, --version "}) {
        QVERIFY2(result.output.contains(QLatin1String(line)), line);
    }
    QCOMPARE(program.run({QStringLiteral("-h")}).output, result.output);
}

void TestHostCommands::everyCommandHasHelp_data()
{
    QTest::addColumn<QString>("usage");
    QTest::addColumn<QStringList>("options");

    const auto row = [](const char* command, const char* arguments, const char* options) {
        QTest::newRow(command) << QStringLiteral("Usage: kv-mvc-settings %1 [OPTION]... %2")
                                      .arg(QLatin1String(command), QLatin1String(arguments))
                               << words(QString::fromLatin1(options));
    };
    row("edit", "[FILE]",
        "--output --preset --hosting --parent --title --banner --lock --no-basic --no-advanced "
        "--no-file-buttons --no-initial-check --plain-log --no-banner --help");
    row("show", "FILE", "--json --help");
    row("check", "FILE...", "--json --language --notes --output --strict --help");
    row("report", "FILE", "--json --language --help");
    row("set", "FILE KEY=VALUE...", "--output --help");
    row("defaults", "PRESET", "--output --set --help");
    row("diff", "A B", "--json --help");
    row("import", "MEDIA", "--output --help");
    row("export", "FILE", "--to --input --stream --view --output --help");
    row("doctor", "", "--output --help");
}

void TestHostCommands::everyCommandHasHelp()
{
    QFETCH(QString, usage);
    QFETCH(QStringList, options);
    const HostProgram program;
    const QString command = QString::fromLatin1(QTest::currentDataTag());
    // Help is given whatever else is wrong with the line.
    const HostProgram::Result result =
        program.run({command, QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
                     QStringLiteral("--bogus"), QStringLiteral("--help")});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output.section(QLatin1Char('\n'), 0, 0), usage);
    QVERIFY(result.output.contains(QStringLiteral("\nExit code: 0")));

    QStringList listed;
    for (const QString& line : result.output.split(QLatin1Char('\n'))) {
        QVERIFY2(line.size() <= 80, qPrintable(line));
        if (line.startsWith(QStringLiteral("  -"))) {
            listed << line.mid(line.indexOf(QStringLiteral("--"))).section(QLatin1Char(' '), 0, 0);
        }
    }
    QCOMPARE(listed, options);
}

void TestHostCommands::versionIsTheProjects()
{
    const HostProgram program;
    for (const QString& option : {QStringLiteral("--version"), QStringLiteral("-v")}) {
        const HostProgram::Result result = program.run({option});
        QCOMPARE(result.output, QStringLiteral("kv-mvc-settings " KV_PROJECT_VERSION "\n"));
        QCOMPARE(result.error, QString());
        QCOMPARE(result.exitCode, 0);
    }
}

void TestHostCommands::badFilesGetTheirReasonsAndLeaveAllAsItWas_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    struct Bad {
        const char* file;
        const char* error;
    };
    static const Bad badFiles[] = {
        {"none.ini", "kv-mvc-settings: cannot read 'none.ini': there is no such file\n"},
        {"folder.ini", "kv-mvc-settings: cannot read 'folder.ini': it is a directory\n"},
        {"broken.ini", "broken.ini:2: neither a section nor a 'key = value' line: 'nonsense'\n"
                       "broken.ini:3: unknown section 'nothing'\n"},
        {"empty.ini",
         "empty.ini:1: section 'record' is missing; its keys are num_views and split_views\n"
         "empty.ini:1: section 'view 0' is missing\n"},
        {"a%1.ini",
         "a%1.ini:1: section 'record' is missing; its keys are num_views and split_views\n"
         "a%1.ini:1: section 'view 0' is missing\n"},
    };
    static const char* const commands[] = {"show %1",
                                           "show --json %1",
                                           "check %1",
                                           "check --json -o kept.ini %1",
                                           "diff %1 good.ini",
                                           "diff --json good.ini %1",
                                           "import %1",
                                           "import %1 -o kept.ini",
                                           "export --to x264 %1",
                                           "export --to x264 -o kept.sh %1",
                                           "edit %1 -o kept.ini"};
    for (const char* command : commands) {
        for (const Bad& bad : badFiles) {
            const QString line = QString::fromLatin1(command).arg(QLatin1String(bad.file));
            QTest::newRow(qPrintable(line)) << words(line) << QString::fromLatin1(bad.error);
        }
    }
    QTest::newRow("edit broken.ini")
        << words(QStringLiteral("edit broken.ini")) << QString::fromLatin1(badFiles[2].error);

    const auto row = [](const char* command, const char* line) {
        QTest::newRow(command) << words(QString::fromLatin1(command))
                               << prefix + QLatin1String(line) + QLatin1Char('\n');
    };
    for (const char* command :
         {"defaults 1 -o movie.mp4", "import good.ini -o movie.mp4", "check good.ini -o movie.mp4",
          "edit movie.mp4", "edit good.ini -o movie.mp4"}) {
        row(command, "cannot write 'movie.mp4': the name of a settings file ends in .cfg or .ini");
    }
    row("edit folder.ini", "cannot write 'folder.ini': it is no file");
    row("defaults 1 -o nowhere/a.ini",
        "cannot write 'nowhere/a.ini': there is no directory 'nowhere'");
    row("defaults 1 -o folder.ini", "cannot write 'folder.ini': it is no file");
    row("edit good.ini --preset 2", "--preset is for new settings, and 'good.ini' exists");
}

void TestHostCommands::badFilesGetTheirReasonsAndLeaveAllAsItWas()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    HostProgram program;
    program.addStub(QStringLiteral("stub_encoder"), QStringLiteral("kv_mvcenc"));
    program.addStub(QStringLiteral("stub_module"), QStringLiteral("kv_config_gui_mvc"));
    program.writeSettings(QStringLiteral("good.ini"), exampleSettings());
    QVERIFY(QDir(program.path(QString())).mkdir(QStringLiteral("folder.ini")));
    const QMap<QString, QByteArray> contents = {
        {QStringLiteral("a%1.ini"), ""},
        {QStringLiteral("broken.ini"), "[record]\nnonsense\n[nothing]\n"},
        {QStringLiteral("empty.ini"), ""},
        {QStringLiteral("good.ini"), program.content(QStringLiteral("good.ini"))},
        {QStringLiteral("kept.ini"), "kept"},
        {QStringLiteral("movie.mp4"), "movie"}};
    for (auto file = contents.begin(); file != contents.end(); ++file) {
        program.setContent(file.key(), file.value());
    }

    const HostProgram::Result result = program.run(arguments);
    QCOMPARE(result.error, error);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(program.fileNames(), QStringList(contents.keys()));
    for (auto file = contents.begin(); file != contents.end(); ++file) {
        QCOMPARE(program.content(file.key()), file.value());
    }
}

void TestHostCommands::everyErrorOfAFileIsTold()
{
    const HostProgram program;
    QByteArray content = "[record]\n[view 0]\n";
    for (int line = 3; line <= 30; ++line) {
        content += "nonsense\n";
    }
    program.setContent(QStringLiteral("many.ini"), content);
    const HostProgram::Result result =
        program.run({QStringLiteral("check"), QStringLiteral("many.ini")});
    const QStringList lines = result.error.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 20); // as many as the library tells of a file
    for (int at = 0; at < lines.size(); ++at) {
        const QString start = QStringLiteral("many.ini:%1: neither a section").arg(3 + at);
        QVERIFY2(lines.at(at).startsWith(start), qPrintable(lines.at(at)));
    }
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
}

void TestHostCommands::placesInAFileAreToldAsCompilersDo()
{
    HostProgram program;
    program.removeLibrary(QStringLiteral("kv_mvc_settings_io"));
    program.addStub(QStringLiteral("stub_settings_io"), QStringLiteral("kv_mvc_settings_io"));
    const HostProgram::Result result =
        program.run({QStringLiteral("show"), QStringLiteral("-")}, {}, "text");
    QCOMPARE(result.error, QStringLiteral("<stdin>:3: first\n"
                                          "<stdin>:12: second: 5: third\n"
                                          "kv-mvc-settings: <stdin>: no place\n"
                                          "kv-mvc-settings: <stdin>:word: no line\n"
                                          "kv-mvc-settings: no name\n"));
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
}

void TestHostCommands::unreadableFileGetsOneLine()
{
    const HostProgram program;
    const QString name = QStringLiteral("secret.ini");
    program.writeSettings(name, exampleSettings());
    QVERIFY(QFile::setPermissions(program.path(name), QFileDevice::WriteOwner));
    if (QFile(program.path(name)).open(QIODevice::ReadOnly)) {
        QSKIP("this user may read every file");
    }
    const HostProgram::Result result = program.run({QStringLiteral("show"), name});
    QCOMPARE(result.error,
             prefix + QStringLiteral("cannot read 'secret.ini': permission denied\n"));
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
}

void TestHostCommands::fullOutputIsTrouble()
{
    const QString full = QStringLiteral("/dev/full");
    if (!QFile::exists(full)) {
        QSKIP("this system has no device that is always full");
    }
    const HostProgram program;
    program.writeSettings(QStringLiteral("a.ini"), exampleSettings());
    QProcess process;
    process.setWorkingDirectory(program.path(QString()));
    process.setStandardOutputFile(full);
    process.start(program.program(), {QStringLiteral("show"), QStringLiteral("a.ini")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()),
             prefix + QStringLiteral("cannot write to standard output\n"));
    QCOMPARE(process.exitCode(), 2);
}

QTEST_GUILESS_MAIN(TestHostCommands)
#include "tst_host_commands.moc"
