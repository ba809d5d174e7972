// How much of a level's limits, and of a disc's, the settings use.

#include "limit_names.h"
#include "rules.h"

namespace kv::encoder
{

namespace
{

/// Tells the limits of one level.
struct Teller {
    const TakeLimit& take;
    const char* level;

    void operator()(const char* name, const char* unit, const char* rule, int view, double used,
                    double limit) const
    {
        take({0, view, name, unit, rule, level, used, limit});
    }
    void operator()(const char* name, const char* unit, const char* rule, int view,
                    std::int64_t used, std::int64_t limit) const
    {
        (*this)(name, unit, rule, view, static_cast<double>(used), static_cast<double>(limit));
    }
};

constexpr char macroblocks[] = "macroblocks";
constexpr char frames[] = "frames";
constexpr char bits[] = "bit";
constexpr char bitRate[] = "bit/s";

/// What would say so if the rate was beyond the limit.
const char* macroblockRateRule(const Stream& stream, double limit)
{
    const double times = stream.frameRate > 0 ? stream.outputRate / stream.frameRate : 1;
    if (times > 1 && macroblockRate(stream) / times <= limit) {
        return "level.rate-pulldown";
    }
    return stream.multiview ? "level.rate-views" : "level.rate";
}

void tellPictures(const Stream& stream, const Level& level, const Teller& tell)
{
    const bool several = stream.multiview != nullptr;
    const std::int64_t side = maxSideMbs(level);
    tell(limit::pictureSize, macroblocks, "level.picture", KV_MVC_ALL_VIEWS, stream.frameMbs,
         level.frameMbs);
    tell(limit::pictureWidth, macroblocks, "level.side", KV_MVC_ALL_VIEWS, stream.widthMbs, side);
    tell(limit::pictureHeight, macroblocks, "level.side", KV_MVC_ALL_VIEWS, stream.heightMbs, side);
    const auto rateLimit = static_cast<double>(macroblockRateLimit(stream, level));
    tell(limit::macroblockRate, "macroblocks/s", macroblockRateRule(stream, rateLimit),
         KV_MVC_ALL_VIEWS, macroblockRate(stream), rateLimit);
    const std::int64_t most = dpbFrames(stream, level);
    const std::int64_t kept = most - referenceRoom(stream, level);
    tell(limit::decodedPictures, frames,
         !several                                       ? "level.dpb"
         : kept > 0 && stream.totalReferences() <= most ? "level.dpb-views-b"
                                                        : "level.dpb-views",
         KV_MVC_ALL_VIEWS, stream.totalReferences() + kept, most);
}

/// A rate or a buffer, which two limits hold: of all data (NAL), and of the pictures' alone (VCL).
struct Names {
    const char* name;
    const char* vclName;
    const char* unit;
    const char* baseRule;
    const char* viewsRule;
    const char* vclRule;
};

void tellSum(const Stream& stream, const Names& names, const Sum& used, const SumLimits& limits,
             const Teller& tell)
{
    // The base view has to conform by itself, too.
    if (used.base > 0) {
        const int view = stream.multiview ? 0 : KV_MVC_ALL_VIEWS;
        tell(names.name, names.unit, names.baseRule, view, used.base, limits.nal.base);
        tell(names.vclName, names.unit, names.vclRule, view, used.base, limits.vcl.base);
    }
    if (stream.multiview && used.all > 0) {
        tell(names.name, names.unit, names.viewsRule, KV_MVC_ALL_VIEWS, used.all, limits.nal.all);
        tell(names.vclName, names.unit, names.vclRule, KV_MVC_ALL_VIEWS, used.all, limits.vcl.all);
    }
}

void tellSums(const Stream& stream, const Level& level, const Teller& tell)
{
    tellSum(stream,
            {limit::bitrate, limit::bitrateOfPictures, bitRate, "level.bitrate",
             "level.bitrate-views", "level.bitrate-vcl"},
            ratesOf(stream), limitsOf(stream, level.bitrate), tell);
    tellSum(stream,
            {limit::buffer, limit::bufferOfPictures, bits, "level.buffer", "level.buffer-views",
             "level.buffer-vcl"},
            buffersOf(stream), limitsOf(stream, level.buffer), tell);
}

} // namespace

void eachLimit(const Stream& stream, const Level* level, const TakeLimit& take)
{
    if (level && stream.sized && stream.streamProfile()) {
        const Teller tell{take, level->name};
        tellPictures(stream, *level, tell);
        tellSums(stream, *level, tell);
    }
    eachDiscLimit(stream, take);
}

void tellLimits(const Stream& stream, const Level* level, const Report& report)
{
    if (report.wantsLimits()) {
        eachLimit(stream, level, [&](const KvMvcLimitUse& use) { report.tellLimit(use); });
    }
}

} // namespace kv::encoder
