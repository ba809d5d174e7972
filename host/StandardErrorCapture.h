#pragma once

#include <QByteArray>
#include <QFile>

#include <memory>

/// Keeps what is written to the standard error stream, by whatever library of the process, while
/// the object lives. Where that is not possible, the text passes through.
class StandardErrorCapture
{
public:
    StandardErrorCapture();
    ~StandardErrorCapture();
    StandardErrorCapture(const StandardErrorCapture&) = delete;
    StandardErrorCapture& operator=(const StandardErrorCapture&) = delete;

    /// Ends the capture. @return What was written.
    QByteArray finish();

private:
    void restore();

    /// Null when there is no place for one.
    std::unique_ptr<QFile> m_file;
    /// The stream's own file, or -1 when nothing is captured.
    int m_original = -1;
};
