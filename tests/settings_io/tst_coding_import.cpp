// What the pictures of a stream tell of its coding, as settings: groups of pictures, tools, slices
// and pulldown, by what x264 was told.
#include "EncoderLibrary.h"
#include "SettingsLibrary.h"

#include "../media_probe/MediaMaker.h"

#include <QTemporaryDir>
#include <QTest>

using kvtest::makeMedia;
using kvtest::SettingsLibrary;

namespace
{

constexpr int untold = -1; // the preset's own value

/// Options of x264, and what they come to. `interval` is x264's keyint, `marker` every how many I
/// pictures one is an IDR picture, `distance` its bframes and one.
struct Coding {
    const char* name;
    const char* options;
    int interval, marker, distance, adaptive, reference, pyramid;
    int cabac, weighted, deblocking, slices, references;
};

// clang-format off
constexpr Coding codings[] = {
    // name                     options                                                             int     idr     dist ad rf py  cab wp deb sl ref
    {"P pictures alone",        "keyint=12:min-keyint=12:bframes=0:ref=1:weightp=0",                12,     1,      1,   0, 0, 0,  1,  0, 1,  1, 1},
    {"two B pictures",          "keyint=12:bframes=2:b-adapt=0:b-pyramid=none:ref=2:weightp=0",     12,     1,      3,   0, 0, 0,  1,  0, 1,  1, 2},
    {"open groups",             "keyint=12:bframes=2:b-adapt=0:b-pyramid=none:open-gop=1:ref=2",    12,     0,      3,   0, 0, 0,  1,  1, 1,  1, 2},
    {"a pyramid",               "keyint=16:bframes=3:b-adapt=0:b-pyramid=normal:ref=4",             16,     1,      4,   0, 1, 1,  1,  1, 1,  1, 4},
    {"a strict pyramid",        "keyint=16:bframes=3:b-adapt=0:b-pyramid=strict:ref=3",             16,     1,      4,   0, 1, 1,  1,  1, 1,  1, 3},
    {"nothing but I pictures",  "keyint=1:ref=1",                                                   1,      1,      untold, untold, untold, untold, 1, untold, 1, 1, untold},
    {"CAVLC",                   "keyint=10:bframes=1:b-adapt=0:cabac=0:ref=2:weightp=0",            10,     1,      2,   0, 0, 0,  0,  0, 1,  1, 2},
    {"no deblocking",           "keyint=10:bframes=0:no-deblock=1:ref=1:weightp=1",                 10,     1,      1,   0, 0, 0,  1,  1, 0,  1, 1},
    {"deblocking by offsets",   "keyint=10:bframes=0:deblock=-2,-2:ref=1:weightp=2",                10,     1,      1,   0, 0, 0,  1,  1, 1,  1, untold},
    {"three slices",            "keyint=10:bframes=0:slices=3:ref=1:weightp=0",                     10,     1,      1,   0, 0, 0,  1,  0, 1,  3, 1},
    {"all in one",              "keyint=18:bframes=2:b-adapt=0:b-pyramid=none:cabac=0:no-deblock=1:slices=2:weightp=1:ref=3", 18, 1, 3, 0, 0, 0, 0, 1, 0, 2, 3},
    {"a long interval",         "keyint=250:bframes=0:ref=1:weightp=0:scenecut=0",                  250,    1,      1,   0, 0, 0,  1,  0, 1,  1, 1},
    {"the first I picture alone", "keyint=infinite:bframes=0:ref=1:weightp=0:scenecut=0",           0,      untold, 1,   0, 0, 0,  1,  0, 1,  1, 1},
    {"interlaced",              "keyint=10:bframes=1:b-adapt=0:tff=1:ref=2:weightp=0",              10,     1,      2,   0, 0, 0,  1,  0, 1,  1, 2},
};
// clang-format on

/// Options of the x264 program that repeat fields or frames, and what is to be found.
struct Shown {
    const char* name;
    const char* options;
    double rate;
    int pulldown;
    const char* note; // its beginning; empty: nothing is told of pulldown
};

constexpr double film = 24000 / 1001.0;

constexpr Shown shown[] = {
    {"none", "--fps 24000/1001", film, KV_MVC_PULLDOWN_OFF, ""},
    {"3:2", "--fps 24000/1001 --pulldown 32", film, KV_MVC_PULLDOWN_3_2, ""},
    {"doubled", "--fps 25 --pulldown double", 25, KV_MVC_PULLDOWN_2_2, ""},
    {"tripled", "--fps 20 --pulldown triple", 20, KV_MVC_PULLDOWN_3_3, ""},
    // The clock of this form counts frames as they are shown.
    {"2:3 frames", "--fps 60000/1001 --pulldown 64", film, KV_MVC_PULLDOWN_2_3_PROGRESSIVE, ""},
    {"two fields in 24 frames", "--fps 24 --pulldown euro", 24, KV_MVC_PULLDOWN_OFF,
     "its pulldown is not among the settings"},
};

class TestCodingImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void codingsBecomeSettings_data();
    void codingsBecomeSettings();
    void quantizersAreThoseOfThePictures();
    void repeatedFieldsArePulldown_data();
    void repeatedFieldsArePulldown();

private:
    QTemporaryDir m_folder;
    SettingsLibrary m_library;
    KvMvcSettings m_preset{};
};

void TestCodingImport::initTestCase()
{
    QVERIFY(m_library.isLoaded());
    m_preset = kvtest::EncoderLibrary().defaults(KV_MVC_VIDEO_TYPE_NONE);
    QVERIFY(m_preset.views[0].width > 0);
    if (!kvtest::hasFfmpeg()) {
        QSKIP("the ffmpeg program makes the media of this test");
    }
}

void TestCodingImport::codingsBecomeSettings_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("suffix");
    for (int row = 0; row < int(std::size(codings)); ++row) {
        for (const char* suffix : {"ts", "mp4", "h264"}) {
            QTest::addRow("%s, %s", codings[row].name, suffix) << row << QString::fromUtf8(suffix);
        }
    }
}

void TestCodingImport::codingsBecomeSettings()
{
    QFETCH(int, row);
    QFETCH(QString, suffix);
    const Coding& expected = codings[row];
    const QString name = m_folder.filePath(QStringLiteral("coding.") + suffix);
    const int frames = expected.interval == 250 ? 260 : 40;
    const QByteArray error =
        makeMedia(QStringLiteral("-f lavfi -i testsrc=size=176x144:rate=25 -frames:v %1 -c:v "
                                 "libx264 -pix_fmt yuv420p -level 3 -x264-params %2")
                      .arg(frames)
                      .arg(QLatin1String(expected.options)),
                  name);
    QVERIFY2(error.isEmpty(), error.constData());
    KvMvcSettings settings{};
    QVERIFY2(m_library.read(settings, name.toUtf8()) == 0, m_library.messages.constData());
    QCOMPARE(kvtest::EncoderLibrary().complaintsOf(settings), QByteArray());
    for (int index = 0; index < 2; ++index) {
        const KvMvcViewSettings& view = settings.views[index];
        const KvMvcViewSettings& preset = m_preset.views[index];
        const auto compare = [&](int32_t KvMvcViewSettings::*field, int value) {
            QCOMPARE(view.*field, value == untold ? preset.*field : value);
        };
        compare(&KvMvcViewSettings::i_interval, expected.interval);
        compare(&KvMvcViewSettings::idr_marker, expected.marker);
        compare(&KvMvcViewSettings::ref_distance, expected.distance);
        compare(&KvMvcViewSettings::adaptive_b, expected.adaptive);
        compare(&KvMvcViewSettings::reference_b, expected.reference);
        compare(&KvMvcViewSettings::pyramid_b, expected.pyramid);
        compare(&KvMvcViewSettings::entropy_mode, expected.cabac);
        compare(&KvMvcViewSettings::weighted_p, expected.weighted);
        compare(&KvMvcViewSettings::deblocking, expected.deblocking);
        compare(&KvMvcViewSettings::num_slices, expected.slices);
        compare(&KvMvcViewSettings::multi_slice, expected.slices > 1 ? 1 : 0);
        if (expected.references != untold) {
            compare(&KvMvcViewSettings::num_ref_frames, expected.references);
        }
    }
}

/// x264 divides and multiplies the step of P pictures by 1.4 and 1.3 for I and B pictures; six
/// quantizers double it.
void TestCodingImport::quantizersAreThoseOfThePictures()
{
    const QString name = m_folder.filePath(QStringLiteral("quantizers.mp4"));
    const QByteArray error = makeMedia(
        QStringLiteral("-f lavfi -i testsrc=size=176x144:rate=25 -frames:v 30 -c:v libx264 "
                       "-pix_fmt yuv420p -level 3 -x264-params "
                       "qp=30:ipratio=1.4:pbratio=1.3:bframes=2:b-adapt=0:keyint=10"),
        name);
    QVERIFY2(error.isEmpty(), error.constData());
    KvMvcSettings settings{};
    QVERIFY2(m_library.read(settings, name.toUtf8()) == 0, m_library.messages.constData());
    for (const KvMvcViewSettings& view : settings.views) {
        QCOMPARE(view.quant_i, 27);
        QCOMPARE(view.quant_p, 30);
        QCOMPARE(view.quant_b, 32);
    }
}

void TestCodingImport::repeatedFieldsArePulldown_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(shown)); ++row) {
        QTest::newRow(shown[row].name) << row;
    }
}

void TestCodingImport::repeatedFieldsArePulldown()
{
    QFETCH(int, row);
    const Shown& expected = shown[row];
    if (QStandardPaths::findExecutable(QStringLiteral("x264")).isEmpty()) {
        QSKIP("the x264 program makes the streams of this test");
    }
    const QString raw = m_folder.filePath(QStringLiteral("in.y4m"));
    const QByteArray error =
        makeMedia(QStringLiteral("-f lavfi -i testsrc=size=176x144:rate=25 -frames:v 50 -pix_fmt "
                                 "yuv420p"),
                  raw);
    QVERIFY2(error.isEmpty(), error.constData());
    const QString name = m_folder.filePath(QStringLiteral("shown.h264"));
    QProcess x264;
    x264.start(QStringLiteral("x264"),
               QString::fromUtf8(expected.options).split(QLatin1Char(' ')) +
                   QStringList{QStringLiteral("--keyint"), QStringLiteral("10"),
                               QStringLiteral("-o"), name, raw});
    QVERIFY(x264.waitForFinished(60'000));
    QCOMPARE(x264.exitCode(), 0);
    KvMvcSettings settings{};
    QVERIFY2(m_library.read(settings, name.toUtf8()) == 0, m_library.messages.constData());
    for (const KvMvcViewSettings& view : settings.views) {
        const double rate = view.frame_rate;
        QCOMPARE(rate, expected.rate);
        QCOMPARE(view.pulldown, expected.pulldown);
    }
    QCOMPARE(m_library.messages.contains("pulldown"), expected.note[0] != '\0');
    QVERIFY2(m_library.messages.contains(expected.note), m_library.messages.constData());
}

} // namespace

QTEST_GUILESS_MAIN(TestCodingImport)
#include "tst_coding_import.moc"
