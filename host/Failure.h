#pragma once

#include <QString>
#include <QStringList>

#include <utility>

/// Ends a command: lines on standard error, and the exit code for trouble.
class Failure
{
public:
    /// One line; the program's name is printed in front of it.
    explicit Failure(const QString& reason);

    /// Lines that are printed as they are: they begin with what they are about.
    /// @param lines At least one.
    explicit Failure(QStringList lines) : m_lines(std::move(lines)) {}

    [[nodiscard]] const QStringList& lines() const { return m_lines; }

    /// The same with something more to tell.
    [[nodiscard]] Failure adding(const QString& text) const;

private:
    QStringList m_lines;
};
