// The context menus of controls and labels: back to the starting value, and to all views.

#include "DialogTest.h"
#include "SettingsLedger.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"
#include "dialog/MessageLog.h"
#include "pages/SettingsPage.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include <algorithm>

namespace
{

QMenu* openMenu(QWidget* widget, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse)
{
    const QPoint place(5, widget->height() / 2);
    QContextMenuEvent event(reason, place, widget->mapToGlobal(place));
    QCoreApplication::sendEvent(widget, &event);
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

QStringList textsOf(const QMenu* menu)
{
    QStringList texts;
    for (const QAction* action : menu->actions()) {
        texts += action->isSeparator()
                     ? QStringLiteral("-")
                     : (action->isEnabled() ? action->text()
                                            : QLatin1Char('(') + action->text() + QLatin1Char(')'));
    }
    return texts;
}

void close(QMenu* menu)
{
    menu->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Opens the menu and chooses its item with the keyboard.
bool chooseFrom(const OpenDialog& dialog, QWidget* widget, const char* text)
{
    QMenu* const menu = openMenu(widget);
    for (QAction* action : menu->actions()) {
        if (action->text().startsWith(QLatin1String(text)) && action->isEnabled()) {
            menu->setActiveAction(action);
            QTest::keyClick(menu, Qt::Key_Return);
            dialog->activateWindow();
            QCoreApplication::processEvents();
            return true;
        }
    }
    close(menu);
    return false;
}

QSpinBox* spinOf(const OpenDialog& dialog, int view, const char* name)
{
    return on<QSpinBox>(dialog, qPrintable(QStringLiteral("View%1Page").arg(view)), name);
}

void pressUndo(const OpenDialog& dialog)
{
    QTest::keyClick(dialog.get(), Qt::Key_Z, Qt::ControlModifier);
}

} // namespace

class TestDialogReset : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }
    void cleanup() { QToolTip::hideText(); }

    void menuShowsTheStartingValue();
    void menuOfAFieldKeepsWhatItsTextHas();
    void labelAndKeyHaveTheMenuToo();
    void everySettingGoesBack_data();
    void everySettingGoesBack();
    void resetIsOneEdit_data();
    void resetIsOneEdit();
    void resetOfARatePullsTheOtherAlong();
    void unitsTakeTheBufferOfOneSecondAlong();
    void lockedSettingStays();
    void valueGoesToAllViews_data();
    void valueGoesToAllViews();
    void rateForAllViewsPullsTheMaximaAlong();
    void onlyRateControlGoesToAllViews();
    void targetFullnessReportsNothing();
    void typedNumberCountsFirst();
    void dialogMayGoMeanwhile();
};

void TestDialogReset::menuShowsTheStartingValue()
{
    OpenDialog dialog;
    auto* const list = on<QComboBox>(dialog, "VideoFormatPage", "interlaceList");
    QMenu* menu = openMenu(list);
    QVERIFY(menu);
    QCOMPARE(textsOf(menu), QStringList({QStringLiteral("(Starting value: Interlaced)")}));
    close(menu);
    user::choose(list, QStringLiteral("MBAFF"));
    menu = openMenu(list);
    QCOMPARE(textsOf(menu), QStringList({QStringLiteral("Reset to Interlaced")}));
    close(menu);
}

void TestDialogReset::menuOfAFieldKeepsWhatItsTextHas()
{
    OpenDialog dialog;
    QSpinBox* const rate = spinOf(dialog, 1, "targetRateSpin");
    user::type(rate, QStringLiteral("5000000"));
    QMenu* const menu = openMenu(rate);
    const QStringList texts = textsOf(menu);
    QCOMPARE(texts.mid(0, 3),
             QStringList({QStringLiteral("Reset to 4000000"), QStringLiteral("Use in all views"),
                          QStringLiteral("-")}));
    for (const char* text : {"Cu&t", "&Copy", "&Paste", "Select All"}) {
        QVERIFY2(texts.join(QLatin1Char('|')).contains(QLatin1String(text)),
                 qPrintable(texts.join(QLatin1Char('|'))));
    }
    QCOMPARE(texts.mid(texts.size() - 2),
             QStringList({QStringLiteral("&Step up"), QStringLiteral("Step &down")}));
    menu->actions().last()->trigger();
    QCoreApplication::processEvents();
    QCOMPARE(rate->value(), 4990000);
    close(menu);
}

void TestDialogReset::labelAndKeyHaveTheMenuToo()
{
    OpenDialog dialog;
    auto* const label = findControl<QLabel>(dialog.get(), "VideoFormatPage", "fpsLabel");
    QMenu* menu = openMenu(label);
    QVERIFY(menu);
    QVERIFY(textsOf(menu).first().startsWith(QLatin1String("(Starting value: ")));
    close(menu);
    auto* const list = on<QComboBox>(dialog, "VideoFormatPage", "framerateList");
    list->setFocus();
    menu = openMenu(list, QContextMenuEvent::Keyboard);
    QVERIFY(menu);
    close(menu);
}

void TestDialogReset::everySettingGoesBack_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<int>("view");
    for (const ledger::Setting& setting : ledger::settings()) {
        // Presets are no settings to go back to; the target fullness is not edited.
        if (!setting.key || setting.is("video_type") || setting.is("vbv_target")) {
            continue;
        }
        // A file makes the views beyond the record like view 1.
        for (int view = 0; view < std::min<int>(setting.viewCount(), KV_MVC_RECORD_VIEWS); ++view) {
            QTest::addRow("%s of view %d", setting.member, view)
                << QString::fromLatin1(setting.member) << view;
        }
    }
}

void TestDialogReset::everySettingGoesBack()
{
    QFETCH(QString, member);
    QFETCH(int, view);
    const ledger::Setting& setting = ledger::setting(member);
    OpenDialog dialog;
    ConfigState start;
    start.insert(setting.keyOf(view), setting.first.state);
    ConfigState edit;
    edit.insert(setting.keyOf(view), setting.second.state);
    // The first value is the file's.
    dialog->slotReceiveState(start);
    const KvMvcSettings file = dialog.probe().record().settings;
    dialog.dropSettings(file);
    const double before = ledger::get(file, setting, view);
    dialog->slotReceiveState(edit);
    dialog.companions.calls.clear();

    SettingsPage* page = nullptr;
    for (auto* each : dialog->findChildren<SettingsPage*>()) {
        page = each->widgetOf(setting.keyOf(view)) ? each : page;
    }
    QVERIFY(page);
    QSignalSpy reported(page, &SettingsPage::stateChanged);
    QVERIFY(ledger::get(dialog.probe().record().settings, setting, view) != before);
    QVERIFY(chooseFrom(dialog, page->widgetOf(setting.keyOf(view)), "Reset to "));
    QCOMPARE(reported.count(), 1);
    QCOMPARE(dialog.companions.count(QStringLiteral("check")), 1);
    QCOMPARE(ledger::get(dialog.probe().record().settings, setting, view), before);
}

void TestDialogReset::resetIsOneEdit_data()
{
    QTest::addColumn<bool>("typedJustBefore");
    QTest::newRow("after another edit") << false;
    QTest::newRow("right after the number was typed") << true;
}

void TestDialogReset::resetIsOneEdit()
{
    QFETCH(bool, typedJustBefore);
    OpenDialog dialog;
    auto* const width = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
    user::type(width, QStringLiteral("640"));
    if (!typedJustBefore) {
        user::click(on<QCheckBox>(dialog, "MiscPage", "deblockingCheck"));
        user::reveal(width);
    }
    dialog.companions.calls.clear();
    QVERIFY(chooseFrom(dialog, width, "Reset to 720"));
    QCOMPARE(width->value(), 720);
    QCOMPARE(dialog.companions.calls, QStringList({QStringLiteral("check 3 0")}));
    pressUndo(dialog);
    QCOMPARE(width->value(), 640);
    QCOMPARE(QToolTip::text(), QStringLiteral("Undo: Picture width"));
}

void TestDialogReset::resetOfARatePullsTheOtherAlong()
{
    OpenDialog dialog;
    QSpinBox* const target = spinOf(dialog, 0, "targetRateSpin");
    QSpinBox* const maximum = spinOf(dialog, 0, "maxRateSpin");
    const int startingTarget = target->value();
    user::type(maximum, QStringLiteral("1000000"));
    QCOMPARE(target->value(), 1000000);
    QVERIFY(chooseFrom(dialog, target, "Reset to "));
    QCOMPARE(target->value(), startingTarget);
    QCOMPARE(maximum->value(), startingTarget);
}

void TestDialogReset::unitsTakeTheBufferOfOneSecondAlong()
{
    OpenDialog dialog;
    QSpinBox* const buffer = spinOf(dialog, 0, "bitrateBufferSpin");
    user::type(spinOf(dialog, 0, "targetRateSpin"), QStringLiteral("4000000"));
    user::click(on<QCheckBox>(dialog, "View0Page", "onesecCheck"));
    auto* const bytes = on<QAbstractButton>(dialog, "View0Page", "units1Radio");
    auto* const bits = on<QAbstractButton>(dialog, "View0Page", "units2Radio");
    QVERIFY(bytes->isChecked());
    QCOMPARE(buffer->value(), 500000);
    user::click(bits);
    QCOMPARE(buffer->value(), 4000000);
    QVERIFY(chooseFrom(dialog, bytes, "Reset to "));
    QCOMPARE(buffer->value(), 500000);
    QCOMPARE(int(dialog.probe().record().view(0).bitrate_buffer), 500000);
}

void TestDialogReset::lockedSettingStays()
{
    OpenDialog dialog(usualFlags | KV_MVC_GUI_LOCK_SIZE);
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings& settings) {
        settings.views[0].width = 704;
        return 0;
    };
    dialog.probe().check();
    auto* const width = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
    QMenu* const menu = openMenu(width);
    QCOMPARE(textsOf(menu).first(), QStringLiteral("(Reset to 720)"));
    QVERIFY(textsOf(menu).contains(QStringLiteral("(&Step up)")));
    // Not by the field's own items either.
    QGuiApplication::clipboard()->setText(QStringLiteral("640"));
    for (const QAction* action : menu->actions()) {
        QVERIFY2(action->isSeparator() || !action->isEnabled(), qPrintable(action->text()));
    }
    close(menu);
}

void TestDialogReset::valueGoesToAllViews_data()
{
    QTest::addColumn<QString>("member");
    for (const ledger::Setting& setting : ledger::settings()) {
        if (setting.isOfEachView() && !setting.is("vbv_target")) {
            QTest::newRow(setting.member) << QString::fromLatin1(setting.member);
        }
    }
}

void TestDialogReset::valueGoesToAllViews()
{
    QFETCH(QString, member);
    const ledger::Setting& setting = ledger::setting(member);
    KvMvcSettings settings = exampleSettings();
    settings.num_views = 4;
    OpenDialog dialog(usualFlags, settings);
    ConfigState edit;
    edit.insert(setting.keyOf(1), setting.second.state);
    for (const int view : {0, 2, 3}) {
        edit.insert(setting.keyOf(view), setting.first.state);
    }
    dialog->slotReceiveState(edit);
    dialog.companions.calls.clear();
    const auto code = [&](int view) {
        const QByteArray bytes = dialog.bytesOfAllViews();
        qint32 value = 0;
        std::memcpy(&value, bytes.constData() + setting.position(view), sizeof value);
        return value;
    };
    SettingsPage* page = nullptr;
    for (auto* each : dialog->findChildren<SettingsPage*>()) {
        page = each->widgetOf(setting.keyOf(1)) ? each : page;
    }
    QSignalSpy reported(page, &SettingsPage::stateChanged);
    QVERIFY(chooseFrom(dialog, page->widgetOf(setting.keyOf(1)), "Use in all views"));
    QCOMPARE(reported.count(), 1);
    QCOMPARE(dialog.companions.count(QStringLiteral("check")), 1);
    for (int view = 0; view < 4; ++view) {
        QCOMPARE(code(view), qint32(setting.second.code));
    }
    // There is nothing more to take anywhere.
    QVERIFY(!chooseFrom(dialog, page->widgetOf(setting.keyOf(1)), "Use in all views"));
    pressUndo(dialog);
    QVERIFY2(QToolTip::text().contains(QLatin1String(" in all views")),
             qPrintable(QToolTip::text()));
    QCOMPARE(code(0), qint32(setting.first.code));
    QCOMPARE(code(1), qint32(setting.second.code));
    QCOMPARE(code(3), qint32(setting.first.code));
}

void TestDialogReset::rateForAllViewsPullsTheMaximaAlong()
{
    OpenDialog dialog;
    user::type(spinOf(dialog, 1, "targetRateSpin"), QStringLiteral("9000000"));
    QVERIFY(chooseFrom(dialog, spinOf(dialog, 1, "targetRateSpin"), "Use in all views"));
    for (int view = 0; view < 4; ++view) {
        QCOMPARE(int(dialog.probe().record().view(view).bitrate), 9000000);
        QVERIFY(dialog.probe().record().view(view).max_bitrate >= 9000000);
    }
    pressUndo(dialog);
    QCOMPARE(QToolTip::text(),
             QStringLiteral("Undo: Base View, Max bitrate (bps); View 2, Max bitrate (bps); "
                            "View 3, Max bitrate (bps); Target bitrate (bps) in all views"));
}

void TestDialogReset::onlyRateControlGoesToAllViews()
{
    OpenDialog dialog;
    user::type(on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin"), QStringLiteral("640"));
    QMenu* const menu = openMenu(on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin"));
    QVERIFY(!textsOf(menu).join(QLatin1Char('|')).contains(QLatin1String("all views")));
    close(menu);
}

void TestDialogReset::targetFullnessReportsNothing()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings& settings) {
        settings.views[0].vbv_target = 33;
        return 0;
    };
    dialog.probe().check();
    QMenu* const menu = openMenu(spinOf(dialog, 0, "vbvTargetSpin"));
    QVERIFY2(textsOf(menu).first().startsWith(QLatin1String("(Reset to ")),
             qPrintable(textsOf(menu).first()));
    QVERIFY(!textsOf(menu).join(QLatin1Char('|')).contains(QLatin1String("all views")));
    close(menu);
}

void TestDialogReset::typedNumberCountsFirst()
{
    OpenDialog dialog;
    QSpinBox* const rate = spinOf(dialog, 0, "targetRateSpin");
    user::reveal(rate);
    rate->setFocus();
    rate->selectAll();
    QTest::keyClicks(rate, QStringLiteral("4100000"));
    QVERIFY(chooseFrom(dialog, rate, "Use in all views"));
    QCOMPARE(int(dialog.probe().record().view(1).bitrate), 4100000);
}

void TestDialogReset::dialogMayGoMeanwhile()
{
    RecordingCompanions companions;
    KvMvcSettings settings = exampleSettings();
    const KvMvcHosting hosting = {usualFlags, nullptr, nullptr, nullptr};
    QPointer<AVCVideoEncoderDlg> dialog = new AVCVideoEncoderDlg(&settings, &hosting, nullptr);
    dialog->show();
    dialog->activateWindow();
    QCoreApplication::processEvents();
    auto* const width = findControl<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
    user::type(width, QStringLiteral("640"));
    companions.onCheck = [&dialog](KvMvcLookup, KvMvcSettings&) {
        delete dialog;
        return 0;
    };
    QMenu* const menu = openMenu(width);
    menu->setActiveAction(menu->actions().first());
    QTest::keyClick(menu, Qt::Key_Return);
    QCoreApplication::processEvents();
    QVERIFY(!dialog);
    messageLog() = MessageLog();
}

QTEST_MAIN(TestDialogReset)
#include "tst_dialog_reset.moc"
