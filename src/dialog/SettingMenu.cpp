#include "SettingMenu.h"

#include "SettingControls.h"
#include "model/KeyNames.h"
#include "model/SettingFacts.h"
#include "pages/SettingsPage.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QSpinBox>

#include <kv_config_gui_mvc/companions.h>

#include <utility>

namespace
{

/// Of a menu's item, in which the sign stands for a key.
QString escaped(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

/// The menu that the toolkit gives the field, which is made anew there each time.
QMenu* textMenu(QSpinBox* field)
{
    QMenu* const menu = field->findChild<QLineEdit*>()->createStandardContextMenu();
    const auto add = [&](const char* text, int step, bool isEnabled) {
        QAction* const action =
            menu->addAction(QCoreApplication::translate("QAbstractSpinBox", text));
        action->setEnabled(isEnabled);
        // Not out of the menu: the number is checked, and the dialog may go meanwhile.
        QObject::connect(
            action, &QAction::triggered, field, [field, step] { field->stepBy(step); },
            Qt::QueuedConnection);
    };
    menu->addSeparator();
    add("&Step up", 1, field->value() < field->maximum());
    add("Step &down", -1, field->value() > field->minimum());
    // The toolkit would paste into a locked field, too.
    if (!field->isEnabled()) {
        const auto actions = menu->actions();
        for (QAction* action : actions) {
            action->setEnabled(false);
        }
    }
    return menu;
}

/// The key of another view's setting, of the same kind.
QString keyInView(const SettingFacts& facts, int view)
{
    return keyOfSetting(facts.member, view);
}

/// It is shown only, and reports nothing.
bool mayReport(const SettingFacts& facts)
{
    return facts.member != QLatin1String("vbv_target");
}

} // namespace

SettingMenu::SettingMenu(QDialog* dialog, const SettingHelp* help, Now now, Report report)
    : QObject(dialog),
      m_dialog(dialog),
      m_help(help),
      m_now(std::move(now)),
      m_report(std::move(report))
{
    const auto pages = dialog->findChildren<SettingsPage*>();
    for (SettingsPage* page : pages) {
        attach(page);
    }
    for (auto setting = m_settings.begin(); setting != m_settings.end(); ++setting) {
        const_cast<QObject*>(setting.key())->installEventFilter(this);
    }
}

void SettingMenu::attach(SettingsPage* page)
{
    const QStringList keys = page->keys();
    for (const QString& key : keys) {
        const auto controls = page->widgetsOf(key);
        for (QWidget* control : controls) {
            m_settings.insert(control, {page, key, control});
        }
    }
    const auto labels = page->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        // A copy, since the table moves what it holds when it grows.
        const Setting setting = m_settings.value(label->buddy());
        if (setting.control) {
            m_settings.insert(label, setting);
        }
    }
}

bool SettingMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ContextMenu) {
        return QObject::eventFilter(watched, event);
    }
    const auto setting = m_settings.constFind(watched);
    if (setting == m_settings.constEnd()) {
        return QObject::eventFilter(watched, event);
    }
    const QPointer<SettingMenu> self(this);
    const Setting& chosen = *setting;
    const QPoint place = static_cast<QContextMenuEvent*>(event)->globalPos();
    // What is typed counts; the number may be checked, and the dialog deleted meanwhile.
    if (auto* const field = qobject_cast<QSpinBox*>(chosen.control); field && field->isEnabled()) {
        field->interpretText();
    }
    if (self) {
        QMenu* const menu = menuOf(chosen);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->popup(place);
    }
    event->accept();
    return true;
}

QMenu* SettingMenu::menuOf(const Setting& setting)
{
    auto* const field = qobject_cast<QSpinBox*>(setting.control);
    QMenu* const menu = field ? textMenu(field) : new QMenu(m_dialog);
    QAction* const first = menu->actions().value(0);
    const QList<QAction*> own = {reset(menu, setting), allViews(menu, setting)};
    for (QAction* action : own) {
        if (action) {
            menu->insertAction(first, action);
        }
    }
    if (first) {
        menu->insertSeparator(first);
    }
    return menu;
}

QAction* SettingMenu::reset(QMenu* menu, const Setting& setting)
{
    const QString start = escaped(m_help->startTextOf(setting.key));
    const bool isChanged = m_help->isChanged(setting.key);
    const SettingFacts facts = settingFacts(setting.key).value_or(SettingFacts());
    //: In the context menu of a setting; %1 is the value.
    const QString text = (isChanged ? tr("Reset to %1") : tr("Starting value: %1")).arg(start);
    auto* const action = new QAction(text, menu);
    action->setEnabled(isChanged && !start.isEmpty() && setting.control->isEnabledTo(m_dialog) &&
                       mayReport(facts));
    const auto go = [this, setting] {
        m_report(setting.page, setting.page->edited(setting.key, m_help->startOf(setting.key)));
    };
    // When the menu has gone: the settings are checked, and the dialog may be deleted meanwhile.
    connect(action, &QAction::triggered, this, go, Qt::QueuedConnection);
    return action;
}

QAction* SettingMenu::allViews(QMenu* menu, const Setting& setting)
{
    const SettingFacts facts = settingFacts(setting.key).value_or(SettingFacts());
    if (facts.view < 0 || !mayReport(facts)) {
        return nullptr;
    }
    const ConfigState now = m_now();
    const QVariant value = now.value(setting.key);
    bool isSame = true;
    for (int view = 0; view < KV_MVC_MAX_VIEWS; ++view) {
        isSame = isSame && now.value(keyInView(facts, view)) == value;
    }
    //: In the context menu of a view's rate control.
    auto* const action = new QAction(tr("Use in all views"), menu);
    action->setEnabled(!isSame && value.isValid() && setting.control->isEnabledTo(m_dialog));
    const auto go = [this, setting, value] { m_report(setting.page, inAllViews(setting, value)); };
    connect(action, &QAction::triggered, this, go, Qt::QueuedConnection);
    return action;
}

ConfigState SettingMenu::inAllViews(const Setting& setting, const QVariant& value) const
{
    const SettingFacts facts = settingFacts(setting.key).value_or(SettingFacts());
    ConfigState all;
    const auto pages = m_dialog->findChildren<SettingsPage*>();
    for (SettingsPage* page : pages) {
        for (int view = 0; view < KV_MVC_MAX_VIEWS; ++view) {
            const QString key = keyInView(facts, view);
            if (!page->controlOf(key)) {
                continue;
            }
            const ConfigState one = page->edited(key, value);
            for (auto entry = one.entries().begin(); entry != one.entries().end(); ++entry) {
                all.insert(entry.key(), entry->value);
            }
        }
    }
    return all;
}
