// Blu-ray 3D: the limits of the disc beyond those of Stereo High.

#include <algorithm>

#include "limit_names.h"
#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr Rule<> views = {"disc.views",
                          Severity::Error,
                          "Blu-ray 3D has two views (now 1): set 1 additional view.",
                          "disc: Stereo High",
                          {.setting = "num_views"}};
constexpr Rule<const char*> profile = {"disc.profile",
                                       Severity::Error,
                                       "Blu-ray 3D requires profile High (now %s): choose High.",
                                       "disc: base view High at level 4.1",
                                       {.setting = "profile"}};
constexpr Rule<const char*> discLevel = {"disc.level",
                                         Severity::Error,
                                         "Blu-ray 3D requires level 4.1 (now %s): choose 4.1.",
                                         "disc: Stereo High at level 4.1",
                                         {.setting = "level", .level = 1}};
constexpr Rule<> idr = {
    "disc.idr",
    Severity::Risk,
    "Only the first I-frame is an IDR frame, so some Blu-ray players may fail to start elsewhere.",
    "disc: entry points about once a second; without IDR their references may be missing",
    {.setting = "idr_marker"}};
constexpr Rule<int, int> references = {
    "disc.references",
    Severity::Error,
    "Blu-ray allows at most %d reference frames per view at this size (now %d): use fewer.",
    "disc: 4 at 1080 lines, 6 below",
    {.setting = "num_ref_frames", .value = 2, .limit = 1}};
constexpr Rule<> spareReference = {
    "disc.references-spare",
    Severity::Risk,
    "More than 3 reference frames per view may fail on some Blu-ray 3D players.",
    "disc: a limit beyond the standard's is not confirmed",
    {.setting = "num_ref_frames"}};
constexpr Rule<> referenceB = {
    "disc.reference-b",
    Severity::Risk,
    "Blu-ray allows one reference B-frame in a row: switch the pyramidal structure on.",
    "disc: strict pyramid",
    {.setting = "pyramid_b"}};
constexpr Rule<> weightedP = {
    "disc.weighted-p",
    Severity::Risk,
    "Weighted prediction for P-frames is known to fail on some Blu-ray players.",
    "practice",
    {.setting = "weighted_p"}};
constexpr Rule<> pulldown = {"disc.pulldown",
                             Severity::Note,
                             "Blu-ray 3D plays its frame rate as it is, so pulldown is not needed.",
                             "practice",
                             {.setting = "pulldown"}};
constexpr Rule<int> slices = {
    "disc.slices",
    Severity::Error,
    "Blu-ray requires at least 4 slices per picture at level 4.1 (now %d): use more.",
    "disc",
    {.setting = "num_slices", .value = 1}};
constexpr ViewRule<Decimal, Decimal> rateOfView = {
    "disc.bitrate",
    Severity::Error,
    KV_EACH_VIEW("Blu-ray 3D allows at most %d.%0*d Mbit/s (now %d.%0*d): lower the bitrate."),
    "disc: 40 Mbit/s in each view",
    {.setting = "bitrate", .value = 2, .limit = 1}};
constexpr Rule<Decimal, Decimal> rateOfBoth = {
    "disc.bitrate-both",
    Severity::Error,
    "Blu-ray 3D allows both views together at most %d.%0*d Mbit/s (now %d.%0*d): lower a bitrate.",
    "disc: 60 Mbit/s in both views",
    {.setting = "bitrate", .value = 2, .limit = 1}};
constexpr ViewRule<> mode = {
    "disc.bitrate-mode",
    Severity::Error,
    KV_EACH_VIEW("Blu-ray does not allow constant quality: choose Variable Bitrate."),
    "disc: a maximum rate is signalled and kept",
    {.setting = "bitrate_mode"}};
constexpr Rule<> hrd = {"disc.hrd",
                        Severity::Error,
                        "Blu-ray requires HRD conformance in the base view: switch it on.",
                        "disc",
                        {.setting = "hrd_mode", .view = 0}};
constexpr Rule<> hrdOther = {"disc.hrd-other",
                             Severity::Risk,
                             "Blu-ray 3D players expect HRD conformance in view 1, too.",
                             "disc: stated for the base view only",
                             {.setting = "hrd_mode", .view = 1}};
constexpr Rule<Decimal, int> bufferBase = {
    "disc.buffer",
    Severity::Error,
    "Blu-ray allows the base view a bitrate buffer of at most %d.%0*d Mbit (%d bytes): make it "
    "smaller.",
    "disc: 30 Mbit",
    {.setting = "bitrate_buffer", .limit = 1, .view = 0}};
constexpr Rule<Decimal, int> bufferOther = {
    "disc.buffer-other",
    Severity::Risk,
    "In view 1, a bitrate buffer above %d.%0*d Mbit (%d bytes) may fail on some players.",
    "disc: stated for the base view only",
    {.setting = "bitrate_buffer", .limit = 1, .view = 1}};

constexpr int maxViewRate = 40'000'000;

void judgeTools(const Stream& stream, Report& report)
{
    const KvMvcViewSettings& base = stream.base;
    const int most = base.height >= 1080 ? 4 : 6;
    const int used = stream.mostReferences();
    bool weighted = false;
    int fewestSlices = base.num_slices;
    for (int v = 0; v < stream.subRecords; ++v) {
        const KvMvcViewSettings& view = stream.record.views[v];
        weighted = weighted || view.weighted_p != 0;
        fewestSlices = std::min(fewestSlices, view.num_slices);
    }
    // What is beyond the level already is refused for that.
    const Level& level = *findLevel(discLevelCode);
    const bool judged = stream.sized && stream.streamProfile();
    const bool stored = !judged || storesReferences(stream, level);
    if (stored && used > most) {
        report.say(references, most, used);
    } else if (stored && used > 3) {
        report.say(spareReference);
    }
    if (fewestSlices < 4 && (!judged || fewestSlices >= leastSlices(stream, level))) {
        report.say(slices, fewestSlices);
    }
    if (weighted) {
        report.say(weightedP);
    }
    if (stream.predicts && base.idr_marker == 0) {
        report.say(idr);
    }
    if (stream.bFrames && base.reference_b != 0 && base.pyramid_b == 0 && base.ref_distance > 2) {
        report.say(referenceB);
    }
    if (base.pulldown != KV_MVC_PULLDOWN_OFF) {
        report.say(pulldown);
    }
}

void judgeRate(const Stream& stream, Report& report)
{
    bool each = true;
    for (int v = 0; v < stream.subRecords; ++v) {
        const KvMvcViewSettings& view = stream.record.views[v];
        if (!aimsAtRate(view)) {
            report.sayOf(v, mode);
            continue;
        }
        if (limitRate(view) > maxViewRate) {
            report.sayOf(v, rateOfView, millions(maxViewRate), millions(limitRate(view)));
            each = false;
        }
        if (view.hrd_mode == 0) {
            report.say(v == 0 ? hrd : hrdOther);
        } else if (bufferBits(view) > discBuffer) {
            report.say(v == 0 ? bufferBase : bufferOther, millions(discBuffer), discBuffer / 8);
        }
    }
    if (each && stream.totalRate() > discRate) {
        report.say(rateOfBoth, millions(discRate), millions(stream.totalRate()));
    }
}

constexpr const RuleInfo* rules[] = {
    &views,      &profile,   &discLevel, &idr,        &references,  &spareReference,
    &referenceB, &weightedP, &pulldown,  &slices,     &rateOfView,  &rateOfBoth,
    &mode,       &hrd,       &hrdOther,  &bufferBase, &bufferOther,
};

} // namespace

void judgeDisc(const Stream& stream, Report& report)
{
    if (!stream.disc) {
        return;
    }
    // More than two views are refused by Stereo High already.
    if (stream.views == 1) {
        report.say(views);
    }
    if (stream.profile && stream.profile->code != KV_MVC_PROFILE_HIGH) {
        report.say(profile, stream.profile->name);
    }
    // "Auto" comes to the right one, and a reserved code is refused as such.
    const Level* const chosen = findLevel(stream.base.level);
    if (chosen && chosen->code != discLevelCode) {
        report.say(discLevel, chosen->name);
    }
    if (stream.sized) {
        judgeDiscFormat(stream, report);
    }
    judgeTools(stream, report);
    judgeRate(stream, report);
}

void eachDiscLimit(const Stream& stream, const TakeLimit& take)
{
    if (!stream.disc) {
        return;
    }
    const auto tell = [&](const char* name, const char* unit, const RuleInfo& rule, int view,
                          std::int64_t used, int limit) {
        take({0, view, name, unit, rule.id, nullptr, static_cast<double>(used),
              static_cast<double>(limit)});
    };
    for (int v = 0; v < stream.subRecords; ++v) {
        const KvMvcViewSettings& view = stream.record.views[v];
        if (aimsAtRate(view)) {
            tell(limit::bitrateOnDisc, "bit/s", rateOfView, v, limitRate(view), maxViewRate);
        }
        if (keepsBuffer(view)) {
            tell(limit::bufferOnDisc, "bit", v == 0 ? bufferBase : bufferOther, v, bufferBits(view),
                 discBuffer);
        }
    }
    if (stream.multiview && stream.totalRate() > 0) {
        tell(limit::bitrateOnDisc, "bit/s", rateOfBoth, KV_MVC_ALL_VIEWS, stream.totalRate(),
             discRate);
    }
}

RuleGroup discRules()
{
    return {"Blu-ray 3D", rules};
}

} // namespace kv::encoder
