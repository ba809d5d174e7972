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

bool isConstantQuantizer(const Job& job)
{
    return job.view.bitrate_mode == KV_MVC_CONSTANT_QUANTIZER;
}

bool isQuantizerMode(const Job& job)
{
    return isConstantQuantizer(job) || job.view.bitrate_mode == KV_MVC_AVERAGE_QUANTIZER;
}

bool isLosslessQuantizer(const Job& job)
{
    return isQuantizerMode(job) && quantizer(job, job.view.quant_p) < leastQuantizer;
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

} // namespace x264
