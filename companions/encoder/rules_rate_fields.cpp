// The fields of each view's rate control in their ranges.

#include "field_rows.h"
#include "rules.h"

namespace kv::encoder
{

namespace
{

// What is said of a field, by what the dialog calls it.
#define KV_NEGATIVE(name) KV_EACH_VIEW(name " was %d; it cannot be negative and is now 0.")
#define KV_VIEW_RANGE(name) KV_EACH_VIEW("The " name " was %d; it is now %d (%d to %d).")

constexpr NotNegative numbers[] = {
    {&V::bitrate,
     {"field.target-rate", corrected, KV_NEGATIVE("The target bitrate"), encoderRange}},
    {&V::max_bitrate, {"field.max-rate", corrected, KV_NEGATIVE("The max bitrate"), encoderRange}},
    {&V::bitrate_buffer,
     {"field.buffer", corrected, KV_NEGATIVE("The bitrate buffer"), encoderRange}},
    {&V::vbv_initial,
     {"field.vbv-initial", corrected, KV_NEGATIVE("VBV buffer initial"), encoderRange}},
    {&V::vbv_target,
     {"field.vbv-target", corrected, KV_NEGATIVE("VBV buffer target"), encoderRange}},
    {&V::frame_size_i,
     {"field.size-i", corrected, KV_NEGATIVE("The maximum I-frame size"), encoderRange}},
    {&V::frame_size_p,
     {"field.size-p", corrected, KV_NEGATIVE("The maximum P-frame size"), encoderRange}},
    {&V::frame_size_b,
     {"field.size-b", corrected, KV_NEGATIVE("The maximum B-frame size"), encoderRange}},
    {&V::frame_size_bref,
     {"field.size-br", corrected, KV_NEGATIVE("The maximum Br-frame size"), encoderRange}},
};

/** A fullness in percent; in other units the buffer is its end. */
struct Percentage {
    Field field;
    ViewRule<int> rule;
};
constexpr Percentage percentages[] = {
    {&V::vbv_initial,
     {"field.vbv-initial-percent", corrected,
      KV_EACH_VIEW("VBV buffer initial was %d %%; it is now 100 %%."), "percent end at 100"}},
    {&V::vbv_target,
     {"field.vbv-target-percent", corrected,
      KV_EACH_VIEW("VBV buffer target was %d %%; it is now 100 %%."), "percent end at 100"}},
};

// The lower end falls by 6 a bit beyond 8 (quantizerLow below).
constexpr const char* quantizerClause = "7.4.2.2: -6 * (bit depth - 8) to 51";
constexpr Range<ViewRule<int, int, int, int>> quantizers[] = {
    {&V::quant_i,
     0,
     51,
     {"field.quantizer-i", corrected, KV_VIEW_RANGE("quantizer of I-frames"), quantizerClause}},
    {&V::quant_p,
     0,
     51,
     {"field.quantizer-p", corrected, KV_VIEW_RANGE("quantizer of P-frames"), quantizerClause}},
    {&V::quant_b,
     0,
     51,
     {"field.quantizer-b", corrected, KV_VIEW_RANGE("quantizer of B-frames"), quantizerClause}},
    {&V::quant_max,
     0,
     51,
     {"field.quantizer-max", corrected, KV_VIEW_RANGE("maximum quantizer"), quantizerClause}},
    {&V::quant_min,
     0,
     51,
     {"field.quantizer-min", corrected, KV_VIEW_RANGE("minimum quantizer"), quantizerClause}},
};

constexpr Switch<ViewRule<int>> viewSwitches[] = {
    {&V::hrd_mode,
     {"switch.hrd", corrected, KV_EACH_VIEW(KV_SWITCH("HRD conformance")), switchRange}},
};

constexpr Code<ViewRule<int>> viewCodes[] = {
    {&V::bitrate_mode,
     codes(0, 1, 2, 3),
     KV_MVC_VARIABLE_BITRATE,
     {"code.bitrate-mode", corrected,
      KV_EACH_VIEW("The bitrate mode code %d is unknown; it is now Variable Bitrate."), codeRange}},
    {&V::bitrate_units,
     codes(0, 1, 2),
     KV_MVC_UNITS_BYTES_PERCENT,
     {"code.units", corrected,
      KV_EACH_VIEW("The units code %d is unknown; the units are now bytes and percent."),
      codeRange}},
};

int quantizerLow(const KvMvcViewSettings& view)
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

constexpr auto rules = joinRules(rulesOf(viewCodes), rulesOf(viewSwitches), rulesOf(numbers),
                                 rulesOf(percentages), rulesOf(quantizers));

} // namespace

void correctRateFields(KvMvcSettings& record, Report& report)
{
    int index = 0;
    for (KvMvcViewSettings& view : viewsInUse(record)) {
        const Speaker speaker{report, index};
        for (const auto& row : viewCodes) {
            correctCode(row, view, speaker);
        }
        for (const auto& row : viewSwitches) {
            correctSwitch(row, view, speaker);
        }
        for (const NotNegative& row : numbers) {
            correctNegative(row, view, speaker);
        }
        for (const Percentage& row : percentages) {
            correctPercentage(row, view, speaker);
        }
        for (const auto& row : quantizers) {
            correctRange(row, quantizerLow(view), row.high, view, speaker);
        }
        ++index;
    }
}

RuleGroup rateFieldRules()
{
    return {"Fields of the rate control", rules};
}

} // namespace kv::encoder
