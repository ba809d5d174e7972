// Multiview streams as they are in the field: one stream with all views, two streams as on discs,
// and files that players made of discs.
#include "MatroskaFile.h"
#include "ProbeLibrary.h"
#include "ReferenceEncoder.h"
#include "TransportStream.h"

#include <QTemporaryDir>
#include <QTest>

using kvtest::makeMedia;
using kvtest::picture;
using kvtest::ProbeLibrary;
using kvtest::ReferenceEncoder;
using kvtest::TransportStream;
using kvtest::ViewPictures;

namespace
{

constexpr int picturesPerSecond = 25;
constexpr qint64 ticks = 3'600; // of 90,000, a picture

class TestMultiviewStreams : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void viewsInStreamsOfTheirOwn_data();
    void viewsInStreamsOfTheirOwn();
    void filesOfEachViewInterleaved();
    void anotherProgramsViewsAreNotThisOnes();
    void viewsInFilesOfPlayers_data();
    void viewsInFilesOfPlayers();
    void slicesAloneTellViews();

private:
    QString file(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    /// Five pictures of the reference encoder, two views.
    QByteArray realStream();

    QTemporaryDir m_folder;
    ProbeLibrary m_library;
    QByteArray m_base; ///< 25 pictures of 352 x 288
    QByteArray m_real;
};

void TestMultiviewStreams::initTestCase()
{
    QVERIFY(m_library.isLoaded());
    if (!kvtest::hasFfmpeg()) {
        QSKIP("the ffmpeg program makes the media of this test");
    }
    const QString base = file("base.h264");
    const QByteArray error = makeMedia(
        picture("352x288", "25") + QStringLiteral("-c:v libx264 -pix_fmt yuv420p -level 3"), base);
    QVERIFY2(error.isEmpty(), error.constData());
    QFile in(base);
    QVERIFY(in.open(QIODevice::ReadOnly));
    m_base = in.readAll();
}

QByteArray TestMultiviewStreams::realStream()
{
    if (m_real.isEmpty()) {
        m_real = ReferenceEncoder(m_folder.path()).encode(QStringLiteral("FramesToBeEncoded=5"));
    }
    return m_real;
}

void TestMultiviewStreams::viewsInStreamsOfTheirOwn_data()
{
    QTest::addColumn<bool>("timed");
    QTest::addColumn<bool>("furtherFirst");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<bool>("real");
    for (const bool timed : {false, true}) {
        for (const bool furtherFirst : {false, true}) {
            for (const int seconds : {1, 40}) {
                for (const bool real : {false, true}) {
                    QTest::addRow("%s, %s first, %d s, %s", timed ? "192 bytes" : "188 bytes",
                                  furtherFirst ? "further view" : "base view", seconds,
                                  real ? "reference encoder" : "made up")
                        << timed << furtherFirst << seconds << real;
                }
            }
        }
    }
}

void TestMultiviewStreams::viewsInStreamsOfTheirOwn()
{
    QFETCH(bool, timed);
    QFETCH(bool, furtherFirst);
    QFETCH(int, seconds);
    QFETCH(bool, real);
    if (real && !ReferenceEncoder::isThere()) {
        QSKIP(ReferenceEncoder::absence());
    }
    const QByteArray stream = real ? realStream() : kvtest::withViews(m_base, 128, 30, 2, 0.5);
    QVERIFY(!stream.isEmpty());
    const QList<ViewPictures> once = kvtest::partedViews(stream);
    QCOMPARE(once.size(), real ? 5 : 25);
    QList<ViewPictures> pictures;
    double bits[2] = {}; // of the base view and of the further one
    while (pictures.size() < seconds * picturesPerSecond) {
        pictures += once;
    }
    for (const ViewPictures& picture : pictures) {
        bits[0] += 8.0 * double(picture.base.size());
        bits[1] += 8.0 * double(picture.further.size());
    }
    const QString name = file(timed ? "disc.m2ts" : "disc.ts");
    QVERIFY(kvtest::writeFile(name, TransportStream(timed).write(pictures, furtherFirst, ticks)));
    QVERIFY2(m_library.probe(name) == KV_MEDIA_OK, m_library.info.reason);
    const KvMediaInfo& info = m_library.info;
    QCOMPARE(info.num_views, 2);
    QCOMPARE(info.separate_views, 1);
    QCOMPARE(info.mvc_profile_idc, 128);
    QCOMPARE(info.profile_idc, 100);
    QCOMPARE(info.width, real ? 176 : 352);
    QCOMPARE(info.frame_rate_num, picturesPerSecond);
    QCOMPARE(info.frame_rate_den, 1);
    const double further = double(info.dependent_bit_rate) * seconds / bits[1];
    const double base = double(info.bit_rate - info.dependent_bit_rate) * seconds / bits[0];
    QVERIFY2(further > 0.95 && further < 1.05, qPrintable(QString::number(further)));
    QVERIFY2(base > 0.95 && base < 1.05, qPrintable(QString::number(base)));
}

/// Discs have a file of each view, and one of both in turn.
void TestMultiviewStreams::filesOfEachViewInterleaved()
{
    const QList<ViewPictures> once =
        kvtest::partedViews(kvtest::withViews(m_base, 128, 30, 2, 0.5));
    for (const int seconds : {1, 20}) {
        QList<ViewPictures> pictures;
        for (int second = 0; second < seconds; ++second) {
            pictures += once;
        }
        const QString name = file("both.ssif");
        QVERIFY(kvtest::writeFile(name, TransportStream(true).writeInterleaved(pictures, ticks)));
        QVERIFY2(m_library.probe(name) == KV_MEDIA_OK, m_library.info.reason);
        QCOMPARE(m_library.info.num_views, 2);
        QCOMPARE(m_library.info.separate_views, 1);
        QCOMPARE(m_library.info.width, 352);
        const double share =
            double(m_library.info.dependent_bit_rate) / double(m_library.info.bit_rate);
        QVERIFY2(share > 0.3 && share < 0.4, qPrintable(QString::number(share)));
    }
}

/// A stream of one view in one program, and a further view's in another.
void TestMultiviewStreams::anotherProgramsViewsAreNotThisOnes()
{
    const QList<ViewPictures> pictures =
        kvtest::partedViews(kvtest::withViews(m_base, 128, 30, 2, 0.5));
    const QString name = file("programs.ts");
    QVERIFY(kvtest::writeFile(
        name,
        TransportStream(false).write(pictures, TransportStream::Programs{{false}, {true}}, ticks)));
    QVERIFY2(m_library.probe(name) == KV_MEDIA_OK, m_library.info.reason);
    QCOMPARE(m_library.info.num_views, 1);
    QCOMPARE(m_library.info.separate_views, 0);
    QCOMPARE(m_library.info.dependent_bit_rate, int64_t(0));
}

void TestMultiviewStreams::viewsInFilesOfPlayers_data()
{
    QTest::addColumn<int>("views");
    QTest::addColumn<int>("level");
    QTest::newRow("in the base view's blocks") << int(kvtest::MatroskaFile::Views::InBlocks) << 20;
    // FFmpeg does not show the parameter sets of this form.
    QTest::newRow("in additions to blocks") << int(kvtest::MatroskaFile::Views::InAdditions) << 0;
}

void TestMultiviewStreams::viewsInFilesOfPlayers()
{
    QFETCH(int, views);
    QFETCH(int, level);
    if (!ReferenceEncoder::isThere()) {
        QSKIP(ReferenceEncoder::absence());
    }
    QVERIFY(!realStream().isEmpty());
    const QList<ViewPictures> pictures = kvtest::partedViews(realStream());
    const QString name = file("disc.mkv");
    QVERIFY(kvtest::writeFile(
        name, kvtest::MatroskaFile::write(pictures, kvtest::MatroskaFile::Views(views))));
    const QJsonObject facts = kvtest::probeMedia(name);
    QCOMPARE(facts.value(QStringLiteral("width")).toInt(), 176); // the file is one
    QVERIFY2(m_library.probe(name) == KV_MEDIA_OK, m_library.info.reason);
    const KvMediaInfo& info = m_library.info;
    QCOMPARE(QByteArray(info.container_name), QByteArray("matroska,webm"));
    QCOMPARE(info.num_views, 2);
    QCOMPARE(info.mvc_level_idc, level);
    QCOMPARE(info.separate_views, 0);
    QCOMPARE(info.coding[0].frames, 5);
    QCOMPARE(info.coding[1].frames, level != 0 ? 5 : 0);
    QVERIFY(info.dependent_bit_rate > 0);
    QVERIFY(info.dependent_bit_rate < info.bit_rate / 2);
}

/// A multiplexer that knows no subset parameter sets leaves them out, or keeps them where nothing
/// shows them.
void TestMultiviewStreams::slicesAloneTellViews()
{
    if (!ReferenceEncoder::isThere()) {
        QSKIP(ReferenceEncoder::absence());
    }
    QByteArray stream;
    for (const QByteArray& unit : kvtest::nalUnits(realStream())) {
        if ((unit[0] & 31) != 15) {
            stream += QByteArray("\0\0\0\1", 4) + unit;
        }
    }
    const QString raw = file("bare.h264");
    QVERIFY(kvtest::writeFile(raw, stream));
    const QString name = file("bare.mp4");
    const QByteArray error = makeMedia(
        QStringLiteral("-f h264 -r 25 -i %1 -c copy -bsf:v setts=ts=N*3600").arg(raw), name);
    QVERIFY2(error.isEmpty(), error.constData());
    QVERIFY2(m_library.probe(name) == KV_MEDIA_OK, m_library.info.reason);
    QCOMPARE(m_library.info.num_views, 2);
    QCOMPARE(m_library.info.mvc_profile_idc, 0);
    QVERIFY(m_library.info.dependent_bit_rate > 0);
}

} // namespace

QTEST_GUILESS_MAIN(TestMultiviewStreams)
#include "tst_multiview_streams.moc"
