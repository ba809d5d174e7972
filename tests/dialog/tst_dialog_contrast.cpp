// What can be told apart on light, dark and high-contrast palettes, in both skins, and under style
// sheets of hosts: measured from pixels.

#include "DialogTest.h"
#include "ToolkitWarnings.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QRadioButton>
#include <QScopeGuard>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QTest>
#include <QToolButton>

#include <cmath>

namespace
{

double luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// The contrast ratio of WCAG 2.1.
double contrast(const QColor& a, const QColor& b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

/// As hosts make them: some set all, and some a few colours of a palette that is light otherwise.
QPalette paletteOf(const QString& name)
{
    QPalette palette = QApplication::style()->standardPalette();
    const auto set = [&palette](const QColor& ground, const QColor& base, const QColor& text,
                                const QColor& highlight) {
        for (const auto role : {QPalette::Window, QPalette::Button}) {
            palette.setColor(role, ground);
        }
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            palette.setColor(role, text);
        }
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Highlight, highlight);
    };
    if (name == QLatin1String("dark")) {
        palette = QPalette(QColor(49, 54, 59));
        palette.setColor(QPalette::Base, QColor(35, 38, 41));
    } else if (name == QLatin1String("dark in part")) {
        set(QColor(53, 53, 53), QColor(35, 35, 35), Qt::white, QColor(42, 130, 218));
    } else if (name == QLatin1String("white on black")) {
        set(Qt::black, Qt::black, Qt::white, QColor(26, 235, 255));
    } else if (name == QLatin1String("black on white")) {
        set(Qt::white, Qt::white, Qt::black, QColor(55, 0, 110));
    }
    return palette;
}

void addRows()
{
    QTest::addColumn<QString>("palette");
    QTest::addColumn<int>("skinKey");
    for (const char* palette :
         {"light", "dark", "dark in part", "white on black", "black on white"}) {
        QTest::addRow("%s, default", palette) << QString::fromLatin1(palette) << int(Qt::Key_F5);
        QTest::addRow("%s, metal", palette) << QString::fromLatin1(palette) << int(Qt::Key_F6);
    }
}

/// The dialog in the row's palette and skin, its last two views greyed.
class Shown
{
public:
    Shown(const QString& palette, int skinKey, int tab = 0)
    {
        QApplication::setPalette(paletteOf(palette));
        dialog = std::make_unique<OpenDialog>();
        dialog->probe().record().settings.num_views = 2;
        for (KvMvcViewSettings& view : dialog->probe().record().settings.views) {
            view.bitrate_mode = KV_MVC_VARIABLE_BITRATE;
            view.hrd_mode = 1;
            view.brightness = 0;
        }
        dialog->probe().settingsToState();
        QTest::keyClick(dialog->get(), Qt::Key(skinKey));
        dialog->tabs()->setCurrentIndex(tab);
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::processEvents();
        }
    }

    /// What is to be seen of the place in the dialog.
    QImage picture(const QWidget* widget, const QRect& place) const
    {
        const QPoint corner = widget->mapTo(dialog->get(), place.topLeft());
        return dialog->get()->grab(QRect(corner, place.size())).toImage();
    }
    QImage picture(const QWidget* widget) const { return picture(widget, widget->rect()); }

    template <class Control>
    Control* control(const char* page, const char* name) const
    {
        auto* const found = on<Control>(*dialog, page, name);
        user::reveal(found);
        QCoreApplication::processEvents();
        return found;
    }

    std::unique_ptr<OpenDialog> dialog;
};

/// The colour that most of the picture has.
QColor groundOf(const QImage& picture)
{
    QMap<QRgb, int> counts;
    QRgb most = picture.pixel(0, 0);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            if (++counts[pixel] > counts.value(most)) {
                most = pixel;
            }
        }
    }
    return QColor(most);
}

/// The strongest contrast in the picture to its ground.
double contrastOfInk(const QImage& picture)
{
    const QColor ground = groundOf(picture);
    double strongest = 1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            strongest = std::max(strongest, contrast(picture.pixelColor(x, y), ground));
        }
    }
    return strongest;
}

QString numbers(double a, double b = 0)
{
    return QStringLiteral("%1, %2").arg(a).arg(b);
}

/// The least contrast of the icon's solid pixels to what is left of them on the button, with the
/// icon a pixel off its place or not.
double contrastOfIcon(const QImage& button, const QImage& icon)
{
    double best = 0;
    const QPoint middle((button.width() - icon.width()) / 2, (button.height() - icon.height()) / 2);
    for (int dx = -1; dx <= 1; ++dx) {
        for (int dy = -1; dy <= 1; ++dy) {
            double least = 21;
            for (int y = 0; y < icon.height(); ++y) {
                const int row = middle.y() + dy + y;
                const QColor ground = button.pixelColor(middle.x() - 2, row);
                for (int x = 0; x < icon.width(); ++x) {
                    if (icon.pixelColor(x, y).alpha() == 255) {
                        const QColor ink = button.pixelColor(middle.x() + dx + x, row);
                        least = std::min(least, contrast(ink, ground));
                    }
                }
            }
            best = std::max(best, least);
        }
    }
    return best;
}

QImage iconOf(const char* name)
{
    return QImage(QStringLiteral(":/res_mvc/icons/%1.png").arg(QLatin1String(name)));
}

/// The dialog with a warning, an error and a note in its log, which may be printed again.
void printMessages(OpenDialog& dialog)
{
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "wrn_printf", "%s", "WWW");
        print(lookUp, "err_printf", "%s", "EEE");
        print(lookUp, "inf_printf", "%s", "NNN");
        return 0;
    };
    dialog.probe().check();
    QCoreApplication::processEvents();
}

/// The least contrast of what messages are printed in to what is behind them, row by row.
double contrastOfMessages(const OpenDialog& dialog)
{
    const QImage log = dialog.log()->viewport()->grab().toImage();
    double least = 21;
    for (int y = 0; y < log.height(); ++y) {
        const QColor ground = groundOf(log.copy(0, y, log.width(), 1));
        for (const QColor& ink : {QColor(180, 0, 0), QColor(0, 0, 180), QColor(20, 20, 20)}) {
            least = std::min(least, contrast(ink, ground));
        }
    }
    return least;
}

} // namespace

class TestDialogContrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion"))); }
    void init() { failOnToolkitWarnings(); }
    void cleanup()
    {
        qApp->setStyleSheet(QString());
        QApplication::setPalette(QApplication::style()->standardPalette());
    }

    void iconsStandOut_data() { addRows(); }
    void iconsStandOut();
    void messagesAreReadable_data() { addRows(); }
    void messagesAreReadable();
    void messagesAreReadableUnderAHostsSheet_data();
    void messagesAreReadableUnderAHostsSheet();
    void groundOfTheLogSuitsThePalette_data();
    void groundOfTheLogSuitsThePalette();
    void disabledTextsLookSoAndAreReadable_data() { addRows(); }
    void disabledTextsLookSoAndAreReadable();
    void labelOfADisabledControlLooksSoAndIsReadable_data() { addRows(); }
    void labelOfADisabledControlLooksSoAndIsReadable();
    void separatorsAndTicksShow_data() { addRows(); }
    void separatorsAndTicksShow();
    void boxesHaveOutlines_data() { addRows(); }
    void boxesHaveOutlines();
    void palettesMayChangeWhileItIsOpen_data();
    void palettesMayChangeWhileItIsOpen();
};

void TestDialogContrast::iconsStandOut()
{
    QFETCH(QString, palette);
    QFETCH(int, skinKey);
    const Shown shown(palette, skinKey);
    const struct {
        const char* button;
        const char* icon;
    } rows[] = {{"presetButton", "restore"}, {"buttonLoad", "load"},
                {"buttonSave", "save"},      {"buttonOk", "ok"},
                {"buttonCancel", "cancel"},  {"toggleIVideoFormatPage", "down"}};
    for (const auto& row : rows) {
        const auto* const button =
            shown.dialog->get()->findChild<QAbstractButton*>(QLatin1String(row.button));
        QVERIFY2(button, row.button);
        const double ratio = contrastOfIcon(shown.picture(button), iconOf(row.icon));
        QVERIFY2(ratio >= 3,
                 qPrintable(QLatin1String(row.button) + QLatin1Char(' ') + numbers(ratio)));
    }
    auto* const toggle =
        shown.dialog->get()->findChild<QToolButton*>(QStringLiteral("toggleIVideoFormatPage"));
    toggle->click();
    QCoreApplication::processEvents();
    const double closed = contrastOfIcon(shown.picture(toggle), iconOf("right"));
    QVERIFY2(closed >= 3, qPrintable(numbers(closed)));
}

void TestDialogContrast::messagesAreReadable()
{
    QFETCH(QString, palette);
    QFETCH(int, skinKey);
    const Shown shown(palette, skinKey);
    const double empty = contrastOfMessages(*shown.dialog);
    printMessages(*shown.dialog);
    const double printed = contrastOfMessages(*shown.dialog);
    QVERIFY2(empty >= 4.5 && printed >= 4.5, qPrintable(numbers(empty, printed)));
}

void TestDialogContrast::messagesAreReadableUnderAHostsSheet_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<int>("skinKey");
    for (const char* sheet :
         {"* { background: #222; color: #ddd }", "QTextEdit { background: black; color: white }",
          "QWidget { background-color: #1b1e20; color: #eff0f1 }",
          "QAbstractScrollArea { background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 "
          "black, stop: 1 navy) }"}) {
        QTest::addRow("%s, default", sheet) << QString::fromLatin1(sheet) << int(Qt::Key_F5);
        QTest::addRow("%s, metal", sheet) << QString::fromLatin1(sheet) << int(Qt::Key_F6);
    }
}

void TestDialogContrast::messagesAreReadableUnderAHostsSheet()
{
    QFETCH(QString, sheet);
    QFETCH(int, skinKey);
    qApp->setStyleSheet(sheet);
    const Shown shown(QStringLiteral("light"), skinKey);
    printMessages(*shown.dialog);
    const double ratio = contrastOfMessages(*shown.dialog);
    QVERIFY2(ratio >= 4.5, qPrintable(numbers(ratio)));
}

void TestDialogContrast::groundOfTheLogSuitsThePalette_data()
{
    QTest::addColumn<QString>("palette");
    QTest::addColumn<int>("darkest");
    QTest::addColumn<int>("lightest");
    QTest::newRow("light") << QStringLiteral("light") << 245 << 255;
    QTest::newRow("dark") << QStringLiteral("dark") << 205 << 230;
    QTest::newRow("dark in part") << QStringLiteral("dark in part") << 205 << 230;
    // Who needs high contrast has it here, too.
    QTest::newRow("white on black") << QStringLiteral("white on black") << 255 << 255;
    QTest::newRow("black on white") << QStringLiteral("black on white") << 245 << 255;
}

void TestDialogContrast::groundOfTheLogSuitsThePalette()
{
    QFETCH(QString, palette);
    QFETCH(int, darkest);
    QFETCH(int, lightest);
    const Shown shown(palette, Qt::Key_F5);
    const int ground = qGray(groundOf(shown.dialog->log()->viewport()->grab().toImage()).rgb());
    QVERIFY2(ground >= darkest && ground <= lightest, qPrintable(QString::number(ground)));
}

void TestDialogContrast::disabledTextsLookSoAndAreReadable()
{
    QFETCH(QString, palette);
    QFETCH(int, skinKey);
    const Shown shown(palette, skinKey, 2);
    for (const char* name : {"brModeLabel", "bitrateModeList", "targetRateSpin", "hrdCheck",
                             "units1Radio", "iSizeLabel"}) {
        const auto ink = [&](const char* page) {
            const auto* const control = shown.control<QWidget>(page, name);
            // Neither frame nor button nor mark.
            const QRect text = qobject_cast<const QAbstractButton*>(control)
                                   ? control->rect().adjusted(24, 3, -3, -3)
                                   : control->rect().adjusted(8, 5, -24, -5);
            return contrastOfInk(shown.picture(control, text));
        };
        const double enabled = ink("View0Page");
        const double disabled = ink("View2Page");
        QVERIFY2(disabled >= 2.9 && disabled < 0.75 * enabled,
                 qPrintable(QLatin1String(name) + QLatin1Char(' ') + numbers(disabled, enabled)));
    }
}

void TestDialogContrast::labelOfADisabledControlLooksSoAndIsReadable()
{
    QFETCH(QString, palette);
    QFETCH(int, skinKey);
    const Shown shown(palette, skinKey);
    const auto* const label = shown.control<QLabel>("VideoFormatPage", "fpsLabel");
    auto* const list = shown.control<QComboBox>("VideoFormatPage", "framerateList");
    const double enabled = contrastOfInk(shown.picture(label));
    list->setEnabled(false);
    const double disabled = contrastOfInk(shown.picture(label));
    QVERIFY2(disabled >= 2.9 && disabled < 0.75 * enabled, qPrintable(numbers(disabled, enabled)));
    list->setEnabled(true);
    QCOMPARE(contrastOfInk(shown.picture(label)), enabled);
}

void TestDialogContrast::separatorsAndTicksShow()
{
    QFETCH(QString, palette);
    QFETCH(int, skinKey);
    {
        const Shown shown(palette, skinKey);
        const double line =
            contrastOfInk(shown.picture(shown.control<QFrame>("VideoFormatPage", "frame_4")));
        // To be seen, and no more than that.
        QVERIFY2(line >= 1.6 && line <= 5, qPrintable(numbers(line)));
    }
    const Shown shown(palette, skinKey, 1);
    const auto* const slider = shown.control<QSlider>("RateDistortionPage", "brightnessSlider");
    QCOMPARE(slider->value(), 0);
    const QRect all = slider->rect();
    // The mark at 0, over the handle.
    const double zero = contrastOfInk(
        shown.picture(slider, QRect(all.center().x() - 4, 0, 8, all.height() / 2 - 7)));
    QVERIFY2(zero >= 3, qPrintable(numbers(zero)));
    // Half of the groove is as the other half.
    const QImage left = shown.picture(slider, QRect(all.width() / 4, all.center().y() - 2, 8, 5));
    const QImage right =
        shown.picture(slider, QRect(3 * all.width() / 4, all.center().y() - 2, 8, 5));
    QVERIFY2(contrast(left.pixelColor(4, 2), right.pixelColor(4, 2)) < 1.1,
             qPrintable(left.pixelColor(4, 2).name() + right.pixelColor(4, 2).name()));
}

void TestDialogContrast::boxesHaveOutlines()
{
    QFETCH(QString, palette);
    QFETCH(int, skinKey);
    const Shown shown(palette, skinKey, 1);
    const auto* const box = shown.control<QCheckBox>("GOPStructurePage", "fixedICheck");
    QVERIFY(!box->isChecked());
    QStyleOptionButton option;
    option.initFrom(box);
    const QRect mark = box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box);
    const QImage picture = shown.picture(box, mark.adjusted(0, -1, 4, 1));
    const QColor ground = picture.pixelColor(picture.width() - 1, picture.height() / 2);
    double outline = 1;
    for (int x = 0; x < picture.width(); ++x) {
        outline = std::max(outline, contrast(picture.pixelColor(x, picture.height() / 2), ground));
    }
    QVERIFY2(outline >= 1.5, qPrintable(numbers(outline)));
}

void TestDialogContrast::palettesMayChangeWhileItIsOpen_data()
{
    QTest::addColumn<int>("skinKey");
    QTest::newRow("default") << int(Qt::Key_F5);
    QTest::newRow("metal") << int(Qt::Key_F6);
}

void TestDialogContrast::palettesMayChangeWhileItIsOpen()
{
    QFETCH(int, skinKey);
    const QImage dark = [&] {
        const Shown shown(QStringLiteral("dark in part"), skinKey);
        return shown.dialog->get()->grab().toImage();
    }();
    const Shown shown(QStringLiteral("light"), skinKey);
    const QImage light = shown.dialog->get()->grab().toImage();
    const auto after = [&](const char* palette) {
        QApplication::setPalette(paletteOf(QLatin1String(palette)));
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::processEvents();
        }
        return shown.dialog->get()->grab().toImage();
    };
    QCOMPARE(after("dark in part"), dark);
    QCOMPARE(after("light"), light);
}

QTEST_MAIN(TestDialogContrast)
#include "tst_dialog_contrast.moc"
