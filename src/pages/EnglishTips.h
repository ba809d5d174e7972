#pragma once

#include <QString>

class QWidget;

/// What the control's tip says in English, whatever the language; empty for one that has none.
/// @param page The page that the control is on; the pages of the views are alike.
QString englishTip(const QWidget* page, const QWidget* control);
