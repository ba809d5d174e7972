// What the field table has of a key, and which key an encoder's name of a setting means.

#include "SettingsLedger.h"
#include "ToolkitWarnings.h"

#include "model/SettingFacts.h"

#include <QTest>

class TestSettingFacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void everySettingIsFoundByItsName_data();
    void everySettingIsFoundByItsName();
    void viewOfANameIsTheKeys_data();
    void viewOfANameIsTheKeys();
    void range_data();
    void range();
    void unknownKeyHasNone();
};

void TestSettingFacts::everySettingIsFoundByItsName_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<int>("view");
    QTest::addColumn<QString>("key");
    for (const ledger::Setting& setting : ledger::settings()) {
        for (int view = 0; setting.key && view < setting.viewCount(); ++view) {
            QTest::addRow("%s of view %d", setting.member, view)
                << QString::fromLatin1(setting.member) << view << setting.keyOf(view);
        }
    }
}

void TestSettingFacts::everySettingIsFoundByItsName()
{
    QFETCH(QString, member);
    QFETCH(int, view);
    QFETCH(QString, key);
    QCOMPARE(keyOfSetting(member, view), key);
    const auto facts = settingFacts(key);
    QVERIFY(facts);
    QCOMPARE(facts->member, member);
}

void TestSettingFacts::viewOfANameIsTheKeys_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<int>("view");
    QTest::addColumn<QString>("key");
    const auto row = [](const char* member, int view, const char* key) {
        QTest::addRow("%s of %d", member, view)
            << QString::fromLatin1(member) << view << QString::fromLatin1(key);
    };
    row("bitrate", 2, "Target Bitrate V2");
    row("bitrate", -1, "Target Bitrate V0");
    row("bitrate", 4, "");
    row("bitrate", -2, "");
    // One control for all views.
    row("width", -1, "Horizontal Size");
    row("width", 3, "Horizontal Size");
    row("width", 4, "");
    row("num_views", 0, "Number of views");
    row("display_aspect_y", -1, "Picture Aspect Ratio");
    row("frame_rate", 1, "Frame Rate");
    row("video_type", -1, "Video Type");
    // It follows from the slices, and nothing edits it.
    row("multi_slice", -1, "");
    row("Width", -1, "");
    row("", -1, "");
}

void TestSettingFacts::viewOfANameIsTheKeys()
{
    QFETCH(QString, member);
    QFETCH(int, view);
    QTEST(keyOfSetting(member, view), "key");
}

void TestSettingFacts::range_data()
{
    QTest::addColumn<QString>("low");
    QTest::addColumn<QString>("high");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("basis");
    const auto row = [](const char* key, const char* low, const char* high, const char* unit,
                        const char* basis) {
        QTest::newRow(key) << QString::fromLatin1(low) << QString::fromLatin1(high)
                           << QString::fromLatin1(unit) << QString::fromLatin1(basis);
    };
    row("Num Reference", "0", "16", "", "7.4.2.1.1: max_num_ref_frames");
    row("I Size V1", "0", "2147483647", "bytes", "");
    row("P Quantizer V0", "0", "51", "", "7.4.2.2");
    // As the dialog shows it: views and pictures beside the first.
    row("Number of views", "0", "3", "", "range of the encoder; H.7.4.2.1.4 allows 1024");
    row("B Between", "0", "3", "", "range of the encoder; discs allow 3 in a row");
    row("Brightness", "-100", "100", "", "");
    // Not corrected by itself; a switch; a list.
    row("Horizontal Size", "", "", "", "");
    row("Deblocking", "", "", "", "");
    row("Bit-depth Luma", "", "", "bits", "");
}

void TestSettingFacts::range()
{
    const auto facts = settingFacts(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(facts);
    const auto text = [](const std::optional<int>& number) {
        return number ? QString::number(*number) : QString();
    };
    QTEST(text(facts->low), "low");
    QTEST(text(facts->high), "high");
    QTEST(facts->unit, "unit");
    QTEST(facts->basis, "basis");
}

void TestSettingFacts::unknownKeyHasNone()
{
    QVERIFY(!settingFacts(QStringLiteral("Target Bitrate")));
    QVERIFY(!settingFacts(QStringLiteral("Target Bitrate V4")));
    QVERIFY(!settingFacts(QString()));
}

QTEST_GUILESS_MAIN(TestSettingFacts)
#include "tst_setting_facts.moc"
