#pragma once

#include "CheckFacts.h"

#include <QPalette>
#include <QString>
#include <QVector>

class QWidget;

/// How much of its limits a stream uses, to look at.
namespace limit_bars
{

/// A table of bars, with the numbers and what is left, in rich text; empty without limits.
QString table(const QVector<LimitUse>& limits, const QPalette& palette);

/// Shows the table over the window until a key is pressed or something else is clicked.
void showOver(QWidget* window, const QVector<LimitUse>& limits);

} // namespace limit_bars
