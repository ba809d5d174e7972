#include "probe_answer.h"

#include <cstdio>

namespace kv
{

ProbeAnswer refusal(KvMediaResult result, const char* reason)
{
    ProbeAnswer answer;
    answer.result = result;
    std::snprintf(answer.info.reason, sizeof answer.info.reason, "%s", reason);
    return answer;
}

} // namespace kv
