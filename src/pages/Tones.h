#pragma once

#include <QColor>

/// Colours that can be told apart, by the contrast of WCAG 2.1.
namespace tones
{

/// The ratio of two opaque colours, 1 to 21.
double contrast(const QColor& a, const QColor& b);

/// A colour between two: `share` of the second, 0 to 1.
QColor mixed(const QColor& from, const QColor& to, double share);

/// A colour on the way from one to another with at least this contrast to `ground`, and at least
/// that share of the other; the other itself where nothing before has it.
QColor standingOut(const QColor& from, const QColor& to, double share, const QColor& ground,
                   double ratio);

/// Whether a ground is one for light texts.
bool isDark(const QColor& ground);

} // namespace tones
