#include "ControlTip.h"

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
    m_control->setToolTip(m_picture.isEmpty()
                              ? plainTip(text)
                              : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) + m_picture);
    m_control->setWhatsThis(plainTip(text));
    // Without messages the tip is the description.
    const QStringList& messages = m_lines.at(Messages);
    m_control->setAccessibleDescription(messages.isEmpty() ? QString()
                                                           : messages.join(QLatin1Char('\n')) +
                                                                 QLatin1Char('\n') + text);
}
