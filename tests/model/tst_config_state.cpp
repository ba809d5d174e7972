#include "model/ConfigState.h"
#include "model/KeyNames.h"

#include <QTest>

/// The rules of the type in which dialog and pages talk about settings.
class TestConfigState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void absentKeyReadsAsInvalidAndEnabled();
    void absentKeyReadsAsTheDefault();
    void presentKeyIgnoresTheDefault();
    void insertedEntryIsEnabledUnlessSaid();
    void secondInsertReplacesBothMembers();
    void keysAreOrderedByText();
    void keysAreExact_data();
    void keysAreExact();
    void emptyKeyIsAKey();
    void statesAreEqualByKeyValueAndEnabled();
    void viewKeysEndWithTheView();
};

namespace
{

const QString key = QStringLiteral("Interval I");

} // namespace

void TestConfigState::absentKeyReadsAsInvalidAndEnabled()
{
    const ConfigState state;
    QVERIFY(!state.contains(key));
    QVERIFY(!state.entry(key).value.isValid());
    QVERIFY(state.entry(key).enabled);
    QVERIFY(!state.value(key).isValid());
}

void TestConfigState::absentKeyReadsAsTheDefault()
{
    const ConfigState state;
    QCOMPARE(state.value(key, 17), QVariant(17));
    QVERIFY2(!state.contains(key), "reading inserts nothing");
}

void TestConfigState::presentKeyIgnoresTheDefault()
{
    ConfigState state;
    state.insert(key, 4);
    QCOMPARE(state.value(key, 17), QVariant(4));
    state.insert(key, QVariant());
    QVERIFY2(!state.value(key, 17).isValid(), "an invalid value is a value");
}

void TestConfigState::insertedEntryIsEnabledUnlessSaid()
{
    ConfigState state;
    state.insert(key, 4);
    QVERIFY(state.entry(key).enabled);
    state.insert(QStringLiteral("Force I"), 5, false);
    QVERIFY(!state.entry(QStringLiteral("Force I")).enabled);
}

void TestConfigState::secondInsertReplacesBothMembers()
{
    ConfigState state;
    state.insert(key, 4, false);
    state.insert(key, QStringLiteral("five"), true);
    QCOMPARE(state.entries().size(), 1);
    QCOMPARE(state.entry(key), (ConfigEntry{QStringLiteral("five"), true}));
    state.insert(key, 6, false);
    QCOMPARE(state.entry(key), (ConfigEntry{6, false}));
}

void TestConfigState::keysAreOrderedByText()
{
    ConfigState state;
    for (const char* text : {"Units V1", "HRD V0", "", "Bit-depth Luma", "B Between", "Units V0"}) {
        state.insert(QLatin1String(text), 1);
    }
    QCOMPARE(state.entries().keys(),
             (QStringList{QString(), QStringLiteral("B Between"), QStringLiteral("Bit-depth Luma"),
                          QStringLiteral("HRD V0"), QStringLiteral("Units V0"),
                          QStringLiteral("Units V1")}));
}

void TestConfigState::keysAreExact_data()
{
    QTest::addColumn<QString>("other");
    QTest::newRow("letter case") << QStringLiteral("interval i");
    QTest::newRow("blank behind") << QStringLiteral("Interval I ");
    QTest::newRow("beginning") << QStringLiteral("Interval");
    QTest::newRow("view suffix") << QStringLiteral("Interval I V0");
}

void TestConfigState::keysAreExact()
{
    QFETCH(QString, other);
    ConfigState state;
    state.insert(key, 4);
    QVERIFY(!state.contains(other));
}

void TestConfigState::emptyKeyIsAKey()
{
    ConfigState state;
    state.insert(QString(), 6000);
    QVERIFY(state.contains(QString()));
    QCOMPARE(state.value(QString()), QVariant(6000));
}

void TestConfigState::statesAreEqualByKeyValueAndEnabled()
{
    ConfigState one;
    one.insert(key, 4);
    ConfigState other;
    QVERIFY(!(one == other));
    other.insert(key, 4);
    QVERIFY(one == other);
    other.insert(key, 4, false);
    QVERIFY(!(one == other));
    other.insert(key, 5);
    QVERIFY(!(one == other));
}

void TestConfigState::viewKeysEndWithTheView()
{
    QCOMPARE(keys::ofView(keys::maxBitrate, 0), QStringLiteral("Max Bitrate V0"));
    QCOMPARE(keys::ofView(keys::maxBitrate, 2), QStringLiteral("Max Bitrate V2"));
    QCOMPARE(keys::ofView(keys::hrd, 3), QStringLiteral("HRD V3"));
}

QTEST_APPLESS_MAIN(TestConfigState)
#include "tst_config_state.moc"
