#include "SettingsPage.h"

#include "ControlLabel.h"
#include "TypingGuard.h"
#include "WheelGuard.h"

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

void SettingsPage::bindWith(QObject* control, const QString& key, StateSetter setFromState)
{
    controlKeys.insert(control, key);
    m_setters.append(std::move(setFromState));
    if (auto* field = qobject_cast<QSpinBox*>(control)) {
        TypingGuard::protect(field);
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
        box->setCurrentIndex(
            box->findText(value.toString(), Qt::MatchExactly | Qt::MatchCaseSensitive));
    });
}

void SettingsPage::setSpinFromState(QSpinBox* box, const ConfigState& state)
{
    setBlocked(box, state.entry(keyOf(box)),
               [box](const QVariant& value) { box->setValue(value.toInt()); });
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
