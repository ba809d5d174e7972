// What several views have in common, and what a multiview profile allows.

#include "rules.h"

namespace kv::encoder
{

namespace
{

using V = KvMvcViewSettings;
using Field = std::int32_t V::*;

constexpr Rule<> alignedPicture = {
    "views.picture", Severity::Warning,
    "View 1 now has the base view's picture format, which all views share.",
    "H.7.4.2.1.1, H.7.4.3: size, frame coding and chroma format are the same in all views"};
constexpr Rule<> alignedStream = {
    "views.stream", Severity::Warning,
    "View 1 now has the base view's preset, profile and level, which all views share.",
    "H.10.1.2: level_idc is the same in all parameter sets; the preset names the stream"};
constexpr Rule<> alignedGop = {
    "views.gop", Severity::Warning,
    "View 1 now has the base view's GOP structure, which all views share.",
    "H.7.4.1.1: IDR, anchor and temporal identifiers are those of the access unit"};
constexpr Rule<> otherTools = {"views.tools", Severity::Note,
                               "View 1 uses other coding tools than the base view.",
                               "legal: parameter sets may differ"};
constexpr Rule<int> beyondRecord = {
    "views.beyond", Severity::Note, "The views up to view %d are judged by the settings of view 1.",
    "the record holds two views: the third and fourth count as the second does"};
constexpr Rule<> splitOne = {"views.split", Severity::Note,
                             "Split views has no effect on a single view.", "nothing to split"};

constexpr Rule<int> stereoViews = {
    "mvc.stereo-views", Severity::Error,
    "Stereo High has two views, not %d: remove views, or choose another preset.", "H.10.1.2"};
constexpr Rule<> multiviewFrames = {
    "mvc.frames", Severity::Error,
    "Multiview High has progressive pictures only: choose Progressive.",
    "H.10.1.1: frame_mbs_only_flag is 1 in all views"};
constexpr Rule<const char*> baseProfile = {
    "mvc.base-profile", Severity::Error,
    "The base view of several cannot be %s: choose Baseline, Main or High.",
    "H.10.1: the base view conforms to High, Main or Constrained Baseline"};
constexpr Rule<> chroma = {"mvc.chroma", Severity::Error,
                           "Several views cannot be coded in 4:2:2: choose 4:2:0.",
                           "H.10.1.1, H.10.1.2"};
constexpr Rule<> depth = {"mvc.depth", Severity::Error,
                          "Several views have 8 bits a sample: choose 8 bits.",
                          "H.10.1.1, H.10.1.2"};
constexpr Rule<int, int, int, int> listSize = {
    "mvc.list-size", Severity::Error,
    "View %d: %d reference frames with those of other views; %d views allow %d.",
    "H.7.4.3: active references in a list, inter-view pictures included"};

// clang-format off
constexpr Field pictureFields[] = {
    &V::interlace_mode, &V::width, &V::height, &V::field_order, &V::pulldown,
    &V::pixel_aspect_x, &V::pixel_aspect_y, &V::display_aspect_x, &V::display_aspect_y,
    &V::chroma_format, &V::bit_depth_luma, &V::bit_depth_chroma,
};
constexpr Field streamFields[] = {&V::video_type, &V::profile, &V::level};
constexpr Field gopFields[] = {
    &V::i_interval, &V::force_i, &V::idr_marker, &V::fixed_i_position, &V::scene_detection,
    &V::ref_distance, &V::adaptive_b, &V::pyramid_b, &V::reference_b,
};
constexpr Field toolFields[] = {
    &V::num_ref_frames, &V::motion_search, &V::min_partition, &V::subpixel_mode, &V::weighted_p,
    &V::fast_reference, &V::fast_subblock, &V::fast_intra, &V::fast_inter, &V::simple_rd,
    &V::hadamard, &V::brightness, &V::contrast, &V::complexity, &V::deblocking,
    &V::entropy_mode, &V::num_slices, &V::num_threads,
};
// clang-format on

/** @return Whether a field had to be copied. */
bool copyFields(std::span<const Field> fields, const V& from, V& to)
{
    bool changed = false;
    for (const Field field : fields) {
        changed = changed || to.*field != from.*field;
        to.*field = from.*field;
    }
    return changed;
}

bool sameFields(std::span<const Field> fields, const V& a, const V& b)
{
    for (const Field field : fields) {
        if (a.*field != b.*field) {
            return false;
        }
    }
    return true;
}

/** Pictures of other views that a list may name (H.7.4.2.1.4); the base view uses none. */
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
            report.say(listSize, v, used, stream.views, limit);
        }
    }
}

constexpr const RuleInfo* rules[] = {
    &alignedPicture, &alignedStream,   &alignedGop,  &otherTools, &beyondRecord, &splitOne,
    &stereoViews,    &multiviewFrames, &baseProfile, &chroma,     &depth,        &listSize,
};

} // namespace

void alignViews(KvMvcSettings& record, Report& report)
{
    if (countSubRecords(record) < 2) {
        return;
    }
    const V& base = record.views[0];
    V& second = record.views[1];
    bool picture = copyFields(pictureFields, base, second);
    if (const double rate = base.frame_rate; second.frame_rate != rate) {
        second.frame_rate = rate;
        picture = true;
    }
    if (picture) {
        report.say(alignedPicture);
    }
    if (copyFields(streamFields, base, second)) {
        report.say(alignedStream);
    }
    if (copyFields(gopFields, base, second)) {
        report.say(alignedGop);
    }
}

void judgeViews(const Stream& stream, Report& report)
{
    if (!stream.multiview) {
        if (stream.record.split_views != 0) {
            report.say(splitOne);
        }
        return;
    }
    if (!sameFields(toolFields, stream.base, stream.record.views[1])) {
        report.say(otherTools);
    }
    if (stream.views > KV_MVC_RECORD_VIEWS) {
        report.say(beyondRecord, stream.views - 1);
    }
    if (stream.multiview == &stereoHigh() && stream.views > 2) {
        report.say(stereoViews, stream.views);
    }
    if (!stream.multiview->interlace && stream.interlaced) {
        report.say(multiviewFrames);
    }
    if (stream.profile && !stream.profile->baseOfViews) {
        report.say(baseProfile, stream.profile->name);
    }
    const V& base = stream.base;
    if (base.chroma_format == KV_MVC_CHROMA_422) {
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
