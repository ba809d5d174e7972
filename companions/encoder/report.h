// The road of a message to the caller's sinks.
#pragma once

#include <kv_config_gui_mvc/companions.h>

#include <cstddef>
#include <tuple>
#include <type_traits>

#include "rule.h"

namespace kv::encoder
{

/// Sends messages, format and arguments apart, to a lookup's sinks for errors, warnings and notes,
/// and counts the errors. A missing lookup or sink swallows its messages.
class Report
{
public:
    /// A silent report: it only counts.
    Report() = default;
    explicit Report(KvMvcLookup lookup);

    template <class... Args>
    void say(const Rule<Args...>& rule, std::type_identity_t<Args>... args)
    {
        send(rule.severity, rule.format, args...);
    }

    /// Says it of a view of the record: 0 for the base view, or for all views.
    template <class... Args>
    void sayOf(int view, const ViewRule<Args...>& rule, std::type_identity_t<Args>... args)
    {
        if (view == 0 || !rule.viewFormat) {
            send(rule.severity, rule.format, args...);
        } else {
            send(rule.severity, rule.viewFormat, view, args...);
        }
    }

    int errors() const { return m_errors; }

private:
    template <class Arg>
    static auto printed(Arg value)
    {
        if constexpr (std::is_same_v<Arg, Decimal>) {
            return std::tuple(value.whole, value.digits, value.fraction);
        } else {
            return std::tuple(value);
        }
    }

    template <class... Args>
    void send(Severity severity, const char* format, Args... args)
    {
        if (severity == Severity::Error) {
            ++m_errors;
        }
        if (const KvMvcPrintf sink = m_sinks[static_cast<int>(severity)]) {
            std::apply([&](auto... values) { sink(format, values...); },
                       std::tuple_cat(printed(args)...));
        }
    }

    static constexpr std::size_t severities = static_cast<std::size_t>(Severity::Note) + 1;
    KvMvcPrintf m_sinks[severities] = {}; ///< in the order of Severity
    int m_errors = 0;
};

} // namespace kv::encoder
