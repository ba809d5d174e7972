// The exported functions.
#include "dvd_title.h"
#include "worker_process.h"

#include <kv_config_gui_mvc/companions.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <system_error>

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

/// In the dialog's trace, for whoever looks after the system: the file is read all the same.
void traceUnconfined(int error)
{
    const char* const wish = std::getenv("KV_CONFIG_GUI_TRACE");
    if (!wish || *wish == '\0' || std::strcmp(wish, "0") == 0) {
        return;
    }
    std::fprintf(stderr,
                 "kv_media_probe: media files are read in a process that the system does "
                 "not confine: %s\n",
                 std::generic_category().message(error).c_str());
}

kv::ProbeAnswer probe(const char* path)
{
    try {
        const kv::ProbeAnswer answer = kv::probeInWorker(kv::videoOfDvdTitle(path));
        if (answer.unconfined != 0) {
            traceUnconfined(answer.unconfined);
        }
        return answer;
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
    if (!info || info->size < sizeof info->size) {
        return KV_MEDIA_BAD_ARGUMENT;
    }
    const kv::ProbeAnswer answer =
        path ? probe(path) : kv::refusal(KV_MEDIA_BAD_ARGUMENT, "no file is named");
    store(*info, answer.info);
    return answer.result;
}
