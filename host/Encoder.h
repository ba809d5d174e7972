#pragma once

#include "Library.h"

#include <QString>

#include <kv_config_gui_mvc/companion_check.h>

#include <optional>
#include <vector>

/// A message of the encoder's check. What the encoder does not tell is empty, or no number.
struct CheckMessage {
    enum Kind {
        Error = KV_MVC_MESSAGE_ERROR,
        Warning = KV_MVC_MESSAGE_WARNING,
        Note = KV_MVC_MESSAGE_NOTE,
        Risk = KV_MVC_MESSAGE_RISK
    };
    Kind kind;
    QString text;
    QString rule = {};
    QString setting = {};
    int view = KV_MVC_ALL_VIEWS;
    std::optional<double> value = {};
    std::optional<double> limit = {};
    QString level = {};
};

/// How much of a limit the settings use.
struct LimitUse {
    int view;
    QString name;
    /// The name and the view in the language of messages.
    QString title;
    QString unit;
    QString rule;
    /// Empty when no level sets the limit.
    QString level;
    double used;
    double limit;
};

/// What the check says about a record.
struct CheckResult {
    bool accepted;
    std::vector<CheckMessage> messages;
    std::vector<LimitUse> uses;
    /// The record as the check left it.
    KvMvcSettings corrected;

    /// @return The level that the stream has; empty when it has none or the encoder does not tell.
    [[nodiscard]] QString level() const;
};

/// The encoder library: presets and the check, without a window.
class Encoder
{
public:
    /// @param directory Where libraries are looked for first.
    /// @param translate Of the formats of messages; may be null.
    explicit Encoder(const QString& directory, KvMvcLocalizeConvert translate = nullptr);

    /// @param preset KvMvcVideoType.
    [[nodiscard]] KvMvcSettings defaults(qint32 preset) const;

    [[nodiscard]] CheckResult check(const KvMvcSettings& settings) const;

private:
    /// What the library of texts makes of it; itself when that knows none.
    [[nodiscard]] QString translated(const QString& text) const;

    Library m_library;
    KvMvcDefaults m_defaults;
    KvMvcCheck m_check;
    KvMvcLocalizeConvert m_translate;
};
