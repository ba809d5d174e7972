#pragma once

#include <QObject>

class QWidget;

/// Keeps the palette of a window and of all that is in it that of the application, with what the
/// dialog needs of it, whatever a host has set: texts that look disabled and can be read, and,
/// where the window is dark, outlines that show.
class PaletteCare : public QObject
{
public:
    /// Owned by the window, which has all its widgets.
    explicit PaletteCare(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void apply();

    QWidget* m_window;
};
