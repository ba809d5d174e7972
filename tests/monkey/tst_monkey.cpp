// A user who does anything, and records as no encoder makes them. ./dev monkey plays longer.
//
// KV_MONKEY_SEED, KV_MONKEY_EVENTS and KV_MONKEY_RECORDS: other numbers; KV_MONKEY_FIRST: the
// session, or the record, to begin with, which a failure names; KV_MONKEY_TRACE: each event goes to
// standard error.

#include "HostileRecords.h"
#include "Monkey.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

namespace
{

int number(const char* variable, int usual)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? value : usual;
}

} // namespace

class TestMonkey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void anythingTheUserDoes();
    void sameSeedSameEvents();
    void anyRecordOfTheHost();

private:
    QTemporaryDir m_folder;
};

void TestMonkey::initTestCase()
{
    // File dialogs begin there.
    QVERIFY(QDir::setCurrent(m_folder.path()));
}

void TestMonkey::init()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 3, 0)
    // Beside what the platform cannot do: keys that nothing takes.
    QTest::failOnWarning(QRegularExpression(
        QStringLiteral("^(?!This plugin does not support |Keyboard event not accepted)")));
#endif
}

void TestMonkey::anythingTheUserDoes()
{
    Monkey monkey(quint32(number("KV_MONKEY_SEED", 1)));
    const QString broken =
        monkey.play(number("KV_MONKEY_EVENTS", 2500), number("KV_MONKEY_FIRST", 0));
    qInfo("%s", qPrintable(monkey.report()));
    QVERIFY2(broken.isEmpty(), qPrintable(broken));
}

void TestMonkey::sameSeedSameEvents()
{
    Monkey first(7);
    Monkey second(7);
    QCOMPARE(first.play(400), QString());
    QCOMPARE(second.play(400), QString());
    QVERIFY(first.digest() != 0);
    QCOMPARE(second.digest(), first.digest());
}

void TestMonkey::anyRecordOfTheHost()
{
    HostileRecords records(quint32(number("KV_MONKEY_SEED", 1)));
    const QString broken =
        records.play(number("KV_MONKEY_RECORDS", 60), number("KV_MONKEY_FIRST", 0));
    qInfo("%s", qPrintable(records.report()));
    QVERIFY2(broken.isEmpty(), qPrintable(broken));
}

QTEST_MAIN(TestMonkey)
#include "tst_monkey.moc"
