// show and diff: settings as text and as JSON.

#include "Commands.h"
#include "Failure.h"
#include "SettingsFiles.h"
#include "SettingsJson.h"
#include "SettingsTable.h"

#include <QJsonArray>

#include <algorithm>
#include <array>

namespace
{

/// The heading or a setting: its name, and one text for each column.
struct Row {
    QString name;
    QStringList values;
};

std::vector<Row> tableRows(const KvMvcSettings& settings)
{
    std::vector<Row> rows = {{QStringLiteral("Setting"), {}}};
    for (int view = 0; view < KV_MVC_RECORD_VIEWS; ++view) {
        rows.front().values << viewName(view);
    }
    for (const Setting& setting : recordSettings()) {
        rows.push_back({setting.name, {settingText(settings, {&setting, -1})}});
    }
    for (const Setting& setting : viewSettings()) {
        Row row = {setting.name, {}};
        for (int view = 0; view < KV_MVC_RECORD_VIEWS; ++view) {
            row.values << settingText(settings, {&setting, view});
        }
        rows.push_back(row);
    }
    return rows;
}

QString table(const KvMvcSettings& settings)
{
    const std::vector<Row> rows = tableRows(settings);
    qsizetype nameWidth = 0;
    qsizetype valueWidth = 0;
    for (const Row& row : rows) {
        nameWidth = std::max<qsizetype>(nameWidth, row.name.size());
        for (const QString& value : row.values) {
            valueWidth = std::max<qsizetype>(valueWidth, value.size());
        }
    }
    const QString gap = QStringLiteral("  ");
    QString text;
    for (const Row& row : rows) {
        QString line = row.name.leftJustified(nameWidth);
        for (const QString& value : row.values) {
            line += gap + value.leftJustified(valueWidth);
        }
        while (line.endsWith(QLatin1Char(' '))) {
            line.chop(1);
        }
        text += line + QLatin1Char('\n');
    }
    return text;
}

} // namespace

QList<QCommandLineOption> showOptions()
{
    return {jsonOption()};
}

Outcome runShow(const Invocation& call)
{
    const SettingsFiles files(call.directory);
    const KvMvcSettings settings = files.read(call.files.first());
    return {ExitYes,
            call.has("json") ? jsonText(settingsJson(settings)) : table(settings).toUtf8()};
}

QList<QCommandLineOption> diffOptions()
{
    return {jsonOption()};
}

Outcome runDiff(const Invocation& call)
{
    if (std::all_of(call.files.begin(), call.files.end(), isStandardInput)) {
        throw Failure(QStringLiteral("standard input can be only one of the two files"));
    }
    const SettingsFiles files(call.directory);
    const KvMvcSettings a = files.read(call.files.at(0));
    const KvMvcSettings b = files.read(call.files.at(1));
    const std::vector<Difference> differences = compareSettings(a, b);
    const ExitCode exitCode = differences.empty() ? ExitYes : ExitNo;
    if (!call.has("json")) {
        return {exitCode, differencesText(a, b).toUtf8()};
    }
    QJsonArray list;
    for (const Difference& difference : differences) {
        list.append(differenceJson(difference, a, b, QLatin1String("a"), QLatin1String("b")));
    }
    const QJsonObject object = {{QStringLiteral("same"), differences.empty()},
                                {QStringLiteral("differences"), list}};
    return {exitCode, jsonText(object)};
}
