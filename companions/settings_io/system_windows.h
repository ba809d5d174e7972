// What every call of Windows needs: names of any length, and its words for an error.
#pragma once

#include <filesystem>
#include <string>

#include <windows.h>

namespace kv
{

/// The name of a device, as fullName() tells it.
inline constexpr wchar_t devicePrefix[] = L"\\\\.\\";

/// The absolute name, in the form that may be longer than 260 characters.
///
/// Slashes of either kind, relative names, those of a drive's current folder and those of servers
/// are all made to that. A name that means a device ("NUL", in some versions also "C:\x\nul.cfg")
/// begins with devicePrefix.
std::wstring fullName(const std::filesystem::path& file);

/// The system's words for an error: UTF-8, one line, in the user's language.
std::string systemReason(DWORD error = GetLastError());

} // namespace kv
