// export: what is written for each encoder, and which lines are refused.

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
    void documentHasEverySettingOnce_data();
    void documentHasEverySettingOnce();

private:
    /// The preset's settings, in `movie.ini`.
    void write(int preset) const;

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

void TestHostExport::write(int preset) const
{
    m_program.writeSettings(settingsFile, kvtest::EncoderLibrary().defaults(preset));
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
