#include "ValueLists.h"

#include <QtGlobal>

#include <kv_config_gui_mvc/settings_record.h>

namespace value_lists
{

const std::array<RatioText, 4> aspectRatios{{
    {QT_TRANSLATE_NOOP("QObject", "Custom"), KV_MVC_ASPECT_UNSET, KV_MVC_ASPECT_UNSET},
    {QT_TRANSLATE_NOOP("QObject", "1:1"), 1, 1},
    {QT_TRANSLATE_NOOP("QObject", "4:3"), 4, 3},
    {QT_TRANSLATE_NOOP("QObject", "16:9"), 16, 9},
}};

// Only the three NTSC rates are recognised within a tolerance: they are no decimal fractions, and
// files hold them rounded.
constexpr double ntscTolerance = 0.0001;

const std::array<RateText, 14> frameRates{{
    {QT_TRANSLATE_NOOP("QObject", "7.60"), 7.6, 0},
    {QT_TRANSLATE_NOOP("QObject", "9.10"), 9.1, 0},
    {QT_TRANSLATE_NOOP("QObject", "10.00"), 10, 0},
    {QT_TRANSLATE_NOOP("QObject", "12.50"), 12.5, 0},
    {QT_TRANSLATE_NOOP("QObject", "12.80"), 12.8, 0},
    {QT_TRANSLATE_NOOP("QObject", "15.00"), 15, 0},
    {QT_TRANSLATE_NOOP("QObject", "23.98"), 24000.0 / 1001, ntscTolerance},
    {QT_TRANSLATE_NOOP("QObject", "24.00"), 24, 0},
    {QT_TRANSLATE_NOOP("QObject", "25.00"), 25, 0},
    {QT_TRANSLATE_NOOP("QObject", "29.97"), 30000.0 / 1001, ntscTolerance},
    {QT_TRANSLATE_NOOP("QObject", "30.00"), 30, 0},
    {QT_TRANSLATE_NOOP("QObject", "50.00"), 50, 0},
    {QT_TRANSLATE_NOOP("QObject", "59.94"), 60000.0 / 1001, ntscTolerance},
    {QT_TRANSLATE_NOOP("QObject", "60.00"), 60, 0},
}};

const std::array<CodedText, 2> fieldOrders{{
    {QT_TRANSLATE_NOOP("QObject", "Top Field First"), KV_MVC_TOP_FIELD_FIRST},
    {QT_TRANSLATE_NOOP("QObject", "Bot Field First"), KV_MVC_BOTTOM_FIELD_FIRST},
}};

const std::array<CodedText, 3> interlaceModes{{
    {QT_TRANSLATE_NOOP("QObject", "Progressive"), KV_MVC_PROGRESSIVE},
    {QT_TRANSLATE_NOOP("QObject", "Interlaced"), KV_MVC_INTERLACED},
    {QT_TRANSLATE_NOOP("QObject", "MBAFF"), KV_MVC_MBAFF},
}};

const std::array<CodedText, 2> bitDepths{{
    {QT_TRANSLATE_NOOP("QObject", "8 bits"), 8},
    {QT_TRANSLATE_NOOP("QObject", "10 bits"), 10},
}};

const std::array<CodedText, 8> pulldownModes{{
    {QT_TRANSLATE_NOOP("QObject", "Off"), KV_MVC_PULLDOWN_OFF},
    {QT_TRANSLATE_NOOP("QObject", "2:3"), KV_MVC_PULLDOWN_2_3},
    {QT_TRANSLATE_NOOP("QObject", "3:2"), KV_MVC_PULLDOWN_3_2},
    {QT_TRANSLATE_NOOP("QObject", "2:3 P"), KV_MVC_PULLDOWN_2_3_PROGRESSIVE},
    {QT_TRANSLATE_NOOP("QObject", "3:2 P"), KV_MVC_PULLDOWN_3_2_PROGRESSIVE},
    {QT_TRANSLATE_NOOP("QObject", "Auto"), KV_MVC_PULLDOWN_AUTO},
    {QT_TRANSLATE_NOOP("QObject", "2:2"), KV_MVC_PULLDOWN_2_2},
    {QT_TRANSLATE_NOOP("QObject", "3:3"), KV_MVC_PULLDOWN_3_3},
}};

const std::array<CodedText, 4> chromaFormats{{
    {QT_TRANSLATE_NOOP("QObject", "4:0:0"), KV_MVC_CHROMA_400},
    {QT_TRANSLATE_NOOP("QObject", "4:2:0"), KV_MVC_CHROMA_420},
    {QT_TRANSLATE_NOOP("QObject", "4:2:2"), KV_MVC_CHROMA_422},
    {"", KV_MVC_CHROMA_UNNAMED},
}};

const std::array<CodedText, 4> bitrateModes{{
    {QT_TRANSLATE_NOOP("QObject", "Constant Bitrate"), KV_MVC_CONSTANT_BITRATE},
    {QT_TRANSLATE_NOOP("QObject", "Variable Bitrate"), KV_MVC_VARIABLE_BITRATE},
    {QT_TRANSLATE_NOOP("QObject", "Const. Quality - Constant Quantizer"),
     KV_MVC_CONSTANT_QUANTIZER},
    {QT_TRANSLATE_NOOP("QObject", "Const. Quality - Average Quantizer"), KV_MVC_AVERAGE_QUANTIZER},
}};

const std::array<CodedText, 2> macroblockPartitions{{
    {QT_TRANSLATE_NOOP("QObject", "16 x 16"), KV_MVC_PARTITION_16X16},
    {QT_TRANSLATE_NOOP("QObject", "8 x 8"), KV_MVC_PARTITION_8X8},
}};

const std::array<CodedText, 3> subpixelPrecisions{{
    {QT_TRANSLATE_NOOP("QObject", "Full"), KV_MVC_SUBPIXEL_FULL},
    {QT_TRANSLATE_NOOP("QObject", "Half"), KV_MVC_SUBPIXEL_HALF},
    {QT_TRANSLATE_NOOP("QObject", "Quarter"), KV_MVC_SUBPIXEL_QUARTER},
}};

const std::array<CodedText, 2> entropyCoders{{
    {QT_TRANSLATE_NOOP("QObject", "CAVLC"), KV_MVC_CAVLC},
    {QT_TRANSLATE_NOOP("QObject", "CABAC"), KV_MVC_CABAC},
}};

// "Multivew High" is the name as shown and as matched, on the command line, too.
const std::array<CodedText, 3> videoTypes{{
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "Multivew High"), KV_MVC_MULTIVIEW_HIGH},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "Stereo High"), KV_MVC_STEREO_HIGH},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "Blu-ray 3D"), KV_MVC_BLURAY_3D},
}};

const std::array<CodedText, 4> profiles{{
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "Baseline"), KV_MVC_PROFILE_BASELINE},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "Main"), KV_MVC_PROFILE_MAIN},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "High"), KV_MVC_PROFILE_HIGH},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "High 10"), KV_MVC_PROFILE_HIGH_10},
}};

const CodedText profile422{QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "High 422"),
                           KV_MVC_PROFILE_HIGH_422};

// "1.6" is the encoder family's own name; H.264 has no such level.
const std::array<CodedText, 18> levels{{
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "1.0"), 10},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "1.1"), 11},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "1.2"), 12},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "1.3"), 13},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "1.6"), 16},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "2.0"), 20},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "2.1"), 21},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "2.2"), 22},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "3.0"), 30},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "3.1"), 31},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "3.2"), 32},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "4.0"), 40},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "4.1"), 41},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "4.2"), 42},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "5.0"), 50},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "5.1"), 51},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "5.2"), 52},
    {QT_TRANSLATE_NOOP("AVCVideoEncoderDlg", "Auto"), KV_MVC_LEVEL_AUTO},
}};

const std::array<const char*, 4> sceneDetectionModes{"Off", "SCD Fast", "SCD Refined",
                                                     "SCD Regular"};
const std::array<const char*, 3> sampleDepths{"8 bit", "9 bit", "10 bit"};
const std::array<const char*, 2> predictionBases{"field based", "frame based"};
const std::array<const char*, 2> quantizerScales{"linear", "non linear"};
const std::array<const char*, 2> intraCodeTables{"B.14", "B.15"};
const std::array<const char*, 2> scanOrders{"zigzag", "alternate"};
const std::array<const char*, 16> digits{"0", "1", "2",  "3",  "4",  "5",  "6",  "7",
                                         "8", "9", "10", "11", "12", "13", "14", "15"};
const std::array<const char*, 4> occurrences{"Always", "Never", "Not at start", "Only at start"};
const std::array<const char*, 2> scalabilityModes{"Coarse-grain Scalability",
                                                  "Medium-grain Scalability"};

} // namespace value_lists
