// Tips are shown on lines of a readable length, with all that they say.

#include "DialogTest.h"
#include "ToolkitWarnings.h"

#include <QComboBox>
#include <QHelpEvent>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>

class TestDialogTips : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }
    void cleanup() { QToolTip::hideText(); }

    void everyTipIsWrapped();
    void longTipIsShownOnSeveralLines_data();
    void longTipIsShownOnSeveralLines();
    void formattedTipIsTheToolkits();
};

namespace
{

/// What is shown when the pointer rests on the widget.
QString shownTip(QWidget* widget)
{
    QToolTip::hideText();
    const QPoint middle = widget->rect().center();
    QHelpEvent event(QEvent::ToolTip, middle, widget->mapToGlobal(middle));
    QCoreApplication::sendEvent(widget, &event);
    return QToolTip::text();
}

QString lettersOf(const QString& text)
{
    return text.simplified().remove(QLatin1Char(' '));
}

int widthOf(const QString& text)
{
    int width = 0;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        width = qMax(width, QFontMetrics(QToolTip::font()).horizontalAdvance(line));
    }
    return width;
}

} // namespace

void TestDialogTips::everyTipIsWrapped()
{
    OpenDialog dialog;
    int tips = 0;
    int wrapped = 0;
    for (int tab = 0; tab < dialog.tabs()->count(); ++tab) {
        dialog.tabs()->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        for (QWidget* widget : dialog->findChildren<QWidget*>()) {
            if (widget->toolTip().isEmpty() || !widget->isVisible()) {
                continue;
            }
            ++tips;
            const QString shown = shownTip(widget);
            QCOMPARE(lettersOf(shown), lettersOf(widget->toolTip()));
            QVERIFY2(Qt::mightBeRichText(shown) || widthOf(shown) <= 550, qPrintable(shown));
            wrapped += shown.contains(QLatin1Char('\n'));
        }
    }
    QVERIFY2(tips > 50 && wrapped > 10,
             qPrintable(QStringLiteral("%1, %2").arg(tips).arg(wrapped)));
}

void TestDialogTips::longTipIsShownOnSeveralLines_data()
{
    QTest::addColumn<QString>("tip");
    QTest::addColumn<int>("lines");
    QTest::newRow("short") << QStringLiteral("Level of the stream.") << 1;
    QTest::newRow("long") << QStringLiteral("word ").repeated(40).trimmed() << 4;
    QTest::newRow("lines of its own") << QStringLiteral("one\n\nthree") << 3;
    QTest::newRow("without blanks") << QString(60, QChar(0x753B)) << 2;
}

void TestDialogTips::longTipIsShownOnSeveralLines()
{
    QFETCH(QString, tip);
    QFETCH(int, lines);
    OpenDialog dialog;
    auto* const list = on<QComboBox>(dialog, "VideoFormatPage", "interlaceList");
    // Also one that it is given later.
    list->setToolTip(tip);
    const QString shown = shownTip(list);
    const int found = int(shown.count(QLatin1Char('\n'))) + 1;
    QVERIFY2(qAbs(found - lines) <= (lines > 3 ? 1 : 0), qPrintable(shown));
    QCOMPARE(lettersOf(shown), lettersOf(tip));
}

void TestDialogTips::formattedTipIsTheToolkits()
{
    OpenDialog dialog;
    auto* const list = on<QComboBox>(dialog, "VideoFormatPage", "interlaceList");
    const QString tip =
        QStringLiteral("<b>Bold</b> and long: ") + QStringLiteral("word ").repeated(40);
    list->setToolTip(tip);
    QCOMPARE(shownTip(list), tip);
}

QTEST_MAIN(TestDialogTips)
#include "tst_dialog_tips.moc"
