// The limits of a level, and which other level would do.

#include "level_rule.h"
#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr Subject ofLevel = {.setting = "level", .value = 3, .limit = 2, .level = 1};
constexpr const char* sizeClause =
    "A.3.1 e, A.3.2 c, H.10.2.1 c, Table A-1: MaxFS; of each view by itself";
constexpr LevelRule<const char*, int, double> pictureSize = {
    {"level.picture", Severity::Error,
     "Level %s allows at most %d macroblocks in a picture (now %.0f): choose level %s.", sizeClause,
     ofLevel},
    {"level.picture-none", Severity::Error,
     "Level %s allows at most %d macroblocks in a picture (now %.0f): choose a smaller picture.",
     sizeClause, inOtherWords("level.picture", ofLevel)}};
constexpr const char* sideClause =
    "A.3.1 f, g, A.3.2 d, e, H.10.2.1 d, e: the square root of 8 * MaxFS; of each view by itself";
// Either side may be the one that is too long.
constexpr Subject sideSubject = {.setting = "level", .level = 1};
constexpr LevelRule<const char*, int, double, double> pictureSide = {
    {"level.side", Severity::Error,
     "Level %s allows at most %d macroblocks in a row or column (now %.0f x %.0f): choose level "
     "%s.",
     sideClause, sideSubject},
    {"level.side-none", Severity::Error,
     "Level %s allows at most %d macroblocks in a row or column (now %.0f x %.0f): choose fewer.",
     sideClause, inOtherWords("level.side", sideSubject)}};
constexpr const char* mbRateClause = "A.3.1 a, b, A.3.2 a, b, Table A-1: MaxMBPS";
constexpr LevelRule<const char*, int, double> mbRate = {
    {"level.rate", Severity::Error,
     "Level %s allows at most %d macroblocks/s (now %.0f): lower the frame rate, or choose level "
     "%s.",
     mbRateClause, ofLevel},
    {"level.rate-none", Severity::Error,
     "Level %s allows at most %d macroblocks/s (now %.0f): lower the frame rate.", mbRateClause,
     inOtherWords("level.rate", ofLevel)}};
constexpr const char* viewsRateClause =
    "H.10.2.1 a, b: mvcScaleFactor 2 * MaxMBPS; the macroblocks of all views together";
constexpr Subject viewsRateSubject = {.setting = "level", .value = 4, .limit = 2, .level = 1};
constexpr LevelRule<const char*, int, int, double> mbRateViews = {
    {"level.rate-views", Severity::Error,
     "Level %s allows at most %d macroblocks/s for %d views (now %.0f): lower the frame rate, or "
     "choose level %s.",
     viewsRateClause, viewsRateSubject},
    {"level.rate-views-none", Severity::Error,
     "Level %s allows at most %d macroblocks/s for %d views (now %.0f): lower the frame rate.",
     viewsRateClause, inOtherWords("level.rate-views", viewsRateSubject)}};
constexpr const char* pulldownClause =
    "A.3.1 b, A.3.2 b, H.10.2.1 b: the shortest distance of output times; of all views together";
constexpr Subject pulldownSubject = {.setting = "pulldown", .value = 2, .limit = 4, .level = 3};
constexpr LevelRule<Decimal, double, const char*, int> mbRatePulldown = {
    {"level.rate-pulldown", Severity::Error,
     "Pulldown makes %d.%0*d times as many macroblocks/s, %.0f; level %s allows %d: set it to Off, "
     "or choose level %s.",
     pulldownClause, pulldownSubject},
    {"level.rate-pulldown-none", Severity::Error,
     "Pulldown makes %d.%0*d times as many macroblocks/s, %.0f; level %s allows %d: set it to Off.",
     pulldownClause, inOtherWords("level.rate-pulldown", pulldownSubject)}};
constexpr const char* interlaceClause =
    "A.3.3 d, H.10.2.2 a, Table A-4: frame_mbs_only_flag; levels 2.1 to 4.1 have interlace";
constexpr Subject interlaceSubject = {.setting = "interlace_mode", .level = 1};
constexpr LevelRule<const char*> interlace = {
    {"level.interlace", Severity::Error,
     "Level %s allows progressive pictures only: choose Progressive, or level %s.", interlaceClause,
     interlaceSubject},
    {"level.interlace-none", Severity::Error,
     "Level %s allows progressive pictures only: choose Progressive.", interlaceClause,
     inOtherWords("level.interlace", interlaceSubject)}};
constexpr const char* baseClause =
    "A.3.1 j, A.3.3 h: MaxBR * cpbBrNalFactor; the base view by itself";
constexpr Subject baseSubject = {
    .setting = "bitrate", .value = 3, .limit = 2, .level = 1, .view = 0};
constexpr LevelRule<const char*, Decimal, Decimal> bitrate = {
    {"level.bitrate", Severity::Error,
     "Level %s allows the base view at most %d.%0*d Mbit/s (now %d.%0*d): lower its bitrate, or "
     "choose level %s.",
     baseClause, baseSubject},
    {"level.bitrate-none", Severity::Error,
     "Level %s allows the base view at most %d.%0*d Mbit/s (now %d.%0*d): lower its bitrate.",
     baseClause, inOtherWords("level.bitrate", baseSubject)}};
constexpr const char* viewsClause = "H.10.2.1 r: MaxBR * 1500, not doubled; all views together";
constexpr Subject viewsSubject = {.setting = "bitrate", .value = 4, .limit = 2, .level = 1};
constexpr LevelRule<const char*, Decimal, int, Decimal> bitrateViews = {
    {"level.bitrate-views", Severity::Error,
     "Level %s allows at most %d.%0*d Mbit/s for %d views together (now %d.%0*d): lower a bitrate, "
     "or choose level %s.",
     viewsClause, viewsSubject},
    {"level.bitrate-views-none", Severity::Error,
     "Level %s allows at most %d.%0*d Mbit/s for %d views together (now %d.%0*d): lower a "
     "bitrate.",
     viewsClause, inOtherWords("level.bitrate-views", viewsSubject)}};
constexpr const char* vclClause =
    "A.3.1 i, A.3.3 g, H.10.2.1 q: MaxBR * cpbBrVclFactor; the base view by itself, and all views "
    "together";
constexpr Subject vclSubject = {.setting = "bitrate", .value = 1, .limit = 3, .level = 2};
constexpr LevelRule<Decimal, const char*, Decimal> bitrateVcl = {
    {"level.bitrate-vcl", Severity::Risk,
     "Of %d.%0*d Mbit/s, level %s allows at most %d.%0*d for picture data: lower a bitrate, or "
     "choose level %s.",
     vclClause, vclSubject},
    {"level.bitrate-vcl-none", Severity::Risk,
     "Of %d.%0*d Mbit/s, level %s allows at most %d.%0*d for picture data: lower a bitrate.",
     vclClause, inOtherWords("level.bitrate-vcl", vclSubject)}};
constexpr const char* bufferClause =
    "A.3.1 j, A.3.3 h: MaxCPB * cpbBrNalFactor; the base view by itself";
constexpr Subject bufferSubject = {
    .setting = "bitrate_buffer", .value = 3, .limit = 2, .level = 1, .view = 0};
constexpr LevelRule<const char*, Decimal, Decimal> buffer = {
    {"level.buffer", Severity::Error,
     "Level %s allows the base view a bitrate buffer of at most %d.%0*d Mbit (now %d.%0*d): make "
     "it smaller, or level %s.",
     bufferClause, bufferSubject},
    {"level.buffer-none", Severity::Error,
     "Level %s allows the base view a bitrate buffer of at most %d.%0*d Mbit (now %d.%0*d): make "
     "it smaller.",
     bufferClause, inOtherWords("level.buffer", bufferSubject)}};
constexpr const char* viewsBufferClause =
    "H.10.2.1 r: MaxCPB * 1500, not doubled; all views together";
constexpr Subject viewsBufferSubject = {
    .setting = "bitrate_buffer", .value = 4, .limit = 2, .level = 1};
constexpr LevelRule<const char*, Decimal, int, Decimal> bufferViews = {
    {"level.buffer-views", Severity::Error,
     "Level %s allows bitrate buffers of at most %d.%0*d Mbit for %d views (now %d.%0*d): make one "
     "smaller, or level %s.",
     viewsBufferClause, viewsBufferSubject},
    {"level.buffer-views-none", Severity::Error,
     "Level %s allows bitrate buffers of at most %d.%0*d Mbit for %d views (now %d.%0*d): make one "
     "smaller.",
     viewsBufferClause, inOtherWords("level.buffer-views", viewsBufferSubject)}};
constexpr const char* vclBufferClause =
    "A.3.1 i, A.3.3 g, H.10.2.1 q: MaxCPB * cpbBrVclFactor; the base view by itself, and all views "
    "together";
constexpr Subject vclBufferSubject = {
    .setting = "bitrate_buffer", .value = 1, .limit = 3, .level = 2};
constexpr LevelRule<Decimal, const char*, Decimal> bufferVcl = {
    {"level.buffer-vcl", Severity::Risk,
     "Of %d.%0*d Mbit in bitrate buffers, level %s allows at most %d.%0*d for picture data: make "
     "one smaller, or level %s.",
     vclBufferClause, vclBufferSubject},
    {"level.buffer-vcl-none", Severity::Risk,
     "Of %d.%0*d Mbit in bitrate buffers, level %s allows at most %d.%0*d for picture data: make "
     "one smaller.",
     vclBufferClause, inOtherWords("level.buffer-vcl", vclBufferSubject)}};

/// A stream at a level, and the level that would do instead; null when none would.
struct Judge {
    const Stream& stream;
    const Level& level;
    const Level* other;
    Report& report;

    template <class... Args>
    void say(const LevelRule<Args...>& rule, std::type_identity_t<Args>... args) const
    {
        sayLevel(report, rule, other, args...);
    }
    /// The level that has room for all of the bits as picture data.
    /// No level may: the other one then only has it with headers, too.
    const Level* otherOfPictureData() const
    {
        return other && !exceedsPictureData(stream, *other) ? other : nullptr;
    }

    bool judgeSize() const;
    void judgeMbRate() const;
    void judgeBitrate() const;
    void judgeBuffer() const;
    void judgeInterlace() const;
};

/// @return Whether the picture has a size that the level knows; else nothing else needs a look.
bool Judge::judgeSize() const
{
    const int side = maxSideMbs(level);
    const bool large = stream.frameMbs > level.frameMbs;
    const bool uneven = stream.widthMbs > side || stream.heightMbs > side;
    if (large) {
        say(pictureSize, level.name, static_cast<int>(level.frameMbs),
            static_cast<double>(stream.frameMbs));
    } else if (uneven) {
        say(pictureSide, level.name, side, static_cast<double>(stream.widthMbs),
            static_cast<double>(stream.heightMbs));
    }
    return !large && !uneven;
}

void Judge::judgeMbRate() const
{
    if (stream.frameRate > maxFrameRate) {
        return; // refused for that already
    }
    const double rate = macroblockRate(stream);
    const std::int64_t limit = macroblockRateLimit(stream, level);
    // A rate such as 24000/1001 is rounded: what is exactly at the limit has to pass.
    const double most = static_cast<double>(limit) * (1 + 1e-9);
    if (rate <= most) {
        return;
    }
    const double times = stream.outputRate / stream.frameRate;
    if (rate / times <= most) {
        say(mbRatePulldown, factor(times), rate, level.name, static_cast<int>(limit));
    } else if (stream.multiview) {
        say(mbRateViews, level.name, static_cast<int>(limit), stream.views, rate);
    } else {
        say(mbRate, level.name, static_cast<int>(limit), rate);
    }
}

bool exceeds(const Sum& sum, const Sum& limit)
{
    return sum.base > limit.base || sum.all > limit.all;
}

void Judge::judgeBitrate() const
{
    if (stream.disc) {
        return; // its own limits are lower
    }
    const Sum rates = ratesOf(stream);
    const auto [nal, vcl] = limitsOf(stream, level.bitrate);
    if (rates.base > nal.base) {
        say(bitrate, level.name, millions(nal.base), millions(rates.base));
    } else if (rates.all > nal.all) {
        say(bitrateViews, level.name, millions(nal.all), stream.views, millions(rates.all));
    } else if (exceeds(rates, vcl)) {
        const bool ofBase = rates.base > vcl.base;
        sayLevel(report, bitrateVcl, otherOfPictureData(),
                 millions(ofBase ? rates.base : rates.all), level.name,
                 millions(ofBase ? vcl.base : vcl.all));
    }
}

void Judge::judgeBuffer() const
{
    const Sum buffers = buffersOf(stream);
    if (stream.disc && buffers.base > discBuffer) {
        return; // refused for that
    }
    const auto [nal, vcl] = limitsOf(stream, level.buffer);
    if (buffers.base > nal.base) {
        say(buffer, level.name, millions(nal.base), millions(buffers.base));
    } else if (buffers.all > nal.all) {
        say(bufferViews, level.name, millions(nal.all), stream.views, millions(buffers.all));
    } else if (exceeds(buffers, vcl)) {
        const bool ofBase = buffers.base > vcl.base;
        sayLevel(report, bufferVcl, otherOfPictureData(),
                 millions(ofBase ? buffers.base : buffers.all), level.name,
                 millions(ofBase ? vcl.base : vcl.all));
    }
}

void Judge::judgeInterlace() const
{
    if (stream.mayInterlace && stream.interlaced && level.framesOnly) {
        say(interlace, level.name);
    }
}

constexpr auto rules =
    bothRules(pictureSize, pictureSide, mbRate, mbRateViews, mbRatePulldown, interlace, bitrate,
              bitrateViews, bitrateVcl, buffer, bufferViews, bufferVcl);

} // namespace

void judgeLimits(const Stream& stream, const Level& level, const Level* other, Report& report)
{
    if (stream.disc && !isDiscFormat(stream)) {
        return; // refused for that, and no format of a disc is beyond its level
    }
    const Judge judge = {stream, level, other, report};
    const bool fits = judge.judgeSize();
    judge.judgeBitrate();
    judge.judgeBuffer();
    judge.judgeInterlace();
    if (fits) { // the rest would say the same in other numbers
        judge.judgeMbRate();
        judgeLevelReferences(stream, level, other, report);
        judgeLevelPictures(stream, level, other, report);
    }
}

bool exceedsPictureData(const Stream& stream, const Level& level)
{
    return exceeds(ratesOf(stream), limitsOf(stream, level.bitrate).vcl) ||
           exceeds(buffersOf(stream), limitsOf(stream, level.buffer).vcl);
}

RuleGroup levelRules()
{
    return {"Limits of a level", rules};
}

} // namespace kv::encoder
