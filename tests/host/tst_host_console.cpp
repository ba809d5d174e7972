// A console of Windows shows what the program writes, whatever code page it has.

#include "ExampleSettings.h"
#include "HostProgram.h"

#include <QDir>
#include <QTest>

#include <string>
#include <vector>

#include <windows.h>

class TestHostConsole : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void consoleShowsWhatIsWritten_data();
    void consoleShowsWhatIsWritten();
};

namespace
{

constexpr SHORT columns = 160;
constexpr SHORT rows = 50;

/// @return Whether the program ran, with the screen as both of its outputs.
bool runOn(HANDLE screen, const HostProgram& program, const QString& arguments)
{
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = INVALID_HANDLE_VALUE;
    startup.hStdOutput = screen;
    startup.hStdError = screen;
    PROCESS_INFORMATION process = {};
    std::wstring line = QStringLiteral("\"%1\" %2")
                            .arg(QDir::toNativeSeparators(program.program()), arguments)
                            .toStdWString();
    const std::wstring folder = QDir::toNativeSeparators(program.path(QString())).toStdWString();
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, folder.c_str(),
                        &startup, &process)) {
        return false;
    }
    const bool ended = WaitForSingleObject(process.hProcess, 30000) == WAIT_OBJECT_0;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return ended;
}

/// @return The lines that the screen shows, without blanks at their ends.
QStringList linesOf(HANDLE screen)
{
    QStringList lines;
    for (SHORT row = 0; row < rows; ++row) {
        std::vector<wchar_t> cells(columns);
        DWORD count = 0;
        ReadConsoleOutputCharacterW(screen, cells.data(), columns, COORD{0, row}, &count);
        QString line = QString::fromWCharArray(cells.data(), static_cast<int>(count));
        while (line.endsWith(QLatin1Char(' '))) {
            line.chop(1);
        }
        lines << line;
    }
    while (!lines.isEmpty() && lines.last().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}

} // namespace

void TestHostConsole::initTestCase()
{
    FreeConsole();
    QVERIFY(AllocConsole());
    // One that has none of the letters.
    QVERIFY(SetConsoleOutputCP(437) || SetConsoleOutputCP(1252));
}

void TestHostConsole::cleanupTestCase()
{
    FreeConsole();
}

void TestHostConsole::consoleShowsWhatIsWritten_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QStringList>("lines");
    const QString word = QString::fromUtf8("\xC3\x9C\xC5\x82 \xD0\x96 \xE2\x82\xAC");
    QTest::newRow("standard output")
        << QStringLiteral("check letters.ini") << QStringList{QStringLiteral("warning: ") + word};
    QTest::newRow("standard error")
        << QStringLiteral("show \"%1.ini\"").arg(word)
        << QStringList{
               QStringLiteral("kv-mvc-settings: cannot read '%1.ini': there is no such file")
                   .arg(word)};
    QTest::newRow("several lines")
        << QStringLiteral("show bad.ini")
        << QStringList{QStringLiteral("bad.ini:1: section 'record' is missing; its keys are "
                                      "num_views and split_views"),
                       QStringLiteral("bad.ini:1: section 'view 0' is missing")};
}

void TestHostConsole::consoleShowsWhatIsWritten()
{
    QFETCH(QString, arguments);
    QFETCH(QStringList, lines);
    HostProgram program;
    program.addStub(QStringLiteral("stub_encoder"), QStringLiteral("kv_mvcenc"));
    KvMvcSettings settings = exampleSettings();
    settings.views[0].width = 6;
    program.writeSettings(QStringLiteral("letters.ini"), settings);
    program.setContent(QStringLiteral("bad.ini"), "");
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    const HANDLE screen =
        CreateConsoleScreenBuffer(GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                  &inherited, CONSOLE_TEXTMODE_BUFFER, nullptr);
    QVERIFY(screen != INVALID_HANDLE_VALUE);
    QVERIFY(SetConsoleScreenBufferSize(screen, COORD{columns, rows}));
    const bool ran = runOn(screen, program, arguments);
    const QStringList shown = linesOf(screen);
    CloseHandle(screen);
    QVERIFY(ran);
    QCOMPARE(shown, lines);
}

QTEST_GUILESS_MAIN(TestHostConsole)
#include "tst_host_console.moc"
