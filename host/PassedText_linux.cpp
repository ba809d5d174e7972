#include "MemoryFile.h"
#include "PassedText.h"

#include <array>
#include <cerrno>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace
{

/// The path under which the process itself finds one of its open files.
QString pathOf(int file)
{
    return QStringLiteral("/proc/self/fd/%1").arg(file);
}

bool isReachable(int file)
{
    return ::access(pathOf(file).toUtf8().constData(), F_OK) == 0;
}

bool writeAll(int file, QByteArray text)
{
    while (!text.isEmpty()) {
        const ssize_t written = ::write(file, text.constData(), static_cast<size_t>(text.size()));
        if (written < 0 && errno != EINTR) {
            return false;
        }
        text.remove(0, static_cast<int>(written < 0 ? 0 : written));
    }
    return true;
}

QByteArray readAll(int file)
{
    QByteArray text;
    std::array<char, 4096> block;
    while (true) {
        const ssize_t count = ::read(file, block.data(), block.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return text;
        }
        text.append(block.data(), static_cast<int>(count));
    }
}

/// Read at the same time as it is written, so that the writer never waits for room.
class TextInPipe : public WrittenText
{
public:
    TextInPipe(int readEnd, int writeEnd)
        : m_readEnd(readEnd),
          m_writeEnd(writeEnd),
          m_reader([this] { m_text = readAll(m_readEnd); })
    {
    }
    ~TextInPipe() override
    {
        finish();
        ::close(m_readEnd);
    }
    TextInPipe(const TextInPipe&) = delete;
    TextInPipe& operator=(const TextInPipe&) = delete;

    [[nodiscard]] QString path() const override { return pathOf(m_writeEnd); }

    std::optional<QByteArray> take() override
    {
        finish();
        return m_text.isEmpty() ? std::nullopt : std::optional(m_text);
    }

private:
    /// The reader ends when nobody has the other end any more.
    void finish()
    {
        if (m_writeEnd >= 0) {
            ::close(std::exchange(m_writeEnd, -1));
            m_reader.join();
        }
    }

    int m_readEnd;
    int m_writeEnd;
    QByteArray m_text;
    std::thread m_reader; // last: it uses the others
};

} // namespace

int openMemoryFile()
{
    return ::memfd_create("kv-mvc-settings", MFD_CLOEXEC);
}

bool ReadableText::keepInMemory(const QByteArray& text)
{
    m_file = openMemoryFile();
    if (m_file < 0 || !isReachable(m_file) || !writeAll(m_file, text)) {
        return false;
    }
    m_path = pathOf(m_file);
    return true;
}

ReadableText::~ReadableText()
{
    if (m_file >= 0) {
        ::close(m_file);
    }
}

std::unique_ptr<WrittenText> WrittenText::inPipe()
{
    std::array<int, 2> ends = {};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        return nullptr;
    }
    if (!isReachable(ends[1])) {
        ::close(ends[0]);
        ::close(ends[1]);
        return nullptr;
    }
    return std::make_unique<TextInPipe>(ends[0], ends[1]);
}
