#pragma once

#include <QByteArray>

#include <cstdio>

/// Writes UTF-8 text to standard output or standard error. A console of Windows, which has a code
/// page of its own, gets it as wide characters.
/// @return Whether all of it arrived.
bool writeText(std::FILE* stream, const QByteArray& text);
