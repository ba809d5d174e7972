#include "LibraryLoader.h"

#include <windows.h>

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
    const HMODULE handle = LoadLibraryW(fileName.c_str());
    if (!handle) {
        const DWORD code = GetLastError();
        setLastError(code, systemMessage(code));
    }
    return handle;
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
