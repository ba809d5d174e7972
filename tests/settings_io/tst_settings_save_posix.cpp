// What saves that were killed leave, and links of other users in folders of everybody.
#include "SettingsFolder.h"

#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using kvtest::oldText;
using kvtest::recordOfViews;

namespace
{

class TestSettingsSavePosix : public QObject, protected kvtest::SettingsFolder
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY2(renew(), qPrintable(loadError())); }
    void aKilledSaveLeavesTheOldFile();
    void theNextSaveRemovesWhatAKilledOneLeft();
    void whatIsBeingWrittenStays();
    void whatIsNoTemporaryFileStays();
    void linksOfOthersAreNotFollowed_data();
    void linksOfOthersAreNotFollowed();

private:
    /// Saves in a process of its own, which is killed in the middle of writing.
    void saveAndBeKilled(const char* name);
    /// What the folder holds beside the files of these names.
    QStringList others(const QStringList& names) const;
};

void TestSettingsSavePosix::saveAndBeKilled(const char* name)
{
    const pid_t child = ::fork();
    QVERIFY(child >= 0);
    if (child == 0) {
        const rlimit small = {1000, 1000};
        std::signal(SIGXFSZ, SIG_DFL);
        ::setrlimit(RLIMIT_FSIZE, &small);
        const rlimit none = {0, 0};
        ::setrlimit(RLIMIT_CORE, &none);
        m_library->write(recordOfViews(3), path(name));
        ::_exit(0);
    }
    int status = 0;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QVERIFY(WIFSIGNALED(status));
    QCOMPARE(WTERMSIG(status), SIGXFSZ);
}

QStringList TestSettingsSavePosix::others(const QStringList& known) const
{
    QStringList all = names();
    for (const QString& name : known) {
        all.removeAll(name);
    }
    return all;
}

const QString a = QStringLiteral("a.ini");
const QString b = QStringLiteral("b.ini");

void TestSettingsSavePosix::aKilledSaveLeavesTheOldFile()
{
    put(path("a.ini"), oldText);
    saveAndBeKilled("a.ini");
    QCOMPARE(get(path("a.ini")), QByteArray(oldText));
    const QStringList left = others({a});
    QCOMPARE(left.size(), 1);
    QVERIFY2(left.first().startsWith(QLatin1String(".settings-65abe8b5491700c0-")) &&
                 left.first().endsWith(QLatin1String(".tmp")),
             qPrintable(left.first()));
}

void TestSettingsSavePosix::theNextSaveRemovesWhatAKilledOneLeft()
{
    put(path("a.ini"), oldText);
    saveAndBeKilled("a.ini");
    saveAndBeKilled("a.ini");
    saveAndBeKilled("b.ini");
    QCOMPARE(others({a}).size(), 3);
    QCOMPARE(m_library->write(recordOfViews(2), path("a.ini")), 0);
    QCOMPARE(others({a}).size(), 1); // that of the other file
    QCOMPARE(m_library->write(recordOfViews(2), path("b.ini")), 0);
    QCOMPARE(names(), QStringList({a, b}));
    QVERIFY(get(path("a.ini")).contains("num_views = 2"));
}

void TestSettingsSavePosix::whatIsBeingWrittenStays()
{
    saveAndBeKilled("a.ini");
    const QString name = names().first();
    const int writer = ::open(path(qPrintable(name)).constData(), O_WRONLY);
    QVERIFY(writer >= 0);
    QCOMPARE(::flock(writer, LOCK_EX | LOCK_NB), 0);
    QCOMPARE(m_library->write(recordOfViews(2), path("a.ini")), 0);
    QCOMPARE(names(), QStringList({name, a}));
    ::close(writer);
    QCOMPARE(m_library->write(recordOfViews(2), path("a.ini")), 0);
    QCOMPARE(names(), QStringList(a));
}

void TestSettingsSavePosix::whatIsNoTemporaryFileStays()
{
    const QStringList kept = {QStringLiteral(".settings-65abe8b5491700c0-1"),
                              QStringLiteral(".settings-65abe8b5491700c0-2.tmp"),
                              QStringLiteral(".settings-65abe8b5491700c0-3.tmp"),
                              QStringLiteral("target")};
    put(path("target"), "of a link");
    put(path(qPrintable(kept[0])), "without the end of a name");
    makeFolder(qPrintable(kept[1]));
    QCOMPARE(::symlink("target", path(qPrintable(kept[2])).constData()), 0);
    QCOMPARE(m_library->write(recordOfViews(2), path("a.ini")), 0);
    QCOMPARE(others({a}), kept);
    QCOMPARE(get(path("target")), QByteArray("of a link"));
}

void TestSettingsSavePosix::linksOfOthersAreNotFollowed_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("owner");
    QTest::addColumn<bool>("followed");
    QTest::newRow("another user's, in a folder of everybody") << 01777 << 65534 << false;
    QTest::newRow("one's own, in a folder of everybody") << 01777 << 0 << true;
    QTest::newRow("another user's, in a folder of a group") << 01770 << 65534 << true;
    QTest::newRow("another user's, where anybody may remove it") << 0777 << 65534 << true;
}

void TestSettingsSavePosix::linksOfOthersAreNotFollowed()
{
    QFETCH(int, mode);
    QFETCH(int, owner);
    QFETCH(bool, followed);
    if (::geteuid() != 0) {
        QSKIP("only root may give links away");
    }
    makeFolder("folder");
    put(path("target.ini"), oldText);
    const QByteArray link = path("folder/a.ini");
    QCOMPARE(::symlink("../target.ini", link.constData()), 0);
    QCOMPARE(::lchown(link.constData(), static_cast<uid_t>(owner), 0), 0);
    QCOMPARE(::chmod(path("folder").constData(), static_cast<mode_t>(mode)), 0);
    const QByteArray reason =
        followed ? QByteArray() : link + ": the link belongs to another user\n";
    KvMvcSettings settings{};
    QCOMPARE(m_library->read(settings, link) == 0, followed);
    QCOMPARE(m_library->messages, reason);
    QCOMPARE(m_library->write(recordOfViews(2), link) == 0, followed);
    QCOMPARE(m_library->messages, reason);
    QCOMPARE(get(path("target.ini")).contains("num_views = 2"), followed);
    QCOMPARE(get(path("target.ini")) == oldText, !followed);
}

} // namespace

QTEST_GUILESS_MAIN(TestSettingsSavePosix)
#include "tst_settings_save_posix.moc"
