#pragma once

#include <QLatin1String>
#include <QString>

/// The keys of ConfigState. They are fixed texts, misspellings included, and are never translated.
namespace keys
{

// Presets: sent by the dialog's preset row.
inline constexpr QLatin1String videoType("Video Type");
inline constexpr QLatin1String restorePreset("Restore Preset");

// Video format.
inline constexpr QLatin1String horizontalSize("Horizontal Size");
inline constexpr QLatin1String verticalSize("Vertical Size");
inline constexpr QLatin1String pixelX("Pixel X");
inline constexpr QLatin1String pixelY("Pixel Y");
inline constexpr QLatin1String pictureAspectRatio("Picture Aspect Ratio");
inline constexpr QLatin1String frameRate("Frame Rate");
inline constexpr QLatin1String interlace("Interlace");
inline constexpr QLatin1String fieldOrder("Field Order");
inline constexpr QLatin1String pulldown("Pulldown");
inline constexpr QLatin1String chromaFormat("Chroma Format");
inline constexpr QLatin1String bitDepthLuma("Bit-depth Luma");
inline constexpr QLatin1String bitDepthChroma("Bit-depth Chroma");

// Profile and level.
inline constexpr QLatin1String profile("Profile");
inline constexpr QLatin1String level("Level");

// GOP structure.
inline constexpr QLatin1String sceneDetection("Scene Detection");
inline constexpr QLatin1String intervalI("Interval I");
inline constexpr QLatin1String forceI("Force I");
inline constexpr QLatin1String idrMarker("IDR Marker");
inline constexpr QLatin1String fixedIPosition("Fixed I Position");
inline constexpr QLatin1String adaptiveB("Adaptive B");
inline constexpr QLatin1String piramydB("Piramyd B");
inline constexpr QLatin1String bBetween("B Between");
inline constexpr QLatin1String referenceB("Reference B");

// Motion estimation.
inline constexpr QLatin1String macroblockSearch("Macroblock Search");
inline constexpr QLatin1String subpixelSearch("Subpixel Search");
inline constexpr QLatin1String numReference("Num Reference");
inline constexpr QLatin1String motionSearch("Motion Search");
inline constexpr QLatin1String weightedP("Weighted P");
inline constexpr QLatin1String fastReference("Fast Reference");
inline constexpr QLatin1String fastSubblock("Fast Subblock");

// Rate distortion.
inline constexpr QLatin1String fastIntra("Fast Intra");
inline constexpr QLatin1String fastInter("Fast Inter");
inline constexpr QLatin1String simpleRd("Simple RD");
inline constexpr QLatin1String hadamard("Hadamard");
inline constexpr QLatin1String brightness("Brightness");
inline constexpr QLatin1String contrast("Contrast");
inline constexpr QLatin1String complexity("Complexity");

// Miscellaneous.
inline constexpr QLatin1String deblocking("Deblocking");
inline constexpr QLatin1String entropy("Entropy");
inline constexpr QLatin1String slices("Slices");
inline constexpr QLatin1String threads("Threads");

// Views.
inline constexpr QLatin1String numberOfViews("Number of views");
inline constexpr QLatin1String split("Split");

// Rate control: base texts, each a key of its own for every view (ofView).
inline constexpr QLatin1String bitrateMode("Bitrate Mode");
inline constexpr QLatin1String targetBitrate("Target Bitrate");
inline constexpr QLatin1String maxBitrate("Max Bitrate");
inline constexpr QLatin1String bitrateBuffer("Bitrate Buffer");
inline constexpr QLatin1String units("Units");
inline constexpr QLatin1String vbvInitial("VBV Initial");
inline constexpr QLatin1String vbvTarget("VBV Target");
inline constexpr QLatin1String iSize("I Size");
inline constexpr QLatin1String pSize("P Size");
inline constexpr QLatin1String bSize("B Size");
inline constexpr QLatin1String brSize("Br Size");
inline constexpr QLatin1String iQuantizer("I Quantizer");
inline constexpr QLatin1String pQuantizer("P Quantizer");
inline constexpr QLatin1String bQuantizer("B Quantizer");
inline constexpr QLatin1String maxQuantizer("Max Quantizer");
inline constexpr QLatin1String minQuantizer("Min Quantizer");
inline constexpr QLatin1String hrd("HRD");

/// The key of a rate control setting of one view, 0 to 3: "HRD" of view 2 is "HRD V2".
inline QString ofView(const QString& base, int view)
{
    return base + QLatin1String(" V") + QString::number(view);
}

} // namespace keys
