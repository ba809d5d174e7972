// The road of a message to the caller's sinks.
#pragma once

#include <kv_config_gui_mvc/companions.h>

#include <cstddef>
#include <span>
#include <tuple>
#include <type_traits>

#include "rule.h"

namespace kv::encoder
{

/// Sends messages, format and arguments apart, to a lookup's sinks for errors, warnings and notes,
/// and counts the errors. A missing lookup or sink swallows its messages. Says before each what it
/// is about, and how much of a limit is used, where the lookup has a function for it.
class Report
{
public:
    /// A silent report: it only counts.
    Report() = default;
    /// @param record The settings that messages are about; it has to outlive the report.
    Report(KvMvcLookup lookup, const KvMvcSettings& record);

    template <class... Args>
    void say(const Rule<Args...>& rule, std::type_identity_t<Args>... args)
    {
        send(rule, rule.subject.view, rule.format, std::tuple(), args...);
    }

    /// Says it of a view of the record: 0 for the base view, or for all views.
    template <class... Args>
    void sayOf(int view, const ViewRule<Args...>& rule, std::type_identity_t<Args>... args)
    {
        if (view == 0 || !rule.viewFormat) {
            send(rule, rule.ofBaseView ? 0 : rule.subject.view, rule.format, std::tuple(), args...);
        } else {
            send(rule, view, rule.viewFormat, std::tuple(view), args...);
        }
    }

    /// Whether anybody wants to know how much of the limits is used.
    bool wantsLimits() const { return m_tellLimitUse != nullptr; }
    /// @param use Its size is filled in.
    void tellLimit(KvMvcLimitUse use) const;

    int errors() const { return m_errors; }

private:
    /// An argument of a message, for programs.
    struct Argument {
        double number = 0;
        const char* text = nullptr;

        explicit Argument(double value) : number(value) {}
        explicit Argument(const Decimal& value) : number(value.number) {}
        explicit Argument(const char* value) : text(value) {}
    };

    template <class Arg>
    static auto printed(Arg value)
    {
        if constexpr (std::is_same_v<Arg, Decimal>) {
            return std::tuple(value.whole, value.digits, value.fraction);
        } else {
            return std::tuple(value);
        }
    }

    /// @param first What the format takes before the rule's arguments.
    template <class First, class... Args>
    void send(const RuleInfo& rule, int view, const char* format, First first, Args... args)
    {
        if (rule.severity == Severity::Error) {
            ++m_errors;
        }
        if (m_tellAbout) {
            // Arguments count from 1.
            const Argument arguments[] = {Argument(0.0), Argument(args)...};
            tellAbout(rule, view, arguments);
        }
        if (const KvMvcPrintf sink = m_sinks[static_cast<std::size_t>(rule.severity)]) {
            std::apply([&](auto... values) { sink(format, values...); },
                       std::tuple_cat(first, printed(args)...));
        }
    }

    void tellAbout(const RuleInfo& rule, int view, std::span<const Argument> arguments) const;

    static constexpr std::size_t severities = static_cast<std::size_t>(Severity::Note) + 1;
    KvMvcPrintf m_sinks[severities] = {}; ///< in the order of Severity
    KvMvcTellAbout m_tellAbout = nullptr;
    KvMvcTellLimitUse m_tellLimitUse = nullptr;
    const KvMvcSettings* m_record = nullptr; ///< null: nobody is told anything of it
    int m_errors = 0;
};

} // namespace kv::encoder
