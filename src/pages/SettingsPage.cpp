#include "SettingsPage.h"

#include "ControlLabel.h"
#include "TextFit.h"
#include "TypingGuard.h"
#include "WheelGuard.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include <utility>

namespace
{

template <class Control, class Set>
void setBlocked(Control* control, const ConfigEntry& entry, Set set)
{
    const QSignalBlocker blocker(control);
    set(entry.value);
    control->setEnabled(entry.enabled);
}

} // namespace

SettingsPage::SettingsPage(QWidget* parent) : QFrame(parent) {}

void SettingsPage::receiveState(const ConfigState& state)
{
    for (const StateSetter& setFromState : std::as_const(m_setters)) {
        setFromState(state);
    }
}

QWidget* SettingsPage::widgetOf(const QString& key) const
{
    QObject* const control = const_cast<QObject*>(controlOf(key));
    const auto* const group = qobject_cast<const QButtonGroup*>(control);
    if (!group) {
        return qobject_cast<QWidget*>(control);
    }
    QAbstractButton* const chosen = group->checkedButton();
    return chosen ? chosen : group->buttons().value(0);
}

QVector<QWidget*> SettingsPage::widgetsOf(const QString& key) const
{
    const auto* const group = qobject_cast<const QButtonGroup*>(controlOf(key));
    QVector<QWidget*> widgets;
    if (group) {
        for (QAbstractButton* button : group->buttons()) {
            widgets.append(button);
        }
    } else if (QWidget* const control = widgetOf(key)) {
        widgets.append(control);
    }
    return widgets;
}

QString SettingsPage::textOf(const QString& key, const QVariant& value) const
{
    const QObject* const control = controlOf(key);
    if (const auto* group = qobject_cast<const QButtonGroup*>(control)) {
        const QAbstractButton* const button = group->button(value.toInt());
        return button ? button->text() : value.toString();
    }
    if (qobject_cast<const QAbstractButton*>(control)) {
        return value.toBool() ? tr("on") : tr("off");
    }
    const auto* const field = qobject_cast<const QSpinBox*>(control);
    const bool isSpecial =
        field && !field->specialValueText().isEmpty() && value.toInt() == field->minimum();
    return isSpecial ? field->specialValueText() : value.toString();
}

ConfigState SettingsPage::edited(const QString& key, const QVariant& value)
{
    ConfigState state;
    state.insert(key, value);
    return state;
}

// As screen readers have it, but for lists, which they call by the chosen item.
QString SettingsPage::plainCaptionOf(const QWidget* control)
{
    if (!control) {
        return {};
    }
    QString caption = control->accessibleName();
    if (const auto* button = qobject_cast<const QAbstractButton*>(control);
        caption.isEmpty() && button) {
        caption = button->text();
    }
    const auto labels =
        control->parentWidget()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QLabel* label : labels) {
        if (caption.isEmpty() && label->buddy() == control) {
            caption = label->text();
        }
    }
    if (caption.endsWith(QLatin1Char(':'))) {
        caption.chop(1);
    }
    // For assistive technology a control bears its page's name, too.
    for (const QWidget* page = control->parentWidget(); page; page = page->parentWidget()) {
        const QString before = page->accessibleName() + QLatin1String(", ");
        if (qobject_cast<const SettingsPage*>(page) && caption.startsWith(before)) {
            caption.remove(0, before.size());
        }
    }
    return caption.trimmed();
}

QString SettingsPage::captionOf(const QWidget* control) const
{
    return withPageName(plainCaptionOf(control));
}

QString SettingsPage::withPageName(const QString& caption) const
{
    const QString before = accessibleName() + QLatin1String(", ");
    const bool stands = accessibleName().isEmpty() || caption.startsWith(before);
    return caption.isEmpty() || stands ? caption : before + caption;
}

void SettingsPage::bindWith(QObject* control, const QString& key, StateSetter setFromState)
{
    controlKeys.insert(control, key);
    m_keys.append(key);
    m_setters.append(std::move(setFromState));
    if (auto* field = qobject_cast<QSpinBox*>(control)) {
        TypingGuard::protect(field);
        text_fit::shrink(field);
        // A file that is dropped on it is for the dialog, though it comes with its name as text.
        field->findChild<QLineEdit*>()->setAcceptDrops(false);
    } else if (auto* list = qobject_cast<QComboBox*>(control)) {
        text_fit::shrink(list);
    }
    if (auto* widget = qobject_cast<QWidget*>(control)) {
        WheelGuard::protect(widget);
        ControlLabel::attachBuddies(widget);
    }
}

void SettingsPage::reportEdit(const QVariant& value)
{
    ConfigState state;
    state.insert(senderKey(), value);
    Q_EMIT stateChanged(state);
}

void SettingsPage::setComboFromState(QComboBox* box, const ConfigState& state)
{
    setBlocked(box, state.entry(keyOf(box)), [box](const QVariant& value) {
        const QString text = value.toString();
        const int before = box->currentIndex();
        if (before >= 0 && box->itemText(before) == text) {
            return;
        }
        const int index = box->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (index != before) {
            box->setCurrentIndex(index);
            text_fit::refit(box);
        }
    });
}

void SettingsPage::setSpinFromState(QSpinBox* box, const ConfigState& state)
{
    setBlocked(box, state.entry(keyOf(box)), [this, box](const QVariant& value) {
        const int number = qBound(box->minimum(), value.toInt(), box->maximum());
        // What is being typed may differ from the number that the field has.
        QString& shown = m_shownTexts[box];
        if (box->value() != number || box->text() != shown) {
            box->setValue(number);
            shown = box->text();
        }
    });
}

void SettingsPage::setSpinFromState(QAbstractSlider* slider, const ConfigState& state)
{
    setBlocked(slider, state.entry(keyOf(slider)),
               [slider](const QVariant& value) { slider->setValue(value.toInt()); });
}

void SettingsPage::setCheckFromState(QCheckBox* box, const ConfigState& state)
{
    setBlocked(box, state.entry(keyOf(box)),
               [box](const QVariant& value) { box->setChecked(value.toBool()); });
}
