#pragma once

#include <QByteArray>
#include <QStringList>

/// A command for the shell (POSIX `sh -c`), on one line that ends; every word arrives there as it
/// is here.
QByteArray shellCommand(const QStringList& words);

/// The name of a file where an option could stand: "./-x" for "-x".
QString asFileName(const QString& name);
