#include "file_store.h"
#include "utf8.h"

#include <stdexcept>
#include <type_traits>

namespace kv
{
namespace
{

std::filesystem::path nativePath(std::string_view utf8)
{
    // Where names are not just bytes, others cannot be converted.
    constexpr bool areBytes = std::is_same_v<std::filesystem::path::value_type, char>;
    if (!areBytes && !isUtf8(utf8)) {
        throw std::invalid_argument("the name is not valid UTF-8");
    }
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

bool hasFolder(const std::filesystem::path& file)
{
    const std::filesystem::path folder = file.parent_path();
    return folder.empty() || isFolder(folder);
}

} // namespace

std::filesystem::path meantFile(std::string_view name)
{
    std::filesystem::path plain = nativePath(name);
    const auto undone = undoLatin1(name);
    if (!undone) {
        return plain;
    }
    const std::filesystem::path former = nativePath(*undone);
    const bool plainOnly =
        isThere(plain) ? !isThere(former) : hasFolder(plain) && !hasFolder(former);
    return plainOnly ? plain : former;
}

std::string displayName(const std::filesystem::path& file)
{
    const std::u8string name = file.u8string();
    return {name.begin(), name.end()};
}

} // namespace kv
