// Both ends of each field's range, and the codes that a field may hold.

#include "cases.h"

#include <cstdint>
#include <optional>

namespace
{

using ledger::Setting;

/// What a field holds at least and at most, where the rule says so.
struct Range {
    const char* rule;
    const char* member;
    std::optional<std::int32_t> least;
    std::optional<std::int32_t> most = {};
};

constexpr Range ranges[] = {
    {"field.i-interval", "i_interval", 0, 300},
    {"field.force-i", "force_i", 0, 999},
    {"field.idr-marker", "idr_marker", 0, 99},
    {"field.b-frames", "ref_distance", 1, 4},
    {"field.references", "num_ref_frames", 0, 16},
    {"field.motion-search", "motion_search", 0, 99},
    {"field.slices", "num_slices", 1},
    {"field.threads", "num_threads", 0, 16},
    {"field.brightness", "brightness", -100, 100},
    {"field.contrast", "contrast", -100, 100},
    {"field.complexity", "complexity", -100, 100},
    {"field.target-rate", "bitrate", 0},
    {"field.max-rate", "max_bitrate", 0},
    {"field.buffer", "bitrate_buffer", 0},
    {"field.size-i", "frame_size_i", 0},
    {"field.size-p", "frame_size_p", 0},
    {"field.size-b", "frame_size_b", 0},
    {"field.size-br", "frame_size_bref", 0},
    {"field.quantizer-i", "quant_i", 0, 51},
    {"field.quantizer-p", "quant_p", 0, 51},
    {"field.quantizer-b", "quant_b", 0, 51},
    {"field.quantizer-max", "quant_max", 0, 51},
    {"field.quantizer-min", "quant_min", 0, 51},
    {"field.vbv-initial", "vbv_initial", 0},
    {"field.vbv-initial-percent", "vbv_initial", {}, 100},
    {"field.vbv-target", "vbv_target", 0},
    {"field.vbv-target-percent", "vbv_target", {}, 100},
};

/// Codes without a meaning, and what takes their place.
struct Codes {
    const char* rule;
    const char* member;
    std::int32_t instead;
    QList<std::int32_t> unknown;
};

const Codes codes[] = {
    {"code.preset", "video_type", 0, {4, -1}},
    {"code.interlace", "interlace_mode", 0, {3, -1}},
    {"code.pulldown", "pulldown", 0, {3, 9, -1, 32}},
    {"code.chroma", "chroma_format", 2, {0, 5, -1}},
    {"code.partition", "min_partition", 1, {2, -1}},
    {"code.subpixel", "subpixel_mode", 2, {3, -1}},
    {"code.entropy", "entropy_mode", 0, {2, -1}},
    {"code.bitrate-mode", "bitrate_mode", 2, {4, -1}},
    {"code.units", "bitrate_units", 0, {3, -1}},
    {"switch.field-order", "field_order", 1, {2, -1}},
    {"field.depth-luma", "bit_depth_luma", 8, {7, 0, -1}},
    {"field.depth-luma", "bit_depth_luma", 10, {9, 14}},
    {"field.depth-chroma", "bit_depth_chroma", 8, {7}},
    {"field.depth-chroma", "bit_depth_chroma", 10, {11}},
};

const Setting& named(const char* member)
{
    return ledger::setting(QString::fromLatin1(member));
}

void addRange(const Range& range, QList<FieldCase>& cases)
{
    const auto row = [&](std::int32_t before, std::int32_t after) {
        cases.append({range.rule, &named(range.member), before, after});
    };
    if (range.least) {
        row(*range.least, *range.least);
        row(*range.least - 1, *range.least);
        row(INT32_MIN, *range.least);
    }
    if (range.most) {
        row(*range.most, *range.most);
        row(*range.most + 1, *range.most);
        row(INT32_MAX, *range.most);
    }
}

void addCodes(const Codes& row, QList<FieldCase>& cases)
{
    const Setting& setting = named(row.member);
    for (const auto& known : ledger::namedValues(QString::fromLatin1(row.member))) {
        cases.append({row.rule, &setting, known.code, known.code});
    }
    for (const std::int32_t code : row.unknown) {
        cases.append({row.rule, &setting, code, row.instead});
    }
}

/// Any number but 0 is taken for 1.
void addSwitch(const Setting& setting, QList<FieldCase>& cases)
{
    QByteArray name = QByteArray(setting.member).replace('_', '-');
    if (setting.is("fixed_i_position")) {
        name = "fixed-i";
    } else if (setting.is("hrd_mode")) {
        name = "hrd";
    }
    for (const std::int32_t before : {0, 1, 2, -1}) {
        cases.append({"switch." + name, &setting, before, before == 0 ? 0 : 1});
    }
}

QList<FieldCase> makeCases()
{
    QList<FieldCase> cases;
    for (const Range& range : ranges) {
        addRange(range, cases);
    }
    for (const Codes& row : codes) {
        addCodes(row, cases);
    }
    for (const Setting& setting : ledger::settings()) {
        // The one follows the number of slices, the other is the record's.
        if (setting.kind == ledger::Kind::Switch && !setting.is("multi_slice") &&
            !setting.isOfRecord()) {
            addSwitch(setting, cases);
        }
    }
    return cases;
}

} // namespace

const QList<FieldCase>& fieldCases()
{
    static const QList<FieldCase> cases = makeCases();
    return cases;
}
