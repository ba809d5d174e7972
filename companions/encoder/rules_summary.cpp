// What follows from the settings: the notes that every record gets.

#include <algorithm>

#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr Rule<const char*, int> oneView = {"summary.stream",
                                            Severity::Note,
                                            "One view, profile %s (profile_idc %d).",
                                            "A.2",
                                            {.setting = "profile"}};
constexpr Rule<int, const char*, int, const char*> severalViews = {
    "summary.stream-views",
    Severity::Note,
    "%d views, profile %s (profile_idc %d); the base view has profile %s.",
    "H.10.1: two views carry 118 or 128, and players know 128",
    {.setting = "profile"}};
constexpr Rule<int, int, const char*> buffered = {
    "summary.dpb",
    Severity::Note,
    "Reference frames: %d of the %d frames of this size that level %s can store.",
    "A.3.1 h, A.3.2 f, H.10.2.1 f",
    {.setting = "num_ref_frames", .value = 1, .limit = 2, .level = 3}};
constexpr ViewRule<int, int, const char*> bufferedViews = {
    "summary.dpb-views",
    Severity::Note,
    KV_ALL_VIEWS("Reference frames: %d of the %d per view that level %s has room for."),
    "H.10.2.1 f, x, C.4.5.2",
    {.setting = "num_ref_frames", .value = 1, .limit = 2, .level = 3}};
constexpr Rule<Decimal, Decimal, const char*> rate = {
    "summary.bitrate",
    Severity::Note,
    "Bitrate: %d.%0*d of the %d.%0*d Mbit/s that level %s allows.",
    "A.3.1 j, A.3.3 h, H.10.2.1 r",
    {.setting = "bitrate", .value = 1, .limit = 2, .level = 3}};
constexpr Rule<Decimal, Decimal> rateOnDisc = {
    "summary.bitrate-disc",
    Severity::Note,
    "Bitrate: %d.%0*d of the %d.%0*d Mbit/s that Blu-ray 3D allows both views together.",
    "disc: 60 Mbit/s in both views, which is less than the level's limit",
    {.setting = "bitrate", .value = 1, .limit = 2}};
constexpr Rule<> rateUnknown = {
    "summary.bitrate-unknown",
    Severity::Note,
    "With constant quality, whether the bitrate fits the level shows only when encoding.",
    "A.3.1 j, A.3.3 h, H.10.2.1 r",
    {.setting = "bitrate_mode"}};
constexpr ViewRule<Decimal, Decimal> bufferTime = {
    "summary.buffer",
    Severity::Note,
    KV_EACH_VIEW("The bitrate buffer holds %d.%0*d s; decoding starts after %d.%0*d s."),
    "C.1.1: size and initial fullness over the rate",
    {.setting = "bitrate_buffer"}};

// What exceeds a limit has its error already, and no note says it again.
void tellRates(const Stream& stream, const Level* level, Report& report)
{
    if (!stream.knowsRates()) {
        report.say(rateUnknown);
    } else if (level) {
        const std::int64_t limit = level->bitrate * stream.streamProfile()->nalFactor;
        const std::int64_t total = stream.totalRate();
        if (stream.disc && discRate < limit) {
            if (total <= discRate) {
                report.say(rateOnDisc, millions(total), millions(discRate));
            }
        } else if (total <= limit) {
            report.say(rate, millions(total), millions(limit), level->name);
        }
    }
    for (int v = 0; v < stream.subRecords; ++v) {
        const KvMvcViewSettings& view = stream.record.views[v];
        if (keepsBuffer(view) && fullBuffer(view) >= 0) {
            const double time =
                static_cast<double>(bufferBits(view)) / static_cast<double>(limitRate(view));
            report.sayOf(v, bufferTime, seconds(time),
                         seconds(fullnessSeconds(view, view.vbv_initial)));
        }
    }
}

void tellReferences(const Stream& stream, const Level& level, Report& report)
{
    if (!storesReferences(stream, level)) {
        return;
    }
    const int frames = static_cast<int>(dpbFrames(stream, level));
    const int room = referenceRoom(stream, level);
    const int total = stream.totalReferences();
    if (!stream.multiview) {
        report.say(buffered, total, frames, level.name);
        return;
    }
    const int ofBase = stream.base.num_ref_frames;
    const bool even = total == stream.views * ofBase;
    for (int v = 0; v < (even ? 1 : stream.subRecords); ++v) {
        const int used = stream.record.views[v].num_ref_frames;
        const int left = even ? room / stream.views : used + (room - total) / stream.viewsLike(v);
        report.sayOf(v, bufferedViews, used, std::min(left, frames / 2), level.name);
    }
}

constexpr const RuleInfo* rules[] = {&oneView, &severalViews, &buffered,    &bufferedViews,
                                     &rate,    &rateOnDisc,   &rateUnknown, &bufferTime};

} // namespace

void tellSummary(const Stream& stream, const Level* level, Report& report)
{
    if (!stream.profile || !stream.sized) {
        return;
    }
    if (stream.multiview) {
        report.say(severalViews, stream.viewsSet, stream.multiview->name, stream.multiview->idc,
                   stream.profile->name);
    } else {
        report.say(oneView, stream.profile->name, stream.profile->idc);
    }
    if (level && stream.frameMbs <= level->frameMbs) {
        tellReferences(stream, *level, report);
    }
    tellRates(stream, level, report);
}

RuleGroup summaryRules()
{
    return {"Summary", rules};
}

} // namespace kv::encoder
