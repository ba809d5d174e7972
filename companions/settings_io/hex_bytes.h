// Runs of bytes as text.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kv
{

inline constexpr std::string_view hexDigits = "0123456789abcdef";

/// Bytes as hexadecimal digits, in groups of four bytes.
std::string formatBytes(std::span<const unsigned char> bytes);

/// The bytes of hexadecimal digits, blanks between whole bytes ignored; none for other text.
std::optional<std::vector<unsigned char>> parseBytes(std::string_view text);

} // namespace kv
