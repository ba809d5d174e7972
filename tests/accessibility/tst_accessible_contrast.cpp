// Texts stay readable whatever palette the desktop has: the contrast of each with what is behind it
// is at least 4.5 to 1 (WCAG 2.1, 1.4.3), in both skins.

#include "Contrast.h"
#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyleFactory>
#include <QTest>
#include <QToolButton>

namespace
{

QPalette darkPalette(const QColor& window, const QColor& base)
{
    // The toolkit derives what is not given from the window's colour.
    QPalette palette(window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, Qt::white);
    return palette;
}

/// The colour that most of the picture has, and the one in it that differs most from that: a text's
/// background and its strokes.
double contrastOfText(const QImage& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y) | 0xff000000];
        }
    }
    QRgb background = 0;
    int most = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() > most) {
            most = it.value();
            background = it.key();
        }
    }
    double best = 1;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        best = qMax(best, contrast(QColor(it.key()), QColor(background)));
    }
    return best;
}

QString nameOf(const QWidget* widget)
{
    const QWidget* page = widget;
    while (page && !page->objectName().startsWith(QLatin1Char('I'))) {
        page = page->parentWidget();
    }
    return (page ? page->objectName() : QString()) + QLatin1Char('/') + widget->objectName();
}

} // namespace

class TestAccessibleContrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion"))); }
    void init() { failOnToolkitWarnings(); }
    void cleanup() { QApplication::setPalette(QApplication::style()->standardPalette()); }

    void messagesAreReadable_data() { rows(); }
    void messagesAreReadable();
    void textsAreReadable_data() { rows(); }
    void textsAreReadable();

private:
    static void rows();
    /// The palette and skin of the row.
    static void dress(const OpenDialog& dialog);
};

void TestAccessibleContrast::rows()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<int>("skinKey");
    const struct {
        const char* name;
        QPalette palette;
    } palettes[] = {
        {"light", QApplication::style()->standardPalette()},
        {"dark", darkPalette({53, 53, 53}, {25, 25, 25})},
        {"black", darkPalette(Qt::black, Qt::black)},
        {"blue-grey", darkPalette({49, 54, 59}, {35, 38, 41})},
    };
    for (const auto& row : palettes) {
        QTest::addRow("%s, default", row.name) << row.palette << int(Qt::Key_F5);
        QTest::addRow("%s, metal", row.name) << row.palette << int(Qt::Key_F6);
    }
}

void TestAccessibleContrast::dress(const OpenDialog& dialog)
{
    QFETCH(int, skinKey);
    QTest::keyClick(dialog.get(), Qt::Key(skinKey));
    QCoreApplication::processEvents();
}

void TestAccessibleContrast::messagesAreReadable()
{
    QFETCH(QPalette, palette);
    QApplication::setPalette(palette);
    const struct {
        const char* sink;
        QColor colour;
    } kinds[] = {
        {"err_printf", {180, 0, 0}}, {"wrn_printf", {0, 0, 180}}, {"inf_printf", {20, 20, 20}}};
    for (const auto& kind : kinds) {
        OpenDialog dialog;
        dress(dialog);
        dialog.companions.onCheck = [&kind](KvMvcLookup lookUp, KvMvcSettings&) {
            for (int line = 0; line < 9; ++line) {
                print(lookUp, kind.sink, "Level %s is the lowest that fits.", "4.1");
            }
            return 0;
        };
        dialog.probe().check();
        QCoreApplication::processEvents();
        QTextEdit* const log = dialog.log();
        const QWidget* const view = log->viewport();
        // Whatever it is scrolled to, text is drawn in the viewport.
        for (const int height : {40, 60, 80}) {
            log->setFixedHeight(height);
            QCoreApplication::processEvents();
            QVERIFY(view->height() > height / 2);
            for (const int position : {0, log->verticalScrollBar()->maximum()}) {
                log->verticalScrollBar()->setValue(position);
                // With what is behind it, which not only the log paints.
                const QImage picture =
                    dialog->grab(QRect(view->mapTo(dialog.get(), QPoint()), view->size()))
                        .toImage();
                for (int y = 0; y < picture.height(); ++y) {
                    // The right edge is behind no letter.
                    const QColor background = picture.pixelColor(picture.width() - 3, y);
                    QVERIFY2(contrast(kind.colour, background) >= 4.5,
                             qPrintable(QStringLiteral("%1 on %2 in line %3 of %4")
                                            .arg(kind.colour.name(), background.name())
                                            .arg(y)
                                            .arg(picture.height())));
                }
            }
        }
    }
}

void TestAccessibleContrast::textsAreReadable()
{
    QFETCH(QPalette, palette);
    QApplication::setPalette(palette);
    OpenDialog dialog;
    dress(dialog);
    QStringList faults;
    int looked = 0;
    for (int tab = 0; tab < dialog.tabs()->count(); ++tab) {
        dialog.tabs()->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        for (QWidget* widget : dialog->findChildren<QWidget*>()) {
            const auto* label = qobject_cast<QLabel*>(widget);
            const bool text = (label && !label->text().isEmpty()) ||
                              qobject_cast<QCheckBox*>(widget) ||
                              qobject_cast<QRadioButton*>(widget) ||
                              qobject_cast<QComboBox*>(widget) || qobject_cast<QSpinBox*>(widget);
            const QWidget* const control = label && label->buddy() ? label->buddy() : widget;
            if (!text || !widget->isVisible() || !control->isEnabled()) {
                continue;
            }
            // With what is behind it, which only the dialog paints.
            user::reveal(widget);
            const QRect shown(widget->mapTo(dialog.get(), QPoint()), widget->size());
            const QImage picture = dialog->grab(shown.adjusted(2, 2, -2, -2)).toImage();
            ++looked;
            const double ratio = contrastOfText(picture);
            if (ratio < 4.5) {
                faults += QStringLiteral("%1: %2").arg(nameOf(widget)).arg(ratio);
            }
        }
    }
    QVERIFY(looked > 100);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

QTEST_MAIN(TestAccessibleContrast)
#include "tst_accessible_contrast.moc"
