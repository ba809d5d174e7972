// The general fields in their ranges. A row holds field, range and message.

#include <cmath>

#include "field_rows.h"
#include "rules.h"

namespace kv::encoder
{

namespace
{

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

constexpr const RuleInfo* singles[] = {&viewCount, &splitViews, &frameRateValue, &lumaDepth,
                                       &chromaDepth};
constexpr auto rules = joinRules(singles, rulesOf(codeRows), rulesOf(switches), rulesOf(ranges));

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

RuleGroup fieldRules()
{
    return {"Fields", rules};
}

} // namespace kv::encoder
