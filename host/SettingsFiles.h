#pragma once

#include "Library.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <kv_config_gui_mvc/companions.h>

/// Settings files and media files, through the settings file library.
class SettingsFiles
{
public:
    /// @param directory Where libraries are looked for first.
    explicit SettingsFiles(const QString& directory);

    /// @param path Of a settings file or a media file; a settings file may also come from a pipe
    ///             or a device, or from standard input.
    /// @throws Failure, with a line for each error, when the file is missing, unreadable or
    ///         malformed.
    [[nodiscard]] KvMvcSettings read(const QString& path) const;

    /// Writes a settings file; a file of that name is replaced.
    /// @param path None that isStandardOutput().
    /// @throws Failure when it cannot be written.
    void write(const KvMvcSettings& settings, const QString& path) const;

    /// Sets single settings, one after the other.
    /// @param assignments KEY=VALUE each, as of KvMvcSetSetting.
    /// @throws Failure, with a line for each that is wrong.
    [[nodiscard]] KvMvcSettings with(const QStringList& assignments,
                                     const KvMvcSettings& settings) const;

    /// @return The text of a settings file.
    [[nodiscard]] QByteArray text(const KvMvcSettings& settings) const;

private:
    Library m_library;
    KvMvcReadSettings m_read;
    KvMvcWriteSettings m_write;
};

/// Whether a name means the stream and no file: "-"; for output on Unix "/dev/stdout", too.
bool isStandardInput(const QString& path);
bool isStandardOutput(const QString& path);

/// Refuses what cannot be read, with the reason.
/// @throws Failure
void requireReadable(const QString& path);

/// What may be written to.
enum class Target {
    File,
    FileOrStream ///< also a pipe, a character device, and standard output
};

/// Refuses what cannot be written, before any work is done for it: settings files end in ".cfg" or
/// ".ini", so that no media file is ever written over.
/// @throws Failure
void requireWritable(const QString& path, Target target = Target::FileOrStream);
