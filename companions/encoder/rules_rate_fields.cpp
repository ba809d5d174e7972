// The fields of each view's rate control in their ranges.

#include "field_rows.h"
#include "rules.h"

namespace kv::encoder
{

namespace
{

/// The rules of some kinds about fields that each view has for itself.
template <class Row, FieldKind... kinds>
constexpr auto eachViewRules()
{
    return rulesOfFields<Row, viewFields, [](auto& row) {
        return (... || (row.kind == kinds)) && row.shared == Sharing::RateControl;
    }>();
}

constexpr auto codes = eachViewRules<Code, FieldKind::Code>();
constexpr auto switches = eachViewRules<Switch<V>, FieldKind::Switch>();
constexpr auto numbers =
    eachViewRules<NotNegative, FieldKind::Amount, FieldKind::Buffer, FieldKind::Fullness>();
constexpr auto quantizers = eachViewRules<Range<V>, FieldKind::Quantizer>();

/// A fullness in percent; in other units the buffer is its end.
struct PercentMessage {
    Field field;
    FieldMessage message;

    static constexpr PercentMessage of(const FieldRow<V>& row)
    {
        return {row.field,
                {row.shared,
                 row.member,
                 0,
                 {row.message.id.at, "-percent"},
                 Text{row.name, " was %d %%; it is now 100 %%."}.at,
                 "percent end at 100"}};
    }
};
constexpr auto percentMessages = eachViewRules<PercentMessage, FieldKind::Fullness>();

struct Percentage {
    Field field;
    ViewRule<int> rule;

    static constexpr Percentage of(const PercentMessage& row)
    {
        return {row.field, ruleOf<int>(row)};
    }
};
constexpr Percentage percentages[] = {Percentage::of(percentMessages[0]),
                                      Percentage::of(percentMessages[1])};
static_assert(std::size(percentages) == percentMessages.size());

int quantizerShift(const KvMvcViewSettings& view)
{
    return view.bit_depth_luma > 8 ? -6 * (view.bit_depth_luma - 8) : 0;
}

void correctPercentage(const Percentage& row, KvMvcViewSettings& view, const Speaker& speaker)
{
    const int old = view.*row.field;
    if (view.bitrate_units == KV_MVC_UNITS_BYTES_PERCENT && old > 100) {
        view.*row.field = 100;
        speaker.say(row.rule, old);
    }
}

constexpr auto rules = joinRules(rulesOf(codes), rulesOf(switches), rulesOf(numbers),
                                 rulesOf(percentages), rulesOf(quantizers));

} // namespace

void correctRateFields(KvMvcSettings& record, Report& report)
{
    int index = 0;
    for (KvMvcViewSettings& view : viewsInUse(record)) {
        const Speaker speaker{report, index};
        for (const auto& row : codes) {
            correctCode(row, view, speaker);
        }
        for (const auto& row : switches) {
            correctSwitch(row, view, speaker);
        }
        for (const NotNegative& row : numbers) {
            correctNegative(row, view, speaker);
        }
        for (const Percentage& row : percentages) {
            correctPercentage(row, view, speaker);
        }
        for (const auto& row : quantizers) {
            correctRange(row, row.low + quantizerShift(view), view, speaker);
        }
        ++index;
    }
}

RuleGroup rateFieldRules()
{
    return {"Fields of the rate control", rules};
}

} // namespace kv::encoder
