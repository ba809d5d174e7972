#pragma once

#include <QtGlobal>

#include <array>

/// The fixed item texts of the encoder family's settings, untranslated, with the values behind
/// them. Vocabulary holds them translated.
namespace value_lists
{

struct CodedText {
    const char* text;
    qint32 code;
};

struct RatioText {
    const char* text;
    qint32 x;
    qint32 y;
};

struct RateText {
    const char* text;
    /// Frames per second.
    double rate;
    /// A stored rate nearer than this is shown as this item; 0: the exact rate only.
    double tolerance;
};

extern const std::array<RatioText, 4> aspectRatios;
extern const std::array<RateText, 14> frameRates;
extern const std::array<CodedText, 2> fieldOrders;
extern const std::array<CodedText, 3> interlaceModes;
extern const std::array<CodedText, 2> bitDepths;
extern const std::array<CodedText, 8> pulldownModes;
/// The last item is the unnamed fourth format.
extern const std::array<CodedText, 4> chromaFormats;
extern const std::array<CodedText, 4> bitrateModes;
extern const std::array<CodedText, 2> macroblockPartitions;
extern const std::array<CodedText, 3> subpixelPrecisions;
extern const std::array<CodedText, 2> entropyCoders;

// Names that the dialog offers in the order of their translated texts.
extern const std::array<CodedText, 3> videoTypes;
extern const std::array<CodedText, 4> profiles;
/// Offered only while the 4:2:2 switch is on.
extern const CodedText profile422;
extern const std::array<CodedText, 18> levels;

// The rest of the encoder family's vocabulary, which no setting of this dialog uses.
extern const std::array<const char*, 4> sceneDetectionModes;
extern const std::array<const char*, 3> sampleDepths;
extern const std::array<const char*, 2> predictionBases;
extern const std::array<const char*, 2> quantizerScales;
extern const std::array<const char*, 2> intraCodeTables;
extern const std::array<const char*, 2> scanOrders;
extern const std::array<const char*, 16> digits;
extern const std::array<const char*, 4> occurrences;
extern const std::array<const char*, 2> scalabilityModes;

} // namespace value_lists
