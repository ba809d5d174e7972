// A window of the host's that is not the toolkit's as the dialog's parent: it takes input again,
// however the call ends. tests/native has the dialog over the window of a whole program.

#include "Sandbox.h"

#include <QTest>

class TestEntryWin32Parent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parentTakesInputAgain_data();
    void parentTakesInputAgain();
};

void TestEntryWin32Parent::parentTakesInputAgain_data()
{
    QTest::addColumn<QString>("check");
    QTest::addColumn<QString>("press");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QStringList>("whileOpen");
    const QStringList notEnabled = {QString(QLatin1String(""))};
    QTest::newRow("OK") << QString() << QStringLiteral("ok") << QStringLiteral("1000")
                        << notEnabled;
    QTest::newRow("cancel") << QString() << QStringLiteral("cancel") << QStringLiteral("1001")
                            << notEnabled;
    QTest::newRow("exception of a companion")
        << QStringLiteral("throw") << QStringLiteral("ok") << QStringLiteral("1") << QStringList();
}

void TestEntryWin32Parent::parentTakesInputAgain()
{
    QFETCH(QString, check);
    QFETCH(QString, press);
    QFETCH(QString, result);
    QFETCH(QStringList, whileOpen);
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run = sandbox.run({QStringLiteral("foreign"), QStringLiteral("foreign-state"),
                                  QStringLiteral("ext=foreign"), QStringLiteral("flags=0x13"),
                                  QLatin1String("press=") + press, QStringLiteral("call"),
                                  QStringLiteral("foreign-state"), QStringLiteral("mapped")},
                                 {{QStringLiteral("KV_STUB_CHECK"), check}});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.value("result"), result);
    const QStringList takesInput = {QStringLiteral("enabled active focused")};
    QCOMPARE(run.values("foreign"), takesInput + whileOpen + takesInput);
    QCOMPARE(run.value("mapped"), QStringLiteral("kv_config_gui_mvc"));
}

QTEST_MAIN(TestEntryWin32Parent)
#include "tst_entry_win32_parent.moc"
