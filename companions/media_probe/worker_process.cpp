#include "worker_process.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <system_error>
#include <utility>

#include <dlfcn.h>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kv
{
namespace
{

using Clock = std::chrono::steady_clock;

class Descriptor
{
public:
    explicit Descriptor(int number = -1) : m_number(number) {}
    ~Descriptor() { reset(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return m_number; }
    void reset(int number = -1)
    {
        if (const int former = std::exchange(m_number, number); former >= 0) {
            ::close(former);
        }
    }

private:
    int m_number;
};

/// What the child is started with; the calls on it cannot fail but for want of memory.
class SpawnPlan
{
public:
    SpawnPlan()
    {
        posix_spawn_file_actions_init(&m_actions);
        posix_spawnattr_init(&m_attributes);
    }
    ~SpawnPlan()
    {
        posix_spawn_file_actions_destroy(&m_actions);
        posix_spawnattr_destroy(&m_attributes);
    }
    SpawnPlan(const SpawnPlan&) = delete;
    SpawnPlan& operator=(const SpawnPlan&) = delete;

    /// The host's files, signal mask and handlers are none of the child's business.
    void connect(int input, int output)
    {
        posix_spawn_file_actions_adddup2(&m_actions, input, STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&m_actions, output, STDOUT_FILENO);
        posix_spawn_file_actions_addopen(&m_actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 34)
        posix_spawn_file_actions_addclosefrom_np(&m_actions, STDERR_FILENO + 1);
#endif
        sigset_t none;
        sigset_t all;
        sigemptyset(&none);
        sigfillset(&all);
        posix_spawnattr_setsigmask(&m_attributes, &none);
        posix_spawnattr_setsigdefault(&m_attributes, &all);
        posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }

    /// @return An error number.
    int start(const std::string& program, const char* argument, pid_t& child)
    {
        std::string copies[] = {program, argument, libraryPath()};
        char* arguments[] = {copies[0].data(), copies[1].data(), nullptr};
        char* environment[] = {copies[2].empty() ? nullptr : copies[2].data(), nullptr};
        return posix_spawn(&child, program.c_str(), &m_actions, &m_attributes, arguments,
                           environment);
    }

private:
    /// Of the host's environment, which may hold secrets, nothing but where libraries are found.
    static std::string libraryPath()
    {
        constexpr char name[] = "LD_LIBRARY_PATH";
        const char* const folders = std::getenv(name);
        return folders ? std::string(name) + '=' + folders : std::string();
    }

    posix_spawn_file_actions_t m_actions;
    posix_spawnattr_t m_attributes;
};

ProbeAnswer refusalByError(KvMediaResult result, int error)
{
    return refusal(result, std::generic_category().message(error).c_str());
}

/// A descriptor that no standard stream's number can clash with.
void moveAboveStandard(Descriptor& descriptor)
{
    if (descriptor.get() >= 0 && descriptor.get() <= STDERR_FILENO) {
        descriptor.reset(::fcntl(descriptor.get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
    }
}

/// The worker lies beside this library.
std::string workerProgram()
{
    Dl_info library = {};
    if (::dladdr(reinterpret_cast<void*>(&probeInWorker), &library) == 0 || !library.dli_fname) {
        return {};
    }
    const std::string file = library.dli_fname;
    const auto slash = file.rfind('/');
    return (slash == file.npos ? std::string("./") : file.substr(0, slash + 1)) +
           "kv_media_probe_worker";
}

enum class Received { Whole, Part, Late };

Received receive(int pipe, Clock::time_point deadline, ProbeAnswer& answer)
{
    auto* to = reinterpret_cast<char*>(&answer);
    std::size_t missing = sizeof answer;
    while (missing > 0) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
        pollfd ready = {pipe, POLLIN, 0};
        const int polled = left > 0 ? ::poll(&ready, 1, static_cast<int>(left)) : 0;
        if (polled < 0 && errno == EINTR) {
            continue;
        }
        if (polled == 0) {
            return Received::Late;
        }
        if (polled < 0) {
            return Received::Part;
        }
        const ssize_t count = ::read(pipe, to, missing);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return Received::Part;
        }
        to += count;
        missing -= static_cast<std::size_t>(count);
    }
    return Received::Whole;
}

/// A host that ignores its children's ends has none to wait for: no error.
void reap(pid_t child)
{
    while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
}

ProbeAnswer askWorker(int file, const char* name)
{
    int ends[2] = {-1, -1};
    if (::pipe2(ends, O_CLOEXEC) != 0) {
        return refusalByError(KV_MEDIA_UNAVAILABLE, errno);
    }
    Descriptor reading(ends[0]);
    Descriptor writing(ends[1]);
    moveAboveStandard(writing);
    const auto deadline = Clock::now() + std::chrono::seconds(hardSeconds);
    SpawnPlan plan;
    plan.connect(file, writing.get());
    pid_t child = -1;
    if (const int error = plan.start(workerProgram(), name, child); error != 0) {
        return refusal(KV_MEDIA_UNAVAILABLE, ("kv_media_probe_worker cannot be started: " +
                                              std::generic_category().message(error))
                                                 .c_str());
    }
    writing.reset();
    ProbeAnswer answer;
    const Received received = receive(reading.get(), deadline, answer);
    if (received != Received::Whole) {
        ::kill(child, SIGKILL);
    }
    reap(child);
    switch (received) {
    case Received::Whole:
        return answer;
    case Received::Late:
        return refusal(KV_MEDIA_LIMIT, "describing it takes too long");
    default:
        return refusal(KV_MEDIA_UNREADABLE, "damaged: reading it fails");
    }
}

} // namespace

ProbeAnswer probeInWorker(const std::string& path)
{
    Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    moveAboveStandard(file);
    struct stat status = {};
    if (file.get() < 0 || ::fstat(file.get(), &status) != 0) {
        return refusalByError(KV_MEDIA_UNREADABLE, errno);
    }
    if (!S_ISREG(status.st_mode)) {
        return refusal(KV_MEDIA_UNREADABLE, "not a regular file");
    }
    if (status.st_size == 0) {
        return refusal(KV_MEDIA_UNREADABLE, "empty");
    }
    const auto slash = path.rfind('/');
    return askWorker(file.get(), path.c_str() + (slash == path.npos ? 0 : slash + 1));
}

} // namespace kv
