// The process that a media file is read in, so that whatever it does ends with the process.
//
// Usage: kv_media_probe_worker NAME; the file is standard input, a ProbeAnswer goes to standard
// output. Started by the library; of no use otherwise.
#include "stream_facts.h"
#include "worker_sandbox.h"

#include <exception>
#include <new>

#include <sys/resource.h>
#include <unistd.h>

extern "C" {
#include <libavutil/log.h>
}

namespace
{

struct Limit {
    decltype(RLIMIT_DATA) what;
    rlim_t most;
};

constexpr Limit limits[] = {
    {RLIMIT_CPU, kv::hardSeconds},
    {RLIMIT_CORE, 0},
#if !defined(KV_INSTRUMENTED)
    {RLIMIT_FSIZE, 0}, // it writes to a pipe
    {RLIMIT_DATA, kv::largestMemory},
    {RLIMIT_NOFILE, STDERR_FILENO + 1},
    {RLIMIT_NPROC, 0},
#endif
};

void limitProcess()
{
    for (const Limit& limit : limits) {
        const rlimit both = {limit.most, limit.most};
        ::setrlimit(limit.what, &both);
    }
    ::alarm(kv::hardSeconds); // also when nobody waits any more
}

kv::ProbeAnswer probe(const char* name)
{
    try {
        return kv::streamFacts(STDIN_FILENO, name);
    } catch (const std::bad_alloc&) {
        return kv::refusal(KV_MEDIA_LIMIT, "describing it takes too much memory");
    } catch (const std::exception& error) {
        return kv::refusal(KV_MEDIA_UNREADABLE, error.what());
    }
}

} // namespace

int main(int count, char** arguments)
{
    limitProcess();
    av_log_set_level(AV_LOG_QUIET);
    const int unconfined = kv::enterSandbox();
    kv::ProbeAnswer answer = probe(count > 1 ? arguments[1] : "");
    answer.unconfined = unconfined;
    const ssize_t written = ::write(STDOUT_FILENO, &answer, sizeof answer);
    return written == static_cast<ssize_t>(sizeof answer) ? 0 : 1;
}
