// Which companion libraries a call loads, in which order, from where, and when it gives up.

#include "Sandbox.h"

#include <QDir>
#include <QFile>
#include <QTest>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

namespace
{

const QStringList ownCall = {QStringLiteral("flags=0"), QStringLiteral("call")};

struct Stub {
    const char* stub;
    const char* name;
};

} // namespace

Q_DECLARE_METATYPE(QVector<Stub>)

class TestEntryCompanions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loaded_data();
    void loaded();
    void nullSettingsTouchNoLibrary();
    void companionBesideTheHostWins();
    void companionBesideTheModuleIsFound();
    void oneOfEachPlace();
    void currentFolderIsNotSearched();
    void searchOfTheHostStays_data();
    void searchOfTheHostStays();
    void brokenFileCountsAsMissing();
    void brokenFileBesideTheHostHidesOneBesideTheModule();
    void whatTheLoaderWouldHangOrDieOfIsRefused_data();
    void whatTheLoaderWouldHangOrDieOfIsRefused();
    void whatTheLoaderFindsFirstIsNotRefusedForALaterOne();
    void failedCallsLibrariesAreReleasedByTheNextCall();
    void probeOfAFailedCallIsReleasedByTheNextCall();
    void missingFunctionIsNotFoundInAnEarlierCallsLibrary();
    void missingLibraryIsNotFoundInAnEarlierCall_data();
    void missingLibraryIsNotFoundInAnEarlierCall();
};

void TestEntryCompanions::loaded_data()
{
    QTest::addColumn<QVector<Stub>>("stubs");
    QTest::addColumn<int>("result");
    QTest::addColumn<QStringList>("log");

    const auto row = [](const char* name, const QVector<Stub>& stubs, int result,
                        std::initializer_list<const char*> log) {
        QStringList lines;
        for (const char* line : log) {
            lines += QString::fromLatin1(line);
        }
        QTest::newRow(name) << stubs << result << lines;
    };
    const Stub settingsIo = {"stub_entry_settings_io", "kv_mvc_settings_io"};
    const Stub encoder = {"stub_entry_encoder", "kv_mvcenc"};
    const Stub encoderB = {"stub_entry_encoder", "kv_mvcenc_b"};

    // What a failed call loaded is unloaded when the process ends, in no order of ours.
    row("none", {}, 1, {});
    row("no encoder", {settingsIo}, 1,
        {"load host/kv_mvc_settings_io", "unload host/kv_mvc_settings_io"});
    row("no settings file library", {encoder}, 1, {});
    row("settings file library without its function",
        {{"stub_entry_empty", "kv_mvc_settings_io"}, encoder}, 1,
        {"load host/kv_mvc_settings_io", "unload host/kv_mvc_settings_io"});
    row("the required ones", {settingsIo, encoder}, 1001,
        {"load host/kv_mvc_settings_io", "load host/kv_mvcenc", "unload host/kv_mvcenc",
         "unload host/kv_mvc_settings_io"});
    row("the first encoder name", {settingsIo, encoderB}, 1001,
        {"load host/kv_mvc_settings_io", "load host/kv_mvcenc_b", "unload host/kv_mvcenc_b",
         "unload host/kv_mvc_settings_io"});
    row("both encoder names", {settingsIo, encoder, encoderB}, 1001,
        {"load host/kv_mvc_settings_io", "load host/kv_mvcenc_b", "unload host/kv_mvcenc_b",
         "unload host/kv_mvc_settings_io"});
    row("all", {settingsIo, encoder, {"stub_entry_probe", "kv_media_probe"}}, 1001,
        {"load host/kv_mvc_settings_io", "load host/kv_mvcenc", "load host/kv_media_probe",
         "unload host/kv_mvcenc", "unload host/kv_media_probe", "unload host/kv_mvc_settings_io"});
    row("both probe names",
        {settingsIo,
         encoder,
         {"stub_entry_probe", "kv_media_probe"},
         {"stub_entry_probe", "kv_media_probe_x"}},
        1001,
        {"load host/kv_mvc_settings_io", "load host/kv_mvcenc", "load host/kv_media_probe_x",
         "unload host/kv_mvcenc", "unload host/kv_media_probe_x",
         "unload host/kv_mvc_settings_io"});
    row("probe without functions",
        {settingsIo,
         encoder,
         {"stub_entry_empty", "kv_media_probe_x"},
         {"stub_entry_probe", "kv_media_probe"}},
        1001,
        {"load host/kv_mvc_settings_io", "load host/kv_mvcenc", "load host/kv_media_probe_x",
         "unload host/kv_mvcenc", "unload host/kv_media_probe_x",
         "unload host/kv_mvc_settings_io"});
}

void TestEntryCompanions::loaded()
{
    QFETCH(QVector<Stub>, stubs);
    QFETCH(int, result);
    QFETCH(QStringList, log);
    const Sandbox sandbox;
    for (const Stub& stub : stubs) {
        sandbox.add(stub.stub, stub.name);
    }
    const auto run = sandbox.run(ownCall);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.value("result"), QString::number(result));
    QCOMPARE(run.log, log);
    QCOMPARE(run.errors, QString());
}

void TestEntryCompanions::nullSettingsTouchNoLibrary()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run = sandbox.run(
        {QStringLiteral("flags=0x13"), QStringLiteral("call-null"), QStringLiteral("instance")});
    QCOMPARE(run.value("result"), QStringLiteral("1"));
    QCOMPARE(run.value("instance"), QStringLiteral("no"));
    QCOMPARE(run.log, QStringList());
}

void TestEntryCompanions::companionBesideTheHostWins()
{
    const Sandbox sandbox(Sandbox::Module::Apart);
    for (const char* folder : {"host", "module"}) {
        sandbox.add("stub_entry_settings_io", "kv_mvc_settings_io", folder);
        sandbox.add("stub_entry_encoder", "kv_mvcenc", folder);
    }
    const auto run = sandbox.run(ownCall, sandbox.findingBesideTheModule());
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    QCOMPARE(run.log.mid(0, 2), QStringList({QStringLiteral("load host/kv_mvc_settings_io"),
                                             QStringLiteral("load host/kv_mvcenc")}));
    QCOMPARE(run.log.size(), 4);
}

void TestEntryCompanions::companionBesideTheModuleIsFound()
{
    const Sandbox sandbox(Sandbox::Module::Apart);
    sandbox.add("stub_entry_settings_io", "kv_mvc_settings_io", "module");
    sandbox.add("stub_entry_encoder", "kv_mvcenc", "module");
    const auto run = sandbox.run(ownCall, sandbox.findingBesideTheModule());
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    QCOMPARE(run.log.mid(0, 2), QStringList({QStringLiteral("load module/kv_mvc_settings_io"),
                                             QStringLiteral("load module/kv_mvcenc")}));
}

void TestEntryCompanions::oneOfEachPlace()
{
    // The order of names comes before the order of places.
    const Sandbox sandbox(Sandbox::Module::Apart);
    sandbox.addRequired();
    sandbox.add("stub_entry_encoder", "kv_mvcenc_b", "module");
    const auto run = sandbox.run(ownCall, sandbox.findingBesideTheModule());
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    QVERIFY(run.log.contains(QLatin1String("load module/kv_mvcenc_b")));
    QVERIFY(!run.log.contains(QLatin1String("load host/kv_mvcenc")));
}

void TestEntryCompanions::currentFolderIsNotSearched()
{
    // By their order all of these would be taken before those that lie beside the host.
    const Sandbox sandbox;
    sandbox.addRequired();
    sandbox.add("stub_entry_encoder", "kv_mvcenc_b", ".");
    sandbox.add("stub_entry_probe", "kv_media_probe_x", ".");
    sandbox.add("stub_entry_probe", "kv_media_probe", ".");
    const auto run = sandbox.run({QStringLiteral("call"), QStringLiteral("call")});
    QCOMPARE(run.values("result"), QStringList({QStringLiteral("1001"), QStringLiteral("1001")}));
    const QStringList call = {
        QStringLiteral("load host/kv_mvc_settings_io"), QStringLiteral("load host/kv_mvcenc"),
        QStringLiteral("unload host/kv_mvcenc"), QStringLiteral("unload host/kv_mvc_settings_io")};
    QCOMPARE(run.log, call + call);
}

void TestEntryCompanions::searchOfTheHostStays_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QString>("encoder");
    QTest::addColumn<bool>("currentFolder");
    QTest::addColumn<bool>("libraryFolder");
    QTest::newRow("untouched") << QStringList() << QStringLiteral("load host/kv_mvcenc") << true
                               << false;
    QTest::newRow("in a folder") << QStringList(QStringLiteral("library-folder=module"))
                                 << QStringLiteral("load module/kv_mvcenc_b") << false << true;
}

void TestEntryCompanions::searchOfTheHostStays()
{
#ifndef Q_OS_WIN
    QSKIP("a process cannot change where libraries are searched");
#endif
    QFETCH(QStringList, steps);
    QFETCH(QString, encoder);
    QFETCH(bool, currentFolder);
    QFETCH(bool, libraryFolder);
    const Sandbox sandbox;
    sandbox.addRequired();
    sandbox.add("stub_entry_empty", "planted", ".");
    sandbox.add("stub_entry_empty", "other", "module");
    sandbox.add("stub_entry_encoder", "kv_mvcenc_b", "module");
    const auto run =
        sandbox.run(steps + QStringList({QStringLiteral("call"), QStringLiteral("find=planted"),
                                         QStringLiteral("find=other")}));
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    QVERIFY2(run.log.contains(encoder), qPrintable(run.log.join(QLatin1Char('\n'))));
    const auto word = [](bool yes) { return yes ? QStringLiteral("yes") : QStringLiteral("no"); };
    QCOMPARE(run.values("finds"), QStringList({word(currentFolder), word(libraryFolder)}));
}

void TestEntryCompanions::brokenFileCountsAsMissing()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    QFile broken(sandbox.libraryPath("kv_mvcenc_b"));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("no library");
    broken.close();
    const auto run = sandbox.run(ownCall);
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    QVERIFY(run.log.contains(QLatin1String("load host/kv_mvcenc")));
}

void TestEntryCompanions::brokenFileBesideTheHostHidesOneBesideTheModule()
{
    const Sandbox sandbox(Sandbox::Module::Apart);
    sandbox.add("stub_entry_settings_io", "kv_mvc_settings_io");
    sandbox.add("stub_entry_encoder", "kv_mvcenc", "module");
    QFile broken(sandbox.libraryPath("kv_mvcenc"));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("no library");
    broken.close();
    const auto run = sandbox.run(ownCall, sandbox.findingBesideTheModule());
    QCOMPARE(run.value("result"), QStringLiteral("1"));
    QCOMPARE(run.log.filter(QStringLiteral("kv_mvcenc")), QStringList());
}

void TestEntryCompanions::whatTheLoaderWouldHangOrDieOfIsRefused_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("folder");
    for (const char* what : {"pipe", "beginning of a library", "folder"}) {
        for (const char* folder : {"host", "module"}) {
            QTest::addRow("%s, %s", what, folder)
                << QString::fromLatin1(what) << QString::fromLatin1(folder);
        }
    }
}

/// A pipe that nobody writes to is waited for, and a page that is missing ends the process.
void TestEntryCompanions::whatTheLoaderWouldHangOrDieOfIsRefused()
{
#ifdef Q_OS_WIN
    QSKIP("the loader of Windows reads no pipes, and maps whole files");
#else
    QFETCH(QString, what);
    QFETCH(QString, folder);
    const Sandbox sandbox(Sandbox::Module::Apart);
    sandbox.add("stub_entry_settings_io", "kv_mvc_settings_io");
    const QByteArray place = folder.toLatin1();
    const QString name = sandbox.libraryPath("kv_mvcenc", place.constData());
    if (what == QLatin1String("pipe")) {
        QCOMPARE(::mkfifo(QFile::encodeName(name).constData(), 0600), 0);
    } else if (what == QLatin1String("folder")) {
        QVERIFY(QDir().mkdir(name));
    } else {
        sandbox.add("stub_entry_encoder", "kv_mvcenc", place.constData());
        QFile whole(name);
        // Half of it may be all but what debuggers read.
        QVERIFY(whole.resize(4096));
    }
    const auto run = sandbox.run(ownCall, sandbox.findingBesideTheModule());
    QCOMPARE(run.value("result"), QStringLiteral("1"));
    QCOMPARE(run.log.filter(QStringLiteral("kv_mvcenc")), QStringList());
    QVERIFY2(run.errors.isEmpty() || run.errors.contains(QStringLiteral("kv_mvcenc")),
             qPrintable(run.errors));
#endif
}

void TestEntryCompanions::whatTheLoaderFindsFirstIsNotRefusedForALaterOne()
{
#ifdef Q_OS_WIN
    QSKIP("there is no LD_LIBRARY_PATH");
#else
    const Sandbox sandbox(Sandbox::Module::Apart);
    sandbox.add("stub_entry_settings_io", "kv_mvc_settings_io");
    QVERIFY(QDir().mkdir(sandbox.path(QStringLiteral("first"))));
    sandbox.add("stub_entry_encoder", "kv_mvcenc", "first");
    QVERIFY(QDir().mkdir(sandbox.libraryPath("kv_mvcenc", "module")));
    const QString first = sandbox.path(QStringLiteral("nowhere")) + QLatin1Char(':') +
                          sandbox.path(QStringLiteral("first"));
    const auto run = sandbox.run(ownCall, {{QStringLiteral("LD_LIBRARY_PATH"), first}});
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    QVERIFY(run.log.contains(QLatin1String("load first/kv_mvcenc")));
#endif
}

void TestEntryCompanions::failedCallsLibrariesAreReleasedByTheNextCall()
{
    const Sandbox sandbox;
    sandbox.add("stub_entry_settings_io", "kv_mvc_settings_io");
    sandbox.add("stub_entry_encoder_without_check", "kv_mvcenc_b");
    sandbox.add("stub_entry_encoder", "kv_mvcenc");
    sandbox.add("stub_entry_probe", "kv_media_probe");
    const auto run =
        sandbox.run({QStringLiteral("call"), QStringLiteral("mapped"), QStringLiteral("call-null"),
                     QStringLiteral("mapped"), QStringLiteral("call"), QStringLiteral("mapped")});
    QCOMPARE(run.values("result"),
             QStringList({QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("1")}));
    // No fallback to the other encoder, and no probe.
    const QString left = QStringLiteral("kv_config_gui_mvc kv_mvc_settings_io "
                                        "kv_mvcenc_b");
    QCOMPARE(run.values("mapped"), QStringList({left, left, left}));
    const QStringList expected = {QStringLiteral("load host/kv_mvc_settings_io"),
                                  QStringLiteral("load host/kv_mvcenc_b"),
                                  QStringLiteral("unload host/kv_mvc_settings_io"),
                                  QStringLiteral("load host/kv_mvc_settings_io"),
                                  QStringLiteral("unload host/kv_mvcenc_b"),
                                  QStringLiteral("load host/kv_mvcenc_b")};
    QCOMPARE(run.log.mid(0, 6), expected);
}

void TestEntryCompanions::probeOfAFailedCallIsReleasedByTheNextCall()
{
    // The first call fails for want of an application object, with all libraries loaded; the second
    // for want of an encoder.
    const Sandbox sandbox;
    sandbox.addRequired();
    sandbox.add("stub_entry_probe", "kv_media_probe");
    const auto run = sandbox.run({QStringLiteral("flags=0x10000000"), QStringLiteral("call"),
                                  QStringLiteral("mapped"), QStringLiteral("remove=kv_mvcenc"),
                                  QStringLiteral("call"), QStringLiteral("mapped")});
    QCOMPARE(run.values("result"), QStringList({QStringLiteral("1"), QStringLiteral("1")}));
    QCOMPARE(run.values("mapped"),
             QStringList({QStringLiteral("kv_config_gui_mvc kv_media_probe "
                                         "kv_mvc_settings_io kv_mvcenc"),
                          QStringLiteral("kv_config_gui_mvc kv_mvc_settings_io")}));
}

void TestEntryCompanions::missingLibraryIsNotFoundInAnEarlierCall_data()
{
    QTest::addColumn<QString>("removed");
    QTest::newRow("encoder") << QStringLiteral("kv_mvcenc");
    QTest::newRow("settings files") << QStringLiteral("kv_mvc_settings_io");
}

void TestEntryCompanions::missingLibraryIsNotFoundInAnEarlierCall()
{
    QFETCH(QString, removed);
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run = sandbox.run(
        {QStringLiteral("call"), QLatin1String("remove=") + removed, QStringLiteral("call")});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.values("result"), QStringList({QStringLiteral("1001"), QStringLiteral("1")}));
}

void TestEntryCompanions::missingFunctionIsNotFoundInAnEarlierCallsLibrary()
{
    // A good call, then the encoder is replaced by one that lacks a function.
    for (const char* lacking :
         {"stub_entry_encoder_without_check", "stub_entry_encoder_without_defaults"}) {
        const Sandbox sandbox;
        sandbox.addRequired();
        sandbox.add(lacking, "replacement");
        const auto run = sandbox.run({QStringLiteral("call"), QStringLiteral("replace=kv_mvcenc"),
                                      QStringLiteral("call"), QStringLiteral("instance")});
        QCOMPARE(run.values("result"), QStringList({QStringLiteral("1001"), QStringLiteral("1")}));
        QCOMPARE(run.value("instance"), QStringLiteral("no"));
    }
}

QTEST_MAIN(TestEntryCompanions)
#include "tst_entry_companions.moc"
