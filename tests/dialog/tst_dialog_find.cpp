// Ctrl+F: the list of settings over the dialog, worked by keys and the mouse.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QComboBox>
#include <QListWidget>
#include <QScrollArea>
#include <QTest>
#include <QToolButton>

namespace
{

/// The list that is open; null without one.
QWidget* openBox()
{
    return QApplication::activePopupWidget();
}

QListWidget* list()
{
    return openBox() ? openBox()->findChild<QListWidget*>() : nullptr;
}

/// What the list shows.
QStringList items()
{
    QStringList texts;
    for (int row = 0; list() && row < list()->count(); ++row) {
        texts += list()->item(row)->text();
    }
    return texts;
}

void find(const OpenDialog& dialog, const QString& typed)
{
    QTest::keyClick(dialog->focusWidget(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(openBox());
    QVERIFY(openBox()->focusWidget());
    QTest::keyClicks(openBox()->focusWidget(), typed);
}

void press(Qt::Key key)
{
    QTest::keyClick(openBox()->focusWidget(), key);
}

} // namespace

class TestDialogFind : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void listsAllSettingsAtFirst();
    void typingNarrows_data();
    void typingNarrows();
    void bestMatchComesFirst();
    void enterGoesThere_data();
    void enterGoesThere();
    void arrowsChoose();
    void clickGoesThere();
    void escapeClosesTheListOnly();
    void nothingFound();
    void isOverTheDialog();
    void tipsAreOnReadableLines();
};

void TestDialogFind::listsAllSettingsAtFirst()
{
    OpenDialog dialog;
    find(dialog, QString());
    QVERIFY(items().contains(QStringLiteral("Picture width \u2013 Basic Settings")));
    QVERIFY(items().contains(QStringLiteral("Level \u2013 Advanced Settings")));
    QVERIFY(items().contains(QStringLiteral("View 3, Minimum quantizer \u2013 Views")));
    QVERIFY(items().contains(QStringLiteral("Preset")));
    // The preset, 12 on the basic tab, 29 on the advanced one, 2 of all views and 17 of each.
    QCOMPARE(items().size(), 1 + 12 + 29 + 2 + 4 * 17);
    QCOMPARE(dialog.companions.calls, QStringList());
}

void TestDialogFind::typingNarrows_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("found");
    QTest::newRow("label") << QStringLiteral("weighted")
                           << QStringLiteral("Weighted prediction for P-frames");
    QTest::newRow("other case") << QStringLiteral("wIDTH") << QStringLiteral("Picture width");
    QTest::newRow("the preset, although others' tips name it")
        << QStringLiteral("preset") << QStringLiteral("Preset");
    QTest::newRow("key") << QStringLiteral("piramyd")
                         << QStringLiteral("Pyramidal structure for B-frames");
    QTest::newRow("member") << QStringLiteral("bit_depth_luma") << QStringLiteral("Bit-depth luma");
    QTest::newRow("tip") << QStringLiteral("helps with fades")
                         << QStringLiteral("Weighted prediction for P-frames");
    QTest::newRow("words in any order")
        << QStringLiteral("frames weighted") << QStringLiteral("Weighted prediction for P-frames");
    QTest::newRow("without its hyphen")
        << QStringLiteral("bit depth chroma") << QStringLiteral("Bit-depth chroma");
}

void TestDialogFind::typingNarrows()
{
    QFETCH(QString, typed);
    QFETCH(QString, found);
    OpenDialog dialog;
    find(dialog, typed);
    QCOMPARE(items().value(0).section(QStringLiteral(" \u2013 "), 0, 0), found);
}

void TestDialogFind::bestMatchComesFirst()
{
    OpenDialog dialog;
    // The label that begins so, then others that have it.
    find(dialog, QStringLiteral("reference frames"));
    QCOMPARE(
        items().mid(0, 2),
        QStringList({QStringLiteral("Reference frames \u2013 Advanced Settings"),
                     QStringLiteral("B-frames as reference frames \u2013 Advanced Settings")}));
}

void TestDialogFind::enterGoesThere_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<int>("tab");
    QTest::newRow("the same tab") << QStringLiteral("chroma format") << QByteArray("chromaList")
                                  << 0;
    QTest::newRow("another tab, below the fold")
        << QStringLiteral("weighted") << QByteArray("weightedPCheck") << 1;
    QTest::newRow("above the tabs") << QStringLiteral("preset") << QByteArray("presetList") << 0;
    QTest::newRow("a view") << QStringLiteral("view 1, target bitrate")
                            << QByteArray("targetRateSpin") << 2;
}

void TestDialogFind::enterGoesThere()
{
    QFETCH(QString, typed);
    QFETCH(QByteArray, control);
    QFETCH(int, tab);
    OpenDialog dialog;
    for (QToolButton* button : dialog->findChildren<QToolButton*>()) {
        if (button->isCheckable()) {
            button->setChecked(false);
        }
    }
    dialog.companions.calls.clear();
    find(dialog, typed);
    press(Qt::Key_Return);
    QVERIFY(!openBox());
    QWidget* const focus = QApplication::focusWidget();
    QVERIFY(focus);
    QCOMPARE(focus->objectName(), QLatin1String(control));
    QCOMPARE(dialog.tabs()->currentIndex(), tab);
    QVERIFY(focus->isVisible());
    QVERIFY(!focus->visibleRegion().isEmpty());
    QCOMPARE(dialog.companions.calls, QStringList());
    QVERIFY(dialog->isVisible());
}

void TestDialogFind::arrowsChoose()
{
    OpenDialog dialog;
    find(dialog, QStringLiteral("quantizer i"));
    const QString second = items().value(1);
    QVERIFY(second.startsWith(QLatin1String("View 1, ")));
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Up);
    QCOMPARE(list()->currentItem()->text(), second);
    // Screen readers stay with the field that is typed in.
    QCOMPARE(openBox()->focusWidget()->accessibleDescription(), second);
}

void TestDialogFind::clickGoesThere()
{
    OpenDialog dialog;
    find(dialog, QStringLiteral("entropy"));
    const QRect item = list()->visualItemRect(list()->item(0));
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, item.center());
    QVERIFY(!openBox());
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("entropyList"));
}

void TestDialogFind::escapeClosesTheListOnly()
{
    OpenDialog dialog;
    auto* const width = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
    width->setFocus();
    find(dialog, QStringLiteral("level"));
    press(Qt::Key_Escape);
    QVERIFY(!openBox());
    QVERIFY(dialog->isVisible());
    QVERIFY(width->hasFocus());
    QCOMPARE(dialog.tabs()->currentIndex(), 0);
}

void TestDialogFind::nothingFound()
{
    OpenDialog dialog;
    find(dialog, QStringLiteral("zebra"));
    QCOMPARE(items(), QStringList(QStringLiteral("No setting has these words.")));
    press(Qt::Key_Return);
    QVERIFY(openBox());
}

void TestDialogFind::isOverTheDialog()
{
    OpenDialog dialog;
    find(dialog, QString());
    QVERIFY(dialog->frameGeometry().contains(openBox()->geometry()));
}

void TestDialogFind::tipsAreOnReadableLines()
{
    OpenDialog dialog;
    find(dialog, QString());
    QVERIFY(list());
    for (int row = 0; row < list()->count(); ++row) {
        const QStringList lines = list()->item(row)->toolTip().split(QLatin1Char('\n'));
        for (const QString& line : lines) {
            QVERIFY2(line.size() <= 100, qPrintable(line));
        }
    }
}

QTEST_MAIN(TestDialogFind)
#include "tst_dialog_find.moc"
