// The dialog without a mouse: every control is reached by Tab, is scrolled into view and shows that
// it has the focus, in both skins.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

namespace
{

QString nameOf(const QWidget* widget)
{
    const QWidget* page = widget;
    while (page && !page->objectName().startsWith(QLatin1Char('I'))) {
        page = page->parentWidget();
    }
    return (page ? page->objectName() : QString()) + QLatin1Char('/') + widget->objectName();
}

/// The controls of the shown tab that may be worked with now.
QList<QWidget*> openControls(const QWidget* window)
{
    QList<QWidget*> controls;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        const bool control = qobject_cast<QAbstractButton*>(widget) ||
                             qobject_cast<QSpinBox*>(widget) || qobject_cast<QComboBox*>(widget) ||
                             qobject_cast<QSlider*>(widget) || qobject_cast<QTextEdit*>(widget) ||
                             qobject_cast<QTabBar*>(widget);
        if (control && widget->isVisible() && widget->isEnabled() &&
            !qobject_cast<QTabBar*>(widget->parentWidget())) {
            controls += widget;
        }
    }
    return controls;
}

/// Radio buttons of a group are one stop, within which the arrow keys move.
bool isStop(const QWidget* widget)
{
    const auto* radio = qobject_cast<const QRadioButton*>(widget);
    return !radio || radio->isChecked();
}

bool isInView(const QWidget* widget)
{
    for (const QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (const auto* area = qobject_cast<const QScrollArea*>(parent)) {
            const QRect place(widget->mapTo(area->viewport(), QPoint()), widget->size());
            return area->viewport()->rect().contains(place.center());
        }
    }
    return true;
}

} // namespace

class TestAccessibleKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void tabReachesEveryControl_data();
    void tabReachesEveryControl();
    void focusIsVisible_data();
    void focusIsVisible();
    void keysWorkControls();
    void pagesAreTurnedAndSectionsFoldedByKeys();
    void logScrollsByKeys();
};

void TestAccessibleKeyboard::tabReachesEveryControl_data()
{
    QTest::addColumn<int>("tab");
    QTest::newRow("Basic Settings") << 0;
    QTest::newRow("Advanced Settings") << 1;
    QTest::newRow("Views") << 2;
}

void TestAccessibleKeyboard::tabReachesEveryControl()
{
    QFETCH(int, tab);
    OpenDialog dialog;
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    dialog.tabs()->setCurrentIndex(tab);
    QCoreApplication::processEvents();

    QSet<QWidget*> wanted;
    for (QWidget* widget : openControls(dialog.get())) {
        if (isStop(widget)) {
            wanted += widget;
        }
    }
    QVERIFY(wanted.size() > 15);

    dialog.presetList()->setFocus();
    QSet<QWidget*> reached;
    QStringList hidden;
    for (int step = 0; step < 200 && !reached.contains(QApplication::focusWidget()); ++step) {
        QWidget* const focus = QApplication::focusWidget();
        QVERIFY(focus);
        reached += focus;
        if (!isInView(focus)) {
            hidden += nameOf(focus);
        }
        QTest::keyClick(focus, Qt::Key_Tab);
        QCoreApplication::processEvents();
    }
    QStringList missed;
    for (QWidget* widget : wanted - reached) {
        missed += nameOf(widget);
    }
    missed.sort();
    QCOMPARE(missed, QStringList());
    QCOMPARE(hidden, QStringList());
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(dialog.presetList()));
}

void TestAccessibleKeyboard::focusIsVisible_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("default") << int(Qt::Key_F5);
    QTest::newRow("metal") << int(Qt::Key_F6);
}

void TestAccessibleKeyboard::focusIsVisible()
{
    QFETCH(int, key);
    OpenDialog dialog;
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    QTest::keyClick(dialog.get(), Qt::Key(key));
    // From the first use of Tab on styles mark the focus.
    QTest::keyClick(dialog.presetList(), Qt::Key_Tab);
    QVERIFY(dialog->testAttribute(Qt::WA_KeyboardFocusChange));
    QStringList unseen;
    int looked = 0;
    for (int tab = 0; tab < dialog.tabs()->count(); ++tab) {
        dialog.tabs()->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        const QList<QWidget*> controls = openControls(dialog.get());
        for (QWidget* widget : controls) {
            // The widget that lends its focus meanwhile must not be the default button, which is
            // drawn alike.
            QWidget* const other = widget == dialog.presetList()
                                       ? static_cast<QWidget*>(dialog.log())
                                       : dialog.presetList();
            user::reveal(widget);
            other->setFocus(Qt::TabFocusReason);
            QCoreApplication::processEvents();
            const QImage without = widget->grab().toImage();
            widget->setFocus(Qt::TabFocusReason);
            QCoreApplication::processEvents();
            if (!widget->hasFocus() && !widget->isAncestorOf(QApplication::focusWidget())) {
                continue;
            }
            ++looked;
            if (widget->grab().toImage() == without) {
                unseen += nameOf(widget);
            }
        }
    }
    QVERIFY(looked > 60);
    unseen.removeDuplicates();
    QVERIFY2(unseen.isEmpty(), qPrintable(unseen.join(QLatin1Char('\n'))));
}

void TestAccessibleKeyboard::keysWorkControls()
{
    OpenDialog dialog;
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    for (KvMvcViewSettings& view : dialog.probe().record().settings.views) {
        view.deblocking = 0;
        view.contrast = 0;
        view.num_slices = 1;
        view.entropy_mode = KV_MVC_CAVLC;
        view.bitrate_mode = KV_MVC_VARIABLE_BITRATE;
        view.hrd_mode = 1;
        view.bitrate_units = KV_MVC_UNITS_BYTES_PERCENT;
    }
    dialog.probe().settingsToState();
    const auto press = [&](const char* page, const char* control, Qt::Key key) {
        auto* widget = findControl<QWidget>(dialog.get(), page, control);
        user::reveal(widget);
        widget->setFocus();
        QTest::keyClick(QApplication::focusWidget(), key);
    };
    press("MiscPage", "deblockingCheck", Qt::Key_Space);
    press("RateDistortionPage", "contrastSlider", Qt::Key_Right);
    press("MiscPage", "slicesSpin", Qt::Key_Up);
    press("MiscPage", "entropyList", Qt::Key_Down);
    press("View0Page", "units1Radio", Qt::Key_Down);
    const KvMvcViewSettings& view = dialog.probe().record().settings.views[0];
    QCOMPARE(int(view.deblocking), 1);
    QCOMPARE(int(view.contrast), 1);
    QCOMPARE(int(view.num_slices), 2);
    QCOMPARE(int(view.entropy_mode), 1);
    QCOMPARE(int(view.bitrate_units), 1);
}

void TestAccessibleKeyboard::pagesAreTurnedAndSectionsFoldedByKeys()
{
    OpenDialog dialog;
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    auto* bar = dialog->findChild<QTabBar*>();
    bar->setFocus();
    QTest::keyClick(bar, Qt::Key_Right);
    QCOMPARE(dialog.tabs()->currentIndex(), 1);

    auto* toggle = findControl<QToolButton>(dialog.get(), "AdvancedPage", "toggleIMiscPage");
    auto* page = dialog->findChild<QWidget*>(QStringLiteral("IMiscPage"));
    toggle->setFocus();
    QTest::keyClick(toggle, Qt::Key_Space);
    QVERIFY(page->isHidden());
    QTest::keyClick(toggle, Qt::Key_Space);
    QVERIFY(!page->isHidden());
}

void TestAccessibleKeyboard::logScrollsByKeys()
{
    OpenDialog dialog;
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        for (int i = 0; i < 40; ++i) {
            print(lookUp, "inf_printf", "note %d", i);
        }
        return 0;
    };
    dialog.probe().check();
    QCoreApplication::processEvents();
    dialog.log()->setFocus();
    const int before = dialog.log()->verticalScrollBar()->value();
    QTest::keyClick(dialog.log(), Qt::Key_PageDown);
    QVERIFY(dialog.log()->verticalScrollBar()->value() > before);
}

QTEST_MAIN(TestAccessibleKeyboard)
#include "tst_accessible_keyboard.moc"
