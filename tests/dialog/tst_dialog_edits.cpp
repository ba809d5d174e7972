// Every setting, turned by its real control: exactly these bytes of the record change, in exactly
// these views.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

namespace
{

/// How a control is turned: `Choose` an item, `Type` a number, `Press` a switch or radio button,
/// `Page` a slider upwards.
enum class Turn { Choose, Type, Press, Page };

} // namespace

Q_DECLARE_METATYPE(Turn)

class TestDialogEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void control_data();
    void control();
    void rateControl_data();
    void rateControl();
    void everyKeyHasARow();
    void customFrameRateIsStored();
    void onlyOneCustomFrameRateIsListed();
    void viewsBeyondTheRecordStayOutOfIt();
    void viewsBeyondTheRecordAreLikeTheSecond();

private:
    static void turn(const QWidget* dialog, const QString& page, const QString& name, Turn how,
                     const QString& what);
};

void TestDialogEdits::control_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Turn>("how");
    QTest::addColumn<QString>("what");
    QTest::addColumn<Cells>("changes");
    QTest::addColumn<Cells>("given");

    struct Place {
        const char* page;
        const char* name;
    };
    const auto row = [](const char* key, Place place, Turn how, const char* what,
                        const Cells& changes, const Cells& given = {}) {
        QTest::addRow("%s: %s", key, what)
            << QString::fromLatin1(place.page) << QString::fromLatin1(place.name) << how
            << QString::fromLatin1(what) << changes << given;
    };
    const auto inBoth = [](const Cells& ofView0) {
        Cells cells = ofView0;
        for (Cell cell : ofView0) {
            cell.view = 1;
            cells += cell;
        }
        return cells;
    };

    const Place width = {"VideoFormatPage", "widthSpin"};
    row("Horizontal Size", width, Turn::Type, "1280", inBoth({{0, 24, 1280}}));
    row("Horizontal Size", width, Turn::Type, "16", inBoth({{0, 24, 16}}));
    row("Vertical Size", {"VideoFormatPage", "heightSpin"}, Turn::Type, "4096",
        inBoth({{0, 28, 4096}}));
    row("Pixel X", {"VideoFormatPage", "pixelXSpin"}, Turn::Type, "7", inBoth({{0, 100, 7}}));
    row("Pixel Y", {"VideoFormatPage", "pixelYSpin"}, Turn::Type, "-1", inBoth({{0, 104, -1}}));

    const Place aspect = {"VideoFormatPage", "aspectRatioList"};
    row("Picture Aspect Ratio", aspect, Turn::Choose, "Custom",
        inBoth({{0, 2888, -1}, {0, 2892, -1}}), inBoth({{0, 2888, 5}, {0, 2892, 4}}));
    row("Picture Aspect Ratio", aspect, Turn::Choose, "1:1",
        inBoth({{0, 2888, 1}, {0, 2892, 1}, {0, 100, -1}, {0, 104, -1}}));
    row("Picture Aspect Ratio", aspect, Turn::Choose, "4:3",
        inBoth({{0, 2888, 4}, {0, 2892, 3}, {0, 100, -1}, {0, 104, -1}}));
    row("Picture Aspect Ratio", aspect, Turn::Choose, "16:9",
        inBoth({{0, 2888, 16}, {0, 2892, 9}, {0, 100, -1}, {0, 104, -1}}));

    const Place frameRate = {"VideoFormatPage", "framerateList"};
    const struct {
        const char* text;
        double rate;
    } rates[] = {{"7.60", 7.6},
                 {"9.10", 9.1},
                 {"10.00", 10.0},
                 {"12.50", 12.5},
                 {"12.80", 12.8},
                 {"15.00", 15.0},
                 {"23.98", 24000.0 / 1001.0},
                 {"24.00", 24.0},
                 {"25.00", 25.0},
                 {"29.97", 30000.0 / 1001.0},
                 {"30.00", 30.0},
                 {"50.00", 50.0},
                 {"59.94", 60000.0 / 1001.0},
                 {"60.00", 60.0}};
    for (const auto& rate : rates)
        row("Frame Rate", frameRate, Turn::Choose, rate.text, inBoth({{0, 32, rate.rate}}),
            inBoth({{0, 32, 0.0}}));

    struct Coded {
        const char* text;
        int code;
    };
    // Given is a code that the list does not have, so that every item is a change.
    const auto list = [&](const char* key, Place place, int offset,
                          const std::initializer_list<Coded>& items) {
        for (const Coded& item : items)
            row(key, place, Turn::Choose, item.text, inBoth({{0, offset, item.code}}),
                inBoth({{0, offset, 97}}));
    };
    list("Interlace", {"VideoFormatPage", "interlaceList"}, 20,
         {{"Progressive", 0}, {"Interlaced", 1}, {"MBAFF", 2}});
    list("Field Order", {"VideoFormatPage", "fieldOrderList"}, 4112,
         {{"Top Field First", 0}, {"Bot Field First", 1}});
    list("Pulldown", {"VideoFormatPage", "pulldownList"}, 1808,
         {{"Off", 0},
          {"2:3", 1},
          {"3:2", 2},
          {"2:3 P", 4},
          {"3:2 P", 5},
          {"Auto", 6},
          {"2:2", 7},
          {"3:3", 8}});
    list("Chroma Format", {"VideoFormatPage", "chromaList"}, 2252,
         {{"4:0:0", 1}, {"4:2:0", 2}, {"4:2:2", 3}});
    list("Bit-depth Luma", {"VideoFormatPage", "bitdepthLList"}, 2244,
         {{"8 bits", 8}, {"10 bits", 10}});
    list("Bit-depth Chroma", {"VideoFormatPage", "bitdepthCList"}, 2248,
         {{"8 bits", 8}, {"10 bits", 10}});
    list("Profile", {"AdvancedPage", "profileList"}, 0,
         {{"Baseline", 0}, {"Main", 1}, {"High", 3}, {"High 10", 4}});
    list("Level", {"AdvancedPage", "levelList"}, 4,
         {{"1.0", 10},
          {"1.1", 11},
          {"1.2", 12},
          {"1.3", 13},
          {"1.6", 16},
          {"2.0", 20},
          {"2.1", 21},
          {"2.2", 22},
          {"3.0", 30},
          {"3.1", 31},
          {"3.2", 32},
          {"4.0", 40},
          {"4.1", 41},
          {"4.2", 42},
          {"5.0", 50},
          {"5.1", 51},
          {"5.2", 52},
          {"Auto", 100}});
    list("Macroblock Search", {"MotionEstimationPage", "macroSearchList"}, 88,
         {{"16 x 16", 0}, {"8 x 8", 1}});
    list("Subpixel Search", {"MotionEstimationPage", "subSearchList"}, 2868,
         {{"Full", 0}, {"Half", 1}, {"Quarter", 2}});
    list("Entropy", {"MiscPage", "entropyList"}, 92, {{"CAVLC", 0}, {"CABAC", 1}});

    const struct {
        const char* key;
        Place place;
        int offset;
    } switches[] = {
        {"Scene Detection", {"GOPStructurePage", "sceneDetectCheck"}, 2836},
        {"Fixed I Position", {"GOPStructurePage", "fixedICheck"}, 4116},
        {"Adaptive B", {"GOPStructurePage", "adaptiveBCheck"}, 4104},
        {"Piramyd B", {"GOPStructurePage", "piramydBCheck"}, 2856},
        {"Reference B", {"GOPStructurePage", "bAsReferenceCheck"}, 2852},
        {"Weighted P", {"MotionEstimationPage", "weightedPCheck"}, 2872},
        {"Fast Reference", {"MotionEstimationPage", "fastRefCheck"}, 4316},
        {"Fast Subblock", {"MotionEstimationPage", "fastSubCheck"}, 4320},
        {"Fast Intra", {"RateDistortionPage", "fastIntraCheck"}, 2880},
        {"Fast Inter", {"RateDistortionPage", "fastInterCheck"}, 2884},
        {"Simple RD", {"RateDistortionPage", "simpleRDCheck"}, 5116},
        {"Hadamard", {"RateDistortionPage", "hadamardCheck"}, 96},
        {"Deblocking", {"MiscPage", "deblockingCheck"}, 256},
    };
    for (const auto& item : switches)
        row(item.key, item.place, Turn::Press, "on", inBoth({{0, item.offset, 1}}));

    const struct {
        const char* key;
        Place place;
        int offset;
    } sliders[] = {{"Brightness", {"RateDistortionPage", "brightnessSlider"}, 5492},
                   {"Contrast", {"RateDistortionPage", "contrastSlider"}, 5496},
                   {"Complexity", {"RateDistortionPage", "complexitySlider"}, 5500}};
    for (const auto& item : sliders)
        row(item.key, item.place, Turn::Page, "20", inBoth({{0, item.offset, 20}}));

    row("Interval I", {"GOPStructurePage", "iFrameIntervalSpin"}, Turn::Type, "250",
        inBoth({{0, 8, 250}}));
    row("Force I", {"GOPStructurePage", "iFrameForceSpin"}, Turn::Type, "0",
        inBoth({{0, 4100, 0}}));
    row("IDR Marker", {"GOPStructurePage", "idrSpin"}, Turn::Type, "99", inBoth({{0, 4108, 99}}));
    row("B Between", {"GOPStructurePage", "bBetweenIPSpin"}, Turn::Type, "0", inBoth({{0, 12, 1}}));
    row("B Between", {"GOPStructurePage", "bBetweenIPSpin"}, Turn::Type, "3", inBoth({{0, 12, 4}}));
    row("Num Reference", {"MotionEstimationPage", "refFramesSpin"}, Turn::Type, "16",
        inBoth({{0, 40, 16}}));
    row("Motion Search", {"MotionEstimationPage", "searchRangeSpin"}, Turn::Type, "99",
        inBoth({{0, 44, 99}}));
    row("Slices", {"MiscPage", "slicesSpin"}, Turn::Type, "1",
        inBoth({{0, 2848, 1}, {0, 2844, 0}}));
    row("Slices", {"MiscPage", "slicesSpin"}, Turn::Type, "99999", inBoth({{0, 2848, 99999}}));
    row("Threads", {"MiscPage", "threadsSpin"}, Turn::Type, "16", inBoth({{0, 2904, 16}}));
    row("Threads", {"MiscPage", "threadsSpin"}, Turn::Type, "0", inBoth({{0, 2904, 0}}));

    row("Number of views", {"ViewsPage", "numViewsSpin"}, Turn::Type, "0", {{Cell::Record, 0, 1}});
    row("Number of views", {"ViewsPage", "numViewsSpin"}, Turn::Type, "3", {{Cell::Record, 0, 4}});
    row("Split", {"ViewsPage", "splitCheck"}, Turn::Press, "on", {{Cell::Record, 4, 1}});

    const Place presetList = {"AVCVideoEncoderDlg", "presetList"};
    row("Video Type", presetList, Turn::Choose, "Blu-ray 3D", inBoth({{0, 1804, 3}}));
    row("Video Type", presetList, Turn::Choose, "Stereo High", inBoth({{0, 1804, 2}}));
    row("Video Type", presetList, Turn::Choose, "Multivew High", inBoth({{0, 1804, 1}}),
        inBoth({{0, 1804, 0}}));
    row("Restore Preset", {"AVCVideoEncoderDlg", "presetButton"}, Turn::Press, "on", {{1, 1804, 1}},
        {{1, 1804, 2}});
}

void TestDialogEdits::control()
{
    QFETCH(QString, page);
    QFETCH(QString, name);
    QFETCH(Turn, how);
    QFETCH(QString, what);
    QFETCH(Cells, changes);
    QFETCH(Cells, given);
    OpenDialog dialog;
    dialog.put(given);
    const QByteArray before = dialog.bytes();
    turn(dialog.get(), page, name, how, what);
    if (QTest::currentTestFailed())
        return;
    QCOMPARE(differences(before, dialog.bytes()), expectedDifferences(before, changes));
    // The caller's not yet.
    QVERIFY(bytesOf(dialog.caller) == dialog.given);
}

void TestDialogEdits::rateControl_data()
{
    QTest::addColumn<int>("view");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Turn>("how");
    QTest::addColumn<QString>("what");
    QTest::addColumn<Cells>("given");
    QTest::addColumn<Cells>("changes");

    for (int view = 0; view < 4; ++view) {
        const auto row = [view](const char* key, const char* name, Turn how, const char* what,
                                const Cells& changes, const Cells& given = {}) {
            QTest::addRow("%s V%d: %s", key, view, what)
                << view << QString::fromLatin1(name) << how << QString::fromLatin1(what) << given
                << changes;
        };
        // The mode "Variable Bitrate" with HRD shows every control but the quantizers.
        const Cells quantizerMode = {{view, 72, 1}};

        row("Bitrate Mode", "bitrateModeList", Turn::Choose, "Constant Bitrate",
            {{view, 72, 0}, {view, 176, 1}}, {{view, 176, 0}});
        row("Bitrate Mode", "bitrateModeList", Turn::Choose, "Variable Bitrate", {{view, 72, 2}},
            {{view, 72, 0}});
        row("Bitrate Mode", "bitrateModeList", Turn::Choose, "Const. Quality - Constant Quantizer",
            {{view, 72, 1}});
        row("Bitrate Mode", "bitrateModeList", Turn::Choose, "Const. Quality - Average Quantizer",
            {{view, 72, 3}});
        row("Target Bitrate", "targetRateSpin", Turn::Type, "5000000", {{view, 80, 5000000}});
        row("Target Bitrate", "targetRateSpin", Turn::Type, "7000000",
            {{view, 80, 7000000}, {view, 84, 7000000}});
        row("Max Bitrate", "maxRateSpin", Turn::Type, "2147483647", {{view, 84, 2147483647}});
        row("Max Bitrate", "maxRateSpin", Turn::Type, "3000000",
            {{view, 84, 3000000}, {view, 80, 3000000}});
        row("Bitrate Buffer", "bitrateBufferSpin", Turn::Type, "123456", {{view, 76, 123456}});
        row("Units", "units1Radio", Turn::Press, "0", {{view, 132, 0}}, {{view, 132, 2}});
        row("Units", "units2Radio", Turn::Press, "1", {{view, 132, 1}});
        row("Units", "units3Radio", Turn::Press, "2", {{view, 132, 2}});
        row("VBV Initial", "vbvInitialSpin", Turn::Type, "55", {{view, 124, 55}});
        row("VBV Target", "vbvTargetSpin", Turn::Type, "55", {});
        row("HRD", "hrdCheck", Turn::Press, "off", {{view, 176, 0}});
        row("HRD", "hrdCheck", Turn::Press, "on", {{view, 176, 1}}, {{view, 176, 0}});
        row("I Size", "iSizeSpin", Turn::Type, "11", {{view, 160, 11}});
        row("P Size", "pSizeSpin", Turn::Type, "12", {{view, 164, 12}});
        row("B Size", "bSizeSpin", Turn::Type, "13", {{view, 168, 13}});
        row("Br Size", "brSizeSpin", Turn::Type, "14", {{view, 172, 14}});
        row("I Quantizer", "quantISpin", Turn::Type, "21", {{view, 60, 21}}, quantizerMode);
        row("P Quantizer", "quantPSpin", Turn::Type, "22", {{view, 64, 22}}, quantizerMode);
        row("B Quantizer", "quantBSpin", Turn::Type, "23", {{view, 68, 23}}, quantizerMode);
        row("Max Quantizer", "maxQuantSpin", Turn::Type, "62", {{view, 2920, 62}}, quantizerMode);
        row("Min Quantizer", "minQuantSpin", Turn::Type, "2", {{view, 2916, 2}}, quantizerMode);
    }
}

void TestDialogEdits::rateControl()
{
    QFETCH(int, view);
    QFETCH(QString, name);
    QFETCH(Turn, how);
    QFETCH(QString, what);
    QFETCH(Cells, given);
    QFETCH(Cells, changes);

    KvMvcSettings settings = exampleSettings();
    settings.num_views = 4;
    OpenDialog dialog(usualFlags, settings);
    dialog.put(given);
    const QByteArray before = dialog.bytesOfAllViews();

    turn(dialog.get(), QStringLiteral("View%1Page").arg(view), name, how, what);
    if (QTest::currentTestFailed())
        return;
    QCOMPARE(differences(before, dialog.bytesOfAllViews()), expectedDifferences(before, changes));
}

void TestDialogEdits::turn(const QWidget* dialog, const QString& page, const QString& name,
                           Turn how, const QString& what)
{
    const QByteArray pageClass = page.toLatin1();
    const QByteArray object = name.toLatin1();
    auto* const widget = findControl<QWidget>(dialog, pageClass.constData(), object.constData());
    QVERIFY(widget);
    user::reveal(widget);
    QVERIFY(widget->isVisible());
    QVERIFY(widget->isEnabled());
    if (how == Turn::Choose)
        QVERIFY(user::choose(qobject_cast<QComboBox*>(widget), what));
    else if (how == Turn::Type)
        user::type(qobject_cast<QSpinBox*>(widget), what);
    else if (how == Turn::Press)
        user::click(qobject_cast<QAbstractButton*>(widget));
    else
        user::pageUp(qobject_cast<QSlider*>(widget));
}

void TestDialogEdits::everyKeyHasARow()
{
    // The controls of all pages, found in the dialog, each once; a new one needs its rows above.
    OpenDialog dialog;
    const QStringList rowless = {QStringLiteral("aspectRatioCheck"), QStringLiteral("onesecCheck"),
                                 QStringLiteral("deviceList")};
    QStringList controls;
    const auto widgets = dialog.tabs()->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        const bool editable =
            qobject_cast<const QComboBox*>(widget) || qobject_cast<const QSpinBox*>(widget) ||
            qobject_cast<const QCheckBox*>(widget) || qobject_cast<const QSlider*>(widget) ||
            qobject_cast<const QRadioButton*>(widget);
        if (editable && !widget->objectName().isEmpty() && !rowless.contains(widget->objectName()))
            controls += widget->objectName();
    }
    // 12 video format, 2 profile and level, 9 GOP, 7 motion, 7 rate distortion, 4 miscellaneous,
    // 2 views, and 19 of rate control (16 and three radio buttons) on each of four pages.
    QCOMPARE(controls.size(), 12 + 2 + 9 + 7 + 7 + 4 + 2 + 4 * 19);
}

void TestDialogEdits::customFrameRateIsStored()
{
    KvMvcSettings settings = exampleSettings();
    put(settings, {{0, 32, 47.952}, {1, 32, 47.952}});
    OpenDialog dialog(usualFlags, settings);
    auto* list = findControl<QComboBox>(dialog.get(), "VideoFormatPage", "framerateList");
    QCOMPARE(list->count(), 15);
    QCOMPARE(list->currentText(), QStringLiteral("47.952"));
    const QByteArray before = dialog.bytes();
    QVERIFY(user::choose(list, QStringLiteral("25.00")));
    QCOMPARE(differences(before, dialog.bytes()),
             expectedDifferences(before, {{0, 32, 25.0}, {1, 32, 25.0}}));
    QVERIFY(user::choose(list, QStringLiteral("47.952")));
    QVERIFY(dialog.bytes() == before);
}

void TestDialogEdits::onlyOneCustomFrameRateIsListed()
{
    OpenDialog dialog;
    auto* list = findControl<QComboBox>(dialog.get(), "VideoFormatPage", "framerateList");
    QCOMPARE(list->count(), 14);
    dialog.put({{0, 32, 48.0}});
    QCOMPARE(list->count(), 15);
    QCOMPARE(list->itemText(14), QStringLiteral("48"));
    QCOMPARE(list->currentIndex(), 14);
    dialog.put({{0, 32, 47.0}});
    QCOMPARE(list->count(), 15);
    QCOMPARE(list->currentIndex(), -1);
    // 23.976 is 24000/1001 near enough.
    dialog.put({{0, 32, 23.976}});
    QCOMPARE(list->currentText(), QStringLiteral("23.98"));
    QCOMPARE(list->currentIndex(), 6);
}

void TestDialogEdits::viewsBeyondTheRecordStayOutOfIt()
{
    KvMvcSettings settings = exampleSettings();
    settings.num_views = 4;
    OpenDialog dialog(usualFlags, settings);
    user::type(findControl<QSpinBox>(dialog.get(), "View3Page", "iSizeSpin"), QStringLiteral("77"));
    QCOMPARE(int(dialog.probe().record().view(3).frame_size_i), 77);
    QCOMPARE(int(dialog.probe().record().view(2).frame_size_i), 90000);
    user::click(dialog.button("buttonOk"));
    QVERIFY(bytesOf(dialog.caller) == dialog.given);
}

void TestDialogEdits::viewsBeyondTheRecordAreLikeTheSecond()
{
    OpenDialog dialog;
    const auto rateOf = [&dialog](int view) {
        const QByteArray page = QByteArray("View") + QByteArray::number(view) + "Page";
        return findControl<QSpinBox>(dialog.get(), page.constData(), "targetRateSpin");
    };
    KvMvcSettings settings = exampleSettings();
    put(settings, {{Cell::Record, 0, 4}, {0, 80, 1000}, {1, 80, 2000}});
    dialog.dropSettings(settings);
    for (const int view : {2, 3})
        QCOMPARE(rateOf(view)->value(), 2000);
    // Their rate control is their own, until other settings come from outside.
    user::type(rateOf(3), QStringLiteral("3000"));
    user::type(rateOf(1), QStringLiteral("2500"));
    QCOMPARE(rateOf(2)->value(), 2000);
    QCOMPARE(rateOf(3)->value(), 3000);
    dialog.companions.onDefaults = [](KvMvcSettings& defaults, int) {
        defaults = exampleSettings();
    };
    QVERIFY(user::choose(dialog.presetList(), QStringLiteral("Stereo High")));
    for (const int view : {0, 1, 2, 3})
        QCOMPARE(rateOf(view)->value(), 4000000);
}

QTEST_MAIN(TestDialogEdits)
#include "tst_dialog_edits.moc"
