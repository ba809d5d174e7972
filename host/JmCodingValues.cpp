// Groups of pictures, motion search, coding tools and slices.

#include "JmValues.h"

#include "ExportValues.h"

#include <algorithm>

namespace jm
{

using Job = ExportJob;

namespace
{

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

QString distortion(bool isHadamard)
{
    constexpr int absoluteDifferences = 0;
    constexpr int hadamard = 2;
    return QString::number(isHadamard ? hadamard : absoluteDifferences);
}

} // namespace

bool isPyramid(const Job& job)
{
    return hasBFrames(job.view) && job.view.reference_b != 0 && job.view.pyramid_b != 0 &&
           !isPyramidTooSmall(job);
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

QString intraPeriod(const Job& job)
{
    return QString::number(job.view.i_interval);
}

QString idrPeriod(const Job& job)
{
    return QString::number(
        lacksIdrPictures(job) ? 0 : qint64{job.view.i_interval} * job.view.idr_marker);
}

QString bFrames(const Job& job)
{
    return QString::number(hasBFrames(job.view) ? job.view.ref_distance - 1 : 0);
}

QString bReferencePictures(const Job& job)
{
    const bool isFlat = hasBFrames(job.view) && job.view.reference_b != 0 && !isPyramid(job);
    return QString::number(isFlat ? 1 : 0);
}

QString hierarchicalCoding(const Job& job)
{
    constexpr int full = 2;
    return QString::number(isPyramid(job) ? full : 0);
}

QString references(const Job& job)
{
    return QString::number(std::max(job.view.num_ref_frames, 1));
}

QString searchRange(const Job& job)
{
    return QString::number(std::max(job.view.motion_search, 1));
}

QString restrictSearchRange(const Job& job)
{
    constexpr int blocksToo = 0;
    constexpr int references = 1;
    constexpr int none = 2;
    return QString::number(job.view.fast_reference == 0  ? none
                           : job.view.fast_subblock == 0 ? references
                                                         : blocksToo);
}

QString halfBlocks(const Job& job)
{
    return QString::number(job.view.min_partition == KV_MVC_PARTITION_16X16 ? 0 : 1);
}

QString disableSubpelMe(const Job& job)
{
    return QString::number(job.view.subpixel_mode == KV_MVC_SUBPIXEL_FULL ? 1 : 0);
}

QString rdOptimization(const Job& job)
{
    // MBAFF asks for it.
    return QString::number(job.view.simple_rd != 0 && job.view.interlace_mode != KV_MVC_MBAFF ? 0
                                                                                              : 1);
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
    return QString::number(job.view.weighted_p != 0 && !isInterlaced(job.view) ? 1 : 0);
}

QString sliceMode(const Job& job)
{
    return QString::number(job.view.num_slices > 1 ? 1 : 0);
}

QString sliceArgument(const Job& job)
{
    return numberIf(job.view.num_slices > 1, sliceMacroblocks(job));
}

QString isDeblockingSaid(const Job& job)
{
    const bool isOff = std::ranges::any_of(
        job.record.views, [](const KvMvcViewSettings& view) { return view.deblocking == 0; });
    return QString::number(isOff ? 1 : 0);
}

QString disableDeblocking(const Job& job)
{
    return QString::number(job.view.deblocking == 0 ? 1 : 0);
}

} // namespace jm
