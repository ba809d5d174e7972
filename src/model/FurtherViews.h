#pragma once

#include "WorkingRecord.h"

/// Views 2 and 3 have no place in a record: they are taken to be like view 1, as the encoder takes
/// them, and only their rate control is their own while the dialog lives.

/// Makes both like view 1; for a record that is new to the dialog.
void resetFurtherViews(WorkingRecord& record);

/// Gives both the general settings of view 1; for a record that an encoder's check has corrected.
void followSecondView(WorkingRecord& record);
