#pragma once

#include <QStringList>

class QWidget;

/// What of a window's visible texts has too little room: one line a fault, with the widget's name,
/// the text, and what it has and needs in device-independent pixels. Measured are labels, check
/// boxes, radio buttons, group titles, tabs, the chosen item of each list, and the widest numbers
/// of each field, against the room that the style leaves for text.
QStringList cutTexts(const QWidget* window);

/// Visible labels and controls that overlap each other, stick out of their parent, or stand on a
/// page with a horizontal scroll bar.
QStringList collisions(const QWidget* window);
