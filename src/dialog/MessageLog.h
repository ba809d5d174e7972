#pragma once

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

    QColor errorColour{180, 0, 0};
    QColor warningColour{0, 0, 180};
    QColor noteColour{20, 20, 20};

    /// The log of the dialog that is open. While it is hidden, messages are shown in boxes instead.
    QPointer<QTextEdit> widget;

    /// Makes it the log.
    void showIn(QTextEdit* log);
    void clearMessages();
    /// Gives errors and warnings the colour of notes, for the rest of the process.
    void dropDistinctColours();
    /// Shows the collected messages: warnings, errors, notes, each block in its colour; a block
    /// without messages is an empty paragraph.
    void rewriteWidget() const;
    /// Gives the log the focus, with the first error selected.
    void pointOutError() const;
};

MessageLog& messageLog();

/// The function lookup for the check: "malloc", "free", and the sinks "err_printf", "wrn_printf",
/// "inf_printf" and "prg_printf" (which does nothing). Null for any other name.
KvMvcFunction lookUpCheckFunction(const char* name);
