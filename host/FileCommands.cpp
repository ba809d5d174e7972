// defaults and import: settings files from something else.

#include "Commands.h"
#include "Encoder.h"
#include "Failure.h"
#include "SettingsFiles.h"
#include "SettingsTable.h"

namespace
{

/// @param make The settings; called when the place to write to is known to be good.
template <class Make>
Outcome writeSettings(const Invocation& call, const Make& make)
{
    const QString output = call.value("output");
    if (call.has("output")) {
        requireWritable(output);
    }
    const SettingsFiles files(call.directory);
    const KvMvcSettings settings = make(files);
    if (!call.has("output")) {
        return {ExitYes, files.text(settings)};
    }
    files.write(settings, output);
    return {ExitYes, {}};
}

} // namespace

QList<QCommandLineOption> writingOptions()
{
    return {outputOption(
        QStringLiteral("Writes FILE, not standard output; it is replaced when it exists."))};
}

Outcome runDefaults(const Invocation& call)
{
    const qint32 preset = requirePreset(call.files.first());
    return writeSettings(
        call, [&](const SettingsFiles&) { return Encoder(call.directory).defaults(preset); });
}

Outcome runImport(const Invocation& call)
{
    return writeSettings(
        call, [&](const SettingsFiles& files) { return files.read(call.files.first()); });
}
