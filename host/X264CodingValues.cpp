// Groups of pictures, motion search, coding tools and slices.

#include "X264Values.h"

#include "ExportValues.h"

#include <algorithm>

namespace x264
{

using Job = ExportJob;

namespace
{

bool codesWeightedP(const Job& job)
{
    return job.view.weighted_p != 0 && predicts(job.view) && !isInterlaced(job.view);
}

} // namespace

bool isLowerProfileWritten(const Job& job)
{
    const KvMvcViewSettings& view = job.view;
    switch (view.profile) {
    case KV_MVC_PROFILE_MAIN:
        return view.entropy_mode == KV_MVC_CAVLC && !hasBFrames(view) && !isInterlaced(view) &&
               !codesWeightedP(job);
    case KV_MVC_PROFILE_HIGH_10:
        return view.bit_depth_luma == 8;
    case KV_MVC_PROFILE_HIGH_422:
        return view.chroma_format != KV_MVC_CHROMA_422;
    default:
        return false;
    }
}

bool hasReferenceB(const Job& job)
{
    return job.view.reference_b != 0 && predicts(job.view) && job.view.ref_distance > 2;
}

bool needsMoreReferences(const Job& job)
{
    const int least = bPyramid(job) == QLatin1String("normal") ? 4
                      : hasReferenceB(job)                     ? 3
                      : hasBFrames(job.view)                   ? 2
                                                               : 1;
    return predicts(job.view) && job.view.num_ref_frames < least;
}

QString keyint(const Job& job)
{
    return job.view.i_interval == 0 ? QStringLiteral("infinite")
                                    : QString::number(job.view.i_interval);
}

QString minKeyint(const Job& job)
{
    // 0 would be x264's own choice.
    return QString::number(std::max(job.view.force_i, 1));
}

QString openGop(const Job& job)
{
    return flag(job.view.idr_marker == 0 && hasBFrames(job.view));
}

QString bframes(const Job& job)
{
    return QString::number(std::max(job.view.ref_distance - 1, 0));
}

QString bAdapt(const Job& job)
{
    return numberIf(hasBFrames(job.view), job.view.adaptive_b != 0 ? 1 : 0);
}

QString bPyramid(const Job& job)
{
    if (!hasBFrames(job.view)) {
        return {};
    }
    const bool isStrict = job.view.pyramid_b == 0 || job.view.video_type == KV_MVC_BLURAY_3D;
    return !hasReferenceB(job) ? QStringLiteral("none")
           : isStrict          ? QStringLiteral("strict")
                               : QStringLiteral("normal");
}

QString ref(const Job& job)
{
    constexpr int leastOfPyramids = 4;
    const int wanted = std::max(job.view.num_ref_frames, 1);
    // From as many on, max_num_ref_frames is one less beside a strict pyramid.
    const bool isReduced = bPyramid(job) == QLatin1String("strict") && wanted >= leastOfPyramids;
    return QString::number(isReduced ? wanted + 1 : wanted);
}

QString merange(const Job& job)
{
    return QString::number(job.view.motion_search);
}

QString me(const Job& job)
{
    constexpr int longestHexagonSearch = 16;
    return job.view.motion_search > longestHexagonSearch ? QStringLiteral("umh")
                                                         : QStringLiteral("hex");
}

QString partitions(const Job& job)
{
    return job.view.min_partition == KV_MVC_PARTITION_16X16 ? QStringLiteral("i8x8,i4x4")
                                                            : QStringLiteral("p8x8,b8x8,i8x8,i4x4");
}

QString subme(const Job& job)
{
    // One number stands for precision, cost measure and decisions.
    return job.view.subpixel_mode == KV_MVC_SUBPIXEL_FULL ? QStringLiteral("0")
           : job.view.hadamard == 0                       ? QStringLiteral("1")
           : job.view.simple_rd != 0                      ? QStringLiteral("5")
                                                          : QStringLiteral("7");
}

QString weightp(const Job& job)
{
    // 2 would have references twice in a list.
    return QString::number(codesWeightedP(job) ? 1 : 0);
}

QString trellis(const Job& job)
{
    return numberIf(job.view.simple_rd != 0, 0);
}

QString aqMode(const Job& job)
{
    return numberIf(!isConstantQuantizer(job), job.view.complexity > 0 ? 1 : 0);
}

QString aqStrength(const Job& job)
{
    return !isConstantQuantizer(job) && job.view.complexity > 0
               ? QString::number(job.view.complexity / 100.0)
               : QString();
}

QString noCabac(const Job& job)
{
    return flag(job.view.entropy_mode == KV_MVC_CAVLC);
}

QString slices(const Job& job)
{
    return QString::number(std::max(job.view.num_slices, 1));
}

QString threads(const Job& job)
{
    return numberIf(job.view.num_threads > 0, job.view.num_threads);
}

} // namespace x264
