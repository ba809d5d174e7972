#include "MessageJson.h"

namespace
{

QJsonValue viewOrNull(int view)
{
    return view < 0 ? QJsonValue() : QJsonValue(view);
}

QJsonValue numberOrNull(const std::optional<double>& number)
{
    // JSON has no infinity; the toolkit writes null for it.
    return number ? QJsonValue(*number) : QJsonValue();
}

} // namespace

QLatin1String kindName(CheckMessage::Kind kind)
{
    switch (kind) {
    case CheckMessage::Error:
        return QLatin1String("error");
    case CheckMessage::Risk:
        return QLatin1String("risk");
    case CheckMessage::Warning:
        return QLatin1String("warning");
    case CheckMessage::Note:
        break;
    }
    return QLatin1String("note");
}

QJsonValue textOrNull(const QString& text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QJsonObject messageJson(const CheckMessage& message)
{
    return {{QStringLiteral("kind"), kindName(message.kind)},
            {QStringLiteral("text"), message.text},
            {QStringLiteral("rule"), textOrNull(message.rule)},
            {QStringLiteral("setting"), textOrNull(message.setting)},
            {QStringLiteral("view"), viewOrNull(message.view)},
            {QStringLiteral("value"), numberOrNull(message.value)},
            {QStringLiteral("limit"), numberOrNull(message.limit)},
            {QStringLiteral("level"), textOrNull(message.level)}};
}

QJsonObject limitJson(const LimitUse& use)
{
    return {{QStringLiteral("name"), use.name},
            {QStringLiteral("view"), viewOrNull(use.view)},
            {QStringLiteral("used"), use.used},
            {QStringLiteral("limit"), use.limit},
            {QStringLiteral("unit"), use.unit},
            {QStringLiteral("rule"), textOrNull(use.rule)},
            {QStringLiteral("level"), textOrNull(use.level)}};
}
