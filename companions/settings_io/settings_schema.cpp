// Prints docs/settings.schema.json: what the JSON of settings may hold, as a JSON Schema.
#include "settings_fields.h"

#include <cstdio>
#include <string>

namespace
{

std::string quoted(std::string_view text)
{
    return std::string("\"").append(text).append("\"");
}

/// The codes, and then the names, of a field that has no other values.
std::string valuesOf(const kv::Field& field, bool namesToo)
{
    std::string list;
    for (const kv::NamedValue& row : field.values) {
        list.append(list.empty() ? "" : ", ").append(std::to_string(row.value));
    }
    for (const kv::NamedValue& row : field.values) {
        if (namesToo && !row.name.empty()) {
            list.append(", ").append(quoted(row.name));
        }
        if (namesToo && row.text != row.name) {
            list.append(", ").append(quoted(row.text));
        }
    }
    if (namesToo && field.kind == kv::FieldKind::Switch) {
        list.append(", false, true");
    }
    return list;
}

std::string schemaOf(const kv::Field& field)
{
    if (!field.isCode()) {
        return field.kind == kv::FieldKind::Rate ? R"({"$ref": "#/$defs/rate"})"
                                                 : R"({"$ref": "#/$defs/number"})";
    }
    return R"({"anyOf": [{"enum": [)" + valuesOf(field, true) + R"(]},
        {"type": "object", "required": ["value"], "additionalProperties": false,
         "properties": {"value": {"enum": [)" +
           valuesOf(field, false) + R"(]}, "text": {"type": "string"}}},
        {"$ref": "#/$defs/unknown_code"}]})";
}

void printFields(const kv::Section& section)
{
    for (const kv::FieldGroup& group : section.groups) {
        for (const kv::Field& field : group.fields) {
            std::printf(",\n      %s: %s", quoted(field.name).c_str(), schemaOf(field).c_str());
        }
    }
}

} // namespace

int main()
{
    const auto sections = kv::settingsSections();
    std::fputs(R"({
  "$schema": "https://json-schema.org/draft/2020-12/schema",
  "title": "Settings of the MVC encoder",
  "$comment": "Written by kv_settings_schema; do not edit.",
  "type": "object",
  "required": ["views"],
  "additionalProperties": false,
  "properties": {
      "format_version": {"const": 1},
      "views": {"type": "array", "minItems": 1, "maxItems": )",
               stdout);
    std::printf("%zu", sections.size() - 1);
    std::fputs(R"(, "items": {"$ref": "#/$defs/view"}},
      "bytes": {"$ref": "#/$defs/bytes"})",
               stdout);
    printFields(sections[0]);
    std::fputs(R"(
  },
  "$defs": {
    "view": {
      "type": "object",
      "additionalProperties": false,
      "properties": {
      "bytes": {"$ref": "#/$defs/bytes"})",
               stdout);
    printFields(sections[1]);
    std::fputs(R"(
      }
    },
    "number": {"anyOf": [{"type": ["integer", "string"]},
        {"type": "object", "required": ["value"], "additionalProperties": false,
         "properties": {"value": {"type": "integer"}, "text": {"type": "string"}}}]},
    "rate": {"anyOf": [{"type": ["number", "string"]},
        {"type": "object", "required": ["value"], "additionalProperties": false,
         "properties": {"value": {"type": "number"}, "text": {"type": "string"}}},
        {"type": "object", "required": ["value", "bits"], "additionalProperties": false,
         "properties": {"value": {"type": ["number", "null"]}, "text": {"type": "string"},
                        "bits": {"type": "string", "pattern": "^0x[0-9a-f]{16}$"}}}]},
    "unknown_code": {"type": "object", "required": ["value", "unknown"], "additionalProperties": false,
        "properties": {"value": {"type": "integer"}, "text": {"type": "string"},
                       "unknown": {"const": true}}},
    "bytes": {"type": "object", "additionalProperties": false,
        "patternProperties": {"^[0-9]+$": {"type": "string", "pattern": "^([0-9A-Fa-f]{2} *)+$"}}}
  }
}
)",
               stdout);
    return 0;
}
