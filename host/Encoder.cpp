#include "Encoder.h"

#include <new>

namespace
{

int keep(void* messages, int32_t kind, const char* text)
{
    static_cast<std::vector<CheckMessage>*>(messages)->push_back(
        {static_cast<CheckMessage::Kind>(kind), QString::fromUtf8(text).trimmed()});
    return 1;
}

} // namespace

Encoder::Encoder(const QString& directory)
    : m_library(directory, {KV_MVC_ENCODER_LIBRARIES}),
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
    KvMvcListener listener = {&keep, &result.messages, nullptr, 0};
    result.accepted = kvMvcRunCheck(m_check, &result.corrected, &listener) == 0;
    if (listener.lost > 0) {
        throw std::bad_alloc();
    }
    return result;
}
