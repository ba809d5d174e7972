#pragma once

#include <QByteArray>
#include <QCommandLineOption>
#include <QHash>
#include <QString>
#include <QStringList>

#include <span>

struct Command;

/// The exit codes of all commands; each command's help says which of the first two means what.
enum ExitCode { ExitYes = 0, ExitNo = 1, ExitTrouble = 2 };

/// What a command leaves: nothing is printed before it is known to have succeeded.
struct Outcome {
    int exitCode;
    QByteArray output;
    /// For standard error.
    QByteArray messages = {};
};

/// A command line that has been understood.
struct Invocation {
    /// Null when only a text was asked for: a help page or the version.
    const Command* command = nullptr;
    QByteArray text;

    /// The arguments that are no options.
    QStringList files;
    /// The values of each option given, by the option's long name; one empty value for a switch.
    QHash<QString, QStringList> options;
    /// Where libraries are looked for, besides the program's own folder.
    QString directory;

    [[nodiscard]] bool has(const char* option) const;
    /// @return The last value of the option, or the empty text.
    [[nodiscard]] QString value(const char* option) const;
    [[nodiscard]] QStringList values(const char* option) const;
};

/// One command of the program.
struct Command {
    const char* name;
    /// As in the usage line: "[FILE]".
    const char* arguments;
    int minArguments;
    int maxArguments;
    const char* summary;
    /// The help page between the usage line and the options.
    const char* description;
    QList<QCommandLineOption> (*options)();
    Outcome (*run)(const Invocation&);
    /// Runs when the program has no application object of its own.
    bool opensDialog;
    /// Why "-" is refused among its arguments; null: it is standard input.
    const char* noStandardInput;
    /// The end of the help page, a line each: what may follow the command's name.
    const char* examples;
};

/// The program's name, as it is printed before every message.
inline constexpr char programName[] = "kv-mvc-settings";

/// @param arguments The program's, its own name first. Needs an application object.
/// @throws Failure
Invocation parseCommandLine(std::span<const Command> commands, const QStringList& arguments);

/// An option of several commands: "-o, --output FILE".
QCommandLineOption outputOption(const QString& description);

/// "--json".
QCommandLineOption jsonOption();
