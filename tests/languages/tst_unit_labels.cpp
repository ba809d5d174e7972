// The labels that the units of a view's buffers set are translated on all four pages.

#include "DialogTest.h"
#include "Language.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QLabel>
#include <QTest>

class TestUnitLabels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void areTranslatedOnEveryPage_data();
    void areTranslatedOnEveryPage();
};

void TestUnitLabels::areTranslatedOnEveryPage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("units");
    QTest::addColumn<QStringList>("labels");
    const auto row = [](const char* language, int units, const QStringList& labels) {
        QTest::addRow("%s, units %d", language, units)
            << QString::fromLatin1(language) << units << labels;
    };
    row("de", 0,
        {QStringLiteral("Puffer (Byte)"), QStringLiteral("VBV-Anfangsfüllung (%)"),
         QStringLiteral("VBV-Zielfüllung (%)")});
    row("de", 1,
        {QStringLiteral("Puffer (Bit)"), QStringLiteral("VBV-Anfangsfüllung (Bit)"),
         QStringLiteral("VBV-Zielfüllung (Bit)")});
    row("de", 2,
        {QStringLiteral("Puffer (Bit)"), QStringLiteral("VBV-Anfangsfüllung (90 kHz)"),
         QStringLiteral("VBV-Zielfüllung (90 kHz)")});
    row("jp", 0,
        {QStringLiteral("ビットレートバッファ (バイト)"), QStringLiteral("VBV 初期占有量 (%)"),
         QStringLiteral("VBV 目標占有量 (%)")});
    row("jp", 1,
        {QStringLiteral("ビットレートバッファ (ビット)"), QStringLiteral("VBV 初期占有量 (ビット)"),
         QStringLiteral("VBV 目標占有量 (ビット)")});
    row("jp", 2,
        {QStringLiteral("ビットレートバッファ (ビット)"), QStringLiteral("VBV 初期占有量 (90 kHz)"),
         QStringLiteral("VBV 目標占有量 (90 kHz)")});
}

void TestUnitLabels::areTranslatedOnEveryPage()
{
    QFETCH(QString, language);
    QFETCH(int, units);
    const Language installed(language);
    QVERIFY(installed.isReady());
    OpenDialog dialog;
    for (int view = 0; view < 4; ++view) {
        dialog.put({{view, 132, units}});
        const QByteArray page = QByteArrayLiteral("View") + QByteArray::number(view) + "Page";
        QStringList labels;
        for (const char* name : {"bitrateBufferLabel", "vbvInitialLabel", "vbvTargetLabel"}) {
            labels += findControl<QLabel>(dialog.get(), page, name)->text();
        }
        QTEST(labels, "labels");
    }
}

QTEST_MAIN(TestUnitLabels)
#include "tst_unit_labels.moc"
