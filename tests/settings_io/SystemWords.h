// The systems' own words for what is refused, as they stand in messages.
#pragma once

#include <QByteArray>
#include <QString>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace kvtest
{

struct SystemWords {
    QByteArray noFile;
    QByteArray noFolder;
    QByteArray underAFile;
    QByteArray isFolder;
};

#ifdef Q_OS_WIN

/// In the user's language, so asked of the system: without its full stop.
inline QByteArray wordsOf(DWORD error)
{
    QString words = qt_error_string(static_cast<int>(error)).trimmed();
    if (words.endsWith(QLatin1Char('.'))) {
        words.chop(1);
    }
    return words.toUtf8();
}

inline SystemWords systemWords()
{
    return {wordsOf(ERROR_FILE_NOT_FOUND), wordsOf(ERROR_PATH_NOT_FOUND),
            wordsOf(ERROR_PATH_NOT_FOUND), "a folder has this name"};
}

#else

inline SystemWords systemWords()
{
    return {"No such file or directory", "No such file or directory", "Not a directory",
            "Is a directory"};
}

#endif

} // namespace kvtest
