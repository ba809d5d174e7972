#include "Noise.h"

#include <QTest>

#include <climits>

/// An edit finds its way into the record: exactly the bytes of the edited setting, in the right
/// views, and no other byte. Every expectation is a place in the record, by the ledger or, for
/// rules of one setting, written down here.
class TestStateToSettings : public QObject
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

using ledger::Kind;
using ledger::Setting;

namespace
{

bool isNumber(const Setting& setting)
{
    return setting.kind == Kind::Number || setting.kind == Kind::Switch ||
           setting.kind == Kind::Radio;
}

/// Those that a key of their own stands for and that have no rule of their own beside it.
QVector<Setting> plainSettings(bool (*isMeant)(const Setting&))
{
    QVector<Setting> found;
    for (const Setting& setting : ledger::settings()) {
        if (setting.key && isMeant(setting)) {
            found += setting;
        }
    }
    return found;
}

QVector<Setting> generalNumbers()
{
    return plainSettings([](const Setting& setting) {
        return isNumber(setting) && !setting.isOfRecord() && !setting.isOfEachView() &&
               !setting.is("num_slices");
    });
}

QVector<Setting> generalLists()
{
    return plainSettings([](const Setting& setting) {
        return setting.kind == Kind::List && !setting.isOfEachView() && !setting.is("video_type");
    });
}

QVector<Setting> viewNumbers()
{
    return plainSettings(
        [](const Setting& setting) { return isNumber(setting) && setting.isOfEachView(); });
}

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

void TestStateToSettings::generalKeyIsStoredInEveryViewBelowTheCount_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<Cells>("ofOneView");
    const auto row = [](const char* key, const QVariant& value, const Cells& cells) {
        const QString text = QLatin1String(key);
        QTest::newRow(rowName(text, value).constData()) << text << value << cells;
    };
    for (const Setting& number : generalNumbers()) {
        for (const Shown& shown : shownNumbers()) {
            row(number.key, shown.value,
                {{0, number.offset, wrapped(shown.number, number.added())}});
        }
    }
    for (const Setting& list : generalLists()) {
        for (const auto& item : ledger::listedValues(QString::fromLatin1(list.member))) {
            row(list.key, QString(QLatin1String(item.text)), {{0, list.offset, item.code}});
        }
    }
    // The fourth format has an empty text.
    row("Chroma Format", QString(QLatin1String("")), {{0, 2252, 4}});
    for (const RateCase& rate : rates) {
        row("Frame Rate", QString(QLatin1String(rate.text)), {{0, 32, rate.rate}});
    }

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

void TestStateToSettings::generalKeyIsStoredInEveryViewBelowTheCount()
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

void TestStateToSettings::viewKeyIsStoredInItsSlotWhateverTheCount_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<Cells>("cells");
    const auto row = [](const char* base, int view, const QVariant& value, const Cells& cells) {
        const QString key = QStringLiteral("%1 V%2").arg(QLatin1String(base)).arg(view);
        QTest::newRow(rowName(key, value).constData()) << key << value << cells;
    };
    for (int view = 0; view < 4; ++view) {
        for (const Setting& number : viewNumbers()) {
            for (const Shown& shown : shownNumbers()) {
                row(number.key, view, shown.value, {{view, number.offset, shown.number}});
            }
        }
        const char* const mode = "Bitrate Mode";
        row(mode, view, QStringLiteral("Constant Bitrate"), {{view, 72, 0}, {view, 176, 1}});
        row(mode, view, QStringLiteral("Variable Bitrate"), {{view, 72, 2}});
        row(mode, view, QStringLiteral("Const. Quality - Constant Quantizer"), {{view, 72, 1}});
        row(mode, view, QStringLiteral("Const. Quality - Average Quantizer"), {{view, 72, 3}});
    }
}

void TestStateToSettings::viewKeyIsStoredInItsSlotWhateverTheCount()
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

void TestStateToSettings::recordKeyIsStoredOnce_data()
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
    for (int additional = 0; additional <= 3; ++additional) {
        row("Number of views", double(additional), {{Cell::Record, 0, additional + 1}});
    }
}

void TestStateToSettings::recordKeyIsStoredOnce()
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

void TestStateToSettings::unknownTextChangesNothing_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    // Those that take one for 4:2:0, or for the code 0.
    const QStringList others = {QStringLiteral("Chroma Format"), QStringLiteral("Profile"),
                                QStringLiteral("Level"), QStringLiteral("Video Type")};
    const QVector<Setting> all =
        plainSettings([](const Setting& setting) { return !isNumber(setting); });
    for (const Setting& setting : all) {
        for (int view = 0; view < setting.viewCount(); ++view) {
            const QString key = setting.keyOf(view);
            if (others.contains(key)) {
                continue;
            }
            for (const char* text :
                 {"", "no such item", "3", "progressive", "mbaff", "Off ", "25"}) {
                QTest::newRow(qPrintable(QStringLiteral("%1 = '%2'").arg(key, QLatin1String(text))))
                    << key << QString(QLatin1String(text));
            }
        }
    }
}

void TestStateToSettings::unknownTextChangesNothing()
{
    QFETCH(QString, key);
    QFETCH(QString, text);
    ConfigState state;
    state.insert(key, text);
    QCOMPARE(changedBy(state, noisyRecord(2)), QStringList());
}

void TestStateToSettings::nameThatIsNotFoundStores0_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("text");
    const QVector<QPair<const char*, int>> fields = {
        {"Profile", 0}, {"Level", 4}, {"Video Type", 1804}, {"Restore Preset", 1804}};
    for (const auto& field : fields) {
        for (const char* text : {"", "no such name", "high", "Multiview High", "High 422"}) {
            QTest::newRow(qPrintable(
                QStringLiteral("%1 = '%2'").arg(QLatin1String(field.first), QLatin1String(text))))
                << QString(QLatin1String(field.first)) << field.second
                << QString(QLatin1String(text));
        }
    }
}

void TestStateToSettings::nameThatIsNotFoundStores0()
{
    QFETCH(QString, key);
    QFETCH(int, offset);
    QFETCH(QString, text);
    ConfigState state;
    state.insert(key, text);
    const WorkingRecord before = noisyRecord(2);
    QCOMPARE(changedBy(state, before), expected(before, {{0, offset, 0}, {1, offset, 0}}));
}

void TestStateToSettings::unknownKeyChangesNothing_data()
{
    QTest::addColumn<QString>("key");
    for (const char* key : {"", "Foo", "horizontal size", "Horizontal Size ", "Horizontal Size V0",
                            "Target Bitrate", "Target Bitrate V4", "Target Bitrate V", "HRD V01",
                            "HRD V-1", "Pyramid B", "Number of Views"}) {
        QTest::newRow(qPrintable(QStringLiteral("'%1'").arg(QLatin1String(key))))
            << QString(QLatin1String(key));
    }
}

void TestStateToSettings::unknownKeyChangesNothing()
{
    QFETCH(QString, key);
    ConfigState state;
    state.insert(key, 1);
    QCOMPARE(changedBy(state, noisyRecord(4)), QStringList());
}

void TestStateToSettings::emptyStateChangesNothing()
{
    QCOMPARE(changedBy({}, noisyRecord(4)), QStringList());
}

void TestStateToSettings::manyKeysAtOnce()
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

void TestStateToSettings::presetIsThatOfRestorePresetBeforeVideoType_data()
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

void TestStateToSettings::presetIsThatOfRestorePresetBeforeVideoType()
{
    QFETCH(QString, restorePreset);
    QFETCH(QString, videoType);
    QFETCH(int, code);
    ConfigState state;
    if (!restorePreset.isNull()) {
        state.insert(QStringLiteral("Restore Preset"), restorePreset);
    }
    if (!videoType.isNull()) {
        state.insert(QStringLiteral("Video Type"), videoType);
    }
    QCOMPARE(int(requestedPreset(Vocabulary(), state).value_or(-1)), code);

    const WorkingRecord before = noisyRecord(2);
    QCOMPARE(changedBy(state, before),
             code < 0 ? QStringList() : expected(before, {{0, 1804, code}, {1, 1804, code}}));
}

void TestStateToSettings::restorePresetWithHorizontalSizeIgnoresTheSizeInEveryView()
{
    ConfigState state;
    state.insert(QStringLiteral("Restore Preset"), QStringLiteral("Stereo High"));
    state.insert(QStringLiteral("Horizontal Size"), 720);
    state.insert(QStringLiteral("Slices"), 1);
    const WorkingRecord before = noisyRecord(2);
    QCOMPARE(changedBy(state, before), expected(before, {{0, 1804, 2}, {1, 1804, 2}}));
}

void TestStateToSettings::presetEndsTheGeneralSettingsOnly()
{
    ConfigState state;
    state.insert(QStringLiteral("Video Type"), QStringLiteral("Blu-ray 3D"));
    state.insert(QStringLiteral("Target Bitrate V1"), 5000);
    state.insert(QStringLiteral("Number of views"), 0);
    const WorkingRecord before = noisyRecord(2);
    QCOMPARE(changedBy(state, before),
             expected(before, {{Cell::Record, 0, 1}, {0, 1804, 3}, {1, 1804, 3}, {1, 80, 5000}}));
}

void TestStateToSettings::targetBitrateV1ChangesView1Alone()
{
    const WorkingRecord before = noisyRecord(2);
    QCOMPARE(changedBy(oneEntry("Target Bitrate V1", 0x01020304), before),
             QStringList(QStringLiteral("view 1 +80: 04030201")));
}

void TestStateToSettings::interlaceIsStoredInBothViewsOfTwo()
{
    const WorkingRecord before = noisyRecord(2);
    QCOMPARE(changedBy(oneEntry("Interlace", QStringLiteral("MBAFF")), before),
             (QStringList{QStringLiteral("view 0 +20: 02000000"),
                          QStringLiteral("view 1 +20: 02000000")}));
}

void TestStateToSettings::numberOfViewsWithInterlaceReachesTheViewsOfTheOldCount()
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

void TestStateToSettings::numberOfViews0StoresOneView()
{
    const WorkingRecord before = noisyRecord(2);
    QCOMPARE(changedBy(oneEntry("Number of views", 0), before),
             QStringList(QStringLiteral("record +0: 01000000")));
}

QTEST_APPLESS_MAIN(TestStateToSettings)
#include "tst_state_to_settings.moc"
