#include "Noise.h"

#include <QTest>

#include <climits>

/// An edit finds its way into the record: exactly the bytes of the edited setting, in the right
/// views, and no other byte. Every expectation is a place in the record, written down here.
class StateToSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void generalKeyIsStoredInEveryViewBelowTheCount_data();
    void generalKeyIsStoredInEveryViewBelowTheCount();
    void viewKeyIsStoredInItsSlotWhateverTheCount_data();
    void viewKeyIsStoredInItsSlotWhateverTheCount();
    void recordKeyIsStoredOnce_data();
    void recordKeyIsStoredOnce();
    void unknownTextChangesNothing_data();
    void unknownTextChangesNothing();
    void nameThatIsNotFoundStores0_data();
    void nameThatIsNotFoundStores0();
    void unknownKeyChangesNothing_data();
    void unknownKeyChangesNothing();
    void emptyStateChangesNothing();
    void manyKeysAtOnce();

    void presetIsThatOfRestorePresetBeforeVideoType_data();
    void presetIsThatOfRestorePresetBeforeVideoType();
    void restorePresetWithHorizontalSizeIgnoresTheSizeInEveryView();
    void presetEndsTheGeneralSettingsOnly();

    void targetBitrateV1ChangesView1Alone();
    void interlaceIsStoredInBothViewsOfTwo();
    void numberOfViewsWithInterlaceReachesTheViewsOfTheOldCount();
    void numberOfViews0StoresOneView();
};

namespace
{

struct NumberKey {
    const char* key;
    int offset;
    int added = 0;
};

struct TextKey {
    const char* key;
    int offset;
    QVector<QPair<const char*, int>> codes;
};

// Of the current view.
const QVector<NumberKey> generalNumbers = {
    {"Horizontal Size", 24}, {"Vertical Size", 28},     {"Pixel X", 100},
    {"Pixel Y", 104},        {"Scene Detection", 2836}, {"Interval I", 8},
    {"Force I", 4100},       {"IDR Marker", 4108},      {"Fixed I Position", 4116},
    {"Adaptive B", 4104},    {"Piramyd B", 2856},       {"B Between", 12, 1},
    {"Reference B", 2852},   {"Num Reference", 40},     {"Motion Search", 44},
    {"Weighted P", 2872},    {"Fast Reference", 4316},  {"Fast Subblock", 4320},
    {"Fast Intra", 2880},    {"Fast Inter", 2884},      {"Simple RD", 5116},
    {"Hadamard", 96},        {"Brightness", 5492},      {"Contrast", 5496},
    {"Complexity", 5500},    {"Deblocking", 256},       {"Threads", 2904},
};

const QVector<TextKey> generalTexts = {
    {"Interlace", 20, {{"Progressive", 0}, {"Interlaced", 1}, {"MBAFF", 2}}},
    {"Field Order", 4112, {{"Top Field First", 0}, {"Bot Field First", 1}}},
    {"Pulldown",
     1808,
     {{"Off", 0},
      {"2:3", 1},
      {"3:2", 2},
      {"2:3 P", 4},
      {"3:2 P", 5},
      {"Auto", 6},
      {"2:2", 7},
      {"3:3", 8}}},
    {"Chroma Format", 2252, {{"4:0:0", 1}, {"4:2:0", 2}, {"4:2:2", 3}, {"", 4}}},
    {"Bit-depth Luma", 2244, {{"8 bits", 8}, {"10 bits", 10}}},
    {"Bit-depth Chroma", 2248, {{"8 bits", 8}, {"10 bits", 10}}},
    {"Profile", 0, {{"Baseline", 0}, {"Main", 1}, {"High", 3}, {"High 10", 4}}},
    {"Level",
     4,
     {{"1.0", 10},
      {"1.1", 11},
      {"1.2", 12},
      {"1.3", 13},
      {"1.6", 16},
      {"2.0", 20},
      {"2.1", 21},
      {"2.2", 22},
      {"3.0", 30},
      {"3.1", 31},
      {"3.2", 32},
      {"4.0", 40},
      {"4.1", 41},
      {"4.2", 42},
      {"5.0", 50},
      {"5.1", 51},
      {"5.2", 52},
      {"Auto", 100}}},
    {"Macroblock Search", 88, {{"16 x 16", 0}, {"8 x 8", 1}}},
    {"Subpixel Search", 2868, {{"Full", 0}, {"Half", 1}, {"Quarter", 2}}},
    {"Entropy", 92, {{"CAVLC", 0}, {"CABAC", 1}}},
};

// Of the view that the key's suffix names.
const QVector<NumberKey> viewNumbers = {
    {"Target Bitrate", 80}, {"Max Bitrate", 84},     {"Bitrate Buffer", 76},  {"Units", 132},
    {"VBV Initial", 124},   {"VBV Target", 128},     {"I Size", 160},         {"P Size", 164},
    {"B Size", 168},        {"Br Size", 172},        {"I Quantizer", 60},     {"P Quantizer", 64},
    {"B Quantizer", 68},    {"Max Quantizer", 2920}, {"Min Quantizer", 2916}, {"HRD", 176},
};

struct RateCase {
    const char* text;
    double rate;
};

const QVector<RateCase> rates = {
    {"7.60", 7.6},
    {"9.10", 9.1},
    {"10.00", 10},
    {"12.50", 12.5},
    {"12.80", 12.8},
    {"15.00", 15},
    {"23.98", 24000.0 / 1001},
    {"24.00", 24},
    {"25.00", 25},
    {"29.97", 30000.0 / 1001},
    {"30.00", 30},
    {"50.00", 50},
    {"59.94", 60000.0 / 1001},
    {"60.00", 60},
    {"0", 0},
};

const int counts[] = {-1, 0, 1, 2, 4, 5};

/// What a whole number of the state stores, before the key's own offset.
struct Shown {
    QVariant value;
    int number;
};

QVector<Shown> shownNumbers()
{
    return {{1, 1},
            {-7, -7},
            {0x12345678, 0x12345678},
            {INT_MAX, INT_MAX},
            {INT_MIN, INT_MIN},
            {true, 1},
            {false, 0},
            {QStringLiteral("42"), 42},
            {QStringLiteral("many"), 0},
            {QVariant(), 0}};
}

int wrapped(int number, int added)
{
    return int(unsigned(number) + unsigned(added));
}

QByteArray rowName(const QString& key, const QVariant& value)
{
    return QStringLiteral("%1 = %2 '%3'")
        .arg(key, QLatin1String(value.typeName()), value.toString())
        .toUtf8();
}

/// The same cells for each view below the count.
Cells inViews(int views, const Cells& ofOneView)
{
    Cells cells;
    for (int view = 0; view < views; ++view) {
        for (Cell cell : ofOneView) {
            cell.view = view;
            cells += cell;
        }
    }
    return cells;
}

int reached(int count)
{
    return count < 0 ? 0 : count > 4 ? 4 : count;
}

} // namespace

void StateToSettingsTest::generalKeyIsStoredInEveryViewBelowTheCount_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<Cells>("ofOneView");
    const auto row = [](const char* key, const QVariant& value, const Cells& cells) {
        const QString text = QLatin1String(key);
        QTest::newRow(rowName(text, value).constData()) << text << value << cells;
    };
    for (const NumberKey& number : generalNumbers)
        for (const Shown& shown : shownNumbers())
            row(number.key, shown.value, {{0, number.offset, wrapped(shown.number, number.added)}});
    for (const TextKey& text : generalTexts)
        for (const auto& code : text.codes)
            row(text.key, QString(QLatin1String(code.first)), {{0, text.offset, code.second}});
    for (const RateCase& rate : rates)
        row("Frame Rate", QString(QLatin1String(rate.text)), {{0, 32, rate.rate}});

    const char* const ratio = "Picture Aspect Ratio";
    row(ratio, QStringLiteral("Custom"), {{0, 2888, -1}, {0, 2892, -1}});
    row(ratio, QStringLiteral("1:1"), {{0, 2888, 1}, {0, 2892, 1}, {0, 100, -1}, {0, 104, -1}});
    row(ratio, QStringLiteral("4:3"), {{0, 2888, 4}, {0, 2892, 3}, {0, 100, -1}, {0, 104, -1}});
    row(ratio, QStringLiteral("16:9"), {{0, 2888, 16}, {0, 2892, 9}, {0, 100, -1}, {0, 104, -1}});

    const char* const slices = "Slices";
    row(slices, 0, {{0, 2848, 1}, {0, 2844, 0}});
    row(slices, 1, {{0, 2848, 1}, {0, 2844, 0}});
    row(slices, 2, {{0, 2848, 2}, {0, 2844, 1}});
    row(slices, INT_MAX, {{0, 2848, INT_MAX}, {0, 2844, 1}});
    row(slices, -5, {{0, 2848, -5}, {0, 2844, 0}});

    for (const char* preset : {"Video Type", "Restore Preset"}) {
        row(preset, QStringLiteral("Multivew High"), {{0, 1804, 1}});
        row(preset, QStringLiteral("Stereo High"), {{0, 1804, 2}});
        row(preset, QStringLiteral("Blu-ray 3D"), {{0, 1804, 3}});
    }
}

void StateToSettingsTest::generalKeyIsStoredInEveryViewBelowTheCount()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(Cells, ofOneView);
    ConfigState state;
    state.insert(key, value);
    for (const int count : counts) {
        const WorkingRecord before = noisyRecord(count);
        QCOMPARE(changedBy(state, before), expected(before, inViews(reached(count), ofOneView)));
    }
}

void StateToSettingsTest::viewKeyIsStoredInItsSlotWhateverTheCount_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<Cells>("cells");
    const auto row = [](const char* base, int view, const QVariant& value, const Cells& cells) {
        const QString key = QStringLiteral("%1 V%2").arg(QLatin1String(base)).arg(view);
        QTest::newRow(rowName(key, value).constData()) << key << value << cells;
    };
    for (int view = 0; view < 4; ++view) {
        for (const NumberKey& number : viewNumbers)
            for (const Shown& shown : shownNumbers())
                row(number.key, view, shown.value, {{view, number.offset, shown.number}});
        const char* const mode = "Bitrate Mode";
        row(mode, view, QStringLiteral("Constant Bitrate"), {{view, 72, 0}, {view, 176, 1}});
        row(mode, view, QStringLiteral("Variable Bitrate"), {{view, 72, 2}});
        row(mode, view, QStringLiteral("Const. Quality - Constant Quantizer"), {{view, 72, 1}});
        row(mode, view, QStringLiteral("Const. Quality - Average Quantizer"), {{view, 72, 3}});
    }
}

void StateToSettingsTest::viewKeyIsStoredInItsSlotWhateverTheCount()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(Cells, cells);
    ConfigState state;
    state.insert(key, value);
    for (const int count : counts) {
        const WorkingRecord before = noisyRecord(count);
        QCOMPARE(changedBy(state, before), expected(before, cells));
    }
}

void StateToSettingsTest::recordKeyIsStoredOnce_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<Cells>("cells");
    const auto row = [](const char* key, const QVariant& value, const Cells& cells) {
        const QString text = QLatin1String(key);
        QTest::newRow(rowName(text, value).constData()) << text << value << cells;
    };
    for (const Shown& shown : shownNumbers()) {
        row("Number of views", shown.value, {{Cell::Record, 0, wrapped(shown.number, 1)}});
        row("Split", shown.value, {{Cell::Record, 4, shown.number}});
    }
    for (int additional = 0; additional <= 3; ++additional)
        row("Number of views", double(additional), {{Cell::Record, 0, additional + 1}});
}

void StateToSettingsTest::recordKeyIsStoredOnce()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(Cells, cells);
    ConfigState state;
    state.insert(key, value);
    for (const int count : counts) {
        const WorkingRecord before = noisyRecord(count);
        QCOMPARE(changedBy(state, before), expected(before, cells));
    }
}

void StateToSettingsTest::unknownTextChangesNothing_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    for (const char* key :
         {"Interlace", "Field Order", "Pulldown", "Bit-depth Luma", "Bit-depth Chroma",
          "Macroblock Search", "Subpixel Search", "Entropy", "Picture Aspect Ratio", "Frame Rate",
          "Bitrate Mode V0", "Bitrate Mode V1", "Bitrate Mode V2", "Bitrate Mode V3"}) {
        for (const char* text : {"", "no such item", "3", "progressive", "mbaff", "Off ", "25"})
            QTest::newRow(qPrintable(
                QStringLiteral("%1 = '%2'").arg(QLatin1String(key), QLatin1String(text))))
                << QString(QLatin1String(key)) << QString(QLatin1String(text));
    }
}

void StateToSettingsTest::unknownTextChangesNothing()
{
    QFETCH(QString, key);
    QFETCH(QString, text);
    ConfigState state;
    state.insert(key, text);
    QCOMPARE(changedBy(state, noisyRecord(2)), QStringList());
}

void StateToSettingsTest::nameThatIsNotFoundStores0_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("text");
    const QVector<QPair<const char*, int>> fields = {
        {"Profile", 0}, {"Level", 4}, {"Video Type", 1804}, {"Restore Preset", 1804}};
    for (const auto& field : fields)
        for (const char* text : {"", "no such name", "high", "Multiview High", "High 422"})
            QTest::newRow(qPrintable(
                QStringLiteral("%1 = '%2'").arg(QLatin1String(field.first), QLatin1String(text))))
                << QString(QLatin1String(field.first)) << field.second
                << QString(QLatin1String(text));
}

void StateToSettingsTest::nameThatIsNotFoundStores0()
{
    QFETCH(QString, key);
    QFETCH(int, offset);
    QFETCH(QString, text);
    ConfigState state;
    state.insert(key, text);
    const WorkingRecord before = noisyRecord(2);
    QCOMPARE(changedBy(state, before), expected(before, {{0, offset, 0}, {1, offset, 0}}));
}

void StateToSettingsTest::unknownKeyChangesNothing_data()
{
    QTest::addColumn<QString>("key");
    for (const char* key : {"", "Foo", "horizontal size", "Horizontal Size ", "Horizontal Size V0",
                            "Target Bitrate", "Target Bitrate V4", "Target Bitrate V", "HRD V01",
                            "HRD V-1", "Pyramid B", "Number of Views"})
        QTest::newRow(qPrintable(QStringLiteral("'%1'").arg(QLatin1String(key))))
            << QString(QLatin1String(key));
}

void StateToSettingsTest::unknownKeyChangesNothing()
{
    QFETCH(QString, key);
    ConfigState state;
    state.insert(key, 1);
    QCOMPARE(changedBy(state, noisyRecord(4)), QStringList());
}

void StateToSettingsTest::emptyStateChangesNothing()
{
    QCOMPARE(changedBy({}, noisyRecord(4)), QStringList());
}

void StateToSettingsTest::manyKeysAtOnce()
{
    ConfigState state;
    state.insert(QString(), 6000);
    state.insert(QStringLiteral("Horizontal Size"), 1280);
    state.insert(QStringLiteral("Vertical Size"), 720);
    state.insert(QStringLiteral("Level"), QStringLiteral("Auto"));
    state.insert(QStringLiteral("HRD V1"), true);
    state.insert(QStringLiteral("Split"), true);
    const WorkingRecord before = noisyRecord(2);
    QCOMPARE(changedBy(state, before), expected(before, {{Cell::Record, 4, 1},
                                                         {0, 4, 100},
                                                         {0, 24, 1280},
                                                         {0, 28, 720},
                                                         {1, 4, 100},
                                                         {1, 24, 1280},
                                                         {1, 28, 720},
                                                         {1, 176, 1}}));
}

void StateToSettingsTest::presetIsThatOfRestorePresetBeforeVideoType_data()
{
    QTest::addColumn<QString>("restorePreset");
    QTest::addColumn<QString>("videoType");
    QTest::addColumn<int>("code");
    const QString absent;
    const QString blank = QStringLiteral("");
    const QString multiview = QStringLiteral("Multivew High");
    const QString stereo = QStringLiteral("Stereo High");
    QTest::newRow("neither") << absent << absent << -1;
    QTest::newRow("restored") << stereo << absent << 2;
    QTest::newRow("chosen") << absent << multiview << 1;
    QTest::newRow("both") << stereo << multiview << 2;
    QTest::newRow("restored without a name") << blank << absent << 0;
    QTest::newRow("unknown name restored") << QStringLiteral("Mono") << multiview << 0;
    QTest::newRow("unknown name chosen") << absent << QStringLiteral("stereo high") << 0;
}

void StateToSettingsTest::presetIsThatOfRestorePresetBeforeVideoType()
{
    QFETCH(QString, restorePreset);
    QFETCH(QString, videoType);
    QFETCH(int, code);
    ConfigState state;
    if (!restorePreset.isNull())
        state.insert(QStringLiteral("Restore Preset"), restorePreset);
    if (!videoType.isNull())
        state.insert(QStringLiteral("Video Type"), videoType);
    QCOMPARE(int(requestedPreset(Vocabulary(), state).value_or(-1)), code);

    const WorkingRecord before = noisyRecord(2);
    QCOMPARE(changedBy(state, before),
             code < 0 ? QStringList() : expected(before, {{0, 1804, code}, {1, 1804, code}}));
}

void StateToSettingsTest::restorePresetWithHorizontalSizeIgnoresTheSizeInEveryView()
{
    ConfigState state;
    state.insert(QStringLiteral("Restore Preset"), QStringLiteral("Stereo High"));
    state.insert(QStringLiteral("Horizontal Size"), 720);
    state.insert(QStringLiteral("Slices"), 1);
    const WorkingRecord before = noisyRecord(2);
    QCOMPARE(changedBy(state, before), expected(before, {{0, 1804, 2}, {1, 1804, 2}}));
}

void StateToSettingsTest::presetEndsTheGeneralSettingsOnly()
{
    ConfigState state;
    state.insert(QStringLiteral("Video Type"), QStringLiteral("Blu-ray 3D"));
    state.insert(QStringLiteral("Target Bitrate V1"), 5000);
    state.insert(QStringLiteral("Number of views"), 0);
    const WorkingRecord before = noisyRecord(2);
    QCOMPARE(changedBy(state, before),
             expected(before, {{Cell::Record, 0, 1}, {0, 1804, 3}, {1, 1804, 3}, {1, 80, 5000}}));
}

void StateToSettingsTest::targetBitrateV1ChangesView1Alone()
{
    const WorkingRecord before = noisyRecord(2);
    QCOMPARE(changedBy(oneEntry("Target Bitrate V1", 0x01020304), before),
             QStringList(QStringLiteral("view 1 +80: 04030201")));
}

void StateToSettingsTest::interlaceIsStoredInBothViewsOfTwo()
{
    const WorkingRecord before = noisyRecord(2);
    QCOMPARE(changedBy(oneEntry("Interlace", QStringLiteral("MBAFF")), before),
             (QStringList{QStringLiteral("view 0 +20: 02000000"),
                          QStringLiteral("view 1 +20: 02000000")}));
}

void StateToSettingsTest::numberOfViewsWithInterlaceReachesTheViewsOfTheOldCount()
{
    ConfigState state;
    state.insert(QStringLiteral("Number of views"), 0);
    state.insert(QStringLiteral("Interlace"), QStringLiteral("Interlaced"));
    const WorkingRecord before = noisyRecord(3);
    QCOMPARE(changedBy(state, before), (QStringList{QStringLiteral("record +0: 01000000"),
                                                    QStringLiteral("view 0 +20: 01000000"),
                                                    QStringLiteral("view 1 +20: 01000000"),
                                                    QStringLiteral("view 2 +20: 01000000")}));
}

void StateToSettingsTest::numberOfViews0StoresOneView()
{
    const WorkingRecord before = noisyRecord(2);
    QCOMPARE(changedBy(oneEntry("Number of views", 0), before),
             QStringList(QStringLiteral("record +0: 01000000")));
}

QTEST_APPLESS_MAIN(StateToSettingsTest)
#include "tst_state_to_settings.moc"
