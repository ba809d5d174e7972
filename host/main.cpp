#include "Commands.h"
#include "Failure.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>

namespace
{

Outcome run(int& argc, char** argv)
{
    Invocation call;
    {
        const QCoreApplication application(argc, argv);
        call = parseCommandLine(allCommands(), QCoreApplication::arguments());
        if (call.command == nullptr) {
            return {ExitYes, call.text};
        }
        if (!call.command->opensDialog) {
            return call.command->run(call);
        }
    }
    // The dialog wants a process without an application object, or one for windows.
    return call.command->run(call);
}

void print(const QByteArray& text)
{
    const auto size = static_cast<std::size_t>(text.size());
    if (std::fwrite(text.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0) {
        throw Failure(QStringLiteral("cannot write to standard output"));
    }
}

int fail(const QByteArray& text)
{
    std::fprintf(stderr, "%s: %s\n", programName, text.constData());
    return ExitTrouble;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        const Outcome outcome = run(argc, argv);
        print(outcome.output);
        return outcome.exitCode;
    } catch (const Failure& failure) {
        return fail(failure.text().toUtf8());
    } catch (const std::exception& exception) {
        return fail(exception.what());
    }
}
