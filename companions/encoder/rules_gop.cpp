// Distances of I and B pictures, their options, reference frames and slices.

#include <algorithm>

#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr Rule<int, int> bFit = {
    "gop.b-fit", Severity::Error,
    "%d B-frames do not fit between I-frames %d apart: use fewer, or a longer interval.",
    "contradiction: a group ends with a reference picture"};
constexpr Rule<int, int> forceDistance = {
    "gop.force-i", Severity::Error,
    "I-frames cannot be at least %d and at most %d apart: lower the min. distance.",
    "contradiction of interval and minimum distance"};
constexpr Rule<int, int> lastGroup = {
    "gop.multiple", Severity::Note,
    "An I-frame interval of %d is no multiple of %d: its last group has fewer B-frames.",
    "legal: the pattern is not regular"};
constexpr Rule<> allIntra = {"gop.intra", Severity::Note,
                             "Every picture is an I-frame: B-frames and motion search rest.",
                             "legal"};
constexpr Rule<> noReference = {"gop.references-p", Severity::Error,
                                "P-frames need at least 1 reference frame.",
                                "8.2.5.3: sliding window"};
constexpr Rule<int> fewReferences = {"gop.references-b", Severity::Error,
                                     "B-frames need at least 2 reference frames, not %d.",
                                     "8.2.5.3: a past and a future one are kept"};
constexpr Rule<int> fewForReferenceB = {
    "gop.references-br", Severity::Error,
    "B-frames as reference frames need at least 3 reference frames, not %d.",
    "8.2.5.3: a past, a future and the B picture are kept"};
constexpr Rule<> pyramidReference = {
    "gop.pyramid", Severity::Error,
    "A pyramid needs B-frames as reference frames: switch that on, or the pyramid off.",
    "8.2.5.3: the upper B pictures refer to the lower ones"};
constexpr Rule<> pyramidFlat = {"gop.pyramid-flat", Severity::Note,
                                "A pyramid of fewer than 2 B-frames has no effect.",
                                "nothing to put in layers"};
constexpr Rule<> bOptions = {"gop.b-options", Severity::Note,
                             "The options of B-frames have no effect: there are none.",
                             "nothing to apply them to"};
constexpr Rule<int, int> sliceCount = {
    "slices.rows", Severity::Warning,
    "The slices per picture were %d; they are now %d, one a macroblock row.",
    "slices are whole rows: 7.3.4 allows less, the encoder does not"};
constexpr Rule<> sliceFlag = {"slices.flag", Severity::Warning,
                              "The switch for several slices now follows from their number.",
                              "derived: on from 2 slices"};

void judgeReferences(const Stream& stream, Report& report)
{
    int least = stream.record.views[0].num_ref_frames;
    for (int v = 1; v < stream.subRecords; ++v) {
        least = std::min(least, stream.record.views[v].num_ref_frames);
    }
    const KvMvcViewSettings& base = stream.base;
    if (stream.bFrames && base.reference_b != 0 && base.ref_distance > 2) {
        if (least < 3) {
            report.say(fewForReferenceB, least);
        }
    } else if (stream.bFrames) {
        if (least < 2) {
            report.say(fewReferences, least);
        }
    } else if (stream.predicts && least < 1) {
        report.say(noReference);
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
    Report silent;
    Report* forCount = &report;
    Report* forFlag = &report;
    for (int v = 0; v < countSubRecords(record); ++v) {
        KvMvcViewSettings& view = record.views[v];
        const int rows = sliceRows(view);
        if (view.height >= 16 && view.num_slices > rows) {
            forCount->say(sliceCount, view.num_slices, rows);
            forCount = &silent;
            view.num_slices = rows;
        }
        const int several = view.num_slices > 1 ? 1 : 0;
        if (view.multi_slice != several) {
            forFlag->say(sliceFlag);
            forFlag = &silent;
            view.multi_slice = several;
        }
    }
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
