#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVector>

/// The bytes of a skin of the bundle, and its text; empty when there is none.
QByteArray skinBytes(const QString& name);
QString skinText(const QString& name);

/// One rule of a style sheet.
struct SkinRule {
    QString selector;                    ///< as written, with single blanks
    QMap<QString, QString> declarations; ///< property to value, with single blanks
};

/// The rules of a style sheet in their order; a rule for several selectors counts once for each.
QVector<SkinRule> skinRules(const QString& sheet);
