#pragma once

class QAbstractButton;
class QComboBox;
class QLabel;
class QSpinBox;
class QTabBar;

/// Room for texts where a control's width is given and the font is not: the layouts' widths suit
/// usual fonts, and a user's may be wider.
namespace text_fit
{

/// A check box or radio button shows a text that is too long for its width on several lines,
/// instead of making what it stands in wider.
void wrap(QAbstractButton* button);

/// A field shows its numbers whole, and a list its items, in a smaller font where they need it.
void shrink(QSpinBox* field);
void shrink(QComboBox* list);

/// The same for a label of one line, which may become narrower than its text then.
void shrink(QLabel* label);

/// The same for the titles of tabs, so that none hides behind scroll buttons.
void shrink(QTabBar* bar);

} // namespace text_fit
