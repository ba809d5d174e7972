// How the message log shows numbers: in groups of digits, and never apart from their unit. What is
// copied is what the encoder said.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "dialog/MessageLog.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

namespace
{

/// A dialog whose log has one note, of the encoder.
struct Noted {
    explicit Noted(const QByteArray& note)
    {
        dialog.companions.onCheck = [note](KvMvcLookup lookUp, KvMvcSettings&) {
            print(lookUp, "inf_printf", "%s", note.constData());
            return 0;
        };
        dialog.probe().check();
    }

    QTextBlock paragraph() const { return dialog.log()->document()->findBlockByNumber(2); }

    OpenDialog dialog;
};

/// The lines that a paragraph has in a log of this width.
QStringList linesAt(const Noted& noted, int width)
{
    noted.dialog.log()->setFixedWidth(width);
    QCoreApplication::processEvents();
    QStringList lines;
    const QTextBlock paragraph = noted.paragraph();
    for (int i = 0; i < paragraph.layout()->lineCount(); ++i) {
        const QTextLine line = paragraph.layout()->lineAt(i);
        lines += paragraph.text().mid(line.textStart(), line.textLength()).trimmed();
    }
    return lines;
}

} // namespace

class TestDialogNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }
    void cleanup() { messageLog() = MessageLog(); }

    void unitsStayWithTheirNumber_data();
    void unitsStayWithTheirNumber();
    void otherWordsAreFree_data();
    void otherWordsAreFree();
    void digitsAreGrouped_data();
    void digitsAreGrouped();
    void textIsTheEncoders();
};

void TestDialogNumbers::unitsStayWithTheirNumber_data()
{
    QTest::addColumn<QString>("note");
    QTest::addColumn<QString>("kept");
    const auto row = [](const char* note, const char* kept) {
        QTest::newRow(note) << QString::fromUtf8(note) << QString::fromUtf8(kept);
    };
    row("Bitrate: 45.00 of the 75.00 Mbit/s that level 4.1 allows.", "75.00 Mbit");
    row("A bitrate buffer of at most 30.00 Mbit (3750000 bytes): make it smaller.",
        "3750000 bytes");
    row("The buffer holds 1.00 s; decoding starts after 0.50 s.", "1.00 s;");
    row("VBV buffer initial was 120 %; it is now 100 %.", "120 %;");
    row("Level 4.1 allows at most 245760 macroblocks/s (now 489600)", "245760 macroblocks");
    row("Durch Pulldown sind es 1,25-mal so viele: 305694 Makroblöcke/s", "305694 Makroblöcke");
    row("für 23,98 und 24,00 Bilder/s gedacht", "24,00 Bilder");
    row("参照フレーム: 3 枚、このサイズで保持できるのは 4 枚 (レベル 4.1)。", "3 枚");
    row("ビットレートバッファは 1.00 秒分で、復号は 0.50 秒後に始まります。", "1.00 秒");
}

void TestDialogNumbers::unitsStayWithTheirNumber()
{
    QFETCH(const QString, note);
    QFETCH(const QString, kept);
    const Noted noted(note.toUtf8());
    const QString shown = QString(kept).replace(QLatin1Char(' '), QChar(0xa0));
    QVERIFY2(noted.paragraph().text().contains(shown), qPrintable(noted.paragraph().text()));
    bool wrapped = false;
    for (int width = 180; width < 480; width += 3) {
        const QStringList lines = linesAt(noted, width);
        wrapped = wrapped || lines.size() > 1;
        QVERIFY2(lines.filter(shown).size() == 1, qPrintable(lines.join(QLatin1Char('|'))));
    }
    QVERIFY(wrapped);
}

void TestDialogNumbers::otherWordsAreFree_data()
{
    QTest::addColumn<QString>("note");
    QTest::addColumn<QString>("shown");
    for (const char* const note :
         {"Level 4.1 is the lowest that fits.", "2 views, profile High", "error 7 stays",
          "1920 x 1080", "frames s", "7 ", "8 sounds", "9 Mbitrates", "see 3 /etc"}) {
        QTest::newRow(note) << QString::fromUtf8(note) << QString::fromUtf8(note);
    }
    QTest::newRow("beside a unit")
        << QStringLiteral(" 5 bits of text") << QStringLiteral(" 5\u00a0bits of text");
}

void TestDialogNumbers::otherWordsAreFree()
{
    QFETCH(const QString, note);
    QTEST(Noted(note.toUtf8()).paragraph().text(), "shown");
}

void TestDialogNumbers::digitsAreGrouped_data()
{
    QTest::addColumn<QString>("note");
    QTest::addColumn<QString>("grouped");
    const auto row = [](const char* note, const char* grouped) {
        QTest::newRow(note) << QString::fromLatin1(note) << QString::fromLatin1(grouped);
    };
    row("22000000 bit/s", "22'000'000 bit/s");
    row("now 245760", "now 245'760");
    row("(3750000)", "(3'750'000)");
    row("-54321", "-54'321");
    row("1080", "1080");
    row("12345.678901", "12'345.678901");
    row("62.345678", "62.345678");
    row("0,154322", "0,154322");
    row("x12345", "x12345");
    row("0x1234567", "0x1234567");
    row("12345kB", "12345kB");
    row("#12345", "#12345");
    row("10000 of 20000", "10'000 of 20'000");
}

void TestDialogNumbers::digitsAreGrouped()
{
    QFETCH(const QString, note);
    QFETCH(const QString, grouped);
    const Noted noted(note.toUtf8());
    linesAt(noted, 400);
    const QTextLine line = noted.paragraph().layout()->lineAt(0);
    const QString text = noted.paragraph().text();
    QString found;
    for (int i = 0; i < int(text.size()); ++i) {
        found += text.at(i) == QChar(0xa0) ? QLatin1Char(' ') : text.at(i);
        // Digits are all of one width.
        if (text.at(i).isDigit() && i + 1 < int(text.size()) && text.at(i + 1).isDigit()) {
            const double width = line.cursorToX(i + 1) - line.cursorToX(i);
            const double ordinary = noted.dialog.log()->fontMetrics().horizontalAdvance(text.at(i));
            found += width > ordinary * 1.15 ? QStringLiteral("'") : QString();
        }
    }
    QCOMPARE(found, grouped);
}

void TestDialogNumbers::textIsTheEncoders()
{
    const QString said = QStringLiteral("Level 4.1 allows 245760 macroblocks/s, 62.50 Mbit/s.");
    const Noted noted(said.toUtf8());
    QTextEdit* const log = noted.dialog.log();
    QCOMPARE(log->toPlainText(), QStringLiteral("\n\n") + said + QLatin1Char('\n'));
    log->selectAll();
    log->copy();
    QCOMPARE(QGuiApplication::clipboard()->text().trimmed(), said);
    QCOMPARE(messageLog().allMessages(), said);
    log->moveCursor(QTextCursor::Start);
    QVERIFY(log->find(QStringLiteral("245760 macroblocks/s")));
}

QTEST_MAIN(TestDialogNumbers)
#include "tst_dialog_numbers.moc"
