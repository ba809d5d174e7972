// The limits of a level, the choice of the automatic level, and the lowest level that fits.

#include <algorithm>
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
constexpr Rule<const char*, int, int> dpb = {
    "level.dpb", Severity::Error,
    "Level %s holds %d frames of this size, not %d: use fewer reference frames.",
    "A.3.1 h, A.3.2 f: min(MaxDpbMbs / frame size, 16)"};
constexpr Rule<const char*, int, int, int> dpbViews = {
    "level.dpb-views", Severity::Error,
    "Level %s holds %d frames of this size for %d views, not %d: use fewer reference frames.",
    "H.10.2.1 f, C.4: min(2 * MaxDpbMbs / frame size, 16 * max(1, ceil(log2 views)))"};
constexpr Rule<const char*, int, int> dpbHalf = {
    "level.dpb-half", Severity::Error,
    "Level %s allows a view half its buffer, %d frames, not %d: use fewer reference frames.",
    "H.10.2.1 x: max_num_ref_frames of a view; the base view then also fits by itself"};
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
constexpr Rule<const char*, int, int> slicesMost = {
    "level.slices-most", Severity::Error,
    "Level %s has at most %d slices per picture here, not %d.",
    "A.3.3 a, b: SliceRate; of each view, H.10.2.1 k to n"};
constexpr Rule<const char*, int, int> slicesLeast = {
    "level.slices-least", Severity::Error,
    "Level %s needs at least %d slices per picture here, not %d.",
    "H.10.2.1 w, A.3.3 k: no slice of more than MaxFS / 4 macroblocks, whole rows"};
constexpr Rule<const char*, int, int> vectors = {
    "level.vectors", Severity::Note,
    "Level %s ends vertical vectors at %d samples: the search range %d holds horizontally.",
    "A.3.1 k, A.3.2 g, H.10.2.1 g, Table A-1: MaxVmvR"};
constexpr Rule<> none = {"level.none", Severity::Error,
                         "No level from 1 to 5.2 fits these settings.", "A.3"};
constexpr Rule<const char*> automatic = {"level.auto", Severity::Note,
                                         "Level Auto comes to level %s, the lowest that fits.",
                                         "A.3: the first level that holds every limit"};
constexpr Rule<const char*> lowest = {"level.lowest", Severity::Note,
                                      "Level %s is the lowest that fits.",
                                      "A.3: the first level that holds every limit"};

// Largest coded pictures, one row a frame size limit.
constexpr const char* pictureBytesClause =
    "A.3.1 c, d, A.3.3 i, j, H.10.2.1 t, v: MinCR; of each view component";
struct PictureBytes {
    std::int32_t KvMvcViewSettings::*field;
    bool first; ///< the first picture of a stream is one of these
    Rule<int, int, const char*, double> rule;
};
constexpr PictureBytes pictureBytes[] = {
    {&KvMvcViewSettings::frame_size_i,
     true,
     {"level.size-i", Severity::Error,
      "View %d: an I-frame of %d bytes exceeds level %s; it allows %.0f bytes.",
      pictureBytesClause}},
    {&KvMvcViewSettings::frame_size_p,
     false,
     {"level.size-p", Severity::Error,
      "View %d: a P-frame of %d bytes exceeds level %s; it allows %.0f bytes.",
      pictureBytesClause}},
    {&KvMvcViewSettings::frame_size_b,
     false,
     {"level.size-b", Severity::Error,
      "View %d: a B-frame of %d bytes exceeds level %s; it allows %.0f bytes.",
      pictureBytesClause}},
    {&KvMvcViewSettings::frame_size_bref,
     false,
     {"level.size-br", Severity::Error,
      "View %d: a Br-frame of %d bytes exceeds level %s; it allows %.0f bytes.",
      pictureBytesClause}},
};

int asInt(std::int64_t value)
{
    return static_cast<int>(
        std::min<std::int64_t>(value, std::numeric_limits<std::int32_t>::max()));
}

/** @return Whether the picture has a size that the level knows; else nothing else needs a look. */
bool judgeSize(const Stream& stream, const Level& level, Report& report)
{
    if (stream.frameMbs > level.frameMbs) {
        report.say(pictureSize, level.name, asInt(level.frameMbs),
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
        report.say(mbRateViews, level.name, asInt(limit), stream.views, rate);
    } else {
        report.say(mbRate, level.name, asInt(limit), rate);
    }
}

void judgeReferences(const Stream& stream, const Level& level, Report& report)
{
    const int frames = asInt(dpbFrames(stream, level));
    const int total = stream.totalReferences();
    if (!stream.multiview) {
        if (total > frames) {
            report.say(dpb, level.name, frames, total);
        }
        return;
    }
    if (total > frames) {
        report.say(dpbViews, level.name, frames, stream.views, total);
        return;
    }
    for (int v = 0; v < stream.subRecords; ++v) {
        const int references = stream.record.views[v].num_ref_frames;
        if (references > frames / 2) {
            report.say(dpbHalf, level.name, frames / 2, references);
            return;
        }
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

/** Pictures that a frame is coded as: field pictures have half the size and half the time. */
int picturesAFrame(const Stream& stream)
{
    return stream.base.interlace_mode == KV_MVC_INTERLACED ? 2 : 1;
}

/** Macroblocks that the time before the first picture is worth, at least one picture. */
double firstPictureMbs(const Stream& stream, const Level& level)
{
    return std::max(static_cast<double>(stream.pictureMbs),
                    static_cast<double>(level.mbRate) / (maxFrameRate * picturesAFrame(stream)));
}

/** Macroblocks that the time from one picture to the next is worth; no limit without a rate. */
double laterPictureMbs(const Stream& stream, const Level& level)
{
    if (stream.frameRate == 0) {
        return std::numeric_limits<double>::infinity();
    }
    return static_cast<double>(level.mbRate) / (stream.frameRate * picturesAFrame(stream));
}

/** @return No less than 1; a huge number where nothing limits the slices. */
int mostSlices(const Stream& stream, const Level& level)
{
    constexpr double unlimited = std::numeric_limits<std::int32_t>::max();
    if (level.sliceRate == 0 || !stream.streamProfile()->limitsSliceCount) {
        return static_cast<int>(unlimited);
    }
    double most = firstPictureMbs(stream, level) / level.sliceRate;
    most = std::min(most, laterPictureMbs(stream, level) / level.sliceRate);
    return static_cast<int>(std::clamp(most, 1.0, unlimited));
}

int leastSlices(const Stream& stream, const Level& level)
{
    if (!stream.streamProfile()->limitsSliceSize || stream.pictureMbs <= freeSliceMbs) {
        return 1;
    }
    const bool pairs = stream.base.interlace_mode == KV_MVC_MBAFF;
    const std::int64_t rowMbs = stream.widthMbs * (pairs ? 2 : 1);
    const std::int64_t rowsASlice = std::max<std::int64_t>(level.frameMbs / 4 / rowMbs, 1);
    return static_cast<int>((sliceRows(stream.base) + rowsASlice - 1) / rowsASlice);
}

void judgeSlices(const Stream& stream, const Level& level, Report& report)
{
    const int most = mostSlices(stream, level);
    const int least = leastSlices(stream, level);
    for (int v = 0; v < stream.subRecords; ++v) {
        const int slices = stream.record.views[v].num_slices;
        if (slices > most) {
            report.say(slicesMost, level.name, most, slices);
            return;
        }
        if (slices < least) {
            report.say(slicesLeast, level.name, least, slices);
            return;
        }
    }
}

void judgePictureBytes(const Stream& stream, const Level& level, Report& report)
{
    if (!stream.streamProfile()->limitsPictureBytes) {
        return;
    }
    const double first = 384 * firstPictureMbs(stream, level) / level.minCompression;
    const double later = 384 * laterPictureMbs(stream, level) / level.minCompression;
    for (int v = 0; v < stream.subRecords; ++v) {
        const KvMvcViewSettings& view = stream.record.views[v];
        if (view.bitrate_mode == KV_MVC_CONSTANT_QUANTIZER) {
            continue; // no picture is held to a size
        }
        for (const PictureBytes& row : pictureBytes) {
            const double limit = row.first ? std::min(first, later) : later;
            if (view.*row.field > limit) {
                report.say(row.rule, v, view.*row.field, level.name, limit);
            }
        }
    }
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
    judgeReferences(stream, level, report);
    judgeSlices(stream, level, report);
    judgePictureBytes(stream, level, report);
    if (stream.predicts && stream.base.motion_search > level.verticalVector) {
        report.say(vectors, level.name, level.verticalVector, stream.base.motion_search);
    }
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

constexpr const RuleInfo* singles[] = {
    &reserved,   &pictureSize, &pictureSide, &mbRate,    &mbRateViews, &frameRate,
    &interlace,  &dpb,         &dpbViews,    &dpbHalf,   &bitrate,     &bitrateViews,
    &bitrateVcl, &buffer,      &bufferViews, &bufferVcl, &slicesMost,  &slicesLeast,
    &vectors,    &none,        &automatic,   &lowest,
};
constexpr auto rules = joinRules(singles, rulesOf(pictureBytes));

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
