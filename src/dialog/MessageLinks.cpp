#include "MessageLinks.h"

#include "LogText.h"
#include "MessageLog.h"
#include "SettingControls.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolTip>

#include <utility>

namespace
{

class MessageNumber : public QTextBlockUserData
{
public:
    explicit MessageNumber(int number) : number(number) {}
    const int number;
};

/// How many paragraphs a document makes of the text.
int paragraphsOf(const QString& text)
{
    constexpr QChar lineFeed = QLatin1Char('\n');
    constexpr QChar carriageReturn = QLatin1Char('\r');
    constexpr ushort frameBegin = 0xfdd0;
    constexpr ushort frameEnd = 0xfdd1;
    int count = 1;
    for (int i = 0; i < int(text.size()); ++i) {
        const QChar sign = text.at(i);
        const bool isPair = sign == carriageReturn && text.mid(i + 1, 1) == QString(lineFeed);
        if (!isPair &&
            (sign == lineFeed || sign == carriageReturn || sign == QChar::ParagraphSeparator ||
             sign.unicode() == frameBegin || sign.unicode() == frameEnd)) {
            ++count;
        }
    }
    return count;
}

} // namespace

void message_links::mark(const QTextBlock& first, int end, const QVector<CheckMessage>& messages,
                         qint32 kind)
{
    QTextBlock block = first;
    const auto goesOn = [&] { return block.isValid() && block.blockNumber() < end; };
    for (int number = 0; number < int(messages.size()) && goesOn(); ++number) {
        const CheckMessage& message = messages[number];
        if (message.kind != kind || !message.isLogged) {
            continue;
        }
        for (int left = paragraphsOf(shownOf(message.text)); left > 0 && goesOn(); --left) {
            block.setUserData(new MessageNumber(number));
            block = block.next();
        }
    }
}

const CheckMessage* message_links::messageOf(const QTextBlock& block)
{
    const auto* const data = static_cast<const MessageNumber*>(block.userData());
    const auto& told = messageLog().told;
    return data && data->number < int(told.size()) ? &told[data->number] : nullptr;
}

MessageLinks::MessageLinks(QTextEdit* log, ControlOf controlOf, Follow follow)
    : QObject(log),
      m_log(log),
      m_viewport(log->viewport()),
      m_controlOf(std::move(controlOf)),
      m_follow(std::move(follow))
{
    log->installEventFilter(this);
    log->viewport()->installEventFilter(this);
    log->viewport()->setMouseTracking(true);
    connect(log, &QTextEdit::cursorPositionChanged, this, &MessageLinks::tintCurrentMessage);
}

bool MessageLinks::eventFilter(QObject* watched, QEvent* event)
{
    bool done = false;
    if (watched == m_viewport) {
        done = filterMouse(event);
    } else if (event->type() == QEvent::KeyPress) {
        done = filterKey(static_cast<QKeyEvent*>(event));
    } else if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        // When the log has it, or has it no more.
        QMetaObject::invokeMethod(this, &MessageLinks::tintCurrentMessage, Qt::QueuedConnection);
    }
    return done || QObject::eventFilter(watched, event);
}

QWidget* MessageLinks::controlOf(const QTextBlock& block) const
{
    const CheckMessage* const message = message_links::messageOf(block);
    return message && message->facts ? m_controlOf(*message->facts) : nullptr;
}

QTextBlock MessageLinks::blockAt(const QPoint& place) const
{
    const QPoint scrolled(m_log->horizontalScrollBar()->value(),
                          m_log->verticalScrollBar()->value());
    const int position =
        m_log->document()->documentLayout()->hitTest(place + scrolled, Qt::FuzzyHit);
    const QTextBlock block = m_log->document()->findBlock(qMax(position, 0));
    const QRectF bounds = m_log->document()->documentLayout()->blockBoundingRect(block);
    const double y = place.y() + scrolled.y();
    return y >= bounds.top() && y < bounds.bottom() ? block : QTextBlock();
}

bool MessageLinks::followFrom(const QTextBlock& block)
{
    QWidget* const control = controlOf(block);
    if (!control) {
        return false;
    }
    m_follow(control);
    return true;
}

bool MessageLinks::filterKey(const QKeyEvent* key)
{
    const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    return isEnter && !(key->modifiers() & ~Qt::KeypadModifier) &&
           followFrom(m_log->textCursor().block());
}

bool MessageLinks::filterMouse(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* const help = static_cast<QHelpEvent*>(event);
        if (!controlOf(blockAt(help->pos()))) {
            return false;
        }
        showTip(help->pos(), help->globalPos());
        return true;
    }
    if (event->type() != QEvent::MouseMove && event->type() != QEvent::MouseButtonPress &&
        event->type() != QEvent::MouseButtonRelease) {
        return false;
    }
    const auto* const mouse = static_cast<QMouseEvent*>(event);
    const QPoint place = mouse->pos();
    if (event->type() == QEvent::MouseMove) {
        const bool leads = mouse->buttons() == Qt::NoButton && controlOf(blockAt(place));
        m_log->viewport()->setCursor(leads ? Qt::PointingHandCursor : Qt::IBeamCursor);
    } else if (event->type() == QEvent::MouseButtonPress) {
        m_pressed.reset();
        if (mouse->button() == Qt::LeftButton && mouse->modifiers() == Qt::NoModifier) {
            m_pressed = place;
        }
    } else if (const auto pressed = std::exchange(m_pressed, std::nullopt);
               pressed && mouse->button() == Qt::LeftButton &&
               (place - *pressed).manhattanLength() < QApplication::startDragDistance()) {
        if (controlOf(blockAt(place))) {
            // The log's own part first: it would still take the focus back.
            QMetaObject::invokeMethod(
                this, [this, place] { followFrom(blockAt(place)); }, Qt::QueuedConnection);
        }
    }
    return false;
}

void MessageLinks::showTip(const QPoint& place, const QPoint& globalPlace) const
{
    const QTextBlock block = blockAt(place);
    QToolTip::showText(globalPlace,
                       tr("Go to \"%1\": click, or press Enter.")
                           .arg(setting_controls::captionOf(controlOf(block))),
                       m_log->viewport());
}

void MessageLinks::tintCurrentMessage()
{
    QList<QTextEdit::ExtraSelection> tints;
    const QTextCursor cursor = m_log->textCursor();
    if (m_log->hasFocus() && controlOf(cursor.block())) {
        constexpr int opacity = 60;
        QTextEdit::ExtraSelection tint;
        QColor colour = m_log->palette().color(QPalette::Highlight);
        colour.setAlpha(opacity);
        tint.format.setBackground(colour);
        tint.format.setProperty(QTextFormat::FullWidthSelection, true);
        tint.cursor = cursor;
        tint.cursor.movePosition(QTextCursor::StartOfBlock);
        tint.cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        tints += tint;
    }
    m_log->setExtraSelections(tints);
}
