#include "DigitGroups.h"

#include <QTextCharFormat>

namespace
{

constexpr int groupSize = 3;
/// Four digits are read at a glance.
constexpr int leastDigits = 5;

/// What makes digits before or after it part of a name or of a fraction.
bool joins(QChar sign)
{
    return sign.isLetterOrNumber() || sign == QLatin1Char('_') || sign == QLatin1Char('#') ||
           sign == QLatin1Char('.') || sign == QLatin1Char(',');
}

bool isDigit(QChar sign)
{
    return sign >= QLatin1Char('0') && sign <= QLatin1Char('9');
}

} // namespace

DigitGroups::DigitGroups(QTextDocument* document) : QSyntaxHighlighter(document) {}

void DigitGroups::highlightBlock(const QString& text)
{
    constexpr double spacing = 140; // percent of the digit that the gap follows
    QTextCharFormat gap;
    gap.setFontLetterSpacingType(QFont::PercentageSpacing);
    gap.setFontLetterSpacing(spacing);

    const int length = int(text.size());
    for (int begin = 0; begin < length;) {
        int end = begin;
        while (end < length && isDigit(text.at(end))) {
            ++end;
        }
        const bool isNumber = end - begin >= leastDigits &&
                              (begin == 0 || !joins(text.at(begin - 1))) &&
                              (end == length || !text.at(end).isLetter());
        for (int last = end - groupSize - 1; isNumber && last >= begin; last -= groupSize) {
            setFormat(last, 1, gap);
        }
        begin = end + 1;
    }
}
