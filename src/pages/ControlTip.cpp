#include "ControlTip.h"

#include <QWidget>

namespace
{

/// Of a line, as wide as is read at ease.
constexpr int mostColumns = 90;

int columnsOf(QChar sign)
{
    // Ideographs, kana and full-width signs.
    constexpr ushort firstWide = 0x2E80;
    return sign.unicode() >= firstWide ? 2 : 1;
}

/// Breaks at blanks, or anywhere in a text without any, as Japanese.
QString wrapped(const QString& text)
{
    QString lines;
    QString line;
    int columns = 0;
    for (const QChar sign : text) {
        line += sign;
        columns += columnsOf(sign);
        if (sign == QLatin1Char('\n')) {
            lines += line;
            line.clear();
            columns = 0;
        } else if (columns > mostColumns) {
            const int blank = int(line.lastIndexOf(QLatin1Char(' ')));
            const int end = blank > 0 ? blank : int(line.size()) - 1;
            lines += line.left(end) + QLatin1Char('\n');
            line = line.mid(blank > 0 ? end + 1 : end);
            columns = 0;
            for (const QChar rest : line) {
                columns += columnsOf(rest);
            }
        }
    }
    return lines + line;
}

QString asTip(const QString& text)
{
    // What an encoder says is no markup, whatever it looks like.
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace

ControlTip* ControlTip::of(QWidget* control)
{
    auto* const tip = control->findChild<ControlTip*>(QString(), Qt::FindDirectChildrenOnly);
    return tip ? tip : new ControlTip(control);
}

ControlTip::ControlTip(QWidget* control)
    : QObject(control), m_control(control), m_own(control->toolTip())
{
}

void ControlTip::setLines(Part part, const QStringList& lines)
{
    if (m_lines.at(part) != lines) {
        m_lines.at(part) = lines;
        rewrite();
    }
}

void ControlTip::setPicture(const QString& html)
{
    if (m_picture != html) {
        m_picture = html;
        rewrite();
    }
}

void ControlTip::rewrite()
{
    QStringList all = {m_own};
    for (const QStringList& lines : m_lines) {
        for (const QString& line : lines) {
            all += wrapped(line);
        }
    }
    const QString text = all.join(QLatin1Char('\n'));
    m_control->setToolTip(m_picture.isEmpty() ? asTip(text)
                                              : Qt::convertFromPlainText(text) + m_picture);
    m_control->setWhatsThis(asTip(text));
    // Without messages the tip is the description.
    const QStringList& messages = m_lines.at(Messages);
    m_control->setAccessibleDescription(messages.isEmpty() ? QString()
                                                           : messages.join(QLatin1Char('\n')) +
                                                                 QLatin1Char('\n') + text);
}
