// What a multiview profile allows, and what views have of their own.

#include <algorithm>

#include "field_table.h"
#include "rules.h"

namespace kv::encoder
{

namespace
{

using V = KvMvcViewSettings;

constexpr Rule<> otherTools = {
    "views.tools", Severity::Note,
    "The advanced settings of view 1 differ from those of the base view.",
    "legal: parameter sets may differ"};
constexpr Rule<int> beyondRecord = {
    "views.beyond",
    Severity::Risk,
    "The views up to view %d are coded like view 1: what is set for their rates is not used.",
    "the record holds two views: the third and fourth count as the second does",
    {.setting = "num_views"}};
constexpr Rule<> splitOne = {"views.split",
                             Severity::Note,
                             "Split views has no effect: there is only one view.",
                             "nothing to split",
                             {.setting = "split_views"}};

constexpr Rule<int> stereoViews = {
    "mvc.stereo-views",
    Severity::Error,
    "Stereo High has two views (now %d): set 1 additional view, or choose another preset.",
    "H.10.1.2",
    {.setting = "num_views", .value = 1}};
constexpr Rule<> multiviewFrames = {
    "mvc.frames",
    Severity::Error,
    "Multiview High allows progressive pictures only: set the picture structure to Progressive.",
    "H.10.1.1: frame_mbs_only_flag is 1 in all views",
    {.setting = "interlace_mode"}};
constexpr Rule<const char*> baseProfile = {
    "mvc.base-profile",
    Severity::Error,
    "With several views, the profile cannot be %s: choose Baseline, Main or High.",
    "H.10.1: the base view conforms to High, Main or Constrained Baseline",
    {.setting = "profile"}};
constexpr Rule<> chroma = {"mvc.chroma",
                           Severity::Error,
                           "With several views, the chroma format cannot be 4:2:2: choose 4:2:0.",
                           "H.10.1.1, H.10.1.2",
                           {.setting = "chroma_format"}};
constexpr Rule<> depth = {
    "mvc.depth",
    Severity::Error,
    "With several views, luma and chroma have a bit-depth of 8: choose 8 bits.",
    "H.10.1.1, H.10.1.2",
    {.setting = "bit_depth_luma"}};
// Only the active references of a list are limited: frames beyond them may be kept.
constexpr ViewRule<int, int, int> listSize = {
    "mvc.list-size",
    Severity::Note,
    KV_EACH_VIEW("With %d views, a picture refers to at most %d frames at once; %d are kept, other "
                 "views included."),
    "H.7.4.3: active references in a list, inter-view pictures included",
    {.setting = "num_ref_frames", .value = 3, .limit = 2}};

constexpr auto tools = selectFields<viewFields, [](const FieldRow<V>& row) {
    return row.shared == Sharing::Tools && row.field;
}>();

bool sameTools(const V& a, const V& b)
{
    return std::ranges::all_of(
        tools, [&](const FieldRow<V>* row) { return a.*row->field == b.*row->field; });
}

/// Pictures of other views that a list may name (H.7.4.2.1.4); the base view uses none.
int interViewReferences(const Stream& stream, int subRecord)
{
    return subRecord == 0 ? 0 : stream.views - 1;
}

void judgeLists(const Stream& stream, Report& report)
{
    const int limit = stream.views == 2 ? 8 : 16;
    for (int v = 0; v < stream.subRecords; ++v) {
        const int used = stream.record.views[v].num_ref_frames + interViewReferences(stream, v);
        if (stream.predicts && used > limit) {
            report.sayOf(v, listSize, stream.views, limit, used);
        }
    }
}

constexpr const RuleInfo* rules[] = {
    &otherTools,  &beyondRecord, &splitOne, &stereoViews, &multiviewFrames,
    &baseProfile, &chroma,       &depth,    &listSize,
};

} // namespace

void judgeViews(const Stream& stream, Report& report)
{
    if (!stream.multiview) {
        if (stream.record.split_views != 0) {
            report.say(splitOne);
        }
        return;
    }
    if (!sameTools(stream.base, stream.record.views[1])) {
        report.say(otherTools);
    }
    if (stream.views > KV_MVC_RECORD_VIEWS) {
        report.say(beyondRecord, stream.views - 1);
    }
    if (stream.viewsSet > stream.views) {
        report.say(stereoViews, stream.viewsSet);
    }
    if (!stream.multiview->interlace && stream.interlaced) {
        report.say(multiviewFrames);
    }
    if (!stream.disc && stream.profile && !stream.profile->baseOfViews) {
        report.say(baseProfile, stream.profile->name);
    }
    const V& base = stream.base;
    if (!stream.disc && base.chroma_format == KV_MVC_CHROMA_422) {
        report.say(chroma);
    }
    const bool deepChroma = base.bit_depth_chroma > 8 && base.chroma_format != KV_MVC_CHROMA_400;
    if (base.bit_depth_luma > 8 || deepChroma) {
        report.say(depth);
    }
    judgeLists(stream, report);
}

RuleGroup viewRules()
{
    return {"Views", rules};
}

} // namespace kv::encoder
