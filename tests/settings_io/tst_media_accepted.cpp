// Settings from media files are settings that the encoder takes: what is changed for it, and what
// is told of that.
#include "EncoderLibrary.h"
#include "SettingsLibrary.h"

#include "../media_probe/MediaCorpus.h"

#include <QTemporaryDir>
#include <QTest>

using kvtest::EncoderLibrary;
using kvtest::makeMedia;
using kvtest::picture;
using kvtest::SettingsLibrary;

namespace
{

constexpr int autoLevel = 100;

/// What a file is made of, what its settings come to, and what is told of it.
struct Fitted {
    const char* name;
    const char* file;
    const char* size;
    const char* rate;
    const char* arguments;
    int width, height;
    double frameRate;
    int level, references, distance, slices;
    const char* note; // its beginning; empty: nothing is told
};

constexpr char levelNote[] = "its level is not kept, Auto is taken (";
constexpr char sizeNote[] = "its picture is cut to a size that can be coded (";

// clang-format off
constexpr Fitted fitted[] = {
    // name                                file        size         rate   arguments of ffmpeg                                               w     h    rate level  refs dist slices note
    {"one reference, no B-frames",        "one.mp4",  "640x360",   "25",  "-c:v libx264 -pix_fmt yuv420p -refs 1 -bf 0 -level 3",             640, 360, 25,  30,    1,   1,   1,  ""},
    {"nothing but I-frames",              "intra.ts", "640x360",   "25",  "-c:v libx264 -pix_fmt yuv420p -g 1 -level 3",                      640, 360, 25,  30,    1,   3,   1,  ""},
    {"High 10 at 3.1: five slices",       "ten.ts",   "1280x720",  "25",  "-c:v libx264 -pix_fmt yuv420p10le -x264-params b-pyramid=none:ref=3 -preset fast -level 3.1", 1280, 720, 25, 31,   3,   4,   5,  "more slices are taken than it has ("},
    {"High 4:2:2 at 3.1: five slices",    "two.ts",   "1280x720",  "25",  "-c:v libx264 -pix_fmt yuv422p -x264-params b-pyramid=none:ref=3 -preset fast -level 3.1",     1280, 720, 25, 31,   3,   4,   5,  "more slices are taken than it has ("},
    {"level 1, just its rate",            "small.ts", "176x144",   "15",  "-vf noise=alls=9:allf=t -c:v libx264 -pix_fmt yuv420p -x264-params b-pyramid=none:ref=2 -b:v 60k -maxrate 60k -bufsize 20k -level 1", 176, 144, 15, 10, 2, 4, 1, ""},
    {"level 1, more than its rate",       "over.ts",  "176x144",   "15",  "-vf noise=alls=50:allf=t -c:v libx264 -qp 20 -pix_fmt yuv420p -x264-params b-pyramid=none:ref=2 -level 1", 176, 144, 15, autoLevel, 2, 3, 1, levelNote},
    {"level 1, more than its size",       "large.ts", "352x288",   "25",  "-c:v libx264 -pix_fmt yuv420p -x264-params b-pyramid=none:ref=2 -level 1",                   352, 288, 25,  autoLevel, 2,   4,   1,  levelNote},
    {"level 3, more references",          "refs.ts",  "720x576",   "25",  "-c:v libx264 -pix_fmt yuv420p -refs 12 -bf 0 -level 3",            720, 576, 25,  autoLevel, 12,  1,   1,  levelNote},
    {"a level beyond the table",          "beyond.ts", "640x360",  "25",  "-c:v libx264 -pix_fmt yuv420p -x264-params b-pyramid=none:ref=3 -level 6.2",                 640, 360, 25,  autoLevel, 3,   4,   1,  "its level is not among the settings, Auto is taken"},
    {"486 lines in two fields",           "ntsc.m2v", "720x486",   "30000/1001", "-c:v mpeg2video -pix_fmt yuv420p -flags +ilme+ildct -top 0", 720, 484, 30000 / 1001.0, autoLevel, 3, 3, 4, sizeNote},
    {"odd columns, 4:4:4",                "odd.ts",   "319x241",   "25",  "-c:v libx264 -pix_fmt yuv444p -x264-params b-pyramid=none:ref=2 -level 3",                   318, 241, 25,  30,    2,   4,   1,  "its profile is not among the settings"},
    {"few rows",          "low.ts",   "320x32",    "25",  "-c:v libx264 -pix_fmt yuv420p -x264-params b-pyramid=none:ref=2 -level 3",                   320, 32,  25,  30,    2,   4,   1,  ""},
    {"slow motion",                       "slow.mp4", "320x240",   "240", "-c:v libx264 -pix_fmt yuv420p -x264-params b-pyramid=none:ref=2 -level 5.2",                 320, 240, 120, 52,    2,   4,   1,  "a part of its frame rate is taken ("},
};
// clang-format on

class TestMediaAccepted : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyMediumOfTheTests_data();
    void everyMediumOfTheTests();
    void whatIsChanged_data();
    void whatIsChanged();
    void levelsStayWithoutABuffer();
    void referencesOfFurtherViewsGiveWay();
    void whatCannotBeHelpedIsTold();
    void signalledBuffersStay_data();
    void signalledBuffersStay();
    void theRateOfAStreamWithoutABufferIsTheMeasuredOne();

private:
    QString file(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
    SettingsLibrary m_library;
    EncoderLibrary m_encoder;
};

void TestMediaAccepted::initTestCase()
{
    QVERIFY(m_library.isLoaded());
    QCOMPARE(m_encoder.complaintsOf(m_encoder.defaults(0)), QByteArray());
    if (!kvtest::hasFfmpeg()) {
        QSKIP("the ffmpeg program makes the media of this test");
    }
}

void TestMediaAccepted::everyMediumOfTheTests_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(kvtest::media)); ++row) {
        QTest::newRow(kvtest::media[row].file) << row;
    }
}

void TestMediaAccepted::everyMediumOfTheTests()
{
    QFETCH(int, row);
    const kvtest::Medium& medium = kvtest::media[row];
    const QString name = file(medium.file);
    const QByteArray error = makeMedia(medium, name);
    QVERIFY2(error.isEmpty(), error.constData());
    KvMvcSettings settings{};
    QVERIFY2(m_library.read(settings, name.toUtf8()) == 0, m_library.messages.constData());
    QCOMPARE(m_encoder.complaintsOf(settings), QByteArray());
    QCOMPARE(settings.views[0].width, medium.width);
    QCOMPARE(settings.views[0].height, medium.height);
    QCOMPARE(settings.views[0].level, medium.level != 0 ? medium.level : autoLevel);
    if (medium.references > 0) {
        QCOMPARE(settings.views[0].num_ref_frames, medium.references);
    }
}

void TestMediaAccepted::whatIsChanged_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(fitted)); ++row) {
        QTest::newRow(fitted[row].name) << row;
    }
}

void TestMediaAccepted::whatIsChanged()
{
    QFETCH(int, row);
    const Fitted& expected = fitted[row];
    const QString name = file(expected.file);
    const QByteArray error =
        makeMedia(picture(expected.size, expected.rate) + QStringLiteral("-g 10 ") +
                      QLatin1String(expected.arguments),
                  name);
    QVERIFY2(error.isEmpty(), error.constData());
    KvMvcSettings settings{};
    QVERIFY2(m_library.read(settings, name.toUtf8()) == 0, m_library.messages.constData());
    QCOMPARE(m_encoder.complaintsOf(settings), QByteArray());
    const KvMvcViewSettings& view = settings.views[0];
    QCOMPARE(view.width, expected.width);
    QCOMPARE(view.height, expected.height);
    const double rate = view.frame_rate;
    QCOMPARE(rate, expected.frameRate);
    QCOMPARE(view.level, expected.level);
    QCOMPARE(view.num_ref_frames, expected.references);
    QCOMPARE(view.ref_distance, expected.distance);
    QCOMPARE(view.num_slices, expected.slices);
    if (expected.note[0] == '\0') {
        QCOMPARE(m_library.messagesOfWhatIsTold(), QByteArray());
    } else {
        QVERIFY2(m_library.messages.contains(name.toUtf8() + ": note: " + expected.note),
                 m_library.messages.constData());
    }
}

/// Half as much again as the average is the default's proportion; level 1 ends at 96,000 bit/s,
/// which holds for the average where no buffer is kept.
void TestMediaAccepted::levelsStayWithoutABuffer()
{
    const QString name = file("narrow.ts");
    const QByteArray error =
        makeMedia(picture("176x144", "15", 3) +
                      QStringLiteral("-vf noise=alls=60:allf=t -c:v libx264 -pix_fmt yuv420p "
                                     "-x264-params b-pyramid=none:ref=2 -b:v 80k -maxrate 80k "
                                     "-g 15 -bufsize 40k -level 1"),
                  name);
    QVERIFY2(error.isEmpty(), error.constData());
    KvMvcSettings settings{};
    QVERIFY2(m_library.read(settings, name.toUtf8()) == 0, m_library.messages.constData());
    QCOMPARE(m_library.messagesOfWhatIsTold(), QByteArray());
    const KvMvcViewSettings& view = settings.views[0];
    QCOMPARE(view.level, 10);
    QVERIFY2(view.bitrate > 65000 && view.bitrate < 90000, QByteArray::number(view.bitrate));
    QCOMPARE(view.hrd_mode, 0);
    QVERIFY(std::abs(view.max_bitrate - view.bitrate * 1.5) <= 2);
    // One second of it, in bytes, as in the defaults.
    QVERIFY(std::abs(view.bitrate_buffer * 8 - view.max_bitrate) <= 8);
}

void TestMediaAccepted::referencesOfFurtherViewsGiveWay()
{
    const QString base = file("base.h264");
    QByteArray error =
        makeMedia(picture("720x576", "10") +
                      QStringLiteral("-c:v libx264 -g 5 -pix_fmt yuv420p -bf 0 -refs 4 -level 3"),
                  base);
    QVERIFY2(error.isEmpty(), error.constData());
    QFile in(base);
    QFile out(file("three.h264"));
    QVERIFY(in.open(QIODevice::ReadOnly) && out.open(QIODevice::WriteOnly));
    out.write(kvtest::withViews(in.readAll(), 118, 30, 3, 0.5));
    out.close();
    const QString name = file("three.ts");
    error = makeMedia(QStringLiteral("-f h264 -r 10 -i ") + out.fileName() +
                          QStringLiteral(" -c copy -bsf:v setts=ts=N*9000"),
                      name);
    QVERIFY2(error.isEmpty(), error.constData());
    KvMvcSettings settings{};
    QVERIFY2(m_library.read(settings, name.toUtf8()) == 0, m_library.messages.constData());
    QVERIFY2(m_library.messages.contains(
                 ": note: fewer reference frames are taken in further views than it has ("),
             m_library.messages.constData());
    QCOMPARE(m_encoder.complaintsOf(settings), QByteArray());
    QCOMPARE(settings.num_views, 3);
    QCOMPARE(settings.views[0].num_ref_frames, 4);
    QCOMPARE(settings.views[1].num_ref_frames, 3); // ten frames in all
}

void TestMediaAccepted::whatCannotBeHelpedIsTold()
{
    const QString name = file("tiny.mp4");
    const QByteArray error =
        makeMedia(picture("8x8", "25") + QStringLiteral("-c:v mpeg4 -pix_fmt yuv420p"), name);
    QVERIFY2(error.isEmpty(), error.constData());
    KvMvcSettings settings{};
    QVERIFY2(m_library.read(settings, name.toUtf8()) == 0, m_library.messages.constData());
    QCOMPARE(settings.views[0].width, 8);
    QCOMPARE(settings.views[0].height, 8);
    QCOMPARE(m_library.messages.count(": note: the encoder refuses the settings: "), 2);
}

void TestMediaAccepted::signalledBuffersStay_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("rate"); // 0: below the maximum
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("buffer"); // bytes
    // The beginning of either of the first two exceeds its rate by what the buffer holds.
    QTest::newRow("constant") << "-b:v 1M -maxrate 1M -bufsize 1M -x264-params nal-hrd=cbr"
                              << int(KV_MVC_CONSTANT_BITRATE) << 1000000 << 1000000 << 125000;
    QTest::newRow("variable, at its maximum")
        << "-b:v 1M -maxrate 1M -bufsize 1M -x264-params nal-hrd=vbr"
        << int(KV_MVC_VARIABLE_BITRATE) << 1000000 << 1000000 << 125000;
    QTest::newRow("variable, below it") << "-b:v 300k -maxrate 8M -bufsize 4M -x264-params "
                                           "nal-hrd=vbr"
                                        << int(KV_MVC_VARIABLE_BITRATE) << 0 << 8000000 << 500000;
}

void TestMediaAccepted::signalledBuffersStay()
{
    QFETCH(QString, arguments);
    QFETCH(int, mode);
    QFETCH(int, rate);
    QFETCH(int, maximum);
    QFETCH(int, buffer);
    const QString name = file("signalled.ts");
    const QByteArray error =
        makeMedia(picture("640x480", "25") +
                      QStringLiteral("-vf noise=alls=40:allf=t -c:v libx264 -preset ultrafast "
                                     "-g 10 -pix_fmt yuv420p -level 3 ") +
                      arguments,
                  name);
    QVERIFY2(error.isEmpty(), error.constData());
    KvMvcSettings settings{};
    QVERIFY2(m_library.read(settings, name.toUtf8()) == 0, m_library.messages.constData());
    QCOMPARE(m_library.messagesOfWhatIsTold(), QByteArray());
    QCOMPARE(m_encoder.complaintsOf(settings), QByteArray());
    for (const KvMvcViewSettings& view : settings.views) {
        QCOMPARE(view.bitrate_mode, mode);
        QCOMPARE(view.max_bitrate, maximum);
        QCOMPARE(view.bitrate_buffer, buffer);
        QCOMPARE(view.hrd_mode, 1);
        if (rate != 0) {
            QCOMPARE(view.bitrate, rate);
        } else {
            QVERIFY(view.bitrate < maximum);
        }
    }
}

void TestMediaAccepted::theRateOfAStreamWithoutABufferIsTheMeasuredOne()
{
    const QString name = file("plain.ts");
    const QByteArray error =
        makeMedia(picture("640x480", "25") +
                      QStringLiteral("-vf noise=alls=40:allf=t -c:v libx264 -preset ultrafast "
                                     "-pix_fmt yuv420p -level 3 -b:v 1M -maxrate 1M -bufsize 1M"),
                  name);
    QVERIFY2(error.isEmpty(), error.constData());
    KvMvcSettings settings{};
    QVERIFY2(m_library.read(settings, name.toUtf8()) == 0, m_library.messages.constData());
    const KvMvcViewSettings& view = settings.views[0];
    // More than was asked for, or the rows above are idle. How much more is not the same each time,
    // as that encoder's threads share the buffer.
    QVERIFY2(view.bitrate > 1050000, QByteArray::number(view.bitrate));
    QCOMPARE(view.bitrate_mode, int(KV_MVC_VARIABLE_BITRATE));
    QVERIFY(std::abs(view.max_bitrate - view.bitrate * 1.5) <= 2);
    QCOMPARE(view.hrd_mode, 0); // which is on in the defaults
}

} // namespace

QTEST_GUILESS_MAIN(TestMediaAccepted)
#include "tst_media_accepted.moc"
