// Tool tips are translated, and their lines short: the toolkit wraps none of plain text, so that a
// long one would be a line across the screen.

#include "DialogTest.h"
#include "Language.h"
#include "ToolkitWarnings.h"

#include <QSet>
#include <QTest>

namespace
{

constexpr int mostColumns = 100;

/// Columns of a line, of which ideographs, kana and full-width signs take two.
int columnsOf(const QString& text)
{
    constexpr ushort firstWide = 0x2E80;
    int columns = 0;
    for (const QChar sign : text) {
        columns += sign.unicode() >= firstWide ? 2 : 1;
    }
    return columns;
}

QSet<QString> tipsOf(const QWidget* window)
{
    QSet<QString> tips;
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        if (!widget->toolTip().isEmpty()) {
            tips += widget->toolTip();
        }
    }
    return tips;
}

} // namespace

class TestToolTips : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void columns_data();
    void columns();
    void linesAreShort_data() { Language::addRows(); }
    void linesAreShort();
    void areTranslated_data() { Language::addRows(); }
    void areTranslated();
};

void TestToolTips::columns_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("expected");
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("Latin") << QStringLiteral("Größe „1“ – 2") << 13;
    QTest::newRow("Japanese") << QStringLiteral("HRD 準拠。") << 10;
}

void TestToolTips::columns()
{
    QFETCH(QString, text);
    QFETCH(int, expected);
    QCOMPARE(columnsOf(text), expected);
}

void TestToolTips::linesAreShort()
{
    QFETCH(QString, language);
    const Language installed(language);
    QVERIFY(installed.isReady());
    const OpenDialog dialog;
    const QSet<QString> tips = tipsOf(dialog.get());
    QVERIFY(tips.size() > 60);
    QStringList faults;
    for (const QString& tip : tips) {
        for (const QString& line : tip.split(QLatin1Char('\n'))) {
            if (columnsOf(line) > mostColumns) {
                faults += QStringLiteral("%1 columns: %2").arg(columnsOf(line)).arg(line);
            }
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestToolTips::areTranslated()
{
    QFETCH(QString, language);
    const QSet<QString> english = tipsOf(OpenDialog().get());
    const Language installed(language);
    QVERIFY(installed.isReady());
    const QSet<QString> tips = tipsOf(OpenDialog().get());
    QCOMPARE(tips.size(), english.size());
    QCOMPARE(tips.intersects(english), language == QLatin1String("en"));
}

QTEST_MAIN(TestToolTips)
#include "tst_tool_tips.moc"
