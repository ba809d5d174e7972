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

// clang-format off
#define KV_MVC_LIST(list) const std::initializer_list<CodedText> itemsOf##list = {
#define KV_MVC_ITEM(code, key, text) {text, code},
#define KV_MVC_LIST_END };
#include <kv_config_gui_mvc/settings_fields.def>
// clang-format on

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
