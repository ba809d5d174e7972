// Each field in its own range. A row holds field, range and message.

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "rules.h"

namespace kv::encoder
{

namespace
{

using Field = std::int32_t KvMvcViewSettings::*;

constexpr const char* encoderRange = "range of the encoder";
constexpr const char* switchRange =
    "range of the encoder: a switch is 0 or 1, any other value is on";
constexpr const char* codeRange = "codes of the encoder";

constexpr int noLimit = std::numeric_limits<std::int32_t>::max();

// The three kinds of rows; View is int where the message begins with the view's number.

/** A whole number: old value, new value, range. */
template <class... View>
struct Range {
    Field field;
    int low;
    int high;
    Rule<View..., int, int, int, int> rule;
    int shownOffset = 0; ///< what the user sees is the field plus this
};

/** A switch: any value but 0 is on. */
template <class... View>
struct Switch {
    Field field;
    Rule<View..., int> rule;
};

/** An enumerated field: codes that are not in the mask become the fallback. */
template <class... View>
struct Code {
    Field field;
    unsigned allowed;
    int fallback;
    Rule<View..., int> rule;
};

template <class... Codes>
constexpr unsigned codes(Codes... code)
{
    return (... | (1u << code));
}

using V = KvMvcViewSettings;
constexpr Severity corrected = Severity::Warning;

constexpr Range<> ranges[] = {
    {&V::i_interval,
     0,
     300,
     {"field.i-interval", corrected, "The I-frame interval was %d; it is now %d (%d to %d).",
      encoderRange}},
    {&V::force_i,
     0,
     999,
     {"field.force-i", corrected, "The min. I-frame distance was %d; it is now %d (%d to %d).",
      encoderRange}},
    {&V::idr_marker,
     0,
     99,
     {"field.idr-marker", corrected, "The IDR marking interval was %d; it is now %d (%d to %d).",
      encoderRange}},
    {&V::ref_distance,
     1,
     4,
     {"field.b-frames", corrected, "The number of B-frames was %d; it is now %d (%d to %d).",
      "range of the encoder; discs allow 3 in a row"},
     -1},
    {&V::num_ref_frames,
     0,
     16,
     {"field.references", corrected,
      "The number of reference frames was %d; it is now %d (%d to %d).",
      "7.4.2.1.1: max_num_ref_frames"}},
    {&V::motion_search,
     0,
     99,
     {"field.motion-search", corrected,
      "The motion vector search range was %d; it is now %d (%d to %d).", encoderRange}},
    {&V::num_slices,
     1,
     99999,
     {"field.slices", corrected, "The slices per picture were %d; they are now %d (%d to %d).",
      encoderRange}},
    {&V::num_threads,
     0,
     16,
     {"field.threads", corrected, "The number of threads was %d; it is now %d (%d to %d).",
      encoderRange}},
    {&V::brightness,
     -100,
     100,
     {"field.brightness", corrected,
      "The brightness based quantization was %d; it is now %d (%d to %d).", encoderRange}},
    {&V::contrast,
     -100,
     100,
     {"field.contrast", corrected,
      "The contrast based quantization was %d; it is now %d (%d to %d).", encoderRange}},
    {&V::complexity,
     -100,
     100,
     {"field.complexity", corrected,
      "The complexity based quantization was %d; it is now %d (%d to %d).", encoderRange}},
};

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

constexpr Switch<> switches[] = {
    {&V::scene_detection,
     {"switch.scene-detection", corrected, "Scene detection was %d; it is now on (1).",
      switchRange}},
    {&V::fixed_i_position,
     {"switch.fixed-i", corrected, "Fixed I-frames distance was %d; it is now on (1).",
      switchRange}},
    {&V::adaptive_b,
     {"switch.adaptive-b", corrected, "Adaptive B-frame placement was %d; it is now on (1).",
      switchRange}},
    {&V::pyramid_b,
     {"switch.pyramid-b", corrected, "Pyramidal B-frame structure was %d; it is now on (1).",
      switchRange}},
    {&V::reference_b,
     {"switch.reference-b", corrected, "B-frames as reference frames was %d; it is now on (1).",
      switchRange}},
    {&V::weighted_p,
     {"switch.weighted-p", corrected, "Weighted prediction was %d; it is now on (1).",
      switchRange}},
    {&V::fast_reference,
     {"switch.fast-reference", corrected,
      "Fast multi-reference frame search was %d; it is now on (1).", switchRange}},
    {&V::fast_subblock,
     {"switch.fast-subblock", corrected, "Fast sub-block search was %d; it is now on (1).",
      switchRange}},
    {&V::fast_intra,
     {"switch.fast-intra", corrected, "Fast intra decisions was %d; it is now on (1).",
      switchRange}},
    {&V::fast_inter,
     {"switch.fast-inter", corrected, "Fast inter decisions was %d; it is now on (1).",
      switchRange}},
    {&V::simple_rd,
     {"switch.simple-rd", corrected, "Simplified RD optimization was %d; it is now on (1).",
      switchRange}},
    {&V::hadamard,
     {"switch.hadamard", corrected, "Hadamard transformation was %d; it is now on (1).",
      switchRange}},
    {&V::deblocking,
     {"switch.deblocking", corrected, "Deblocking filter was %d; it is now on (1).", switchRange}},
    {&V::field_order,
     {"switch.field-order", corrected, "The field order was %d; it is now bottom field first (1).",
      switchRange}},
};

constexpr Switch<int> viewSwitches[] = {
    {&V::hrd_mode,
     {"switch.hrd", corrected, "View %d: HRD conformance was %d; it is now on (1).", switchRange}},
};

constexpr Code<> codeRows[] = {
    {&V::video_type,
     codes(0, 1, 2, 3),
     KV_MVC_VIDEO_TYPE_NONE,
     {"code.preset", corrected, "The preset number %d is not assigned; no preset is set now.",
      codeRange}},
    {&V::interlace_mode,
     codes(0, 1, 2),
     KV_MVC_PROGRESSIVE,
     {"code.interlace", corrected,
      "The picture structure code %d is not assigned; pictures are now progressive.", codeRange}},
    {&V::pulldown,
     codes(0, 1, 2, 4, 5, 6, 7, 8),
     KV_MVC_PULLDOWN_OFF,
     {"code.pulldown", corrected, "The pulldown code %d is not assigned; pulldown is now off.",
      codeRange}},
    {&V::chroma_format,
     codes(1, 2, 3, 4),
     KV_MVC_CHROMA_420,
     {"code.chroma", corrected, "The chroma format code %d is not assigned; it is now 4:2:0.",
      codeRange}},
    {&V::min_partition,
     codes(0, 1),
     KV_MVC_PARTITION_8X8,
     {"code.partition", corrected,
      "The search block size code %d is not assigned; it is now 8 x 8.", codeRange}},
    {&V::subpixel_mode,
     codes(0, 1, 2),
     KV_MVC_SUBPIXEL_QUARTER,
     {"code.subpixel", corrected, "The subpixel search code %d is not assigned; it is now quarter.",
      codeRange}},
    {&V::entropy_mode,
     codes(0, 1),
     KV_MVC_CAVLC,
     {"code.entropy", corrected, "The entropy coding code %d is not assigned; it is now CAVLC.",
      codeRange}},
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

constexpr Rule<int, int> lumaDepth = {"field.depth-luma", corrected,
                                      "The bit-depth of luma was %d; it is now %d (8 or 10).",
                                      encoderRange};
constexpr Rule<int, int> chromaDepth = {"field.depth-chroma", corrected,
                                        "The bit-depth of chroma was %d; it is now %d (8 or 10).",
                                        encoderRange};
constexpr Rule<double> frameRateValue = {
    "field.frame-rate", corrected, "A frame rate of %g cannot be coded; none is set now.",
    "E.2.1: two 32-bit numbers, neither of them 0, give the rate"};
constexpr Rule<int, int, int, int> viewCount = {
    "field.views", corrected, "The number of views was %d; it is now %d (%d to %d).",
    "range of the encoder; H.7.4.2.1.4 allows 1024"};
constexpr Rule<int> splitViews = {"switch.split", corrected,
                                  "Split views was %d; it is now on (1).", switchRange};

int offsetValue(int value, int offset)
{
    return static_cast<int>(std::max<std::int64_t>(std::int64_t{value} + offset,
                                                   std::numeric_limits<std::int32_t>::min()));
}

// Each of these corrects one field of one view, and tells whether it did.

template <class... View>
bool correctRange(const Range<View...>& row, int low, int high, KvMvcViewSettings& view,
                  Report& report, View... index)
{
    const int old = view.*row.field;
    const int now = std::clamp(old, low, high);
    if (now == old) {
        return false;
    }
    view.*row.field = now;
    const int shift = row.shownOffset;
    report.say(row.rule, index..., offsetValue(old, shift), now + shift, low + shift, high + shift);
    return true;
}

template <class... View>
bool correctSwitch(const Switch<View...>& row, KvMvcViewSettings& view, Report& report,
                   View... index)
{
    const int old = view.*row.field;
    if (old == 0 || old == 1) {
        return false;
    }
    view.*row.field = 1;
    report.say(row.rule, index..., old);
    return true;
}

template <class... View>
bool correctCode(const Code<View...>& row, KvMvcViewSettings& view, Report& report, View... index)
{
    const int old = view.*row.field;
    if (old >= 0 && old < 32 && (row.allowed >> old & 1u) != 0) {
        return false;
    }
    view.*row.field = row.fallback;
    report.say(row.rule, index..., old);
    return true;
}

bool correctDepth(Field field, const Rule<int, int>& rule, KvMvcViewSettings& view, Report& report)
{
    const int old = view.*field;
    const int now = old <= 8 ? 8 : 10; // of 9 bits none is lost in 10
    if (now == old) {
        return false;
    }
    view.*field = now;
    report.say(rule, old, now);
    return true;
}

bool correctFrameRate(KvMvcViewSettings& view, Report& report)
{
    constexpr double lowest = 0.5 / 4294967295.0; // time_scale 1, num_units_in_tick at its most
    const double old = view.frame_rate;
    if (old == 0 || (std::isfinite(old) && old >= lowest)) {
        return false;
    }
    view.frame_rate = 0;
    report.say(frameRateValue, old);
    return true;
}

int quantizerLow(const KvMvcViewSettings& view)
{
    return view.bit_depth_luma > 8 ? -6 * (view.bit_depth_luma - 8) : 0;
}

int fullnessHigh(const KvMvcViewSettings& view)
{
    return view.bitrate_units == KV_MVC_UNITS_BYTES_PERCENT ? 100 : noLimit;
}

void correctRecord(KvMvcSettings& record, Report& report)
{
    const int views = countViews(record);
    if (record.num_views != views) {
        report.say(viewCount, record.num_views, views, 1, int{KV_MVC_MAX_VIEWS});
        record.num_views = views;
    }
    if (record.split_views != 0 && record.split_views != 1) {
        report.say(splitViews, record.split_views);
        record.split_views = 1;
    }
}

std::span<KvMvcViewSettings> viewsInUse(KvMvcSettings& record)
{
    return {record.views, static_cast<std::size_t>(countSubRecords(record))};
}

constexpr const RuleInfo* singles[] = {&viewCount, &splitViews, &frameRateValue, &lumaDepth,
                                       &chromaDepth};
constexpr auto rules =
    joinRules(singles, rulesOf(codeRows), rulesOf(switches), rulesOf(ranges), rulesOf(viewCodes),
              rulesOf(viewSwitches), rulesOf(viewRanges), rulesOf(quantizers), rulesOf(fullnesses));

} // namespace

void correctFields(KvMvcSettings& record, Report& report)
{
    correctRecord(record, report);
    // The dialog writes a general setting into all views, so one message is enough for a field.
    const auto once = [&](auto correct) {
        Report silent;
        Report* listener = &report;
        for (KvMvcViewSettings& view : viewsInUse(record)) {
            if (correct(view, *listener)) {
                listener = &silent;
            }
        }
    };
    for (const auto& row : codeRows) {
        once([&](auto& view, Report& to) { return correctCode(row, view, to); });
    }
    for (const auto& row : switches) {
        once([&](auto& view, Report& to) { return correctSwitch(row, view, to); });
    }
    for (const auto& row : ranges) {
        once(
            [&](auto& view, Report& to) { return correctRange(row, row.low, row.high, view, to); });
    }
    once([](auto& view, Report& to) {
        return correctDepth(&V::bit_depth_luma, lumaDepth, view, to);
    });
    once([](auto& view, Report& to) {
        return correctDepth(&V::bit_depth_chroma, chromaDepth, view, to);
    });
    once(correctFrameRate);
}

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

RuleGroup fieldRules()
{
    return {"Fields", rules};
}

} // namespace kv::encoder
