#include "LogGround.h"

#include "pages/Tones.h"

#include <QEvent>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextFrame>

namespace
{

QColor groundOn(const QPalette& window)
{
    // Of the fixed colours of messages the one that is hardest to read on grey.
    const QColor error(180, 0, 0);
    const QColor usual(250, 251, 252);
    const QColor ground = window.color(QPalette::Active, QPalette::Window);
    if (!tones::isDark(ground)) {
        return usual;
    }
    // As light as it must be, for who wants all contrast that there is as it may be.
    constexpr double highContrast = 18;
    constexpr double readable = 5;
    const QColor text = window.color(QPalette::Active, QPalette::WindowText);
    return tones::contrast(text, ground) >= highContrast
               ? QColor(Qt::white)
               : tones::standingOut(ground, Qt::white, 0.5, error, readable);
}

} // namespace

LogGround::LogGround(QTextEdit* log) : QObject(log)
{
    log->installEventFilter(this);
    lay(log);
}

void LogGround::lay(QTextEdit* log)
{
    const bool skinHasOne =
        log->window()->styleSheet().contains(QLatin1Char('#') + log->objectName());
    // A skin's may end dark, where red is hard to read.
    const QColor veil(255, 255, 255, 120);
    QTextFrame* const frame = log->document()->rootFrame();
    QTextFrameFormat format = frame->frameFormat();
    format.setBackground(skinHasOne ? veil : groundOn(log->window()->palette()));
    // Each change lays out all that is in the document.
    if (format != frame->frameFormat()) {
        frame->setFrameFormat(format);
    }
}

bool LogGround::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        lay(static_cast<QTextEdit*>(watched));
    }
    return QObject::eventFilter(watched, event);
}
