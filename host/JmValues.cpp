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

} // namespace

bool isLevelChosen(const Job& job)
{
    return levelText(job.view).isNull();
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
    return QString::number(job.codedViews);
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
    return QString::number(!isLevelChosen(job)      ? job.view.level
                           : isInterlaced(job.view) ? highestInterlaced
                                                    : highest);
}

QString transform8x8Mode(const Job& job)
{
    const bool isHigh = job.codedViews > 1 || job.view.profile >= KV_MVC_PROFILE_HIGH;
    return QString::number(isHigh ? 1 : 0);
}

QString sendAud(const Job& job)
{
    return QString::number(job.view.video_type == KV_MVC_BLURAY_3D ? 1 : 0);
}

QString width(const Job& job)
{
    return QString::number(job.view.width);
}

QString height(const Job& job)
{
    return QString::number(job.view.height);
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
    return QString::number(::frameRate(job.view).num == 0 ? 0 : 1);
}

QString unitsInTick(const Job& job)
{
    return QString::number(::frameRate(job.view).den);
}

QString timeScale(const Job& job)
{
    // Two ticks a frame (H.264 E.2.1).
    const Fraction rate = ::frameRate(job.view);
    return numberIf(rate.num != 0, 2 * rate.num);
}

QString aspectPresent(const Job& job)
{
    return QString::number(sampleAspect(job.view).num == 0 ? 0 : 1);
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
    return QString::number(job.view.interlace_mode == KV_MVC_INTERLACED ? 1 : 0);
}

QString mbInterlace(const Job& job)
{
    constexpr int adaptive = 2;
    return QString::number(job.view.interlace_mode == KV_MVC_MBAFF ? adaptive : 0);
}

QString yuvFormat(const Job& job)
{
    return textOf({{KV_MVC_CHROMA_400, "0"}, {KV_MVC_CHROMA_420, "1"}, {KV_MVC_CHROMA_422, "2"}},
                  job.view.chroma_format);
}

QString depthLuma(const Job& job)
{
    return QString::number(job.view.bit_depth_luma);
}

QString depthChroma(const Job& job)
{
    return QString::number(job.view.bit_depth_chroma);
}

QString rateControlEnable(const Job& job)
{
    return QString::number(aimsAtRate(job.view) ? 1 : 0);
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
    return QString::number(signalsBuffer(job.view) ? 1 : 0);
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

} // namespace jm
