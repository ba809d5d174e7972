#pragma once

#include "SettingsLedger.h"

#include "model/WorkingRecord.h"

#include <QByteArray>
#include <QMetaType>
#include <QStringList>
#include <QVector>

/// One field of the working record by where it lies, with what it holds. Written down in tests as
/// literals or by the ledger, so that neither the record's names nor the key table decide what is
/// expected.
struct Cell {
    enum : int { Record = -1 };

    /// A 32-bit number.
    Cell(int view_, int offset_, int number);
    /// A 64-bit double.
    Cell(int view_, int offset_, double number);
    /// A setting of a view, or of the record.
    Cell(int view_, const ledger::Setting& setting, double value);
    Cell() = default;

    /// View slot 0 to 3, or Record for the record's own fields.
    int view = Record;
    /// From the start of the view's sub-record, or of the record.
    int offset = 0;
    QByteArray bytes;

    /// From the start of the working record.
    int position() const;
};
using Cells = QVector<Cell>;
Q_DECLARE_METATYPE(Cells)

/// The working record's bytes: 16,888 of the record, then those of view slots 2 and 3.
QByteArray bytesOf(const WorkingRecord& record);

void put(WorkingRecord& record, const Cells& cells);
void put(KvMvcSettings& settings, const Cells& cells);

/// What differs between two working records, by place: "view 1 +24: 80020000".
QStringList differences(const QByteArray& before, const QByteArray& after);
/// The same as `cells` have it, for those that differ from `before`.
QStringList expectedDifferences(const QByteArray& before, const Cells& cells);

/// A record of which every byte that the dialog does not know is noise, and of which every field
/// that it does know is valid and fits what its control can show.
KvMvcSettings exampleSettings();
