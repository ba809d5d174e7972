// Settings files on disk, through the library as callers have it: names, replacement, refusals.
#include "SettingsFolder.h"
#include "SystemWords.h"

#include <QTest>

#include <filesystem>

using kvtest::doubleConverted;
using kvtest::filledRecord;
using kvtest::oldText;
using kvtest::recordOfViews;
using kvtest::same;
using kvtest::systemWords;

namespace
{

class TestSettingsFile : public QObject, protected kvtest::SettingsFolder
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY2(renew(), qPrintable(loadError())); }
    void onlyTheTwoCodesAreKnown();
    void nullArgumentsAreRefused();
    void aRecordComesBackFromAFile();
    void nothingStaysLoaded();
    void errorsGoToStandardErrorWithFileAndLine();
    void filesThatCannotBeReadAreRefused_data();
    void filesThatCannotBeReadAreRefused();
    void unknownSuffixesAreJudgedByContent();
    void namesBeyondAscii_data();
    void namesBeyondAscii();
    void bothReadingsOfAName_data();
    void bothReadingsOfAName();
    void aFolderWithTheOneNameDecidesForANewFile();
    void theFileIsReplacedNotRewritten();
    void writingLeavesNothingElseBehind();
    void unwritableTargetsAreRefused_data();
    void unwritableTargetsAreRefused();
    void namesThatAreTooLongAreRefused();
};

void TestSettingsFile::onlyTheTwoCodesAreKnown()
{
    const KvMvcSettingsIoGetApi getApi = m_library->getApi();
    for (const int code : {0, 1, 8192, 8195, -1}) {
        QVERIFY(!getApi(code));
    }
    QVERIFY(getApi(8193));
    QVERIFY(getApi(8194));
    QVERIFY(getApi(8193) != getApi(8194));
}

void TestSettingsFile::nullArgumentsAreRefused()
{
    KvMvcSettings settings{};
    for (const int code : {8193, 8194}) {
        const auto call = reinterpret_cast<KvMvcReadSettings>(m_library->getApi()(code));
        QVERIFY(call(nullptr, path("a.ini").constData()) != 0);
        QVERIFY(call(&settings, nullptr) != 0);
    }
    QCOMPARE(names(), QStringList());
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
    put(path("a.ini"), oldText);
    QCOMPARE(m_library->read(settings, path("a.ini")), 0);
    QVERIFY(kvtest::isInProcess("kv_mvc_settings_io"));
    m_library.reset();
    QVERIFY(!kvtest::isInProcess("kv_mvc_settings_io"));
}

void TestSettingsFile::errorsGoToStandardErrorWithFileAndLine()
{
    put(path("a.ini"), "[record]\nviews = 2\n[view 0]\nwidth = x\n");
    KvMvcSettings settings = filledRecord(0x5A);
    QVERIFY(m_library->read(settings, path("a.ini")) != 0);
    QCOMPARE(
        m_library->messages,
        path("a.ini") + ":2: unknown key 'views' in section 'record'; did you mean 'num_views'?\n" +
            path("a.ini") + ":4: bad value 'x' for 'width': expected a whole number of 32 bits\n");
    QVERIFY(same(settings, filledRecord(0x5A)));
}

void TestSettingsFile::filesThatCannotBeReadAreRefused_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("reason");
    const QByteArray noFile = systemWords().noFile;
    const QByteArray noRegularFile("not a regular file");
    QTest::newRow("absent") << QByteArray("absent.ini") << noFile;
    QTest::newRow("absent, any suffix") << QByteArray("absent") << noFile;
    QTest::newRow("no such folder") << QByteArray("none/a.ini") << systemWords().noFolder;
    QTest::newRow("under a file") << QByteArray("file/a.ini") << systemWords().underAFile;
    QTest::newRow("folder") << QByteArray("folder.ini") << noRegularFile;
    QTest::newRow("folder, any suffix") << QByteArray("folder") << noRegularFile;
    QTest::newRow("too large") << QByteArray("large.ini") << QByteArray("too large");
}

void TestSettingsFile::filesThatCannotBeReadAreRefused()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, reason);
    makeFolder("folder.ini");
    makeFolder("folder");
    put(path("large.ini"), QByteArray(1024 * 1024 + 1, ' '));
    put(path("file"), "");
    KvMvcSettings settings = filledRecord(0x5A);
    QVERIFY(m_library->read(settings, path(name)) != 0);
    QCOMPARE(m_library->messages, path(name) + ": " + reason + "\n");
    QVERIFY(same(settings, filledRecord(0x5A)));
}

void TestSettingsFile::unknownSuffixesAreJudgedByContent()
{
    for (const char* name : {"settings", "settings.txt", "settings.ini.bak", "mp4", ".cfg"}) {
        put(path(name), oldText);
        KvMvcSettings settings{};
        QCOMPARE(m_library->read(settings, path(name)), 0);
        QCOMPARE(settings.num_views, 7);
    }
    // Neither is any media; there is no such library on some systems.
    for (const char* text : {"Dear reader,\nthis is no recording.\n", "%PDF-1.4\n%\x01",
                             "\x1A\x45\xDF\xA3", "YUV4MPEG2 W0 H0\n"}) {
        put(path("none"), text);
        KvMvcSettings settings = filledRecord(0x5A);
        QVERIFY(m_library->read(settings, path("none")) != 0);
        QCOMPARE(m_library->messages.count('\n'), 1);
        QVERIFY2(m_library->messages.contains("media"), m_library->messages.constData());
        QVERIFY(same(settings, filledRecord(0x5A)));
    }
    put(path("none"), "x = 1\ny = 2\nz = 3\n");
    KvMvcSettings none{};
    QVERIFY(m_library->read(none, path("none")) != 0);
    QCOMPARE(m_library->messages,
             path("none") + ":1: key 'x' before the first section, which is [record]\n");
    put(path("text.mp4"), oldText); // the suffix says media, whatever is in it
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
        put(file, oldText);
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
    if (plainExists) {
        put(plain, oldText);
    }
    if (undoneExists) {
        put(undone, oldText);
    }
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
    makeFolder("\xC3\x83\xC2\xA4");
    QCOMPARE(m_library->write(recordOfViews(3), path("\xC3\x83\xC2\xA4/new.ini")), 0);
    QVERIFY(QFile::exists(QString::fromUtf8(path("\xC3\x83\xC2\xA4/new.ini"))));
}

void TestSettingsFile::theFileIsReplacedNotRewritten()
{
    put(path("a.ini"), oldText);
    std::error_code error;
    std::filesystem::create_hard_link(QString::fromUtf8(path("a.ini")).toStdU16String(),
                                      QString::fromUtf8(path("b.ini")).toStdU16String(), error);
    if (error) {
        QSKIP("this file system has no hard links");
    }
    QCOMPARE(m_library->write(recordOfViews(3), path("a.ini")), 0);
    QVERIFY(get(path("a.ini")).contains("num_views = 3"));
    QCOMPARE(get(path("b.ini")), QByteArray(oldText)); // the former file, whole
}

void TestSettingsFile::writingLeavesNothingElseBehind()
{
    QCOMPARE(m_library->write(recordOfViews(1), path("a.ini")), 0);
    QCOMPARE(m_library->write(recordOfViews(2), path("a.ini")), 0);
    QCOMPARE(names(), QStringList(QStringLiteral("a.ini")));
}

void TestSettingsFile::unwritableTargetsAreRefused_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("folder") << QByteArray("folder") << systemWords().isFolder;
    QTest::newRow("no such folder")
        << QByteArray("none/a.ini")
        << "no file can be made in its folder: " + systemWords().noFolder;
    QTest::newRow("media suffix") << QByteArray("film.MP4")
                                  << QByteArray("the name is that of a media file");
}

void TestSettingsFile::unwritableTargetsAreRefused()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, reason);
    makeFolder("folder");
    QVERIFY(m_library->write(recordOfViews(3), path(name)) != 0);
    QCOMPARE(m_library->messages, path(name) + ": " + reason + "\n");
    QCOMPARE(names(), QStringList(QStringLiteral("folder")));
}

void TestSettingsFile::namesThatAreTooLongAreRefused()
{
    const QByteArray file = path(QByteArray(300, 'x') + ".ini");
    QVERIFY(m_library->write(recordOfViews(3), file) != 0);
    QVERIFY(m_library->messages.startsWith(file + ": ")); // each system has its own reason
    QCOMPARE(names(), QStringList());
}

} // namespace

QTEST_APPLESS_MAIN(TestSettingsFile)
#include "tst_settings_file.moc"
