// What follows from the settings: the notes that every record gets.

#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr Rule<const char*, int> oneView = {"summary.stream", Severity::Note,
                                            "One view, profile %s (profile_idc %d).", "A.2"};
constexpr Rule<int, const char*, int, const char*> severalViews = {
    "summary.stream-views", Severity::Note,
    "%d views, profile %s (profile_idc %d); the base view is %s.",
    "H.10.1: two views carry 118 or 128, and players know 128"};
constexpr Rule<int, int, const char*> buffered = {
    "summary.dpb", Severity::Note,
    "Reference frames: %d of the %d that the decoded picture buffer holds at level %s.",
    "A.3.1 h, A.3.2 f, H.10.2.1 f"};
constexpr Rule<double, double, const char*> rate = {
    "summary.bitrate", Severity::Note, "Bit rate: at most %.0f of the %.0f bit/s of level %s.",
    "A.3.1 j, A.3.3 h, H.10.2.1 r"};
constexpr Rule<> rateUnknown = {
    "summary.bitrate-unknown", Severity::Note,
    "Quantizers set the bit rate: whether it fits the level shows only when encoding.",
    "A.3.1 j, A.3.3 h, H.10.2.1 r"};
constexpr Rule<int, double, double> bufferTime = {
    "summary.buffer", Severity::Note, "View %d: a buffer of %.2f s, which starts after %.2f s.",
    "C.1.1: size and initial fullness over the rate"};

// What exceeds a limit has its error already, and no note says it again.
void tellRates(const Stream& stream, const Level* level, Report& report)
{
    bool known = true;
    for (int v = 0; v < stream.subRecords; ++v) {
        known = known && aimsAtRate(stream.record.views[v]);
    }
    if (!known) {
        report.say(rateUnknown);
    } else if (level) {
        const auto limit = static_cast<double>(level->bitrate * stream.streamProfile()->nalFactor);
        const auto total = static_cast<double>(stream.totalRate());
        if (total <= limit) {
            report.say(rate, total, limit, level->name);
        }
    }
    for (int v = 0; v < stream.subRecords; ++v) {
        const KvMvcViewSettings& view = stream.record.views[v];
        if (keepsBuffer(view) && fullBuffer(view) >= 0) {
            report.say(bufferTime, v,
                       static_cast<double>(bufferBits(view)) / static_cast<double>(limitRate(view)),
                       fullnessSeconds(view, view.vbv_initial));
        }
    }
}

constexpr const RuleInfo* rules[] = {&oneView, &severalViews, &buffered,
                                     &rate,    &rateUnknown,  &bufferTime};

} // namespace

void tellSummary(const Stream& stream, const Level* level, Report& report)
{
    if (!stream.profile || !stream.sized) {
        return;
    }
    if (stream.multiview) {
        report.say(severalViews, stream.views, stream.multiview->name, stream.multiview->idc,
                   stream.profile->name);
    } else {
        report.say(oneView, stream.profile->name, stream.profile->idc);
    }
    if (level && stream.frameMbs <= level->frameMbs) {
        const int frames = static_cast<int>(dpbFrames(stream, *level));
        if (stream.totalReferences() <= frames) {
            report.say(buffered, stream.totalReferences(), frames, level->name);
        }
    }
    tellRates(stream, level, report);
}

RuleGroup summaryRules()
{
    return {"Summary", rules};
}

} // namespace kv::encoder
