#include "file_store.h"
#include "temporary_file.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>
#if defined(__linux__)
#include <sys/xattr.h>
#endif

namespace kv
{
namespace
{

class Descriptor
{
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return m_number; }
    bool isOpen() const { return m_number >= 0; }
    /// @return Whether everything reached the file, as far as closing tells.
    bool close()
    {
        const int number = std::exchange(m_number, -1);
        return number < 0 || ::close(number) == 0;
    }

private:
    int m_number;
};

std::string systemReason(int error = errno)
{
    return std::generic_category().message(error);
}

bool writeAll(int descriptor, std::string_view content)
{
    while (!content.empty()) {
        const ssize_t written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            return false;
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// In a folder where everybody may leave files, somebody may leave a link to those of others.
bool isForeignLink(const std::filesystem::path& link)
{
    constexpr mode_t everybodys = S_ISVTX | S_IWOTH;
    const std::filesystem::path folder = link.has_parent_path() ? link.parent_path() : ".";
    struct stat ofLink = {};
    struct stat ofFolder = {};
    return ::lstat(link.c_str(), &ofLink) == 0 && ::stat(folder.c_str(), &ofFolder) == 0 &&
           (ofFolder.st_mode & everybodys) == everybodys && ofLink.st_uid != ::geteuid() &&
           ofLink.st_uid != ofFolder.st_uid;
}

/// Follows symbolic links by name, since what they lead to may not exist yet.
/// @param file Becomes what the chain of links leads to.
/// @return Why it must not be followed; empty for success.
std::string followLinks(std::filesystem::path& file)
{
    constexpr int longestChain = 40; // as the system's own limit
    for (int links = 0; links < longestChain; ++links) {
        std::error_code error;
        if (!std::filesystem::is_symlink(std::filesystem::symlink_status(file, error))) {
            return {};
        }
        if (isForeignLink(file)) {
            return "the link belongs to another user";
        }
        const std::filesystem::path target = std::filesystem::read_symlink(file, error);
        if (error) {
            return error.message();
        }
        file = file.parent_path() / target;
    }
    return systemReason(ELOOP);
}

#if defined(__linux__)
/// Access lists and labels are such attributes; what may not be set is left out.
void keepAttributes(const char* from, int to)
{
    if (::listxattr(from, nullptr, 0) <= 0) {
        return;
    }
    constexpr std::size_t longest = 64 * 1024; // of a list and of a value, in Linux
    std::vector<char> names(longest);
    std::vector<char> value(longest);
    const ssize_t length = ::listxattr(from, names.data(), names.size());
    for (ssize_t at = 0; at < length;) {
        const char* name = names.data() + at;
        const ssize_t size = ::getxattr(from, name, value.data(), value.size());
        if (size >= 0) {
            ::fsetxattr(to, name, value.data(), static_cast<std::size_t>(size), 0);
        }
        at += static_cast<ssize_t>(std::strlen(name)) + 1;
    }
}
#else
void keepAttributes(const char*, int) {}
#endif

/// A group that cannot be kept gets no more than everybody else has.
bool keepAccess(const struct stat& former, const char* file, int descriptor)
{
    mode_t mode = former.st_mode & 07777;
    if (::fchown(descriptor, former.st_uid, former.st_gid) != 0 &&
        ::fchown(descriptor, static_cast<uid_t>(-1), former.st_gid) != 0) {
        mode = (mode & 0707) | (mode & 07) << 3;
    }
    keepAttributes(file, descriptor);
    return ::fchmod(descriptor, mode) == 0;
}

void flushFolder(const std::filesystem::path& file)
{
    const std::filesystem::path folder = file.has_parent_path() ? file.parent_path() : ".";
    const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.isOpen()) {
        ::fsync(descriptor.number());
    }
}

/// @param former The file to be replaced; none for a new one.
std::string replaceRegular(const std::filesystem::path& file,
                           const std::optional<struct stat>& former, std::string_view content)
{
    // Renaming needs no right to write to the file; taking a read-only file away needs one here.
    if (former && ::faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) != 0) {
        return systemReason();
    }
    TemporaryFile temporary(file);
    if (!temporary.isOpen()) {
        return "no file can be made in its folder: " + systemReason();
    }
    const int descriptor = temporary.descriptor();
    if (former && !keepAccess(*former, file.c_str(), descriptor)) {
        return systemReason();
    }
    if (!writeAll(descriptor, content) || ::fsync(descriptor) != 0 || !temporary.replace(file)) {
        return systemReason();
    }
    flushFolder(file);
    removeAbandoned(file);
    return {};
}

/// In this thread, writing to a pipe whose reader has gone is an error, not the process's end.
class BrokenPipeGuard
{
public:
    BrokenPipeGuard()
    {
        sigset_t pending;
        sigpending(&pending);
        m_wasPending = sigismember(&pending, SIGPIPE) == 1;
        sigemptyset(&m_signal);
        sigaddset(&m_signal, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &m_signal, &m_former);
    }
    ~BrokenPipeGuard()
    {
        const timespec now = {};
        while (!m_wasPending && sigtimedwait(&m_signal, nullptr, &now) < 0 && errno == EINTR) {
        }
        pthread_sigmask(SIG_SETMASK, &m_former, nullptr);
    }
    BrokenPipeGuard(const BrokenPipeGuard&) = delete;
    BrokenPipeGuard& operator=(const BrokenPipeGuard&) = delete;

private:
    sigset_t m_signal;
    sigset_t m_former;
    bool m_wasPending;
};

/// A pipe that nobody reads is refused instead of waited for.
std::string writeStream(const std::filesystem::path& file, std::string_view content)
{
    Descriptor descriptor(::open(file.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!descriptor.isOpen()) {
        return systemReason();
    }
    ::fcntl(descriptor.number(), F_SETFL, 0);
    const BrokenPipeGuard guard;
    return writeAll(descriptor.number(), content) && descriptor.close() ? "" : systemReason();
}

} // namespace

bool isThere(const std::filesystem::path& file)
{
    std::error_code error;
    return std::filesystem::exists(std::filesystem::symlink_status(file, error));
}

bool isFolder(const std::filesystem::path& file)
{
    std::error_code error;
    return std::filesystem::is_directory(file, error);
}

std::string readFile(const std::filesystem::path& file, std::size_t largest, std::string& content)
{
    // Not opened by what that finds: some names are links by magic, as those below /proc.
    std::filesystem::path target = file;
    if (std::string reason = followLinks(target); !reason.empty()) {
        return reason;
    }
    const Descriptor descriptor(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    if (!descriptor.isOpen() || ::fstat(descriptor.number(), &status) != 0) {
        return systemReason();
    }
    if (!S_ISREG(status.st_mode)) {
        return "not a regular file";
    }
    content.clear();
    content.reserve(std::min(static_cast<std::size_t>(status.st_size), largest));
    std::array<char, 64 * 1024> block;
    while (true) {
        const ssize_t count = ::read(descriptor.number(), block.data(), block.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return systemReason();
        }
        if (count == 0) {
            return {};
        }
        content.append(block.data(), static_cast<std::size_t>(count));
        if (content.size() > largest) {
            return "too large";
        }
    }
}

std::string replaceFile(const std::filesystem::path& file, std::string_view content)
{
    std::filesystem::path target = file;
    if (std::string reason = followLinks(target); !reason.empty()) {
        return reason;
    }
    struct stat former = {};
    const bool exists = ::stat(file.c_str(), &former) == 0;
    if (!exists && errno != ENOENT) {
        return systemReason();
    }
    if (exists && S_ISDIR(former.st_mode)) {
        return systemReason(EISDIR);
    }
    if (exists && !S_ISREG(former.st_mode)) {
        return writeStream(file, content);
    }
    return replaceRegular(target, exists ? std::optional(former) : std::nullopt, content);
}

} // namespace kv
