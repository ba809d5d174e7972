// The facts of a media file's main video stream, by FFmpeg's libraries and the scan of its headers.
#pragma once

#include "probe_answer.h"

namespace kv
{

/// Describes the media that the descriptor holds.
/// @param descriptor A regular file, read from its beginning; stays open.
/// @param name       The file's name, a hint for telling formats apart.
ProbeAnswer streamFacts(int descriptor, const char* name);

} // namespace kv
