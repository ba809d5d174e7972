#include "Noise.h"

#include "model/SettingsToState.h"

#include <QTest>

#include <cmath>
#include <cstring>
#include <limits>

/// The settings that are more than a number or a text: what they depend on, and what depends on
/// them.
class TestSettingRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void frameRateIsShownAs_data();
    void frameRateIsShownAs();
    void customFrameRateIsStoredByItsText_data();
    void customFrameRateIsStoredByItsText();
    void customFrameRateThatReadsLikeAnItemStoresTheItem();
    void textOfNoFrameRateChangesNothing_data();
    void textOfNoFrameRateChangesNothing();
    void frameRate2997StoresTheExactRatio();
    void frameRate760Stores7Point6();
    void customFrameRateIsEnabledThoughLocked();
    void standardFrameRateIsDisabledWhenLocked_data();
    void standardFrameRateIsDisabledWhenLocked();

    void aspectRatioIsShownAs_data();
    void aspectRatioIsShownAs();
    void pixelValuesAreLockedToo();
    void namedAspectRatioWinsOverPixelX();
    void customAspectRatioKeepsPixelValuesOfTheSameState();
    void wideAspectRatioUnsetsPixelValuesOfTheSameState();
    void displayPair4To3WithPixelValuesShowsThemDisabled();
    void displayPair5To4HasNoEntryAndDisabledPixelValues();

    void fieldOrderIsShownAs_data();
    void fieldOrderIsShownAs();
    void bottomFirstOnProgressiveMaterialIsNotShown();

    void slicesAreNormalisedThoughAbsent_data();
    void slicesAreNormalisedThoughAbsent();
    void slices0Stores1AndSlices2SetsMultiSlice();

    void constantBitrateSwitchesHrdOn();
    void constantBitrateWithHrd0EndsWithHrdOff();
    void otherModesLeaveHrd_data();
    void otherModesLeaveHrd();
    void modeOfOneViewLeavesTheOthersHrd();

    void unknownChromaTextStores420ButUnknownInterlaceNothing();
    void refDistance1ShowsBBetween0();
};

namespace
{

constexpr int anyLock = -1;
constexpr int frameRateLock = 0x8000;
constexpr int pixelLock = 0x10000;

QVariant valueOf(const ConfigState& state, const char* key)
{
    return state.value(QLatin1String(key));
}

ConfigEntry entryOf(const ConfigState& state, const char* key)
{
    return state.entry(QLatin1String(key));
}

bool holds(const ConfigState& state, const char* key)
{
    return state.contains(QLatin1String(key));
}

WorkingRecord recordWith(const Cells& cells)
{
    WorkingRecord record = noisyRecord(1);
    put(record, cells);
    return record;
}

BasicDescription describe(const Cells& cells, int flags = 0)
{
    return describeBasic(Vocabulary(), flags, recordWith(cells).view(0));
}

const double notANumber = std::numeric_limits<double>::quiet_NaN();
const double infinity = std::numeric_limits<double>::infinity();

/// Bit for bit, so that NaN equals itself.
bool same(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

void addRow(const char* name, double rate, const char* text)
{
    QTest::newRow(name) << rate << QString(QLatin1String(text));
}

} // namespace

void TestSettingRules::frameRateIsShownAs_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("custom");
    const auto item = [](const char* name, double rate, const char* text) {
        QTest::newRow(name) << rate << QString(QLatin1String(text)) << false;
    };
    const auto custom = [](const char* name, double rate, const char* text) {
        QTest::newRow(name) << rate << QString(QLatin1String(text)) << true;
    };
    item("7.6", 7.6, "7.60");
    item("9.1", 9.1, "9.10");
    item("10", 10, "10.00");
    item("12.5", 12.5, "12.50");
    item("12.8", 12.8, "12.80");
    item("15", 15, "15.00");
    item("24000/1001", 24000.0 / 1001, "23.98");
    item("24", 24, "24.00");
    item("25", 25, "25.00");
    item("30000/1001", 30000.0 / 1001, "29.97");
    item("30", 30, "30.00");
    item("50", 50, "50.00");
    item("60000/1001", 60000.0 / 1001, "59.94");
    item("60", 60, "60.00");
    item("0", 0, "0");
    item("minus 0", -0.0, "0");

    item("23.976 shows 23.98", 23.976, "23.98");
    item("23.9761", 23.9761, "23.98");
    item("just below 24000/1001", 24000.0 / 1001 - 0.000099, "23.98");
    item("just above 24000/1001", 24000.0 / 1001 + 0.000099, "23.98");
    item("29.97", 29.97, "29.97");
    item("29.97003", 29.97003, "29.97");
    item("59.94", 59.94, "59.94");
    item("59.94006", 59.94006, "59.94");
    custom("beyond the tolerance of 23.98", 23.9762, "23.9762");
    custom("below the tolerance of 23.98", 23.9759, "23.9759");
    custom("beyond the tolerance of 29.97", 29.9702, "29.9702");
    custom("beyond the tolerance of 59.94", 59.9402, "59.9402");
    custom("23.98 is a rate of its own", 23.98, "23.98");

    custom("25 has no tolerance", 25.00001, "25.00001");
    custom("7.6 has no tolerance", 7.600001, "7.600001");
    custom("48 shows no fraction", 48, "48");
    custom("120", 120, "120");
    custom("negative", -25, "-25");
    custom("tiny", 0.00001, "1e-05");
    custom("not a number", notANumber, "nan");
    custom("infinite", infinity, "inf");
}

void TestSettingRules::frameRateIsShownAs()
{
    QFETCH(double, rate);
    QFETCH(QString, text);
    QFETCH(bool, custom);
    const BasicDescription description = describe({{0, 32, rate}});
    QCOMPARE(entryOf(description.state, "Frame Rate"), (ConfigEntry{text, true}));
    QCOMPARE(description.customFrameRate.has_value(), custom);
    if (custom) {
        QCOMPARE(description.customFrameRate->text, text);
        QVERIFY(same(description.customFrameRate->rate, rate));
    }
}

void TestSettingRules::customFrameRateIsStoredByItsText_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<QString>("text");
    addRow("48", 48, "48");
    addRow("third", 1.0 / 3, "0.3333333333333333");
    addRow("almost 25", 25.00001, "25.00001");
    addRow("negative", -25, "-25");
    addRow("not a number", notANumber, "nan");
    addRow("infinite", infinity, "inf");
}

void TestSettingRules::customFrameRateIsStoredByItsText()
{
    QFETCH(double, rate);
    QFETCH(QString, text);
    const auto custom = describe({{0, 32, rate}}).customFrameRate;
    QVERIFY(custom.has_value());
    QCOMPARE(custom->text, text);

    WorkingRecord record = recordWith({{0, 32, 25.0}});
    apply(oneEntry("Frame Rate", text), record, *custom);
    const double stored = record.view(0).frame_rate;
    QVERIFY(same(stored, rate));
}

void TestSettingRules::customFrameRateThatReadsLikeAnItemStoresTheItem()
{
    const auto custom = describe({{0, 32, 23.98}}).customFrameRate;
    QVERIFY(custom.has_value());
    WorkingRecord record = recordWith({{0, 32, 23.98}});
    apply(oneEntry("Frame Rate", QStringLiteral("23.98")), record, *custom);
    QVERIFY(same(record.view(0).frame_rate, 24000.0 / 1001));
}

void TestSettingRules::textOfNoFrameRateChangesNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("customText");
    const QString none;
    QTest::newRow("empty, no custom rate yet") << QString() << none;
    QTest::newRow("other custom text") << QStringLiteral("47") << QStringLiteral("48");
    QTest::newRow("another way of writing it") << QStringLiteral("48.00") << QStringLiteral("48");
    QTest::newRow("item without its zeros") << QStringLiteral("25") << none;
    QTest::newRow("zero with a fraction") << QStringLiteral("0.00") << none;
}

void TestSettingRules::textOfNoFrameRateChangesNothing()
{
    QFETCH(QString, text);
    QFETCH(QString, customText);
    const WorkingRecord before = noisyRecord(2);
    WorkingRecord after = before;
    apply(oneEntry("Frame Rate", text), after, {customText, 48});
    QCOMPARE(differences(bytesOf(before), bytesOf(after)), QStringList());
}

void TestSettingRules::frameRate2997StoresTheExactRatio()
{
    WorkingRecord record = noisyRecord(1);
    apply(oneEntry("Frame Rate", QStringLiteral("29.97")), record);
    QVERIFY(same(record.view(0).frame_rate, 30000.0 / 1001));
}

void TestSettingRules::frameRate760Stores7Point6()
{
    WorkingRecord record = noisyRecord(1);
    apply(oneEntry("Frame Rate", QStringLiteral("7.60")), record);
    QVERIFY(same(record.view(0).frame_rate, 7.6));
}

void TestSettingRules::customFrameRateIsEnabledThoughLocked()
{
    const BasicDescription description = describe({{0, 32, 48.0}}, frameRateLock);
    QCOMPARE(entryOf(description.state, "Frame Rate"), (ConfigEntry{QStringLiteral("48"), true}));
}

void TestSettingRules::standardFrameRateIsDisabledWhenLocked_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<QString>("text");
    addRow("25", 25, "25.00");
    addRow("23.976", 23.976, "23.98");
    addRow("0", 0, "0");
}

void TestSettingRules::standardFrameRateIsDisabledWhenLocked()
{
    QFETCH(double, rate);
    QFETCH(QString, text);
    QCOMPARE(entryOf(describe({{0, 32, rate}}, frameRateLock).state, "Frame Rate"),
             (ConfigEntry{text, false}));
    QCOMPARE(entryOf(describe({{0, 32, rate}}, ~frameRateLock).state, "Frame Rate"),
             (ConfigEntry{text, true}));
}

void TestSettingRules::aspectRatioIsShownAs_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<QVariant>("text");
    QTest::addColumn<bool>("pixelValuesEnabled");
    const QVariant none;
    QTest::newRow("-1, -1") << -1 << -1 << QVariant(QStringLiteral("Custom")) << true;
    QTest::newRow("1, 1") << 1 << 1 << QVariant(QStringLiteral("1:1")) << false;
    QTest::newRow("4, 3") << 4 << 3 << QVariant(QStringLiteral("4:3")) << false;
    QTest::newRow("16, 9") << 16 << 9 << QVariant(QStringLiteral("16:9")) << false;
    QTest::newRow("5, 4") << 5 << 4 << none << false;
    QTest::newRow("0, 0") << 0 << 0 << none << false;
    QTest::newRow("3, 4") << 3 << 4 << none << false;
    QTest::newRow("8, 6 is not reduced") << 8 << 6 << none << false;
    QTest::newRow("-1, 1") << -1 << 1 << none << false;
    QTest::newRow("1, -1") << 1 << -1 << none << false;
    QTest::newRow("16, 3") << 16 << 3 << none << false;
}

void TestSettingRules::aspectRatioIsShownAs()
{
    QFETCH(int, x);
    QFETCH(int, y);
    QFETCH(bool, pixelValuesEnabled);
    const ConfigState state =
        describe({{0, 2888, x}, {0, 2892, y}, {0, 100, 10}, {0, 104, 11}}).state;
    QTEST(valueOf(state, "Picture Aspect Ratio"), "text");
    QCOMPARE(holds(state, "Picture Aspect Ratio"),
             valueOf(state, "Picture Aspect Ratio").isValid());
    QCOMPARE(entryOf(state, "Pixel X"), (ConfigEntry{10, pixelValuesEnabled}));
    QCOMPARE(entryOf(state, "Pixel Y"), (ConfigEntry{11, pixelValuesEnabled}));
}

void TestSettingRules::pixelValuesAreLockedToo()
{
    const Cells custom = {{0, 2888, -1}, {0, 2892, -1}};
    const ConfigState locked = describe(custom, pixelLock).state;
    QVERIFY(!entryOf(locked, "Pixel X").enabled);
    QVERIFY(!entryOf(locked, "Pixel Y").enabled);
    QVERIFY(entryOf(locked, "Picture Aspect Ratio").enabled);
    const ConfigState others = describe(custom, anyLock & ~pixelLock).state;
    QVERIFY(entryOf(others, "Pixel X").enabled);
    QVERIFY(entryOf(others, "Pixel Y").enabled);
}

void TestSettingRules::namedAspectRatioWinsOverPixelX()
{
    ConfigState state;
    state.insert(QStringLiteral("Picture Aspect Ratio"), QStringLiteral("4:3"));
    state.insert(QStringLiteral("Pixel X"), 10);
    const WorkingRecord before = noisyRecord(1);
    QCOMPARE(changedBy(state, before),
             expected(before, {{0, 100, -1}, {0, 104, -1}, {0, 2888, 4}, {0, 2892, 3}}));
}

void TestSettingRules::customAspectRatioKeepsPixelValuesOfTheSameState()
{
    ConfigState state;
    state.insert(QStringLiteral("Picture Aspect Ratio"), QStringLiteral("Custom"));
    state.insert(QStringLiteral("Pixel X"), 10);
    state.insert(QStringLiteral("Pixel Y"), 11);
    const WorkingRecord before = noisyRecord(1);
    QCOMPARE(changedBy(state, before),
             expected(before, {{0, 100, 10}, {0, 104, 11}, {0, 2888, -1}, {0, 2892, -1}}));
}

void TestSettingRules::wideAspectRatioUnsetsPixelValuesOfTheSameState()
{
    ConfigState state;
    state.insert(QStringLiteral("Picture Aspect Ratio"), QStringLiteral("16:9"));
    state.insert(QStringLiteral("Pixel X"), 10);
    state.insert(QStringLiteral("Pixel Y"), 11);
    const WorkingRecord before = noisyRecord(1);
    QCOMPARE(changedBy(state, before),
             expected(before, {{0, 100, -1}, {0, 104, -1}, {0, 2888, 16}, {0, 2892, 9}}));
}

void TestSettingRules::displayPair4To3WithPixelValuesShowsThemDisabled()
{
    const ConfigState state =
        describe({{0, 2888, 4}, {0, 2892, 3}, {0, 100, 10}, {0, 104, 11}}).state;
    QCOMPARE(entryOf(state, "Pixel X"), (ConfigEntry{10, false}));
    QCOMPARE(entryOf(state, "Pixel Y"), (ConfigEntry{11, false}));
    QCOMPARE(entryOf(state, "Picture Aspect Ratio"), (ConfigEntry{QStringLiteral("4:3"), true}));
}

void TestSettingRules::displayPair5To4HasNoEntryAndDisabledPixelValues()
{
    const ConfigState state = describe({{0, 2888, 5}, {0, 2892, 4}}).state;
    QVERIFY(!holds(state, "Picture Aspect Ratio"));
    QVERIFY(!entryOf(state, "Pixel X").enabled);
    QVERIFY(!entryOf(state, "Pixel Y").enabled);
}

void TestSettingRules::fieldOrderIsShownAs_data()
{
    QTest::addColumn<int>("interlaceMode");
    QTest::addColumn<int>("fieldOrder");
    QTest::addColumn<QVariant>("text");
    QTest::addColumn<bool>("enabled");
    const QVariant top = QStringLiteral("Top Field First");
    const QVariant bottom = QStringLiteral("Bot Field First");
    const QVariant none;
    QTest::newRow("progressive, top") << 0 << 0 << top << false;
    QTest::newRow("interlaced, top") << 1 << 0 << top << true;
    QTest::newRow("MBAFF, top") << 2 << 0 << top << true;
    QTest::newRow("unknown mode, top") << 3 << 0 << top << false;
    QTest::newRow("negative mode, top") << -1 << 0 << top << false;
    QTest::newRow("progressive, bottom") << 0 << 1 << none << true;
    QTest::newRow("interlaced, bottom") << 1 << 1 << bottom << true;
    QTest::newRow("MBAFF, bottom") << 2 << 1 << bottom << true;
    QTest::newRow("unknown mode, bottom") << 3 << 1 << none << true;
    QTest::newRow("interlaced, any other order") << 1 << 7 << bottom << true;
    QTest::newRow("interlaced, negative order") << 1 << -1 << bottom << true;
    QTest::newRow("progressive, any other order") << 0 << 7 << none << true;
}

void TestSettingRules::fieldOrderIsShownAs()
{
    QFETCH(int, interlaceMode);
    QFETCH(int, fieldOrder);
    QFETCH(QVariant, text);
    QFETCH(bool, enabled);
    const ConfigState state = describe({{0, 20, interlaceMode}, {0, 4112, fieldOrder}}).state;
    QCOMPARE(holds(state, "Field Order"), text.isValid());
    QCOMPARE(entryOf(state, "Field Order"), (ConfigEntry{text, enabled}));
}

void TestSettingRules::bottomFirstOnProgressiveMaterialIsNotShown()
{
    QVERIFY(!holds(describe({{0, 20, 0}, {0, 4112, 1}}).state, "Field Order"));
}

void TestSettingRules::slicesAreNormalisedThoughAbsent_data()
{
    QTest::addColumn<int>("slices");
    QTest::addColumn<int>("multiSlice");
    QTest::addColumn<int>("storedSlices");
    QTest::addColumn<int>("storedMultiSlice");
    QTest::newRow("none") << 0 << 0 << 1 << 0;
    QTest::newRow("none, several claimed") << 0 << 1 << 1 << 0;
    QTest::newRow("one, several claimed") << 1 << 1 << 1 << 0;
    QTest::newRow("several, one claimed") << 5 << 0 << 5 << 1;
    QTest::newRow("negative") << -2 << 1 << -2 << 0;
    QTest::newRow("noise as claim") << 2 << 77 << 2 << 1;
}

void TestSettingRules::slicesAreNormalisedThoughAbsent()
{
    QFETCH(int, slices);
    QFETCH(int, multiSlice);
    QFETCH(int, storedSlices);
    QFETCH(int, storedMultiSlice);
    const WorkingRecord before = recordWith({{0, 2844, multiSlice}, {0, 2848, slices}});
    QCOMPARE(changedBy(oneEntry("Split", 1), before), expected(before, {{Cell::Record, 4, 1},
                                                                        {0, 2844, storedMultiSlice},
                                                                        {0, 2848, storedSlices}}));
}

void TestSettingRules::slices0Stores1AndSlices2SetsMultiSlice()
{
    WorkingRecord record = noisyRecord(1);
    apply(oneEntry("Slices", 0), record);
    QCOMPARE(int(record.view(0).num_slices), 1);
    QCOMPARE(int(record.view(0).multi_slice), 0);
    apply(oneEntry("Slices", 2), record);
    QCOMPARE(int(record.view(0).num_slices), 2);
    QCOMPARE(int(record.view(0).multi_slice), 1);
}

void TestSettingRules::constantBitrateSwitchesHrdOn()
{
    WorkingRecord record = recordWith({{0, 176, 0}});
    apply(oneEntry("Bitrate Mode V0", QStringLiteral("Constant Bitrate")), record);
    QCOMPARE(int(record.view(0).bitrate_mode), 0);
    QCOMPARE(int(record.view(0).hrd_mode), 1);
}

void TestSettingRules::constantBitrateWithHrd0EndsWithHrdOff()
{
    WorkingRecord record = recordWith({{0, 176, 1}});
    ConfigState state = oneEntry("Bitrate Mode V0", QStringLiteral("Constant Bitrate"));
    state.insert(QStringLiteral("HRD V0"), 0);
    apply(state, record);
    QCOMPARE(int(record.view(0).bitrate_mode), 0);
    QCOMPARE(int(record.view(0).hrd_mode), 0);
}

void TestSettingRules::otherModesLeaveHrd_data()
{
    QTest::addColumn<QString>("mode");
    for (const char* mode : {"Variable Bitrate", "Const. Quality - Constant Quantizer",
                             "Const. Quality - Average Quantizer", "no such mode", ""}) {
        QTest::newRow(*mode ? mode : "empty") << QString(QLatin1String(mode));
    }
}

void TestSettingRules::otherModesLeaveHrd()
{
    QFETCH(QString, mode);
    for (const int hrd : {0, 1, -9}) {
        WorkingRecord record = recordWith({{0, 176, hrd}});
        apply(oneEntry("Bitrate Mode V0", mode), record);
        QCOMPARE(int(record.view(0).hrd_mode), hrd);
    }
}

void TestSettingRules::modeOfOneViewLeavesTheOthersHrd()
{
    const WorkingRecord before = noisyRecord(4);
    QCOMPARE(changedBy(oneEntry("Bitrate Mode V2", QStringLiteral("Constant Bitrate")), before),
             expected(before, {{2, 72, 0}, {2, 176, 1}}));
}

void TestSettingRules::unknownChromaTextStores420ButUnknownInterlaceNothing()
{
    const WorkingRecord before = noisyRecord(1);
    QCOMPARE(changedBy(oneEntry("Chroma Format", QStringLiteral("4:4:4")), before),
             QStringList(QStringLiteral("view 0 +2252: 02000000")));
    QCOMPARE(changedBy(oneEntry("Interlace", QStringLiteral("4:4:4")), before), QStringList());
}

void TestSettingRules::refDistance1ShowsBBetween0()
{
    const ConfigState state = describeAdvanced(Vocabulary(), 0, recordWith({{0, 12, 1}}).view(0));
    QCOMPARE(valueOf(state, "B Between"), QVariant(0));
}

QTEST_APPLESS_MAIN(TestSettingRules)
#include "tst_setting_rules.moc"
