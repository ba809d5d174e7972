// Blu-ray 3D: the limits of the disc beyond those of Stereo High.

#include <algorithm>
#include <cmath>

#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr Rule<> views = {"disc.views", Severity::Error,
                          "Blu-ray 3D has two views: set one additional view.",
                          "disc: Stereo High"};
constexpr Rule<const char*> profile = {"disc.profile", Severity::Error,
                                       "The base view of Blu-ray 3D is High, not %s: choose High.",
                                       "disc: base view High at level 4.1"};
constexpr Rule<const char*> discLevel = {"disc.level", Severity::Error,
                                         "Blu-ray 3D is labelled level 4.1, not %s.",
                                         "disc: Stereo High at level 4.1"};
constexpr Rule<int, int, double> format = {
    "disc.format", Severity::Error,
    "Blu-ray has no %d x %d pictures at %g frames/s in this picture structure.",
    "disc: table of picture formats"};
constexpr Rule<> unconfirmed = {
    "disc.format-3d", Severity::Note,
    "Blu-ray 3D is known to play 1920 x 1080 at 23.976 frames/s progressive; this may fail.",
    "disc: no other format is confirmed"};
constexpr Rule<> chroma = {"disc.chroma", Severity::Error, "Blu-ray 3D is 4:2:0: choose it.",
                           "disc: 4:2:0 of 8 bits"};
constexpr Rule<> aspect = {"disc.aspect", Severity::Error,
                           "Blu-ray does not have this pixel aspect ratio at this picture size.",
                           "disc: sample aspect ratio is signalled, one of the format's"};
constexpr Rule<int> gop = {"disc.gop", Severity::Error,
                           "Blu-ray has an I-frame at least every %d frames at this rate.",
                           "disc: about one second"};
constexpr Rule<int, int> references = {
    "disc.references", Severity::Error,
    "Blu-ray has at most %d reference frames a view at this size, not %d.",
    "disc: 4 at 1080 lines, 6 below"};
constexpr Rule<> spareReference = {
    "disc.references-spare", Severity::Note,
    "More than 3 reference frames a view leave Blu-ray 3D players no spare frame.",
    "disc: a limit beyond the standard's is not confirmed"};
constexpr Rule<> referenceB = {"disc.reference-b", Severity::Note,
                               "Blu-ray takes one reference B-frame between others at most.",
                               "disc: strict pyramid"};
constexpr Rule<> weightedP = {"disc.weighted-p", Severity::Note,
                              "Weighted prediction is known to fail in some Blu-ray players.",
                              "practice"};
constexpr Rule<> pulldown = {"disc.pulldown", Severity::Note,
                             "Blu-ray 3D shows its frame rate as it is and needs no pulldown.",
                             "practice"};
constexpr Rule<int> slices = {"disc.slices", Severity::Error,
                              "Blu-ray at level 4.1 has at least 4 slices per picture, not %d.",
                              "disc"};
constexpr Rule<int, int> rateOfView = {
    "disc.bitrate", Severity::Error,
    "View %d: Blu-ray 3D has at most %d bit/s in a view: lower the max bitrate.",
    "disc: 40 Mbit/s in each view"};
constexpr Rule<int> rateOfBoth = {"disc.bitrate-both", Severity::Error,
                                  "Blu-ray 3D has at most %d bit/s in both views: lower a rate.",
                                  "disc: 60 Mbit/s in both views"};
constexpr Rule<int> mode = {
    "disc.bitrate-mode", Severity::Error,
    "View %d: Blu-ray needs a bitrate mode with a rate: choose Variable Bitrate.",
    "disc: a maximum rate is signalled and kept"};
constexpr Rule<> hrd = {"disc.hrd", Severity::Error,
                        "Blu-ray requires HRD conformance of the base view: switch it on.", "disc"};
constexpr Rule<> hrdOther = {"disc.hrd-other", Severity::Note,
                             "Blu-ray 3D players expect HRD conformance of view 1 too.",
                             "disc: stated for the base view only"};
constexpr Rule<int> bufferBase = {"disc.buffer", Severity::Error,
                                  "Blu-ray has a buffer of at most %d bits in the base view.",
                                  "disc: 30 Mbit"};
constexpr Rule<int> bufferOther = {"disc.buffer-other", Severity::Note,
                                   "A buffer above %d bits in view 1 may fail in players.",
                                   "disc: stated for the base view only"};

constexpr int maxViewRate = 40'000'000;
constexpr int maxBothRate = 60'000'000;
constexpr int maxBuffer = 30'000'000;

/** A picture format of the disc: its longest I interval, and its aspect ratios. */
struct Format {
    int width;
    int height;
    double frameRate;
    bool interlaced;
    int interval;
    SampleAspect aspects[2];
};

constexpr double film = 24000.0 / 1001;
constexpr double ntsc = 30000.0 / 1001;
constexpr double ntscDouble = 60000.0 / 1001;

constexpr Format formats[] = {
    {1920, 1080, film, false, 24, {{1, 1}, {1, 1}}}, // the one that is confirmed for 3D
    {1920, 1080, 24, false, 24, {{1, 1}, {1, 1}}},
    {1920, 1080, 25, true, 25, {{1, 1}, {1, 1}}},
    {1920, 1080, ntsc, true, 30, {{1, 1}, {1, 1}}},
    {1440, 1080, film, false, 24, {{4, 3}, {4, 3}}},
    {1440, 1080, 24, false, 24, {{4, 3}, {4, 3}}},
    {1440, 1080, 25, true, 25, {{4, 3}, {4, 3}}},
    {1440, 1080, ntsc, true, 30, {{4, 3}, {4, 3}}},
    {1280, 720, film, false, 24, {{1, 1}, {1, 1}}},
    {1280, 720, 24, false, 24, {{1, 1}, {1, 1}}},
    {1280, 720, 50, false, 50, {{1, 1}, {1, 1}}},
    {1280, 720, ntscDouble, false, 60, {{1, 1}, {1, 1}}},
    {720, 576, 25, true, 25, {{12, 11}, {16, 11}}},
    {720, 480, ntsc, true, 30, {{10, 11}, {40, 33}}},
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

void judgeFormat(const Stream& stream, Report& report)
{
    const KvMvcViewSettings& base = stream.base;
    if (base.chroma_format != KV_MVC_CHROMA_420) {
        report.say(chroma);
    }
    const Format* row = findFormat(stream);
    if (!row) {
        report.say(format, base.width, base.height, stream.frameRate);
        return;
    }
    if (row != formats) {
        report.say(unconfirmed);
    }
    const SampleAspect aspectNow = sampleAspect(base);
    bool known = false;
    for (const SampleAspect& wanted : row->aspects) {
        known = known || (wanted.x == aspectNow.x && wanted.y == aspectNow.y);
    }
    if (!known) {
        report.say(aspect);
    }
    if (base.i_interval == 0 || base.i_interval > row->interval) {
        report.say(gop, row->interval);
    }
}

void judgeTools(const Stream& stream, Report& report)
{
    const KvMvcViewSettings& base = stream.base;
    const int most = base.height >= 1080 ? 4 : 6;
    int used = 0;
    bool weighted = false;
    int fewestSlices = base.num_slices;
    for (int v = 0; v < stream.subRecords; ++v) {
        const KvMvcViewSettings& view = stream.record.views[v];
        used = std::max(used, view.num_ref_frames);
        weighted = weighted || view.weighted_p != 0;
        fewestSlices = std::min(fewestSlices, view.num_slices);
    }
    if (used > most) {
        report.say(references, most, used);
    } else if (used > 3) {
        report.say(spareReference);
    }
    if (fewestSlices < 4) {
        report.say(slices, fewestSlices);
    }
    if (weighted) {
        report.say(weightedP);
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
            report.say(mode, v);
            continue;
        }
        if (limitRate(view) > maxViewRate) {
            report.say(rateOfView, v, maxViewRate);
            each = false;
        }
        if (view.hrd_mode == 0) {
            report.say(v == 0 ? hrd : hrdOther);
        } else if (bufferBits(view) > maxBuffer) {
            report.say(v == 0 ? bufferBase : bufferOther, maxBuffer);
        }
    }
    if (each && stream.totalRate() > maxBothRate) {
        report.say(rateOfBoth, maxBothRate);
    }
}

constexpr const RuleInfo* rules[] = {
    &views,      &profile,    &discLevel,      &format,     &unconfirmed, &chroma,     &aspect,
    &gop,        &references, &spareReference, &referenceB, &weightedP,   &pulldown,   &slices,
    &rateOfView, &rateOfBoth, &mode,           &hrd,        &hrdOther,    &bufferBase, &bufferOther,
};

} // namespace

void judgeDisc(const Stream& stream, const Level* level, Report& report)
{
    if (stream.base.video_type != KV_MVC_BLURAY_3D) {
        return;
    }
    // More than two views are refused by Stereo High already.
    if (stream.views == 1) {
        report.say(views);
    }
    if (stream.profile && stream.profile->code != KV_MVC_PROFILE_HIGH) {
        report.say(profile, stream.profile->name);
    }
    if (level && level->code != 41) {
        report.say(discLevel, level->name);
    }
    if (stream.sized) {
        judgeFormat(stream, report);
    }
    judgeTools(stream, report);
    judgeRate(stream, report);
}

RuleGroup discRules()
{
    return {"Blu-ray 3D", rules};
}

} // namespace kv::encoder
