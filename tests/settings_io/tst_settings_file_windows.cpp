// Settings files and what Windows has of its own: attributes, files that are in use, names of
// devices, long names and names in all their forms.
#include "SettingsFolder.h"
#include "SystemWords.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QScopeGuard>
#include <QTest>

#include <string>
#include <thread>

#include <windows.h>

using kvtest::filledRecord;
using kvtest::oldText;
using kvtest::recordOfViews;
using kvtest::same;
using kvtest::wordsOf;

namespace
{

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::wstring wide(const QByteArray& path)
{
    return QDir::toNativeSeparators(QString::fromUtf8(path)).toStdWString();
}

HANDLE openShared(const QByteArray& file, DWORD share)
{
    return CreateFileW(wide(file).c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

class TestSettingsFileWindows : public QObject, protected kvtest::SettingsFolder
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY2(renew(), qPrintable(loadError())); }
    void attributesAreKept_data();
    void attributesAreKept();
    void aReadOnlyFileIsNotReplaced();
    void aFileThatIsInUseIsRefused();
    void aFileThatIsFreeAMomentLaterIsReplaced();
    void whoReadsMeanwhileSeesTheOldText();
    void aFileThatIsBeingWrittenCanBeRead();
    void symbolicLinksAreKept_data();
    void symbolicLinksAreKept();
    void aLinkToNothingIsRefused();
    void devicesAreRefused_data();
    void devicesAreRefused();
    void deviceNamesWithASuffixAreNoBlackHole_data();
    void deviceNamesWithASuffixAreNoBlackHole();
    void aPipeIsRefusedWithoutWaiting();
    void whatAKilledSaveLeftIsRemoved();
    void longNames();
    void formsOfNames_data();
    void formsOfNames();
    void namesOfServers();
    void namesThatNoFileCanHave_data();
    void namesThatNoFileCanHave();
    void namesThatAreNoTextAreRefused();

private:
    /// Makes a symbolic link, where that is possible; relative to the link.
    bool makeLink(const char* link, const char* target) const;
};

void TestSettingsFileWindows::attributesAreKept_data()
{
    QTest::addColumn<int>("attributes");
    QTest::newRow("hidden") << FILE_ATTRIBUTE_HIDDEN;
    QTest::newRow("system") << FILE_ATTRIBUTE_SYSTEM;
    QTest::newRow("hidden and system") << (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    QTest::newRow("none") << 0;
}

void TestSettingsFileWindows::attributesAreKept()
{
    QFETCH(int, attributes);
    constexpr DWORD lookedAt =
        FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY;
    const std::wstring file = wide(path("a.ini"));
    put(path("a.ini"), oldText);
    QVERIFY(SetFileAttributesW(file.c_str(), attributes != 0 ? static_cast<DWORD>(attributes)
                                                             : FILE_ATTRIBUTE_NORMAL));
    QCOMPARE(m_library->write(recordOfViews(3), path("a.ini")), 0);
    QCOMPARE(static_cast<int>(GetFileAttributesW(file.c_str()) & lookedAt), attributes);
    QVERIFY(get(path("a.ini")).contains("num_views = 3"));
}

void TestSettingsFileWindows::aReadOnlyFileIsNotReplaced()
{
    const std::wstring file = wide(path("a.ini"));
    put(path("a.ini"), oldText);
    QVERIFY(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
    const auto release =
        qScopeGuard([&] { SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL); });
    QVERIFY(m_library->write(recordOfViews(3), path("a.ini")) != 0);
    QCOMPARE(m_library->messages, path("a.ini") + ": " + wordsOf(ERROR_ACCESS_DENIED) + "\n");
    QCOMPARE(get(path("a.ini")), QByteArray(oldText));
    QCOMPARE(names(), QStringList(QStringLiteral("a.ini")));
}

void TestSettingsFileWindows::aFileThatIsInUseIsRefused()
{
    put(path("a.ini"), oldText);
    const HANDLE user = openShared(path("a.ini"), 0);
    QVERIFY(user != INVALID_HANDLE_VALUE);
    KvMvcSettings settings = filledRecord(0x5A);
    const QByteArray message = path("a.ini") + ": " + wordsOf(ERROR_SHARING_VIOLATION) + "\n";
    const int readResult = m_library->read(settings, path("a.ini"));
    const QByteArray readMessage = m_library->messages;
    const int writeResult = m_library->write(recordOfViews(3), path("a.ini"));
    CloseHandle(user);
    QVERIFY(readResult != 0);
    QCOMPARE(readMessage, message);
    QVERIFY(same(settings, filledRecord(0x5A)));
    QVERIFY(writeResult != 0);
    QCOMPARE(m_library->messages, message);
    QCOMPARE(get(path("a.ini")), QByteArray(oldText));
    QCOMPARE(names(), QStringList(QStringLiteral("a.ini")));
}

void TestSettingsFileWindows::aFileThatIsFreeAMomentLaterIsReplaced()
{
    put(path("a.ini"), oldText);
    const HANDLE scanner = openShared(path("a.ini"), FILE_SHARE_READ);
    QVERIFY(scanner != INVALID_HANDLE_VALUE);
    std::thread closing([=] {
        Sleep(120);
        CloseHandle(scanner);
    });
    const int result = m_library->write(recordOfViews(3), path("a.ini"));
    closing.join();
    QVERIFY2(result == 0, m_library->messages.constData());
    QVERIFY(get(path("a.ini")).contains("num_views = 3"));
    QCOMPARE(names(), QStringList(QStringLiteral("a.ini")));
}

void TestSettingsFileWindows::whoReadsMeanwhileSeesTheOldText()
{
    put(path("a.ini"), oldText);
    const HANDLE reader = openShared(path("a.ini"), shareAll);
    QVERIFY(reader != INVALID_HANDLE_VALUE);
    const int result = m_library->write(recordOfViews(3), path("a.ini"));
    char text[100] = "";
    DWORD count = 0;
    const bool isRead = ReadFile(reader, text, sizeof text - 1, &count, nullptr);
    CloseHandle(reader);
    QVERIFY2(result == 0, m_library->messages.constData());
    QVERIFY(isRead);
    QCOMPARE(QByteArray(text), QByteArray(oldText));
    QVERIFY(get(path("a.ini")).contains("num_views = 3"));
}

void TestSettingsFileWindows::aFileThatIsBeingWrittenCanBeRead()
{
    put(path("a.ini"), oldText);
    const HANDLE writer = CreateFileW(wide(path("a.ini")).c_str(), GENERIC_WRITE | DELETE, shareAll,
                                      nullptr, OPEN_EXISTING, 0, nullptr);
    QVERIFY(writer != INVALID_HANDLE_VALUE);
    KvMvcSettings settings{};
    const int result = m_library->read(settings, path("a.ini"));
    CloseHandle(writer);
    QVERIFY2(result == 0, m_library->messages.constData());
    QCOMPARE(settings.num_views, 7);
}

bool TestSettingsFileWindows::makeLink(const char* link, const char* target) const
{
    constexpr DWORD unprivileged = 0x2; // for those who have developer mode switched on
    const std::wstring name = wide(path(link));
    CreateSymbolicLinkW(name.c_str(), wide(target).c_str(), unprivileged);
    const DWORD attributes = GetFileAttributesW(name.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT);
}

void TestSettingsFileWindows::symbolicLinksAreKept_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::newRow("beside it") << QByteArray("real.ini");
    QTest::newRow("in another folder") << QByteArray("folder/real.ini");
}

void TestSettingsFileWindows::symbolicLinksAreKept()
{
    QFETCH(QByteArray, target);
    makeFolder("folder");
    put(path(target), oldText);
    if (!makeLink("second.ini", target.constData()) || !makeLink("first.ini", "second.ini")) {
        QSKIP("no symbolic links can be made here");
    }
    QCOMPARE(m_library->write(recordOfViews(3), path("first.ini")), 0);
    QVERIFY(QFileInfo(QString::fromUtf8(path("first.ini"))).isSymLink());
    QVERIFY(QFileInfo(QString::fromUtf8(path("second.ini"))).isSymLink());
    QVERIFY(!QFileInfo(QString::fromUtf8(path(target))).isSymLink());
    QVERIFY(get(path(target)).contains("num_views = 3"));
}

void TestSettingsFileWindows::aLinkToNothingIsRefused()
{
    if (!makeLink("link.ini", "none.ini")) {
        QSKIP("no symbolic links can be made here");
    }
    QVERIFY(m_library->write(recordOfViews(3), path("link.ini")) != 0);
    QCOMPARE(m_library->messages, path("link.ini") + ": the link leads to no file: " +
                                      wordsOf(ERROR_FILE_NOT_FOUND) + "\n");
    QCOMPARE(names(), QStringList(QStringLiteral("link.ini")));
}

void TestSettingsFileWindows::devicesAreRefused_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char* name : {"NUL", "nul", "CON", "AUX", "PRN", "COM1", "LPT9", R"(\\.\NUL)",
                             R"(\\.\C:)", "//./CON", R"(\\.\pipe\kv-settings-test)"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void TestSettingsFileWindows::devicesAreRefused()
{
    QFETCH(QByteArray, name);
    KvMvcSettings settings = filledRecord(0x5A);
    QVERIFY(m_library->read(settings, name) != 0);
    QCOMPARE(m_library->messages, name + ": not a regular file\n");
    QVERIFY(same(settings, filledRecord(0x5A)));
    QVERIFY(m_library->write(settings, name) != 0);
    QCOMPARE(m_library->messages, name + ": the name is that of a device\n");
}

void TestSettingsFileWindows::deviceNamesWithASuffixAreNoBlackHole_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char* name : {"CON.cfg", "nul.ini", "Aux.cfg", "nul"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

/// Older versions take these for devices in every folder, newer ones for files.
void TestSettingsFileWindows::deviceNamesWithASuffixAreNoBlackHole()
{
    QFETCH(QByteArray, name);
    if (m_library->write(recordOfViews(3), path(name)) == 0) {
        QCOMPARE(names(), QStringList(QString::fromUtf8(name)));
        KvMvcSettings settings{};
        QCOMPARE(m_library->read(settings, path(name)), 0);
        QCOMPARE(settings.num_views, 3);
    } else {
        QCOMPARE(m_library->messages, path(name) + ": the name is that of a device\n");
        QCOMPARE(names(), QStringList());
    }
}

void TestSettingsFileWindows::aPipeIsRefusedWithoutWaiting()
{
    const QByteArray name = R"(\\?\pipe\kv-settings-)" + QByteArray::number(GetCurrentProcessId());
    const HANDLE pipe = CreateNamedPipeW((L"\\\\.\\" + wide(name).substr(4)).c_str(),
                                         PIPE_ACCESS_DUPLEX, 0, 1, 4096, 4096, 0, nullptr);
    QVERIFY(pipe != INVALID_HANDLE_VALUE);
    QElapsedTimer timer;
    timer.start();
    KvMvcSettings settings = filledRecord(0x5A);
    const int result = m_library->read(settings, name);
    CloseHandle(pipe);
    QVERIFY(result != 0);
    QCOMPARE(m_library->messages, name + ": not a regular file\n");
    QVERIFY(same(settings, filledRecord(0x5A)));
    QVERIFY(timer.elapsed() < 1000);
}

void TestSettingsFileWindows::longNames()
{
    const QByteArray folder =
        QByteArray(100, 'a') + '/' + QByteArray(100, 'b') + '/' + QByteArray(100, 'c');
    makeFolder(folder);
    for (const QByteArray& name : {QByteArray("x.ini"), QByteArray(200, 'x') + ".ini"}) {
        const QByteArray file = path(folder + '/' + name);
        QVERIFY(file.size() > 300);
        for (int views : {1, 2}) { // a new file, then its replacement
            QCOMPARE(m_library->write(recordOfViews(views), file), 0);
            KvMvcSettings settings{};
            QCOMPARE(m_library->read(settings, file), 0);
            QCOMPARE(settings.num_views, views);
        }
        QCOMPARE(QDir(QString::fromUtf8(path(folder))).entryList(QDir::Files | QDir::Hidden),
                 QStringList(QString::fromUtf8(name)));
        QVERIFY(QFile::remove(QString::fromUtf8(file)));
    }
}

void TestSettingsFileWindows::formsOfNames_data()
{
    QTest::addColumn<QByteArray>("form"); // DRIVE: "C:"; ROOTED: the rest of the folder's name
    QTest::newRow("slashes") << QByteArray("DRIVE/ROOTED/sub/a.ini");
    QTest::newRow("backslashes") << QByteArray("DRIVE\\ROOTED\\sub\\a.ini");
    QTest::newRow("both") << QByteArray("DRIVE\\ROOTED\\sub/a.ini");
    QTest::newRow("doubled") << QByteArray("DRIVE\\ROOTED\\\\sub//a.ini");
    QTest::newRow("there and back") << QByteArray("DRIVE/ROOTED/none/../sub/./a.ini");
    QTest::newRow("without its length limit") << QByteArray("\\\\?\\DRIVE\\ROOTED\\sub\\a.ini");
    QTest::newRow("the same in slashes") << QByteArray("//?/DRIVE/ROOTED/sub/a.ini");
    QTest::newRow("of the current drive") << QByteArray("\\ROOTED\\sub\\a.ini");
    QTest::newRow("of the current folder") << QByteArray("sub\\a.ini");
    QTest::newRow("of the drive's current folder") << QByteArray("DRIVEsub\\a.ini");
    QTest::newRow("with blanks at its end") << QByteArray("sub\\a.ini  ");
}

void TestSettingsFileWindows::formsOfNames()
{
    QFETCH(QByteArray, form);
    makeFolder("sub");
    const QByteArray folder = path("").chopped(1);
    QCOMPARE(folder.at(1), ':');
    QByteArray name = form;
    name.replace("DRIVE", folder.left(2)).replace("/ROOTED", folder.mid(2));
    name.replace("\\ROOTED", folder.mid(2).replace('/', '\\'));
    const QString former = QDir::currentPath();
    QVERIFY(QDir::setCurrent(QString::fromUtf8(folder)));
    const auto back = qScopeGuard([&] { QDir::setCurrent(former); });
    for (int views : {1, 2}) {
        const int result = m_library->write(recordOfViews(views), name);
        QVERIFY2(result == 0, m_library->messages.constData());
        KvMvcSettings settings{};
        QCOMPARE(m_library->read(settings, name), 0);
        QCOMPARE(settings.num_views, views);
        QCOMPARE(m_library->read(settings, path("sub/a.ini")), 0);
        QCOMPARE(settings.num_views, views);
    }
    QCOMPARE(QDir(QString::fromUtf8(path("sub"))).entryList(QDir::Files | QDir::Hidden),
             QStringList(QStringLiteral("a.ini")));
}

void TestSettingsFileWindows::namesOfServers()
{
    const QByteArray folder = path("");
    QByteArray share = "//localhost/" + folder.left(1) + '$' + folder.mid(2);
    if (!QFileInfo::exists(QString::fromUtf8(share))) {
        QSKIP("this computer does not share its drives with itself");
    }
    for (const QByteArray& name :
         {share + "a.ini", QByteArray(share + "b.ini").replace('/', '\\')}) {
        QCOMPARE(m_library->write(recordOfViews(3), name), 0);
        KvMvcSettings settings{};
        QCOMPARE(m_library->read(settings, name), 0);
        QCOMPARE(settings.num_views, 3);
    }
    QCOMPARE(names(), QStringList({QStringLiteral("a.ini"), QStringLiteral("b.ini")}));
}

void TestSettingsFileWindows::namesThatNoFileCanHave_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char* name : {"a?.ini", "a*.ini", "a<b.ini", "a|b.ini", "a\"b.ini", "a\tb.ini"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void TestSettingsFileWindows::namesThatNoFileCanHave()
{
    QFETCH(QByteArray, name);
    // A sign that a terminal would follow is told, not printed.
    const QByteArray told = QByteArray(path(name)).replace("\t", "\\u0009");
    const QByteArray message = told + ": " + wordsOf(ERROR_INVALID_NAME) + "\n";
    KvMvcSettings settings{};
    QVERIFY(m_library->read(settings, path(name)) != 0);
    QCOMPARE(m_library->messages, message);
    QVERIFY(m_library->write(settings, path(name)) != 0);
    QCOMPARE(m_library->messages, message);
    QCOMPARE(names(), QStringList());
}

void TestSettingsFileWindows::whatAKilledSaveLeftIsRemoved()
{
    const QByteArray left = path(".settings-65abe8b5491700c0-17.tmp"); // of a.ini
    const QByteArray written = path(".settings-65abe8b5491700c0-18.tmp");
    const QByteArray others = path(".settings-0123456789abcdef-17.tmp");
    for (const QByteArray& name : {left, written, others}) {
        put(name, "half of it");
    }
    const QString inUse = QString::fromUtf8(written);
    const HANDLE writer =
        CreateFileW(QDir::toNativeSeparators(inUse).toStdWString().c_str(), GENERIC_WRITE, 0,
                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    QVERIFY(writer != INVALID_HANDLE_VALUE);
    QCOMPARE(m_library->write(recordOfViews(2), path("a.ini")), 0);
    CloseHandle(writer);
    QCOMPARE(names(), QStringList({QStringLiteral(".settings-0123456789abcdef-17.tmp"),
                                   QStringLiteral(".settings-65abe8b5491700c0-18.tmp"),
                                   QStringLiteral("a.ini")}));
    QCOMPARE(m_library->write(recordOfViews(2), path("a.ini")), 0);
    QCOMPARE(names(), QStringList({QStringLiteral(".settings-0123456789abcdef-17.tmp"),
                                   QStringLiteral("a.ini")}));
}

void TestSettingsFileWindows::namesThatAreNoTextAreRefused()
{
    const QByteArray name = path("") + "\xE4.ini";
    KvMvcSettings settings{};
    QVERIFY(m_library->read(settings, name) != 0);
    QCOMPARE(m_library->messages, path("") + "\\xe4.ini: the name is not valid UTF-8\n");
    QVERIFY(m_library->write(settings, name) != 0);
    QCOMPARE(m_library->messages, path("") + "\\xe4.ini: the name is not valid UTF-8\n");
    QCOMPARE(names(), QStringList());
}

} // namespace

QTEST_APPLESS_MAIN(TestSettingsFileWindows)
#include "tst_settings_file_windows.moc"
