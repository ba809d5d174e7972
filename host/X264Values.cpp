#include "X264Values.h"

#include "ExportValues.h"

#include <algorithm>
#include <cmath>

namespace x264
{

using Job = ExportJob;

namespace
{

/// 0 is lossless coding there.
constexpr int leastQuantizer = 1;

/// An option that is its name alone, or is left out.
QString flag(bool isSet)
{
    return isSet ? QStringLiteral("") : QString();
}

QString numberIf(bool isSaid, qint64 number)
{
    return isSaid ? QString::number(number) : QString();
}

bool isConstantQuantizer(const Job& job)
{
    return job.view.bitrate_mode == KV_MVC_CONSTANT_QUANTIZER;
}

/// Beginning at 0, however deep samples are.
int quantizer(const Job& job, qint32 value)
{
    return value + quantizerOffset(job.view);
}

/// The ratio of quantizer steps; six quantizers double the step (H.264 8.5.9).
QString stepRatio(const Job& job, qint32 coarser, qint32 finer)
{
    return isQuantizerMode(job) ? QString::number(std::exp2((coarser - finer) / 6.0), 'g', 6)
                                : QString();
}

bool codesWeightedP(const Job& job)
{
    return job.view.weighted_p != 0 && predicts(job.view) && !isInterlaced(job.view);
}

/// The same rate where x264 can make five frames of four: it takes a fourth of the numerator, and
/// whole rates as so many thousandths.
Fraction withFourths(Fraction rate)
{
    constexpr qint64 fourths = 4;
    return rate.den == 1 || rate.num % fourths == 0
               ? rate
               : Fraction{rate.num * fourths, rate.den * fourths};
}

bool isShownInTwosAndThrees(const Job& job)
{
    return job.view.pulldown == KV_MVC_PULLDOWN_2_3_PROGRESSIVE ||
           job.view.pulldown == KV_MVC_PULLDOWN_3_2_PROGRESSIVE;
}

} // namespace

qint64 thousands(qint64 bits)
{
    return std::max<qint64>((bits + 500) / 1000, 1);
}

bool isQuantizerMode(const Job& job)
{
    return isConstantQuantizer(job) || job.view.bitrate_mode == KV_MVC_AVERAGE_QUANTIZER;
}

bool isLosslessQuantizer(const Job& job)
{
    return isQuantizerMode(job) && quantizer(job, job.view.quant_p) < leastQuantizer;
}

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

QString profile(const Job& job)
{
    return textOf({{KV_MVC_PROFILE_BASELINE, "baseline"},
                   {KV_MVC_PROFILE_MAIN, "main"},
                   {KV_MVC_PROFILE_HIGH, "high"},
                   {KV_MVC_PROFILE_HIGH_10, "high10"},
                   {KV_MVC_PROFILE_HIGH_422, "high422"}},
                  job.view.profile);
}

QString level(const Job& job)
{
    return levelText(job.view);
}

QString blurayCompat(const Job& job)
{
    return flag(job.view.video_type == KV_MVC_BLURAY_3D);
}

QString inputRes(const Job& job)
{
    return job.isRawInput ? QStringLiteral("%1x%2").arg(job.view.width).arg(job.view.height)
                          : QString();
}

QString fps(const Job& job)
{
    Fraction rate = frameRate(job.view);
    if (isShownInTwosAndThrees(job)) {
        // x264 then counts frames as they are shown: five for two.
        rate = reduced(rate.num * 5, rate.den * 2);
    } else if (pulldown(job) == QLatin1String("32")) {
        rate = withFourths(rate);
    }
    return rate.num == 0 ? QString() : fractionText(rate);
}

QString tff(const Job& job)
{
    return flag(isInterlaced(job.view) && job.view.field_order == KV_MVC_TOP_FIELD_FIRST);
}

QString bff(const Job& job)
{
    return flag(isInterlaced(job.view) && job.view.field_order != KV_MVC_TOP_FIELD_FIRST);
}

QString pulldown(const Job& job)
{
    return isShownInTwosAndThrees(job) ? QStringLiteral("64")
                                       : textOf({{KV_MVC_PULLDOWN_2_3, "32"},
                                                 {KV_MVC_PULLDOWN_3_2, "32"},
                                                 {KV_MVC_PULLDOWN_2_2, "double"},
                                                 {KV_MVC_PULLDOWN_3_3, "triple"}},
                                                job.view.pulldown);
}

QString sar(const Job& job)
{
    const Fraction aspect = sampleAspect(job.view);
    return aspect.num == 0 ? QString() : QStringLiteral("%1:%2").arg(aspect.num).arg(aspect.den);
}

QString outputCsp(const Job& job)
{
    return textOf(
        {{KV_MVC_CHROMA_400, "i400"}, {KV_MVC_CHROMA_420, "i420"}, {KV_MVC_CHROMA_422, "i422"}},
        job.view.chroma_format);
}

QString inputCsp(const Job& job)
{
    return job.isRawInput ? outputCsp(job) : QString();
}

QString outputDepth(const Job& job)
{
    return QString::number(job.view.bit_depth_luma);
}

QString inputDepth(const Job& job)
{
    return numberIf(job.isRawInput, job.view.bit_depth_luma);
}

QString bitrate(const Job& job)
{
    return numberIf(aimsAtRate(job.view), thousands(job.view.bitrate));
}

QString vbvMaxrate(const Job& job)
{
    return numberIf(keepsBuffer(job.view), thousands(bufferRate(job.view)));
}

QString vbvBufsize(const Job& job)
{
    return numberIf(keepsBuffer(job.view), thousands(bufferBits(job.view)));
}

QString vbvInit(const Job& job)
{
    return keepsBuffer(job.view) ? QString::number(bufferShare(job.view, job.view.vbv_initial))
                                 : QString();
}

QString nalHrd(const Job& job)
{
    return !signalsBuffer(job.view)                           ? QString()
           : job.view.bitrate_mode == KV_MVC_CONSTANT_BITRATE ? QStringLiteral("cbr")
                                                              : QStringLiteral("vbr");
}

QString qp(const Job& job)
{
    return numberIf(isConstantQuantizer(job),
                    std::max(quantizer(job, job.view.quant_p), leastQuantizer));
}

QString crf(const Job& job)
{
    // Of more than 8 bits it goes below 0, as far as quantizers do.
    const int least = leastQuantizer - quantizer(job, 0);
    return numberIf(job.view.bitrate_mode == KV_MVC_AVERAGE_QUANTIZER,
                    std::max(job.view.quant_p, least));
}

QString ipratio(const Job& job)
{
    return stepRatio(job, job.view.quant_p, job.view.quant_i);
}

QString pbratio(const Job& job)
{
    return stepRatio(job, job.view.quant_b, job.view.quant_p);
}

QString qpmin(const Job& job)
{
    return numberIf(!isConstantQuantizer(job), quantizer(job, job.view.quant_min));
}

QString qpmax(const Job& job)
{
    return numberIf(!isConstantQuantizer(job), quantizer(job, job.view.quant_max));
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
