// The encoder library as a caller has it: its defaults, and what its check complains of.
#ifndef KV_TEST_ENCODER_LIBRARY_H
#define KV_TEST_ENCODER_LIBRARY_H

#include <kv_config_gui_mvc/companions.h>

#include <QByteArray>
#include <QLibrary>
#include <QString>

#include <cstdarg>
#include <cstdlib>

namespace kvtest
{

/** What the check complains of; empty for settings that it takes as they are. */
inline QByteArray complaints;

template <char kind>
int complain(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    complaints += kind + QByteArray(": ") + QString::vasprintf(format, arguments).toUtf8() + '\n';
    va_end(arguments);
    return 0;
}

inline int sayNothing(const char*, ...)
{
    return 0;
}

inline KvMvcFunction findForEncoder(const char* name)
{
    const QByteArray wanted(name);
    if (wanted == "malloc")
        return reinterpret_cast<KvMvcFunction>(&std::malloc);
    if (wanted == "free")
        return reinterpret_cast<KvMvcFunction>(&std::free);
    if (wanted == "err_printf")
        return reinterpret_cast<KvMvcFunction>(&complain<'E'>);
    if (wanted == "wrn_printf")
        return reinterpret_cast<KvMvcFunction>(&complain<'W'>);
    return wanted.endsWith("_printf") ? reinterpret_cast<KvMvcFunction>(&sayNothing) : nullptr;
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
        if (m_defaults)
            m_defaults(&settings, 0, preset, 0);
        return settings;
    }
    KvMvcCheck check() const { return m_check; }
    /** Errors as "E: ...", warnings as "W: ...", one a line; empty for settings that are taken. */
    QByteArray complaintsOf(KvMvcSettings settings) const
    {
        complaints.clear();
        const bool accepted = m_check && m_check(findForEncoder, &settings, 3, 0) == 0;
        return accepted ? complaints : complaints + "refused";
    }

private:
    QLibrary m_library;
    KvMvcDefaults m_defaults = nullptr;
    KvMvcCheck m_check = nullptr;
};

} // namespace kvtest

#endif
