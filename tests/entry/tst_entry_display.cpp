// Displays of X11 that come and go under a host without an application object of its own.

#include "Sandbox.h"
#include "VirtualDisplay.h"

#include <QRegularExpression>
#include <QTest>

class TestEntryDisplay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void serverThatStartsAnewWithoutClients();
    void serverThatHasEnded();
};

void TestEntryDisplay::initTestCase()
{
    if (!VirtualDisplay::exists()) {
        QSKIP("no Xvfb on this system");
    }
}

void TestEntryDisplay::serverThatStartsAnewWithoutClients()
{
    VirtualDisplay display;
    QVERIFY(display.start(VirtualDisplay::WithoutClients::StartsAnew));
    const Sandbox sandbox;
    sandbox.addRequired();
    // Nobody else is on the display: each call finds it about to start.
    const auto run =
        sandbox.run({QStringLiteral("quiet"), QStringLiteral("flags=0x13"), QStringLiteral("call"),
                     QStringLiteral("call"), QStringLiteral("call"), QStringLiteral("call"),
                     QStringLiteral("call"), QStringLiteral("instance")},
                    display.environment());
    QString errors = run.errors;
    if (QT_VERSION_MAJOR < 6) {
        // It asks for the focus before the window is there, and says so.
        errors.remove(QRegularExpression(QStringLiteral("qt\\.qpa\\.xcb: .*SetInputFocus.*\n")));
    }
    QCOMPARE(errors, QString());
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.values("result"),
             QStringList({QStringLiteral("1001"), QStringLiteral("1001"), QStringLiteral("1001"),
                          QStringLiteral("1001"), QStringLiteral("1001")}));
    QCOMPARE(run.value("instance"), QStringLiteral("no"));
}

void TestEntryDisplay::serverThatHasEnded()
{
    VirtualDisplay display;
    QVERIFY(display.start());
    display.stop();
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run =
        sandbox.run({QStringLiteral("flags=0x13"), QStringLiteral("call")}, display.environment());
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.value("result"), QStringLiteral("1"));
}

QTEST_MAIN(TestEntryDisplay)
#include "tst_entry_display.moc"
