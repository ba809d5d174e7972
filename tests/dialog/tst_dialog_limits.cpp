// How much of its limits a stream uses, where the encoder tells: bars in the level's tip, and over
// the dialog by a key.

#include "CheckWords.h"
#include "DialogTest.h"
#include "ToolkitWarnings.h"

#include <QScreen>
#include <QTest>

#include <utility>

namespace
{

void tellUse(KvMvcLookup lookUp, const char* name, const char* unit, const char* level, int view,
             double used, double limit)
{
    KvMvcLimitUse use = {};
    use.size = sizeof use;
    use.view = view;
    use.name = name;
    use.unit = unit;
    use.level = level;
    use.used = used;
    use.limit = limit;
    reinterpret_cast<KvMvcTellLimitUse>(lookUp("lim_usage"))(&use);
}

int someLimits(KvMvcLookup lookUp, KvMvcSettings&)
{
    tellUse(lookUp, "Picture size", "macroblocks", "4.1", -1, 5440, 8192);
    tellUse(lookUp, "Decoded pictures", "frames", "4.1", -1, 5, 4);
    tellUse(lookUp, "Bitrate", "bit/s", "4.1", 0, 22500000, 62500000);
    tellUse(lookUp, "Bitrate on a disc", "bit/s", nullptr, 1, 59999999, 60000000);
    tellUse(lookUp, "Film <grain>", "", "4.1", -1, 0.25, 1);
    return 0;
}

/// What a reader sees of rich text.
QString plain(const QString& html)
{
    QTextDocument document;
    document.setHtml(html);
    return document.toPlainText().replace(QChar(0xa0), QLatin1Char(' '));
}

QString levelTip(const OpenDialog& dialog)
{
    return on<QComboBox>(dialog, "AdvancedPage", "levelList")->toolTip();
}

QLabel* sheet()
{
    const QWidget* const popup = QApplication::activePopupWidget();
    return popup ? popup->findChild<QLabel*>(QStringLiteral("limits")) : nullptr;
}

} // namespace

class TestDialogLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void levelsTipHasThem();
    void namesAreInTheLanguageOfMessages();
    void barsAreAsLongAsTheirShare_data();
    void barsAreAsLongAsTheirShare();
    void theyAreOfTheLastCheck();
    void keyShowsThemFromAnywhere_data();
    void keyShowsThemFromAnywhere();
    void keySaysWhereThereAreNone();
    void sheetStaysOnTheScreen();
};

void TestDialogLimits::levelsTipHasThem()
{
    OpenDialog dialog;
    const QString before = levelTip(dialog);
    dialog.companions.onCheck = someLimits;
    dialog.probe().check();
    const QString tip = plain(levelTip(dialog));
    QVERIFY2(tip.startsWith(QLatin1String("Level, which limits picture size")), qPrintable(tip));
    for (const char* words :
         {"Limits of level 4.1", "Picture size", "66 %", "5,440 of 8,192 macroblocks; 2,752 left",
          "125 %", "5 of 4 frames; 1 too much", "Bitrate, Base View", "36 %",
          "22.5 of 62.5 Mbit/s; 40 left", "Other limits", "Bitrate on a disc, View 1", "99 %",
          "Film <grain>", "25 %", "0.25 of 1 ; 0.75 left"}) {
        QVERIFY2(tip.contains(QLatin1String(words)),
                 qPrintable(QLatin1String(words) + QLatin1String(": ") + tip));
    }
    // The bars are for the eyes: help has the words alone.
    QCOMPARE(on<QComboBox>(dialog, "AdvancedPage", "levelList")->whatsThis(), before);
}

void TestDialogLimits::namesAreInTheLanguageOfMessages()
{
    OpenDialog dialog;
    companionFunctions().localizeConvert = [](const char* text) -> const char* {
        return qstrcmp(text, "Picture size") == 0 ? "Bildgr\xC3\xB6\xC3\x9F"
                                                    "e"
                                                  : nullptr;
    };
    dialog.companions.onCheck = someLimits;
    dialog.probe().check();
    QVERIFY(levelTip(dialog).contains(QStringLiteral("Bildgr\u00F6\u00DFe")));
    QVERIFY(levelTip(dialog).contains(QLatin1String("Decoded pictures")));
}

void TestDialogLimits::barsAreAsLongAsTheirShare_data()
{
    QTest::addColumn<double>("used");
    QTest::addColumn<int>("filled");
    QTest::newRow("none") << 0.0 << 1;
    QTest::newRow("half") << 2.0 << 60;
    QTest::newRow("nearly all") << 3.999 << 118;
    QTest::newRow("all") << 4.0 << 120;
    QTest::newRow("too much") << 400000.0 << 120;
}

void TestDialogLimits::barsAreAsLongAsTheirShare()
{
    QFETCH(double, used);
    QFETCH(int, filled);
    OpenDialog dialog;
    dialog.companions.onCheck = [used](KvMvcLookup lookUp, KvMvcSettings&) {
        tellUse(lookUp, "Decoded pictures", "frames", "4.1", -1, used, 4);
        return 0;
    };
    dialog.probe().check();
    const QString tip = levelTip(dialog);
    QVERIFY2(tip.contains(QStringLiteral("<td width=\"%1\"").arg(filled)), qPrintable(tip));
    QCOMPARE(tip.contains(QStringLiteral("<td width=\"%1\"").arg(120 - filled)), filled < 120);
}

void TestDialogLimits::theyAreOfTheLastCheck()
{
    OpenDialog dialog;
    const QString before = levelTip(dialog);
    dialog.companions.onCheck = someLimits;
    dialog.probe().check();
    QVERIFY(levelTip(dialog) != before);
    dialog.companions.onCheck = {};
    dialog.probe().check();
    QCOMPARE(levelTip(dialog), before);
}

void TestDialogLimits::keyShowsThemFromAnywhere_data()
{
    QTest::addColumn<QByteArray>("page");
    QTest::addColumn<QByteArray>("control");
    QTest::newRow("field") << QByteArray("VideoFormatPage") << QByteArray("widthSpin");
    QTest::newRow("list") << QByteArray("VideoFormatPage") << QByteArray("framerateList");
    QTest::newRow("log") << QByteArray("AVCVideoEncoderDlg") << QByteArray("errorLog");
    QTest::newRow("button") << QByteArray("AVCVideoEncoderDlg") << QByteArray("buttonOk");
}

void TestDialogLimits::keyShowsThemFromAnywhere()
{
    QFETCH(QByteArray, page);
    QFETCH(QByteArray, control);
    OpenDialog dialog;
    dialog.companions.onCheck = someLimits;
    dialog.probe().check();
    dialog.companions.calls.clear();
    auto* const widget = on<QWidget>(dialog, page.constData(), control.constData());
    for (const Qt::Key closing : {Qt::Key_F7, Qt::Key_Escape, Qt::Key_Space}) {
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_F7);
        QVERIFY(sheet());
        QVERIFY(plain(sheet()->text()).contains(QLatin1String("5 of 4 frames; 1 too much")));
        QTest::keyClick(QApplication::activePopupWidget(), closing);
        QVERIFY(!sheet());
        QVERIFY(dialog->isVisible());
        QCOMPARE(dialog->focusWidget(), widget);
    }
    QCOMPARE(dialog.companions.calls, QStringList());
}

void TestDialogLimits::keySaysWhereThereAreNone()
{
    OpenDialog dialog;
    QTest::keyClick(dialog.get(), Qt::Key_F7);
    QVERIFY(sheet());
    QCOMPARE(sheet()->text(), QStringLiteral("The encoder tells no limits of these settings."));
    QApplication::activePopupWidget()->close();
}

void TestDialogLimits::sheetStaysOnTheScreen()
{
    OpenDialog dialog;
    dialog.companions.onCheck = someLimits;
    dialog.probe().check();
    for (const QPoint place : {QPoint(-300, -500), QPoint(700, 550)}) {
        dialog->move(place);
        QTest::keyClick(dialog.get(), Qt::Key_F7);
        const QWidget* const popup = QApplication::activePopupWidget();
        QVERIFY(popup);
        const QRect room = dialog->screen()->availableGeometry();
        QVERIFY(popup->x() >= room.left());
        QVERIFY(popup->y() >= room.top());
        QVERIFY2(popup->width() <= room.width(), qPrintable(QString::number(popup->width())));
        QVERIFY(popup->geometry().right() <= room.right());
        QVERIFY(popup->geometry().bottom() <= room.bottom());
        QApplication::activePopupWidget()->close();
    }
}

QTEST_MAIN(TestDialogLimits)
#include "tst_dialog_limits.moc"
