#include "AllPages.h"
#include "Controls.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

/// The wheel over a control that has no focus scrolls the page and changes nothing.
class TestPageWheel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void wheelOverUnfocusedControlChangesNothing_data();
    void wheelOverUnfocusedControlChangesNothing();
    void wheelOverUnfocusedControlScrollsThePage_data();
    void wheelOverUnfocusedControlScrollsThePage();
    void wheelGivesNoFocus_data();
    void wheelGivesNoFocus();
    void wheelOverFocusedControlChangesIt_data();
    void wheelOverFocusedControlChangesIt();
};

namespace
{

QScrollArea* scrollAreaAround(const QWidget* widget)
{
    for (QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(parent)) {
            return area;
        }
    }
    return nullptr;
}

/// Rows of all controls that the wheel could change.
void addControls(bool insideSections)
{
    QTest::addColumn<int>("index");
    AllPages pages;
    for (int i = 0; i < controls().size(); ++i) {
        const Control& control = controls()[i];
        const QWidget* const widget = findOnPage(pages.window(), control.page, control.name);
        if (!widget || widget->inherits("QCheckBox")) {
            continue;
        }
        const bool inside = scrollAreaAround(widget) != nullptr;
        if (inside || !insideSections) {
            QTest::newRow(qPrintable(fullName(control))) << i;
        }
    }
}

/// All pages in a low window, showing what the control's kind is shown with.
class OpenPages : public AllPages
{
public:
    explicit OpenPages(const Control& control)
    {
        const bool quantizer = control.name.contains(QLatin1String("quant"), Qt::CaseInsensitive);
        state = stateOf(&Control::a);
        for (int view = 0; view < 4; ++view) {
            state.insert(QStringLiteral("Bitrate Mode V%1").arg(view),
                         quantizer ? QStringLiteral("Const. Quality - Average Quantizer")
                                   : QStringLiteral("Variable Bitrate"));
        }
        receive(state);
        show();
        window()->resize(440, 260);
        widget = findOnPage(window(), control.page, control.name);
        user::reveal(widget);
        if (QApplication::focusWidget()) {
            QApplication::focusWidget()->clearFocus();
        }
        spy.take();
    }

    ConfigState state;
    QWidget* widget;
};

} // namespace

void TestPageWheel::wheelOverUnfocusedControlChangesNothing_data()
{
    addControls(false);
}

void TestPageWheel::wheelOverUnfocusedControlChangesNothing()
{
    QFETCH(int, index);
    const Control& control = controls()[index];
    OpenPages pages(control);
    QVERIFY(pages.widget->isVisible());
    const QVariant before = shown(pages.window(), control);
    for (const int notches : {-1, 1, -3, 5}) {
        user::turnWheel(pages.widget, notches);
    }
    QCOMPARE(shown(pages.window(), control), before);
    QCOMPARE(pages.spy.take(), QStringList());
}

void TestPageWheel::wheelOverUnfocusedControlScrollsThePage_data()
{
    addControls(true);
}

void TestPageWheel::wheelOverUnfocusedControlScrollsThePage()
{
    QFETCH(int, index);
    OpenPages pages(controls()[index]);
    QScrollArea* const area = scrollAreaAround(pages.widget);
    QVERIFY(area);
    QScrollBar* const bar = area->verticalScrollBar();
    QVERIFY2(bar->maximum() > 0, "the window is too high for this test");
    const int before = bar->value();
    // To whichever side there is room.
    user::turnWheel(pages.widget, before > bar->maximum() / 2 ? 1 : -1);
    QVERIFY(bar->value() != before);
    QCOMPARE(pages.spy.take(), QStringList());
}

void TestPageWheel::wheelGivesNoFocus_data()
{
    addControls(false);
}

void TestPageWheel::wheelGivesNoFocus()
{
    QFETCH(int, index);
    OpenPages pages(controls()[index]);
    QCOMPARE(int(pages.widget->focusPolicy()), int(Qt::StrongFocus));
    user::turnWheel(pages.widget, -1);
    QVERIFY(!pages.widget->hasFocus());
}

void TestPageWheel::wheelOverFocusedControlChangesIt_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < controls().size(); ++i) {
        for (const char* name : {"VideoFormatPage.widthSpin", "VideoFormatPage.pulldownList",
                                 "RateDistortionPage.brightnessSlider", "View2Page.iSizeSpin"}) {
            if (fullName(controls()[i]) == QLatin1String(name)) {
                QTest::newRow(name) << i;
            }
        }
    }
}

void TestPageWheel::wheelOverFocusedControlChangesIt()
{
    QFETCH(int, index);
    const Control& control = controls()[index];
    OpenPages pages(control);
    pages.widget->setFocus();
    QVERIFY(pages.widget->hasFocus());
    user::turnWheel(pages.widget, -1);
    QVERIFY(shown(pages.window(), control) != control.a);
    QCOMPARE(pages.spy.take().size(), 1);
}

QTEST_MAIN(TestPageWheel)
#include "tst_page_wheel.moc"
