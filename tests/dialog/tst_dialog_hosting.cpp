// What the hosting record decides: flags, title, banner.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QComboBox>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

using Slot = std::function<void(AVCVideoEncoderDlg&)>;
Q_DECLARE_METATYPE(Slot)

namespace
{

QStringList tabTitles(const OpenDialog& dialog)
{
    QStringList titles;
    for (int i = 0; i < dialog.tabs()->count(); ++i) {
        titles += dialog.tabs()->tabText(i);
    }
    return titles;
}

const QString basic = QStringLiteral("Basic Settings");
const QString advanced = QStringLiteral("Advanced Settings");
const QString views = QStringLiteral("Views");

} // namespace

class TestDialogHosting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void flags_data();
    void flags();
    void lockBitsReachTheControls_data();
    void lockBitsReachTheControls();
    void customRateStaysFreeThoughTheRateIsLocked();
    void titleOfTheHost_data();
    void titleOfTheHost();
    void bannerOfTheHost();
    void bannerThatCannotBeReadIsTheBuiltInOne();
    void recordIsOptional();
    void withoutSettingsAnEmptyShell();
    void slotsOfTheShellDoNothing_data();
    void slotsOfTheShellDoNothing();
};

void TestDialogHosting::flags_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QStringList>("tabs");
    QTest::addColumn<bool>("fileButtons");
    QTest::addColumn<int>("checks");
    QTest::addColumn<bool>("banner");

    const QStringList viewsOnly = {views};
    QTest::newRow("none") << 0 << viewsOnly << false << 0 << true;
    QTest::newRow("basic tab") << 0x1 << QStringList({basic, views}) << false << 0 << true;
    QTest::newRow("advanced tab") << 0x2 << QStringList({advanced, views}) << false << 0 << true;
    QTest::newRow("both tabs") << 0x3 << QStringList({basic, advanced, views}) << false << 0
                               << true;
    QTest::newRow("file buttons, checked at first") << 0x10 << viewsOnly << true << 1 << true;
    QTest::newRow("file buttons, not checked") << 0x30 << viewsOnly << true << 0 << true;
    QTest::newRow("no check, no file buttons") << 0x20 << viewsOnly << false << 0 << true;
    QTest::newRow("colours") << 0x40 << viewsOnly << false << 0 << true;
    QTest::newRow("no banner") << 0x1000 << viewsOnly << false << 0 << false;
    QTest::newRow("bits of no meaning") << 0x0FF00F8C << viewsOnly << false << 0 << true;
    QTest::newRow("bits of the hosting modes") << 0x30000000 << viewsOnly << false << 0 << true;
}

void TestDialogHosting::flags()
{
    QFETCH(int, flags);
    QFETCH(QStringList, tabs);
    QFETCH(bool, fileButtons);
    QFETCH(int, checks);
    QFETCH(bool, banner);
    OpenDialog dialog(flags);

    QCOMPARE(tabTitles(dialog), tabs);
    QCOMPARE(dialog.button("buttonLoad")->isVisible(), fileButtons);
    QCOMPARE(dialog.button("buttonSave")->isVisible(), fileButtons);
    QCOMPARE(dialog.companions.calls.size(), checks);
    QCOMPARE(dialog.companions.count(QStringLiteral("check 3 0")), checks);
    QCOMPARE(dialog->findChild<QWidget*>(QStringLiteral("bannerFrame"))->isVisible(), banner);
    QVERIFY(dialog.tabs()->currentWidget()->isVisible());
}

void TestDialogHosting::lockBitsReachTheControls_data()
{
    QTest::addColumn<int>("lock");
    QTest::addColumn<QStringList>("locked");

    QTest::newRow("none") << 0 << QStringList();
    QTest::newRow("video type") << 0x2000 << QStringList{QStringLiteral("presetList")};
    QTest::newRow("size") << 0x4000
                          << QStringList{QStringLiteral("widthSpin"), QStringLiteral("heightSpin"),
                                         QStringLiteral("aspectRatioList"),
                                         QStringLiteral("aspectRatioCheck")};
    QTest::newRow("frame rate") << 0x8000 << QStringList{QStringLiteral("framerateList")};
    QTest::newRow("pixel ratio") << 0x10000
                                 << QStringList{QStringLiteral("pixelXSpin"),
                                                QStringLiteral("pixelYSpin")};
    QTest::newRow("profile") << 0x20000 << QStringList{QStringLiteral("profileList")};
    QTest::newRow("level") << 0x40000 << QStringList{QStringLiteral("levelList")};
    QTest::newRow("views") << 0x80000 << QStringList{QStringLiteral("numViewsSpin")};
}

void TestDialogHosting::lockBitsReachTheControls()
{
    QFETCH(int, lock);
    QFETCH(QStringList, locked);
    OpenDialog dialog(usualFlags | lock);

    const char* const lockable[] = {"presetList",      "widthSpin",        "heightSpin",
                                    "aspectRatioList", "aspectRatioCheck", "framerateList",
                                    "pixelXSpin",      "pixelYSpin",       "profileList",
                                    "levelList",       "numViewsSpin"};
    for (const char* name : lockable) {
        const auto* control = dialog->findChild<QWidget*>(QLatin1String(name));
        QVERIFY2(control, name);
        QVERIFY2(control->isEnabled() != locked.contains(QLatin1String(name)), name);
    }
    // Locked, but shown.
    QCOMPARE(findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin")->value(), 720);
    QCOMPARE(dialog.presetList()->currentText(), QStringLiteral("Multivew High"));
    QVERIFY(dialog.button("presetButton")->isEnabled());
}

void TestDialogHosting::customRateStaysFreeThoughTheRateIsLocked()
{
    KvMvcSettings settings = exampleSettings();
    put(settings, {{0, 32, 48.0}});
    OpenDialog dialog(usualFlags | 0x8000, settings);
    const auto* list = findControl<QComboBox>(dialog.get(), "VideoFormatPage", "framerateList");
    QCOMPARE(list->currentText(), QStringLiteral("48"));
    QVERIFY(list->isEnabled());
}

void TestDialogHosting::titleOfTheHost_data()
{
    QTest::addColumn<QByteArray>("title");
    QTest::addColumn<QString>("shown");
    QTest::newRow("none") << QByteArray() << QStringLiteral("Korvane MVC Video Encoder Settings");
    QTest::newRow("plain") << QByteArray("Stereo job 3") << QStringLiteral("Stereo job 3");
    QTest::newRow("empty") << QByteArray("") << QString();
    QTest::newRow("Latin-1") << QByteArray("Gr\xF6\xDF"
                                           "e")
                             << QStringLiteral("Gr\u00F6\u00DFe");
    QTest::newRow("UTF-8") << QByteArray("Gr\xC3\xB6\xC3\x9F"
                                         "e")
                           << QStringLiteral("Gr\u00F6\u00DFe");
}

void TestDialogHosting::titleOfTheHost()
{
    QFETCH(QByteArray, title);
    QFETCH(QString, shown);
    KvMvcSettings settings = exampleSettings();
    const KvMvcHosting hosting = {0, nullptr, title.isNull() ? nullptr : title.constData(),
                                  nullptr};
    AVCVideoEncoderDlg dialog(&settings, &hosting, nullptr);
    QCOMPARE(dialog.windowTitle(), shown);
}

void TestDialogHosting::bannerOfTheHost()
{
    QTemporaryDir directory;
    const QByteArray path = directory.filePath(QStringLiteral("banner.png")).toUtf8();
    QImage image(50, 20, QImage::Format_RGB32);
    image.fill(QColor(200, 30, 40));
    QVERIFY(image.save(QString::fromUtf8(path)));

    KvMvcSettings settings = exampleSettings();
    const KvMvcHosting hosting = {0, nullptr, nullptr, path.constData()};
    AVCVideoEncoderDlg dialog(&settings, &hosting, nullptr);
    const auto* banner = dialog.findChild<QLabel*>(QStringLiteral("bannerFrame"));
    const QImage shown =
        banner->pixmap(Qt::ReturnByValue).toImage().convertToFormat(QImage::Format_RGB32);
    QCOMPARE(shown, image);
    QCOMPARE(banner->alignment(), Qt::Alignment(Qt::AlignCenter));
}

void TestDialogHosting::bannerThatCannotBeReadIsTheBuiltInOne()
{
    KvMvcSettings settings = exampleSettings();
    const KvMvcHosting hosting = {0, nullptr, nullptr, "/nowhere/banner.png"};
    AVCVideoEncoderDlg dialog(&settings, &hosting, nullptr);
    const auto* banner = dialog.findChild<QLabel*>(QStringLiteral("bannerFrame"));
    const QImage builtIn = QPixmap(QStringLiteral(":/res_mvc/banners/banner.png")).toImage();
    QVERIFY(!builtIn.isNull());
    QCOMPARE(banner->pixmap(Qt::ReturnByValue).toImage(), builtIn);
}

void TestDialogHosting::recordIsOptional()
{
    KvMvcSettings settings = exampleSettings();
    AVCVideoEncoderDlg dialog(&settings, nullptr, nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Korvane MVC Video Encoder Settings"));
    QCOMPARE(dialog.findChild<QTabWidget*>(QStringLiteral("tabWidget"))->count(), 1);
}

void TestDialogHosting::withoutSettingsAnEmptyShell()
{
    const KvMvcHosting hosting = {usualFlags, nullptr, "Shell", nullptr};
    AVCVideoEncoderDlg dialog(nullptr, &hosting, nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Shell"));
    QVERIFY(!dialog.findChild<QPushButton*>(QStringLiteral("buttonOk"))->icon().isNull());
    QCOMPARE(dialog.findChild<QComboBox*>(QStringLiteral("presetList"))->count(), 0);
    dialog.show();
    QCoreApplication::processEvents();
    QVERIFY(dialog.isVisible());
}

void TestDialogHosting::slotsOfTheShellDoNothing_data()
{
    QTest::addColumn<Slot>("slot");
    const auto row = [](const char* name, Slot slot) { QTest::newRow(name) << slot; };
    const auto receive = [](const char* key, const QVariant& value) {
        return [key, value](AVCVideoEncoderDlg& shell) {
            ConfigState state;
            state.insert(QString::fromLatin1(key), value);
            shell.slotReceiveState(state);
        };
    };
    row("accept", &AVCVideoEncoderDlg::slotAccept);
    row("edit", receive("Horizontal Size", 1280));
    row("number of views", receive("Number of views", 1));
    row("preset key", receive("Video Type", QStringLiteral("Stereo High")));
    row("preset",
        [](AVCVideoEncoderDlg& shell) { shell.slotChangePreset(QStringLiteral("Stereo High")); });
    row("restore", &AVCVideoEncoderDlg::slotRestorePreset);
}

void TestDialogHosting::slotsOfTheShellDoNothing()
{
    QFETCH(Slot, slot);
    RecordingCompanions companions;
    AVCVideoEncoderDlg shell(nullptr, nullptr, nullptr);
    shell.show();
    QSignalSpy finished(&shell, &QDialog::finished);
    slot(shell);
    QCOMPARE(companions.calls, QStringList());
    QVERIFY(shell.isVisible());
    QCOMPARE(finished.count(), 0);
    shell.slotReject();
    QCOMPARE(finished.count(), 1);
}

QTEST_MAIN(TestDialogHosting)
#include "tst_dialog_hosting.moc"
