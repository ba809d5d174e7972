#include "TextOutput.h"

#include "Failure.h"
#include "FileState.h"

#include <QSaveFile>

#ifdef Q_OS_WIN
#include <QString>

#include <algorithm>
#include <optional>

#include <io.h>
#include <windows.h>
#endif

namespace
{

#ifdef Q_OS_WIN
/// @return Nothing when the stream is no console.
std::optional<bool> writeToConsole(std::FILE* stream, const QByteArray& text)
{
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
    DWORD mode = 0;
    if (!GetConsoleMode(handle, &mode)) {
        return std::nullopt;
    }
    constexpr std::size_t largestPiece = 8192; // older systems take 64 KiB at once, all in all
    const std::wstring wide = QString::fromUtf8(text).toStdWString();
    for (std::size_t at = 0; at < wide.size();) {
        DWORD written = 0;
        const auto size = static_cast<DWORD>(std::min(wide.size() - at, largestPiece));
        if (!WriteConsoleW(handle, wide.data() + at, size, &written, nullptr) || written == 0) {
            return false;
        }
        at += written;
    }
    return true;
}
#endif

} // namespace

bool writeText(std::FILE* stream, const QByteArray& text)
{
#ifdef Q_OS_WIN
    if (const auto written = writeToConsole(stream, text)) {
        return *written;
    }
#endif
    const auto size = static_cast<std::size_t>(text.size());
    return std::fwrite(text.constData(), 1, size, stream) == size && std::fflush(stream) == 0;
}

void writeTextFile(const QString& path, const QByteArray& text)
{
    if (leadsThroughForeignLink(path)) {
        throw Failure(
            QStringLiteral("cannot write '%1': the link belongs to another user").arg(path));
    }
    QSaveFile file(path);
    // A pipe or a device is no file that another could replace.
    file.setDirectWriteFallback(fileState(path).kind == FileState::Stream);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
        throw Failure(QStringLiteral("cannot write '%1': %2").arg(path, file.errorString()));
    }
}
