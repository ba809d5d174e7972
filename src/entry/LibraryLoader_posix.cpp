#include "LibraryLoader.h"

#include <QFile>

#include <dlfcn.h>
#include <link.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>

namespace
{

// The codes that Windows has for the same two failures.
constexpr std::uint32_t libraryNotFound = 126;
constexpr std::uint32_t functionNotFound = 127;

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
    const std::string name = QFile::encodeName(QString::fromStdWString(fileName)).toStdString();
    void* handle = nullptr;
    if (name.find('/') == std::string::npos) {
        const std::string besideHost = hostProgramDirectory() + name;
        // What lies there counts, even when it cannot be loaded.
        if (access(besideHost.c_str(), F_OK) == 0) {
            handle = dlopen(besideHost.c_str(), mode);
        } else {
            handle = dlopen(name.c_str(), mode);
        }
    } else {
        handle = dlopen(name.c_str(), mode);
    }
    if (!handle) {
        setLastError(libraryNotFound, dynamicLinkerError());
    }
    return handle;
}

std::wstring LibraryLoader::filePath() const
{
    const link_map* map = nullptr;
    if (!m_loaded || dlinfo(m_handle, RTLD_DI_LINKMAP, &map) != 0) {
        return {};
    }
    return QFile::decodeName(map->l_name).toStdWString();
}

LibraryLoader::Address LibraryLoader::findSystemFunction(const char* name)
{
    void* address = dlsym(m_handle, name);
    if (!address) {
        setLastError(functionNotFound, dynamicLinkerError());
    }
    return reinterpret_cast<Address>(address);
}

void LibraryLoader::closeSystemLibrary(void* handle)
{
    dlclose(handle);
}
