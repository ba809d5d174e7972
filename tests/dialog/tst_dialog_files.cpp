// The load and save buttons, with the toolkit's own file dialogs: names, suffixes, directories.

#include "DialogTest.h"
#include "ModalWatch.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace
{

/// Types a name into the file dialog and presses Return.
void enterName(QWidget* window, const QString& name)
{
    auto* const edit = window->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    QVERIFY(edit);
    edit->setText(name);
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("?");
}

int readExample(KvMvcSettings& settings)
{
    settings = exampleSettings();
    settings.views[0].width = 1024;
    return 0;
}

} // namespace

class TestDialogFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init();
    void cleanup();

    void openDialogOptions_data();
    void openDialogOptions();
    void saveDialogOptions_data();
    void saveDialogOptions();
    void loadedRecordIsCheckedAndShown();
    void recordForTheReaderIsZeroed();
    void failedLoadChangesNothing_data();
    void failedLoadChangesNothing();
    void cancelledFileDialogDoesNothing_data();
    void cancelledFileDialogDoesNothing();
    void saveChecksAndThenWrites();
    void savedFullnessIsTheOneThatTheControlShows();
    void refusingCheckDoesNotStopTheSave();
    void withoutWriterNothingIsSaved();
    void suffixOfSavedFiles_data();
    void suffixOfSavedFiles();
    void namesArePassedOnDoubleConverted_data();
    void namesArePassedOnDoubleConverted();
    void overwriteIsAskedFor_data();
    void overwriteIsAskedFor();
    void overwriteQuestionIsAboutTheNameWithItsSuffix();
    void lastDirectoriesAreKeptApart();
    void shellNeitherReadsNorWrites_data();
    void shellNeitherReadsNorWrites();
    void hostDeletesTheDialogWhileAFileIsChosen_data();
    void hostDeletesTheDialogWhileAFileIsChosen();

private:
    QString path(const char* name) const { return m_directory->filePath(QString::fromUtf8(name)); }
    void create(const char* name) const;
    /// Clicks the button and enters the name in the file dialog that opens.
    static void useFileDialog(const OpenDialog& dialog, const char* button, const QString& name);

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_before;
};

void TestDialogFiles::init()
{
    failOnToolkitWarnings();
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
    m_before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_directory->path()));
}

void TestDialogFiles::cleanup()
{
    QDir::setCurrent(m_before);
    m_directory.reset();
}

void TestDialogFiles::create(const char* name) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write("old"), qint64(3));
}

void TestDialogFiles::useFileDialog(const OpenDialog& dialog, const char* button,
                                    const QString& name)
{
    ModalWatch watch([&name](QWidget* window) { enterName(window, name); });
    user::click(dialog.button(button));
    QCOMPARE(watch.seen(), 1);
    QVERIFY(!watch.forced());
}

void TestDialogFiles::openDialogOptions_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("clicked") << false;
    QTest::newRow("Alt+L") << true;
}

void TestDialogFiles::openDialogOptions()
{
    QFETCH(bool, byKey);
    OpenDialog dialog;
    ModalWatch watch([this](QWidget* window) {
        auto* const files = qobject_cast<QFileDialog*>(window);
        QVERIFY(files);
        QCOMPARE(files->windowTitle(), QStringLiteral("Load Config File..."));
        QCOMPARE(files->acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(files->fileMode(), QFileDialog::ExistingFile);
        QCOMPARE(files->nameFilters(),
                 QStringList({QStringLiteral("Config Files (*.cfg *.ini)"),
                              QStringLiteral("MPEG Files (*.m2p *.m2t *.m2p*.m4p *.mp2 *.mp4 "
                                             "*.mpeg *.mpg *.mpv *.mxf *.trp *.ts *.vob *.ifo)")}));
        QCOMPARE(files->directory().canonicalPath(), QDir(m_directory->path()).canonicalPath());
        QVERIFY(!files->parentWidget());
        files->reject();
    });
    if (byKey) {
        QTest::keyClick(dialog.get(), Qt::Key_L, Qt::AltModifier);
    } else {
        user::click(dialog.button("buttonLoad"));
    }
    // A key shows the button pressed for a moment.
    QTRY_COMPARE(watch.seen(), 1);
    QVERIFY(!watch.forced());
}

void TestDialogFiles::saveDialogOptions_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("clicked") << false;
    QTest::newRow("Alt+S") << true;
}

void TestDialogFiles::saveDialogOptions()
{
    QFETCH(bool, byKey);
    OpenDialog dialog;
    ModalWatch watch([this](QWidget* window) {
        auto* const files = qobject_cast<QFileDialog*>(window);
        QVERIFY(files);
        QCOMPARE(files->windowTitle(), QStringLiteral("Save Config File..."));
        QCOMPARE(files->acceptMode(), QFileDialog::AcceptSave);
        QCOMPARE(files->nameFilters(), QStringList(QStringLiteral("Config Files (*.cfg *.ini)")));
        QVERIFY(files->testOption(QFileDialog::DontConfirmOverwrite));
        QCOMPARE(files->directory().canonicalPath(), QDir(m_directory->path()).canonicalPath());
        QVERIFY(!files->parentWidget());
        files->reject();
    });
    if (byKey) {
        QTest::keyClick(dialog.get(), Qt::Key_S, Qt::AltModifier);
    } else {
        user::click(dialog.button("buttonSave"));
    }
    // A key shows the button pressed for a moment.
    QTRY_COMPARE(watch.seen(), 1);
    QVERIFY(!watch.forced());
}

void TestDialogFiles::loadedRecordIsCheckedAndShown()
{
    create("stereo.cfg");
    OpenDialog dialog;
    dialog.companions.onRead = readExample;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings& settings) {
        settings.views[0].height = 768;
        print(lookUp, "wrn_printf", "height corrected");
        return 1;
    };
    useFileDialog(dialog, "buttonLoad", QStringLiteral("stereo.cfg"));
    QCOMPARE(dialog.companions.calls,
             QStringList({QStringLiteral("api 8193"), QStringLiteral("read ") + path("stereo.cfg"),
                          QStringLiteral("check 3 0")}));
    QCOMPARE(differences(bytesOf(exampleSettings()), bytesOf(dialog.probe().record().settings)),
             QStringList(
                 {QStringLiteral("view 0 +24: 00040000"), QStringLiteral("view 0 +28: 00030000")}));
    QCOMPARE(findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin")->value(), 1024);
    QCOMPARE(findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "heightSpin")->value(), 768);
    QVERIFY(dialog.log()->toPlainText().contains(QLatin1String("height corrected")));
    QVERIFY(bytesOf(dialog.caller) == dialog.given);
}

void TestDialogFiles::recordForTheReaderIsZeroed()
{
    create("stereo.cfg");
    OpenDialog dialog;
    for (int i = 0; i < 2; ++i) {
        useFileDialog(dialog, "buttonLoad", path("stereo.cfg"));
    }
    QCOMPARE(dialog.companions.receivedByReader.size(), 2);
    for (const QByteArray& received : dialog.companions.receivedByReader) {
        QVERIFY(received == QByteArray(16888, '\0'));
    }
}

void TestDialogFiles::failedLoadChangesNothing_data()
{
    QTest::addColumn<bool>("hasReader");
    QTest::addColumn<int>("result");
    QTest::newRow("reader fails") << true << 1;
    QTest::newRow("reader fails with a negative number") << true << -1;
    QTest::newRow("no reader") << false << 0;
    QTest::newRow("no function that knows a reader") << false << 2;
}

void TestDialogFiles::failedLoadChangesNothing()
{
    QFETCH(bool, hasReader);
    QFETCH(int, result);
    create("broken.ini");
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "inf_printf", "as it was");
        return 0;
    };
    dialog.probe().check();
    const QByteArray before = dialog.bytes();
    const QString logged = dialog.log()->toPlainText();
    dialog.companions.calls.clear();
    dialog.companions.hasReader = hasReader;
    dialog.companions.onRead = [result](KvMvcSettings& settings) {
        settings = {};
        settings.num_views = 3;
        return result;
    };
    if (result == 2) {
        companionFunctions().settingsIoGetApi = nullptr;
    }

    useFileDialog(dialog, "buttonLoad", path("broken.ini"));
    QCOMPARE(dialog.companions.count(QStringLiteral("check")), 0);
    QVERIFY(dialog.bytes() == before);
    QCOMPARE(dialog.log()->toPlainText(), logged);
    QCOMPARE(findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin")->value(), 720);
}

void TestDialogFiles::cancelledFileDialogDoesNothing_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("load") << QByteArray("buttonLoad");
    QTest::newRow("save") << QByteArray("buttonSave");
}

void TestDialogFiles::cancelledFileDialogDoesNothing()
{
    QFETCH(QByteArray, button);
    OpenDialog dialog;
    ModalWatch watch([](QWidget* window) { QTest::keyClick(window, Qt::Key_Escape); });
    user::click(dialog.button(button.constData()));
    QCOMPARE(watch.seen(), 1);
    QVERIFY(dialog.companions.calls.isEmpty());
    QCOMPARE(dialog.probe().lastLoadDirectory(), QStringLiteral("./"));
    QCOMPARE(dialog.probe().lastSaveDirectory(), QStringLiteral("./"));
    QVERIFY(dialog->isVisible());
}

void TestDialogFiles::saveChecksAndThenWrites()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings& settings) {
        settings.views[1].bitrate = 4242;
        return 0;
    };
    useFileDialog(dialog, "buttonSave", QStringLiteral("stereo.cfg"));
    QCOMPARE(dialog.companions.calls,
             QStringList({QStringLiteral("check 3 0"), QStringLiteral("api 8194"),
                          QStringLiteral("write ") + path("stereo.cfg")}));
    QCOMPARE(differences(dialog.given, dialog.companions.written.value(0)),
             QStringList(QStringLiteral("view 1 +80: 92100000")));
    // A copy: a writer may use its record as it likes.
    QVERIFY(dialog.companions.writtenFrom != &dialog.probe().record());
}

void TestDialogFiles::savedFullnessIsTheOneThatTheControlShows()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings& settings) {
        // 150 in percent units.
        put(settings, {{1, 132, 0}, {1, 124, 150}});
        return 0;
    };
    useFileDialog(dialog, "buttonSave", path("stereo.cfg"));
    QCOMPARE(differences(dialog.given, dialog.companions.written.value(0)),
             QStringList(QStringLiteral("view 1 +124: 64000000")));
}

void TestDialogFiles::refusingCheckDoesNotStopTheSave()
{
    OpenDialog dialog;
    dialog.companions.writeResult = 1;
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings&) { return 1; };
    useFileDialog(dialog, "buttonSave", path("stereo.cfg"));
    QCOMPARE(dialog.companions.written.size(), 1);
    QCOMPARE(dialog.probe().lastSaveDirectory(), QDir(m_directory->path()).absolutePath());
}

void TestDialogFiles::withoutWriterNothingIsSaved()
{
    OpenDialog dialog;
    dialog.companions.hasWriter = false;
    useFileDialog(dialog, "buttonSave", path("stereo.cfg"));
    QCOMPARE(dialog.companions.calls,
             QStringList({QStringLiteral("check 3 0"), QStringLiteral("api 8194")}));
    QVERIFY(!QFile::exists(path("stereo.cfg")));
}

void TestDialogFiles::suffixOfSavedFiles_data()
{
    QTest::addColumn<QString>("saved");
    QTest::newRow("MySettings") << QStringLiteral("MySettings.ini");
    QTest::newRow("MySettings.cfg") << QStringLiteral("MySettings.cfg");
    QTest::newRow("MySettings.ini") << QStringLiteral("MySettings.ini");
    QTest::newRow("MySettings.CFG") << QStringLiteral("MySettings.CFG");
    QTest::newRow("MySettings.Ini") << QStringLiteral("MySettings.Ini");
    QTest::newRow("MySettings.txt") << QStringLiteral("MySettings.txt.ini");
    QTest::newRow("MySettingscfg") << QStringLiteral("MySettingscfg.ini");
    QTest::newRow("v1.2") << QStringLiteral("v1.2.ini");
    QTest::newRow("My Settings.cfg.bak") << QStringLiteral("My Settings.cfg.bak.ini");
}

void TestDialogFiles::suffixOfSavedFiles()
{
    QFETCH(QString, saved);
    OpenDialog dialog;
    useFileDialog(dialog, "buttonSave", path(QTest::currentDataTag()));
    QCOMPARE(dialog.companions.calls.last(),
             QStringLiteral("write ") + m_directory->filePath(saved));
}

void TestDialogFiles::namesArePassedOnDoubleConverted_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("passedOn");
    QTest::newRow("ASCII") << QStringLiteral("plain.cfg") << QByteArray("plain.cfg");
    QTest::newRow("umlaut") << QStringLiteral("\u00F6.cfg") << QByteArray("\xC3\x83\xC2\xB6.cfg");
    QTest::newRow("kanji") << QStringLiteral("\u5E45.cfg")
                           << QByteArray("\xC3\xA5\xC2\xB9\xC2\x85.cfg");
}

void TestDialogFiles::namesArePassedOnDoubleConverted()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, passedOn);
    create(name.toUtf8().constData());
    OpenDialog dialog;
    dialog.companions.onRead = readExample;
    const QString expected = m_directory->path() + QLatin1Char('/') + QString::fromUtf8(passedOn);
    useFileDialog(dialog, "buttonLoad", m_directory->filePath(name));
    QCOMPARE(dialog.companions.calls.value(1), QStringLiteral("read ") + expected);

    QVERIFY(QFile::remove(m_directory->filePath(name)));
    useFileDialog(dialog, "buttonSave", m_directory->filePath(name));
    QCOMPARE(dialog.companions.calls.last(), QStringLiteral("write ") + expected);
}

void TestDialogFiles::overwriteIsAskedFor_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("written");
    QTest::newRow("Yes") << int(QMessageBox::Yes) << true;
    QTest::newRow("No") << int(QMessageBox::No) << false;
    QTest::newRow("Escape") << int(Qt::Key_Escape) << false;
    // Whoever presses Enter once too often loses nothing.
    QTest::newRow("Enter") << int(Qt::Key_Return) << false;
}

void TestDialogFiles::overwriteIsAskedFor()
{
    QFETCH(int, answer);
    QFETCH(bool, written);
    create("stereo.cfg");
    OpenDialog dialog;
    ModalWatch watch(
        [&](QWidget* window) {
            if (qobject_cast<QFileDialog*>(window)) {
                return enterName(window, path("stereo.cfg"));
            }
            auto* const box = qobject_cast<QMessageBox*>(window);
            QVERIFY(box);
            QCOMPARE(box->windowTitle(), QStringLiteral("Korvane MVC Video Encoder"));
            QCOMPARE(box->text(),
                     QStringLiteral("File already exists.\nDo you want to overwrite it?"));
            QCOMPARE(box->icon(), QMessageBox::Question);
            QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
            QVERIFY(!box->parentWidget());
            if (auto* const button = box->button(QMessageBox::StandardButton(answer))) {
                user::click(button);
            } else {
                QTest::keyClick(box, Qt::Key(answer));
            }
        },
        2);
    user::click(dialog.button("buttonSave"));
    QCOMPARE(watch.seen(), 2);
    QVERIFY(!watch.forced());
    QCOMPARE(dialog.companions.written.size(), written ? 1 : 0);
    QCOMPARE(dialog.companions.count(QStringLiteral("check")), written ? 1 : 0);
    QCOMPARE(dialog.probe().lastSaveDirectory(),
             written ? QDir(m_directory->path()).absolutePath() : QStringLiteral("./"));
    // The writer of this test leaves the file alone, and nobody else touches it.
    QCOMPARE(contentOf(path("stereo.cfg")), QByteArray("old"));
}

void TestDialogFiles::overwriteQuestionIsAboutTheNameWithItsSuffix()
{
    create("MySettings.ini");
    create("Other");
    OpenDialog dialog;
    int questions = 0;
    const auto save = [&](const char* name) {
        ModalWatch watch(
            [&](QWidget* window) {
                if (auto* box = qobject_cast<QMessageBox*>(window)) {
                    ++questions;
                    box->button(QMessageBox::No)->click();
                } else {
                    enterName(window, path(name));
                }
            },
            2);
        user::click(dialog.button("buttonSave"));
    };
    save("MySettings");
    QCOMPARE(questions, 1);
    QVERIFY(dialog.companions.written.isEmpty());
    save("Other"); // becomes Other.ini, which does not exist
    QCOMPARE(questions, 1);
    QCOMPARE(dialog.companions.written.size(), 1);
}

void TestDialogFiles::lastDirectoriesAreKeptApart()
{
    QVERIFY(QDir(m_directory->path()).mkpath(QStringLiteral("from")));
    QVERIFY(QDir(m_directory->path()).mkpath(QStringLiteral("to")));
    create("from/a.cfg");
    OpenDialog dialog;
    // Also when the reader fails: the file was chosen.
    useFileDialog(dialog, "buttonLoad", path("from/a.cfg"));
    useFileDialog(dialog, "buttonSave", path("to/b.cfg"));
    QCOMPARE(dialog.probe().lastLoadDirectory(), path("from"));
    QCOMPARE(dialog.probe().lastSaveDirectory(), path("to"));

    for (const auto& [button, directory] :
         {std::pair{"buttonLoad", "from"}, {"buttonSave", "to"}}) {
        ModalWatch watch([this, directory = directory](QWidget* window) {
            QCOMPARE(qobject_cast<QFileDialog*>(window)->directory().absolutePath(),
                     path(directory));
            window->close();
        });
        user::click(dialog.button(button));
        QCOMPARE(watch.seen(), 1);
    }
}

void TestDialogFiles::shellNeitherReadsNorWrites_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("old.cfg") << QStringLiteral("buttonLoad");
    QTest::newRow("new.cfg") << QStringLiteral("buttonSave");
}

void TestDialogFiles::shellNeitherReadsNorWrites()
{
    QFETCH(QString, button);
    create("old.cfg");
    RecordingCompanions companions;
    AVCVideoEncoderDlg shell(nullptr, nullptr, nullptr);
    shell.show();
    ModalWatch watch([this](QWidget* window) { enterName(window, path(QTest::currentDataTag())); });
    user::click(shell.findChild<QPushButton*>(button));
    QCOMPARE(watch.seen(), 1);
    QVERIFY(!watch.forced());
    QCOMPARE(companions.calls, QStringList());
}

void TestDialogFiles::hostDeletesTheDialogWhileAFileIsChosen_data()
{
    cancelledFileDialogDoesNothing_data();
}

void TestDialogFiles::hostDeletesTheDialogWhileAFileIsChosen()
{
    QFETCH(QByteArray, button);
    create("stereo.cfg");
    RecordingCompanions companions;
    companions.onRead = readExample;
    KvMvcSettings settings = exampleSettings();
    const KvMvcHosting hosting = {usualFlags, nullptr, nullptr, nullptr};
    QPointer<AVCVideoEncoderDlg> dialog = new AVCVideoEncoderDlg(&settings, &hosting, nullptr);
    dialog->show();
    ModalWatch watch([&](QWidget* window) {
        delete dialog;
        enterName(window, button == "buttonLoad" ? path("stereo.cfg") : path("new.cfg"));
    });
    const bool load = button == "buttonLoad";
    QMetaObject::invokeMethod(dialog, load ? "slotLoadSettings" : "slotSaveSettings");
    QCOMPARE(watch.seen(), 1);
    QVERIFY(!watch.forced());
    QVERIFY(!dialog);
    QVERIFY(companions.calls.isEmpty());
}

QTEST_MAIN(TestDialogFiles)
#include "tst_dialog_files.moc"
