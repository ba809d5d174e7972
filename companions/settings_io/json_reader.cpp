// Settings as JSON: what kv-mvc-settings show --json writes; docs/json.md describes it.
#include "field_value.h"
#include "json_text.h"
#include "record_filler.h"
#include "settings_text.h"

#include <algorithm>

namespace kv
{
namespace
{

using Kind = JsonValue::Kind;

constexpr std::string_view formatVersion = "1";

const JsonValue* findMember(const JsonValue& object, std::string_view name)
{
    const auto member = std::ranges::find(object.children, name, &JsonValue::name);
    return member == object.children.end() ? nullptr : &*member;
}

class JsonReader
{
public:
    void readRecord(const JsonValue& object);

    RecordFiller filler;

private:
    void readViews(const JsonValue& views);
    void readMember(const Section& section, const JsonValue& member);
    void readBytes(const Section& section, const JsonValue& runs);
    void readSetting(const Section& section, const Field& field, const JsonValue& setting);
    void readValue(const Section& section, const Field& field, const JsonValue& value,
                   bool isUnknownCode);
    void refuse(const JsonValue& value, const char* expected);
};

void JsonReader::refuse(const JsonValue& value, const char* expected)
{
    filler.report(value.line, "bad member " + quoted(value.name) + ": expected " + expected);
}

void JsonReader::readRecord(const JsonValue& object)
{
    const Section& section = *filler.begin("record", object.line);
    for (const JsonValue& member : object.children) {
        if (member.name == "format_version") {
            if (member.text != formatVersion) {
                refuse(member, "version 1");
            }
        } else if (member.name == "views") {
            readViews(member);
        } else {
            readMember(section, member);
        }
    }
}

void JsonReader::readViews(const JsonValue& views)
{
    constexpr std::size_t mostViews = KV_MVC_RECORD_VIEWS;
    const auto isObject = [](const JsonValue& view) { return view.kind == Kind::Object; };
    if (views.kind != Kind::Array || views.children.size() > mostViews ||
        !std::ranges::all_of(views.children, isObject)) {
        return refuse(views, "an array of one or two objects");
    }
    for (std::size_t at = 0; at < views.children.size(); ++at) {
        const JsonValue& view = views.children[at];
        const Section* section = filler.begin("view " + std::to_string(at), view.line);
        if (!section) {
            return;
        }
        for (const JsonValue& member : view.children) {
            readMember(*section, member);
        }
    }
}

void JsonReader::readMember(const Section& section, const JsonValue& member)
{
    if (const Field* field = findField(section, member.name)) {
        return readSetting(section, *field, member);
    }
    if (member.name == "bytes") {
        return readBytes(section, member);
    }
    filler.reportUnknownKey(section, member.name, member.line);
}

void JsonReader::readBytes(const Section& section, const JsonValue& runs)
{
    if (runs.kind != Kind::Object) {
        return refuse(runs, "an object");
    }
    for (const JsonValue& run : runs.children) {
        filler.setBytes(section, run.name, run.kind == Kind::String ? run.text : "", run.line);
    }
}

/// An object with the value and more to tell about it, or the value by itself.
void JsonReader::readSetting(const Section& section, const Field& field, const JsonValue& setting)
{
    if (setting.kind != Kind::Object) {
        return readValue(section, field, setting, false);
    }
    static constexpr std::string_view known[] = {"value", "text", "bits", "unknown"};
    for (const JsonValue& member : setting.children) {
        if (std::ranges::find(known, member.name) == std::end(known)) {
            return filler.report(member.line, "unknown member " + quoted(member.name) + " of " +
                                                  quoted(field.name));
        }
    }
    const JsonValue* value = findMember(setting, "value");
    const JsonValue* bits = findMember(setting, "bits"); // where JSON has no such number
    const JsonValue* unknown = findMember(setting, "unknown");
    const JsonValue* read = bits ? bits : value;
    if (!read) {
        return refuse(setting, "a member 'value'");
    }
    readValue(section, field, *read, unknown && unknown->kind == Kind::True);
}

void JsonReader::readValue(const Section& section, const Field& field, const JsonValue& value,
                           bool isUnknownCode)
{
    switch (value.kind) {
    case Kind::Number:
        return filler.setNumber(section, field, value.text, isUnknownCode, value.line);
    case Kind::String:
        return filler.setField(section, field, value.text, value.line);
    case Kind::True:
    case Kind::False:
        return filler.setField(section, field, value.kind == Kind::True ? "on" : "off", value.line);
    case Kind::Null:
    case Kind::Array:
    case Kind::Object:
        break;
    }
    filler.report(value.line,
                  "bad value for " + quoted(field.name) + ": expected a number or a text");
}

} // namespace

std::vector<Problem> parseJsonSettings(std::string_view text, KvMvcSettings& settings)
{
    Problem problem{};
    const std::optional<JsonValue> object = parseJson(text, problem);
    if (!object) {
        return {problem};
    }
    JsonReader reader;
    reader.readRecord(*object);
    reader.filler.finish(object->line);
    return reader.filler.result(settings);
}

} // namespace kv
