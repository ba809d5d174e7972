#pragma once

#include "RecordCells.h"

#include "model/ConfigState.h"
#include "model/StateToSettings.h"

/// A working record of `views` views in which every other byte is noise, and in which no field
/// holds a value that a list has a text for. Only the slices are consistent, since every edit makes
/// them so.
WorkingRecord noisyRecord(int views, int seed = 1);

/// An edit, applied as a whole: to every view below the count, then to the views' rate control.
void apply(const ConfigState& state, WorkingRecord& record,
           const CustomFrameRate& customFrameRate = {});

/// A state of one entry, as a page sends it.
ConfigState oneEntry(const char* key, const QVariant& value);

/// What the edit changed, by place: see differences().
QStringList changedBy(const ConfigState& state, const WorkingRecord& before);

/// The cells, as far as they differ from the record: see expectedDifferences().
QStringList expected(const WorkingRecord& before, const Cells& cells);
