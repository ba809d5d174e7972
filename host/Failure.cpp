#include "Failure.h"

#include "CommandLine.h"

Failure::Failure(const QString& reason)
    : m_lines(QStringLiteral("%1: %2").arg(QLatin1String(programName), reason))
{
}

Failure Failure::adding(const QString& text) const
{
    QStringList lines = m_lines;
    lines.last() += QStringLiteral("; ") + text;
    return Failure(std::move(lines));
}
