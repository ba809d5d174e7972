// Hosting modes, flags and results of the exported function.

#include "Sandbox.h"

#include <QImage>
#include <QTest>

namespace
{

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

class TestEntryHosting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void results_data();
    void results();
    void focusIsOnTheTabs_data();
    void focusIsOnTheTabs();
    void modes_data();
    void modes();
    void recordIsNotTouchedWithoutTheLibraries_data();
    void recordIsNotTouchedWithoutTheLibraries();
    void titleAndBannerOfTheRecord_data();
    void titleAndBannerOfTheRecord();
    void activeWindowOfTheHostIsTheParent();
    void withoutActiveWindowTheDialogBecomesIt();
    void lastWindowEndsTheHostsApplication();
    void applicationObjectsStayWithTheirOwners();
    void callOutOfAnOpenDialogIsAnError();
    void localeStaysTheHosts();
    void iconsAreAsDenseAsTheScreen();
    void withoutADisplayThereIsAnErrorAndNoEnd_data();
    void withoutADisplayThereIsAnErrorAndNoEnd();
    void severalCallsInOneProcess_data();
    void severalCallsInOneProcess();
};

void TestEntryHosting::results_data()
{
    QTest::addColumn<QString>("press");
    QTest::addColumn<QString>("check");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("changed");
    const auto row = [](const char* name, const char* press, const char* check, const char* result,
                        const char* changed) {
        for (const char* mode : {"own application", "host's application"}) {
            QTest::addRow("%s, %s", name, mode)
                << QString::fromLatin1(press) << QString::fromLatin1(check)
                << QString::fromLatin1(result) << QString::fromLatin1(changed);
        }
    };
    row("OK", "ok", "correct", "1000", "yes");
    row("OK without a change", "ok", "", "1000", "no");
    row("cancel", "cancel", "correct", "1001", "no");
    row("close box", "close", "correct", "1001", "no");
    row("OK refused, then closed", "ok", "refuse", "1001", "no");
}

void TestEntryHosting::focusIsOnTheTabs_data()
{
    QTest::addColumn<QString>("steps");
    QTest::newRow("own application") << QStringLiteral("flags=0x13");
    QTest::newRow("own application, one tab") << QStringLiteral("flags=0x10");
    QTest::newRow("host's application")
        << QStringLiteral("application ext=application flags=0x10000013");
}

void TestEntryHosting::focusIsOnTheTabs()
{
    QFETCH(QString, steps);
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run = sandbox.run(words(steps.toLatin1().constData()) + words("call"));
    QCOMPARE(run.value("focus"), QStringLiteral("qt_tabwidget_tabbar"));
}

void TestEntryHosting::results()
{
    QFETCH(QString, press);
    QFETCH(QString, check);
    QFETCH(QString, result);
    QFETCH(QString, changed);
    const Sandbox sandbox;
    sandbox.addRequired();
    const bool inHost = QByteArray(QTest::currentDataTag()).endsWith("host's application");
    const QStringList mode =
        inHost ? words("application ext=application flags=0x10000013") : words("flags=0x13");
    const auto run =
        sandbox.run(mode + QStringList{QLatin1String("press=") + press, QStringLiteral("call")},
                    {{QStringLiteral("KV_STUB_CHECK"), check}});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.value("result"), result);
    QCOMPARE(run.value("changed"), changed);
    QCOMPARE(run.lines.contains(QLatin1String("still open")), check == QLatin1String("refuse"));
}

void TestEntryHosting::modes_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("recordFlags");
    const auto row = [](const char* name, const char* steps, const char* result,
                        const char* recordFlags = nullptr) {
        QTest::newRow(name) << QString::fromLatin1(steps) << QString::fromLatin1(result)
                            << QString::fromLatin1(recordFlags);
    };
    row("own application, null parent", "flags=0 ext=null call", "1001");
    row("own application, record with null parent", "flags=0x20000001 ext=record:null call", "1001",
        "20000001");
    row("own application, null record", "flags=0x20000000 ext=record call", "1");
    row("host's application", "application flags=0x10000000 ext=application call", "1001");
    row("host's application in a record",
        "application flags=0x30000043 ext=record:application call", "1001", "30000043");
    row("host's application, null", "application flags=0x10000000 ext=null call", "1");
    row("host's application, null in a record", "application flags=0x30000000 ext=record:null call",
        "1", "30000000");
    row("host's application, null record", "application flags=0x30000000 ext=record call", "1");
    row("no application at all, null", "flags=0x10000000 ext=null call", "1");
    row("own application while the host has one", "application flags=0 ext=null call", "1");
    row("own application while the host has one, record",
        "application flags=0x20000000 ext=record:null call", "1", "20000000");
    row("all bits of no meaning", "flags=0xCFF00F0C ext=null call", "1001");
}

void TestEntryHosting::modes()
{
    QFETCH(QString, steps);
    QFETCH(QString, result);
    QFETCH(QString, recordFlags);
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run = sandbox.run(words(steps.toLatin1().constData()));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.value("result"), result);
    QCOMPARE(run.value("record flags"), recordFlags);
    QCOMPARE(run.values("title").size(), result == QLatin1String("1") ? 0 : 1);
}

void TestEntryHosting::recordIsNotTouchedWithoutTheLibraries_data()
{
    QTest::addColumn<QString>("missing");
    QTest::newRow("encoder") << QStringLiteral("kv_mvcenc");
    QTest::newRow("settings files") << QStringLiteral("kv_mvc_settings_io");
}

void TestEntryHosting::recordIsNotTouchedWithoutTheLibraries()
{
    QFETCH(QString, missing);
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run =
        sandbox.run({QLatin1String("remove=") + missing, QStringLiteral("flags=0x20000001"),
                     QStringLiteral("ext=record:null"), QStringLiteral("call")});
    QCOMPARE(run.value("result"), QStringLiteral("1"));
    QCOMPARE(run.value("record flags"), QStringLiteral("ffffffff"));
}

void TestEntryHosting::titleAndBannerOfTheRecord_data()
{
    QTest::addColumn<QString>("mode");
    QTest::newRow("own application") << QStringLiteral("ext=record:null flags=0x20000000");
    QTest::newRow("host's application")
        << QStringLiteral("application ext=record:application flags=0x30000000");
}

void TestEntryHosting::titleAndBannerOfTheRecord()
{
    QFETCH(QString, mode);
    const Sandbox sandbox;
    sandbox.addRequired();
    QImage banner(61, 20, QImage::Format_RGB32);
    banner.fill(Qt::red);
    QVERIFY(banner.save(sandbox.path(QStringLiteral("banner.png"))));
    const QStringList steps = words(mode.toLatin1().constData());

    const auto given = sandbox.run(steps + words("title=Job banner=banner.png call"));
    QCOMPARE(given.value("title"), QStringLiteral("Job"));
    QCOMPARE(given.value("banner"), QStringLiteral("61"));
    const auto defaults = sandbox.run(steps + words("call"));
    QCOMPARE(defaults.value("title"), QStringLiteral("Korvane MVC Video Encoder Settings"));
    QVERIFY(defaults.value("banner").toInt() > 61);
}

void TestEntryHosting::activeWindowOfTheHostIsTheParent()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run = sandbox.run(words("application window ext=application flags=0x10000000 call"));
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    QCOMPARE(run.value("parent"), QStringLiteral("QLabel"));
}

void TestEntryHosting::withoutActiveWindowTheDialogBecomesIt()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    for (const char* mode : {"application ext=application flags=0x10000000", "flags=0"}) {
        const auto run = sandbox.run(words(mode) + words("call"));
        QCOMPARE(run.value("parent"), QStringLiteral("none"));
        QCOMPARE(run.value("active"), QStringLiteral("yes"));
    }
}

void TestEntryHosting::applicationObjectsStayWithTheirOwners()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    QCOMPARE(sandbox.run(words("flags=0 call instance")).value("instance"), QStringLiteral("no"));
    const auto host = sandbox.run(
        words("application ext=application flags=0x10000000 call instance delete instance"));
    QCOMPARE(host.values("instance"), words("yes no"));
    // Also when the module would not run in it.
    const auto refused = sandbox.run(words("application flags=0 call instance window run"));
    QCOMPARE(refused.value("instance"), QStringLiteral("yes"));
    QCOMPARE(refused.value("loop"), QStringLiteral("0"));
    QCOMPARE(refused.value("end"), QString(QLatin1String("")));
}

void TestEntryHosting::lastWindowEndsTheHostsApplication()
{
    // Though it is told to stay: the module connects the one with the other.
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto never = sandbox.run(words("application stay window run"));
    QCOMPARE(never.value("loop"), QStringLiteral("7"));
    const auto called =
        sandbox.run(words("application stay window ext=application flags=0x10000000 call run"));
    QCOMPARE(called.value("result"), QStringLiteral("1001"));
    QCOMPARE(called.value("loop"), QStringLiteral("0"));
}

void TestEntryHosting::callOutOfAnOpenDialogIsAnError()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    for (const char* mode : {"flags=0x13", "application ext=application flags=0x10000013"}) {
        const auto run = sandbox.run(words(mode) + words("press=again call press=ok call"));
        QCOMPARE(run.exitCode, 0);
        // The open dialog keeps its libraries, and later calls work.
        QCOMPARE(run.values("result"),
                 QStringList(
                     {QStringLiteral("again 1"), QStringLiteral("1001"), QStringLiteral("1000")}));
    }
}

void TestEntryHosting::localeStaysTheHosts()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run = sandbox.run(words("locale flags=0x13 call locale"));
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    QCOMPARE(run.values("locale"), words("C C"));
}

void TestEntryHosting::iconsAreAsDenseAsTheScreen()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run = sandbox.run(words("flags=0x13 call application icon"),
                                 {{QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("3")}});
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    // What the application of a host does is the host's choice with Qt 5.
    QCOMPARE(run.values("icon"), words(QT_VERSION_MAJOR < 6 ? "48 16" : "48 48"));
}

void TestEntryHosting::withoutADisplayThereIsAnErrorAndNoEnd_data()
{
    QTest::addColumn<QString>("platform");
    QTest::newRow("none named, and no display") << QString();
    QTest::newRow("one that is not installed") << QStringLiteral("no-such-platform");
}

void TestEntryHosting::withoutADisplayThereIsAnErrorAndNoEnd()
{
    QFETCH(QString, platform);
#ifdef Q_OS_WIN
    if (platform.isEmpty()) {
        QSKIP("a program for Windows has a display always");
    }
#endif
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run = sandbox.run(words("flags=0x13 call instance"),
                                 {{QStringLiteral("QT_QPA_PLATFORM"), platform},
                                  {QStringLiteral("WAYLAND_DISPLAY"), QString()},
                                  {QStringLiteral("DISPLAY"), QString()}});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.value("result"), QStringLiteral("1"));
    QCOMPARE(run.value("instance"), QStringLiteral("no"));
}

void TestEntryHosting::severalCallsInOneProcess_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("results");
    QTest::newRow("own application twice")
        << QStringLiteral("flags=0x13 press=ok call press=cancel call")
        << QStringLiteral("1000 1001");
    QTest::newRow("host's application twice")
        << QStringLiteral("application ext=application flags=0x10000013 press=ok call "
                          "press=cancel call")
        << QStringLiteral("1000 1001");
    QTest::newRow("one after the other")
        << QStringLiteral("flags=0x13 press=ok call application ext=application "
                          "flags=0x10000013 call delete ext=null flags=0 press=close call")
        << QStringLiteral("1000 1000 1001");
    QTest::newRow("a failed one between")
        << QStringLiteral("flags=0x13 call flags=0x10000013 call flags=0x13 call")
        << QStringLiteral("1001 1 1001");
}

void TestEntryHosting::severalCallsInOneProcess()
{
    QFETCH(QString, steps);
    QFETCH(QString, results);
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run = sandbox.run(words(steps.toLatin1().constData()) + words("mapped"),
                                 {{QStringLiteral("KV_STUB_CHECK"), QStringLiteral("correct")}});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.values("result"), words(results.toLatin1().constData()));
    QCOMPARE(run.value("mapped"), QStringLiteral("kv_config_gui_mvc"));
    QCOMPARE(run.errors, QString());
}

QTEST_MAIN(TestEntryHosting)
#include "tst_entry_hosting.moc"
