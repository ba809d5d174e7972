// JSON as text (RFC 8259), as far as settings need it: values that know their line.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kv
{

struct Problem;

struct JsonValue {
    enum class Kind { Null, False, True, Number, String, Array, Object };

    Kind kind = Kind::Null;
    std::string name;                ///< of an object's member
    std::string text;                ///< of a string in UTF-8, and of a number as it is written
    std::vector<JsonValue> children; ///< an array's values or an object's members, in their order
    std::size_t line = 0;            ///< from 1
};

/// @param problem What is wrong, when the text is no JSON.
std::optional<JsonValue> parseJson(std::string_view text, Problem& problem);

} // namespace kv
