#pragma once

#include <QString>

#include <utility>

/// Ends a command: one line on standard error, and the exit code for trouble.
class Failure
{
public:
    explicit Failure(QString text) : m_text(std::move(text)) {}
    [[nodiscard]] const QString& text() const { return m_text; }

private:
    QString m_text;
};
