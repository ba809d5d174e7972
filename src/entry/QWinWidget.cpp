#include "QWinWidget.h"

#include <QChildEvent>
#include <QCoreApplication>
#include <QFocusEvent>

namespace
{

/// Whether Tab would stop at the widget.
bool takesTab(const QWidget& widget)
{
    return (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget.isEnabled() &&
           widget.isVisible() && !widget.focusProxy();
}

} // namespace

QWinWidget::QWinWidget(NativeWindowHandle parentWindow, QObject* parent, Qt::WindowFlags flags)
    : QWidget(nullptr, flags), m_parentWindow(parentWindow)
{
    // A widget's parent can be nothing but a widget.
    if (auto* widget = qobject_cast<QWidget*>(parent)) {
        setParent(widget, windowFlags() | Qt::Window);
    } else if (parent) {
        connect(parent, &QObject::destroyed, this, [this] { delete this; });
    }
    initialise();
}

void QWinWidget::initialise()
{
    if (!m_parentWindow) {
        return;
    }
    native_window::embed(this, m_parentWindow);
    QEvent embedding(QEvent::EmbeddingControl);
    QCoreApplication::sendEvent(this, &embedding);
}

void QWinWidget::childEvent(QChildEvent* event)
{
    QObject* const child = event->child();
    if (child->isWidgetType()) {
        if (event->added()) {
            child->installEventFilter(this);
        } else if (event->removed() && m_reenableParent) {
            enableParent();
            child->removeEventFilter(this);
        }
    }
    QWidget::childEvent(event);
}

bool QWinWidget::eventFilter(QObject* object, QEvent* event)
{
    const auto* const child = qobject_cast<QWidget*>(object);
    if (child && m_parentWindow) {
        switch (event->type()) {
        case QEvent::Show:
            childShown(*child);
            break;
        case QEvent::Hide:
            // A dialog that is only minimized is still open.
            if (!event->spontaneous()) {
                childHidden(*child);
            }
            break;
        case QEvent::Close:
            childClosed(*child);
            break;
        case QEvent::WindowDeactivate:
            if (child->isModal() && child->isHidden()) {
                native_window::bringToTop(m_parentWindow);
            }
            break;
        default:
            break;
        }
    }
    return QWidget::eventFilter(object, event);
}

void QWinWidget::childShown(const QWidget& child)
{
    if (!child.isWindow()) {
        return;
    }
    if (!m_previousFocus) {
        m_previousFocus = native_window::focusWindow(m_parentWindow);
    }
    if (!m_previousFocus) {
        m_previousFocus = m_parentWindow;
    }
    hide();
    if (child.isModal() && !m_reenableParent) {
        native_window::setEnabled(m_parentWindow, false);
        m_reenableParent = true;
    }
}

void QWinWidget::childHidden(const QWidget& child)
{
    if (m_reenableParent) {
        enableParent();
    }
    native_window::setFocus(m_previousFocus ? m_previousFocus : m_parentWindow);
    if (child.isWindow()) {
        deleteAfter(child);
    }
}

void QWinWidget::childClosed(const QWidget& child)
{
    native_window::activate(m_parentWindow);
    deleteAfter(child);
}

void QWinWidget::deleteAfter(const QWidget& child)
{
    if (child.testAttribute(Qt::WA_DeleteOnClose)) {
        deleteLater();
    }
}

void QWinWidget::enableParent()
{
    m_reenableParent = false;
    native_window::setEnabled(m_parentWindow, true);
}

bool QWinWidget::nativeEvent(const QByteArray& eventType, void* message, MessageResult*)
{
    if (const auto reason = native_window::focusReason(eventType, message)) {
        QFocusEvent focusIn(QEvent::FocusIn, *reason);
        QCoreApplication::sendEvent(this, &focusIn);
    }
    return false;
}

void QWinWidget::focusInEvent(QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::TabFocusReason && reason != Qt::BacktabFocusReason) {
        return;
    }
    QWidget* candidate = this;
    while (!takesTab(*candidate)) {
        candidate = candidate->nextInFocusChain();
        if (candidate == this) {
            return;
        }
    }
    candidate->setFocus(reason);
    candidate->setAttribute(Qt::WA_KeyboardFocusChange);
    candidate->window()->setAttribute(Qt::WA_KeyboardFocusChange);
    // From the first control one step back is the last one.
    if (reason == Qt::BacktabFocusReason) {
        QWidget::focusNextPrevChild(false);
    }
}

/// Whether the next stop, or the one before, is beyond this widget: the chain of controls comes
/// round by way of a window.
bool QWinWidget::isLastStop(bool forward) const
{
    const QWidget* const current = focusWidget() ? focusWidget() : this;
    if (forward) {
        const QWidget* next = current->nextInFocusChain();
        while (!next->isWindow() && !takesTab(*next)) {
            next = next->nextInFocusChain();
        }
        return next->isWindow();
    }
    if (current->isWindow()) {
        return true;
    }
    bool windowBefore = false;
    for (const QWidget* next = current->nextInFocusChain(); next != current;
         next = next->nextInFocusChain()) {
        if (takesTab(*next)) {
            windowBefore = false;
        } else if (next->isWindow()) {
            windowBefore = true;
        }
    }
    return windowBefore;
}

bool QWinWidget::focusNextPrevChild(bool next)
{
    if (!m_parentWindow || !isLastStop(next)) {
        return QWidget::focusNextPrevChild(next);
    }
    native_window::setFocus(m_parentWindow);
    return true;
}
