#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

/// The relative luminance of an opaque colour, 0 to 1 (WCAG 2.1, "relative luminance").
inline double luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// The contrast ratio of two opaque colours, 1 to 21 (WCAG 2.1, "contrast ratio").
inline double contrast(const QColor& a, const QColor& b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}
