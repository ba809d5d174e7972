#pragma once

#include "ConfigState.h"
#include "Vocabulary.h"

#include <kv_config_gui_mvc/settings_record.h>

#include <array>
#include <optional>
#include <vector>

/// A frame rate that no item of the list stands for, with the text it is shown as. The text is
/// empty until such a rate has been described.
struct CustomFrameRate {
    QString text;
    /// Frames per second.
    double rate = 0;
};

/// A description in the making.
struct Describing {
    const Vocabulary& vocabulary;
    /// The lock bits of KvMvcGuiFlags.
    qint32 flags;
    ConfigState state = {};
    /// Set when the description shows a frame rate that is no list item.
    std::optional<CustomFrameRate> customFrameRate = {};
};

/// What an edit is read with.
struct Applying {
    const Vocabulary& vocabulary;
    const CustomFrameRate& customFrameRate;
    const ConfigState& state;
};

/// What stands for a value or text that its list does not hold.
struct Fallback {
    /// Stored for an unknown text.
    qint32 code;
    /// Described for an unknown value: the text of `code`, or the empty text.
    bool describeCode;
};

/// One setting: its key, the field behind it, and how one becomes the other.
template <class Record>
struct SettingRow {
    /// As an object that states share: none is made for each description.
    QString key;
    /// Null where both functions below are set: the setting is no single whole number.
    qint32 Record::*field = nullptr;

    /// Whole numbers: field = shown value + offset.
    qint32 offset = 0;
    /// Item texts: the list they are from. Without one the setting is a whole number.
    std::optional<ListName> list = {};
    /// Without one an unknown text changes nothing, and an unknown value has no entry.
    std::optional<Fallback> fallback = {};
    /// The flag of the host that locks the setting.
    qint32 lock = 0;

    /// Rules of its own; null: the plain reading above.
    bool (*enabledWhen)(const Record&) = nullptr;
    void (*describe)(const SettingRow&, const QString& key, const Record&, Describing&) = nullptr;
    void (*apply)(const SettingRow&, const QString& key, const Applying&, Record&) = nullptr;

    /// The keys of rate control, for which `key` is the base text (keys::ofView).
    std::array<QString, KV_MVC_MAX_VIEWS> keyOfView = {};
    const QString& keyIn(int view) const { return keyOfView.at(std::size_t(view)); }
};

using RecordRow = SettingRow<KvMvcSettings>;
using ViewRow = SettingRow<KvMvcViewSettings>;

/// Every setting of the dialog but the two preset keys, in the order in which an edit is applied.
struct KeyTable {
    std::vector<ViewRow> basic;
    std::vector<ViewRow> advanced;
    std::vector<RecordRow> record;
    /// Each is a key of its own in every view.
    std::vector<ViewRow> rateControl;
};

const KeyTable& keyTable();

/// Puts the row's setting into the description under `key`, by the plain reading; see describeRow.
template <class Record>
void describePlainly(const SettingRow<Record>& row, const QString& key, const Record& record,
                     Describing& out)
{
    const qint32 stored = record.*row.field;
    const bool enabled = !(out.flags & row.lock) && (!row.enabledWhen || row.enabledWhen(record));
    if (!row.list) {
        // Wraps around: fields come from outside.
        const qint32 shown = qint32(quint32(stored) - quint32(row.offset));
        out.state.insert(key, shown, enabled);
        return;
    }
    const ItemList& list = out.vocabulary.list(*row.list);
    std::optional<QString> text = list.textOf(stored);
    if (!text && row.fallback) {
        text = row.fallback->describeCode ? list.textOf(row.fallback->code) : QString();
    }
    if (text) {
        out.state.insert(key, *text, enabled);
    }
}

/// Stores the row's setting if the state holds `key`, by the plain reading; see applyRow.
template <class Record>
void applyPlainly(const SettingRow<Record>& row, const QString& key, const Applying& in,
                  Record& record)
{
    const ConfigEntry* const entry = in.state.find(key);
    if (!entry) {
        return;
    }
    if (!row.list) {
        record.*row.field = qint32(quint32(entry->value.toInt()) + quint32(row.offset));
        return;
    }
    std::optional<qint32> code = in.vocabulary.list(*row.list).codeOf(entry->value.toString());
    if (!code && row.fallback) {
        code = row.fallback->code;
    }
    if (code) {
        record.*row.field = *code;
    }
}

/// Puts the row's setting into the description under `key`.
template <class Record>
void describeRow(const SettingRow<Record>& row, const QString& key, const Record& record,
                 Describing& out)
{
    (row.describe ? row.describe : describePlainly<Record>)(row, key, record, out);
}

/// Stores the row's setting if the state holds `key`.
template <class Record>
void applyRow(const SettingRow<Record>& row, const QString& key, const Applying& in, Record& record)
{
    (row.apply ? row.apply : applyPlainly<Record>)(row, key, in, record);
}
