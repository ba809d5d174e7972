#include "LibraryLoader.h"

#include <dlfcn.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>

namespace
{

// The codes that Windows has for the same two failures.
constexpr std::uint32_t libraryNotFound = 126;
constexpr std::uint32_t functionNotFound = 127;

std::string narrow(const std::wstring& text)
{
    // UTF-8, whatever the locale: file names are bytes here.
    std::string bytes;
    for (const wchar_t character : text) {
        const auto code = static_cast<std::uint32_t>(character);
        if (code < 0x80) {
            bytes += static_cast<char>(code);
            continue;
        }
        const int further = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
        const std::uint32_t lead = further == 1 ? 0xC0 : further == 2 ? 0xE0 : 0xF0;
        bytes += static_cast<char>(lead | (code >> (6 * further)));
        for (int i = further - 1; i >= 0; --i)
            bytes += static_cast<char>(0x80 | ((code >> (6 * i)) & 0x3F));
    }
    return bytes;
}

std::string hostProgramDirectory()
{
    char path[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    const std::string program(path, length > 0 ? static_cast<std::size_t>(length) : 0);
    const auto slash = program.rfind('/');
    return slash == std::string::npos ? std::string() : program.substr(0, slash + 1);
}

std::string dynamicLinkerError()
{
    const char* error = dlerror();
    return error ? error : std::string();
}

} // namespace

void* LibraryLoader::openSystemLibrary(const std::wstring& fileName)
{
    constexpr int mode = RTLD_NOW | RTLD_LOCAL;
    const std::string name = narrow(fileName);
    void* handle = nullptr;
    if (name.find('/') == std::string::npos) {
        const std::string besideHost = hostProgramDirectory() + name;
        // What lies there counts, even when it cannot be loaded.
        if (access(besideHost.c_str(), F_OK) == 0)
            handle = dlopen(besideHost.c_str(), mode);
        else
            handle = dlopen(name.c_str(), mode);
    } else {
        handle = dlopen(name.c_str(), mode);
    }
    if (!handle)
        setLastError(libraryNotFound, dynamicLinkerError());
    return handle;
}

LibraryLoader::Address LibraryLoader::findSystemFunction(const char* name)
{
    void* address = dlsym(m_handle, name);
    if (!address)
        setLastError(functionNotFound, dynamicLinkerError());
    return reinterpret_cast<Address>(address);
}

void LibraryLoader::closeSystemLibrary(void* handle)
{
    dlclose(handle);
}
