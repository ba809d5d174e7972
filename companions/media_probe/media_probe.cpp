// The exported functions.
#include "dvd_title.h"
#include "worker_process.h"

#include <kv_config_gui_mvc/companions.h>

#include <algorithm>
#include <cstring>
#include <exception>

namespace
{

/// Fills what a caller compiled with another version of the record has room for.
void store(KvMediaInfo& to, KvMediaInfo from)
{
    from.size = to.size;
    from.codec_name[sizeof from.codec_name - 1] = '\0';
    from.container_name[sizeof from.container_name - 1] = '\0';
    from.reason[sizeof from.reason - 1] = '\0';
    std::memcpy(&to, &from, std::min<std::size_t>(to.size, sizeof from));
}

kv::ProbeAnswer probe(const char* path)
{
    try {
        return kv::probeInWorker(kv::videoOfDvdTitle(path));
    } catch (const std::exception& error) {
        return kv::refusal(KV_MEDIA_UNAVAILABLE, error.what());
    } catch (...) {
        return kv::refusal(KV_MEDIA_UNAVAILABLE, "failed");
    }
}

} // namespace

extern "C" KV_MVC_COMPANION_API int32_t mpegInInfoInit(KvMediaInfo* info, uint32_t size)
{
    if (!info || size < sizeof info->size) {
        return KV_MEDIA_BAD_ARGUMENT;
    }
    std::memset(static_cast<void*>(info), 0, size);
    info->size = size;
    return KV_MEDIA_OK;
}

extern "C" KV_MVC_COMPANION_API int32_t mpegInGetInfo(KvMediaInfo* info, const char* path)
{
    if (!info || !path || info->size < sizeof info->size) {
        return KV_MEDIA_BAD_ARGUMENT;
    }
    const kv::ProbeAnswer answer = probe(path);
    store(*info, answer.info);
    return answer.result;
}
