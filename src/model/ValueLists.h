#pragma once

#include <QtGlobal>

#include <array>
#include <initializer_list>

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

// The items of the lists in the public field table, `itemsOf` and the list's name; none for a list
// that the dialog does not show.
#define KV_MVC_LIST(list) extern const std::initializer_list<CodedText> itemsOf##list;
#include <kv_config_gui_mvc/settings_fields.def>

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
