#pragma once

#include <QString>

class Library;
class QCoreApplication;

/// The part of the program that needs the toolkit's widgets is a library of its own, and loaded
/// where a dialog opens: to load and bind the widgets takes longer than most commands take for all
/// else.
///
/// It stays in the process till that ends, since the toolkit is not made to be unloaded while its
/// core, which the program is linked with, goes on.
/// @param directory Where it is looked for, after the program's own folder.
/// @throws Failure
const Library& windowPart(const QString& directory);

/// A QApplication, the caller's to delete; argc and argv have to live as long.
using KvMakeApplication = QCoreApplication* (*)(int* argc, char** argv);
inline constexpr char makeApplicationName[] = "kvMakeApplication";

/// Has application objects that are made from now on leave each dialog as soon as it is shown, on
/// no screen.
using KvLeaveDialogs = void (*)();
inline constexpr char leaveDialogsName[] = "kvLeaveDialogs";
