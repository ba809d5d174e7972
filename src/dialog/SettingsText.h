#pragma once

#include "model/ConfigState.h"

#include <QString>
#include <QVector>

class QWidget;
class SettingsPage;

/// Settings in the words of the pages that show them.
namespace settings_text
{

/// A setting that the window has a control for.
struct Setting {
    QString key;
    const SettingsPage* page;
    QWidget* control;
    /// With the view, where each has such a control.
    QString caption;
    /// The tab's title.
    QString tab;

    /// Whether its view is coded.
    bool isCoded() const;
};

/// All of them, in the order of the tabs and of the pages on them.
QVector<Setting> settingsOf(const QWidget* window);

/// A line "caption = value" for each setting that shows at present, but for views that are not
/// coded.
QString linesOf(const QWidget* window, const ConfigState& state);

} // namespace settings_text
