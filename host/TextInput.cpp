#include "TextInput.h"

#include "Failure.h"
#include "FileNames.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#endif

namespace
{

constexpr int largestText = 1024 * 1024; // as of settings files

[[noreturn]] void refuse(const QString& name, const QString& reason)
{
    throw Failure(QStringLiteral("cannot read '%1': %2").arg(name, reason));
}

QString systemReason()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

QByteArray readText(std::FILE* stream, const QString& name)
{
    QByteArray text;
    std::array<char, 4096> block;
    while (text.size() <= largestText) {
        const std::size_t count = std::fread(block.data(), 1, block.size(), stream);
        text.append(block.data(), static_cast<int>(count));
        if (count < block.size()) {
            break;
        }
    }
    if (std::ferror(stream) != 0) {
        refuse(name, systemReason());
    }
    // What comes in a stream has no name that says so.
    if (text.contains('\0') || text.startsWith("YUV4MPEG2 ")) {
        refuse(name, QStringLiteral("no text of a settings file; media are read from files, not "
                                    "from a stream"));
    }
    if (text.size() > largestText) {
        refuse(name, QStringLiteral("too large"));
    }
    if (!fromUtf8(text)) {
        refuse(name, QStringLiteral("not valid UTF-8 text"));
    }
    return text;
}

} // namespace

QByteArray readStandardInput()
{
#ifdef Q_OS_WIN
    _setmode(_fileno(stdin), _O_BINARY);
#endif
    return readText(stdin, QStringLiteral("<stdin>"));
}

QByteArray readStream(const QString& path)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(
        std::fopen(path.toUtf8().constData(), "rb"), &std::fclose);
    if (stream == nullptr) {
        refuse(path, systemReason());
    }
    return readText(stream.get(), path);
}
