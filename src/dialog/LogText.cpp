#include "LogText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringView>

#include <algorithm>
#include <iterator>

namespace
{

constexpr int mostMessages = 10'000;
constexpr int longestMessage = 65'536;
/// Of all messages together, in UTF-16 units, but for the last one that is shown: room for the most
/// messages, if they are sentences.
constexpr int longestText = 4 * 1024 * 1024;
constexpr int longestWord = 1000;

bool hasEndlessWord(const QString& text)
{
    int length = 0;
    for (const QChar character : text) {
        length = character.isSpace() ? 0 : length + 1;
        if (length > longestWord) {
            return true;
        }
    }
    return false;
}

/// What stands after a number, in the languages of the reference encoder.
constexpr QStringView units[] = {
    u"%",           u"s",
    u"bit",         u"kbit",
    u"Mbit",        u"bit/s",
    u"kbit/s",      u"Mbit/s",
    u"bits",        u"bytes",
    u"frames",      u"frames/s",
    u"macroblocks", u"macroblocks/s",
    u"Bit",         u"Byte",
    u"Bilder",      u"Bildern",
    u"Bilder/s",    u"Bildern/s",
    u"Makroblöcke", u"Makroblöcke/s",
};

/// Whether a unit begins there. In Japanese all that follows a number counts it.
bool beginsUnit(QStringView text)
{
    const QChar first = text.front();
    const QChar::Script script = first.script();
    if (script == QChar::Script_Han || script == QChar::Script_Hiragana ||
        script == QChar::Script_Katakana) {
        return true;
    }
    const auto isInWord = [](QChar sign) {
        return sign.isLetter() || sign == QLatin1Char('/') || sign == QLatin1Char('%');
    };
    const auto* const end = std::find_if_not(text.begin(), text.end(), isInWord);
    const QStringView word = text.left(end - text.begin());
    return std::find(std::begin(units), std::end(units), word) != std::end(units);
}

/// Lines do not break between a number and its unit. The toolkit copies plain blanks again; what
/// would also keep them from breaking after the stroke of "Mbit/s" would be copied along.
QString withUnitsKept(QString text)
{
    constexpr QChar blank = QLatin1Char(' ');
    for (auto at = text.indexOf(blank, 1); at > 0 && at + 1 < text.size();
         at = text.indexOf(blank, at + 1)) {
        if (text.at(at - 1).isDigit() && beginsUnit(QStringView(text).mid(at + 1))) {
            text[at] = QChar::Nbsp;
        }
    }
    return text;
}

/// Takes messages, one kind after the other, as long as there is room.
class Shortener
{
    Q_DECLARE_TR_FUNCTIONS(AVCVideoEncoderDlg)

public:
    QString take(const QStringList& messages)
    {
        QString text;
        int taken = 0;
        for (; taken < messages.size() && m_messages > 0 && m_characters > 0; ++taken) {
            append(text, messages[taken]);
            --m_messages;
        }
        m_omitted += int(messages.size()) - taken;
        return text;
    }

    QString tellOmitted() const
    {
        const QLocale locale;
        QStringList sentences;
        if (m_omitted > 0) {
            //: At the end of the message log, which is too long to be shown whole.
            sentences += tr("Further messages: %1.").arg(locale.toString(m_omitted));
        }
        if (m_cut > 0) {
            //: At the end of the message log: how many are too long to be shown whole.
            sentences += tr("Messages cut short: %1.").arg(locale.toString(m_cut));
        }
        if (!sentences.isEmpty()) {
            //: "Copy all" is an item of the log's context menu.
            sentences += tr("\"Copy all\" has them whole.");
        }
        return sentences.join(QLatin1Char(' '));
    }

private:
    void append(QString& text, const QString& message)
    {
        const QString shown = shownOf(message);
        text += withUnitsKept(shown) + QLatin1Char('\n');
        m_characters -= int(shown.size());
        m_cut += message.size() > longestMessage ? 1 : 0;
    }

    int m_messages = mostMessages;
    int m_characters = longestText;
    int m_omitted = 0;
    int m_cut = 0;
};

} // namespace

QString shownOf(const QString& message)
{
    if (message.size() <= longestMessage) {
        return message;
    }
    // Not between the halves of a character.
    const int end =
        message[longestMessage - 1].isHighSurrogate() ? longestMessage - 1 : longestMessage;
    return message.left(end) + QChar(0x2026);
}

LogText logText(const QStringList& warnings, const QStringList& errors, const QStringList& notes)
{
    Shortener shortener;
    LogText text;
    text.errors = shortener.take(errors);
    text.warnings = shortener.take(warnings);
    text.notes = shortener.take(notes);
    text.omitted = shortener.tellOmitted();
    text.hasEndlessWord =
        hasEndlessWord(text.warnings) || hasEndlessWord(text.errors) || hasEndlessWord(text.notes);
    return text;
}
