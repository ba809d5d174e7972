/* A companion library that tells which it is, and whose check says a bit of everything. */

#include <kv_config_gui_mvc/companions.h>

#include <stddef.h>
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

/* The texts of what is told are gone after the call. */
static void tell_about(KvMvcLookup lookup, uint32_t size, int32_t kind, const char* rule)
{
    const KvMvcTellAbout tell = (KvMvcTellAbout)lookup("msg_about");
    static char name[64];
    /* As of an encoder that knows more members than its caller. */
    struct {
        KvMvcMessageAbout about;
        double later;
    } told;
    if (tell == NULL) {
        return;
    }
    memset(&told, 0, sizeof told);
    strcpy(name, rule);
    told.about.size = size != 0 ? size : (uint32_t)sizeof told;
    told.about.kind = kind;
    told.about.rule = name;
    told.about.setting = "width";
    told.about.view = 1;
    told.about.numbers = KV_MVC_ABOUT_VALUE | KV_MVC_ABOUT_LIMIT;
    told.about.value = 5;
    told.about.limit = 16;
    told.about.level = "4.1";
    tell(&told.about);
    memset(name, '?', sizeof name);
}

static void tell_uses(KvMvcLookup lookup)
{
    const KvMvcTellLimitUse tell = (KvMvcTellLimitUse)lookup("lim_usage");
    KvMvcLimitUse use;
    if (tell == NULL) {
        return;
    }
    memset(&use, 0, sizeof use);
    use.size = (uint32_t)sizeof use;
    use.view = KV_MVC_ALL_VIEWS;
    use.name = "Macroblock rate";
    use.unit = "macroblocks/s";
    use.rule = "rate";
    use.level = "4.1";
    use.used = 195643.5;
    use.limit = 245760;
    tell(&use);
    use.view = 0;
    use.name = "Buffer";
    use.level = NULL;
    /* As of an encoder that does not know the last member. */
    use.size = (uint32_t)offsetof(KvMvcLimitUse, limit);
    tell(&use);
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
    tell_uses(lookup);
    tell_about(lookup, 0, KV_MVC_MESSAGE_ERROR, "width.least");
    sink(lookup, "err_printf")("width %d of %s", 5, "two");
    tell_about(lookup, 0, KV_MVC_MESSAGE_NOTE, "a message that is not printed");
    tell_about(lookup, offsetof(KvMvcMessageAbout, setting), KV_MVC_MESSAGE_RISK, "long");
    sink(lookup, "wrn_printf")("long %s.", word);
    sink(lookup, "inf_printf")("%.1f %% and %s", 99.5,
                               lookup("printf") || lookup("err_printf ") || lookup("")
                                   ? "more functions"
                                   : "no more functions");
    tell_about(lookup, 0, KV_MVC_MESSAGE_NOTE, "a message that is not printed either");
    release(word);
    settings->views[0].width = 16;
    return 7;
}

KV_MVC_COMPANION_API const char* localizeConvertStr(const char* format)
{
    return strcmp(format, "width %d of %s") == 0 ? "Breite %d von %s" : NULL;
}
