#include "ExportValues.h"

#include <algorithm>
#include <cmath>
#include <numeric>

Fraction reduced(qint64 num, qint64 den)
{
    const qint64 common = std::gcd(num, den);
    return {num / common, den / common};
}

Fraction frameRate(const KvMvcViewSettings& view)
{
    constexpr double most = 1e6;
    constexpr qint64 film = 1001;
    const double rate = view.frame_rate;
    if (!(rate > 0) || rate > most) {
        return {0, 1};
    }
    if (rate == std::round(rate)) {
        return {std::llround(rate), 1};
    }
    const double multiple = std::round(rate * film);
    if (std::abs(rate * film - multiple) < 0.001 && std::fmod(multiple, 1000) == 0) {
        return {std::llround(multiple), film};
    }
    const qint64 thousandths = std::llround(rate * 1000);
    return thousandths == 0 ? Fraction{0, 1} : reduced(thousandths, 1000);
}

Fraction sampleAspect(const KvMvcViewSettings& view)
{
    qint64 x = view.pixel_aspect_x;
    qint64 y = view.pixel_aspect_y;
    if (view.display_aspect_x > 0 && view.display_aspect_y > 0) {
        x = qint64{view.display_aspect_x} * view.height;
        y = qint64{view.display_aspect_y} * view.width;
    }
    return x <= 0 || y <= 0 ? Fraction{0, 1} : reduced(x, y);
}

QString fractionText(Fraction fraction)
{
    const QString num = QString::number(fraction.num);
    return fraction.den == 1 ? num : num + QLatin1Char('/') + QString::number(fraction.den);
}

bool isInterlaced(const KvMvcViewSettings& view)
{
    return view.interlace_mode == KV_MVC_INTERLACED || view.interlace_mode == KV_MVC_MBAFF;
}

bool predicts(const KvMvcViewSettings& view)
{
    return view.i_interval != 1;
}

bool hasBFrames(const KvMvcViewSettings& view)
{
    return predicts(view) && view.ref_distance > 1;
}

bool aimsAtRate(const KvMvcViewSettings& view)
{
    return view.bitrate_mode == KV_MVC_CONSTANT_BITRATE ||
           view.bitrate_mode == KV_MVC_VARIABLE_BITRATE;
}

qint64 bufferRate(const KvMvcViewSettings& view)
{
    if (!aimsAtRate(view)) {
        return 0;
    }
    const bool hasMaximum = view.bitrate_mode == KV_MVC_VARIABLE_BITRATE && view.max_bitrate > 0;
    return hasMaximum ? view.max_bitrate : view.bitrate;
}

qint64 bufferBits(const KvMvcViewSettings& view)
{
    const bool inBytes = view.bitrate_units == KV_MVC_UNITS_BYTES_PERCENT;
    return qint64{view.bitrate_buffer} * (inBytes ? 8 : 1);
}

bool keepsBuffer(const KvMvcViewSettings& view)
{
    const bool isHeld = view.bitrate_mode == KV_MVC_CONSTANT_BITRATE || view.hrd_mode != 0;
    return isHeld && bufferRate(view) > 0 && bufferBits(view) > 0;
}

bool signalsBuffer(const KvMvcViewSettings& view)
{
    return view.hrd_mode != 0 && keepsBuffer(view);
}

double bufferShare(const KvMvcViewSettings& view, qint32 fullness)
{
    const auto size = static_cast<double>(bufferBits(view));
    const auto rate = static_cast<double>(bufferRate(view));
    const double share = view.bitrate_units == KV_MVC_UNITS_BYTES_PERCENT ? fullness / 100.0
                         : view.bitrate_units == KV_MVC_UNITS_BITS
                             ? fullness / size
                             : fullness / 90000.0 * rate / size;
    return std::clamp(share, 0.0, 1.0);
}

int quantizerOffset(const KvMvcViewSettings& view)
{
    return 6 * (view.bit_depth_luma - 8);
}

QString flag(bool isSet)
{
    return isSet ? QStringLiteral("") : QString();
}

QString numberIf(bool isSaid, qint64 number)
{
    return isSaid ? QString::number(number) : QString();
}

QString textOf(std::initializer_list<CodeText> texts, qint32 code)
{
    const auto* const found = std::ranges::find(texts, code, &CodeText::code);
    return found == texts.end() ? QString() : QString::fromLatin1(found->text);
}

QString levelText(const KvMvcViewSettings& view)
{
    constexpr qint32 levels[] = {10, 11, 12, 13, 20, 21, 22, 30, 31, 32, 40, 41, 42, 50, 51, 52};
    if (std::ranges::find(levels, view.level) == std::end(levels)) {
        return {};
    }
    return QStringLiteral("%1.%2").arg(view.level / 10).arg(view.level % 10);
}

bool isOddLevel(const KvMvcViewSettings& view)
{
    return view.level != KV_MVC_LEVEL_AUTO && levelText(view).isNull();
}
