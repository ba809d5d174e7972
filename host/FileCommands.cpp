// defaults, import and set: settings files from something else.

#include "Commands.h"
#include "Encoder.h"
#include "Failure.h"
#include "SettingsFiles.h"
#include "SettingsTable.h"

#include <cstring>

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

QCommandLineOption newFileOption()
{
    return outputOption(
        QStringLiteral("Writes FILE, which is replaced when it exists; - is standard output, "
                       "as without this option."));
}

bool isSame(const KvMvcSettings& a, const KvMvcSettings& b)
{
    // Bytes without a name are the encoder's, and count as well.
    return std::memcmp(static_cast<const void*>(&a), static_cast<const void*>(&b), sizeof a) == 0;
}

} // namespace

QList<QCommandLineOption> defaultsOptions()
{
    return {newFileOption(),
            {QStringLiteral("set"),
             QStringLiteral("Sets a setting, as the command set does. May be given several times."),
             QStringLiteral("KEY=VALUE")}};
}

Outcome runDefaults(const Invocation& call)
{
    const qint32 preset = requirePreset(call.files.first());
    return writeSettings(call, [&](const SettingsFiles& files) {
        return files.with(call.values("set"), Encoder(call.directory).defaults(preset));
    });
}

QList<QCommandLineOption> importOptions()
{
    return {newFileOption()};
}

Outcome runImport(const Invocation& call)
{
    return writeSettings(
        call, [&](const SettingsFiles& files) { return files.read(call.files.first()); });
}

QList<QCommandLineOption> setOptions()
{
    return {outputOption(
        QStringLiteral("Writes them to this FILE, which is replaced when it exists, and leaves "
                       "the other as it is; - is standard output, and then nothing else is "
                       "printed there."))};
}

Outcome runSet(const Invocation& call)
{
    const QString file = call.files.first();
    const bool inPlace = !call.has("output");
    const QString output = inPlace ? file : call.value("output");
    const bool toStandardOutput = isStandardOutput(output);
    if (!toStandardOutput) {
        requireWritable(output, inPlace ? Target::File : Target::FileOrStream);
    }
    const SettingsFiles files(call.directory);
    const KvMvcSettings before = files.read(file);
    const KvMvcSettings after = files.with(call.files.mid(1), before);
    if (toStandardOutput) {
        return {ExitYes, files.text(after)};
    }
    if (!inPlace || !isSame(before, after)) {
        files.write(after, output);
    }
    return {ExitYes, differencesText(before, after).toUtf8()};
}
