#include "system_windows.h"

#include <algorithm>
#include <string_view>

namespace kv
{
namespace
{

constexpr std::size_t longestName = 32 * 1024; // the system's own limit, terminating zero included
constexpr std::wstring_view verbatimPrefix = L"\\\\?\\";
constexpr std::wstring_view serverPrefix = L"\\\\";

std::string toUtf8(std::wstring_view text)
{
    const auto length = static_cast<int>(text.size());
    const int size =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(), size, nullptr, nullptr);
    return utf8;
}

} // namespace

std::wstring fullName(const std::filesystem::path& file)
{
    if (file.native().starts_with(verbatimPrefix)) {
        return file.native();
    }
    std::wstring name(longestName, L'\0');
    const DWORD length =
        GetFullPathNameW(file.c_str(), static_cast<DWORD>(name.size()), name.data(), nullptr);
    if (length == 0 || length >= name.size()) {
        return file.native(); // whoever is given it says what is wrong
    }
    name.resize(length);
    if (name.starts_with(verbatimPrefix) || name.starts_with(devicePrefix)) {
        return name;
    }
    if (name.starts_with(serverPrefix)) {
        return std::wstring(verbatimPrefix) + L"UNC" + name.substr(1);
    }
    return std::wstring(verbatimPrefix) + name;
}

std::string systemReason(DWORD error)
{
    std::wstring words(4096, L'\0');
    const DWORD length =
        FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error,
                       0, words.data(), static_cast<DWORD>(words.size()), nullptr);
    words.resize(length);
    // They come with a full stop and line ends, which are no part of a message's middle.
    std::ranges::replace_if(
        words, [](wchar_t sign) { return sign < L' '; }, L' ');
    words.erase(words.find_last_not_of(L" .") + 1);
    return words.empty() ? "error " + std::to_string(error) : toUtf8(words);
}

} // namespace kv
