// The limits of a level, the choice of the automatic level, and the lowest level that fits.

#include <cstdio>
#include <cstdlib>
#include <limits>

#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr Rule<const char*> reserved = {
    "level.code", Severity::Error,
    "Level %s is none of the H.264 levels from 1.0 to 5.2: choose another level, or Auto.",
    "A.1: all values of level_idc outside Table A-1"};
constexpr Rule<const char*, int, double> pictureSize = {
    "level.picture", Severity::Error,
    "Level %s allows at most %d macroblocks in a picture (now %.0f): choose a higher level.",
    "A.3.1 e, A.3.2 c, H.10.2.1 c, Table A-1: MaxFS; of each view"};
constexpr Rule<const char*, int, double, double> pictureSide = {
    "level.side", Severity::Error,
    "Level %s allows at most %d macroblocks in a row or column (now %.0f x %.0f): choose a higher "
    "level.",
    "A.3.1 f, g, A.3.2 d, e, H.10.2.1 d, e: the square root of 8 * MaxFS"};
constexpr Rule<const char*, int, double> mbRate = {
    "level.rate", Severity::Error,
    "Level %s allows at most %d macroblocks/s (now %.0f): choose a higher level or a lower frame "
    "rate.",
    "A.3.1 a, b, A.3.2 a, b, Table A-1: MaxMBPS; pulldown brings output times closer"};
constexpr Rule<const char*, int, int, double> mbRateViews = {
    "level.rate-views", Severity::Error,
    "Level %s allows at most %d macroblocks/s for %d views (now %.0f): choose a higher level or a "
    "lower frame rate.",
    "H.10.2.1 a, b: mvcScaleFactor 2 * MaxMBPS, of all views"};
constexpr Rule<int, Decimal> frameRate = {
    "level.frame-rate", Severity::Error,
    "No level allows more than %d frames/s (now %d.%0*d): choose a lower frame rate.",
    "A.3: fR is 1/172"};
constexpr Rule<const char*> interlace = {
    "level.interlace", Severity::Error,
    "Level %s allows progressive pictures only: choose Progressive, or a level from 2.1 to 4.1.",
    "A.3.3 d, H.10.2.2 a, Table A-4: frame_mbs_only_flag"};
constexpr Rule<const char*, Decimal, Decimal> bitrate = {
    "level.bitrate", Severity::Error,
    "Level %s allows the base view at most %d.%0*d Mbit/s (now %d.%0*d): lower its bitrate, or "
    "choose "
    "a higher level.",
    "A.3.1 j, A.3.3 h: MaxBR * cpbBrNalFactor; the base view also by itself"};
constexpr Rule<const char*, Decimal, int, Decimal> bitrateViews = {
    "level.bitrate-views", Severity::Error,
    "Level %s allows at most %d.%0*d Mbit/s for %d views together (now %d.%0*d): lower a bitrate, "
    "or "
    "choose a higher level.",
    "H.10.2.1 r: MaxBR * 1500, not doubled"};
constexpr Rule<Decimal, const char*, Decimal> bitrateVcl = {
    "level.bitrate-vcl", Severity::Note,
    "Of %d.%0*d Mbit/s, level %s allows at most %d.%0*d for picture data; the rest is for headers.",
    "A.3.1 i, A.3.3 g, H.10.2.1 q: MaxBR * cpbBrVclFactor"};
constexpr Rule<const char*, Decimal, Decimal> buffer = {
    "level.buffer", Severity::Error,
    "Level %s allows the base view a bitrate buffer of at most %d.%0*d Mbit (now %d.%0*d): make it "
    "smaller.",
    "A.3.1 j, A.3.3 h: MaxCPB * cpbBrNalFactor; the base view also by itself"};
constexpr Rule<const char*, Decimal, int, Decimal> bufferViews = {
    "level.buffer-views", Severity::Error,
    "Level %s allows bitrate buffers of at most %d.%0*d Mbit for %d views together (now %d.%0*d): "
    "make "
    "one smaller.",
    "H.10.2.1 r: MaxCPB * 1500, not doubled"};
constexpr Rule<Decimal, const char*, Decimal> bufferVcl = {
    "level.buffer-vcl", Severity::Note,
    "Of %d.%0*d Mbit in bitrate buffers, level %s allows at most %d.%0*d for picture data; the "
    "rest is "
    "for headers.",
    "A.3.1 i, A.3.3 g, H.10.2.1 q: MaxCPB * cpbBrVclFactor"};
constexpr Rule<> none = {"level.none", Severity::Error,
                         "These settings fit no level from 1.0 to 5.2.", "A.3"};
constexpr Rule<const char*> automatic = {
    "level.auto", Severity::Note, "With level Auto, the stream has level %s, the lowest that fits.",
    "A.3: the first level that holds every limit"};
constexpr Rule<const char*> lowest = {"level.lowest", Severity::Note,
                                      "Level %s is the lowest that fits.",
                                      "A.3: the first level that holds every limit"};
// A disc has one level, whether a lower one would do or not.
constexpr const char* discClause = "disc: Stereo High at level 4.1";
constexpr Rule<const char*> noneOfDisc = {
    "level.none-disc", Severity::Error,
    "These settings do not fit level %s, which Blu-ray 3D requires.", discClause};
constexpr Rule<const char*> automaticOfDisc = {
    "level.auto-disc", Severity::Note,
    "With level Auto, the stream has level %s, which Blu-ray 3D requires.", discClause};
constexpr Rule<const char*> fitsDisc = {"level.fits-disc", Severity::Note,
                                        "These settings fit level %s, which Blu-ray 3D requires.",
                                        discClause};

/// @return Whether the picture has a size that the level knows; else nothing else needs a look.
bool judgeSize(const Stream& stream, const Level& level, Report& report)
{
    if (stream.frameMbs > level.frameMbs) {
        report.say(pictureSize, level.name, static_cast<int>(level.frameMbs),
                   static_cast<double>(stream.frameMbs));
        return false;
    }
    const int side = maxSideMbs(level);
    if (stream.widthMbs > side || stream.heightMbs > side) {
        report.say(pictureSide, level.name, side, static_cast<double>(stream.widthMbs),
                   static_cast<double>(stream.heightMbs));
        return false;
    }
    return true;
}

void judgeMbRate(const Stream& stream, const Level& level, Report& report)
{
    const double rate = macroblockRate(stream);
    const std::int64_t limit = macroblockRateLimit(stream, level);
    // A rate such as 24000/1001 is rounded: what is exactly at the limit has to pass.
    if (rate <= static_cast<double>(limit) * (1 + 1e-9)) {
        return;
    }
    if (stream.multiview) {
        report.say(mbRateViews, level.name, static_cast<int>(limit), stream.views, rate);
    } else {
        report.say(mbRate, level.name, static_cast<int>(limit), rate);
    }
}

/// Holds one sum, of rates or of buffers, against the base view's limit and that of all views.
struct Sum {
    std::int64_t base;
    std::int64_t all;
    std::int64_t levelUnits;
    const Rule<const char*, Decimal, Decimal>& baseRule;
    const Rule<const char*, Decimal, int, Decimal>& viewsRule;
    const Rule<Decimal, const char*, Decimal>& vclRule;
};

void judgeSum(const Stream& stream, const Level& level, const Sum& sum, Report& report)
{
    const Profile& limits = *stream.streamProfile();
    const Profile& base = stream.profile ? *stream.profile : limits;
    const std::int64_t nal = sum.levelUnits * limits.nalFactor;
    const std::int64_t vcl = sum.levelUnits * limits.vclFactor;
    const std::int64_t baseLimit = sum.levelUnits * base.nalFactor;
    if (sum.base > baseLimit) {
        report.say(sum.baseRule, level.name, millions(baseLimit), millions(sum.base));
    } else if (sum.all > nal) {
        report.say(sum.viewsRule, level.name, millions(nal), stream.views, millions(sum.all));
    } else if (sum.all > vcl) {
        report.say(sum.vclRule, millions(sum.all), level.name, millions(vcl));
    }
}

void judgeSums(const Stream& stream, const Level& level, Report& report)
{
    const std::int64_t baseBuffer = keepsBuffer(stream.base) ? bufferBits(stream.base) : 0;
    judgeSum(stream, level,
             {limitRate(stream.base), stream.totalRate(), level.bitrate, bitrate, bitrateViews,
              bitrateVcl},
             report);
    judgeSum(stream, level,
             {baseBuffer, stream.totalBuffer(), level.buffer, buffer, bufferViews, bufferVcl},
             report);
}

void judgeLimits(const Stream& stream, const Level& level, Report& report)
{
    const bool fits = judgeSize(stream, level, report);
    judgeMbRate(stream, level, report);
    judgeSums(stream, level, report);
    if (stream.interlaced && level.framesOnly) {
        report.say(interlace, level.name);
    }
    if (!fits) {
        return; // the rest would say the same in other numbers
    }
    judgeLevelPictures(stream, level, report);
}

int countErrors(const Stream& stream, const Level& level)
{
    Report silent;
    judgeLimits(stream, level, silent);
    return silent.errors();
}

struct Search {
    const Level* lowest;  ///< null when no level fits
    const Level* nearest; ///< the level with the fewest errors, the highest of several
};

Search searchLevels(const Stream& stream, bool isAuto)
{
    Search found = {nullptr, nullptr};
    int fewest = std::numeric_limits<int>::max();
    for (const Level& level : levels()) {
        if (level.code == 0 && !isAuto) {
            continue; // not to be chosen
        }
        const int errors = countErrors(stream, level);
        if (errors == 0) {
            return {&level, &level};
        }
        if (errors <= fewest) {
            fewest = errors;
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
        judgeLimits(stream, *level, report);
    }
    if (!tell) {
        return level;
    }
    if (found.lowest) {
        report.say(isAuto ? automatic : lowest, found.lowest->name);
    } else {
        report.say(none);
        if (!level) {
            judgeLimits(stream, *found.nearest, report);
        }
    }
    return level;
}

/// The same for a disc, which has level 4.1 also when the stream needs less.
const Level* judgeDiscLevel(const Stream& stream, const Level* chosen, bool isAuto, bool tell,
                            Report& report)
{
    const Level* const wanted = findLevel(discLevelCode);
    const Level* const level = isAuto ? wanted : chosen;
    if (level) {
        judgeLimits(stream, *level, report);
    }
    if (!tell) {
        return level;
    }
    if (countErrors(stream, *wanted) == 0) {
        report.say(isAuto ? automaticOfDisc : fitsDisc, wanted->name);
    } else if (level != wanted) {
        report.say(noneOfDisc, wanted->name); // else its own errors say so
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
    &reserved,  &pictureSize,  &pictureSide, &mbRate,          &mbRateViews, &frameRate, &interlace,
    &bitrate,   &bitrateViews, &bitrateVcl,  &buffer,          &bufferViews, &bufferVcl, &none,
    &automatic, &lowest,       &noneOfDisc,  &automaticOfDisc, &fitsDisc,
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
    if (tooFast) {
        report.say(frameRate, maxFrameRate, frameRateText(stream.frameRate));
    }
    if (!stream.sized || !stream.streamProfile()) {
        return chosen; // refused for that already
    }
    // What is too fast for all levels is so whatever the other limits say.
    const auto judge = stream.disc ? judgeDiscLevel : judgeAnyLevel;
    return judge(stream, chosen, isAuto, !tooFast, report);
}

RuleGroup levelRules()
{
    return {"Level", rules};
}

} // namespace kv::encoder
