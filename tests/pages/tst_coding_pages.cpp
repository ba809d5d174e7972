#include "AllPages.h"
#include "Controls.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include "pages/MotionEstimationPage.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QMouseEvent>
#include <QSlider>
#include <QSpinBox>
#include <QStyleOptionSlider>
#include <QTest>

/// What is particular to the pages of coding tools: GOP structure, motion estimation, rate
/// distortion, miscellaneous.
class TestCodingPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void typing250IntoTheIntervalReportsThreeTimesAndBBetweenOnce();
    void intervalOf400Shows300AndReportsNothing();
    void disabledEntryGreysOneControlOfTheGopPage_data();
    void disabledEntryGreysOneControlOfTheGopPage();

    void tickingFastSubblockReportsItAlone();
    void motionSearchOf128Shows99AndReportsNothing();
    void unknownSubpixelTextLeavesNoItem();
    void searchListsAreEmptyUntilFilled();
    void fillingTheSearchListsTwiceKeepsTheItemsOnce();

    void draggingTheSliderReportsEveryValuePassed();
    void readOutFollowsOnlyTheState();
    void readOutShows_data();
    void readOutShows();

    void threads0ShowsAuto();
    void steppingDownFrom1ReportsThreads0();
    void slices0Shows1AndReportsNothing();
    void unknownEntropyTextLeavesNoItem();
};

namespace
{

const QString gop = QStringLiteral("GOPStructurePage");
const QString motion = QStringLiteral("MotionEstimationPage");
const QString distortion = QStringLiteral("RateDistortionPage");
const QString misc = QStringLiteral("MiscPage");

template <class Widget>
Widget* find(AllPages& pages, const QString& page, const char* name)
{
    auto* const found =
        qobject_cast<Widget*>(findOnPage(pages.window(), page, QLatin1String(name)));
    Q_ASSERT(found);
    return found;
}

void receive(AllPages& pages, const char* key, const QVariant& value)
{
    ConfigState state = stateOf(&Control::a);
    state.insert(QLatin1String(key), value);
    pages.receive(state);
}

} // namespace

void TestCodingPages::typing250IntoTheIntervalReportsThreeTimesAndBBetweenOnce()
{
    AllPages pages;
    QVERIFY(pages.show());
    user::type(find<QSpinBox>(pages, gop, "iFrameIntervalSpin"), QStringLiteral("250"));
    QCOMPARE(pages.spy.take(), lines({"Interval I=2", "Interval I=25", "Interval I=250"}));

    auto* const field = find<QSpinBox>(pages, gop, "bBetweenIPSpin");
    user::reveal(field);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("2"));
    QCOMPARE(pages.spy.take(), QStringList());
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(pages.spy.take(), lines({"B Between=2"}));
}

void TestCodingPages::intervalOf400Shows300AndReportsNothing()
{
    AllPages pages;
    receive(pages, "Interval I", 400);
    QCOMPARE(find<QSpinBox>(pages, gop, "iFrameIntervalSpin")->value(), 300);
    QCOMPARE(pages.spy.take(), QStringList());
}

void TestCodingPages::disabledEntryGreysOneControlOfTheGopPage_data()
{
    QTest::addColumn<QString>("key");
    for (const ledger::Setting& setting : ledger::settingsOn("GOPStructurePage")) {
        QTest::newRow(setting.control) << setting.keyOf();
    }
}

void TestCodingPages::disabledEntryGreysOneControlOfTheGopPage()
{
    QFETCH(QString, key);
    AllPages pages;
    ConfigState state = stateOf(&Control::a);
    state.insert(key, 1, false);
    pages.receive(state);
    QStringList disabled;
    for (const QWidget* widget : pages.advanced->findChildren<QWidget*>()) {
        // Parts of a control go with it.
        if (!widget->isEnabled() && widget->parentWidget()->isEnabled()) {
            disabled += widget->objectName();
        }
    }
    QCOMPARE(disabled, QStringList(QLatin1String(QTest::currentDataTag())));
}

void TestCodingPages::tickingFastSubblockReportsItAlone()
{
    AllPages pages;
    QVERIFY(pages.show());
    user::click(find<QAbstractButton>(pages, motion, "fastSubCheck"));
    QCOMPARE(pages.spy.take(), lines({"Fast Subblock=true"}));
}

void TestCodingPages::motionSearchOf128Shows99AndReportsNothing()
{
    AllPages pages;
    receive(pages, "Motion Search", 128);
    QCOMPARE(find<QSpinBox>(pages, motion, "searchRangeSpin")->value(), 99);
    QCOMPARE(pages.spy.take(), QStringList());
}

void TestCodingPages::unknownSubpixelTextLeavesNoItem()
{
    AllPages pages;
    receive(pages, "Subpixel Search", QStringLiteral("Eighth"));
    QCOMPARE(find<QComboBox>(pages, motion, "subSearchList")->currentIndex(), -1);
}

void TestCodingPages::searchListsAreEmptyUntilFilled()
{
    const MotionEstimationPage page;
    for (const QComboBox* list : page.findChildren<QComboBox*>()) {
        QCOMPARE(list->count(), 0);
    }
}

void TestCodingPages::fillingTheSearchListsTwiceKeepsTheItemsOnce()
{
    MotionEstimationPage page;
    page.fillSearchLists();
    page.fillSearchLists();
    QCOMPARE(page.findChild<QComboBox*>(QStringLiteral("macroSearchList"))->count(), 2);
    QCOMPARE(page.findChild<QComboBox*>(QStringLiteral("subSearchList"))->count(), 3);
}

void TestCodingPages::draggingTheSliderReportsEveryValuePassed()
{
    AllPages pages;
    QVERIFY(pages.show());
    auto* const slider = find<QSlider>(pages, distortion, "contrastSlider");
    user::reveal(slider);
    const auto handle = [slider] {
        QStyleOptionSlider option;
        option.initFrom(slider);
        option.minimum = slider->minimum();
        option.maximum = slider->maximum();
        option.sliderPosition = slider->sliderPosition();
        option.tickPosition = slider->tickPosition();
        return slider->style()
            ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider)
            .center();
    };
    // From 0 by small steps until 40 or a little more, in positions of the pointer.
    QPoint place = handle();
    QTest::mousePress(slider, Qt::LeftButton, {}, place);
    QStringList expected;
    int last = slider->value();
    QCOMPARE(last, 0);
    while (slider->value() < 40 && place.x() < slider->width()) {
        place.rx() += 1;
        // QTest's own has no button pressed in Qt 5.
        QMouseEvent move(QEvent::MouseMove, place, slider->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, {});
        QCoreApplication::sendEvent(slider, &move);
        if (slider->value() != last) {
            expected += QStringLiteral("Contrast=%1").arg(slider->value());
        }
        last = slider->value();
    }
    QTest::mouseRelease(slider, Qt::LeftButton, {}, place);
    QVERIFY(slider->value() >= 40);
    QVERIFY(expected.size() > 10);
    QCOMPARE(pages.spy.take(), expected);
}

void TestCodingPages::readOutFollowsOnlyTheState()
{
    AllPages pages;
    QVERIFY(pages.show());
    const auto* const readOut = find<QLabel>(pages, distortion, "contrastLabel");
    QCOMPARE(readOut->text(), QStringLiteral("TextLabel"));
    auto* const slider = find<QSlider>(pages, distortion, "contrastSlider");
    user::pageUp(slider);
    QCOMPARE(pages.spy.take(), lines({"Contrast=20"}));
    QCOMPARE(readOut->text(), QStringLiteral("TextLabel"));
    receive(pages, "Contrast", 20);
    QCOMPARE(readOut->text(), QStringLiteral("20"));
}

void TestCodingPages::readOutShows_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    for (const char* key : {"Brightness", "Contrast", "Complexity"}) {
        const auto row = [key](int number, const char* text) {
            QTest::newRow(qPrintable(QStringLiteral("%1 = %2").arg(QLatin1String(key)).arg(number)))
                << QString(QLatin1String(key)) << number << QString(QLatin1String(text));
        };
        row(0, "0 (not used)");
        row(-20, "-20");
        row(1, "1");
        row(100, "100");
        // Taken from the slider, not from the state.
        row(150, "100");
        row(-1000, "-100");
    }
}

void TestCodingPages::readOutShows()
{
    QFETCH(QString, key);
    QFETCH(int, number);
    AllPages pages;
    receive(pages, qPrintable(key), number);
    const auto* const readOut =
        find<QLabel>(pages, distortion, qPrintable(key.toLower() + QStringLiteral("Label")));
    const QString text = readOut->text();
    QTEST(text, "text");
    QCOMPARE(pages.spy.take(), QStringList());
}

void TestCodingPages::threads0ShowsAuto()
{
    AllPages pages;
    receive(pages, "Threads", 0);
    QCOMPARE(find<QSpinBox>(pages, misc, "threadsSpin")->text(), QStringLiteral("Auto"));
    receive(pages, "Threads", 1);
    QCOMPARE(find<QSpinBox>(pages, misc, "threadsSpin")->text(), QStringLiteral("1"));
}

void TestCodingPages::steppingDownFrom1ReportsThreads0()
{
    AllPages pages;
    QVERIFY(pages.show());
    receive(pages, "Threads", 1);
    auto* const field = find<QSpinBox>(pages, misc, "threadsSpin");
    user::reveal(field);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Down);
    QCOMPARE(field->text(), QStringLiteral("Auto"));
    QCOMPARE(pages.spy.take(), lines({"Threads=0"}));
}

void TestCodingPages::slices0Shows1AndReportsNothing()
{
    AllPages pages;
    receive(pages, "Slices", 0);
    QCOMPARE(find<QSpinBox>(pages, misc, "slicesSpin")->value(), 1);
    QCOMPARE(pages.spy.take(), QStringList());
}

void TestCodingPages::unknownEntropyTextLeavesNoItem()
{
    AllPages pages;
    receive(pages, "Entropy", QStringLiteral("cabac"));
    QCOMPARE(find<QComboBox>(pages, misc, "entropyList")->currentIndex(), -1);
}

QTEST_MAIN(TestCodingPages)
#include "tst_coding_pages.moc"
