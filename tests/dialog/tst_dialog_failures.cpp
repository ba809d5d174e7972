// Companions that break their contract: by exceptions, and by events that they handle in a check.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include "dialog/MessageLog.h"

#include <QComboBox>
#include <QMimeData>
#include <QPointer>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <new>
#include <stdexcept>

namespace
{

const QString failure = QStringLiteral("The encoder failed to check the settings.");

/// Makes rows of the exceptions that a companion may throw, with what the log says of a check's.
void addExceptions()
{
    QTest::addColumn<std::function<void()>>("fail");
    QTest::addColumn<QString>("said");
    const auto row = [](const char* name, std::function<void()> fail, const QString& reason) {
        QTest::newRow(name) << std::move(fail) << failure + reason;
    };
    row(
        "with a text", [] { throw std::runtime_error("no licence"); },
        QStringLiteral(" no licence"));
    row(
        "with a text in UTF-8", [] { throw std::runtime_error("L\u00e4nge"); },
        QStringLiteral(" L\u00e4nge"));
    row(
        "without a text", [] { throw std::runtime_error(""); }, QString());
    row(
        "of no standard type", [] { throw 5; }, QString());
}

QSpinBox* widthOf(const OpenDialog& dialog)
{
    return on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
}

int workingWidth(const OpenDialog& dialog)
{
    return dialog.probe().record().settings.views[0].width;
}

/// Drops a settings file, whatever the reader makes of it.
void dropFile(const OpenDialog& dialog)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/settings.cfg"))});
    dialog.drop(data);
}

const char* throwingConversion(const char*)
{
    throw std::runtime_error("no texts");
}

} // namespace

Q_DECLARE_METATYPE(std::function<void()>)

class TestDialogFailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void checkThatThrowsRefuses_data() { addExceptions(); }
    void checkThatThrowsRefuses();
    void checkThatThrowsCorrectsNothing();
    void messagesBeforeAnExceptionAreShown();
    void firstCheckLetsItsExceptionThrough();
    void eventLoopOutlastsAnException();
    void defaultsThatThrowKeepTheRecord();
    void readerThatThrowsChangesNothing();
    void writerThatThrowsIsSilent();
    void exportThatThrowsHasNoFunctions();
    void translationThatThrowsLeavesTheMessage();

    void okInsideACheckIsTheResult();
    void closingInsideTheCheckOfOkIsTheResult_data();
    void closingInsideTheCheckOfOkIsTheResult();
    void hostDeletesTheDialogInACompanion_data();
    void hostDeletesTheDialogInACompanion();
    void editInsideACheckIsKept();
    void editInsideTheCheckOfOkIsNotAccepted();
};

void TestDialogFailures::checkThatThrowsRefuses()
{
    QFETCH(std::function<void()>, fail);
    QFETCH(QString, said);
    OpenDialog dialog;
    dialog.companions.onCheck = [fail](KvMvcLookup, KvMvcSettings&) {
        fail();
        return 0;
    };
    user::click(dialog.button("buttonOk"));
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog.log()->toPlainText().trimmed(), said);
    QVERIFY(bytesOf(dialog.caller) == dialog.given);

    dialog.companions.onCheck = nullptr;
    user::click(dialog.button("buttonOk"));
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), 1);
}

void TestDialogFailures::checkThatThrowsCorrectsNothing()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings& settings) -> int {
        settings.views[0].width = 4711;
        throw std::bad_alloc();
    };
    user::type(widthOf(dialog), QStringLiteral("1280"));
    QCOMPARE(workingWidth(dialog), 1280);
    QCOMPARE(widthOf(dialog)->value(), 1280);
}

void TestDialogFailures::messagesBeforeAnExceptionAreShown()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) -> int {
        print(lookUp, "wrn_printf", "half %d", 1);
        throw std::runtime_error("and gone");
    };
    user::type(widthOf(dialog), QStringLiteral("1280"));
    QCOMPARE(dialog.log()->toPlainText().simplified(),
             QStringLiteral("half 1 ") + failure + QStringLiteral(" and gone"));
}

void TestDialogFailures::firstCheckLetsItsExceptionThrough()
{
    const auto open = [] {
        OpenDialog dialog(KV_MVC_GUI_FILE_BUTTONS, exampleSettings(),
                          [](RecordingCompanions& companions) {
                              companions.onCheck = [](KvMvcLookup, KvMvcSettings&) -> int {
                                  throw std::runtime_error("no licence");
                              };
                          });
    };
    QVERIFY_EXCEPTION_THROWN(open(), std::runtime_error);
}

void TestDialogFailures::eventLoopOutlastsAnException()
{
    OpenDialog dialog;
    dialog->hide();
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings&) -> int { throw 5; };
    QTimer::singleShot(0, dialog.get(), [&dialog] {
        user::type(widthOf(dialog), QStringLiteral("1280"));
        user::click(dialog.button("buttonOk"));
        QTimer::singleShot(0, dialog.get(),
                           [&dialog] { user::click(dialog.button("buttonCancel")); });
    });
    QCOMPARE(dialog->exec(), 0);
    QVERIFY(!dialog->isVisible());
    QVERIFY(bytesOf(dialog.caller) == dialog.given);
}

void TestDialogFailures::defaultsThatThrowKeepTheRecord()
{
    OpenDialog dialog;
    const QByteArray before = dialog.bytesOfAllViews();
    dialog.companions.onDefaults = [](KvMvcSettings& settings, int) {
        settings.views[0].width = 4711;
        throw std::runtime_error("no such preset");
    };
    user::click(dialog.button("presetButton"));
    QCOMPARE(dialog.companions.count(QStringLiteral("defaults")), 1);
    QCOMPARE(dialog.companions.count(QStringLiteral("check")), 1);
    QVERIFY(dialog.bytesOfAllViews() == before);
}

void TestDialogFailures::readerThatThrowsChangesNothing()
{
    OpenDialog dialog;
    const QByteArray before = dialog.bytesOfAllViews();
    dialog.companions.onRead = [](KvMvcSettings& settings) -> int {
        settings.views[0].width = 4711;
        throw std::runtime_error("torn file");
    };
    dropFile(dialog);
    QCOMPARE(dialog.companions.calls,
             QStringList({QStringLiteral("api 8193"), QStringLiteral("read /settings.cfg")}));
    QVERIFY(dialog.bytesOfAllViews() == before);
}

void TestDialogFailures::writerThatThrowsIsSilent()
{
    OpenDialog dialog;
    dialog.companions.onWrite = [] { throw std::runtime_error("disk full"); };
    dialog.probe().save(QStringLiteral("/settings.cfg"));
    QCOMPARE(dialog.companions.written.size(), 1);
    QVERIFY(dialog->isVisible());
}

void TestDialogFailures::exportThatThrowsHasNoFunctions()
{
    OpenDialog dialog;
    const QByteArray before = dialog.bytesOfAllViews();
    dialog.companions.onGetApi = [] { throw 5; };
    dropFile(dialog);
    dialog.probe().save(QStringLiteral("/settings.cfg"));
    QCOMPARE(dialog.companions.calls,
             QStringList({QStringLiteral("api 8193"), QStringLiteral("check 3 0"),
                          QStringLiteral("api 8194")}));
    QVERIFY(dialog.bytesOfAllViews() == before);
}

void TestDialogFailures::translationThatThrowsLeavesTheMessage()
{
    OpenDialog dialog;
    companionFunctions().localizeConvert = &throwingConversion;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "err_printf", "width %d", 5);
        return 1;
    };
    user::click(dialog.button("buttonOk"));
    QCOMPARE(dialog.log()->toPlainText().trimmed(), QStringLiteral("width 5"));
}

void TestDialogFailures::okInsideACheckIsTheResult()
{
    OpenDialog dialog;
    QSignalSpy finished(dialog.get(), &QDialog::finished);
    dialog.companions.onCheck = [&dialog](KvMvcLookup, KvMvcSettings& settings) {
        // Only what the user does in it is checked without further ado.
        dialog.companions.onCheck = nullptr;
        user::click(dialog.button("buttonOk"));
        dialog->close();
        dialog->reject();
        settings.views[0].width = 4711;
        return 0;
    };
    user::type(widthOf(dialog), QStringLiteral("1280"));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(dialog->result(), 1);
    QCOMPARE(dialog.caller.views[0].width, 1280);
}

void TestDialogFailures::closingInsideTheCheckOfOkIsTheResult_data()
{
    QTest::addColumn<bool>("byTheCloseBox");
    QTest::newRow("close box") << true;
    QTest::newRow("cancel") << false;
}

void TestDialogFailures::closingInsideTheCheckOfOkIsTheResult()
{
    QFETCH(bool, byTheCloseBox);
    OpenDialog dialog;
    user::type(widthOf(dialog), QStringLiteral("1280"));
    QSignalSpy finished(dialog.get(), &QDialog::finished);
    dialog.companions.onCheck = [&](KvMvcLookup, KvMvcSettings&) {
        dialog.companions.onCheck = nullptr;
        if (byTheCloseBox) {
            dialog->close();
        } else {
            user::click(dialog.button("buttonCancel"));
        }
        return 0;
    };
    user::click(dialog.button("buttonOk"));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(dialog->result(), 0);
    QVERIFY(bytesOf(dialog.caller) == dialog.given);
}

void TestDialogFailures::hostDeletesTheDialogInACompanion_data()
{
    QTest::addColumn<QString>("companion");
    for (const char* name : {"check", "defaults", "reader"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void TestDialogFailures::hostDeletesTheDialogInACompanion()
{
    QFETCH(QString, companion);
    RecordingCompanions companions;
    KvMvcSettings settings = exampleSettings();
    const KvMvcHosting hosting = {usualFlags, nullptr, nullptr, nullptr};
    const QPointer<AVCVideoEncoderDlg> dialog =
        new AVCVideoEncoderDlg(&settings, &hosting, nullptr);
    dialog->show();
    const auto goAway = [dialog] { delete dialog; };
    if (companion == QLatin1String("check")) {
        companions.onCheck = [goAway](KvMvcLookup, KvMvcSettings&) {
            goAway();
            return 0;
        };
        dialog->slotAccept();
    } else if (companion == QLatin1String("defaults")) {
        companions.onDefaults = [goAway](KvMvcSettings& filled, int) {
            goAway();
            filled.views[0].width = 4711;
        };
        dialog->findChild<QAbstractButton*>(QStringLiteral("presetButton"))->click();
    } else {
        companions.onRead = [goAway](KvMvcSettings&) {
            goAway();
            return 0;
        };
        DialogProbe(*dialog).load(QStringLiteral("/settings.cfg"));
    }
    QVERIFY(!dialog);
}

void TestDialogFailures::editInsideACheckIsKept()
{
    OpenDialog dialog;
    auto* const height = on<QSpinBox>(dialog, "VideoFormatPage", "heightSpin");
    dialog.companions.onCheck = [&](KvMvcLookup lookUp, KvMvcSettings&) {
        dialog.companions.onCheck = [](KvMvcLookup inner, KvMvcSettings&) {
            print(inner, "inf_printf", "inner");
            return 0;
        };
        height->setValue(480);
        print(lookUp, "inf_printf", "outer");
        return 0;
    };
    user::type(widthOf(dialog), QStringLiteral("1280"));
    QCOMPARE(workingWidth(dialog), 1280);
    QCOMPARE(dialog.probe().record().settings.views[0].height, 480);
    QCOMPARE(height->value(), 480);
    QCOMPARE(dialog.log()->toPlainText().trimmed(), QStringLiteral("inner"));
    // What "Copy all" copies.
    QCOMPARE(messageLog().allMessages(), QStringLiteral("inner"));
}

void TestDialogFailures::editInsideTheCheckOfOkIsNotAccepted()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [&](KvMvcLookup, KvMvcSettings&) {
        dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
            print(lookUp, "err_printf", "too wide");
            return 1;
        };
        widthOf(dialog)->setValue(4000);
        return 0;
    };
    user::click(dialog.button("buttonOk"));
    QVERIFY(dialog->isVisible());
    QVERIFY(bytesOf(dialog.caller) == dialog.given);
    QCOMPARE(dialog.log()->toPlainText().trimmed(), QStringLiteral("too wide"));
}

QTEST_MAIN(TestDialogFailures)
#include "tst_dialog_failures.moc"
