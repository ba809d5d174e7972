#include "AllPages.h"
#include "Controls.h"
#include "Sections.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include "model/Vocabulary.h"
#include "pages/ToolBox.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QTest>

/// The "Advanced Settings" tab: profile, level, and four sections.
class TestAdvancedPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void sectionsComeInOrder();
    void listsHoldTheNamesInTheMapsOrder();
    void listsAreReplacedByTheNextMaps();
    void textThatIsNoItemLeavesNoneAndReportsNothing_data();
    void textThatIsNoItemLeavesNoneAndReportsNothing();
    void disabledLevelGreysTheLevelListAlone();
    void choosingAProfileReportsTheProfileAlone();
    void editOfAnyChildIsForwarded_data();
    void editOfAnyChildIsForwarded();
    void titlesAreBoldAndThePagesNormal();
};

namespace
{

QComboBox* list(AllPages& pages, const char* name)
{
    return qobject_cast<QComboBox*>(
        findOnPage(pages.window(), QStringLiteral("AdvancedPage"), QLatin1String(name)));
}

QStringList items(const QComboBox* box)
{
    QStringList texts;
    for (int i = 0; i < box->count(); ++i) {
        texts += box->itemText(i);
    }
    return texts;
}

} // namespace

void TestAdvancedPage::sectionsComeInOrder()
{
    AllPages pages;
    QCOMPARE(sectionTitles(pages.advanced),
             lines({"GOP Structure", "Motion Estimation", "Rate Distortion", "Miscellaneous"}));
}

void TestAdvancedPage::listsHoldTheNamesInTheMapsOrder()
{
    AllPages pages;
    const Vocabulary vocabulary;
    pages.advanced->setProfileLevelLists(vocabulary.profiles(), vocabulary.levels());
    QCOMPARE(items(list(pages, "profileList")), lines({"Baseline", "High", "High 10", "Main"}));
    QCOMPARE(items(list(pages, "levelList")),
             lines({"1.0", "1.1", "1.2", "1.3", "1.6", "2.0", "2.1", "2.2", "3.0", "3.1", "3.2",
                    "4.0", "4.1", "4.2", "5.0", "5.1", "5.2", "Auto"}));
    for (int i = 0; i < 4; ++i) {
        QVERIFY(!list(pages, "profileList")->itemData(i).isValid());
    }
}

void TestAdvancedPage::listsAreReplacedByTheNextMaps()
{
    AllPages pages;
    pages.advanced->setProfileLevelLists({{QStringLiteral("b"), 1}, {QStringLiteral("a"), 2}},
                                         {{QStringLiteral("z"), 0}});
    QCOMPARE(items(list(pages, "profileList")), lines({"a", "b"}));
    QCOMPARE(items(list(pages, "levelList")), lines({"z"}));
    QCOMPARE(pages.spy.take(), QStringList());
}

void TestAdvancedPage::textThatIsNoItemLeavesNoneAndReportsNothing_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("profileList") << QStringLiteral("Profile");
    QTest::newRow("levelList") << QStringLiteral("Level");
}

void TestAdvancedPage::textThatIsNoItemLeavesNoneAndReportsNothing()
{
    QFETCH(QString, key);
    AllPages pages;
    ConfigState state = stateOf(&Control::a);
    pages.receive(state);
    QVERIFY(list(pages, QTest::currentDataTag())->currentIndex() >= 0);
    state.insert(key, QStringLiteral("High 422"));
    pages.receive(state);
    QCOMPARE(list(pages, QTest::currentDataTag())->currentIndex(), -1);
    QCOMPARE(pages.spy.take(), QStringList());
}

void TestAdvancedPage::disabledLevelGreysTheLevelListAlone()
{
    AllPages pages;
    ConfigState state = stateOf(&Control::a);
    state.insert(QStringLiteral("Level"), QStringLiteral("4.1"), false);
    pages.receive(state);
    QVERIFY(!list(pages, "levelList")->isEnabled());
    QVERIFY(list(pages, "profileList")->isEnabled());
    QCOMPARE(list(pages, "levelList")->currentText(), QStringLiteral("4.1"));
}

void TestAdvancedPage::choosingAProfileReportsTheProfileAlone()
{
    AllPages pages;
    QVERIFY(pages.show());
    pages.receive(stateOf(&Control::a));
    QVERIFY(user::choose(list(pages, "profileList"), QStringLiteral("High 10")));
    QCOMPARE(pages.spy.take(), lines({"Profile='High 10'"}));
    QCOMPARE(list(pages, "levelList")->currentText(), QStringLiteral("4.1"));
}

void TestAdvancedPage::editOfAnyChildIsForwarded_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QStringList>("states");
    const auto row = [](const char* page, const char* box, const char* state) {
        QTest::newRow(page) << QString(QLatin1String(box)) << lines({state});
    };
    row("GOPStructurePage", "adaptiveBCheck", "Adaptive B=true");
    row("MotionEstimationPage", "fastSubCheck", "Fast Subblock=true");
    row("RateDistortionPage", "simpleRDCheck", "Simple RD=true");
    row("MiscPage", "deblockingCheck", "Deblocking=true");
}

void TestAdvancedPage::editOfAnyChildIsForwarded()
{
    QFETCH(QString, box);
    AllPages pages;
    QVERIFY(pages.show());
    auto* const button = qobject_cast<QAbstractButton*>(
        findOnPage(pages.window(), QLatin1String(QTest::currentDataTag()), box));
    QVERIFY(button);
    user::click(button);
    const QStringList states = pages.spy.take();
    QTEST(states, "states");
}

void TestAdvancedPage::titlesAreBoldAndThePagesNormal()
{
    AllPages pages;
    QVERIFY(pages.advanced->findChild<ToolBox*>()->font().weight() == QFont::Bold);
    const QVector<QPair<const char*, const char*>> labels = {
        {"GOPStructurePage", "pDistanceLabel"},
        {"MotionEstimationPage", "macroSearchLabel"},
        {"RateDistortionPage", "brightnessLabel"},
        {"MiscPage", "label"}};
    for (const auto& label : labels) {
        const QWidget* const widget =
            findOnPage(pages.window(), QLatin1String(label.first), QLatin1String(label.second));
        QVERIFY2(widget, label.first);
        QVERIFY2(widget->font().weight() == QFont::Normal, label.first);
    }
}

QTEST_MAIN(TestAdvancedPage)
#include "tst_advanced_page.moc"
