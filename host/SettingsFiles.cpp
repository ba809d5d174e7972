#include "SettingsFiles.h"

#include "Failure.h"
#include "StandardErrorCapture.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>

#include <cstdio>

namespace
{

template <class Function>
Function apiFunction(const Library& library, int32_t code)
{
    const auto getApi = library.function<KvMvcSettingsIoGetApi>(KV_MVC_SETTINGS_IO_GET_API);
    const KvMvcFunction function = getApi(code);
    if (function == nullptr) {
        throw Failure(QStringLiteral("the settings file library has no function %1").arg(code));
    }
    return reinterpret_cast<Function>(function);
}

/// Calls a function of the library, which explains itself on standard error.
/// @throws Failure with the library's first line, or with `failed` when it gave none.
template <class Call>
void callLibrary(const QString& failed, const Call& call)
{
    StandardErrorCapture capture;
    const int32_t result = call();
    const QByteArray text = capture.finish();
    if (result == 0) {
        std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stderr);
        return;
    }
    const QStringList lines = QString::fromUtf8(text).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (lines.size() <= 1) {
        throw Failure(lines.isEmpty() ? failed : lines.first().trimmed());
    }
    throw Failure(
        QStringLiteral("%1 (and %2 more)").arg(lines.first().trimmed()).arg(lines.size() - 1));
}

} // namespace

SettingsFiles::SettingsFiles(const QString& directory)
    : m_library(directory, {QStringLiteral("kv_mvc_settings_io")}),
      m_read(apiFunction<KvMvcReadSettings>(m_library, KV_MVC_SETTINGS_IO_READER)),
      m_write(apiFunction<KvMvcWriteSettings>(m_library, KV_MVC_SETTINGS_IO_WRITER))
{
}

KvMvcSettings SettingsFiles::read(const QString& path) const
{
    requireReadable(path);
    KvMvcSettings settings = {};
    callLibrary(QStringLiteral("cannot read settings from '%1'").arg(path),
                [&] { return m_read(&settings, path.toUtf8().constData()); });
    return settings;
}

void SettingsFiles::write(const KvMvcSettings& settings, const QString& path) const
{
    KvMvcSettings copy = settings;
    callLibrary(QStringLiteral("cannot write '%1'").arg(path),
                [&] { return m_write(&copy, path.toUtf8().constData()); });
}

QByteArray SettingsFiles::text(const KvMvcSettings& settings) const
{
    const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("settings.ini")));
    if (directory.isValid()) {
        write(settings, file.fileName());
    }
    if (!file.open(QIODevice::ReadOnly)) {
        throw Failure(QStringLiteral("cannot use a temporary file: %1")
                          .arg(directory.isValid() ? file.errorString() : directory.errorString()));
    }
    return file.readAll();
}

void requireReadable(const QString& path)
{
    // Not opened here: the reader does, and has its own words for what it finds inside.
    const QFileInfo file(path);
    const auto refuse = [&](const QString& reason) {
        throw Failure(QStringLiteral("cannot read '%1': %2").arg(path, reason));
    };
    if (!file.exists()) {
        refuse(QStringLiteral("there is no such file"));
    }
    if (file.isDir()) {
        refuse(QStringLiteral("it is a directory"));
    }
    if (!file.isReadable()) {
        refuse(QStringLiteral("permission denied"));
    }
}

void requireWritable(const QString& path)
{
    const QFileInfo file(path);
    const QString suffix = file.suffix().toLower();
    const QFileInfo directory(file.path());
    const auto refuse = [&](const QString& reason) {
        throw Failure(QStringLiteral("cannot write '%1': %2").arg(path, reason));
    };
    if (suffix != QLatin1String("cfg") && suffix != QLatin1String("ini")) {
        refuse(QStringLiteral("the name of a settings file ends in .cfg or .ini"));
    }
    if (file.exists() && !file.isFile()) {
        refuse(QStringLiteral("it is no file"));
    }
    if (!directory.isDir()) {
        refuse(QStringLiteral("there is no directory '%1'").arg(file.path()));
    }
    if (!directory.isWritable() || (file.exists() && !file.isWritable())) {
        refuse(QStringLiteral("permission denied"));
    }
}
