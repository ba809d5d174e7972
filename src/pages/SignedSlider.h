#pragma once

#include <QSlider>

class QPainter;
class QStyleOptionSlider;

/// A horizontal slider from a negative to a positive number, whose groove is filled from 0 to where
/// the handle is: styles fill it from the left end, so that 0 looks half of something. Tick marks
/// are in the colour of texts, which styles take from a palette's shades, and hosts leave unset.
class SignedSlider : public QSlider
{
public:
    using QSlider::QSlider;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Where the handle's middle is at a value.
    int placeOf(int value) const;
    void drawTicks(QPainter& painter, const QRect& handle) const;
};
