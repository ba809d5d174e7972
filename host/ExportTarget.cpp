#include "ExportTarget.h"

#include <QFileInfo>

#include <algorithm>

namespace
{

constexpr char x264Description[] =
    "A command line of the `x264` program, for one view. An input with the suffix `.yuv` or "
    "`.raw`,\n"
    "or without one, has raw planar pictures in the format of the settings, of 16 bits a sample\n"
    "where these have 10; any other tells its format, and standard input is YUV4MPEG2.";

constexpr char ffmpegDescription[] =
    "A command line of the `ffmpeg` program, which codes one view with libx264. Inputs are those "
    "of\n"
    "x264, and of the streams in one the first with video is taken. What is written is the video\n"
    "alone, in the container that its name asks for; a file of that name is replaced.";

constexpr char jmDescription[] = "The configuration of `lencod`, the encoder of the standard's "
                                 "reference software, for `lencod -d\n"
                                 "film.cfg` in the folder of that file. It codes two views, with "
                                 "prediction between them, or with\n"
                                 "`--view` one. The second view has a file of its own beside it, "
                                 "`film_view1.cfg`. Inputs are raw\n"
                                 "planar pictures. Names of files are told from that folder.";

} // namespace

const std::vector<ExportTarget>& exportTargets()
{
    static const QStringList scripts = {QStringLiteral("sh"), QStringLiteral("txt"), QString()};
    static const std::vector<ExportTarget> targets = {
        {"x264", "x264", x264Description, x264Table, writeX264, scripts, 1},
        {"ffmpeg", "ffmpeg", ffmpegDescription, ffmpegTable, writeFfmpeg, scripts, 1},
        {"jm", "jm", jmDescription, jmTable, writeJm, {QStringLiteral("cfg")}, 2},
    };
    return targets;
}

ExportJob jobOf(const ExportTask& task, int view)
{
    // Views beyond the record's are like the last of them.
    const int held =
        std::min<int>(task.views.at(static_cast<std::size_t>(view)), KV_MVC_RECORD_VIEWS - 1);
    return {task.settings, task.settings.views[held], static_cast<int>(task.views.size()),
            isRawPictures(task.inputs.at(view))};
}

bool isRawPictures(const QString& input)
{
    const QString suffix = QFileInfo(input).suffix().toLower();
    return input != QLatin1String("-") &&
           QStringList{QString(), QStringLiteral("yuv"), QStringLiteral("raw")}.contains(suffix);
}
