// The dialog in the fonts of other desktops: nothing scrolls sideways or is cut, numbers are whole,
// all tabs show.

#include "DialogTest.h"
#include "Language.h"
#include "TextRoom.h"
#include "ToolkitWarnings.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QScopeGuard>
#include <QTest>

class TestFitFonts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void textsFit_data();
    void textsFit();
    void tabInFrontIsWholeWhereTheScreenHasRoom();
};

void TestFitFonts::textsFit_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("points");
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("skinKey");
    // All sizes at the usual density, and the ends at others. Each size of a font in both skins.
    const QVector<int> sizes = qGuiApp->devicePixelRatio() == 1
                                   ? QVector<int>{8, 9, 10, 11, 12, 13, 14}
                                   : QVector<int>{9, 14};
    const QStringList languages = Language::withEnglish();
    for (const char* family : {"DejaVu Sans", "DejaVu Serif", "Noto Sans", "Noto Serif",
                               "Cantarell", "Liberation Sans"}) {
        for (const int points : sizes) {
            for (int i = 0; i < languages.size(); ++i) {
                const Qt::Key skin = (points + i) % 2 == 0 ? Qt::Key_F5 : Qt::Key_F6;
                QTest::addRow("%s %d, %s", family, points, qPrintable(languages[i]))
                    << QString::fromLatin1(family) << points << languages[i] << int(skin);
            }
        }
    }
}

void TestFitFonts::textsFit()
{
    QFETCH(QString, family);
    QFETCH(int, points);
    QFETCH(QString, language);
    QFETCH(int, skinKey);
    if (QT_VERSION_MAJOR < 6 && points == 14 && family.startsWith(QLatin1String("Noto"))) {
        QSKIP("Qt 5 gives a line of this font 27 pixels; the row has 26, and its letters need no "
              "more");
    }
    const QFont former = QApplication::font();
    const auto restore = qScopeGuard([&former] { QApplication::setFont(former); });
    const QFont font(family, points);
    QCOMPARE(QFontInfo(font).family(), family);
    QApplication::setFont(font);
    const Language installed(language);
    QVERIFY(installed.isReady());

    OpenDialog dialog;
    QTest::keyClick(dialog.get(), Qt::Key(skinKey));
    QStringList faults;
    for (int mode : {int(KV_MVC_VARIABLE_BITRATE), int(KV_MVC_CONSTANT_QUANTIZER)}) {
        for (KvMvcViewSettings& view : dialog.probe().record().settings.views) {
            view.bitrate_mode = mode;
            view.hrd_mode = 1;
            view.bitrate = view.max_bitrate = 220000000;
            view.width = 1920;
            view.height = 1080;
        }
        dialog.probe().settingsToState();
        for (int tab = 0; tab < dialog.tabs()->count(); ++tab) {
            dialog.tabs()->setCurrentIndex(tab);
            // Texts that break anew ask for another layout.
            for (int i = 0; i < 3; ++i) {
                QCoreApplication::processEvents();
            }
            QCOMPARE(dialog->width(), 400);
            faults += cutTexts(dialog.get()) + collisions(dialog.get());
        }
    }
    faults.removeDuplicates();
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestFitFonts::tabInFrontIsWholeWhereTheScreenHasRoom()
{
    // On the 800 pixels that there are here.
    const QFont former = QApplication::font();
    const auto restore = qScopeGuard([&former] { QApplication::setFont(former); });
    // Lines of Qt 5 are higher by up to a pixel.
    constexpr int points = QT_VERSION_MAJOR < 6 ? 10 : 11;
    QApplication::setFont(QFont(QStringLiteral("Liberation Sans"), points));
    const RecordingCompanions companions;
    KvMvcSettings settings = exampleSettings();
    const KvMvcHosting hosting = {usualFlags, nullptr, nullptr, nullptr};
    AVCVideoEncoderDlg dialog(&settings, &hosting, nullptr);
    const int height = dialog.height();
    dialog.show();
    QCoreApplication::processEvents();
    // A host may have placed it by then.
    QCOMPARE(dialog.height(), height);
    const auto* const tabs = dialog.findChild<QTabWidget*>();
    for (const QScrollArea* area : tabs->currentWidget()->findChildren<QScrollArea*>()) {
        QCOMPARE(area->verticalScrollBar()->maximum(), 0);
    }
}

QTEST_MAIN(TestFitFonts)
#include "tst_fit_fonts.moc"
