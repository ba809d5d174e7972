// Undo and redo: every way of changing settings is a step that is taken back whole.

#include "DialogTest.h"
#include "SettingsLedger.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"
#include "pages/SettingsPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QMimeData>
#include <QPointer>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QToolTip>
#include <QUrl>

namespace
{

using Do = std::function<void(OpenDialog&)>;

void pressUndo(const OpenDialog& dialog)
{
    QTest::keyClick(dialog.get(), Qt::Key_Z, Qt::ControlModifier);
}

void pressRedo(const OpenDialog& dialog)
{
    QTest::keyClick(dialog.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
}

/// What all controls of the dialog show.
QStringList shown(const OpenDialog& dialog)
{
    QStringList all;
    const auto add = [&all](const QWidget* control, const QString& value) {
        all += QStringLiteral("%1.%2=%3")
                   .arg(control->parentWidget()->objectName(), control->objectName(), value);
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
    for (const auto* box : dialog->findChildren<QCheckBox*>()) {
        // It is no setting.
        if (box->objectName() != QLatin1String("onesecCheck")) {
            add(box, QString::number(box->isChecked()));
        }
    }
    for (const auto* radio : dialog->findChildren<QRadioButton*>()) {
        add(radio, QString::number(radio->isChecked()));
    }
    all.sort();
    return all;
}

QSpinBox* widthOf(const OpenDialog& dialog)
{
    return on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
}

KvMvcSettings fileSettings()
{
    KvMvcSettings settings = exampleSettings();
    settings.views[0].width = settings.views[1].width = 320;
    settings.views[1].bitrate = 4711;
    return settings;
}

} // namespace

Q_DECLARE_METATYPE(Do)

class TestDialogHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void everyEditIsTakenBackWhole_data();
    void everyEditIsTakenBackWhole();
    void everySettingHasAName();
    void ownRatesOfViewsBeyondTheRecordComeBack();
    void correctionsAreAPartOfTheStep();
    void stepsGoInOrder();
    void anotherEditEndsWhatWasTakenBack();
    void numbersInARowAreOneStep();
    void numberThatIsBackWhereItWasIsNoStep();
    void editAfterAnUndoIsAStepOfItsOwn();
    void editInsideACheckBelongsToTheStep();
    void clampOfAPageIsNoStep();
    void nameOfAFileIsNoMarkup();
    void choicesInARowAreStepsOfTheirOwn();
    void editThatChangesNothingIsNoStep();
    void textOfAFieldComesFirst();
    void withoutAStepNothingIsCalled();
    void hostDeletesTheDialogMeanwhile();
};

void TestDialogHistory::everyEditIsTakenBackWhole_data()
{
    QTest::addColumn<Do>("edit");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* text, Do edit) {
        QTest::newRow(name) << std::move(edit) << QString::fromUtf8(text);
    };
    row("number", "Picture width",
        [](OpenDialog& dialog) { user::type(widthOf(dialog), QStringLiteral("1280")); });
    row("list", "Frame rate", [](OpenDialog& dialog) {
        user::choose(on<QComboBox>(dialog, "VideoFormatPage", "framerateList"),
                     QStringLiteral("50.00"));
    });
    row("switch", "Deblocking filter", [](OpenDialog& dialog) {
        user::click(on<QCheckBox>(dialog, "MiscPage", "deblockingCheck"));
    });
    row("slider", "Contrast based", [](OpenDialog& dialog) {
        user::pageUp(on<QSlider>(dialog, "RateDistortionPage", "contrastSlider"));
    });
    row("rate of a view", "View 1, Target bitrate (bps)", [](OpenDialog& dialog) {
        user::type(on<QSpinBox>(dialog, "View1Page", "targetRateSpin"), QStringLiteral("4000"));
    });
    row("number of views", "Number of additional views", [](OpenDialog& dialog) {
        user::type(on<QSpinBox>(dialog, "ViewsPage", "numViewsSpin"), QStringLiteral("0"));
    });
    row("preset", "Preset Blu-ray 3D", [](OpenDialog& dialog) {
        dialog.companions.onDefaults = [](KvMvcSettings& settings, int preset) {
            settings = fileSettings();
            settings.views[0].video_type = settings.views[1].video_type = preset;
        };
        user::choose(dialog.presetList(), QStringLiteral("Blu-ray 3D"));
    });
    row("file", "File settings.cfg",
        [](OpenDialog& dialog) { dialog.dropSettings(fileSettings()); });
}

void TestDialogHistory::everyEditIsTakenBackWhole()
{
    QFETCH(Do, edit);
    QFETCH(QString, text);
    OpenDialog dialog;
    const QByteArray before = dialog.bytesOfAllViews();
    const QStringList shownBefore = shown(dialog);
    edit(dialog);
    const QByteArray after = dialog.bytesOfAllViews();
    const QStringList shownAfter = shown(dialog);
    QVERIFY(after != before);
    QVERIFY(shownAfter != shownBefore);

    for (int i = 0; i < 2; ++i) {
        dialog.companions.calls.clear();
        pressUndo(dialog);
        QVERIFY(dialog.bytesOfAllViews() == before);
        QCOMPARE(shown(dialog), shownBefore);
        QCOMPARE(QToolTip::text(), QLatin1String("Undo: ") + text);
        QCOMPARE(dialog.companions.calls, QStringList(QStringLiteral("check 3 0")));

        dialog.companions.calls.clear();
        if (i == 0) {
            pressRedo(dialog);
        } else {
            QTest::keyClick(dialog.get(), Qt::Key_Y, Qt::ControlModifier);
        }
        QVERIFY(dialog.bytesOfAllViews() == after);
        QCOMPARE(shown(dialog), shownAfter);
        QCOMPARE(QToolTip::text(), QLatin1String("Redo: ") + text);
        QCOMPARE(dialog.companions.calls, QStringList(QStringLiteral("check 3 0")));
    }
    user::click(dialog.button("buttonOk"));
    QVERIFY(bytesOf(dialog.caller) == dialog.bytes());
}

void TestDialogHistory::everySettingHasAName()
{
    OpenDialog dialog;
    QStringList wrong;
    int looked = 0;
    for (const ledger::Setting& setting : ledger::settings()) {
        // The preset says itself which; of radio buttons the chosen one does.
        if (!setting.page || setting.kind == ledger::Kind::Radio || setting.is("video_type")) {
            continue;
        }
        const QString view = setting.isOfEachView() ? QStringLiteral("View 1, ") : QString();
        const QString caption =
            view + QString::fromLatin1(setting.caption).remove(QLatin1Char(':')).trimmed();
        const QString title = view + QString::fromLatin1(setting.title);
        const QString pageClass = setting.pageOf(1);
        QString name;
        for (const auto* page : dialog->findChildren<SettingsPage*>()) {
            if (page->inherits(pageClass.toLatin1().constData())) {
                name = page->captionOf(setting.keyOf(1));
            }
        }
        ++looked;
        // The unit of a buffer may follow; one list stands for both halves of the aspect ratio.
        const bool isRight =
            name == caption || name == title || name.startsWith(caption + QLatin1String(" (")) ||
            (setting.kind == ledger::Kind::Aspect && title.startsWith(name + QLatin1Char(',')));
        if (!isRight) {
            wrong += QStringLiteral("%1: '%2', not '%3'").arg(setting.keyOf(1), name, caption);
        }
    }
    QVERIFY(looked > 40);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
}

void TestDialogHistory::ownRatesOfViewsBeyondTheRecordComeBack()
{
    KvMvcSettings settings = exampleSettings();
    settings.num_views = 4;
    OpenDialog dialog(usualFlags, settings);
    auto* const rate = on<QSpinBox>(dialog, "View3Page", "targetRateSpin");
    const int before = rate->value();
    user::type(rate, QStringLiteral("1234"));
    dialog.dropSettings(settings);
    QCOMPARE(rate->value(), before);
    pressUndo(dialog);
    QCOMPARE(rate->value(), 1234);
    pressUndo(dialog);
    QCOMPARE(rate->value(), before);
}

void TestDialogHistory::correctionsAreAPartOfTheStep()
{
    OpenDialog dialog;
    const QByteArray before = dialog.bytes();
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings& settings) {
        if (settings.views[0].width == 1280) {
            settings.views[0].height = settings.views[1].height = 720;
        }
        return 0;
    };
    user::type(widthOf(dialog), QStringLiteral("1280"));
    QCOMPARE(on<QSpinBox>(dialog, "VideoFormatPage", "heightSpin")->value(), 720);
    pressUndo(dialog);
    QVERIFY(dialog.bytes() == before);
}

void TestDialogHistory::stepsGoInOrder()
{
    OpenDialog dialog;
    const QStringList widths = {QStringLiteral("720"), QStringLiteral("640"),
                                QStringLiteral("1280"), QStringLiteral("352")};
    for (const QString& width : widths.mid(1)) {
        user::type(widthOf(dialog), width);
    }
    for (int i = 2; i >= 0; --i) {
        pressUndo(dialog);
        QCOMPARE(widthOf(dialog)->text(), widths[i]);
    }
    for (int i = 1; i <= 3; ++i) {
        pressRedo(dialog);
        QCOMPARE(widthOf(dialog)->text(), widths[i]);
    }
}

void TestDialogHistory::anotherEditEndsWhatWasTakenBack()
{
    OpenDialog dialog;
    user::type(widthOf(dialog), QStringLiteral("1280"));
    pressUndo(dialog);
    user::type(widthOf(dialog), QStringLiteral("640"));
    dialog.companions.calls.clear();
    pressRedo(dialog);
    QCOMPARE(widthOf(dialog)->value(), 640);
    QCOMPARE(dialog.companions.calls, QStringList());
    pressUndo(dialog);
    QCOMPARE(widthOf(dialog)->value(), 720);
}

void TestDialogHistory::numbersInARowAreOneStep()
{
    OpenDialog dialog;
    auto* const slices = on<QSpinBox>(dialog, "MiscPage", "slicesSpin");
    user::reveal(slices);
    slices->setFocus();
    const int before = slices->value();
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(slices, Qt::Key_Up);
    }
    QCOMPARE(slices->value(), before + 5);
    dialog.button("buttonCancel")->setFocus();
    slices->setFocus();
    QTest::keyClick(slices, Qt::Key_Up);
    pressUndo(dialog);
    QCOMPARE(slices->value(), before + 5);
    pressUndo(dialog);
    QCOMPARE(slices->value(), before);
}

void TestDialogHistory::numberThatIsBackWhereItWasIsNoStep()
{
    OpenDialog dialog;
    user::type(widthOf(dialog), QStringLiteral("640"));
    auto* const slices = on<QSpinBox>(dialog, "MiscPage", "slicesSpin");
    user::reveal(slices);
    slices->setFocus();
    const int before = slices->value();
    for (Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Up}) {
        QTest::keyClick(slices, key);
    }
    pressUndo(dialog);
    QCOMPARE(slices->value(), before);
    QCOMPARE(widthOf(dialog)->value(), 640);
    pressUndo(dialog);
    QCOMPARE(widthOf(dialog)->value(), 720);
}

void TestDialogHistory::editAfterAnUndoIsAStepOfItsOwn()
{
    OpenDialog dialog;
    auto* const slices = on<QSpinBox>(dialog, "MiscPage", "slicesSpin");
    user::reveal(slices);
    const int before = slices->value();
    for (int i = 0; i < 2; ++i) {
        dialog.button("buttonCancel")->setFocus();
        slices->setFocus();
        QTest::keyClick(slices, Qt::Key_Up);
    }
    pressUndo(dialog);
    QCOMPARE(slices->value(), before + 1);
    QTest::keyClick(slices, Qt::Key_Up);
    pressUndo(dialog);
    QCOMPARE(slices->value(), before + 1);
}

void TestDialogHistory::editInsideACheckBelongsToTheStep()
{
    OpenDialog dialog;
    const QByteArray before = dialog.bytes();
    auto* const height = on<QSpinBox>(dialog, "VideoFormatPage", "heightSpin");
    dialog.companions.onCheck = [&](KvMvcLookup, KvMvcSettings&) {
        dialog.companions.onCheck = nullptr;
        height->setValue(480);
        return 0;
    };
    user::type(widthOf(dialog), QStringLiteral("1280"));
    QCOMPARE(height->value(), 480);
    pressUndo(dialog);
    QVERIFY(dialog.bytes() == before);
}

void TestDialogHistory::clampOfAPageIsNoStep()
{
    KvMvcSettings settings = exampleSettings();
    for (KvMvcViewSettings& view : settings.views) {
        view.bitrate_mode = KV_MVC_VARIABLE_BITRATE;
        view.hrd_mode = 1;
        view.bitrate_units = KV_MVC_UNITS_BYTES_PERCENT;
        view.vbv_initial = 150;
    }
    OpenDialog dialog(usualFlags, settings);
    QCOMPARE(dialog.probe().record().settings.views[0].vbv_initial, 100);
    dialog.companions.calls.clear();
    pressUndo(dialog);
    QCOMPARE(dialog.companions.calls, QStringList());
}

void TestDialogHistory::nameOfAFileIsNoMarkup()
{
    OpenDialog dialog;
    dialog.companions.onRead = [](KvMvcSettings& settings) {
        settings = fileSettings();
        return 0;
    };
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/<b>bold<b>.cfg"))});
    dialog.drop(data);
    pressUndo(dialog);
    QVERIFY(QToolTip::text().contains(QLatin1String("&lt;b&gt;bold")));
}

void TestDialogHistory::choicesInARowAreStepsOfTheirOwn()
{
    OpenDialog dialog;
    auto* const deblocking = on<QCheckBox>(dialog, "MiscPage", "deblockingCheck");
    const bool before = deblocking->isChecked();
    user::click(deblocking);
    user::click(deblocking);
    pressUndo(dialog);
    QCOMPARE(deblocking->isChecked(), !before);
}

void TestDialogHistory::editThatChangesNothingIsNoStep()
{
    OpenDialog dialog;
    user::type(widthOf(dialog), QStringLiteral("1280"));
    auto* const list = on<QComboBox>(dialog, "VideoFormatPage", "framerateList");
    user::choose(list, list->currentText());
    pressUndo(dialog);
    QCOMPARE(widthOf(dialog)->value(), 720);
}

void TestDialogHistory::textOfAFieldComesFirst()
{
    OpenDialog dialog;
    auto* const width = widthOf(dialog);
    auto* const height = on<QSpinBox>(dialog, "VideoFormatPage", "heightSpin");
    user::type(width, QStringLiteral("1280"));
    height->setFocus();
    height->selectAll();
    QTest::keyClicks(height, QStringLiteral("99"));
    dialog.companions.calls.clear();
    while (height->text() != QLatin1String("576")) {
        QVERIFY(!height->text().isEmpty());
        QTest::keyClick(height, Qt::Key_Z, Qt::ControlModifier);
    }
    QCOMPARE(width->value(), 1280);
    QCOMPARE(dialog.companions.calls, QStringList());
    QTest::keyClick(height, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(width->value(), 720);
}

void TestDialogHistory::withoutAStepNothingIsCalled()
{
    OpenDialog dialog;
    pressUndo(dialog);
    pressRedo(dialog);
    QCOMPARE(dialog.companions.calls, QStringList());
    QVERIFY(bytesOf(dialog.caller) == dialog.bytes());
}

void TestDialogHistory::hostDeletesTheDialogMeanwhile()
{
    RecordingCompanions companions;
    KvMvcSettings settings = exampleSettings();
    const KvMvcHosting hosting = {usualFlags, nullptr, nullptr, nullptr};
    const QPointer<AVCVideoEncoderDlg> dialog =
        new AVCVideoEncoderDlg(&settings, &hosting, nullptr);
    dialog->show();
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    user::type(findControl<QSpinBox>(dialog, "VideoFormatPage", "widthSpin"),
               QStringLiteral("1280"));
    companions.onCheck = [dialog](KvMvcLookup, KvMvcSettings&) {
        delete dialog;
        return 0;
    };
    QTest::keyClick(dialog, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!dialog);
}

QTEST_MAIN(TestDialogHistory)
#include "tst_dialog_history.moc"
