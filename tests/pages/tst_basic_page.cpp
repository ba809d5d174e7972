#include "AllPages.h"
#include "Controls.h"
#include "Sections.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include "pages/ToolBox.h"

#include <QComboBox>
#include <QLabel>
#include <QTest>

/// The "Basic Settings" tab: one section, and a device selector that nobody sees.
class TestBasicPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void deviceSelectorIsNeverVisible();
    void videoFormatIsTheOnlySection();
    void collapsingTheOnlySectionLeavesItsRow();
    void titlesAreBoldAndThePageNormal();
    void editOfTheChildIsForwardedUnchanged();
    void stateReachesTheChild();
    void frameRateItemReachesTheChild();
};

namespace
{

const QString videoFormat = QStringLiteral("VideoFormatPage");

} // namespace

void TestBasicPage::deviceSelectorIsNeverVisible()
{
    AllPages pages;
    QVERIFY(pages.show());
    ConfigState devices;
    devices.insert(QString(), 1);
    devices.insert(QStringLiteral("CUDA Devices"), QStringLiteral("0"));
    for (const ConfigState& state : {stateOf(&Control::a), ConfigState(), devices}) {
        pages.receive(state);
        for (const char* name : {"deviceGroup", "deviceLabel", "deviceList"}) {
            const QWidget* const widget =
                findOnPage(pages.window(), QStringLiteral("BasicPage"), QLatin1String(name));
            QVERIFY2(widget, name);
            QVERIFY2(!widget->isVisible(), name);
            QVERIFY2(widget->isHidden(), name);
        }
    }
}

void TestBasicPage::videoFormatIsTheOnlySection()
{
    AllPages pages;
    QCOMPARE(sectionTitles(pages.basic), lines({"Video Format"}));
}

void TestBasicPage::collapsingTheOnlySectionLeavesItsRow()
{
    AllPages pages;
    QVERIFY(pages.show());
    auto* const button = sectionButton(pages.basic, QStringLiteral("Video Format"));
    QVERIFY(button);
    user::click(button);
    QStringList visible;
    for (const QWidget* widget : pages.basic->findChildren<QWidget*>()) {
        if (widget->isVisible() &&
            (widget->inherits("QLabel") || widget->inherits("QComboBox") ||
             widget->inherits("QAbstractSpinBox") || widget->inherits("QAbstractButton"))) {
            visible +=
                widget == button ? QStringLiteral("button") : widget->property("text").toString();
        }
    }
    visible.sort();
    QCOMPARE(visible, lines({"Video Format", "button"}));
}

void TestBasicPage::titlesAreBoldAndThePageNormal()
{
    AllPages pages;
    QVERIFY(pages.basic->findChild<ToolBox*>()->font().weight() == QFont::Bold);
    const auto* const label = qobject_cast<QLabel*>(
        findOnPage(pages.window(), videoFormat, QStringLiteral("resolutionLabel")));
    QVERIFY(label->font().weight() == QFont::Normal);
    QVERIFY(pageOf(label)->font().weight() == QFont::Normal);
}

void TestBasicPage::editOfTheChildIsForwardedUnchanged()
{
    AllPages pages;
    QVERIFY(pages.show());
    auto* const list = qobject_cast<QComboBox*>(
        findOnPage(pages.window(), videoFormat, QStringLiteral("interlaceList")));
    StateSpy child(pageOf(list));
    QVERIFY(user::choose(list, QStringLiteral("MBAFF")));
    QCOMPARE(child.take(), lines({"Interlace='MBAFF'"}));
    QCOMPARE(pages.spy.take(), lines({"Interlace='MBAFF'"}));
}

void TestBasicPage::stateReachesTheChild()
{
    BasicPage page;
    ConfigState state;
    state.insert(QStringLiteral("Interlace"), QStringLiteral("MBAFF"));
    page.receiveState(state);
    QCOMPARE(page.findChild<QComboBox*>(QStringLiteral("interlaceList"))->currentText(),
             QStringLiteral("MBAFF"));
}

void TestBasicPage::frameRateItemReachesTheChild()
{
    BasicPage page;
    const auto* const list = page.findChild<QComboBox*>(QStringLiteral("framerateList"));
    page.addFramerateItem(QStringLiteral("48"));
    QCOMPARE(list->count(), 15);
    QCOMPARE(list->itemText(14), QStringLiteral("48"));
}

QTEST_MAIN(TestBasicPage)
#include "tst_basic_page.moc"
