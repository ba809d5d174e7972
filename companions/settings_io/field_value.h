// The values of settings files: numbers, names, frame rates.
#pragma once

#include "settings_fields.h"

#include <optional>
#include <string>
#include <string_view>

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

/// The same for the field's own number, which may have zeros behind its point.
/// @param isUnknownCode Whether it may be a code that the field does not have.
std::string parseNumber(const Field& field, std::string_view text, bool isUnknownCode,
                        unsigned char* base);

/// A decimal number; none for anything else, also beyond the type's range.
template <typename Number>
std::optional<Number> parseDecimal(std::string_view text);

/// Without blanks and tabulators around it.
std::string_view trimmed(std::string_view text);

/// Of ASCII only, since every name and key is.
char lower(char letter);
bool equalIgnoringCase(std::string_view left, std::string_view right);

} // namespace kv
