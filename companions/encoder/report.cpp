#include "report.h"

namespace kv::encoder
{

Report::Report(KvMvcLookup lookup)
{
    if (!lookup) {
        return;
    }
    // In the order of Severity.
    const char* const names[] = {KV_MVC_ERROR_SINK, KV_MVC_WARNING_SINK, KV_MVC_NOTE_SINK};
    for (int i = 0; i < 3; ++i) {
        m_sinks[i] = reinterpret_cast<KvMvcPrintf>(lookup(names[i]));
    }
}

} // namespace kv::encoder
