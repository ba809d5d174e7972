// What the worker process writes to its standard output, as bytes.
#pragma once

#include <kv_config_gui_mvc/media_info.h>

namespace kv
{

struct ProbeAnswer {
    int32_t result = KV_MEDIA_OK; ///< KvMediaResult
    KvMediaInfo info{};
    int32_t unconfined = 0; ///< what enterSandbox() returned
};

/// Limits of the worker process; it keeps the first by itself and is ended at the second.
constexpr int softSeconds = 3;
constexpr int hardSeconds = 4;
constexpr unsigned long largestMemory = 192ul << 20;

ProbeAnswer refusal(KvMediaResult result, const char* reason);

} // namespace kv
