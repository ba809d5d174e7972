#pragma once

#include <QString>
#include <QWidget>

class QAbstractButton;
class QAbstractSlider;
class QComboBox;
class QSpinBox;

/// What a user's hands do: real clicks and keys on the real widgets. Each returns when the toolkit
/// has dealt with it.
namespace user
{

/// Brings the widget to where it can be clicked: its tab to the front, scrolled into view.
void reveal(QWidget* widget);

void click(QAbstractButton* button);

/// Opens the list with the keyboard, goes to the item and takes it. One choice, whatever lies
/// between. @return Whether the list has such an item and may be changed.
bool choose(QComboBox* list, const QString& text);

/// Replaces the number of a spin box by typing, key after key, and leaves the field.
void type(QSpinBox* field, const QString& text);

/// Moves a slider by one page.
void pageUp(QAbstractSlider* slider);

/// Turns the wheel over the widget by some notches; towards the user is negative.
/// @param time Of the event, in milliseconds; 0 is an event without one.
void turnWheel(QWidget* widget, int notches, int time = 0,
               Qt::ScrollPhase phase = Qt::NoScrollPhase);

} // namespace user

/// The one widget of this class and object name below `parent`; null without one, and with more.
QWidget* findOnly(const QWidget* parent, const QString& className, const QString& name);

/// The control of that name on the page of that class, or of the window itself; null without one.
template <class Control>
Control* findControl(const QWidget* window, const char* pageClass, const char* name)
{
    QList<const QWidget*> widgets = {window};
    for (const QWidget* child : window->findChildren<QWidget*>()) {
        widgets += child;
    }
    for (const QWidget* page : widgets) {
        if (page->inherits(pageClass)) {
            if (auto* control = page->findChild<Control*>(QLatin1String(name))) {
                return control;
            }
        }
    }
    return nullptr;
}
