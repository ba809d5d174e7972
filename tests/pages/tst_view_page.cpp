#include "AllPages.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include "pages/View0Page.h"
#include "pages/View1Page.h"
#include "pages/View2Page.h"
#include "pages/View3Page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>

#include <functional>
#include <memory>

/// Rate control of one view. Every test runs on each of the four pages, which differ in the suffix
/// of their keys only.
class TestViewPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();

    void targetAboveMaximumRaisesIt();
    void targetUpToMaximumLeavesIt();
    void maximumBelowTargetLowersIt();
    void maximumAboveTargetIsReportedAloneAndLeavesTheBuffer();
    void steppingTheTargetRaisesTheMaximumToo();

    void oneSecondBoxSetsTheBuffer_data();
    void oneSecondBoxSetsTheBuffer();
    void oneSecondBoxRaisesAMaximumBelowTheTarget();
    void oneSecondBoxDisablesTheBuffer();
    void bufferStaysDisabledWhileTheOneSecondBoxSetsIt_data();
    void bufferStaysDisabledWhileTheOneSecondBoxSetsIt();
    void targetWithOneSecondBoxSetsTheBuffer();
    void maximumBelowTargetWithOneSecondBoxSetsTheBuffer();
    void maximumAboveTargetWithOneSecondBoxLeavesTheBuffer();
    void unitsWithOneSecondBoxSetTheBuffer();
    void oneSecondBoxSurvivesEveryState();
    void oneSecondBoxWinsOverTheStatesEnabling();

    void stateEnablesEveryUnitButton();
    void unitsSetLabelsMaximaAndSteps_data();
    void unitsSetLabelsMaximaAndSteps();
    void unknownUnitsLeaveEverything_data();
    void unknownUnitsLeaveEverything();
    void switchingUnitsConvertsNothing();
    void fullnessAbove100PercentIsClampedAndReportedTwice();
    void targetFullnessAbove100PercentIsClampedAndNotReported();
    void fullnessIsClampedAfterSwitchingToPercent();
    void largeFullnessIsShownAsSoonAsTheUnitsAllowIt();
    void fullnessInUnknownUnitsKeepsTheLimit();

    void modeAndHrdDecideWhatIsVisible_data();
    void modeAndHrdDecideWhatIsVisible();
    void variableBitrateWithoutHrdHidesMaximumAndBuffers();
    void hrdOtherThan1CountsAsOff_data();
    void hrdOtherThan1CountsAsOff();
    void hrdSwitchIsAlwaysVisible();
    void hiddenIsNotDisabled();

    void editOfVbvTargetReportsNothingAndOfVbvInitialTwice();
    void chosenModeIsReportedAsItsText();
    void modeListIsEmptyUntilFilled();
    void fillingTheModesTwiceKeepsTheItemsOnce();

private:
    QStringList keyed(std::initializer_list<const char*> states) const;
    int m_view = 0;
};

namespace
{

const char* const constant = "Constant Bitrate";
const char* const variable = "Variable Bitrate";
const char* const constantQuantizer = "Const. Quality - Constant Quantizer";
const char* const averageQuantizer = "Const. Quality - Average Quantizer";

enum Units { Bytes, Bits, Clock };

constexpr int largest = 2147483647;

std::unique_ptr<ViewPage> makePage(int view)
{
    switch (view) {
    case 0:
        return std::make_unique<View0Page>();
    case 1:
        return std::make_unique<View1Page>();
    case 2:
        return std::make_unique<View2Page>();
    default:
        return std::make_unique<View3Page>();
    }
}

/// The page alone in its window, with variable bitrate, HRD on, 4 Mbit/s up to 5 Mbit/s, in bits.
class OpenPage
{
public:
    explicit OpenPage(int view) : page(makePage(view)), m_view(view)
    {
        page->fillBitrateModes();
        spy.listenTo(page.get());
        put("Bitrate Mode", QString(QLatin1String(variable)));
        put("HRD", 1);
        put("Target Bitrate", 4000);
        put("Max Bitrate", 5000);
        put("Bitrate Buffer", 123456);
        put("VBV Initial", 70);
        put("VBV Target", 80);
        put("Units", int(Bits));
        receive();
        showAlone(page.get());
    }

    /// Changes the state that receive() hands over.
    void put(const char* base, const QVariant& value, bool enabled = true)
    {
        state.insert(QStringLiteral("%1 V%2").arg(QLatin1String(base)).arg(m_view), value, enabled);
    }
    void receive() { page->receiveState(state); }
    void receive(const char* base, const QVariant& value)
    {
        put(base, value);
        receive();
    }

    template <class Widget>
    Widget* find(const char* name) const
    {
        return page->findChild<Widget*>(QLatin1String(name));
    }
    QSpinBox* spin(const char* name) const { return find<QSpinBox>(name); }
    QCheckBox* oneSecond() const { return find<QCheckBox>("onesecCheck"); }
    QRadioButton* units(Units id) const
    {
        const char* const names[] = {"units1Radio", "units2Radio", "units3Radio"};
        return find<QRadioButton>(names[id]);
    }
    bool isVisible(const char* name) const { return find<QWidget>(name)->isVisible(); }

    std::unique_ptr<ViewPage> page;
    StateSpy spy;
    ConfigState state;

private:
    const int m_view;
};

/// What a user does on the page.
using Edit = std::function<void(const OpenPage&)>;

} // namespace

Q_DECLARE_METATYPE(Edit)

// The rows of every test.
void TestViewPage::initTestCase_data()
{
    QTest::addColumn<int>("view");
    QTest::newRow("View0Page") << 0;
    QTest::newRow("View1Page") << 1;
    QTest::newRow("View2Page") << 2;
    QTest::newRow("View3Page") << 3;
}

void TestViewPage::init()
{
    failOnToolkitWarnings();
    QFETCH_GLOBAL(int, view);
    m_view = view;
}

/// Puts the suffix behind the keys: "HRD=1" to "HRD V2=1". The empty key has none.
QStringList TestViewPage::keyed(std::initializer_list<const char*> states) const
{
    QStringList all;
    for (const char* state : states) {
        QStringList entries = QString::fromLatin1(state).split(QStringLiteral("; "));
        for (QString& entry : entries) {
            if (!entry.startsWith(QLatin1Char('='))) {
                entry.insert(entry.indexOf(QLatin1Char('=')), QStringLiteral(" V%1").arg(m_view));
            }
        }
        all += entries.join(QStringLiteral("; "));
    }
    return all;
}

void TestViewPage::targetAboveMaximumRaisesIt()
{
    OpenPage page(m_view);
    user::type(page.spin("targetRateSpin"), QStringLiteral("6000"));
    QCOMPARE(page.spy.take(), keyed({"Max Bitrate=6000; Target Bitrate=6000"}));
    QCOMPARE(page.spin("maxRateSpin")->value(), 6000);
}

void TestViewPage::targetUpToMaximumLeavesIt()
{
    OpenPage page(m_view);
    user::type(page.spin("targetRateSpin"), QStringLiteral("5000"));
    QCOMPARE(page.spy.take(), keyed({"Target Bitrate=5000"}));
    QCOMPARE(page.spin("maxRateSpin")->value(), 5000);
    QCOMPARE(page.spin("bitrateBufferSpin")->value(), 123456);
}

void TestViewPage::maximumBelowTargetLowersIt()
{
    OpenPage page(m_view);
    user::type(page.spin("maxRateSpin"), QStringLiteral("3000"));
    QCOMPARE(page.spy.take(), keyed({"Max Bitrate=3000; Target Bitrate=3000"}));
    QCOMPARE(page.spin("targetRateSpin")->value(), 3000);
    user::type(page.spin("maxRateSpin"), QStringLiteral("3001"));
    user::type(page.spin("maxRateSpin"), QStringLiteral("3000"));
    QCOMPARE(page.spy.take(), keyed({"Max Bitrate=3001", "Max Bitrate=3000"}));
}

void TestViewPage::maximumAboveTargetIsReportedAloneAndLeavesTheBuffer()
{
    OpenPage page(m_view);
    user::type(page.spin("maxRateSpin"), QStringLiteral("9000"));
    QCOMPARE(page.spy.take(), keyed({"Max Bitrate=9000"}));
    QCOMPARE(page.spin("targetRateSpin")->value(), 4000);
    QCOMPARE(page.spin("bitrateBufferSpin")->value(), 123456);
}

void TestViewPage::steppingTheTargetRaisesTheMaximumToo()
{
    OpenPage page(m_view);
    page.spin("targetRateSpin")->setFocus();
    QTest::keyClick(page.spin("targetRateSpin"), Qt::Key_Up);
    QCOMPARE(page.spy.take(), keyed({"Max Bitrate=14000; Target Bitrate=14000"}));
}

void TestViewPage::oneSecondBoxSetsTheBuffer_data()
{
    QTest::addColumn<int>("units");
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("buffer");
    const auto row = [](const char* name, int units, int target, const char* state, int buffer) {
        QTest::newRow(name) << units << target << QString(QLatin1String(state)) << buffer;
    };
    row("bytes, 6000", Bytes, 6000, "=6000; Bitrate Buffer=750", 750);
    row("bytes, 6001 is cut off", Bytes, 6001, "=6001; Bitrate Buffer=750", 750);
    row("bytes, 7", Bytes, 7, "=7; Bitrate Buffer=0", 0);
    row("bytes, largest", Bytes, largest, "=2147483647; Bitrate Buffer=268435455", 268435455);
    row("bits", Bits, 6001, "=6001; Bitrate Buffer=6001", 6001);
    row("clock", Clock, 6001, "=6001; Bitrate Buffer=6001", 6001);
    // Of these no button is chosen.
    row("units 3", 3, 6001, "=6001; Bitrate Buffer=6001", 6001);
    row("units -1", -1, 6001, "=6001; Bitrate Buffer=6001", 6001);
}

void TestViewPage::oneSecondBoxSetsTheBuffer()
{
    QFETCH(int, units);
    QFETCH(int, target);
    QFETCH(QString, state);
    QFETCH(int, buffer);
    OpenPage page(m_view);
    page.put("Units", units);
    page.put("Max Bitrate", largest);
    page.receive("Target Bitrate", target);
    page.spy.take();
    user::click(page.oneSecond());
    QCOMPARE(page.spy.take(), keyed({qPrintable(state)}));
    QCOMPARE(page.spin("bitrateBufferSpin")->value(), buffer);
}

void TestViewPage::oneSecondBoxRaisesAMaximumBelowTheTarget()
{
    OpenPage page(m_view);
    page.receive("Target Bitrate", 6000);
    QCOMPARE(page.spin("maxRateSpin")->value(), 5000);
    page.spy.take();
    user::click(page.oneSecond());
    QCOMPARE(page.spy.take(), keyed({"=6000; Bitrate Buffer=6000; Max Bitrate=6000"}));
    QCOMPARE(page.spin("maxRateSpin")->value(), 6000);
    QCOMPARE(page.spin("bitrateBufferSpin")->value(), 6000);
}

void TestViewPage::oneSecondBoxDisablesTheBuffer()
{
    OpenPage page(m_view);
    QVERIFY(page.spin("bitrateBufferSpin")->isEnabled());
    user::click(page.oneSecond());
    // At once, and when the state comes back as from the dialog.
    QVERIFY(!page.spin("bitrateBufferSpin")->isEnabled());
    page.receive();
    QVERIFY(!page.spin("bitrateBufferSpin")->isEnabled());
    page.spy.take();
    user::click(page.oneSecond());
    QVERIFY(page.spin("bitrateBufferSpin")->isEnabled());
    // The rate travels under the empty key, which no setting has.
    QCOMPARE(page.spy.take(), lines({"=4000"}));
}

void TestViewPage::bufferStaysDisabledWhileTheOneSecondBoxSetsIt_data()
{
    QTest::addColumn<Edit>("edit");
    const auto row = [](const char* name, const Edit& edit) { QTest::newRow(name) << edit; };
    row("target", [](const OpenPage& page) {
        user::type(page.spin("targetRateSpin"), QStringLiteral("4500"));
    });
    row("maximum below target",
        [](const OpenPage& page) { user::type(page.spin("maxRateSpin"), QStringLiteral("3000")); });
    row("units", [](const OpenPage& page) { user::click(page.units(Bytes)); });
}

// Each of these edits writes the buffer before any state returns.
void TestViewPage::bufferStaysDisabledWhileTheOneSecondBoxSetsIt()
{
    QFETCH(Edit, edit);
    OpenPage page(m_view);
    user::click(page.oneSecond());
    const int before = page.spin("bitrateBufferSpin")->value();
    edit(page);
    QVERIFY(page.spin("bitrateBufferSpin")->value() != before);
    QVERIFY(!page.spin("bitrateBufferSpin")->isEnabled());
}

void TestViewPage::targetWithOneSecondBoxSetsTheBuffer()
{
    OpenPage page(m_view);
    user::click(page.oneSecond());
    page.spy.take();
    user::type(page.spin("targetRateSpin"), QStringLiteral("4500"));
    QCOMPARE(page.spy.take(), keyed({"Bitrate Buffer=4500; Target Bitrate=4500"}));
    user::type(page.spin("targetRateSpin"), QStringLiteral("8000"));
    QCOMPARE(page.spy.take(),
             keyed({"Bitrate Buffer=8000; Max Bitrate=8000; Target Bitrate=8000"}));
    QCOMPARE(page.spin("bitrateBufferSpin")->value(), 8000);
}

void TestViewPage::maximumBelowTargetWithOneSecondBoxSetsTheBuffer()
{
    OpenPage page(m_view);
    page.receive("Units", int(Bytes));
    user::click(page.oneSecond());
    page.spy.take();
    user::type(page.spin("maxRateSpin"), QStringLiteral("3001"));
    QCOMPARE(page.spy.take(), keyed({"Bitrate Buffer=375; Max Bitrate=3001; Target Bitrate=3001"}));
    QCOMPARE(page.spin("bitrateBufferSpin")->value(), 375);
}

void TestViewPage::maximumAboveTargetWithOneSecondBoxLeavesTheBuffer()
{
    OpenPage page(m_view);
    user::click(page.oneSecond());
    page.spy.take();
    user::type(page.spin("maxRateSpin"), QStringLiteral("9000"));
    QCOMPARE(page.spy.take(), keyed({"Max Bitrate=9000"}));
    QCOMPARE(page.spin("bitrateBufferSpin")->value(), 4000);
}

void TestViewPage::unitsWithOneSecondBoxSetTheBuffer()
{
    OpenPage page(m_view);
    user::click(page.oneSecond());
    page.spy.take();
    user::click(page.units(Bytes));
    QCOMPARE(page.spy.take(), keyed({"Bitrate Buffer=500; Units=0"}));
    user::click(page.units(Clock));
    QCOMPARE(page.spy.take(), keyed({"Bitrate Buffer=4000; Units=2"}));
    QCOMPARE(page.spin("bitrateBufferSpin")->value(), 4000);
}

void TestViewPage::oneSecondBoxSurvivesEveryState()
{
    OpenPage page(m_view);
    QVERIFY(!page.oneSecond()->isChecked());
    user::click(page.oneSecond());
    page.spy.take();
    page.page->receiveState({});
    page.receive();
    QVERIFY(page.oneSecond()->isChecked());
    QVERIFY(page.oneSecond()->isEnabled());
    QCOMPARE(page.spin("bitrateBufferSpin")->value(), 123456);
    QCOMPARE(page.spy.take(), QStringList());
}

void TestViewPage::oneSecondBoxWinsOverTheStatesEnabling()
{
    OpenPage page(m_view);
    page.put("Bitrate Buffer", 5, false);
    page.receive();
    QVERIFY(page.spin("bitrateBufferSpin")->isEnabled());
    user::click(page.oneSecond());
    page.put("Bitrate Buffer", 5, true);
    page.receive();
    QVERIFY(!page.spin("bitrateBufferSpin")->isEnabled());
}

void TestViewPage::stateEnablesEveryUnitButton()
{
    OpenPage page(m_view);
    for (const bool enabled : {false, true}) {
        page.put("Units", int(Bits), enabled);
        page.receive();
        for (const Units id : {Bytes, Bits, Clock}) {
            QCOMPARE(page.units(id)->isEnabled(), enabled);
        }
    }
}

void TestViewPage::unitsSetLabelsMaximaAndSteps_data()
{
    QTest::addColumn<int>("units");
    QTest::addColumn<QStringList>("labels");
    QTest::addColumn<QList<int>>("limits");
    // Maxima of buffer, initial and target fullness; their steps.
    QTest::newRow("bytes and percent")
        << int(Bytes)
        << lines({"Bitrate buffer (bytes)", "VBV buffer initial (%)", "VBV buffer target (%)"})
        << QList<int>{largest, 100, 100, 1024, 1, 1};
    QTest::newRow("bits") << int(Bits)
                          << lines({"Bitrate buffer (bits)", "VBV buffer initial (bits)",
                                    "VBV buffer target (bits)"})
                          << QList<int>{largest, largest, largest, 8192, 8192, 8192};
    QTest::newRow("bits and clock")
        << int(Clock)
        << lines({"Bitrate buffer (bits)", "VBV buffer initial (90 kHz)",
                  "VBV buffer target (90 kHz)"})
        << QList<int>{largest, largest, largest, 8192, 1, 1};
}

namespace
{

QStringList unitLabels(const OpenPage& page)
{
    QStringList texts;
    for (const char* name : {"bitrateBufferLabel", "vbvInitialLabel", "vbvTargetLabel"}) {
        texts += page.find<QLabel>(name)->text();
    }
    return texts;
}

QList<int> unitLimits(const OpenPage& page)
{
    QList<int> limits;
    for (const char* name : {"bitrateBufferSpin", "vbvInitialSpin", "vbvTargetSpin"}) {
        limits += page.spin(name)->maximum();
    }
    for (const char* name : {"bitrateBufferSpin", "vbvInitialSpin", "vbvTargetSpin"}) {
        limits += page.spin(name)->singleStep();
    }
    return limits;
}

} // namespace

void TestViewPage::unitsSetLabelsMaximaAndSteps()
{
    QFETCH(int, units);
    QFETCH(QStringList, labels);
    QFETCH(QList<int>, limits);
    // From each of the others.
    for (const Units before : {Bytes, Bits, Clock}) {
        OpenPage page(m_view);
        page.receive("Units", int(before));
        page.receive("Units", units);
        QCOMPARE(unitLabels(page), labels);
        QCOMPARE(unitLimits(page), limits);
        QVERIFY(page.units(Units(units))->isChecked());
    }
}

void TestViewPage::unknownUnitsLeaveEverything_data()
{
    QTest::addColumn<int>("units");
    QTest::newRow("3") << 3;
    QTest::newRow("-1") << -1;
    QTest::newRow("largest") << largest;
}

void TestViewPage::unknownUnitsLeaveEverything()
{
    QFETCH(int, units);
    OpenPage page(m_view);
    page.receive("Units", int(Bytes));
    page.receive("Units", units);
    QCOMPARE(unitLabels(page),
             lines({"Bitrate buffer (bytes)", "VBV buffer initial (%)", "VBV buffer target (%)"}));
    QCOMPARE(unitLimits(page), (QList<int>{largest, 100, 100, 1024, 1, 1}));
    for (const Units id : {Bytes, Bits, Clock}) {
        QVERIFY(!page.units(id)->isChecked());
    }
    // A known one is chosen again.
    page.receive("Units", int(Clock));
    QVERIFY(page.units(Clock)->isChecked());
    QCOMPARE(page.spy.take(), QStringList());
}

void TestViewPage::switchingUnitsConvertsNothing()
{
    OpenPage page(m_view);
    page.receive("Bitrate Buffer", 8000000);
    user::click(page.units(Bytes));
    QCOMPARE(page.spy.take(), keyed({"Units=0"}));
    QCOMPARE(page.spin("bitrateBufferSpin")->value(), 8000000);
    QCOMPARE(page.find<QLabel>("bitrateBufferLabel")->text(),
             QStringLiteral("Bitrate buffer (bits)"));
    page.receive("Units", int(Bytes));
    QCOMPARE(page.spin("bitrateBufferSpin")->value(), 8000000);
    QCOMPARE(page.find<QLabel>("bitrateBufferLabel")->text(),
             QStringLiteral("Bitrate buffer (bytes)"));
    QCOMPARE(page.spin("bitrateBufferSpin")->singleStep(), 1024);
    QCOMPARE(page.spy.take(), QStringList());
}

void TestViewPage::fullnessAbove100PercentIsClampedAndReportedTwice()
{
    OpenPage page(m_view);
    page.put("VBV Initial", 101);
    page.put("Units", int(Bytes));
    // Also where percent is what the page had before.
    for (int time = 0; time < 3; ++time) {
        page.receive();
        QCOMPARE(page.spin("vbvInitialSpin")->value(), 100);
        QCOMPARE(page.spy.take(), keyed({"VBV Initial=100", "VBV Initial=100"}));
    }
    page.receive("VBV Initial", 100);
    QCOMPARE(page.spin("vbvInitialSpin")->value(), 100);
    QCOMPARE(page.spy.take(), QStringList());
}

void TestViewPage::targetFullnessAbove100PercentIsClampedAndNotReported()
{
    OpenPage page(m_view);
    page.put("VBV Target", 5000);
    page.receive("Units", int(Bytes));
    QCOMPARE(page.spin("vbvTargetSpin")->value(), 100);
    QCOMPARE(page.spy.take(), QStringList());
}

void TestViewPage::fullnessIsClampedAfterSwitchingToPercent()
{
    OpenPage page(m_view);
    page.receive("VBV Initial", 90000);
    QCOMPARE(page.spy.take(), QStringList());
    user::click(page.units(Bytes));
    QCOMPARE(page.spy.take(), keyed({"Units=0"}));
    page.receive("Units", int(Bytes));
    QCOMPARE(page.spy.take(), keyed({"VBV Initial=100", "VBV Initial=100"}));
}

void TestViewPage::largeFullnessIsShownAsSoonAsTheUnitsAllowIt()
{
    OpenPage page(m_view);
    page.receive("Units", int(Bytes));
    page.put("VBV Initial", 90000);
    page.put("VBV Target", 80000);
    page.receive("Units", int(Bits));
    QCOMPARE(page.spin("vbvInitialSpin")->value(), 90000);
    QCOMPARE(page.spin("vbvTargetSpin")->value(), 80000);
    QCOMPARE(page.spy.take(), QStringList());
}

void TestViewPage::fullnessInUnknownUnitsKeepsTheLimit()
{
    OpenPage page(m_view);
    page.receive("Units", int(Bytes));
    page.put("VBV Initial", 90000);
    page.receive("Units", 3);
    QCOMPARE(page.spin("vbvInitialSpin")->value(), 100);
    QCOMPARE(page.spy.take(), QStringList());
}

void TestViewPage::modeAndHrdDecideWhatIsVisible_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<int>("hrd");
    QTest::addColumn<QStringList>("visible");
    const auto row = [](const char* name, const char* mode, int hrd, const QStringList& visible) {
        QTest::newRow(name) << QString(QLatin1String(mode)) << hrd << visible;
    };
    row("constant bitrate, HRD", constant, 1, lines({"target", "buffers", "sizes"}));
    row("constant bitrate", constant, 0, lines({"target", "sizes"}));
    row("variable bitrate, HRD", variable, 1, lines({"target", "max", "buffers", "sizes"}));
    row("variable bitrate", variable, 0, lines({"target", "sizes"}));
    row("constant quantizer, HRD", constantQuantizer, 1, lines({"quantizers"}));
    row("constant quantizer", constantQuantizer, 0, lines({"quantizers"}));
    row("average quantizer, HRD", averageQuantizer, 1, lines({"sizes", "quantizers"}));
    row("average quantizer", averageQuantizer, 0, lines({"sizes", "quantizers"}));
    row("no mode", "", 1, lines({"sizes"}));
    row("unknown mode", "Unlimited Bitrate", 1, lines({"sizes"}));
    row("other letter case", "variable bitrate", 1, lines({"sizes"}));
}

void TestViewPage::modeAndHrdDecideWhatIsVisible()
{
    QFETCH(QString, mode);
    QFETCH(int, hrd);
    const QVector<QPair<const char*, QVector<const char*>>> groups = {
        {"target", {"targetRateLabel", "targetRateSpin"}},
        {"max", {"maxRateLabel", "maxRateSpin"}},
        {"buffers",
         {"groupBoxBuffers", "bitrateBufferSpin", "bitrateBufferLabel", "vbvInitialSpin",
          "vbvTargetSpin", "units1Radio", "onesecCheck"}},
        {"sizes",
         {"line_2", "iSizeLabel", "iSizeSpin", "pSizeLabel", "pSizeSpin", "bSizeLabel", "bSizeSpin",
          "brSizeLabel", "brSizeSpin"}},
        {"quantizers",
         {"line_3", "quantILabel", "quantISpin", "quantPLabel", "quantPSpin", "quantBLabel",
          "quantBSpin", "maxQuantLabel", "maxQuantSpin", "minQuantLabel", "minQuantSpin"}},
    };
    QFETCH(QStringList, visible);
    // From everything that can be shown, and from what has nothing in common with it.
    for (const char* before : {variable, constantQuantizer}) {
        OpenPage page(m_view);
        page.receive("Bitrate Mode", QString(QLatin1String(before)));
        page.put("HRD", hrd);
        page.receive("Bitrate Mode", mode);
        QStringList found;
        for (const auto& group : groups) {
            int shown = 0;
            for (const char* name : group.second) {
                shown += page.isVisible(name);
            }
            QVERIFY2(shown == 0 || shown == group.second.size(), group.first);
            if (shown > 0) {
                found += QLatin1String(group.first);
            }
        }
        QCOMPARE(found, visible);
        QCOMPARE(page.spy.take(), QStringList());
    }
}

void TestViewPage::variableBitrateWithoutHrdHidesMaximumAndBuffers()
{
    OpenPage page(m_view);
    page.receive("HRD", 0);
    QVERIFY(page.isVisible("targetRateSpin"));
    QVERIFY(!page.isVisible("maxRateSpin"));
    QVERIFY(!page.isVisible("groupBoxBuffers"));
}

void TestViewPage::hrdOtherThan1CountsAsOff_data()
{
    QTest::addColumn<int>("hrd");
    QTest::newRow("2") << 2;
    QTest::newRow("-1") << -1;
}

void TestViewPage::hrdOtherThan1CountsAsOff()
{
    QFETCH(int, hrd);
    OpenPage page(m_view);
    page.receive("HRD", hrd);
    QVERIFY(!page.isVisible("maxRateSpin"));
    QVERIFY(page.find<QCheckBox>("hrdCheck")->isChecked());
}

void TestViewPage::hrdSwitchIsAlwaysVisible()
{
    OpenPage page(m_view);
    for (const char* mode : {constant, variable, constantQuantizer, averageQuantizer, ""}) {
        for (const int hrd : {1, 0}) {
            page.put("HRD", hrd);
            page.receive("Bitrate Mode", QString(QLatin1String(mode)));
            QVERIFY(page.isVisible("hrdCheck"));
            QVERIFY(page.isVisible("bitrateModeList"));
        }
    }
}

void TestViewPage::hiddenIsNotDisabled()
{
    OpenPage page(m_view);
    page.receive("Bitrate Mode", QString(QLatin1String(constantQuantizer)));
    for (const char* name : {"targetRateSpin", "maxRateSpin", "bitrateBufferSpin", "iSizeSpin"}) {
        QVERIFY2(!page.isVisible(name), name);
        QVERIFY2(page.find<QWidget>(name)->isEnabled(), name);
    }
}

void TestViewPage::editOfVbvTargetReportsNothingAndOfVbvInitialTwice()
{
    OpenPage page(m_view);
    user::type(page.spin("vbvTargetSpin"), QStringLiteral("4711"));
    QCOMPARE(page.spin("vbvTargetSpin")->value(), 4711);
    QCOMPARE(page.spy.take(), QStringList());
    user::type(page.spin("vbvInitialSpin"), QStringLiteral("4711"));
    QCOMPARE(page.spy.take(), keyed({"VBV Initial=4711", "VBV Initial=4711"}));
}

void TestViewPage::chosenModeIsReportedAsItsText()
{
    OpenPage page(m_view);
    QVERIFY(user::choose(page.find<QComboBox>("bitrateModeList"), QLatin1String(constant)));
    QCOMPARE(page.spy.take(), keyed({"Bitrate Mode='Constant Bitrate'"}));
    // What is visible follows the state, not the choice.
    QVERIFY(page.isVisible("maxRateSpin"));
}

void TestViewPage::modeListIsEmptyUntilFilled()
{
    const auto page = makePage(m_view);
    QCOMPARE(page->findChild<QComboBox*>()->count(), 0);
}

void TestViewPage::fillingTheModesTwiceKeepsTheItemsOnce()
{
    const auto page = makePage(m_view);
    page->fillBitrateModes();
    page->fillBitrateModes();
    QCOMPARE(page->findChild<QComboBox*>()->count(), 4);
}

QTEST_MAIN(TestViewPage)
#include "tst_view_page.moc"
