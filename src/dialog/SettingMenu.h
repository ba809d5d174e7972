#pragma once

#include "SettingHelp.h"

#include <QHash>
#include <QObject>
#include <QPoint>

#include <functional>

class QAction;
class QDialog;
class QMenu;
class QWidget;
class SettingsPage;

/// The context menus of the controls and their labels: a setting goes back to its starting value,
/// and a view's rate control setting is taken to all views; what a field's text has of its own
/// follows.
class SettingMenu : public QObject
{
    Q_OBJECT

public:
    /// What the settings are now.
    using Now = std::function<ConfigState()>;
    /// Takes the edit that was chosen: one state, which the page reports.
    using Report = std::function<void(SettingsPage*, const ConfigState&)>;

    /// Of all controls that the dialog has now; owned by it.
    SettingMenu(QDialog* dialog, const SettingHelp* help, Now now, Report report);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Setting {
        SettingsPage* page = nullptr;
        QString key;
        QWidget* control = nullptr;
    };

    void attach(SettingsPage* page);
    QMenu* menuOf(const Setting& setting);
    /// The menu's items; null where there is none of the kind.
    QAction* reset(QMenu* menu, const Setting& setting);
    QAction* allViews(QMenu* menu, const Setting& setting);
    ConfigState inAllViews(const Setting& setting, const QVariant& value) const;

    QDialog* const m_dialog;
    const SettingHelp* const m_help;
    const Now m_now;
    const Report m_report;
    QHash<const QObject*, Setting> m_settings;
};
