// Distances of I and B pictures, their options, reference frames and slices.

#include "field_rows.h"
#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr Rule<int, int> bFit = {
    "gop.b-fit",
    Severity::Error,
    "%d B-frames do not fit into an I-frame interval of %d: use fewer, or a longer interval.",
    "contradiction: a group ends with a reference picture",
    {.setting = "ref_distance"}};
constexpr Rule<int, int> forceDistance = {
    "gop.force-i",
    Severity::Error,
    "The min. I-frame distance %d exceeds the I-frame interval %d: lower the distance.",
    "contradiction of interval and minimum distance",
    {.setting = "force_i", .value = 1, .limit = 2}};
constexpr Rule<int, int> lastGroup = {
    "gop.multiple",
    Severity::Note,
    "The I-frame interval %d is no multiple of %d (B-frames + 1), so its last group is shorter.",
    "legal: the pattern is not regular",
    {.setting = "i_interval", .value = 1}};
constexpr Rule<> allIntra = {
    "gop.intra",
    Severity::Note,
    "Every picture is an I-frame: B-frames and motion search are not used.",
    "legal",
    {.setting = "i_interval"}};
constexpr ViewRule<> noReference = {
    "gop.references-p",
    Severity::Error,
    KV_ALL_VIEWS("P-frames need at least 1 reference frame (now 0)."),
    "8.2.5.3: sliding window",
    {.setting = "num_ref_frames"}};
constexpr ViewRule<int> fewReferences = {
    "gop.references-b",
    Severity::Error,
    KV_ALL_VIEWS("B-frames need at least 2 reference frames (now %d)."),
    "8.2.5.3: a past and a future one are kept",
    {.setting = "num_ref_frames", .value = 1}};
constexpr ViewRule<int> fewForReferenceB = {
    "gop.references-br",
    Severity::Error,
    KV_ALL_VIEWS("B-frames as reference frames need at least 3 reference frames (now %d)."),
    "8.2.5.3: a past, a future and the B picture are kept",
    {.setting = "num_ref_frames", .value = 1}};
constexpr Rule<> pyramidReference = {"gop.pyramid",
                                     Severity::Error,
                                     "The pyramidal structure needs B-frames as reference frames: "
                                     "switch them on, or the structure off.",
                                     "8.2.5.3: the upper B pictures refer to the lower ones",
                                     {.setting = "reference_b"}};
constexpr Rule<> pyramidFlat = {"gop.pyramid-flat",
                                Severity::Note,
                                "The pyramidal structure has no effect on fewer than 2 B-frames.",
                                "nothing to put in layers",
                                {.setting = "pyramid_b"}};
constexpr Rule<> bOptions = {"gop.b-options",
                             Severity::Note,
                             "The B-frame settings have no effect: there are no B-frames.",
                             "nothing to apply them to",
                             {.setting = "ref_distance"}};
constexpr ViewRule<int, int> sliceCount = {
    "slices.rows",
    Severity::Warning,
    KV_ALL_VIEWS("The number of slices per picture was %d; it is now %d, the most at this height."),
    "slices are whole rows: 7.3.4 allows less, the encoder does not",
    {.setting = "num_slices", .value = 1, .limit = 2}};
constexpr ViewRule<> sliceFlag = {
    "slices.flag",
    Severity::Warning,
    KV_ALL_VIEWS("The multi_slice switch did not match the slices per picture; now it does."),
    "derived: on from 2 slices",
    {.setting = "multi_slice"}};

void judgeReferences(const Stream& stream, Report& report)
{
    // The view with the fewest; the base view stands for all that have as few.
    int view = 0;
    for (int v = 1; v < stream.subRecords; ++v) {
        if (stream.record.views[v].num_ref_frames < stream.record.views[view].num_ref_frames) {
            view = v;
        }
    }
    const int least = stream.record.views[view].num_ref_frames;
    const KvMvcViewSettings& base = stream.base;
    if (stream.bFrames && base.reference_b != 0 && base.ref_distance > 2) {
        if (least < 3) {
            report.sayOf(view, fewForReferenceB, least);
        }
    } else if (stream.bFrames) {
        if (least < 2) {
            report.sayOf(view, fewReferences, least);
        }
    } else if (stream.predicts && least < 1) {
        report.sayOf(view, noReference);
    }
}

void judgeBFrames(const Stream& stream, Report& report)
{
    const KvMvcViewSettings& base = stream.base;
    if (!stream.bFrames) {
        if (base.adaptive_b != 0 || base.pyramid_b != 0 || base.reference_b != 0) {
            report.say(bOptions);
        }
        return;
    }
    if (base.i_interval > 0 && base.ref_distance > base.i_interval) {
        report.say(bFit, base.ref_distance - 1, base.i_interval);
    } else if (base.i_interval % base.ref_distance != 0 && base.adaptive_b == 0) {
        report.say(lastGroup, base.i_interval, base.ref_distance);
    }
    if (base.pyramid_b != 0 && base.ref_distance < 3) {
        report.say(pyramidFlat);
    } else if (base.pyramid_b != 0 && base.reference_b == 0) {
        report.say(pyramidReference);
    }
}

constexpr const RuleInfo* rules[] = {
    &bFit,        &forceDistance, &lastGroup,        &allIntra,
    &noReference, &fewReferences, &fewForReferenceB, &pyramidReference,
    &pyramidFlat, &bOptions,      &sliceCount,       &sliceFlag,
};

} // namespace

void correctSlices(KvMvcSettings& record, Report& report)
{
    correctAllViews(record, &V::num_slices, report, [](auto& view, const Speaker& speaker) {
        const int rows = sliceRows(view);
        if (view.height >= 16 && view.num_slices > rows) {
            speaker.say(sliceCount, view.num_slices, rows);
            view.num_slices = rows;
        }
    });
    correctAllViews(record, &V::multi_slice, report, [](auto& view, const Speaker& speaker) {
        const int several = view.num_slices > 1 ? 1 : 0;
        if (view.multi_slice != several) {
            speaker.say(sliceFlag);
            view.multi_slice = several;
        }
    });
}

void judgeGop(const Stream& stream, Report& report)
{
    const KvMvcViewSettings& base = stream.base;
    if (!stream.predicts) {
        report.say(allIntra);
    }
    // Without scene detection nothing asks for an I picture before its time.
    if (base.scene_detection != 0 && base.i_interval > 0 && base.force_i > base.i_interval) {
        report.say(forceDistance, base.force_i, base.i_interval);
    }
    judgeBFrames(stream, report);
    judgeReferences(stream, report);
}

RuleGroup gopRules()
{
    return {"GOP structure, references and slices", rules};
}

} // namespace kv::encoder
