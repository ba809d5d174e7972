// Blu-ray 3D: the picture formats of discs, and what hangs on them.

#include <cmath>
#include <utility>

#include "rules.h"

namespace kv::encoder
{

namespace
{

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
    "Blu-ray 3D is known at 1920 x 1080, 23.98 frames/s, and 1280 x 720, 50.00 or 59.94; others "
    "may "
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
    "are not taken is a choice of the encoder",
    {.setting = "i_interval", .value = 2, .limit = 1}};
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

constexpr const RuleInfo* rules[] = {&format, &unconfirmed, &chroma, &aspect, &twoAspects, &gop};

} // namespace

bool isDiscFormat(const Stream& stream)
{
    return findFormat(stream) != nullptr;
}

void judgeDiscFormat(const Stream& stream, Report& report)
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

RuleGroup discFormatRules()
{
    return {"Picture format of Blu-ray 3D", rules};
}

} // namespace kv::encoder
