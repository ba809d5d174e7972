#pragma once

#include "Library.h"

#include <QString>

#include <kv_config_gui_mvc/companion_check.h>

#include <vector>

/// A message of the encoder's check.
struct CheckMessage {
    enum Kind {
        Error = KV_MVC_MESSAGE_ERROR,
        Warning = KV_MVC_MESSAGE_WARNING,
        Note = KV_MVC_MESSAGE_NOTE
    };
    Kind kind;
    QString text;
};

/// What the check says about a record.
struct CheckResult {
    bool accepted;
    std::vector<CheckMessage> messages;
    /// The record as the check left it.
    KvMvcSettings corrected;
};

/// The encoder library: presets and the check, without a window.
class Encoder
{
public:
    /// @param directory Where libraries are looked for first.
    explicit Encoder(const QString& directory);

    /// @param preset KvMvcVideoType.
    [[nodiscard]] KvMvcSettings defaults(qint32 preset) const;

    [[nodiscard]] CheckResult check(const KvMvcSettings& settings) const;

private:
    Library m_library;
    KvMvcDefaults m_defaults;
    KvMvcCheck m_check;
};
