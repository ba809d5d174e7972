// Settings files on disk, through the library as callers have it: names, replacement, refusals.
#include "SettingsLibrary.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using kvtest::doubleConverted;
using kvtest::filledRecord;
using kvtest::same;
using kvtest::SettingsLibrary;

namespace
{

constexpr char kOldText[] = "[record]\nnum_views = 7\n[view 0]\n";

/** A record that is told from others by its number of views. */
KvMvcSettings recordOfViews(int views)
{
    KvMvcSettings settings{};
    settings.num_views = views;
    return settings;
}

class TestSettingsFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void onlyTheTwoCodesAreKnown();
    void nullArgumentsAreRefused();
    void aRecordComesBackFromAFile();
    void nothingStaysLoaded();
    void errorsGoToStandardErrorWithFileAndLine();
    void filesThatCannotBeReadAreRefused_data();
    void filesThatCannotBeReadAreRefused();
    void aPipeIsRefusedWithoutWaiting();
    void unknownSuffixesAreJudgedByContent();
    void namesBeyondAscii_data();
    void namesBeyondAscii();
    void bothReadingsOfAName_data();
    void bothReadingsOfAName();
    void aFolderWithTheOneNameDecidesForANewFile();
    void modeIsKept_data();
    void modeIsKept();
    void aNewFileGetsTheUmasksMode();
    void ownerAndGroupAreKept();
    void extendedAttributesAreKept();
    void symbolicLinksAreKept_data();
    void symbolicLinksAreKept();
    void aRingOfLinksIsRefused();
    void theFileIsReplacedNotRewritten();
    void writingLeavesNothingElseBehind();
    void aReadOnlyFileIsNotReplaced();
    void aFullDiskLeavesTheOldFile();
    void aFileSizeLimitLeavesTheOldFile();
    void unwritableTargetsAreRefused_data();
    void unwritableTargetsAreRefused();
    void aPipeWithAReaderIsWrittenTo();

private:
    QByteArray path(const char* name) const
    {
        return (m_folder->path() + QLatin1Char('/') + QString::fromUtf8(name)).toUtf8();
    }
    void put(const QByteArray& file, const QByteArray& content) const;
    QByteArray get(const QByteArray& file) const;
    QStringList names() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SettingsLibrary> m_library;
};

void TestSettingsFile::init()
{
    m_library.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_library = std::make_unique<SettingsLibrary>();
    QVERIFY2(m_library->isLoaded(), qPrintable(m_library->loadError()));
}

void TestSettingsFile::put(const QByteArray& file, const QByteArray& content) const
{
    QFile out(QString::fromUtf8(file));
    QVERIFY2(out.open(QIODevice::WriteOnly), file.constData());
    out.write(content);
}

QByteArray TestSettingsFile::get(const QByteArray& file) const
{
    QFile in(QString::fromUtf8(file));
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray("cannot be opened");
}

QStringList TestSettingsFile::names() const
{
    return QDir(m_folder->path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                   QDir::Name);
}

void TestSettingsFile::onlyTheTwoCodesAreKnown()
{
    QLibrary library(qEnvironmentVariable("KV_BIN_DIR") + QStringLiteral("/kv_mvc_settings_io.so"));
    const auto getApi =
        reinterpret_cast<KvMvcSettingsIoGetApi>(library.resolve("MVCConfigGetAPIExt"));
    QVERIFY(getApi);
    for (const int code : {0, 1, 8192, 8195, -1})
        QVERIFY(!getApi(code));
    QVERIFY(getApi(8193));
    QVERIFY(getApi(8194));
    QVERIFY(getApi(8193) != getApi(8194));
    library.unload();
}

void TestSettingsFile::nullArgumentsAreRefused()
{
    QLibrary library(qEnvironmentVariable("KV_BIN_DIR") + QStringLiteral("/kv_mvc_settings_io.so"));
    const auto getApi =
        reinterpret_cast<KvMvcSettingsIoGetApi>(library.resolve("MVCConfigGetAPIExt"));
    KvMvcSettings settings{};
    for (const int code : {8193, 8194}) {
        const auto call = reinterpret_cast<KvMvcReadSettings>(getApi(code));
        QVERIFY(call(nullptr, "/tmp/x.ini") != 0);
        QVERIFY(call(&settings, nullptr) != 0);
    }
    library.unload();
}

void TestSettingsFile::aRecordComesBackFromAFile()
{
    KvMvcSettings settings = filledRecord(0xA7);
    QCOMPARE(m_library->write(settings, path("a.cfg")), 0);
    QCOMPARE(m_library->messages, QByteArray());
    KvMvcSettings back{};
    QCOMPARE(m_library->read(back, path("a.cfg")), 0);
    QCOMPARE(m_library->messages, QByteArray());
    QVERIFY(same(back, settings));
}

void TestSettingsFile::nothingStaysLoaded()
{
    KvMvcSettings settings{};
    put(path("a.ini"), kOldText);
    QCOMPARE(m_library->read(settings, path("a.ini")), 0);
    QVERIFY(get("/proc/self/maps").contains("kv_mvc_settings_io"));
    m_library.reset();
    QVERIFY(!get("/proc/self/maps").contains("kv_mvc_settings_io"));
}

void TestSettingsFile::errorsGoToStandardErrorWithFileAndLine()
{
    put(path("a.ini"), "[record]\nviews = 2\n[view 0]\nwidth = x\n");
    KvMvcSettings settings = filledRecord(0x5A);
    QVERIFY(m_library->read(settings, path("a.ini")) != 0);
    QCOMPARE(m_library->messages,
             path("a.ini") + ":2: unknown key 'views' in section 'record'\n" + path("a.ini") +
                 ":4: bad value 'x' for 'width': expected a whole number of 32 bits\n");
    QVERIFY(same(settings, filledRecord(0x5A)));
}

void TestSettingsFile::filesThatCannotBeReadAreRefused_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("absent") << QByteArray("absent.ini") << QByteArray("No such file or directory");
    QTest::newRow("absent, any suffix")
        << QByteArray("absent") << QByteArray("No such file or directory");
    QTest::newRow("folder") << QByteArray("folder.ini") << QByteArray("not a regular file");
    QTest::newRow("folder, any suffix") << QByteArray("folder") << QByteArray("not a regular file");
    QTest::newRow("device") << QByteArray("device.ini") << QByteArray("not a regular file");
    QTest::newRow("too large") << QByteArray("large.ini") << QByteArray("too large");
    QTest::newRow("under a file") << QByteArray("file/a.ini") << QByteArray("Not a directory");
    QTest::newRow("link to itself")
        << QByteArray("ring.ini") << QByteArray("Too many levels of symbolic links");
}

void TestSettingsFile::filesThatCannotBeReadAreRefused()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, reason);
    QDir(m_folder->path()).mkdir(QStringLiteral("folder.ini"));
    QDir(m_folder->path()).mkdir(QStringLiteral("folder"));
    QVERIFY(QFile::link(QStringLiteral("/dev/zero"), QString::fromUtf8(path("device.ini"))));
    QVERIFY(QFile::link(QStringLiteral("ring.ini"), QString::fromUtf8(path("ring.ini"))));
    put(path("large.ini"), QByteArray(1024 * 1024 + 1, ' '));
    put(path("file"), "");
    KvMvcSettings settings = filledRecord(0x5A);
    QVERIFY(m_library->read(settings, path(name)) != 0);
    QCOMPARE(m_library->messages, path(name) + ": " + reason + "\n");
    QVERIFY(same(settings, filledRecord(0x5A)));
}

void TestSettingsFile::aPipeIsRefusedWithoutWaiting()
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

void TestSettingsFile::unknownSuffixesAreJudgedByContent()
{
    for (const char* name : {"settings", "settings.txt", "settings.ini.bak", "mp4", ".cfg"}) {
        put(path(name), kOldText);
        KvMvcSettings settings{};
        QCOMPARE(m_library->read(settings, path(name)), 0);
        QCOMPARE(settings.num_views, 7);
    }
    put(path("text.mp4"), kOldText); // the suffix says media, whatever is in it
    KvMvcSettings settings{};
    QVERIFY(m_library->read(settings, path("text.mp4")) != 0);
    put(path("binary.CFG"), "\xFF\xFE"); // and here settings
    QVERIFY(m_library->read(settings, path("binary.CFG")) != 0);
    QCOMPARE(m_library->messages, path("binary.CFG") + ":1: not valid UTF-8 text\n");
}

void TestSettingsFile::namesBeyondAscii_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("Latin") << QByteArray("\xC3\xA4\xC3\xB6\xC3\xBC.ini");
    QTest::newRow("one Latin letter") << QByteArray("caf\xC3\xA9 plan.cfg");
    QTest::newRow("Japanese") << QByteArray("\xE8\xA8\xAD\xE5\xAE\x9A.ini");
    QTest::newRow("Greek") << QByteArray("\xCF\x81\xCF\x85\xCE\xB8\xCE\xBC.ini");
    QTest::newRow("four bytes") << QByteArray("\xF0\x9F\x8E\xAC.ini");
    QTest::newRow("blanks and signs") << QByteArray("a b #1 \xC2\xA7;=.ini");
    QTest::newRow("ASCII") << QByteArray("plain.ini");
    QTest::newRow("Latin letter and sign that look double-converted")
        << QByteArray("CAF\xC3\x89\xC2\xAE.ini");
}

void TestSettingsFile::namesBeyondAscii()
{
    QFETCH(QByteArray, name);
    const QByteArray file = path(name);
    for (const QByteArray& passed : {file, doubleConverted(file)}) {
        put(file, kOldText);
        KvMvcSettings settings{};
        QCOMPARE(m_library->read(settings, passed), 0);
        QCOMPARE(settings.num_views, 7);
        QCOMPARE(m_library->write(recordOfViews(3), passed), 0);
        QCOMPARE(names(), QStringList(QString::fromUtf8(name)));
        QCOMPARE(m_library->read(settings, passed), 0);
        QCOMPARE(settings.num_views, 3);
        QVERIFY(QFile::remove(QString::fromUtf8(file)));
    }
    // A name that is made by saving is the one that the user typed.
    QCOMPARE(m_library->write(recordOfViews(3), doubleConverted(file)), 0);
    QCOMPARE(names(), QStringList(QString::fromUtf8(name)));
}

void TestSettingsFile::bothReadingsOfAName_data()
{
    QTest::addColumn<bool>("plainExists");
    QTest::addColumn<bool>("undoneExists");
    QTest::addColumn<bool>("undoneIsMeant");
    QTest::newRow("neither") << false << false << true;
    QTest::newRow("plain") << true << false << false;
    QTest::newRow("undone") << false << true << true;
    QTest::newRow("both") << true << true << true;
}

void TestSettingsFile::bothReadingsOfAName()
{
    QFETCH(bool, plainExists);
    QFETCH(bool, undoneExists);
    QFETCH(bool, undoneIsMeant);
    const QByteArray undone = path("\xC3\xA4.ini");
    const QByteArray plain = path("\xC3\x83\xC2\xA4.ini");
    if (plainExists)
        put(plain, kOldText);
    if (undoneExists)
        put(undone, kOldText);
    QCOMPARE(m_library->write(recordOfViews(3), plain), 0);
    const QByteArray written = undoneIsMeant ? undone : plain;
    const QByteArray other = undoneIsMeant ? plain : undone;
    QVERIFY(get(written).contains("num_views = 3"));
    QVERIFY(!get(other).contains("num_views = 3"));
    KvMvcSettings settings{};
    QCOMPARE(m_library->read(settings, plain), 0);
    QCOMPARE(settings.num_views, 3);
}

void TestSettingsFile::aFolderWithTheOneNameDecidesForANewFile()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QString::fromUtf8("\xC3\x83\xC2\xA4")));
    QCOMPARE(m_library->write(recordOfViews(3), path("\xC3\x83\xC2\xA4/new.ini")), 0);
    QVERIFY(QFile::exists(QString::fromUtf8(path("\xC3\x83\xC2\xA4/new.ini"))));
}

void TestSettingsFile::modeIsKept_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0600, 0640, 0644, 0660, 0666, 0755, 02664})
        QTest::addRow("%o", mode) << mode;
}

void TestSettingsFile::modeIsKept()
{
    QFETCH(int, mode);
    put(path("a.ini"), kOldText);
    QCOMPARE(::chmod(path("a.ini").constData(), static_cast<mode_t>(mode)), 0);
    QCOMPARE(m_library->write(recordOfViews(3), path("a.ini")), 0);
    struct stat status = {};
    QCOMPARE(::stat(path("a.ini").constData(), &status), 0);
    QCOMPARE(static_cast<int>(status.st_mode & 07777), mode);
    QVERIFY(get(path("a.ini")).contains("num_views = 3"));
}

void TestSettingsFile::aNewFileGetsTheUmasksMode()
{
    const mode_t former = ::umask(027);
    const int result = m_library->write(recordOfViews(3), path("a.ini"));
    ::umask(former);
    QCOMPARE(result, 0);
    struct stat status = {};
    QCOMPARE(::stat(path("a.ini").constData(), &status), 0);
    QCOMPARE(static_cast<int>(status.st_mode & 07777), 0640);
}

void TestSettingsFile::ownerAndGroupAreKept()
{
    put(path("a.ini"), kOldText);
    if (::chown(path("a.ini").constData(), 65534, 65533) != 0)
        QSKIP("only root may give files away");
    QCOMPARE(m_library->write(recordOfViews(3), path("a.ini")), 0);
    struct stat status = {};
    QCOMPARE(::stat(path("a.ini").constData(), &status), 0);
    QCOMPARE(status.st_uid, uid_t(65534));
    QCOMPARE(status.st_gid, gid_t(65533));
}

void TestSettingsFile::extendedAttributesAreKept()
{
    put(path("a.ini"), kOldText);
    if (::setxattr(path("a.ini").constData(), "user.origin", "studio", 6, 0) != 0)
        QSKIP("this file system has no extended attributes");
    QCOMPARE(m_library->write(recordOfViews(3), path("a.ini")), 0);
    char value[16] = "";
    QCOMPARE(::getxattr(path("a.ini").constData(), "user.origin", value, sizeof value), ssize_t(6));
    QCOMPARE(QByteArray(value), QByteArray("studio"));
}

void TestSettingsFile::symbolicLinksAreKept_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<bool>("targetExists");
    QTest::newRow("beside it") << QByteArray("real.ini") << true;
    QTest::newRow("in another folder") << QByteArray("folder/real.ini") << true;
    QTest::newRow("absolute") << QByteArray("/folder/real.ini") << true;
    QTest::newRow("to a file that is not there yet") << QByteArray("folder/real.ini") << false;
}

void TestSettingsFile::symbolicLinksAreKept()
{
    QFETCH(QByteArray, target);
    QFETCH(bool, targetExists);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
    const QByteArray real = path(target);
    const QByteArray link = target.startsWith('/') ? real : target;
    if (targetExists)
        put(real, kOldText);
    QCOMPARE(::symlink("second.ini", path("first.ini").constData()), 0);
    QCOMPARE(::symlink(link.constData(), path("second.ini").constData()), 0);
    QCOMPARE(m_library->write(recordOfViews(3), path("first.ini")), 0);
    QVERIFY(QFileInfo(QString::fromUtf8(path("first.ini"))).isSymLink());
    QVERIFY(QFileInfo(QString::fromUtf8(path("second.ini"))).isSymLink());
    QVERIFY(!QFileInfo(QString::fromUtf8(real)).isSymLink());
    QVERIFY(get(real).contains("num_views = 3"));
}

void TestSettingsFile::aRingOfLinksIsRefused()
{
    QCOMPARE(::symlink("b.ini", path("a.ini").constData()), 0);
    QCOMPARE(::symlink("a.ini", path("b.ini").constData()), 0);
    QVERIFY(m_library->write(recordOfViews(3), path("a.ini")) != 0);
    QCOMPARE(m_library->messages, path("a.ini") + ": Too many levels of symbolic links\n");
}

void TestSettingsFile::theFileIsReplacedNotRewritten()
{
    put(path("a.ini"), kOldText);
    QFile former(QString::fromUtf8(path("a.ini")));
    QVERIFY(former.open(QIODevice::ReadOnly));
    QCOMPARE(m_library->write(recordOfViews(3), path("a.ini")), 0);
    QCOMPARE(former.readAll(), QByteArray(kOldText)); // whoever reads meanwhile sees one or other
    QVERIFY(get(path("a.ini")).contains("num_views = 3"));
}

void TestSettingsFile::writingLeavesNothingElseBehind()
{
    QCOMPARE(m_library->write(recordOfViews(1), path("a.ini")), 0);
    QCOMPARE(m_library->write(recordOfViews(2), path("a.ini")), 0);
    QCOMPARE(names(), QStringList(QStringLiteral("a.ini")));
}

void TestSettingsFile::aReadOnlyFileIsNotReplaced()
{
    if (::geteuid() == 0) {
        // Root may write to everything but this; needs a file system that knows the flag.
        put(path("a.ini"), kOldText);
        if (QProcess::execute(QStringLiteral("chattr"),
                              {QStringLiteral("+i"), QString::fromUtf8(path("a.ini"))}) != 0)
            QSKIP("neither an ordinary user nor a file system with immutable files");
        const int result = m_library->write(recordOfViews(3), path("a.ini"));
        QProcess::execute(QStringLiteral("chattr"),
                          {QStringLiteral("-i"), QString::fromUtf8(path("a.ini"))});
        QVERIFY(result != 0);
    } else {
        put(path("a.ini"), kOldText);
        QCOMPARE(::chmod(path("a.ini").constData(), 0444), 0);
        QVERIFY(m_library->write(recordOfViews(3), path("a.ini")) != 0);
        QCOMPARE(m_library->messages, path("a.ini") + ": Permission denied\n");
    }
    QCOMPARE(get(path("a.ini")), QByteArray(kOldText));
    QCOMPARE(names(), QStringList(QStringLiteral("a.ini")));
}

void TestSettingsFile::aFullDiskLeavesTheOldFile()
{
    const QByteArray disk = path("disk");
    QVERIFY(QDir().mkdir(QString::fromUtf8(disk)));
    if (::mount("tmpfs", disk.constData(), "tmpfs", 0, "size=64k") != 0)
        QSKIP("no file system can be mounted here; the next test stands for this one");
    const auto unmount = qScopeGuard([&] { ::umount2(disk.constData(), MNT_DETACH); });
    put(disk + "/a.ini", kOldText);
    QFile filler(QString::fromUtf8(disk + "/filler"));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(4096, 'x')) == 4096) {
    }
    QVERIFY(m_library->write(filledRecord(0x5A), disk + "/a.ini") != 0);
    QCOMPARE(m_library->messages, disk + "/a.ini: No space left on device\n");
    QCOMPARE(get(disk + "/a.ini"), QByteArray(kOldText));
    QCOMPARE(QDir(QString::fromUtf8(disk))
                 .entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
             QStringList({QStringLiteral("a.ini"), QStringLiteral("filler")}));
    filler.remove();
    QCOMPARE(m_library->write(recordOfViews(3), disk + "/a.ini"), 0);
    QVERIFY(get(disk + "/a.ini").contains("num_views = 3"));
}

void TestSettingsFile::aFileSizeLimitLeavesTheOldFile()
{
    put(path("a.ini"), kOldText);
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
    QCOMPARE(get(path("a.ini")), QByteArray(kOldText));
    QCOMPARE(names(), QStringList(QStringLiteral("a.ini")));
}

void TestSettingsFile::unwritableTargetsAreRefused_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("folder") << QByteArray("folder") << QByteArray("Is a directory");
    QTest::newRow("no such folder")
        << QByteArray("none/a.ini")
        << QByteArray("no file can be made in its folder: No such file or directory");
    QTest::newRow("media suffix") << QByteArray("film.MP4")
                                  << QByteArray("the name is that of a media file");
    QTest::newRow("name too long")
        << QByteArray(300, 'x') + ".ini" << QByteArray("File name too long");
}

void TestSettingsFile::unwritableTargetsAreRefused()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, reason);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
    QVERIFY(m_library->write(recordOfViews(3), path(name)) != 0);
    QCOMPARE(m_library->messages, path(name) + ": " + reason + "\n");
    QCOMPARE(names(), QStringList(QStringLiteral("folder")));
}

void TestSettingsFile::aPipeWithAReaderIsWrittenTo()
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

} // namespace

QTEST_APPLESS_MAIN(TestSettingsFile)
#include "tst_settings_file.moc"
