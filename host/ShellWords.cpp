#include "ShellWords.h"

#include <algorithm>

namespace
{

/// Whether a shell takes the sign as it is, wherever in a word it stands.
bool isPlain(QChar sign)
{
    const ushort code = sign.unicode();
    return (code < 0x80 && sign.isLetterOrNumber()) || QStringLiteral("_-+=:,./@%").contains(sign);
}

QString quoted(const QString& word)
{
    if (!word.isEmpty() && std::all_of(word.begin(), word.end(), isPlain)) {
        return word;
    }
    // Nothing but its end means anything between these quotation marks.
    return QLatin1Char('\'') + QString(word).replace(QLatin1Char('\''), QLatin1String("'\\''")) +
           QLatin1Char('\'');
}

} // namespace

QByteArray shellCommand(const QStringList& words)
{
    QStringList line;
    for (const QString& word : words) {
        line << quoted(word);
    }
    return line.join(QLatin1Char(' ')).toUtf8() + '\n';
}

QString asFileName(const QString& name)
{
    const bool isOption = name.startsWith(QLatin1Char('-')) && name != QLatin1String("-");
    return isOption ? QStringLiteral("./") + name : name;
}
