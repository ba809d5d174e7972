#include "encoder_check.h"

#include <kv_config_gui_mvc/companion_check.h>

#include <new>

namespace kv
{
namespace
{

int keep(void* verdict, int32_t kind, const char* text)
{
    Verdict& heard = *static_cast<Verdict*>(verdict);
    if (kind == KV_MVC_MESSAGE_ERROR) {
        heard.errors.emplace_back(text);
    } else if (kind == KV_MVC_MESSAGE_WARNING) {
        heard.warnings.emplace_back(text);
    }
    return 1;
}

} // namespace

Verdict checkSettings(KvMvcCheck check, const KvMvcSettings& settings)
{
    Verdict verdict;
    verdict.corrected = settings;
    KvMvcListener listener = {&keep, &verdict, nullptr, 0};
    verdict.accepted = kvMvcRunCheck(check, &verdict.corrected, &listener) == 0;
    if (listener.lost > 0) {
        throw std::bad_alloc();
    }
    return verdict;
}

} // namespace kv
