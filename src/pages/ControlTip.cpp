#include "ControlTip.h"

#include <QTextDocument>
#include <QWidget>

QString plainTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

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
        all += lines;
    }
    const QString text = all.join(QLatin1Char('\n'));
    const QString tip = m_picture.isEmpty()
                            ? plainTip(text)
                            : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) + m_picture;
    // Without a description the tip is it, marks of its format included.
    const QStringList& messages = m_lines.at(Messages);
    const QString plain = tip == text ? QString() : text;
    m_control->setAccessibleDescription(
        messages.isEmpty() ? plain : messages.join(QLatin1Char('\n')) + QLatin1Char('\n') + text);
    m_control->setWhatsThis(plainTip(text));
    // Last, as its change is heard of.
    m_control->setToolTip(tip);
}
