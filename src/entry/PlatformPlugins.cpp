#include "PlatformPlugins.h"

#include "dialog/Trace.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>

#include <algorithm>

namespace
{

QStringList pluginFolders()
{
    QStringList folders = QCoreApplication::libraryPaths();
    folders += platform_plugins::programFolder();
    for (QString& folder : folders) {
        folder += QLatin1String("/platforms");
    }
    const QString own = qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH");
    return own.isEmpty() ? folders : QStringList(own) + folders;
}

QStringList keysOf(const QJsonObject& plugin)
{
    QStringList keys;
    const QJsonObject about = plugin.value(QLatin1String("MetaData")).toObject();
    const QJsonArray values = about.value(QLatin1String("Keys")).toArray();
    for (const auto& value : values) {
        keys += value.toString().toLower();
    }
    return keys;
}

QStringList installedPlatforms()
{
    QStringList platforms;
    const auto builtIn = QPluginLoader::staticPlugins();
    for (const QStaticPlugin& plugin : builtIn) {
        platforms += keysOf(plugin.metaData());
    }
    for (const QString& folder : pluginFolders()) {
        const QDir files(folder);
        const QStringList names = files.entryList(QDir::Files);
        for (const QString& name : names) {
            if (QLibrary::isLibrary(name)) {
                platforms += keysOf(QPluginLoader(files.filePath(name)).metaData());
            }
        }
    }
    return platforms;
}

/// "xcb:option;wayland" names two.
QStringList wantedPlatforms()
{
    QStringList platforms = qEnvironmentVariable("QT_QPA_PLATFORM")
                                .toLower()
                                .split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (QString& platform : platforms) {
        platform = platform.section(QLatin1Char(':'), 0, 0);
    }
    return platforms.isEmpty() ? platform_plugins::usualPlatforms() : platforms;
}

} // namespace

bool canMakeApplication(DisplayConnection& kept)
{
    const QStringList installed = installedPlatforms();
    const QStringList wanted = wantedPlatforms();
    return std::any_of(wanted.begin(), wanted.end(), [&](const QString& platform) {
        const bool isInstalled = installed.contains(platform);
        const bool works = isInstalled && platform_plugins::displayAnswers(platform, kept);
        trace::say([&] {
            return QStringLiteral("platform plug-in %1: %2")
                .arg(platform, works         ? QStringLiteral("works")
                               : isInstalled ? QStringLiteral("its display does not answer")
                                             : QStringLiteral("not in %1")
                                                   .arg(pluginFolders().join(QLatin1String(", "))));
        });
        return works;
    });
}
