#include "report.h"

namespace kv::encoder
{

Report::Report(KvMvcLookup lookup)
{
    if (!lookup) {
        return;
    }
    // In the order of Severity.
    const char* const names[] = {"err_printf", "wrn_printf", "inf_printf"};
    for (int i = 0; i < 3; ++i) {
        m_sinks[i] = reinterpret_cast<KvMvcPrintf>(lookup(names[i]));
    }
}

} // namespace kv::encoder
