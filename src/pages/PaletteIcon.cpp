#include "PaletteIcon.h"

#include "Tones.h"

#include <QAbstractButton>
#include <QEvent>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>

namespace
{

QPixmap lightened(QPixmap picture)
{
    constexpr int white = 150;
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(picture.rect(), QColor(255, 255, 255, white));
    return picture;
}

void addLightened(QIcon& icon, const QString& file, QIcon::State state)
{
    for (const char* density : {".", "@2x.", "@3x."}) {
        QString path = file;
        const QPixmap picture(
            path.replace(path.lastIndexOf(QLatin1Char('.')), 1, QLatin1String(density)));
        if (!picture.isNull()) {
            icon.addPixmap(lightened(picture), QIcon::Normal, state);
        }
    }
}

} // namespace

void PaletteIcon::set(QAbstractButton* button, const QString& expanded, const QString& collapsed)
{
    button->installEventFilter(new PaletteIcon(button, expanded, collapsed));
}

PaletteIcon::PaletteIcon(QAbstractButton* button, const QString& expanded, const QString& collapsed)
    : QObject(button), m_button(button), m_expanded(expanded), m_collapsed(collapsed)
{
    show(false);
}

bool PaletteIcon::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    // When all that has a say has had it: palette, style and style sheets.
    case QEvent::Show:
    case QEvent::Paint:
        if (isOnDark() != m_light) {
            show(!m_light);
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool PaletteIcon::isOnDark() const
{
    const auto* const tool = qobject_cast<const QToolButton*>(m_button);
    const auto role = tool && tool->autoRaise() ? QPalette::WindowText : QPalette::ButtonText;
    // A sheet that gives a button another ground gives it the colour of its text, too.
    return !tones::isDark(m_button->palette().color(QPalette::Active, role));
}

void PaletteIcon::show(bool light)
{
    m_light = light;
    QIcon icon;
    if (light) {
        addLightened(icon, m_expanded, QIcon::On);
        addLightened(icon, m_collapsed, QIcon::Off);
    } else {
        icon.addFile(m_expanded, QSize(), QIcon::Normal, QIcon::On);
        icon.addFile(m_collapsed, QSize(), QIcon::Normal, QIcon::Off);
    }
    m_button->setIcon(icon);
}
