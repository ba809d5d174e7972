#pragma once

#include <QByteArray>
#include <QString>

/// Text from a host or a companion library: UTF-8 where the bytes are valid UTF-8, which Japanese
/// messages need, else Latin-1.
inline QString foreignText(const QByteArray& bytes)
{
    const QString text = QString::fromUtf8(bytes);
    return text.toUtf8() == bytes ? text : QString::fromLatin1(bytes);
}
