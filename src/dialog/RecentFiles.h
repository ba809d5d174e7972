#pragma once

#include <QStringList>

#include <functional>

class QWidget;

/// The files that were loaded or saved last, the latest first; kept among the user's own settings.
namespace recent_files
{

QStringList list();
/// Puts the file at the beginning.
void add(const QString& path);
void remove(const QString& path);

/// Gives the widget a context menu of them. @param load Is called with the one that is chosen.
void attachMenu(QWidget* widget, const std::function<void(const QString&)>& load);
/// Opens it from anywhere else.
void showMenu(QWidget* widget);

} // namespace recent_files
