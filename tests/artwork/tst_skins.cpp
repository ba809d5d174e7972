#include "Contrast.h"
#include "SkinSheet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QStyleFactory>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>

namespace
{

using Declarations = QMap<QString, QString>;
using MakeControl = std::function<QWidget*()>;

QByteArray skinBytes(const QString& name)
{
    QFile file(QStringLiteral(":/res_mvc/skins/%1.qss").arg(name));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QString skin(const QString& name)
{
    return QString::fromLatin1(skinBytes(name));
}

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
        dialog.setStyleSheet(skin(skinName));
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

} // namespace

/// The two style sheets: what they say, and what they make of controls.
class TestSkins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion"))); }
    void cleanup() { QApplication::setPalette(QApplication::style()->standardPalette()); }

    void linesEndInCrLfAndAreAscii_data() { skinRows(); }
    void linesEndInCrLfAndAreAscii();
    void defaultHasExactlyTwoRules();
    void metalHasRule_data();
    void metalHasRule();
    void metalLooksTheSameOnADarkPalette_data();
    void metalLooksTheSameOnADarkPalette();
    void focusIsVisible_data();
    void focusIsVisible();
    void metalLogIsReadable_data();
    void metalLogIsReadable();

private:
    static void skinRows();
};

void TestSkins::skinRows()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("default") << QStringLiteral("default");
    QTest::newRow("metal") << QStringLiteral("metal");
}

void TestSkins::linesEndInCrLfAndAreAscii()
{
    QFETCH(QString, name);

    const QByteArray bytes = skinBytes(name);
    QVERIFY(bytes.endsWith("\r\n"));
    QVERIFY(bytes.count('\n') > 10);
    QCOMPARE(bytes.count("\r\n"), bytes.count('\n'));
    QCOMPARE(bytes.count("\r\n"), bytes.count('\r'));
    for (const char byte : bytes)
        QVERIFY(uchar(byte) < 0x80);
}

void TestSkins::defaultHasExactlyTwoRules()
{
    QCOMPARE(skin(QStringLiteral("default")).simplified(),
             QStringLiteral("QWidget#bannerFrame { border: 1px inset #8f8f91; "
                            "padding-top: -2px; padding-left: -4px; "
                            "background-image: url(:/res_mvc/banners/banner.png); "
                            "background-position: top left; background-origin: content; "
                            "background-clip: padding; } "
                            "QPushButton { min-height: 24px; max-height: 24px; "
                            "min-width: 24px; max-width: 24px; }"));
}

void TestSkins::metalHasRule_data()
{
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("value");

    const QString box = QStringLiteral("url(:/res_mvc/backgrounds/box.png)");
    const QString ridge = QStringLiteral("2px ridge #8f8f91");
    const auto row = [](const QString& selector, const char* property, const QString& value) {
        QTest::newRow(qPrintable(selector + QLatin1String(" ") + QLatin1String(property)))
            << selector << QString::fromLatin1(property) << value;
    };
    const auto rows = [&row](const char* selector,
                             const QVector<QPair<const char*, const char*>>& declarations) {
        for (const auto& [property, value] : declarations)
            row(QString::fromLatin1(selector), property, QString::fromLatin1(value));
    };

    row(QStringLiteral("QDialog"), "background-image",
        QStringLiteral("url(:/res_mvc/backgrounds/main.png)"));
    rows("QWidget#bannerFrame", {{"border", "2px ridge #8f8f91"},
                                 {"border-radius", "10px"},
                                 {"padding-top", "-2px"},
                                 {"padding-left", "-4px"},
                                 {"background-image", "url(:/res_mvc/banners/banner.png)"},
                                 {"background-position", "top left"},
                                 {"background-origin", "content"},
                                 {"background-clip", "padding"}});
    for (const char* frame : {"presetFrame", "buttonFrame", "infoFrame"}) {
        const QString selector = QStringLiteral("QFrame#") + QLatin1String(frame);
        row(selector, "border", ridge);
        row(selector, "border-radius", QStringLiteral("10px"));
        row(selector, "background-image", box);
        row(selector, "background-origin", QStringLiteral("content"));
    }
    rows("QWidget#errorLog", {{"border", "2px ridge #8f8f91"}, {"border-radius", "10px"}});
    row(QStringLiteral("QToolBox"), "background-image", box);
    row(QStringLiteral("QToolBox *"), "background-image", box);
    rows("QTableView", {{"background-image", "none"}});
    rows("QTableView *", {{"background-image", "none"}});
    row(QStringLiteral("QTabWidget::pane"), "border", ridge);
    row(QStringLiteral("QTabWidget::pane"), "border-radius", QStringLiteral("10px"));
    row(QStringLiteral("QTabWidget::pane"), "background-image", box);
    rows("QTabWidget::tab-bar", {{"left", "5px"}});
    rows("QTabBar::tab", {{"border", "2px ridge #8f8f91"},
                          {"border-top-left-radius", "10px"},
                          {"border-top-right-radius", "10px"},
                          {"min-height", "20px"},
                          {"min-width", "100px"},
                          {"color", "#f0f0f0"}});
    rows("QTabBar::tab:!selected", {{"margin-top", "2px"}});
    rows("QTabBar::tab:selected", {{"margin-left", "-4px"}, {"margin-right", "-4px"}});
    rows("QTabBar::tab:first:selected", {{"margin-left", "0px"}});
    rows("QTabBar::tab:last:selected", {{"margin-right", "0px"}});
    rows("QSplitter::handle", {{"border", "1.5px ridge #8f8f91"}, {"border-radius", "3px"}});
    rows("QSplitter::handle:horizontal",
         {{"min-width", "2px"}, {"min-height", "8px"}, {"margin", "180px 2px"}});
    rows("QSplitter::handle:vertical",
         {{"min-width", "8px"}, {"min-height", "2px"}, {"margin", "2px 180px"}});
    for (const char* page :
         {"IVideoFormatPage", "IGOPStructurePage", "IMotionEstimationPage", "IRateDistortionPage",
          "IMiscPage", "IView0Page", "IView1Page", "IView2Page", "IView3Page"})
        row(QStringLiteral("QFrame#") + QLatin1String(page), "background-image", box);
}

void TestSkins::metalHasRule()
{
    QFETCH(QString, selector);
    QFETCH(QString, property);
    QFETCH(QString, value);

    QStringList values;
    for (const SkinRule& rule : skinRules(skin(QStringLiteral("metal"))))
        if (rule.selector == selector && rule.declarations.contains(property))
            values.append(rule.declarations.value(property));
    QVERIFY2(values.contains(value), qPrintable(values.join(QLatin1String(" | "))));
}

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
    for (int y = 0; y < with.height(); ++y)
        for (int x = 0; x < with.width(); ++x)
            changed += with.pixel(x, y) != without.pixel(x, y);
    QVERIFY2(changed >= qMin(with.width(), 40), qPrintable(QString::number(changed)));
}

void TestSkins::metalLogIsReadable_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<QColor>("text");
    for (const int height : {40, 60, 80}) {
        QTest::addRow("error, %d pixels", height) << height << QColor(180, 0, 0);
        QTest::addRow("warning, %d pixels", height) << height << QColor(0, 0, 180);
        QTest::addRow("note, %d pixels", height) << height << QColor(20, 20, 20);
    }
}

// Whatever the log is scrolled to, text is drawn in its viewport only.
void TestSkins::metalLogIsReadable()
{
    QFETCH(int, height);
    QFETCH(QColor, text);

    QApplication::setPalette(darkPalette());
    Stage stage(QStringLiteral("log"), QStringLiteral("metal"));
    auto* log = qobject_cast<QTextEdit*>(stage.control);
    log->clear();
    log->setFixedHeight(height);
    QVERIFY(QTest::qWaitForWindowExposed(&stage.dialog));
    const QImage ground = stage.picture();
    const QRect viewport = log->viewport()->geometry();
    QVERIFY(viewport.height() > height / 2);
    for (int y = viewport.top(); y <= viewport.bottom(); ++y) {
        const double ratio = contrast(text, ground.pixelColor(viewport.center().x(), y));
        QVERIFY2(ratio >= 4.5, qPrintable(QStringLiteral("line %1: %2").arg(y).arg(ratio)));
    }
}

QTEST_MAIN(TestSkins)

#include "tst_skins.moc"
