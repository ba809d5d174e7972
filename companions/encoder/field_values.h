// The lists of values in the public field table.
#pragma once

#include <kv_config_gui_mvc/settings_record.h>

#include <span>
#include <string_view>

namespace kv::encoder
{

/// Names the lists; `Plain` is none.
enum class List {
    Plain,
#define KV_MVC_LIST(list) list,
#include <kv_config_gui_mvc/settings_fields.def>
};

struct ListValue {
    int code;
    std::string_view key; ///< as settings files spell it
    const char* text;     ///< as the dialog does
};

// The values of a list: `valuesOf` and its name.
inline constexpr std::span<const ListValue> valuesOfPlain;
// clang-format off
#define KV_MVC_LIST(list) inline constexpr ListValue valuesOf##list[] = {
#define KV_MVC_VALUE(code, key, text) {code, key, text},
#define KV_MVC_LIST_END };
#include <kv_config_gui_mvc/settings_fields.def>
// clang-format on

/// @return The row of a code, or null.
constexpr const ListValue* findValue(std::span<const ListValue> values, int code)
{
    for (const ListValue& value : values) {
        if (value.code == code) {
            return &value;
        }
    }
    return nullptr;
}

} // namespace kv::encoder
