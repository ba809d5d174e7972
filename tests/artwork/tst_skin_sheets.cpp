#include "SkinSheet.h"
#include "ToolkitWarnings.h"

#include <QColor>
#include <QRegularExpression>
#include <QTest>

namespace
{

/// The backgrounds that the metal skin has for the selectors.
QMap<QString, QString> metalBackgrounds()
{
    const QString background = QStringLiteral("background");
    QMap<QString, QString> backgrounds;
    for (const SkinRule& rule : skinRules(skinText(QStringLiteral("metal")))) {
        if (rule.declarations.contains(background)) {
            backgrounds.insert(rule.selector, rule.declarations.value(background));
        }
    }
    return backgrounds;
}

} // namespace

/// What the two style sheets say.
class TestSkinSheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void linesEndInCrLfAndAreAscii_data();
    void linesEndInCrLfAndAreAscii();
    void defaultHasExactlyTwoRules();
    void metalHasRule_data();
    void metalHasRule();
    void metalTablesHaveTheGradientOfTheLog();
    void metalIsBanded_data();
    void metalIsBanded();
};

void TestSkinSheets::linesEndInCrLfAndAreAscii_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("default") << QStringLiteral("default");
    QTest::newRow("metal") << QStringLiteral("metal");
}

void TestSkinSheets::linesEndInCrLfAndAreAscii()
{
    QFETCH(QString, name);

    const QByteArray bytes = skinBytes(name);
    QVERIFY(bytes.endsWith("\r\n"));
    QVERIFY(bytes.count('\n') > 10);
    QCOMPARE(bytes.count("\r\n"), bytes.count('\n'));
    QCOMPARE(bytes.count("\r\n"), bytes.count('\r'));
    for (const char byte : bytes) {
        QVERIFY(uchar(byte) < 0x80);
    }
}

void TestSkinSheets::defaultHasExactlyTwoRules()
{
    QCOMPARE(skinText(QStringLiteral("default")).simplified(),
             QStringLiteral("QWidget#bannerFrame { border: 1px inset #8f8f91; "
                            "padding-top: -2px; padding-left: -4px; "
                            "background-image: url(:/res_mvc/banners/banner.png); "
                            "background-position: top left; background-origin: content; "
                            "background-clip: padding; } "
                            "QPushButton { min-height: 24px; max-height: 24px; "
                            "min-width: 24px; max-width: 24px; }"));
}

void TestSkinSheets::metalHasRule_data()
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
        for (const auto& [property, value] : declarations) {
            row(QString::fromLatin1(selector), property, QString::fromLatin1(value));
        }
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
          "IMiscPage", "IView0Page", "IView1Page", "IView2Page", "IView3Page"}) {
        row(QStringLiteral("QFrame#") + QLatin1String(page), "background-image", box);
    }
}

void TestSkinSheets::metalHasRule()
{
    QFETCH(QString, selector);
    QFETCH(QString, property);
    QFETCH(QString, value);

    QStringList values;
    for (const SkinRule& rule : skinRules(skinText(QStringLiteral("metal")))) {
        if (rule.selector == selector && rule.declarations.contains(property)) {
            values.append(rule.declarations.value(property));
        }
    }
    QVERIFY2(values.contains(value), qPrintable(values.join(QLatin1String(" | "))));
}

void TestSkinSheets::metalTablesHaveTheGradientOfTheLog()
{
    const QMap<QString, QString> backgrounds = metalBackgrounds();
    const QString log = backgrounds.value(QStringLiteral("QWidget#errorLog"));
    QCOMPARE(log, QStringLiteral("qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
                                 "stop: 0 #f6f7fa, stop: 1 #aaabae)"));
    QCOMPARE(backgrounds.value(QStringLiteral("QTableView")), log);
    QCOMPARE(backgrounds.value(QStringLiteral("QTableView *")), log);
}

// From top to bottom, with a step to a darker tone at the middle.
void TestSkinSheets::metalIsBanded_data()
{
    QTest::addColumn<int>("darkest");
    QTest::addColumn<int>("lightest");
    QTest::newRow("QTabBar::tab") << 0 << 120;
    QTest::newRow("QTabBar::tab:selected") << 200 << 255;
    QTest::newRow("QTabBar::tab:hover") << 200 << 255;
    QTest::newRow("QSplitter::handle") << 80 << 150;
    QTest::newRow("QSplitter::handle:hover") << 200 << 255;
}

void TestSkinSheets::metalIsBanded()
{
    QFETCH(int, darkest);
    QFETCH(int, lightest);
    const QString value = metalBackgrounds().value(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY2(value.startsWith(QLatin1String("qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1,")),
             qPrintable(value));
    QMap<double, int> tones;
    static const QRegularExpression stop(QStringLiteral("stop: ([0-9.]+) (#[0-9a-f]{6})"));
    for (auto match = stop.globalMatch(value); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const int tone = qGray(QColor(found.captured(2)).rgb());
        QVERIFY2(tone >= darkest && tone <= lightest, qPrintable(found.captured()));
        tones.insert(found.captured(1).toDouble(), tone);
    }
    QCOMPARE(tones.keys(), QList<double>({0, 0.48, 0.52, 1}));
    QVERIFY(tones[0.48] - tones[0.52] >= 12);
    QVERIFY(tones[0] > tones[0.48]);
}

QTEST_GUILESS_MAIN(TestSkinSheets)

#include "tst_skin_sheets.moc"
