// The encoder library as a caller has it: its defaults, and what its check complains of.
#pragma once

#include <kv_config_gui_mvc/companion_check.h>

#include <QByteArray>
#include <QLibrary>
#include <QString>

#include <cstring>

namespace kvtest
{

/// Appends errors and warnings to a QByteArray.
inline int complain(void* complaints, int32_t kind, const char* text)
{
    if (kind != KV_MVC_MESSAGE_NOTE) {
        const QByteArray mark = kind == KV_MVC_MESSAGE_ERROR ? "E: " : "W: ";
        *static_cast<QByteArray*>(complaints) += mark + text + '\n';
    }
    return 1;
}

class EncoderLibrary
{
public:
    EncoderLibrary() : m_library(qEnvironmentVariable("KV_BIN_DIR") + QStringLiteral("/kv_mvcenc"))
    {
        m_defaults = reinterpret_cast<KvMvcDefaults>(m_library.resolve(KV_MVC_ENCODER_DEFAULTS));
        m_check = reinterpret_cast<KvMvcCheck>(m_library.resolve(KV_MVC_ENCODER_CHECK));
    }
    ~EncoderLibrary() { m_library.unload(); }
    EncoderLibrary(const EncoderLibrary&) = delete;
    EncoderLibrary& operator=(const EncoderLibrary&) = delete;

    KvMvcSettings defaults(int preset) const
    {
        KvMvcSettings settings{};
        if (m_defaults) {
            m_defaults(&settings, 0, preset, 0);
        }
        return settings;
    }
    KvMvcCheck check() const { return m_check; }
    /// Errors as "E: ...", warnings as "W: ...", one a line; empty for settings that are taken
    /// and not corrected.
    QByteArray complaintsOf(const KvMvcSettings& settings) const
    {
        QByteArray complaints;
        KvMvcListener listener = {&complain, &complaints, nullptr, 0};
        KvMvcSettings corrected = settings;
        if (!m_check || kvMvcRunCheck(m_check, &corrected, &listener) != 0) {
            return complaints + "refused";
        }
        return std::memcmp(&settings, &corrected, sizeof settings) == 0 ? QByteArray() : complaints;
    }

private:
    QLibrary m_library;
    KvMvcDefaults m_defaults = nullptr;
    KvMvcCheck m_check = nullptr;
};

} // namespace kvtest
