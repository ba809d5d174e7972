#include "report.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <type_traits>

#include "field_table.h"

namespace kv::encoder
{

namespace
{

// In the order of Severity. Callers' sinks know three kinds: a risk is a warning there.
constexpr struct {
    const char* sink;
    std::int32_t kind;
} kinds[] = {
    {KV_MVC_ERROR_SINK, KV_MVC_MESSAGE_ERROR},
    {KV_MVC_WARNING_SINK, KV_MVC_MESSAGE_WARNING},
    {KV_MVC_WARNING_SINK, KV_MVC_MESSAGE_RISK},
    {KV_MVC_NOTE_SINK, KV_MVC_MESSAGE_NOTE},
};

template <class Owner>
double valueOf(const FieldRow<Owner>& row, const Owner& owner)
{
    if (row.field) {
        return owner.*row.field;
    }
    // The one field that is no whole number.
    if constexpr (std::is_same_v<Owner, KvMvcViewSettings>) {
        return owner.frame_rate;
    } else {
        return 0;
    }
}

double settingValue(const KvMvcSettings& record, std::string_view setting, int view)
{
    for (const auto& row : recordFields) {
        if (row.member == setting) {
            return valueOf(row, record);
        }
    }
    const KvMvcViewSettings& owner = record.views[std::max(view, 0)];
    for (const auto& row : viewFields) {
        if (row.member == setting) {
            return valueOf(row, owner);
        }
    }
    return 0;
}

} // namespace

Report::Report(KvMvcLookup lookup, const KvMvcSettings& record) : m_record(&record)
{
    if (!lookup) {
        return;
    }
    static_assert(std::size(kinds) == severities);
    for (std::size_t i = 0; i < severities; ++i) {
        m_sinks[i] = reinterpret_cast<KvMvcPrintf>(lookup(kinds[i].sink));
    }
    m_tellAbout = reinterpret_cast<KvMvcTellAbout>(lookup(KV_MVC_MESSAGE_ABOUT));
    m_tellLimitUse = reinterpret_cast<KvMvcTellLimitUse>(lookup(KV_MVC_LIMIT_USE));
}

void Report::tellAbout(const RuleInfo& rule, int view, std::span<const Argument> arguments) const
{
    const Subject& subject = rule.subject;
    const auto at = [&](int argument) { return arguments[static_cast<std::size_t>(argument)]; };
    KvMvcMessageAbout about{};
    about.size = sizeof about;
    about.kind = kinds[static_cast<std::size_t>(rule.severity)].kind;
    about.rule = subject.rule ? subject.rule : rule.id;
    about.setting = subject.setting;
    about.view = view;
    if (subject.value > 0) {
        about.numbers |= KV_MVC_ABOUT_VALUE;
        about.value = at(subject.value).number + subject.less;
    } else if (subject.setting) {
        about.numbers |= KV_MVC_ABOUT_VALUE;
        about.value = settingValue(*m_record, subject.setting, view);
    }
    if (subject.limit > 0) {
        about.numbers |= KV_MVC_ABOUT_LIMIT;
        about.limit = at(subject.limit).number + subject.less;
    }
    if (subject.level > 0) {
        about.level = at(subject.level).text;
    }
    m_tellAbout(&about);
}

void Report::tellLimit(KvMvcLimitUse use) const
{
    use.size = sizeof use;
    m_tellLimitUse(&use);
}

} // namespace kv::encoder
