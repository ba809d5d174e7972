// Message boxes, file dialogs and context menus speak the language of the dialog although no
// translation of the toolkit is installed: whatever text of its own the toolkit asks for while they
// are used is in the module's translations.

#include "DialogTest.h"
#include "Language.h"
#include "ModalWatch.h"
#include "ToolkitWarnings.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

namespace
{

/// Writes down every text that is asked for, and leaves it to the translators before it.
class Recorder : public QTranslator
{
public:
    Recorder() { QCoreApplication::installTranslator(this); }
    ~Recorder() override { QCoreApplication::removeTranslator(this); }

    QString translate(const char* context, const char* text, const char* comment,
                      int) const override
    {
        asked += {context, text, comment};
        return {};
    }
    bool isEmpty() const override { return false; }

    struct Request {
        QByteArray context;
        QByteArray text;
        QByteArray comment;
    };
    mutable QVector<Request> asked;
};

/// Not every request is for a text that is shown: one tells the direction of the script, and to
/// read one shortcut the toolkit asks for the names of all keys.
bool isShown(const Recorder::Request& request)
{
    return request.text != "QT_LAYOUT_DIRECTION" && request.context != "QShortcut";
}

/// Opens the widget's context menu and closes it again.
int openContextMenu(QWidget* widget)
{
    int actions = 0;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &closer, [&actions] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu) {
            return;
        }
        actions = int(menu->actions().size());
        // Key names are asked for when the menu is drawn.
        menu->grab();
        menu->close();
    });
    closer.start(20);
    const QPoint place = widget->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
    QCoreApplication::sendEvent(widget, &event);
    QTest::qWait(60);
    return actions;
}

void walkAccessible(QAccessibleInterface* item)
{
    if (!item || item->state().invalid) {
        return;
    }
    for (const auto kind : {QAccessible::Name, QAccessible::Description, QAccessible::Help,
                            QAccessible::Accelerator, QAccessible::Value}) {
        item->text(kind);
    }
    if (auto* actions = item->actionInterface()) {
        for (const QString& name : actions->actionNames()) {
            actions->localizedActionName(name);
            actions->localizedActionDescription(name);
        }
    }
    for (int i = 0; i < item->childCount(); ++i) {
        walkAccessible(item->child(i));
    }
}

void useFileDialog(QWidget* window)
{
    auto* dialog = qobject_cast<QFileDialog*>(window);
    QVERIFY(dialog);
    dialog->setViewMode(QFileDialog::Detail);
    QTest::qWait(100);
    dialog->grab();
    auto* files = dialog->findChild<QTreeView*>(QStringLiteral("treeView"));
    for (int column = 0; column < files->model()->columnCount(); ++column) {
        files->model()->headerData(column, Qt::Horizontal);
        for (int row = 0; row < files->model()->rowCount(files->rootIndex()); ++row) {
            files->model()->index(row, column, files->rootIndex()).data();
        }
    }
    QVERIFY(openContextMenu(files->viewport()) > 0);
    QVERIFY(openContextMenu(dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))) > 0);
    walkAccessible(QAccessible::queryAccessibleInterface(dialog));
    dialog->reject();
}

void useBox(QWidget* window)
{
    auto* box = qobject_cast<QMessageBox*>(window);
    QVERIFY(box);
    walkAccessible(QAccessible::queryAccessibleInterface(box));
    box->reject();
}

} // namespace

class TestToolkitTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void whatIsAskedForIsTranslated_data();
    void whatIsAskedForIsTranslated();
    void keyNames_data();
    void keyNames();
    void overwriteQuestion_data();
    void overwriteQuestion();
};

void TestToolkitTexts::whatIsAskedForIsTranslated_data()
{
    Language::addRows(Language::translations());
}

void TestToolkitTexts::whatIsAskedForIsTranslated()
{
    QFETCH(QString, language);
    const Language installed(language);
    QVERIFY(installed.isReady());
    QTemporaryDir folder;
    QVERIFY(QDir::setCurrent(folder.path()));
    for (const char* name : {"settings.cfg", "title.mpg", "README"}) {
        QFile(QString::fromLatin1(name)).open(QFile::WriteOnly);
    }
    QDir().mkdir(QStringLiteral("sub"));

    const Recorder recorder;
    OpenDialog dialog;
    {
        ModalWatch watch(useFileDialog, 2);
        QTest::mouseClick(dialog.button("buttonLoad"), Qt::LeftButton);
        QTest::mouseClick(dialog.button("buttonSave"), Qt::LeftButton);
        QCOMPARE(watch.seen(), 2);
        QVERIFY(!watch.forced());
    }
    {
        ModalWatch watch(useBox, 3);
        dialog.log()->hide();
        dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
            for (const char* sink : {"err_printf", "wrn_printf", "inf_printf"}) {
                print(lookUp, sink, "message");
            }
            return 1;
        };
        dialog.probe().check();
        dialog.log()->show();
        QCOMPARE(watch.seen(), 3);
    }
    dialog.companions.onCheck = nullptr;
    QVERIFY(openContextMenu(dialog.log()->viewport()) > 0);
    QVERIFY(openContextMenu(dialog.log()->verticalScrollBar()) > 0);
    auto* field = dialog->findChild<QSpinBox*>(QStringLiteral("widthSpin"));
    QVERIFY(openContextMenu(field) > 0);
    for (int tab = 0; tab < dialog.tabs()->count(); ++tab) {
        dialog.tabs()->setCurrentIndex(tab);
        walkAccessible(QAccessible::queryAccessibleInterface(dialog.get()));
    }

    QStringList missing;
    bool sawButtons = false;
    for (const Recorder::Request& request : recorder.asked) {
        sawButtons = sawButtons || request.context == "QPlatformTheme";
        if (isShown(request) && !installed.knows(request.context, request.text, request.comment)) {
            missing += QString::fromUtf8(request.context + ": " + request.text);
        }
    }
    missing.removeDuplicates();
    QVERIFY(sawButtons);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
}

void TestToolkitTexts::keyNames_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("undo");
    QTest::newRow("en") << QStringLiteral("en") << QStringLiteral("Ctrl+Z");
    QTest::newRow("de") << QStringLiteral("de") << QStringLiteral("Strg+Z");
    QTest::newRow("jp") << QStringLiteral("jp") << QStringLiteral("Ctrl+Z");
}

void TestToolkitTexts::keyNames()
{
    QFETCH(QString, language);
    QFETCH(QString, undo);
    const Language installed(language);
    QVERIFY(installed.isReady());
    QCOMPARE(QKeySequence::fromString(QStringLiteral("Ctrl+Z")).toString(QKeySequence::NativeText),
             undo);
    // A shortcut is read back in the language that it was written for.
    OpenDialog dialog;
    QCOMPARE(dialog.button("buttonLoad")->shortcut(),
             QKeySequence::fromString(QStringLiteral("Alt+L")));
}

void TestToolkitTexts::overwriteQuestion_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("yes");
    QTest::addColumn<QString>("no");
    QTest::newRow("en") << QStringLiteral("en") << QStringLiteral("Yes") << QStringLiteral("No");
    QTest::newRow("de") << QStringLiteral("de") << QStringLiteral("Ja") << QStringLiteral("Nein");
    QTest::newRow("jp") << QStringLiteral("jp") << QStringLiteral("はい(Y)")
                        << QStringLiteral("いいえ(N)");
}

void TestToolkitTexts::overwriteQuestion()
{
    QFETCH(QString, language);
    QFETCH(QString, yes);
    QFETCH(QString, no);
    const Language installed(language);
    QVERIFY(installed.isReady());
    QTemporaryDir folder;
    QVERIFY(QDir::setCurrent(folder.path()));
    QFile(QStringLiteral("there.cfg")).open(QFile::WriteOnly);

    OpenDialog dialog;
    QStringList shown;
    ModalWatch watch(
        [&shown](QWidget* window) {
            if (auto* files = qobject_cast<QFileDialog*>(window)) {
                files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
                    ->setText(QStringLiteral("there.cfg"));
                return static_cast<QDialog*>(files)->accept();
            }
            auto* box = qobject_cast<QMessageBox*>(window);
            for (const auto button : {QMessageBox::Yes, QMessageBox::No}) {
                shown += box->button(button)->text().remove(QLatin1Char('&'));
            }
            box->button(QMessageBox::No)->click();
        },
        2);
    QTest::mouseClick(dialog.button("buttonSave"), Qt::LeftButton);
    QCOMPARE(shown, QStringList({yes, no}));
    QCOMPARE(dialog.companions.count(QStringLiteral("write")), 0);
}

QTEST_MAIN(TestToolkitTexts)
#include "tst_toolkit_texts.moc"
