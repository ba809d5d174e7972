// Context menus, by keys and the mouse.

#include "DialogTest.h"
#include "ModalWatch.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QSettings>
#include <QTest>
#include <QUrl>

namespace
{

/// The menu that is open; null without one.
QMenu* openMenu()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

/// The menu that the key for it opens over the widget.
QMenu* menuByKey(QWidget* widget)
{
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_F10, Qt::ShiftModifier);
    return openMenu();
}

/// As the menu has it; on Windows it lies on a drive.
QString filmsFolder()
{
    return QDir::toNativeSeparators(QFileInfo(QStringLiteral("/films/a.cfg")).absolutePath());
}

/// The menu that the right mouse button opens there, by the way of a real window.
QMenu* menuByMouse(QWidget* widget, const QPoint& place)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &event);
    return openMenu();
}

/// As the user's settings file has it.
QSettings userSettings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Korvane"),
                     QStringLiteral("MVC Video Encoder"));
}

QString withoutMnemonic(QString text)
{
    return text.remove(QLatin1Char('&'));
}

/// Goes to the item by the arrow keys, and takes it. @return Whether there is one.
bool take(QMenu* menu, const QString& text)
{
    for (int i = 0; menu && i < menu->actions().size(); ++i) {
        QTest::keyClick(menu, Qt::Key_Down);
        if (menu->activeAction() && withoutMnemonic(menu->activeAction()->text()) == text) {
            QTest::keyClick(menu, Qt::Key_Return);
            return true;
        }
    }
    return false;
}

} // namespace

class TestDialogMenus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        failOnToolkitWarnings();
        const OpenDialog place;
        userSettings().clear();
    }

    void allMessagesAreCopied_data();
    void allMessagesAreCopied();
    void copiedMessagesAreWhole();
    void settingsAreCopiedAsText();
    void hiddenSettingsAreNotCopied();
    void changesAreShown();
    void changesCountFromTheLastFile();
    void changeLeadsToItsControl();
    void noChanges();
    void lastFilesAreOffered_data();
    void lastFilesAreOffered();
    void lastFileComesFirstAndOnce();
    void fileThatCannotBeLoadedGoesFromTheList();
    void listOfFilesIsCleared();
    void noMenuOfFilesWithoutTheirButtons();
    void clickOfTheLoadButtonStays();
};

void TestDialogMenus::allMessagesAreCopied_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("by the keyboard") << true;
    QTest::newRow("by the mouse") << false;
}

void TestDialogMenus::allMessagesAreCopied()
{
    QFETCH(bool, byKey);
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "inf_printf", "a note");
        print(lookUp, "err_printf", "error %s", "one");
        print(lookUp, "err_printf", "error two");
        return 1;
    };
    dialog.probe().check();
    dialog.companions.calls.clear();
    QMenu* const menu =
        byKey ? menuByKey(dialog.log()) : menuByMouse(dialog.log()->viewport(), QPoint(5, 5));
    QVERIFY(take(menu, QStringLiteral("Copy all")));
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("error one\nerror two\n\na note"));
    QCOMPARE(dialog.companions.calls, QStringList());
}

void TestDialogMenus::copiedMessagesAreWhole()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "wrn_printf", "%s", QByteArray(100000, 'x').constData());
        for (int i = 1; i <= 20000; ++i) {
            print(lookUp, "inf_printf", "note %d", i);
        }
        return 0;
    };
    dialog.probe().check();
    QVERIFY(take(menuByKey(dialog.log()), QStringLiteral("Copy all")));
    const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 2 + 20000);
    QCOMPARE(lines.first(), QString(100000, QLatin1Char('x')));
    QCOMPARE(lines.last(), QStringLiteral("note 20000"));
}

void TestDialogMenus::settingsAreCopiedAsText()
{
    OpenDialog dialog;
    KvMvcViewSettings& view = dialog.probe().record().settings.views[0];
    view.width = 1280;
    view.weighted_p = 1;
    view.num_threads = 0;
    view.bitrate_mode = KV_MVC_CONSTANT_BITRATE;
    view.bitrate = 8'000'000;
    view.hrd_mode = 1;
    view.bitrate_units = KV_MVC_UNITS_BITS;
    dialog.probe().settingsToState();
    QVERIFY(take(menuByKey(dialog.log()), QStringLiteral("Copy settings as text")));
    const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
    for (const char* line :
         {"Picture width = 1280", "Weighted prediction for P-frames = on", "Threads = Auto",
          "Base View, Bitrate mode = Constant Bitrate", "Base View, Target bitrate (bps) = 8000000",
          "Base View, Units = Bitrate buffer (bits), VBV buffers (bits)"}) {
        QVERIFY2(
            lines.contains(QLatin1String(line)),
            qPrintable(QLatin1String(line) + QLatin1Char('\n') + lines.join(QLatin1Char('\n'))));
    }
    QCOMPARE(lines.first(), QStringLiteral("Picture width = 1280"));
    QCOMPARE(dialog.companions.calls, QStringList());
}

void TestDialogMenus::hiddenSettingsAreNotCopied()
{
    OpenDialog dialog;
    dialog.probe().record().settings.num_views = 1;
    dialog.probe().record().settings.views[0].bitrate_mode = KV_MVC_CONSTANT_BITRATE;
    dialog.probe().settingsToState();
    QVERIFY(take(menuByKey(dialog.log()), QStringLiteral("Copy settings as text")));
    const QString text = QApplication::clipboard()->text();
    QVERIFY(text.contains(QLatin1String("Base View, ")));
    QVERIFY(!text.contains(QLatin1String("View 1, ")));
    QVERIFY(!text.contains(QLatin1String("quantizer = ")));
}

namespace
{

QStringList shownChanges()
{
    QStringList texts;
    const QWidget* const box = QApplication::activePopupWidget();
    const auto* const list = box ? box->findChild<QListWidget*>() : nullptr;
    for (int row = 0; list && row < list->count(); ++row) {
        texts += list->item(row)->text();
    }
    return texts;
}

} // namespace

void TestDialogMenus::changesAreShown()
{
    OpenDialog dialog;
    KvMvcViewSettings& view = dialog.probe().record().settings.views[0];
    view.width = 1280;
    view.weighted_p = view.weighted_p ? 0 : 1;
    dialog.probe().settingsToState();
    const QString weighted =
        view.weighted_p ? QStringLiteral("off \u2192 on") : QStringLiteral("on \u2192 off");
    QVERIFY(take(menuByKey(dialog.log()), QStringLiteral("Show changes")));
    QCOMPARE(shownChanges(),
             QStringList(
                 {QStringLiteral("Picture width: %1 \u2192 1280").arg(dialog.caller.views[0].width),
                  QStringLiteral("Weighted prediction for P-frames: ") + weighted}));
    QCOMPARE(dialog.companions.calls, QStringList());
}

void TestDialogMenus::changesCountFromTheLastFile()
{
    OpenDialog dialog;
    dialog.dropSettings(exampleSettings());
    dialog.probe().record().settings.views[0].num_slices = 9;
    dialog.probe().settingsToState();
    QVERIFY(take(menuByKey(dialog.log()), QStringLiteral("Show changes")));
    QCOMPARE(shownChanges().size(), 1);
    QCOMPARE(shownChanges().first(), QStringLiteral("Slices per picture: 4 \u2192 9"));
    QCOMPARE(QApplication::activePopupWidget()->accessibleName(),
             QStringLiteral("Changed since: File settings.cfg"));
}

void TestDialogMenus::changeLeadsToItsControl()
{
    OpenDialog dialog;
    dialog.probe().record().settings.views[0].num_slices += 1;
    dialog.probe().settingsToState();
    QVERIFY(take(menuByKey(dialog.log()), QStringLiteral("Show changes")));
    QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("slicesSpin"));
}

void TestDialogMenus::noChanges()
{
    OpenDialog dialog;
    QVERIFY(take(menuByKey(dialog.log()), QStringLiteral("Show changes")));
    QCOMPARE(shownChanges(), QStringList(QStringLiteral("No setting has changed.")));
}

namespace
{

/// Drops a file that can be loaded.
void load(OpenDialog& dialog, const QString& path)
{
    dialog.companions.onRead = [](KvMvcSettings& into) {
        into = exampleSettings();
        return 0;
    };
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    dialog.drop(data);
    dialog.companions.calls.clear();
}

QStringList itemsOf(const QMenu* menu)
{
    QStringList items;
    for (const QAction* action : menu->actions()) {
        if (!action->isSeparator()) {
            items += withoutMnemonic(action->text());
        }
    }
    return items;
}

} // namespace

void TestDialogMenus::lastFilesAreOffered_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"Shift+F10", "Ctrl+L", "mouse"}) {
        QTest::newRow(way) << QString::fromLatin1(way);
    }
}

void TestDialogMenus::lastFilesAreOffered()
{
    QFETCH(QString, way);
    {
        OpenDialog earlier;
        load(earlier, QStringLiteral("/films/first.cfg"));
        load(earlier, QStringLiteral("/films/this & that.ini"));
    }
    OpenDialog dialog;
    dialog.companions.onRead = [](KvMvcSettings& into) {
        into = exampleSettings();
        into.views[0].width = 1440;
        return 0;
    };
    QPushButton* const button = dialog.button("buttonLoad");
    if (way == QLatin1String("Ctrl+L")) {
        QTest::keyClick(dialog->focusWidget(), Qt::Key_L, Qt::ControlModifier);
    }
    QMenu* const menu = way == QLatin1String("Shift+F10") ? menuByKey(button)
                        : way == QLatin1String("mouse")   ? menuByMouse(button, QPoint(3, 3))
                                                          : openMenu();
    QVERIFY(menu);
    QCOMPARE(itemsOf(menu),
             QStringList({QStringLiteral("1  this  that.ini  (%1)").arg(filmsFolder()),
                          QStringLiteral("2  first.cfg  (%1)").arg(filmsFolder()),
                          QStringLiteral("Clear list")}));
    QVERIFY(take(menu, QStringLiteral("2  first.cfg  (%1)").arg(filmsFolder())));
    // Not out of the menu, but when it is closed.
    QCoreApplication::processEvents();
    QCOMPARE(
        dialog.companions.count(QStringLiteral("read ") +
                                QFileInfo(QStringLiteral("/films/first.cfg")).absoluteFilePath()),
        1);
    QCOMPARE(dialog.companions.count(QStringLiteral("check")), 1);
    QCOMPARE(dialog.probe().record().settings.views[0].width, 1440);
}

void TestDialogMenus::lastFileComesFirstAndOnce()
{
    OpenDialog dialog;
    for (int i = 1; i <= 9; ++i) {
        load(dialog, QStringLiteral("/films/%1.cfg").arg(i));
    }
    load(dialog, QStringLiteral("/films/3.cfg"));
    const QStringList items = itemsOf(menuByKey(dialog.button("buttonLoad")));
    QCOMPARE(items.size(), 8 + 1);
    QCOMPARE(items.first(), QStringLiteral("1  3.cfg  (%1)").arg(filmsFolder()));
    QCOMPARE(items.filter(QStringLiteral("  3.cfg")).size(), 1);
    QCOMPARE(items.filter(QStringLiteral("  1.cfg")).size(), 0);
}

void TestDialogMenus::fileThatCannotBeLoadedGoesFromTheList()
{
    {
        OpenDialog dialog;
        load(dialog, QStringLiteral("/films/gone.cfg"));
        dialog.companions.onRead = [](KvMvcSettings&) { return 1; };
        const QByteArray before = dialog.bytes();
        QVERIFY(take(menuByKey(dialog.button("buttonLoad")),
                     QStringLiteral("1  gone.cfg  (%1)").arg(filmsFolder())));
        QCoreApplication::processEvents();
        QCOMPARE(dialog.bytes(), before);
    }
    const OpenDialog next;
    QCOMPARE(itemsOf(menuByKey(next.button("buttonLoad"))),
             QStringList(QStringLiteral("No files yet")));
}

void TestDialogMenus::listOfFilesIsCleared()
{
    OpenDialog dialog;
    load(dialog, QStringLiteral("/films/one.cfg"));
    QVERIFY(userSettings().contains(QStringLiteral("recentFiles")));
    QVERIFY(take(menuByKey(dialog.button("buttonLoad")), QStringLiteral("Clear list")));
    QVERIFY(!userSettings().contains(QStringLiteral("recentFiles")));
}

void TestDialogMenus::noMenuOfFilesWithoutTheirButtons()
{
    OpenDialog dialog(KV_MVC_GUI_BASIC_TAB);
    QTest::keyClick(dialog->focusWidget(), Qt::Key_L, Qt::ControlModifier);
    QVERIFY(!openMenu());
}

void TestDialogMenus::clickOfTheLoadButtonStays()
{
    OpenDialog dialog;
    load(dialog, QStringLiteral("/films/one.cfg"));
    ModalWatch watch([](QWidget* window) {
        QVERIFY(qobject_cast<QFileDialog*>(window));
        QTest::keyClick(window, Qt::Key_Escape);
    });
    user::click(dialog.button("buttonLoad"));
    QCOMPARE(watch.seen(), 1);
    QVERIFY(!openMenu());
}

QTEST_MAIN(TestDialogMenus)
#include "tst_dialog_menus.moc"
