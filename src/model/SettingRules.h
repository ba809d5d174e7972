#pragma once

#include "KeyTable.h"

/// The settings whose reading is a rule of its own, for the rows of the key table.
namespace rules
{

/// Whether the display aspect ratio is "Custom", so that the sample aspect ratio counts.
bool hasCustomAspect(const KvMvcViewSettings& view);

/// The display pair as a ratio's text; a pair that is none of them has no entry.
void describeAspectRatio(const ViewRow& row, const QString& key, const KvMvcViewSettings& view,
                         Describing& out);
/// Stores the display pair; a named ratio also unsets the sample aspect ratio.
void applyAspectRatio(const ViewRow& row, const QString& key, const Applying& in,
                      KvMvcViewSettings& view);

/// The rate as a list item, "0", or a text of its own that is then the custom frame rate.
void describeFrameRate(const ViewRow& row, const QString& key, const KvMvcViewSettings& view,
                       Describing& out);
void applyFrameRate(const ViewRow& row, const QString& key, const Applying& in,
                    KvMvcViewSettings& view);

/// Top field first is shown on progressive material too, but locked; bottom field first is not.
void describeFieldOrder(const ViewRow& row, const QString& key, const KvMvcViewSettings& view,
                        Describing& out);

/// Stores the slices, at least one, and derives `multi_slice`; also when the key is absent.
void applySlices(const ViewRow& row, const QString& key, const Applying& in,
                 KvMvcViewSettings& view);

/// Stores the mode; choosing constant bitrate switches HRD conformance on.
void applyBitrateMode(const ViewRow& row, const QString& key, const Applying& in,
                      KvMvcViewSettings& view);

} // namespace rules
