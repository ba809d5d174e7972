// Every code that the record may hold, and what the controls show for it: text and enabled state.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include <memory>

namespace
{

/// What a user reads off a control: the text of a list or field, "on" or "off", a slider's number.
QString shownBy(const QWidget* widget)
{
    if (const auto* list = qobject_cast<const QComboBox*>(widget))
        return list->currentText();
    if (const auto* field = qobject_cast<const QSpinBox*>(widget))
        return field->text();
    if (const auto* slider = qobject_cast<const QSlider*>(widget))
        return QString::number(slider->value());
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        return button->isChecked() ? QStringLiteral("on") : QStringLiteral("off");
    return QStringLiteral("?");
}

} // namespace

class TestDialogCodes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_dialog.reset(); }
    void init() { failOnToolkitWarnings(); }

    void shown_data();
    void shown();
    void rateControlShown_data();
    void rateControlShown();
    void currentViewIsDescribed();

private:
    void describe(const Cells& cells);

    std::unique_ptr<OpenDialog> m_dialog;
};

void TestDialogCodes::initTestCase()
{
    // One dialog for all rows, each of which loads a file: what one row leaves must not show in
    // the next.
    m_dialog = std::make_unique<OpenDialog>();
}

void TestDialogCodes::shown_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Cells>("cells");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("enabled");

    struct Place {
        const char* page;
        const char* name;
    };
    const auto row = [](Place place, const char* given, const Cells& cells, const char* text,
                        bool enabled = true) {
        QTest::addRow("%s, %s", place.name, given)
            << QString::fromLatin1(place.page) << QString::fromLatin1(place.name) << cells
            << QString::fromLatin1(text) << enabled;
    };
    struct Coded {
        int code;
        const char* text;
    };
    const auto rows = [&](Place place, int offset, std::initializer_list<Coded> codes) {
        for (const Coded& item : codes)
            row(place, QByteArray::number(item.code).constData(), {{0, offset, item.code}},
                item.text);
    };

    rows({"VideoFormatPage", "widthSpin"}, 24, {{16, "16"}, {4096, "4096"}, {9000, "4096"}});
    rows({"VideoFormatPage", "heightSpin"}, 28, {{17, "17"}, {0, "16"}});
    rows({"VideoFormatPage", "pixelXSpin"}, 100, {{-1, "-1"}, {1000, "1000"}});
    rows({"VideoFormatPage", "pixelYSpin"}, 104, {{1, "1"}, {11, "11"}});

    const Place aspect = {"VideoFormatPage", "aspectRatioList"};
    const Place pixelX = {"VideoFormatPage", "pixelXSpin"};
    const Place pixelY = {"VideoFormatPage", "pixelYSpin"};
    const struct {
        int x;
        int y;
        const char* text;
        bool pixelsFree;
    } ratios[] = {{-1, -1, "Custom", true}, {1, 1, "1:1", false}, {4, 3, "4:3", false},
                  {16, 9, "16:9", false},   {5, 4, "", false},    {-1, 3, "", false}};
    for (const auto& ratio : ratios) {
        const QByteArray given = QByteArray::number(ratio.x) + ':' + QByteArray::number(ratio.y);
        const Cells cells = {{0, 2888, ratio.x}, {0, 2892, ratio.y}, {0, 100, 10}, {0, 104, 11}};
        row(aspect, given.constData(), cells, ratio.text);
        row(pixelX, given.constData(), cells, "10", ratio.pixelsFree);
        row(pixelY, given.constData(), cells, "11", ratio.pixelsFree);
    }

    const Place frameRate = {"VideoFormatPage", "framerateList"};
    const struct {
        double rate;
        const char* text;
    } rates[] = {{7.6, "7.60"},
                 {9.1, "9.10"},
                 {10, "10.00"},
                 {12.5, "12.50"},
                 {12.8, "12.80"},
                 {15, "15.00"},
                 {24000.0 / 1001, "23.98"},
                 {23.97605, "23.98"},
                 {24, "24.00"},
                 {25, "25.00"},
                 {30000.0 / 1001, "29.97"},
                 {30, "30.00"},
                 {50, "50.00"},
                 {60000.0 / 1001, "59.94"},
                 {59.94, "59.94"},
                 {60, "60.00"},
                 {0, ""}};
    for (const auto& rate : rates)
        row(frameRate, QByteArray::number(rate.rate, 'g', 12).constData(), {{0, 32, rate.rate}},
            rate.text);

    rows({"VideoFormatPage", "interlaceList"}, 20,
         {{0, "Progressive"}, {1, "Interlaced"}, {2, "MBAFF"}, {3, ""}, {-1, ""}});
    const Place fieldOrder = {"VideoFormatPage", "fieldOrderList"};
    row(fieldOrder, "top, progressive", {{0, 4112, 0}, {0, 20, 0}}, "Top Field First", false);
    row(fieldOrder, "top, interlaced", {{0, 4112, 0}, {0, 20, 1}}, "Top Field First");
    row(fieldOrder, "top, MBAFF", {{0, 4112, 0}, {0, 20, 2}}, "Top Field First");
    row(fieldOrder, "bottom, progressive", {{0, 4112, 1}, {0, 20, 0}}, "");
    row(fieldOrder, "bottom, interlaced", {{0, 4112, 1}, {0, 20, 1}}, "Bot Field First");
    row(fieldOrder, "bottom, MBAFF", {{0, 4112, 1}, {0, 20, 2}}, "Bot Field First");
    row(fieldOrder, "other, MBAFF", {{0, 4112, 5}, {0, 20, 2}}, "Bot Field First");
    rows({"VideoFormatPage", "pulldownList"}, 1808,
         {{0, "Off"},
          {1, "2:3"},
          {2, "3:2"},
          {3, ""},
          {4, "2:3 P"},
          {5, "3:2 P"},
          {6, "Auto"},
          {7, "2:2"},
          {8, "3:3"},
          {9, ""}});
    rows({"VideoFormatPage", "chromaList"}, 2252,
         {{1, "4:0:0"}, {2, "4:2:0"}, {3, "4:2:2"}, {4, ""}, {0, "4:2:0"}, {5, "4:2:0"}});
    rows({"VideoFormatPage", "bitdepthLList"}, 2244, {{8, "8 bits"}, {10, "10 bits"}, {9, ""}});
    rows({"VideoFormatPage", "bitdepthCList"}, 2248, {{8, "8 bits"}, {10, "10 bits"}, {9, ""}});

    rows({"AdvancedPage", "profileList"}, 0,
         {{0, "Baseline"}, {1, "Main"}, {3, "High"}, {4, "High 10"}, {2, ""}, {5, ""}});
    rows({"AdvancedPage", "levelList"}, 4,
         {{10, "1.0"},
          {11, "1.1"},
          {12, "1.2"},
          {13, "1.3"},
          {16, "1.6"},
          {20, "2.0"},
          {21, "2.1"},
          {22, "2.2"},
          {30, "3.0"},
          {31, "3.1"},
          {32, "3.2"},
          {40, "4.0"},
          {41, "4.1"},
          {42, "4.2"},
          {50, "5.0"},
          {51, "5.1"},
          {52, "5.2"},
          {100, "Auto"},
          {9, ""}});

    const struct {
        Place place;
        int offset;
    } switches[] = {{{"GOPStructurePage", "sceneDetectCheck"}, 2836},
                    {{"GOPStructurePage", "fixedICheck"}, 4116},
                    {{"GOPStructurePage", "adaptiveBCheck"}, 4104},
                    {{"GOPStructurePage", "piramydBCheck"}, 2856},
                    {{"GOPStructurePage", "bAsReferenceCheck"}, 2852},
                    {{"MotionEstimationPage", "weightedPCheck"}, 2872},
                    {{"MotionEstimationPage", "fastRefCheck"}, 4316},
                    {{"MotionEstimationPage", "fastSubCheck"}, 4320},
                    {{"RateDistortionPage", "fastIntraCheck"}, 2880},
                    {{"RateDistortionPage", "fastInterCheck"}, 2884},
                    {{"RateDistortionPage", "simpleRDCheck"}, 5116},
                    {{"RateDistortionPage", "hadamardCheck"}, 96},
                    {{"MiscPage", "deblockingCheck"}, 256}};
    for (const auto& item : switches)
        rows(item.place, item.offset, {{0, "off"}, {1, "on"}, {7, "on"}});

    rows({"GOPStructurePage", "iFrameIntervalSpin"}, 8, {{0, "0"}, {300, "300"}, {400, "300"}});
    rows({"GOPStructurePage", "iFrameForceSpin"}, 4100, {{999, "999"}, {1000, "999"}});
    rows({"GOPStructurePage", "idrSpin"}, 4108, {{0, "0"}, {99, "99"}});
    rows({"GOPStructurePage", "bBetweenIPSpin"}, 12, {{1, "0"}, {2, "1"}, {4, "3"}, {9, "3"}});
    rows({"MotionEstimationPage", "macroSearchList"}, 88, {{0, "16 x 16"}, {1, "8 x 8"}, {2, ""}});
    rows({"MotionEstimationPage", "subSearchList"}, 2868,
         {{0, "Full"}, {1, "Half"}, {2, "Quarter"}, {3, ""}});
    rows({"MotionEstimationPage", "refFramesSpin"}, 40, {{16, "16"}, {0, "0"}});
    rows({"MotionEstimationPage", "searchRangeSpin"}, 44, {{99, "99"}, {128, "99"}});
    const struct {
        Place place;
        int offset;
    } sliders[] = {{{"RateDistortionPage", "brightnessSlider"}, 5492},
                   {{"RateDistortionPage", "contrastSlider"}, 5496},
                   {{"RateDistortionPage", "complexitySlider"}, 5500}};
    for (const auto& item : sliders)
        rows(item.place, item.offset, {{-100, "-100"}, {0, "0"}, {37, "37"}, {150, "100"}});
    rows({"MiscPage", "entropyList"}, 92, {{0, "CAVLC"}, {1, "CABAC"}, {2, ""}});
    rows({"MiscPage", "slicesSpin"}, 2848, {{1, "1"}, {99999, "99999"}, {0, "1"}});
    rows({"MiscPage", "threadsSpin"}, 2904, {{0, "Auto"}, {16, "16"}, {17, "16"}});

    const auto record = [&](Place place, int offset, std::initializer_list<Coded> codes) {
        for (const Coded& item : codes)
            row(place, QByteArray::number(item.code).constData(),
                {{Cell::Record, offset, item.code}}, item.text);
    };
    record({"ViewsPage", "numViewsSpin"}, 0, {{1, "0"}, {2, "1"}, {4, "3"}, {9, "3"}, {0, "0"}});
    record({"ViewsPage", "splitCheck"}, 4, {{0, "off"}, {1, "on"}});
    rows({"AVCVideoEncoderDlg", "presetList"}, 1804,
         {{1, "Multivew High"}, {2, "Stereo High"}, {3, "Blu-ray 3D"}, {0, ""}, {4, ""}});
}

void TestDialogCodes::describe(const Cells& cells)
{
    KvMvcSettings settings = exampleSettings();
    put(settings, cells);
    m_dialog->dropSettings(settings);
    // As the row has it, not as a page made it.
    QVERIFY(m_dialog->bytes() == bytesOf(settings));
}

void TestDialogCodes::shown()
{
    QFETCH(QString, page);
    QFETCH(QString, name);
    QFETCH(Cells, cells);
    QFETCH(QString, text);
    QFETCH(bool, enabled);

    const auto* control = findControl<QWidget>(m_dialog->get(), page.toLatin1().constData(),
                                               name.toLatin1().constData());
    QVERIFY(control);
    describe(cells);
    QCOMPARE(shownBy(control), text);
    QCOMPARE(control->isEnabled(), enabled);
}

void TestDialogCodes::rateControlShown_data()
{
    QTest::addColumn<int>("view");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Cells>("cells");
    QTest::addColumn<QString>("text");

    struct Coded {
        int code;
        const char* text;
    };
    // The record has two views.
    for (int view = 0; view < 2; ++view) {
        const auto rows = [view](const char* name, int offset, std::initializer_list<Coded> codes,
                                 const Cells& also = {}) {
            for (const Coded& item : codes)
                QTest::addRow("view %d %s, %d", view, name, item.code)
                    << view << QString::fromLatin1(name)
                    << (Cells{{view, offset, item.code}} + also) << QString::fromLatin1(item.text);
        };
        rows("bitrateModeList", 72,
             {{0, "Constant Bitrate"},
              {1, "Const. Quality - Constant Quantizer"},
              {2, "Variable Bitrate"},
              {3, "Const. Quality - Average Quantizer"},
              {4, ""}});
        const std::pair<const char*, int> numbers[] = {
            {"targetRateSpin", 80}, {"maxRateSpin", 84}, {"bitrateBufferSpin", 76},
            {"iSizeSpin", 160},     {"pSizeSpin", 164},  {"bSizeSpin", 168},
            {"brSizeSpin", 172}};
        for (const auto& number : numbers)
            rows(number.first, number.second,
                 {{0, "0"}, {1234567, "1234567"}, {2147483647, "2147483647"}, {-5, "0"}});
        const std::pair<const char*, int> quantizers[] = {{"quantISpin", 60},
                                                          {"quantPSpin", 64},
                                                          {"quantBSpin", 68},
                                                          {"maxQuantSpin", 2920},
                                                          {"minQuantSpin", 2916}};
        for (const auto& quantizer : quantizers)
            rows(quantizer.first, quantizer.second, {{2, "2"}, {62, "62"}, {1, "2"}, {63, "62"}});
        rows("units1Radio", 132, {{0, "on"}, {1, "off"}, {2, "off"}});
        rows("units2Radio", 132, {{0, "off"}, {1, "on"}, {2, "off"}});
        rows("units3Radio", 132, {{0, "off"}, {1, "off"}, {2, "on"}});
        rows("vbvInitialSpin", 124, {{0, "0"}, {100, "100"}});
        rows("vbvTargetSpin", 128, {{0, "0"}, {100, "100"}});
        rows("hrdCheck", 176, {{0, "off"}, {1, "on"}});
    }
}

void TestDialogCodes::rateControlShown()
{
    QFETCH(int, view);
    QFETCH(QString, name);
    QFETCH(Cells, cells);
    QFETCH(QString, text);

    const QByteArray page = QStringLiteral("View%1Page").arg(view).toLatin1();
    const auto* control =
        findControl<QWidget>(m_dialog->get(), page.constData(), name.toLatin1().constData());
    QVERIFY(control);
    describe(cells);
    QCOMPARE(shownBy(control), text);
    QVERIFY(control->isEnabled());
}

void TestDialogCodes::currentViewIsDescribed()
{
    // The base view when the dialog opens, and after an edit the last view that it visited.
    KvMvcSettings settings = exampleSettings();
    put(settings, {{0, 24, 640}, {1, 24, 1024}});
    OpenDialog dialog(usualFlags, settings);
    auto* width = findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin");
    QCOMPARE(width->value(), 640);
    QCOMPARE(dialog.probe().currentView(), 0);
    user::type(findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "heightSpin"),
               QStringLiteral("480"));
    QCOMPARE(width->value(), 1024);
    QCOMPARE(dialog.probe().currentView(), 1);
}

QTEST_MAIN(TestDialogCodes)
#include "tst_dialog_codes.moc"
