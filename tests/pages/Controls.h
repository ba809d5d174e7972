#pragma once

#include "SettingsLedger.h"

#include "model/ConfigState.h"

#include <QVariant>
#include <QVector>
#include <QWidget>

class SettingsPage;

/// One setting on the pages: which control shows it, and values to show.
struct Control {
    /// Class of the page.
    QString page;
    /// Object name; "units" for the three radio buttons of a view's units, with their ids as value.
    QString name;
    QString key;
    /// Two values that the control can show.
    QVariant a;
    QVariant b;
    /// What the control shows when the state lacks the key.
    QVariant absent;
};

/// Every control of the pages that has a key, by the ledger and so independently of the pages.
const QVector<Control>& controls();

/// "VideoFormatPage.widthSpin"
QString fullName(const Control& control);

/// The page that the widget belongs to: the innermost one around it.
SettingsPage* pageOf(const QWidget* widget);

/// The widget of that name that belongs to the page of that class; null unless there is exactly
/// one. The window may be the page.
QWidget* findOnPage(const QWidget* window, const QString& pageClass, const QString& name);

/// What the control shows: item text, number or switch; -1 when none of the units is chosen.
QVariant shown(const QWidget* window, const Control& control);

/// Whether the control takes input, as far as its page is concerned.
bool isEnabledOnPage(const QWidget* window, const Control& control);

/// The state that holds the first or the second value of every control.
ConfigState stateOf(QVariant Control::*value);
