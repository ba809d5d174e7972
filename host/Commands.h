#pragma once

#include "CommandLine.h"

#include <span>

/// The commands of the program, in the order of its help page.
std::span<const Command> allCommands();

// What they are made of; each group has a file of its own.

QList<QCommandLineOption> editOptions();
Outcome runEdit(const Invocation& call);

QList<QCommandLineOption> showOptions();
Outcome runShow(const Invocation& call);

QList<QCommandLineOption> diffOptions();
Outcome runDiff(const Invocation& call);

QList<QCommandLineOption> checkOptions();
Outcome runCheck(const Invocation& call);

QList<QCommandLineOption> reportOptions();
Outcome runReport(const Invocation& call);

QList<QCommandLineOption> defaultsOptions();
Outcome runDefaults(const Invocation& call);

QList<QCommandLineOption> importOptions();
Outcome runImport(const Invocation& call);

QList<QCommandLineOption> setOptions();
Outcome runSet(const Invocation& call);

QList<QCommandLineOption> doctorOptions();
Outcome runDoctor(const Invocation& call);

QList<QCommandLineOption> exportOptions();
Outcome runExport(const Invocation& call);
