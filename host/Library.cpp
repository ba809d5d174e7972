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
            // A library that is there but broken is the better reason than one that is not there.
            if (reason.isEmpty() || (candidate == beside && QFileInfo::exists(beside))) {
                reason = m_library.errorString();
            }
        }
    }
    throw Failure(reason);
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
