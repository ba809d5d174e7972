#include "SettingsFiles.h"

#include "CommandLine.h"
#include "Failure.h"
#include "FileNames.h"
#include "FileState.h"
#include "PassedText.h"
#include "Printable.h"
#include "StandardErrorCapture.h"
#include "TextInput.h"
#include "TextOutput.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>

namespace
{

template <class Function>
Function apiFunction(const Library& library, int32_t code)
{
    const auto getApi = library.function<KvMvcSettingsIoGetApi>(KV_MVC_SETTINGS_IO_GET_API);
    const KvMvcFunction function = getApi(code);
    if (function == nullptr) {
        throw Failure(QStringLiteral("the settings file library has no function %1").arg(code));
    }
    return reinterpret_cast<Function>(function);
}

/// Whether a line is "NAME:LINE: REASON".
bool tellsPlace(const QString& line, const QString& name)
{
    if (!line.startsWith(name + QLatin1Char(':'))) {
        return false;
    }
    const auto start = name.size() + 1;
    const auto end = line.indexOf(QLatin1Char(':'), start);
    return end > start && std::all_of(line.begin() + start, line.begin() + end,
                                      [](QChar sign) { return sign.isDigit(); });
}

/// What the library works on, as it knows it and as the user does: a file or an assignment.
struct Subject {
    QString name;
    QString shown;
};

/// What the library said, with the name that the user knows. It escapes names as printable() does.
QStringList linesAbout(const Subject& subject, const QByteArray& said)
{
    const QString name = printable(subject.name);
    QStringList lines = QString::fromUtf8(said).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (QString& line : lines) {
        line = printable(line.trimmed());
        if (line.startsWith(name + QLatin1Char(':'))) {
            line = printable(subject.shown) + line.mid(name.size());
        }
    }
    return lines;
}

/// Calls a function of the library, which explains itself on standard error.
/// @param failed The reason when it does not.
/// @throws Failure with all that it said; places in the file are told as compilers do.
template <class Call>
void callLibrary(const Subject& subject, const QString& failed, const Call& call)
{
    StandardErrorCapture capture;
    const int32_t result = call();
    QStringList lines = linesAbout(subject, capture.finish());
    if (result == 0) {
        for (const QString& line : lines) {
            writeText(stderr, line.toUtf8() + '\n');
        }
        return;
    }
    if (lines.isEmpty()) {
        throw Failure(failed);
    }
    for (QString& line : lines) {
        if (!tellsPlace(line, printable(subject.shown))) {
            line = QStringLiteral("%1: %2").arg(QLatin1String(programName), line);
        }
    }
    throw Failure(lines);
}

} // namespace

SettingsFiles::SettingsFiles(const QString& directory)
    : m_library(directory, {KV_MVC_SETTINGS_IO_LIBRARY}),
      m_read(apiFunction<KvMvcReadSettings>(m_library, KV_MVC_SETTINGS_IO_READER)),
      m_write(apiFunction<KvMvcWriteSettings>(m_library, KV_MVC_SETTINGS_IO_WRITER))
{
}

KvMvcSettings SettingsFiles::read(const QString& path) const
{
    const bool standard = isStandardInput(path);
    if (!standard) {
        requireReadable(path);
    }
    Subject file = {path, path};
    std::optional<ReadableText> text;
    if (standard || fileState(path).kind == FileState::Stream) {
        file.shown = standard ? QStringLiteral("<stdin>") : path;
        text.emplace(standard ? readStandardInput() : readStream(path));
        file.name = text->path();
    }
    const QByteArray name = nameForLibrary(file.name).toUtf8();
    KvMvcSettings settings = {};
    callLibrary(file, QStringLiteral("cannot read settings from '%1'").arg(file.shown),
                [&] { return m_read(&settings, name.constData()); });
    return settings;
}

void SettingsFiles::write(const KvMvcSettings& settings, const QString& path) const
{
    const QByteArray name = nameForLibrary(path).toUtf8();
    KvMvcSettings copy = settings;
    callLibrary({path, path}, QStringLiteral("cannot write '%1'").arg(path),
                [&] { return m_write(&copy, name.constData()); });
}

KvMvcSettings SettingsFiles::with(const QStringList& assignments,
                                  const KvMvcSettings& settings) const
{
    KvMvcSettings changed = settings;
    if (assignments.isEmpty()) {
        return changed;
    }
    const auto set = apiFunction<KvMvcSetSetting>(m_library, KV_MVC_SETTINGS_IO_SETTER);
    QStringList wrong;
    for (const QString& assignment : assignments) {
        try {
            callLibrary({assignment, assignment}, QStringLiteral("cannot set '%1'").arg(assignment),
                        [&] { return set(&changed, assignment.toUtf8().constData()); });
        } catch (const Failure& failure) {
            wrong += failure.lines();
        }
    }
    if (!wrong.isEmpty()) {
        throw Failure(wrong);
    }
    return changed;
}

QByteArray SettingsFiles::text(const KvMvcSettings& settings) const
{
    if (const auto pipe = WrittenText::inPipe()) {
        try {
            write(settings, pipe->path());
        } catch (const Failure&) {
            // A library need not write to a pipe.
        }
        if (const auto text = pipe->take()) {
            return *text;
        }
    }
    const auto file = WrittenText::inFolder();
    write(settings, file->path());
    if (const auto text = file->take()) {
        return *text;
    }
    throw Failure(QStringLiteral("the settings file library has written nothing"));
}

bool isStandardInput(const QString& path)
{
    return path == QLatin1String("-");
}

bool isStandardOutput(const QString& path)
{
#ifndef Q_OS_WIN
    // Not left to the library: where the stream goes to a file, the name leads to that file.
    if (path == QLatin1String("/dev/stdout")) {
        return true;
    }
#endif
    return path == QLatin1String("-");
}

void requireReadable(const QString& path)
{
    // Not opened here: the reader does, and has its own words for what it finds inside.
    const FileState state = fileState(path);
    const auto refuse = [&](const QString& reason) {
        throw Failure(QStringLiteral("cannot read '%1': %2").arg(path, reason));
    };
    switch (state.kind) {
    case FileState::Missing:
        return refuse(QStringLiteral("there is no such file"));
    case FileState::Folder:
        return refuse(QStringLiteral("it is a directory"));
    case FileState::Hidden:
        return refuse(QStringLiteral("permission denied"));
    case FileState::Regular:
    case FileState::Stream:
    case FileState::Other:
        break;
    }
    if (!state.readable) {
        refuse(QStringLiteral("permission denied"));
    }
}

void requireWritable(const QString& path, Target target)
{
    const auto refuse = [&](const QString& reason) {
        throw Failure(QStringLiteral("cannot write '%1': %2").arg(path, reason));
    };
    const bool streams = target == Target::FileOrStream;
    if (streams && isStandardOutput(path)) {
        return;
    }
    const FileState file = fileState(path);
    const bool exists = file.kind != FileState::Missing;
    if (file.kind == FileState::Stream && streams && file.writable) {
        return;
    }
    const QFileInfo name(path);
    const QString suffix = name.suffix().toLower();
    if (suffix != QLatin1String("cfg") && suffix != QLatin1String("ini")) {
        refuse(QStringLiteral("the name of a settings file ends in .cfg or .ini"));
    }
    if (file.kind == FileState::Hidden) {
        refuse(QStringLiteral("permission denied"));
    }
    if (exists && file.kind != FileState::Regular) {
        refuse(QStringLiteral("it is no file"));
    }
    const FileState directory = fileState(name.path());
    if (directory.kind != FileState::Folder) {
        refuse(QStringLiteral("there is no directory '%1'").arg(name.path()));
    }
    if (!directory.writable || (exists && !file.writable)) {
        refuse(QStringLiteral("permission denied"));
    }
    nameForLibrary(path);
}
