// Settings files and what POSIX systems keep with them or instead of them: modes, owners,
// attributes, links, pipes; disks and limits that are full.
#include "SettingsFolder.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QScopeGuard>
#include <QTest>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <thread>
#include <unistd.h>

using kvtest::filledRecord;
using kvtest::oldText;
using kvtest::recordOfViews;
using kvtest::same;

namespace
{

class TestSettingsFilePosix : public QObject, protected kvtest::SettingsFolder
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY2(renew(), qPrintable(loadError())); }
    void specialFilesAreNotRead_data();
    void specialFilesAreNotRead();
    void aPipeIsRefusedWithoutWaiting();
    void modeIsKept_data();
    void modeIsKept();
    void aNewFileGetsTheUmasksMode();
    void ownerAndGroupAreKept();
    void extendedAttributesAreKept();
    void symbolicLinksAreKept_data();
    void symbolicLinksAreKept();
    void aRingOfLinksIsRefused();
    void whoReadsMeanwhileSeesTheOldText();
    void aReadOnlyFileIsNotReplaced();
    void aFullDiskLeavesTheOldFile();
    void aFileSizeLimitLeavesTheOldFile();
    void aPipeWithAReaderIsWrittenTo();
    void aReaderThatGoesIsAnError();
    void namesAreOneLineOfText_data();
    void namesAreOneLineOfText();
};

void TestSettingsFilePosix::specialFilesAreNotRead_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("device") << QByteArray("/dev/zero") << QByteArray("not a regular file");
    QTest::newRow("link to itself")
        << QByteArray("link.ini") << QByteArray("Too many levels of symbolic links");
}

void TestSettingsFilePosix::specialFilesAreNotRead()
{
    QFETCH(QByteArray, target);
    QFETCH(QByteArray, reason);
    QCOMPARE(::symlink(target.constData(), path("link.ini").constData()), 0);
    KvMvcSettings settings = filledRecord(0x5A);
    QVERIFY(m_library->read(settings, path("link.ini")) != 0);
    QCOMPARE(m_library->messages, path("link.ini") + ": " + reason + "\n");
    QVERIFY(same(settings, filledRecord(0x5A)));
}

void TestSettingsFilePosix::aPipeIsRefusedWithoutWaiting()
{
    QCOMPARE(::mkfifo(path("pipe.ini").constData(), 0600), 0);
    QElapsedTimer timer;
    timer.start();
    KvMvcSettings settings{};
    QVERIFY(m_library->read(settings, path("pipe.ini")) != 0);
    QCOMPARE(m_library->messages, path("pipe.ini") + ": not a regular file\n");
    QVERIFY(m_library->write(settings, path("pipe.ini")) != 0);
    QCOMPARE(m_library->messages, path("pipe.ini") + ": No such device or address\n");
    QVERIFY(timer.elapsed() < 1000);
}

void TestSettingsFilePosix::modeIsKept_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0600, 0640, 0644, 0660, 0666, 0755, 02664}) {
        QTest::addRow("%o", mode) << mode;
    }
}

void TestSettingsFilePosix::modeIsKept()
{
    QFETCH(int, mode);
    put(path("a.ini"), oldText);
    QCOMPARE(::chmod(path("a.ini").constData(), static_cast<mode_t>(mode)), 0);
    QCOMPARE(m_library->write(recordOfViews(3), path("a.ini")), 0);
    struct stat status = {};
    QCOMPARE(::stat(path("a.ini").constData(), &status), 0);
    QCOMPARE(static_cast<int>(status.st_mode & 07777), mode);
    QVERIFY(get(path("a.ini")).contains("num_views = 3"));
}

void TestSettingsFilePosix::aNewFileGetsTheUmasksMode()
{
    const mode_t former = ::umask(027);
    const int result = m_library->write(recordOfViews(3), path("a.ini"));
    ::umask(former);
    QCOMPARE(result, 0);
    struct stat status = {};
    QCOMPARE(::stat(path("a.ini").constData(), &status), 0);
    QCOMPARE(static_cast<int>(status.st_mode & 07777), 0640);
}

void TestSettingsFilePosix::ownerAndGroupAreKept()
{
    put(path("a.ini"), oldText);
    if (::chown(path("a.ini").constData(), 65534, 65533) != 0) {
        QSKIP("only root may give files away");
    }
    QCOMPARE(m_library->write(recordOfViews(3), path("a.ini")), 0);
    struct stat status = {};
    QCOMPARE(::stat(path("a.ini").constData(), &status), 0);
    QCOMPARE(status.st_uid, uid_t(65534));
    QCOMPARE(status.st_gid, gid_t(65533));
}

void TestSettingsFilePosix::extendedAttributesAreKept()
{
    put(path("a.ini"), oldText);
    if (::setxattr(path("a.ini").constData(), "user.origin", "studio", 6, 0) != 0) {
        QSKIP("this file system has no extended attributes");
    }
    QCOMPARE(m_library->write(recordOfViews(3), path("a.ini")), 0);
    char value[16] = "";
    QCOMPARE(::getxattr(path("a.ini").constData(), "user.origin", value, sizeof value), ssize_t(6));
    QCOMPARE(QByteArray(value), QByteArray("studio"));
}

void TestSettingsFilePosix::symbolicLinksAreKept_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<bool>("targetExists");
    QTest::newRow("beside it") << QByteArray("real.ini") << true;
    QTest::newRow("in another folder") << QByteArray("folder/real.ini") << true;
    QTest::newRow("absolute") << QByteArray("/folder/real.ini") << true;
    QTest::newRow("to a file that is not there yet") << QByteArray("folder/real.ini") << false;
}

void TestSettingsFilePosix::symbolicLinksAreKept()
{
    QFETCH(QByteArray, target);
    QFETCH(bool, targetExists);
    makeFolder("folder");
    const QByteArray real = path(target);
    const QByteArray link = target.startsWith('/') ? real : target;
    if (targetExists) {
        put(real, oldText);
    }
    QCOMPARE(::symlink("second.ini", path("first.ini").constData()), 0);
    QCOMPARE(::symlink(link.constData(), path("second.ini").constData()), 0);
    QCOMPARE(m_library->write(recordOfViews(3), path("first.ini")), 0);
    QVERIFY(QFileInfo(QString::fromUtf8(path("first.ini"))).isSymLink());
    QVERIFY(QFileInfo(QString::fromUtf8(path("second.ini"))).isSymLink());
    QVERIFY(!QFileInfo(QString::fromUtf8(real)).isSymLink());
    QVERIFY(get(real).contains("num_views = 3"));
}

void TestSettingsFilePosix::aRingOfLinksIsRefused()
{
    QCOMPARE(::symlink("b.ini", path("a.ini").constData()), 0);
    QCOMPARE(::symlink("a.ini", path("b.ini").constData()), 0);
    QVERIFY(m_library->write(recordOfViews(3), path("a.ini")) != 0);
    QCOMPARE(m_library->messages, path("a.ini") + ": Too many levels of symbolic links\n");
}

void TestSettingsFilePosix::whoReadsMeanwhileSeesTheOldText()
{
    put(path("a.ini"), oldText);
    QFile former(QString::fromUtf8(path("a.ini")));
    QVERIFY(former.open(QIODevice::ReadOnly));
    QCOMPARE(m_library->write(recordOfViews(3), path("a.ini")), 0);
    QCOMPARE(former.readAll(), QByteArray(oldText));
    QVERIFY(get(path("a.ini")).contains("num_views = 3"));
}

void TestSettingsFilePosix::aReadOnlyFileIsNotReplaced()
{
    if (::geteuid() == 0) {
        // Root may write to everything but this; needs a file system that knows the flag.
        put(path("a.ini"), oldText);
        if (QProcess::execute(QStringLiteral("chattr"),
                              {QStringLiteral("+i"), QString::fromUtf8(path("a.ini"))}) != 0) {
            QSKIP("neither an ordinary user nor a file system with immutable files");
        }
        const int result = m_library->write(recordOfViews(3), path("a.ini"));
        QProcess::execute(QStringLiteral("chattr"),
                          {QStringLiteral("-i"), QString::fromUtf8(path("a.ini"))});
        QVERIFY(result != 0);
    } else {
        put(path("a.ini"), oldText);
        QCOMPARE(::chmod(path("a.ini").constData(), 0444), 0);
        QVERIFY(m_library->write(recordOfViews(3), path("a.ini")) != 0);
        QCOMPARE(m_library->messages, path("a.ini") + ": Permission denied\n");
    }
    QCOMPARE(get(path("a.ini")), QByteArray(oldText));
    QCOMPARE(names(), QStringList(QStringLiteral("a.ini")));
}

void TestSettingsFilePosix::aFullDiskLeavesTheOldFile()
{
    const QByteArray disk = path("disk");
    QVERIFY(QDir().mkdir(QString::fromUtf8(disk)));
    if (::mount("tmpfs", disk.constData(), "tmpfs", 0, "size=64k") != 0) {
        QSKIP("no file system can be mounted here; the next test stands for this one");
    }
    const auto unmount = qScopeGuard([&] { ::umount2(disk.constData(), MNT_DETACH); });
    put(disk + "/a.ini", oldText);
    QFile filler(QString::fromUtf8(disk + "/filler"));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(4096, 'x')) == 4096) {
    }
    QVERIFY(m_library->write(filledRecord(0x5A), disk + "/a.ini") != 0);
    QCOMPARE(m_library->messages, disk + "/a.ini: No space left on device\n");
    QCOMPARE(get(disk + "/a.ini"), QByteArray(oldText));
    QCOMPARE(QDir(QString::fromUtf8(disk))
                 .entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
             QStringList({QStringLiteral("a.ini"), QStringLiteral("filler")}));
    filler.remove();
    QCOMPARE(m_library->write(recordOfViews(3), disk + "/a.ini"), 0);
    QVERIFY(get(disk + "/a.ini").contains("num_views = 3"));
}

void TestSettingsFilePosix::aFileSizeLimitLeavesTheOldFile()
{
    put(path("a.ini"), oldText);
    struct rlimit former = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &former), 0);
    struct rlimit small = former;
    small.rlim_cur = 1000;
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &small);
    const int result = m_library->write(recordOfViews(3), path("a.ini"));
    ::setrlimit(RLIMIT_FSIZE, &former);
    std::signal(SIGXFSZ, handler);
    QVERIFY(result != 0);
    QCOMPARE(m_library->messages, path("a.ini") + ": File too large\n");
    QCOMPARE(get(path("a.ini")), QByteArray(oldText));
    QCOMPARE(names(), QStringList(QStringLiteral("a.ini")));
}

void TestSettingsFilePosix::aPipeWithAReaderIsWrittenTo()
{
    QCOMPARE(::mkfifo(path("pipe.ini").constData(), 0600), 0);
    const int reader = ::open(path("pipe.ini").constData(), O_RDONLY | O_NONBLOCK);
    QVERIFY(reader >= 0);
    QCOMPARE(m_library->write(recordOfViews(3), path("pipe.ini")), 0);
    QByteArray text(64 * 1024, '\0');
    text.resize(
        static_cast<int>(::read(reader, text.data(), static_cast<std::size_t>(text.size()))));
    ::close(reader);
    QVERIFY(text.contains("num_views = 3"));
    struct stat status = {};
    QCOMPARE(::lstat(path("pipe.ini").constData(), &status), 0);
    QVERIFY(S_ISFIFO(status.st_mode));
}

volatile std::sig_atomic_t brokenPipes = 0;

/// The writer waits, since the pipe is full, when its reader goes.
void TestSettingsFilePosix::aReaderThatGoesIsAnError()
{
    QCOMPARE(::mkfifo(path("pipe.ini").constData(), 0600), 0);
    const int reader = ::open(path("pipe.ini").constData(), O_RDONLY | O_NONBLOCK);
    const int writer = ::open(path("pipe.ini").constData(), O_WRONLY | O_NONBLOCK);
    QVERIFY(reader >= 0 && writer >= 0);
    for (const QByteArray block(4096, '#'); ::write(writer, block.constData(), 4096) > 0;) {
    }
    QCOMPARE(errno, EAGAIN);
    const auto former = std::signal(SIGPIPE, [](int) { brokenPipes = brokenPipes + 1; });
    std::thread leaving([reader] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        ::close(reader);
    });
    const int result = m_library->write(recordOfViews(3), path("pipe.ini"));
    leaving.join();
    std::signal(SIGPIPE, former);
    QCOMPARE(m_library->messages, path("pipe.ini") + ": Broken pipe\n");
    QVERIFY(result != 0);
    QCOMPARE(int(brokenPipes), 0);
    sigset_t blocked;
    QCOMPARE(pthread_sigmask(SIG_SETMASK, nullptr, &blocked), 0);
    QCOMPARE(sigismember(&blocked, SIGPIPE), 0); // as the caller had it
    ::close(writer);
}

void TestSettingsFilePosix::namesAreOneLineOfText_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("shown");
    QTest::newRow("line feed") << QByteArray("a\nb.ini") << QByteArray("a\\u000ab.ini");
    QTest::newRow("escape") << QByteArray("\x1B[2J.ini") << QByteArray("\\u001b[2J.ini");
    QTest::newRow("C1") << QByteArray("a\xC2\x9B.ini") << QByteArray("a\\u009b.ini");
    QTest::newRow("override") << QByteArray("a\xE2\x80\xAE.ini") << QByteArray("a\\u202e.ini");
    QTest::newRow("isolate") << QByteArray("a\xE2\x81\xA9.ini") << QByteArray("a\\u2069.ini");
    QTest::newRow("mark") << QByteArray("a\xD8\x9C.ini") << QByteArray("a\\u061c.ini");
    QTest::newRow("no UTF-8") << QByteArray("a\xFF\xC3.ini") << QByteArray("a\\xff\\xc3.ini");
    QTest::newRow("letters") << QByteArray("\xD9\x86\xE2\x80\x8C\xD9\x85 \xE6\x98\xA0.ini")
                             << QByteArray("\xD9\x86\xE2\x80\x8C\xD9\x85 \xE6\x98\xA0.ini");
}

void TestSettingsFilePosix::namesAreOneLineOfText()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, shown);
    const QByteArray folder = m_folder->path().toUtf8() + '/';
    KvMvcSettings settings{};
    QVERIFY(m_library->read(settings, folder + name) != 0);
    QCOMPARE(m_library->messages, folder + shown + ": No such file or directory\n");
}

} // namespace

QTEST_APPLESS_MAIN(TestSettingsFilePosix)
#include "tst_settings_file_posix.moc"
