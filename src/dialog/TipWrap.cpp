#include "TipWrap.h"

#include "pages/TextFit.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

QString wrappedTip(const QString& tip)
{
    if (Qt::mightBeRichText(tip)) {
        return tip;
    }
    // Of usual letters; of the widest ones half as many.
    constexpr int letters = 70;
    const QFont font = QToolTip::font();
    const int width = letters * QFontMetrics(font).averageCharWidth();
    QStringList lines;
    const QStringList paragraphs = tip.split(QLatin1Char('\n'));
    for (const QString& paragraph : paragraphs) {
        lines +=
            paragraph.isEmpty() ? QStringList{QString()} : text_fit::lines(paragraph, font, width);
    }
    return lines.join(QLatin1Char('\n'));
}

TipWrap::TipWrap(QWidget* window) : QObject(window)
{
    const auto widgets = window->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        widget->installEventFilter(this);
    }
}

bool TipWrap::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        auto* const widget = static_cast<QWidget*>(watched);
        const QString tip = widget->toolTip();
        if (!tip.isEmpty()) {
            QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), wrappedTip(tip),
                               widget, {}, widget->toolTipDuration());
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
