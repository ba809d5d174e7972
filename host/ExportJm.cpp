#include "ExportTarget.h"
#include "ExportValues.h"
#include "JmValues.h"

namespace
{

using Job = ExportJob;
using View = KvMvcViewSettings;

constexpr char noSizeLimit[] = "JM limits no picture's size";
constexpr char onlyTold[] = "JM writes rate and size of the buffer into the stream, but keeps none";
constexpr char noAdaptation[] = "JM adapts no quantizers to the picture";
constexpr char units[] =
    "the stream has rates in units of 64 bit/s and buffers in units of 16 bits";

/// Parameters of one value.
ExportRow parameters(std::initializer_list<const char*> names, QString (*value)(const Job&),
                     std::vector<ExportLimit> limits = {})
{
    std::vector<ExportOption> options;
    for (const char* const name : names) {
        options.push_back({ExportPlace::Main, QString::fromLatin1(name), value});
    }
    return {std::move(options), std::move(limits)};
}

ExportOption main(const char* name, QString (*value)(const Job&))
{
    return {ExportPlace::Main, QString::fromLatin1(name), value};
}

ExportOption second(const char* name, QString (*value)(const Job&))
{
    return {ExportPlace::Second, QString::fromLatin1(name), value};
}

template <int32_t View::*field>
bool isOn(const Job& job)
{
    return job.view.*field != 0;
}

template <int32_t View::*field>
QString switchOf(const Job& job)
{
    return QString::number(isOn<field>(job) ? 1 : 0);
}

QString off(const Job&)
{
    return QStringLiteral("0");
}

ExportRow deblockingRow()
{
    constexpr const char* names[] = {"DFDisableRefISlice", "DFDisableNRefISlice",
                                     "DFDisableRefPSlice", "DFDisableNRefPSlice",
                                     "DFDisableRefBSlice", "DFDisableNRefBSlice"};
    std::vector<ExportOption> options = {main("DFParametersFlag", jm::isDeblockingSaid)};
    for (const char* const name : names) {
        options.push_back(main(name, jm::disableDeblocking));
    }
    for (const char* const name : names) {
        options.push_back(second(name, jm::disableDeblocking));
    }
    return {std::move(options)};
}

} // namespace

const ExportTable& jmTable()
{
    // clang-format off
    static const ExportTable table = {
        .num_views = parameters({"NumberOfViews"}, jm::numberOfViews,
            {{"JM codes the first two views",
              [](const Job& job) { return job.codedViews > 1 && job.record.num_views > 2; }}}),
        .split_views = unsaid("JM writes both views into one stream",
            [](const Job& job) { return job.codedViews > 1 && job.record.split_views != 0; }),
        .video_type = ExportRow({main("SendAUD", jm::sendAud)}, {"profile"}),
        .profile = ExportRow({main("ProfileIDC", jm::profileIdc),
                              main("Transform8x8Mode", jm::transform8x8Mode)},
            {{"JM codes the base view of two in High",
              [](const Job& job) { return job.codedViews > 1 && job.view.profile != KV_MVC_PROFILE_HIGH; }}}),
        .level = parameters({"LevelIDC"}, jm::levelIdc,
            {{"JM takes a level of H.264 and chooses none: 5.1 is taken, 4.1 of interlaced pictures",
              jm::isLevelChosen}}),

        .width = parameters({"SourceWidth", "OutputWidth"}, jm::width),
        .height = parameters({"SourceHeight", "OutputHeight"}, jm::height),
        .frame_rate = ExportRow({main("FrameRate", jm::frameRate),
                                 main("VUI_timing_info_present_flag", jm::timingPresent),
                                 main("VUI_num_units_in_tick", jm::unitsInTick),
                                 main("VUI_time_scale", jm::timeScale),
                                 main("VUI_fixed_frame_rate_flag", jm::timingPresent)},
            {{"it is not set, the stream tells none",
              [](const Job& job) { return frameRate(job.view).num == 0; }}}),
        .interlace_mode = ExportRow({main("PicInterlace", jm::picInterlace),
                                     main("MbInterlace", jm::mbInterlace)}),
        .field_order = unsaid("JM codes the top field first",
            [](const Job& job) { return isInterlaced(job.view) && job.view.field_order != 0; }),
        .pulldown = unsaid("JM repeats no fields or frames", isOn<&View::pulldown>),
        .display_aspect_x = ExportRow({main("VUI_aspect_ratio_info_present_flag", jm::aspectPresent),
                                       main("VUI_aspect_ratio_idc", jm::aspectIdc),
                                       main("VUI_sar_width", jm::sarWidth),
                                       main("VUI_sar_height", jm::sarHeight)}),
        .display_aspect_y = saidWith({"display_aspect_x"}),
        .pixel_aspect_x = saidWith({"display_aspect_x"}),
        .pixel_aspect_y = saidWith({"display_aspect_x"}),
        .chroma_format = parameters({"YUVFormat"}, jm::yuvFormat,
            {{"JM has no such format",
              [](const Job& job) { return job.view.chroma_format == KV_MVC_CHROMA_UNNAMED; }}}),
        .bit_depth_luma = parameters({"SourceBitDepthLuma", "OutputBitDepthLuma"}, jm::depthLuma),
        .bit_depth_chroma = parameters({"SourceBitDepthChroma", "OutputBitDepthChroma"}, jm::depthChroma),

        .bitrate_mode = ExportRow({main("RateControlEnable", jm::rateControlEnable),
                                   main("RCUpdateMode", jm::rcUpdateMode)},
            {{"JM codes with constant quantizers",
              [](const Job& job) { return job.view.bitrate_mode == KV_MVC_AVERAGE_QUANTIZER; }}}),
        .bitrate = parameters({"Bitrate"}, jm::bitrate),
        .max_bitrate = parameters({"VUI_nal_bit_rate_value_minus1"}, jm::hrdRate,
            {{units, jm::isRateRounded}}),
        .bitrate_units = saidWith({"bitrate_buffer"}),
        .bitrate_buffer = parameters({"VUI_nal_cpb_size_value_minus1"}, jm::hrdBuffer,
            {{units, jm::isBufferRounded}}),
        .vbv_initial = unsaid(onlyTold, [](const Job& job) { return signalsBuffer(job.view); }),
        .vbv_target = unsaid(onlyTold, [](const Job& job) { return signalsBuffer(job.view); }),
        .hrd_mode = ExportRow({main("VUI_nal_hrd_parameters_present_flag", jm::hrdPresent),
                               main("VUI_nal_vbr_cbr_flag", jm::hrdIsConstant)},
            {{"there is no buffer without a bit rate",
              [](const Job& job) { return job.view.hrd_mode != 0 && !aimsAtRate(job.view); }}}),
        .frame_size_i = unsaid(noSizeLimit, isOn<&View::frame_size_i>),
        .frame_size_p = unsaid(noSizeLimit, isOn<&View::frame_size_p>),
        .frame_size_b = unsaid(noSizeLimit, isOn<&View::frame_size_b>),
        .frame_size_bref = unsaid(noSizeLimit, isOn<&View::frame_size_bref>),
        .quant_i = parameters({"QPISlice"}, jm::quantizerI),
        .quant_p = parameters({"QPPSlice"}, jm::quantizerP),
        .quant_b = parameters({"QPBSlice"}, jm::quantizerB),
        .quant_min = parameters({"RCMinQPISlice", "RCMinQPPSlice", "RCMinQPBSlice"}, jm::quantizerMin),
        .quant_max = parameters({"RCMaxQPISlice", "RCMaxQPPSlice", "RCMaxQPBSlice"}, jm::quantizerMax),

        .i_interval = parameters({"IntraPeriod"}, jm::intraPeriod),
        .force_i = unsaid("JM codes no I-frames but those of the interval"),
        .fixed_i_position = unsaid("I-frames always keep their distance"),
        .idr_marker = parameters({"IDRPeriod"}, jm::idrPeriod,
            {{"of two views in fields JM makes only the first I-frame a decodable IDR picture",
              jm::lacksIdrPictures}}),
        .scene_detection = unsaid("JM looks for no scene changes",
            [](const Job& job) { return job.view.scene_detection != 0 && predicts(job.view); }),
        .ref_distance = parameters({"NumberBFrames"}, jm::bFrames),
        .adaptive_b = unsaid("JM places B-frames at regular distances",
            [](const Job& job) { return job.view.adaptive_b != 0 && hasBFrames(job.view); }),
        .reference_b = parameters({"BReferencePictures"}, jm::bReferencePictures),
        .pyramid_b = ExportRow({main("HierarchicalCoding", jm::hierarchicalCoding),
                                main("HierarchyLevelQPEnable", off)},
            {{"there is none without B-frames as reference frames",
              [](const Job& job) {
                  return job.view.pyramid_b != 0 && hasBFrames(job.view) && job.view.reference_b == 0;
              }},
             {"JM has one only of three B-frames",
              [](const Job& job) {
                  return job.view.pyramid_b != 0 && hasBFrames(job.view) &&
                         job.view.reference_b != 0 && jm::isPyramidTooSmall(job);
              }}}),

        .num_ref_frames = parameters({"NumberReferenceFrames"}, jm::references,
            {{"JM keeps one at least",
              [](const Job& job) { return job.view.num_ref_frames < 1 && predicts(job.view); }}}),
        .motion_search = parameters({"SearchRange"}, jm::searchRange,
            {{"JM searches one sample at least",
              [](const Job& job) { return job.view.motion_search < 1; }}}),
        .min_partition = ExportRow(
            {main("PSliceSearch16x8", jm::halfBlocks), main("PSliceSearch8x16", jm::halfBlocks),
             main("PSliceSearch8x8", jm::halfBlocks), main("BSliceSearch16x8", jm::halfBlocks),
             main("BSliceSearch8x16", jm::halfBlocks), main("BSliceSearch8x8", jm::halfBlocks),
             main("PSliceSearch8x4", off), main("PSliceSearch4x8", off), main("PSliceSearch4x4", off),
             main("BSliceSearch8x4", off), main("BSliceSearch4x8", off), main("BSliceSearch4x4", off)}),
        .subpixel_mode = parameters({"DisableSubpelME"}, jm::disableSubpelMe,
            {{"JM goes on to quarter samples",
              [](const Job& job) { return job.view.subpixel_mode == KV_MVC_SUBPIXEL_HALF; }}}),
        .weighted_p = parameters({"WeightedPrediction"}, jm::weightedPrediction,
            {{"JM has it only in progressive pictures",
              [](const Job& job) { return job.view.weighted_p != 0 && isInterlaced(job.view); }}}),
        .fast_reference = parameters({"RestrictSearchRange"}, jm::restrictSearchRange),
        .fast_subblock = saidWith({"fast_reference"},
            {{"JM has it only with that of reference frames",
              [](const Job& job) { return job.view.fast_subblock != 0 && job.view.fast_reference == 0; }}}),

        .fast_intra = parameters({"FastCrIntraDecision"}, switchOf<&View::fast_intra>),
        .fast_inter = unsaid("JM has none in the profiles above Main", isOn<&View::fast_inter>),
        .simple_rd = parameters({"RDOptimization"}, jm::rdOptimization,
            {{"JM codes MBAFF frames only with the full one",
              [](const Job& job) {
                  return job.view.simple_rd != 0 && job.view.interlace_mode == KV_MVC_MBAFF;
              }}}),
        .hadamard = ExportRow({main("MEDistortionFPel", jm::fullSampleMeasure),
                               main("MEDistortionHPel", jm::costMeasure),
                               main("MEDistortionQPel", jm::costMeasure),
                               main("MDDistortion", jm::costMeasure)}),
        .brightness = unsaid(noAdaptation, isOn<&View::brightness>),
        .contrast = unsaid(noAdaptation, isOn<&View::contrast>),
        .complexity = unsaid(noAdaptation, isOn<&View::complexity>),

        .entropy_mode = parameters({"SymbolMode"}, switchOf<&View::entropy_mode>),
        .deblocking = deblockingRow(),
        .num_slices = ExportRow({main("SliceMode", jm::sliceMode), main("SliceArgument", jm::sliceArgument)},
            {{"slices of equal size come to another number", jm::isSliceCountMissed}}),
        .multi_slice = saidWith({"num_slices"}),
        .num_threads = unsaid("JM works in one thread",
            [](const Job& job) { return job.view.num_threads > 1; }),
    };
    // clang-format on
    return table;
}
