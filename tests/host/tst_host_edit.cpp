#include "ExampleSettings.h"
#include "HostProgram.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <cstddef>

class TestHostEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void optionsBecomeFlags_data();
    void optionsBecomeFlags();
    void hostingModes_data();
    void hostingModes();
    void titleAndBanner_data();
    void titleAndBanner();
    void okSavesAndPrintsTheChanges();
    void okWithoutAChangePrintsNothing();
    void outputLeavesTheFileThatWasRead();
    void newFileStartsWithThePreset_data();
    void newFileStartsWithThePreset();
    void withoutAFileOnlyTheChangesArePrinted();
    void cancelChangesNothing();
    void errorOfTheDialogIsTrouble();
    void editsThatCannotBeSavedAreNotLost();
    void noDisplayIsTrouble();
};

namespace
{

const QString a = QStringLiteral("a.ini");
const QString b = QStringLiteral("b.cfg");
const QString editCommand = QStringLiteral("edit");

constexpr std::size_t secondView = offsetof(KvMvcSettings, views) + sizeof(KvMvcViewSettings);

/// Bits 0 and 1 (tabs), 4 (file buttons) and 6 (log colours).
constexpr quint32 usualFlags = 0x00000053;

/// What the stub does: "offset=value ..." and the result that it returns.
struct Dialog {
    QString edits;
    int result = 1000;
};

class EditProgram : public HostProgram
{
public:
    EditProgram()
    {
        addStub(QStringLiteral("stub_encoder"), QStringLiteral("kv_mvcenc"));
        addStub(QStringLiteral("stub_module"), QStringLiteral("kv_config_gui_mvc"));
        writeSettings(a, exampleSettings());
    }

    [[nodiscard]] Result edit(const QStringList& arguments, const Dialog& dialog = {},
                              QMap<QString, QString> environment = {}) const
    {
        environment[QStringLiteral("KV_STUB_LOG")] = path(logName);
        environment[QStringLiteral("KV_STUB_EDITS")] = dialog.edits;
        environment[QStringLiteral("KV_STUB_RESULT")] = QString::number(dialog.result);
        return run(QStringList{editCommand} + arguments, environment);
    }

    /// @return What the stub wrote down under a name: "flags", "parent", ...
    [[nodiscard]] QString seen(const char* name) const
    {
        const QString start = QLatin1String(name) + QLatin1Char(' ');
        for (const QString& line : QString::fromUtf8(content(logName)).split(QLatin1Char('\n'))) {
            if (line.startsWith(start)) {
                return line.mid(start.size());
            }
        }
        return QStringLiteral("(not called)");
    }

    [[nodiscard]] QStringList files() const
    {
        QStringList names = fileNames();
        names.removeAll(logName);
        return names;
    }

private:
    const QString logName = QStringLiteral("stub.log");
};

QString edited(std::size_t offset, int value)
{
    return QStringLiteral("%1=%2").arg(offset).arg(value);
}

/// Width of the base view, bit rate of the second.
const QString twoEdits =
    edited(offsetof(KvMvcSettings, views) + offsetof(KvMvcViewSettings, width), 1280) +
    QLatin1Char(' ') + edited(secondView + offsetof(KvMvcViewSettings, bitrate), 8000000);

const QString twoChanges = QStringLiteral("Picture width, base view: 1920 -> 1280\n"
                                          "Target bitrate (bps), view 1: 10000000 -> 8000000\n");

KvMvcSettings twiceEditedSettings()
{
    KvMvcSettings settings = exampleSettings();
    settings.views[0].width = 1280;
    settings.views[1].bitrate = 8000000;
    return settings;
}

bool same(const KvMvcSettings& one, const KvMvcSettings& other)
{
    return std::memcmp(&one, &other, sizeof one) == 0;
}

} // namespace

void TestHostEdit::optionsBecomeFlags_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<quint32>("flags");
    const auto row = [](const char* options, quint32 flags) {
        QTest::newRow(*options == '\0' ? "no option" : options)
            << QString::fromLatin1(options) << flags;
    };
    row("", usualFlags);
    row("--no-basic", 0x00000052);
    row("--no-advanced", 0x00000051);
    row("--no-file-buttons", 0x00000043);
    row("--no-initial-check", 0x00000073);
    row("--plain-log", 0x00000013);
    row("--no-banner", 0x00001053);
    row("--lock video-type", 0x00002053);
    row("--lock size", 0x00004053);
    row("--lock frame-rate", 0x00008053);
    row("--lock pixel-ratio", 0x00010053);
    row("--lock profile", 0x00020053);
    row("--lock level", 0x00040053);
    row("--lock views", 0x00080053);
    row("--lock size,views", 0x00084053);
    row("--lock size --lock views --lock size", 0x00084053);
    row("--no-basic --no-basic", 0x00000052);
    row("--no-basic --no-advanced --no-file-buttons --no-initial-check --plain-log --no-banner "
        "--lock video-type,size,frame-rate,pixel-ratio,profile,level,views",
        0x000ff020);
}

void TestHostEdit::optionsBecomeFlags()
{
    QFETCH(QString, options);
    QFETCH(quint32, flags);
    const EditProgram program;
    const HostProgram::Result result =
        program.edit(options.split(QLatin1Char(' '), Qt::SkipEmptyParts) + QStringList{a});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(program.seen("flags").toUInt(nullptr, 16), flags);
    QCOMPARE(program.seen("width"), QStringLiteral("1920"));
}

void TestHostEdit::hostingModes_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<quint32>("flags");
    QTest::addColumn<QString>("application");
    QTest::addColumn<QString>("parent");
    const auto row = [](const char* options, quint32 flags, const char* application,
                        const char* parent) {
        QTest::newRow(options) << QString::fromLatin1(options) << (usualFlags | flags)
                               << QString::fromLatin1(application) << QString::fromLatin1(parent);
    };
    row("", 0, "none", "0");
    row("--hosting own", 0, "none", "0");
    row("--hosting host", 0x10000000, "widgets", "application");
    row("--hosting host --title x", 0x30000000, "widgets", "application");
    row("--hosting native --parent 4194311", 0, "none", "400007");
    row("--hosting native --parent 0x1200007", 0, "none", "1200007");
    row("--parent 0x1200007 --hosting native --title x", 0x20000000, "none", "1200007");
}

void TestHostEdit::hostingModes()
{
    QFETCH(QString, options);
    QFETCH(quint32, flags);
    QFETCH(QString, application);
    QFETCH(QString, parent);
    const EditProgram program;
    const HostProgram::Result result =
        program.edit(QStringList{a} + options.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(program.seen("flags").toUInt(nullptr, 16), flags);
    QCOMPARE(program.seen("application"), application);
    QCOMPARE(program.seen("parent"), parent);
}

void TestHostEdit::titleAndBanner_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<quint32>("flags");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("banner");
    const QString title = QStringLiteral("--title");
    const QString banner = QStringLiteral("--banner");
    const QString none = QStringLiteral("(null)");
    const QString noRecord = QStringLiteral("(no record)");
    const QString words = QString::fromUtf8("Encoder \xE8\xA8\xAD\xE5\xAE\x9A");
    QTest::newRow("neither") << QStringList() << usualFlags << noRecord << noRecord;
    QTest::newRow("title") << QStringList{title, words} << (usualFlags | 0x20000000u) << words
                           << none;
    QTest::newRow("empty title") << QStringList{title, QString()} << (usualFlags | 0x20000000u)
                                 << QString() << none;
    QTest::newRow("banner") << QStringList{banner, a} << (usualFlags | 0x20000000u) << none << a;
    QTest::newRow("both") << QStringList{title, words, banner, a} << (usualFlags | 0x20000000u)
                          << words << a;
}

void TestHostEdit::titleAndBanner()
{
    QFETCH(QStringList, options);
    QFETCH(quint32, flags);
    QFETCH(QString, title);
    QFETCH(QString, banner);
    const EditProgram program;
    const HostProgram::Result result = program.edit(options + QStringList{a});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(program.seen("flags").toUInt(nullptr, 16), flags);
    QCOMPARE(program.seen("title"), title);
    QCOMPARE(program.seen("banner"), banner);
}

void TestHostEdit::okSavesAndPrintsTheChanges()
{
    const EditProgram program;
    const HostProgram::Result result = program.edit({a}, {twoEdits});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, twoChanges);
    QCOMPARE(result.exitCode, 0);
    QVERIFY(same(program.readSettings(a), twiceEditedSettings()));
    QCOMPARE(program.files(), QStringList{a});
}

void TestHostEdit::okWithoutAChangePrintsNothing()
{
    const EditProgram program;
    const HostProgram::Result result = program.edit({a});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 0);
    QVERIFY(same(program.readSettings(a), exampleSettings()));
}

void TestHostEdit::outputLeavesTheFileThatWasRead()
{
    const EditProgram program;
    const QByteArray before = program.content(a);
    program.setContent(b, "something else");
    const HostProgram::Result result = program.edit({a, QStringLiteral("--output"), b}, {twoEdits});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, twoChanges);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(program.content(a), before);
    QVERIFY(same(program.readSettings(b), twiceEditedSettings()));
}

void TestHostEdit::newFileStartsWithThePreset_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("width");
    const QString preset = QStringLiteral("--preset");
    const QString output = QStringLiteral("-o");
    QTest::newRow("file") << QStringList{b} << QStringLiteral("1000");
    QTest::newRow("file and preset")
        << QStringList{b, preset, QStringLiteral("stereo-high")} << QStringLiteral("1002");
    QTest::newRow("output only") << QStringList{output, b} << QStringLiteral("1000");
    QTest::newRow("output and preset")
        << QStringList{output, b, preset, QStringLiteral("3")} << QStringLiteral("1003");
}

void TestHostEdit::newFileStartsWithThePreset()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, width);
    const EditProgram program;
    const HostProgram::Result result =
        program.edit(arguments, {edited(offsetof(KvMvcSettings, num_views), 2)});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, QStringLiteral("Number of additional views: 0 -> 1\n"));
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(program.seen("width"), width);
    const KvMvcSettings saved = program.readSettings(b);
    QCOMPARE(saved.num_views, 2);
    QCOMPARE(QString::number(saved.views[0].width), width);
}

void TestHostEdit::withoutAFileOnlyTheChangesArePrinted()
{
    const EditProgram program;
    const HostProgram::Result result =
        program.edit({QStringLiteral("--preset"), QStringLiteral("1")},
                     {edited(offsetof(KvMvcSettings, split_views), 1)});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, QStringLiteral("Split views: off -> on\n"));
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(program.seen("width"), QStringLiteral("1001"));
    QCOMPARE(program.files(), QStringList{a});
}

void TestHostEdit::cancelChangesNothing()
{
    const EditProgram program;
    const QByteArray before = program.content(a);
    const QList<QStringList> calls = {{a}, {b}, {a, QStringLiteral("-o"), b}, {}};
    for (const QStringList& arguments : calls) {
        const HostProgram::Result result = program.edit(arguments, {twoEdits, 1001});
        QCOMPARE(result.error, QString());
        QCOMPARE(result.output, QString());
        QCOMPARE(result.exitCode, 1);
        QCOMPARE(program.content(a), before);
        QCOMPARE(program.files(), QStringList{a});
    }
}

void TestHostEdit::errorOfTheDialogIsTrouble()
{
    const EditProgram program;
    const QByteArray before = program.content(a);
    const HostProgram::Result result = program.edit({a}, {twoEdits, 1});
    QCOMPARE(result.error,
             QStringLiteral("kv-mvc-settings: the dialog could not be opened (result 1)\n"));
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(program.content(a), before);
}

void TestHostEdit::editsThatCannotBeSavedAreNotLost()
{
    // The folder goes away while the dialog is open.
    const EditProgram program;
    QVERIFY(QDir(program.path(QString())).mkdir(QStringLiteral("folder")));
    QVERIFY(QDir(program.path(QString())).mkdir(QStringLiteral("rescue")));
    const HostProgram::Result result =
        program.edit({a, QStringLiteral("-o"), QStringLiteral("folder/a.ini")}, {twoEdits},
                     {{QStringLiteral("KV_STUB_REMOVES"), program.path(QStringLiteral("folder"))},
                      {QStringLiteral("KV_STUB_REMOVED"), program.path(QStringLiteral("gone"))},
                      {QStringLiteral("TMPDIR"), program.path(QStringLiteral("rescue"))},
                      {QStringLiteral("TMP"), program.path(QStringLiteral("rescue"))}});
    const QStringList rescued = QDir(program.path(QStringLiteral("rescue"))).entryList(QDir::Files);
    QCOMPARE(rescued.size(), 1);
    QVERIFY2(result.error.startsWith(QStringLiteral("kv-mvc-settings: ")) &&
                 result.error.contains(QStringLiteral("folder/a.ini")) &&
                 result.error.endsWith(rescued.first() + QStringLiteral("'\n")),
             qPrintable(result.error));
    QCOMPARE(result.error.count(QLatin1Char('\n')), 1);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
    QVERIFY(same(program.readSettings(QStringLiteral("rescue/") + rescued.first()),
                 twiceEditedSettings()));
}

void TestHostEdit::noDisplayIsTrouble()
{
#ifdef Q_OS_WIN
    QSKIP("Windows always has a desktop");
#endif
    const EditProgram program;
    const QByteArray before = program.content(a);
    const HostProgram::Result result =
        program.edit({a, QStringLiteral("--hosting"), QStringLiteral("host")}, {twoEdits},
                     {{QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("nowhere")}});
    QVERIFY2(result.error.startsWith(QStringLiteral("kv-mvc-settings: cannot open a window: ")),
             qPrintable(result.error));
    QCOMPARE(result.error.count(QLatin1Char('\n')), 1);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(program.content(a), before);
}

QTEST_GUILESS_MAIN(TestHostEdit)
#include "tst_host_edit.moc"
