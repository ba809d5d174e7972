#include "UserInput.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QComboBox>
#include <QCoreApplication>
#include <QScrollArea>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QWheelEvent>

namespace user
{

void reveal(QWidget* widget)
{
    for (QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto* tabs = qobject_cast<QTabWidget*>(parent)) {
            for (int i = 0; i < tabs->count(); ++i) {
                if (tabs->widget(i)->isAncestorOf(widget)) {
                    tabs->setCurrentIndex(i);
                }
            }
        }
    }
    QCoreApplication::processEvents();
    for (QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(parent)) {
            area->ensureWidgetVisible(widget);
        }
    }
    QCoreApplication::processEvents();
}

void click(QAbstractButton* button)
{
    reveal(button);
    // Where the box or circle is: the text behind it may be cut by the scroll area.
    QTest::mouseClick(button, Qt::LeftButton, {},
                      QPoint(qMin(button->height(), button->width()) / 2, button->height() / 2));
}

bool choose(QComboBox* list, const QString& text)
{
    reveal(list);
    const int index = list->findText(text);
    if (index < 0 || !list->isEnabled() || !list->isVisible()) {
        return false;
    }
    list->setFocus();
    QTest::keyClick(list, Qt::Key_F4);
    QTest::keyClick(list->view(), Qt::Key_Home);
    for (int i = 0; i < index; ++i) {
        QTest::keyClick(list->view(), Qt::Key_Down);
    }
    QTest::keyClick(list->view(), Qt::Key_Return);
    return true;
}

void type(QSpinBox* field, const QString& text)
{
    reveal(field);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Tab);
}

void pageUp(QAbstractSlider* slider)
{
    reveal(slider);
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_PageUp);
}

void turnWheel(QWidget* widget, int notches, int time, Qt::ScrollPhase phase)
{
    // The innermost widget at its middle, where such an event arrives.
    QWidget* const child = widget->childAt(widget->rect().center());
    QWidget* const target = child ? child : widget;
    constexpr int notch = 120;
    const QPointF place = target->rect().center();
    QWheelEvent event(place, target->mapToGlobal(place.toPoint()), {}, {0, notches * notch},
                      Qt::NoButton, Qt::NoModifier, phase, false);
    event.setTimestamp(time);
    // As if it came from the window system: only such events go on to what lies behind.
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(target, &event);
}

} // namespace user

QWidget* findOnly(const QWidget* parent, const QString& className, const QString& name)
{
    QWidget* only = nullptr;
    int count = 0;
    const auto widgets = parent->findChildren<QWidget*>(name);
    for (QWidget* widget : widgets) {
        if (!widget->inherits(className.toLatin1().constData())) {
            continue;
        }
        only = widget;
        ++count;
    }
    return count == 1 ? only : nullptr;
}
