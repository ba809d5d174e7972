// Files as settings are kept in them: found by the names that callers pass, read whole within a
// limit, replaced as a whole or not at all.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kv
{

/// The file that a caller means by `name`: UTF-8, or UTF-8 of bytes that were read as Latin-1.
///
/// Where both readings are possible, the file that exists is meant; where both exist, or neither,
/// the undone one, unless only the other's folder exists.
std::filesystem::path meantFile(std::string_view name);

/// A file's name for a message.
std::string displayName(const std::filesystem::path& file);

/// Whether a file has this name; a link counts too that leads nowhere.
bool isThere(const std::filesystem::path& file);

bool isFolder(const std::filesystem::path& file);

/// Reads a regular file; never waits for a pipe or device.
/// @param largest Bytes; a larger file is refused.
/// @return Why not; empty for success.
std::string readFile(const std::filesystem::path& file, std::size_t largest, std::string& content);

/// Replaces a file's content as a whole: whatever goes wrong, the old file stays.
///
/// A symbolic link stays and its target is replaced; mode, extended attributes, and where allowed
/// the owner stay as they were, or attributes and access list on Windows. A pipe or a character
/// device is written to; on Windows they are refused, as many a name means one.
/// @return Why not; empty for success.
std::string replaceFile(const std::filesystem::path& file, std::string_view content);

} // namespace kv
