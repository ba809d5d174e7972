#include "SettingFacts.h"

#include "KeyNames.h"
#include "KeyTable.h"

#include <QHash>

#include <kv_config_gui_mvc/companions.h>
#include <kv_config_gui_mvc/config_gui.h>

#include <algorithm>
#include <iterator>
#include <type_traits>
#include <utility>

namespace
{

/// A row of the field table, with the member as the key table has it; null: no whole number.
struct FieldRow {
    const char* member;
    const char* name;
    const char* unit;
    bool isCorrected;
    int low;
    int high;
    const char* basis;
    qint32 KvMvcViewSettings::*ofView;
    qint32 KvMvcSettings::*ofRecord;
};

template <class Member>
constexpr qint32 KvMvcViewSettings::*ofView(Member member)
{
    if constexpr (std::is_same_v<Member, qint32 KvMvcViewSettings::*>) {
        return member;
    }
    return nullptr;
}

template <class Member>
constexpr qint32 KvMvcSettings::*ofRecord(Member member)
{
    if constexpr (std::is_same_v<Member, qint32 KvMvcSettings::*>) {
        return member;
    }
    return nullptr;
}

/// What a range of this kind rests on where its row does not say it.
const char* basisOfKind(const char* kind)
{
    return qstrcmp(kind, "Quantizer") == 0 ? "7.4.2.2" : "";
}

bool isNumber(const char* kind)
{
    return qstrcmp(kind, "Switch") != 0 && qstrcmp(kind, "Code") != 0 &&
           qstrcmp(kind, "Level") != 0 && qstrcmp(kind, "Depth") != 0;
}

const std::vector<FieldRow>& fieldRows()
{
#define KV_FIELD(structure, member, kind, list, name, unit, less, shown, low, high, shared, rule,  \
                 said, called, basis)                                                              \
    {#member,                                                                                      \
     name,                                                                                         \
     unit,                                                                                         \
     isNumber(#kind) && ((low) != 0 || (high) != 0),                                               \
     (low) - (less),                                                                               \
     (high) - (less),                                                                              \
     *(basis) ? (basis) : basisOfKind(#kind),                                                      \
     ofView(&structure::member),                                                                   \
     ofRecord(&structure::member)},
#define KV_MVC_RECORD_FIELD(...) KV_FIELD(KvMvcSettings, __VA_ARGS__)
#define KV_MVC_VIEW_FIELD(...) KV_FIELD(KvMvcViewSettings, __VA_ARGS__)
    static const std::vector<FieldRow> rows = {
#include <kv_config_gui_mvc/settings_fields.def>
    };
#undef KV_FIELD
    return rows;
}

/// Keys whose rows of the key table have no member: they are rules of their own.
constexpr std::pair<QLatin1String, QLatin1String> withoutField[] = {
    {keys::frameRate, QLatin1String("frame_rate")},
    {keys::pictureAspectRatio, QLatin1String("display_aspect_x")},
    {keys::pictureAspectRatio, QLatin1String("display_aspect_y")},
    {keys::videoType, QLatin1String("video_type")},
};

struct Index {
    QHash<QString, SettingFacts> byKey;
    /// With the view for keys of one view, else with -1.
    QHash<std::pair<QString, int>, QString> byMember;
};

SettingFacts factsOf(const FieldRow& row, int view, qint32 lock)
{
    SettingFacts facts;
    facts.member = QLatin1String(row.member);
    facts.name = QLatin1String(row.name);
    facts.unit = QLatin1String(row.unit);
    if (row.isCorrected) {
        facts.low = row.low;
        facts.high = row.high;
    }
    facts.basis = QLatin1String(row.basis);
    facts.view = view;
    facts.lock = lock;
    return facts;
}

void add(Index& index, const QString& key, const FieldRow& row, int view, qint32 lock)
{
    const SettingFacts facts = factsOf(row, view, lock);
    index.byMember.insert({facts.member, view}, key);
    if (!index.byKey.contains(key)) {
        index.byKey.insert(key, facts);
    }
}

void addView(Index& index, const ViewRow& setting, const QString& key, int view)
{
    for (const FieldRow& row : fieldRows()) {
        const auto isOfBoth = [&](const auto& own) {
            return setting.key == own.first && own.second == QLatin1String(row.member);
        };
        const bool isItsOwn =
            std::any_of(std::begin(withoutField), std::end(withoutField), isOfBoth);
        if (setting.field ? row.ofView == setting.field : isItsOwn) {
            add(index, key, row, view, setting.lock);
        }
    }
}

Index makeIndex()
{
    Index index;
    const KeyTable& table = keyTable();
    for (const auto* rows : {&table.basic, &table.advanced}) {
        for (const ViewRow& setting : *rows) {
            addView(index, setting, setting.key, KV_MVC_ALL_VIEWS);
        }
    }
    for (const RecordRow& setting : table.record) {
        for (const FieldRow& row : fieldRows()) {
            if (row.ofRecord == setting.field && row.ofRecord) {
                add(index, setting.key, row, KV_MVC_ALL_VIEWS, setting.lock);
            }
        }
    }
    for (int view = 0; view < KV_MVC_MAX_VIEWS; ++view) {
        for (const ViewRow& setting : table.rateControl) {
            addView(index, setting, setting.keyIn(view), view);
        }
    }
    // The presets have a key, but no row of the key table.
    const ViewRow presets = {.key = keys::videoType, .lock = KV_MVC_GUI_LOCK_VIDEO_TYPE};
    addView(index, presets, presets.key, KV_MVC_ALL_VIEWS);
    return index;
}

const Index& index()
{
    static const Index made = makeIndex();
    return made;
}

} // namespace

std::optional<SettingFacts> settingFacts(const QString& key)
{
    const auto found = index().byKey.constFind(key);
    return found == index().byKey.constEnd() ? std::nullopt : std::optional(*found);
}

QString keyOfSetting(const QString& member, int view)
{
    if (view < KV_MVC_ALL_VIEWS || view >= KV_MVC_MAX_VIEWS) {
        return {};
    }
    const auto& byMember = index().byMember;
    const QString shared = byMember.value({member, KV_MVC_ALL_VIEWS});
    return shared.isEmpty() ? byMember.value({member, std::max(view, 0)}) : shared;
}
