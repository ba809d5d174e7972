// Encoders that break their contract: the host goes on, and its next call works.

#include "Sandbox.h"

#include <QTest>

class TestEntryMisbehaviour : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nextCallWorks_data();
    void nextCallWorks();
};

void TestEntryMisbehaviour::nextCallWorks_data()
{
    QTest::addColumn<QString>("check");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("changed");
    const auto row = [](const char* check, const char* result, const char* changed) {
        for (const char* mode : {"own application", "host's application"}) {
            QTest::addRow("%s, %s", check, mode)
                << QString::fromLatin1(check) << QString::fromLatin1(result)
                << QString::fromLatin1(changed);
        }
    };
    // An exception of the first check is one of opening the dialog.
    row("throw", "1", "no");
    row("throw 5", "1", "no");
    // It may correct whatever it likes, and the user sees that, but for what no control shows.
    row("scribble", "1000", "yes");
    row("flood", "1000", "no");
    row("odd messages", "1000", "no");
    row("odd names", "1000", "no");
    row("late", "1000", "no");
    // Any number but 0 refuses.
    row("odd answer", "1001", "no");
}

void TestEntryMisbehaviour::nextCallWorks()
{
    QFETCH(QString, check);
    QFETCH(QString, result);
    QFETCH(QString, changed);
    const Sandbox sandbox;
    sandbox.addRequired();
    const bool inHost = QByteArray(QTest::currentDataTag()).endsWith("host's application");
    QStringList steps = {QStringLiteral("flags=0x13")};
    if (inHost) {
        steps = QStringList({QStringLiteral("application"), QStringLiteral("ext=application"),
                             QStringLiteral("flags=0x10000013")});
    }
    steps += QStringList({QStringLiteral("press=ok"), QLatin1String("env=KV_STUB_CHECK=") + check,
                          QStringLiteral("call"), QStringLiteral("env=KV_STUB_CHECK="),
                          QStringLiteral("call"), QStringLiteral("mapped")});
    const auto run = sandbox.run(steps);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.values("result"), QStringList({result, QStringLiteral("1000")}));
    QCOMPARE(run.values("changed"), QStringList({changed, QStringLiteral("no")}));
    QCOMPARE(run.value("mapped"), QStringLiteral("kv_config_gui_mvc"));
    QVERIFY(!run.log.contains(QLatin1String("found what is not there")));
}

QTEST_GUILESS_MAIN(TestEntryMisbehaviour)
#include "tst_entry_misbehaviour.moc"
