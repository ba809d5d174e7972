#pragma once

#include "WorkingRecord.h"

#include <QSet>
#include <QString>

/// The keys whose settings are not the same in both records: of settings that all views share, in
/// one view, which is the one that the dialog shows.
QSet<QString> differingKeys(const WorkingRecord& a, const WorkingRecord& b, int view);
