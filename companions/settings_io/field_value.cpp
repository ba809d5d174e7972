#include "field_value.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace kv
{
namespace
{

constexpr std::string_view hexDigits = "0123456789abcdef";
constexpr std::size_t rateDigits = 16; // a double's bit pattern in hexadecimal

char lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

template <typename Number>
std::string decimal(Number number)
{
    char text[32];
    const auto end = std::to_chars(std::begin(text), std::end(text), number).ptr;
    return {text, end};
}

/// The television rates, n * 1000 / 1001, where that is exactly the number's value.
std::string fraction(double rate)
{
    constexpr double largest = 1000000;
    const double numerator = std::round(rate * 1001);
    if (!(numerator > 0 && numerator <= largest) || std::fmod(numerator, 1000) != 0 ||
        std::fmod(numerator, 1001) == 0 || numerator / 1001 != rate) {
        return {};
    }
    return decimal(static_cast<int>(numerator)) + "/1001";
}

std::string formatRate(double rate)
{
    if (!std::isfinite(rate)) {
        const auto bits = std::bit_cast<std::uint64_t>(rate);
        std::string text = "0x";
        for (int shift = 60; shift >= 0; shift -= 4) {
            text += hexDigits[bits >> shift & 15];
        }
        return text;
    }
    const std::string text = fraction(rate);
    return text.empty() ? decimal(rate) : text;
}

std::optional<double> parseBitPattern(std::string_view digits)
{
    std::uint64_t bits = 0;
    const auto end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, bits, 16);
    if (digits.size() != rateDigits || result.ec != std::errc() || result.ptr != end) {
        return std::nullopt;
    }
    return std::bit_cast<double>(bits);
}

std::optional<double> parseRate(std::string_view text)
{
    if (text.starts_with("0x")) {
        return parseBitPattern(text.substr(2));
    }
    const auto slash = text.find('/');
    if (slash != text.npos) {
        const auto numerator = parseDecimal<std::int64_t>(text.substr(0, slash));
        const auto denominator = parseDecimal<std::int64_t>(text.substr(slash + 1));
        if (!numerator || !denominator || *denominator <= 0) {
            return std::nullopt;
        }
        return static_cast<double>(*numerator) / static_cast<double>(*denominator);
    }
    const auto rate = parseDecimal<double>(text);
    return rate && std::isfinite(*rate) ? rate : std::nullopt; // "inf" and "nan" are numbers to it
}

/// Levels are spelled with a dot, so that a code of one digit is never taken for a level.
std::string formatLevel(std::int32_t code)
{
    const std::int64_t tenths = std::abs(std::int64_t{code});
    std::string text(code < 0 ? "-" : "");
    return text.append(decimal(tenths / 10)).append(".").append(decimal(tenths % 10));
}

/// "4.0" and "4" are level 4; "40", as stream analyzers have it, is its code.
std::optional<std::int32_t> parseLevel(std::string_view text)
{
    const auto dot = text.find('.');
    if (dot == text.npos) {
        const auto number = parseDecimal<std::int32_t>(text);
        return number && *number > 0 && *number < 10 ? *number * 10 : number;
    }
    const bool one = dot > 0 && text[dot - 1] != '-' && dot + 2 == text.size();
    const std::string digits = std::string(text.substr(0, dot)).append(text.substr(dot + 1));
    return one ? parseDecimal<std::int32_t>(digits) : std::nullopt;
}

std::optional<std::int32_t> parseInteger(const Field& field, std::string_view text)
{
    const auto known = std::ranges::find_if(
        field.values, [&](const NamedValue& row) { return equalIgnoringCase(row.name, text); });
    if (known != field.values.end()) {
        return known->value;
    }
    return field.kind == FieldKind::Level ? parseLevel(text) : parseDecimal<std::int32_t>(text);
}

std::string expectation(const Field& field)
{
    if (field.kind == FieldKind::Rate) {
        return "a number, a fraction or a bit pattern";
    }
    std::string text;
    for (const NamedValue& row : field.values) {
        text.append(row.name).append(", ");
    }
    if (field.kind == FieldKind::Level) {
        return text + "or another number with one decimal";
    }
    return text.empty() ? "a whole number of 32 bits" : text + "or a whole number of 32 bits";
}

} // namespace

bool equalIgnoringCase(std::string_view left, std::string_view right)
{
    return std::ranges::equal(left, right, {}, lower, lower);
}

template <typename Number>
std::optional<Number> parseDecimal(std::string_view text)
{
    Number number{};
    const auto end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end ? std::optional(number) : std::nullopt;
}

template std::optional<std::int32_t> parseDecimal(std::string_view text);
template std::optional<std::int64_t> parseDecimal(std::string_view text);
template std::optional<std::size_t> parseDecimal(std::string_view text);
template std::optional<double> parseDecimal(std::string_view text);

std::string formatField(const Field& field, const unsigned char* base)
{
    if (field.kind == FieldKind::Rate) {
        double rate = 0;
        std::memcpy(&rate, base + field.offset, sizeof rate);
        return formatRate(rate);
    }
    std::int32_t value = 0;
    std::memcpy(&value, base + field.offset, sizeof value);
    const auto known = std::ranges::find(field.values, value, &NamedValue::value);
    if (known != field.values.end()) {
        return std::string(known->name);
    }
    return field.kind == FieldKind::Level ? formatLevel(value) : decimal(value);
}

std::string parseField(const Field& field, std::string_view text, unsigned char* base)
{
    const auto store = [&](auto value) {
        if (value) {
            std::memcpy(base + field.offset, &*value, sizeof *value);
        }
        return value.has_value();
    };
    const bool stored =
        field.kind == FieldKind::Rate ? store(parseRate(text)) : store(parseInteger(field, text));
    return stored ? std::string() : "expected " + expectation(field);
}

std::string formatBytes(std::span<const unsigned char> bytes)
{
    constexpr std::size_t group = 4;
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        if (at != 0 && at % group == 0) {
            text += ' ';
        }
        text += hexDigits[bytes[at] >> 4];
        text += hexDigits[bytes[at] & 15];
    }
    return text;
}

std::optional<std::vector<unsigned char>> parseBytes(std::string_view text)
{
    std::vector<unsigned char> bytes;
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] == ' ' || text[at] == '\t') {
            ++at;
            continue;
        }
        const auto high = hexDigits.find(lower(text[at]));
        const auto low = at + 1 < text.size() ? hexDigits.find(lower(text[at + 1])) : text.npos;
        if (high == text.npos || low == text.npos) {
            return std::nullopt;
        }
        bytes.push_back(static_cast<unsigned char>(high << 4 | low));
        at += 2;
    }
    return bytes.empty() ? std::nullopt : std::optional(bytes);
}

} // namespace kv
