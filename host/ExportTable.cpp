#include "ExportTable.h"

#include <algorithm>
#include <cstring>

namespace
{

struct NamedRow {
    QLatin1String key;
    ExportRow ExportTable::*row;
};

const NamedRow namedRows[] = {
#define KV_MVC_RECORD_FIELD(member, ...) {QLatin1String(#member), &ExportTable::member},
#define KV_MVC_VIEW_FIELD(member, ...) {QLatin1String(#member), &ExportTable::member},
#include <kv_config_gui_mvc/settings_fields.def>
};

void addEntries(std::span<const Setting> settings, bool isOfRecord, const ExportTable& table,
                std::vector<ExportEntry>& entries)
{
    for (const Setting& setting : settings) {
        const auto named = std::ranges::find(namedRows, setting.key, &NamedRow::key);
        entries.push_back({&setting, isOfRecord, &(table.*named->row)});
    }
}

/// Whether the field holds a code without a meaning.
bool isUnknown(const ExportEntry& entry, const ExportJob& job)
{
    if (entry.setting->kind != SettingKind::Code && entry.setting->kind != SettingKind::Level) {
        return false;
    }
    const char* const base = entry.isOfRecord ? reinterpret_cast<const char*>(&job.record)
                                              : reinterpret_cast<const char*>(&job.view);
    qint32 code = 0;
    std::memcpy(&code, base + entry.setting->offset, sizeof code);
    return std::ranges::find(entry.setting->names, code, &ValueName::value) ==
           entry.setting->names.end();
}

struct Note {
    QStringList settings;
    QString text;
};

/// Settings that are lost for the same reason share a line.
void addNote(const ExportEntry& entry, const char* text, std::vector<Note>& notes)
{
    const QString reason = QString::fromUtf8(text);
    const auto known = std::ranges::find(notes, reason, &Note::text);
    if (known == notes.end()) {
        notes.push_back({{entry.setting->name}, reason});
    } else {
        known->settings << entry.setting->name;
    }
}

} // namespace

ExportRow saidWith(std::initializer_list<const char*> settings, std::vector<ExportLimit> limits)
{
    return {{}, settings, std::move(limits)};
}

ExportRow unsaid(const char* reason, bool (*isMet)(const ExportJob&))
{
    return {{}, {{reason, isMet}}};
}

std::vector<ExportRow*> rowsOf(ExportTable& table)
{
    std::vector<ExportRow*> rows;
    rows.reserve(std::size(namedRows));
    for (const NamedRow& named : namedRows) {
        rows.push_back(&(table.*named.row));
    }
    return rows;
}

std::vector<ExportEntry> entriesOf(const ExportTable& table)
{
    std::vector<ExportEntry> entries;
    addEntries(recordSettings(), true, table, entries);
    addEntries(viewSettings(), false, table, entries);
    return entries;
}

std::vector<SaidOption> optionsFor(const ExportTable& table, const ExportJob& job)
{
    std::vector<SaidOption> said;
    for (const ExportEntry& entry : entriesOf(table)) {
        for (const ExportOption& option : entry.row->options) {
            const QString value = option.value(job);
            if (!value.isNull()) {
                said.push_back({option.place, option.name, value});
            }
        }
    }
    return said;
}

QStringList notesFor(const ExportTable& table, const ExportJob& job)
{
    std::vector<Note> notes;
    for (const ExportEntry& entry : entriesOf(table)) {
        if (isUnknown(entry, job)) {
            addNote(entry, "its value is none that is known", notes);
        }
        for (const ExportLimit& limit : entry.row->limits) {
            if (limit.isMet != nullptr && limit.isMet(job)) {
                addNote(entry, limit.note, notes);
            }
        }
    }
    QStringList lines;
    for (const Note& note : notes) {
        lines << note.settings.join(QStringLiteral(", ")) + QStringLiteral(": ") + note.text;
    }
    return lines;
}
