#pragma once

#include "ConfigState.h"
#include "KeyTable.h"
#include "WorkingRecord.h"

#include <optional>

/// The preset whose defaults an edit asks for: the code of its name, 0 for an unknown one. No value
/// when the edit names no preset. "Restore Preset" counts before "Video Type".
std::optional<qint32> requestedPreset(const Vocabulary& vocabulary, const ConfigState& state);

/// Applies the settings of the basic and the advanced page to one view. An edit that names a preset
/// sets `video_type` and nothing else. Keys that are unknown, and texts that are, change nothing.
void applyToView(const Applying& in, KvMvcViewSettings& view);

/// Applies the number of views, and the rate control of all four view slots.
void applyViews(const Applying& in, WorkingRecord& record);
