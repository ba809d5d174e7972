#pragma once

#include <QJsonObject>
#include <QLatin1String>
#include <QString>

#include <kv_config_gui_mvc/settings_record.h>

#include <cstddef>
#include <span>
#include <vector>

/// What a value of a field is called.
struct ValueName {
    qint32 value;
    QLatin1String text;
};

/// As the public table settings_fields.def has them.
enum class SettingKind {
#define KV_MVC_KIND(kind) kind,
#include <kv_config_gui_mvc/settings_fields.def>
};

/// One setting: a field of the record or of a view, and how people read it.
struct Setting {
    /// The field's name.
    QLatin1String key;
    QLatin1String name;
    SettingKind kind;
    /// In bytes, from the start of the record or of the view.
    std::size_t offset;
    /// Of a number: special values. Of a code: all the values that there are.
    std::span<const ValueName> names;
    /// Follows a number; may be empty.
    QLatin1String unit;
    /// The dialog shows that much less than the field holds.
    qint64 shownLess;
    /// The place among the settings as the dialog has them.
    int place;

    /// @return Bytes of the field.
    [[nodiscard]] std::size_t size() const;
    /// @return Whether there are no other values than those with a name.
    [[nodiscard]] bool isCode() const;
};

/// The settings of the whole record, and those that every view has, in the dialog's order. No field
/// is left out.
std::span<const Setting> recordSettings();
std::span<const Setting> viewSettings();

/// The levels that the dialog offers, in its order.
std::span<const ValueName> levelNames();

/// "Base view", "View 1".
QLatin1String viewName(int view);

/// Where a field lies.
struct Place {
    const Setting* setting;
    /// The view's number, or -1 for a setting of the record.
    int view;
};

/// @param view The view's number, or -1 for the record apart from its views.
std::span<const char> bytesOf(const KvMvcSettings& settings, int view);

/// @return For each of these bytes, whether it belongs to a setting; the others are reserved.
std::vector<bool> namedBytes(int view);

/// @return The value as the dialog shows it, with its unit.
QString settingText(const KvMvcSettings& settings, Place place);

/// @return {"value": the field's number, "text": settingText()}; with "unknown": true when it is no
///         code of the field. Of infinity and NaN "value" is null; "bits" tells them, and -0.
QJsonObject settingJson(const KvMvcSettings& settings, Place place);

/// A setting that differs, or the reserved bytes of a view or of the record that do.
struct Difference {
    /// Without a setting: reserved bytes.
    Place place;
    std::size_t reservedBytes;
};

/// @return What differs, in the order of the tables: the record's settings first.
std::vector<Difference> compareSettings(const KvMvcSettings& before, const KvMvcSettings& after);

/// @return One line: "Picture width, base view: 1280 -> 1920".
QString differenceText(const Difference& difference, const KvMvcSettings& before,
                       const KvMvcSettings& after);

/// @return Such a line for each setting that differs.
QString differencesText(const KvMvcSettings& before, const KvMvcSettings& after);

/// @return {"setting", "name", "view", `beforeKey`, `afterKey`}; "bytes" instead of both values for
///         reserved bytes; "view" is null for a setting of the record.
QJsonObject differenceJson(const Difference& difference, const KvMvcSettings& before,
                           const KvMvcSettings& after, QLatin1String beforeKey,
                           QLatin1String afterKey);

/// The number (KvMvcVideoType) of a preset.
/// @param text A number 0 to 3 or a name; case does not matter, and '-' stands for a blank.
/// @throws Failure when there is no such preset.
qint32 requirePreset(const QString& text);
