// Rates, buffers, fullness and quantizers of each view.

#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr Rule<int, int> constantMaximum = {
    "rate.constant-max", Severity::Warning,
    "View %d: the bitrate is constant, so its maximum is now its target, %d bit/s.",
    "E.2.2: cbr_flag 1"};
constexpr Rule<int, int> targetMaximum = {
    "rate.target-max", Severity::Warning,
    "View %d: the target bitrate exceeded the maximum; it is now %d bit/s.",
    "C.1.1: bits arrive at the maximum rate at most"};
constexpr Rule<int, int, int> targetFullness = {
    "hrd.target", Severity::Warning,
    "View %d: VBV buffer target was %d, more than the buffer holds; it is now %d.",
    "an aim of the encoder, not in the standard"};

constexpr Rule<int> noTarget = {"rate.target", Severity::Error,
                                "View %d needs a target bitrate above 0.", "nothing to aim at"};
constexpr Rule<int> noMaximum = {"hrd.maximum", Severity::Error,
                                 "View %d needs a max bitrate above 0 for HRD conformance.",
                                 "E.2.2: bit_rate_value_minus1"};
constexpr Rule<int> noBuffer = {"hrd.buffer", Severity::Error,
                                "View %d needs a bitrate buffer above 0 for HRD conformance.",
                                "E.2.2: cpb_size_value_minus1"};
constexpr Rule<int> noFrameRate = {"hrd.frame-rate", Severity::Error,
                                   "View %d needs a frame rate for HRD conformance.",
                                   "C.1.2: removal times count clock ticks"};
constexpr Rule<int> emptyStart = {"hrd.initial-empty", Severity::Error,
                                  "View %d: VBV buffer initial has to be above 0.",
                                  "D.2.2: initial_cpb_removal_delay is not 0"};
constexpr Rule<int, int, int> fullStart = {
    "hrd.initial-above", Severity::Error,
    "View %d: VBV buffer initial %d is more than the buffer holds, %d.",
    "D.2.2: at most 90000 * CpbSize / BitRate"};
constexpr Rule<int, int, double> iPicture = {
    "hrd.i-size", Severity::Error,
    "View %d: an I-frame of %d bytes does not fit the buffer of %.0f bytes.",
    "C.3: a picture is whole in the buffer when it is removed"};
constexpr Rule<int> shortStart = {
    "hrd.initial-short", Severity::Note,
    "View %d: VBV buffer initial is less than one frame; the first may come late.",
    "C.3: underflow"};
constexpr Rule<int, double> shortBuffer = {
    "hrd.short", Severity::Note, "View %d: a buffer of %.2f s leaves little room for I-frames.",
    "practice: 0.5 s and more"};
constexpr Rule<int> rounded = {
    "hrd.rounding", Severity::Note,
    "View %d: the stream names the rate in steps of 64 bit/s, the buffer of 16 bits.",
    "E.2.2: bit_rate_scale and cpb_size_scale"};
constexpr Rule<int> withQuantizer = {
    "hrd.quantizer", Severity::Note,
    "View %d: HRD conformance cannot be kept where quantizers set the size of pictures.",
    "C.3: underflow"};
constexpr Rule<int> unlimited = {"rate.unlimited", Severity::Note,
                                 "View %d has no max bitrate; its target stands for it.",
                                 "A.3: limits hold for the maximum"};
constexpr Rule<int, int, int> quantizerOrder = {
    "quantizer.order", Severity::Error,
    "View %d: the minimum quantizer %d is above the maximum quantizer %d.",
    "contradiction of the two ends"};

constexpr const char* insideEnds = "contradiction of the quantizer and its ends";
struct Quantizer {
    std::int32_t KvMvcViewSettings::*field;
    bool (*used)(const Stream&);
    Rule<int, int, int, int> rule;
};
constexpr Quantizer quantizers[] = {
    {&KvMvcViewSettings::quant_i,
     [](const Stream&) { return true; },
     {"quantizer.i", Severity::Error, "View %d: the I quantizer %d is outside %d to %d.",
      insideEnds}},
    {&KvMvcViewSettings::quant_p,
     [](const Stream& stream) { return stream.predicts; },
     {"quantizer.p", Severity::Error, "View %d: the P quantizer %d is outside %d to %d.",
      insideEnds}},
    {&KvMvcViewSettings::quant_b,
     [](const Stream& stream) { return stream.bFrames; },
     {"quantizer.b", Severity::Error, "View %d: the B quantizer %d is outside %d to %d.",
      insideEnds}},
};

void judgeFullness(const Stream& stream, int v, Report& report)
{
    const KvMvcViewSettings& view = stream.record.views[v];
    const int full = fullBuffer(view);
    if (full < 0) {
        return; // without rate or buffer, which is refused already
    }
    const double start = fullnessSeconds(view, view.vbv_initial);
    if (view.vbv_initial <= 0) {
        report.say(emptyStart, v);
    } else if (view.vbv_initial > full) {
        report.say(fullStart, v, view.vbv_initial, full);
    } else if (stream.frameRate > 0 && start * stream.frameRate < 1) {
        report.say(shortStart, v);
    }
    const std::int64_t bits = bufferBits(view);
    const std::int64_t rate = limitRate(view);
    if (view.frame_size_i > bits / 8) {
        report.say(iPicture, v, view.frame_size_i, static_cast<double>(bits / 8));
    }
    if (const double seconds = static_cast<double>(bits) / static_cast<double>(rate);
        seconds < 0.5) {
        report.say(shortBuffer, v, seconds);
    }
    if (rate % 64 != 0 || bits % 16 != 0) {
        report.say(rounded, v);
    }
}

void judgeBuffer(const Stream& stream, int v, Report& report)
{
    const KvMvcViewSettings& view = stream.record.views[v];
    if (view.bitrate_mode == KV_MVC_VARIABLE_BITRATE && view.max_bitrate <= 0) {
        report.say(noMaximum, v);
    }
    if (view.bitrate_buffer <= 0) {
        report.say(noBuffer, v);
    }
    if (stream.frameRate == 0) {
        report.say(noFrameRate, v);
    }
    judgeFullness(stream, v, report);
}

void judgeQuantizers(const Stream& stream, int v, Report& report)
{
    const KvMvcViewSettings& view = stream.record.views[v];
    if (view.quant_min > view.quant_max) {
        report.say(quantizerOrder, v, view.quant_min, view.quant_max);
        return;
    }
    if (aimsAtRate(view)) {
        return; // the rate sets the quantizers
    }
    for (const Quantizer& row : quantizers) {
        const int value = view.*row.field;
        if (row.used(stream) && (value < view.quant_min || value > view.quant_max)) {
            report.say(row.rule, v, value, view.quant_min, view.quant_max);
        }
    }
}

void judgeView(const Stream& stream, int v, Report& report)
{
    const KvMvcViewSettings& view = stream.record.views[v];
    if (aimsAtRate(view) && view.bitrate <= 0) {
        report.say(noTarget, v);
    }
    if (keepsBuffer(view)) {
        judgeBuffer(stream, v, report);
    } else if (view.hrd_mode != 0) {
        report.say(withQuantizer, v);
    } else if (view.bitrate_mode == KV_MVC_VARIABLE_BITRATE && view.max_bitrate <= 0) {
        report.say(unlimited, v);
    }
    judgeQuantizers(stream, v, report);
}

constexpr const RuleInfo* singles[] = {
    &constantMaximum, &targetMaximum, &targetFullness, &noTarget,       &noMaximum,  &noBuffer,
    &noFrameRate,     &emptyStart,    &fullStart,      &iPicture,       &shortStart, &shortBuffer,
    &rounded,         &withQuantizer, &unlimited,      &quantizerOrder,
};
constexpr auto rules = joinRules(singles, rulesOf(quantizers));

} // namespace

void correctRates(KvMvcSettings& record, Report& report)
{
    for (int v = 0; v < countSubRecords(record); ++v) {
        KvMvcViewSettings& view = record.views[v];
        if (view.bitrate_mode == KV_MVC_CONSTANT_BITRATE && view.bitrate > 0 &&
            view.max_bitrate != view.bitrate) {
            view.max_bitrate = view.bitrate;
            report.say(constantMaximum, v, view.bitrate);
        }
        if (view.bitrate_mode == KV_MVC_VARIABLE_BITRATE && view.max_bitrate > 0 &&
            view.bitrate > view.max_bitrate) {
            view.bitrate = view.max_bitrate;
            report.say(targetMaximum, v, view.bitrate);
        }
        const int full = keepsBuffer(view) ? fullBuffer(view) : -1;
        if (full >= 0 && view.vbv_target > full) {
            report.say(targetFullness, v, view.vbv_target, full);
            view.vbv_target = full;
        }
    }
}

void judgeRates(const Stream& stream, Report& report)
{
    for (int v = 0; v < stream.subRecords; ++v) {
        judgeView(stream, v, report);
    }
}

RuleGroup rateRules()
{
    return {"Rate control", rules};
}

} // namespace kv::encoder
