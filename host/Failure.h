#pragma once

#include <QString>
#include <QStringList>

/// Ends a command: printable lines on standard error, and the exit code for trouble.
class Failure
{
public:
    /// One line; the program's name is printed in front of it.
    explicit Failure(const QString& reason);

    /// Lines of their own: they begin with what they are about.
    /// @param lines At least one.
    explicit Failure(const QStringList& lines);

    [[nodiscard]] const QStringList& lines() const { return m_lines; }

    /// The same with something more to tell.
    [[nodiscard]] Failure adding(const QString& text) const;

private:
    QStringList m_lines;
};
