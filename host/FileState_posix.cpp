#include "FileState.h"

#include <QByteArray>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

FileState::Kind kindOf(mode_t mode)
{
    if (S_ISREG(mode)) {
        return FileState::Regular;
    }
    if (S_ISDIR(mode)) {
        return FileState::Folder;
    }
    return S_ISFIFO(mode) || S_ISCHR(mode) ? FileState::Stream : FileState::Other;
}

bool isForeignLink(const QFileInfo& link)
{
    constexpr mode_t everybodys = S_ISVTX | S_IWOTH;
    struct stat own = {};
    struct stat folder = {};
    return ::lstat(link.filePath().toUtf8().constData(), &own) == 0 &&
           ::stat(link.path().toUtf8().constData(), &folder) == 0 &&
           (folder.st_mode & everybodys) == everybodys && own.st_uid != ::geteuid() &&
           own.st_uid != folder.st_uid;
}

} // namespace

FileState fileState(const QString& path)
{
    const QByteArray name = path.toUtf8();
    struct stat status = {};
    if (::stat(name.constData(), &status) != 0) {
        return {errno == EACCES ? FileState::Hidden : FileState::Missing};
    }
    const auto may = [&](int access) {
        return ::faccessat(AT_FDCWD, name.constData(), access, AT_EACCESS) == 0;
    };
    return {kindOf(status.st_mode), may(R_OK), may(W_OK)};
}

bool leadsThroughForeignLink(const QString& path)
{
    constexpr int longestChain = 40; // as the system's own limit
    QFileInfo file(path);
    for (int links = 0; links < longestChain && file.isSymLink(); ++links) {
        if (isForeignLink(file)) {
            return true;
        }
        file.setFile(file.symLinkTarget());
    }
    return false;
}

bool isNameTaken(const QString& path)
{
    struct stat status = {};
    return ::lstat(path.toUtf8().constData(), &status) == 0;
}
