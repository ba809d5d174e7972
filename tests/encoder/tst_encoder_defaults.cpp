// The presets as a host gets them from the library.

#include <QTest>

#include <algorithm>
#include <cstring>

#include "Encoder.h"
#include "SettingsLedger.h"

namespace
{

/// Whether the setting's control can show what the record has; in percent units.
bool isShown(const KvMvcSettings& record, const ledger::Setting& setting, int view)
{
    const double value = ledger::get(record, setting, view);
    const double shown = value - setting.added();
    const bool isFullness = setting.is("vbv_initial") || setting.is("vbv_target");
    const auto& named = ledger::namedValues(QString::fromLatin1(setting.member));
    switch (setting.kind) {
    case ledger::Kind::Number:
        return shown >= setting.least && shown <= (isFullness ? 100 : setting.most);
    case ledger::Kind::Radio:
        return value == 0;
    case ledger::Kind::FrameRate:
    case ledger::Kind::Aspect:
        return true; // see setEveryField()
    default:
        return std::any_of(named.begin(), named.end(),
                           [value](const auto& each) { return each.code == value; });
    }
}

void addPresets()
{
    QTest::addColumn<int>("number");
    QTest::newRow("none") << 0;
    QTest::newRow("Multivew High") << 1;
    QTest::newRow("Stereo High") << 2;
    QTest::newRow("Blu-ray 3D") << 3;
}

} // namespace

class TestEncoderDefaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passTheCheckWithNotesOnly_data() { addPresets(); }
    void passTheCheckWithNotesOnly();
    void tellOfTheirLevel_data();
    void tellOfTheirLevel();
    void lieInWhatControlsShow_data() { addPresets(); }
    void lieInWhatControlsShow();
    void setEveryField_data() { addPresets(); }
    void setEveryField();
    void differByPreset_data();
    void differByPreset();
    void overwriteTheWholeRecord_data() { addPresets(); }
    void overwriteTheWholeRecord();
    void ofUnknownNumbersAreThoseOf0_data();
    void ofUnknownNumbersAreThoseOf0();
    void stayAcceptableWhenAViewIsAdded();
    void refuseANullRecord();
};

void TestEncoderDefaults::passTheCheckWithNotesOnly()
{
    QFETCH(const int, number);
    KvMvcSettings record = encoder::preset(number);
    const KvMvcSettings before = record;
    const Outcome outcome = encoder::check(record);
    QCOMPARE(outcome.result, 0);
    QCOMPARE(outcome.errors(), QByteArrayList());
    QCOMPARE(outcome.warnings(), QByteArrayList());
    QCOMPARE(outcome.risks(), QByteArrayList());
    QVERIFY2(outcome.notes().size() >= 4 && outcome.notes().size() <= 7, outcome.all().constData());
    QVERIFY(std::memcmp(&before, &record, sizeof record) == 0);
}

void TestEncoderDefaults::tellOfTheirLevel_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("note");
    // Level 4.0 has room for 25 Mbit/s of picture data, and these have 30.
    QTest::newRow("none") << 0 << QByteArray("Level 4.1 is the lowest that fits.");
    QTest::newRow("Multivew High") << 1 << QByteArray("Level 4.1 is the lowest that fits.");
    QTest::newRow("Stereo High") << 2 << QByteArray("Level 4.1 is the lowest that fits.");
    QTest::newRow("Blu-ray 3D") << 3
                                << QByteArray(
                                       "These settings fit level 4.1, which Blu-ray 3D requires.");
}

void TestEncoderDefaults::tellOfTheirLevel()
{
    QFETCH(const int, number);
    QFETCH(const QByteArray, note);
    KvMvcSettings record = encoder::preset(number);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.notes().contains(note), outcome.all().constData());
}

void TestEncoderDefaults::lieInWhatControlsShow()
{
    QFETCH(const int, number);
    const KvMvcSettings record = encoder::preset(number);
    for (const ledger::Setting& setting : ledger::settings()) {
        for (const int view : {0, 1}) {
            QVERIFY2(isShown(record, setting, view), setting.member);
        }
    }
}

void TestEncoderDefaults::setEveryField()
{
    QFETCH(const int, number);
    const KvMvcSettings record = encoder::preset(number);
    for (const int view : {0, 1}) {
        for (const ledger::Setting& setting : ledger::settings()) {
            if (setting.preset) {
                QVERIFY2(ledger::get(record, setting, view) == *setting.preset, setting.member);
            }
        }
        QCOMPARE(record.views[view].video_type, number);
    }
}

void TestEncoderDefaults::differByPreset_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("views");
    QTest::addColumn<int>("references");
    QTest::addColumn<int>("baseTarget");
    QTest::newRow("none") << 0 << 1 << 3 << 20000000;
    QTest::newRow("Multivew High") << 1 << 2 << 3 << 20000000;
    QTest::newRow("Stereo High") << 2 << 2 << 3 << 20000000;
    QTest::newRow("Blu-ray 3D") << 3 << 2 << 3 << 22000000;
}

void TestEncoderDefaults::differByPreset()
{
    QFETCH(const int, number);
    QFETCH(const int, views);
    QFETCH(const int, references);
    QFETCH(const int, baseTarget);
    const KvMvcSettings record = encoder::preset(number);
    QCOMPARE(record.num_views, views);
    QCOMPARE(record.split_views, 0);
    QCOMPARE(record.views[0].num_ref_frames, references);
    QCOMPARE(record.views[1].num_ref_frames, references);
    QCOMPARE(record.views[0].bitrate, baseTarget);
    QCOMPARE(record.views[1].bitrate, baseTarget / 2);
    QCOMPARE(record.views[0].max_bitrate, 30000000);
    QCOMPARE(record.views[1].max_bitrate, 15000000);
    QCOMPARE(record.views[0].bitrate_buffer, 3750000);
    QCOMPARE(record.views[1].bitrate_buffer, 1875000);
}

void TestEncoderDefaults::overwriteTheWholeRecord()
{
    QFETCH(const int, number);
    KvMvcSettings ones;
    std::memset(&ones, 0xff, sizeof ones);
    KvMvcSettings zeros;
    std::memset(&zeros, 0, sizeof zeros);
    QCOMPARE(encoder::defaultsFunction()(&ones, 0, number, 0), 0);
    QCOMPARE(encoder::defaultsFunction()(&zeros, 0, number, 0), 0);
    QVERIFY(std::memcmp(&ones, &zeros, sizeof ones) == 0);
    for (const std::uint8_t byte : ones.reserved_8) {
        QCOMPARE(byte, 0);
    }
    for (const std::uint8_t byte : ones.views[1].reserved_5504) {
        QCOMPARE(byte, 0);
    }
}

void TestEncoderDefaults::ofUnknownNumbersAreThoseOf0_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("-1") << -1;
    QTest::newRow("4") << 4;
    QTest::newRow("lowest") << INT32_MIN;
    QTest::newRow("highest") << INT32_MAX;
}

void TestEncoderDefaults::ofUnknownNumbersAreThoseOf0()
{
    QFETCH(const int, number);
    const KvMvcSettings plain = encoder::preset(0);
    const KvMvcSettings unknown = encoder::preset(number);
    QVERIFY(std::memcmp(&plain, &unknown, sizeof plain) == 0);
}

void TestEncoderDefaults::stayAcceptableWhenAViewIsAdded()
{
    KvMvcSettings record = encoder::preset(0);
    record.num_views = 2;
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.accepted() && outcome.warnings().isEmpty(), outcome.all().constData());
}

void TestEncoderDefaults::refuseANullRecord()
{
    QVERIFY(encoder::defaultsFunction()(nullptr, 0, 1, 0) != 0);
}

QTEST_GUILESS_MAIN(TestEncoderDefaults)
#include "tst_encoder_defaults.moc"
