// What the stream information library says of media that ffmpeg makes, and that ffprobe agrees.
#include "MediaCorpus.h"
#include "ProbeLibrary.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using kvtest::makeMedia;
using kvtest::media;
using kvtest::Medium;
using kvtest::picture;
using kvtest::ProbeLibrary;

namespace
{

/// Copies the pictures of elementary streams, with times for those that need some.
constexpr char copy[] = " -c copy -bsf:v setts=ts=N*3600"; // 25 of 90,000 ticks

class TestMediaProbe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void factsOfMedia_data();
    void factsOfMedia();
    void ffprobeAgrees_data() { factsOfMedia_data(); }
    void ffprobeAgrees();
    void bitRateIsTheAverage_data();
    void bitRateIsTheAverage();
    void signalledBufferModels();
    void viewsAreCounted_data();
    void viewsAreCounted();
    void aParameterSetThatEndsEarlyTellsWhatItHolds();
    void indexFilesOfTitlesStandForTheirVideo_data();
    void indexFilesOfTitlesStandForTheirVideo();
    void recordsOfAnotherSizeAreRespected();
    void badArgumentsAreRefused();
    void nothingStaysLoaded();

private:
    QString file(const char* name) const
    {
        return m_folder.path() + QLatin1Char('/') + QLatin1String(name);
    }
    /// Made once, on first use.
    QString medium(const Medium& row);

    QTemporaryDir m_folder;
    ProbeLibrary m_library;
};

void TestMediaProbe::initTestCase()
{
    QVERIFY(m_library.isLoaded());
    if (!kvtest::hasFfmpeg()) {
        QSKIP("the ffmpeg program makes the media of this test");
    }
}

QString TestMediaProbe::medium(const Medium& row)
{
    const QString name = file(row.file);
    if (QFile::exists(name)) {
        return name;
    }
    const QByteArray error = makeMedia(row, name);
    return error.isEmpty() ? name : QString::fromUtf8(error);
}

void TestMediaProbe::factsOfMedia_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(media)); ++row) {
        QTest::newRow(media[row].file) << row;
    }
}

void TestMediaProbe::factsOfMedia()
{
    QFETCH(int, row);
    const Medium& expected = media[row];
    const QString name = medium(expected);
    QVERIFY2(QFile::exists(name), qPrintable(name));
    const int result = m_library.probe(name);
    const KvMediaInfo& info = m_library.info;
    QVERIFY2(result == KV_MEDIA_OK, info.reason);
    QCOMPARE(info.reason[0], '\0');
    QCOMPARE(info.width, expected.width);
    QCOMPARE(info.height, expected.height);
    QCOMPARE(info.frame_rate_num, expected.rateNum);
    QCOMPARE(info.frame_rate_den, expected.rateDen);
    QCOMPARE(info.scan, expected.scan);
    QCOMPARE(info.field_order, expected.order);
    QCOMPARE(info.pixel_aspect_num, expected.aspectNum);
    QCOMPARE(info.pixel_aspect_den, expected.aspectDen);
    QCOMPARE(info.chroma_format, expected.chroma);
    QCOMPARE(info.bit_depth_luma, expected.luma);
    QCOMPARE(info.bit_depth_chroma, expected.luma);
    QCOMPARE(info.codec, expected.profile != 0 ? KV_MEDIA_CODEC_H264 : KV_MEDIA_CODEC_OTHER);
    QCOMPARE(info.profile_idc, expected.profile);
    QCOMPARE(info.level_idc, expected.level);
    QCOMPARE(info.num_ref_frames, expected.references);
    QCOMPARE(info.num_views, 1);
    QCOMPARE(info.mvc_profile_idc, 0);
    QCOMPARE(info.bit_rate > 0, !expected.lossless);
    QCOMPARE(info.dependent_bit_rate, int64_t(0));
}

void TestMediaProbe::ffprobeAgrees()
{
    QFETCH(int, row);
    const QString name = medium(media[row]);
    const QJsonObject facts = kvtest::probeMedia(name);
    const auto text = [&](const char* key) { return facts.value(QLatin1String(key)).toString(); };
    const auto number = [&](const char* key) { return facts.value(QLatin1String(key)).toInt(); };
    QCOMPARE(m_library.probe(name), int(KV_MEDIA_OK));
    const KvMediaInfo& info = m_library.info;
    QCOMPARE(QLatin1String(info.codec_name), text("codec_name"));
    QCOMPARE(info.width, number("width"));
    QCOMPARE(info.height, number("height"));
    QCOMPARE(QStringLiteral("%1/%2").arg(info.frame_rate_num).arg(info.frame_rate_den),
             text("r_frame_rate"));
    QCOMPARE(QStringLiteral("%1:%2").arg(info.pixel_aspect_num).arg(info.pixel_aspect_den),
             text("sample_aspect_ratio"));
    if (info.codec == KV_MEDIA_CODEC_H264) {
        QCOMPARE(info.level_idc, number("level"));
    }
    const QString order = text("field_order");
    if (info.scan == KV_MEDIA_PROGRESSIVE) {
        QVERIFY2(order == QLatin1String("progressive") || order.isEmpty() ||
                     order == QLatin1String("unknown"),
                 qPrintable(order));
    } else {
        // The field stored first, then the one shown first.
        QCOMPARE(order.size(), 2);
        QCOMPARE(order.back(),
                 QLatin1Char(info.field_order == KV_MEDIA_TOP_FIELD_FIRST ? 't' : 'b'));
    }
}

void TestMediaProbe::bitRateIsTheAverage_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("container");
    QTest::newRow("mp4") << "rate.mp4"
                         << "";
    QTest::newRow("ts") << "rate.ts"
                        << "";
    QTest::newRow("elementary stream") << "rate.h264"
                                       << "";
    QTest::newRow("program stream") << "rate.mpg"
                                    << "-f mpeg";
}

void TestMediaProbe::bitRateIsTheAverage()
{
    QFETCH(QString, name);
    QFETCH(QString, container);
    const QString made = m_folder.path() + QLatin1Char('/') + name;
    const QByteArray error =
        makeMedia(picture("640x480", "25", 4) +
                      QStringLiteral("-vf noise=alls=30:allf=t -c:v libx264 -preset ultrafast "
                                     "-pix_fmt yuv420p -b:v 2M -minrate 2M -maxrate 2M -bufsize 1M "
                                     "-x264-params nal-hrd=cbr ") +
                      container,
                  made);
    QVERIFY2(error.isEmpty(), error.constData());
    QCOMPARE(m_library.probe(made), int(KV_MEDIA_OK));
    const double rate = double(m_library.info.bit_rate);
    QVERIFY2(rate > 1.8e6 && rate < 2.2e6, qPrintable(QString::number(rate)));
}

void TestMediaProbe::signalledBufferModels()
{
    const QString h264 = file("hrd.ts");
    QByteArray error = makeMedia(
        picture("640x480", "25") + QStringLiteral("-c:v libx264 -pix_fmt yuv420p -x264-params "
                                                  "nal-hrd=vbr:vbv-maxrate=3000:vbv-bufsize=2000"),
        h264);
    QVERIFY2(error.isEmpty(), error.constData());
    QCOMPARE(m_library.probe(h264), int(KV_MEDIA_OK));
    QCOMPARE(m_library.info.hrd_bit_rate, int64_t(3000000));
    QCOMPARE(m_library.info.hrd_buffer_size, int64_t(2000000));
    QCOMPARE(m_library.info.hrd_constant, 0);

    const QString constant = file("constant.ts");
    error = makeMedia(picture("640x480", "25") +
                          QStringLiteral("-c:v libx264 -pix_fmt yuv420p -b:v 2M -maxrate 2M "
                                         "-bufsize 1M -x264-params nal-hrd=cbr"),
                      constant);
    QVERIFY2(error.isEmpty(), error.constData());
    QCOMPARE(m_library.probe(constant), int(KV_MEDIA_OK));
    QCOMPARE(m_library.info.hrd_bit_rate, int64_t(2000000));
    QCOMPARE(m_library.info.hrd_buffer_size, int64_t(1000000));
    QCOMPARE(m_library.info.hrd_constant, 1);

    const QString mpeg = file("buffer.m2v");
    error = makeMedia(picture("640x480", "25") +
                          QStringLiteral("-c:v mpeg2video -b:v 2M -maxrate 3M -bufsize 1835008"),
                      mpeg);
    QVERIFY2(error.isEmpty(), error.constData());
    QCOMPARE(m_library.probe(mpeg), int(KV_MEDIA_OK));
    QCOMPARE(m_library.info.hrd_bit_rate, int64_t(3000000));
    QCOMPARE(m_library.info.hrd_buffer_size, int64_t(1835008));
    QCOMPARE(m_library.info.hrd_constant, 0);
}

void TestMediaProbe::viewsAreCounted_data()
{
    QTest::addColumn<int>("views");
    QTest::addColumn<int>("profile");
    QTest::addColumn<QString>("name");
    for (const char* suffix : {"264", "ts", "m2t", "mp4"}) {
        QTest::addRow("two in %s", suffix)
            << 2 << 128 << QStringLiteral("two.") + QLatin1String(suffix);
        QTest::addRow("five in %s", suffix)
            << 5 << 118 << QStringLiteral("five.") + QLatin1String(suffix);
    }
}

void TestMediaProbe::viewsAreCounted()
{
    QFETCH(int, views);
    QFETCH(int, profile);
    QFETCH(QString, name);
    const QString base = file("base.h264");
    QByteArray error = makeMedia(
        picture("352x288", "25") + QStringLiteral("-c:v libx264 -pix_fmt yuv420p -level 3"), base);
    QVERIFY2(error.isEmpty(), error.constData());
    QFile in(base);
    QVERIFY(in.open(QIODevice::ReadOnly));
    const QString stream = file("views.264");
    QFile out(stream);
    QVERIFY(out.open(QIODevice::WriteOnly));
    out.write(kvtest::withViews(in.readAll(), profile, 31, views, 0.5));
    out.close();
    const QString made = m_folder.path() + QLatin1Char('/') + name;
    if (name.endsWith(QLatin1String(".264"))) {
        QVERIFY(QFile::copy(stream, made));
    } else {
        error =
            makeMedia(QStringLiteral("-f h264 -r 25 -i ") + stream +
                          QLatin1String(name.endsWith(QLatin1String("mp4")) ? " -c copy" : copy),
                      made);
        QVERIFY2(error.isEmpty(), error.constData());
    }
    const int result = m_library.probe(made);
    QVERIFY2(result == KV_MEDIA_OK, m_library.info.reason);
    const KvMediaInfo& info = m_library.info;
    QCOMPARE(info.num_views, views);
    QCOMPARE(info.mvc_profile_idc, profile);
    QCOMPARE(info.mvc_level_idc, 31);
    QCOMPARE(info.profile_idc, 100);
    QCOMPARE(info.level_idc, 30);
    QCOMPARE(info.width, 352);
    QCOMPARE(info.height, 288);
    // Each further view has half of the base view's slices.
    const double share = double(info.dependent_bit_rate) / double(info.bit_rate);
    const double slices = 0.5 * (views - 1) / (1 + 0.5 * (views - 1));
    QVERIFY2(share > slices * 0.8 && share < slices * 1.1, qPrintable(QString::number(share)));
}

void TestMediaProbe::aParameterSetThatEndsEarlyTellsWhatItHolds()
{
    const QString whole = file("whole.h264");
    const QByteArray error = makeMedia(
        picture("352x288", "25") + QStringLiteral("-c:v libx264 -pix_fmt yuv420p -level 3 -bf 0 "
                                                  "-refs 3 -x264-params nal-hrd=vbr:"
                                                  "vbv-maxrate=3000:vbv-bufsize=2000"),
        whole);
    QVERIFY2(error.isEmpty(), error.constData());
    QFile in(whole);
    QVERIFY(in.open(QIODevice::ReadOnly));
    QByteArray cut;
    for (QByteArray unit : kvtest::nalUnits(in.readAll())) {
        if ((unit[0] & 31) == 7) {
            unit.chop(8); // of the usability information
        }
        cut += QByteArray("\0\0\0\1", 4) + unit;
    }
    const QString name = file("cut.h264");
    QVERIFY(kvtest::writeFile(name, cut));
    QVERIFY2(m_library.probe(name) == KV_MEDIA_OK, m_library.info.reason);
    QCOMPARE(m_library.info.width, 352);
    QCOMPARE(m_library.info.height, 288);
    QCOMPARE(m_library.info.profile_idc, 100);
    QCOMPARE(m_library.info.level_idc, 30);
    QCOMPARE(m_library.info.num_ref_frames, 3);
    QCOMPARE(m_library.info.hrd_bit_rate, int64_t(0));
}

void TestMediaProbe::indexFilesOfTitlesStandForTheirVideo_data()
{
    QTest::addColumn<QString>("index");
    QTest::addColumn<QString>("video");
    QTest::newRow("title") << "VTS_01_0.IFO"
                           << "VTS_01_1.VOB";
    QTest::newRow("menu") << "VIDEO_TS.IFO"
                          << "VIDEO_TS.VOB";
    QTest::newRow("small letters") << "vts_02_0.ifo"
                                   << "vts_02_1.vob";
}

void TestMediaProbe::indexFilesOfTitlesStandForTheirVideo()
{
    QFETCH(QString, index);
    QFETCH(QString, video);
    QTemporaryDir folder;
    QFile file(folder.filePath(index));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("DVDVIDEO-VTS");
    file.close();
    QCOMPARE(m_library.probe(folder.filePath(index)), int(KV_MEDIA_UNREADABLE));
    QCOMPARE(QByteArray(m_library.info.reason), QByteArray("No such file or directory"));
    const QByteArray error = makeMedia(picture("720x576", "25") + QStringLiteral("-target pal-dvd"),
                                       folder.filePath(video));
    QVERIFY2(error.isEmpty(), error.constData());
    QCOMPARE(m_library.probe(folder.filePath(index)), int(KV_MEDIA_OK));
    QCOMPARE(m_library.info.height, 576);
}

void TestMediaProbe::recordsOfAnotherSizeAreRespected()
{
    const QString name = medium(media[0]);
    // A caller that knows no more than the first fields.
    const uint32_t known = offsetof(KvMediaInfo, frame_rate_num);
    KvMediaInfo info;
    std::memset(&info, 0x5A, sizeof info);
    QCOMPARE(m_library.init(&info, known), int32_t(KV_MEDIA_OK));
    QCOMPARE(m_library.getInfo(&info, name.toUtf8().constData()), int32_t(KV_MEDIA_OK));
    QCOMPARE(info.size, known);
    QCOMPARE(info.width, 176);
    QCOMPARE(info.frame_rate_num, 0x5A5A5A5A);
    // And one of a later version: what this one does not know stays zero.
    struct {
        KvMediaInfo info;
        char further[64];
    } larger;
    std::memset(&larger, 0x5A, sizeof larger);
    QCOMPARE(m_library.init(&larger.info, sizeof larger), int32_t(KV_MEDIA_OK));
    QCOMPARE(m_library.getInfo(&larger.info, name.toUtf8().constData()), int32_t(KV_MEDIA_OK));
    QCOMPARE(larger.info.size, uint32_t(sizeof larger));
    QCOMPARE(larger.info.width, 176);
    QCOMPARE(QByteArray(larger.further, sizeof larger.further), QByteArray(64, '\0'));
}

void TestMediaProbe::badArgumentsAreRefused()
{
    KvMediaInfo info{};
    QCOMPARE(m_library.init(nullptr, sizeof info), int32_t(KV_MEDIA_BAD_ARGUMENT));
    QCOMPARE(m_library.init(&info, 0), int32_t(KV_MEDIA_BAD_ARGUMENT));
    QCOMPARE(m_library.init(&info, 3), int32_t(KV_MEDIA_BAD_ARGUMENT));
    QCOMPARE(m_library.getInfo(&info, "x.mp4"), int32_t(KV_MEDIA_BAD_ARGUMENT)); // no size
    QCOMPARE(m_library.getInfo(nullptr, "x.mp4"), int32_t(KV_MEDIA_BAD_ARGUMENT));
    QCOMPARE(info.reason, "");
    m_library.init(&info, sizeof info);
    QCOMPARE(m_library.getInfo(&info, nullptr), int32_t(KV_MEDIA_BAD_ARGUMENT));
    QCOMPARE(info.reason, "no file is named");
}

void TestMediaProbe::nothingStaysLoaded()
{
    const auto maps = [] {
        QFile file(QStringLiteral("/proc/self/maps"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    QTemporaryDir folder;
    const QString name = medium(media[0]);
    for (const char* part : {"kv_media_probe.so", "kv_media_probe_worker"}) {
        QVERIFY(
            QFile::copy(qEnvironmentVariable("KV_BIN_DIR") + QLatin1Char('/') + QLatin1String(part),
                        folder.filePath(QLatin1String(part))));
    }
    {
        ProbeLibrary library(folder.path());
        QVERIFY(library.isLoaded());
        QCOMPARE(library.probe(name), int(KV_MEDIA_OK));
        QVERIFY(maps().contains(folder.path().toUtf8()));
        QVERIFY(!maps().contains("libavformat")); // it works in another process
    }
    QVERIFY(!maps().contains(folder.path().toUtf8()));
}

} // namespace

QTEST_GUILESS_MAIN(TestMediaProbe)
#include "tst_media_probe.moc"
