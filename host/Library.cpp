#include "Library.h"

#include "Failure.h"

#include <QDir>
#include <QFileInfo>

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
    QString reason;
    for (const QString& baseName : baseNames) {
        const QString fileName = baseName + suffix;
        const QString beside = QDir(directory).filePath(fileName);
        for (const QString& candidate : {beside, fileName}) {
            m_library.setFileName(candidate);
            if (m_library.load()) {
                return;
            }
            // The loader's own words are worth more than ours only when there is something to load.
            if (candidate == beside && QFileInfo::exists(beside)) {
                reason = m_library.errorString();
            }
        }
    }
    throw Failure(!reason.isEmpty() ? reason
                                    : QStringLiteral("cannot find the library %1, neither in '%2' "
                                                     "nor where the system looks")
                                          .arg(baseNames.last() + suffix, directory));
}

Library::~Library()
{
    m_library.unload();
}

QFunctionPointer Library::resolve(const char* name) const
{
    const QFunctionPointer address = m_library.resolve(name);
    if (address == nullptr) {
        throw Failure(
            QStringLiteral("%1 has no function %2").arg(m_library.fileName(), QLatin1String(name)));
    }
    return address;
}
