// The general fields in their ranges, by the field table.

#include <cmath>

#include "field_rows.h"
#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr auto recordRanges = rulesOfFields<Range<KvMvcSettings>, recordFields, [](auto& row) {
    return row.kind == FieldKind::Number;
}>();
constexpr auto recordSwitches = rulesOfFields<Switch<KvMvcSettings>, recordFields, [](auto& row) {
    return row.kind == FieldKind::Switch;
}>();

/// The rules of one kind about fields that the dialog sets for all views.
template <class Row, FieldKind kind>
constexpr auto generalRules()
{
    return rulesOfFields<Row, viewFields, [](auto& row) {
        return row.kind == kind && row.shared != Sharing::RateControl;
    }>();
}

constexpr auto codes = generalRules<Code, FieldKind::Code>();
constexpr auto switches = generalRules<Switch<V>, FieldKind::Switch>();
constexpr auto ranges = generalRules<Range<V>, FieldKind::Number>();
constexpr auto depths = generalRules<Depth, FieldKind::Depth>();

constexpr Rule<double> frameRateValue = {
    "field.frame-rate",
    corrected,
    "The frame rate %g cannot be coded; no frame rate is set now.",
    "E.2.1: two 32-bit numbers, neither of them 0, give the rate",
    {.setting = "frame_rate", .value = 1}};

void correctFrameRate(KvMvcViewSettings& view, Report& report)
{
    constexpr double lowest = 0.5 / 4294967295.0; // time_scale 1, num_units_in_tick at its most
    const double old = view.frame_rate;
    if (old == 0 || (std::isfinite(old) && old >= lowest)) {
        return;
    }
    view.frame_rate = 0;
    report.say(frameRateValue, old);
}

constexpr auto singles = std::to_array<const RuleInfo*>({&frameRateValue});
constexpr auto rules =
    joinRules(rulesOf(recordRanges), rulesOf(recordSwitches), singles, rulesOf(depths),
              rulesOf(codes), rulesOf(switches), rulesOf(ranges));

} // namespace

void correctCounts(KvMvcSettings& record, Report& report)
{
    const Speaker speaker{report, 0};
    for (const auto& row : recordRanges) {
        correctRange(row, row.low, record, speaker);
    }
    for (const auto& row : recordSwitches) {
        correctSwitch(row, record, speaker);
    }
}

void correctFields(KvMvcSettings& record, Report& report)
{
    const auto each = [&](const auto& rows, auto correct) {
        for (const auto& row : rows) {
            correctAllViews(record, row.field, report,
                            [&](V& view, const Speaker& speaker) { correct(row, view, speaker); });
        }
    };
    each(codes, correctCode);
    each(switches, correctSwitch<V>);
    each(ranges, [](const auto& row, V& view, const Speaker& speaker) {
        correctRange(row, row.low, view, speaker);
    });
    each(depths, correctDepth);

    Report silent; // the views have the same frame rate by now
    correctFrameRate(record.views[0], report);
    if (countSubRecords(record) > 1) {
        correctFrameRate(record.views[1], silent);
    }
}

RuleGroup fieldRules()
{
    return {"Fields", rules};
}

} // namespace kv::encoder
