// Rates, buffers, fullness and quantizers of each view.

#include <algorithm>
#include <span>

#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr ViewRule<Decimal> constantMaximum = {
    "rate.constant-max",
    Severity::Warning,
    KV_EACH_VIEW(
        "The bitrate is constant, so the max bitrate is now the target bitrate, %d.%0*d Mbit/s."),
    "E.2.2: cbr_flag 1",
    {.setting = "max_bitrate", .limit = 1}};
constexpr ViewRule<Decimal> targetMaximum = {
    "rate.target-max",
    Severity::Warning,
    KV_EACH_VIEW("The target bitrate exceeded the max bitrate; it is now %d.%0*d Mbit/s."),
    "C.1.1: bits arrive at the maximum rate at most",
    {.setting = "bitrate", .limit = 1}};
constexpr ViewRule<Decimal> raisedMaximum = {
    "rate.max-target",
    Severity::Warning,
    KV_EACH_VIEW("The max bitrate was below the target bitrate; it is now %d.%0*d Mbit/s."),
    "C.1.1; HRD conformance is off, and the maximum not shown: it follows what is",
    {.setting = "max_bitrate", .limit = 1}};
constexpr ViewRule<int, int> targetFullness = {
    "hrd.target",
    Severity::Warning,
    KV_EACH_VIEW("VBV buffer target was %d, more than the bitrate buffer holds; it is now %d."),
    "an aim of the encoder, not in the standard",
    {.setting = "vbv_target", .value = 1, .limit = 2}};

constexpr ViewRule<> noTarget = {"rate.target",
                                 Severity::Error,
                                 KV_EACH_VIEW("The target bitrate has to be above 0."),
                                 "nothing to aim at",
                                 {.setting = "bitrate"}};
constexpr ViewRule<int> kilobits = {
    "rate.kilobits",
    Severity::Risk,
    KV_EACH_VIEW(
        "The target bitrate of %d bit/s is less than 1 bit a macroblock, as if typed in kbit/s."),
    "practice: coded pictures have many times as much",
    {.setting = "bitrate", .value = 1}};
constexpr ViewRule<> noMaximum = {"hrd.maximum",
                                  Severity::Error,
                                  KV_EACH_VIEW("HRD conformance needs a max bitrate above 0."),
                                  "E.2.2: bit_rate_value_minus1",
                                  {.setting = "max_bitrate"}};
constexpr ViewRule<> noBuffer = {"hrd.buffer",
                                 Severity::Error,
                                 KV_EACH_VIEW("HRD conformance needs a bitrate buffer above 0."),
                                 "E.2.2: cpb_size_value_minus1",
                                 {.setting = "bitrate_buffer"}};
constexpr Rule<> noFrameRate = {"hrd.frame-rate",
                                Severity::Error,
                                "HRD conformance needs a frame rate: choose one.",
                                "C.1.2: removal times count clock ticks",
                                {.setting = "frame_rate"}};
constexpr ViewRule<> emptyStart = {"hrd.initial-empty",
                                   Severity::Error,
                                   KV_EACH_VIEW("VBV buffer initial has to be above 0."),
                                   "D.2.2: initial_cpb_removal_delay is not 0",
                                   {.setting = "vbv_initial"}};
constexpr ViewRule<int, int> fullStart = {
    "hrd.initial-above",
    Severity::Error,
    KV_EACH_VIEW(
        "VBV buffer initial can be at most %d with this bitrate buffer (now %d): lower it."),
    "D.2.2: at most 90000 * CpbSize / BitRate",
    {.setting = "vbv_initial", .value = 2, .limit = 1}};
constexpr ViewRule<double, int> iPicture = {
    "hrd.i-size",
    Severity::Error,
    KV_EACH_VIEW("The bitrate buffer of %.0f bytes is smaller than the maximum I-frame size of %d "
                 "bytes: enlarge it."),
    "C.3: a picture is whole in the buffer when it is removed",
    {.setting = "bitrate_buffer", .value = 1, .limit = 2}};
constexpr ViewRule<> shortStart = {
    "hrd.initial-short",
    Severity::Note,
    KV_EACH_VIEW("VBV buffer initial is less than one frame, so the first may come late."),
    "C.3: underflow",
    {.setting = "vbv_initial"}};
constexpr ViewRule<Decimal> shortBuffer = {
    "hrd.short",
    Severity::Note,
    KV_EACH_VIEW("The bitrate buffer holds %d.%0*d s, which leaves little room for I-frames."),
    "practice: 0.5 s and more",
    {.setting = "bitrate_buffer"}};
constexpr ViewRule<> rounded = {
    "hrd.rounding",
    Severity::Note,
    KV_EACH_VIEW("The stream names the bitrate in steps of 64 bit/s, the buffer in steps of 16 "
                 "bits."),
    "E.2.2: bit_rate_scale and cpb_size_scale",
    {.setting = "bitrate"}};
constexpr ViewRule<> withQuantizer = {
    "hrd.quantizer",
    Severity::Note,
    KV_EACH_VIEW("HRD conformance cannot be guaranteed in a constant quality mode."),
    "C.3: underflow",
    {.setting = "hrd_mode"}};
constexpr ViewRule<> unlimited = {
    "rate.unlimited",
    Severity::Note,
    KV_EACH_VIEW(
        "Without HRD conformance the bitrate has no maximum; the target bitrate was checked."),
    "A.3: limits hold for the maximum; C.1.1: that of the buffer",
    {.setting = "hrd_mode"}};
constexpr ViewRule<int, int> quantizerOrder = {
    "quantizer.order",
    Severity::Error,
    KV_EACH_VIEW("The minimum quantizer %d is above the maximum quantizer %d: lower it, or raise "
                 "the maximum."),
    "contradiction of the two ends",
    {.setting = "quant_min", .value = 1, .limit = 2}};

#define KV_QUANTIZER(kind)                                                                         \
    KV_EACH_VIEW("The quantizer of " kind                                                          \
                 "-frames has to lie between the minimum %d and the maximum %d "                   \
                 "(now %d).")
constexpr const char* insideEnds = "contradiction of the quantizer and its ends";
struct Quantizer {
    std::int32_t KvMvcViewSettings::*field;
    bool (*used)(const Stream&);
    ViewRule<int, int, int> rule;
};
constexpr Quantizer quantizers[] = {
    {&KvMvcViewSettings::quant_i,
     [](const Stream&) { return true; },
     {"quantizer.i",
      Severity::Error,
      KV_QUANTIZER("I"),
      insideEnds,
      {.setting = "quant_i", .value = 3}}},
    {&KvMvcViewSettings::quant_p,
     [](const Stream& stream) { return stream.predicts; },
     {"quantizer.p",
      Severity::Error,
      KV_QUANTIZER("P"),
      insideEnds,
      {.setting = "quant_p", .value = 3}}},
    {&KvMvcViewSettings::quant_b,
     [](const Stream& stream) { return stream.bFrames; },
     {"quantizer.b",
      Severity::Error,
      KV_QUANTIZER("B"),
      insideEnds,
      {.setting = "quant_b", .value = 3}}},
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
        report.sayOf(v, emptyStart);
    } else if (view.vbv_initial > full) {
        report.sayOf(v, fullStart, full, view.vbv_initial);
    } else if (stream.frameRate > 0 && start * stream.frameRate < 1) {
        report.sayOf(v, shortStart);
    }
    const std::int64_t bits = bufferBits(view);
    const std::int64_t rate = limitRate(view);
    const std::int64_t bytes = bits / 8;
    // Beyond the level's own limit a larger buffer does not help.
    const Level* const level = findLevel(stream.disc ? discLevelCode : stream.base.level);
    const bool judged = level && stream.sized && stream.streamProfile();
    if (view.frame_size_i > bytes && !(judged && view.frame_size_i > mostBytes(stream, *level))) {
        report.sayOf(v, iPicture, static_cast<double>(bytes), view.frame_size_i);
    }
    if (const double time = static_cast<double>(bits) / static_cast<double>(rate); time < 0.5) {
        report.sayOf(v, shortBuffer, seconds(time));
    }
    if (rate % 64 != 0 || bits % 16 != 0) {
        report.sayOf(v, rounded);
    }
}

void judgeBuffer(const Stream& stream, int v, Report& report)
{
    const KvMvcViewSettings& view = stream.record.views[v];
    if (view.bitrate_mode == KV_MVC_VARIABLE_BITRATE && view.max_bitrate <= 0) {
        report.sayOf(v, noMaximum);
    }
    if (view.bitrate_buffer <= 0) {
        report.sayOf(v, noBuffer);
    }
    judgeFullness(stream, v, report);
}

void judgeQuantizers(const Stream& stream, int v, Report& report)
{
    const KvMvcViewSettings& view = stream.record.views[v];
    if (view.quant_min > view.quant_max) {
        report.sayOf(v, quantizerOrder, view.quant_min, view.quant_max);
        return;
    }
    if (aimsAtRate(view)) {
        return; // the rate sets the quantizers
    }
    for (const Quantizer& row : quantizers) {
        const int value = view.*row.field;
        if (row.used(stream) && (value < view.quant_min || value > view.quant_max)) {
            report.sayOf(v, row.rule, view.quant_min, view.quant_max, value);
        }
    }
}

void judgeView(const Stream& stream, int v, Report& report)
{
    const KvMvcViewSettings& view = stream.record.views[v];
    if (aimsAtRate(view) && view.bitrate <= 0) {
        report.sayOf(v, noTarget);
    } else if (aimsAtRate(view) &&
               view.bitrate < static_cast<double>(stream.frameMbs) * stream.frameRate) {
        report.sayOf(v, kilobits, view.bitrate);
    }
    if (keepsBuffer(view)) {
        judgeBuffer(stream, v, report);
    } else if (view.hrd_mode != 0) {
        report.sayOf(v, withQuantizer);
    } else if (view.bitrate_mode == KV_MVC_VARIABLE_BITRATE) {
        report.sayOf(v, unlimited);
    }
    judgeQuantizers(stream, v, report);
}

constexpr auto singles = std::to_array<const RuleInfo*>({
    &constantMaximum,
    &targetMaximum,
    &raisedMaximum,
    &targetFullness,
    &noTarget,
    &kilobits,
    &noMaximum,
    &noBuffer,
    &noFrameRate,
    &emptyStart,
    &fullStart,
    &iPicture,
    &shortStart,
    &shortBuffer,
    &rounded,
    &withQuantizer,
    &unlimited,
    &quantizerOrder,
});
constexpr auto rules = joinRules(singles, rulesOf(quantizers));

} // namespace

void correctRates(KvMvcSettings& record, Report& report)
{
    for (int v = 0; v < countSubRecords(record); ++v) {
        KvMvcViewSettings& view = record.views[v];
        if (view.bitrate_mode == KV_MVC_CONSTANT_BITRATE && view.bitrate > 0 &&
            view.max_bitrate != view.bitrate) {
            view.max_bitrate = view.bitrate;
            report.sayOf(v, constantMaximum, millions(view.bitrate));
        }
        if (view.bitrate_mode == KV_MVC_VARIABLE_BITRATE && view.max_bitrate > 0 &&
            view.bitrate > view.max_bitrate) {
            if (keepsBuffer(view)) {
                view.bitrate = view.max_bitrate;
                report.sayOf(v, targetMaximum, millions(view.bitrate));
            } else {
                view.max_bitrate = view.bitrate;
                report.sayOf(v, raisedMaximum, millions(view.bitrate));
            }
        }
        const int full = keepsBuffer(view) ? fullBuffer(view) : -1;
        if (full >= 0 && view.vbv_target > full) {
            report.sayOf(v, targetFullness, view.vbv_target, full);
            view.vbv_target = full;
        }
    }
}

void judgeRates(const Stream& stream, Report& report)
{
    const std::span views(stream.record.views, static_cast<std::size_t>(stream.subRecords));
    if (stream.frameRate == 0 && !stream.disc && std::ranges::any_of(views, keepsBuffer)) {
        report.say(noFrameRate);
    }
    for (int v = 0; v < stream.subRecords; ++v) {
        judgeView(stream, v, report);
    }
}

RuleGroup rateRules()
{
    return {"Rate control", rules};
}

} // namespace kv::encoder
