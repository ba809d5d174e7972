#include "PaletteCare.h"

#include "pages/Tones.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QTextEdit>
#include <QWidget>

namespace
{

/// Half of what texts have, but no less than this contrast.
QPalette withDisabledTexts(QPalette palette)
{
    constexpr double half = 0.5;
    constexpr double readable = 3;
    const struct {
        QPalette::ColorRole text;
        QPalette::ColorRole ground;
    } roles[] = {{QPalette::WindowText, QPalette::Window},
                 {QPalette::Text, QPalette::Base},
                 {QPalette::ButtonText, QPalette::Button}};
    for (const auto& row : roles) {
        const QColor ground = palette.color(QPalette::Active, row.ground);
        const QColor text = palette.color(QPalette::Active, row.text);
        palette.setColor(QPalette::Disabled, row.text,
                         tones::standingOut(ground, text, half, ground, readable));
    }
    return palette;
}

/// For what stands in a window and does not fill its own ground: styles draw outlines in a darker
/// tone of the window's, which on a dark one is none.
QPalette withOutlines(QPalette palette)
{
    constexpr int styleDarkens = 140;
    constexpr double visible = 2.5;
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    if (tones::isDark(window)) {
        const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
        palette.setColor(
            QPalette::Window,
            tones::standingOut(window, text, 0, window, visible).lighter(styleDarkens));
    }
    return palette;
}

} // namespace

PaletteCare::PaletteCare(QWidget* window) : QObject(window), m_window(window)
{
    window->installEventFilter(this);
    apply();
}

bool PaletteCare::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ApplicationPaletteChange) {
        // A sheet's colours are a part of palettes, too.
        const QString sheet = m_window->styleSheet();
        m_window->setStyleSheet(QString());
        apply();
        m_window->setStyleSheet(sheet);
    }
    return QObject::eventFilter(watched, event);
}

void PaletteCare::apply()
{
    const QPalette palette = withDisabledTexts(QApplication::palette());
    const QPalette outlined = withOutlines(palette);
    m_window->setPalette(palette);
    // One by one: under a style sheet nothing is handed on.
    const auto widgets = m_window->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        // The log's is given.
        if (!widget->isWindow() && !qobject_cast<QTextEdit*>(widget)) {
            widget->setPalette(outlined);
        }
    }
}
