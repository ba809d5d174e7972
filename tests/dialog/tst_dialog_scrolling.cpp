// What the user works on stays in sight: pages scroll only where there is more to see, and rows
// that come and go do not push the control away that made them.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QCheckBox>
#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>

namespace
{

QScrollArea* areaOf(const OpenDialog& dialog)
{
    return dialog.tabs()->currentWidget()->findChild<QScrollArea*>();
}

int placeOf(const OpenDialog& dialog, const QWidget* widget)
{
    return widget->mapTo(areaOf(dialog)->viewport(), QPoint()).y();
}

bool inSight(const OpenDialog& dialog, const QWidget* widget)
{
    const QRect place(0, placeOf(dialog, widget), 1, widget->height());
    return areaOf(dialog)->viewport()->rect().contains(place);
}

/// Changes of rows travel outwards, one layout a turn of the event loop.
void settle()
{
    QTest::qWait(50);
}

/// The rate control of a view, at variable bit rate within the buffer model.
void openViews(const OpenDialog& dialog)
{
    for (int view = 0; view < KV_MVC_RECORD_VIEWS; ++view) {
        KvMvcViewSettings& settings = dialog.probe().record().settings.views[view];
        settings.bitrate_mode = KV_MVC_VARIABLE_BITRATE;
        settings.hrd_mode = 1;
    }
    dialog.probe().record().settings.num_views = KV_MVC_RECORD_VIEWS;
    dialog.probe().settingsToState();
    dialog.tabs()->setCurrentIndex(2);
    settle();
}

} // namespace

class TestDialogScrolling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void firstTabDoesNotScroll_data();
    void firstTabDoesNotScroll();
    void switchThatHidesRowsAboveItStays_data();
    void switchThatHidesRowsAboveItStays();
    void switchAtTheTopStaysInSight();
    void checkThatHidesRowsOfAnotherViewMovesNothing();
};

void TestDialogScrolling::firstTabDoesNotScroll_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("default") << int(Qt::Key_F5);
    QTest::newRow("metal") << int(Qt::Key_F6);
}

// As high as the dialog opens.
void TestDialogScrolling::firstTabDoesNotScroll()
{
    QFETCH(int, key);
    OpenDialog dialog;
    QTest::keyClick(dialog.get(), Qt::Key(key));
    settle();
    QCOMPARE(dialog.tabs()->currentIndex(), 0);
    QCOMPARE(areaOf(dialog)->verticalScrollBar()->maximum(), 0);
    QVERIFY(!areaOf(dialog)->verticalScrollBar()->isVisible());
}

void TestDialogScrolling::switchThatHidesRowsAboveItStays_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<bool>("byKey");
    QTest::newRow("view 1, clicked") << QStringLiteral("View1Page") << false;
    QTest::newRow("view 1, space bar") << QStringLiteral("View1Page") << true;
    QTest::newRow("view 2, clicked") << QStringLiteral("View2Page") << false;
}

void TestDialogScrolling::switchThatHidesRowsAboveItStays()
{
    QFETCH(QString, page);
    QFETCH(bool, byKey);
    OpenDialog dialog;
    openViews(dialog);
    dialog.probe().record().settings.num_views = 3;
    dialog.probe().settingsToState();
    auto* const hrd = findControl<QCheckBox>(dialog.get(), qPrintable(page), "hrdCheck");
    auto* const box = findControl<QWidget>(dialog.get(), qPrintable(page), "groupBoxBuffers");
    QScrollBar* const bar = areaOf(dialog)->verticalScrollBar();
    user::reveal(hrd);
    bar->setValue(bar->value() + 100);
    const int place = placeOf(dialog, hrd);
    QVERIFY(inSight(dialog, hrd));
    for (const bool on : {false, true, false}) {
        const int before = bar->value();
        if (byKey) {
            hrd->setFocus();
            QTest::keyClick(hrd, Qt::Key_Space);
        } else {
            QTest::mouseClick(hrd, Qt::LeftButton, {}, {8, hrd->height() / 2});
        }
        QCOMPARE(hrd->isChecked(), on);
        QCOMPARE(box->isVisible(), on);
        QCOMPARE(placeOf(dialog, hrd), place);
        QVERIFY(qAbs(bar->value() - before) > 200);
        settle();
        QCOMPARE(placeOf(dialog, hrd), place);
    }
}

// Above it there is too little left to scroll by.
void TestDialogScrolling::switchAtTheTopStaysInSight()
{
    OpenDialog dialog;
    openViews(dialog);
    auto* const hrd = findControl<QCheckBox>(dialog.get(), "View0Page", "hrdCheck");
    user::reveal(hrd);
    QVERIFY(areaOf(dialog)->verticalScrollBar()->value() > 0);
    QTest::mouseClick(hrd, Qt::LeftButton, {}, {8, hrd->height() / 2});
    settle();
    QVERIFY(!hrd->isChecked());
    QVERIFY(inSight(dialog, hrd));
}

// The encoder's check corrects what it likes.
void TestDialogScrolling::checkThatHidesRowsOfAnotherViewMovesNothing()
{
    OpenDialog dialog;
    openViews(dialog);
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings& settings) {
        settings.views[0].hrd_mode = 0;
        return 0;
    };
    auto* const rate = findControl<QSpinBox>(dialog.get(), "View1Page", "targetRateSpin");
    user::reveal(rate);
    rate->setFocus();
    const int place = placeOf(dialog, rate);
    rate->selectAll();
    QTest::keyClicks(rate, QStringLiteral("5000000"));
    QTest::keyClick(rate, Qt::Key_Return);
    settle();
    QVERIFY(!findControl<QWidget>(dialog.get(), "View0Page", "groupBoxBuffers")->isVisible());
    QCOMPARE(placeOf(dialog, rate), place);
}

QTEST_MAIN(TestDialogScrolling)
#include "tst_dialog_scrolling.moc"
