// An encoder whose defaults are a picture width, and whose check says what the width asks for.

#include <kv_config_gui_mvc/companions.h>

#include <cstring>
#include <string>

namespace
{

KvMvcPrintf sinkOf(KvMvcLookup lookUp, const char* name)
{
    return reinterpret_cast<KvMvcPrintf>(lookUp(name));
}

void tellAbout(KvMvcLookup lookUp)
{
    KvMvcMessageAbout about{};
    about.size = sizeof about;
    about.kind = KV_MVC_MESSAGE_RISK;
    about.rule = "width.odd";
    about.setting = "width";
    about.view = 1;
    about.numbers = KV_MVC_ABOUT_VALUE | KV_MVC_ABOUT_LIMIT;
    about.value = 7;
    about.limit = 16.5;
    about.level = "1b";
    reinterpret_cast<KvMvcTellAbout>(lookUp("msg_about"))(&about);
}

void tellLimit(KvMvcLookup lookUp)
{
    KvMvcLimitUse use{};
    use.size = sizeof use;
    use.view = KV_MVC_ALL_VIEWS;
    use.name = "Bitrate";
    use.unit = "bit/s";
    use.rule = "rate";
    use.level = "3.1";
    use.used = 3500000;
    use.limit = 14000000;
    reinterpret_cast<KvMvcTellLimitUse>(lookUp("lim_usage"))(&use);
}

} // namespace

extern "C" KV_MVC_COMPANION_API int32_t mvcOutVideoDefaults(KvMvcSettings* settings, int32_t,
                                                            int32_t preset, int32_t)
{
    std::memset(settings, 0, sizeof *settings);
    settings->num_views = 1;
    settings->views[0].width = KV_FIRST_WIDTH + preset;
    return 0;
}

/// Widths: 1 is refused; 2 is corrected; 3 says a long message; 4 asks for what is not there; 5 is
/// refused without an error; 6 has letters beyond ASCII; 7 is a risk, and tells what it is about
/// and how much of a limit is used; 8 is corrected to that.
extern "C" KV_MVC_COMPANION_API int32_t mvcOutVideoChkSettings(KvMvcLookup lookUp,
                                                               KvMvcSettings* settings,
                                                               int32_t stage, int32_t reserved)
{
    sinkOf(lookUp, "prg_printf")("%d %%", 50);
    if (stage != 3 || reserved != 0) {
        sinkOf(lookUp, "err_printf")("stage %d, reserved %d", stage, reserved);
        return 1;
    }
    switch (settings->views[0].width) {
    case 1:
        sinkOf(lookUp, "inf_printf")("the %s of %d x %d", "picture", 1, 2);
        sinkOf(lookUp, "err_printf")("width %d is below %d", 1, 16);
        sinkOf(lookUp, "wrn_printf")("100 %% of %.3f\nis less\n", 0.5);
        return 1;
    case 2:
        settings->views[0].width = 16;
        sinkOf(lookUp, "wrn_printf")("width %d corrected to %d", 2, 16);
        return 0;
    case 3: {
        const std::string word(100000, 'x');
        sinkOf(lookUp, "inf_printf")("%s.", word.c_str());
        return 0;
    }
    case 4: {
        void* memory = reinterpret_cast<void* (*)(std::size_t)>(lookUp("malloc"))(64);
        reinterpret_cast<void (*)(void*)>(lookUp("free"))(memory);
        sinkOf(lookUp, "inf_printf")("%s", lookUp("printf") == nullptr ? "no printf" : "printf");
        return memory == nullptr;
    }
    case 5:
        sinkOf(lookUp, "inf_printf")("no reason");
        return 1;
    case 6:
        sinkOf(lookUp, "wrn_printf")("%s", "\xC3\x9C\xC5\x82 \xD0\x96 \xE2\x82\xAC");
        return 0;
    case 8:
        settings->views[0].width = 7;
        sinkOf(lookUp, "wrn_printf")("width %d corrected to %d", 8, 7);
        [[fallthrough]];
    case 7:
        tellLimit(lookUp);
        tellAbout(lookUp);
        sinkOf(lookUp, "wrn_printf")("width %d of %s", 7, "16");
        return 0;
    default:
        return 0;
    }
}
