#include "file_store.h"
#include "utf8.h"

namespace kv
{
namespace
{

std::filesystem::path nativePath(std::string_view utf8)
{
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

/** A link that leads nowhere counts too: it can be written through. */
bool isThere(const std::filesystem::path& file)
{
    std::error_code error;
    return std::filesystem::exists(std::filesystem::symlink_status(file, error));
}

bool hasFolder(const std::filesystem::path& file)
{
    std::error_code error;
    const std::filesystem::path folder = file.parent_path();
    return folder.empty() || std::filesystem::is_directory(folder, error);
}

} // namespace

std::filesystem::path meantFile(std::string_view name)
{
    const std::filesystem::path plain = nativePath(name);
    const auto undone = undoLatin1(name);
    if (!undone)
        return plain;
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
