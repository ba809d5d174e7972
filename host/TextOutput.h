#pragma once

#include <QByteArray>
#include <QString>

#include <cstdio>

/// Writes UTF-8 text to standard output or standard error. A console of Windows, which has a code
/// page of its own, gets it as wide characters.
/// @return Whether all of it arrived.
bool writeText(std::FILE* stream, const QByteArray& text);

/// Writes the text to a file, which it replaces as a whole.
/// @throws Failure
void writeTextFile(const QString& path, const QByteArray& text);
