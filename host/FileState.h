#pragma once

#include <QString>

/// What a file is, judged by the very bytes of its name; links are followed.
struct FileState {
    enum Kind {
        Missing,
        Hidden, ///< in a folder that may not be entered
        Folder,
        Regular,
        Stream, ///< a pipe or a character device
        Other
    };
    Kind kind = Missing;
    bool readable = false;
    bool writable = false;
};

FileState fileState(const QString& path);

/// Whether writing to the name would follow a link that another user has left in a folder where
/// everybody may leave files.
bool leadsThroughForeignLink(const QString& path);

/// Whether a file or a link, leading anywhere or not, has this name.
bool isNameTaken(const QString& path);
