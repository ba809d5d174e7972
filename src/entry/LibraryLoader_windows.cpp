#include "LibraryLoader.h"

#include <windows.h>

#include <string>

namespace
{

/// Keeps Windows from showing a box of its own about a library that it cannot load.
class NoErrorBoxes
{
public:
    NoErrorBoxes() { SetThreadErrorMode(SEM_FAILCRITICALERRORS, &m_former); }
    NoErrorBoxes(const NoErrorBoxes&) = delete;
    NoErrorBoxes& operator=(const NoErrorBoxes&) = delete;
    ~NoErrorBoxes() { SetThreadErrorMode(m_former, nullptr); }

private:
    DWORD m_former = 0;
};

/// Whether the system looks for libraries in the current folder, which its list of folders has as a
/// dot. GetDllDirectoryW() gives the same answer for a process that never called SetDllDirectoryW()
/// and for one that called it with an empty text, which takes the folder out.
bool currentFolderIsSearched()
{
    using GetDllPath = LONG(WINAPI*)(const wchar_t*, ULONG, wchar_t**, wchar_t**);
    using ReleasePath = void(WINAPI*)(wchar_t*);
    const HMODULE system = GetModuleHandleW(L"ntdll.dll");
    const auto getDllPath = reinterpret_cast<GetDllPath>(
        reinterpret_cast<void*>(GetProcAddress(system, "LdrGetDllPath")));
    const auto releasePath = reinterpret_cast<ReleasePath>(
        reinterpret_cast<void*>(GetProcAddress(system, "RtlReleasePath")));
    wchar_t* path = nullptr;
    wchar_t* unused = nullptr;
    if (!getDllPath || !releasePath || getDllPath(L"library.dll", 0, &path, &unused) != 0) {
        return false;
    }
    const std::wstring folders = L';' + std::wstring(path) + L';';
    releasePath(path);
    return folders.find(L";.;") != std::wstring::npos;
}

/// With the backslash behind it; empty when it is not known.
std::wstring hostProgramFolder()
{
    std::wstring path(32 * 1024, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    path.erase(path.rfind(L'\\') + 1);
    return path;
}

/// Keeps the current folder, which may be anybody's, out of the search for libraries. A host that
/// has named a folder to search instead has done so already.
class NoCurrentFolder
{
public:
    NoCurrentFolder()
    {
        wchar_t first[2] = L"";
        if (GetDllDirectoryW(2, first) > 0) {
            return;
        }
        m_former = currentFolderIsSearched() ? nullptr : L"";
        m_isMine = true;
        // Searched first anyway; Wine takes an empty text for none.
        SetDllDirectoryW(hostProgramFolder().c_str());
    }
    NoCurrentFolder(const NoCurrentFolder&) = delete;
    NoCurrentFolder& operator=(const NoCurrentFolder&) = delete;
    ~NoCurrentFolder()
    {
        if (m_isMine) {
            SetDllDirectoryW(m_former);
        }
    }

private:
    bool m_isMine = false;
    const wchar_t* m_former = nullptr;
};

std::string systemMessage(DWORD code)
{
    char text[2048] = "";
    const DWORD length =
        FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
                       MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL), text, sizeof text, nullptr);
    return std::string(text, length);
}

} // namespace

void* LibraryLoader::openSystemLibrary(const std::wstring& fileName)
{
    const NoErrorBoxes quiet;
    const NoCurrentFolder nobodysFolder;
    const HMODULE handle = LoadLibraryW(fileName.c_str());
    if (!handle) {
        const DWORD code = GetLastError();
        setLastError(code, systemMessage(code));
    }
    return handle;
}

std::wstring LibraryLoader::filePath() const
{
    constexpr DWORD room = 32 * 1024;
    std::wstring path(room, L'\0');
    path.resize(m_loaded ? GetModuleFileNameW(static_cast<HMODULE>(m_handle), path.data(), room)
                         : 0);
    return path;
}

LibraryLoader::Address LibraryLoader::findSystemFunction(const char* name)
{
    const FARPROC address = GetProcAddress(static_cast<HMODULE>(m_handle), name);
    if (!address) {
        const DWORD code = GetLastError();
        setLastError(code, systemMessage(code));
    }
    return reinterpret_cast<Address>(address);
}

void LibraryLoader::closeSystemLibrary(void* handle)
{
    FreeLibrary(static_cast<HMODULE>(handle));
}
