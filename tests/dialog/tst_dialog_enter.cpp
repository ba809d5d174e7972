// The Enter key: in a field that holds an edit it commits the number, and everywhere else it
// presses the dialog's default button.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>
#include <QTest>

class TestDialogEnter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void firstEnterCommitsTheSecondAccepts_data();
    void firstEnterCommitsTheSecondAccepts();
    void messagesOfTheNumberAreSeen();
    void fieldWithoutAnEditAccepts_data();
    void fieldWithoutAnEditAccepts();
    void otherControlsAccept_data();
    void otherControlsAccept();
};

namespace
{

void typeInto(QSpinBox* field, const QString& text)
{
    user::reveal(field);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, text);
}

} // namespace

void TestDialogEnter::firstEnterCommitsTheSecondAccepts_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("key");
    const auto row = [](const char* page, const char* name, const char* typed, int number,
                        Qt::Key key = Qt::Key_Return) {
        QTest::addRow("%s.%s: %s", page, name, typed)
            << QString::fromLatin1(page) << QString::fromLatin1(name) << QString::fromLatin1(typed)
            << number << int(key);
    };
    row("VideoFormatPage", "widthSpin", "1280", 1280);
    row("VideoFormatPage", "heightSpin", "1024", 1024, Qt::Key_Enter);
    // Too small: what was there comes back.
    row("VideoFormatPage", "widthSpin", "7", 720);
    // The number that is there already.
    row("VideoFormatPage", "widthSpin", "720", 720);
    row("GOPStructurePage", "bBetweenIPSpin", "3", 3);
    row("View0Page", "targetRateSpin", "5000000", 5000000);
    // Each key reports a number here, and the last one is an edit like the others.
    row("GOPStructurePage", "iFrameIntervalSpin", "25", 25);
    row("MiscPage", "slicesSpin", "4", 4, Qt::Key_Enter);
    row("ViewsPage", "numViewsSpin", "0", 0);
}

void TestDialogEnter::firstEnterCommitsTheSecondAccepts()
{
    QFETCH(QString, page);
    QFETCH(QString, name);
    QFETCH(QString, typed);
    QFETCH(int, number);
    QFETCH(int, key);
    OpenDialog dialog;
    auto* const field = findControl<QSpinBox>(dialog.get(), qPrintable(page), qPrintable(name));
    typeInto(field, typed);
    QTest::keyClick(field, Qt::Key(key));
    QVERIFY(dialog->isVisible());
    QCOMPARE(field->value(), number);
    QVERIFY(field->hasFocus());
    QVERIFY(bytesOf(dialog.caller) == dialog.given);
    QTest::keyClick(field, Qt::Key(key));
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), 1);
}

void TestDialogEnter::messagesOfTheNumberAreSeen()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings& settings) {
        print(lookUp, "wrn_printf", "width %d", int(settings.views[0].width));
        return 0;
    };
    auto* const width = findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin");
    typeInto(width, QStringLiteral("1280"));
    QCOMPARE(dialog.companions.count(QStringLiteral("check")), 0);
    QTest::keyClick(width, Qt::Key_Return);
    QCOMPARE(dialog.companions.count(QStringLiteral("check")), 1);
    QVERIFY(dialog.log()->toPlainText().contains(QLatin1String("width 1280")));
}

void TestDialogEnter::fieldWithoutAnEditAccepts_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"untouched", "arrow key", "left and come back to",
                            "typed and then "
                            "stepped"}) {
        QTest::newRow(way) << QString::fromLatin1(way);
    }
}

void TestDialogEnter::fieldWithoutAnEditAccepts()
{
    QFETCH(QString, way);
    OpenDialog dialog;
    auto* const width = findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin");
    user::reveal(width);
    width->setFocus();
    if (way == QLatin1String("arrow key")) {
        QTest::keyClick(width, Qt::Key_Up);
    } else if (way == QLatin1String("left and come back to")) {
        user::type(width, QStringLiteral("1280"));
        QVERIFY(!width->hasFocus());
        width->setFocus();
    } else if (way == QLatin1String("typed and then stepped")) {
        typeInto(width, QStringLiteral("1278"));
        QTest::keyClick(width, Qt::Key_Up);
        QCOMPARE(width->value(), 1280);
    }
    QTest::keyClick(width, Qt::Key_Return);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), 1);
}

void TestDialogEnter::otherControlsAccept_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name");
    QTest::newRow("list") << QStringLiteral("VideoFormatPage") << QStringLiteral("framerateList");
    QTest::newRow("switch") << QStringLiteral("MiscPage") << QStringLiteral("deblockingCheck");
}

void TestDialogEnter::otherControlsAccept()
{
    QFETCH(QString, page);
    QFETCH(QString, name);
    OpenDialog dialog;
    auto* const control = findControl<QWidget>(dialog.get(), qPrintable(page), qPrintable(name));
    user::reveal(control);
    control->setFocus();
    QTest::keyClick(control, Qt::Key_Return);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), 1);
}

QTEST_MAIN(TestDialogEnter)
#include "tst_dialog_enter.moc"
