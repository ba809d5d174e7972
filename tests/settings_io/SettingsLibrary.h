// The settings file library as a caller has it, and what it prints.
#pragma once

#include <kv_config_gui_mvc/companions.h>

#include <QByteArray>
#include <QLibrary>
#include <QString>
#include <QTemporaryFile>

#include <cstdio>
#include <cstring>
#include <functional>

#include <unistd.h> // MinGW has it, too

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <QFile>
#endif

namespace kvtest
{

/// Standard error of the whole process, as text, while `work` runs.
inline QByteArray standardErrorOf(const std::function<void()>& work)
{
    QTemporaryFile file;
    if (!file.open()) {
        return "no temporary file";
    }
    std::fflush(stderr);
    const int former = ::dup(STDERR_FILENO);
    ::dup2(file.handle(), STDERR_FILENO);
    work();
    std::fflush(stderr);
    ::dup2(former, STDERR_FILENO);
    ::close(former);
    file.seek(0);
    return file.readAll();
}

/// Whether the process has a library of this base name loaded.
inline bool isInProcess(const char* library)
{
#ifdef Q_OS_WIN
    return GetModuleHandleA((QByteArray(library) + ".dll").constData()) != nullptr;
#else
    QFile maps(QStringLiteral("/proc/self/maps"));
    return !maps.open(QIODevice::ReadOnly) || maps.readAll().contains(library);
#endif
}

class SettingsLibrary
{
public:
    /// The toolkit appends the system's suffix of libraries.
    explicit SettingsLibrary(const QString& folder = qEnvironmentVariable("KV_BIN_DIR"))
        : m_library(folder + QStringLiteral("/kv_mvc_settings_io"))
    {
        const auto getApi =
            reinterpret_cast<KvMvcSettingsIoGetApi>(m_library.resolve(KV_MVC_SETTINGS_IO_GET_API));
        if (!getApi) {
            return;
        }
        m_getApi = getApi;
        m_read = reinterpret_cast<KvMvcReadSettings>(getApi(KV_MVC_SETTINGS_IO_READER));
        m_write = reinterpret_cast<KvMvcWriteSettings>(getApi(KV_MVC_SETTINGS_IO_WRITER));
    }
    ~SettingsLibrary() { m_library.unload(); }
    SettingsLibrary(const SettingsLibrary&) = delete;
    SettingsLibrary& operator=(const SettingsLibrary&) = delete;

    bool isLoaded() const { return m_read && m_write; }
    QString loadError() const { return m_library.errorString(); }
    /// The exported function itself.
    KvMvcSettingsIoGetApi getApi() const { return m_getApi; }

    /// The result; what is printed goes to `messages`.
    int read(KvMvcSettings& settings, const QByteArray& path)
    {
        int result = -1;
        messages = standardErrorOf([&] { result = m_read(&settings, path.constData()); });
        return result;
    }
    int write(KvMvcSettings settings, const QByteArray& path)
    {
        int result = -1;
        messages = standardErrorOf([&] { result = m_write(&settings, path.constData()); });
        return result;
    }

    QByteArray messages;
    /// The messages but for those about what a stream leaves open.
    QByteArray messagesOfWhatIsTold() const
    {
        QByteArray told;
        for (const QByteArray& line : messages.split('\n')) {
            const bool isOpen = line.endsWith(": kept as in the preset") ||
                                line.endsWith("they follow from the bit rate");
            told += isOpen || line.isEmpty() ? QByteArray() : line + '\n';
        }
        return told;
    }

private:
    QLibrary m_library;
    KvMvcSettingsIoGetApi m_getApi = nullptr;
    KvMvcReadSettings m_read = nullptr;
    KvMvcWriteSettings m_write = nullptr;
};

inline bool same(const KvMvcSettings& left, const KvMvcSettings& right)
{
    return std::memcmp(&left, &right, sizeof left) == 0;
}

/// A record of which every byte is `byte`.
inline KvMvcSettings filledRecord(int byte)
{
    KvMvcSettings settings;
    std::memset(static_cast<void*>(&settings), byte, sizeof settings);
    return settings;
}

/// UTF-8 that was read as Latin-1 and encoded again, as callers do it.
inline QByteArray doubleConverted(const QByteArray& path)
{
    return QString::fromLatin1(path).toUtf8();
}

} // namespace kvtest
