#include "FileNames.h"

#include "Failure.h"
#include "FileState.h"

#include <QCoreApplication>

#include <algorithm>

namespace
{

/// Bytes beyond printable ASCII in hexadecimal, so that they can be shown.
QString escaped(const QByteArray& bytes)
{
    QString text;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        text += code >= 0x20 && code < 0x7F
                    ? QString(QLatin1Char(byte))
                    : QStringLiteral("\\x%1").arg(code, 2, 16, QLatin1Char('0'));
    }
    return text;
}

[[noreturn]] void refuseArgument(const QByteArray& bytes)
{
    throw Failure(QStringLiteral("the argument '%1' is not valid UTF-8").arg(escaped(bytes)));
}

/// Whether the text reads as UTF-8 that somebody took for Latin-1.
bool looksEncodedTwice(const QString& text)
{
    const auto beyond = [&](ushort limit) {
        return std::any_of(text.begin(), text.end(),
                           [limit](QChar sign) { return sign.unicode() > limit; });
    };
    return beyond(0x7F) && !beyond(0xFF) && fromUtf8(text.toLatin1()).has_value();
}

} // namespace

std::optional<QString> fromUtf8(const QByteArray& bytes)
{
    // The toolkit drops a byte-order mark at the start, so something else has to be there.
    const QByteArray marked = 'x' + bytes;
    const QString text = QString::fromUtf8(marked);
    if (text.toUtf8() != marked) {
        return std::nullopt;
    }
    return text.mid(1);
}

QStringList programArguments(int argc, char** argv)
{
#ifdef Q_OS_WIN
    Q_UNUSED(argc);
    Q_UNUSED(argv);
    const QStringList arguments = QCoreApplication::arguments();
    for (const QString& argument : arguments) {
        if (fromUtf8(argument.toUtf8()) != argument) {
            refuseArgument(argument.toUtf8());
        }
    }
    return arguments;
#else
    // The toolkit would put another letter where it does not understand one.
    QStringList arguments;
    for (int at = 0; at < argc; ++at) {
        const QByteArray bytes(argv[at]);
        const auto argument = fromUtf8(bytes);
        if (!argument) {
            refuseArgument(bytes);
        }
        arguments << *argument;
    }
    return arguments;
#endif
}

QString nameForLibrary(const QString& path)
{
    if (!looksEncodedTwice(path)) {
        return path;
    }
    QString encoded = QString::fromLatin1(path.toUtf8());
    if (isNameTaken(encoded) && !isNameTaken(path)) {
        throw Failure(
            QStringLiteral("cannot write '%1': the settings file library would take it for '%2', "
                           "which exists")
                .arg(path, encoded));
    }
    return encoded;
}
