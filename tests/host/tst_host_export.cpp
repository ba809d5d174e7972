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
    void whatIsLostIsTold_data();
    void whatIsLostIsTold();
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
    row("", "--to is missing: x264 or ffmpeg");
    row("--to h265", "there is no export to 'h265'; there are x264 and ffmpeg");
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

void TestHostExport::whatIsLostIsTold_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* target, const char* set, const char* error) {
        QTest::addRow("%s, %s", target, set)
            << QString::fromUtf8(target) << QString::fromUtf8(set)
            << (*error == '\0' ? QString()
                               : QStringLiteral("note: %1\n").arg(QLatin1String(error)));
    };
    row("x264", "", "");
    row("x264", "level=16", "Level: it is no level of H.264, x264 chooses one");
    row("x264", "level=100", "");
    row("x264", "profile=1 entropy_mode=0 ref_distance=1",
        "Profile: x264 writes the lowest profile that has what is used");
    row("x264", "profile=1 entropy_mode=0", "");
    row("x264", "profile=4", "Profile: x264 writes the lowest profile that has what is used");
    row("x264", "profile=4 bit_depth_luma=10 bit_depth_chroma=10", "");
    row("x264", "profile=7", "Profile: its value is none that is known");
    row("x264", "frame_rate=0", "Frame rate: it is not set, the input's or 25 is taken");
    row("x264", "interlace_mode=1", "Picture structure: x264 codes MBAFF frames, not fields");
    row("x264", "interlace_mode=2", "");
    row("x264", "pulldown=1", "Pulldown: x264 starts with the frame of three fields");
    row("x264", "pulldown=2", "");
    row("x264", "pulldown=2 field_order=1",
        "Field order: in progressive pictures x264 starts with the top field");
    row("x264", "pulldown=4 field_order=1", "");
    row("x264", "pulldown=5", "Pulldown: x264 starts with the frame that is shown twice");
    row("x264", "pulldown=6", "Pulldown: x264 chooses none by itself");
    row("x264", "chroma_format=4", "Chroma format: x264 has no such format");
    row("x264", "bit_depth_chroma=10",
        "Bit-depth chroma: x264 codes chroma in as many bits as luma");
    row("x264", "bit_depth_chroma=10 chroma_format=1", "");
    row("x264", "bitrate=20000500 max_bitrate=30000500",
        "Target bitrate (bps), Max bitrate (bps): rates and buffers are rounded to thousands of "
        "bits");
    row("x264", "bitrate_buffer=1000001",
        "Bitrate buffer: rates and buffers are rounded to thousands of bits");
    row("x264", "vbv_target=80",
        "VBV buffer target: x264 keeps the buffer as full as it finds best");
    row("x264", "vbv_target=80 hrd_mode=0", "");
    row("x264", "bitrate_mode=1", "HRD conformance: no buffer is kept without a bit rate");
    row("x264", "bitrate_mode=1 hrd_mode=0", "");
    row("x264", "frame_size_i=200000 frame_size_bref=1",
        "Maximum I-frame size, Maximum Br-frame size: x264 limits no picture's size");
    row("x264", "bitrate_mode=3 hrd_mode=0 quant_i=2",
        "Quantizer I-frames: x264 keeps it within 19 of that of P-frames");
    row("x264", "quant_i=2", "");
    row("x264", "bitrate_mode=1 hrd_mode=0 quant_i=0 quant_p=0 quant_b=0",
        "Quantizer P-frames: the lowest is lossless coding, the next is taken");
    row("x264", "force_i=5",
        "Min. I-frame distance: at a nearer scene change x264 codes an I-frame that is no IDR "
        "picture");
    row("x264", "force_i=5 scene_detection=0", "");
    row("x264", "fixed_i_position=1",
        "Fixed I-frames distance: x264 counts the interval from a scene change on");
    row("x264", "fixed_i_position=1 scene_detection=0", "");
    row("x264", "idr_marker=2",
        "Mark every so many I-frames as IDR: x264 makes all I-frames of the interval IDR "
        "pictures, or the first alone; it is all");
    row("x264", "idr_marker=0", "");
    row("x264", "idr_marker=0 ref_distance=1",
        "Mark every so many I-frames as IDR: without B-frames all I-frames of the interval are "
        "IDR pictures");
    row("x264", "reference_b=1", "B-frames as reference frames: x264 has them only in a pyramid");
    row("x264", "reference_b=1 ref_distance=2",
        "B-frames as reference frames: x264 has them only where two B-frames or more are in a "
        "row");
    row("x264", "reference_b=1 pyramid_b=1 num_ref_frames=4", "");
    row("x264", "pyramid_b=1",
        "Pyramidal structure for B-frames: there is none without B-frames as reference frames");
    row("x264", "num_ref_frames=1", "Reference frames: x264 keeps more of them, for its B-frames");
    row("x264", "num_ref_frames=1 ref_distance=1", "");
    row("x264", "motion_search=3", "Motion vector search range: x264 searches 4 samples at least");
    row("x264", "subpixel_mode=1", "Subpixel search depth: x264 goes on to quarter samples");
    row("x264", "weighted_p=1 interlace_mode=2",
        "Weighted prediction for P-frames: x264 has it only in progressive pictures");
    row("x264", "fast_subblock=0",
        "Fast sub-block search: x264 always ends the search of sub-blocks early");
    row("x264", "fast_intra=1",
        "Fast intra decisions: x264 has no faster intra decisions by themselves");
    row("x264", "brightness=20 contrast=-20",
        "Adaptive quantization, brightness based, Adaptive quantization, contrast based: x264 "
        "adapts quantizers only to complexity");
    row("x264", "complexity=-1",
        "Adaptive quantization, complexity based: x264 has no negative strength");
    row("x264", "complexity=100", "");

    // What x264 lacks it lacks there, too.
    row("ffmpeg", "", "");
    row("ffmpeg", "interlace_mode=1", "Picture structure: x264 codes MBAFF frames, not fields");
    row("ffmpeg", "level=16", "Level: it is no level of H.264, x264 chooses one");
    row("ffmpeg", "bitrate=20000500",
        "Target bitrate (bps): rates and buffers are rounded to thousands of bits");
    row("ffmpeg", "pulldown=2", "Pulldown: ffmpeg does not tell x264 of it");
    row("ffmpeg", "pulldown=2 field_order=1", "Pulldown: ffmpeg does not tell x264 of it");
    row("ffmpeg", "fixed_i_position=1", "");
}

void TestHostExport::whatIsLostIsTold()
{
    QFETCH(QString, target);
    QFETCH(QString, set);
    QFETCH(QString, error);
    write(KV_MVC_VIDEO_TYPE_NONE, set);
    const HostProgram::Result result =
        m_program.run({QStringLiteral("export"), QStringLiteral("--to"), target, settingsFile});
    QCOMPARE(result.error, error);
    QCOMPARE(result.exitCode, 0);
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
    for (const char* title : {"x264", "ffmpeg"}) {
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
