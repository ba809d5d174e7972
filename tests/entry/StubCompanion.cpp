// Companion libraries that a test makes up: what each exports is chosen when it is compiled, what
// it does by the environment. Each writes down when it is loaded, called and unloaded.

#include <kv_config_gui_mvc/companions.h>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>

namespace
{

void writeDown(const std::string& line)
{
    const char* const name = std::getenv("KV_STUB_LOG");
    if (!name)
        return;
    if (std::FILE* const log = std::fopen(name, "a")) {
        std::fprintf(log, "%s\n", line.c_str());
        std::fclose(log);
    }
}

std::string ownPath()
{
#ifdef _WIN32
    HMODULE self = nullptr;
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const char*>(&ownPath), &self);
    char path[MAX_PATH] = "";
    GetModuleFileNameA(self, path, MAX_PATH);
    return path;
#else
    Dl_info info = {};
    dladdr(reinterpret_cast<void*>(&ownPath), &info);
    return info.dli_fname;
#endif
}

/// "host/kv_mvcenc.so": the library's own file with its folder.
std::string ownName()
{
    const std::string path = ownPath();
    constexpr const char* separators = "/\\";
    const auto file = path.find_last_of(separators);
    const auto folder = file == std::string::npos ? file : path.find_last_of(separators, file - 1);
    return folder == std::string::npos ? path : path.substr(folder + 1);
}

[[maybe_unused]] bool asked(const char* variable, const char* value)
{
    const char* const content = std::getenv(variable);
    return content && std::strcmp(content, value) == 0;
}

__attribute__((constructor)) void loaded()
{
    writeDown("load " + ownName());
}

__attribute__((destructor)) void unloaded()
{
    writeDown("unload " + ownName());
}

} // namespace

#ifdef KV_STUB_DEFAULTS
extern "C" KV_MVC_COMPANION_API int32_t mvcOutVideoDefaults(KvMvcSettings*, int32_t, int32_t,
                                                            int32_t)
{
    return 0;
}
#endif

#ifdef KV_STUB_CHECK
extern "C" KV_MVC_COMPANION_API int32_t mvcOutVideoChkSettings(KvMvcLookup lookUp,
                                                               KvMvcSettings* settings, int32_t,
                                                               int32_t)
{
    writeDown("check");
    if (asked("KV_STUB_CHECK", "throw"))
        throw std::runtime_error("from the check");
    if (asked("KV_STUB_CHECK", "correct"))
        settings->views[0].bitrate = 4711;
    reinterpret_cast<KvMvcPrintf>(lookUp("err_printf"))("width %d", 5);
    return asked("KV_STUB_CHECK", "refuse") ? 1 : 0;
}
#endif

#ifdef KV_STUB_GET_API
extern "C" KV_MVC_COMPANION_API KvMvcFunction MVCConfigGetAPIExt(int32_t)
{
    return nullptr;
}
#endif

#ifdef KV_STUB_PROBE
extern "C" KV_MVC_COMPANION_API int32_t mpegInInfoInit()
{
    writeDown("probed");
    return 0;
}

extern "C" KV_MVC_COMPANION_API int32_t mpegInGetInfo()
{
    writeDown("probed");
    return 0;
}
#endif

#ifdef KV_STUB_LANGUAGE
extern "C" KV_MVC_COMPANION_API int32_t localizeSetLanguage(int32_t language)
{
    writeDown("language " + std::to_string(language));
    return 0;
}
#endif

#ifdef KV_STUB_CONVERT
extern "C" KV_MVC_COMPANION_API const char* localizeConvertStr(const char* format)
{
    return std::strcmp(format, "width %d") == 0 ? "Breite %d" : nullptr;
}
#endif

/// For stubs that lack every function.
extern "C" KV_MVC_COMPANION_API int32_t kvStubIsHere()
{
    return 1;
}
