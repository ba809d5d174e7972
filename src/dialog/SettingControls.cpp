#include "SettingControls.h"

#include "model/KeyNames.h"
#include "pages/SettingsPage.h"
#include "pages/ToolBox.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QPointer>
#include <QSpinBox>
#include <QTabWidget>

namespace
{

template <class Ancestor>
Ancestor* ancestorOf(const QWidget* widget)
{
    for (QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto* const found = qobject_cast<Ancestor*>(parent)) {
            return found;
        }
    }
    return nullptr;
}

/// The first that the keyboard can reach in the page, in the order of the Tab key.
QWidget* firstOf(SettingsPage* page)
{
    for (QWidget* widget = page->nextInFocusChain(); widget != page;
         widget = widget->nextInFocusChain()) {
        const bool takesFocus = (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
        if (takesFocus && page->isAncestorOf(widget) && widget->isVisibleTo(page)) {
            return widget;
        }
    }
    return nullptr;
}

/// As under the pointer.
void showTipOf(QWidget* control)
{
    const QPoint below(0, control->height());
    QHelpEvent event(QEvent::ToolTip, below, control->mapToGlobal(below));
    QCoreApplication::sendEvent(control, &event);
}

} // namespace

QWidget* setting_controls::find(const QWidget* window, const QString& key)
{
    if (key.isEmpty()) {
        return nullptr;
    }
    if (key == keys::videoType) {
        return window->findChild<QComboBox*>(QStringLiteral("presetList"));
    }
    const auto pages = window->findChildren<SettingsPage*>();
    for (const SettingsPage* page : pages) {
        if (QWidget* const control = page->widgetOf(key)) {
            return control;
        }
    }
    return nullptr;
}

QString setting_controls::captionOf(const QWidget* control)
{
    const auto* const page = ancestorOf<SettingsPage>(control);
    return page ? page->captionOf(control) : SettingsPage::plainCaptionOf(control);
}

void setting_controls::goTo(QWidget* control)
{
    if (auto* const tabs = ancestorOf<QTabWidget>(control)) {
        for (int i = 0; i < tabs->count(); ++i) {
            if (tabs->widget(i)->isAncestorOf(control)) {
                tabs->setCurrentIndex(i);
            }
        }
    }
    auto* const page = ancestorOf<SettingsPage>(control);
    QWidget* const target = page && !control->isVisibleTo(page) ? firstOf(page) : control;
    if (!target) {
        return;
    }
    if (auto* const box = ancestorOf<ToolBox>(target)) {
        box->reveal(target);
    }
    if (!target->isEnabled()) {
        showTipOf(target);
        return;
    }
    const QPointer<QWidget> self(target);
    target->setFocus(Qt::OtherFocusReason);
    if (auto* const field = qobject_cast<QSpinBox*>(self.data())) {
        field->selectAll();
    }
}
