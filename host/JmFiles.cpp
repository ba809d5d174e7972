#include "ExportTarget.h"
#include "Failure.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cstring>

namespace
{

#ifdef Q_OS_WIN
constexpr char nullDevice[] = "NUL";
#else
constexpr char nullDevice[] = "/dev/null";
#endif

/// A file's name as it is found from the configuration's folder.
QString asParameter(const QString& name, const ExportTask& task)
{
    // The parser knows no way to write these, and takes the last for a frame's number.
    const bool isOdd = std::any_of(name.begin(), name.end(), [](QChar sign) {
        return sign.unicode() < ' ' || QStringLiteral("\"#%").contains(sign);
    });
    if (isOdd) {
        throw Failure(
            QStringLiteral("JM's configuration has no way to name the file '%1'").arg(name));
    }
    const QFileInfo file(name);
    const QString found =
        file.isAbsolute() || task.file.isEmpty()
            ? name
            : QFileInfo(task.file).absoluteDir().relativeFilePath(file.absoluteFilePath());
    return QLatin1Char('"') + found + QLatin1Char('"');
}

void requireRawPictures(const ExportTask& task)
{
    for (const QString& input : task.inputs) {
        if (!isRawPictures(input)) {
            throw Failure(
                QStringLiteral("JM reads planar pictures without a header, not '%1'").arg(input));
        }
    }
}

/// A line of a configuration; blanks around the sign are a part of the syntax.
QString line(const QString& name, const QString& value)
{
    return name.leftJustified(36) + QStringLiteral(" = ") + value + QLatin1Char('\n');
}

QString linesOf(const std::vector<SaidOption>& options, ExportPlace place)
{
    QString text;
    for (const SaidOption& option : options) {
        if (option.place == place) {
            text += line(option.name, option.value);
        }
    }
    return text;
}

/// What JM needs beside the settings, or would else leave in the folder.
QString filesOf(const ExportTask& task, const QString& secondName)
{
    const QString nowhere = QLatin1Char('"') + QLatin1String(nullDevice) + QLatin1Char('"');
    QString text = line(QStringLiteral("InputFile"), asParameter(task.inputs.at(0), task)) +
                   line(QStringLiteral("FramesToBeEncoded"), QStringLiteral("-1")) +
                   line(QStringLiteral("OutputFile"), asParameter(task.stream, task)) +
                   line(QStringLiteral("ReconFile"), QStringLiteral("\"\""));
    for (const char* const name : {"StatsFile", "TraceFile", "LeakyBucketParamFile"}) {
        text += line(QString::fromLatin1(name), nowhere);
    }
    if (!secondName.isEmpty()) {
        text += line(QStringLiteral("View1ConfigFile"),
                     QLatin1Char('"') + secondName + QLatin1Char('"'));
    }
    return text + line(QStringLiteral("EnableVUISupport"), QStringLiteral("1")) +
           line(QStringLiteral("DirectInferenceFlag"), QStringLiteral("1")) +
           line(QStringLiteral("SearchMode"), QStringLiteral("3"));
}

bool isSaidForEachView(const ExportRow& row)
{
    return std::ranges::any_of(row.options, [](const ExportOption& option) {
        return option.place == ExportPlace::Second;
    });
}

/// The settings in which the second view differs without being heard.
QStringList unheardOfSecondView(const ExportTask& task)
{
    const KvMvcViewSettings* const views = task.settings.views;
    QStringList names;
    for (const ExportEntry& entry : entriesOf(jmTable())) {
        const auto at = [&](int view) {
            return reinterpret_cast<const char*>(&views[view]) + entry.setting->offset;
        };
        if (!entry.isOfRecord && !isSaidForEachView(*entry.row) &&
            std::memcmp(at(0), at(1), entry.setting->size()) != 0) {
            names << entry.setting->name;
        }
    }
    return names;
}

} // namespace

ExportText writeJm(const ExportTask& task)
{
    requireRawPictures(task);
    const bool hasSecond = task.views.size() > 1;
    if (hasSecond && task.file.isEmpty()) {
        throw Failure(QStringLiteral("two views have two files: -o names the first"));
    }
    ExportText text;
    if (hasSecond) {
        text.secondName = QFileInfo(task.file).completeBaseName() + QStringLiteral("_view1.cfg");
    }
    const ExportJob job = jobOf(task, 0);
    text.notes = notesFor(jmTable(), job);
    const QString heading =
        QStringLiteral("# Configuration of the reference encoder JM (lencod)%1\n");
    text.text = (heading.arg(QString()) + filesOf(task, text.secondName) +
                 linesOf(optionsFor(jmTable(), job), ExportPlace::Main))
                    .toUtf8();
    if (hasSecond) {
        const ExportJob other = jobOf(task, 1);
        text.secondText = (heading.arg(QStringLiteral(", second view")) +
                           line(QStringLiteral("InputFile"), asParameter(task.inputs.at(1), task)) +
                           line(QStringLiteral("ReconFile"), QStringLiteral("\"\"")) +
                           linesOf(optionsFor(jmTable(), other), ExportPlace::Second))
                              .toUtf8();
        const QStringList unheard = unheardOfSecondView(task);
        if (!unheard.isEmpty()) {
            text.notes << unheard.join(QStringLiteral(", ")) +
                              QStringLiteral(": JM codes the second view as the base view");
        }
    }
    return text;
}
