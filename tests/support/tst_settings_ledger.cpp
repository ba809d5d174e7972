// The ledger is whole: it tells every byte of the record once and has every key of the dialog.

#include "SettingsLedger.h"

#include "model/KeyNames.h"
#include "model/KeyTable.h"

#include <QTest>

#include <algorithm>

using ledger::Kind;
using ledger::Setting;

Q_DECLARE_METATYPE(ledger::ReservedRange)

class TestSettingsLedger : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyByteIsToldOnce_data();
    void everyByteIsToldOnce();
    void keysAreThoseOfTheDialog();
    void namesAreUnique_data();
    void namesAreUnique();
    void valuesAreValid_data();
    void valuesAreValid();
    void namedValuesAreUnique_data();
    void namedValuesAreUnique();
    void fieldsAreFoundInTheRecord();
};

namespace
{

void addSettings()
{
    QTest::addColumn<QString>("member");
    for (const Setting& setting : ledger::settings()) {
        QTest::newRow(setting.member) << QString::fromLatin1(setting.member);
    }
}

bool fits(const Setting& setting, const ledger::Value& value)
{
    const QString text = value.state.toString();
    switch (setting.kind) {
    case Kind::Number:
        return value.state.userType() == QMetaType::Int && value.state.toInt() >= setting.least &&
               value.state.toInt() <= setting.most &&
               int(value.code) == value.state.toInt() + setting.added();
    case Kind::Switch:
        return value.state.userType() == QMetaType::Bool && value.code == value.state.toInt();
    case Kind::List:
    case Kind::Radio: {
        const auto values = ledger::namedValues(QString::fromLatin1(setting.member));
        return std::any_of(values.begin(), values.end(), [&](const ledger::NamedValue& named) {
            return named.code == value.code &&
                   (setting.kind == Kind::Radio || text == QLatin1String(named.text));
        });
    }
    default:
        return !text.isEmpty();
    }
}

} // namespace

void TestSettingsLedger::everyByteIsToldOnce_data()
{
    QTest::addColumn<bool>("ofRecord");
    QTest::addColumn<int>("size");
    QTest::addColumn<QVector<ledger::ReservedRange>>("reserved");
    const auto ofView = ledger::viewReserved();
    QTest::newRow("record") << true << 256
                            << QVector<ledger::ReservedRange>{ledger::recordReserved};
    QTest::newRow("view") << false << 8316
                          << QVector<ledger::ReservedRange>(ofView.begin(), ofView.end());
}

void TestSettingsLedger::everyByteIsToldOnce()
{
    QFETCH(bool, ofRecord);
    QFETCH(int, size);
    QFETCH(QVector<ledger::ReservedRange>, reserved);
    QVector<int> told(size, 0);
    const auto tell = [&told](int offset, int width) {
        for (int at = offset; at < offset + width && at < told.size(); ++at) {
            ++told[at];
        }
    };
    int sum = 0;
    for (const ledger::ReservedRange& range : reserved) {
        tell(range.offset, range.size);
        sum += range.size;
    }
    for (const Setting& setting : ledger::settings()) {
        if (setting.isOfRecord() == ofRecord) {
            tell(setting.offset, setting.width());
            sum += setting.width();
        }
    }
    QCOMPARE(sum, size);
    QCOMPARE(told, QVector<int>(size, 1));
}

void TestSettingsLedger::keysAreThoseOfTheDialog()
{
    QStringList dialogs = {keys::videoType};
    const KeyTable& table = keyTable();
    for (const auto* rows : {&table.basic, &table.advanced, &table.rateControl}) {
        for (const ViewRow& row : *rows) {
            dialogs += row.key;
        }
    }
    for (const RecordRow& row : table.record) {
        dialogs += row.key;
    }
    QStringList told;
    for (const Setting& setting : ledger::settings()) {
        if (setting.key) {
            told += QString::fromLatin1(setting.key);
        }
    }
    dialogs.sort();
    told.sort();
    QCOMPARE(told, dialogs);
}

void TestSettingsLedger::namesAreUnique_data()
{
    QTest::addColumn<QStringList>("names");
    QStringList members;
    QStringList keyTexts;
    QStringList controls;
    QStringList labels;
    QStringList titles;
    for (const Setting& setting : ledger::settings()) {
        members += QString::fromLatin1(setting.member);
        titles += setting.name();
        if (!setting.key) {
            QVERIFY2(!setting.page && !setting.control && !setting.label, setting.member);
            continue;
        }
        for (int view = 0; view < setting.viewCount(); ++view) {
            keyTexts += setting.keyOf(view);
            controls += setting.pageOf(view) + QLatin1Char('.') + QLatin1String(setting.control);
            if (setting.label) {
                labels += setting.pageOf(view) + QLatin1Char('.') + QLatin1String(setting.label);
            }
        }
    }
    QTest::newRow("members") << members;
    QTest::newRow("keys") << keyTexts;
    QTest::newRow("controls") << controls;
    QTest::newRow("labels") << labels;
    QTest::newRow("titles") << titles;
}

void TestSettingsLedger::namesAreUnique()
{
    QFETCH(QStringList, names);
    QVERIFY(!names.isEmpty());
    QVERIFY(!names.contains(QString()));
    QCOMPARE(names.removeDuplicates(), 0);
}

void TestSettingsLedger::valuesAreValid_data()
{
    addSettings();
}

void TestSettingsLedger::valuesAreValid()
{
    QFETCH(QString, member);
    const Setting& setting = ledger::setting(member);
    QVERIFY(setting.first.code != setting.second.code);
    QVERIFY(fits(setting, setting.first));
    QVERIFY(fits(setting, setting.second));
    // A label bears a caption, and a name is there for every setting.
    QVERIFY(!setting.label || setting.caption);
    QVERIFY(setting.title || setting.caption);
}

void TestSettingsLedger::namedValuesAreUnique_data()
{
    addSettings();
}

void TestSettingsLedger::namedValuesAreUnique()
{
    QFETCH(QString, member);
    QSet<int> codes;
    QSet<QString> texts;
    const QVector<ledger::NamedValue>& values = ledger::namedValues(member);
    for (const ledger::NamedValue& value : values) {
        codes.insert(value.code);
        texts.insert(QString::fromLatin1(value.text));
    }
    QCOMPARE(codes.size(), values.size());
    QCOMPARE(texts.size(), values.size());
    const Kind kind = ledger::setting(member).kind;
    QCOMPARE(!ledger::listedValues(member).isEmpty(), kind == Kind::List);
}

void TestSettingsLedger::fieldsAreFoundInTheRecord()
{
    KvMvcSettings record = {};
    ledger::put(record, ledger::setting(QStringLiteral("split_views")), 0, 1);
    ledger::put(record, ledger::setting(QStringLiteral("width")), 0, 720);
    ledger::put(record, ledger::setting(QStringLiteral("width")), 1, 1280);
    ledger::put(record, ledger::setting(QStringLiteral("frame_rate")), 1, 12.5);
    QCOMPARE(record.split_views, 1);
    QCOMPARE(record.views[0].width, 720);
    QCOMPARE(record.views[1].width, 1280);
    const double rate = record.views[1].frame_rate;
    QCOMPARE(rate, 12.5);
    QCOMPARE(ledger::get(record, ledger::setting(QStringLiteral("width")), 1), 1280.0);
    QCOMPARE(ledger::get(record, ledger::setting(QStringLiteral("frame_rate")), 1), 12.5);
}

QTEST_APPLESS_MAIN(TestSettingsLedger)
#include "tst_settings_ledger.moc"
