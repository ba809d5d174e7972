#include "Noise.h"

#include "model/SettingsToState.h"

#include <QTest>

#include <climits>
#include <cstring>
#include <optional>

/// What the record holds is described under its key, as a value of the right kind, enabled as the
/// host's locks say. Every expectation is a place in the record, by the ledger or, for rules of one
/// setting, written down here.
class TestSettingsToState : public QObject
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

using ledger::Kind;
using ledger::Setting;

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
    for (auto entry = a.entries().begin(); entry != a.entries().end(); ++entry) {
        if (!b.contains(entry.key()) || !(b.entry(entry.key()) == *entry)) {
            keys += entry.key();
        }
    }
    for (const QString& key : b.entries().keys()) {
        if (!a.contains(key)) {
            keys += key;
        }
    }
    return keys;
}

QStringList list(const QVector<const char*>& texts)
{
    QStringList strings;
    for (const char* text : texts) {
        strings += QLatin1String(text);
    }
    return strings;
}

bool isNumber(const Setting& setting)
{
    return setting.kind == Kind::Number || setting.kind == Kind::Switch ||
           setting.kind == Kind::Radio;
}

/// The description that has the setting's key; none: the preset, which the dialog shows itself.
std::optional<Part> partOf(const Setting& setting)
{
    const QString page = QString::fromLatin1(setting.page);
    if (!setting.key || page == QLatin1String("AVCVideoEncoderDlg")) {
        return {};
    }
    if (page == QLatin1String("VideoFormatPage")) {
        return Basic;
    }
    return setting.isOfRecord() || setting.isOfEachView() ? Views : Advanced;
}

/// What lists show for codes that they have no item for.
struct OtherCodes {
    Part part;
    const char* key;
    int offset;
    const char* text;
    QVector<int> codes;
};

const QVector<OtherCodes> otherCodes = {
    {Basic, "Chroma Format", 2252, "4:2:0", {0, 5, -1, INT_MAX}},
    {Basic, "Chroma Format", 2252, "", {4}},
    {Advanced, "Profile", 0, "", {2, 5, -1}},
    {Advanced, "Level", 4, "", {0, 9, 14, 60, -100}},
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

void TestSettingsToState::fieldIsDescribedAs_data()
{
    addColumns();
    for (const Setting& setting : ledger::settings()) {
        const std::optional<Part> part = partOf(setting);
        // The order of fields and the number of views have tests of their own.
        if (!part || setting.is("field_order") || setting.is("num_views")) {
            continue;
        }
        for (int view = 0; view < setting.viewCount(); ++view) {
            const auto row = [&](int code, const QVariant& value) {
                addRow(*part, setting.keyOf(view), Cell(view, setting, code), code, value);
            };
            if (isNumber(setting)) {
                for (const int number : numbers) {
                    row(number, int(unsigned(number) - unsigned(setting.added())));
                }
            }
            if (setting.kind == Kind::List) {
                for (const auto& item : ledger::listedValues(QString::fromLatin1(setting.member))) {
                    row(item.code, QString(QLatin1String(item.text)));
                }
            }
        }
    }
    for (const OtherCodes& field : otherCodes) {
        for (const int code : field.codes) {
            addRow(field.part, QLatin1String(field.key), {0, field.offset, code}, code,
                   QString(QLatin1String(field.text)));
        }
    }
}

void TestSettingsToState::fieldIsDescribedAs()
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

void TestSettingsToState::unknownCodeHasNoEntry_data()
{
    addColumns();
    for (const Setting& setting : ledger::settings()) {
        // These show something for every code.
        if (setting.kind != Kind::List || setting.is("chroma_format") || setting.is("profile") ||
            setting.is("level") || setting.is("video_type") || setting.is("field_order")) {
            continue;
        }
        QVector<int> codes = {INT_MIN, -8, -1, 12, 97, INT_MAX};
        for (int code = 0; code <= 11; ++code) {
            codes += code;
        }
        for (const auto& item : ledger::listedValues(QString::fromLatin1(setting.member))) {
            codes.removeAll(item.code);
        }
        for (int view = 0; view < setting.viewCount(); ++view) {
            for (const int code : codes) {
                addRow(*partOf(setting), setting.keyOf(view), Cell(view, setting, code), code,
                       QVariant());
            }
        }
    }
}

void TestSettingsToState::unknownCodeHasNoEntry()
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
    if (key == QLatin1String("Interlace")) {
        expected.prepend(QStringLiteral("Field Order"));
    }
    QCOMPARE(differingKeys(before, after), expected);
}

void TestSettingsToState::videoTypeIsDescribedAs_data()
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

void TestSettingsToState::videoTypeIsDescribedAs()
{
    QFETCH(int, code);
    QFETCH(QString, text);
    WorkingRecord record = describableRecord();
    put(record, {{0, 1804, code}});
    QCOMPARE(describeVideoType(vocabulary(), 0, record.view(0)), (ConfigEntry{text, true}));
    QCOMPARE(describeVideoType(vocabulary(), 0x2000, record.view(0)), (ConfigEntry{text, false}));
    QCOMPARE(describeVideoType(vocabulary(), ~0x2000, record.view(0)), (ConfigEntry{text, true}));
}

void TestSettingsToState::fieldIsSeenByItsKeyAlone_data()
{
    QTest::addColumn<Cells>("cells");
    QTest::addColumn<QStringList>("keys");
    const auto row = [](const QString& name, const Cell& cell, const QStringList& keys) {
        QTest::newRow(qPrintable(name)) << Cells{cell} << keys;
    };
    const QStringList aspectKeys = list({"Picture Aspect Ratio", "Pixel X", "Pixel Y"});
    const KvMvcSettings before = exampleSettings();
    for (const Setting& setting : ledger::settings()) {
        for (int view = 0; view < setting.viewCount(); ++view) {
            // Views 2 and 3 are like the first two.
            const double now = ledger::get(before, setting, view % 2);
            const double other =
                setting.second.code == now ? setting.first.code : setting.second.code;
            QStringList keys;
            if (setting.kind == Kind::Aspect) {
                keys = aspectKeys;
            } else if (partOf(setting)) {
                keys = QStringList(setting.keyOf(view));
            }
            row(QStringLiteral("%1 of view %2").arg(QLatin1String(setting.member)).arg(view),
                Cell(view, setting, other), keys);
        }
    }
    row(QStringLiteral("interlace_mode, field order follows"), {0, 20, 0},
        list({"Field Order", "Interlace"}));
}

void TestSettingsToState::fieldIsSeenByItsKeyAlone()
{
    QFETCH(Cells, cells);
    const WorkingRecord before = describableRecord();
    WorkingRecord after = before;
    put(after, cells);
    QStringList seen;
    for (const int part : {Basic, Advanced, Views}) {
        seen += differingKeys(described(part, before), described(part, after));
    }
    QTEST(seen, "keys");
}

void TestSettingsToState::reservedBytesAreSeenByNoKey()
{
    // Two records that have nothing in common but the fields.
    WorkingRecord one = describableRecord();
    WorkingRecord other = noisyRecord(2, 5);
    for (const Setting& setting : ledger::settings()) {
        for (int view = 0; view < 4; ++view) {
            const int position = setting.position(view);
            std::memcpy(reinterpret_cast<char*>(&other) + position,
                        reinterpret_cast<const char*>(&one) + position, size_t(setting.width()));
        }
    }
    QVERIFY(differences(bytesOf(one), bytesOf(other)).size() > 8000);
    for (const int part : {Basic, Advanced, Views}) {
        QCOMPARE(differingKeys(described(part, one), described(part, other)), QStringList());
    }
    QCOMPARE(describeVideoType(vocabulary(), 0, one.view(0)),
             describeVideoType(vocabulary(), 0, other.view(0)));
}

void TestSettingsToState::descriptionHasItsKeys_data()
{
    QTest::addColumn<int>("part");
    QTest::addColumn<QStringList>("keys");
    const char* const names[] = {"basic", "advanced", "views"};
    for (const Part part : {Basic, Advanced, Views}) {
        QStringList keys;
        for (const Setting& setting : ledger::settings()) {
            for (int view = 0; partOf(setting) == part && view < setting.viewCount(); ++view) {
                keys += setting.keyOf(view);
            }
        }
        keys.sort();
        QTest::newRow(names[part]) << int(part) << keys;
    }
}

void TestSettingsToState::descriptionHasItsKeys()
{
    QFETCH(int, part);
    const QStringList keys = described(part, describableRecord()).entries().keys();
    QTEST(keys, "keys");
}

void TestSettingsToState::lockBitDisablesItsKeysAlone_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QStringList>("disabled");
    QStringList all;
    for (int bit = 0; bit < 32; ++bit) {
        QStringList disabled;
        for (const Setting& setting : ledger::settings()) {
            if (setting.lockBit == bit && partOf(setting)) {
                disabled += setting.keyOf();
            }
        }
        disabled.sort();
        all += disabled;
        QTest::newRow(qPrintable(QStringLiteral("bit %1").arg(bit))) << int(1U << bit) << disabled;
    }
    all.sort();
    QTest::newRow("no bit") << 0 << QStringList();
    QTest::newRow("every bit") << -1 << all;
}

void TestSettingsToState::lockBitDisablesItsKeysAlone()
{
    QFETCH(int, flags);
    QStringList disabled;
    for (const int part : {Basic, Advanced, Views}) {
        const ConfigState state = described(part, describableRecord(), flags);
        for (auto entry = state.entries().begin(); entry != state.entries().end(); ++entry) {
            if (!entry->enabled) {
                disabled += entry.key();
            }
        }
    }
    disabled.sort();
    QTEST(disabled, "disabled");
}

void TestSettingsToState::eachViewIsDescribedFromItsOwnSlot()
{
    WorkingRecord record = describableRecord();
    for (int view = 0; view < 4; ++view) {
        put(record, {{view, 24, 100 + view}, {view, 2904, 4 + view}, {view, 80, 5000 + view}});
    }
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

void TestSettingsToState::oneViewShows0AdditionalViewsAndAllFourSlots()
{
    WorkingRecord record = describableRecord();
    put(record, {{Cell::Record, 0, 1}});
    const ConfigState views = describeViews(vocabulary(), 0, record);
    QCOMPARE(views.value(QStringLiteral("Number of views")), QVariant(0));
    for (int view = 0; view < 4; ++view) {
        QVERIFY(views.contains(ofView("HRD", view)));
    }
}

void TestSettingsToState::countIsShownAsItIs_data()
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

void TestSettingsToState::countIsShownAsItIs()
{
    QFETCH(int, count);
    QFETCH(int, shown);
    WorkingRecord record = describableRecord();
    put(record, {{Cell::Record, 0, count}});
    const ConfigState views = describeViews(vocabulary(), 0, record);
    QCOMPARE(views.value(QStringLiteral("Number of views")), QVariant(shown));
    QCOMPARE(views.entries().size(), 70);
}

QTEST_APPLESS_MAIN(TestSettingsToState)
#include "tst_settings_to_state.moc"
