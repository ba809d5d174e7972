#include "JsonSchema.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <cmath>

namespace
{

bool isOfType(const QJsonValue& value, const QString& type)
{
    return type == QLatin1String("object")    ? value.isObject()
           : type == QLatin1String("array")   ? value.isArray()
           : type == QLatin1String("string")  ? value.isString()
           : type == QLatin1String("boolean") ? value.isBool()
           : type == QLatin1String("null")    ? value.isNull()
           : type == QLatin1String("number")  ? value.isDouble()
           : type == QLatin1String("integer")
               ? value.isDouble() && value.toDouble() == std::trunc(value.toDouble())
               : false;
}

bool isOfTypes(const QJsonValue& value, const QJsonValue& types)
{
    const QJsonArray all = types.isArray() ? types.toArray() : QJsonArray{types};
    for (const QJsonValue& type : all) {
        if (isOfType(value, type.toString())) {
            return true;
        }
    }
    return false;
}

/// A word that is not looked at here would hold nothing.
void requireKnownWords(const QJsonObject& schema)
{
    static const QStringList known = {
        QStringLiteral("$schema"),    QStringLiteral("$comment"),
        QStringLiteral("$defs"),      QStringLiteral("$ref"),
        QStringLiteral("title"),      QStringLiteral("description"),
        QStringLiteral("type"),       QStringLiteral("enum"),
        QStringLiteral("const"),      QStringLiteral("anyOf"),
        QStringLiteral("pattern"),    QStringLiteral("required"),
        QStringLiteral("properties"), QStringLiteral("patternProperties"),
        QStringLiteral("items"),      QStringLiteral("additionalProperties"),
        QStringLiteral("minItems"),   QStringLiteral("maxItems")};
    for (const QString& word : schema.keys()) {
        if (!known.contains(word)) {
            qFatal("the schema has a word that is not known here: %s", qPrintable(word));
        }
    }
}

} // namespace

JsonSchema::JsonSchema(const QString& file)
{
    QFile text(file);
    if (!text.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(file));
    }
    m_schema = QJsonDocument::fromJson(text.readAll()).object();
    if (m_schema.isEmpty()) {
        qFatal("%s is no JSON", qPrintable(file));
    }
}

QString JsonSchema::problemOf(const QJsonValue& value) const
{
    return problemOf(value, m_schema, QString());
}

QString JsonSchema::problemOf(const QJsonValue& value, const QJsonObject& schema,
                              const QString& place) const
{
    requireKnownWords(schema);
    const auto has = [&](const char* word) { return schema.contains(QLatin1String(word)); };
    const auto of = [&](const char* word) { return schema[QLatin1String(word)]; };
    if (has("$ref")) {
        QJsonValue target = m_schema;
        const QStringList path = of("$ref").toString().split(QLatin1Char('/')).mid(1);
        for (const QString& name : path) {
            target = target.toObject()[name];
        }
        if (!target.isObject()) {
            qFatal("the schema has no %s", qPrintable(of("$ref").toString()));
        }
        return problemOf(value, target.toObject(), place);
    }
    if (has("type") && !isOfTypes(value, of("type"))) {
        return place + QStringLiteral(": another type");
    }
    if (has("const") && value != of("const")) {
        return place + QStringLiteral(": another value");
    }
    if (has("enum") && !of("enum").toArray().contains(value)) {
        return place + QStringLiteral(": none of the values");
    }
    if (has("pattern") && value.isString() &&
        !value.toString().contains(QRegularExpression(of("pattern").toString()))) {
        return place + QStringLiteral(": another pattern");
    }
    if (has("anyOf")) {
        bool fits = false;
        const QJsonArray choices = of("anyOf").toArray();
        for (const QJsonValue& choice : choices) {
            fits = fits || problemOf(value, choice.toObject(), place).isEmpty();
        }
        if (!fits) {
            return place + QStringLiteral(": none of the forms");
        }
    }
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        if (array.size() < of("minItems").toInt(0) ||
            array.size() > of("maxItems").toInt(INT_MAX)) {
            return place + QStringLiteral(": too few or too many");
        }
        for (int at = 0; at < array.size() && has("items"); ++at) {
            const QString problem =
                problemOf(array.at(at), of("items").toObject(),
                          QStringLiteral("%1/%2").arg(place, QString::number(at)));
            if (!problem.isEmpty()) {
                return problem;
            }
        }
    }
    return value.isObject() ? problemOfObject(value.toObject(), schema, place) : QString();
}

QString JsonSchema::problemOfObject(const QJsonObject& object, const QJsonObject& schema,
                                    const QString& place) const
{
    const QJsonArray required = schema[QLatin1String("required")].toArray();
    for (const QJsonValue& name : required) {
        if (!object.contains(name.toString())) {
            return QStringLiteral("%1/%2: missing").arg(place, name.toString());
        }
    }
    const QJsonObject properties = schema[QLatin1String("properties")].toObject();
    const QJsonObject patterns = schema[QLatin1String("patternProperties")].toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QString inner = QStringLiteral("%1/%2").arg(place, member.key());
        QJsonValue rule = properties.contains(member.key())
                              ? properties[member.key()]
                              : schema[QLatin1String("additionalProperties")];
        for (auto pattern = patterns.begin(); pattern != patterns.end(); ++pattern) {
            if (member.key().contains(QRegularExpression(pattern.key()))) {
                rule = pattern.value();
            }
        }
        if (rule.isBool() && !rule.toBool()) {
            return inner + QStringLiteral(": not known");
        }
        const QString problem =
            rule.isObject() ? problemOf(member.value(), rule.toObject(), inner) : QString();
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return {};
}
