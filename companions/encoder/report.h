/**
 * @file report.h
 * The road of a message to the caller's sinks.
 */
#ifndef KV_ENCODER_REPORT_H
#define KV_ENCODER_REPORT_H

#include <kv_config_gui_mvc/companions.h>

#include <type_traits>

#include "rule.h"

namespace kv::encoder
{

/**
 * Sends messages, format and arguments apart, to the sinks "err_printf", "wrn_printf" and
 * "inf_printf" of a lookup, and counts the errors. A missing lookup or sink swallows its messages.
 */
class Report
{
public:
    /** A silent report: it only counts. */
    Report() = default;
    explicit Report(KvMvcLookup lookup);

    template <class... Args>
    void say(const Rule<Args...>& rule, std::type_identity_t<Args>... args)
    {
        if (rule.severity == Severity::Error) {
            ++m_errors;
        }
        if (const KvMvcPrintf sink = m_sinks[static_cast<int>(rule.severity)]) {
            sink(rule.format, args...);
        }
    }

    int errors() const { return m_errors; }

private:
    KvMvcPrintf m_sinks[3] = {};
    int m_errors = 0;
};

} // namespace kv::encoder

#endif
