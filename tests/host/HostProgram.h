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

    /// With its own part for windows, and the real settings file library.
    HostProgram();

    /// Puts a library beside the program.
    void addLibrary(const QString& path, const QString& baseName);
    /// Also what the project builds beside the program, and the stubs of these tests.
    void addBuiltLibrary(const QString& baseName);
    /// The real media library, with its worker. @return Whether it was built.
    [[nodiscard]] bool addMediaProbe();
    /// The dialog's translations, and the library of the encoder's messages.
    void addTexts();
    void addStub(const QString& stub, const QString& baseName);
    /// @return The full path of a stub.
    [[nodiscard]] static QString stubPath(const QString& stub);
    void removeLibrary(const QString& baseName);

    /// Runs the program in the directory of its files.
    /// @param input What it gets on standard input.
    Result run(const QStringList& arguments, const QMap<QString, QString>& environment = {},
               const QByteArray& input = {}) const;

    /// Runs a shell script in the directory of its files; "$program" is the program.
    Result runScript(const QString& script) const;

    /// @return The full path of a library beside the program.
    [[nodiscard]] QString libraryPath(const QString& baseName) const;

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
    Result start(const QString& command, const QStringList& arguments,
                 const QMap<QString, QString>& environment, const QByteArray& input) const;

    QTemporaryDir m_directory;
    KvMvcReadSettings m_read = nullptr;
    KvMvcWriteSettings m_write = nullptr;
};
