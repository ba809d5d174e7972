#include "media_rates.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kv
{
namespace
{

using Strings = std::vector<std::string>;

int32_t toField(double value)
{
    constexpr double most = std::numeric_limits<int32_t>::max();
    return static_cast<int32_t>(std::llround(std::clamp(value, 0.0, most)));
}

/// Of a rate or a buffer, which a stream cannot be without.
int32_t toRate(double value)
{
    return std::max(toField(value), 1);
}

/// The same share of the buffer, be it counted in bits or in the time that it takes.
void scaleFullness(double rateFactor, double sizeFactor, KvMvcViewSettings& view)
{
    const double factor = view.bitrate_units == KV_MVC_UNITS_BITS         ? sizeFactor
                          : view.bitrate_units == KV_MVC_UNITS_BITS_90KHZ ? sizeFactor / rateFactor
                                                                          : 1;
    view.vbv_initial = toField(view.vbv_initial * factor);
    view.vbv_target = toField(view.vbv_target * factor);
}

/// The other rates and the buffer keep the proportion that they have in the defaults.
void applyBitRate(double rate, KvMvcViewSettings& view)
{
    if (rate <= 0 || view.bitrate <= 0) {
        return;
    }
    scaleRates(rate / view.bitrate, view);
}

/// What is signalled is exact. The measured rate is that of the beginning, which may exceed it by
/// what the buffer holds.
void applySignalledBuffer(const KvMediaInfo& info, KvMvcViewSettings& view)
{
    const bool constant = info.hrd_constant != 0;
    const double unit = view.bitrate_units == KV_MVC_UNITS_BYTES_PERCENT ? 8 : 1;
    const KvMvcViewSettings former = view;
    view.hrd_mode = 1;
    view.bitrate_mode = constant ? KV_MVC_CONSTANT_BITRATE : KV_MVC_VARIABLE_BITRATE;
    view.max_bitrate = toRate(static_cast<double>(info.hrd_bit_rate));
    view.bitrate = constant ? view.max_bitrate : std::min(view.bitrate, view.max_bitrate);
    view.bitrate_buffer = toRate(static_cast<double>(info.hrd_buffer_size) / unit);
    if (former.max_bitrate > 0 && former.bitrate_buffer > 0) {
        scaleFullness(static_cast<double>(view.max_bitrate) / former.max_bitrate,
                      static_cast<double>(view.bitrate_buffer) / former.bitrate_buffer, view);
    }
}

/// Bits a second at the frame rate that is taken; what is measured without one is at another.
double atFrameRate(int64_t bits, const KvMediaInfo& info, const KvMvcViewSettings& view)
{
    constexpr double assumedRate = 25; // of KvMediaInfo::bit_rate
    const double factor = info.frame_rate_num > 0 ? 1 : view.frame_rate / assumedRate;
    return static_cast<double>(bits) * factor;
}

/// A parameter set that tells no buffer model is of a stream without one.
bool tellsNoBuffer(const KvMediaInfo& info)
{
    return info.codec == KV_MEDIA_CODEC_H264 && info.profile_idc > 0 && !hasSignalledBuffer(info);
}

void applyBuffers(const KvMediaInfo& info, KvMvcSettings& settings, Strings& notes, Strings& untold)
{
    const bool single = info.num_views < 2;
    const std::string whose = hasSignalledBuffer(info) ? " of further views" : "";
    if (hasSignalledBuffer(info)) {
        applySignalledBuffer(info, settings.views[0]);
        if (single) {
            applySignalledBuffer(info, settings.views[1]);
            return;
        }
    }
    untold.push_back("bitrate mode" + whose);
    notes.push_back(
        "maximum rate and buffer" + whose + " are not known, " +
        (info.bit_rate > 0 ? "they follow from the bit rate" : "the preset's are taken"));
    if (tellsNoBuffer(info)) {
        settings.views[0].hrd_mode = settings.views[1].hrd_mode = 0;
    } else {
        untold.push_back("HRD conformance" + whose);
    }
}

} // namespace

void applyRates(const KvMediaInfo& info, KvMvcSettings& settings, Strings& notes, Strings& untold)
{
    if (info.bit_rate <= 0) {
        notes.push_back("its bit rate is not known or no aim, the preset's is taken");
    }
    const int32_t others = std::max(info.num_views - 1, 1);
    const int64_t base = info.bit_rate - info.dependent_bit_rate;
    const int64_t second = info.num_views < 2 ? base : info.dependent_bit_rate / others;
    applyBitRate(atFrameRate(base, info, settings.views[0]), settings.views[0]);
    applyBitRate(atFrameRate(second, info, settings.views[1]), settings.views[1]);
    applyBuffers(info, settings, notes, untold);
}

bool hasSignalledBuffer(const KvMediaInfo& info)
{
    return info.hrd_bit_rate > 0 && info.hrd_buffer_size > 0;
}

void scaleLimits(double factor, KvMvcViewSettings& view)
{
    view.max_bitrate = toRate(view.max_bitrate * factor);
    view.bitrate_buffer = toRate(view.bitrate_buffer * factor);
    scaleFullness(factor, factor, view);
}

void scaleRates(double factor, KvMvcViewSettings& view)
{
    view.bitrate = toRate(view.bitrate * factor);
    scaleLimits(factor, view);
}

} // namespace kv
