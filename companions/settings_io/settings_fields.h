// The public field table as settings files need it: it drives their reading and writing, and the
// tables of their documentation.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace kv
{

/// As the public table settings_fields.def has them.
enum class FieldKind {
#define KV_MVC_KIND(kind) kind,
#include <kv_config_gui_mvc/settings_fields.def>
};

/// A value of a field, and what it is called.
struct NamedValue {
    std::string_view name; ///< as files are written; empty: as its number
    int32_t value;
    std::string_view text; ///< as the dialog shows it
};

struct Field {
    std::string_view name; ///< as in settings_record.h, and the key in a file
    std::size_t offset;    ///< in bytes from the start of the section's structure
    FieldKind kind;
    std::span<const NamedValue> values; ///< in the order of their numbers; may be empty

    constexpr std::size_t size() const { return kind == FieldKind::Rate ? 8 : 4; }

    /// Whether there are no other values than these.
    constexpr bool isCode() const
    {
        return kind == FieldKind::Switch || kind == FieldKind::Code || kind == FieldKind::Level ||
               kind == FieldKind::Depth;
    }
};

/// Fields that stand together in a file, under a comment.
struct FieldGroup {
    std::string_view title;
    std::span<const Field> fields;
};

struct Section {
    std::string_view name;
    std::size_t offset; ///< of the section's structure in the record
    std::size_t size;
    std::span<const FieldGroup> groups; ///< in the order in which a file is written
};

/// "record", "view 0", "view 1".
std::span<const Section> settingsSections();

} // namespace kv
