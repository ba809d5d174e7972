// Settings from media files: what the stream tells, over the defaults of the fitting preset.
#include "EncoderLibrary.h"
#include "SettingsLibrary.h"

#include "../media_probe/MediaMaker.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using kvtest::filledRecord;
using kvtest::makeMedia;
using kvtest::picture;
using kvtest::same;
using kvtest::SettingsLibrary;

namespace
{

/// What a file is made of, and the settings that both views get from it.
struct Import {
    const char* file;
    const char* size;
    const char* rate;
    const char* arguments;
    int width, height;
    double frameRate;
    int interlace, order, aspectX, aspectY, profile, level, chroma, depth, references;
};

constexpr int untold = -1000; // the preset's own value
constexpr int autoLevel = 100;
constexpr double filmRate = 24000 / 1001.0;
constexpr double ntscRate = 30000 / 1001.0;
constexpr double ntscFieldRate = 60000 / 1001.0;

// clang-format off
constexpr Import imports[] = {
    // file          size         rate          arguments of ffmpeg                                          w     h     rate    int ord aspect  prof level chroma depth refs
    {"base.mp4",    "176x144",   "15",         "-c:v libx264 -profile:v baseline -level 1.1 -pix_fmt yuv420p -refs 1", 176, 144, 15, 0, 0, 1, 1,    0, 11,    2, 8,  1},
    {"main.MP4",    "352x288",   "25",         "-c:v libx264 -profile:v main -level 2 -pix_fmt yuv420p -refs 2 -x264-params b-pyramid=none", 352, 288, 25, 0, 0, 1, 1, 1, 20, 2, 8, 2},
    {"film.m2t",    "1920x1080", "24000/1001", "-c:v libx264 -preset ultrafast -x264-params 8x8dct=1 -pix_fmt yuv420p -level 4.1 -refs 3", 1920, 1080, filmRate, 0, 0, 1, 1, 3, 41, 2, 8, 3},
    {"fast.ts",     "1280x720",  "60000/1001", "-c:v libx264 -preset ultrafast -x264-params 8x8dct=1 -pix_fmt yuv420p -level 3.2 -refs 2", 1280, 720, ntscFieldRate, 0, 0, 1, 1, 3, 32, 2, 8, 2},
    {"tff.ts",      "720x576",   "25",         "-c:v libx264 -flags +ilme+ildct -x264-params tff=1:b-pyramid=none:ref=2 -pix_fmt yuv420p -level 3 -aspect 16:9", 720, 576, 25, 2, 0, 64, 45, 3, 30, 2, 8, 2},
    {"bff.trp",     "720x480",   "30000/1001", "-f mpegts -c:v libx264 -flags +ilme+ildct -x264-params bff=1:b-pyramid=none:ref=2 -pix_fmt yuv420p -level 3 -aspect 4:3", 720, 480, ntscRate, 2, 1, 8, 9, 3, 30, 2, 8, 2},
    {"ten.m4p",     "640x360",   "24",         "-f mp4 -c:v libx264 -pix_fmt yuv420p10le -x264-params b-pyramid=none:ref=2 -level 3", 640, 360, 24, 0, 0, 1, 1, 4, 30, 2, 10, 2},
    {"two.mp4",     "640x360",   "50",         "-c:v libx264 -pix_fmt yuv422p10le -x264-params b-pyramid=none:ref=2 -level 3.1", 640, 360, 50, 0, 0, 1, 1, 5, 31, 3, 10, 2},
    {"grey.mp4",    "320x240",   "10",         "-c:v libx264 -pix_fmt gray -x264-params b-pyramid=none:ref=2 -level 1.3", 320, 240, 10, 0, 0, 1, 1, 3, 13, 1, 8, 2},
    {"full.mp4",    "320x240",   "10",         "-c:v libx264 -pix_fmt yuv444p -x264-params b-pyramid=none:ref=2 -level 1.3", 320, 240, 10, 0, 0, 1, 1, 5, 13, 3, 8, 2},
    {"es.m2v",      "352x288",   "25",         "-c:v mpeg2video -pix_fmt yuv420p",            352,  288,  25,     0, 0, 1, 1,    3, autoLevel, 2, 8,  untold},
    {"es.mpv",      "352x288",   "24",         "-f mpeg2video -c:v mpeg2video -pix_fmt yuv420p", 352, 288, 24,   0, 0, 1, 1,    3, autoLevel, 2, 8,  untold},
    {"one.mpeg",    "352x288",   "30",         "-f mpeg -c:v mpeg1video -pix_fmt yuv420p",    352,  288,  30,     0, 0, 1, 1,    3, autoLevel, 2, 8,  untold},
    {"ps.mpg",      "720x576",   "25",         "-c:v mpeg2video -pix_fmt yuv420p -flags +ilme+ildct -top 0 -aspect 4:3", 720, 576, 25, 1, 1, 16, 15, 3, autoLevel, 2, 8, untold},
    {"dvd.vob",     "720x576",   "25",         "-target pal-dvd -aspect 16:9",                720,  576,  25,     0, 0, 64, 45,  3, autoLevel, 2, 8,  untold},
    {"ps.m2p",      "480x480",   "30000/1001", "-f svcd -c:v mpeg2video -pix_fmt yuv420p -aspect 4:3", 480, 480, ntscRate, 0, 0, 4, 3, 3, autoLevel, 2, 8, untold},
    {"ps.mp2",      "352x288",   "25",         "-f vob -c:v mpeg2video -pix_fmt yuv420p",     352,  288,  25,     0, 0, 1, 1,    3, autoLevel, 2, 8,  untold},
    {"studio.mxf",  "1920x1080", "25",         "-c:v mpeg2video -pix_fmt yuv422p -flags +ilme+ildct -top 1 -b:v 50M -minrate 50M -maxrate 50M -bufsize 36408333", 1920, 1080, 25, 1, 0, 1, 1, 5, autoLevel, 3, 8, untold},
    {"lowest.mp4",  "176x144",   "10",         "-c:v libx264 -pix_fmt yuv420p -x264-params level=1b:8x8dct=1:b-pyramid=none:ref=2", 176, 144, 10, 0, 0, 1, 1, 3, 11, 2, 8, 2},
    {"other.mkv",   "320x240",   "25",         "-c:v libx264 -pix_fmt yuv420p -x264-params b-pyramid=none:ref=2 -level 1.3", 320, 240, 25, 0, 0, 1, 1, 3, 13, 2, 8, 2},
};
// clang-format on

KvMvcSettings presetDefaults(int preset)
{
    return kvtest::EncoderLibrary().defaults(preset);
}

class TestMediaImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_library.reset(); }
    void streamsBecomeSettings_data();
    void streamsBecomeSettings();
    void whatTheStreamDoesNotTellIsThePresets();
    void viewsChooseThePreset_data();
    void viewsChooseThePreset();
    void signalledBuffersAreTaken();
    void whatHasNoSettingIsNoted();
    void whatIsNotKnownIsNoted_data();
    void whatIsNotKnownIsNoted();
    void namesBeyondAscii();
    void refusedMediaLeaveTheRecord_data();
    void refusedMediaLeaveTheRecord();
    void missingLibrariesAreNamed_data();
    void missingLibrariesAreNamed();
    void theFirstNamesOfTheLibrariesAreTriedFirst();
    void nothingStaysLoaded();

private:
    QString file(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    /// Makes a stream of views in a transport stream.
    QByteArray makeViews(int profile, int views, const QString& name);

    QTemporaryDir m_folder;
    std::unique_ptr<SettingsLibrary> m_library;
};

void TestMediaImport::initTestCase()
{
    if (!kvtest::hasFfmpeg()) {
        QSKIP("the ffmpeg program makes the media of this test");
    }
    QVERIFY(presetDefaults(KV_MVC_STEREO_HIGH).views[0].width > 0);
}

void TestMediaImport::init()
{
    m_library = std::make_unique<SettingsLibrary>();
    QVERIFY2(m_library->isLoaded(), qPrintable(m_library->loadError()));
}

void TestMediaImport::streamsBecomeSettings_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(imports)); ++row) {
        QTest::newRow(imports[row].file) << row;
    }
}

void TestMediaImport::streamsBecomeSettings()
{
    QFETCH(int, row);
    const Import& expected = imports[row];
    const QString name = file(expected.file);
    const QByteArray error = makeMedia(
        picture(expected.size, expected.rate, 0.6) + QLatin1String(expected.arguments), name);
    QVERIFY2(error.isEmpty(), error.constData());
    KvMvcSettings settings = filledRecord(0x5A);
    const int result = m_library->read(settings, name.toUtf8());
    QVERIFY2(result == 0, m_library->messages.constData());
    const KvMvcSettings defaults = presetDefaults(KV_MVC_VIDEO_TYPE_NONE);
    QCOMPARE(kvtest::EncoderLibrary().complaintsOf(settings), QByteArray());
    QCOMPARE(settings.num_views, 1);
    for (const KvMvcViewSettings& view : settings.views) {
        QCOMPARE(view.width, expected.width);
        QCOMPARE(view.height, expected.height);
        const double rate = view.frame_rate;
        QVERIFY2(rate == expected.frameRate, qPrintable(QString::number(rate, 'g', 17)));
        QCOMPARE(view.interlace_mode, expected.interlace);
        QCOMPARE(view.field_order, expected.order);
        QCOMPARE(view.pixel_aspect_x, expected.aspectX);
        QCOMPARE(view.pixel_aspect_y, expected.aspectY);
        QCOMPARE(view.display_aspect_x, -1);
        QCOMPARE(view.display_aspect_y, -1);
        QCOMPARE(view.profile, expected.profile);
        QCOMPARE(view.level, expected.level);
        QCOMPARE(view.chroma_format, expected.chroma);
        QCOMPARE(view.bit_depth_luma, expected.depth);
        QCOMPARE(view.bit_depth_chroma, expected.depth);
        QCOMPARE(view.num_ref_frames, expected.references == untold
                                          ? defaults.views[0].num_ref_frames
                                          : expected.references);
        QVERIFY(view.bitrate > 0);
        QVERIFY(view.max_bitrate >= view.bitrate);
        QVERIFY(view.bitrate_buffer > 0);
    }
}

void TestMediaImport::whatTheStreamDoesNotTellIsThePresets()
{
    const QString name = file("plain.ts");
    const QByteArray error = makeMedia(
        picture("640x480", "20") + QStringLiteral("-c:v libx264 -pix_fmt yuv420p -level 3"), name);
    QVERIFY2(error.isEmpty(), error.constData());
    KvMvcSettings settings{};
    QCOMPARE(m_library->read(settings, name.toUtf8()), 0);
    const QByteArray note = name.toUtf8() + ": note: ";
    QCOMPARE(m_library->messages,
             note + "maximum rate and buffer are not known, they follow from the bit rate\n" +
                 note +
                 "it does not tell the I-frame interval, the distance of IDR pictures, bitrate "
                 "mode: kept as in the preset\n" +
                 note +
                 "no stream tells buffer fullness, frame size limits, quantizer limits, minimum "
                 "and fixed I-frame distance, scene detection, motion search, rate distortion, "
                 "threads: kept as in the preset\n");
    KvMvcSettings expected = presetDefaults(KV_MVC_VIDEO_TYPE_NONE);
    const double ratio = double(expected.views[0].max_bitrate) / expected.views[0].bitrate;
    const double seconds = double(expected.views[0].bitrate_buffer) / expected.views[0].max_bitrate;
    const KvMvcViewSettings& view = settings.views[0];
    QVERIFY(std::abs(view.max_bitrate - view.bitrate * ratio) <= 2);
    QVERIFY(std::abs(view.bitrate_buffer - view.max_bitrate * seconds) <= 2);
    for (int index = 0; index < 2; ++index) {
        KvMvcViewSettings& to = expected.views[index];
        const KvMvcViewSettings& from = settings.views[index];
        for (auto field : {&KvMvcViewSettings::profile,
                           &KvMvcViewSettings::level,
                           &KvMvcViewSettings::width,
                           &KvMvcViewSettings::height,
                           &KvMvcViewSettings::num_ref_frames,
                           &KvMvcViewSettings::bitrate,
                           &KvMvcViewSettings::max_bitrate,
                           &KvMvcViewSettings::bitrate_buffer,
                           &KvMvcViewSettings::hrd_mode,
                           &KvMvcViewSettings::pixel_aspect_x,
                           &KvMvcViewSettings::pixel_aspect_y,
                           &KvMvcViewSettings::display_aspect_x,
                           &KvMvcViewSettings::display_aspect_y,
                           &KvMvcViewSettings::interlace_mode,
                           &KvMvcViewSettings::field_order,
                           &KvMvcViewSettings::ref_distance,
                           &KvMvcViewSettings::adaptive_b,
                           &KvMvcViewSettings::reference_b,
                           &KvMvcViewSettings::pyramid_b,
                           &KvMvcViewSettings::weighted_p,
                           &KvMvcViewSettings::num_slices,
                           &KvMvcViewSettings::multi_slice,
                           &KvMvcViewSettings::quant_i,
                           &KvMvcViewSettings::quant_p,
                           &KvMvcViewSettings::quant_b}) {
            to.*field = from.*field;
        }
        to.frame_rate = from.frame_rate;
    }
    QVERIFY(same(settings, expected));
}

QByteArray TestMediaImport::makeViews(int profile, int views, const QString& name)
{
    const QString base = file("base.h264");
    const QByteArray error = makeMedia(
        picture("352x288", "25") + QStringLiteral("-c:v libx264 -g 10 -pix_fmt yuv420p -level 3"),
        base);
    QFile in(base);
    QFile out(file("views.h264"));
    if (!error.isEmpty() || !in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly)) {
        return "no base view: " + error;
    }
    out.write(kvtest::withViews(in.readAll(), profile, 31, views, 0.5));
    out.close();
    return makeMedia(QStringLiteral("-f h264 -r 25 -i ") + out.fileName() +
                         QStringLiteral(" -c copy -bsf:v setts=ts=N*3600"),
                     name);
}

void TestMediaImport::viewsChooseThePreset_data()
{
    QTest::addColumn<int>("profile");
    QTest::addColumn<int>("views");
    QTest::addColumn<int>("preset");
    QTest::addColumn<int>("taken");
    QTest::newRow("two, Stereo High") << 128 << 2 << 2 << 2;
    QTest::newRow("two, Multiview High") << 118 << 2 << 1 << 2;
    QTest::newRow("three") << 118 << 3 << 1 << 3;
    QTest::newRow("eight, more than the encoder has") << 118 << 8 << 1 << 4;
}

void TestMediaImport::viewsChooseThePreset()
{
    QFETCH(int, profile);
    QFETCH(int, views);
    QFETCH(int, preset);
    QFETCH(int, taken);
    const QString name = file("views.ts");
    const QByteArray error = makeViews(profile, views, name);
    QVERIFY2(error.isEmpty(), error.constData());
    KvMvcSettings settings{};
    QCOMPARE(m_library->read(settings, name.toUtf8()), 0);
    QCOMPARE(kvtest::EncoderLibrary().complaintsOf(settings), QByteArray());
    QCOMPARE(settings.num_views, taken);
    // The slices of the further views are no real ones.
    const QByteArray told = m_library->messagesOfWhatIsTold();
    QVERIFY2(told.contains(": note: the coding tools of its further views are not known, "),
             told.constData());
    QCOMPARE(told.count(": note: "), taken == views ? 1 : 2);
    for (const KvMvcViewSettings& view : settings.views) {
        QCOMPARE(view.video_type, preset);
        QCOMPARE(view.profile, int(KV_MVC_PROFILE_HIGH));
        QCOMPARE(view.level, 31); // of the further views; the base view says 3
        QCOMPARE(view.width, 352);
    }
    // A further view has half of the base view's slices.
    const double share = double(settings.views[1].bitrate) / settings.views[0].bitrate;
    QVERIFY2(share > 0.3 && share < 0.55, qPrintable(QString::number(share)));
}

void TestMediaImport::signalledBuffersAreTaken()
{
    const QString name = file("hrd.ts");
    const QByteArray error = makeMedia(
        picture("640x480", "25") + QStringLiteral("-c:v libx264 -pix_fmt yuv420p -x264-params "
                                                  "nal-hrd=vbr:vbv-maxrate=3000:vbv-bufsize=2000"),
        name);
    QVERIFY2(error.isEmpty(), error.constData());
    KvMvcSettings settings{};
    QCOMPARE(m_library->read(settings, name.toUtf8()), 0);
    const KvMvcViewSettings& view = settings.views[0];
    const bool bytes = view.bitrate_units == KV_MVC_UNITS_BYTES_PERCENT;
    QCOMPARE(view.max_bitrate, 3000000);
    QCOMPARE(view.bitrate_buffer, bytes ? 250000 : 2000000);
    QVERIFY(view.bitrate < 3000000);
    if (bytes) {
        QCOMPARE(view.vbv_initial, presetDefaults(0).views[0].vbv_initial);
    }
}

void TestMediaImport::whatHasNoSettingIsNoted()
{
    const QString name = file("deep.mp4");
    const QByteArray error =
        makeMedia(picture("320x240", "25") + QStringLiteral("-c:v libx265 -x265-params log-level=0 "
                                                            "-pix_fmt yuv444p12le"),
                  name);
    QVERIFY2(error.isEmpty(), error.constData());
    KvMvcSettings settings{};
    QCOMPARE(m_library->read(settings, name.toUtf8()), 0);
    const QByteArray note = name.toUtf8() + ": note: ";
    QCOMPARE(
        m_library->messagesOfWhatIsTold(),
        note + "its chroma format is not among the settings, the nearest is taken\n" + note +
            "its samples have more than 10 bits, 10 are taken\n" + note +
            "it is no H.264, so a fitting profile and level Auto are taken\n" + note +
            "its groups of pictures, pulldown and coding tools are not known, the preset's are "
            "kept\n");
    QCOMPARE(settings.views[0].chroma_format, int(KV_MVC_CHROMA_422));
    QCOMPARE(settings.views[0].bit_depth_luma, 10);
}

void TestMediaImport::whatIsNotKnownIsNoted_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QByteArray>("note");
    QTest::newRow("codec without a fixed format, ffv1.mkv")
        << "-c:v ffv1 -pix_fmt yuv422p10le"
        << QByteArray("its chroma format and bit depth are not known, 4:2:0 with 8 bits is taken");
    QTest::newRow("lossless rate, v210.mov")
        << "-c:v v210 -pix_fmt yuv422p10le"
        << QByteArray("its bit rate is not known or no aim, the preset's is taken");
    QTest::newRow("level 1b of Baseline, 1b.mp4")
        << "-s 176x144 -c:v libx264 -profile:v baseline -level 1b -pix_fmt yuv420p"
        << QByteArray("its level 1b is not among the settings, 1.1 is taken");
    QTest::newRow("level 1b of High, 1b.ts")
        << "-s 176x144 -c:v libx264 -profile:v high -level 1b -refs 1 -bf 0 -pix_fmt yuv420p "
           "-x264-params 8x8dct=1"
        << QByteArray("its level 1b is not among the settings, 1.1 is taken");
}

void TestMediaImport::whatIsNotKnownIsNoted()
{
    QFETCH(QString, arguments);
    QFETCH(QByteArray, note);
    const QString tag = QString::fromUtf8(QTest::currentDataTag());
    const QString name = m_folder.filePath(tag.mid(tag.lastIndexOf(QLatin1Char(' ')) + 1));
    const QByteArray error = makeMedia(picture("320x240", "15") + arguments, name);
    QVERIFY2(error.isEmpty(), error.constData());
    KvMvcSettings settings{};
    QVERIFY2(m_library->read(settings, name.toUtf8()) == 0, m_library->messages.constData());
    QVERIFY2(m_library->messages.contains(name.toUtf8() + ": note: " + note + '\n'),
             m_library->messages.constData());
    QCOMPARE(kvtest::EncoderLibrary().complaintsOf(settings), QByteArray());
}

void TestMediaImport::namesBeyondAscii()
{
    const QString name =
        m_folder.filePath(QString::fromUtf8("\xE6\x98\xA0\xE7\x94\xBB \xC3\xA4.ts"));
    const QByteArray error =
        makeMedia(picture("320x240", "25") + QStringLiteral("-c:v libx264 -pix_fmt yuv420p"), name);
    QVERIFY2(error.isEmpty(), error.constData());
    for (const QByteArray& passed : {name.toUtf8(), kvtest::doubleConverted(name.toUtf8())}) {
        KvMvcSettings settings{};
        QVERIFY2(m_library->read(settings, passed) == 0, m_library->messages.constData());
        QCOMPARE(settings.views[0].width, 320);
    }
}

void TestMediaImport::refusedMediaLeaveTheRecord_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("absent") << "absent.mp4" << QByteArray()
                            << QByteArray("No such file or directory");
    QTest::newRow("noise") << "noise.ts" << QByteArray("\x01\xFF\x80").repeated(30000)
                           << QByteArray("no media format, or damaged");
    QTest::newRow("text") << "text.mpg" << QByteArray("[record]\n[view 0]\n")
                          << QByteArray("no media format, or damaged");
    QTest::newRow("noise without a suffix") << "noise" << QByteArray("\x01\xFF\x80").repeated(30000)
                                            << QByteArray("no media format, or damaged");
    QTest::newRow("too large for settings")
        << "large" << QByteArray(2 << 20, 'x') << QByteArray("no media format, or damaged");
    QTest::newRow("index without its title")
        << "VTS_01_0.IFO" << QByteArray("DVDVIDEO-VTS") << QByteArray("No such file or directory");
}

void TestMediaImport::refusedMediaLeaveTheRecord()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, reason);
    const QString path = m_folder.filePath(name);
    QFile out(path);
    if (!content.isEmpty()) {
        QVERIFY(out.open(QIODevice::WriteOnly));
        out.write(content);
        out.close();
    }
    KvMvcSettings settings = filledRecord(0x5A);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(m_library->read(settings, path.toUtf8()) != 0);
    QVERIFY(timer.elapsed() < 5000);
    QCOMPARE(m_library->messages, path.toUtf8() + ": " + reason + "\n");
    QVERIFY(same(settings, filledRecord(0x5A)));
}

void TestMediaImport::missingLibrariesAreNamed_data()
{
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("no probe") << QStringList{QStringLiteral("kv_mvcenc.so")}
                              << QByteArray("the library kv_media_probe");
    QTest::newRow("no encoder") << QStringList{QStringLiteral("kv_media_probe.so"),
                                               QStringLiteral("kv_media_probe_worker")}
                                << QByteArray("the library kv_mvcenc");
}

void TestMediaImport::missingLibrariesAreNamed()
{
    QFETCH(QStringList, present);
    QFETCH(QByteArray, reason);
    const QString name = file("lonely.mp4");
    const QByteArray error =
        makeMedia(picture("320x240", "25") + QStringLiteral("-c:v libx264 -pix_fmt yuv420p"), name);
    QVERIFY2(error.isEmpty(), error.constData());
    QTemporaryDir folder;
    for (const QString& part : present + QStringList(QStringLiteral("kv_mvc_settings_io.so"))) {
        QVERIFY(QFile::copy(qEnvironmentVariable("KV_BIN_DIR") + QLatin1Char('/') + part,
                            folder.filePath(part)));
    }
    SettingsLibrary library(folder.path());
    QVERIFY(library.isLoaded());
    KvMvcSettings settings = filledRecord(0x5A);
    QVERIFY(library.read(settings, name.toUtf8()) != 0);
    QVERIFY2(library.messages.startsWith(name.toUtf8() + ": media files cannot be read without " +
                                         reason + ": "),
             library.messages.constData());
    QVERIFY(same(settings, filledRecord(0x5A)));
    // Settings files need neither.
    QVERIFY(library.write(KvMvcSettings{}, folder.filePath(QStringLiteral("a.ini")).toUtf8()) == 0);
    QVERIFY(library.read(settings, folder.filePath(QStringLiteral("a.ini")).toUtf8()) == 0);
}

void TestMediaImport::theFirstNamesOfTheLibrariesAreTriedFirst()
{
    const QString name = file("first.mp4");
    const QByteArray error =
        makeMedia(picture("320x240", "25") + QStringLiteral("-c:v libx264 -pix_fmt yuv420p"), name);
    QVERIFY2(error.isEmpty(), error.constData());
    QTemporaryDir folder;
    const QString from = qEnvironmentVariable("KV_BIN_DIR") + QLatin1Char('/');
    const char* const parts[][2] = {{"kv_mvc_settings_io.so", "kv_mvc_settings_io.so"},
                                    {"kv_media_probe.so", "kv_media_probe_x.so"},
                                    {"kv_media_probe_worker", "kv_media_probe_worker"},
                                    {"kv_mvcenc.so", "kv_mvcenc_b.so"}};
    for (const auto& part : parts) {
        QVERIFY(
            QFile::copy(from + QLatin1String(part[0]), folder.filePath(QLatin1String(part[1]))));
    }
    // Under the second names there is nothing that could be loaded.
    for (const char* part : {"kv_media_probe.so", "kv_mvcenc.so"}) {
        QFile broken(folder.filePath(QLatin1String(part)));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("no library");
    }
    SettingsLibrary library(folder.path());
    QVERIFY(library.isLoaded());
    KvMvcSettings settings{};
    QVERIFY2(library.read(settings, name.toUtf8()) == 0, library.messages.constData());
    QCOMPARE(settings.views[0].width, 320);
}

void TestMediaImport::nothingStaysLoaded()
{
    const QString name = file("loaded.mp4");
    const QByteArray error =
        makeMedia(picture("320x240", "25") + QStringLiteral("-c:v libx264 -pix_fmt yuv420p"), name);
    QVERIFY2(error.isEmpty(), error.constData());
    KvMvcSettings settings{};
    QCOMPARE(m_library->read(settings, name.toUtf8()), 0);
    for (const char* library : {"kv_media_probe", "kv_mvcenc", "libavformat"}) {
        QVERIFY2(!kvtest::isInProcess(library), library);
    }
    QVERIFY(kvtest::isInProcess("kv_mvc_settings_io"));
    m_library.reset();
    QVERIFY(!kvtest::isInProcess("kv_mvc_settings_io"));
}

} // namespace

QTEST_GUILESS_MAIN(TestMediaImport)
#include "tst_media_import.moc"
