#pragma once

#include "NativeWindow.h"

#include <QWidget>

/// Stands for a window of the host, as the parent of the dialog.
class QWinWidget : public QWidget
{
    Q_OBJECT

public:
    explicit QWinWidget(NativeWindowHandle parentWindow, QObject* parent = nullptr,
                        Qt::WindowFlags flags = {});

    NativeWindowHandle parentWindow() const { return m_parentWindow; }

private:
    NativeWindowHandle m_parentWindow;
};
