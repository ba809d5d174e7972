// A host program of the settings file library alone: import_host LIBRARY FILE reads the file. Its
// exit code is the library's result, or 3.
#include <kv_config_gui_mvc/companions.h>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace
{

KvMvcSettings settings;

KvMvcSettingsIoGetApi load(const char* library)
{
#ifdef _WIN32
    const HMODULE handle = LoadLibraryA(library);
    const FARPROC found = handle ? GetProcAddress(handle, KV_MVC_SETTINGS_IO_GET_API) : nullptr;
    return reinterpret_cast<KvMvcSettingsIoGetApi>(reinterpret_cast<KvMvcFunction>(found));
#else
    void* const handle = dlopen(library, RTLD_NOW);
    void* const found = handle ? dlsym(handle, KV_MVC_SETTINGS_IO_GET_API) : nullptr;
    return reinterpret_cast<KvMvcSettingsIoGetApi>(found);
#endif
}

} // namespace

int main(int count, char** arguments)
{
    const auto getApi = count == 3 ? load(arguments[1]) : nullptr;
    if (!getApi) {
        return 3;
    }
    const auto read = reinterpret_cast<KvMvcReadSettings>(getApi(KV_MVC_SETTINGS_IO_READER));
    return read(&settings, arguments[2]);
}
