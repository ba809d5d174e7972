#pragma once

#include <QStringList>

class QAbstractButton;
class QComboBox;
class QFont;
class QLabel;
class QSpinBox;
class QTabBar;

/// Room for texts where a control's width is given and the font is not: the layouts' widths suit
/// usual fonts, and a user's may be wider.
namespace text_fit
{

/// The text on lines of at most that width, in pixels; a word that is longer is broken.
QStringList lines(const QString& text, const QFont& font, int width);

/// A check box or radio button shows a text that is too long for its width on several lines,
/// instead of making what it stands in wider.
void wrap(QAbstractButton* button);

/// A field shows its numbers whole, and a list the chosen item, in a smaller font where they need
/// it.
void shrink(QSpinBox* field);
void shrink(QComboBox* list);
/// For a list whose item was chosen with its signals blocked.
void refit(QComboBox* list);

/// The same for a label, which may become narrower than its text, or than its longest word, then.
/// @param narrowest In pixels: what is left for it beside what else stands in its line.
void shrink(QLabel* label, int narrowest);

/// The same for the titles of tabs, so that none hides behind scroll buttons.
void shrink(QTabBar* bar);

} // namespace text_fit
