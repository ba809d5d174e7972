#include "PlatformPlugins.h"

#include <QFileInfo>

#include <windows.h>

#include <vector>

namespace platform_plugins
{

QString programFolder()
{
    std::vector<wchar_t> path(32 * 1024);
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), DWORD(path.size()));
    return QFileInfo(QString::fromWCharArray(path.data(), int(length))).path();
}

QStringList usualPlatforms()
{
    return {QStringLiteral("windows")};
}

bool displayAnswers(const QString&, DisplayConnection&)
{
    return true;
}

} // namespace platform_plugins
