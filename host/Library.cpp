#include "Library.h"

#include "Failure.h"
#include "FileState.h"

#include <QDir>

namespace
{

#ifdef Q_OS_WIN
const QLatin1String suffix(".dll");
#else
const QLatin1String suffix(".so");
#endif

} // namespace

Library::Library(const QString& directory, const QStringList& baseNames)
{
    QString reasonBeside;
    for (const QString& baseName : baseNames) {
        const QString fileName = baseName + suffix;
        const QString beside = QDir(directory).filePath(fileName);
        const bool isBeside = fileState(beside).kind != FileState::Missing;
        m_file = isBeside ? beside : fileName;
        QString reason;
        m_handle = load(m_file, reason);
        if (m_handle != nullptr) {
            return;
        }
        // The loader's own words are worth more than ours only when there is something to load.
        if (isBeside) {
            reasonBeside = reason;
        }
    }
    throw Failure(!reasonBeside.isEmpty()
                      ? reasonBeside
                      : QStringLiteral("cannot find the library %1, neither in '%2' "
                                       "nor where the system looks")
                            .arg(baseNames.last() + suffix, directory));
}

Library::~Library()
{
    unload(m_handle);
}

Library::Address Library::resolve(const char* name) const
{
    const Address address = find(m_handle, name);
    if (address == nullptr) {
        throw Failure(QStringLiteral("%1 has no function %2").arg(m_file, QLatin1String(name)));
    }
    return address;
}
