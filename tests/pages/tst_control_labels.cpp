#include "AllPages.h"
#include "Controls.h"
#include "ToolkitWarnings.h"

#include <QLabel>
#include <QTest>

/// Labels are one with the control that they stand beside.
class ControlLabelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void labelShowsTheControlsTip_data() { rows(); }
    void labelShowsTheControlsTip();
    void labelFollowsAnotherTip();
    void labelIsGreyWhileTheControlIsDisabled_data() { rows(); }
    void labelIsGreyWhileTheControlIsDisabled();
    void labelOfADisabledPageIsGreyOnce();
    void everyBuddyIsFollowed();

private:
    static void rows();
};

namespace
{

QLabel* labelOn(AllPages& pages, const QString& page, const QString& name)
{
    return qobject_cast<QLabel*>(findOnPage(pages.window(), page, name));
}

bool isGrey(const QLabel* label)
{
    return label->foregroundRole() == QPalette::PlaceholderText;
}

/// The state of all controls, with these keys disabled.
ConfigState without(const QStringList& keys)
{
    ConfigState state = stateOf(&Control::a);
    for (const QString& key : keys)
        state.insert(key, state.value(key), false);
    return state;
}

} // namespace

void ControlLabelsTest::rows()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("key");
    const auto row = [](const char* page, const char* label, const char* control, const char* key) {
        QTest::addRow("%s.%s", page, label)
            << QString::fromLatin1(page) << QString::fromLatin1(label)
            << QString::fromLatin1(control) << QString::fromLatin1(key);
    };
    row("VideoFormatPage", "resolutionLabel", "widthSpin", "Horizontal Size");
    row("VideoFormatPage", "labelX", "heightSpin", "Vertical Size");
    row("VideoFormatPage", "fieldOrderLabel", "fieldOrderList", "Field Order");
    row("AdvancedPage", "profileLabel", "profileList", "Profile");
    row("GOPStructurePage", "pDistanceLabel", "iFrameIntervalSpin", "Interval I");
    row("GOPStructurePage", "label", "idrSpin", "IDR Marker");
    row("GOPStructurePage", "label_2", "idrSpin", "IDR Marker");
    row("MotionEstimationPage", "searchRangeLabel", "searchRangeSpin", "Motion Search");
    row("RateDistortionPage", "label_2", "contrastSlider", "Contrast");
    row("RateDistortionPage", "contrastLabel", "contrastSlider", "Contrast");
    row("MiscPage", "label_3", "slicesSpin", "Slices");
    row("ViewsPage", "profileLabel", "numViewsSpin", "Number of views");
    row("View0Page", "brModeLabel", "bitrateModeList", "Bitrate Mode V0");
    row("View3Page", "vbvTargetLabel", "vbvTargetSpin", "VBV Target V3");
}

void ControlLabelsTest::labelShowsTheControlsTip()
{
    QFETCH(QString, page);
    QFETCH(QString, label);
    QFETCH(QString, control);
    AllPages pages;
    const QString tip = findOnPage(pages.window(), page, control)->toolTip();
    QVERIFY(!tip.isEmpty());
    QCOMPARE(labelOn(pages, page, label)->toolTip(), tip);
}

void ControlLabelsTest::labelFollowsAnotherTip()
{
    AllPages pages;
    const QString page = QStringLiteral("MiscPage");
    findOnPage(pages.window(), page, QStringLiteral("slicesSpin"))
        ->setToolTip(QStringLiteral("another"));
    QCOMPARE(labelOn(pages, page, QStringLiteral("label_3"))->toolTip(), QStringLiteral("another"));
}

void ControlLabelsTest::labelIsGreyWhileTheControlIsDisabled()
{
    QFETCH(QString, page);
    QFETCH(QString, label);
    QFETCH(QString, key);
    AllPages pages;
    const QLabel* const shown = labelOn(pages, page, label);
    pages.receive(without({}));
    QVERIFY(!isGrey(shown));
    pages.receive(without({key}));
    QVERIFY(isGrey(shown));
    // To look at only: a page disables controls, and nothing else.
    QVERIFY(shown->isEnabledTo(shown->parentWidget()));
    int grey = 0;
    for (const QLabel* other : pages.window()->findChildren<QLabel*>())
        grey += isGrey(other);
    // Two labels make the sentence of the IDR marker, two stand beside a slider.
    const bool twice = key == QLatin1String("IDR Marker") || key == QLatin1String("Contrast");
    QCOMPARE(grey, twice ? 2 : 1);
    pages.receive(without({}));
    QVERIFY(!isGrey(shown));
}

void ControlLabelsTest::labelOfADisabledPageIsGreyOnce()
{
    AllPages pages;
    ConfigState state = without({});
    state.insert(QStringLiteral("Number of views"), 0);
    pages.receive(state);
    const QLabel* const label =
        labelOn(pages, QStringLiteral("View1Page"), QStringLiteral("brModeLabel"));
    QVERIFY(!label->isEnabled());
    QVERIFY(!isGrey(label));
}

void ControlLabelsTest::everyBuddyIsFollowed()
{
    AllPages pages;
    int labels = 0;
    for (QLabel* label : pages.window()->findChildren<QLabel*>()) {
        QWidget* const control = label->buddy();
        // The sections' buttons are not named by a label that stands for a setting.
        if (!control || control->inherits("QToolButton") ||
            control->objectName() == QLatin1String("deviceList"))
            continue;
        ++labels;
        control->setEnabled(false);
        QVERIFY2(isGrey(label), qPrintable(label->text()));
    }
    QCOMPARE(labels, 11 + 2 + 4 + 4 + 3 + 3 + 1 + 4 * 15);
}

QTEST_MAIN(ControlLabelsTest)
#include "tst_control_labels.moc"
