#include "StandardErrorCapture.h"

#include "MemoryFile.h"

#include <QTemporaryFile>

#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace
{

#ifdef Q_OS_WIN
int duplicate(int file)
{
    return _dup(file);
}

bool redirect(int from, int to)
{
    return _dup2(from, to) == 0;
}

void closeFile(int file)
{
    _close(file);
}
#else
int duplicate(int file)
{
    return dup(file);
}

bool redirect(int from, int to)
{
    return dup2(from, to) >= 0;
}

void closeFile(int file)
{
    close(file);
}
#endif

constexpr int standardError = 2;

/// A file, not a pipe: nobody reads while the library writes.
std::unique_ptr<QFile> openFile()
{
    const int memory = openMemoryFile();
    if (memory >= 0) {
        auto file = std::make_unique<QFile>();
        return file->open(memory, QIODevice::ReadWrite, QFileDevice::AutoCloseHandle)
                   ? std::move(file)
                   : nullptr;
    }
    auto file = std::make_unique<QTemporaryFile>();
    return file->open() ? std::move(file) : nullptr;
}

} // namespace

StandardErrorCapture::StandardErrorCapture()
{
    std::fflush(stderr);
    m_file = openFile();
    if (!m_file) {
        return;
    }
    m_original = duplicate(standardError);
    if (m_original >= 0 && !redirect(m_file->handle(), standardError)) {
        closeFile(m_original);
        m_original = -1;
    }
}

StandardErrorCapture::~StandardErrorCapture()
{
    restore();
}

QByteArray StandardErrorCapture::finish()
{
    if (m_original < 0) {
        return {};
    }
    restore();
    m_file->seek(0);
    return m_file->readAll();
}

void StandardErrorCapture::restore()
{
    if (m_original < 0) {
        return;
    }
    std::fflush(stderr);
    redirect(m_original, standardError);
    closeFile(m_original);
    m_original = -1;
}
