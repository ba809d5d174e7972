#include "Failure.h"

#include "CommandLine.h"
#include "Printable.h"

Failure::Failure(const QString& reason)
    : m_lines(QStringLiteral("%1: %2").arg(QLatin1String(programName), printable(reason)))
{
}

Failure::Failure(const QStringList& lines)
{
    for (const QString& line : lines) {
        m_lines << printable(line);
    }
}

Failure Failure::adding(const QString& text) const
{
    QStringList lines = m_lines;
    lines.last() += QStringLiteral("; ") + text;
    return Failure(lines);
}
