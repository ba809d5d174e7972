/* A companion library that tells which it is, and whose check says a bit of everything. */

#include <kv_config_gui_mvc/companions.h>

#include <stdlib.h>
#include <string.h>

KV_MVC_COMPANION_API int32_t mvcOutVideoDefaults(KvMvcSettings* settings, int32_t reserved1,
                                                 int32_t preset, int32_t reserved2)
{
    (void)settings;
    (void)reserved1;
    (void)preset;
    (void)reserved2;
    return KV_NUMBER;
}

static KvMvcPrintf sink(KvMvcLookup lookup, const char* name)
{
    return (KvMvcPrintf)lookup(name);
}

KV_MVC_COMPANION_API int32_t mvcOutVideoChkSettings(KvMvcLookup lookup, KvMvcSettings* settings,
                                                    int32_t stage, int32_t reserved)
{
    enum { LONG = 100000 };
    void* (*allocate)(size_t) = (void* (*)(size_t))lookup("malloc");
    void (*release)(void*) = (void (*)(void*))lookup("free");
    char* const word = (char*)allocate(LONG + 1);
    memset(word, 'x', LONG);
    word[LONG] = '\0';
    sink(lookup, "inf_printf")("stage %d, reserved %d", stage, reserved);
    sink(lookup, "prg_printf")("%d %%", 50);
    sink(lookup, "err_printf")("width %d of %s", 5, "two");
    sink(lookup, "wrn_printf")("long %s.", word);
    sink(lookup, "inf_printf")("%.1f %% and %s", 99.5,
                               lookup("printf") || lookup("err_printf ") || lookup("")
                                   ? "more functions"
                                   : "no more functions");
    release(word);
    settings->views[0].width = 16;
    return 7;
}

KV_MVC_COMPANION_API const char* localizeConvertStr(const char* format)
{
    return strcmp(format, "width %d of %s") == 0 ? "Breite %d von %s" : NULL;
}
