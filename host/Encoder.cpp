#include "Encoder.h"

#include "SettingsTable.h"

#include <new>

namespace
{

CheckMessage messageOf(int32_t kind, const char* text, const KvMvcMessageAbout* about)
{
    CheckMessage message = {static_cast<CheckMessage::Kind>(kind),
                            QString::fromUtf8(text).trimmed()};
    if (about == nullptr) {
        return message;
    }
    // The sinks know a risk as a warning.
    if (kind == KV_MVC_MESSAGE_WARNING && about->kind == KV_MVC_MESSAGE_RISK) {
        message.kind = CheckMessage::Risk;
    }
    message.rule = QString::fromUtf8(about->rule);
    message.setting = QString::fromUtf8(about->setting);
    message.view = about->view;
    message.level = QString::fromUtf8(about->level);
    if ((about->numbers & KV_MVC_ABOUT_VALUE) != 0) {
        message.value = about->value;
    }
    if ((about->numbers & KV_MVC_ABOUT_LIMIT) != 0) {
        message.limit = about->limit;
    }
    return message;
}

int keepMessage(void* result, int32_t kind, const char* text)
{
    static_cast<CheckResult*>(result)->messages.push_back(
        messageOf(kind, text, kvMvcMessageAbout()));
    return 1;
}

int keepUse(void* result, const KvMvcLimitUse* use)
{
    static_cast<CheckResult*>(result)->uses.push_back(
        {use->view, QString::fromUtf8(use->name), QString::fromUtf8(use->name),
         QString::fromUtf8(use->unit), QString::fromUtf8(use->rule), QString::fromUtf8(use->level),
         use->used, use->limit});
    return 1;
}

} // namespace

QString CheckResult::level() const
{
    for (const LimitUse& use : uses) {
        if (!use.level.isEmpty()) {
            return use.level;
        }
    }
    return {};
}

Encoder::Encoder(const QString& directory, KvMvcLocalizeConvert translate)
    : m_library(directory, {KV_MVC_ENCODER_LIBRARIES}),
      m_defaults(m_library.function<KvMvcDefaults>(KV_MVC_ENCODER_DEFAULTS)),
      m_check(m_library.function<KvMvcCheck>(KV_MVC_ENCODER_CHECK)),
      m_translate(translate)
{
}

KvMvcSettings Encoder::defaults(qint32 preset) const
{
    KvMvcSettings settings = {};
    m_defaults(&settings, 0, preset, 0);
    return settings;
}

QString Encoder::translated(const QString& text) const
{
    const char* const translation =
        m_translate != nullptr ? m_translate(text.toUtf8().constData()) : nullptr;
    return translation != nullptr ? QString::fromUtf8(translation) : text;
}

CheckResult Encoder::check(const KvMvcSettings& settings) const
{
    CheckResult result = {false, {}, {}, settings};
    KvMvcListener listener = {&keepMessage, &result, m_translate, 0};
    KvMvcLimitListener limits = {&keepUse, &result, 0};
    result.accepted = kvMvcRunFullCheck(m_check, &result.corrected, &listener, &limits) == 0;
    if (listener.lost > 0 || limits.lost > 0) {
        throw std::bad_alloc();
    }
    for (LimitUse& use : result.uses) {
        use.title = translated(use.name);
        if (use.view >= 0) {
            use.title += QStringLiteral(", ") + translated(QString(viewName(use.view)).toLower());
        }
    }
    return result;
}
