#include "Commands.h"

#include <limits>

namespace
{

#define KV_PRESETS_HELP                                                                            \
    "\nPresets: 0 none, 1 \"Multivew High\", 2 \"Stereo High\", 3 \"Blu-ray 3D\"; by number\n"     \
    "or by name (stereo-high).\n"

constexpr char editHelp[] = R"(
Opens the settings dialog. On OK the settings are saved in FILE, and each
setting that changed is printed with its old and its new value.

A FILE that does not exist yet starts with the defaults of the preset, and is
created on OK. Without FILE nothing is saved unless -o names a file.
)" KV_PRESETS_HELP R"(
Exit code: 0 after OK, 1 after Cancel (nothing is saved or printed), 2 on
trouble.
)";

constexpr char showHelp[] = R"(
Prints the settings in FILE as a table: one row a setting, as the dialog shows
it, the views side by side. FILE may be -, which is standard input.

Exit code: 0, or 2 on trouble.
)";

constexpr char checkHelp[] = R"(
Lets the encoder check the settings in each FILE, without a window, and prints
its messages after "error: ", "risk: ", "warning: " or "note: ", in this order;
of several files, after the file's name. A warning tells what was corrected, a
risk what is likely a slip. When the encoder accepts the settings and has only
notes, nothing is printed. FILE is not changed; one may be -, which is standard
input.

Exit code: 0 when the encoder accepts all settings, 1 when it refuses some, 2 on
trouble.
)";

constexpr char reportHelp[] = R"(
Tells for each level whether the settings in FILE fit it, and what keeps them
from it; then how much of its limits they use at the level that they have, as
bars. FILE may be -, which is standard input. The encoder tells all of it; of
one that does not, only which levels it accepts is known.

Exit code: 0 when the encoder accepts the settings, 1 when it refuses them, 2 on
trouble.
)";

constexpr char defaultsHelp[] = R"(
Writes a settings file with the defaults of a preset, and with what --set says
over them.
)" KV_PRESETS_HELP R"(
Exit code: 0, or 2 on trouble.
)";

constexpr char setHelp[] = R"(
Sets settings in FILE, and prints each that changed with its old and its new
value. KEY and VALUE are those of a settings file: width=1280,
frame_rate=24000/1001, bitrate=20M, profile=high. A setting of the views is set
in all of them, or in one after "view0." or "view1.". FILE is replaced as a
whole, and not at all when an assignment is wrong; it may be -, and then the
settings go to standard output.

Exit code: 0, or 2 on trouble.
)";

constexpr char diffHelp[] = R"(
Prints the settings that differ between two files, one a line: the value in A,
then the value in B. One of the files may be -, which is standard input.

Exit code: 0 when all settings are the same, 1 when some differ, 2 on trouble.
)";

constexpr char importHelp[] = R"(
Writes a settings file that fits a media file: picture size, frame rate,
interlacing and what else the stream tells, on top of a preset's defaults.

Exit code: 0, or 2 on trouble.
)";

constexpr char exportHelp[] = R"(
Writes what another encoder has to be told so that it codes the settings in
FILE: for x264 and ffmpeg (libx264) a command line for a shell, and for jm, the
standard's reference encoder, a configuration. What the encoder cannot do is
told in notes on standard error; a name stands for each file that is not given.
FILE may be -, which is standard input.

x264 and ffmpeg code one view. jm codes two; the second then has a file of its
own beside the one that -o names.

Exit code: 0, or 2 on trouble.
)";

constexpr char doctorHelp[] = R"(
Tells how the dialog gets on here, for a report of what is wrong: which
libraries it finds where, or why not; their functions; the toolkit, the
platform and its display, the language. The dialog is opened for that, unseen,
and left at once.

Exit code: 0 when the dialog opens, 1 when it does not.
)";

constexpr int anyNumber = std::numeric_limits<int>::max();

constexpr Command commands[] = {
    {"edit", "[FILE]", 0, 1, "Opens the settings dialog.", editHelp, editOptions, runEdit, true,
     "the dialog works on files, not on standard input",
     "film.cfg\n"
     "--preset stereo-high new.cfg"},
    {"show", "FILE", 1, 1, "Prints the settings as a table.", showHelp, showOptions, runShow, false,
     nullptr,
     "film.cfg\n"
     "--json film.cfg"},
    {"check", "FILE...", 1, anyNumber, "Runs the encoder's check, without a window.", checkHelp,
     checkOptions, runCheck, false, nullptr,
     "film.cfg\n"
     "--strict film.cfg -o checked.cfg"},
    {"report", "FILE", 1, 1, "Tells which levels the settings fit.", reportHelp, reportOptions,
     runReport, false, nullptr,
     "film.cfg\n"
     "--json film.cfg"},
    {"set", "FILE KEY=VALUE...", 2, anyNumber, "Sets settings in a file.", setHelp, setOptions,
     runSet, false, nullptr,
     "film.cfg width=1280 height=720\n"
     "film.cfg frame_rate=24000/1001 view1.bitrate=8M"},
    {"defaults", "PRESET", 1, 1, "Writes a preset's settings.", defaultsHelp, defaultsOptions,
     runDefaults, false, "it reads no settings",
     "stereo-high -o film.cfg\n"
     "2 --set bitrate=20M --set max_bitrate=25M"},
    {"diff", "A B", 2, 2, "Prints the settings that differ.", diffHelp, diffOptions, runDiff, false,
     nullptr,
     "film.cfg other.cfg\n"
     "--json film.cfg other.cfg"},
    {"import", "MEDIA", 1, 1, "Writes the settings that fit a media file.", importHelp,
     importOptions, runImport, false, "media are read from files, not from standard input",
     "film.mp4\n"
     "film.mp4 -o film.cfg"},
    {"export", "FILE", 1, 1, "Writes settings for another encoder.", exportHelp, exportOptions,
     runExport, false, nullptr,
     "--to x264 --input left.y4m --stream left.264 film.cfg\n"
     "--to jm --input l.yuv --input r.yuv film.cfg -o jm.cfg"},
    {"doctor", "", 0, 0, "Tells why the dialog does not open.", doctorHelp, doctorOptions,
     runDoctor, true, "it reads no settings",
     "\n"
     "-o report.txt"},
};

} // namespace

std::span<const Command> allCommands()
{
    return commands;
}
