#include "temporary_file.h"

#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <random>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <dirent.h>

namespace kv
{
namespace
{

/// A lock lasts as long as the process that writes the file.
enum class Lock { Gained, Held, Unknown };

Lock lockFile(int descriptor)
{
    if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        return Lock::Gained;
    }
    return errno == EWOULDBLOCK ? Lock::Held : Lock::Unknown; // not every file system has locks
}

/// Whether the file is still in its folder: who looked for abandoned ones may have been quicker.
bool isLinked(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && status.st_nlink > 0;
}

std::filesystem::path folderOf(const std::filesystem::path& file)
{
    return file.has_parent_path() ? file.parent_path() : ".";
}

void removeIfAbandoned(int folder, const char* name)
{
    const int file = ::openat(folder, name, O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) {
        return;
    }
    struct stat status = {};
    if (::fstat(file, &status) == 0 && S_ISREG(status.st_mode) && lockFile(file) == Lock::Gained) {
        ::unlinkat(folder, name, 0);
    }
    ::close(file);
}

} // namespace

TemporaryFile::TemporaryFile(const std::filesystem::path& file)
{
    constexpr int attempts = 100;
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const std::string beginning = temporaryBeginning(file);
    std::random_device random;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const std::string own = beginning + std::to_string(random()) + temporaryEnd;
        m_name = (file.parent_path() / own).string();
        m_descriptor = ::open(m_name.c_str(), flags, 0666);
        if (m_descriptor < 0 && errno != EEXIST) {
            return;
        }
        if (m_descriptor >= 0 && lockFile(m_descriptor) != Lock::Held && isLinked(m_descriptor)) {
            return;
        }
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
            m_descriptor = -1;
        }
    }
    errno = EEXIST;
}

TemporaryFile::~TemporaryFile()
{
    if (m_descriptor >= 0) {
        ::unlink(m_name.c_str());
        ::close(m_descriptor);
    }
}

bool TemporaryFile::replace(const std::filesystem::path& file)
{
    if (::rename(m_name.c_str(), file.c_str()) != 0) {
        return false;
    }
    ::close(m_descriptor);
    m_descriptor = -1;
    return true;
}

void removeAbandoned(const std::filesystem::path& file)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir(folderOf(file).c_str()),
                                                     &::closedir);
    if (!folder) {
        return;
    }
    const std::string beginning = temporaryBeginning(file);
    while (const dirent* entry = ::readdir(folder.get())) {
        const std::string_view name = entry->d_name;
        if (name.starts_with(beginning) && name.ends_with(temporaryEnd)) {
            removeIfAbandoned(::dirfd(folder.get()), entry->d_name);
        }
    }
}

} // namespace kv
