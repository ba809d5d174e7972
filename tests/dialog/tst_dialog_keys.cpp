// Keys, the wheel and the focus, beside what each control makes of them.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QComboBox>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QTest>

namespace
{

/// What may take a key, from all over the dialog: its name, and the tab that it is on, or -1.
struct Place {
    const char* pageClass;
    const char* control;
    int tab;
};

constexpr Place places[] = {
    {nullptr, "presetList", -1},
    {nullptr, "presetButton", -1},
    {nullptr, "errorLog", -1},
    {nullptr, "buttonOk", -1},
    {nullptr, "qt_tabwidget_tabbar", -1},
    {"BasicPage", "toggleIVideoFormatPage", 0},
    {"VideoFormatPage", "widthSpin", 0},
    {"VideoFormatPage", "framerateList", 0},
    {"VideoFormatPage", "aspectRatioCheck", 0},
    {"MiscPage", "slicesSpin", 1},
    {"RateDistortionPage", "contrastSlider", 1},
    {"View0Page", "targetRateSpin", 2},
    {"View0Page", "units1Radio", 2},
};

QWidget* find(const OpenDialog& dialog, const Place& place)
{
    if (!place.pageClass) {
        return dialog->findChild<QWidget*>(QLatin1String(place.control));
    }
    return findControl<QWidget>(dialog.get(), place.pageClass, place.control);
}

void addPlaces()
{
    QTest::addColumn<int>("place");
    for (int i = 0; i < int(std::size(places)); ++i) {
        QTest::newRow(places[i].control) << i;
    }
}

/// The settings of all controls that have any.
QStringList values(const OpenDialog& dialog)
{
    QStringList all;
    const auto add = [&all](const QWidget* control, const QString& value) {
        all += control->objectName() + QLatin1Char('=') + value;
    };
    for (const auto* box : dialog->findChildren<QComboBox*>()) {
        add(box, box->currentText());
    }
    for (const auto* field : dialog->findChildren<QSpinBox*>()) {
        add(field, field->text());
    }
    for (const auto* slider : dialog->findChildren<QSlider*>()) {
        add(slider, QString::number(slider->value()));
    }
    all.sort();
    return all;
}

bool isWhollyInView(const QWidget* widget)
{
    for (const QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (const auto* area = qobject_cast<const QScrollArea*>(parent)) {
            const QRect place(widget->mapTo(area->viewport(), QPoint()), widget->size());
            return area->viewport()->rect().contains(place);
        }
    }
    return false;
}

} // namespace

class TestDialogKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void focusIsOnTheTabsAtFirst_data();
    void focusIsOnTheTabsAtFirst();
    void tabsAreTurnedFromAnywhere_data() { addPlaces(); }
    void tabsAreTurnedFromAnywhere();
    void tabsAreChosenByNumber_data() { addPlaces(); }
    void tabsAreChosenByNumber();
    void absentTabIsNotChosen();
    void logIsReachedFromAnywhere_data() { addPlaces(); }
    void logIsReachedFromAnywhere();
    void helpExplainsTheControl_data();
    void helpExplainsTheControl();

    void escapeTakesTypingBack_data();
    void escapeTakesTypingBack();
    void escapeClosesOtherwise_data();
    void escapeClosesOtherwise();

    void focusIsScrolledIntoView_data();
    void focusIsScrolledIntoView();
    void focusStaysBesideAViewThatGoes();
    void focusOfARowThatGoesIsInView();
    void focusIsNotBehindATitleThatSticks();
    void mouseDoesNotScroll();
    void scrollingDoesNotEdit();
    void wheelEditsAfterAPause_data();
    void wheelEditsAfterAPause();

    void logKeepsItsPlace_data();
    void logKeepsItsPlace();
};

void TestDialogKeys::focusIsOnTheTabsAtFirst_data()
{
    QTest::addColumn<bool>("activeBeforeItIsShown");
    QTest::newRow("shown") << false;
    QTest::newRow("made the active window, then shown") << true;
}

void TestDialogKeys::focusIsOnTheTabsAtFirst()
{
    QFETCH(bool, activeBeforeItIsShown);
    const RecordingCompanions companions;
    KvMvcSettings settings = exampleSettings();
    const KvMvcHosting hosting = {usualFlags, nullptr, nullptr, nullptr};
    AVCVideoEncoderDlg dialog(&settings, &hosting, nullptr);
    if (activeBeforeItIsShown) {
        QApplication::setActiveWindow(&dialog);
    }
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto* const tabs = dialog.findChild<QTabWidget*>();
    auto* const bar = dialog.findChild<QTabBar*>();
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(bar));
    QTest::keyClick(bar, Qt::Key_Right);
    QCOMPARE(tabs->currentIndex(), 1);
    QTest::keyClick(bar, Qt::Key_Left);
    QCOMPARE(tabs->currentIndex(), 0);
}

void TestDialogKeys::tabsAreTurnedFromAnywhere()
{
    QFETCH(int, place);
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        int step;
    } turns[] = {{Qt::Key_Tab, Qt::ControlModifier, 1},
                 {Qt::Key_PageDown, Qt::ControlModifier, 1},
                 {Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier, 2},
                 {Qt::Key_PageUp, Qt::ControlModifier, 2}};
    for (const auto& turn : turns) {
        OpenDialog dialog;
        dialog.tabs()->setCurrentIndex(qMax(0, places[place].tab));
        const int from = dialog.tabs()->currentIndex();
        QWidget* const widget = find(dialog, places[place]);
        widget->setFocus();
        QVERIFY(widget->hasFocus());
        const QStringList before = values(dialog);
        QTest::keyClick(widget, turn.key, turn.modifiers);
        QCOMPARE(dialog.tabs()->currentIndex(), (from + turn.step) % 3);
        QCOMPARE(values(dialog), before);
        QCOMPARE(dialog.companions.calls, QStringList());
        QVERIFY(dialog->isVisible());
    }
}

void TestDialogKeys::tabsAreChosenByNumber()
{
    QFETCH(int, place);
    OpenDialog dialog;
    const QStringList before = values(dialog);
    for (int tab : {2, 0, 1}) {
        dialog.tabs()->setCurrentIndex(qMax(0, places[place].tab));
        QWidget* const widget = find(dialog, places[place]);
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key(Qt::Key_1 + tab), Qt::ControlModifier);
        QCOMPARE(dialog.tabs()->currentIndex(), tab);
    }
    QCOMPARE(values(dialog), before);
    QCOMPARE(dialog.companions.calls, QStringList());
}

void TestDialogKeys::absentTabIsNotChosen()
{
    OpenDialog dialog(KV_MVC_GUI_BASIC_TAB);
    QCOMPARE(dialog.tabs()->count(), 2);
    QTest::keyClick(dialog.get(), Qt::Key_2, Qt::ControlModifier);
    QCOMPARE(dialog.tabs()->currentIndex(), 1);
    QTest::keyClick(dialog.get(), Qt::Key_3, Qt::ControlModifier);
    QCOMPARE(dialog.tabs()->currentIndex(), 1);
}

void TestDialogKeys::logIsReachedFromAnywhere()
{
    QFETCH(int, place);
    OpenDialog dialog;
    dialog.tabs()->setCurrentIndex(qMax(0, places[place].tab));
    QWidget* const widget = find(dialog, places[place]);
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_F8);
    QVERIFY(dialog.log()->hasFocus());
}

void TestDialogKeys::helpExplainsTheControl_data()
{
    QTest::addColumn<int>("modifiers");
    QTest::newRow("F1") << int(Qt::NoModifier);
    QTest::newRow("Shift+F1") << int(Qt::ShiftModifier);
}

void TestDialogKeys::helpExplainsTheControl()
{
    QFETCH(int, modifiers);
    OpenDialog dialog;
    auto* const width = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
    QVERIFY(!width->toolTip().isEmpty());
    width->setFocus();
    QTest::keyClick(width, Qt::Key_F1, Qt::KeyboardModifiers(modifiers));
    const auto isHelp = [](const QWidget* window) {
        return window->inherits("QWhatsThat") && window->isVisible();
    };
    const auto windows = QApplication::topLevelWidgets();
    const auto help = std::find_if(windows.begin(), windows.end(), isHelp);
    QVERIFY(help != windows.end());
    // The text that it shows is its own secret; the control's is what it was given.
    QCOMPARE(width->whatsThis(), width->toolTip());
    QTest::keyClick(*help, Qt::Key_Escape);
    QCOMPARE(dialog.companions.calls, QStringList());
}

void TestDialogKeys::escapeTakesTypingBack_data()
{
    QTest::addColumn<int>("place");
    // One reports when editing ends, the other every key.
    for (const char* name : {"widthSpin", "slicesSpin"}) {
        for (int i = 0; i < int(std::size(places)); ++i) {
            if (qstrcmp(places[i].control, name) == 0) {
                QTest::newRow(name) << i;
            }
        }
    }
}

void TestDialogKeys::escapeTakesTypingBack()
{
    QFETCH(int, place);
    OpenDialog dialog;
    dialog.tabs()->setCurrentIndex(places[place].tab);
    auto* const field = qobject_cast<QSpinBox*>(find(dialog, places[place]));
    const QByteArray before = dialog.bytes();
    const QString text = field->text();
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("32"));
    QCOMPARE(field->text(), QStringLiteral("32"));
    QTest::keyClick(field, Qt::Key_Escape);
    QVERIFY(dialog->isVisible());
    QCOMPARE(field->text(), text);
    QVERIFY(dialog.bytes() == before);
    QVERIFY(field->hasFocus());
    // There is nothing more to take back.
    QTest::keyClick(field, Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
    QVERIFY(bytesOf(dialog.caller) == dialog.given);
}

void TestDialogKeys::escapeClosesOtherwise_data()
{
    QTest::addColumn<bool>("typed");
    QTest::newRow("nothing typed") << false;
    QTest::newRow("typed and taken") << true;
}

void TestDialogKeys::escapeClosesOtherwise()
{
    QFETCH(bool, typed);
    OpenDialog dialog;
    auto* const width = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
    width->setFocus();
    if (typed) {
        width->selectAll();
        QTest::keyClicks(width, QStringLiteral("640"));
        QTest::keyClick(width, Qt::Key_Return);
        QCOMPARE(width->value(), 640);
    }
    QTest::keyClick(width, Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
}

void TestDialogKeys::focusIsScrolledIntoView_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("backwards, from below the pages") << int(Qt::Key_Backtab);
    QTest::newRow("forwards, from above them") << int(Qt::Key_Tab);
}

void TestDialogKeys::focusIsScrolledIntoView()
{
    QFETCH(int, key);
    OpenDialog dialog;
    dialog.tabs()->setCurrentIndex(1);
    QCoreApplication::processEvents();
    const bool backwards = key == Qt::Key_Backtab;
    QScrollBar* bar = nullptr;
    for (auto* area : dialog.tabs()->currentWidget()->findChildren<QScrollArea*>()) {
        bar = area->verticalScrollBar();
    }
    QVERIFY(bar->maximum() > 0);
    bar->setValue(backwards ? 0 : bar->maximum());
    QWidget* const from = backwards ? static_cast<QWidget*>(dialog.button("buttonCancel"))
                                    : dialog->findChild<QTabBar*>();
    from->setFocus();
    QTest::keyClick(from, Qt::Key(key), backwards ? Qt::ShiftModifier : Qt::NoModifier);
    QWidget* const focus = QApplication::focusWidget();
    QVERIFY(dialog.tabs()->isAncestorOf(focus));
    QVERIFY(focus != from);
    // Forwards the first stop is above the tool box, from which it goes on.
    if (!backwards) {
        while (!isWhollyInView(QApplication::focusWidget()) &&
               !QApplication::focusWidget()->inherits("QToolButton")) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
    }
    QVERIFY2(isWhollyInView(QApplication::focusWidget()),
             qPrintable(QApplication::focusWidget()->objectName()));
}

void TestDialogKeys::focusStaysBesideAViewThatGoes()
{
    KvMvcSettings settings = exampleSettings();
    settings.num_views = 3;
    OpenDialog dialog(usualFlags, settings);
    auto* const rate = on<QSpinBox>(dialog, "View2Page", "targetRateSpin");
    user::reveal(rate);
    rate->setFocus();
    settings.num_views = 2;
    dialog.dropSettings(settings);
    QVERIFY(!rate->isEnabled());
    QVERIFY(QApplication::focusWidget());
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("toggleIView2Page"));
}

void TestDialogKeys::focusOfARowThatGoesIsInView()
{
    KvMvcSettings settings = exampleSettings();
    for (KvMvcViewSettings& view : settings.views) {
        view.bitrate_mode = KV_MVC_VARIABLE_BITRATE;
        view.hrd_mode = 1;
    }
    OpenDialog dialog(usualFlags, settings);
    dialog->resize(dialog->width(), dialog->minimumHeight());
    auto* const buffer = on<QSpinBox>(dialog, "View0Page", "bitrateBufferSpin");
    user::reveal(buffer);
    buffer->setFocus();
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings& checked) {
        for (KvMvcViewSettings& view : checked.views) {
            view.bitrate_mode = KV_MVC_AVERAGE_QUANTIZER;
        }
        return 0;
    };
    QTest::keyClick(buffer, Qt::Key_Up);
    QVERIFY(!buffer->isVisible());
    const QWidget* const focus = QApplication::focusWidget();
    QVERIFY(focus);
    QVERIFY2(isWhollyInView(focus), qPrintable(focus->objectName()));
}

void TestDialogKeys::focusIsNotBehindATitleThatSticks()
{
    OpenDialog dialog;
    dialog->resize(dialog->width(), dialog->minimumHeight());
    auto* const first = on<QSpinBox>(dialog, "GOPStructurePage", "iFrameIntervalSpin");
    auto* const next = on<QSpinBox>(dialog, "GOPStructurePage", "iFrameForceSpin");
    user::reveal(first);
    first->setFocus();
    const QScrollArea* area = nullptr;
    for (QWidget* parent = next->parentWidget(); !area; parent = parent->parentWidget()) {
        area = qobject_cast<QScrollArea*>(parent);
    }
    QScrollBar* const bar = area->verticalScrollBar();
    bar->setValue(bar->value() + next->mapTo(area->viewport(), QPoint()).y());
    QCoreApplication::processEvents();
    QTest::keyClick(first, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), next);
    QCOMPARE(next->visibleRegion().boundingRect(), next->rect());
}

void TestDialogKeys::mouseDoesNotScroll()
{
    OpenDialog dialog;
    dialog.tabs()->setCurrentIndex(1);
    QCoreApplication::processEvents();
    auto* const slices = on<QSpinBox>(dialog, "MiscPage", "slicesSpin");
    user::reveal(slices);
    QScrollArea* area = nullptr;
    for (QWidget* parent = slices->parentWidget(); !area; parent = parent->parentWidget()) {
        area = qobject_cast<QScrollArea*>(parent);
    }
    // Half of it shows at the lower edge.
    QScrollBar* const bar = area->verticalScrollBar();
    const int bottom = slices->mapTo(area->viewport(), slices->rect().center()).y();
    bar->setValue(bar->value() + bottom - area->viewport()->height());
    const int before = bar->value();
    QVERIFY(!isWhollyInView(slices));
    QTest::mousePress(slices, Qt::LeftButton, {}, QPoint(10, 3));
    QVERIFY(slices->hasFocus());
    QCOMPARE(bar->value(), before);
    QTest::mouseRelease(slices, Qt::LeftButton, {}, QPoint(10, 3));
}

void TestDialogKeys::scrollingDoesNotEdit()
{
    OpenDialog dialog;
    auto* const width = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
    auto* const page = findControl<QWidget>(dialog.get(), "VideoFormatPage", "resolutionLabel");
    const QString before = width->text();
    width->setFocus();
    // It begins on the page's ground and comes to the field.
    user::turnWheel(page, -1, 1000);
    for (int time = 1100; time < 2000; time += 100) {
        user::turnWheel(width, -1, time);
    }
    QCOMPARE(width->text(), before);
    QCOMPARE(dialog.companions.calls, QStringList());
}

void TestDialogKeys::wheelEditsAfterAPause_data()
{
    QTest::addColumn<int>("time");
    QTest::addColumn<int>("phase");
    QTest::newRow("half a second later") << 1500 << int(Qt::NoScrollPhase);
    QTest::newRow("a gesture of its own") << 1050 << int(Qt::ScrollBegin);
}

void TestDialogKeys::wheelEditsAfterAPause()
{
    QFETCH(int, time);
    QFETCH(int, phase);
    OpenDialog dialog;
    auto* const width = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
    auto* const page = findControl<QWidget>(dialog.get(), "VideoFormatPage", "resolutionLabel");
    width->setFocus();
    const int before = width->value();
    user::turnWheel(page, -1, 1000);
    user::turnWheel(width, -1, time, Qt::ScrollPhase(phase));
    QVERIFY(width->value() < before);
}

void TestDialogKeys::logKeepsItsPlace_data()
{
    QTest::addColumn<QString>("sink");
    QTest::addColumn<bool>("otherFirst");
    QTest::newRow("the same first warning") << QStringLiteral("wrn_printf") << false;
    QTest::newRow("another first warning") << QStringLiteral("wrn_printf") << true;
    QTest::newRow("the same first error") << QStringLiteral("err_printf") << false;
    QTest::newRow("another first error") << QStringLiteral("err_printf") << true;
    QTest::newRow("notes only") << QStringLiteral("inf_printf") << false;
}

void TestDialogKeys::logKeepsItsPlace()
{
    QFETCH(QString, sink);
    QFETCH(bool, otherFirst);
    OpenDialog dialog;
    int round = 0;
    dialog.companions.onCheck = [&](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, qPrintable(sink), "first %d", otherFirst ? round : 0);
        for (int i = 0; i < 40; ++i) {
            print(lookUp, "inf_printf", "note %d of round %d", i, round);
        }
        ++round;
        return 0;
    };
    auto* const width = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
    user::type(width, QStringLiteral("640"));
    QScrollBar* const bar = dialog.log()->verticalScrollBar();
    QVERIFY(bar->maximum() > 100);
    bar->setValue(100);
    user::type(width, QStringLiteral("720"));
    QVERIFY(dialog.log()->toPlainText().contains(QLatin1String("note 39 of round 1")));
    if (otherFirst) {
        QVERIFY(bar->value() < 50);
    } else {
        QCOMPARE(bar->value(), 100);
    }
}

QTEST_MAIN(TestDialogKeys)
#include "tst_dialog_keys.moc"
