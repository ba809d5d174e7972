// The level of a stream: the one that is chosen, what "Auto" comes to, and the lowest that fits.

#include <cstdio>
#include <cstdlib>
#include <limits>

#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr Rule<const char*> reserved = {
    "level.code",
    Severity::Error,
    "Level %s is none of the H.264 levels from 1.0 to 5.2: choose another level, or Auto.",
    "A.1: all values of level_idc outside Table A-1",
    {.setting = "level", .level = 1}};
constexpr Rule<int, Decimal> frameRate = {
    "level.frame-rate",
    Severity::Error,
    "No level allows more than %d frames/s (now %d.%0*d): choose a lower frame rate.",
    "A.3: fR is 1/172",
    {.setting = "frame_rate", .value = 2, .limit = 1}};
constexpr Rule<> none = {"level.none",
                         Severity::Note,
                         "These settings fit no level from 1.0 to 5.2.",
                         "A.3",
                         {.setting = "level"}};
constexpr const char* searchClause =
    "A.3: the first level that holds every limit, for picture data as well as with headers";
constexpr Rule<const char*> automatic = {
    "level.auto",
    Severity::Note,
    "With level Auto, the stream has level %s, the lowest that fits.",
    searchClause,
    {.setting = "level", .level = 1}};
constexpr Rule<const char*> lowest = {"level.lowest",
                                      Severity::Note,
                                      "Level %s is the lowest that fits.",
                                      searchClause,
                                      {.setting = "level", .level = 1}};
// A disc has one level, whether a lower one would do or not.
constexpr const char* discClause = "disc: Stereo High at level 4.1";
constexpr Rule<const char*> automaticOfDisc = {
    "level.auto-disc",
    Severity::Note,
    "With level Auto, the stream has level %s, which Blu-ray 3D requires.",
    discClause,
    {.setting = "level", .level = 1}};
constexpr Rule<const char*> fitsDisc = {"level.fits-disc",
                                        Severity::Note,
                                        "These settings fit level %s, which Blu-ray 3D requires.",
                                        discClause,
                                        {.setting = "level", .level = 1}};

struct Search {
    const Level* lowest;  ///< null when no level fits
    const Level* nearest; ///< the level with the fewest errors, the highest of several
};

Search searchLevels(const Stream& stream, bool isAuto)
{
    Search found = {nullptr, &levels().front()};
    int fewest = std::numeric_limits<int>::max();
    for (const Level& level : levels()) {
        if (level.code == 0 && !isAuto) {
            continue; // not to be chosen
        }
        Report silent;
        judgeLimits(stream, level, nullptr, silent);
        if (silent.errors() == 0 && !exceedsPictureData(stream, level)) {
            return {&level, &level};
        }
        if (silent.errors() == 0 && !found.lowest) {
            found.lowest = &level; // unless a higher one has room for all of it as picture data
        }
        if (silent.errors() <= fewest) {
            fewest = silent.errors();
            found.nearest = &level;
        }
    }
    return found;
}

/// Judges the level and tells which one would do. @return The level that the stream has.
const Level* judgeAnyLevel(const Stream& stream, const Level* chosen, bool isAuto, bool tell,
                           Report& report)
{
    const Search found = searchLevels(stream, isAuto);
    const Level* const level = isAuto ? found.lowest : chosen;
    if (level) {
        judgeLimits(stream, *level, found.lowest, report); // which breaks none itself
    } else if (!found.lowest) {
        judgeLimits(stream, *found.nearest, nullptr, report);
    }
    if (tell && found.lowest) {
        report.say(isAuto ? automatic : lowest, found.lowest->name);
    } else if (tell) {
        report.say(none);
    }
    return level;
}

/// The same for a disc: its level holds, whatever is chosen.
const Level* judgeDiscLevel(const Stream& stream, bool isAuto, Report& report)
{
    const Level* const level = findLevel(discLevelCode);
    judgeLimits(stream, *level, nullptr, report);
    // What the disc refuses itself may be beyond the level as well.
    Stream plain = stream;
    plain.disc = false;
    Report silent;
    judgeLimits(plain, *level, nullptr, silent);
    if (silent.errors() == 0) {
        report.say(isAuto ? automaticOfDisc : fitsDisc, level->name);
    }
    return level;
}

/// A level code as the list of levels spells it.
struct LevelCode {
    char text[16];

    explicit LevelCode(int code)
    {
        const std::int64_t tenths = std::abs(std::int64_t{code});
        std::snprintf(text, sizeof text, "%s%d.%d", code < 0 ? "-" : "",
                      static_cast<int>(tenths / 10), static_cast<int>(tenths % 10));
    }
};

constexpr const RuleInfo* rules[] = {
    &reserved, &frameRate, &none, &automatic, &lowest, &automaticOfDisc, &fitsDisc,
};

} // namespace

const Level* judgeLevel(const Stream& stream, Report& report)
{
    const int code = stream.base.level;
    const bool isAuto = code == KV_MVC_LEVEL_AUTO;
    const Level* const chosen = isAuto ? nullptr : findLevel(code);
    if (!isAuto && !chosen) {
        report.say(reserved, LevelCode(code).text);
    }
    const bool tooFast = stream.frameRate > maxFrameRate;
    if (tooFast && !stream.disc) { // which has no such format
        report.say(frameRate, maxFrameRate, frameRateText(stream.frameRate));
    }
    if (!stream.sized || !stream.streamProfile()) {
        return chosen; // refused for that already
    }
    if (stream.disc) {
        return judgeDiscLevel(stream, isAuto, report);
    }
    // What is too fast for all levels is so whatever the other limits say.
    return judgeAnyLevel(stream, chosen, isAuto, !tooFast, report);
}

RuleGroup levelChoiceRules()
{
    return {"Level", rules};
}

} // namespace kv::encoder
