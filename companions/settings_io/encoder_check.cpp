#include "encoder_check.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace kv
{
namespace
{

using Messages = std::vector<std::string> Verdict::*;

constexpr int32_t kLastStage = 3;

/** Where the sinks, which are told nothing else, put their messages. */
thread_local Verdict* listening = nullptr;

std::string formatted(const char* format, std::va_list arguments)
{
    std::va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, again);
    va_end(again);
    std::string text(static_cast<std::size_t>(std::max(length, 0)), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, arguments);
    return text;
}

/** Called by the encoder: no exception may leave. */
template <Messages messages>
int listen(const char* format, ...) noexcept
{
    std::va_list arguments;
    va_start(arguments, format);
    if (listening)
        (listening->*messages).push_back(formatted(format, arguments));
    va_end(arguments);
    return 0;
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
