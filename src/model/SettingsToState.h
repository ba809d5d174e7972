#pragma once

#include "ConfigState.h"
#include "KeyTable.h"
#include "WorkingRecord.h"

#include <optional>

/// What the basic page is told: the state, and a frame rate that its list lacks.
struct BasicDescription {
    ConfigState state;
    std::optional<CustomFrameRate> customFrameRate;
};

/// The preset that a view was made from: the name of its `video_type`, empty when it is none.
/// @param flags As in showMVCEncoderPages(); its lock bits decide what is enabled, here and below.
ConfigEntry describeVideoType(const Vocabulary& vocabulary, qint32 flags,
                              const KvMvcViewSettings& view);

/// The settings of the basic page in one view.
BasicDescription describeBasic(const Vocabulary& vocabulary, qint32 flags,
                               const KvMvcViewSettings& view);

/// The settings of the advanced page in one view.
ConfigState describeAdvanced(const Vocabulary& vocabulary, qint32 flags,
                             const KvMvcViewSettings& view);

/// The number of views, and the rate control of all four view slots, whatever that number is.
ConfigState describeViews(const Vocabulary& vocabulary, qint32 flags, const WorkingRecord& record);
