// The list of settings finds them by the words of the user's language, and by the English ones.

#include "DialogTest.h"
#include "Language.h"
#include "ToolkitWarnings.h"

#include <QListWidget>
#include <QTest>

class TestFindSetting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void found_data();
    void found();
};

void TestFindSetting::found_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("found");
    const auto row = [](const char* name, const char* language, const char* typed,
                        const char* found) {
        QTest::newRow(name) << QString::fromLatin1(language) << QString::fromUtf8(typed)
                            << QString::fromUtf8(found);
    };
    const char* const german = "Gewichtete Prädiktion für P-Bilder";
    row("German label", "de", "gewichtete", german);
    row("German tip", "de", "Abblenden", german);
    row("English label in German", "de", "weighted prediction", german);
    row("English key in German", "de", "Weighted P", german);
    row("English tip in German", "de", "helps with fades", german);
    const char* const japanese = "P フレームの重み付き予測";
    row("Japanese label", "jp", "重み付き", japanese);
    row("English label in Japanese", "jp", "weighted prediction", japanese);
    row("English tip in Japanese", "jp", "helps with fades", japanese);
}

void TestFindSetting::found()
{
    QFETCH(QString, language);
    QFETCH(QString, typed);
    QFETCH(QString, found);
    const Language translation(language);
    QVERIFY(translation.isReady());
    OpenDialog dialog;
    QTest::keyClick(dialog->focusWidget(), Qt::Key_F, Qt::ControlModifier);
    QWidget* const box = QApplication::activePopupWidget();
    QVERIFY(box);
    auto* const field = qobject_cast<QLineEdit*>(box->focusWidget());
    QVERIFY(field);
    // Only an input method types all of these.
    field->insert(typed);
    const auto* const list = box->findChild<QListWidget*>();
    QCOMPARE(list->item(0)->text().section(QStringLiteral(" \u2013 "), 0, 0), found);
}

QTEST_MAIN(TestFindSetting)
#include "tst_find_setting.moc"
