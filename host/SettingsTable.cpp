#include "SettingsTable.h"

#include "Failure.h"
#include "NearestName.h"

#include <QJsonValue>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>

using Kind = SettingKind;

namespace
{

constexpr QLatin1String operator""_l1(const char* text, std::size_t size)
{
    return QLatin1String(text, static_cast<int>(size));
}

constexpr std::span<const ValueName> namesOfPlain;
// clang-format off
#define KV_MVC_LIST(list) constexpr ValueName namesOf##list[] = {
#define KV_MVC_VALUE(code, key, text) {code, text ""_l1},
#define KV_MVC_LIST_END };
#include <kv_config_gui_mvc/settings_fields.def>
// clang-format on

// The units that a value of bitrate_units selects.
constexpr ValueName bufferUnits[] = {{KV_MVC_UNITS_BYTES_PERCENT, "bytes"_l1},
                                     {KV_MVC_UNITS_BITS, "bits"_l1},
                                     {KV_MVC_UNITS_BITS_90KHZ, "bits"_l1}};
constexpr ValueName fullnessUnits[] = {{KV_MVC_UNITS_BYTES_PERCENT, "%"_l1},
                                       {KV_MVC_UNITS_BITS, "bits"_l1},
                                       {KV_MVC_UNITS_BITS_90KHZ, "ticks of 90 kHz"_l1}};

template <std::size_t size>
consteval std::array<Setting, size> inDialogOrder(std::array<Setting, size> settings)
{
    std::ranges::sort(settings, {}, &Setting::place);
    return settings;
}

#define KV_SETTING(record, member, kind, list, name, unit, less, place)                            \
    Setting{#member ""_l1, name ""_l1, Kind::kind, offsetof(record, member),                       \
            namesOf##list, unit ""_l1, less,       place},
constexpr auto recordTable = inDialogOrder(std::array{
#define KV_MVC_RECORD_FIELD(member, kind, list, name, unit, less, shown, ...)                      \
    KV_SETTING(KvMvcSettings, member, kind, list, name, unit, less, shown)
#include <kv_config_gui_mvc/settings_fields.def>
});
constexpr auto viewTable = inDialogOrder(std::array{
#define KV_MVC_VIEW_FIELD(member, kind, list, name, unit, less, shown, ...)                        \
    KV_SETTING(KvMvcViewSettings, member, kind, list, name, unit, less, shown)
#include <kv_config_gui_mvc/settings_fields.def>
});
#undef KV_SETTING

/// Rates that are ratios; their decimals are rounded.
struct NamedRate {
    double rate;
    QLatin1String text;
};
constexpr NamedRate namedRates[] = {{24000.0 / 1001.0, "23.976 (24000/1001)"_l1},
                                    {30000.0 / 1001.0, "29.97 (30000/1001)"_l1},
                                    {60000.0 / 1001.0, "59.94 (60000/1001)"_l1},
                                    {0.0, "not set"_l1}};

template <class Number>
Number numberAt(const KvMvcSettings& settings, Place place)
{
    Number number;
    std::memcpy(&number, &bytesOf(settings, place.view)[place.setting->offset], sizeof number);
    return number;
}

const ValueName* findName(std::span<const ValueName> names, qint32 value)
{
    const auto found = std::find_if(names.begin(), names.end(),
                                    [value](const ValueName& name) { return name.value == value; });
    return found == names.end() ? nullptr : &*found;
}

/// As the dialog shows it, and with the unit.
QString withUnit(const Setting& setting, qint32 number, QLatin1String unit)
{
    const QString digits = QString::number(number - setting.shownLess);
    return unit.isEmpty() ? digits : digits + QLatin1Char(' ') + unit;
}

QString rateText(double rate)
{
    for (const NamedRate& named : namedRates) {
        if (named.rate == rate) {
            return named.text;
        }
    }
    return QString::number(rate, 'g', QLocale::FloatingPointShortest);
}

/// The unit of a field that bitrate_units governs; empty for a code without a meaning.
QLatin1String selectedUnit(std::span<const ValueName> units, const KvMvcSettings& settings,
                           int view)
{
    const ValueName* unit = findName(units, settings.views[view].bitrate_units);
    return unit == nullptr ? QLatin1String() : unit->text;
}

/// Adds what differs in one view, or in the record apart from its views.
void compareScope(const KvMvcSettings& before, const KvMvcSettings& after, int view,
                  std::vector<Difference>& differences)
{
    const auto a = bytesOf(before, view);
    const auto b = bytesOf(after, view);
    const std::vector<bool> named = namedBytes(view);
    for (const Setting& setting : view < 0 ? recordSettings() : viewSettings()) {
        if (std::memcmp(&a[setting.offset], &b[setting.offset], setting.size()) != 0) {
            differences.push_back({{&setting, view}, 0});
        }
    }
    std::size_t reserved = 0;
    for (std::size_t at = 0; at < named.size(); ++at) {
        reserved += !named[at] && a[at] != b[at] ? 1 : 0;
    }
    if (reserved != 0) {
        differences.push_back({{nullptr, view}, reserved});
    }
}

constexpr std::array viewNames = {"Base view"_l1, "View 1"_l1};
static_assert(viewNames.size() == KV_MVC_RECORD_VIEWS);

constexpr QLatin1String reservedName = "Reserved bytes"_l1;

} // namespace

std::size_t Setting::size() const
{
    return kind == Kind::Rate ? sizeof(double) : sizeof(qint32);
}

bool Setting::isCode() const
{
    return kind == Kind::Switch || kind == Kind::Code || kind == Kind::Level || kind == Kind::Depth;
}

std::span<const Setting> recordSettings()
{
    return recordTable;
}

std::span<const Setting> viewSettings()
{
    return viewTable;
}

std::span<const ValueName> levelNames()
{
    return namesOfLevel;
}

QLatin1String viewName(int view)
{
    return viewNames.at(static_cast<std::size_t>(view));
}

std::span<const char> bytesOf(const KvMvcSettings& settings, int view)
{
    if (view < 0) {
        return {reinterpret_cast<const char*>(&settings), offsetof(KvMvcSettings, views)};
    }
    return {reinterpret_cast<const char*>(&settings.views[view]), sizeof(KvMvcViewSettings)};
}

std::vector<bool> namedBytes(int view)
{
    std::vector<bool> named(view < 0 ? offsetof(KvMvcSettings, views) : sizeof(KvMvcViewSettings));
    for (const Setting& setting : view < 0 ? recordSettings() : viewSettings()) {
        std::fill_n(named.begin() + static_cast<std::ptrdiff_t>(setting.offset), setting.size(),
                    true);
    }
    return named;
}

QString settingText(const KvMvcSettings& settings, Place place)
{
    const Setting& setting = *place.setting;
    if (setting.kind == Kind::Rate) {
        return rateText(numberAt<double>(settings, place));
    }
    const auto number = numberAt<qint32>(settings, place);
    if (const ValueName* name = findName(setting.names, number)) {
        return name->text;
    }
    switch (setting.kind) {
    case Kind::Switch:
    case Kind::Code:
    case Kind::Level:
        return QStringLiteral("%1 (unknown)").arg(number);
    case Kind::Buffer:
        return withUnit(setting, number, selectedUnit(bufferUnits, settings, place.view));
    case Kind::Fullness:
        return withUnit(setting, number, selectedUnit(fullnessUnits, settings, place.view));
    default:
        return withUnit(setting, number, setting.unit);
    }
}

QJsonObject settingJson(const KvMvcSettings& settings, Place place)
{
    const Setting& setting = *place.setting;
    QJsonObject object = {{QStringLiteral("text"), settingText(settings, place)}};
    if (setting.kind == Kind::Rate) {
        const auto rate = numberAt<double>(settings, place);
        object[QStringLiteral("value")] = rate; // null where JSON has no such number
        if (!std::isfinite(rate) || (rate == 0 && std::signbit(rate))) {
            object[QStringLiteral("bits")] =
                QStringLiteral("0x%1").arg(std::bit_cast<quint64>(rate), 16, 16, QLatin1Char('0'));
        }
        return object;
    }
    const auto number = numberAt<qint32>(settings, place);
    object[QStringLiteral("value")] = number;
    if (setting.isCode() && findName(setting.names, number) == nullptr) {
        object[QStringLiteral("unknown")] = true;
    }
    return object;
}

std::vector<Difference> compareSettings(const KvMvcSettings& before, const KvMvcSettings& after)
{
    std::vector<Difference> differences;
    for (int view = -1; view < KV_MVC_RECORD_VIEWS; ++view) {
        compareScope(before, after, view, differences);
    }
    return differences;
}

QString differenceText(const Difference& difference, const KvMvcSettings& before,
                       const KvMvcSettings& after)
{
    const auto [setting, view] = difference.place;
    QString subject = setting == nullptr ? reservedName : setting->name;
    if (view >= 0) {
        subject += QStringLiteral(", ") + QString(viewName(view)).toLower();
    }
    if (setting == nullptr) {
        return QStringLiteral("%1: %2 differ")
            .arg(subject, QString::number(difference.reservedBytes));
    }
    return QStringLiteral("%1: %2 -> %3")
        .arg(subject, settingText(before, difference.place), settingText(after, difference.place));
}

QString differencesText(const KvMvcSettings& before, const KvMvcSettings& after)
{
    QString text;
    for (const Difference& difference : compareSettings(before, after)) {
        text += differenceText(difference, before, after) + QLatin1Char('\n');
    }
    return text;
}

QJsonObject differenceJson(const Difference& difference, const KvMvcSettings& before,
                           const KvMvcSettings& after, QLatin1String beforeKey,
                           QLatin1String afterKey)
{
    const auto [setting, view] = difference.place;
    QJsonObject object;
    object[QStringLiteral("view")] = view < 0 ? QJsonValue() : QJsonValue(view);
    if (setting == nullptr) {
        object[QStringLiteral("setting")] = QJsonValue();
        object[QStringLiteral("name")] = reservedName;
        object[QStringLiteral("bytes")] = static_cast<qint64>(difference.reservedBytes);
        return object;
    }
    object[QStringLiteral("setting")] = setting->key;
    object[QStringLiteral("name")] = setting->name;
    object[beforeKey] = settingJson(before, difference.place);
    object[afterKey] = settingJson(after, difference.place);
    return object;
}

qint32 requirePreset(const QString& text)
{
    // Nobody should have to misspell a name.
    static constexpr ValueName alias = {KV_MVC_MULTIVIEW_HIGH, "Multiview High"_l1};
    const auto folded = [](const QString& name) {
        return name.toLower().replace(QLatin1Char('-'), QLatin1Char(' '));
    };
    QStringList known;
    QStringList typed; // as they are typed without quotes
    for (const ValueName& preset : namesOfVideoType) {
        const QString name = preset.value == alias.value ? alias.text : preset.text;
        typed << name.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
        const QString number = QString::number(preset.value);
        if (text == number || folded(text) == folded(preset.text)) {
            return preset.value;
        }
        known << number + QLatin1Char(' ') + preset.text;
    }
    if (folded(text) == folded(alias.text)) {
        return alias.value;
    }
    const QString hint = didYouMean(text, typed);
    throw Failure(QStringLiteral("there is no preset '%1'").arg(text) +
                  (hint.isEmpty()
                       ? QStringLiteral("; there are ") + known.join(QStringLiteral(", "))
                       : hint));
}
