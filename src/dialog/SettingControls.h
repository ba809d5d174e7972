#pragma once

#include <QString>
#include <QVector>

class QWidget;
class SettingsPage;

/// The controls of a dialog by the settings that they edit.
namespace setting_controls
{

/// The control of the key, wherever in the window it is: of several radio buttons the chosen one.
/// Null without one.
QWidget* find(const QWidget* window, const QString& key);

/// What the user calls it, with the view where each has such a control; the text that names it in
/// messages.
QString captionOf(const QWidget* control);

/// Brings the control to where it can be seen and gives it the focus: its tab comes to the front,
/// its section opens. One that does not show in the present mode leads to the first of its section;
/// one that cannot be changed keeps the focus where it is and shows its tip instead.
void goTo(QWidget* control);

} // namespace setting_controls
