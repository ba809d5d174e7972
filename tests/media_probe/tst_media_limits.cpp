// Files that are no video, damaged or hostile, and workers that fail: a refusal with a reason,
// soon.
#include "MediaMaker.h"
#include "ProbeLibrary.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <random>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

using kvtest::makeMedia;
using kvtest::picture;
using kvtest::ProbeLibrary;

namespace
{

constexpr qint64 longest = 5000;              // milliseconds
constexpr long largestKilobytes = 256 * 1024; // of any child so far

/// Of a transport stream, without a meaning.
QByteArray nullPackets(int count)
{
    return (QByteArray::fromHex("471fff10") + QByteArray(184, '\xFF')).repeated(count);
}

QByteArray atom(const char* type, const QByteArray& content, quint32 length = 0)
{
    const quint32 size = length != 0 ? length : quint32(content.size() + 8);
    QByteArray head;
    for (int shift = 24; shift >= 0; shift -= 8) {
        head += static_cast<char>(size >> shift);
    }
    return head + type + content;
}

/// A movie of one video track whose sample table claims four thousand million entries.
QByteArray endlessSampleTable()
{
    const QByteArray count = QByteArray(4, '\0') + QByteArray(4, '\xff');
    const QByteArray video = QByteArray(70, '\0') + QByteArray(8, '\1');
    const QByteArray tables =
        atom("stsd", QByteArray(4, '\0') + QByteArray("\0\0\0\1", 4) + atom("avc1", video)) +
        atom("stts", count) + atom("stsc", count) + atom("stsz", QByteArray(4, '\0') + count) +
        atom("stco", count);
    const QByteArray handler = QByteArray(8, '\0') + "vide" + QByteArray(13, '\0');
    return atom("ftyp", QByteArray("isom\0\0\2\0isom", 12)) +
           atom("moov", atom("trak", atom("mdia", atom("mdhd", QByteArray(24, '\1')) +
                                                      atom("hdlr", handler) +
                                                      atom("minf", atom("stbl", tables)))));
}

QByteArray nestedAtoms()
{
    QByteArray inner;
    for (int depth = 0; depth < 4000; ++depth) {
        inner = atom(depth % 2 == 0 ? "trak" : "moov", inner);
    }
    return atom("ftyp", QByteArray("isom\0\0\2\0isom", 12)) + inner;
}

/// An elementary stream whose pictures would take 16384 x 16384 samples each.
QByteArray enormousH264()
{
    kvtest::BitWriter set;
    set.bits(100, 8).bits(0, 8).bits(52, 8).ue(0).ue(1).ue(6).ue(6).bits(0, 2);
    set.ue(0).ue(2).ue(16).bits(0, 1).ue(1023).ue(1023).bits(1, 1).bits(1, 1).bits(0, 2);
    QByteArray stream;
    const QByteArray sets =
        kvtest::nalUnit(3, 7, set.payload()) + kvtest::nalUnit(3, 8,
                                                               kvtest::BitWriter()
                                                                   .ue(0)
                                                                   .ue(0)
                                                                   .bits(0, 2)
                                                                   .ue(0)
                                                                   .ue(0)
                                                                   .ue(0)
                                                                   .bits(0, 3)
                                                                   .se(0)
                                                                   .se(0)
                                                                   .se(0)
                                                                   .bits(0, 3)
                                                                   .payload());
    for (int picture = 0; picture < 50; ++picture) {
        stream +=
            sets +
            kvtest::nalUnit(
                3, 5,
                kvtest::BitWriter().ue(0).ue(7).ue(0).bits(0, 4).ue(0).bits(0, 2).se(0).payload() +
                    QByteArray(2000, '\x5a'));
    }
    return stream;
}

/// MPEG-2 sequence headers of 16383 x 16383 samples, and pictures behind them.
QByteArray enormousMpeg2()
{
    const QByteArray sequence = QByteArray::fromHex("000001b3ffffff13ffffe018") +
                                QByteArray::fromHex("000001b5148fff800100000000");
    QByteArray stream;
    for (int picture = 0; picture < 50; ++picture) {
        stream += sequence + QByteArray::fromHex("000001000008fff8") +
                  QByteArray::fromHex("000001b58ffff38080") + QByteArray::fromHex("00000101") +
                  QByteArray(2000, '\x5a');
    }
    return stream;
}

/// A transport stream of 8,000 programs and streams, each packet of another one.
QByteArray crowdedTransportStream()
{
    QByteArray stream;
    for (int round = 0; round < 40000; ++round) {
        QByteArray packet = QByteArray::fromHex("4740001000");
        packet[1] = static_cast<char>(0x40 | (round >> 8 & 0x1f));
        packet[2] = static_cast<char>(round);
        packet += QByteArray::fromHex("000001e0000080800521000100010000000109f00000000167");
        packet += QByteArray(188 - packet.size(), '\xff');
        stream += packet;
    }
    return stream;
}

QByteArray noise(int size)
{
    std::mt19937 random(static_cast<unsigned>(size));
    QByteArray bytes(size, '\0');
    for (char& byte : bytes) {
        byte = static_cast<char>(random());
    }
    return bytes;
}

class TestMediaLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void filesWithoutMediaAreRefused_data();
    void filesWithoutMediaAreRefused();
    void hostileFilesEndSoon_data();
    void hostileFilesEndSoon();
    void otherFilesAreNeverOpened_data();
    void otherFilesAreNeverOpened();
    void onlyRegularFilesAreOpened_data();
    void onlyRegularFilesAreOpened();
    void anEnormousSparseFileEndsSoon();
    void truncatedFiles_data();
    void truncatedFiles();
    void filesCutAnywhereEndSoon();
    void damagedFilesEndSoon();
    void workersThatFailAreReported_data();
    void workersThatFailAreReported();
    void noWorkerIsLeft();
    void childrenStayedSmall();

private:
    QString put(const QString& name, const QByteArray& content);
    /// Result and reason of a file, within the time that there is.
    int probe(const QString& file);

    QTemporaryDir m_folder;
    ProbeLibrary m_library;
};

void TestMediaLimits::initTestCase()
{
    QVERIFY(m_library.isLoaded());
}

QString TestMediaLimits::put(const QString& name, const QByteArray& content)
{
    QFile file(m_folder.filePath(name));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(content);
    }
    return file.fileName();
}

int TestMediaLimits::probe(const QString& file)
{
    QElapsedTimer timer;
    timer.start();
    const int result = m_library.probe(file);
    if (timer.elapsed() >= longest) {
        qWarning("%s took %lld ms", qPrintable(file), timer.elapsed());
    }
    if ((result == KV_MEDIA_OK) != (m_library.info.reason[0] == '\0')) {
        qWarning("%s: result %d with reason '%s'", qPrintable(file), result, m_library.info.reason);
    }
    return timer.elapsed() < longest ? result : -1;
}

void TestMediaLimits::filesWithoutMediaAreRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("reason");
    const QByteArray none = "no media format, or damaged";
    QTest::newRow("empty.mp4") << QByteArray() << QByteArray("empty");
    QTest::newRow("byte.ts") << QByteArray("G") << none;
    QTest::newRow("text.mpg") << QByteArray("Dear reader,\n").repeated(1000) << none;
    QTest::newRow("settings.vob") << QByteArray("[record]\nnum_views = 2\n[view 0]\n") << none;
    QTest::newRow("noise.ts") << noise(4 << 20) << none;
    QTest::newRow("noise.mp4") << noise(1 << 20) << none;
    QTest::newRow("zeros.mxf") << QByteArray(1 << 20, '\0') << none;
    QTest::newRow("picture.m2v") << QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000000"
                                                        "0100000001080600000")
                                 << none;
    QTest::newRow("head.mp4") << atom("ftyp", QByteArray("isom\0\0\2\0isom", 12)) << none;
    QTest::newRow("flash.mp4") << QByteArray("FLV\1\5\0\0\0\x09\0\0\0\0", 13) +
                                      QByteArray(400, '\xb7')
                               << none;
    QTest::newRow("nothing.ts")
        << nullPackets(4000)
        << QByteArray("a transport stream without programs: no association table (PAT) lists one");
    // Program 1 has its map in packets of number 0x100.
    const QByteArray association = QByteArray::fromHex("4740001000"
                                                       "00b00d0001c100000001e100e8f95e7d")
                                       .leftJustified(188, '\xFF');
    QTest::newRow("table.ts")
        << (association + nullPackets(9)).repeated(400)
        << QByteArray("a transport stream whose program has no map (PMT), which tells its streams");
    QTest::newRow("nothing.y4m") << QByteArray("YUV4MPEG2 W0 H0\nFRAME\n") << none;
    QTest::newRow("wave.mpg") << QByteArray("RIFF\x24\x08\0\0WAVEfmt \x10\0\0\0\1\0\1\0\x44\xac\0\0"
                                            "\x88\x58\1\0\2\0\x10\0data\0\x08\0\0",
                                            44) +
                                     QByteArray(2048, '\0')
                              << QByteArray("no video in it");
}

void TestMediaLimits::filesWithoutMediaAreRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, reason);
    const int result = probe(put(QString::fromUtf8(QTest::currentDataTag()), content));
    QCOMPARE(QByteArray(m_library.info.reason), reason);
    QCOMPARE(result, int(reason.startsWith("no video") ? KV_MEDIA_NO_VIDEO : KV_MEDIA_UNREADABLE));
}

void TestMediaLimits::hostileFilesEndSoon_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("samples.mp4") << endlessSampleTable();
    QTest::newRow("nested.mp4") << nestedAtoms();
    QTest::newRow("enormous.264") << enormousH264();
    QTest::newRow("enormous.m2v") << enormousMpeg2();
    QTest::newRow("crowd.ts") << crowdedTransportStream();
    QTest::newRow("longest.mp4") << atom("ftyp", QByteArray("isom\0\0\2\0isom", 12)) +
                                        atom("moov", QByteArray(100, '\0'), 0xffffffff);
    QTest::newRow("startcodes.m2v") << QByteArray::fromHex("000001b3").repeated(1 << 20);
    QTest::newRow("startcodes.264") << QByteArray::fromHex("0000000167").repeated(1 << 20);
    QTest::newRow("packs.mpg")
        << QByteArray::fromHex("000001ba440004000401000003f8").repeated(1 << 18);
    QTest::newRow("subsets.264") << kvtest::subsetParameterSet(118, 41, 1024).repeated(2000);
}

void TestMediaLimits::hostileFilesEndSoon()
{
    QFETCH(QByteArray, content);
    const int result = probe(put(QString::fromUtf8(QTest::currentDataTag()), content));
    QVERIFY2(result > KV_MEDIA_OK || m_library.info.width > 0, m_library.info.reason);
    QVERIFY(result >= KV_MEDIA_OK && result != KV_MEDIA_UNAVAILABLE);
}

void TestMediaLimits::otherFilesAreNeverOpened_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("playlist.ts") << QByteArray("#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\n"
                                               "file:///etc/hostname\n#EXT-X-ENDLIST\n");
    QTest::newRow("concat.mpg") << QByteArray("ffconcat version 1.0\nfile /etc/hostname\n");
    QTest::newRow("manifest.mp4") << QByteArray("<?xml version=\"1.0\"?><MPD xmlns=\"urn:mpeg:dash:"
                                                "schema:mpd:2011\"><Period/></MPD>");
    QTest::newRow("session.mpg") << QByteArray("v=0\no=- 0 0 IN IP4 127.0.0.1\ns=x\n"
                                               "m=video 5004 RTP/AVP 96\n");
}

void TestMediaLimits::otherFilesAreNeverOpened()
{
    QFETCH(QByteArray, content);
    QCOMPARE(probe(put(QString::fromUtf8(QTest::currentDataTag()), content)),
             int(KV_MEDIA_UNREADABLE));
    QCOMPARE(QByteArray(m_library.info.reason), QByteArray("no media format, or damaged"));
}

void TestMediaLimits::onlyRegularFilesAreOpened_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("absent") << m_folder.filePath(QStringLiteral("absent.mp4"))
                            << QByteArray("No such file or directory");
    QTest::newRow("folder") << m_folder.path() << QByteArray("not a regular file");
    QTest::newRow("device") << QStringLiteral("/dev/zero") << QByteArray("not a regular file");
    QTest::newRow("pipe") << m_folder.filePath(QStringLiteral("pipe.ts"))
                          << QByteArray("not a regular file");
    QTest::newRow("address") << QStringLiteral("http://127.0.0.1/x.mp4")
                             << QByteArray("No such file or directory");
}

void TestMediaLimits::onlyRegularFilesAreOpened()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, reason);
    ::mkfifo(m_folder.filePath(QStringLiteral("pipe.ts")).toUtf8().constData(), 0600);
    QCOMPARE(probe(path), int(KV_MEDIA_UNREADABLE));
    QCOMPARE(QByteArray(m_library.info.reason), reason);
}

void TestMediaLimits::anEnormousSparseFileEndsSoon()
{
    QFile file(m_folder.filePath(QStringLiteral("sparse.ts")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    if (!file.resize(qint64(20) << 30)) {
        QSKIP("this file system has no sparse files");
    }
    file.close();
    QCOMPARE(probe(file.fileName()), int(KV_MEDIA_UNREADABLE));
    file.remove();
}

void TestMediaLimits::truncatedFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<double>("part");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("index lost") << "end.mp4"
                                << "-c:v libx264 -pix_fmt yuv420p" << 0.7
                                << QByteArray("no media format, or damaged");
    QTest::newRow("index cut") << "tail.mp4"
                               << "-c:v libx264 -pix_fmt yuv420p" << 0.9
                               << QByteArray("no video in it, truncated or damaged");
    QTest::newRow("pictures lost")
        << "front.mp4"
        << "-c:v libx264 -pix_fmt yuv420p -movflags faststart" << 0.9 << QByteArray("truncated");
    QTest::newRow("the last picture cut")
        << "last.mp4"
        << "-c:v libx264 -pix_fmt yuv420p -movflags faststart" << 0.9999 << QByteArray("truncated");
}

void TestMediaLimits::truncatedFiles()
{
    QFETCH(QString, name);
    QFETCH(QString, arguments);
    QFETCH(double, part);
    QFETCH(QByteArray, reason);
    if (!kvtest::hasFfmpeg()) {
        QSKIP("the ffmpeg program makes the media of this test");
    }
    const QByteArray error =
        makeMedia(picture("176x144", "25") + arguments + QStringLiteral(" -threads 1"),
                  m_folder.filePath(name));
    QVERIFY2(error.isEmpty(), error.constData());
    QCOMPARE(probe(m_folder.filePath(name)), int(KV_MEDIA_OK));
    QFile file(m_folder.filePath(name));
    QVERIFY(file.resize(qint64(double(file.size()) * part)));
    QCOMPARE(probe(file.fileName()), int(KV_MEDIA_UNREADABLE));
    QCOMPARE(QByteArray(m_library.info.reason), reason);
}

void TestMediaLimits::filesCutAnywhereEndSoon()
{
    if (!kvtest::hasFfmpeg()) {
        QSKIP("the ffmpeg program makes the media of this test");
    }
    for (const char* name : {"cut.ts", "cut.mpg", "cut.mxf", "cut.m2v", "cut.mp4"}) {
        const QString file = m_folder.filePath(QLatin1String(name));
        const QByteArray error =
            makeMedia(picture("176x144", "25", 0.4) + QStringLiteral("-threads 1"), file);
        QVERIFY2(error.isEmpty(), error.constData());
        QFile in(file);
        QVERIFY(in.open(QIODevice::ReadOnly));
        const QByteArray whole = in.readAll();
        for (const int length : {1, 4, 12, 100, 188, 500, 1000, 4000}) {
            QVERIFY(probe(put(QStringLiteral("part-") + QLatin1String(name), whole.left(length))) >=
                    KV_MEDIA_OK);
        }
        QVERIFY(probe(put(QStringLiteral("part-") + QLatin1String(name), whole.left(12))) !=
                KV_MEDIA_OK);
    }
}

void TestMediaLimits::damagedFilesEndSoon()
{
    if (!kvtest::hasFfmpeg()) {
        QSKIP("the ffmpeg program makes the media of this test");
    }
    std::mt19937 random(11);
    for (const char* name :
         {"flip.ts", "flip.mp4", "flip.vob", "flip.mxf", "flip.mkv", "flip.y4m"}) {
        const QString file = m_folder.filePath(QLatin1String(name));
        const QByteArray error = makeMedia(
            picture("176x144", "25", 0.4) + QStringLiteral("-pix_fmt yuv420p -threads 1"), file);
        QVERIFY2(error.isEmpty(), error.constData());
        QFile in(file);
        QVERIFY(in.open(QIODevice::ReadOnly));
        const QByteArray whole = in.readAll();
        for (int round = 0; round < 15; ++round) {
            QByteArray damaged = whole;
            for (int change = 0; change < 1 << (round % 8); ++change) {
                damaged[int(random() % unsigned(damaged.size()))] = static_cast<char>(random());
            }
            const int result = probe(put(QStringLiteral("bad-") + QLatin1String(name), damaged));
            QVERIFY(result >= KV_MEDIA_OK && result != KV_MEDIA_UNAVAILABLE);
        }
    }
}

void TestMediaLimits::workersThatFailAreReported_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("result");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("absent") << QByteArray() << int(KV_MEDIA_UNAVAILABLE)
                            << QByteArray("kv_media_probe_worker cannot be started: "
                                          "No such file or directory");
    QTest::newRow("sleeps") << QByteArray("exec sleep 60") << int(KV_MEDIA_LIMIT)
                            << QByteArray("describing it takes too long");
    QTest::newRow("dies") << QByteArray("kill -SEGV $$") << int(KV_MEDIA_UNREADABLE)
                          << QByteArray("damaged: reading it fails");
    QTest::newRow("says little") << QByteArray("echo hello") << int(KV_MEDIA_UNREADABLE)
                                 << QByteArray("damaged: reading it fails");
    QTest::newRow("has no other files")
        << QByteArray("test $(ls /proc/self/fd | wc -l) -le 4 && "
                      "exit; exec sleep 60")
        << int(KV_MEDIA_UNREADABLE) << QByteArray("damaged: reading it fails");
}

void TestMediaLimits::workersThatFailAreReported()
{
    QFETCH(QByteArray, script);
    QFETCH(int, result);
    QFETCH(QByteArray, reason);
    QTemporaryDir folder;
    QVERIFY(QFile::copy(qEnvironmentVariable("KV_BIN_DIR") + QStringLiteral("/kv_media_probe.so"),
                        folder.filePath(QStringLiteral("kv_media_probe.so"))));
    if (!script.isEmpty()) {
        QFile worker(folder.filePath(QStringLiteral("kv_media_probe_worker")));
        QVERIFY(worker.open(QIODevice::WriteOnly));
        worker.write("#!/bin/sh\n" + script + "\n");
        worker.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    const QString media = put(QStringLiteral("any.ts"), "anything");
    ProbeLibrary library(folder.path());
    QVERIFY(library.isLoaded());
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(library.probe(media), result);
    QCOMPARE(QByteArray(library.info.reason), reason);
    QVERIFY(timer.elapsed() < longest);
}

void TestMediaLimits::noWorkerIsLeft()
{
    QCOMPARE(probe(put(QStringLiteral("some.mpg"), "Dear reader,\n")), int(KV_MEDIA_UNREADABLE));
    QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1);
    QCOMPARE(errno, ECHILD);
}

void TestMediaLimits::childrenStayedSmall()
{
    struct rusage usage = {};
    QCOMPARE(::getrusage(RUSAGE_CHILDREN, &usage), 0);
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("the sanitizer's own memory counts here");
#endif
    QVERIFY2(usage.ru_maxrss < largestKilobytes, qPrintable(QString::number(usage.ru_maxrss)));
}

} // namespace

QTEST_GUILESS_MAIN(TestMediaLimits)
#include "tst_media_limits.moc"
