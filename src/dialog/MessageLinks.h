#pragma once

#include "CheckFacts.h"

#include <QObject>
#include <QPointer>
#include <QTextBlock>
#include <QVector>

#include <functional>

class QKeyEvent;
class QPoint;
class QTextEdit;
class QWidget;

/// Which message a paragraph of the log is of.
namespace message_links
{

/// Marks the paragraphs from this one on, one for each line of the messages of the kind, up to the
/// one with the number `end`: the log does not show all of very many or very long ones.
void mark(const QTextBlock& first, int end, const QVector<CheckMessage>& messages, qint32 kind);

/// The message, of those that the log shows; null for a paragraph that is of none.
const CheckMessage* messageOf(const QTextBlock& block);

} // namespace message_links

/// Leads from a message of the log to the control that it is about, where the encoder tells: with a
/// click, or with Enter where the cursor is, whose message is tinted while the log has the focus.
class MessageLinks : public QObject
{
    Q_OBJECT

public:
    /// The control that the facts are about; null without one.
    using ControlOf = std::function<QWidget*(const MessageFacts&)>;
    /// What there is to do with it.
    using Follow = std::function<void(QWidget*)>;

    /// Owned by the log.
    MessageLinks(QTextEdit* log, ControlOf controlOf, Follow follow);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* controlOf(const QTextBlock& block) const;
    /// The paragraph under a place of the log's viewport; invalid beside the text.
    QTextBlock blockAt(const QPoint& place) const;
    bool followFrom(const QTextBlock& block);
    bool filterKey(const QKeyEvent* key);
    bool filterMouse(QEvent* event);
    void showTip(const QPoint& place, const QPoint& globalPlace) const;
    void tintCurrentMessage();

    QTextEdit* const m_log;
    /// Known apart: while the log is destroyed it is no scroll area any more, and events still
    /// come.
    const QObject* const m_viewport;
    const ControlOf m_controlOf;
    const Follow m_follow;
    /// Where the left button was pressed on a message; a drag from there selects text.
    std::optional<QPoint> m_pressed;
};
