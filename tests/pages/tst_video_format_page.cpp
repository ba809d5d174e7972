#include "AllPages.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include "pages/VideoFormatPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>
#include <QTest>

/// The picture format's own rules: keeping the aspect ratio, one more frame rate, what is enabled.
class TestVideoFormatPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void widthWithKeptRatioReportsTheHeight_data();
    void widthWithKeptRatioReportsTheHeight();
    void heightWithKeptRatioReportsTheWidth_data();
    void heightWithKeptRatioReportsTheWidth();
    void ratioChosenWithKeptRatioReportsTheWidth_data();
    void ratioChosenWithKeptRatioReportsTheWidth();
    void sizesAreReportedAloneUnlessTheRatioIsKept();
    void customRatioCouplesNothing();
    void ratioThatIsNoItemReportsTheHeightAgainButNoWidth();
    void unknownRatioMayLoseALineByTruncation();
    void switchingKeepOnReportsTheWidthAndOffNothing();
    void switchingKeepOnReportsNothingWithoutARatio();
    void keepSlotAsksTheBoxNotItsArgument();
    void otherSizeIsNotSetByThePage();
    void computedWidthBeyondTheRangeIsReportedAsComputed();
    void widthAndHeightAreReportedOnceEditingEnds();
    void keepAspectRatioSurvivesEveryState();

    void aspectRatioIsDisabledWithEitherSize_data();
    void aspectRatioIsDisabledWithEitherSize();
    void listsAreEmptyUntilFilled();
    void fillingTheListsTwiceKeepsTheItemsOnce();
    void secondFrameRateItemIsNotAdded();
    void frameRateItemMayRepeatOneOfTheList();
    void addedFrameRateIsShownAndReported();
};

namespace
{

/// The page alone in its window, with a size and a ratio, and keeping it or not.
class OpenPage
{
public:
    explicit OpenPage(const char* ratio, bool keep, int width = 352, int height = 288)
    {
        page.fillLists();
        spy.listenTo(&page);
        showAlone(&page);
        ConfigState state;
        state.insert(QStringLiteral("Horizontal Size"), width);
        state.insert(QStringLiteral("Vertical Size"), height);
        state.insert(QStringLiteral("Picture Aspect Ratio"), QString(QLatin1String(ratio)));
        page.receiveState(state);
        if (keep) {
            user::click(keepRatio());
        }
        spy.take();
    }

    template <class Widget>
    Widget* find(const char* name) const
    {
        return page.findChild<Widget*>(QLatin1String(name));
    }
    QSpinBox* width() const { return find<QSpinBox>("widthSpin"); }
    QSpinBox* height() const { return find<QSpinBox>("heightSpin"); }
    QCheckBox* keepRatio() const { return find<QCheckBox>("aspectRatioCheck"); }
    QComboBox* ratio() const { return find<QComboBox>("aspectRatioList"); }
    QComboBox* rate() const { return find<QComboBox>("framerateList"); }

    VideoFormatPage page;
    StateSpy spy;
};

void addRows(const QVector<QPair<QPair<const char*, int>, const char*>>& rows)
{
    QTest::addColumn<QString>("ratio");
    QTest::addColumn<int>("number");
    QTest::addColumn<QStringList>("states");
    for (const auto& row : rows) {
        QTest::newRow(qPrintable(
            QStringLiteral("%1, %2").arg(QLatin1String(row.first.first)).arg(row.first.second)))
            << QString(QLatin1String(row.first.first)) << row.first.second
            << (row.second ? lines({row.second}) : QStringList());
    }
}

} // namespace

void TestVideoFormatPage::widthWithKeptRatioReportsTheHeight_data()
{
    addRows({
        {{"16:9", 1024}, "Horizontal Size=1024; Vertical Size=576"},
        {{"16:9", 100}, "Horizontal Size=100; Vertical Size=56"},
        {{"16:9", 4096}, "Horizontal Size=4096; Vertical Size=2304"},
        {{"16:9", 16}, "Horizontal Size=16; Vertical Size=9"},
        {{"4:3", 720}, "Horizontal Size=720; Vertical Size=540"},
        {{"4:3", 354}, "Horizontal Size=354; Vertical Size=265"},
        {{"1:1", 500}, "Horizontal Size=500; Vertical Size=500"},
        {{"Custom", 500}, "Horizontal Size=500"},
    });
}

void TestVideoFormatPage::widthWithKeptRatioReportsTheHeight()
{
    QFETCH(QString, ratio);
    QFETCH(int, number);
    OpenPage page(qPrintable(ratio), true);
    user::type(page.width(), QString::number(number));
    const QStringList states = page.spy.take();
    QTEST(states, "states");
}

void TestVideoFormatPage::heightWithKeptRatioReportsTheWidth_data()
{
    addRows({
        {{"16:9", 720}, "Horizontal Size=1280; Vertical Size=720"},
        // Cut off, not rounded: 177.78.
        {{"16:9", 100}, "Horizontal Size=177; Vertical Size=100"},
        {{"4:3", 480}, "Horizontal Size=640; Vertical Size=480"},
        {{"4:3", 290}, "Horizontal Size=386; Vertical Size=290"},
        {{"1:1", 500}, "Horizontal Size=500; Vertical Size=500"},
        {{"Custom", 500}, "Vertical Size=500"},
        {{"", 500}, "Vertical Size=500"},
    });
}

void TestVideoFormatPage::heightWithKeptRatioReportsTheWidth()
{
    QFETCH(QString, ratio);
    QFETCH(int, number);
    OpenPage page(qPrintable(ratio), true);
    user::type(page.height(), QString::number(number));
    const QStringList states = page.spy.take();
    QTEST(states, "states");
}

void TestVideoFormatPage::ratioChosenWithKeptRatioReportsTheWidth_data()
{
    addRows({
        {{"4:3", 288}, "Horizontal Size=384; Picture Aspect Ratio='4:3'"},
        {{"16:9", 100}, "Horizontal Size=177; Picture Aspect Ratio='16:9'"},
        {{"1:1", 480}, "Horizontal Size=480; Picture Aspect Ratio='1:1'"},
        {{"Custom", 288}, "Picture Aspect Ratio='Custom'"},
    });
}

void TestVideoFormatPage::ratioChosenWithKeptRatioReportsTheWidth()
{
    QFETCH(QString, ratio);
    QFETCH(int, number);
    OpenPage page("Custom", true, 352, number);
    QVERIFY(user::choose(page.ratio(), ratio));
    const QStringList states = page.spy.take();
    QTEST(states, "states");
}

void TestVideoFormatPage::sizesAreReportedAloneUnlessTheRatioIsKept()
{
    OpenPage page("16:9", false);
    user::type(page.width(), QStringLiteral("1024"));
    user::type(page.height(), QStringLiteral("720"));
    QVERIFY(user::choose(page.ratio(), QStringLiteral("4:3")));
    QCOMPARE(page.spy.take(),
             lines({"Horizontal Size=1024", "Vertical Size=720", "Picture Aspect Ratio='4:3'"}));
}

void TestVideoFormatPage::customRatioCouplesNothing()
{
    OpenPage page("Custom", true);
    user::type(page.width(), QStringLiteral("1024"));
    user::type(page.height(), QStringLiteral("720"));
    QCOMPARE(page.spy.take(), lines({"Horizontal Size=1024", "Vertical Size=720"}));
}

void TestVideoFormatPage::ratioThatIsNoItemReportsTheHeightAgainButNoWidth()
{
    OpenPage page("", true, 352, 288);
    QCOMPARE(page.ratio()->currentIndex(), -1);
    user::type(page.width(), QStringLiteral("1024"));
    QCOMPARE(page.spy.take(), lines({"Horizontal Size=1024; Vertical Size=288"}));
    user::type(page.height(), QStringLiteral("500"));
    QCOMPARE(page.spy.take(), lines({"Vertical Size=500"}));
}

void TestVideoFormatPage::unknownRatioMayLoseALineByTruncation()
{
    // 42 / (42 / 19.0) is a little less than 19.
    OpenPage page("", true, 352, 19);
    user::type(page.width(), QStringLiteral("42"));
    QCOMPARE(page.spy.take(), lines({"Horizontal Size=42; Vertical Size=18"}));
}

void TestVideoFormatPage::switchingKeepOnReportsTheWidthAndOffNothing()
{
    OpenPage page("1:1", false, 352, 480);
    user::click(page.keepRatio());
    QVERIFY(page.keepRatio()->isChecked());
    QCOMPARE(page.spy.take(), lines({"Horizontal Size=480"}));
    user::click(page.keepRatio());
    QVERIFY(!page.keepRatio()->isChecked());
    QCOMPARE(page.spy.take(), QStringList());
}

void TestVideoFormatPage::switchingKeepOnReportsNothingWithoutARatio()
{
    for (const char* ratio : {"Custom", ""}) {
        OpenPage page(ratio, false);
        user::click(page.keepRatio());
        QVERIFY(page.keepRatio()->isChecked());
        QCOMPARE(page.spy.take(), QStringList());
    }
}

void TestVideoFormatPage::keepSlotAsksTheBoxNotItsArgument()
{
    OpenPage page("1:1", false, 352, 480);
    page.page.slotChangeAspectRatioCheck(true);
    QCOMPARE(page.spy.take(), QStringList());
    user::click(page.keepRatio());
    page.spy.take();
    page.page.slotChangeAspectRatioCheck(false);
    QCOMPARE(page.spy.take(), lines({"Horizontal Size=480"}));
}

void TestVideoFormatPage::otherSizeIsNotSetByThePage()
{
    OpenPage page("16:9", true, 352, 288);
    user::type(page.width(), QStringLiteral("1024"));
    QCOMPARE(page.height()->value(), 288);
    user::type(page.height(), QStringLiteral("720"));
    QCOMPARE(page.width()->value(), 1024);
}

void TestVideoFormatPage::computedWidthBeyondTheRangeIsReportedAsComputed()
{
    OpenPage page("16:9", true);
    user::type(page.height(), QStringLiteral("4096"));
    QCOMPARE(page.spy.take(), lines({"Horizontal Size=7281; Vertical Size=4096"}));
    ConfigState state;
    state.insert(QStringLiteral("Horizontal Size"), 7281);
    state.insert(QStringLiteral("Vertical Size"), 4096);
    page.page.receiveState(state);
    QCOMPARE(page.width()->value(), 4096);
    QCOMPARE(page.spy.take(), QStringList());
}

void TestVideoFormatPage::widthAndHeightAreReportedOnceEditingEnds()
{
    OpenPage page("Custom", false);
    for (QSpinBox* const field : {page.width(), page.height()}) {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QStringLiteral("1024"));
        QCOMPARE(page.spy.take(), QStringList());
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(page.spy.take().size(), 1);
        QTest::keyClick(field, Qt::Key_Up);
        QCOMPARE(page.spy.take().size(), 1);
    }
}

void TestVideoFormatPage::keepAspectRatioSurvivesEveryState()
{
    OpenPage page("4:3", true);
    page.page.receiveState({});
    QVERIFY(page.keepRatio()->isChecked());
    ConfigState state;
    state.insert(QStringLiteral("Horizontal Size"), 352, false);
    page.page.receiveState(state);
    QVERIFY(page.keepRatio()->isChecked());
}

void TestVideoFormatPage::aspectRatioIsDisabledWithEitherSize_data()
{
    QTest::addColumn<bool>("width");
    QTest::addColumn<bool>("height");
    QTest::addColumn<bool>("ratio");
    QTest::addColumn<bool>("page");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("both sizes free") << true << true << true << true << true;
    QTest::newRow("both sizes free, ratio locked") << true << true << false << true << true;
    QTest::newRow("both sizes free, page locked") << true << true << true << false << true;
    QTest::newRow("width locked") << false << true << true << true << false;
    QTest::newRow("height locked") << true << false << true << true << false;
    QTest::newRow("both locked") << false << false << true << true << false;
}

void TestVideoFormatPage::aspectRatioIsDisabledWithEitherSize()
{
    QFETCH(bool, width);
    QFETCH(bool, height);
    QFETCH(bool, ratio);
    QFETCH(bool, page);
    QFETCH(bool, enabled);
    OpenPage open("4:3", false);
    ConfigState state;
    state.insert(QStringLiteral("Horizontal Size"), 720, width);
    state.insert(QStringLiteral("Vertical Size"), 576, height);
    state.insert(QStringLiteral("Picture Aspect Ratio"), QStringLiteral("4:3"), ratio);
    open.page.setEnabled(page);
    open.page.receiveState(state);
    // A lock of the whole page is none of the sizes'.
    open.page.setEnabled(true);
    QCOMPARE(open.keepRatio()->isEnabled(), enabled);
    QCOMPARE(open.ratio()->isEnabled(), enabled);
}

void TestVideoFormatPage::listsAreEmptyUntilFilled()
{
    const VideoFormatPage page;
    const auto lists = page.findChildren<QComboBox*>();
    QCOMPARE(lists.size(), 8);
    for (const QComboBox* list : lists) {
        QCOMPARE(list->count(), 0);
    }
}

void TestVideoFormatPage::fillingTheListsTwiceKeepsTheItemsOnce()
{
    OpenPage page("Custom", false);
    page.page.fillLists();
    QCOMPARE(page.rate()->count(), 14);
    QCOMPARE(page.ratio()->count(), 4);
    QCOMPARE(page.find<QComboBox>("pulldownList")->count(), 8);
}

void TestVideoFormatPage::secondFrameRateItemIsNotAdded()
{
    OpenPage page("Custom", false);
    page.page.addFramerateItem(QStringLiteral("48"));
    page.page.addFramerateItem(QStringLiteral("120"));
    page.page.addFramerateItem(QStringLiteral("48"));
    QCOMPARE(page.rate()->count(), 15);
    QCOMPARE(page.rate()->itemText(14), QStringLiteral("48"));
    QCOMPARE(page.spy.take(), QStringList());
}

void TestVideoFormatPage::frameRateItemMayRepeatOneOfTheList()
{
    OpenPage page("Custom", false);
    page.page.addFramerateItem(QStringLiteral("23.98"));
    QCOMPARE(page.rate()->count(), 15);
    QCOMPARE(page.rate()->itemText(6), QStringLiteral("23.98"));
    QCOMPARE(page.rate()->itemText(14), QStringLiteral("23.98"));
}

void TestVideoFormatPage::addedFrameRateIsShownAndReported()
{
    OpenPage page("Custom", false);
    page.page.addFramerateItem(QStringLiteral("48"));
    ConfigState state;
    state.insert(QStringLiteral("Frame Rate"), QStringLiteral("48"));
    page.page.receiveState(state);
    QCOMPARE(page.rate()->currentText(), QStringLiteral("48"));
    QVERIFY(user::choose(page.rate(), QStringLiteral("24.00")));
    QVERIFY(user::choose(page.rate(), QStringLiteral("48")));
    QCOMPARE(page.spy.take(), lines({"Frame Rate='24.00'", "Frame Rate='48'"}));
}

QTEST_MAIN(TestVideoFormatPage)
#include "tst_video_format_page.moc"
