#include "ExportTarget.h"
#include "ExportValues.h"
#include "ShellWords.h"
#include "X264Values.h"

namespace
{

using Job = ExportJob;

QString pixelFormat(const Job& job)
{
    const QString chroma = textOf({{KV_MVC_CHROMA_400, "gray"},
                                   {KV_MVC_CHROMA_420, "yuv420p"},
                                   {KV_MVC_CHROMA_422, "yuv422p"}},
                                  job.view.chroma_format);
    const QString depth = textOf({{8, ""}, {10, "10le"}}, job.view.bit_depth_luma);
    return chroma.isNull() || depth.isNull() ? QString() : chroma + depth;
}

QString inputPixelFormat(const Job& job)
{
    return job.isRawInput ? pixelFormat(job) : QString();
}

QString rate(const Job& job)
{
    const Fraction rate = frameRate(job.view);
    return rate.num == 0 ? QString() : fractionText(rate);
}

QString rawRate(const Job& job)
{
    return job.isRawInput ? rate(job) : QString();
}

/// Takes the place of the times that the input has.
QString otherRate(const Job& job)
{
    return job.isRawInput ? QString() : rate(job);
}

QString aspect(const Job& job)
{
    // Without it, parts of more than 100 would be rounded.
    constexpr int largestPart = 65535;
    const Fraction aspect = sampleAspect(job.view);
    return aspect.num == 0
               ? QString()
               : QStringLiteral("%1/%2:max=%3").arg(aspect.num).arg(aspect.den).arg(largestPart);
}

QString fieldOrder(const Job& job)
{
    return !isInterlaced(job.view)                          ? QString()
           : job.view.field_order == KV_MVC_TOP_FIELD_FIRST ? QStringLiteral("tff")
                                                            : QStringLiteral("bff");
}

QString kilobits(const QString& thousands)
{
    return thousands.isNull() ? QString() : thousands + QLatin1Char('k');
}

QString fixedFrames(const Job& job)
{
    const bool isFixed = job.view.fixed_i_position != 0 && job.view.scene_detection != 0;
    return isFixed && job.view.i_interval > 1
               ? QStringLiteral("expr:not(mod(n,%1))").arg(job.view.i_interval)
               : QString();
}

ExportOption at(ExportPlace place, const char* name, QString (*value)(const Job&))
{
    return {place, QString::fromLatin1(name), value};
}

ExportRow option(const char* name, QString (*value)(const Job&), const ExportRow& limitsOf)
{
    return {{at(ExportPlace::Option, name, value)}, limitsOf.limits};
}

/// What is left to x264 goes there by the names that its own program has for it.
ExportTable withParameters(ExportTable table)
{
    for (ExportRow* const row : rowsOf(table)) {
        for (ExportOption& option : row->options) {
            option.place = ExportPlace::Parameter;
            option.name.remove(QLatin1String("--"));
        }
    }
    return table;
}

ExportTable makeTable()
{
    const ExportTable& x264 = x264Table();
    ExportTable table = withParameters(x264);
    table.profile = option("-profile:v", x264::profile, x264.profile);
    table.level = option("-level:v", x264::level, x264.level);
    table.width =
        ExportRow({at(ExportPlace::Input, "-video_size", x264::inputRes)}, x264.width.limits);
    table.frame_rate = ExportRow(
        {at(ExportPlace::Input, "-framerate", rawRate), at(ExportPlace::Input, "-r", otherRate),
         at(ExportPlace::Parameter, "force-cfr", [](const Job&) { return QStringLiteral("1"); })},
        x264.frame_rate.limits);
    // ffmpeg has its frames' order replace x264's.
    table.field_order.options.push_back(at(ExportPlace::Filter, "setfield", fieldOrder));
    table.field_order.limits.clear();
    table.pulldown = unsaid("ffmpeg does not tell x264 of it", [](const Job& job) {
        return job.view.pulldown != KV_MVC_PULLDOWN_OFF;
    });
    table.display_aspect_x = ExportRow({at(ExportPlace::Filter, "setsar", aspect)});
    table.chroma_format = ExportRow({at(ExportPlace::Option, "-pix_fmt", pixelFormat),
                                     at(ExportPlace::Input, "-pixel_format", inputPixelFormat)},
                                    x264.chroma_format.limits);
    table.bit_depth_luma = saidWith({"chroma_format"});
    table.bit_depth_chroma = saidWith({"chroma_format"}, x264.bit_depth_chroma.limits);
    table.bitrate = option(
        "-b:v", [](const Job& job) { return kilobits(x264::bitrate(job)); }, x264.bitrate);
    table.max_bitrate = option(
        "-maxrate", [](const Job& job) { return kilobits(x264::vbvMaxrate(job)); },
        x264.max_bitrate);
    table.bitrate_buffer = option(
        "-bufsize", [](const Job& job) { return kilobits(x264::vbvBufsize(job)); },
        x264.bitrate_buffer);
    table.fixed_i_position = ExportRow({at(ExportPlace::Option, "-force_key_frames", fixedFrames)});
    table.num_threads = option("-threads", x264::threads, x264.num_threads);
    return table;
}

/// The options of a place, each as "name=value".
QStringList assignments(const std::vector<SaidOption>& options, ExportPlace place)
{
    QStringList list;
    for (const SaidOption& option : options) {
        if (option.place == place) {
            list << option.name + QLatin1Char('=') +
                        (option.value.isEmpty() ? QStringLiteral("1") : option.value);
        }
    }
    return list;
}

QStringList wordsOf(const std::vector<SaidOption>& options, ExportPlace place)
{
    QStringList words;
    for (const SaidOption& option : options) {
        if (option.place == place) {
            words << option.name << option.value;
        }
    }
    return words;
}

/// A file whose name could be taken for an option or for an address.
QString asFile(const QString& name)
{
    const bool isAddress = name.contains(QLatin1String("://"));
    return name.contains(QLatin1Char(':')) && !isAddress ? QStringLiteral("file:") + name
                                                         : asFileName(name);
}

} // namespace

const ExportTable& ffmpegTable()
{
    static const ExportTable table = makeTable();
    return table;
}

ExportText writeFfmpeg(const ExportTask& task)
{
    const ExportJob job = jobOf(task, 0);
    const QString& input = task.inputs.constFirst();
    const QString standard = QStringLiteral("-");
    const std::vector<SaidOption> options = optionsFor(ffmpegTable(), job);
    // Standard input may be the script that this is a line of.
    QStringList words = {QStringLiteral("ffmpeg"), QStringLiteral("-nostdin"),
                         QStringLiteral("-y")};
    if (job.isRawInput) {
        words << QStringLiteral("-f") << QStringLiteral("rawvideo");
    } else if (input == standard) {
        words << QStringLiteral("-f") << QStringLiteral("yuv4mpegpipe");
    }
    words << wordsOf(options, ExportPlace::Input) << QStringLiteral("-i") << asFile(input);
    words << QStringLiteral("-map") << QStringLiteral("0:v:0") << QStringLiteral("-c:v")
          << QStringLiteral("libx264") << wordsOf(options, ExportPlace::Option);
    const QStringList filters = assignments(options, ExportPlace::Filter);
    if (!filters.isEmpty()) {
        words << QStringLiteral("-vf") << filters.join(QLatin1Char(','));
    }
    words << QStringLiteral("-x264-params")
          << assignments(options, ExportPlace::Parameter).join(QLatin1Char(':'));
    if (task.stream == standard) {
        words << QStringLiteral("-f") << QStringLiteral("h264");
    }
    words << asFile(task.stream);
    return {shellCommand(words), notesFor(ffmpegTable(), job), {}, {}};
}
