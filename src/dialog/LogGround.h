#pragma once

#include <QObject>

class QTextEdit;

/// Keeps what is behind the messages light, since their colours are fixed: of a tone that suits the
/// palette, whatever a style sheet of the host has for text; a skin that has a ground of its own
/// for the log keeps it, lighter.
class LogGround : public QObject
{
public:
    /// Owned by the log.
    explicit LogGround(QTextEdit* log);

    /// Once more, after the document has been cleared.
    static void lay(QTextEdit* log);

    bool eventFilter(QObject* watched, QEvent* event) override;
};
