// The rows; what is asked of them is in SettingsLedgerLookup.cpp.

#include "SettingsLedger.h"

namespace ledger
{

namespace
{

using enum Kind;
using enum Group;

constexpr int largest = 2147483647;

constexpr const char* dialog = "AVCVideoEncoderDlg";
constexpr const char* video = "VideoFormatPage";
constexpr const char* advanced = "AdvancedPage";
constexpr const char* gop = "GOPStructurePage";
constexpr const char* motion = "MotionEstimationPage";
constexpr const char* distortion = "RateDistortionPage";
constexpr const char* misc = "MiscPage";
constexpr const char* views = "ViewsPage";
constexpr const char* view = "View%1Page";

/// In place of a name: there is none.
constexpr const char* none = nullptr;
constexpr int noLock = -1;
constexpr std::nullopt_t differs = std::nullopt;

constexpr double filmRate = 24000.0 / 1001;

// clang-format off
// Member, offset, kind, group, key, lock bit, page, control, label, caption, title,
// two values, what the control shows at least and at most, what the presets have.
const QVector<Setting> rows = {
    {"video_type", 1804, List, Stream, "Video Type", 13, dialog, "presetList",
     "presetLabel", "Preset:", none, {1, "Multivew High"}, {3, "Blu-ray 3D"}, 0, 0, differs},

    {"width", 24, Number, Picture, "Horizontal Size", 14, video, "widthSpin",
     "resolutionLabel", "Resolution", "Picture width", 720, 1280, 16, 4096, 1920},
    {"height", 28, Number, Picture, "Vertical Size", 14, video, "heightSpin",
     "labelX", "x", "Picture height", 576, 720, 16, 4096, 1080},
    {"display_aspect_x", 2888, Aspect, Picture, "Picture Aspect Ratio", noLock, video, "aspectRatioList",
     none, none, "Picture aspect ratio, horizontal part", {-1, "Custom"}, {16, "16:9"}, 0, 0, 16},
    {"display_aspect_y", 2892, Aspect, Picture, none, noLock, none, none,
     none, none, "Picture aspect ratio, vertical part", {-1, "Custom"}, {9, "16:9"}, 0, 0, 9},
    {"frame_rate", 32, FrameRate, Picture, "Frame Rate", 15, video, "framerateList",
     "fpsLabel", "Frame rate", none, {7.6, "7.60"}, {60000.0 / 1001, "59.94"}, 0, 0, filmRate},
    {"pixel_aspect_x", 100, Number, Picture, "Pixel X", 16, video, "pixelXSpin",
     "pixelLabel", "Pixel aspect ratio", "Pixel aspect ratio, horizontal part", 12, -1, -1, 1000, -1},
    {"pixel_aspect_y", 104, Number, Picture, "Pixel Y", 16, video, "pixelYSpin",
     "pixelLabel2", "x", "Pixel aspect ratio, vertical part", 11, -1, -1, 1000, -1},
    {"interlace_mode", 20, List, Picture, "Interlace", noLock, video, "interlaceList",
     "interlaceLabel", "Picture structure", none, {0, "Progressive"}, {2, "MBAFF"}, 0, 0, 0},
    {"field_order", 4112, List, Picture, "Field Order", noLock, video, "fieldOrderList",
     "fieldOrderLabel", "Field order", none, {0, "Top Field First"}, {1, "Bot Field First"}, 0, 0, 0},
    {"pulldown", 1808, List, Picture, "Pulldown", noLock, video, "pulldownList",
     "pulldownLabel", "Pulldown", none, {0, "Off"}, {4, "2:3 P"}, 0, 0, 0},
    {"chroma_format", 2252, List, Picture, "Chroma Format", noLock, video, "chromaList",
     "label", "Chroma format", none, {1, "4:0:0"}, {3, "4:2:2"}, 0, 0, 2},
    {"bit_depth_luma", 2244, List, Picture, "Bit-depth Luma", noLock, video, "bitdepthLList",
     "label_2", "Bit-depth luma", none, {8, "8 bits"}, {10, "10 bits"}, 0, 0, 8},
    {"bit_depth_chroma", 2248, List, Picture, "Bit-depth Chroma", noLock, video, "bitdepthCList",
     "label_3", "Bit-depth chroma", none, {10, "10 bits"}, {8, "8 bits"}, 0, 0, 8},

    {"profile", 0, List, Stream, "Profile", 17, advanced, "profileList",
     "profileLabel", "Profile:", none, {1, "Main"}, {4, "High 10"}, 0, 0, 3},
    {"level", 4, List, Stream, "Level", 18, advanced, "levelList",
     "levelLabel", "Level:", none, {41, "4.1"}, {100, "Auto"}, 0, 0, 41},

    {"scene_detection", 2836, Switch, Gop, "Scene Detection", noLock, gop, "sceneDetectCheck",
     none, "Enable scene detection", none, true, false, 0, 1, 1},
    {"i_interval", 8, Number, Gop, "Interval I", noLock, gop, "iFrameIntervalSpin",
     "pDistanceLabel", "I-frame interval", none, 12, 250, 0, 300, 24},
    {"force_i", 4100, Number, Gop, "Force I", noLock, gop, "iFrameForceSpin",
     "pDistanceLabel_2", "Min. I-frame distance", none, 3, 900, 0, 999, 1},
    {"idr_marker", 4108, Number, Gop, "IDR Marker", noLock, gop, "idrSpin",
     "label", "Mark every", "Mark every so many I-frames as IDR", 5, 99, 0, 99, 1},
    {"fixed_i_position", 4116, Switch, Gop, "Fixed I Position", noLock, gop, "fixedICheck",
     none, "Fixed I-frames distance", none, false, true, 0, 1, 0},
    {"adaptive_b", 4104, Switch, Gop, "Adaptive B", noLock, gop, "adaptiveBCheck",
     none, "Adaptive B-frame placement", none, true, false, 0, 1, 0},
    {"pyramid_b", 2856, Switch, Gop, "Piramyd B", noLock, gop, "piramydBCheck",
     none, "Pyramidal structure for B-frames", none, false, true, 0, 1, 0},
    {"ref_distance", 12, Number, Gop, "B Between", noLock, gop, "bBetweenIPSpin",
     "pDistanceLabel_3", "Number of B-frames", none, {3, 2}, {4, 3}, 0, 3, 3},
    {"reference_b", 2852, Switch, Gop, "Reference B", noLock, gop, "bAsReferenceCheck",
     none, "B-frames as reference frames", none, true, false, 0, 1, 0},

    {"min_partition", 88, List, Motion, "Macroblock Search", noLock, motion, "macroSearchList",
     "macroSearchLabel", "Macroblock search block size", none, {0, "16 x 16"}, {1, "8 x 8"}, 0, 0, 1},
    {"subpixel_mode", 2868, List, Motion, "Subpixel Search", noLock, motion, "subSearchList",
     "label_2", "Subpixel search depth", none, {0, "Full"}, {2, "Quarter"}, 0, 0, 2},
    {"num_ref_frames", 40, Number, Motion, "Num Reference", noLock, motion, "refFramesSpin",
     "label_3", "Reference frames", none, 4, 16, 0, 99, differs},
    {"motion_search", 44, Number, Motion, "Motion Search", noLock, motion, "searchRangeSpin",
     "searchRangeLabel", "Motion vector search range", none, 32, 64, 0, 99, 64},
    {"weighted_p", 2872, Switch, Motion, "Weighted P", noLock, motion, "weightedPCheck",
     none, "Weighted prediction for P-frames", none, false, true, 0, 1, 0},
    {"fast_reference", 4316, Switch, Motion, "Fast Reference", noLock, motion, "fastRefCheck",
     none, "Fast multi-reference frame search", none, true, false, 0, 1, 1},
    {"fast_subblock", 4320, Switch, Motion, "Fast Subblock", noLock, motion, "fastSubCheck",
     none, "Fast sub-block search", none, false, true, 0, 1, 1},

    {"fast_intra", 2880, Switch, Distortion, "Fast Intra", noLock, distortion, "fastIntraCheck",
     none, "Fast intra decisions", none, true, false, 0, 1, 0},
    {"fast_inter", 2884, Switch, Distortion, "Fast Inter", noLock, distortion, "fastInterCheck",
     none, "Fast inter decisions", none, false, true, 0, 1, 0},
    {"simple_rd", 5116, Switch, Distortion, "Simple RD", noLock, distortion, "simpleRDCheck",
     none, "Simplified RD optimization", none, true, false, 0, 1, 0},
    {"hadamard", 96, Switch, Distortion, "Hadamard", noLock, distortion, "hadamardCheck",
     none, " Hadamard transformation", none, false, true, 0, 1, 1},
    {"brightness", 5492, Number, Distortion, "Brightness", noLock, distortion, "brightnessSlider",
     "label", "Brightness based", "Adaptive quantization, brightness based", -40, 15, -100, 100, 0},
    {"contrast", 5496, Number, Distortion, "Contrast", noLock, distortion, "contrastSlider",
     "label_2", "Contrast based", "Adaptive quantization, contrast based", 100, -1, -100, 100, 0},
    {"complexity", 5500, Number, Distortion, "Complexity", noLock, distortion, "complexitySlider",
     "label_3", "Complexity based", "Adaptive quantization, complexity based", 7, -100, -100, 100, 0},

    {"deblocking", 256, Switch, Coding, "Deblocking", noLock, misc, "deblockingCheck",
     none, "Deblocking filter", none, true, false, 0, 1, 1},
    {"entropy_mode", 92, List, Coding, "Entropy", noLock, misc, "entropyList",
     "label", "Entropy coding mode", none, {0, "CAVLC"}, {1, "CABAC"}, 0, 0, 1},
    {"num_threads", 2904, Number, Coding, "Threads", noLock, misc, "threadsSpin",
     "label_2", "Threads", none, 4, 16, 0, 16, 0},
    {"num_slices", 2848, Number, Coding, "Slices", noLock, misc, "slicesSpin",
     "label_3", "Slices per picture", none, 8, 99999, 1, 99999, 4},
    {"multi_slice", 2844, Switch, Coding, none, noLock, none, none,
     none, none, "Several slices", true, false, 0, 1, 1},

    {"num_views", 0, Number, Record, "Number of views", 19, views, "numViewsSpin",
     "profileLabel", "Number of additional views:", none, {4, 3}, {3, 2}, 0, 3, differs},
    {"split_views", 4, Switch, Record, "Split", noLock, views, "splitCheck",
     none, "Split views", none, false, true, 0, 1, 0},

    {"bitrate_mode", 72, List, RateControl, "Bitrate Mode", noLock, view, "bitrateModeList",
     "brModeLabel", "Bitrate mode", none,
     {2, "Variable Bitrate"}, {3, "Const. Quality - Average Quantizer"}, 0, 0, 2},
    {"bitrate", 80, Number, RateControl, "Target Bitrate", noLock, view, "targetRateSpin",
     "targetRateLabel", "Target bitrate (bps)", none, 4000000, 6001, 0, largest, differs},
    {"max_bitrate", 84, Number, RateControl, "Max Bitrate", noLock, view, "maxRateSpin",
     "maxRateLabel", "Max bitrate (bps)", none, 5000000, largest, 0, largest, differs},
    {"bitrate_units", 132, Radio, RateControl, "Units", noLock, view, "units",
     none, none, "Units", 1, 2, 0, 2, 0},
    {"bitrate_buffer", 76, Number, RateControl, "Bitrate Buffer", noLock, view, "bitrateBufferSpin",
     "bitrateBufferLabel", "Bitrate buffer", none, 500000, 8000001, 0, largest, differs},
    // Fullness stays within 100, so that it fits every unit.
    {"vbv_initial", 124, Number, RateControl, "VBV Initial", noLock, view, "vbvInitialSpin",
     "vbvInitialLabel", "VBV buffer initial", none, 70, 21, 0, largest, 50},
    {"vbv_target", 128, Number, RateControl, "VBV Target", noLock, view, "vbvTargetSpin",
     "vbvTargetLabel", "VBV buffer target", none, 80, 100, 0, largest, 50},
    {"hrd_mode", 176, Switch, RateControl, "HRD", noLock, view, "hrdCheck",
     none, "HRD conformance", none, true, false, 0, 1, 1},
    {"frame_size_i", 160, Number, RateControl, "I Size", noLock, view, "iSizeSpin",
     "iSizeLabel", "Maximum I-frame size", none, 90000, 1, 0, largest, 0},
    {"frame_size_p", 164, Number, RateControl, "P Size", noLock, view, "pSizeSpin",
     "pSizeLabel", "Maximum P-frame size", none, 60000, 2, 0, largest, 0},
    {"frame_size_b", 168, Number, RateControl, "B Size", noLock, view, "bSizeSpin",
     "bSizeLabel", "Maximum B-frame size", none, 30000, 3, 0, largest, 0},
    {"frame_size_bref", 172, Number, RateControl, "Br Size", noLock, view, "brSizeSpin",
     "brSizeLabel", "Maximum Br-frame size", none, 40000, largest, 0, largest, 0},
    {"quant_i", 60, Number, RateControl, "I Quantizer", noLock, view, "quantISpin",
     "quantILabel", "Quantizer I-frames", none, 28, 3, 2, 62, 22},
    {"quant_p", 64, Number, RateControl, "P Quantizer", noLock, view, "quantPSpin",
     "quantPLabel", "Quantizer P-frames", none, 30, 4, 2, 62, 24},
    {"quant_b", 68, Number, RateControl, "B Quantizer", noLock, view, "quantBSpin",
     "quantBLabel", "Quantizer B-frames", none, 32, 5, 2, 62, 26},
    {"quant_max", 2920, Number, RateControl, "Max Quantizer", noLock, view, "maxQuantSpin",
     "maxQuantLabel", "Maximum quantizer", none, 45, 62, 2, 62, 51},
    {"quant_min", 2916, Number, RateControl, "Min Quantizer", noLock, view, "minQuantSpin",
     "minQuantLabel", "Minimum quantizer", none, 10, 61, 2, 62, 2},
};
// clang-format on

struct NamedValues {
    QStringList members;
    QVector<NamedValue> values;
};

// In the order of the lists; names of the dialog's own lists come in that of their texts.
const QVector<NamedValues> namedRows = {
    {{QStringLiteral("video_type")},
     {{0, "None", "none", false},
      {3, "Blu-ray 3D", "blu-ray 3d"},
      {1, "Multivew High", "multiview high"},
      {2, "Stereo High", "stereo high"}}},
    {{QStringLiteral("profile")},
     {{0, "Baseline", "baseline"},
      {3, "High", "high"},
      {4, "High 10", "high 10"},
      {5, "High 422", "high 4:2:2", false},
      {1, "Main", "main"}}},
    {{QStringLiteral("level")},
     {{10, "1.0", "1.0"},
      {11, "1.1", "1.1"},
      {12, "1.2", "1.2"},
      {13, "1.3", "1.3"},
      {16, "1.6", "1.6"},
      {20, "2.0", "2.0"},
      {21, "2.1", "2.1"},
      {22, "2.2", "2.2"},
      {30, "3.0", "3.0"},
      {31, "3.1", "3.1"},
      {32, "3.2", "3.2"},
      {40, "4.0", "4.0"},
      {41, "4.1", "4.1"},
      {42, "4.2", "4.2"},
      {50, "5.0", "5.0"},
      {51, "5.1", "5.1"},
      {52, "5.2", "5.2"},
      {100, "Auto", "auto"}}},
    {{QStringLiteral("interlace_mode")},
     {{0, "Progressive", "progressive"}, {1, "Interlaced", "interlaced"}, {2, "MBAFF", "mbaff"}}},
    {{QStringLiteral("field_order")},
     {{0, "Top Field First", "top field first"}, {1, "Bot Field First", "bottom field first"}}},
    {{QStringLiteral("pulldown")},
     {{0, "Off", "off"},
      {1, "2:3", "2:3"},
      {2, "3:2", "3:2"},
      {4, "2:3 P", "2:3 progressive"},
      {5, "3:2 P", "3:2 progressive"},
      {6, "Auto", "auto"},
      {7, "2:2", "2:2"},
      {8, "3:3", "3:3"}}},
    {{QStringLiteral("chroma_format")},
     {{1, "4:0:0", "4:0:0"},
      {2, "4:2:0", "4:2:0"},
      {3, "4:2:2", "4:2:2"},
      {4, "unnamed format", nullptr, false}}},
    {{QStringLiteral("bit_depth_luma"), QStringLiteral("bit_depth_chroma")},
     {{8, "8 bits", nullptr}, {10, "10 bits", nullptr}}},
    {{QStringLiteral("min_partition")}, {{0, "16 x 16", "16x16"}, {1, "8 x 8", "8x8"}}},
    {{QStringLiteral("subpixel_mode")},
     {{0, "Full", "full"}, {1, "Half", "half"}, {2, "Quarter", "quarter"}}},
    {{QStringLiteral("entropy_mode")}, {{0, "CAVLC", "cavlc"}, {1, "CABAC", "cabac"}}},
    {{QStringLiteral("bitrate_mode")},
     {{0, "Constant Bitrate", "constant bitrate"},
      {2, "Variable Bitrate", "variable bitrate"},
      {1, "Const. Quality - Constant Quantizer", "constant quantizer"},
      {3, "Const. Quality - Average Quantizer", "average quantizer"}}},
    {{QStringLiteral("bitrate_units")},
     {{0, "Bytes and percent", "bytes and percent", false},
      {1, "Bits", "bits", false},
      {2, "Bits and 90 kHz", "bits and 90 kHz", false}}},
    // Numbers of which one has a name.
    {{QStringLiteral("display_aspect_x"), QStringLiteral("display_aspect_y")},
     {{-1, "Custom", "custom", false}}},
    {{QStringLiteral("pixel_aspect_x"), QStringLiteral("pixel_aspect_y")},
     {{-1, "derived", "from display", false}}},
    {{QStringLiteral("i_interval"), QStringLiteral("idr_marker")},
     {{0, "0 (first only)", nullptr, false}}},
    {{QStringLiteral("num_threads")}, {{0, "Auto", nullptr, false}}},
    {{QStringLiteral("frame_size_i"), QStringLiteral("frame_size_p"),
      QStringLiteral("frame_size_b"), QStringLiteral("frame_size_bref")},
     {{0, "0 (no limit)", nullptr, false}}},
};

const QVector<NamedValue> switchValues = {{0, "off", "off", false}, {1, "on", "on", false}};

constexpr ReservedRange reserved[] = {
    {16, 4},     {48, 12},     {108, 16},   {136, 24},   {180, 76},   {260, 1544},
    {1812, 432}, {2256, 580},  {2840, 4},   {2860, 8},   {2876, 4},   {2896, 8},
    {2908, 8},   {2924, 1176}, {4120, 196}, {4324, 792}, {5120, 372}, {5504, 2812},
};

} // namespace

const QVector<Setting>& settings()
{
    return rows;
}

const QVector<NamedValue>& namedValues(const QString& member)
{
    static const QVector<NamedValue> numbersOnly;
    for (const NamedValues& row : namedRows) {
        if (row.members.contains(member)) {
            return row.values;
        }
    }
    return setting(member).kind == Switch ? switchValues : numbersOnly;
}

std::span<const ReservedRange> viewReserved()
{
    return reserved;
}

} // namespace ledger
