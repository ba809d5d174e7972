// The two exported functions.

#include <kv_config_gui_mvc/companions.h>

#include "check.h"

extern "C" {

KV_MVC_COMPANION_API int32_t mvcOutVideoDefaults(KvMvcSettings* settings, int32_t reserved1,
                                                 int32_t preset, int32_t reserved2);
KV_MVC_COMPANION_API int32_t mvcOutVideoChkSettings(KvMvcLookup lookup, KvMvcSettings* settings,
                                                    int32_t stage, int32_t reserved);

int32_t mvcOutVideoDefaults(KvMvcSettings* settings, int32_t, int32_t preset, int32_t)
{
    if (!settings) {
        return 1;
    }
    kv::encoder::setDefaults(*settings, preset);
    return 0;
}

// Every stage gets the whole check: there is no cheaper one that would still be right.
int32_t mvcOutVideoChkSettings(KvMvcLookup lookup, KvMvcSettings* settings, int32_t, int32_t)
{
    if (!settings) {
        return 1;
    }
    kv::encoder::Report report(lookup, *settings);
    return kv::encoder::checkSettings(*settings, report) ? 0 : 1;
}

} // extern "C"
