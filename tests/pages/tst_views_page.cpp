#include "AllPages.h"
#include "Controls.h"
#include "Sections.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include "pages/ToolBox.h"

#include <QAbstractButton>
#include <QEvent>
#include <QHash>
#include <QLabel>
#include <QSpinBox>
#include <QTest>

#include <climits>

/// The "Views" tab: how many views there are decides which of them can be edited.
class TestViewsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void sectionsComeInOrder();
    void numberOfViewsEnablesPages_data();
    void numberOfViewsEnablesPages();
    void numberOutOfRangeIsComparedUnsigned_data();
    void numberOutOfRangeIsComparedUnsigned();
    void absentNumberEnablesTheBaseViewOnly();
    void eachPageIsToldAndThenEnabled_data();
    void eachPageIsToldAndThenEnabled();
    void changingTheNumberReportsItAloneAndEnablesNothingYet();
    void splitIsReported();
    void editOfAnyViewIsForwardedUnchanged_data();
    void editOfAnyViewIsForwardedUnchanged();
    void disabledViewKeepsItsValuesAndItsSectionOpens();
    void titlesAreBoldAndThePagesNormal();
};

namespace
{

QStringList enabledPages(AllPages& pages)
{
    QStringList names;
    for (int view = 0; view < 4; ++view) {
        const QString page = QStringLiteral("View%1Page").arg(view);
        const auto* const control = findOnPage(pages.window(), page, QStringLiteral("hrdCheck"));
        if (pageOf(control)->isEnabled()) {
            names += page;
        }
    }
    return names;
}

/// Writes down which view pages are told a state that switches HRD, and which change to enabled or
/// disabled, in order: "View1Page told", "View1Page enabled".
class OrderSpy : public QObject
{
public:
    explicit OrderSpy(AllPages& pages)
    {
        for (int view = 0; view < 4; ++view) {
            const QString page = QStringLiteral("View%1Page").arg(view);
            // HRD shows and hides it, whether or not the page is enabled.
            QWidget* const row = findOnPage(pages.window(), page, QStringLiteral("maxRateSpin"));
            m_told.insert(row, page + QLatin1String(" told"));
            m_enabled.insert(pageOf(row), page);
            row->installEventFilter(this);
            pageOf(row)->installEventFilter(this);
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool shown =
            event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent;
        if (shown && m_told.contains(watched)) {
            order += m_told.value(watched);
        }
        if (event->type() == QEvent::EnabledChange && m_enabled.contains(watched)) {
            const bool on = qobject_cast<QWidget*>(watched)->isEnabled();
            order += m_enabled.value(watched) + QLatin1String(on ? " enabled" : " disabled");
        }
        return false;
    }

    QStringList order;

private:
    QHash<QObject*, QString> m_told;
    QHash<QObject*, QString> m_enabled;
};

ConfigState withNumber(int number)
{
    ConfigState state = stateOf(&Control::a);
    state.insert(QStringLiteral("Number of views"), number);
    return state;
}

} // namespace

void TestViewsPage::sectionsComeInOrder()
{
    AllPages pages;
    QCOMPARE(sectionTitles(pages.views), lines({"Base View", "View 1", "View 2", "View 3"}));
}

void TestViewsPage::numberOfViewsEnablesPages_data()
{
    QTest::addColumn<QStringList>("enabled");
    QTest::newRow("0") << lines({"View0Page"});
    QTest::newRow("1") << lines({"View0Page", "View1Page"});
    QTest::newRow("2") << lines({"View0Page", "View1Page", "View2Page"});
    QTest::newRow("3") << lines({"View0Page", "View1Page", "View2Page", "View3Page"});
}

void TestViewsPage::numberOfViewsEnablesPages()
{
    QFETCH(QStringList, enabled);
    const int number = QByteArray(QTest::currentDataTag()).toInt();
    AllPages pages;
    // From all to this number, and from none.
    pages.receive(withNumber(3));
    pages.receive(withNumber(number));
    QCOMPARE(enabledPages(pages), enabled);
    pages.receive(withNumber(0));
    pages.receive(withNumber(number));
    QCOMPARE(enabledPages(pages), enabled);
}

void TestViewsPage::numberOutOfRangeIsComparedUnsigned_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("shownNumber");
    QTest::newRow("5") << 5 << 3;
    QTest::newRow("-1") << -1 << 0;
    QTest::newRow("INT_MAX") << INT_MAX << 3;
    QTest::newRow("INT_MIN") << INT_MIN << 0;
}

void TestViewsPage::numberOutOfRangeIsComparedUnsigned()
{
    QFETCH(int, number);
    QFETCH(int, shownNumber);
    AllPages pages;
    pages.receive(withNumber(0));
    pages.receive(withNumber(number));
    QCOMPARE(enabledPages(pages), lines({"View0Page", "View1Page", "View2Page", "View3Page"}));
    QCOMPARE(pages.views->findChild<QSpinBox*>(QStringLiteral("numViewsSpin"))->value(),
             shownNumber);
    QCOMPARE(pages.spy.take(), QStringList());
}

void TestViewsPage::absentNumberEnablesTheBaseViewOnly()
{
    AllPages pages;
    pages.receive(withNumber(3));
    pages.receive({});
    QCOMPARE(enabledPages(pages), lines({"View0Page"}));
}

void TestViewsPage::eachPageIsToldAndThenEnabled_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("number");
    QTest::addColumn<QStringList>("order");
    QTest::newRow("one to four views")
        << 0 << 3
        << lines({"View0Page told", "View1Page told", "View1Page enabled", "View2Page told",
                  "View2Page enabled", "View3Page told", "View3Page enabled"});
    QTest::newRow("four views to one")
        << 3 << 0
        << lines({"View0Page told", "View1Page told", "View1Page disabled", "View2Page told",
                  "View2Page disabled", "View3Page told", "View3Page disabled"});
}

void TestViewsPage::eachPageIsToldAndThenEnabled()
{
    QFETCH(int, before);
    QFETCH(int, number);
    AllPages pages;
    ConfigState state = withNumber(before);
    const auto setHrd = [&state](int hrd) {
        for (const char* view : {"V0", "V1", "V2", "V3"}) {
            state.insert(QLatin1String("Bitrate Mode ") + QLatin1String(view),
                         QStringLiteral("Variable Bitrate"));
            state.insert(QLatin1String("HRD ") + QLatin1String(view), hrd);
        }
    };
    setHrd(1);
    pages.receive(state);
    OrderSpy spy(pages);
    setHrd(0);
    state.insert(QStringLiteral("Number of views"), number);
    pages.receive(state);
    QTEST(spy.order, "order");
}

void TestViewsPage::changingTheNumberReportsItAloneAndEnablesNothingYet()
{
    AllPages pages;
    QVERIFY(pages.show());
    pages.receive(withNumber(0));
    user::type(pages.views->findChild<QSpinBox*>(QStringLiteral("numViewsSpin")),
               QStringLiteral("2"));
    QCOMPARE(pages.spy.take(), lines({"Number of views=2"}));
    QCOMPARE(enabledPages(pages), lines({"View0Page"}));
    pages.receive(withNumber(2));
    QCOMPARE(enabledPages(pages), lines({"View0Page", "View1Page", "View2Page"}));
}

void TestViewsPage::splitIsReported()
{
    AllPages pages;
    QVERIFY(pages.show());
    user::click(pages.views->findChild<QAbstractButton*>(QStringLiteral("splitCheck")));
    QCOMPARE(pages.spy.take(), lines({"Split=true"}));
}

void TestViewsPage::editOfAnyViewIsForwardedUnchanged_data()
{
    QTest::addColumn<int>("view");
    for (int view = 0; view < 4; ++view) {
        QTest::newRow(qPrintable(QString::number(view))) << view;
    }
}

void TestViewsPage::editOfAnyViewIsForwardedUnchanged()
{
    QFETCH(int, view);
    AllPages pages;
    QVERIFY(pages.show());
    pages.receive(withNumber(3));
    auto* const box = qobject_cast<QAbstractButton*>(findOnPage(
        pages.window(), QStringLiteral("View%1Page").arg(view), QStringLiteral("hrdCheck")));
    StateSpy child(pageOf(box));
    user::click(box);
    const QStringList expected(QStringLiteral("HRD V%1=false").arg(view));
    QCOMPARE(child.take(), expected);
    QCOMPARE(pages.spy.take(), expected);
}

void TestViewsPage::disabledViewKeepsItsValuesAndItsSectionOpens()
{
    AllPages pages;
    QVERIFY(pages.show());
    pages.receive(withNumber(0));
    auto* const field = qobject_cast<QSpinBox*>(
        findOnPage(pages.window(), QStringLiteral("View2Page"), QStringLiteral("targetRateSpin")));
    user::reveal(field);
    QVERIFY(!field->isEnabled());
    QVERIFY(field->isVisible());
    QCOMPARE(field->value(), 4000000);
    auto* const button = sectionButton(pages.views, QStringLiteral("View 2"));
    QVERIFY(button->isEnabled());
    user::click(button);
    QVERIFY(!field->isVisible());
    user::click(button);
    QVERIFY(field->isVisible());
    QCOMPARE(pages.spy.take(), QStringList());
}

void TestViewsPage::titlesAreBoldAndThePagesNormal()
{
    AllPages pages;
    QVERIFY(pages.views->findChild<ToolBox*>()->font().weight() == QFont::Bold);
    const auto* const label = pages.views->findChild<QLabel*>(QStringLiteral("profileLabel"));
    QVERIFY(label->font().weight() == QFont::Bold);
    for (int view = 0; view < 4; ++view) {
        const auto* const name = findOnPage(pages.window(), QStringLiteral("View%1Page").arg(view),
                                            QStringLiteral("brModeLabel"));
        QVERIFY(name->font().weight() == QFont::Normal);
    }
}

QTEST_MAIN(TestViewsPage)
#include "tst_views_page.moc"
