#include "LibraryLoader.h"

#include <QFile>

#include <kv_config_gui_mvc/companion_library.h>

#include <dlfcn.h>
#include <link.h>
#include <unistd.h>

#include <algorithm>
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

std::string ownDirectory()
{
    char folder[KV_MVC_LIBRARY_TEXT];
    kvMvcOwnFolder(folder);
    return folder;
}

bool isThere(const std::string& file)
{
    return access(file.c_str(), F_OK) == 0;
}

/// Where the loader looks first: LD_LIBRARY_PATH, then the run path, which is the module's folder.
std::string likelyPlace(const std::string& name)
{
    const char* const variable = std::getenv("LD_LIBRARY_PATH");
    std::string folders = variable ? variable : "";
    while (!folders.empty()) {
        const std::size_t end = std::min(folders.find_first_of(":;"), folders.size());
        std::string file = folders.substr(0, end) + '/' + name;
        if (end > 0 && isThere(file)) {
            return file;
        }
        folders.erase(0, end + 1);
    }
    return ownDirectory() + name;
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
    const bool isPath = name.find('/') != std::string::npos;
    const std::string besideHost = isPath ? name : hostProgramDirectory() + name;
    // What lies there counts, even when it cannot be loaded.
    const bool isKnown = isPath || isThere(besideHost);
    const std::string likely = isKnown ? besideHost : likelyPlace(name);
    if (const char* const fault = kvMvcLibraryFault(likely.c_str())) {
        setLastError(libraryNotFound, likely + ": " + fault);
        return nullptr;
    }
    void* const handle = dlopen(isKnown ? besideHost.c_str() : name.c_str(), mode);
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
