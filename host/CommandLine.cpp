#include "CommandLine.h"

#include "Failure.h"
#include "NearestName.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <kv_config_gui_mvc/companions.h>
#include <kv_config_gui_mvc/version.h>

#include <algorithm>

namespace
{

QString latin1(const char* text)
{
    return QString::fromLatin1(text);
}

const QString helpOption = QStringLiteral("help");

QString usage(const Command& command)
{
    return QStringLiteral("Usage: %1 %2 [OPTION]... %3")
        .arg(latin1(programName), latin1(command.name), latin1(command.arguments));
}

QString programHelp(std::span<const Command> commands)
{
    QString text = QStringLiteral("Usage: %1 COMMAND [OPTION]... [FILE]...\n"
                                  "Edits, shows and checks the settings of the MVC encoder.\n\n"
                                  "Commands:\n")
                       .arg(latin1(programName));
    for (const Command& command : commands) {
        const QString call = latin1(command.name) + QLatin1Char(' ') + latin1(command.arguments);
        text += QStringLiteral("  %1  %2\n").arg(call.leftJustified(26), latin1(command.summary));
    }
    text += QStringLiteral(
        "\nOptions:\n"
        "  -h, --help     Displays this help; after a command, the command's.\n"
        "  -v, --version  Displays the version.\n"
        "\nA FILE to read may be -, which is standard input.\n"
        "Every command exits with 2 on trouble, which it tells on standard error.\n");
    return text;
}

QString examples(const Command& command)
{
    QString text = QStringLiteral("\nExamples:\n");
    for (const QString& example : latin1(command.examples).split(QLatin1Char('\n'))) {
        text +=
            QStringLiteral("  %1 %2 %3\n").arg(latin1(programName), latin1(command.name), example);
    }
    return text;
}

QString commandHelp(const Command& command, const QCommandLineParser& parser)
{
    // The parser's own page begins with a usage line that knows no commands.
    const QString page = parser.helpText();
    return usage(command) + QLatin1Char('\n') + latin1(command.description) +
           page.mid(page.indexOf(QLatin1Char('\n')) + 1) + examples(command);
}

/// The folder where libraries are installed, unless they lie beside the program.
QString librariesFolder()
{
    const QString own = QCoreApplication::applicationDirPath();
    const QDir installed(own + QLatin1String("/" KV_LIBRARIES_FROM_HERE));
    const bool besideProgram =
        QFile::exists(own + QLatin1String("/" KV_MVC_SETTINGS_IO_LIBRARY KV_MVC_LIBRARY_SUFFIX));
    return besideProgram || !installed.exists() ? own : installed.canonicalPath();
}

/// @param hint As of didYouMean(); without one the help page is named.
[[noreturn]] void refuse(const Command* command, const QString& reason, const QString& hint = {})
{
    const QString page = command == nullptr
                             ? latin1(programName)
                             : latin1(programName) + QLatin1Char(' ') + latin1(command->name);
    throw Failure(hint.isEmpty() ? QStringLiteral("%1; see '%2 --help'").arg(reason, page)
                                 : reason + hint);
}

/// "Unknown option 'x'." in the middle of a line.
QString asReason(QString sentence)
{
    sentence[0] = sentence[0].toLower();
    return sentence.endsWith(QLatin1Char('.')) ? sentence.chopped(1) : sentence;
}

const Command& findCommand(std::span<const Command> commands, const QString& name)
{
    const auto found = std::find_if(commands.begin(), commands.end(), [&](const Command& command) {
        return name == QLatin1String(command.name);
    });
    if (found == commands.end()) {
        QStringList names = {QStringLiteral("--help"), QStringLiteral("--version")};
        for (const Command& command : commands) {
            names << latin1(command.name);
        }
        refuse(nullptr,
               name.startsWith(QLatin1Char('-')) ? QStringLiteral("unknown option '%1'").arg(name)
                                                 : QStringLiteral("unknown command '%1'").arg(name),
               didYouMean(name, names));
    }
    return *found;
}

/// The option as it was typed, of which the parser knows the bare name.
QString asTyped(const QString& name, const QStringList& arguments)
{
    for (const QString& argument : arguments) {
        QString option = argument.section(QLatin1Char('='), 0, 0);
        const bool isLong = option.startsWith(QStringLiteral("--"));
        if (option == QStringLiteral("--") + name ||
            (!isLong && option.startsWith(QLatin1Char('-')) && option.contains(name))) {
            return option;
        }
    }
    return name;
}

/// What the parser did not understand.
[[noreturn]] void refuseOptions(const Command& command, const QCommandLineParser& parser,
                                const QStringList& arguments)
{
    const QStringList unknown = parser.unknownOptionNames();
    if (unknown.isEmpty()) {
        refuse(&command, asReason(parser.errorText()));
    }
    QStringList names = {QStringLiteral("--help")};
    for (const QCommandLineOption& option : command.options()) {
        names << QStringLiteral("--") + option.names().constLast();
    }
    const QString typed = asTyped(unknown.first(), arguments);
    refuse(&command, QStringLiteral("unknown option '%1'").arg(typed), didYouMean(typed, names));
}

} // namespace

bool Invocation::has(const char* option) const
{
    return options.contains(latin1(option));
}

QString Invocation::value(const char* option) const
{
    const QStringList all = values(option);
    return all.isEmpty() ? QString() : all.last();
}

QStringList Invocation::values(const char* option) const
{
    return options.value(latin1(option));
}

Invocation parseCommandLine(std::span<const Command> commands, const QStringList& arguments)
{
    Invocation call;
    call.directory = librariesFolder();
    if (arguments.size() < 2) {
        refuse(nullptr, QStringLiteral("no command"));
    }
    const QString& first = arguments.at(1);
    if (first == QLatin1String("--help") || first == QLatin1String("-h")) {
        call.text = programHelp(commands).toUtf8();
        return call;
    }
    if (first == QLatin1String("--version") || first == QLatin1String("-v")) {
        call.text = QByteArray(programName) + " " KV_MVC_VERSION "\n";
        return call;
    }

    const Command& command = findCommand(commands, first);
    QCommandLineParser parser;
    parser.addOptions(command.options());
    parser.addOption({{QStringLiteral("h"), helpOption}, QStringLiteral("Displays this help.")});
    const bool understood = parser.parse(arguments.mid(1));
    if (parser.isSet(helpOption)) {
        call.text = commandHelp(command, parser).toUtf8();
        return call;
    }
    if (!understood) {
        refuseOptions(command, parser, arguments.mid(2));
    }
    call.files = parser.positionalArguments();
    if (call.files.size() < command.minArguments) {
        refuse(&command, QStringLiteral("too few arguments"));
    }
    if (call.files.size() > command.maxArguments) {
        refuse(&command, QStringLiteral("too many arguments"));
    }
    // What a script gets from a variable that is not set.
    if (call.files.contains(QString())) {
        refuse(&command, QStringLiteral("an argument is empty"));
    }
    if (command.noStandardInput != nullptr && call.files.contains(QStringLiteral("-"))) {
        refuse(&command, latin1(command.noStandardInput));
    }
    for (const QCommandLineOption& option : command.options()) {
        const QString name = option.names().constLast();
        if (parser.isSet(name)) {
            call.options[name] =
                option.valueName().isEmpty() ? QStringList{QString()} : parser.values(name);
        }
    }
    call.command = &command;
    return call;
}

QCommandLineOption outputOption(const QString& description)
{
    return {{QStringLiteral("o"), QStringLiteral("output")}, description, QStringLiteral("FILE")};
}

QCommandLineOption jsonOption()
{
    return {QStringLiteral("json"), QStringLiteral("Writes JSON.")};
}
