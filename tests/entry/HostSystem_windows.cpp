#include "HostSystem.h"

#include <windows.h>

#include <psapi.h>

namespace host_system
{

void* openLibrary(const std::filesystem::path& file, std::string& error)
{
    std::filesystem::path preferred = file;
    // LoadLibrary's own rules for names hold for backslashes only.
    const HMODULE library = LoadLibraryW(preferred.make_preferred().c_str());
    if (!library) {
        error = "error " + std::to_string(GetLastError());
    }
    return library;
}

void* findFunction(void* library, const char* name)
{
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

void closeLibrary(void* library)
{
    FreeLibrary(static_cast<HMODULE>(library));
}

bool findsLibrary(const std::string& name)
{
    const HMODULE library = LoadLibraryW(std::filesystem::path(name).c_str());
    return library && FreeLibrary(library);
}

void setLibraryFolder(const std::string& folder)
{
    std::filesystem::path preferred = folder;
    SetDllDirectoryW(preferred.make_preferred().c_str());
}

std::vector<std::string> mappedFiles()
{
    std::vector<HMODULE> modules(1024);
    DWORD bytes = 0;
    const auto size = static_cast<DWORD>(modules.size() * sizeof(HMODULE));
    if (!K32EnumProcessModules(GetCurrentProcess(), modules.data(), size, &bytes) || bytes > size) {
        return {"kv_modules_cannot_be_listed"};
    }
    modules.resize(bytes / sizeof(HMODULE));
    std::vector<std::string> names;
    for (const HMODULE module : modules) {
        wchar_t path[MAX_PATH] = L"";
        GetModuleFileNameW(module, path, MAX_PATH);
        names.push_back(std::filesystem::path(path).filename().string());
    }
    return names;
}

std::string usage()
{
    return {};
}

void* openForeignWindow()
{
    const HWND window =
        CreateWindowW(L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100, 500, 400,
                      nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    SetForegroundWindow(window);
    SetFocus(window);
    return window;
}

std::string classOf(unsigned long)
{
    return {};
}

std::string stateOf(void* foreignWindow)
{
    const auto window = static_cast<HWND>(foreignWindow);
    std::string state;
    if (IsWindowEnabled(window)) {
        state += "enabled ";
    }
    if (GetForegroundWindow() == window) {
        state += "active ";
    }
    if (GetFocus() == window) {
        state += "focused ";
    }
    return state;
}

} // namespace host_system
