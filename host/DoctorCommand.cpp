#include "Commands.h"
#include "Failure.h"
#include "FatalMessages.h"
#include "Library.h"
#include "ModuleTrace.h"
#include "Printable.h"
#include "TextOutput.h"
#include "WindowPart.h"

#include <QLocale>

#include <kv_config_gui_mvc/config_gui.h>
#include <kv_config_gui_mvc/version.h>

namespace
{

QString environmentLine(const char* name)
{
    return qEnvironmentVariableIsSet(name)
               ? QStringLiteral("%1=%2\n").arg(QLatin1String(name),
                                               printable(qEnvironmentVariable(name)))
               : QString();
}

/// What of the environment decides on windows, plug-ins and the language.
QString environmentText()
{
    QString text;
    for (const char* name :
         {"DISPLAY", "WAYLAND_DISPLAY", "XDG_SESSION_TYPE", "QT_QPA_PLATFORM", "QT_PLUGIN_PATH",
          "QT_QPA_PLATFORM_PLUGIN_PATH", "LD_LIBRARY_PATH", "LC_ALL", "LANG", "LANGUAGE"}) {
        text += environmentLine(name);
    }
    return text;
}

/// @return Why the dialog does not open; empty when it does.
QString tryDialog(const QString& directory)
{
    // A platform without a display may end the process, with a reason of its own.
    const FatalMessages noDisplay;
    const Library module(directory, {KV_MVC_GUI_LIBRARY});
    const auto show = module.function<KvShowMvcEncoderPages>(KV_MVC_GUI_SHOW_PAGES);
    windowPart(directory).function<KvLeaveDialogs>(leaveDialogsName)();
    KvMvcSettings settings = {};
    const int32_t result = show(&settings, KV_MVC_GUI_BASIC_TAB | KV_MVC_GUI_ADVANCED_TAB, nullptr);
    if (result != KV_MVC_GUI_ERROR) {
        return {};
    }
    const QString reason = ModuleTrace::reason();
    return reason.isEmpty() ? QStringLiteral("it does not tell why") : reason;
}

} // namespace

QList<QCommandLineOption> doctorOptions()
{
    return {outputOption(QStringLiteral("Writes FILE, which is replaced when it exists; its name "
                                        "ends in .txt."))};
}

Outcome runDoctor(const Invocation& call)
{
    const QString output = call.value("output");
    if (call.has("output") && !output.endsWith(QLatin1String(".txt"), Qt::CaseInsensitive)) {
        throw Failure(
            QStringLiteral("cannot write '%1': the name of a report ends in .txt").arg(output));
    }
    QString text = QStringLiteral("kv-mvc-settings " KV_MVC_VERSION ", libraries in %1\n")
                       .arg(printable(call.directory)) +
                   QStringLiteral("language of the user: %1\n").arg(QLocale::system().name()) +
                   environmentText() + QLatin1Char('\n');
    const ModuleTrace trace;
    QString reason;
    try {
        reason = tryDialog(call.directory);
    } catch (const Failure& failure) {
        reason = failure.lines().join(QLatin1Char('\n'));
    }
    for (const QString& line : ModuleTrace::lines()) {
        text += printable(line) + QLatin1Char('\n');
    }
    text += QLatin1Char('\n') +
            (reason.isEmpty() ? QStringLiteral("The dialog opens.\n")
                              : QStringLiteral("The dialog does not open: %1\n").arg(reason));
    const int exitCode = reason.isEmpty() ? ExitYes : ExitNo;
    if (!call.has("output")) {
        return {exitCode, text.toUtf8()};
    }
    writeTextFile(output, text.toUtf8());
    return {exitCode, {}};
}
