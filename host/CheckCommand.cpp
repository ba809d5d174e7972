#include "Commands.h"
#include "Encoder.h"
#include "Failure.h"
#include "MessageJson.h"
#include "MessageTexts.h"
#include "Printable.h"
#include "SettingsFiles.h"
#include "SettingsJson.h"
#include "SettingsTable.h"

#include <QJsonArray>

#include <algorithm>
#include <array>

namespace
{

/// One of the files.
struct Checked {
    QString file;
    KvMvcSettings before;
    CheckResult result;
    /// Why it could not be read; the others are checked all the same.
    QStringList trouble = {};
};

/// In the order in which kinds are printed: what refuses the settings first.
constexpr std::array kinds = {CheckMessage::Error, CheckMessage::Risk, CheckMessage::Warning,
                              CheckMessage::Note};

bool hasKind(const CheckResult& result, CheckMessage::Kind kind)
{
    return std::any_of(result.messages.begin(), result.messages.end(),
                       [kind](const CheckMessage& message) { return message.kind == kind; });
}

/// @param beginning Of each line.
/// @param notesToo Whether notes are worth printing when there is nothing else.
QString resultText(const CheckResult& result, const QString& beginning, bool notesToo)
{
    const auto isNote = [](const CheckMessage& message) {
        return message.kind == CheckMessage::Note;
    };
    if (!notesToo && result.accepted &&
        std::all_of(result.messages.begin(), result.messages.end(), isNote)) {
        return {};
    }
    QString text;
    for (const CheckMessage::Kind kind : kinds) {
        for (const CheckMessage& message : result.messages) {
            if (message.kind == kind) {
                // A message is a line, whatever the encoder wrote.
                text +=
                    beginning + kindName(kind) + QStringLiteral(": ") +
                    printable(QString(message.text).replace(QLatin1Char('\n'), QLatin1Char(' '))) +
                    QLatin1Char('\n');
            }
        }
    }
    return text;
}

QJsonObject resultJson(const Checked& checked)
{
    const CheckResult& result = checked.result;
    QJsonArray messages;
    for (const CheckMessage& message : result.messages) {
        messages.append(messageJson(message));
    }
    QJsonArray corrections;
    for (const Difference& difference : compareSettings(checked.before, result.corrected)) {
        corrections.append(differenceJson(difference, checked.before, result.corrected,
                                          QLatin1String("before"), QLatin1String("after")));
    }
    return {{QStringLiteral("accepted"), result.accepted},
            {QStringLiteral("level"), textOrNull(result.level())},
            {QStringLiteral("messages"), messages},
            {QStringLiteral("corrections"), corrections}};
}

QJsonObject troubleJson(const QStringList& lines)
{
    return {{QStringLiteral("accepted"), false},
            {QStringLiteral("trouble"), QJsonArray::fromStringList(lines)}};
}

/// Of one file: its members, at the top.
QByteArray resultsJson(const std::vector<Checked>& all, bool accepted)
{
    QJsonObject object;
    if (all.size() == 1) {
        object = resultJson(all.front());
    } else {
        QJsonArray files;
        for (const Checked& checked : all) {
            QJsonObject file =
                checked.trouble.isEmpty() ? resultJson(checked) : troubleJson(checked.trouble);
            file[QStringLiteral("file")] = checked.file;
            files.append(file);
        }
        object = {{QStringLiteral("accepted"), accepted}, {QStringLiteral("files"), files}};
    }
    return jsonText(object);
}

QByteArray resultsText(const std::vector<Checked>& all, bool notesToo)
{
    QString text;
    for (const Checked& checked : all) {
        const QString beginning =
            all.size() == 1 ? QString() : printable(checked.file) + QStringLiteral(": ");
        text += resultText(checked.result, beginning, notesToo);
    }
    return text.toUtf8();
}

/// @throws Failure when none can be read.
std::vector<Checked> readAll(const SettingsFiles& files, const QStringList& names)
{
    std::vector<Checked> all;
    QStringList trouble;
    bool isAnyRead = false;
    for (const QString& name : names) {
        all.push_back({name, {}, {}});
        try {
            all.back().before = files.read(name);
            isAnyRead = true;
        } catch (const Failure& failure) {
            all.back().trouble = failure.lines();
            trouble += failure.lines();
        }
    }
    if (!isAnyRead) {
        throw Failure(trouble);
    }
    return all;
}

/// For standard error.
QByteArray troubleOf(const std::vector<Checked>& all)
{
    QByteArray text;
    for (const Checked& checked : all) {
        for (const QString& line : checked.trouble) {
            text += line.toUtf8() + '\n';
        }
    }
    return text;
}

/// @throws Failure for options that contradict each other.
void requireOnePlaceForEach(const Invocation& call)
{
    const QString output = call.value("output");
    if (isStandardOutput(output) && call.has("json")) {
        throw Failure(
            QStringLiteral("--json and '-o %1' both write to standard output").arg(output));
    }
    if (call.has("output") && call.files.size() > 1) {
        throw Failure(QStringLiteral("-o takes the settings of one file"));
    }
    if (std::count_if(call.files.begin(), call.files.end(), isStandardInput) > 1) {
        throw Failure(QStringLiteral("standard input can be only one of the files"));
    }
}

} // namespace

QList<QCommandLineOption> checkOptions()
{
    return {
        jsonOption(),
        languageOption(),
        {QStringLiteral("notes"),
         QStringLiteral("Prints the encoder's notes even when there is nothing but notes.")},
        outputOption(QStringLiteral("Saves the settings as the check corrected them, when it "
                                    "accepts them. FILE is replaced when it exists; - is standard "
                                    "output, and the messages go to standard error then.")),
        {QStringLiteral("strict"), QStringLiteral("Refuses settings with risks, too.")}};
}

Outcome runCheck(const Invocation& call)
{
    requireOnePlaceForEach(call);
    const QString output = call.value("output");
    if (call.has("output")) {
        requireWritable(output);
    }
    const SettingsFiles files(call.directory);
    std::vector<Checked> all = readAll(files, call.files);
    const QByteArray trouble = troubleOf(all);
    const MessageTexts texts(call.value("language"));
    const Encoder encoder(call.directory, texts.convert());
    bool accepted = true;
    for (Checked& checked : all) {
        CheckResult& result = checked.result;
        if (checked.trouble.isEmpty()) {
            result = encoder.check(checked.before);
        }
        if (call.has("strict") && hasKind(result, CheckMessage::Risk)) {
            result.accepted = false;
        }
        accepted = accepted && result.accepted;
    }
    const ExitCode exitCode = !trouble.isEmpty() ? ExitTrouble : accepted ? ExitYes : ExitNo;
    const QByteArray messages =
        call.has("json") ? resultsJson(all, accepted) : resultsText(all, call.has("notes"));
    const KvMvcSettings& corrected = all.front().result.corrected;
    if (isStandardOutput(output)) {
        return {exitCode, accepted ? files.text(corrected) : QByteArray(), messages};
    }
    if (accepted && call.has("output")) {
        files.write(corrected, output);
    }
    return {exitCode, messages, trouble};
}
