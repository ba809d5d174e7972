// Blu-ray 3D: the limits of the disc beyond those of Stereo High.

#include <algorithm>
#include <cmath>
#include <utility>

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
constexpr Rule<int, int, Decimal, int, int, Decimal> format = {
    "disc.format",
    Severity::Error,
    "Blu-ray has no %d x %d at %d.%0*d frames/s in this structure; the nearest is %d x %d at "
    "%d.%0*d, progressive.",
    "disc: table of picture formats; the nearest of those that are known of two views",
    {.setting = "frame_rate", .value = 3, .limit = 6}};
constexpr Rule<> unconfirmed = {
    "disc.format-3d",
    Severity::Risk,
    "Blu-ray 3D is known at 1920 x 1080, 23.976 frames/s, and 1280 x 720, 50 or 59.94; others may "
    "fail.",
    "disc: authoring programs offer 23.976, 50 and 59.94 frames/s for two views; all discs that "
    "are described have the first",
    {.setting = "frame_rate"}};
constexpr Rule<> chroma = {"disc.chroma",
                           Severity::Error,
                           "Blu-ray 3D requires the chroma format 4:2:0: choose 4:2:0.",
                           "disc: 4:2:0 of 8 bits",
                           {.setting = "chroma_format"}};
constexpr const char* aspectClause = "disc: sample aspect ratio is signalled, one of the format's";
constexpr Rule<int, int> aspect = {
    "disc.aspect",
    Severity::Error,
    "Blu-ray requires the pixel aspect ratio %d:%d at this picture size: set it.",
    aspectClause,
    {.setting = "pixel_aspect_x"}};
constexpr Rule<int, int, int, int> twoAspects = {
    "disc.aspect-two",
    Severity::Error,
    "Blu-ray requires the pixel aspect ratio %d:%d (4:3) or %d:%d (16:9) at this picture size.",
    aspectClause,
    {.setting = "pixel_aspect_x"}};
constexpr Rule<int, int> gop = {
    "disc.gop",
    Severity::Error,
    "Blu-ray requires an I-frame interval from 1 to %d at this frame rate (now %d).",
    "disc: about one second. Two at 15 Mbit/s or less are told of, but not confirmed; that they "
    "are "
    "not taken is a choice of the encoder",
    {.setting = "i_interval", .value = 2, .limit = 1}};
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
constexpr int maxBothRate = 60'000'000;

/// A picture format of the disc: its longest I interval, and its aspect ratios.
struct Format {
    int width;
    int height;
    double frameRate;
    bool interlaced;
    bool ofTwoViews; ///< known of 3D discs
    int interval;
    SampleAspect aspects[2];
};

constexpr double film = 24000.0 / 1001;
constexpr double ntsc = 30000.0 / 1001;
constexpr double ntscDouble = 60000.0 / 1001;

constexpr Format formats[] = {
    {1920, 1080, film, false, true, 24, {{1, 1}, {1, 1}}},
    {1920, 1080, 24, false, false, 24, {{1, 1}, {1, 1}}},
    {1920, 1080, 25, true, false, 25, {{1, 1}, {1, 1}}},
    {1920, 1080, ntsc, true, false, 30, {{1, 1}, {1, 1}}},
    {1440, 1080, film, false, false, 24, {{4, 3}, {4, 3}}},
    {1440, 1080, 24, false, false, 24, {{4, 3}, {4, 3}}},
    {1440, 1080, 25, true, false, 25, {{4, 3}, {4, 3}}},
    {1440, 1080, ntsc, true, false, 30, {{4, 3}, {4, 3}}},
    {1280, 720, film, false, false, 24, {{1, 1}, {1, 1}}},
    {1280, 720, 24, false, false, 24, {{1, 1}, {1, 1}}},
    {1280, 720, 50, false, true, 50, {{1, 1}, {1, 1}}},
    {1280, 720, ntscDouble, false, true, 60, {{1, 1}, {1, 1}}},
    {720, 576, 25, true, false, 25, {{12, 11}, {16, 11}}},
    {720, 480, ntsc, true, false, 30, {{10, 11}, {40, 33}}},
};

const Format* findFormat(const Stream& stream)
{
    for (const Format& row : formats) {
        if (row.width == stream.base.width && row.height == stream.base.height &&
            row.interlaced == stream.interlaced &&
            std::fabs(row.frameRate - stream.frameRate) < 0.001) {
            return &row;
        }
    }
    return nullptr;
}

/// The format of two views that has the nearest size, and of these the nearest frame rate.
const Format& nearestFormat(const Stream& stream)
{
    const auto distance = [&](const Format& row) {
        const double size = 1.0 * row.width * row.height;
        const double given = 1.0 * stream.base.width * stream.base.height;
        return std::pair(std::fabs(size - given), std::fabs(row.frameRate - stream.frameRate));
    };
    const Format* nearest = formats;
    for (const Format& row : formats) {
        if (row.ofTwoViews && distance(row) < distance(*nearest)) {
            nearest = &row;
        }
    }
    return *nearest;
}

void judgeFormat(const Stream& stream, Report& report)
{
    const KvMvcViewSettings& base = stream.base;
    if (base.chroma_format != KV_MVC_CHROMA_420) {
        report.say(chroma);
    }
    const Format* row = findFormat(stream);
    if (!row) {
        const Format& nearest = nearestFormat(stream);
        report.say(format, base.width, base.height, frameRateText(stream.frameRate), nearest.width,
                   nearest.height, frameRateText(nearest.frameRate));
        return;
    }
    if (!row->ofTwoViews) {
        report.say(unconfirmed);
    }
    const SampleAspect aspectNow = sampleAspect(base);
    const auto isNow = [&](const SampleAspect& wanted) {
        return wanted.x == aspectNow.x && wanted.y == aspectNow.y;
    };
    const SampleAspect& narrow = row->aspects[0];
    const SampleAspect& wide = row->aspects[1];
    if (!isNow(narrow) && !isNow(wide)) {
        const auto x = static_cast<int>(wide.x);
        const auto y = static_cast<int>(wide.y);
        if (wide.x == narrow.x) {
            report.say(aspect, x, y);
        } else {
            report.say(twoAspects, static_cast<int>(narrow.x), static_cast<int>(narrow.y), x, y);
        }
    }
    if (base.i_interval == 0 || base.i_interval > row->interval) {
        report.say(gop, row->interval, base.i_interval);
    }
}

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
    if (each && stream.totalRate() > maxBothRate) {
        report.say(rateOfBoth, millions(maxBothRate), millions(stream.totalRate()));
    }
}

constexpr const RuleInfo* rules[] = {
    &views,      &profile,    &discLevel, &format,     &unconfirmed, &chroma,
    &aspect,     &twoAspects, &gop,       &idr,        &references,  &spareReference,
    &referenceB, &weightedP,  &pulldown,  &slices,     &rateOfView,  &rateOfBoth,
    &mode,       &hrd,        &hrdOther,  &bufferBase, &bufferOther,
};

} // namespace

bool isDiscFormat(const Stream& stream)
{
    return findFormat(stream) != nullptr;
}

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
        judgeFormat(stream, report);
    }
    judgeTools(stream, report);
    judgeRate(stream, report);
}

void tellDiscLimits(const Stream& stream, const Report& report)
{
    if (!stream.disc || !report.wantsLimits()) {
        return;
    }
    const auto tell = [&](const char* name, const char* unit, const RuleInfo& rule, int view,
                          std::int64_t used, int limit) {
        report.tellLimit({0, view, name, unit, rule.id, nullptr, static_cast<double>(used),
                          static_cast<double>(limit)});
    };
    for (int v = 0; v < stream.subRecords; ++v) {
        const KvMvcViewSettings& view = stream.record.views[v];
        if (aimsAtRate(view)) {
            tell("Bitrate on a disc", "bit/s", rateOfView, v, limitRate(view), maxViewRate);
        }
        if (keepsBuffer(view)) {
            tell("Buffer on a disc", "bit", v == 0 ? bufferBase : bufferOther, v, bufferBits(view),
                 discBuffer);
        }
    }
    if (stream.multiview && stream.totalRate() > 0) {
        tell("Bitrate on a disc", "bit/s", rateOfBoth, KV_MVC_ALL_VIEWS, stream.totalRate(),
             maxBothRate);
    }
}

RuleGroup discRules()
{
    return {"Blu-ray 3D", rules};
}

} // namespace kv::encoder
