#include "Printable.h"

namespace
{

/// The marks, embeddings, overrides and isolates of the bidirectional algorithm (UAX #9).
bool turnsDirection(ushort code)
{
    return code == 0x061C || code == 0x200E || code == 0x200F ||
           (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

bool isEscaped(QChar sign)
{
    return sign.category() == QChar::Other_Control || sign.category() == QChar::Separator_Line ||
           sign.category() == QChar::Separator_Paragraph || turnsDirection(sign.unicode());
}

} // namespace

QString printable(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar sign : text) {
        if (isEscaped(sign)) {
            result += QStringLiteral("\\u%1").arg(sign.unicode(), 4, 16, QLatin1Char('0'));
        } else {
            result += sign;
        }
    }
    return result;
}
