#include "FileState.h"

#include <QFileInfo>

FileState fileState(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists()) {
        return {};
    }
    const auto kind = file.isFile()  ? FileState::Regular
                      : file.isDir() ? FileState::Folder
                                     : FileState::Other;
    return {kind, file.isReadable(), file.isWritable()};
}

bool leadsThroughForeignLink(const QString&)
{
    return false; // there is no such folder
}

bool isNameTaken(const QString& path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymbolicLink();
}
