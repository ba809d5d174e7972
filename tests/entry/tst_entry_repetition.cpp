// What many calls leave behind: no more than a few.
//
// KV_CALLS: how many there are, after a tenth as many that fill what is filled once; ./dev repeat
// makes more of them.

#include "Sandbox.h"
#include "VirtualDisplay.h"

#include <QMap>
#include <QTest>

namespace
{

constexpr int mostGrowth = 1024; // KiB
#if defined(__SANITIZE_ADDRESS__)
constexpr int usualCalls = 10;
#else
constexpr int usualCalls = 40;
#endif

QStringList words(const QString& text)
{
    return text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// "resident=5 threads=1", by name.
QMap<QString, int> numbers(const QString& usage)
{
    QMap<QString, int> found;
    for (const QString& word : words(usage)) {
        found.insert(word.section(QLatin1Char('='), 0, 0),
                     word.section(QLatin1Char('='), 1).toInt());
    }
    return found;
}

} // namespace

class TestEntryRepetition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingGrows_data();
    void nothingGrows();
    void whatX11KeepsIsTheToolkits();
};

void TestEntryRepetition::nothingGrows_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("calls");
    QTest::addColumn<QString>("result");
    const QString own = QStringLiteral("flags=0x73");
    const QString host = QStringLiteral("application ext=application flags=0x10000073");
    QTest::newRow("own application") << own << QStringLiteral("repeat") << QStringLiteral("1001");
    QTest::newRow("own application, OK")
        << own + QStringLiteral(" press=ok") << QStringLiteral("repeat") << QStringLiteral("1000");
    QTest::newRow("native parent") << own + QStringLiteral(" ext=window=0x1234567")
                                   << QStringLiteral("repeat") << QStringLiteral("1001");
    QTest::newRow("host's application")
        << host << QStringLiteral("repeat") << QStringLiteral("1001");
    QTest::newRow("host's application with a window")
        << QStringLiteral("application window ext=application flags=0x10000073 press=ok")
        << QStringLiteral("repeat") << QStringLiteral("1000");
    QTest::newRow("own application, loaded anew")
        << own << QStringLiteral("reload") << QStringLiteral("1001");
    QTest::newRow("host's application, loaded anew")
        << host << QStringLiteral("reload") << QStringLiteral("1001");
}

void TestEntryRepetition::nothingGrows()
{
    QFETCH(QString, mode);
    QFETCH(QString, calls);
    QFETCH(QString, result);
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("KV_CALLS", &isNumber);
    int count = isNumber ? wanted : usualCalls;
    if (calls == QLatin1String("reload")) {
        count = qMax(10, count / 10);
    }
    const Sandbox sandbox;
    // The reference encoder accepts no empty record.
    if (result == QLatin1String("1000")) {
        sandbox.addRequired();
    } else {
        sandbox.addReference();
    }
    const QString steps = QStringLiteral("quiet %1 %2=%3 usage %2=%4 usage mapped unload mapped")
                              .arg(mode, calls)
                              .arg(qMax(10, count / 10))
                              .arg(count);
    const auto run = sandbox.run(words(steps));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.values("result"), QStringList({result, result}));
    QCOMPARE(run.values("mapped"),
             QStringList({QStringLiteral("kv_config_gui_mvc"), QLatin1String("")}));
    QCOMPARE(run.values("usage").size(), 2);
    const QMap<QString, int> before = numbers(run.values("usage").first());
    const QMap<QString, int> after = numbers(run.values("usage").last());
    const int growth =
        after.value(QStringLiteral("resident")) - before.value(QStringLiteral("resident"));
    qInfo("%d calls: %d KiB more; %s", count, growth, qPrintable(run.values("usage").last()));
    for (const QString& name :
         {QStringLiteral("descriptors"), QStringLiteral("threads"), QStringLiteral("windows")}) {
        QVERIFY(after.contains(name));
        QCOMPARE(after.value(name), before.value(name));
    }
#if !defined(__SANITIZE_ADDRESS__)
    // A sanitizer keeps what is freed for a while.
    QVERIFY2(growth <= mostGrowth, qPrintable(QString::number(growth)));
#endif
}

/// The toolkit sends some requests of each window by Xlib, which remembers them until the
/// connection is closed: about 100 bytes a dialog, whatever is in it.
void TestEntryRepetition::whatX11KeepsIsTheToolkits()
{
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("the system's count knows nothing of a sanitizer's memory");
#endif
    if (!VirtualDisplay::exists()) {
        QSKIP("no Xvfb on this system");
    }
    VirtualDisplay display;
    QVERIFY(display.start());
    const Sandbox sandbox;
    sandbox.addReference();
    constexpr int dialogs = 100;
    const auto bytesPerDialog = [&](const char* how) {
        const QString steps = QStringLiteral("quiet application ext=application flags=0x10000073 "
                                             "%1=20 usage %1=%2 usage")
                                  .arg(QLatin1String(how))
                                  .arg(dialogs);
        const QStringList usage = sandbox.run(words(steps), display.environment()).values("usage");
        const QString allocated = QStringLiteral("allocated");
        return (numbers(usage.value(1)).value(allocated) -
                numbers(usage.value(0)).value(allocated)) /
               dialogs;
    };
    const int bare = bytesPerDialog("bare");
    const int module = bytesPerDialog("repeat");
    qInfo("%d bytes a call, %d bytes a bare dialog", module, bare);
    QVERIFY(bare > 0);
    QVERIFY2(module <= 3 * bare, qPrintable(QString::number(module)));
}

QTEST_GUILESS_MAIN(TestEntryRepetition)
#include "tst_entry_repetition.moc"
