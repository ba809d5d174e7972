#include "Encoder.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace
{

/// Where the sinks put what they are given, during a check.
std::vector<CheckMessage>* collected = nullptr;

void collect(CheckMessage::Kind kind, const char* format, std::va_list arguments)
{
    std::va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, again);
    va_end(again);
    std::string text(length < 0 ? 0 : static_cast<std::size_t>(length), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, arguments);
    collected->push_back({kind, QString::fromStdString(text).trimmed()});
}

template <CheckMessage::Kind kind>
int sink(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    collect(kind, format, arguments);
    va_end(arguments);
    return 0;
}

int ignoreProgress(const char*, ...)
{
    return 0;
}

KvMvcFunction lookUp(const char* name)
{
    struct Row {
        const char* name;
        KvMvcFunction function;
    };
    static const Row rows[] = {
        {"malloc", reinterpret_cast<KvMvcFunction>(&std::malloc)},
        {"free", reinterpret_cast<KvMvcFunction>(&std::free)},
        {"err_printf", reinterpret_cast<KvMvcFunction>(&sink<CheckMessage::Error>)},
        {"wrn_printf", reinterpret_cast<KvMvcFunction>(&sink<CheckMessage::Warning>)},
        {"inf_printf", reinterpret_cast<KvMvcFunction>(&sink<CheckMessage::Note>)},
        {"prg_printf", reinterpret_cast<KvMvcFunction>(&ignoreProgress)},
    };
    for (const Row& row : rows) {
        if (std::strcmp(row.name, name) == 0) {
            return row.function;
        }
    }
    return nullptr;
}

/// The last stage: everything is known that there is to know.
constexpr int32_t checkStage = 3;

} // namespace

Encoder::Encoder(const QString& directory)
    : m_library(directory, {QStringLiteral("kv_mvcenc_b"), QStringLiteral("kv_mvcenc")}),
      m_defaults(m_library.function<KvMvcDefaults>(KV_MVC_ENCODER_DEFAULTS)),
      m_check(m_library.function<KvMvcCheck>(KV_MVC_ENCODER_CHECK))
{
}

KvMvcSettings Encoder::defaults(qint32 preset) const
{
    KvMvcSettings settings = {};
    m_defaults(&settings, 0, preset, 0);
    return settings;
}

CheckResult Encoder::check(const KvMvcSettings& settings) const
{
    CheckResult result = {false, {}, settings};
    collected = &result.messages;
    result.accepted = m_check(&lookUp, &result.corrected, checkStage, 0) == 0;
    collected = nullptr;
    return result;
}
