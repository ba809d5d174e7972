#include "Library.h"

#include <QDir>

#include <string>

#include <windows.h>

namespace
{

/// The system's words for its last error, in one line.
QString lastError()
{
    wchar_t text[1024] = L"";
    const DWORD code = GetLastError();
    const DWORD length =
        FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0,
                       text, static_cast<DWORD>(std::size(text)), nullptr);
    return length == 0 ? QStringLiteral("error %1").arg(code)
                       : QString::fromWCharArray(text, static_cast<int>(length)).simplified();
}

} // namespace

void* Library::load(const QString& file, QString& reason)
{
    // What a library needs is looked for beside it. The flag is for full paths only.
    const DWORD flags = QDir::isAbsolutePath(file) ? LOAD_WITH_ALTERED_SEARCH_PATH : 0;
    const std::wstring name = QDir::toNativeSeparators(file).toStdWString();
    const HMODULE handle = LoadLibraryExW(name.c_str(), nullptr, flags);
    if (handle == nullptr) {
        reason = QStringLiteral("cannot load '%1': %2").arg(file, lastError());
    }
    return reinterpret_cast<void*>(handle);
}

Library::Address Library::find(void* handle, const char* name)
{
    return reinterpret_cast<Address>(GetProcAddress(static_cast<HMODULE>(handle), name));
}

void Library::unload(void* handle)
{
    FreeLibrary(static_cast<HMODULE>(handle));
}

void Library::ignoreCurrentFolder()
{
    // The folder given takes the current one's place in the search.
    std::wstring folder(32 * 1024, L'\0');
    folder.resize(GetModuleFileNameW(nullptr, folder.data(), static_cast<DWORD>(folder.size())));
    folder.erase(folder.find_last_of(L'\\') + 1);
    SetDllDirectoryW(folder.c_str());
    // And a library that cannot be loaded is an error to print, not one to show in a box.
    SetErrorMode(SEM_FAILCRITICALERRORS);
}
