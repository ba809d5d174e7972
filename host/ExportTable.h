#pragma once

#include "SettingsTable.h"

#include <QStringList>

#include <initializer_list>
#include <vector>

/// What an encoder is to be told: one view of a record.
struct ExportJob {
    const KvMvcSettings& record;
    const KvMvcViewSettings& view;
    /// How many views are coded together with it, itself among them.
    int codedViews;
    /// The input has no header that describes its pictures.
    bool isRawInput;
};

/// Where an option stands; each target has its own places.
enum class ExportPlace {
    Option,    ///< among the options of the command line
    Input,     ///< before the name of the input
    Filter,    ///< in ffmpeg's -vf
    Parameter, ///< in ffmpeg's -x264-params
    Main,      ///< in the main configuration file
    Second     ///< in that of the second view
};

/// An option that says a setting.
struct ExportOption {
    ExportPlace place;
    QString name;
    /// @return Null: the option is left out; empty: the name is all.
    QString (*value)(const ExportJob&);
};

/// What an encoder cannot do.
struct ExportLimit {
    const char* note;
    /// Whether these settings meet it; null: it is only told in the document.
    bool (*isMet)(const ExportJob&);
};

/// What becomes of a setting. There is no empty row: options, rows that say it, or a reason.
struct ExportRow {
    std::vector<ExportOption> options;
    /// Settings whose rows say this one, too.
    std::vector<const char*> saidWith;
    std::vector<ExportLimit> limits;

    ExportRow(std::vector<ExportOption> own, std::vector<ExportLimit> met = {})
        : options(std::move(own)), limits(std::move(met))
    {
    }
    ExportRow(std::vector<ExportOption> own, std::initializer_list<const char*> with,
              std::vector<ExportLimit> met = {})
        : options(std::move(own)), saidWith(with), limits(std::move(met))
    {
    }
};

ExportRow saidWith(std::initializer_list<const char*> settings,
                   std::vector<ExportLimit> limits = {});
/// @param isMet Null: nothing is lost, so nothing is told.
ExportRow unsaid(const char* reason, bool (*isMet)(const ExportJob&) = nullptr);

/// A row for each setting; without one of them no table compiles, since there is no empty row.
struct ExportTable {
#define KV_MVC_RECORD_FIELD(member, ...) ExportRow member;
#define KV_MVC_VIEW_FIELD(member, ...) ExportRow member;
#include <kv_config_gui_mvc/settings_fields.def>
};

std::vector<ExportRow*> rowsOf(ExportTable& table);

/// A setting and its row.
struct ExportEntry {
    const Setting* setting;
    bool isOfRecord;
    const ExportRow* row;
};

/// The rows in the dialog's order, those of the record first.
std::vector<ExportEntry> entriesOf(const ExportTable& table);

/// An option with its value; an empty value: the name is all.
struct SaidOption {
    ExportPlace place;
    QString name;
    QString value;
};

std::vector<SaidOption> optionsFor(const ExportTable& table, const ExportJob& job);

/// What is lost of the settings, a line each, without "note: ".
QStringList notesFor(const ExportTable& table, const ExportJob& job);
