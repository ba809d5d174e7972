#include "SettingsJson.h"

#include "SettingsTable.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace
{

/// It changes when a member goes or means something else, and stays when one is added.
constexpr int formatVersion = 1;

/// The reserved bytes that are not zero, in runs that begin at multiples: {OFFSET: DIGITS}.
QJsonObject bytesJson(const KvMvcSettings& settings, int view)
{
    constexpr std::size_t longestRun = 32;
    const std::span<const char> bytes = bytesOf(settings, view);
    const std::vector<bool> named = namedBytes(view);
    QJsonObject runs;
    for (std::size_t begin = 0; begin < bytes.size();) {
        std::size_t end = begin + 1;
        while (end < bytes.size() && end % longestRun != 0 && named[end] == named[begin]) {
            ++end;
        }
        const auto run = bytes.subspan(begin, end - begin);
        if (!named[begin] && std::ranges::any_of(run, [](char byte) { return byte != 0; })) {
            runs[QString::number(begin)] = QString::fromLatin1(
                QByteArray::fromRawData(run.data(), static_cast<int>(run.size())).toHex());
        }
        begin = end;
    }
    return runs;
}

/// @param view -1: the record.
QJsonObject scopeJson(std::span<const Setting> scope, const KvMvcSettings& settings, int view)
{
    QJsonObject object;
    for (const Setting& setting : scope) {
        object[setting.key] = settingJson(settings, {&setting, view});
    }
    const QJsonObject bytes = bytesJson(settings, view);
    if (!bytes.isEmpty()) {
        object[QStringLiteral("bytes")] = bytes;
    }
    return object;
}

} // namespace

QByteArray jsonText(QJsonObject object)
{
    object[QStringLiteral("format_version")] = formatVersion;
    return QJsonDocument(object).toJson();
}

QJsonObject settingsJson(const KvMvcSettings& settings)
{
    QJsonObject object = scopeJson(recordSettings(), settings, -1);
    QJsonArray views;
    for (int view = 0; view < KV_MVC_RECORD_VIEWS; ++view) {
        views.append(scopeJson(viewSettings(), settings, view));
    }
    object[QStringLiteral("views")] = views;
    return object;
}
