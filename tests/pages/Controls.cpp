#include "Controls.h"

#include "pages/SettingsPage.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QSpinBox>

namespace
{

QVariant absentValue(const ledger::Setting& setting)
{
    switch (setting.kind) {
    case ledger::Kind::Number:
        return qBound(setting.least, 0, setting.most);
    case ledger::Kind::Switch:
        return false;
    case ledger::Kind::Radio:
        return 0;
    default:
        return QStringLiteral("");
    }
}

constexpr int unitCount = 3;

QAbstractButton* unitButton(const QWidget* window, const QString& page, int id)
{
    return qobject_cast<QAbstractButton*>(
        findOnPage(window, page, QStringLiteral("units%1Radio").arg(id + 1)));
}

} // namespace

const QVector<Control>& controls()
{
    static const QVector<Control> all = [] {
        QVector<Control> list;
        for (const ledger::Setting& setting : ledger::settings()) {
            // The presets are the dialog's own.
            if (!setting.key || setting.is("video_type")) {
                continue;
            }
            for (int view = 0; view < setting.viewCount(); ++view) {
                list.append({setting.pageOf(view), QString::fromLatin1(setting.control),
                             setting.keyOf(view), setting.first.state, setting.second.state,
                             absentValue(setting)});
            }
        }
        return list;
    }();
    return all;
}

QString fullName(const Control& control)
{
    return control.page + QLatin1Char('.') + control.name;
}

SettingsPage* pageOf(const QWidget* widget)
{
    for (QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto* page = qobject_cast<SettingsPage*>(parent)) {
            return page;
        }
    }
    return nullptr;
}

QWidget* findOnPage(const QWidget* window, const QString& pageClass, const QString& name)
{
    QWidget* found = nullptr;
    for (QWidget* widget : window->findChildren<QWidget*>(name)) {
        const SettingsPage* const page = pageOf(widget);
        if (!page || pageClass != QLatin1String(page->metaObject()->className())) {
            continue;
        }
        if (found) {
            return nullptr;
        }
        found = widget;
    }
    return found;
}

QVariant shown(const QWidget* window, const Control& control)
{
    if (control.name == QLatin1String("units")) {
        for (int id = 0; id < unitCount; ++id) {
            if (unitButton(window, control.page, id)->isChecked()) {
                return id;
            }
        }
        return -1;
    }
    QWidget* const widget = findOnPage(window, control.page, control.name);
    if (auto* list = qobject_cast<QComboBox*>(widget)) {
        return list->currentIndex() < 0 ? QStringLiteral("") : list->currentText();
    }
    if (auto* number = qobject_cast<QSpinBox*>(widget)) {
        return number->value();
    }
    if (auto* slider = qobject_cast<QAbstractSlider*>(widget)) {
        return slider->value();
    }
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        return button->isChecked();
    }
    return {};
}

bool isEnabledOnPage(const QWidget* window, const Control& control)
{
    const bool isGroup = control.name == QLatin1String("units");
    const QString name = isGroup ? QStringLiteral("units1Radio") : control.name;
    const QWidget* const widget = findOnPage(window, control.page, name);
    if (!widget || !widget->isEnabledTo(pageOf(widget))) {
        return false;
    }
    for (int id = 1; isGroup && id < unitCount; ++id) {
        if (!unitButton(window, control.page, id)->isEnabledTo(pageOf(widget))) {
            return false;
        }
    }
    return true;
}

ConfigState stateOf(QVariant Control::*value)
{
    ConfigState state;
    for (const Control& control : controls()) {
        state.insert(control.key, control.*value);
    }
    return state;
}
