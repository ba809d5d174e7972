#include "SkinSheet.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

QByteArray skinBytes(const QString& name)
{
    QFile file(QStringLiteral(":/res_mvc/skins/%1.qss").arg(name));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QString skinText(const QString& name)
{
    return QString::fromLatin1(skinBytes(name));
}

QVector<SkinRule> skinRules(const QString& sheet)
{
    static const QRegularExpression comment(QStringLiteral("/\\*.*?\\*/"),
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression rule(QStringLiteral("([^{}]+)\\{([^{}]*)\\}"));

    QString text = sheet;
    text.remove(comment);
    QVector<SkinRule> rules;
    for (auto match = rule.globalMatch(text); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        QMap<QString, QString> declarations;
        for (const QString& line : found.captured(2).split(QLatin1Char(';'))) {
            const int colon = int(line.indexOf(QLatin1Char(':')));
            if (colon > 0) {
                declarations.insert(line.left(colon).simplified(),
                                    line.mid(colon + 1).simplified());
            }
        }
        for (const QString& selector : found.captured(1).split(QLatin1Char(','))) {
            rules.append({selector.simplified(), declarations});
        }
    }
    return rules;
}
