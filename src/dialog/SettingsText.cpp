#include "SettingsText.h"

#include "pages/SettingsPage.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QGroupBox>
#include <QRadioButton>
#include <QTabWidget>

#include <utility>

namespace
{

/// A chosen button is one of the values; what they are values of, their group says.
QString captionOf(const SettingsPage* page, const QWidget* control)
{
    const auto* const group = qobject_cast<const QRadioButton*>(control)
                                  ? qobject_cast<QGroupBox*>(control->parentWidget())
                                  : nullptr;
    return group ? page->withPageName(group->title()) : page->captionOf(control);
}

} // namespace

bool settings_text::Setting::isCoded() const
{
    return page->isEnabledTo(page->parentWidget());
}

QVector<settings_text::Setting> settings_text::settingsOf(const QWidget* window)
{
    QVector<Setting> settings;
    const auto* const tabs = window->findChild<QTabWidget*>();
    for (int tab = 0; tab < tabs->count(); ++tab) {
        auto pages = tabs->widget(tab)->findChildren<SettingsPage*>();
        pages.prepend(qobject_cast<SettingsPage*>(tabs->widget(tab)));
        for (const SettingsPage* page : std::as_const(pages)) {
            for (const QString& key : page->keys()) {
                QWidget* const control = page->widgetOf(key);
                settings += {key, page, control, captionOf(page, control), tabs->tabText(tab)};
            }
        }
    }
    return settings;
}

QString settings_text::linesOf(const QWidget* window, const ConfigState& state)
{
    QString lines;
    const auto settings = settingsOf(window);
    for (const Setting& setting : settings) {
        if (setting.isCoded() && setting.control->isVisibleTo(setting.page)) {
            lines += setting.caption + QLatin1String(" = ") +
                     setting.page->textOf(setting.key, state.value(setting.key)) +
                     QLatin1Char('\n');
        }
    }
    return lines;
}
