#pragma once

#include "CheckFacts.h"

#include <QColor>
#include <QPointer>
#include <QString>
#include <QTextEdit>

#include <kv_config_gui_mvc/companions.h>

/// Where the messages of an encoder's check go. One for the process, since the check's printf-like
/// sinks carry no context.
struct MessageLog {
    QString errors;
    QString warnings;
    QString notes;
    /// The messages of the last check, in the order in which they came, and what it told besides.
    QVector<CheckMessage> told;
    QVector<LimitUse> limits;

    QColor errorColour{180, 0, 0};
    QColor warningColour{0, 0, 180};
    QColor noteColour{20, 20, 20};

    /// The log of the dialog that is open. While it is hidden, messages are shown in boxes instead.
    QPointer<QTextEdit> widget;
    /// The first error that it shows, or else the first warning.
    QString shownFirst;

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
    /// Gives the log the focus, with the first error selected.
    void pointOutError() const;
};

MessageLog& messageLog();

/// The lookup for the check; its sinks print to the log, but for that of progress, which does
/// nothing. It also knows what encoders may tell besides (CheckFacts.h).
KvMvcFunction lookUpCheckFunction(const char* name);
