#pragma once

#include <QObject>

class QWidget;

/// Draws the edges of a frame on whole pixels where a logical one is no whole number of them:
/// styles draw a line where it is partly outside the widget, and lose it.
class FrameEdges : public QObject
{
public:
    /// Owned by the widget: a frame, a scroll area, or a tab widget, whose pane it is.
    explicit FrameEdges(QWidget* widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_painting = false;
};
