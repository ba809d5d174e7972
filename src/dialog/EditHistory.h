#pragma once

#include "StartingPoint.h"
#include "model/WorkingRecord.h"

#include <QString>
#include <QUndoStack>

#include <optional>

/// What an edit may change, as it was at some time.
struct EditedState {
    WorkingRecord record;
    int currentView = 0;
    /// What its edits started from.
    StartingPointPtr start = {};
};

/// The edits, presets and files that the dialog took, as steps that can be taken back.
class EditHistory
{
public:
    /// A step that was taken back or forth: what it comes to, and what the user had chosen.
    struct Turn {
        EditedState state;
        QString text;
    };

    EditHistory();

    /// Adds what has just been done, unless it changed nothing.
    /// @param text What the user chose.
    /// @param goesOn Steps in a row of the same number are one; empty for a step of its own.
    void add(const EditedState& before, const EditedState& after, const QString& text,
             const QString& goesOn = {});
    /// The next step is one of its own.
    void interrupt() { m_goesOn.clear(); }

    /// No value when there is no such step.
    std::optional<Turn> undo();
    std::optional<Turn> redo();

private:
    QUndoStack m_steps;
    /// Where the stack's commands put the state that they come to: the dialog shows it when the
    /// stack is done, since it may be deleted meanwhile.
    EditedState m_reached;
    QString m_goesOn;
};
