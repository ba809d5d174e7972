#include "encoder_check.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <utility>

namespace kv
{
namespace
{

using Messages = std::vector<std::string> Verdict::*;

constexpr int32_t kLastStage = 3;

/** Where the sinks, which are told nothing else, put their messages. */
thread_local Verdict* listening = nullptr;

/** Called by the encoder: no exception may leave. */
template <Messages messages>
int listen(const char* format, ...) noexcept
{
    std::va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    std::string text(static_cast<std::size_t>(std::max(length, 0)), '\0');
    va_start(arguments, format);
    std::vsnprintf(text.data(), text.size() + 1, format, arguments);
    va_end(arguments);
    if (listening)
        (listening->*messages).push_back(std::move(text));
    return length;
}

int ignore(const char*, ...) noexcept
{
    return 0;
}

struct Service {
    std::string_view name;
    KvMvcFunction function;
};

KvMvcFunction findService(const char* name)
{
    static const Service services[] = {
        {"malloc", reinterpret_cast<KvMvcFunction>(&std::malloc)},
        {"free", reinterpret_cast<KvMvcFunction>(&std::free)},
        {"err_printf", reinterpret_cast<KvMvcFunction>(&listen<&Verdict::errors>)},
        {"wrn_printf", reinterpret_cast<KvMvcFunction>(&listen<&Verdict::warnings>)},
        {"inf_printf", reinterpret_cast<KvMvcFunction>(&ignore)},
        {"prg_printf", reinterpret_cast<KvMvcFunction>(&ignore)}};
    const auto known = std::ranges::find(services, std::string_view(name), &Service::name);
    return known == std::end(services) ? nullptr : known->function;
}

} // namespace

Verdict checkSettings(KvMvcCheck check, const KvMvcSettings& settings)
{
    Verdict verdict;
    verdict.corrected = settings;
    listening = &verdict;
    verdict.accepted = check(findService, &verdict.corrected, kLastStage, 0) == 0;
    listening = nullptr;
    return verdict;
}

} // namespace kv
