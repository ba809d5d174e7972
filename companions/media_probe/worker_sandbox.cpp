#include "worker_sandbox.h"

#include <cerrno>

#include <sys/prctl.h>

#if defined(KV_HAVE_SECCOMP)
#include <seccomp.h>

#include <initializer_list>
#include <memory>

#include <sys/mman.h>
#include <unistd.h>
#endif

namespace kv
{
namespace
{

#if defined(KV_HAVE_SECCOMP)

struct Release {
    void operator()(void* filter) const { ::seccomp_release(filter); }
};
using Filter = std::unique_ptr<void, Release>;

/// Allowed whatever their arguments: none of them opens, names or reaches anything.
constexpr int harmlessCalls[] = {
    SCMP_SYS(read),
    SCMP_SYS(lseek),
    SCMP_SYS(_llseek),
    SCMP_SYS(munmap),
    SCMP_SYS(mremap),
    SCMP_SYS(madvise),
    SCMP_SYS(brk),
    SCMP_SYS(futex),
    SCMP_SYS(getrandom),
    SCMP_SYS(clock_gettime),
    SCMP_SYS(clock_gettime64),
    SCMP_SYS(gettimeofday),
    SCMP_SYS(time),
    SCMP_SYS(sched_getaffinity),
    SCMP_SYS(sched_yield),
    SCMP_SYS(rt_sigprocmask),
    SCMP_SYS(rt_sigreturn),
    SCMP_SYS(sigreturn),
    SCMP_SYS(restart_syscall),
    SCMP_SYS(exit),
    SCMP_SYS(exit_group),
};

/// Allowed for a bit pattern of one argument.
struct LimitedCall {
    int call;
    scmp_arg_cmp argument;
};

constexpr unsigned protectionArgument = 2;

scmp_arg_cmp withoutBit(unsigned argument, scmp_datum_t bit)
{
    return {argument, SCMP_CMP_MASKED_EQ, bit, 0};
}

scmp_arg_cmp withValue(unsigned argument, scmp_datum_t value)
{
    return {argument, SCMP_CMP_EQ, value, 0};
}

/// @return 0, or an error number.
int restrictCalls()
{
    // A call that fails is a library's daily bread; one that ends the process would be no answer.
    const Filter filter(::seccomp_init(SCMP_ACT_ERRNO(EPERM)));
    if (!filter) {
        return ENOSYS;
    }
    int error = ::seccomp_attr_set(filter.get(), SCMP_FLTATR_API_SYSRAWRC, 1); // the kernel's words
    for (const int call : harmlessCalls) {
        error = error != 0 ? error : ::seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, call, 0);
    }
    for (const LimitedCall& row : std::initializer_list<LimitedCall>{
             {SCMP_SYS(write), withValue(0, STDOUT_FILENO)},
             {SCMP_SYS(mmap), withoutBit(protectionArgument, PROT_EXEC)},
             {SCMP_SYS(mmap2), withoutBit(protectionArgument, PROT_EXEC)},
             {SCMP_SYS(mprotect), withoutBit(protectionArgument, PROT_EXEC)},
         }) {
        error = error != 0 ? error
                           : ::seccomp_rule_add_array(filter.get(), SCMP_ACT_ALLOW, row.call, 1,
                                                      &row.argument);
    }
    return error != 0 ? -error : -::seccomp_load(filter.get());
}

#else

int restrictCalls()
{
    return 0;
}

#endif

} // namespace

int enterSandbox()
{
    const int refused = ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 ? 0 : errno;
    const int unrestricted = restrictCalls();
    return refused != 0 ? refused : unrestricted;
}

} // namespace kv
