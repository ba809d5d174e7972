#include "stream.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace kv::encoder
{

namespace
{

std::int64_t ceilDiv(std::int64_t value, std::int64_t by)
{
    return (value + by - 1) / by;
}

std::int64_t heightInMbs(const KvMvcViewSettings& view)
{
    // Interlaced pictures are coded in pairs of macroblock rows (7.4.2.1.1).
    return view.interlace_mode == KV_MVC_PROGRESSIVE ? ceilDiv(view.height, 16)
                                                     : 2 * ceilDiv(view.height, 32);
}

const Profile* multiviewProfile(const KvMvcSettings& record, int views)
{
    if (views < 2) {
        return nullptr;
    }
    switch (record.views[0].video_type) {
    case KV_MVC_MULTIVIEW_HIGH:
        return &multiviewHigh();
    case KV_MVC_STEREO_HIGH:
    case KV_MVC_BLURAY_3D:
        return &stereoHigh();
    default:
        // Two views may carry either label; players know Stereo High.
        return views == 2 ? &stereoHigh() : &multiviewHigh();
    }
}

/// How much faster than coded a pulldown cadence outputs two frames at its closest (C.4.5.2).
double outputFactor(int pulldown)
{
    switch (pulldown) {
    case KV_MVC_PULLDOWN_2_3:
    case KV_MVC_PULLDOWN_3_2:
    case KV_MVC_PULLDOWN_2_3_PROGRESSIVE:
    case KV_MVC_PULLDOWN_3_2_PROGRESSIVE:
        return 1.25;
    default:
        return 1.0;
    }
}

} // namespace

int countViews(const KvMvcSettings& record)
{
    return std::clamp<int>(record.num_views, 1, KV_MVC_MAX_VIEWS);
}

int countSubRecords(const KvMvcSettings& record)
{
    return std::min<int>(countViews(record), KV_MVC_RECORD_VIEWS);
}

int sliceRows(const KvMvcViewSettings& view)
{
    const std::int64_t rows = heightInMbs(view);
    return static_cast<int>(view.interlace_mode == KV_MVC_PROGRESSIVE ? rows : rows / 2);
}

bool aimsAtRate(const KvMvcViewSettings& view)
{
    return view.bitrate_mode == KV_MVC_CONSTANT_BITRATE ||
           view.bitrate_mode == KV_MVC_VARIABLE_BITRATE;
}

bool keepsBuffer(const KvMvcViewSettings& view)
{
    return view.hrd_mode != 0 && aimsAtRate(view);
}

std::int64_t limitRate(const KvMvcViewSettings& view)
{
    if (!aimsAtRate(view)) {
        return 0;
    }
    const bool hasMaximum =
        view.bitrate_mode == KV_MVC_VARIABLE_BITRATE && keepsBuffer(view) && view.max_bitrate > 0;
    return hasMaximum ? view.max_bitrate : view.bitrate;
}

std::int64_t bufferBits(const KvMvcViewSettings& view)
{
    const bool bytes = view.bitrate_units == KV_MVC_UNITS_BYTES_PERCENT;
    return std::int64_t{view.bitrate_buffer} * (bytes ? 8 : 1);
}

int fullBuffer(const KvMvcViewSettings& view)
{
    const std::int64_t bits = bufferBits(view);
    const std::int64_t rate = limitRate(view);
    if (bits <= 0 || rate <= 0) {
        return -1;
    }
    switch (view.bitrate_units) {
    case KV_MVC_UNITS_BYTES_PERCENT:
        return 100;
    case KV_MVC_UNITS_BITS:
        return view.bitrate_buffer;
    default:
        return static_cast<int>(
            std::min<std::int64_t>(90000 * bits / rate, std::numeric_limits<std::int32_t>::max()));
    }
}

double fullnessSeconds(const KvMvcViewSettings& view, int fullness)
{
    const double rate = static_cast<double>(limitRate(view));
    switch (view.bitrate_units) {
    case KV_MVC_UNITS_BYTES_PERCENT:
        return static_cast<double>(bufferBits(view)) * fullness / 100 / rate;
    case KV_MVC_UNITS_BITS:
        return fullness / rate;
    default:
        return fullness / 90000.0;
    }
}

SampleAspect sampleAspect(const KvMvcViewSettings& view)
{
    SampleAspect aspect = {view.pixel_aspect_x, view.pixel_aspect_y};
    if (view.display_aspect_x > 0 && view.display_aspect_y > 0) {
        aspect = {std::int64_t{view.display_aspect_x} * view.height,
                  std::int64_t{view.display_aspect_y} * view.width};
    }
    if (aspect.x <= 0 || aspect.y <= 0) {
        return {0, 0};
    }
    const std::int64_t common = std::gcd(aspect.x, aspect.y);
    return {aspect.x / common, aspect.y / common};
}

Stream::Stream(const KvMvcSettings& settings)
    : record(settings),
      base(settings.views[0]),
      viewsSet(countViews(settings)),
      subRecords(countSubRecords(settings)),
      profile(findProfile(base.profile)),
      multiview(multiviewProfile(settings, viewsSet)),
      views(multiview == &stereoHigh() ? std::min(viewsSet, 2) : viewsSet),
      sized(base.width >= 16 && base.height >= 16),
      widthMbs(sized ? ceilDiv(base.width, 16) : 0),
      heightMbs(sized ? heightInMbs(base) : 0),
      frameMbs(widthMbs * heightMbs),
      pictureMbs(base.interlace_mode == KV_MVC_INTERLACED ? frameMbs / 2 : frameMbs),
      interlaced(base.interlace_mode != KV_MVC_PROGRESSIVE),
      mayInterlace((!profile || profile->interlace) && (!multiview || multiview->interlace)),
      frameRate(base.frame_rate),
      outputRate(frameRate * outputFactor(base.pulldown)),
      predicts(base.i_interval != 1),
      bFrames(predicts && base.ref_distance > 1),
      looseB(bFrames && (base.reference_b == 0 || base.pyramid_b != 0 || base.ref_distance == 2)),
      disc(base.video_type == KV_MVC_BLURAY_3D)
{
}

bool Stream::knowsRates() const
{
    return std::all_of(record.views, record.views + subRecords, aimsAtRate);
}

std::int64_t Stream::totalRate() const
{
    std::int64_t sum = 0;
    for (int v = 0; v < subRecords; ++v) {
        sum += viewsLike(v) * limitRate(record.views[v]);
    }
    return sum;
}

std::int64_t Stream::totalBuffer() const
{
    std::int64_t sum = 0;
    for (int v = 0; v < subRecords; ++v) {
        if (keepsBuffer(record.views[v])) {
            sum += viewsLike(v) * bufferBits(record.views[v]);
        }
    }
    return sum;
}

int Stream::totalReferences() const
{
    int sum = 0;
    for (int v = 0; v < subRecords; ++v) {
        sum += viewsLike(v) * record.views[v].num_ref_frames;
    }
    return sum;
}

int Stream::mostReferences() const
{
    int most = 0;
    for (int v = 0; v < subRecords; ++v) {
        most = std::max(most, record.views[v].num_ref_frames);
    }
    return most;
}

Sum ratesOf(const Stream& stream)
{
    return {limitRate(stream.base), stream.totalRate()};
}

Sum buffersOf(const Stream& stream)
{
    return {keepsBuffer(stream.base) ? bufferBits(stream.base) : 0, stream.totalBuffer()};
}

SumLimits limitsOf(const Stream& stream, std::int64_t units)
{
    const Profile& all = *stream.streamProfile();
    const Profile& base = stream.multiview && stream.profile ? *stream.profile : all;
    return {{units * base.nalFactor, units * all.nalFactor},
            {units * base.vclFactor, units * all.vclFactor}};
}

double macroblockRate(const Stream& stream)
{
    return static_cast<double>(stream.views * stream.frameMbs) * stream.outputRate;
}

std::int64_t macroblockRateLimit(const Stream& stream, const Level& level)
{
    const int scale = stream.multiview ? 2 : 1; // mvcScaleFactor
    return scale * level.mbRate;
}

std::int64_t dpbFrames(const Stream& stream, const Level& level)
{
    if (stream.views == 1) {
        return std::min<std::int64_t>(level.dpbMbs / stream.frameMbs, 16);
    }
    // 16 * max(1, ceil(log2 N)): 16 for two views, 32 for three and four.
    const std::int64_t cap = stream.views == 2 ? 16 : 32;
    return std::min<std::int64_t>(2 * level.dpbMbs / stream.frameMbs, cap);
}

int referenceRoom(const Stream& stream, const Level& level)
{
    const int kept = stream.multiview && stream.looseB ? 1 : 0;
    return static_cast<int>(dpbFrames(stream, level)) - kept;
}

bool storesReferences(const Stream& stream, const Level& level)
{
    const bool each = !stream.multiview || stream.mostReferences() <= dpbFrames(stream, level) / 2;
    return each && stream.totalReferences() <= referenceRoom(stream, level);
}

} // namespace kv::encoder
