// export: what is written, for which view and files, and what is told of settings that get lost.

#include "HostProgram.h"
#include "SettingsLedger.h"

#include "../settings_io/EncoderLibrary.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

class TestHostExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void presetsBecomeCommandLines_data();
    void presetsBecomeCommandLines();
    void linesAreRefused_data();
    void linesAreRefused();
    void eachViewHasItsInput_data();
    void eachViewHasItsInput();
    void namesReachTheShellAsTheyAre_data();
    void namesReachTheShellAsTheyAre();
    void namesAreNoAddressesOfFfmpeg_data();
    void namesAreNoAddressesOfFfmpeg();
    void standardStreamsAreTold_data();
    void standardStreamsAreTold();
    void configurationHasTwoFiles();
    void configurationOfOneViewHasOne();
    void configurationNamesFilesFromItsFolder();
    void settingsAreNotWrittenOver_data();
    void settingsAreNotWrittenOver();
    void outputReplacesAFile();
    void settingsComeOnStandardInput();
    void documentHasEverySettingOnce_data();
    void documentHasEverySettingOnce();

private:
    /// The preset's settings with "name=value" ones, in `movie.ini`.
    void write(int preset, const QString& set = {}) const;

    HostProgram m_program;
};

namespace
{

const QString settingsFile = QStringLiteral("movie.ini");

QStringList words(const char* text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

void TestHostExport::write(int preset, const QString& set) const
{
    KvMvcSettings settings = kvtest::EncoderLibrary().defaults(preset);
    for (const QString& entry : set.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const ledger::Setting& setting = ledger::setting(entry.section(QLatin1Char('='), 0, 0));
        const double value = entry.section(QLatin1Char('='), 1).toDouble();
        for (int view = 0; view < (setting.isOfRecord() ? 1 : KV_MVC_RECORD_VIEWS); ++view) {
            ledger::put(settings, setting, view, value);
        }
    }
    m_program.writeSettings(settingsFile, settings);
}

void TestHostExport::presetsBecomeCommandLines_data()
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* name, int preset, const char* arguments, const char* output,
                        const char* error) {
        QTest::newRow(name) << preset << QString::fromUtf8(arguments)
                            << QString::fromUtf8(output) + QLatin1Char('\n')
                            << QString::fromUtf8(error);
    };
    const char* const twoViews =
        "note: Number of additional views: x264 codes one view, the base view unless --view names "
        "another\n"
        "note: Split views: x264 writes a view into a stream of its own\n";
    row("x264", KV_MVC_VIDEO_TYPE_NONE, "--to x264",
        "x264 --demuxer raw --profile high --level 4.1 --input-res 1920x1080 --fps 24000/1001 "
        "--sar 1:1 --output-csp i420 --input-csp i420 --output-depth 8 --input-depth 8 "
        "--bitrate 20000 --vbv-maxrate 30000 --nal-hrd vbr --vbv-bufsize 30000 --vbv-init 0.5 "
        "--qpmin 2 --qpmax 51 --keyint 24 --min-keyint 1 --bframes 2 --b-adapt 0 "
        "--b-pyramid none --partitions p8x8,b8x8,i8x8,i4x4 --subme 7 --ref 3 --merange 64 "
        "--me umh --weightp 0 --no-mixed-refs --no-fast-pskip --aq-mode 0 --slices 4 "
        "-o OUTPUT.264 INPUT.yuv",
        "");
    row("x264, disc, second view", KV_MVC_BLURAY_3D,
        "--to x264 --view 1 --input right.y4m --stream right.264",
        "x264 --bluray-compat --profile high --level 4.1 --fps 24000/1001 "
        "--sar 1:1 --output-csp i420 --output-depth 8 "
        "--bitrate 11000 --vbv-maxrate 15000 --nal-hrd vbr --vbv-bufsize 15000 --vbv-init 0.5 "
        "--qpmin 2 --qpmax 51 --keyint 24 --min-keyint 1 --bframes 2 --b-adapt 0 "
        "--b-pyramid none --partitions p8x8,b8x8,i8x8,i4x4 --subme 7 --ref 3 --merange 64 "
        "--me umh --weightp 0 --no-mixed-refs --no-fast-pskip --aq-mode 0 --slices 4 "
        "-o right.264 right.y4m",
        twoViews);
    row("ffmpeg", KV_MVC_VIDEO_TYPE_NONE, "--to ffmpeg",
        "ffmpeg -nostdin -y -f rawvideo -video_size 1920x1080 -framerate 24000/1001 "
        "-pixel_format yuv420p -i INPUT.yuv -map 0:v:0 -c:v libx264 -profile:v high -level:v 4.1 "
        "-pix_fmt yuv420p -b:v 20000k -maxrate 30000k -bufsize 30000k -vf setsar=1/1:max=65535 "
        "-x264-params force-cfr=1:nal-hrd=vbr:vbv-init=0.5:qpmin=2:qpmax=51:keyint=24:"
        "min-keyint=1:bframes=2:b-adapt=0:b-pyramid=none:partitions=p8x8,b8x8,i8x8,i4x4:subme=7:"
        "ref=3:merange=64:me=umh:weightp=0:no-mixed-refs=1:no-fast-pskip=1:aq-mode=0:slices=4 "
        "OUTPUT.264",
        "");
    row("ffmpeg, disc, second view", KV_MVC_BLURAY_3D,
        "--to ffmpeg --view 1 --input right.mkv --stream right.mp4",
        "ffmpeg -nostdin -y -r 24000/1001 -i right.mkv -map 0:v:0 -c:v libx264 -profile:v high "
        "-level:v 4.1 -pix_fmt yuv420p -b:v 11000k -maxrate 15000k -bufsize 15000k "
        "-vf setsar=1/1:max=65535 -x264-params bluray-compat=1:force-cfr=1:nal-hrd=vbr:"
        "vbv-init=0.5:qpmin=2:qpmax=51:keyint=24:min-keyint=1:bframes=2:b-adapt=0:b-pyramid=none:"
        "partitions=p8x8,b8x8,i8x8,i4x4:subme=7:ref=3:merange=64:me=umh:weightp=0:"
        "no-mixed-refs=1:no-fast-pskip=1:aq-mode=0:slices=4 right.mp4",
        twoViews);
}

void TestHostExport::presetsBecomeCommandLines()
{
    QFETCH(int, preset);
    QFETCH(QString, arguments);
    QFETCH(QString, output);
    QFETCH(QString, error);
    write(preset);
    const HostProgram::Result result = m_program.run(
        QStringList{QStringLiteral("export"), settingsFile} + arguments.split(QLatin1Char(' ')));
    QCOMPARE(result.output, output);
    QCOMPARE(result.error, error);
    QCOMPARE(result.exitCode, 0);
}

void TestHostExport::linesAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* arguments, const char* line) {
        QTest::newRow(arguments) << words(arguments) << QString::fromUtf8(line);
    };
    row("", "--to is missing: x264, ffmpeg or jm");
    row("--to h265", "there is no export to 'h265'; there are x264, ffmpeg and jm");
    row("--to x264 --to h265", "there is no export to 'h265'; there are x264, ffmpeg and jm");
    row("--to x264 --view 2", "there is no view '2'; the settings have views 0 to 1");
    row("--to x264 --view left", "there is no view 'left'; the settings have views 0 to 1");
    row("--to x264 --view -1", "there is no view '-1'; the settings have views 0 to 1");
    row("--to x264 --input a --input b --input c", "there are more inputs than views");
    row("--to x264 --input=", "a file name is empty");
    row("--to x264 --stream=", "a file name is empty");
    for (const char* name : {"out.264", "out.mp4", "in.y4m", "in.yuv", "movie.ini"}) {
        QTest::newRow(name) << (words("--to x264 -o") << QString::fromUtf8(name))
                            << QStringLiteral("cannot write '%1': the name of an export to x264 "
                                              "ends in .sh (--stream names what is encoded)")
                                   .arg(QLatin1String(name));
    }
    row("--to ffmpeg -o out.mp4", "cannot write 'out.mp4': the name of an export to ffmpeg ends in "
                                  ".sh (--stream names what is encoded)");
    row("--to jm", "two views have two files: -o names the first");
    row("--to jm -o -", "two views have two files: -o names the first");
    row("--to jm -o film.sh", "cannot write 'film.sh': the name of an export to jm ends in .cfg "
                              "(--stream names what is encoded)");
    row("--to jm -o film.cfg --input a.yuv", "there is no input for view 1");
    row("--to jm -o film.cfg --input a.yuv --input b.y4m",
        "JM reads planar pictures without a header, not 'b.y4m'");
    row("--to jm --view 1 --input -", "JM reads planar pictures without a header, not '-'");
    for (const char* name : {"a#b.264", "a\"b.264", "a%3d.264"}) {
        QTest::newRow(name) << (words("--to jm -o film.cfg --stream") << QString::fromUtf8(name))
                            << QStringLiteral("JM's configuration has no way to name the file '%1'")
                                   .arg(QLatin1String(name));
    }
    row("--to x264 -o folder.sh", "cannot write 'folder.sh': it is no file");
}

void TestHostExport::linesAreRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, line);
    write(KV_MVC_STEREO_HIGH);
    m_program.setContent(QStringLiteral("out.264"), "a stream");
    QDir(m_program.path(QString())).mkdir(QStringLiteral("folder.sh"));
    const HostProgram::Result result =
        m_program.run(QStringList{QStringLiteral("export"), settingsFile} + arguments);
    QCOMPARE(result.error, QStringLiteral("kv-mvc-settings: %1\n").arg(line));
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(m_program.content(QStringLiteral("out.264")), QByteArray("a stream"));
    QVERIFY(!m_program.fileNames().contains(QStringLiteral("film.cfg")));
    QVERIFY(!m_program.fileNames().contains(QStringLiteral("film_view1.cfg")));
}

void TestHostExport::eachViewHasItsInput_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("input");
    const auto row = [](const char* arguments, const char* input) {
        QTest::newRow(arguments) << QString::fromUtf8(arguments) << QString::fromUtf8(input);
    };
    row("--input a.y4m", "a.y4m");
    row("--input a.y4m --input b.y4m", "a.y4m");
    row("--input a.y4m --input b.y4m --view 0", "a.y4m");
    row("--input a.y4m --input b.y4m --view 1", "b.y4m");
    row("--input b.y4m --view 1", "b.y4m");
    row("--view 2", "INPUT2.yuv");
    row("--input a.y4m --input b.y4m --input c.y4m --view 2", "c.y4m");
}

void TestHostExport::eachViewHasItsInput()
{
    QFETCH(QString, arguments);
    QFETCH(QString, input);
    write(KV_MVC_MULTIVIEW_HIGH, QStringLiteral("num_views=4"));
    const HostProgram::Result result =
        m_program.run(words("export movie.ini --to x264") + arguments.split(QLatin1Char(' ')));
    QCOMPARE(result.output.trimmed().section(QLatin1Char(' '), -1), input);
}

void TestHostExport::namesReachTheShellAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("arrives");
    const auto row = [](const char* name) {
        QTest::newRow(name) << QString::fromUtf8(name) << QString::fromUtf8(name);
    };
    row("plain-1_2,3:4@5%6+7=8.y4m");
    row("a blank.y4m");
    row("it's.y4m");
    row("'.y4m");
    row("$HOME `id` $(id) \"quoted\" \\.y4m");
    row("*?[a]{b,c}~;&|<>(#)!.y4m");
    row("two\nlines\tand\ttabs.y4m");
    row("Grüße 日本.y4m");
    QTest::newRow("-option.y4m") << QStringLiteral("-option.y4m")
                                 << QStringLiteral("./-option.y4m");
}

void TestHostExport::namesReachTheShellAsTheyAre()
{
#ifdef Q_OS_WIN
    QSKIP("there is no shell");
#endif
    QFETCH(QString, name);
    QFETCH(QString, arrives);
    write(KV_MVC_VIDEO_TYPE_NONE);
    const HostProgram::Result result = m_program.run(
        {QStringLiteral("export"), QStringLiteral("--to"), QStringLiteral("x264"),
         QStringLiteral("--input"), name, QStringLiteral("--stream"), name, settingsFile});
    QCOMPARE(result.exitCode, 0);
    const HostProgram::Result words = m_program.runScript(
        QStringLiteral("x264() { while [ $# -gt 3 ]; do shift; done; printf '<%s>' \"$@\"; }\n") +
        result.output);
    QCOMPARE(words.output, QStringLiteral("<-o><%1><%2>").arg(name, arrives));
    QCOMPARE(words.error, QString());
}

void TestHostExport::namesAreNoAddressesOfFfmpeg_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("arrives");
    const auto row = [](const char* name, const char* arrives) {
        QTest::newRow(name) << QString::fromUtf8(name) << QString::fromUtf8(arrives);
    };
    row("a.mkv", "a.mkv");
    row("12:30.mkv", "file:12:30.mkv");
    row("C:/a.mkv", "file:C:/a.mkv");
    row("-a.mkv", "./-a.mkv");
    row("http://host/a.mkv", "http://host/a.mkv");
}

void TestHostExport::namesAreNoAddressesOfFfmpeg()
{
    QFETCH(QString, name);
    QFETCH(QString, arrives);
    write(KV_MVC_VIDEO_TYPE_NONE);
    const HostProgram::Result result =
        m_program.run(words("export movie.ini --to ffmpeg --input") +
                      QStringList{name, QStringLiteral("--stream"), name});
    QVERIFY2(result.output.contains(QStringLiteral(" -i %1 ").arg(arrives)),
             qPrintable(result.output));
    QVERIFY2(result.output.endsWith(QStringLiteral(" %1\n").arg(arrives)),
             qPrintable(result.output));
}

void TestHostExport::standardStreamsAreTold_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("end");
    QTest::newRow("x264") << QStringLiteral("x264") << QStringLiteral("x264 --demuxer y4m ")
                          << QStringLiteral(" -o - -\n");
    QTest::newRow("ffmpeg") << QStringLiteral("ffmpeg")
                            << QStringLiteral(" -f yuv4mpegpipe -r 24000/1001 -i - ")
                            << QStringLiteral(" -f h264 -\n");
}

void TestHostExport::standardStreamsAreTold()
{
    QFETCH(QString, target);
    QFETCH(QString, input);
    QFETCH(QString, end);
    write(KV_MVC_VIDEO_TYPE_NONE);
    const HostProgram::Result result =
        m_program.run(words("export movie.ini --input - --stream - --to") + QStringList{target});
    QVERIFY2(result.output.contains(input), qPrintable(result.output));
    QVERIFY2(result.output.endsWith(end), qPrintable(result.output));
}

void TestHostExport::configurationHasTwoFiles()
{
    HostProgram program;
    program.writeSettings(settingsFile, kvtest::EncoderLibrary().defaults(KV_MVC_STEREO_HIGH));
    const HostProgram::Result result = program.run(
        words("export movie.ini --to jm --input left.yuv --input right.yuv --stream out.264 -o "
              "film.cfg"));
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.error,
             QStringLiteral("note: VBV buffer initial, VBV buffer target: JM writes rate and size "
                            "of the buffer into the stream, but keeps none\n"
                            "note: Enable scene detection: JM looks for no scene changes\n"
                            "note: Target bitrate (bps), Max bitrate (bps), Bitrate buffer: JM "
                            "codes the second view as the base view\n"));
    for (const char* name : {"film.cfg", "film_view1.cfg"}) {
        QFile golden(QStringLiteral(KV_GOLDEN_DIR "/") + QLatin1String(name));
        QVERIFY(golden.open(QIODevice::ReadOnly | QIODevice::Text));
        QByteArray written = program.content(QString::fromUtf8(name));
        written.replace("\"NUL\"", "\"/dev/null\""); // of Windows
        QCOMPARE(QString::fromUtf8(written), QString::fromUtf8(golden.readAll()));
    }
}

void TestHostExport::configurationOfOneViewHasOne()
{
    write(KV_MVC_STEREO_HIGH);
    const HostProgram::Result result =
        m_program.run(words("export movie.ini --to jm --view 1 --input right.yuv"));
    QCOMPARE(result.exitCode, 0);
    for (const char* line : {"\nInputFile                            = \"right.yuv\"\n",
                             "\nOutputFile                           = \"OUTPUT.264\"\n",
                             "\nNumberOfViews                        = 1\n",
                             "\nProfileIDC                           = 100\n",
                             "\nBitrate                              = 10000000\n"}) {
        QVERIFY2(result.output.contains(QLatin1String(line)), line);
    }
    QVERIFY(!result.output.contains(QLatin1String("View1ConfigFile")));
}

void TestHostExport::configurationNamesFilesFromItsFolder()
{
    write(KV_MVC_STEREO_HIGH);
    QVERIFY(QDir(m_program.path(QString())).mkpath(QStringLiteral("deep/er")));
    const QString absolute = m_program.path(QStringLiteral("left.yuv"));
    const HostProgram::Result result = m_program.run(
        words("export movie.ini --to jm --stream deep/out.264 -o deep/er/film.cfg --input") +
        QStringList{absolute, QStringLiteral("--input"), QStringLiteral("deep/er/right.yuv")});
    QCOMPARE(result.exitCode, 0);
    const QByteArray film = m_program.content(QStringLiteral("deep/er/film.cfg"));
    QVERIFY2(film.contains(" = \"" + absolute.toUtf8() + "\"\n"), film.constData());
    QVERIFY2(film.contains("\nOutputFile                           = \"../out.264\"\n"),
             film.constData());
    QVERIFY2(film.contains("\nView1ConfigFile                      = \"film_view1.cfg\"\n"),
             film.constData());
    QVERIFY(m_program.content(QStringLiteral("deep/er/film_view1.cfg"))
                .contains("\nInputFile                            = \"right.yuv\"\n"));
}

void TestHostExport::settingsAreNotWrittenOver_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("named");
    QTest::newRow("first file") << QStringLiteral("film.cfg") << QStringLiteral("film.cfg");
    QTest::newRow("other name") << QStringLiteral("film.cfg") << QStringLiteral("./film.cfg");
    QTest::newRow("second file") << QStringLiteral("film_view1.cfg") << QStringLiteral("film.cfg");
}

void TestHostExport::settingsAreNotWrittenOver()
{
    QFETCH(QString, settings);
    QFETCH(QString, named);
    HostProgram program;
    program.writeSettings(settings, kvtest::EncoderLibrary().defaults(KV_MVC_STEREO_HIGH));
    const QByteArray content = program.content(settings);
    const HostProgram::Result result =
        program.run(words("export --to jm -o") + QStringList{named, settings});
    QVERIFY2(result.error.endsWith(QLatin1String("': the settings are in it\n")),
             qPrintable(result.error));
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(program.fileNames(), QStringList{settings});
    QCOMPARE(program.content(settings), content);
}

void TestHostExport::outputReplacesAFile()
{
    write(KV_MVC_VIDEO_TYPE_NONE);
    const QString expected = m_program.run(words("export --to x264 movie.ini")).output;
    for (const char* name : {"encode.sh", "encode.TXT", "encode"}) {
        m_program.setContent(QString::fromUtf8(name), "former");
        const HostProgram::Result result = m_program.run(words("export --to x264 movie.ini -o") +
                                                         QStringList{QString::fromUtf8(name)});
        QCOMPARE(result.error, QString());
        QCOMPARE(result.output, QString());
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(QString::fromUtf8(m_program.content(QString::fromUtf8(name))), expected);
    }
    QCOMPARE(m_program.run(words("export --to x264 movie.ini -o -")).output, expected);
}

void TestHostExport::settingsComeOnStandardInput()
{
    write(KV_MVC_VIDEO_TYPE_NONE);
    const HostProgram::Result result =
        m_program.run(words("export --to x264 -"), {}, m_program.content(settingsFile));
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, m_program.run(words("export --to x264 movie.ini")).output);
}

void TestHostExport::documentHasEverySettingOnce_data()
{
    QTest::addColumn<QString>("title");
    for (const char* title : {"x264", "ffmpeg", "jm"}) {
        QTest::newRow(title) << QString::fromUtf8(title);
    }
}

/// A row has options, or at least the reason why there are none.
void TestHostExport::documentHasEverySettingOnce()
{
    QFETCH(QString, title);
    QFile file(QStringLiteral(KV_SOURCE_DIR "/docs/export.md"));
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
    const QString section = QString::fromUtf8(file.readAll())
                                .section(QStringLiteral("\n## %1\n").arg(title), 1, 1)
                                .section(QStringLiteral("\n## "), 0, 0);
    static const QRegularExpression row(QStringLiteral("^\\| `(\\w+)` \\| (.+) \\| (.*) \\|$"),
                                        QRegularExpression::MultilineOption);
    QStringList found;
    for (auto match = row.globalMatch(section); match.hasNext();) {
        const QRegularExpressionMatch entry = match.next();
        found << entry.captured(1);
        QVERIFY2(entry.captured(2) != QLatin1String("none") || !entry.captured(3).isEmpty(),
                 qPrintable(entry.captured(1)));
    }
    QStringList expected;
    for (const ledger::Setting& setting : ledger::settings()) {
        expected << QString::fromUtf8(setting.member);
    }
    found.sort();
    expected.sort();
    QCOMPARE(found, expected);
}

QTEST_GUILESS_MAIN(TestHostExport)
#include "tst_host_export.moc"
