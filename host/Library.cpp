#include "Library.h"

#include "Failure.h"

#include <QCoreApplication>
#include <QDir>

#include <string>

namespace
{

QString fileOf(const KvMvcLibrary& library)
{
    return QDir::fromNativeSeparators(QString::fromUtf8(library.file));
}

QString reasonOf(const KvMvcLibrary& library)
{
    QString words = QString::fromUtf8(library.reason);
#ifdef Q_OS_WIN
    // The system's words do not name the file there.
    return QStringLiteral("cannot load '%1': %2").arg(fileOf(library), words);
#else
    return words;
#endif
}

} // namespace

void addLibraryFolder(const QString& directory)
{
    if (!QCoreApplication::libraryPaths().contains(directory)) {
        QCoreApplication::setLibraryPaths(QCoreApplication::libraryPaths() << directory);
    }
}

Library::Library(const QString& directory, std::vector<const char*> baseNames)
{
    const QLatin1String lastName(baseNames.back());
    baseNames.push_back(nullptr);
    if (kvMvcOpenLibrary(&m_library, directory.toUtf8().constData(), baseNames.data(),
                         KV_MVC_LIBRARY_WINDOWS_PATH)) {
        return;
    }
    // The loader's own words are worth more than ours only when there is something to load.
    throw Failure(m_library.is_beside
                      ? reasonOf(m_library)
                      : QStringLiteral("cannot find the library %1, neither in '%2' "
                                       "nor where the system looks")
                            .arg(lastName + QLatin1String(KV_MVC_LIBRARY_SUFFIX), directory));
}

KvMvcFunction Library::resolve(const char* name) const
{
    const KvMvcFunction function = kvMvcFindFunction(&m_library, name);
    if (function == nullptr) {
        throw Failure(
            QStringLiteral("%1 has no function %2").arg(fileOf(m_library), QLatin1String(name)));
    }
    return function;
}

void Library::ignoreCurrentFolder()
{
#ifdef Q_OS_WIN
    // The folder given takes the current one's place in the search.
    std::wstring folder(32 * 1024, L'\0');
    folder.resize(GetModuleFileNameW(nullptr, folder.data(), static_cast<DWORD>(folder.size())));
    folder.erase(folder.find_last_of(L'\\') + 1);
    SetDllDirectoryW(folder.c_str());
    // And a library that cannot be loaded is an error to print, not one to show in a box.
    SetErrorMode(SEM_FAILCRITICALERRORS);
#endif
    // Elsewhere the loader never looks there on its own.
}
