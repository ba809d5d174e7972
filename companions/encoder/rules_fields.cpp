// The general fields in their ranges. A row holds field, range and message.

#include <cmath>

#include "field_rows.h"
#include "rules.h"

namespace kv::encoder
{

namespace
{

/// What is said of a number, by what the dialog calls it.
#define KV_RANGE(name) "The " name " was %d; it is now %d (%d to %d)."

// Fields that all views share.

constexpr Range<Rule<int, int, int, int>> sharedRanges[] = {
    {&V::i_interval,
     0,
     300,
     {"field.i-interval", corrected, KV_RANGE("I-frame interval"), encoderRange}},
    {&V::force_i,
     0,
     999,
     {"field.force-i", corrected, KV_RANGE("min. I-frame distance"), encoderRange}},
    {&V::idr_marker,
     0,
     99,
     {"field.idr-marker", corrected, KV_RANGE("interval of I-frames marked as IDR"), encoderRange}},
    {&V::ref_distance,
     1,
     4,
     {"field.b-frames", corrected, KV_RANGE("number of B-frames"),
      "range of the encoder; discs allow 3 in a row"},
     -1},
};

constexpr Switch<Rule<int>> sharedSwitches[] = {
    {&V::scene_detection,
     {"switch.scene-detection", corrected, KV_SWITCH("Enable scene detection"), switchRange}},
    {&V::fixed_i_position,
     {"switch.fixed-i", corrected, KV_SWITCH("Fixed I-frames distance"), switchRange}},
    {&V::adaptive_b,
     {"switch.adaptive-b", corrected, KV_SWITCH("Adaptive B-frame placement"), switchRange}},
    {&V::pyramid_b,
     {"switch.pyramid-b", corrected, KV_SWITCH("Pyramidal structure for B-frames"), switchRange}},
    {&V::reference_b,
     {"switch.reference-b", corrected, KV_SWITCH("B-frames as reference frames"), switchRange}},
    {&V::field_order,
     {"switch.field-order", corrected, "The field order was %d; it is now bottom field first (1).",
      switchRange}},
};

constexpr Code<Rule<int>> sharedCodes[] = {
    {&V::video_type,
     codes(0, 1, 2, 3),
     KV_MVC_VIDEO_TYPE_NONE,
     {"code.preset", corrected, "The preset code %d is unknown; no preset is set now.", codeRange}},
    {&V::interlace_mode,
     codes(0, 1, 2),
     KV_MVC_PROGRESSIVE,
     {"code.interlace", corrected,
      "The picture structure code %d is unknown; it is now Progressive.", codeRange}},
    {&V::pulldown,
     codes(0, 1, 2, 4, 5, 6, 7, 8),
     KV_MVC_PULLDOWN_OFF,
     {"code.pulldown", corrected, "The pulldown code %d is unknown; it is now Off.", codeRange}},
    {&V::chroma_format,
     codes(1, 2, 3, 4),
     KV_MVC_CHROMA_420,
     {"code.chroma", corrected, "The chroma format code %d is unknown; it is now 4:2:0.",
      codeRange}},
};

// Fields that a file may set for each view.

constexpr Range<ViewRule<int, int, int, int>> ranges[] = {
    {&V::num_ref_frames,
     0,
     16,
     {"field.references", corrected, KV_ALL_VIEWS(KV_RANGE("number of reference frames")),
      "7.4.2.1.1: max_num_ref_frames"}},
    {&V::motion_search,
     0,
     99,
     {"field.motion-search", corrected, KV_ALL_VIEWS(KV_RANGE("motion vector search range")),
      encoderRange}},
    {&V::num_slices,
     1,
     99999,
     {"field.slices", corrected, KV_ALL_VIEWS(KV_RANGE("number of slices per picture")),
      encoderRange}},
    {&V::num_threads,
     0,
     16,
     {"field.threads", corrected, KV_ALL_VIEWS(KV_RANGE("number of threads")), encoderRange}},
    {&V::brightness,
     -100,
     100,
     {"field.brightness", corrected,
      KV_ALL_VIEWS(KV_RANGE("brightness based adaptive quantization")), encoderRange}},
    {&V::contrast,
     -100,
     100,
     {"field.contrast", corrected, KV_ALL_VIEWS(KV_RANGE("contrast based adaptive quantization")),
      encoderRange}},
    {&V::complexity,
     -100,
     100,
     {"field.complexity", corrected,
      KV_ALL_VIEWS(KV_RANGE("complexity based adaptive quantization")), encoderRange}},
};

constexpr Switch<ViewRule<int>> switches[] = {
    {&V::weighted_p,
     {"switch.weighted-p", corrected, KV_ALL_VIEWS(KV_SWITCH("Weighted prediction for P-frames")),
      switchRange}},
    {&V::fast_reference,
     {"switch.fast-reference", corrected,
      KV_ALL_VIEWS(KV_SWITCH("Fast multi-reference frame search")), switchRange}},
    {&V::fast_subblock,
     {"switch.fast-subblock", corrected, KV_ALL_VIEWS(KV_SWITCH("Fast sub-block search")),
      switchRange}},
    {&V::fast_intra,
     {"switch.fast-intra", corrected, KV_ALL_VIEWS(KV_SWITCH("Fast intra decisions")),
      switchRange}},
    {&V::fast_inter,
     {"switch.fast-inter", corrected, KV_ALL_VIEWS(KV_SWITCH("Fast inter decisions")),
      switchRange}},
    {&V::simple_rd,
     {"switch.simple-rd", corrected, KV_ALL_VIEWS(KV_SWITCH("Simplified RD optimization")),
      switchRange}},
    {&V::hadamard,
     {"switch.hadamard", corrected, KV_ALL_VIEWS(KV_SWITCH("Hadamard transformation")),
      switchRange}},
    {&V::deblocking,
     {"switch.deblocking", corrected, KV_ALL_VIEWS(KV_SWITCH("Deblocking filter")), switchRange}},
};

constexpr Code<ViewRule<int>> codeRows[] = {
    {&V::min_partition,
     codes(0, 1),
     KV_MVC_PARTITION_8X8,
     {"code.partition", corrected,
      KV_ALL_VIEWS("The macroblock search block size code %d is unknown; it is now 8 x 8."),
      codeRange}},
    {&V::subpixel_mode,
     codes(0, 1, 2),
     KV_MVC_SUBPIXEL_QUARTER,
     {"code.subpixel", corrected,
      KV_ALL_VIEWS("The subpixel search depth code %d is unknown; it is now Quarter."), codeRange}},
    {&V::entropy_mode,
     codes(0, 1),
     KV_MVC_CAVLC,
     {"code.entropy", corrected,
      KV_ALL_VIEWS("The entropy coding mode code %d is unknown; it is now CAVLC."), codeRange}},
};

struct Depth {
    Field field;
    Rule<int, int> rule;
};
constexpr Depth depths[] = {
    {&V::bit_depth_luma,
     {"field.depth-luma", corrected, "The bit-depth of luma was %d; it is now %d (8 or 10).",
      encoderRange}},
    {&V::bit_depth_chroma,
     {"field.depth-chroma", corrected, "The bit-depth of chroma was %d; it is now %d (8 or 10).",
      encoderRange}},
};

constexpr Rule<double> frameRateValue = {
    "field.frame-rate", corrected, "The frame rate %g cannot be coded; no frame rate is set now.",
    "E.2.1: two 32-bit numbers, neither of them 0, give the rate"};
constexpr Rule<int, int, int, int> viewCount = {"field.views", corrected,
                                                KV_RANGE("number of views"),
                                                "range of the encoder; H.7.4.2.1.4 allows 1024"};
constexpr Rule<int> splitViews = {"switch.split", corrected, KV_SWITCH("Split views"), switchRange};

void correctDepth(const Depth& row, KvMvcViewSettings& view, const Speaker& speaker)
{
    const int old = view.*row.field;
    const int now = old <= 8 ? 8 : 10; // of 9 bits none is lost in 10
    if (now != old) {
        view.*row.field = now;
        speaker.say(row.rule, old, now);
    }
}

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

constexpr const RuleInfo* singles[] = {&viewCount, &splitViews, &frameRateValue};
constexpr auto rules =
    joinRules(singles, rulesOf(depths), rulesOf(sharedCodes), rulesOf(codeRows),
              rulesOf(sharedSwitches), rulesOf(switches), rulesOf(sharedRanges), rulesOf(ranges));

} // namespace

void correctCounts(KvMvcSettings& record, Report& report)
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

void correctFields(KvMvcSettings& record, Report& report)
{
    const auto each = [&](const auto& rows, auto correct) {
        for (const auto& row : rows) {
            correctAllViews(record, row.field, report, [&](auto& view, const Speaker& speaker) {
                correct(row, view, speaker);
            });
        }
    };
    const auto code = [](const auto& row, auto& view, const Speaker& speaker) {
        correctCode(row, view, speaker);
    };
    const auto onOff = [](const auto& row, auto& view, const Speaker& speaker) {
        correctSwitch(row, view, speaker);
    };
    const auto range = [](const auto& row, auto& view, const Speaker& speaker) {
        correctRange(row, row.low, row.high, view, speaker);
    };
    each(sharedCodes, code);
    each(codeRows, code);
    each(sharedSwitches, onOff);
    each(switches, onOff);
    each(sharedRanges, range);
    each(ranges, range);
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
