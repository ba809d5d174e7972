#pragma once

#include <QJsonObject>
#include <QString>

/// A JSON Schema, as far as those of the documents go: type, enum, const, anyOf, $ref within the
/// schema, and what objects, arrays and texts consist of.
class JsonSchema
{
public:
    /// @param file A file that holds no such schema stops the test.
    explicit JsonSchema(const QString& file);

    /// @return What is wrong, with its place: "/views/0/width: no integer"; empty for what fits.
    [[nodiscard]] QString problemOf(const QJsonValue& value) const;

private:
    [[nodiscard]] QString problemOf(const QJsonValue& value, const QJsonObject& schema,
                                    const QString& place) const;
    [[nodiscard]] QString problemOfObject(const QJsonObject& object, const QJsonObject& schema,
                                          const QString& place) const;

    QJsonObject m_schema;
};
