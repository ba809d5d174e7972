#include "SettingsTable.h"

#include "Failure.h"

#include <QJsonValue>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cstring>

using Kind = SettingKind;

namespace
{

constexpr QLatin1String operator""_l1(const char* text, std::size_t size)
{
    return QLatin1String(text, static_cast<int>(size));
}

// Values, too, are named as the dialog names them.
constexpr ValueName switchNames[] = {{0, "off"_l1}, {1, "on"_l1}};
constexpr ValueName profileNames[] = {{KV_MVC_PROFILE_BASELINE, "Baseline"_l1},
                                      {KV_MVC_PROFILE_MAIN, "Main"_l1},
                                      {KV_MVC_PROFILE_HIGH, "High"_l1},
                                      {KV_MVC_PROFILE_HIGH_10, "High 10"_l1},
                                      {KV_MVC_PROFILE_HIGH_422, "High 422"_l1}};
constexpr ValueName levelNames[] = {{10, "1.0"_l1}, {11, "1.1"_l1}, {12, "1.2"_l1},
                                    {13, "1.3"_l1}, {16, "1.6"_l1}, {20, "2.0"_l1},
                                    {21, "2.1"_l1}, {22, "2.2"_l1}, {30, "3.0"_l1},
                                    {31, "3.1"_l1}, {32, "3.2"_l1}, {40, "4.0"_l1},
                                    {41, "4.1"_l1}, {42, "4.2"_l1}, {50, "5.0"_l1},
                                    {51, "5.1"_l1}, {52, "5.2"_l1}, {KV_MVC_LEVEL_AUTO, "Auto"_l1}};
constexpr ValueName videoTypeNames[] = {{KV_MVC_VIDEO_TYPE_NONE, "None"_l1},
                                        {KV_MVC_MULTIVIEW_HIGH, "Multivew High"_l1},
                                        {KV_MVC_STEREO_HIGH, "Stereo High"_l1},
                                        {KV_MVC_BLURAY_3D, "Blu-ray 3D"_l1}};
constexpr ValueName interlaceNames[] = {{KV_MVC_PROGRESSIVE, "Progressive"_l1},
                                        {KV_MVC_INTERLACED, "Interlaced"_l1},
                                        {KV_MVC_MBAFF, "MBAFF"_l1}};
constexpr ValueName fieldOrderNames[] = {{KV_MVC_TOP_FIELD_FIRST, "Top Field First"_l1},
                                         {KV_MVC_BOTTOM_FIELD_FIRST, "Bot Field First"_l1}};
constexpr ValueName pulldownNames[] = {{KV_MVC_PULLDOWN_OFF, "Off"_l1},
                                       {KV_MVC_PULLDOWN_2_3, "2:3"_l1},
                                       {KV_MVC_PULLDOWN_3_2, "3:2"_l1},
                                       {KV_MVC_PULLDOWN_2_3_PROGRESSIVE, "2:3 P"_l1},
                                       {KV_MVC_PULLDOWN_3_2_PROGRESSIVE, "3:2 P"_l1},
                                       {KV_MVC_PULLDOWN_AUTO, "Auto"_l1},
                                       {KV_MVC_PULLDOWN_2_2, "2:2"_l1},
                                       {KV_MVC_PULLDOWN_3_3, "3:3"_l1}};
constexpr ValueName chromaNames[] = {{KV_MVC_CHROMA_400, "4:0:0"_l1},
                                     {KV_MVC_CHROMA_420, "4:2:0"_l1},
                                     {KV_MVC_CHROMA_422, "4:2:2"_l1},
                                     {KV_MVC_CHROMA_UNNAMED, "unnamed format"_l1}};
constexpr ValueName bitrateModeNames[] = {
    {KV_MVC_CONSTANT_BITRATE, "Constant Bitrate"_l1},
    {KV_MVC_CONSTANT_QUANTIZER, "Const. Quality - Constant Quantizer"_l1},
    {KV_MVC_VARIABLE_BITRATE, "Variable Bitrate"_l1},
    {KV_MVC_AVERAGE_QUANTIZER, "Const. Quality - Average Quantizer"_l1}};
constexpr ValueName unitsNames[] = {{KV_MVC_UNITS_BYTES_PERCENT, "Bytes and percent"_l1},
                                    {KV_MVC_UNITS_BITS, "Bits"_l1},
                                    {KV_MVC_UNITS_BITS_90KHZ, "Bits and 90 kHz"_l1}};
constexpr ValueName partitionNames[] = {{KV_MVC_PARTITION_16X16, "16 x 16"_l1},
                                        {KV_MVC_PARTITION_8X8, "8 x 8"_l1}};
constexpr ValueName subpixelNames[] = {{KV_MVC_SUBPIXEL_FULL, "Full"_l1},
                                       {KV_MVC_SUBPIXEL_HALF, "Half"_l1},
                                       {KV_MVC_SUBPIXEL_QUARTER, "Quarter"_l1}};
constexpr ValueName entropyNames[] = {{KV_MVC_CAVLC, "CAVLC"_l1}, {KV_MVC_CABAC, "CABAC"_l1}};
constexpr ValueName customNames[] = {{KV_MVC_ASPECT_UNSET, "Custom"_l1}};
constexpr ValueName derivedNames[] = {{KV_MVC_ASPECT_UNSET, "derived"_l1}};
constexpr ValueName firstOnlyNames[] = {{0, "0 (first only)"_l1}};
constexpr ValueName noLimitNames[] = {{0, "0 (no limit)"_l1}};
constexpr ValueName automaticNames[] = {{0, "Auto"_l1}};

// The units that a value of bitrate_units selects.
constexpr ValueName bufferUnits[] = {{KV_MVC_UNITS_BYTES_PERCENT, "bytes"_l1},
                                     {KV_MVC_UNITS_BITS, "bits"_l1},
                                     {KV_MVC_UNITS_BITS_90KHZ, "bits"_l1}};
constexpr ValueName fullnessUnits[] = {{KV_MVC_UNITS_BYTES_PERCENT, "%"_l1},
                                       {KV_MVC_UNITS_BITS, "bits"_l1},
                                       {KV_MVC_UNITS_BITS_90KHZ, "ticks of 90 kHz"_l1}};

// clang-format off
#define KV_SETTING(record, field, name, kind, ...) \
    {#field ""_l1, name##_l1, Kind::kind, offsetof(record, field) __VA_OPT__(,) __VA_ARGS__}
#define RECORD(...) KV_SETTING(KvMvcSettings, __VA_ARGS__)
#define VIEW(...) KV_SETTING(KvMvcViewSettings, __VA_ARGS__)

// The names are those of the dialog's controls, which a test holds.
constexpr Setting recordTable[] = {
    RECORD(num_views, "Number of additional views", Number, {}, {}, 1),
    RECORD(split_views, "Split views", Code, switchNames),
};

constexpr Setting viewTable[] = {
    VIEW(video_type, "Preset", Code, videoTypeNames),
    VIEW(profile, "Profile", Code, profileNames),
    VIEW(level, "Level", Code, levelNames),

    VIEW(width, "Picture width", Number),
    VIEW(height, "Picture height", Number),
    VIEW(frame_rate, "Frame rate", Rate),
    VIEW(display_aspect_x, "Picture aspect ratio, horizontal part", Number, customNames),
    VIEW(display_aspect_y, "Picture aspect ratio, vertical part", Number, customNames),
    VIEW(pixel_aspect_x, "Pixel aspect ratio, horizontal part", Number, derivedNames),
    VIEW(pixel_aspect_y, "Pixel aspect ratio, vertical part", Number, derivedNames),
    VIEW(interlace_mode, "Picture structure", Code, interlaceNames),
    VIEW(field_order, "Field order", Code, fieldOrderNames),
    VIEW(pulldown, "Pulldown", Code, pulldownNames),
    VIEW(chroma_format, "Chroma format", Code, chromaNames),
    VIEW(bit_depth_luma, "Bit-depth luma", Number, {}, "bits"_l1),
    VIEW(bit_depth_chroma, "Bit-depth chroma", Number, {}, "bits"_l1),

    VIEW(bitrate_mode, "Bitrate mode", Code, bitrateModeNames),
    VIEW(bitrate, "Target bitrate (bps)", Number),
    VIEW(max_bitrate, "Max bitrate (bps)", Number),
    VIEW(hrd_mode, "HRD conformance", Code, switchNames),
    VIEW(bitrate_units, "Units", Code, unitsNames),
    VIEW(bitrate_buffer, "Bitrate buffer", BufferSize),
    VIEW(vbv_initial, "VBV buffer initial", Fullness),
    VIEW(vbv_target, "VBV buffer target", Fullness),
    VIEW(frame_size_i, "Maximum I-frame size", Number, noLimitNames, "bytes"_l1),
    VIEW(frame_size_p, "Maximum P-frame size", Number, noLimitNames, "bytes"_l1),
    VIEW(frame_size_b, "Maximum B-frame size", Number, noLimitNames, "bytes"_l1),
    VIEW(frame_size_bref, "Maximum Br-frame size", Number, noLimitNames, "bytes"_l1),
    VIEW(quant_i, "Quantizer I-frames", Number),
    VIEW(quant_p, "Quantizer P-frames", Number),
    VIEW(quant_b, "Quantizer B-frames", Number),
    VIEW(quant_min, "Minimum quantizer", Number),
    VIEW(quant_max, "Maximum quantizer", Number),

    VIEW(scene_detection, "Enable scene detection", Code, switchNames),
    VIEW(i_interval, "I-frame interval", Number, firstOnlyNames),
    VIEW(force_i, "Min. I-frame distance", Number),
    VIEW(idr_marker, "Mark every so many I-frames as IDR", Number, firstOnlyNames),
    VIEW(fixed_i_position, "Fixed I-frames distance", Code, switchNames),
    VIEW(ref_distance, "Number of B-frames", Number, {}, {}, 1),
    VIEW(adaptive_b, "Adaptive B-frame placement", Code, switchNames),
    VIEW(pyramid_b, "Pyramidal structure for B-frames", Code, switchNames),
    VIEW(reference_b, "B-frames as reference frames", Code, switchNames),

    VIEW(min_partition, "Macroblock search block size", Code, partitionNames),
    VIEW(subpixel_mode, "Subpixel search depth", Code, subpixelNames),
    VIEW(num_ref_frames, "Reference frames", Number),
    VIEW(motion_search, "Motion vector search range", Number),
    VIEW(weighted_p, "Weighted prediction for P-frames", Code, switchNames),
    VIEW(fast_reference, "Fast multi-reference frame search", Code, switchNames),
    VIEW(fast_subblock, "Fast sub-block search", Code, switchNames),

    VIEW(fast_intra, "Fast intra decisions", Code, switchNames),
    VIEW(fast_inter, "Fast inter decisions", Code, switchNames),
    VIEW(simple_rd, "Simplified RD optimization", Code, switchNames),
    VIEW(hadamard, "Hadamard transformation", Code, switchNames),
    VIEW(brightness, "Adaptive quantization, brightness based", Number),
    VIEW(contrast, "Adaptive quantization, contrast based", Number),
    VIEW(complexity, "Adaptive quantization, complexity based", Number),

    VIEW(deblocking, "Deblocking filter", Code, switchNames),
    VIEW(entropy_mode, "Entropy coding mode", Code, entropyNames),
    VIEW(num_slices, "Slices per picture", Number),
    VIEW(multi_slice, "Several slices", Code, switchNames),
    VIEW(num_threads, "Threads", Number, automaticNames),
};
#undef VIEW
#undef RECORD
#undef KV_SETTING
// clang-format on

/// Rates that are ratios; their decimals are rounded.
struct NamedRate {
    double rate;
    QLatin1String text;
};
constexpr NamedRate namedRates[] = {{24000.0 / 1001.0, "23.976 (24000/1001)"_l1},
                                    {30000.0 / 1001.0, "29.97 (30000/1001)"_l1},
                                    {60000.0 / 1001.0, "59.94 (60000/1001)"_l1},
                                    {0.0, "not set"_l1}};

const char* baseOf(const KvMvcSettings& settings, int view)
{
    return view < 0 ? reinterpret_cast<const char*>(&settings)
                    : reinterpret_cast<const char*>(&settings.views[view]);
}

template <class Number>
Number numberAt(const KvMvcSettings& settings, Place place)
{
    Number number;
    std::memcpy(&number, baseOf(settings, place.view) + place.setting->offset, sizeof number);
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
void compareScope(std::span<const Setting> table, const KvMvcSettings& before,
                  const KvMvcSettings& after, int view, std::size_t size,
                  std::vector<Difference>& differences)
{
    const char* a = baseOf(before, view);
    const char* b = baseOf(after, view);
    std::vector<bool> named(size);
    for (const Setting& setting : table) {
        std::fill_n(named.begin() + static_cast<std::ptrdiff_t>(setting.offset), setting.size(),
                    true);
        if (std::memcmp(a + setting.offset, b + setting.offset, setting.size()) != 0) {
            differences.push_back({{&setting, view}, 0});
        }
    }
    std::size_t reserved = 0;
    for (std::size_t at = 0; at < size; ++at) {
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

std::span<const Setting> recordSettings()
{
    return recordTable;
}

std::span<const Setting> viewSettings()
{
    return viewTable;
}

QLatin1String viewName(int view)
{
    return viewNames.at(static_cast<std::size_t>(view));
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
    case Kind::Code:
        return QStringLiteral("%1 (unknown)").arg(number);
    case Kind::BufferSize:
        return withUnit(setting, number, selectedUnit(bufferUnits, settings, place.view));
    case Kind::Fullness:
        return withUnit(setting, number, selectedUnit(fullnessUnits, settings, place.view));
    case Kind::Number:
    case Kind::Rate:
        break;
    }
    return withUnit(setting, number, setting.unit);
}

QJsonObject settingJson(const KvMvcSettings& settings, Place place)
{
    const QJsonValue value = place.setting->kind == Kind::Rate
                                 ? QJsonValue(numberAt<double>(settings, place))
                                 : QJsonValue(numberAt<qint32>(settings, place));
    return {{QStringLiteral("value"), value},
            {QStringLiteral("text"), settingText(settings, place)}};
}

std::vector<Difference> compareSettings(const KvMvcSettings& before, const KvMvcSettings& after)
{
    std::vector<Difference> differences;
    compareScope(recordTable, before, after, -1, offsetof(KvMvcSettings, views), differences);
    for (int view = 0; view < KV_MVC_RECORD_VIEWS; ++view) {
        compareScope(viewTable, before, after, view, sizeof(KvMvcViewSettings), differences);
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
    for (const ValueName& preset : videoTypeNames) {
        const QString number = QString::number(preset.value);
        if (text == number || folded(text) == folded(preset.text)) {
            return preset.value;
        }
        known << number + QLatin1Char(' ') + preset.text;
    }
    if (folded(text) == folded(alias.text)) {
        return alias.value;
    }
    throw Failure(QStringLiteral("there is no preset '%1'; there are %2")
                      .arg(text, known.join(QStringLiteral(", "))));
}
