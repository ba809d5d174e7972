#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

/// @return The text, its byte-order mark included, or nothing when the bytes are not UTF-8.
std::optional<QString> fromUtf8(const QByteArray& bytes);

/// The program's arguments, its own name first. Needs an application object.
/// @throws Failure when one is no Unicode text, since it would name another file then.
QStringList programArguments(int argc, char** argv);

/// The name under which the settings file library finds this file and no other.
///
/// The library takes "Ã¤" for "ä", too, as the settings dialog encodes the names of its file boxes
/// twice; a file that is really called "Ã¤" has to be named in that way.
/// @param path A file that exists, or one in a folder that exists.
/// @throws Failure when there is no such name.
QString nameForLibrary(const QString& path);
