#include "SignedSlider.h"

#include <QStyleOptionSlider>
#include <QStylePainter>

void SignedSlider::paintEvent(QPaintEvent*)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.state.setFlag(QStyle::State_Sunken, isSliderDown());
    if (underMouse()) {
        option.activeSubControls = QStyle::SC_SliderHandle;
    }
    const auto place = [&](QStyle::SubControl part) {
        return style()->subControlRect(QStyle::CC_Slider, &option, part, this);
    };
    const QRect handle = place(QStyle::SC_SliderHandle);
    QStylePainter painter(this);
    drawTicks(painter, handle);

    QStyleOptionSlider empty = option;
    empty.subControls = QStyle::SC_SliderGroove;
    empty.sliderPosition = minimum();
    empty.sliderValue = minimum();
    painter.drawComplexControl(QStyle::CC_Slider, empty);

    const QRect groove = place(QStyle::SC_SliderGroove);
    const int zero = placeOf(0);
    const int now = handle.center().x();
    const QRect fill(QPoint(qMin(zero, now), groove.top() + 1),
                     QPoint(qMax(zero, now), groove.bottom() - 1));
    if (isEnabled() && value() != 0) {
        painter.fillRect(fill, palette().brush(QPalette::Highlight));
    }

    option.subControls = QStyle::SC_SliderHandle;
    painter.drawComplexControl(QStyle::CC_Slider, option);
}

int SignedSlider::placeOf(int value) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.sliderPosition = value;
    option.sliderValue = value;
    return style()
        ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this)
        .center()
        .x();
}

void SignedSlider::drawTicks(QPainter& painter, const QRect& handle) const
{
    constexpr int length = 3;
    constexpr int gap = 2;
    for (int value = minimum(); tickInterval() > 0 && value <= maximum(); value += tickInterval()) {
        QColor ink = palette().color(QPalette::WindowText);
        // The one in the middle is where nothing is changed.
        ink.setAlphaF(value == 0 ? 1 : 0.5);
        const int x = placeOf(value);
        painter.fillRect(x, handle.top() - gap - length, 1, length, ink);
        painter.fillRect(x, handle.bottom() + 1 + gap, 1, length, ink);
    }
}
