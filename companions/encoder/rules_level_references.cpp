// The reference frames that a level has room for.

#include "level_rule.h"
#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr const char* dpbClause = "A.3.1 h, A.3.2 f: min(MaxDpbMbs / frame size, 16)";
constexpr Subject dpbSubject = {.setting = "num_ref_frames", .value = 3, .limit = 2, .level = 1};
constexpr LevelRule<const char*, int, int> dpb = {
    {"level.dpb", Severity::Error,
     "Level %s can store %d frames of this size (now %d): use fewer reference frames, or choose "
     "level %s.",
     dpbClause, dpbSubject},
    {"level.dpb-none", Severity::Error,
     "Level %s can store %d frames of this size (now %d): use fewer reference frames.", dpbClause,
     inOtherWords("level.dpb", dpbSubject)}};
constexpr const char* dpbViewsClause =
    "H.10.2.1 f, C.4: min(2 * MaxDpbMbs / frame size, 16 * max(1, ceil(log2 views))) for all views "
    "together";
constexpr Subject dpbViewsSubject = {
    .setting = "num_ref_frames", .value = 4, .limit = 2, .level = 1};
constexpr LevelRule<const char*, int, int, int> dpbViews = {
    {"level.dpb-views", Severity::Error,
     "Level %s has room for %d reference frames in each of %d views (now %d): use fewer, or choose "
     "level %s.",
     dpbViewsClause, dpbViewsSubject},
    {"level.dpb-views-none", Severity::Error,
     "Level %s has room for %d reference frames in each of %d views (now %d): use fewer.",
     dpbViewsClause, inOtherWords("level.dpb-views", dpbViewsSubject)}};
constexpr const char* looseBClause =
    "C.4.5.2, C.4.5.3: a non-reference picture of a view that predicts another view is kept while "
    "that one is decoded, one frame more than the references";
constexpr LevelRule<const char*, int, int, int> dpbLooseB = {
    {"level.dpb-views-b", Severity::Error,
     "With B-frames, level %s has room for %d reference frames in each of %d views (now %d): use "
     "fewer, or level %s.",
     looseBClause, dpbViewsSubject},
    {"level.dpb-views-b-none", Severity::Error,
     "With B-frames, level %s has room for %d reference frames in each of %d views (now %d): use "
     "fewer.",
     looseBClause, inOtherWords("level.dpb-views-b", dpbViewsSubject)}};
constexpr ViewRule<const char*, int, int> dpbHalf = {
    "level.dpb-half",
    Severity::Error,
    KV_ALL_VIEWS("Level %s allows a view %d reference frames of this size (now %d): use fewer."),
    "H.10.2.1 x: max_num_ref_frames of a view; the base view then also fits by itself",
    {.setting = "num_ref_frames", .value = 3, .limit = 2, .level = 1}};
constexpr auto rules =
    joinRules(bothRules(dpb, dpbViews, dpbLooseB), std::to_array<const RuleInfo*>({&dpbHalf}));

} // namespace

void judgeLevelReferences(const Stream& stream, const Level& level, const Level* other,
                          Report& report)
{
    const int frames = static_cast<int>(dpbFrames(stream, level));
    const int total = stream.totalReferences();
    if (!stream.multiview) {
        if (total > frames) {
            sayLevel(report, dpb, other, level.name, frames, total);
        }
        return;
    }
    if (const int room = referenceRoom(stream, level); total > room) {
        // Where they would fit without B pictures, those are the cause.
        sayLevel(report, total > frames ? dpbViews : dpbLooseB, other, level.name,
                 room / stream.views, stream.views, stream.mostReferences());
        return;
    }
    for (int v = 0; v < stream.subRecords; ++v) {
        const int references = stream.record.views[v].num_ref_frames;
        if (references > frames / 2) {
            report.sayOf(v, dpbHalf, level.name, frames / 2, references);
            return;
        }
    }
}

RuleGroup levelReferenceRules()
{
    return {"Reference frames of a level", rules};
}

} // namespace kv::encoder
