#include "field_value.h"

#include "hex_bytes.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace kv
{
namespace
{

constexpr std::size_t rateDigits = 16; // a double's bit pattern in hexadecimal

/// The rates that the dialog shows rounded: as it does, what is meant, and how a rate is written
/// that is those very decimals.
struct RoundedRate {
    std::string_view shown;
    int numerator; ///< over 1001
    std::string_view decimals;
};
constexpr RoundedRate roundedRates[] = {
    {"23.98", 24000, "2398/100"}, {"29.97", 30000, "2997/100"}, {"59.94", 60000, "5994/100"}};

const RoundedRate* findRoundedRate(std::string_view text)
{
    const auto rate = std::ranges::find(roundedRates, text, &RoundedRate::shown);
    return rate == std::end(roundedRates) ? nullptr : rate;
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
    const std::string ratio = fraction(rate);
    const std::string text = ratio.empty() ? decimal(rate) : ratio;
    const RoundedRate* rounded = findRoundedRate(text);
    return rounded ? std::string(rounded->decimals) : text;
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
    if (const RoundedRate* rounded = findRoundedRate(text)) {
        return rounded->numerator / 1001.0;
    }
    const auto slash = text.find('/');
    if (slash != text.npos) {
        const auto numerator = parseDecimal<std::int64_t>(trimmed(text.substr(0, slash)));
        const auto denominator = parseDecimal<std::int64_t>(trimmed(text.substr(slash + 1)));
        if (!numerator || !denominator || *denominator <= 0) {
            return std::nullopt;
        }
        return static_cast<double>(*numerator) / static_cast<double>(*denominator);
    }
    const auto rate = parseDecimal<double>(text);
    return rate && std::isfinite(*rate) ? rate : std::nullopt; // "inf" and "nan" are numbers to it
}

/// "4" is level 4; "40", as stream analyzers have it, is its code.
std::optional<std::int32_t> parseLevel(std::string_view text)
{
    const auto number = parseDecimal<std::int32_t>(text);
    return number && *number > 0 && *number < 10 ? *number * 10 : number;
}

/// Decimal digits, perhaps with a point, times a power of ten: exactly, or not at all.
std::optional<std::int64_t> parseScaled(std::string_view text, std::int64_t factor)
{
    const auto point = std::min(text.find('.'), text.size());
    std::string digits(text.substr(0, point));
    for (const char digit : text.substr(std::min(point + 1, text.size()))) {
        digits += digit;
        if (factor % 10 != 0) {
            return std::nullopt;
        }
        factor /= 10;
    }
    const auto number = parseDecimal<std::int32_t>(digits);
    return number && text.back() != '.' ? std::optional(*number * factor) : std::nullopt;
}

/// "20M" and "1.5 k" beside whole numbers.
std::optional<std::int32_t> parseAmount(std::string_view text)
{
    struct Unit {
        char letter;
        std::int64_t factor;
    };
    static constexpr Unit units[] = {{'k', 1'000}, {'m', 1'000'000}, {'g', 1'000'000'000}};
    const auto unit =
        std::ranges::find(units, text.empty() ? '\0' : lower(text.back()), &Unit::letter);
    if (unit == std::end(units)) {
        return parseDecimal<std::int32_t>(text);
    }
    const auto amount = parseScaled(trimmed(text.substr(0, text.size() - 1)), unit->factor);
    const bool fits = amount && *amount == static_cast<std::int32_t>(*amount);
    return fits ? std::optional(static_cast<std::int32_t>(*amount)) : std::nullopt;
}

std::optional<std::int32_t> parseInteger(const Field& field, std::string_view text)
{
    const auto known = std::ranges::find_if(field.values, [&](const NamedValue& row) {
        return equalIgnoringCase(row.name.empty() ? row.text : row.name, text) ||
               equalIgnoringCase(row.text, text);
    });
    if (known != field.values.end()) {
        return known->value;
    }
    const auto number = field.kind == FieldKind::Level ? parseLevel(text)
                        : isAmount(field)              ? parseAmount(text)
                                                       : parseDecimal<std::int32_t>(text);
    return number && takesNumber(field, *number) ? number : std::nullopt;
}

/// "a, b or c"
std::string alternatives(const std::vector<std::string>& texts)
{
    std::string all;
    for (const std::string& text : texts) {
        all += &text == &texts.front() ? "" : &text == &texts.back() ? " or " : ", ";
        all += text;
    }
    return all;
}

std::string expectation(const Field& field)
{
    if (field.kind == FieldKind::Rate) {
        return "a number, a fraction or a bit pattern";
    }
    // A value without a name in a list of names is for what others wrote.
    const bool hasNames =
        std::ranges::any_of(field.values, [](const NamedValue& row) { return !row.name.empty(); });
    std::vector<std::string> texts;
    for (const NamedValue& row : field.values) {
        if (!row.name.empty()) {
            texts.emplace_back(row.name);
        } else if (field.isCode() && !hasNames) {
            texts.push_back(decimal(row.value));
        }
    }
    if (!field.isCode()) {
        texts.emplace_back(isAmount(field) ? "a whole number of 32 bits, as it is or in k, M or G"
                                           : "a whole number of 32 bits");
    }
    return alternatives(texts);
}

template <typename Number>
bool store(std::optional<Number> number, const Field& field, unsigned char* base)
{
    if (number) {
        std::memcpy(base + field.offset, &*number, sizeof *number);
    }
    return number.has_value();
}

} // namespace

char lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string_view trimmed(std::string_view text)
{
    const auto isBlank = [](char letter) { return letter == ' ' || letter == '\t'; };
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

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

bool isAmount(const Field& field)
{
    return field.kind == FieldKind::Amount || field.kind == FieldKind::Buffer ||
           field.kind == FieldKind::Fullness;
}

bool takesNumber(const Field& field, std::int32_t number)
{
    return !field.isCode() ||
           std::ranges::find(field.values, number, &NamedValue::value) != field.values.end();
}

bool hasText(const Field& field, const unsigned char* base)
{
    std::int32_t value = 0;
    std::memcpy(&value, base + field.offset, sizeof value);
    return takesNumber(field, value);
}

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
    const bool hasName = known != field.values.end() && !known->name.empty();
    return hasName ? std::string(known->name) : decimal(value);
}

std::string parseField(const Field& field, std::string_view text, unsigned char* base)
{
    const bool isStored = field.kind == FieldKind::Rate
                              ? store(parseRate(text), field, base)
                              : store(parseInteger(field, text), field, base);
    return isStored ? std::string() : "expected " + expectation(field);
}

std::string parseNumber(const Field& field, std::string_view text, bool isUnknownCode,
                        unsigned char* base)
{
    const auto number = parseDecimal<double>(text);
    if (field.kind == FieldKind::Rate) {
        return store(number, field, base) ? std::string() : "expected " + expectation(field);
    }
    const auto isWhole = number && *number >= std::numeric_limits<std::int32_t>::min() &&
                         *number <= std::numeric_limits<std::int32_t>::max() &&
                         *number == std::trunc(*number);
    const auto whole = isWhole ? std::optional(static_cast<std::int32_t>(*number)) : std::nullopt;
    const bool isTaken = whole && (isUnknownCode || takesNumber(field, *whole));
    return isTaken && store(whole, field, base) ? std::string() : "expected " + expectation(field);
}

} // namespace kv
