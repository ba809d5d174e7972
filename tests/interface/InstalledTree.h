#pragma once

#include <QDir>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

struct RunResult {
    int exitCode; // -1: did not end, -2: crashed
    QString output;
    QString error;
};

/// Runs a program to its end. @param variables Of the environment, beside the present ones.
RunResult run(const QString& program, const QStringList& arguments,
              const QMap<QString, QString>& variables = {});

/// What is installed, in a folder of the test's, and projects of others on it.
class InstalledTree
{
public:
    bool install();
    /// Configures and builds a project in a directory of the test's.
    bool build(const QString& project, const char* directory) const;
    /// Variables by which a script is played in the program that has them; see Autopilot.h.
    QMap<QString, QString> playing(const QByteArray& script) const;

    QString path(const char* name) const { return m_directory.filePath(QLatin1String(name)); }
    /// The folder of an installed example.
    QString example(const char* name) const;
    /// That of the module and its companions.
    QString moduleFolder() const;

private:
    // As people name their folders.
    QTemporaryDir m_directory{QDir::tempPath() + QStringLiteral("/K\u00E4se und Brot-XXXXXX")};
};
