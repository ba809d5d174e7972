// The values of settings files: numbers, names, frame rates, runs of bytes.
#pragma once

#include "settings_fields.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kv
{

/// Whether the field's numbers may have a k, M or G behind them.
bool isAmount(const Field& field);

/// Whether the field may hold the number: a code has to be one of its values.
bool takesNumber(const Field& field, std::int32_t number);

/// Whether there is a text for what the field holds whose structure begins at `base`.
bool hasText(const Field& field, const unsigned char* base);

/// The text of the field whose structure begins at `base`.
std::string formatField(const Field& field, const unsigned char* base);

/// Stores the value that `text` stands for in the structure that begins at `base`.
/// @return What is wrong with the text; empty when it was stored.
std::string parseField(const Field& field, std::string_view text, unsigned char* base);

/// Bytes as hexadecimal digits, in groups of four bytes.
std::string formatBytes(std::span<const unsigned char> bytes);

/// The bytes of hexadecimal digits, blanks between whole bytes ignored; none for other text.
std::optional<std::vector<unsigned char>> parseBytes(std::string_view text);

/// A decimal number; none for anything else, also beyond the type's range.
template <typename Number>
std::optional<Number> parseDecimal(std::string_view text);

/// Without blanks and tabulators around it.
std::string_view trimmed(std::string_view text);

/// ASCII only, since every name and key is.
bool equalIgnoringCase(std::string_view left, std::string_view right);

} // namespace kv
