#pragma once

#include <QByteArray>
#include <QTemporaryFile>

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

    QTemporaryFile m_file;
    /// The stream's own file, or -1 when nothing is captured.
    int m_original = -1;
};
