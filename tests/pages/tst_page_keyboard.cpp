#include "AllPages.h"
#include "Controls.h"
#include "ToolkitWarnings.h"

#include "pages/ToolBox.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QTest>
#include <QToolButton>

#include <algorithm>

/// The pages worked without a mouse.
class TestPageKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void tabGoesThroughThePage_data();
    void tabGoesThroughThePage();
    void tabGoesFromTopToBottom_data();
    void tabGoesFromTopToBottom();
    void backtabGoesBack_data();
    void backtabGoesBack();
    void sectionButtonComesBeforeItsPage();
    void collapsedSectionIsPassedOver();
    void focusedControlIsScrolledIntoView();
    void spaceCollapsesASection();
    void everyControlHasANameForAssistiveTechnology();
    void everyControlHasATip();
};

namespace
{

enum PageName { BasicTab, AdvancedTab, ViewsTab };

/// All pages in a high window, so that places tell the order; with this tab in front.
class TabPages : public AllPages
{
public:
    explicit TabPages(int tab, int height = 3200)
    {
        ConfigState state = stateOf(&Control::a);
        for (int view = 0; view < 4; ++view) {
            state.insert(QStringLiteral("Bitrate Mode V%1").arg(view),
                         QStringLiteral("Variable Bitrate"));
        }
        receive(state);
        window()->setCurrentIndex(tab);
        show();
        window()->resize(440, height);
        QCoreApplication::processEvents();
    }

    SettingsPage* page() { return containers().at(window()->currentIndex()); }

    /// What the Tab key reaches on the page, from its first stop to the last.
    QVector<QWidget*> stops(Qt::Key key = Qt::Key_Tab)
    {
        // From the tabs, which stand before the page.
        window()->setFocus();
        QVector<QWidget*> passed;
        for (int i = 0; i < 400; ++i) {
            QTest::keyClick(QApplication::focusWidget(), key);
            QWidget* const now = QApplication::focusWidget();
            if (!passed.isEmpty() && now == passed.first()) {
                break;
            }
            if (now && page()->isAncestorOf(now)) {
                passed += now;
            } else if (!passed.isEmpty()) {
                break;
            }
        }
        return passed;
    }
};

QString nameOf(const QWidget* widget)
{
    if (qobject_cast<const QToolButton*>(widget)) {
        return QStringLiteral("[%1]").arg(widget->accessibleName());
    }
    return widget->objectName();
}

QStringList names(const QVector<QWidget*>& widgets)
{
    QStringList list;
    for (const QWidget* widget : widgets) {
        list += nameOf(widget);
    }
    return list;
}

/// The controls of a page from top to bottom, with those that belong to no setting.
QStringList controlsOn(const char* page)
{
    QStringList stops;
    for (const ledger::Setting& setting : ledger::settingsOn(page)) {
        const QString control = QString::fromLatin1(setting.control);
        // Constant quality alone shows them.
        if (control.contains(QLatin1String("quant"), Qt::CaseInsensitive)) {
            continue;
        }
        if (control == QLatin1String("aspectRatioList")) {
            stops += QStringLiteral("aspectRatioCheck");
        }
        // The chosen one of the units stands for all: the arrow keys go between them.
        stops += control == QLatin1String("units") ? QStringLiteral("units2Radio") : control;
        if (control == QLatin1String("vbvTargetSpin")) {
            stops += QStringLiteral("onesecCheck");
        }
    }
    return stops;
}

void addTabs()
{
    QTest::addColumn<int>("tab");
    QTest::newRow("basic") << int(BasicTab);
    QTest::newRow("advanced") << int(AdvancedTab);
    QTest::newRow("views") << int(ViewsTab);
}

} // namespace

void TestPageKeyboard::tabGoesThroughThePage_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QStringList>("stops");
    QTest::newRow("basic") << int(BasicTab)
                           << lines({"[Video Format]"}) + controlsOn("VideoFormatPage");
    QTest::newRow("advanced") << int(AdvancedTab)
                              << controlsOn("AdvancedPage") + lines({"[GOP Structure]"}) +
                                     controlsOn("GOPStructurePage") +
                                     lines({"[Motion Estimation]"}) +
                                     controlsOn("MotionEstimationPage") +
                                     lines({"[Rate Distortion]"}) +
                                     controlsOn("RateDistortionPage") + lines({"[Miscellaneous]"}) +
                                     controlsOn("MiscPage");
    QStringList views = controlsOn("ViewsPage");
    for (const char* title : {"[Base View]", "[View 1]", "[View 2]", "[View 3]"}) {
        views += lines({title}) + controlsOn("View%1Page");
    }
    QTest::newRow("views") << int(ViewsTab) << views;
}

void TestPageKeyboard::tabGoesThroughThePage()
{
    QFETCH(int, tab);
    TabPages pages(tab);
    const QStringList stops = names(pages.stops());
    QTEST(stops, "stops");
}

void TestPageKeyboard::tabGoesFromTopToBottom_data()
{
    addTabs();
}

void TestPageKeyboard::tabGoesFromTopToBottom()
{
    QFETCH(int, tab);
    TabPages pages(tab);
    QRect last;
    for (const QWidget* widget : pages.stops()) {
        const QRect place(widget->mapTo(pages.page(), QPoint()), widget->size());
        const bool below = place.center().y() > last.bottom();
        const bool behind = place.left() > last.right();
        QVERIFY2(last.isNull() || below || behind, qPrintable(nameOf(widget)));
        last = place;
    }
    QVERIFY(!last.isNull());
}

void TestPageKeyboard::backtabGoesBack_data()
{
    addTabs();
}

void TestPageKeyboard::backtabGoesBack()
{
    QFETCH(int, tab);
    TabPages pages(tab);
    QStringList forward = names(pages.stops());
    QStringList back = names(pages.stops(Qt::Key_Backtab));
    std::reverse(back.begin(), back.end());
    QCOMPARE(back, forward);
}

void TestPageKeyboard::sectionButtonComesBeforeItsPage()
{
    // Pages that are older than the box, younger, and from another window.
    QFrame window;
    const auto makePage = [](QWidget* parent, const QStringList& fields) {
        auto* const page = new QFrame(parent);
        for (const QString& field : fields) {
            (new QLineEdit(page))->setObjectName(field);
        }
        return page;
    };
    makePage(&window, lines({"before"}));
    QWidget* const older = makePage(&window, lines({"a", "b"}));
    ToolBox box(&window);
    box.addSection(older, QStringLiteral("older"));
    box.addSection(makePage(nullptr, lines({"c"})), QStringLiteral("foreign"));
    box.addSection(new QLabel, QStringLiteral("empty"));
    box.addSection(makePage(&window, lines({"d", "e"})), QStringLiteral("younger"));

    QStringList chain;
    for (QWidget* widget = window.nextInFocusChain(); widget != &window;
         widget = widget->nextInFocusChain()) {
        if (widget->focusPolicy() != Qt::NoFocus) {
            chain += nameOf(widget);
        }
    }
    QCOMPARE(chain, lines({"before", "[older]", "a", "b", "[foreign]", "c", "[empty]", "[younger]",
                           "d", "e"}));
}

void TestPageKeyboard::collapsedSectionIsPassedOver()
{
    TabPages pages(AdvancedTab);
    for (auto* const button : pages.advanced->findChildren<QToolButton*>()) {
        if (button->accessibleName() != QLatin1String("Motion Estimation")) {
            button->click();
        }
    }
    QCOMPARE(names(pages.stops()), controlsOn("AdvancedPage") +
                                       lines({"[GOP Structure]", "[Motion Estimation]"}) +
                                       controlsOn("MotionEstimationPage") +
                                       lines({"[Rate Distortion]", "[Miscellaneous]"}));
}

void TestPageKeyboard::focusedControlIsScrolledIntoView()
{
    TabPages pages(AdvancedTab, 400);
    const auto* const area = pages.advanced->findChild<QScrollArea*>();
    for (const QWidget* widget : pages.stops()) {
        if (!area->isAncestorOf(widget)) {
            continue;
        }
        auto* const stop = const_cast<QWidget*>(widget);
        stop->setFocus(Qt::TabFocusReason);
        QTest::keyClick(stop, Qt::Key_Tab);
        const QWidget* const now = QApplication::focusWidget();
        if (!now || !area->widget()->isAncestorOf(now)) {
            continue;
        }
        const QRect place(now->mapTo(area->viewport(), QPoint()), now->size());
        QVERIFY2(area->viewport()->rect().intersects(place), qPrintable(nameOf(now)));
    }
}

void TestPageKeyboard::spaceCollapsesASection()
{
    TabPages pages(BasicTab);
    auto* const button = pages.basic->findChild<QToolButton*>();
    button->setFocus(Qt::TabFocusReason);
    QVERIFY(button->hasFocus());
    QTest::keyClick(button, Qt::Key_Space);
    QVERIFY(
        !findOnPage(pages.window(), QStringLiteral("VideoFormatPage"), QStringLiteral("widthSpin"))
             ->isVisible());
    QTest::keyClick(button, Qt::Key_Space);
    QVERIFY(
        findOnPage(pages.window(), QStringLiteral("VideoFormatPage"), QStringLiteral("widthSpin"))
            ->isVisible());
}

namespace
{

/// Whether a text names the control: its own, a label that is its buddy, or one for screen readers.
bool isNamed(const QWidget* control, const QWidget* window)
{
    if (!control->accessibleName().isEmpty() || !control->property("text").toString().isEmpty()) {
        return true;
    }
    for (const QLabel* label : window->findChildren<QLabel*>()) {
        if (label->buddy() == control && label->text().size() > 1) {
            return true;
        }
    }
    return false;
}

} // namespace

void TestPageKeyboard::everyControlHasANameForAssistiveTechnology()
{
    for (const int tab : {BasicTab, AdvancedTab, ViewsTab}) {
        TabPages pages(tab);
        for (const QWidget* widget : pages.stops()) {
            QVERIFY2(isNamed(widget, pages.window()), qPrintable(nameOf(widget)));
        }
    }
}

void TestPageKeyboard::everyControlHasATip()
{
    for (const int tab : {BasicTab, AdvancedTab, ViewsTab}) {
        TabPages pages(tab);
        for (const QWidget* widget : pages.stops()) {
            QVERIFY2(!widget->toolTip().isEmpty(), qPrintable(nameOf(widget)));
        }
    }
}

QTEST_MAIN(TestPageKeyboard)
#include "tst_page_keyboard.moc"
