#include "Commands.h"
#include "Failure.h"
#include "FileNames.h"
#include "Library.h"
#include "TextOutput.h"

#include <QCoreApplication>

#include <clocale>
#include <cstdio>
#include <exception>

namespace
{

Outcome run(int& argc, char** argv)
{
    Invocation call;
    {
        const QCoreApplication application(argc, argv);
        // It sets the user's locale; companions write and read numbers the way of the C locale.
        std::setlocale(LC_NUMERIC, "C");
        call = parseCommandLine(allCommands(), programArguments(argc, argv));
        if (call.command == nullptr) {
            return {ExitYes, call.text};
        }
        if (!call.command->opensDialog) {
            addLibraryFolder(call.directory);
            return call.command->run(call);
        }
    }
    // The dialog wants a process without an application object, or one for windows.
    return call.command->run(call);
}

void print(const Outcome& outcome)
{
    writeText(stderr, outcome.messages);
    if (!writeText(stdout, outcome.output)) {
        throw Failure(QStringLiteral("cannot write to standard output"));
    }
}

int fail(const Failure& failure)
{
    for (const QString& line : failure.lines()) {
        writeText(stderr, line.toUtf8() + '\n');
    }
    return ExitTrouble;
}

} // namespace

int main(int argc, char** argv)
{
    Library::ignoreCurrentFolder();
    try {
        const Outcome outcome = run(argc, argv);
        print(outcome);
        return outcome.exitCode;
    } catch (const Failure& failure) {
        return fail(failure);
    } catch (const std::exception& exception) {
        return fail(Failure(QString::fromUtf8(exception.what())));
    }
}
