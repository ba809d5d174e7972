#include "json_text.h"

#include "settings_text.h"
#include "utf8.h"

#include <algorithm>

namespace kv
{
namespace
{

constexpr int mostLevels = 16; // of nesting; settings have five

bool isDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

int hexDigit(char letter)
{
    constexpr std::string_view digits = "0123456789abcdefABCDEF";
    const auto at = digits.find(letter);
    return at == digits.npos ? -1 : static_cast<int>(at < 16 ? at : at - 6);
}

void appendUtf8(std::string& text, char32_t point)
{
    if (point < 0x80) {
        text += static_cast<char>(point);
        return;
    }
    const int more = point < 0x800 ? 1 : point < 0x10000 ? 2 : 3;
    text += static_cast<char>((0xFF00 >> (more + 1) & 0xFF) | point >> 6 * more);
    for (int at = more - 1; at >= 0; --at) {
        text += static_cast<char>(0x80 | (point >> 6 * at & 0x3F));
    }
}

class Parser
{
public:
    explicit Parser(std::string_view text) : m_text(text) {}

    bool parse(JsonValue& value);
    std::size_t line() const { return m_line; }
    const std::string& expected() const { return m_expected; }

private:
    bool readValue(JsonValue& value, int level);
    bool readChildren(JsonValue& value, char end, int level);
    bool readWord(JsonValue& value);
    bool readNumber(std::string& text);
    bool readDigits(std::string& text);
    bool readString(std::string& text);
    bool readEscape(std::string& text);
    bool readUnit(char32_t& unit);

    void skipBlanks();
    char next() const { return m_text.empty() ? '\0' : m_text.front(); }
    bool take(char letter);
    bool fail(const char* expected)
    {
        m_expected = expected;
        return false;
    }

    std::string_view m_text; // what is left of it
    std::size_t m_line = 1;
    std::string m_expected;
};

bool Parser::take(char letter)
{
    const bool is = !m_text.empty() && m_text.front() == letter;
    m_text.remove_prefix(is ? 1 : 0);
    return is;
}

void Parser::skipBlanks()
{
    const auto end = std::min(m_text.find_first_not_of(" \t\r\n"), m_text.size());
    m_line += static_cast<std::size_t>(std::ranges::count(m_text.substr(0, end), '\n'));
    m_text.remove_prefix(end);
}

bool Parser::parse(JsonValue& value)
{
    if (!readValue(value, 0)) {
        return false;
    }
    skipBlanks();
    return m_text.empty() || fail("the end");
}

bool Parser::readValue(JsonValue& value, int level)
{
    skipBlanks();
    value.line = m_line;
    if (take('{')) {
        value.kind = JsonValue::Kind::Object;
        return readChildren(value, '}', level + 1);
    }
    if (take('[')) {
        value.kind = JsonValue::Kind::Array;
        return readChildren(value, ']', level + 1);
    }
    if (take('"')) {
        value.kind = JsonValue::Kind::String;
        return readString(value.text);
    }
    if (next() == '-' || isDigit(next())) {
        value.kind = JsonValue::Kind::Number;
        return readNumber(value.text);
    }
    return readWord(value);
}

bool Parser::readChildren(JsonValue& value, char end, int level)
{
    if (level > mostLevels) {
        return fail("fewer levels of brackets");
    }
    skipBlanks();
    if (take(end)) {
        return true;
    }
    do {
        JsonValue child;
        skipBlanks();
        if (end == '}') {
            if (!take('"')) {
                return fail("a member's name in quotes");
            }
            if (!readString(child.name)) {
                return false;
            }
            skipBlanks();
            if (!take(':')) {
                return fail("':'");
            }
        }
        if (!readValue(child, level)) {
            return false;
        }
        value.children.push_back(std::move(child));
        skipBlanks();
    } while (take(','));
    return take(end) || fail(end == '}' ? "',' or '}'" : "',' or ']'");
}

bool Parser::readWord(JsonValue& value)
{
    struct Word {
        std::string_view text;
        JsonValue::Kind kind;
    };
    static constexpr Word words[] = {{"null", JsonValue::Kind::Null},
                                     {"false", JsonValue::Kind::False},
                                     {"true", JsonValue::Kind::True}};
    for (const Word& word : words) {
        if (m_text.starts_with(word.text)) {
            m_text.remove_prefix(word.text.size());
            value.kind = word.kind;
            return true;
        }
    }
    return fail("a value");
}

bool Parser::readDigits(std::string& text)
{
    const auto before = text.size();
    while (isDigit(next())) {
        text += next();
        m_text.remove_prefix(1);
    }
    return text.size() > before || fail("a digit");
}

bool Parser::readNumber(std::string& text)
{
    if (take('-')) {
        text += '-';
    }
    if (take('0')) {
        text += '0';
    } else if (!readDigits(text)) {
        return false;
    }
    if (take('.')) {
        text += '.';
        if (!readDigits(text)) {
            return false;
        }
    }
    if (take('e') || take('E')) {
        text += 'e';
        if (take('-')) {
            text += '-';
        } else {
            take('+');
        }
        return readDigits(text);
    }
    return true;
}

bool Parser::readString(std::string& text)
{
    while (!take('"')) {
        if (m_text.empty() || static_cast<unsigned char>(next()) < 0x20) {
            return fail("'\"' at the end of a string");
        }
        if (take('\\')) {
            if (!readEscape(text)) {
                return fail("a character after '\\'");
            }
            continue;
        }
        text += next();
        m_text.remove_prefix(1);
    }
    return true;
}

bool Parser::readEscape(std::string& text)
{
    constexpr std::string_view letters = "\"\\/bfnrt";
    constexpr std::string_view meant = "\"\\/\b\f\n\r\t";
    if (!take('u')) {
        const auto at = m_text.empty() ? letters.npos : letters.find(next());
        if (at == letters.npos) {
            return false;
        }
        text += meant[at];
        m_text.remove_prefix(1);
        return true;
    }
    char32_t point = 0;
    if (!readUnit(point)) {
        return false;
    }
    if (point >= 0xD800 && point < 0xDC00) {
        char32_t second = 0;
        if (!take('\\') || !take('u') || !readUnit(second) || second < 0xDC00 || second > 0xDFFF) {
            return false;
        }
        point = 0x10000 + ((point - 0xD800) << 10) + (second - 0xDC00);
    } else if (point >= 0xDC00 && point <= 0xDFFF) {
        return false;
    }
    appendUtf8(text, point);
    return true;
}

bool Parser::readUnit(char32_t& unit)
{
    if (m_text.size() < 4) {
        return false;
    }
    for (const char letter : m_text.substr(0, 4)) {
        const int digit = hexDigit(letter);
        if (digit < 0) {
            return false;
        }
        unit = unit << 4 | static_cast<char32_t>(digit);
    }
    m_text.remove_prefix(4);
    return true;
}

} // namespace

std::optional<JsonValue> parseJson(std::string_view text, Problem& problem)
{
    if (!isUtf8(text)) {
        problem = {1, "not valid UTF-8 text"};
        return std::nullopt;
    }
    Parser parser(text);
    JsonValue value;
    if (parser.parse(value)) {
        return value;
    }
    problem = {parser.line(), "no JSON: expected " + parser.expected()};
    return std::nullopt;
}

} // namespace kv
