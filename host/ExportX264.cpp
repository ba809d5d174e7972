#include "ExportTarget.h"
#include "ExportValues.h"
#include "ShellWords.h"
#include "X264Values.h"

#include <cmath>

namespace
{

using Job = ExportJob;
using View = KvMvcViewSettings;

constexpr char rounded[] = "rates and buffers are rounded to thousands of bits";
constexpr char noSizeLimit[] = "x264 limits no picture's size";
constexpr char nearQuantizers[] = "x264 keeps it within 19 of that of P-frames";
constexpr char adaptsToComplexity[] = "x264 adapts quantizers only to complexity";

ExportOption option(const char* name, QString (*value)(const Job&))
{
    return {ExportPlace::Option, QString::fromLatin1(name), value};
}

template <int32_t View::*field>
bool isOn(const Job& job)
{
    return job.view.*field != 0;
}

template <int32_t View::*field>
bool isOff(const Job& job)
{
    return job.view.*field == 0;
}

/// The option's name alone where the switch is on; where it is off.
template <int32_t View::*field>
QString flagIfOn(const Job& job)
{
    return isOn<field>(job) ? QStringLiteral("") : QString();
}

template <int32_t View::*field>
QString flagIfOff(const Job& job)
{
    return isOff<field>(job) ? QStringLiteral("") : QString();
}

/// Whether pictures are told at a scene change, and when.
bool isSceneLimited(const Job& job)
{
    return job.view.scene_detection != 0 && predicts(job.view);
}

bool isFarQuantizer(const Job& job, qint32 quantizer)
{
    constexpr int farthest = 19; // of a ratio of 10 at most
    return x264::isQuantizerMode(job) && std::abs(quantizer - job.view.quant_p) > farthest;
}

bool isRounded(qint64 bits)
{
    return bits % 1000 != 0;
}

bool hasFullnessAim(const Job& job)
{
    constexpr double middle = 0.5;
    constexpr double tolerance = 0.005;
    return keepsBuffer(job.view) &&
           std::abs(bufferShare(job.view, job.view.vbv_target) - middle) > tolerance;
}

} // namespace

const ExportTable& x264Table()
{
    // clang-format off
    static const ExportTable table = {
        .num_views = unsaid("x264 codes one view, the base view unless --view names another",
            [](const Job& job) { return job.record.num_views > 1; }),
        .split_views = unsaid("x264 writes a view into a stream of its own",
            [](const Job& job) { return job.record.num_views > 1 && job.record.split_views == 0; }),
        .video_type = ExportRow({option("--bluray-compat", x264::blurayCompat)},
            {{"x264 writes no multiview profile", nullptr}}),
        .profile = ExportRow({option("--profile", x264::profile)},
            {{"x264 writes the lowest profile that has what is used", x264::isLowerProfileWritten}}),
        .level = ExportRow({option("--level", x264::level)},
            {{"it is no level of H.264, x264 chooses one",
              [](const Job& job) { return isOddLevel(job.view); }}}),

        .width = ExportRow({option("--input-res", x264::inputRes)},
            {{"an input that tells its format has its own size", nullptr}}),
        .height = saidWith({"width"}),
        .frame_rate = ExportRow({option("--fps", x264::fps)},
            {{"it is not set, the input's or 25 is taken",
              [](const Job& job) { return frameRate(job.view).num == 0; }}}),
        .interlace_mode = saidWith({"field_order"},
            {{"x264 codes MBAFF frames, not fields",
              [](const Job& job) { return job.view.interlace_mode == KV_MVC_INTERLACED; }}}),
        .field_order = ExportRow({option("--tff", x264::tff), option("--bff", x264::bff)},
            {{"in progressive pictures x264 starts with the top field",
              [](const Job& job) {
                  return !isInterlaced(job.view) && job.view.field_order != 0 &&
                         x264::pulldown(job) == QLatin1String("32");
              }}}),
        .pulldown = ExportRow({option("--pulldown", x264::pulldown)},
            {{"x264 starts with the frame of three fields",
              [](const Job& job) { return job.view.pulldown == KV_MVC_PULLDOWN_2_3; }},
             {"x264 starts with the frame that is shown twice",
              [](const Job& job) { return job.view.pulldown == KV_MVC_PULLDOWN_3_2_PROGRESSIVE; }},
             {"x264 chooses none by itself",
              [](const Job& job) { return job.view.pulldown == KV_MVC_PULLDOWN_AUTO; }}}),
        .display_aspect_x = ExportRow({option("--sar", x264::sar)}),
        .display_aspect_y = saidWith({"display_aspect_x"}),
        .pixel_aspect_x = saidWith({"display_aspect_x"}),
        .pixel_aspect_y = saidWith({"display_aspect_x"}),
        .chroma_format = ExportRow({option("--output-csp", x264::outputCsp),
                                    option("--input-csp", x264::inputCsp)},
            {{"x264 has no such format",
              [](const Job& job) { return job.view.chroma_format == KV_MVC_CHROMA_UNNAMED; }}}),
        .bit_depth_luma = ExportRow({option("--output-depth", x264::outputDepth),
                                     option("--input-depth", x264::inputDepth)}),
        .bit_depth_chroma = saidWith({"bit_depth_luma"},
            {{"x264 codes chroma in as many bits as luma",
              [](const Job& job) {
                  return job.view.chroma_format != KV_MVC_CHROMA_400 &&
                         job.view.bit_depth_chroma != job.view.bit_depth_luma;
              }}}),

        .bitrate_mode = saidWith({"bitrate", "hrd_mode", "quant_p"}),
        .bitrate = ExportRow({option("--bitrate", x264::bitrate)},
            {{rounded, [](const Job& job) { return aimsAtRate(job.view) && isRounded(job.view.bitrate); }}}),
        .max_bitrate = ExportRow({option("--vbv-maxrate", x264::vbvMaxrate)},
            {{rounded, [](const Job& job) {
                  return job.view.bitrate_mode == KV_MVC_VARIABLE_BITRATE &&
                         keepsBuffer(job.view) && isRounded(bufferRate(job.view));
              }}}),
        .bitrate_units = saidWith({"bitrate_buffer", "vbv_initial"}),
        .bitrate_buffer = ExportRow({option("--vbv-bufsize", x264::vbvBufsize)},
            {{rounded, [](const Job& job) { return keepsBuffer(job.view) && isRounded(bufferBits(job.view)); }}}),
        .vbv_initial = ExportRow({option("--vbv-init", x264::vbvInit)}),
        .vbv_target = unsaid("x264 keeps the buffer as full as it finds best", hasFullnessAim),
        .hrd_mode = ExportRow({option("--nal-hrd", x264::nalHrd)},
            {{"no buffer is kept without a bit rate",
              [](const Job& job) { return job.view.hrd_mode != 0 && x264::isQuantizerMode(job); }}}),
        .frame_size_i = unsaid(noSizeLimit, isOn<&View::frame_size_i>),
        .frame_size_p = unsaid(noSizeLimit, isOn<&View::frame_size_p>),
        .frame_size_b = unsaid(noSizeLimit, isOn<&View::frame_size_b>),
        .frame_size_bref = unsaid(noSizeLimit, isOn<&View::frame_size_bref>),
        .quant_i = ExportRow({option("--ipratio", x264::ipratio)},
            {{nearQuantizers, [](const Job& job) { return isFarQuantizer(job, job.view.quant_i); }}}),
        .quant_p = ExportRow({option("--qp", x264::qp), option("--crf", x264::crf)},
            {{"the lowest is lossless coding, the next is taken", x264::isLosslessQuantizer}}),
        .quant_b = ExportRow({option("--pbratio", x264::pbratio)},
            {{nearQuantizers, [](const Job& job) { return isFarQuantizer(job, job.view.quant_b); }}}),
        .quant_min = ExportRow({option("--qpmin", x264::qpmin)}),
        .quant_max = ExportRow({option("--qpmax", x264::qpmax)}),

        .i_interval = ExportRow({option("--keyint", x264::keyint)}),
        .force_i = ExportRow({option("--min-keyint", x264::minKeyint)},
            {{"at a nearer scene change x264 codes an I-frame that is no IDR picture",
              [](const Job& job) { return isSceneLimited(job) && job.view.force_i > 1; }},
             {"x264 takes half the interval at most",
              [](const Job& job) {
                  return isSceneLimited(job) && job.view.i_interval > 0 &&
                         job.view.force_i > job.view.i_interval / 2 + 1;
              }}}),
        .fixed_i_position = unsaid("x264 counts the interval from a scene change on",
            [](const Job& job) {
                return isSceneLimited(job) && job.view.fixed_i_position != 0 && job.view.i_interval > 0;
            }),
        .idr_marker = ExportRow({option("--open-gop", x264::openGop)},
            {{"x264 makes all I-frames of the interval IDR pictures, or the first alone; it is all",
              [](const Job& job) { return job.view.idr_marker > 1 && job.view.i_interval > 0; }},
             {"without B-frames all I-frames of the interval are IDR pictures",
              [](const Job& job) {
                  return job.view.idr_marker == 0 && job.view.i_interval > 0 && !hasBFrames(job.view);
              }}}),
        .scene_detection = ExportRow({option("--no-scenecut", flagIfOff<&View::scene_detection>)}),
        .ref_distance = ExportRow({option("--bframes", x264::bframes)}),
        .adaptive_b = ExportRow({option("--b-adapt", x264::bAdapt)}),
        .reference_b = saidWith({"pyramid_b"},
            {{"x264 has them only where two B-frames or more are in a row",
              [](const Job& job) {
                  return job.view.reference_b != 0 && hasBFrames(job.view) && !x264::hasReferenceB(job);
              }},
             {"x264 has them only in a pyramid, of three B-frames or more",
              [](const Job& job) {
                  return x264::hasReferenceB(job) && job.view.ref_distance > 3 && job.view.pyramid_b == 0;
              }}}),
        .pyramid_b = ExportRow({option("--b-pyramid", x264::bPyramid)},
            {{"there is none without B-frames as reference frames",
              [](const Job& job) {
                  return job.view.pyramid_b != 0 && hasBFrames(job.view) && job.view.reference_b == 0;
              }},
             {"x264 has one only of three B-frames or more",
              [](const Job& job) {
                  return job.view.pyramid_b != 0 && x264::hasReferenceB(job) && job.view.ref_distance <= 3;
              }}}),

        .num_ref_frames = ExportRow({option("--ref", x264::ref)},
            {{"x264 keeps more of them, for its B-frames", x264::needsMoreReferences}}),
        .motion_search = ExportRow({option("--merange", x264::merange), option("--me", x264::me)},
            {{"x264 searches 4 samples at least",
              [](const Job& job) { return job.view.motion_search < 4; }}}),
        .min_partition = ExportRow({option("--partitions", x264::partitions)}),
        .subpixel_mode = ExportRow({option("--subme", x264::subme)},
            {{"x264 goes on to quarter samples",
              [](const Job& job) { return job.view.subpixel_mode == KV_MVC_SUBPIXEL_HALF; }}}),
        .weighted_p = ExportRow({option("--weightp", x264::weightp)},
            {{"x264 has it only in progressive pictures",
              [](const Job& job) { return job.view.weighted_p != 0 && isInterlaced(job.view); }}}),
        .fast_reference = ExportRow({option("--no-mixed-refs", flagIfOn<&View::fast_reference>)}),
        .fast_subblock = unsaid("x264 always ends the search of sub-blocks early",
            isOff<&View::fast_subblock>),

        .fast_intra = unsaid("x264 has no faster intra decisions by themselves",
            isOn<&View::fast_intra>),
        .fast_inter = ExportRow({option("--no-fast-pskip", flagIfOff<&View::fast_inter>)}),
        .simple_rd = ExportRow({option("--trellis", x264::trellis)}, {"subpixel_mode"}),
        .hadamard = saidWith({"subpixel_mode"}),
        .brightness = unsaid(adaptsToComplexity, isOn<&View::brightness>),
        .contrast = unsaid(adaptsToComplexity, isOn<&View::contrast>),
        .complexity = ExportRow({option("--aq-mode", x264::aqMode), option("--aq-strength", x264::aqStrength)},
            {{"x264 has no negative strength",
              [](const Job& job) { return job.view.complexity < 0; }}}),

        .entropy_mode = ExportRow({option("--no-cabac", x264::noCabac)}),
        .deblocking = ExportRow({option("--no-deblock", flagIfOff<&View::deblocking>)}),
        .num_slices = ExportRow({option("--slices", x264::slices)}),
        .multi_slice = saidWith({"num_slices"}),
        .num_threads = ExportRow({option("--threads", x264::threads)}),
    };
    // clang-format on
    return table;
}

ExportText writeX264(const ExportTask& task)
{
    const ExportJob job = jobOf(task, 0);
    const QString& input = task.inputs.constFirst();
    QStringList words = {QStringLiteral("x264")};
    if (job.isRawInput) {
        words << QStringLiteral("--demuxer") << QStringLiteral("raw");
    } else if (input == QLatin1String("-")) {
        words << QStringLiteral("--demuxer") << QStringLiteral("y4m");
    }
    for (const SaidOption& said : optionsFor(x264Table(), job)) {
        words << said.name;
        if (!said.value.isEmpty()) {
            words << said.value;
        }
    }
    words << QStringLiteral("-o") << task.stream << asFileName(input);
    return {shellCommand(words), notesFor(x264Table(), job), {}, {}};
}
