// Context menus, by keys and the mouse.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

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

/// The menu that the right mouse button opens there, by the way of a real window.
QMenu* menuByMouse(QWidget* widget, const QPoint& place)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &event);
    return openMenu();
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
    void init() { failOnToolkitWarnings(); }

    void allMessagesAreCopied_data();
    void allMessagesAreCopied();
    void copiedMessagesAreWhole();
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

QTEST_MAIN(TestDialogMenus)
#include "tst_dialog_menus.moc"
