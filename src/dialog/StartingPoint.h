#pragma once

#include "model/WorkingRecord.h"

#include <QString>

#include <memory>

/// What the user's edits started from: the host's record, a preset or a loaded file.
struct StartingPoint {
    WorkingRecord record;
    /// "Preset Blu-ray 3D"; empty: as the dialog was opened.
    QString name;
};

using StartingPointPtr = std::shared_ptr<const StartingPoint>;
