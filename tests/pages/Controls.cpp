#include "Controls.h"

#include "pages/SettingsPage.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QSpinBox>

namespace
{

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

struct Row {
    const char* page;
    const char* name;
    const char* key;
    QVariant a;
    QVariant b;
    QVariant absent;
};

const char* const video = "VideoFormatPage";
const char* const advanced = "AdvancedPage";
const char* const gop = "GOPStructurePage";
const char* const motion = "MotionEstimationPage";
const char* const distortion = "RateDistortionPage";
const char* const misc = "MiscPage";
const char* const views = "ViewsPage";

QVector<Row> pageRows()
{
    const QString none = text("");
    return {
        {video, "widthSpin", "Horizontal Size", 720, 1280, 16},
        {video, "heightSpin", "Vertical Size", 576, 720, 16},
        {video, "framerateList", "Frame Rate", text("7.60"), text("59.94"), none},
        {video, "aspectRatioList", "Picture Aspect Ratio", text("Custom"), text("16:9"), none},
        {video, "pixelXSpin", "Pixel X", 12, -1, 0},
        {video, "pixelYSpin", "Pixel Y", 11, -1, 0},
        {video, "interlaceList", "Interlace", text("Progressive"), text("MBAFF"), none},
        {video, "fieldOrderList", "Field Order", text("Top Field First"), text("Bot Field First"),
         none},
        {video, "pulldownList", "Pulldown", text("Off"), text("2:3 P"), none},
        {video, "chromaList", "Chroma Format", text("4:0:0"), text("4:2:2"), none},
        {video, "bitdepthLList", "Bit-depth Luma", text("8 bits"), text("10 bits"), none},
        {video, "bitdepthCList", "Bit-depth Chroma", text("10 bits"), text("8 bits"), none},

        {advanced, "profileList", "Profile", text("Main"), text("High 10"), none},
        {advanced, "levelList", "Level", text("4.1"), text("Auto"), none},

        {gop, "sceneDetectCheck", "Scene Detection", true, false, false},
        {gop, "iFrameIntervalSpin", "Interval I", 12, 250, 0},
        {gop, "iFrameForceSpin", "Force I", 3, 900, 0},
        {gop, "idrSpin", "IDR Marker", 5, 99, 0},
        {gop, "fixedICheck", "Fixed I Position", false, true, false},
        {gop, "adaptiveBCheck", "Adaptive B", true, false, false},
        {gop, "piramydBCheck", "Piramyd B", false, true, false},
        {gop, "bBetweenIPSpin", "B Between", 2, 3, 0},
        {gop, "bAsReferenceCheck", "Reference B", true, false, false},

        {motion, "macroSearchList", "Macroblock Search", text("16 x 16"), text("8 x 8"), none},
        {motion, "subSearchList", "Subpixel Search", text("Full"), text("Quarter"), none},
        {motion, "refFramesSpin", "Num Reference", 4, 16, 0},
        {motion, "searchRangeSpin", "Motion Search", 32, 64, 0},
        {motion, "weightedPCheck", "Weighted P", false, true, false},
        {motion, "fastRefCheck", "Fast Reference", true, false, false},
        {motion, "fastSubCheck", "Fast Subblock", false, true, false},

        {distortion, "fastIntraCheck", "Fast Intra", true, false, false},
        {distortion, "fastInterCheck", "Fast Inter", false, true, false},
        {distortion, "simpleRDCheck", "Simple RD", true, false, false},
        {distortion, "hadamardCheck", "Hadamard", false, true, false},
        {distortion, "brightnessSlider", "Brightness", -40, 15, 0},
        {distortion, "contrastSlider", "Contrast", 100, -1, 0},
        {distortion, "complexitySlider", "Complexity", 7, -100, 0},

        {misc, "deblockingCheck", "Deblocking", true, false, false},
        {misc, "entropyList", "Entropy", text("CAVLC"), text("CABAC"), none},
        {misc, "slicesSpin", "Slices", 8, 99999, 1},
        {misc, "threadsSpin", "Threads", 4, 16, 0},

        {views, "numViewsSpin", "Number of views", 3, 2, 0},
        {views, "splitCheck", "Split", false, true, false},
    };
}

// On each of the four view pages; the key with the page's suffix. Fullness stays below 100, so that
// it fits every unit.
QVector<Row> viewRows()
{
    const QString none = text("");
    return {
        {"", "bitrateModeList", "Bitrate Mode", text("Variable Bitrate"),
         text("Const. Quality - Average Quantizer"), none},
        {"", "targetRateSpin", "Target Bitrate", 4000000, 6001, 0},
        {"", "maxRateSpin", "Max Bitrate", 5000000, 2147483647, 0},
        {"", "bitrateBufferSpin", "Bitrate Buffer", 500000, 8000001, 0},
        {"", "iSizeSpin", "I Size", 90000, 1, 0},
        {"", "pSizeSpin", "P Size", 60000, 2, 0},
        {"", "bSizeSpin", "B Size", 30000, 3, 0},
        {"", "brSizeSpin", "Br Size", 40000, 2147483647, 0},
        {"", "quantISpin", "I Quantizer", 28, 3, 2},
        {"", "quantPSpin", "P Quantizer", 30, 4, 2},
        {"", "quantBSpin", "B Quantizer", 32, 5, 2},
        {"", "maxQuantSpin", "Max Quantizer", 51, 62, 2},
        {"", "minQuantSpin", "Min Quantizer", 10, 61, 2},
        {"", "hrdCheck", "HRD", true, false, false},
        {"", "vbvInitialSpin", "VBV Initial", 70, 21, 0},
        {"", "vbvTargetSpin", "VBV Target", 80, 100, 0},
        {"", "units", "Units", 1, 2, 0},
    };
}

constexpr int unitCount = 3;

QAbstractButton* unitButton(const QWidget* window, const QString& page, int id)
{
    return qobject_cast<QAbstractButton*>(
        findOnPage(window, page, QStringLiteral("units%1Radio").arg(id + 1)));
}

} // namespace

const QVector<Control>& controls()
{
    static const QVector<Control> all = [] {
        QVector<Control> list;
        const auto append = [&list](const Row& row, const QString& page, const QString& key) {
            list.append({page, text(row.name), key, row.a, row.b, row.absent});
        };
        for (const Row& row : pageRows())
            append(row, text(row.page), text(row.key));
        for (int view = 0; view < 4; ++view)
            for (const Row& row : viewRows())
                append(row, QStringLiteral("View%1Page").arg(view),
                       QStringLiteral("%1 V%2").arg(text(row.key)).arg(view));
        return list;
    }();
    return all;
}

QString fullName(const Control& control)
{
    return control.page + QLatin1Char('.') + control.name;
}

SettingsPage* pageOf(const QWidget* widget)
{
    for (QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget())
        if (auto* page = qobject_cast<SettingsPage*>(parent))
            return page;
    return nullptr;
}

QWidget* findOnPage(const QWidget* window, const QString& pageClass, const QString& name)
{
    QWidget* found = nullptr;
    for (QWidget* widget : window->findChildren<QWidget*>(name)) {
        const SettingsPage* const page = pageOf(widget);
        if (!page || pageClass != QLatin1String(page->metaObject()->className()))
            continue;
        if (found)
            return nullptr;
        found = widget;
    }
    return found;
}

QVariant shown(const QWidget* window, const Control& control)
{
    if (control.name == QLatin1String("units")) {
        for (int id = 0; id < unitCount; ++id)
            if (unitButton(window, control.page, id)->isChecked())
                return id;
        return -1;
    }
    QWidget* const widget = findOnPage(window, control.page, control.name);
    if (auto* list = qobject_cast<QComboBox*>(widget))
        return list->currentIndex() < 0 ? QStringLiteral("") : list->currentText();
    if (auto* number = qobject_cast<QSpinBox*>(widget))
        return number->value();
    if (auto* slider = qobject_cast<QAbstractSlider*>(widget))
        return slider->value();
    if (auto* button = qobject_cast<QAbstractButton*>(widget))
        return button->isChecked();
    return {};
}

bool isEnabledOnPage(const QWidget* window, const Control& control)
{
    const bool isGroup = control.name == QLatin1String("units");
    const QString name = isGroup ? QStringLiteral("units1Radio") : control.name;
    const QWidget* const widget = findOnPage(window, control.page, name);
    if (!widget || !widget->isEnabledTo(pageOf(widget)))
        return false;
    for (int id = 1; isGroup && id < unitCount; ++id)
        if (!unitButton(window, control.page, id)->isEnabledTo(pageOf(widget)))
            return false;
    return true;
}

ConfigState stateOf(QVariant Control::*value)
{
    ConfigState state;
    for (const Control& control : controls())
        state.insert(control.key, control.*value);
    return state;
}
