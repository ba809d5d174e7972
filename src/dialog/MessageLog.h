#pragma once

#include "CheckFacts.h"

#include <QColor>
#include <QPointer>
#include <QStringList>
#include <QTextEdit>
#include <QVector>

#include <kv_config_gui_mvc/companions.h>

#include <optional>

/// Where the messages of an encoder's check go. One for the process, since the check's printf-like
/// sinks carry no context.
struct MessageLog {
    QStringList errors;
    QStringList warnings;
    QStringList notes;
    /// The messages of the last check, in the order in which they came, and what it told besides.
    QVector<CheckMessage> told;
    QVector<LimitUse> limits;

    QColor errorColour{180, 0, 0};
    QColor warningColour{0, 0, 180};
    QColor noteColour{20, 20, 20};

    /// The log of the dialog that is open. While it is hidden, messages are shown in boxes instead.
    QPointer<QTextEdit> widget;
    /// Messages of a kind, each a paragraph or several, in one colour.
    struct Block {
        QString text;
        QColor colour;
        /// Of the paragraph that it begins with.
        int state;
        /// KvMvcMessageKind, as their sink knows it; no value: what the log itself says.
        std::optional<qint32> kind;
        /// Where it begins, set when it is written.
        int paragraph = 0;

        friend bool operator==(const Block& a, const Block& b)
        {
            return a.text == b.text && a.colour == b.colour && a.state == b.state;
        }
    };
    /// What it shows; none when it has not been written yet.
    QVector<Block> shown;
    /// That of the document then.
    int shownRevision = 0;
    /// The first error among it, or else the first warning.
    QString shownFirst;
    bool showsErrors = false;

    /// Makes it the log.
    void showIn(QTextEdit* log);
    void clearMessages();
    /// Adds an error of the dialog's own.
    void addError(const QString& text);
    /// Gives errors and warnings the colour of notes, for the rest of the process.
    void dropDistinctColours();
    /// Shows the collected messages: warnings, errors, notes, each block in its colour; a block
    /// without messages is an empty paragraph. What is read stays in its place, unless there is
    /// another first error, or first warning, to be seen.
    void rewriteWidget();
    /// All collected messages, whole, in the order in which the log shows them.
    QString allMessages() const;
    /// Gives the log the focus, with the first error selected.
    void pointOutError() const;

private:
    void write(const QVector<Block>& blocks);
    /// Marks which message each paragraph is of.
    void markMessages() const;
    /// Tells assistive technology when errors come or go.
    void tellErrors();
};

MessageLog& messageLog();

/// The lookup for the check; its sinks print to the log, but for that of progress, which does
/// nothing. It also knows what encoders may tell besides (CheckFacts.h).
KvMvcFunction lookUpCheckFunction(const char* name);
