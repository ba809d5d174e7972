// OK, cancel and the close box: when the caller's record is written, and when it is not.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"
#include "dialog/MessageLog.h"

#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

namespace
{

QSpinBox* widthOf(const OpenDialog& dialog)
{
    return findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin");
}

} // namespace

class TestDialogLifecycle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void okWithoutEditsGivesTheRecordBackByteForByte();
    void okCopiesEditsToTheCaller();
    void okTakesANumberThatIsStillTyped();
    void okCopiesWhatTheCheckCorrected();
    void okIsRefusedWhileTheCheckFails();
    void okIsRefusedWithoutACheck();
    void okByTheReturnKey();
    void leavingAnyOtherWayKeepsTheRecord_data();
    void leavingAnyOtherWayKeepsTheRecord();
    void callerIsNotTouchedBeforeOk();
    void suppressedOkDoesNothingElse();
    void everyCheckClearsTheSuppression();
    void countsOfViewsFromOutside_data();
    void countsOfViewsFromOutside();
    void deletedWhileANumberIsTyped();
    void deletedInTheCheckOfATypedNumber_data();
    void deletedInTheCheckOfATypedNumber();
    void shellWithoutSettingsLeavesTheLogOfAnother();
    void canBeUsedBeforeItIsShown();
};

void TestDialogLifecycle::okWithoutEditsGivesTheRecordBackByteForByte()
{
    OpenDialog dialog;
    QSignalSpy finished(dialog.get(), &QDialog::finished);
    user::click(dialog.button("buttonOk"));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished[0][0].toInt(), 1);
    QCOMPARE(dialog.companions.calls, QStringList(QStringLiteral("check 3 0")));
    QVERIFY(bytesOf(dialog.caller) == dialog.given);
}

void TestDialogLifecycle::okCopiesEditsToTheCaller()
{
    OpenDialog dialog;
    user::type(widthOf(dialog), QStringLiteral("1280"));
    user::click(dialog.button("buttonOk"));
    QVERIFY(!dialog->isVisible());
    QCOMPARE(differences(dialog.given, bytesOf(dialog.caller)),
             QStringList(
                 {QStringLiteral("view 0 +24: 00050000"), QStringLiteral("view 1 +24: 00050000")}));
}

void TestDialogLifecycle::okTakesANumberThatIsStillTyped()
{
    // As a screen reader presses the button: the focus stays in the field.
    OpenDialog dialog;
    QSpinBox* const width = widthOf(dialog);
    user::reveal(width);
    width->setFocus();
    width->selectAll();
    QTest::keyClicks(width, QStringLiteral("1280"));
    dialog.companions.calls.clear();
    dialog.button("buttonOk")->click();
    QVERIFY(!dialog->isVisible());
    QCOMPARE(differences(dialog.given, bytesOf(dialog.caller)),
             QStringList(
                 {QStringLiteral("view 0 +24: 00050000"), QStringLiteral("view 1 +24: 00050000")}));
    // Of the edit, and of OK; none after it.
    QCOMPARE(dialog.companions.calls,
             QStringList({QStringLiteral("check 3 0"), QStringLiteral("check 3 0")}));
}

void TestDialogLifecycle::okCopiesWhatTheCheckCorrected()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings& settings) {
        put(settings, {{1, 80, 123456}, {Cell::Record, 8, 77}});
        return 0;
    };
    user::click(dialog.button("buttonOk"));
    QCOMPARE(differences(dialog.given, bytesOf(dialog.caller)),
             QStringList(
                 {QStringLiteral("record +8: 4d000000"), QStringLiteral("view 1 +80: 40e20100")}));
}

void TestDialogLifecycle::okIsRefusedWhileTheCheckFails()
{
    OpenDialog dialog;
    int verdict = 1;
    dialog.companions.onCheck = [&verdict](KvMvcLookup lookUp, KvMvcSettings&) {
        if (verdict != 0) {
            print(lookUp, "err_printf", "too wide");
        }
        return verdict;
    };
    user::type(widthOf(dialog), QStringLiteral("1280"));
    QSignalSpy finished(dialog.get(), &QDialog::finished);
    for (const int refusing : {1, -1, 4711}) {
        verdict = refusing;
        user::click(dialog.button("buttonOk"));
        QVERIFY(dialog->isVisible());
        QCOMPARE(finished.count(), 0);
        QVERIFY(bytesOf(dialog.caller) == dialog.given);
        QVERIFY(dialog.log()->toPlainText().contains(QLatin1String("too wide")));
    }
    QCOMPARE(dialog.companions.count(QStringLiteral("check")), 4);

    verdict = 0;
    user::click(dialog.button("buttonOk"));
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), 1);
    QCOMPARE(int(dialog.caller.views[0].width), 1280);
}

void TestDialogLifecycle::okIsRefusedWithoutACheck()
{
    OpenDialog dialog;
    companionFunctions().check = nullptr;
    user::click(dialog.button("buttonOk"));
    QVERIFY(dialog->isVisible());
    QVERIFY(bytesOf(dialog.caller) == dialog.given);
}

void TestDialogLifecycle::okByTheReturnKey()
{
    OpenDialog dialog;
    dialog.tabs()->setFocus();
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), 1);
}

void TestDialogLifecycle::leavingAnyOtherWayKeepsTheRecord_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"cancel", "close box", "escape", "slot"}) {
        QTest::newRow(way) << QString::fromLatin1(way);
    }
}

void TestDialogLifecycle::leavingAnyOtherWayKeepsTheRecord()
{
    QFETCH(QString, way);
    OpenDialog dialog;
    dialog.companions.onDefaults = [](KvMvcSettings& settings, int) { settings.num_views = 1; };
    user::type(widthOf(dialog), QStringLiteral("1280"));
    user::choose(dialog.presetList(), QStringLiteral("Stereo High"));
    QVERIFY(dialog.bytes() != dialog.given);
    const int checks = dialog.companions.count(QStringLiteral("check"));

    QSignalSpy finished(dialog.get(), &QDialog::finished);
    if (way == QLatin1String("cancel")) {
        user::click(dialog.button("buttonCancel"));
    } else if (way == QLatin1String("close box")) {
        dialog->close();
    } else if (way == QLatin1String("escape")) {
        QTest::keyClick(dialog.get(), Qt::Key_Escape);
    } else {
        dialog->slotReject();
    }
    QVERIFY(!dialog->isVisible());
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished[0][0].toInt(), 0);
    QVERIFY(bytesOf(dialog.caller) == dialog.given);
    QCOMPARE(dialog.companions.count(QStringLiteral("check")), checks);
}

void TestDialogLifecycle::callerIsNotTouchedBeforeOk()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings& settings) {
        settings.views[0].bitrate = 1;
        return 0;
    };
    user::type(widthOf(dialog), QStringLiteral("1280"));
    QVERIFY(bytesOf(dialog.caller) == dialog.given);
    QVERIFY(dialog.companions.checkedAt != &dialog.caller);
    // Aligned like a record of naturally aligned fields, which a library may take it for.
    QCOMPARE(quintptr(dialog.companions.checkedAt) % 8, quintptr(0));
}

void TestDialogLifecycle::suppressedOkDoesNothingElse()
{
    OpenDialog dialog;
    dialog.probe().suppressNextAccept() = true;
    user::click(dialog.button("buttonOk"));
    QVERIFY(dialog->isVisible());
    QVERIFY(dialog.companions.calls.isEmpty());
    QVERIFY(!dialog.probe().suppressNextAccept());

    user::click(dialog.button("buttonOk"));
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), 1);
}

void TestDialogLifecycle::everyCheckClearsTheSuppression()
{
    OpenDialog dialog;
    for (const int verdict : {0, 1}) {
        dialog.companions.onCheck = [verdict](KvMvcLookup, KvMvcSettings&) { return verdict; };
        dialog.probe().suppressNextAccept() = true;
        QCOMPARE(dialog.probe().check(), verdict == 0);
        QVERIFY(!dialog.probe().suppressNextAccept());
    }
    // A check that does not run does not.
    dialog.probe().suppressNextAccept() = true;
    dialog.probe().updating() = true;
    QVERIFY(!dialog.probe().check());
    QVERIFY(dialog.probe().suppressNextAccept());
}

void TestDialogLifecycle::countsOfViewsFromOutside_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("edited");
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("negative") << -7 << 0;
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("two") << 2 << 2;
    // Views beyond the record's two are none of the host's.
    QTest::newRow("four") << 4 << 2;
    QTest::newRow("five") << 5 << 2;
    QTest::newRow("largest") << 2147483647 << 2;
    QTest::newRow("smallest") << int(-2147483647 - 1) << 0;
}

void TestDialogLifecycle::countsOfViewsFromOutside()
{
    QFETCH(int, count);
    QFETCH(int, edited);
    KvMvcSettings settings = exampleSettings();
    settings.num_views = count;
    OpenDialog dialog(usualFlags, settings);
    const QByteArray before = dialog.bytes();
    user::type(widthOf(dialog), QStringLiteral("1280"));

    Cells expected;
    for (int view = 0; view < edited; ++view) {
        expected += Cell(view, 24, 1280);
    }
    QCOMPARE(differences(before, dialog.bytes()), expectedDifferences(before, expected));
    user::click(dialog.button("buttonOk"));
    QCOMPARE(int(dialog.caller.num_views), count);
}

void TestDialogLifecycle::deletedWhileANumberIsTyped()
{
    RecordingCompanions companions;
    KvMvcSettings settings = exampleSettings();
    const KvMvcHosting hosting = {usualFlags, nullptr, nullptr, nullptr};
    auto dialog = std::make_unique<AVCVideoEncoderDlg>(&settings, &hosting, nullptr);
    dialog->show();
    auto* width = findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin");
    width->setFocus();
    width->selectAll();
    QTest::keyClicks(width, QStringLiteral("1280"));
    dialog.reset();
    QCOMPARE(companions.calls, QStringList());
}

void TestDialogLifecycle::deletedInTheCheckOfATypedNumber_data()
{
    QTest::addColumn<QByteArray>("page");
    QTest::addColumn<QByteArray>("field");
    QTest::newRow("told when it is taken")
        << QByteArray("VideoFormatPage") << QByteArray("widthSpin");
    QTest::newRow("told key by key") << QByteArray("GOPStructurePage") << QByteArray("idrSpin");
}

void TestDialogLifecycle::deletedInTheCheckOfATypedNumber()
{
    QFETCH(QByteArray, page);
    QFETCH(QByteArray, field);
    RecordingCompanions companions;
    KvMvcSettings settings = exampleSettings();
    const KvMvcHosting hosting = {usualFlags, nullptr, nullptr, nullptr};
    QPointer<AVCVideoEncoderDlg> dialog = new AVCVideoEncoderDlg(&settings, &hosting, nullptr);
    dialog->show();
    auto* const number = findControl<QSpinBox>(dialog, page.constData(), field.constData());
    QVERIFY(number);
    user::reveal(number);
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, QStringLiteral("80"));
    companions.onCheck = [&dialog](KvMvcLookup, KvMvcSettings&) {
        delete dialog;
        return 0;
    };
    QTest::keyClick(number, Qt::Key_Return);
    QVERIFY(!dialog);
    messageLog() = MessageLog();
}

void TestDialogLifecycle::shellWithoutSettingsLeavesTheLogOfAnother()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "err_printf", "too wide");
        return 1;
    };
    user::type(widthOf(dialog), QStringLiteral("1280"));
    widthOf(dialog)->setFocus();
    AVCVideoEncoderDlg shell(nullptr, nullptr, nullptr);
    shell.slotAccept();
    QVERIFY(!dialog.log()->textCursor().hasSelection());
    QCOMPARE(dialog.log()->toPlainText().trimmed(), QStringLiteral("too wide"));
}

void TestDialogLifecycle::canBeUsedBeforeItIsShown()
{
    RecordingCompanions companions;
    KvMvcSettings settings = exampleSettings();
    const KvMvcHosting hosting = {usualFlags, nullptr, nullptr, nullptr};
    AVCVideoEncoderDlg dialog(&settings, &hosting, nullptr);
    for (const int width : {1280, 640}) {
        findControl<QSpinBox>(&dialog, "VideoFormatPage", "widthSpin")->setValue(width);
        dialog.slotAccept();
        QCOMPARE(int(settings.views[0].width), width);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }
    messageLog() = MessageLog();
}

QTEST_MAIN(TestDialogLifecycle)
#include "tst_dialog_lifecycle.moc"
