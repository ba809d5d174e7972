// The little that settings files need to know of UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kv
{

/// Decodes one code point at `position` and moves behind it; none for ill-formed text.
std::optional<char32_t> nextCodePoint(std::string_view text, std::size_t& position);

/// A letter that is a whole code point, and no control character.
constexpr bool isPlainAscii(char letter)
{
    return letter == '\t' || (letter >= ' ' && letter <= '~');
}

/// Of the C0 and C1 sets, but for the tabulator.
bool isControl(char32_t point);

bool isUtf8(std::string_view text);

/// Text from elsewhere as a part of a line: what would end the line, control the terminal or turn
/// the direction of writing is escaped, as "\\u001b"; bytes that are no UTF-8 as "\\xff".
std::string printable(std::string_view text);

/// Undoes "UTF-8 bytes that were read as Latin-1 and encoded as UTF-8 again".
/// @return The former text; none where `text` cannot be the outcome of such a
///         conversion, or holds ASCII only and so is its own former text.
std::optional<std::string> undoLatin1(std::string_view text);

} // namespace kv
