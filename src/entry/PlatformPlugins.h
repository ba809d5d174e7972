#pragma once

#include <QStringList>

#include <memory>

/// Open as long as it is kept; empty where there is nothing to connect to.
using DisplayConnection = std::shared_ptr<void>;

/// Whether an application object can be made. To be asked before, since its constructor ends the
/// process where no platform plug-in starts: of those that the toolkit would try (QT_QPA_PLATFORM,
/// or else the system's usual ones), one must be installed, and its display answer.
/// @param kept The connection that was answered, to be kept until the application has its own: an
///             X server may start anew when its last client leaves, and takes none meanwhile.
bool canMakeApplication(DisplayConnection& kept);

/// What canMakeApplication() asks of the system.
namespace platform_plugins
{

/// The folder of the process's program, where an application object will look, too.
QString programFolder();

/// The platforms that the toolkit tries when nothing names one.
QStringList usualPlatforms();

/// Whether the display that the platform connects to is there; true where there is nothing to
/// connect to.
/// @param kept As canMakeApplication() returns it.
bool displayAnswers(const QString& platform, DisplayConnection& kept);

} // namespace platform_plugins
