#include "SkinSheet.h"
#include "ToolkitWarnings.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QMap>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QStyleFactory>
#include <QStyleOptionSpinBox>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>

namespace
{

using MakeControl = std::function<QWidget*()>;

QPalette darkPalette()
{
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(25, 25, 25));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    return palette;
}

template <class Control>
Control* withText(const char* text)
{
    auto* control = new Control;
    control->setText(QString::fromLatin1(text));
    return control;
}

const QMap<QString, MakeControl> controls = {
    {QStringLiteral("label"), [] { return withText<QLabel>("Level"); }},
    {QStringLiteral("push button"),
     [] {
         auto* button = withText<QPushButton>("A");
         button->setAutoDefault(false); // a default button is drawn like the focused one
         return button;
     }},
    {QStringLiteral("tool button"), [] { return withText<QToolButton>("A"); }},
    {QStringLiteral("check box"),
     [] {
         auto* box = withText<QCheckBox>("Split");
         box->setChecked(true);
         return box;
     }},
    {QStringLiteral("radio button"),
     [] {
         auto* button = withText<QRadioButton>("bits");
         button->setChecked(true);
         return button;
     }},
    {QStringLiteral("combo box"),
     [] {
         auto* box = new QComboBox;
         box->addItem(QStringLiteral("High"));
         return box;
     }},
    {QStringLiteral("spin box"), [] { return new QSpinBox; }},
    {QStringLiteral("slider"), [] { return new QSlider(Qt::Horizontal); }},
    {QStringLiteral("tab"),
     [] {
         auto* bar = new QTabBar;
         bar->setDrawBase(false); // as in a tab widget
         bar->addTab(QStringLiteral("Views"));
         return bar;
     }},
    {QStringLiteral("log"),
     [] {
         auto* log = withText<QTextEdit>("note");
         log->setObjectName(QStringLiteral("errorLog"));
         log->setReadOnly(true);
         return log;
     }},
};

/// A dialog with the skin, one control in it, and a button that can take the focus from it.
struct Stage {
    Stage(const QString& controlName, const QString& skinName)
        : control(controls[controlName]()), other(new QPushButton)
    {
        auto* layout = new QVBoxLayout(&dialog);
        layout->addWidget(control);
        layout->addWidget(other);
        dialog.setStyleSheet(skinText(skinName));
        other->setAutoDefault(false);
        other->setFocus();
        dialog.resize(300, 200);
        dialog.show();
        dialog.activateWindow();
    }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// The control with what is behind it.
    QImage picture() { return dialog.grab(control->geometry()).toImage(); }

    QDialog dialog;
    QWidget* control;
    QPushButton* other;
};

/// A spin box on a page of that name, in the metal skin; both of its steps are open.
struct MetalSpinBox {
    explicit MetalSpinBox(const QString& page)
    {
        auto* const frame = new QFrame(&dialog);
        frame->setObjectName(page);
        box = new QSpinBox(frame);
        (new QVBoxLayout(&dialog))->addWidget(frame);
        (new QVBoxLayout(frame))->addWidget(box);
        dialog.setStyleSheet(skinText(QStringLiteral("metal")));
        box->setRange(-1, 1);
        dialog.show();
        ready = QTest::qWaitForWindowExposed(&dialog);
    }

    QImage picture(QStyle::SubControl button) const
    {
        QStyleOptionSpinBox option;
        option.initFrom(box);
        option.subControls = QStyle::SC_All;
        const QRect place = box->style()->subControlRect(QStyle::CC_SpinBox, &option, button, box);
        // The border's corners are round.
        return box->grab(place.adjusted(2, 0, -3, 0)).toImage();
    }

    QDialog dialog;
    QSpinBox* box;
    bool ready = false;
};

/// How far the darkest pixel is from the ground of the picture's first one.
int depthOfInk(const QImage& picture)
{
    int depth = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            depth = qMax(depth, qGray(picture.pixel(0, 0)) - qGray(picture.pixel(x, y)));
        }
    }
    return depth;
}

/// The extent of what is drawn darker than the ground of the picture's first pixel.
QSize inkSize(const QImage& picture)
{
    const int ground = qGray(picture.pixel(0, 0));
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (ground - qGray(picture.pixel(x, y)) > 40) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink.size();
}

} // namespace

/// What the two style sheets make of controls.
class TestSkins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion"))); }
    void init() { failOnToolkitWarnings(); }
    void cleanup() { QApplication::setPalette(QApplication::style()->standardPalette()); }

    void metalLooksTheSameOnADarkPalette_data();
    void metalLooksTheSameOnADarkPalette();
    void focusIsVisible_data();
    void focusIsVisible();
    void metalLogDarkensEvenlyFromTopToBottom();
    void buttonsKeepTheirSizeWhenTheSkinChanges();
    void metalSpinBoxHasSymbols_data();
    void metalSpinBoxHasSymbols();
    void metalStepOutOfReachIsPale_data();
    void metalStepOutOfReachIsPale();
    void stateOfADisabledControlShows_data();
    void stateOfADisabledControlShows();
    void openListHasRowsToHit_data();
    void openListHasRowsToHit();
    void metalLogKeepsTextOffItsFrame();
};

// The text of a dark palette is light, and so is the metal: no colour may come from the palette.
void TestSkins::metalLooksTheSameOnADarkPalette_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<bool>("enabled");
    for (const char* name : {"label", "push button", "tool button", "check box", "radio button",
                             "combo box", "spin box", "tab", "log"}) {
        QTest::newRow(name) << QString::fromLatin1(name) << true;
        QTest::newRow(qPrintable(QLatin1String(name) + QStringLiteral(", disabled")))
            << QString::fromLatin1(name) << false;
    }
}

void TestSkins::metalLooksTheSameOnADarkPalette()
{
    QFETCH(QString, control);
    QFETCH(bool, enabled);

    const auto picture = [&] {
        Stage stage(control, QStringLiteral("metal"));
        stage.control->setEnabled(enabled);
        return stage.picture();
    };
    const QImage onLight = picture();
    QApplication::setPalette(darkPalette());
    QCOMPARE(picture(), onLight);
}

void TestSkins::focusIsVisible_data()
{
    QTest::addColumn<QString>("skinName");
    QTest::addColumn<QString>("control");
    const QStringList both = {QStringLiteral("push button"), QStringLiteral("tool button"),
                              QStringLiteral("check box"),   QStringLiteral("radio button"),
                              QStringLiteral("combo box"),   QStringLiteral("spin box"),
                              QStringLiteral("slider"),      QStringLiteral("tab")};
    for (const QString& control : both) {
        QTest::newRow(qPrintable(QStringLiteral("default, ") + control))
            << QStringLiteral("default") << control;
        QTest::newRow(qPrintable(QStringLiteral("metal, ") + control))
            << QStringLiteral("metal") << control;
    }
    QTest::newRow("metal, log") << QStringLiteral("metal") << QStringLiteral("log");
}

void TestSkins::focusIsVisible()
{
    QFETCH(QString, skinName);
    QFETCH(QString, control);

    Stage stage(control, skinName);
    stage.control->setFocusPolicy(Qt::StrongFocus);
    QVERIFY(QTest::qWaitForWindowActive(&stage.dialog));
    QWidget::setTabOrder(stage.other, stage.control);
    const QImage without = stage.picture();
    QTest::keyClick(stage.other, Qt::Key_Tab);
    QVERIFY(stage.control->hasFocus());
    const QImage with = stage.picture();

    // More than a caret: at least as many pixels as the control is wide.
    QCOMPARE(with.size(), without.size());
    int changed = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            changed += with.pixel(x, y) != without.pixel(x, y);
        }
    }
    QVERIFY2(changed >= qMin(with.width(), 40), qPrintable(QString::number(changed)));
}

void TestSkins::metalLogDarkensEvenlyFromTopToBottom()
{
    Stage stage(QStringLiteral("log"), QStringLiteral("metal"));
    auto* const log = qobject_cast<QTextEdit*>(stage.control);
    log->clear();
    log->setFixedHeight(80);
    QVERIFY(QTest::qWaitForWindowExposed(&stage.dialog));
    const QImage ground = stage.picture();
    for (const int y : {4, 20, 40, 60, 75}) {
        // #f6f7fa at the top, #aaabae at the bottom.
        const int red = 246 - 76 * y / 80;
        const QColor colour = ground.pixelColor(ground.width() / 2, y);
        QVERIFY2(qAbs(colour.red() - red) <= 2, qPrintable(colour.name()));
        QCOMPARE(colour.green(), colour.red() + 1);
        QCOMPARE(colour.blue(), colour.red() + 4);
    }
}

void TestSkins::buttonsKeepTheirSizeWhenTheSkinChanges()
{
    QDialog dialog;
    auto* frame = new QFrame(&dialog);
    frame->setObjectName(QStringLiteral("presetFrame"));
    auto* button = new QPushButton(frame);
    button->setFixedSize(24, 24);
    (new QVBoxLayout(&dialog))->addWidget(frame);
    (new QVBoxLayout(frame))->addWidget(button);

    QVector<QSize> sizes;
    for (const char* name : {"default", "metal", "default", "metal"}) {
        dialog.setStyleSheet(skinText(QString::fromLatin1(name)));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        dialog.layout()->activate();
        QTest::qWait(0);
        sizes.append(button->size());
    }
    // In "default" the style's frame comes on top of the rule's 24 pixels.
    QCOMPARE(sizes[2], sizes[0]);
    QVERIFY(sizes[0].width() >= 24 && sizes[0].width() <= 28);
    QCOMPARE(sizes[1], QSize(24, 24));
    QCOMPARE(sizes[3], QSize(24, 24));
}

// What a step up and a step down look like: the size of the drawing tells plus, minus and chevron.
void TestSkins::metalSpinBoxHasSymbols_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("up");
    QTest::addColumn<QString>("down");
    QTest::newRow("picture format")
        << QStringLiteral("IVideoFormatPage") << QStringLiteral("plus") << QStringLiteral("minus");
    QTest::newRow("another page") << QStringLiteral("IMiscPage") << QStringLiteral("chevron")
                                  << QStringLiteral("chevron");
}

void TestSkins::metalSpinBoxHasSymbols()
{
    QFETCH(QString, page);
    const MetalSpinBox stage(page);
    QVERIFY(stage.ready);
    const auto symbol = [&stage](QStyle::SubControl button) {
        const QSize ink = inkSize(stage.picture(button));
        if (ink.width() < 5) {
            return QStringLiteral("nothing");
        }
        if (5 * ink.height() <= ink.width()) {
            return QStringLiteral("minus");
        }
        return ink.height() >= ink.width() - 1 ? QStringLiteral("plus") : QStringLiteral("chevron");
    };
    const QString up = symbol(QStyle::SC_SpinBoxUp);
    const QString down = symbol(QStyle::SC_SpinBoxDown);
    QTEST(up, "up");
    QTEST(down, "down");
}

void TestSkins::metalStepOutOfReachIsPale_data()
{
    QTest::addColumn<QString>("page");
    QTest::newRow("picture format") << QStringLiteral("IVideoFormatPage");
    QTest::newRow("another page") << QStringLiteral("IMiscPage");
}

void TestSkins::metalStepOutOfReachIsPale()
{
    QFETCH(QString, page);
    const MetalSpinBox stage(page);
    QVERIFY(stage.ready);
    const auto depths = [&stage] {
        return QList<int>{depthOfInk(stage.picture(QStyle::SC_SpinBoxUp)),
                          depthOfInk(stage.picture(QStyle::SC_SpinBoxDown))};
    };
    const QList<int> open = depths();
    const auto isPale = [&open](const QList<int>& now, int step) {
        return now[step] > 10 && 3 * now[step] < 2 * open[step];
    };
    stage.box->setValue(1);
    const QList<int> highest = depths();
    QVERIFY(isPale(highest, 0));
    QCOMPARE(highest[1], open[1]);
    stage.box->setValue(-1);
    const QList<int> lowest = depths();
    QCOMPARE(lowest[0], open[0]);
    QVERIFY(isPale(lowest, 1));
    stage.box->setValue(0);
    stage.box->setEnabled(false);
    const QList<int> disabled = depths();
    QVERIFY(isPale(disabled, 0) && isPale(disabled, 1));
}

void TestSkins::stateOfADisabledControlShows_data()
{
    QTest::addColumn<QString>("skinName");
    QTest::addColumn<QString>("control");
    for (const char* skin : {"default", "metal"}) {
        for (const char* control : {"check box", "radio button"}) {
            QTest::addRow("%s, %s", skin, control)
                << QString::fromLatin1(skin) << QString::fromLatin1(control);
        }
    }
}

void TestSkins::stateOfADisabledControlShows()
{
    QFETCH(QString, skinName);
    QFETCH(QString, control);
    const auto picture = [&](bool checked) {
        Stage stage(control, skinName);
        auto* const button = qobject_cast<QAbstractButton*>(stage.control);
        button->setAutoExclusive(false);
        button->setChecked(checked);
        button->setEnabled(false);
        return stage.picture().copy(0, 0, 20, stage.control->height());
    };
    const QImage off = picture(false);
    const QImage on = picture(true);
    int changed = 0;
    for (int y = 0; y < on.height(); ++y) {
        for (int x = 0; x < on.width(); ++x) {
            changed += qAbs(qGray(on.pixel(x, y)) - qGray(off.pixel(x, y))) > 40;
            // What cannot be changed has no colour.
            QVERIFY(on.pixelColor(x, y).hslSaturation() < 60);
        }
    }
    QVERIFY2(changed >= 10, qPrintable(QString::number(changed)));
}

void TestSkins::openListHasRowsToHit_data()
{
    QTest::addColumn<QString>("skinName");
    QTest::newRow("default") << QStringLiteral("default");
    QTest::newRow("metal") << QStringLiteral("metal");
}

void TestSkins::openListHasRowsToHit()
{
    QFETCH(QString, skinName);
    Stage stage(QStringLiteral("combo box"), skinName);
    QVERIFY(QTest::qWaitForWindowExposed(&stage.dialog));
    auto* const list = qobject_cast<QComboBox*>(stage.control);
    list->showPopup();
    const int rows = list->view()->sizeHintForRow(0);
    list->hidePopup();
    QVERIFY2(rows >= list->fontMetrics().height() + 6, qPrintable(QString::number(rows)));
}

void TestSkins::metalLogKeepsTextOffItsFrame()
{
    Stage stage(QStringLiteral("log"), QStringLiteral("metal"));
    auto* const log = qobject_cast<QTextEdit*>(stage.control);
    log->setFixedHeight(72); // as in the dialog
    QVERIFY(QTest::qWaitForWindowExposed(&stage.dialog));
    constexpr int frame = 2;
    const QRect viewport = log->viewport()->geometry();
    QVERIFY(viewport.top() >= frame + 3);
    QVERIFY(log->height() - viewport.bottom() - 1 >= frame + 3);
}

QTEST_MAIN(TestSkins)

#include "tst_skins.moc"
