#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A folder "host" with the host program, a folder "module" with the module, or both in "host", and
/// the companion stubs that a test puts into either. The program runs as a process of its own,
/// since an application object, loaded libraries and environment are the process's. Libraries are
/// named without the platform's extension, here and in what comes of a run.
class Sandbox
{
public:
    enum class Module { BesideHost, Apart };
    explicit Sandbox(Module where = Module::BesideHost);
    Sandbox(const Sandbox&) = delete;
    Sandbox& operator=(const Sandbox&) = delete;
    ~Sandbox();

    /// Copies a stub to "FOLDER/NAME".
    void add(const char* stub, const char* name, const char* folder = "host") const;
    /// The stubs of the required companions.
    void addRequired() const;
    /// The reference companions, those that there are.
    void addReference() const;
    QString path(const QString& name) const { return m_directory.filePath(name); }
    QString libraryPath(const char* name, const char* folder = "host") const;

    /// For run(): lets the system's loader find companions in the folder "module". The module's own
    /// run path does that already; on Windows, which knows none, the search path does, and so it
    /// does where the address sanitizer loads libraries.
    QMap<QString, QString> findingBesideTheModule() const;

    struct Result {
        int exitCode;
        QStringList lines;
        /// Load, call and unload lines of the stubs.
        QStringList log;
        QString errors;

        /// The rest of the first line that begins so; null without one.
        QString value(const char* beginning) const;
        /// The rest of every line that begins so.
        QStringList values(const char* beginning) const;
    };
    /// Runs the steps of the host program. @param environment Changes; an empty value removes.
    Result run(const QStringList& steps, const QMap<QString, QString>& environment = {}) const;

private:
    QTemporaryDir m_directory;
    const QString m_program;
    const QString m_module;
};
