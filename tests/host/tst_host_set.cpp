// set, and defaults --set: settings from a command line.

#include "ExampleSettings.h"
#include "HostProgram.h"

#include <QTest>

class TestHostSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesAreSavedAndPrinted();
    void viewsAreSetTogetherOrByThemselves();
    void outputLeavesTheFile();
    void streamsGoThrough();
    void nothingChangedWritesNothing();
    void wrongAssignmentsLeaveTheFile();
    void badTargetsAreRefused_data();
    void badTargetsAreRefused();
    void defaultsTakeSettings();
    void defaultsRefuseWrongSettings();
    void libraryWithoutItIsTold();
};

namespace
{

const QString a = QStringLiteral("a.ini");
const QString b = QStringLiteral("b.cfg");

HostProgram::Result run(const HostProgram& program, const QStringList& arguments,
                        const QByteArray& input = {})
{
    return program.run(QStringList{QStringLiteral("set")} + arguments, {}, input);
}

QString text(const char* literal)
{
    return QString::fromUtf8(literal);
}

} // namespace

void TestHostSet::changesAreSavedAndPrinted()
{
    const HostProgram program;
    program.writeSettings(a, exampleSettings());
    const HostProgram::Result result =
        run(program, {a, text("level=4.2"), text("view0.frame_rate=30000 / 1001"),
                      text("view1.bitrate=8M"), text("split_views=on"), text("view0.level=5.1")});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output,
             text("Split views: off -> on\n"
                  "Level, base view: 4.1 -> 5.1\n"
                  "Frame rate, base view: 23.976 (24000/1001) -> 29.97 (30000/1001)\n"
                  "Level, view 1: 4.1 -> 4.2\n"
                  "Target bitrate (bps), view 1: 10000000 -> 8000000\n"));
    QCOMPARE(result.exitCode, 0);
    KvMvcSettings expected = exampleSettings();
    expected.split_views = 1;
    expected.views[0].level = 51;
    expected.views[0].frame_rate = 30000.0 / 1001.0;
    expected.views[1].level = 42;
    expected.views[1].bitrate = 8000000;
    const KvMvcSettings saved = program.readSettings(a);
    QVERIFY(std::memcmp(&saved, &expected, sizeof saved) == 0);
    QCOMPARE(program.fileNames(), QStringList{a});
}

void TestHostSet::viewsAreSetTogetherOrByThemselves()
{
    const HostProgram program;
    program.writeSettings(a, exampleSettings());
    QCOMPARE(run(program, {a, text("bitrate=9000k"), text("view1.width=720")}).exitCode, 0);
    const KvMvcSettings saved = program.readSettings(a);
    QCOMPARE(saved.views[0].bitrate, 9000000);
    QCOMPARE(saved.views[1].bitrate, 9000000);
    QCOMPARE(saved.views[0].width, 1920);
    QCOMPARE(saved.views[1].width, 720);
}

void TestHostSet::outputLeavesTheFile()
{
    const HostProgram program;
    program.writeSettings(a, exampleSettings());
    const QByteArray before = program.content(a);
    HostProgram::Result result = run(program, {a, text("-o"), b, text("view0.width=1280")});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, text("Picture width, base view: 1920 -> 1280\n"));
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(program.content(a), before);
    QCOMPARE(program.readSettings(b).views[0].width, 1280);

    result = run(program, {a, text("width=1280"), text("--output"), text("-")});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output.count(text("\nwidth = 1280\n")), 2);
    QVERIFY(!result.output.contains(text("->")));
    QCOMPARE(program.content(a), before);
}

void TestHostSet::streamsGoThrough()
{
    const HostProgram program;
    program.writeSettings(a, exampleSettings());
    const HostProgram::Result result =
        run(program, {text("-"), text("view1.height=720")}, program.content(a));
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
    program.setContent(b, result.output.toUtf8());
    KvMvcSettings expected = exampleSettings();
    expected.views[1].height = 720;
    const KvMvcSettings saved = program.readSettings(b);
    QVERIFY(std::memcmp(&saved, &expected, sizeof saved) == 0);
}

void TestHostSet::nothingChangedWritesNothing()
{
    const HostProgram program;
    program.writeSettings(a, exampleSettings());
    const QByteArray commented = "# mine\n" + program.content(a);
    program.setContent(a, commented);
    HostProgram::Result result = run(program, {a, text("width=1920")});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(program.content(a), commented);

    result = run(program, {a, text("width=1920"), text("-o"), b});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(program.readSettings(b).views[0].width, 1920);
}

void TestHostSet::wrongAssignmentsLeaveTheFile()
{
    const HostProgram program;
    program.writeSettings(a, exampleSettings());
    const QByteArray before = program.content(a);
    const HostProgram::Result result =
        run(program, {a, text("width=64"), text("bitrat=1"), text("height"), text("level=7"),
                      text("view1.widht=\xC3\x83\xC2\xA4")});
    QCOMPARE(result.error,
             text("kv-mvc-settings: unknown setting 'bitrat'; did you mean 'bitrate'?\n"
                  "kv-mvc-settings: no KEY=VALUE: 'height'\n"
                  "kv-mvc-settings: bad value '7' for 'level': expected 1.0, 1.1, 1.2, 1.3, 1.6, "
                  "2.0, 2.1, 2.2, 3.0, 3.1, 3.2, 4.0, 4.1, 4.2, 5.0, 5.1, 5.2 or auto\n"
                  "kv-mvc-settings: unknown setting 'view1.widht'; did you mean 'view1.width'?\n"));
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(program.content(a), before);
}

void TestHostSet::badTargetsAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    const auto row =
        [](const char* arguments, const char* error) {
            QTest::newRow(arguments)
                << QString::fromLatin1(arguments).split(QLatin1Char(' '))
                << QStringLiteral("kv-mvc-settings: %1\n").arg(QString::fromLatin1(error));
        };
    row("none.ini width=1", "cannot read 'none.ini': there is no such file");
    row("a.ini width=1 -o movie.mp4",
        "cannot write 'movie.mp4': the name of a settings file ends in .cfg or .ini");
    row("movie.mp4 width=1",
        "cannot write 'movie.mp4': the name of a settings file ends in .cfg or .ini");
    row("a.ini width=1 -o none/b.cfg", "cannot write 'none/b.cfg': there is no directory 'none'");
    row("a.ini", "too few arguments; see 'kv-mvc-settings set --help'");
}

void TestHostSet::badTargetsAreRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    const HostProgram program;
    program.writeSettings(a, exampleSettings());
    program.setContent(text("movie.mp4"), "movie");
    const QByteArray before = program.content(a);
    const HostProgram::Result result = run(program, arguments);
    QCOMPARE(result.error, error);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(program.content(a), before);
    QCOMPARE(program.content(text("movie.mp4")), QByteArray("movie"));
}

void TestHostSet::defaultsTakeSettings()
{
    HostProgram program;
    program.addStub(text("stub_encoder"), text("kv_mvcenc"));
    const HostProgram::Result result =
        program.run({text("defaults"), text("2"), text("--set"), text("height=720"),
                     text("--set=view1.bitrate=8M"), text("-o"), a});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 0);
    const KvMvcSettings saved = program.readSettings(a);
    QCOMPARE(saved.views[0].width, 1002); // the stub's
    QCOMPARE(saved.views[0].height, 720);
    QCOMPARE(saved.views[1].height, 720);
    QCOMPARE(saved.views[1].bitrate, 8000000);
}

void TestHostSet::defaultsRefuseWrongSettings()
{
    HostProgram program;
    program.addStub(text("stub_encoder"), text("kv_mvcenc"));
    const HostProgram::Result result =
        program.run({text("defaults"), text("2"), text("--set"), text("hieght=720")});
    QCOMPARE(result.error,
             text("kv-mvc-settings: unknown setting 'hieght'; did you mean 'height'?\n"));
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
}

void TestHostSet::libraryWithoutItIsTold()
{
    HostProgram program;
    program.addStub(text("stub_encoder"), text("kv_mvcenc"));
    program.removeLibrary(text("kv_mvc_settings_io"));
    program.addStub(text("stub_settings_io"), text("kv_mvc_settings_io"));
    const HostProgram::Result result =
        program.run({text("defaults"), text("2"), text("--set"), text("width=720")});
    QCOMPARE(result.error,
             text("kv-mvc-settings: the settings file library has no function 8449\n"));
    QCOMPARE(result.exitCode, 2);
}

QTEST_GUILESS_MAIN(TestHostSet)
#include "tst_host_set.moc"
