// From a message of the log to the control that it is about, where the encoder tells.

#include "CheckWords.h"
#include "DialogTest.h"
#include "ModalWatch.h"
#include "SettingsLedger.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"
#include "dialog/MessageLinks.h"
#include "dialog/MessageLog.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QToolTip>

#include <utility>

namespace
{

using Check = std::function<int(KvMvcLookup, KvMvcSettings&)>;

QTextBlock blockOf(const OpenDialog& dialog, const QString& text)
{
    return dialog.log()->document()->find(text).block();
}

/// The middle of a message's line in the log's viewport.
QPoint placeOf(const OpenDialog& dialog, const QString& text)
{
    QTextEdit* const log = dialog.log();
    log->setTextCursor(QTextCursor(blockOf(dialog, text)));
    const QRect cursor = log->cursorRect();
    return {30, cursor.center().y()};
}

void click(const OpenDialog& dialog, const QString& text)
{
    QTest::mouseClick(dialog.log()->viewport(), Qt::LeftButton, {}, placeOf(dialog, text));
    QCoreApplication::processEvents();
}

void pressEnter(const OpenDialog& dialog, const QString& text)
{
    QTest::keyClick(dialog.get(), Qt::Key_F8);
    dialog.log()->setTextCursor(QTextCursor(blockOf(dialog, text)));
    QTest::keyClick(dialog.log(), Qt::Key_Return);
    QCoreApplication::processEvents();
}

/// All sections of the dialog, folded.
void foldAll(const OpenDialog& dialog)
{
    for (auto* button : dialog->findChildren<QToolButton*>()) {
        if (button->isCheckable()) {
            button->setChecked(false);
        }
    }
}

void checkWith(OpenDialog& dialog, Check check)
{
    dialog.companions.onCheck = std::move(check);
    dialog.probe().check();
}

QWidget* focus()
{
    return QApplication::focusWidget();
}

Qt::CursorShape shapeOver(const OpenDialog& dialog, const QPoint& place)
{
    QTest::mouseMove(dialog.log()->viewport(), place);
    return dialog.log()->viewport()->cursor().shape();
}

} // namespace

class TestDialogLinks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void messageLeadsToItsControl_data();
    void messageLeadsToItsControl();
    void everySettingsControlIsReached();
    void pointerTellsWhatLeadsSomewhere();
    void tipNamesTheControl();
    void selectingTextDoesNotLead();
    void messageWithTheCursorIsTinted();
    void enterOnOtherMessagesIsForTheDialog();
    void linesOfOneMessageAreTheSame_data();
    void linesOfOneMessageAreTheSame();
    void messageWithoutAWordOfItsOwnLeadsNowhere();
    void unknownFactsLeadNowhere_data();
    void unknownFactsLeadNowhere();
    void tabThatIsAbsentIsNotReached();
    void controlThatDoesNotShowLeadsToItsSection();
    void disabledControlShowsItsTip();
    void refusedOkGoesToTheFirstError_data();
    void refusedOkGoesToTheFirstError();
    void refusedOkWithAHiddenLogGoesThere();
    void innerCheckHasTheLastWord();
    void factsOutsideACheckAreNobodys();
    void textAndColoursAreAsWithoutFacts();
    void sameTextMayBeAboutSomethingElse();
    void messagesThatAreNotShownMarkNothing();
};

void TestDialogLinks::messageLeadsToItsControl_data()
{
    QTest::addColumn<QByteArray>("setting");
    QTest::addColumn<int>("view");
    QTest::addColumn<QByteArray>("page");
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<int>("tab");
    QTest::addColumn<bool>("byKey");
    for (const bool byKey : {false, true}) {
        const auto row = [byKey](const char* setting, int view, const char* page,
                                 const char* control, int tab) {
            QTest::addRow("%s of view %d, %s", setting, view, byKey ? "Enter" : "click")
                << QByteArray(setting) << view << QByteArray(page) << QByteArray(control) << tab
                << byKey;
        };
        row("width", -1, "VideoFormatPage", "widthSpin", 0);
        row("height", 1, "VideoFormatPage", "heightSpin", 0);
        row("frame_rate", -1, "VideoFormatPage", "framerateList", 0);
        row("level", -1, "AdvancedPage", "levelList", 1);
        row("num_slices", 0, "MiscPage", "slicesSpin", 1);
        row("contrast", -1, "RateDistortionPage", "contrastSlider", 1);
        row("num_views", -1, "ViewsPage", "numViewsSpin", 2);
        row("bitrate", 0, "View0Page", "targetRateSpin", 2);
        row("bitrate", 1, "View1Page", "targetRateSpin", 2);
        row("bitrate", -1, "View0Page", "targetRateSpin", 2);
        row("bitrate_units", 1, "View1Page", "units1Radio", 2);
    }
}

void TestDialogLinks::messageLeadsToItsControl()
{
    QFETCH(QByteArray, setting);
    QFETCH(int, view);
    QFETCH(QByteArray, page);
    QFETCH(QByteArray, control);
    QFETCH(int, tab);
    QFETCH(bool, byKey);
    OpenDialog dialog;
    checkWith(dialog, [&](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "err_printf", "about nothing");
        printAbout(lookUp, "err_printf", setting.constData(), view, "about it");
        print(lookUp, "inf_printf", "a note");
        return 1;
    });
    foldAll(dialog);
    dialog.tabs()->setCurrentIndex(tab == 0 ? 1 : 0);
    dialog.companions.calls.clear();
    const QByteArray before = dialog.bytes();
    (byKey ? pressEnter : click)(dialog, QStringLiteral("about it"));
    QCOMPARE(dialog.tabs()->currentIndex(), tab);
    auto* const wanted = findControl<QWidget>(dialog.get(), page.constData(), control.constData());
    QCOMPARE(focus(), wanted);
    QVERIFY(wanted->isVisible());
    QVERIFY(!wanted->visibleRegion().isEmpty());
    // It is only looked at.
    QVERIFY(dialog.bytes() == before);
    QCOMPARE(dialog.companions.calls, QStringList());
}

void TestDialogLinks::everySettingsControlIsReached()
{
    KvMvcSettings settings = exampleSettings();
    settings.num_views = 4;
    OpenDialog dialog(usualFlags, settings);
    QStringList lost;
    for (const ledger::Setting& setting : ledger::settings()) {
        for (int view = 0; setting.key && view < setting.viewCount(); ++view) {
            checkWith(dialog, [&](KvMvcLookup lookUp, KvMvcSettings&) {
                printAbout(lookUp, "wrn_printf", setting.member, view, "about it");
                return 0;
            });
            if (shapeOver(dialog, placeOf(dialog, QStringLiteral("about it"))) !=
                Qt::PointingHandCursor) {
                lost += setting.keyOf(view);
            }
        }
    }
    QCOMPARE(lost, QStringList());
}

void TestDialogLinks::pointerTellsWhatLeadsSomewhere()
{
    OpenDialog dialog;
    checkWith(dialog, [](KvMvcLookup lookUp, KvMvcSettings&) {
        printAbout(lookUp, "wrn_printf", "width", -1, "about it");
        print(lookUp, "wrn_printf", "about nothing");
        return 0;
    });
    QCOMPARE(shapeOver(dialog, placeOf(dialog, QStringLiteral("about it"))),
             Qt::PointingHandCursor);
    QCOMPARE(shapeOver(dialog, placeOf(dialog, QStringLiteral("about nothing"))), Qt::IBeamCursor);
}

void TestDialogLinks::tipNamesTheControl()
{
    OpenDialog dialog;
    checkWith(dialog, [](KvMvcLookup lookUp, KvMvcSettings&) {
        printAbout(lookUp, "wrn_printf", "bitrate", 1, "about it");
        return 0;
    });
    const QPoint place = placeOf(dialog, QStringLiteral("about it"));
    QWidget* const viewport = dialog.log()->viewport();
    QHelpEvent help(QEvent::ToolTip, place, viewport->mapToGlobal(place));
    QCoreApplication::sendEvent(viewport, &help);
    QVERIFY2(QToolTip::text().contains(QLatin1String("View 1, Target bitrate (bps)")),
             qPrintable(QToolTip::text()));
    QToolTip::hideText();
}

void TestDialogLinks::selectingTextDoesNotLead()
{
    OpenDialog dialog;
    checkWith(dialog, [](KvMvcLookup lookUp, KvMvcSettings&) {
        printAbout(lookUp, "wrn_printf", "level", -1, "too wide for this level by far");
        printAbout(lookUp, "wrn_printf", "num_slices", -1, "too many slices for this level");
        return 0;
    });
    QWidget* const viewport = dialog.log()->viewport();
    const QPoint from = placeOf(dialog, QStringLiteral("too many"));
    QTest::mousePress(viewport, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, from + QPoint(60, 0),
                     viewport->mapToGlobal(from + QPoint(60, 0)), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &move);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, from + QPoint(60, 0));
    QCoreApplication::processEvents();
    QVERIFY(dialog.log()->textCursor().hasSelection());
    QCOMPARE(dialog.tabs()->currentIndex(), 0);
    // Nor does the other button, which is for the menu.
    QTest::mouseClick(viewport, Qt::MiddleButton, {}, from);
    QCoreApplication::processEvents();
    QCOMPARE(dialog.tabs()->currentIndex(), 0);
}

void TestDialogLinks::messageWithTheCursorIsTinted()
{
    OpenDialog dialog;
    checkWith(dialog, [](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "wrn_printf", "about nothing");
        printAbout(lookUp, "wrn_printf", "width", -1, "about it");
        return 0;
    });
    const auto tinted = [&] {
        QStringList texts;
        for (const QTextEdit::ExtraSelection& tint : dialog.log()->extraSelections()) {
            texts += tint.cursor.selectedText();
        }
        return texts.join(QLatin1Char('|'));
    };
    QCOMPARE(tinted(), QString());
    QTest::keyClick(dialog.get(), Qt::Key_F8);
    QCoreApplication::processEvents();
    QCOMPARE(tinted(), QString());
    QTest::keyClick(dialog.log(), Qt::Key_Down);
    QCOMPARE(tinted(), QStringLiteral("about it"));
    dialog.presetList()->setFocus();
    QCoreApplication::processEvents();
    QCOMPARE(tinted(), QString());
}

void TestDialogLinks::enterOnOtherMessagesIsForTheDialog()
{
    OpenDialog dialog;
    checkWith(dialog, [](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "inf_printf", "about nothing");
        return 0;
    });
    pressEnter(dialog, QStringLiteral("about nothing"));
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
}

void TestDialogLinks::linesOfOneMessageAreTheSame_data()
{
    QTest::addColumn<QByteArray>("between");
    QTest::newRow("line feed") << QByteArray("\n");
    QTest::newRow("two") << QByteArray("\n\n");
    QTest::newRow("as on Windows") << QByteArray("\r\n");
    QTest::newRow("carriage return") << QByteArray("\r");
    QTest::newRow("paragraph separator") << QByteArray("\xE2\x80\xA9");
}

void TestDialogLinks::linesOfOneMessageAreTheSame()
{
    QFETCH(QByteArray, between);
    OpenDialog dialog;
    checkWith(dialog, [&](KvMvcLookup lookUp, KvMvcSettings&) {
        printAbout(lookUp, "err_printf", "width", -1, QByteArray("first " + between + " second"));
        printAbout(lookUp, "err_printf", "num_views", -1,
                   QByteArray("third " + between + " fourth"));
        printAbout(lookUp, "wrn_printf", "level", -1, QByteArray("fifth " + between + " sixth"));
        return 1;
    });
    const std::pair<const char*, int> tabs[] = {{"sixth", 1}, {"second", 0}, {"third", 2},
                                                {"first", 0}, {"fourth", 2}, {"fifth", 1}};
    for (const auto& [text, tab] : tabs) {
        click(dialog, QString::fromLatin1(text));
        QCOMPARE(dialog.tabs()->currentIndex(), tab);
    }
}

void TestDialogLinks::messageWithoutAWordOfItsOwnLeadsNowhere()
{
    OpenDialog dialog;
    checkWith(dialog, [](KvMvcLookup lookUp, KvMvcSettings&) {
        tellAbout(lookUp, "level");
        tellAbout(lookUp, "num_views");
        print(lookUp, "err_printf", "first");
        print(lookUp, "err_printf", "second");
        print(lookUp, "wrn_printf", "third");
        return 1;
    });
    for (const char* text : {"second", "third"}) {
        click(dialog, QString::fromLatin1(text));
        QCOMPARE(dialog.tabs()->currentIndex(), 0);
    }
    // The last word before it counts.
    click(dialog, QStringLiteral("first"));
    QCOMPARE(dialog.tabs()->currentIndex(), 2);
}

void TestDialogLinks::unknownFactsLeadNowhere_data()
{
    QTest::addColumn<QByteArray>("setting");
    QTest::addColumn<int>("view");
    QTest::newRow("no setting") << QByteArray() << -1;
    QTest::newRow("empty name") << QByteArray("") << -1;
    QTest::newRow("another encoder's setting") << QByteArray("film_grain") << 0;
    QTest::newRow("view beyond the last") << QByteArray("bitrate") << 4;
    QTest::newRow("view far out") << QByteArray("bitrate") << -2147483647;
    QTest::newRow("setting that no control has") << QByteArray("multi_slice") << 0;
}

void TestDialogLinks::unknownFactsLeadNowhere()
{
    QFETCH(QByteArray, setting);
    QFETCH(int, view);
    OpenDialog dialog;
    checkWith(dialog, [&](KvMvcLookup lookUp, KvMvcSettings&) {
        printAbout(lookUp, "err_printf", setting.isNull() ? nullptr : setting.constData(), view,
                   "about it");
        return 1;
    });
    QCOMPARE(shapeOver(dialog, placeOf(dialog, QStringLiteral("about it"))), Qt::IBeamCursor);
    click(dialog, QStringLiteral("about it"));
    QCOMPARE(dialog.tabs()->currentIndex(), 0);
    QCOMPARE(focus(), static_cast<QWidget*>(dialog.log()));
    user::click(dialog.button("buttonOk"));
    QCOMPARE(focus(), static_cast<QWidget*>(dialog.log()));
    QCOMPARE(dialog.log()->textCursor().selectedText(), QStringLiteral("about it"));
}

void TestDialogLinks::tabThatIsAbsentIsNotReached()
{
    OpenDialog dialog(KV_MVC_GUI_BASIC_TAB);
    checkWith(dialog, [](KvMvcLookup lookUp, KvMvcSettings&) {
        printAbout(lookUp, "err_printf", "level", -1, "about it");
        return 1;
    });
    QCOMPARE(shapeOver(dialog, placeOf(dialog, QStringLiteral("about it"))), Qt::IBeamCursor);
    click(dialog, QStringLiteral("about it"));
    QCOMPARE(dialog.tabs()->currentIndex(), 0);
}

void TestDialogLinks::controlThatDoesNotShowLeadsToItsSection()
{
    // Without HRD conformance the maximum does not show.
    KvMvcSettings settings = exampleSettings();
    settings.views[1].hrd_mode = 0;
    OpenDialog dialog(usualFlags, settings);
    checkWith(dialog, [](KvMvcLookup lookUp, KvMvcSettings&) {
        printAbout(lookUp, "wrn_printf", "max_bitrate", 1, "about it");
        return 1;
    });
    foldAll(dialog);
    click(dialog, QStringLiteral("about it"));
    QCOMPARE(dialog.tabs()->currentIndex(), 2);
    QCOMPARE(focus(), static_cast<QWidget*>(on<QComboBox>(dialog, "View1Page", "bitrateModeList")));
}

void TestDialogLinks::disabledControlShowsItsTip()
{
    OpenDialog dialog(usualFlags | KV_MVC_GUI_LOCK_LEVEL);
    checkWith(dialog, [](KvMvcLookup lookUp, KvMvcSettings&) {
        printAbout(lookUp, "err_printf", "level", -1, "about it");
        return 1;
    });
    auto* const level = on<QComboBox>(dialog, "AdvancedPage", "levelList");
    QVERIFY(!level->isEnabled());
    click(dialog, QStringLiteral("about it"));
    QCOMPARE(dialog.tabs()->currentIndex(), 1);
    QCOMPARE(focus(), static_cast<QWidget*>(dialog.log()));
    const auto onOneLine = [](QString text) {
        return text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    };
    QCOMPARE(onOneLine(QToolTip::text()), onOneLine(level->toolTip()));
    QToolTip::hideText();
}

void TestDialogLinks::refusedOkGoesToTheFirstError_data()
{
    QTest::addColumn<bool>("firstIsKnown");
    QTest::newRow("known") << true;
    QTest::newRow("the first error is about nothing") << false;
}

void TestDialogLinks::refusedOkGoesToTheFirstError()
{
    QFETCH(bool, firstIsKnown);
    OpenDialog dialog;
    dialog.companions.onCheck = [&](KvMvcLookup lookUp, KvMvcSettings&) {
        printAbout(lookUp, "wrn_printf", "level", -1, "a warning");
        if (firstIsKnown) {
            tellAbout(lookUp, "bitrate", 1);
        }
        print(lookUp, "err_printf", "first error");
        printAbout(lookUp, "err_printf", "width", -1, "second error");
        return 1;
    };
    for (int press = 0; press < 2; ++press) {
        dialog.tabs()->setCurrentIndex(0);
        user::click(dialog.button("buttonOk"));
        QCOMPARE(dialog.companions.count(QStringLiteral("check")), press + 1);
        QVERIFY(dialog->isVisible());
        QCOMPARE(dialog.log()->textCursor().selectedText(), QStringLiteral("first error"));
        if (firstIsKnown) {
            QCOMPARE(dialog.tabs()->currentIndex(), 2);
            auto* const rate = on<QSpinBox>(dialog, "View1Page", "targetRateSpin");
            QCOMPARE(focus(), static_cast<QWidget*>(rate));
            // Typing goes over the number.
            QCOMPARE(rate->findChild<QLineEdit*>()->selectedText(), rate->text());
        } else {
            QCOMPARE(dialog.tabs()->currentIndex(), 0);
            QCOMPARE(focus(), static_cast<QWidget*>(dialog.log()));
        }
    }
}

void TestDialogLinks::refusedOkWithAHiddenLogGoesThere()
{
    OpenDialog dialog;
    dialog.log()->hide();
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        printAbout(lookUp, "err_printf", "level", -1, "an error");
        return 1;
    };
    ModalWatch watch([](QWidget* window) { window->close(); });
    user::click(dialog.button("buttonOk"));
    QCOMPARE(watch.seen(), 1);
    QCOMPARE(dialog->focusWidget(),
             static_cast<QWidget*>(on<QComboBox>(dialog, "AdvancedPage", "levelList")));
    // Shown again, the log has no line of what boxes said.
    dialog.log()->show();
    QCOMPARE(dialog.log()->toPlainText(), QStringLiteral("\n\n"));
}

void TestDialogLinks::innerCheckHasTheLastWord()
{
    OpenDialog dialog;
    int depth = 0;
    dialog.companions.onCheck = [&](KvMvcLookup lookUp, KvMvcSettings&) {
        if (depth++ == 0) {
            tellAbout(lookUp, "num_views");
            dialog.probe().check();
            // What the inner check told is not this message's; the outer one's still is.
            print(lookUp, "err_printf", "outer");
            return 1;
        }
        printAbout(lookUp, "err_printf", "level", -1, "inner");
        tellAbout(lookUp, "width");
        return 1;
    };
    dialog.probe().check();
    QCOMPARE(dialog.log()->toPlainText(), QStringLiteral("\ninner\n\n"));
    QCOMPARE(int(messageLog().told.size()), 1);
    click(dialog, QStringLiteral("inner"));
    QCOMPARE(dialog.tabs()->currentIndex(), 1);
}

void TestDialogLinks::factsOutsideACheckAreNobodys()
{
    OpenDialog dialog;
    KvMvcLookup kept = nullptr;
    checkWith(dialog, [&kept](KvMvcLookup lookUp, KvMvcSettings&) {
        kept = lookUp;
        tellAbout(lookUp, "level");
        return 0;
    });
    // Neither what was told last in a check nor what is told after it.
    tellAbout(kept, "num_views");
    checkWith(dialog, [](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "err_printf", "an error");
        return 1;
    });
    QVERIFY(!messageLog().told.first().facts);
    reinterpret_cast<KvMvcTellAbout>(kept("msg_about"))(nullptr);
    reinterpret_cast<KvMvcTellLimitUse>(kept("lim_usage"))(nullptr);
    KvMvcLimitUse use = {};
    use.size = sizeof use;
    reinterpret_cast<KvMvcTellLimitUse>(kept("lim_usage"))(&use);
    QVERIFY(messageLog().limits.isEmpty());
}

void TestDialogLinks::textAndColoursAreAsWithoutFacts()
{
    const auto shownBy = [](const Check& check) {
        OpenDialog dialog;
        checkWith(dialog, check);
        QStringList blocks;
        const QTextDocument* const document = dialog.log()->document();
        for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
            QString formats;
            for (auto at = block.begin(); !at.atEnd(); ++at) {
                const QTextCharFormat format = at.fragment().charFormat();
                formats += format.foreground().color().name() +
                           (format.fontUnderline() ? QLatin1String(" _") : QLatin1String(""));
            }
            blocks += formats + QLatin1Char(' ') + block.text();
        }
        return blocks;
    };
    const char* const sinks[] = {"inf_printf", "err_printf", "wrn_printf", "err_printf"};
    const QStringList plain = shownBy([&](KvMvcLookup lookUp, KvMvcSettings&) {
        for (const char* sink : sinks) {
            print(lookUp, sink, "of %s\nand more", sink);
        }
        return 1;
    });
    const QStringList withFacts = shownBy([&](KvMvcLookup lookUp, KvMvcSettings&) {
        for (const char* sink : sinks) {
            tellAbout(lookUp, "width");
            print(lookUp, sink, "of %s\nand more", sink);
        }
        return 1;
    });
    QCOMPARE(withFacts, plain);
    QCOMPARE(plain.join(QLatin1Char('|')),
             QStringLiteral("#0000b4 of wrn_printf|#0000b4 and more| |"
                            "#b40000 of err_printf|#b40000 and more|"
                            "#b40000 of err_printf|#b40000 and more| |"
                            "#141414 of inf_printf|#141414 and more| "));
}

void TestDialogLinks::sameTextMayBeAboutSomethingElse()
{
    OpenDialog dialog;
    for (const auto& [setting, control] :
         {std::pair{"width", "widthSpin"}, std::pair{"height", "heightSpin"}}) {
        checkWith(dialog, [name = setting](KvMvcLookup lookUp, KvMvcSettings&) {
            printAbout(lookUp, "wrn_printf", name, -1, "odd");
            return 0;
        });
        pressEnter(dialog, QStringLiteral("odd"));
        QCOMPARE(focus()->objectName(), QLatin1String(control));
    }
    // Nothing of it stays when there is no warning any more.
    checkWith(dialog, [](KvMvcLookup, KvMvcSettings&) { return 0; });
    QVERIFY(!message_links::messageOf(dialog.log()->document()->begin()));
}

void TestDialogLinks::messagesThatAreNotShownMarkNothing()
{
    OpenDialog dialog;
    checkWith(dialog, [](KvMvcLookup lookUp, KvMvcSettings&) {
        for (int i = 0; i < 10000; ++i) {
            printAbout(lookUp, "wrn_printf", "width", -1, QByteArray(i == 0 ? "first" : "next"));
        }
        printAbout(lookUp, "wrn_printf", "height", -1, "not shown");
        printAbout(lookUp, "inf_printf", "height", -1, "not shown either");
        return 0;
    });
    int paragraphs = 0;
    const QTextDocument* const document = dialog.log()->document();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const CheckMessage* const message = message_links::messageOf(block);
        QCOMPARE(message != nullptr, !block.text().isEmpty() && paragraphs < 10000);
        QVERIFY(!message || message->facts->setting == QLatin1String("width"));
        ++paragraphs;
    }
    QCOMPARE(paragraphs, 10000 + 4);
}

QTEST_MAIN(TestDialogLinks)
#include "tst_dialog_links.moc"
