// The fields of each view's rate control in their ranges.

#include "field_rows.h"
#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr Range<int> viewRanges[] = {
    {&V::bitrate,
     0,
     noLimit,
     {"field.target-rate", corrected, "View %d: target bitrate was %d; it is now %d (%d to %d).",
      encoderRange}},
    {&V::max_bitrate,
     0,
     noLimit,
     {"field.max-rate", corrected, "View %d: max bitrate was %d; it is now %d (%d to %d).",
      encoderRange}},
    {&V::bitrate_buffer,
     0,
     noLimit,
     {"field.buffer", corrected, "View %d: bitrate buffer was %d; it is now %d (%d to %d).",
      encoderRange}},
    {&V::frame_size_i,
     0,
     noLimit,
     {"field.size-i", corrected, "View %d: maximum I-frame size was %d; it is now %d (%d to %d).",
      encoderRange}},
    {&V::frame_size_p,
     0,
     noLimit,
     {"field.size-p", corrected, "View %d: maximum P-frame size was %d; it is now %d (%d to %d).",
      encoderRange}},
    {&V::frame_size_b,
     0,
     noLimit,
     {"field.size-b", corrected, "View %d: maximum B-frame size was %d; it is now %d (%d to %d).",
      encoderRange}},
    {&V::frame_size_bref,
     0,
     noLimit,
     {"field.size-br", corrected, "View %d: maximum Br-frame size was %d; it is now %d (%d to %d).",
      encoderRange}},
};

// The lower end falls by 6 a bit beyond 8 (quantizerLow below).
constexpr const char* quantizerClause = "7.4.2.2: -6 * (bit depth - 8) to 51";
constexpr Range<int> quantizers[] = {
    {&V::quant_i,
     0,
     51,
     {"field.quantizer-i", corrected, "View %d: I quantizer was %d; it is now %d (%d to %d).",
      quantizerClause}},
    {&V::quant_p,
     0,
     51,
     {"field.quantizer-p", corrected, "View %d: P quantizer was %d; it is now %d (%d to %d).",
      quantizerClause}},
    {&V::quant_b,
     0,
     51,
     {"field.quantizer-b", corrected, "View %d: B quantizer was %d; it is now %d (%d to %d).",
      quantizerClause}},
    {&V::quant_max,
     0,
     51,
     {"field.quantizer-max", corrected,
      "View %d: maximum quantizer was %d; it is now %d (%d to %d).", quantizerClause}},
    {&V::quant_min,
     0,
     51,
     {"field.quantizer-min", corrected,
      "View %d: minimum quantizer was %d; it is now %d (%d to %d).", quantizerClause}},
};

// The unit of the fullness decides the upper end (fullnessHigh below).
constexpr Range<int> fullnesses[] = {
    {&V::vbv_initial,
     0,
     noLimit,
     {"field.vbv-initial", corrected,
      "View %d: VBV buffer initial was %d; it is now %d (%d to %d).",
      "range of the unit: percent end at 100"}},
    {&V::vbv_target,
     0,
     noLimit,
     {"field.vbv-target", corrected, "View %d: VBV buffer target was %d; it is now %d (%d to %d).",
      "range of the unit: percent end at 100"}},
};

constexpr Switch<int> viewSwitches[] = {
    {&V::hrd_mode,
     {"switch.hrd", corrected, "View %d: HRD conformance was %d; it is now on (1).", switchRange}},
};

constexpr Code<int> viewCodes[] = {
    {&V::bitrate_mode,
     codes(0, 1, 2, 3),
     KV_MVC_VARIABLE_BITRATE,
     {"code.bitrate-mode", corrected,
      "View %d: bitrate mode code %d is not assigned; it is now variable bitrate.", codeRange}},
    {&V::bitrate_units,
     codes(0, 1, 2),
     KV_MVC_UNITS_BYTES_PERCENT,
     {"code.units", corrected,
      "View %d: unit code %d is not assigned; units are now bytes and percent.", codeRange}},
};

int quantizerLow(const KvMvcViewSettings& view)
{
    return view.bit_depth_luma > 8 ? -6 * (view.bit_depth_luma - 8) : 0;
}

int fullnessHigh(const KvMvcViewSettings& view)
{
    return view.bitrate_units == KV_MVC_UNITS_BYTES_PERCENT ? 100 : noLimit;
}

constexpr auto rules = joinRules(rulesOf(viewCodes), rulesOf(viewSwitches), rulesOf(viewRanges),
                                 rulesOf(quantizers), rulesOf(fullnesses));

} // namespace

void correctRateFields(KvMvcSettings& record, Report& report)
{
    int index = 0;
    for (KvMvcViewSettings& view : viewsInUse(record)) {
        for (const auto& row : viewCodes) {
            correctCode(row, view, report, index);
        }
        for (const auto& row : viewSwitches) {
            correctSwitch(row, view, report, index);
        }
        for (const auto& row : viewRanges) {
            correctRange(row, row.low, row.high, view, report, index);
        }
        for (const auto& row : quantizers) {
            correctRange(row, quantizerLow(view), row.high, view, report, index);
        }
        for (const auto& row : fullnesses) {
            correctRange(row, row.low, fullnessHigh(view), view, report, index);
        }
        ++index;
    }
}

RuleGroup rateFieldRules()
{
    return {"Fields of the rate control", rules};
}

} // namespace kv::encoder
