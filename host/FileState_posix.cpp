#include "FileState.h"

#include <QByteArray>

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

bool isNameTaken(const QString& path)
{
    struct stat status = {};
    return ::lstat(path.toUtf8().constData(), &status) == 0;
}
