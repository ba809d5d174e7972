// F5 and F6 change the skin, and the banner is set with it.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QFile>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

namespace
{

QString sheet(const char* skin)
{
    QFile file(QStringLiteral(":/res_mvc/skins/%1.qss").arg(QLatin1String(skin)));
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
}

} // namespace

// Outside any namespace, as the macro demands.
static void dropResources()
{
    Q_CLEANUP_RESOURCE(res_mvc);
}

class TestDialogSkins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void opensInTheDefaultSkin();
    void keysSwitchTheSkin();
    void keysOfAFocusedControl();
    void otherKeysDoNot_data();
    void otherKeysDoNot();
    void missingSkinIsNone();
    void bannerIsSetAgainEachTime_data();
    void bannerIsSetAgainEachTime();
    void editsSurviveASkin();
    void logIsAsLightBeforeTheFirstCheck();
    void bannerFillsItsFrame_data();
    void bannerFillsItsFrame();
};

void TestDialogSkins::opensInTheDefaultSkin()
{
    OpenDialog dialog;
    QVERIFY(!sheet("default").isEmpty());
    QVERIFY(sheet("default") != sheet("metal"));
    QCOMPARE(dialog->styleSheet(), sheet("default"));
}

void TestDialogSkins::keysSwitchTheSkin()
{
    OpenDialog dialog;
    QTest::keyClick(dialog.get(), Qt::Key_F6);
    QCOMPARE(dialog->styleSheet(), sheet("metal"));
    QTest::keyClick(dialog.get(), Qt::Key_F6);
    QCOMPARE(dialog->styleSheet(), sheet("metal"));
    QTest::keyClick(dialog.get(), Qt::Key_F5);
    QCOMPARE(dialog->styleSheet(), sheet("default"));
    QVERIFY(dialog.companions.calls.isEmpty());
    QVERIFY(dialog->isVisible());
}

void TestDialogSkins::keysOfAFocusedControl()
{
    OpenDialog dialog;
    auto* width = findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin");
    width->setFocus();
    QTest::keyClick(width, Qt::Key_F6);
    QCOMPARE(dialog->styleSheet(), sheet("metal"));
    QCOMPARE(width->value(), 720);
}

void TestDialogSkins::otherKeysDoNot_data()
{
    QTest::addColumn<int>("key");
    for (const int key : {Qt::Key_F1, Qt::Key_F4, Qt::Key_F7, Qt::Key_5, Qt::Key_6}) {
        QTest::addRow("%x", unsigned(key)) << key;
    }
}

void TestDialogSkins::otherKeysDoNot()
{
    QFETCH(int, key);
    OpenDialog dialog;
    QTest::keyClick(dialog.get(), Qt::Key(key));
    QCOMPARE(dialog->styleSheet(), sheet("default"));
}

void TestDialogSkins::missingSkinIsNone()
{
    OpenDialog dialog;
    QVERIFY(!dialog->styleSheet().isEmpty());
    dropResources();
    for (const auto key : {Qt::Key_F6, Qt::Key_F5}) {
        dialog->setStyleSheet(QStringLiteral("QDialog { color: red }"));
        QTest::keyClick(dialog.get(), key);
        QCOMPARE(dialog->styleSheet(), QString());
    }
    // The next dialog brings them back.
    KvMvcSettings settings = exampleSettings();
    const AVCVideoEncoderDlg next(&settings, nullptr, nullptr);
    QVERIFY(!next.styleSheet().isEmpty());
}

void TestDialogSkins::bannerIsSetAgainEachTime_data()
{
    QTest::addColumn<bool>("ofTheHost");
    QTest::newRow("built in") << false;
    QTest::newRow("of the host") << true;
}

void TestDialogSkins::bannerIsSetAgainEachTime()
{
    QFETCH(bool, ofTheHost);
    QTemporaryDir directory;
    const QByteArray path = directory.filePath(QStringLiteral("banner.png")).toUtf8();
    QImage image(30, 10, QImage::Format_RGB32);
    image.fill(Qt::green);
    QVERIFY(image.save(QString::fromUtf8(path)));
    KvMvcSettings settings = exampleSettings();
    const KvMvcHosting hosting = {0, nullptr, nullptr, ofTheHost ? path.constData() : nullptr};
    AVCVideoEncoderDlg dialog(&settings, &hosting, nullptr);
    auto* const banner = dialog.findChild<QLabel*>(QStringLiteral("bannerFrame"));
    const QImage shown = banner->pixmap(Qt::ReturnByValue).toImage();
    QCOMPARE(shown.size() == QSize(30, 10), ofTheHost);

    for (const auto key : {Qt::Key_F6, Qt::Key_F5}) {
        banner->setPixmap(QPixmap());
        QTest::keyClick(&dialog, key);
        QCOMPARE(banner->pixmap(Qt::ReturnByValue).toImage(), shown);
    }
}

void TestDialogSkins::editsSurviveASkin()
{
    OpenDialog dialog;
    user::type(findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin"),
               QStringLiteral("640"));
    QTest::keyClick(dialog.get(), Qt::Key_F6);
    QCOMPARE(findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin")->value(), 640);
    QCOMPARE(int(dialog.probe().record().settings.views[0].width), 640);
}

void TestDialogSkins::logIsAsLightBeforeTheFirstCheck()
{
    OpenDialog dialog;
    QTest::keyClick(dialog.get(), Qt::Key_F6);
    // The check writes three empty paragraphs, for which fonts of some versions need to scroll.
    dialog.log()->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const auto background = [&dialog] { return dialog.log()->viewport()->grab().toImage(); };
    const QImage before = background();
    dialog.probe().check();
    QCOMPARE(background(), before);
}

void TestDialogSkins::bannerFillsItsFrame_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("border");
    QTest::addColumn<int>("radius");
    QTest::newRow("default") << int(Qt::Key_F5) << 1 << 0;
    QTest::newRow("metal") << int(Qt::Key_F6) << 2 << 10;
}

// The picture is dark, the frame and what is behind it are light.
void TestDialogSkins::bannerFillsItsFrame()
{
    QFETCH(int, key);
    QFETCH(int, border);
    QFETCH(int, radius);
    OpenDialog dialog;
    QTest::keyClick(dialog.get(), Qt::Key(key));
    QCoreApplication::processEvents();
    const auto* const banner = dialog->findChild<QLabel*>(QStringLiteral("bannerFrame"));
    const QImage picture = dialog->grab(banner->geometry()).toImage();
    const QRect whole = picture.rect();
    const QRect inside = whole.adjusted(border, border, -border, -border);
    const auto isInCorner = [&](int x, int y) {
        const int across = qMin(x, whole.right() - x);
        const int down = qMin(y, whole.bottom() - y);
        return across < radius && down < radius;
    };
    const auto isDark = [&picture](int x, int y) { return qGray(picture.pixel(x, y)) < 115; };
    for (int x = 0; x < whole.width(); ++x) {
        for (const int y : {inside.top(), inside.bottom()}) {
            QVERIFY2(isDark(x, y) || isInCorner(x, y) || !inside.contains(x, y),
                     qPrintable(QStringLiteral("light at %1, %2").arg(x).arg(y)));
        }
        for (const int y : {0, whole.bottom()}) {
            QVERIFY2(!isDark(x, y), qPrintable(QStringLiteral("dark at %1, %2").arg(x).arg(y)));
        }
    }
    for (int y = 0; y < whole.height(); ++y) {
        for (const int x : {inside.left(), inside.right()}) {
            QVERIFY2(isDark(x, y) || isInCorner(x, y) || !inside.contains(x, y),
                     qPrintable(QStringLiteral("light at %1, %2").arg(x).arg(y)));
        }
        for (const int x : {0, whole.right()}) {
            QVERIFY2(!isDark(x, y), qPrintable(QStringLiteral("dark at %1, %2").arg(x).arg(y)));
        }
    }
    // A round frame, near the diagonal of its corners.
    if (radius > 0) {
        for (const int x : {2, whole.right() - 2}) {
            for (const int y : {3, whole.bottom() - 3}) {
                QVERIFY2(!isDark(x, y), qPrintable(QStringLiteral("dark at %1, %2").arg(x).arg(y)));
            }
        }
    }
}

QTEST_MAIN(TestDialogSkins)
#include "tst_dialog_skins.moc"
