// What binds first: of all limits the one that has the least room left.

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>
#include <string_view>

#include "limit_names.h"
#include "rules.h"

namespace kv::encoder
{

namespace
{

/// A limit as eachLimit() tells it, and what is said when it is the tightest. Picture sizes have
/// none: nobody makes a picture larger because there is room.
template <class... Args>
struct Row {
    const char* name;
    int view;
    Rule<Args...> rule;
};

#define KV_LEAST(what, amount, room) "Least headroom: " what ", " amount " of the " amount room
#define KV_LEAST_OF_LEVEL(what, amount, unit)                                                      \
    KV_LEAST(what, amount, " " unit " that level %s allows; " amount " left.")
#define KV_LEAST_OF_DISC(what, unit)                                                               \
    KV_LEAST(what, "%d.%0*d", " " unit " that Blu-ray 3D allows; %d.%0*d left.")
#define KV_DECIMAL_OF_LEVEL(what, unit) KV_LEAST_OF_LEVEL(what, "%d.%0*d", unit)

constexpr int all = KV_MVC_ALL_VIEWS;
constexpr Severity note = Severity::Note;

constexpr Subject about(const char* setting, int view = all)
{
    return {.setting = setting, .value = 1, .limit = 2, .level = 3, .view = view};
}

constexpr Subject aboutDisc(const char* setting, int view = all)
{
    return {.setting = setting, .value = 1, .limit = 2, .view = view};
}

constexpr Row<double, double, const char*, double> counts[] = {
    {limit::macroblockRate,
     all,
     {"headroom.macroblock-rate", note,
      KV_LEAST_OF_LEVEL("macroblock rate", "%.0f", "macroblocks/s"),
      "A.3.1 a, b, A.3.2 a, b, H.10.2.1 a, b", about("frame_rate")}},
    {limit::decodedPictures,
     all,
     {"headroom.frames", note, KV_LEAST_OF_LEVEL("decoded pictures", "%.0f", "frames"),
      "A.3.1 h, A.3.2 f, H.10.2.1 f, C.4.5.2", about("num_ref_frames")}},
};

constexpr const char* rateClause = "A.3.1 j, A.3.3 h, H.10.2.1 r";
constexpr const char* pictureRateClause = "A.3.1 i, A.3.3 g, H.10.2.1 q";

constexpr Row<Decimal, Decimal, const char*, Decimal> sums[] = {
    {limit::bitrate,
     all,
     {"headroom.bitrate", note, KV_DECIMAL_OF_LEVEL("bitrate", "Mbit/s"), rateClause,
      about("bitrate")}},
    {limit::bitrate,
     0,
     {"headroom.bitrate-base", note, KV_DECIMAL_OF_LEVEL("the base view's bitrate", "Mbit/s"),
      rateClause, about("bitrate", 0)}},
    {limit::bitrateOfPictures,
     all,
     {"headroom.bitrate-pictures", note, KV_DECIMAL_OF_LEVEL("bitrate of pictures", "Mbit/s"),
      pictureRateClause, about("bitrate")}},
    {limit::bitrateOfPictures,
     0,
     {"headroom.bitrate-pictures-base", note,
      KV_DECIMAL_OF_LEVEL("the base view's bitrate of pictures", "Mbit/s"), pictureRateClause,
      about("bitrate", 0)}},
    {limit::buffer,
     all,
     {"headroom.buffer", note, KV_DECIMAL_OF_LEVEL("buffer", "Mbit"), rateClause,
      about("bitrate_buffer")}},
    {limit::buffer,
     0,
     {"headroom.buffer-base", note, KV_DECIMAL_OF_LEVEL("the base view's buffer", "Mbit"),
      rateClause, about("bitrate_buffer", 0)}},
    {limit::bufferOfPictures,
     all,
     {"headroom.buffer-pictures", note, KV_DECIMAL_OF_LEVEL("buffer of pictures", "Mbit"),
      pictureRateClause, about("bitrate_buffer")}},
    {limit::bufferOfPictures,
     0,
     {"headroom.buffer-pictures-base", note,
      KV_DECIMAL_OF_LEVEL("the base view's buffer of pictures", "Mbit"), pictureRateClause,
      about("bitrate_buffer", 0)}},
};

constexpr const char* discRates = "disc: 40 Mbit/s in each view, 60 Mbit/s in both";
constexpr const char* discBuffers = "disc: 30 Mbit";

constexpr Row<Decimal, Decimal, Decimal> discs[] = {
    {limit::bitrateOnDisc,
     all,
     {"headroom.disc-bitrate", note, KV_LEAST_OF_DISC("bitrate of both views", "Mbit/s"), discRates,
      aboutDisc("bitrate")}},
    {limit::bitrateOnDisc,
     0,
     {"headroom.disc-bitrate-base", note, KV_LEAST_OF_DISC("the base view's bitrate", "Mbit/s"),
      discRates, aboutDisc("bitrate", 0)}},
    {limit::bitrateOnDisc,
     1,
     {"headroom.disc-bitrate-other", note, KV_LEAST_OF_DISC("view 1's bitrate", "Mbit/s"),
      discRates, aboutDisc("bitrate", 1)}},
    {limit::bufferOnDisc,
     0,
     {"headroom.disc-buffer", note, KV_LEAST_OF_DISC("the base view's buffer", "Mbit"), discBuffers,
      aboutDisc("bitrate_buffer", 0)}},
    {limit::bufferOnDisc,
     1,
     {"headroom.disc-buffer-other", note, KV_LEAST_OF_DISC("view 1's buffer", "Mbit"), discBuffers,
      aboutDisc("bitrate_buffer", 1)}},
};

/// Null when it has none.
template <class Rows>
const auto* rowOf(const KvMvcLimitUse& use, const Rows& rows)
{
    const auto* const row = std::ranges::find_if(rows, [&](const auto& candidate) {
        return std::string_view(candidate.name) == use.name && candidate.view == use.view;
    });
    return row == std::end(rows) ? nullptr : row;
}

bool hasRow(const KvMvcLimitUse& use)
{
    return rowOf(use, counts) || rowOf(use, sums) || rowOf(use, discs);
}

/// The rate of all views is not, when that of one view depends on the pictures.
bool isKnown(const KvMvcLimitUse& use, const Stream& stream)
{
    const std::string_view name = use.name;
    const bool isRate = name == limit::bitrate || name == limit::bitrateOfPictures;
    return !isRate || use.view != all || stream.knowsRates();
}

Decimal inMillions(double bits)
{
    return millions(static_cast<std::int64_t>(bits));
}

void tell(const KvMvcLimitUse& use, Report& report)
{
    const double left = use.limit - use.used;
    if (const auto* row = rowOf(use, counts)) {
        report.say(row->rule, std::ceil(use.used), use.limit, use.level, std::floor(left));
    } else if (const auto* sum = rowOf(use, sums)) {
        report.say(sum->rule, inMillions(use.used), inMillions(use.limit), use.level,
                   inMillions(left));
    } else if (const auto* disc = rowOf(use, discs)) {
        report.say(disc->rule, inMillions(use.used), inMillions(use.limit), inMillions(left));
    }
}

constexpr auto rules = joinRules(rulesOf(counts), rulesOf(sums), rulesOf(discs));

} // namespace

void tellHeadroom(const Stream& stream, const Level* level, Report& report)
{
    std::optional<KvMvcLimitUse> tightest;
    eachLimit(stream, level, [&](const KvMvcLimitUse& use) {
        // What exceeds a limit and is accepted has its risk.
        if (hasRow(use) && isKnown(use, stream) && use.used <= use.limit &&
            (!tightest || use.used * tightest->limit > tightest->used * use.limit)) {
            tightest = use;
        }
    });
    if (tightest) {
        tell(*tightest, report);
    }
}

RuleGroup headroomRules()
{
    return {"Headroom", rules};
}

} // namespace kv::encoder
