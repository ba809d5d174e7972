#include "Tones.h"

#include <QtMath>

#include <algorithm>

namespace
{

double luminance(const QColor& colour)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : qPow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

} // namespace

double tones::contrast(const QColor& a, const QColor& b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

QColor tones::mixed(const QColor& from, const QColor& to, double share)
{
    const auto channel = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return {channel(from.red(), to.red()), channel(from.green(), to.green()),
            channel(from.blue(), to.blue())};
}

QColor tones::standingOut(const QColor& from, const QColor& to, double share, const QColor& ground,
                          double ratio)
{
    constexpr double step = 0.05;
    while (share < 1 && contrast(mixed(from, to, share), ground) < ratio) {
        share = std::min(share + step, 1.0);
    }
    return mixed(from, to, share);
}

bool tones::isDark(const QColor& ground)
{
    // Where black and white have the same contrast.
    return contrast(ground, Qt::white) > contrast(ground, Qt::black);
}
