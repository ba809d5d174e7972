#include "report.h"

#include <iterator>

namespace kv::encoder
{

Report::Report(KvMvcLookup lookup)
{
    if (!lookup) {
        return;
    }
    // In the order of Severity. Callers know three kinds: they show a risk as a warning.
    const char* const names[] = {KV_MVC_ERROR_SINK, KV_MVC_WARNING_SINK, KV_MVC_WARNING_SINK,
                                 KV_MVC_NOTE_SINK};
    static_assert(std::size(names) == severities);
    for (std::size_t i = 0; i < severities; ++i) {
        m_sinks[i] = reinterpret_cast<KvMvcPrintf>(lookup(names[i]));
    }
}

} // namespace kv::encoder
