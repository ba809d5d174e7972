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
#include <exception>
#include <filesystem>
#include <string>

namespace
{

void writeDown(const std::string& line)
{
    const char* const name = std::getenv("KV_STUB_LOG");
    if (!name) {
        return;
    }
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

/// "host/kv_mvcenc": the library's own file with its folder, without the platform's extension.
std::string ownName()
{
    const std::filesystem::path path = ownPath();
    const std::filesystem::path file =
        path.extension() == KV_LIBRARY_SUFFIX ? path.stem() : path.filename();
    return (path.parent_path().filename() / file).generic_string();
}

[[maybe_unused]] bool asked(const char* variable, const char* value)
{
    const char* const content = std::getenv(variable);
    return content && std::strcmp(content, value) == 0;
}

/// Whether the system would show a box about a library that it cannot load.
bool systemShowsErrors()
{
#ifdef _WIN32
    return (GetThreadErrorMode() & SEM_FAILCRITICALERRORS) == 0;
#else
    return false;
#endif
}

__attribute__((constructor)) void loaded()
{
    writeDown("load " + ownName());
    if (systemShowsErrors()) {
        writeDown("the system would have shown errors");
    }
}

/// A sink that a check keeps, though it is good for that check only.
KvMvcPrintf keptSink = nullptr;

__attribute__((destructor)) void unloaded()
{
    if (keptSink) {
        keptSink("late %d", 5);
    }
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
namespace
{

/// An exception whose destructor is the library's own code, gone with the library.
class CheckError : public std::exception
{
public:
    CheckError() = default;
    CheckError(const CheckError&) = default;
    CheckError& operator=(const CheckError&) = default;
    ~CheckError() override { writeDown("exception gone"); }
    const char* what() const noexcept override { return "no licence"; }
};

void flood(KvMvcPrintf print)
{
    for (int i = 0; i < 20000; ++i) {
        print("message %d", i);
    }
    print("%s", std::string(4 << 20, 'x').c_str());
}

void printOddities(KvMvcPrintf print)
{
    const char* const none = nullptr;
    print(nullptr);
    print("");
    print("%s", none);
    print("%%");
    print("\xff\xfe\x80");
    print("\n\n");
}

void askForOddNames(KvMvcLookup lookUp)
{
    for (const char* name : {static_cast<const char*>(nullptr), "", "system", "err_printf "}) {
        if (lookUp(name)) {
            writeDown("found what is not there");
        }
    }
}

/// What an encoder should not do in a check, where KV_STUB_CHECK asks for it.
void misbehave(KvMvcLookup lookUp, KvMvcSettings* settings)
{
    const auto print = reinterpret_cast<KvMvcPrintf>(lookUp("err_printf"));
    if (asked("KV_STUB_CHECK", "throw 5")) {
        throw 5;
    }
    if (asked("KV_STUB_CHECK", "scribble")) {
        std::memset(static_cast<void*>(settings), 0xA5, sizeof *settings);
    } else if (asked("KV_STUB_CHECK", "flood")) {
        flood(print);
    } else if (asked("KV_STUB_CHECK", "odd messages")) {
        printOddities(print);
    } else if (asked("KV_STUB_CHECK", "odd names")) {
        askForOddNames(lookUp);
    } else if (asked("KV_STUB_CHECK", "late")) {
        keptSink = print;
    }
}

} // namespace

extern "C" KV_MVC_COMPANION_API int32_t mvcOutVideoChkSettings(KvMvcLookup lookUp,
                                                               KvMvcSettings* settings, int32_t,
                                                               int32_t)
{
    writeDown("check");
    if (asked("KV_STUB_CHECK", "throw")) {
        throw CheckError();
    }
    misbehave(lookUp, settings);
    if (asked("KV_STUB_CHECK", "correct")) {
        settings->views[0].bitrate = 4711;
    }
    reinterpret_cast<KvMvcPrintf>(lookUp("err_printf"))("width %d", 5);
    if (asked("KV_STUB_CHECK", "odd answer")) {
        return INT32_MIN;
    }
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
