#pragma once

#include <QStringList>

/// Whether an application object can be made. To be asked before, since its constructor ends the
/// process where no platform plug-in starts: of those that the toolkit would try (QT_QPA_PLATFORM,
/// or else the system's usual ones), one must be installed, and its display answer.
bool canMakeApplication();

/// What canMakeApplication() asks of the system.
namespace platform_plugins
{

/// The folder of the process's program, where an application object will look, too.
QString programFolder();

/// The platforms that the toolkit tries when nothing names one.
QStringList usualPlatforms();

/// Whether the display that the platform connects to is there; true where there is nothing to
/// connect to.
bool displayAnswers(const QString& platform);

} // namespace platform_plugins
