#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <kv_config_gui_mvc/companions.h>

/// A copy of the program in a directory of its own, with the libraries that a test gives it, and a
/// directory of files that it works in.
class HostProgram
{
public:
    struct Result {
        int exitCode;
        QString output;
        QString error;
    };

    /// With the real settings file library.
    HostProgram();

    /// Puts a library beside the program.
    void addLibrary(const QString& path, const QString& baseName);
    /// Also what the project builds beside the program, and the stubs of these tests.
    void addBuiltLibrary(const QString& baseName);
    void addStub(const QString& stub, const QString& baseName);
    void removeLibrary(const QString& baseName);

    /// Runs the program in the directory of its files.
    Result run(const QStringList& arguments, const QMap<QString, QString>& environment = {}) const;

    /// @return The full path of the program.
    [[nodiscard]] QString program() const;
    /// @return The full path of a file in the directory of files.
    [[nodiscard]] QString path(const QString& name) const;
    [[nodiscard]] QByteArray content(const QString& name) const;
    void setContent(const QString& name, const QByteArray& content) const;
    [[nodiscard]] QStringList fileNames() const;

    /// Writes and reads settings files without the program.
    void writeSettings(const QString& name, const KvMvcSettings& settings) const;
    [[nodiscard]] KvMvcSettings readSettings(const QString& name) const;

private:
    [[nodiscard]] QString libraryPath(const QString& baseName) const;

    QTemporaryDir m_directory;
    KvMvcReadSettings m_read = nullptr;
    KvMvcWriteSettings m_write = nullptr;
};
