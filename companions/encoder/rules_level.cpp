// The limits of a level, the choice of the automatic level, and the lowest level that fits.

#include <limits>

#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr Rule<double> reserved = {
    "level.code", Severity::Error,
    "Level %.1f is reserved, so nothing limits it: choose another level, or Auto.",
    "A.1: all values of level_idc outside Table A-1"};
constexpr Rule<const char*, int, double> pictureSize = {
    "level.picture", Severity::Error,
    "Level %s has at most %d macroblocks in a picture, not %.0f: choose a higher level.",
    "A.3.1 e, A.3.2 c, H.10.2.1 c, Table A-1: MaxFS; of each view"};
constexpr Rule<const char*, int, double, double> pictureSide = {
    "level.side", Severity::Error,
    "Level %s has at most %d macroblocks in a row or column, not %.0f x %.0f.",
    "A.3.1 f, g, A.3.2 d, e, H.10.2.1 d, e: the square root of 8 * MaxFS"};
constexpr Rule<const char*, int, double> mbRate = {
    "level.rate", Severity::Error,
    "Level %s has at most %d macroblocks/s, not %.0f: choose a higher level.",
    "A.3.1 a, b, A.3.2 a, b, Table A-1: MaxMBPS; pulldown brings output times closer"};
constexpr Rule<const char*, int, int, double> mbRateViews = {
    "level.rate-views", Severity::Error,
    "Level %s has at most %d macroblocks/s for %d views, not %.0f: choose a higher level.",
    "H.10.2.1 a, b: mvcScaleFactor 2 * MaxMBPS, of all views"};
constexpr Rule<double, int> frameRate = {"level.frame-rate", Severity::Error,
                                         "%g frames/s exceed the %d frames/s of all levels.",
                                         "A.3: fR is 1/172"};
constexpr Rule<const char*> interlace = {
    "level.interlace", Severity::Error,
    "Level %s has progressive pictures only: choose Progressive, or a level from 2.1 to 4.1.",
    "A.3.3 d, H.10.2.2 a, Table A-4: frame_mbs_only_flag"};
constexpr Rule<const char*, double, double> bitrate = {
    "level.bitrate", Severity::Error,
    "Level %s has at most %.0f bit/s, not %.0f: lower the rate, or choose a higher level.",
    "A.3.1 j, A.3.3 h: MaxBR * cpbBrNalFactor; the base view also by itself"};
constexpr Rule<const char*, double, int, double> bitrateViews = {
    "level.bitrate-views", Severity::Error,
    "Level %s has at most %.0f bit/s for %d views together, not %.0f.",
    "H.10.2.1 r: MaxBR * 1500, not doubled"};
constexpr Rule<double, const char*, double> bitrateVcl = {
    "level.bitrate-vcl", Severity::Note,
    "%.0f bit/s fit level %s, but slices alone may use only %.0f of them.",
    "A.3.1 i, A.3.3 g, H.10.2.1 q: MaxBR * cpbBrVclFactor"};
constexpr Rule<const char*, double, double> buffer = {
    "level.buffer", Severity::Error,
    "Level %s has a buffer of at most %.0f bits, not %.0f: make the buffer smaller.",
    "A.3.1 j, A.3.3 h: MaxCPB * cpbBrNalFactor; the base view also by itself"};
constexpr Rule<const char*, double, int, double> bufferViews = {
    "level.buffer-views", Severity::Error,
    "Level %s has buffers of at most %.0f bits for %d views together, not %.0f.",
    "H.10.2.1 r: MaxCPB * 1500, not doubled"};
constexpr Rule<double, const char*, double> bufferVcl = {
    "level.buffer-vcl", Severity::Note,
    "Buffers of %.0f bits fit level %s, but slices alone may use only %.0f of them.",
    "A.3.1 i, A.3.3 g, H.10.2.1 q: MaxCPB * cpbBrVclFactor"};
constexpr Rule<> none = {"level.none", Severity::Error,
                         "No level from 1 to 5.2 fits these settings.", "A.3"};
constexpr Rule<const char*> automatic = {"level.auto", Severity::Note,
                                         "Level Auto comes to level %s, the lowest that fits.",
                                         "A.3: the first level that holds every limit"};
constexpr Rule<const char*> lowest = {"level.lowest", Severity::Note,
                                      "Level %s is the lowest that fits.",
                                      "A.3: the first level that holds every limit"};

/** @return Whether the picture has a size that the level knows; else nothing else needs a look. */
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
    const double rate = static_cast<double>(stream.views * stream.frameMbs) * stream.outputRate;
    const std::int64_t limit = (stream.multiview ? 2 : 1) * level.mbRate;
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

/** Holds one sum, of rates or of buffers, against the base view's limit and that of all views. */
struct Sum {
    std::int64_t base;
    std::int64_t all;
    std::int64_t levelUnits;
    const Rule<const char*, double, double>& baseRule;
    const Rule<const char*, double, int, double>& viewsRule;
    const Rule<double, const char*, double>& vclRule;
};

void judgeSum(const Stream& stream, const Level& level, const Sum& sum, Report& report)
{
    const Profile& limits = *stream.streamProfile();
    const Profile& base = stream.profile ? *stream.profile : limits;
    const auto all = static_cast<double>(sum.all);
    const auto nal = static_cast<double>(sum.levelUnits * limits.nalFactor);
    const auto vcl = static_cast<double>(sum.levelUnits * limits.vclFactor);
    const std::int64_t baseLimit = sum.levelUnits * base.nalFactor;
    if (sum.base > baseLimit) {
        report.say(sum.baseRule, level.name, static_cast<double>(baseLimit),
                   static_cast<double>(sum.base));
    } else if (all > nal) {
        report.say(sum.viewsRule, level.name, nal, stream.views, all);
    } else if (all > vcl) {
        report.say(sum.vclRule, all, level.name, vcl);
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

Search searchLevels(const Stream& stream)
{
    // A Blu-ray 3D stream is labelled 4.1 also when it needs less.
    const bool disc = stream.base.video_type == KV_MVC_BLURAY_3D;
    Search found = {nullptr, nullptr};
    int fewest = std::numeric_limits<int>::max();
    for (const Level& level : levels()) {
        if (disc && level.code < 41) {
            continue;
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

constexpr const RuleInfo* rules[] = {
    &reserved,  &pictureSize, &pictureSide,  &mbRate,     &mbRateViews, &frameRate,
    &interlace, &bitrate,     &bitrateViews, &bitrateVcl, &buffer,      &bufferViews,
    &bufferVcl, &none,        &automatic,    &lowest,
};

} // namespace

const Level* judgeLevel(const Stream& stream, Report& report)
{
    const int code = stream.base.level;
    const bool isAuto = code == KV_MVC_LEVEL_AUTO;
    const Level* level = isAuto ? nullptr : findLevel(code);
    if (!isAuto && !level) {
        report.say(reserved, code / 10.0);
    }
    const bool tooFast = stream.frameRate > maxFrameRate;
    if (tooFast) {
        report.say(frameRate, stream.frameRate, maxFrameRate);
    }
    if (!stream.sized || !stream.streamProfile()) {
        return level; // refused for that already
    }
    const Search found = searchLevels(stream);
    if (isAuto) {
        level = found.lowest;
    }
    if (level) {
        judgeLimits(stream, *level, report);
    }
    if (tooFast) {
        return level; // whatever the other limits say
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

RuleGroup levelRules()
{
    return {"Level", rules};
}

} // namespace kv::encoder
