// Every text of the dialog has the room that it needs, in every language and skin, on every tab and
// in every state that shows other texts.

#include "DialogTest.h"
#include "Language.h"
#include "TextRoom.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFontMetrics>
#include <QTest>

class TestFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { failOnToolkitWarnings(); }

    void narrowLabelIsFound();
    void textsFit_data() { rows(); }
    void textsFit();
    void everyItemFitsItsList_data() { rows(); }
    void everyItemFitsItsList();
    void openListsFit_data() { rows(); }
    void openListsFit();

private:
    static void rows();
};

void TestFit::initTestCase()
{
    // Without one the Japanese texts would be measured as boxes.
    QVERIFY2(QFontMetrics(QApplication::font()).inFont(QChar(0x30D5)), "no Japanese font");
}

void TestFit::narrowLabelIsFound()
{
    OpenDialog dialog;
    QVERIFY(cutTexts(dialog.get()).isEmpty());
    auto* label = dialog->findChild<QLabel*>(QStringLiteral("fpsLabel"));
    // Too narrow for the longer word in the smallest font, too.
    const int needed = label->fontMetrics().horizontalAdvance(QStringLiteral("rate"));
    label->setFixedWidth(needed / 2);
    QCoreApplication::processEvents();
    QCOMPARE(cutTexts(dialog.get()).size(), 1);
    auto* list = dialog->findChild<QComboBox*>(QStringLiteral("interlaceList"));
    list->setGeometry(list->geometry().translated(0, list->height()));
    QVERIFY(collisions(dialog.get()).join(QLatin1Char(' ')).contains(QLatin1String("overlaps")));
}

void TestFit::rows()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("skinKey");
    const struct {
        const char* name;
        Qt::Key key;
    } skins[] = {{"default", Qt::Key_F5}, {"metal", Qt::Key_F6}};
    for (const QString& language : Language::withEnglish()) {
        for (const auto& skin : skins) {
            QTest::addRow("%s, %s", qPrintable(language), skin.name) << language << int(skin.key);
        }
    }
}

void TestFit::textsFit()
{
    QFETCH(QString, language);
    QFETCH(int, skinKey);

    const Language installed(language);
    QVERIFY(installed.isReady());
    OpenDialog dialog;
    dialog.probe().record().settings.num_views = KV_MVC_MAX_VIEWS;
    QTest::keyClick(dialog.get(), Qt::Key(skinKey));

    QStringList faults;
    const auto look = [&](const QString& state) {
        for (int tab = 0; tab < dialog.tabs()->count(); ++tab) {
            dialog.tabs()->setCurrentIndex(tab);
            QCoreApplication::processEvents();
            QCOMPARE(dialog->width(), 400);
            for (const QString& fault : cutTexts(dialog.get()) + collisions(dialog.get())) {
                faults += state + QLatin1String(": ") + fault;
            }
        }
    };

    // Rate control shows other controls for each mode, and other labels for each unit.
    for (int mode = 0; mode < 4; ++mode) {
        for (int units = 0; units < (mode == KV_MVC_VARIABLE_BITRATE ? 3 : 1); ++units) {
            for (int view = 0; view < KV_MVC_RECORD_VIEWS; ++view) {
                KvMvcViewSettings& settings = dialog.probe().record().settings.views[view];
                settings.bitrate_mode = mode;
                settings.bitrate_units = units;
                settings.hrd_mode = 1;
                settings.brightness = 0;
                settings.contrast = -100;
            }
            dialog.probe().settingsToState();
            look(QStringLiteral("mode %1, units %2").arg(mode).arg(units));
        }
    }

    faults.removeDuplicates();
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestFit::everyItemFitsItsList()
{
    QFETCH(QString, language);
    QFETCH(int, skinKey);
    const Language installed(language);
    QVERIFY(installed.isReady());
    OpenDialog dialog;
    QTest::keyClick(dialog.get(), Qt::Key(skinKey));
    QStringList faults;
    int items = 0;
    for (int tab = 0; tab < dialog.tabs()->count(); ++tab) {
        dialog.tabs()->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        for (QComboBox* list : dialog->findChildren<QComboBox*>()) {
            for (int i = 0; list->isVisible() && i < list->count(); ++i, ++items) {
                list->setCurrentIndex(i);
                faults += cutTexts(list->parentWidget());
            }
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    QVERIFY2(items >= 90, qPrintable(QString::number(items)));
    // A short one is as large as other texts.
    auto* const modes = on<QComboBox>(dialog, "View0Page", "bitrateModeList");
    modes->setCurrentIndex(3);
    modes->setCurrentIndex(0);
    QCOMPARE(modes->font().pointSizeF(), modes->parentWidget()->font().pointSizeF());
}

void TestFit::openListsFit()
{
    QFETCH(QString, language);
    QFETCH(int, skinKey);
    const Language installed(language);
    QVERIFY(installed.isReady());
    OpenDialog dialog;
    QTest::keyClick(dialog.get(), Qt::Key(skinKey));

    QStringList faults;
    int opened = 0;
    for (int tab = 0; tab < dialog.tabs()->count(); ++tab) {
        dialog.tabs()->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        for (QComboBox* list : dialog->findChildren<QComboBox*>()) {
            if (!list->isVisible() || !list->isEnabled()) {
                continue;
            }
            user::reveal(list);
            list->showPopup();
            QCoreApplication::processEvents();
            const QAbstractItemView* const items = list->view();
            QVERIFY(items->isVisible());
            ++opened;
            // An item asks for the width of the closed list at least, frame or not.
            const int room = qMax(items->viewport()->width(), list->width());
            if (room < items->sizeHintForColumn(0)) {
                faults += QStringLiteral("%1: %2 for %3")
                              .arg(list->objectName())
                              .arg(room)
                              .arg(items->sizeHintForColumn(0));
            }
            list->hidePopup();
        }
    }
    QVERIFY(opened > 15);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

QTEST_MAIN(TestFit)
#include "tst_fit.moc"
