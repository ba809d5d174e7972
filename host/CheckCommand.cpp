#include "Commands.h"
#include "Encoder.h"
#include "Failure.h"
#include "SettingsFiles.h"
#include "SettingsTable.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace
{

QLatin1String kindName(CheckMessage::Kind kind)
{
    switch (kind) {
    case CheckMessage::Error:
        return QLatin1String("error");
    case CheckMessage::Warning:
        return QLatin1String("warning");
    case CheckMessage::Note:
        break;
    }
    return QLatin1String("note");
}

/// @param notesToo Whether notes are worth printing when there is nothing else.
QByteArray resultText(const CheckResult& result, bool notesToo)
{
    const auto isNote = [](const CheckMessage& message) {
        return message.kind == CheckMessage::Note;
    };
    if (!notesToo && result.accepted &&
        std::all_of(result.messages.begin(), result.messages.end(), isNote)) {
        return {};
    }
    QString text;
    for (const CheckMessage& message : result.messages) {
        // A message is a line, whatever the encoder wrote.
        text += kindName(message.kind) + QStringLiteral(": ") +
                QString(message.text).replace(QLatin1Char('\n'), QLatin1Char(' ')) +
                QLatin1Char('\n');
    }
    return text.toUtf8();
}

QByteArray resultJson(const CheckResult& result, const KvMvcSettings& before)
{
    QJsonArray messages;
    for (const CheckMessage& message : result.messages) {
        messages.append(QJsonObject{{QStringLiteral("kind"), kindName(message.kind)},
                                    {QStringLiteral("text"), message.text}});
    }
    QJsonArray corrections;
    for (const Difference& difference : compareSettings(before, result.corrected)) {
        corrections.append(differenceJson(difference, before, result.corrected,
                                          QLatin1String("before"), QLatin1String("after")));
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("accepted"), result.accepted},
                                     {QStringLiteral("messages"), messages},
                                     {QStringLiteral("corrections"), corrections}})
        .toJson();
}

} // namespace

QList<QCommandLineOption> checkOptions()
{
    return {
        jsonOption(),
        {QStringLiteral("notes"),
         QStringLiteral("Prints the encoder's notes even when there is nothing but notes.")},
        outputOption(QStringLiteral("Saves the settings as the check corrected them, when it "
                                    "accepts them. FILE is replaced when it exists; - is standard "
                                    "output, and the messages go to standard error then."))};
}

Outcome runCheck(const Invocation& call)
{
    const QString output = call.value("output");
    const bool toStandardOutput = isStandardOutput(output);
    if (toStandardOutput && call.has("json")) {
        throw Failure(
            QStringLiteral("--json and '-o %1' both write to standard output").arg(output));
    }
    if (call.has("output")) {
        requireWritable(output);
    }
    const SettingsFiles files(call.directory);
    const KvMvcSettings settings = files.read(call.files.first());
    const CheckResult result = Encoder(call.directory).check(settings);
    const ExitCode exitCode = result.accepted ? ExitYes : ExitNo;
    const QByteArray messages =
        call.has("json") ? resultJson(result, settings) : resultText(result, call.has("notes"));
    if (toStandardOutput) {
        return {exitCode, result.accepted ? files.text(result.corrected) : QByteArray(), messages};
    }
    if (result.accepted && call.has("output")) {
        files.write(result.corrected, output);
    }
    return {exitCode, messages};
}
