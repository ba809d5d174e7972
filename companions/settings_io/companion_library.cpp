#include "companion_library.h"

#include <filesystem>

#if defined(_WIN32)
#include "system_windows.h"

#include <vector>
#else
#include <dlfcn.h>
#endif

namespace kv
{
namespace
{

#if defined(_WIN32)

constexpr char kExtension[] = ".dll";

/** @param module Null: the program. */
std::filesystem::path folderOf(HMODULE module)
{
    std::vector<wchar_t> name(32 * 1024);
    GetModuleFileNameW(module, name.data(), static_cast<DWORD>(name.size()));
    return std::filesystem::path(name.data()).parent_path();
}

std::filesystem::path hostFolder()
{
    return folderOf(nullptr);
}

std::filesystem::path ownFolder()
{
    HMODULE own = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&ownFolder), &own);
    return folderOf(own);
}

/** Whoever owns the current folder, such as that of a film, has no libraries for this process. */
void* loadFile(const std::filesystem::path& file)
{
    // What a library needs is looked for beside it, too.
    const DWORD beside = file.is_absolute() ? LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR : 0;
    DWORD former = 0;
    SetThreadErrorMode(SEM_FAILCRITICALERRORS, &former); // no box of the system's own
    void* const handle = reinterpret_cast<void*>(
        LoadLibraryExW(file.c_str(), nullptr, LOAD_LIBRARY_SEARCH_DEFAULT_DIRS | beside));
    const DWORD error = GetLastError();
    SetThreadErrorMode(former, nullptr);
    SetLastError(error);
    return handle;
}

std::string loadReason()
{
    return systemReason();
}

#else

constexpr char kExtension[] = ".so";

std::filesystem::path hostFolder()
{
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

std::filesystem::path ownFolder()
{
    Dl_info own = {};
    const bool found = ::dladdr(reinterpret_cast<void*>(&ownFolder), &own) != 0 && own.dli_fname;
    return found ? std::filesystem::absolute(own.dli_fname).parent_path() : std::filesystem::path();
}

void* loadFile(const std::filesystem::path& file)
{
    return ::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
}

std::string loadReason()
{
    const char* text = ::dlerror();
    return text ? text : "";
}

#endif

/** What lies in one of the folders counts, even when it cannot be loaded. */
std::filesystem::path findFile(const std::string& file)
{
    for (const std::filesystem::path& folder : {hostFolder(), ownFolder()}) {
        std::error_code error;
        if (!folder.empty() && std::filesystem::exists(folder / file, error))
            return folder / file;
    }
    return file;
}

} // namespace

CompanionLibrary::CompanionLibrary(std::initializer_list<const char*> names)
{
    for (const char* name : names) {
        m_handle = loadFile(findFile(std::string(name) + kExtension));
        if (m_handle)
            return;
        m_reason = loadReason();
    }
}

CompanionLibrary::~CompanionLibrary()
{
    if (!m_handle)
        return;
#if defined(_WIN32)
    FreeLibrary(reinterpret_cast<HMODULE>(m_handle));
#else
    ::dlclose(m_handle);
#endif
}

KvMvcFunction CompanionLibrary::resolve(const char* name) const
{
    if (!m_handle)
        return nullptr;
#if defined(_WIN32)
    return reinterpret_cast<KvMvcFunction>(
        GetProcAddress(reinterpret_cast<HMODULE>(m_handle), name));
#else
    return reinterpret_cast<KvMvcFunction>(::dlsym(m_handle, name));
#endif
}

} // namespace kv
