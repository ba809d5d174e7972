// Runs the worker process on one file, within its limits.
#pragma once

#include "probe_answer.h"

#include <string>

namespace kv
{

/// @param path As the system takes it; a regular file, everything else is refused.
ProbeAnswer probeInWorker(const std::string& path);

} // namespace kv
