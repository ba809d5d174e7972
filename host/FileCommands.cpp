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
    const bool toFile = call.has("output") && !isStandardOutput(output);
    if (toFile) {
        requireWritable(output);
    }
    const SettingsFiles files(call.directory);
    const KvMvcSettings settings = make(files);
    if (!toFile) {
        return {ExitYes, files.text(settings)};
    }
    files.write(settings, output);
    return {ExitYes, {}};
}

} // namespace

QList<QCommandLineOption> writingOptions()
{
    return {outputOption(
        QStringLiteral("Writes FILE, which is replaced when it exists; - is standard output, "
                       "as without this option."))};
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
