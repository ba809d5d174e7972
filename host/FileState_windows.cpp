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

bool isNameTaken(const QString& path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymbolicLink();
}
