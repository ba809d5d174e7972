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

std::filesystem::path ownFolder()
{
    HMODULE own = nullptr;
    std::vector<wchar_t> name(32 * 1024);
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&ownFolder), &own);
    GetModuleFileNameW(own, name.data(), static_cast<DWORD>(name.size()));
    return std::filesystem::path(name.data()).parent_path();
}

void* loadFile(const std::filesystem::path& file)
{
    // What a library beside this one needs is looked for beside it, too.
    const DWORD flags = file.is_absolute() ? LOAD_WITH_ALTERED_SEARCH_PATH : 0;
    return reinterpret_cast<void*>(LoadLibraryExW(file.c_str(), nullptr, flags));
}

std::string loadReason()
{
    return systemReason();
}

#else

constexpr char kExtension[] = ".so";

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

} // namespace

CompanionLibrary::CompanionLibrary(std::initializer_list<const char*> names)
{
    for (const char* name : names) {
        const std::string file = std::string(name) + kExtension;
        const std::filesystem::path beside = ownFolder() / file;
        std::error_code error;
        const bool isBeside = std::filesystem::exists(beside, error);
        m_handle = loadFile(isBeside ? beside : std::filesystem::path(file));
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
