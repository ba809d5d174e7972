// What a file is by its name, and by its content.
#pragma once

#include <string_view>

namespace kv
{

enum class FileKind { Settings, Media, Unknown };

/// By what follows the last dot, without regard to case.
FileKind kindByName(std::string_view name);

/// Whether it is UTF-8 without control characters.
bool isPlainText(std::string_view content);

/// Whether it is text with the heading of a section or a key at its beginning, an object of JSON,
/// or no text at all.
bool looksLikeSettings(std::string_view content);

} // namespace kv
