#pragma once

#include "Encoder.h"
#include "Invariants.h"

#include <QElapsedTimer>

/// Dialogs on records as no encoder makes them: random bytes, changed bits, extremes in every
/// field, rates that are no numbers. On every page something is edited, then it is accepted or
/// cancelled.
class HostileRecords
{
public:
    explicit HostileRecords(quint32 seed);

    /// @return What broke, with the number of the record; empty: nothing.
    QString play(int records, int first = 0);
    /// What was done, in one line.
    QString report() const;

private:
    QString playOne(int number);
    KvMvcSettings record(Random& random) const;
    /// Edits something on the page. @return Whether there is something to edit.
    bool edit(QWidget* page, Random& random);

    const quint32 m_seed;
    Encoder m_encoder;
    int m_records = 0;
    int m_edits = 0;
    int m_accepted = 0;
    QElapsedTimer m_time;
};
