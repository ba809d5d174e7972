#include "Noise.h"

#include "model/SettingsToState.h"

#include <QTest>

#include <climits>
#include <cstring>

/// What the record holds is described under its key, as a value of the right kind, enabled as the
/// host's locks say. Every expectation is a place in the record, written down here.
class SettingsToStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldIsDescribedAs_data();
    void fieldIsDescribedAs();
    void unknownCodeHasNoEntry_data();
    void unknownCodeHasNoEntry();
    void videoTypeIsDescribedAs_data();
    void videoTypeIsDescribedAs();

    void fieldIsSeenByItsKeyAlone_data();
    void fieldIsSeenByItsKeyAlone();
    void reservedBytesAreSeenByNoKey();

    void descriptionHasItsKeys_data();
    void descriptionHasItsKeys();
    void lockBitDisablesItsKeysAlone_data();
    void lockBitDisablesItsKeysAlone();

    void eachViewIsDescribedFromItsOwnSlot();
    void oneViewShows0AdditionalViewsAndAllFourSlots();
    void countIsShownAsItIs_data();
    void countIsShownAsItIs();
};

namespace
{

enum Part { Basic, Advanced, Views };

const Vocabulary& vocabulary()
{
    static const Vocabulary words;
    return words;
}

/// The named description; that of the first view where it is of one view.
ConfigState described(int part, const WorkingRecord& record, int flags = 0)
{
    switch (part) {
    case Basic:
        return describeBasic(vocabulary(), flags, record.view(0)).state;
    case Advanced:
        return describeAdvanced(vocabulary(), flags, record.view(0));
    default:
        return describeViews(vocabulary(), flags, record);
    }
}

/// A record in which every setting has an entry that is enabled while nothing is locked.
WorkingRecord describableRecord()
{
    WorkingRecord record = noisyRecord(2);
    record.settings = exampleSettings();
    record.view(2) = record.view(0);
    record.view(3) = record.view(1);
    return record;
}

QStringList differingKeys(const ConfigState& a, const ConfigState& b)
{
    QStringList keys;
    for (auto entry = a.entries().begin(); entry != a.entries().end(); ++entry)
        if (!b.contains(entry.key()) || !(b.entry(entry.key()) == *entry))
            keys += entry.key();
    for (const QString& key : b.entries().keys())
        if (!a.contains(key))
            keys += key;
    return keys;
}

QStringList list(const QVector<const char*>& texts)
{
    QStringList strings;
    for (const char* text : texts)
        strings += QLatin1String(text);
    return strings;
}

struct NumberField {
    Part part;
    const char* key;
    int offset;
    int subtracted = 0;
};

const QVector<NumberField> numberFields = {
    {Basic, "Horizontal Size", 24},
    {Basic, "Vertical Size", 28},
    {Basic, "Pixel X", 100},
    {Basic, "Pixel Y", 104},
    {Advanced, "Scene Detection", 2836},
    {Advanced, "Interval I", 8},
    {Advanced, "Force I", 4100},
    {Advanced, "IDR Marker", 4108},
    {Advanced, "Fixed I Position", 4116},
    {Advanced, "Adaptive B", 4104},
    {Advanced, "Piramyd B", 2856},
    {Advanced, "B Between", 12, 1},
    {Advanced, "Reference B", 2852},
    {Advanced, "Num Reference", 40},
    {Advanced, "Motion Search", 44},
    {Advanced, "Weighted P", 2872},
    {Advanced, "Fast Reference", 4316},
    {Advanced, "Fast Subblock", 4320},
    {Advanced, "Fast Intra", 2880},
    {Advanced, "Fast Inter", 2884},
    {Advanced, "Simple RD", 5116},
    {Advanced, "Hadamard", 96},
    {Advanced, "Brightness", 5492},
    {Advanced, "Contrast", 5496},
    {Advanced, "Complexity", 5500},
    {Advanced, "Deblocking", 256},
    {Advanced, "Slices", 2848},
    {Advanced, "Threads", 2904},
};

struct ViewNumberField {
    const char* base;
    int offset;
};

const QVector<ViewNumberField> viewNumberFields = {
    {"Target Bitrate", 80}, {"Max Bitrate", 84},     {"Bitrate Buffer", 76},  {"Units", 132},
    {"VBV Initial", 124},   {"VBV Target", 128},     {"I Size", 160},         {"P Size", 164},
    {"B Size", 168},        {"Br Size", 172},        {"I Quantizer", 60},     {"P Quantizer", 64},
    {"B Quantizer", 68},    {"Max Quantizer", 2920}, {"Min Quantizer", 2916}, {"HRD", 176},
};

struct TextField {
    Part part;
    const char* key;
    int offset;
    QVector<QPair<int, const char*>> texts;
};

const QVector<TextField> textFields = {
    {Basic, "Interlace", 20, {{0, "Progressive"}, {1, "Interlaced"}, {2, "MBAFF"}}},
    {Basic,
     "Pulldown",
     1808,
     {{0, "Off"},
      {1, "2:3"},
      {2, "3:2"},
      {4, "2:3 P"},
      {5, "3:2 P"},
      {6, "Auto"},
      {7, "2:2"},
      {8, "3:3"}}},
    // Any other format shows 4:2:0.
    {Basic,
     "Chroma Format",
     2252,
     {{1, "4:0:0"},
      {2, "4:2:0"},
      {3, "4:2:2"},
      {4, ""},
      {0, "4:2:0"},
      {5, "4:2:0"},
      {-1, "4:2:0"},
      {INT_MAX, "4:2:0"}}},
    {Basic, "Bit-depth Luma", 2244, {{8, "8 bits"}, {10, "10 bits"}}},
    {Basic, "Bit-depth Chroma", 2248, {{8, "8 bits"}, {10, "10 bits"}}},
    // A code without a name shows the empty text.
    {Advanced,
     "Profile",
     0,
     {{0, "Baseline"}, {1, "Main"}, {3, "High"}, {4, "High 10"}, {2, ""}, {5, ""}, {-1, ""}}},
    {Advanced, "Level", 4, {{10, "1.0"}, {11, "1.1"}, {12, "1.2"},   {13, "1.3"}, {16, "1.6"},
                            {20, "2.0"}, {21, "2.1"}, {22, "2.2"},   {30, "3.0"}, {31, "3.1"},
                            {32, "3.2"}, {40, "4.0"}, {41, "4.1"},   {42, "4.2"}, {50, "5.0"},
                            {51, "5.1"}, {52, "5.2"}, {100, "Auto"}, {0, ""},     {9, ""},
                            {14, ""},    {60, ""},    {-100, ""}}},
    {Advanced, "Macroblock Search", 88, {{0, "16 x 16"}, {1, "8 x 8"}}},
    {Advanced, "Subpixel Search", 2868, {{0, "Full"}, {1, "Half"}, {2, "Quarter"}}},
    {Advanced, "Entropy", 92, {{0, "CAVLC"}, {1, "CABAC"}}},
};

const QVector<QPair<int, const char*>> bitrateModes = {
    {0, "Constant Bitrate"},
    {1, "Const. Quality - Constant Quantizer"},
    {2, "Variable Bitrate"},
    {3, "Const. Quality - Average Quantizer"},
};

const int numbers[] = {0, 1, -1, 352, 0x12345678, INT_MAX, INT_MIN};

QString ofView(const char* base, int view)
{
    return QStringLiteral("%1 V%2").arg(QLatin1String(base)).arg(view);
}

void addColumns()
{
    QTest::addColumn<int>("part");
    QTest::addColumn<QString>("key");
    QTest::addColumn<Cells>("cells");
    QTest::addColumn<QVariant>("value");
}

void addRow(Part part, const QString& key, const Cell& cell, int number, const QVariant& value)
{
    QTest::newRow(qPrintable(QStringLiteral("%1 of %2").arg(key).arg(number)))
        << int(part) << key << Cells{cell} << value;
}

} // namespace

void SettingsToStateTest::fieldIsDescribedAs_data()
{
    addColumns();
    for (const NumberField& field : numberFields)
        for (const int number : numbers)
            addRow(field.part, QLatin1String(field.key), {0, field.offset, number}, number,
                   int(unsigned(number) - unsigned(field.subtracted)));
    for (const TextField& field : textFields)
        for (const auto& code : field.texts)
            addRow(field.part, QLatin1String(field.key), {0, field.offset, code.first}, code.first,
                   QString(QLatin1String(code.second)));
    for (int view = 0; view < 4; ++view) {
        for (const ViewNumberField& field : viewNumberFields)
            for (const int number : numbers)
                addRow(Views, ofView(field.base, view), {view, field.offset, number}, number,
                       number);
        for (const auto& mode : bitrateModes)
            addRow(Views, ofView("Bitrate Mode", view), {view, 72, mode.first}, mode.first,
                   QString(QLatin1String(mode.second)));
    }
    for (const int number : numbers)
        addRow(Views, QStringLiteral("Split"), {Cell::Record, 4, number}, number, number);
}

void SettingsToStateTest::fieldIsDescribedAs()
{
    QFETCH(int, part);
    QFETCH(QString, key);
    QFETCH(Cells, cells);
    QFETCH(QVariant, value);
    WorkingRecord record = describableRecord();
    put(record, cells);
    const ConfigState state = described(part, record);
    QVERIFY(state.contains(key));
    QCOMPARE(int(state.value(key).userType()), int(value.userType()));
    QCOMPARE(state.entry(key), (ConfigEntry{value, true}));
}

void SettingsToStateTest::unknownCodeHasNoEntry_data()
{
    addColumns();
    const auto rows = [](Part part, const QString& key, int view, int offset,
                         const QVector<int>& codes) {
        for (const int code : codes)
            addRow(part, key, {view, offset, code}, code, QVariant());
    };
    rows(Basic, QStringLiteral("Interlace"), 0, 20, {3, -1, INT_MAX});
    rows(Basic, QStringLiteral("Pulldown"), 0, 1808, {3, 9, -1, INT_MIN});
    rows(Basic, QStringLiteral("Bit-depth Luma"), 0, 2244, {0, 9, 12, -8});
    rows(Basic, QStringLiteral("Bit-depth Chroma"), 0, 2248, {0, 9, 12, -8});
    rows(Advanced, QStringLiteral("Macroblock Search"), 0, 88, {2, -1});
    rows(Advanced, QStringLiteral("Subpixel Search"), 0, 2868, {3, -1});
    rows(Advanced, QStringLiteral("Entropy"), 0, 92, {2, -1});
    for (int view = 0; view < 4; ++view)
        rows(Views, ofView("Bitrate Mode", view), view, 72, {4, -1});
}

void SettingsToStateTest::unknownCodeHasNoEntry()
{
    QFETCH(int, part);
    QFETCH(QString, key);
    QFETCH(Cells, cells);
    WorkingRecord record = describableRecord();
    const ConfigState before = described(part, record);
    put(record, cells);
    const ConfigState after = described(part, record);
    QVERIFY(!after.contains(key));
    // Field order follows the interlace mode; nothing else follows anything.
    QStringList expected(key);
    if (key == QLatin1String("Interlace"))
        expected.prepend(QStringLiteral("Field Order"));
    QCOMPARE(differingKeys(before, after), expected);
}

void SettingsToStateTest::videoTypeIsDescribedAs_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("1") << 1 << QStringLiteral("Multivew High");
    QTest::newRow("2") << 2 << QStringLiteral("Stereo High");
    QTest::newRow("3") << 3 << QStringLiteral("Blu-ray 3D");
    QTest::newRow("none") << 0 << QStringLiteral("");
    QTest::newRow("4") << 4 << QStringLiteral("");
    QTest::newRow("negative") << -1 << QStringLiteral("");
}

void SettingsToStateTest::videoTypeIsDescribedAs()
{
    QFETCH(int, code);
    QFETCH(QString, text);
    WorkingRecord record = describableRecord();
    put(record, {{0, 1804, code}});
    QCOMPARE(describeVideoType(vocabulary(), 0, record.view(0)), (ConfigEntry{text, true}));
    QCOMPARE(describeVideoType(vocabulary(), 0x2000, record.view(0)), (ConfigEntry{text, false}));
    QCOMPARE(describeVideoType(vocabulary(), ~0x2000, record.view(0)), (ConfigEntry{text, true}));
}

void SettingsToStateTest::fieldIsSeenByItsKeyAlone_data()
{
    QTest::addColumn<Cells>("cells");
    QTest::addColumn<QStringList>("keys");
    const auto row = [](const QString& name, const Cell& cell, const QStringList& keys) {
        QTest::newRow(qPrintable(name)) << Cells{cell} << keys;
    };
    // Values that no field of the record holds at first, and that every list knows.
    for (const NumberField& field : numberFields)
        row(QLatin1String(field.key), {0, field.offset, 77}, list({field.key}));
    row(QStringLiteral("Pulldown"), {0, 1808, 8}, list({"Pulldown"}));
    row(QStringLiteral("Chroma Format"), {0, 2252, 3}, list({"Chroma Format"}));
    row(QStringLiteral("Bit-depth Luma"), {0, 2244, 10}, list({"Bit-depth Luma"}));
    row(QStringLiteral("Bit-depth Chroma"), {0, 2248, 10}, list({"Bit-depth Chroma"}));
    row(QStringLiteral("Profile"), {0, 0, 1}, list({"Profile"}));
    row(QStringLiteral("Level"), {0, 4, 51}, list({"Level"}));
    row(QStringLiteral("Macroblock Search"), {0, 88, 0}, list({"Macroblock Search"}));
    row(QStringLiteral("Subpixel Search"), {0, 2868, 0}, list({"Subpixel Search"}));
    row(QStringLiteral("Entropy"), {0, 92, 0}, list({"Entropy"}));
    row(QStringLiteral("Field Order"), {0, 4112, 1}, list({"Field Order"}));
    row(QStringLiteral("Frame Rate"), {0, 32, 50.0}, list({"Frame Rate"}));
    row(QStringLiteral("Interlace"), {0, 20, 2}, list({"Interlace"}));
    row(QStringLiteral("Interlace, field order follows"), {0, 20, 0},
        list({"Field Order", "Interlace"}));
    row(QStringLiteral("display aspect, horizontal"), {0, 2888, 4},
        list({"Picture Aspect Ratio", "Pixel X", "Pixel Y"}));
    row(QStringLiteral("display aspect, vertical"), {0, 2892, 3},
        list({"Picture Aspect Ratio", "Pixel X", "Pixel Y"}));
    row(QStringLiteral("video type"), {0, 1804, 3}, {});
    row(QStringLiteral("several slices"), {0, 2844, 0}, {});
    for (int view = 0; view < 4; ++view) {
        for (const ViewNumberField& field : viewNumberFields)
            row(ofView(field.base, view), {view, field.offset, 77}, {ofView(field.base, view)});
        row(ofView("Bitrate Mode", view), {view, 72, 3}, {ofView("Bitrate Mode", view)});
    }
    row(QStringLiteral("Number of views"), {Cell::Record, 0, 1}, list({"Number of views"}));
    row(QStringLiteral("Split"), {Cell::Record, 4, 1}, list({"Split"}));
}

void SettingsToStateTest::fieldIsSeenByItsKeyAlone()
{
    QFETCH(Cells, cells);
    const WorkingRecord before = describableRecord();
    WorkingRecord after = before;
    put(after, cells);
    QStringList seen;
    for (const int part : {Basic, Advanced, Views})
        seen += differingKeys(described(part, before), described(part, after));
    QTEST(seen, "keys");
}

void SettingsToStateTest::reservedBytesAreSeenByNoKey()
{
    // Two records that have nothing in common but the fields.
    WorkingRecord one = describableRecord();
    WorkingRecord other = noisyRecord(2, 5);
    const auto copied = [&one, &other](int view, int offset, int size) {
        const int position = view < 0 ? offset : 256 + view * 8316 + offset;
        std::memcpy(reinterpret_cast<char*>(&other) + position,
                    reinterpret_cast<const char*>(&one) + position, size_t(size));
    };
    copied(-1, 0, 8);
    for (int view = 0; view < 4; ++view) {
        for (const NumberField& field : numberFields)
            copied(view, field.offset, 4);
        for (const ViewNumberField& field : viewNumberFields)
            copied(view, field.offset, 4);
        for (const TextField& field : textFields)
            copied(view, field.offset, 4);
        for (const int offset : {72, 2888, 2892, 4112, 1804})
            copied(view, offset, 4);
        copied(view, 32, 8);
    }
    QVERIFY(differences(bytesOf(one), bytesOf(other)).size() > 8000);
    for (const int part : {Basic, Advanced, Views})
        QCOMPARE(differingKeys(described(part, one), described(part, other)), QStringList());
    QCOMPARE(describeVideoType(vocabulary(), 0, one.view(0)),
             describeVideoType(vocabulary(), 0, other.view(0)));
}

void SettingsToStateTest::descriptionHasItsKeys_data()
{
    QTest::addColumn<int>("part");
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("basic") << int(Basic)
                           << list({"Bit-depth Chroma", "Bit-depth Luma", "Chroma Format",
                                    "Field Order", "Frame Rate", "Horizontal Size", "Interlace",
                                    "Picture Aspect Ratio", "Pixel X", "Pixel Y", "Pulldown",
                                    "Vertical Size"});
    QTest::newRow("advanced") << int(Advanced)
                              << list({"Adaptive B",     "B Between",     "Brightness",
                                       "Complexity",     "Contrast",      "Deblocking",
                                       "Entropy",        "Fast Inter",    "Fast Intra",
                                       "Fast Reference", "Fast Subblock", "Fixed I Position",
                                       "Force I",        "Hadamard",      "IDR Marker",
                                       "Interval I",     "Level",         "Macroblock Search",
                                       "Motion Search",  "Num Reference", "Piramyd B",
                                       "Profile",        "Reference B",   "Scene Detection",
                                       "Simple RD",      "Slices",        "Subpixel Search",
                                       "Threads",        "Weighted P"});
    QStringList views = list({"Number of views", "Split"});
    for (int view = 0; view < 4; ++view) {
        views += ofView("Bitrate Mode", view);
        for (const ViewNumberField& field : viewNumberFields)
            views += ofView(field.base, view);
    }
    views.sort();
    QTest::newRow("views") << int(Views) << views;
}

void SettingsToStateTest::descriptionHasItsKeys()
{
    QFETCH(int, part);
    const QStringList keys = described(part, describableRecord()).entries().keys();
    QTEST(keys, "keys");
}

void SettingsToStateTest::lockBitDisablesItsKeysAlone_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QStringList>("disabled");
    const QVector<QPair<int, QStringList>> locks = {
        {14, list({"Horizontal Size", "Vertical Size"})},
        {15, list({"Frame Rate"})},
        {16, list({"Pixel X", "Pixel Y"})},
        {17, list({"Profile"})},
        {18, list({"Level"})},
        {19, list({"Number of views"})},
    };
    QStringList all;
    for (int bit = 0; bit < 32; ++bit) {
        QStringList disabled;
        for (const auto& lock : locks)
            if (lock.first == bit)
                disabled = lock.second;
        all += disabled;
        QTest::newRow(qPrintable(QStringLiteral("bit %1").arg(bit))) << int(1U << bit) << disabled;
    }
    all.sort();
    QTest::newRow("no bit") << 0 << QStringList();
    QTest::newRow("every bit") << -1 << all;
}

void SettingsToStateTest::lockBitDisablesItsKeysAlone()
{
    QFETCH(int, flags);
    QStringList disabled;
    for (const int part : {Basic, Advanced, Views}) {
        const ConfigState state = described(part, describableRecord(), flags);
        for (auto entry = state.entries().begin(); entry != state.entries().end(); ++entry)
            if (!entry->enabled)
                disabled += entry.key();
    }
    disabled.sort();
    QTEST(disabled, "disabled");
}

void SettingsToStateTest::eachViewIsDescribedFromItsOwnSlot()
{
    WorkingRecord record = describableRecord();
    for (int view = 0; view < 4; ++view)
        put(record, {{view, 24, 100 + view}, {view, 2904, 4 + view}, {view, 80, 5000 + view}});
    const ConfigState views = describeViews(vocabulary(), 0, record);
    for (int view = 0; view < 4; ++view) {
        QCOMPARE(describeBasic(vocabulary(), 0, record.view(view))
                     .state.value(QStringLiteral("Horizontal Size")),
                 QVariant(100 + view));
        QCOMPARE(
            describeAdvanced(vocabulary(), 0, record.view(view)).value(QStringLiteral("Threads")),
            QVariant(4 + view));
        QCOMPARE(views.value(ofView("Target Bitrate", view)), QVariant(5000 + view));
    }
}

void SettingsToStateTest::oneViewShows0AdditionalViewsAndAllFourSlots()
{
    WorkingRecord record = describableRecord();
    put(record, {{Cell::Record, 0, 1}});
    const ConfigState views = describeViews(vocabulary(), 0, record);
    QCOMPARE(views.value(QStringLiteral("Number of views")), QVariant(0));
    for (int view = 0; view < 4; ++view)
        QVERIFY(views.contains(ofView("HRD", view)));
}

void SettingsToStateTest::countIsShownAsItIs_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("shown");
    QTest::newRow("0") << 0 << -1;
    QTest::newRow("1") << 1 << 0;
    QTest::newRow("2") << 2 << 1;
    QTest::newRow("4") << 4 << 3;
    QTest::newRow("6") << 6 << 5;
    QTest::newRow("-1") << -1 << -2;
    QTest::newRow("INT_MAX") << INT_MAX << INT_MAX - 1;
    QTest::newRow("INT_MIN") << INT_MIN << INT_MAX;
}

void SettingsToStateTest::countIsShownAsItIs()
{
    QFETCH(int, count);
    QFETCH(int, shown);
    WorkingRecord record = describableRecord();
    put(record, {{Cell::Record, 0, count}});
    const ConfigState views = describeViews(vocabulary(), 0, record);
    QCOMPARE(views.value(QStringLiteral("Number of views")), QVariant(shown));
    QCOMPARE(views.entries().size(), 70);
}

QTEST_APPLESS_MAIN(SettingsToStateTest)
#include "tst_settings_to_state.moc"
