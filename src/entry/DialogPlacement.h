#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QVector>

/// The edges of a window: left and top inside, right and bottom one beyond.
struct WindowEdges {
    int left;
    int top;
    int right;
    int bottom;
};

/// A screen as the toolkit sees it: its corner in the window system's pixels, which the toolkit
/// keeps, its size divided by the scale.
struct ScaledScreen {
    QRect geometry;
    /// Pixels of the window system for one of the toolkit's.
    qreal scale;
};

/// The edges, given in the window system's pixels, in the toolkit's. The screen that holds the
/// window's middle decides, or the first one.
WindowEdges toToolkitPixels(const WindowEdges& window, const QVector<ScaledScreen>& screens);

/// Where a dialog's corner goes to centre it over its parent, within the host widget, which covers
/// the desktop. The upper bound is the host's size less the dialog's, not its far edge.
QPoint centredOver(const WindowEdges& parent, QSize dialog, const QRect& host);
