#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

/// The edges of a window: left and top inside, right and bottom one beyond.
struct WindowEdges {
    int left;
    int top;
    int right;
    int bottom;
};

/// Where a dialog's corner goes to centre it over its parent, within the host widget, which covers
/// the desktop. The upper bound is the host's size less the dialog's, not its far edge.
QPoint centredOver(const WindowEdges& parent, QSize dialog, const QRect& host);
