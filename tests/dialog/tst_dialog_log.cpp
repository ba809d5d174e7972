// The message log: what the encoder's check prints, in blocks and colours; boxes while it is
// hidden.

#include "DialogTest.h"
#include "ModalWatch.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"
#include "dialog/MessageLog.h"

#include <QMessageBox>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

#include <cstring>

namespace
{

/// Each paragraph of the log with its colour: "#b40000 too wide". An empty one has no colour.
QStringList paragraphs(const OpenDialog& dialog)
{
    QStringList list;
    const QTextDocument* const document = dialog.log()->document();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        if (block.text().isEmpty()) {
            list += QString();
            continue;
        }
        QStringList colours;
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            colours += at.fragment().charFormat().foreground().color().name();
        }
        colours.removeDuplicates();
        list += colours.join(QLatin1Char('/')) + QLatin1Char(' ') + block.text();
    }
    return list;
}

int oneOfEach(KvMvcLookup lookUp, KvMvcSettings&)
{
    print(lookUp, "inf_printf", "note %d", 1);
    print(lookUp, "err_printf", "error %s", "one");
    print(lookUp, "wrn_printf", "warning %.2f", 0.5);
    print(lookUp, "prg_printf", "%d %%", 50);
    print(lookUp, "err_printf", "error two");
    return 0;
}

/// More of each than the log can show.
int manyOfEach(KvMvcLookup lookUp, KvMvcSettings&)
{
    for (const char* sink : {"wrn_printf", "err_printf", "inf_printf"}) {
        for (int i = 0; i < 20; ++i) {
            print(lookUp, sink, "%s %d", sink, i);
        }
    }
    return 1;
}

/// The text of the line at the log's upper edge.
QString topLine(const OpenDialog& dialog)
{
    return dialog.log()->cursorForPosition({20, 3}).block().text();
}

const char* const sinkNames[] = {"err_printf", "wrn_printf", "inf_printf", "prg_printf"};

const char* translated(const char* format)
{
    return std::strcmp(format, "width %d") == 0 ? "Breite %d \xC3\xA4" : nullptr;
}

} // namespace

class TestDialogLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }
    void cleanup() { messageLog() = MessageLog(); }

    void threeParagraphsWhenNothingIsPrinted();
    void warningsThenErrorsThenNotesInTheirColours();
    void coloursBecomeOneForTheRestOfTheProcess();
    void firstCheckIsStillColoured();
    void everyCheckWritesTheLogAnew();
    void logOfTheDialogThatIsOpen();
    void longMessagesAreWhole();
    void manyMessages();
    void ordinaryAmountsAreShownWhole();
    void furtherMessagesAreCounted();
    void errorsAreShownBeforeWarnings();
    void longerMessageIsCutShort();
    void nothingIsWrittenTwice();
    void textIsNotMarkup();
    void textOutsideAscii_data();
    void textOutsideAscii();
    void formatsAreTranslatedFirst();
    void startsReadingAtTheFirstMessage();
    void startsReadingAtTheFirstErrorBelowWarnings();
    void refusedOkPointsOutTheFirstError_data();
    void refusedOkPointsOutTheFirstError();
    void refusedOkWithoutAnErrorShowsTheLog();
    void editDoesNotTakeTheFocusToTheLog();
    void wrappedMessagesHang();
    void lookup_data();
    void lookup();
    void lookupAllocates();
    void boxesWhileTheLogIsHidden_data();
    void boxesWhileTheLogIsHidden();
    void eachHiddenMessageHasItsBoxAtOnce();
    void buttonOfTheBoxIsNotSqueezed_data();
    void buttonOfTheBoxIsNotSqueezed();
    void logOfADialogNotYetShownIsNotHidden();
    void printingWithoutADialog();
};

void TestDialogLog::threeParagraphsWhenNothingIsPrinted()
{
    for (const int verdict : {0, 1}) {
        OpenDialog dialog;
        dialog.companions.onCheck = [verdict](KvMvcLookup, KvMvcSettings&) { return verdict; };
        QCOMPARE(dialog.probe().check(), verdict == 0);
        QCOMPARE(paragraphs(dialog), QStringList({QString(), QString(), QString()}));
        // And again, over what is there.
        QCOMPARE(dialog.probe().check(), verdict == 0);
        QCOMPARE(dialog.log()->document()->blockCount(), 3);
    }
}

void TestDialogLog::warningsThenErrorsThenNotesInTheirColours()
{
    OpenDialog dialog;
    dialog.companions.onCheck = oneOfEach;
    dialog.probe().check();
    QCOMPARE(paragraphs(dialog),
             QStringList({QStringLiteral("#0000b4 warning 0.50"), QString(),
                          QStringLiteral("#b40000 error one"), QStringLiteral("#b40000 error two"),
                          QString(), QStringLiteral("#141414 note 1"), QString()}));
}

void TestDialogLog::coloursBecomeOneForTheRestOfTheProcess()
{
    const QStringList plain = {QStringLiteral("#141414 warning 0.50"),
                               QString(),
                               QStringLiteral("#141414 error one"),
                               QStringLiteral("#141414 error two"),
                               QString(),
                               QStringLiteral("#141414 note 1"),
                               QString()};
    const KvMvcHosting without = {usualFlags & ~KV_MVC_GUI_LOG_COLOURS, nullptr, nullptr, nullptr};
    KvMvcSettings settings = exampleSettings();
    {
        const AVCVideoEncoderDlg first(&settings, &without, nullptr);
    }
    // A later dialog with the bit does not bring them back.
    OpenDialog dialog;
    dialog.companions.onCheck = oneOfEach;
    dialog.probe().check();
    QCOMPARE(paragraphs(dialog), plain);
}

void TestDialogLog::firstCheckIsStillColoured()
{
    const auto printing = [](RecordingCompanions& companions) { companions.onCheck = oneOfEach; };
    OpenDialog dialog(KV_MVC_GUI_FILE_BUTTONS, exampleSettings(), printing);
    QCOMPARE(paragraphs(dialog).value(0), QStringLiteral("#0000b4 warning 0.50"));
    dialog.probe().check();
    QCOMPARE(paragraphs(dialog).value(0), QStringLiteral("#141414 warning 0.50"));
}

void TestDialogLog::everyCheckWritesTheLogAnew()
{
    OpenDialog dialog;
    dialog.companions.onCheck = oneOfEach;
    dialog.probe().check();
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "inf_printf", "only this");
        return 0;
    };
    dialog.probe().check();
    QCOMPARE(paragraphs(dialog),
             QStringList({QString(), QString(), QStringLiteral("#141414 only this"), QString()}));
}

void TestDialogLog::logOfTheDialogThatIsOpen()
{
    KvMvcSettings settings = exampleSettings();
    {
        const AVCVideoEncoderDlg first(&settings, nullptr, nullptr);
        QVERIFY(messageLog().widget);
        QVERIFY(first.isAncestorOf(messageLog().widget));
    }
    QVERIFY(!messageLog().widget);
    const AVCVideoEncoderDlg second(&settings, nullptr, nullptr);
    QVERIFY(second.isAncestorOf(messageLog().widget));
}

void TestDialogLog::longMessagesAreWhole()
{
    OpenDialog dialog;
    const QByteArray word(65000, 'x');
    dialog.companions.onCheck = [&word](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "err_printf", "<%s> %d", word.constData(), 7);
        print(lookUp, "wrn_printf", word.constData());
        return 0;
    };
    dialog.probe().check();
    QCOMPARE(dialog.log()->toPlainText(),
             QString(65000, QLatin1Char('x')) + QStringLiteral("\n\n<") +
                 QString(65000, QLatin1Char('x')) + QStringLiteral("> 7\n\n"));
}

void TestDialogLog::manyMessages()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        for (int i = 0; i < 2000; ++i) {
            print(lookUp, i % 2 ? "err_printf" : "inf_printf", "message %d", i);
        }
        return 0;
    };
    dialog.probe().check();
    QCOMPARE(dialog.log()->document()->blockCount(), 2000 + 3);
    QVERIFY(dialog.log()->toPlainText().contains(QLatin1String("\nmessage 1999\n")));
}

namespace
{

/// Prints the given number of errors, warnings and notes; each has its number.
auto printing(int errors, int warnings, int notes)
{
    return [=](KvMvcLookup lookUp, KvMvcSettings&) {
        for (int i = 1; i <= errors; ++i) {
            print(lookUp, "err_printf", "error %d", i);
        }
        for (int i = 1; i <= warnings; ++i) {
            print(lookUp, "wrn_printf", "warning %d", i);
        }
        for (int i = 1; i <= notes; ++i) {
            print(lookUp, "inf_printf", "note %d", i);
        }
        return 0;
    };
}

} // namespace

void TestDialogLog::ordinaryAmountsAreShownWhole()
{
    OpenDialog dialog;
    dialog.companions.onCheck = printing(1, 1, 9998);
    dialog.probe().check();
    QCOMPARE(dialog.log()->document()->blockCount(), 10000 + 3);
    QVERIFY(dialog.log()->toPlainText().endsWith(QLatin1String("\nnote 9998\n")));
}

void TestDialogLog::furtherMessagesAreCounted()
{
    OpenDialog dialog;
    dialog.companions.onCheck = printing(0, 10, 100000);
    dialog.probe().check();
    const QString shown = dialog.log()->toPlainText();
    QVERIFY(shown.endsWith(
        QLatin1String("\nnote 9990\n\nFurther messages: 90,010. \"Copy all\" has them whole.")));
    QVERIFY(shown.startsWith(QLatin1String("warning 1\n")));
    QCOMPARE(paragraphs(dialog).last().left(16), QStringLiteral("#141414 Further "));

    // The next check has an ordinary amount.
    dialog.companions.onCheck = printing(0, 0, 1);
    dialog.probe().check();
    QCOMPARE(dialog.log()->toPlainText(), QStringLiteral("\n\nnote 1\n"));
}

void TestDialogLog::errorsAreShownBeforeWarnings()
{
    OpenDialog dialog;
    dialog.companions.onCheck = printing(2, 10000, 1);
    dialog.probe().check();
    const QString shown = dialog.log()->toPlainText();
    QVERIFY(shown.endsWith(QLatin1String("\nwarning 9998\n\nerror 1\nerror 2\n\n\nFurther "
                                         "messages: 3. \"Copy all\" has them whole.")));
}

void TestDialogLog::longerMessageIsCutShort()
{
    OpenDialog dialog;
    const QByteArray word(10 * 1024 * 1024, 'x');
    dialog.companions.onCheck = [&word](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "wrn_printf", "%s", word.constData());
        print(lookUp, "inf_printf", "a note");
        return 0;
    };
    dialog.probe().check();
    QCOMPARE(dialog.log()->toPlainText(),
             QString(65536, QLatin1Char('x')) +
                 QStringLiteral("\u2026\n\n\na note\n\nMessages cut short: 1. \"Copy all\" has "
                                "them whole."));
}

void TestDialogLog::nothingIsWrittenTwice()
{
    OpenDialog dialog;
    dialog.companions.onCheck = manyOfEach;
    dialog.probe().check();
    const QSignalSpy writes(dialog.log()->document(), &QTextDocument::contentsChange);
    dialog.probe().check();
    QCOMPARE(writes.size(), 0);
    QCOMPARE(topLine(dialog), QStringLiteral("err_printf 0"));
    // At once, and not emptied first.
    dialog.companions.onCheck = oneOfEach;
    dialog.probe().check();
    QCOMPARE(writes.size(), 1);
}

void TestDialogLog::textIsNotMarkup()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "err_printf", "<b>level</b> < 4 && > 3");
        return 0;
    };
    dialog.probe().check();
    QCOMPARE(paragraphs(dialog).value(1), QStringLiteral("#b40000 <b>level</b> < 4 && > 3"));
}

void TestDialogLog::textOutsideAscii_data()
{
    QTest::addColumn<QByteArray>("printed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("Latin-1") << QByteArray("Gr\xF6\xDF") << QStringLiteral("Gr\u00F6\u00DF");
    QTest::newRow("UTF-8") << QByteArray("\xE5\xB9\x85 \xC3\xB6")
                           << QStringLiteral("\u5E45 \u00F6");
}

void TestDialogLog::textOutsideAscii()
{
    QFETCH(QByteArray, printed);
    QFETCH(QString, shown);
    OpenDialog dialog;
    dialog.companions.onCheck = [&printed](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "wrn_printf", "%s", printed.constData());
        return 0;
    };
    dialog.probe().check();
    QCOMPARE(paragraphs(dialog).value(0), QStringLiteral("#0000b4 ") + shown);
}

void TestDialogLog::formatsAreTranslatedFirst()
{
    OpenDialog dialog;
    companionFunctions().localizeConvert = translated;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "err_printf", "width %d", 5);
        print(lookUp, "err_printf", "height %d", 6);
        return 1;
    };
    dialog.probe().check();
    QCOMPARE(paragraphs(dialog).mid(1, 2), QStringList({QStringLiteral("#b40000 Breite 5 \u00E4"),
                                                        QStringLiteral("#b40000 height 6")}));
}

void TestDialogLog::startsReadingAtTheFirstMessage()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        for (int i = 0; i < 40; ++i) {
            print(lookUp, "inf_printf", "note %d", i);
        }
        return 0;
    };
    dialog.probe().check();
    QCOMPARE(dialog.log()->textCursor().block().text(), QStringLiteral("note 0"));
    QVERIFY(!dialog.log()->textCursor().hasSelection());
}

void TestDialogLog::startsReadingAtTheFirstErrorBelowWarnings()
{
    OpenDialog dialog;
    dialog.companions.onCheck = manyOfEach;
    dialog.probe().check();
    QCOMPARE(topLine(dialog), QStringLiteral("err_printf 0"));
    QCOMPARE(dialog.log()->textCursor().block().text(), QStringLiteral("err_printf 0"));
    QVERIFY(!dialog.log()->textCursor().hasSelection());
}

void TestDialogLog::refusedOkPointsOutTheFirstError_data()
{
    QTest::addColumn<QString>("first");
    QTest::newRow("short") << QStringLiteral("too wide");
    QTest::newRow("longer than the log is high") << QStringLiteral("too wide ").repeated(90);
}

void TestDialogLog::refusedOkPointsOutTheFirstError()
{
    QFETCH(QString, first);
    OpenDialog dialog;
    dialog.companions.onCheck = [&first](KvMvcLookup lookUp, KvMvcSettings&) {
        for (int i = 0; i < 20; ++i) {
            print(lookUp, "wrn_printf", "warning %d", i);
        }
        print(lookUp, "err_printf", "%s", qPrintable(first));
        print(lookUp, "err_printf", "too high");
        for (int i = 0; i < 20; ++i) {
            print(lookUp, "inf_printf", "note %d", i);
        }
        return 1;
    };
    // Once more with the same messages: the user has to see that it was refused again.
    for (int press = 0; press < 2; ++press) {
        dialog.log()->moveCursor(QTextCursor::End);
        user::click(dialog.button("buttonOk"));
        QVERIFY(dialog->isVisible());
        QVERIFY(dialog.log()->hasFocus());
        QCOMPARE(dialog.log()->textCursor().selectedText(), first);
        QCOMPARE(topLine(dialog), first);
    }
    // Until the next check, which has messages of its own.
    dialog.probe().check();
    QVERIFY(!dialog.log()->textCursor().hasSelection());
}

void TestDialogLog::refusedOkWithoutAnErrorShowsTheLog()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings&) { return 1; };
    user::click(dialog.button("buttonOk"));
    QVERIFY(dialog.log()->hasFocus());
    QVERIFY(!dialog.log()->textCursor().hasSelection());
}

void TestDialogLog::editDoesNotTakeTheFocusToTheLog()
{
    OpenDialog dialog;
    dialog.companions.onCheck = manyOfEach;
    auto* const width = findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin");
    width->setFocus();
    QTest::keyClick(width, Qt::Key_Up);
    QVERIFY(width->hasFocus());
    QVERIFY(!dialog.log()->textCursor().hasSelection());
}

void TestDialogLog::wrappedMessagesHang()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        for (const char* sink : {"wrn_printf", "err_printf", "inf_printf"}) {
            print(lookUp, sink, "%s", qPrintable(QStringLiteral("too wide ").repeated(20)));
        }
        return 0;
    };
    dialog.probe().check();
    int wrapped = 0;
    const QTextDocument* const document = dialog.log()->document();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const QTextLayout* const layout = block.layout();
        const qreal begin = layout->lineAt(0).x();
        for (int line = 1; line < layout->lineCount(); ++line, ++wrapped) {
            QVERIFY(layout->lineAt(line).x() >= begin + 8);
        }
    }
    QVERIFY(wrapped >= 3);
}

void TestDialogLog::lookup_data()
{
    QTest::addColumn<bool>("known");
    for (const char* name : {"malloc", "free", "err_printf", "prg_printf", "wrn_printf",
                             "inf_printf", "msg_about", "lim_usage"}) {
        QTest::newRow(name) << true;
    }
    for (const char* name : {"printf", "err_printf ", "ERR_PRINTF", "err_print", "err_printfs",
                             "realloc", "wrn", "mallocfree", "msg_abou", "msg_about_", "lim_use"}) {
        QTest::newRow(name) << false;
    }
}

void TestDialogLog::lookup()
{
    QFETCH(bool, known);
    QCOMPARE(lookUpCheckFunction(QTest::currentDataTag()) != nullptr, known);
    QVERIFY(!lookUpCheckFunction(""));
    QVERIFY(!lookUpCheckFunction(nullptr));
}

void TestDialogLog::lookupAllocates()
{
    using Allocate = void* (*)(size_t);
    using Release = void (*)(void*);
    void* const memory = reinterpret_cast<Allocate>(lookUpCheckFunction("malloc"))(4096);
    QVERIFY(memory);
    std::memset(memory, 1, 4096);
    reinterpret_cast<Release>(lookUpCheckFunction("free"))(memory);
    // Four sinks, not one under four names.
    QVector<KvMvcFunction> sinks;
    for (const char* name : sinkNames) {
        if (!sinks.contains(lookUpCheckFunction(name))) {
            sinks += lookUpCheckFunction(name);
        }
    }
    QCOMPARE(sinks.size(), 4);
}

void TestDialogLog::boxesWhileTheLogIsHidden_data()
{
    QTest::addColumn<QByteArray>("sink");
    QTest::addColumn<int>("icon");
    QTest::newRow("error") << QByteArray("err_printf") << int(QMessageBox::Critical);
    QTest::newRow("warning") << QByteArray("wrn_printf") << int(QMessageBox::Warning);
    QTest::newRow("note") << QByteArray("inf_printf") << int(QMessageBox::Information);
}

void TestDialogLog::boxesWhileTheLogIsHidden()
{
    QFETCH(QByteArray, sink);
    QFETCH(int, icon);
    OpenDialog dialog;
    dialog.log()->hide();
    dialog.companions.onCheck = [&sink](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, sink.constData(), "level %d", 41);
        return 0;
    };
    ModalWatch watch([&](QWidget* window) {
        auto* const box = qobject_cast<QMessageBox*>(window);
        QVERIFY(box);
        QCOMPARE(int(box->icon()), icon);
        QCOMPARE(box->windowTitle(), QStringLiteral("Korvane MVC Video Encoder"));
        QCOMPARE(box->text(), QStringLiteral("level 41\n"));
        QCOMPARE(box->standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box->buttons().size(), 1);
        QCOMPARE(box->parentWidget(), dialog.log()->parentWidget());
        user::click(box->button(QMessageBox::Ok));
    });
    dialog.probe().check();
    QCOMPARE(watch.seen(), 1);
    QVERIFY(!watch.forced());
    QVERIFY(messageLog().errors.isEmpty());
    QVERIFY(messageLog().warnings.isEmpty());
    QVERIFY(messageLog().notes.isEmpty());
    QCOMPARE(paragraphs(dialog), QStringList({QString(), QString(), QString()}));
}

void TestDialogLog::eachHiddenMessageHasItsBoxAtOnce()
{
    OpenDialog dialog;
    dialog.log()->hide();
    QStringList order;
    dialog.companions.onCheck = [&order](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "inf_printf", "first");
        order += QStringLiteral("after first");
        print(lookUp, "prg_printf", "no box");
        print(lookUp, "err_printf", "second");
        order += QStringLiteral("after second");
        return 0;
    };
    ModalWatch watch(
        [&order](QWidget* window) {
            order += qobject_cast<QMessageBox*>(window)->text();
            QTest::keyClick(window, Qt::Key_Return);
        },
        2);
    dialog.probe().check();
    QVERIFY(!watch.forced());
    QCOMPARE(order, QStringList({QStringLiteral("first\n"), QStringLiteral("after first"),
                                 QStringLiteral("second\n"), QStringLiteral("after second")}));
}

void TestDialogLog::buttonOfTheBoxIsNotSqueezed_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("default") << int(Qt::Key_F5);
    QTest::newRow("metal") << int(Qt::Key_F6);
}

void TestDialogLog::buttonOfTheBoxIsNotSqueezed()
{
    QFETCH(int, key);
    OpenDialog dialog;
    QTest::keyClick(dialog.get(), Qt::Key(key));
    dialog.log()->hide();
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "err_printf", "wide");
        return 0;
    };
    ModalWatch watch([](QWidget* window) {
        const auto* const button = qobject_cast<QMessageBox*>(window)->button(QMessageBox::Ok);
        const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
        QVERIFY(button->width() >= text.width() + 8);
        QVERIFY(button->height() >= text.height() + 4);
        QVERIFY(button->width() > 40);
        QTest::keyClick(window, Qt::Key_Escape);
    });
    dialog.probe().check();
    QCOMPARE(watch.seen(), 1);
}

void TestDialogLog::logOfADialogNotYetShownIsNotHidden()
{
    ModalWatch watch([](QWidget* window) { window->close(); }, 10);
    const auto printing = [](RecordingCompanions& companions) { companions.onCheck = oneOfEach; };
    OpenDialog dialog(KV_MVC_GUI_FILE_BUTTONS, exampleSettings(), printing);
    QCOMPARE(watch.seen(), 0);
    QVERIFY(dialog.log()->toPlainText().contains(QLatin1String("error one")));
}

void TestDialogLog::printingWithoutADialog()
{
    ModalWatch watch([](QWidget* window) { window->close(); });
    print(&lookUpCheckFunction, "err_printf", "nobody %s", "listens");
    QCOMPARE(messageLog().errors, QStringList(QStringLiteral("nobody listens")));
    QCOMPARE(watch.seen(), 0);
}

QTEST_MAIN(TestDialogLog)
#include "tst_dialog_log.moc"
