// The dialog on a screen that is smaller than it would like.

#include "DialogTest.h"
#include "ToolkitWarnings.h"

#include <QScreen>
#include <QTest>

class TestDialogScreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void heightIsAtMost95PercentOfTheScreen();
};

void TestDialogScreen::heightIsAtMost95PercentOfTheScreen()
{
    // The offscreen platform's 800 pixels at the density of this test, of which 95 % are 690.65.
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    QCOMPARE(available.height(), 727);
    OpenDialog dialog;
    QCOMPARE(dialog->maximumHeight(), 690);
    dialog->resize(400, 800);
    QCOMPARE(dialog->height(), 690);
}

QTEST_MAIN(TestDialogScreen)
#include "tst_dialog_screen.moc"
