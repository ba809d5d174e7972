#include "QWinWidget.h"

QWinWidget::QWinWidget(NativeWindowHandle parentWindow, QObject* parent, Qt::WindowFlags flags)
    : QWidget(nullptr, flags), m_parentWindow(parentWindow)
{
    if (parent)
        QObject::setParent(parent);
}
