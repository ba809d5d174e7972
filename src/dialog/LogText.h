#pragma once

#include <QString>
#include <QStringList>

/// What the log shows of a check's messages: all of them, but of amounts that nobody reads, and
/// that would take seconds to lay out, only the beginning.
struct LogText {
    /// Blocks of the log; every message ends with a line feed.
    QString warnings;
    QString errors;
    QString notes;
    /// Tells what is not shown; empty when all is.
    QString omitted;
    /// Whether a word is so long that lines are better broken anywhere: to look for its end, line
    /// after line, takes as long as its length squared.
    bool hasEndlessWord = false;
};

/// What is shown of a message: all, but for one that is very long.
QString shownOf(const QString& message);

/// Errors come first where not all messages are shown, then warnings.
LogText logText(const QStringList& warnings, const QStringList& errors, const QStringList& notes);
