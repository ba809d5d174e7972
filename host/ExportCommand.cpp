// export: settings as other encoders take them.

#include "Commands.h"
#include "ExportTarget.h"
#include "Failure.h"
#include "FileState.h"
#include "SettingsFiles.h"
#include "TextOutput.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <numeric>

namespace
{

QString joinedNames(const QString& last)
{
    QStringList names;
    for (const ExportTarget& target : exportTargets()) {
        names << QString::fromLatin1(target.name);
    }
    const QString final = names.takeLast();
    return names.isEmpty() ? final : names.join(QStringLiteral(", ")) + last + final;
}

const ExportTarget& requireTarget(const Invocation& call)
{
    const QString names = joinedNames(QStringLiteral(" or "));
    if (!call.has("to")) {
        throw Failure(QStringLiteral("--to is missing: %1").arg(names));
    }
    const auto found = std::ranges::find_if(exportTargets(), [&](const ExportTarget& target) {
        return call.value("to") == QLatin1String(target.name);
    });
    if (found == exportTargets().end()) {
        throw Failure(QStringLiteral("there is no export to '%1'; there are %2")
                          .arg(call.value("to"), joinedNames(QStringLiteral(" and "))));
    }
    return *found;
}

/// The views that are coded: the one that is named, or as many from the first as the target codes.
std::vector<int> requireViews(const Invocation& call, const ExportTarget& target, int views)
{
    if (call.has("view")) {
        bool isNumber = false;
        const int view = call.value("view").toInt(&isNumber);
        if (!isNumber || view < 0 || view >= views) {
            throw Failure(QStringLiteral("there is no view '%1'; the settings have view%2")
                              .arg(call.value("view"),
                                   views == 1 ? QStringLiteral(" 0")
                                              : QStringLiteral("s 0 to %1").arg(views - 1)));
        }
        return {view};
    }
    std::vector<int> coded(static_cast<std::size_t>(std::min(views, target.mostViews)));
    std::iota(coded.begin(), coded.end(), 0);
    return coded;
}

/// The input of each coded view: those given are of the views in their order, a single one is of
/// the single view.
QStringList requireInputs(const Invocation& call, const std::vector<int>& coded, int views)
{
    QStringList given = call.options.value(QStringLiteral("input"));
    if (given.contains(QString()) || (call.has("stream") && call.value("stream").isEmpty())) {
        throw Failure(QStringLiteral("a file name is empty"));
    }
    if (given.size() > views) {
        throw Failure(QStringLiteral("there are more inputs than views"));
    }
    if (given.size() == 1 && coded.size() == 1) {
        return given;
    }
    QStringList inputs;
    for (const int view : coded) {
        if (view < given.size()) {
            inputs << given.at(view);
        } else if (given.isEmpty()) {
            inputs << (view == 0 ? QStringLiteral("INPUT.yuv")
                                 : QStringLiteral("INPUT%1.yuv").arg(view));
        } else {
            throw Failure(QStringLiteral("there is no input for view %1").arg(view));
        }
    }
    return inputs;
}

/// Refuses what is not to be written over: above all pictures and streams.
void requireExportName(const QString& path, const ExportTarget& target)
{
    const auto refuse = [&](const QString& reason) {
        throw Failure(QStringLiteral("cannot write '%1': %2").arg(path, reason));
    };
    const FileState file = fileState(path);
    if (file.kind == FileState::Stream) {
        return;
    }
    if (!target.suffixes.contains(QFileInfo(path).suffix().toLower())) {
        refuse(QStringLiteral("the name of an export to %1 ends in .%2 (--stream names what is "
                              "encoded)")
                   .arg(QLatin1String(target.name), target.suffixes.constFirst()));
    }
    if (file.kind != FileState::Missing && file.kind != FileState::Regular) {
        refuse(file.kind == FileState::Hidden ? QStringLiteral("permission denied")
                                              : QStringLiteral("it is no file"));
    }
}

/// Refuses to write over the settings, whose file may have a suffix that exports have, too.
void requireOther(const QString& path, const QString& settings)
{
    const QString place = QFileInfo(path).canonicalFilePath();
    if (!place.isEmpty() && place == QFileInfo(settings).canonicalFilePath()) {
        throw Failure(QStringLiteral("cannot write '%1': the settings are in it").arg(path));
    }
}

QByteArray noteLines(const QStringList& notes)
{
    QString text;
    for (const QString& note : notes) {
        text += QStringLiteral("note: ") + note + QLatin1Char('\n');
    }
    return text.toUtf8();
}

} // namespace

QList<QCommandLineOption> exportOptions()
{
    return {
        {QStringLiteral("to"),
         QStringLiteral("The encoder: %1.").arg(joinedNames(QStringLiteral(" or "))),
         QStringLiteral("ENCODER")},
        {QStringLiteral("input"),
         QStringLiteral("The pictures of a view; once for each view, from the base view on."),
         QStringLiteral("FILE")},
        {QStringLiteral("stream"), QStringLiteral("The stream that is encoded."),
         QStringLiteral("FILE")},
        {QStringLiteral("view"), QStringLiteral("The view that is coded; 0 is the base view."),
         QStringLiteral("N")},
        outputOption(QStringLiteral("Writes FILE, which is replaced when it exists; - is standard "
                                    "output, as without this option."))};
}

Outcome runExport(const Invocation& call)
{
    const ExportTarget& target = requireTarget(call);
    const QString output = call.value("output");
    const bool toFile = call.has("output") && !isStandardOutput(output);
    if (toFile) {
        requireExportName(output, target);
    }
    ExportTask task = {SettingsFiles(call.directory).read(call.files.first()), {}, {}, {}, {}};
    const int views = std::clamp<int>(task.settings.num_views, 1, KV_MVC_MAX_VIEWS);
    task.views = requireViews(call, target, views);
    task.inputs = requireInputs(call, task.views, views);
    task.stream = call.has("stream") ? call.value("stream") : QStringLiteral("OUTPUT.264");
    task.file = toFile ? output : QString();
    const ExportText text = target.write(task);
    if (!toFile) {
        return {ExitYes, text.text, noteLines(text.notes)};
    }
    requireOther(output, call.files.first());
    if (!text.secondName.isEmpty()) {
        const QString second = QFileInfo(output).dir().filePath(text.secondName);
        requireOther(second, call.files.first());
        writeTextFile(second, text.secondText);
    }
    writeTextFile(output, text.text);
    return {ExitYes, {}, noteLines(text.notes)};
}
