#pragma once

class QCoreApplication;

/// Makes the module's own folder the last that the application looks in, for an application of the
/// module's own: one of a host has the folders that the host gave it.
void addOwnFolder(QCoreApplication& application);

/// Gives the application the user's language, German or Japanese: installs the translation, found
/// by the application's library paths, and loads the localization library beside it. Whatever is
/// missing is silently left out; other languages see English.
void setUpApplication(QCoreApplication& application);

/// Takes the translation back and lets go of its file.
void restoreApplication(QCoreApplication& application);
