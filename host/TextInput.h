#pragma once

#include <QByteArray>
#include <QString>

// Text that comes in a stream: all of it up to the end, at most 1 MiB, in UTF-8.

/// @throws Failure
QByteArray readStandardInput();

/// @param path Of a pipe or a character device.
/// @throws Failure
QByteArray readStream(const QString& path);
