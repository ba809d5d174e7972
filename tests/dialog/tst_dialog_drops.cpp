// Files dropped on the tabs, and the event filter that takes them without consuming anything.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QSpinBox>
#include <QTest>
#include <QUrl>

#include <memory>

namespace
{

std::unique_ptr<QMimeData> files(const QStringList& names)
{
    auto data = std::make_unique<QMimeData>();
    QList<QUrl> urls;
    for (const QString& name : names) {
        urls += QUrl::fromLocalFile(name);
    }
    data->setUrls(urls);
    return data;
}

/// @return Whether the tabs would take the data.
bool dragAccepted(const OpenDialog& dialog, const QMimeData& data)
{
    QDragEnterEvent event(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(dialog.tabs(), &event);
    return event.isAccepted();
}

} // namespace

class TestDialogDrops : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void dragIsTakenBySuffix_data();
    void dragIsTakenBySuffix();
    void firstFileDecides();
    void filesMayBeDroppedAnywhere_data();
    void filesMayBeDroppedAnywhere();
    void dragWithoutFiles();
    void dropLoadsTheFirstFileOnly();
    void firstUrlThatIsNoFileHasNoName();
    void dropIsNotJudgedBySuffix();
    void dropPassesTheNameOnOnce();
    void dropWithoutFilesIsLeftAlone();
    void failedDropChangesNothing();
    void lastDirectoryStays();
    void filterNeverConsumes_data();
    void filterNeverConsumes();
    void filterIgnoresOtherObjects();
};

void TestDialogDrops::dragIsTakenBySuffix_data()
{
    QTest::addColumn<bool>("taken");
    for (const char* name : {"a.cfg", "a.ini",  "a.m2p", "a.m2t", "a.m2v",   "a.m4p",   "a.mp2",
                             "a.mp4", "a.mpeg", "a.mpg", "a.mpv", "a.mxf",   "a.trp",   "a.ts",
                             "a.vob", "a.ifo",  "A.CFG", "a.Mp4", "a.b.ini", "a b.vob", ".cfg"}) {
        QTest::newRow(name) << true;
    }
    for (const char* name :
         {"a.txt", "a", "a.cfg.txt", "cfg", "a.mkv", "a.m2ts", "a.cfgx", "a.", "dir.cfg/a"}) {
        QTest::newRow(name) << false;
    }
}

void TestDialogDrops::dragIsTakenBySuffix()
{
    QFETCH(bool, taken);
    OpenDialog dialog;
    const QString name = QLatin1String("/files/") + QLatin1String(QTest::currentDataTag());
    QCOMPARE(dragAccepted(dialog, *files({name})), taken);
    QVERIFY(dialog.companions.calls.isEmpty());
}

void TestDialogDrops::firstFileDecides()
{
    OpenDialog dialog;
    QVERIFY(dragAccepted(dialog, *files({QStringLiteral("/a.cfg"), QStringLiteral("/b.txt")})));
    QVERIFY(!dragAccepted(dialog, *files({QStringLiteral("/b.txt"), QStringLiteral("/a.cfg")})));
}

void TestDialogDrops::filesMayBeDroppedAnywhere_data()
{
    QTest::addColumn<QString>("widget");
    for (const char* name : {"bannerFrame", "presetFrame", "presetList", "errorLog", "buttonOk",
                             "tabWidget", "widthSpin", "framerateList"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void TestDialogDrops::filesMayBeDroppedAnywhere()
{
    QFETCH(QString, widget);
    OpenDialog dialog;
    dialog.companions.onRead = [](KvMvcSettings& settings) {
        settings = exampleSettings();
        return 0;
    };
    // As file managers hand them over: with their names as text.
    const auto data = files({QStringLiteral("/one.cfg")});
    data->setText(QStringLiteral("/one.cfg"));
    // The toolkit begins with the innermost widget under the pointer.
    auto* target = dialog->findChild<QWidget*>(widget);
    while (QWidget* const inside = target->childAt(target->rect().center())) {
        target = inside;
    }
    const QPoint place = target->rect().center();
    QDragEnterEvent drag(place, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    drag.ignore();
    QCoreApplication::sendEvent(target, &drag);
    QVERIFY(drag.isAccepted());
    QDropEvent drop(place, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    QCoreApplication::sendEvent(target, &drop);
    QVERIFY(drop.isAccepted());
    QCOMPARE(dialog.companions.calls,
             QStringList({QStringLiteral("api 8193"), QStringLiteral("read /one.cfg"),
                          QStringLiteral("check 3 0")}));
}

void TestDialogDrops::dragWithoutFiles()
{
    OpenDialog dialog;
    QMimeData text;
    text.setText(QStringLiteral("a.cfg"));
    QVERIFY(!dragAccepted(dialog, text));
    QMimeData web;
    web.setUrls({QUrl(QStringLiteral("https://localhost/a.cfg"))});
    QVERIFY(!dragAccepted(dialog, web));
    QVERIFY(!dragAccepted(dialog, QMimeData()));
}

void TestDialogDrops::dropLoadsTheFirstFileOnly()
{
    OpenDialog dialog;
    dialog.companions.onRead = [](KvMvcSettings& settings) {
        settings = exampleSettings();
        settings.views[0].width = 1440;
        return 0;
    };
    QVERIFY(dialog.drop(*files(
        {QStringLiteral("/one.cfg"), QStringLiteral("/two.cfg"), QStringLiteral("/three.ini")})));
    QCOMPARE(dialog.companions.calls,
             QStringList({QStringLiteral("api 8193"), QStringLiteral("read /one.cfg"),
                          QStringLiteral("check 3 0")}));
    QVERIFY(dialog.companions.receivedByReader.value(0) == QByteArray(16888, '\0'));
    QCOMPARE(findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin")->value(), 1440);
}

void TestDialogDrops::firstUrlThatIsNoFileHasNoName()
{
    // A file behind it does not stand in for it.
    OpenDialog dialog;
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("https://localhost/a.cfg")),
                  QUrl::fromLocalFile(QStringLiteral("/b.cfg"))});
    QVERIFY(!dragAccepted(dialog, data));
    QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QVERIFY(!dialog->eventFilter(dialog.tabs(), &event));
    QVERIFY(event.isAccepted());
    QCOMPARE(dialog.companions.calls,
             QStringList({QStringLiteral("api 8193"), QStringLiteral("read ")}));
}

void TestDialogDrops::dropIsNotJudgedBySuffix()
{
    OpenDialog dialog;
    const auto data = files({QStringLiteral("/notes.txt")});
    QDropEvent event(QPointF(5, 5), Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QVERIFY(!dialog->eventFilter(dialog.tabs(), &event));
    QVERIFY(event.isAccepted());
    QCOMPARE(dialog.companions.calls.value(1), QStringLiteral("read /notes.txt"));
}

void TestDialogDrops::dropPassesTheNameOnOnce()
{
    OpenDialog dialog;
    dialog.drop(*files({QStringLiteral("/Gr\u00F6\u00DFe \u5E45.cfg")}));
    QCOMPARE(dialog.companions.calls.value(1).toUtf8(), QByteArray("read /Gr\xC3\xB6\xC3\x9F"
                                                                   "e \xE5\xB9\x85.cfg"));
}

void TestDialogDrops::dropWithoutFilesIsLeftAlone()
{
    OpenDialog dialog;
    QMimeData text;
    text.setText(QStringLiteral("a.cfg"));
    QDropEvent event(QPointF(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QVERIFY(!dialog->eventFilter(dialog.tabs(), &event));
    QVERIFY(!event.isAccepted());
    QVERIFY(dialog.companions.calls.isEmpty());
}

void TestDialogDrops::failedDropChangesNothing()
{
    OpenDialog dialog;
    const QByteArray before = dialog.bytes();
    dialog.drop(*files({QStringLiteral("/broken.cfg")}));
    QCOMPARE(dialog.companions.count(QStringLiteral("check")), 0);
    QVERIFY(dialog.bytes() == before);
    QCOMPARE(dialog.log()->toPlainText(), QString());
}

void TestDialogDrops::lastDirectoryStays()
{
    OpenDialog dialog;
    dialog.dropSettings(exampleSettings());
    QCOMPARE(dialog.probe().lastLoadDirectory(), QStringLiteral("./"));
}

void TestDialogDrops::filterNeverConsumes_data()
{
    QTest::addColumn<bool>("onTabs");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("key");
    QTest::newRow("F5") << false << int(QEvent::KeyPress) << int(Qt::Key_F5);
    QTest::newRow("F6") << false << int(QEvent::KeyPress) << int(Qt::Key_F6);
    QTest::newRow("F7") << false << int(QEvent::KeyPress) << int(Qt::Key_F7);
    QTest::newRow("F5 let go") << false << int(QEvent::KeyRelease) << int(Qt::Key_F5);
    QTest::newRow("F5 on the tabs") << true << int(QEvent::KeyPress) << int(Qt::Key_F5);
    QTest::newRow("drag enter") << true << int(QEvent::DragEnter) << 0;
    QTest::newRow("drop") << true << int(QEvent::Drop) << 0;
    QTest::newRow("show") << true << int(QEvent::Show) << 0;
    QTest::newRow("close") << false << int(QEvent::Close) << 0;
}

void TestDialogDrops::filterNeverConsumes()
{
    QFETCH(bool, onTabs);
    QFETCH(int, type);
    QFETCH(int, key);
    OpenDialog dialog;
    const auto data = files({QStringLiteral("/a.cfg")});
    std::unique_ptr<QEvent> event;
    if (type == QEvent::DragEnter) {
        event = std::make_unique<QDragEnterEvent>(QPoint(5, 5), Qt::CopyAction, data.get(),
                                                  Qt::LeftButton, Qt::NoModifier);
    } else if (type == QEvent::Drop) {
        event = std::make_unique<QDropEvent>(QPointF(5, 5), Qt::CopyAction, data.get(),
                                             Qt::LeftButton, Qt::NoModifier);
    } else if (key) {
        event = std::make_unique<QKeyEvent>(QEvent::Type(type), key, Qt::NoModifier);
    } else {
        event = std::make_unique<QEvent>(QEvent::Type(type));
    }
    QObject* const watched = onTabs ? static_cast<QObject*>(dialog.tabs()) : dialog.get();
    QVERIFY(!dialog->eventFilter(watched, event.get()));
}

void TestDialogDrops::filterIgnoresOtherObjects()
{
    OpenDialog dialog;
    const QString skin = dialog->styleSheet();
    QKeyEvent key(QEvent::KeyPress, Qt::Key_F6, Qt::NoModifier);
    QObject plain;
    QVERIFY(!dialog->eventFilter(&plain, &key));
    QVERIFY(!dialog->eventFilter(dialog.log(), &key));
    QVERIFY(!dialog->eventFilter(dialog.tabs(), &key));
    QCOMPARE(dialog->styleSheet(), skin);
    const auto data = files({QStringLiteral("/a.cfg")});
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QVERIFY(!dialog->eventFilter(dialog.get(), &drop));
    QVERIFY(dialog.companions.calls.isEmpty());
}

QTEST_MAIN(TestDialogDrops)
#include "tst_dialog_drops.moc"
