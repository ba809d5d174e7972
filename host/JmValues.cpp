#include "JmValues.h"

#include "ExportValues.h"

#include <algorithm>

namespace jm
{

using Job = ExportJob;

namespace
{

// Units of bit_rate_value_minus1 and cpb_size_value_minus1 (H.264 E.2.2).
constexpr qint64 rateUnit = 64;
constexpr qint64 bufferUnit = 16;

QString number(qint64 value)
{
    return QString::number(value);
}

QString numberIf(bool isSaid, qint64 value)
{
    return isSaid ? QString::number(value) : QString();
}

qint64 ceilDiv(qint64 value, qint64 by)
{
    return (value + by - 1) / by;
}

/// Macroblocks of what is cut into slices: a frame or a field.
qint64 pictureMacroblocks(const Job& job)
{
    const qint64 width = ceilDiv(job.view.width, 16);
    const qint64 frame = isInterlaced(job.view) ? 2 * width * ceilDiv(job.view.height, 32)
                                                : width * ceilDiv(job.view.height, 16);
    return job.view.interlace_mode == KV_MVC_INTERLACED ? frame / 2 : frame;
}

qint64 sliceMacroblocks(const Job& job)
{
    const qint64 slices = std::max<qint64>(job.view.num_slices, 1);
    // MBAFF frames are coded in pairs of macroblocks.
    const qint64 step = job.view.interlace_mode == KV_MVC_MBAFF ? 2 : 1;
    return std::max<qint64>(ceilDiv(pictureMacroblocks(job), slices * step) * step, 1);
}

bool isPyramid(const Job& job)
{
    return hasBFrames(job.view) && job.view.reference_b != 0 && job.view.pyramid_b != 0 &&
           !isPyramidTooSmall(job);
}

QString distortion(bool isHadamard)
{
    constexpr int absoluteDifferences = 0;
    constexpr int hadamard = 2;
    return number(isHadamard ? hadamard : absoluteDifferences);
}

} // namespace

bool isLevelChosen(const Job& job)
{
    return levelText(job.view).isNull();
}

bool isSliceCountMissed(const Job& job)
{
    return job.view.num_slices > 1 &&
           ceilDiv(pictureMacroblocks(job), sliceMacroblocks(job)) != job.view.num_slices;
}

bool lacksIdrPictures(const Job& job)
{
    return job.codedViews > 1 && job.view.interlace_mode == KV_MVC_INTERLACED &&
           job.view.i_interval > 0 && job.view.idr_marker > 0;
}

bool isPyramidTooSmall(const Job& job)
{
    constexpr int leastDistance = 4;
    return job.view.ref_distance < leastDistance;
}

bool isRateRounded(const Job& job)
{
    return signalsBuffer(job.view) && bufferRate(job.view) % rateUnit != 0;
}

bool isBufferRounded(const Job& job)
{
    return signalsBuffer(job.view) && bufferBits(job.view) % bufferUnit != 0;
}

QString numberOfViews(const Job& job)
{
    return number(job.codedViews);
}

QString profileIdc(const Job& job)
{
    if (job.codedViews > 1) {
        return job.view.video_type == KV_MVC_MULTIVIEW_HIGH ? QStringLiteral("118")
                                                            : QStringLiteral("128");
    }
    return textOf({{KV_MVC_PROFILE_BASELINE, "66"},
                   {KV_MVC_PROFILE_MAIN, "77"},
                   {KV_MVC_PROFILE_HIGH, "100"},
                   {KV_MVC_PROFILE_HIGH_10, "110"},
                   {KV_MVC_PROFILE_HIGH_422, "122"}},
                  job.view.profile);
}

QString levelIdc(const Job& job)
{
    constexpr int highest = 51;
    constexpr int highestInterlaced = 41; // H.264 Table A-4
    return number(!isLevelChosen(job)      ? job.view.level
                  : isInterlaced(job.view) ? highestInterlaced
                                           : highest);
}

QString transform8x8Mode(const Job& job)
{
    const bool isHigh = job.codedViews > 1 || job.view.profile >= KV_MVC_PROFILE_HIGH;
    return number(isHigh ? 1 : 0);
}

QString sendAud(const Job& job)
{
    return number(job.view.video_type == KV_MVC_BLURAY_3D ? 1 : 0);
}

QString width(const Job& job)
{
    return number(job.view.width);
}

QString height(const Job& job)
{
    return number(job.view.height);
}

QString frameRate(const Job& job)
{
    const Fraction rate = ::frameRate(job.view);
    return rate.num == 0
               ? QString()
               : QString::number(static_cast<double>(rate.num) / static_cast<double>(rate.den));
}

QString timingPresent(const Job& job)
{
    return number(::frameRate(job.view).num == 0 ? 0 : 1);
}

QString unitsInTick(const Job& job)
{
    return number(::frameRate(job.view).den);
}

QString timeScale(const Job& job)
{
    // Two ticks a frame (H.264 E.2.1).
    const Fraction rate = ::frameRate(job.view);
    return numberIf(rate.num != 0, 2 * rate.num);
}

QString aspectPresent(const Job& job)
{
    return number(sampleAspect(job.view).num == 0 ? 0 : 1);
}

QString aspectIdc(const Job& job)
{
    constexpr int extended = 255; // H.264 Table E-1
    return numberIf(sampleAspect(job.view).num != 0, extended);
}

QString sarWidth(const Job& job)
{
    const Fraction aspect = sampleAspect(job.view);
    return numberIf(aspect.num != 0, aspect.num);
}

QString sarHeight(const Job& job)
{
    const Fraction aspect = sampleAspect(job.view);
    return numberIf(aspect.num != 0, aspect.den);
}

QString picInterlace(const Job& job)
{
    return number(job.view.interlace_mode == KV_MVC_INTERLACED ? 1 : 0);
}

QString mbInterlace(const Job& job)
{
    constexpr int adaptive = 2;
    return number(job.view.interlace_mode == KV_MVC_MBAFF ? adaptive : 0);
}

QString yuvFormat(const Job& job)
{
    return textOf({{KV_MVC_CHROMA_400, "0"}, {KV_MVC_CHROMA_420, "1"}, {KV_MVC_CHROMA_422, "2"}},
                  job.view.chroma_format);
}

QString depthLuma(const Job& job)
{
    return number(job.view.bit_depth_luma);
}

QString depthChroma(const Job& job)
{
    return number(job.view.bit_depth_chroma);
}

QString rateControlEnable(const Job& job)
{
    return number(aimsAtRate(job.view) ? 1 : 0);
}

QString rcUpdateMode(const Job& job)
{
    constexpr int allFrames = 1;
    constexpr int hierarchy = 2;
    return numberIf(aimsAtRate(job.view), !predicts(job.view) ? allFrames
                                          : isPyramid(job)    ? hierarchy
                                                              : 0);
}

QString bitrate(const Job& job)
{
    return numberIf(aimsAtRate(job.view), job.view.bitrate);
}

QString hrdPresent(const Job& job)
{
    return number(signalsBuffer(job.view) ? 1 : 0);
}

QString hrdIsConstant(const Job& job)
{
    return numberIf(signalsBuffer(job.view),
                    job.view.bitrate_mode == KV_MVC_CONSTANT_BITRATE ? 1 : 0);
}

QString hrdRate(const Job& job)
{
    return numberIf(signalsBuffer(job.view),
                    std::max<qint64>(bufferRate(job.view) / rateUnit, 1) - 1);
}

QString hrdBuffer(const Job& job)
{
    return numberIf(signalsBuffer(job.view),
                    std::max<qint64>(bufferBits(job.view) / bufferUnit, 1) - 1);
}

QString quantizerI(const Job& job)
{
    return numberIf(!aimsAtRate(job.view), job.view.quant_i);
}

QString quantizerP(const Job& job)
{
    return numberIf(!aimsAtRate(job.view), job.view.quant_p);
}

QString quantizerB(const Job& job)
{
    return numberIf(!aimsAtRate(job.view), job.view.quant_b);
}

QString quantizerMin(const Job& job)
{
    return numberIf(aimsAtRate(job.view), job.view.quant_min);
}

QString quantizerMax(const Job& job)
{
    return numberIf(aimsAtRate(job.view), job.view.quant_max);
}

QString intraPeriod(const Job& job)
{
    return number(job.view.i_interval);
}

QString idrPeriod(const Job& job)
{
    return number(lacksIdrPictures(job) ? 0 : qint64{job.view.i_interval} * job.view.idr_marker);
}

QString bFrames(const Job& job)
{
    return number(hasBFrames(job.view) ? job.view.ref_distance - 1 : 0);
}

QString bReferencePictures(const Job& job)
{
    const bool isFlat = hasBFrames(job.view) && job.view.reference_b != 0 && !isPyramid(job);
    return number(isFlat ? 1 : 0);
}

QString hierarchicalCoding(const Job& job)
{
    constexpr int full = 2;
    return number(isPyramid(job) ? full : 0);
}

QString references(const Job& job)
{
    return number(std::max(job.view.num_ref_frames, 1));
}

QString searchRange(const Job& job)
{
    return number(std::max(job.view.motion_search, 1));
}

QString restrictSearchRange(const Job& job)
{
    constexpr int blocksToo = 0;
    constexpr int references = 1;
    constexpr int none = 2;
    return number(job.view.fast_reference == 0  ? none
                  : job.view.fast_subblock == 0 ? references
                                                : blocksToo);
}

QString halfBlocks(const Job& job)
{
    return number(job.view.min_partition == KV_MVC_PARTITION_16X16 ? 0 : 1);
}

QString disableSubpelMe(const Job& job)
{
    return number(job.view.subpixel_mode == KV_MVC_SUBPIXEL_FULL ? 1 : 0);
}

QString rdOptimization(const Job& job)
{
    // MBAFF asks for it.
    return number(job.view.simple_rd != 0 && job.view.interlace_mode != KV_MVC_MBAFF ? 0 : 1);
}

QString costMeasure(const Job& job)
{
    return distortion(job.view.hadamard != 0);
}

QString fullSampleMeasure(const Job& job)
{
    // The last step of the search and the decisions go by the same measure.
    return distortion(job.view.hadamard != 0 && job.view.subpixel_mode == KV_MVC_SUBPIXEL_FULL);
}

QString weightedPrediction(const Job& job)
{
    return number(job.view.weighted_p != 0 && !isInterlaced(job.view) ? 1 : 0);
}

QString sliceMode(const Job& job)
{
    return number(job.view.num_slices > 1 ? 1 : 0);
}

QString sliceArgument(const Job& job)
{
    return numberIf(job.view.num_slices > 1, sliceMacroblocks(job));
}

QString isDeblockingSaid(const Job& job)
{
    const bool isOff = std::ranges::any_of(
        job.record.views, [](const KvMvcViewSettings& view) { return view.deblocking == 0; });
    return number(isOff ? 1 : 0);
}

QString disableDeblocking(const Job& job)
{
    return number(job.view.deblocking == 0 ? 1 : 0);
}

} // namespace jm
