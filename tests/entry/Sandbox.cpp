#include "Sandbox.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTest>
#include <QThread>

namespace
{

void copy(const QString& from, const QString& to)
{
    QVERIFY2(QFile::copy(from, to), qPrintable(from + QLatin1String(" -> ") + to));
}

/// A call takes 0.2 seconds at most; under a sanitizer all takes longer.
#if defined(__SANITIZE_ADDRESS__)
constexpr int slowness = 5;
#else
constexpr int slowness = 1;
#endif
const int patience = slowness * (60000 + 200 * qEnvironmentVariableIntValue("KV_CALLS"));

const QString librarySuffix = QStringLiteral(KV_LIBRARY_SUFFIX);

QString hostProgram()
{
    return qEnvironmentVariable("KV_MODULE_HOST");
}

QStringList linesOf(QByteArray text)
{
    // Of a text file of Windows.
    text.replace("\r\n", "\n");
    QStringList lines = QString::fromUtf8(text).split(QLatin1Char('\n'));
    if (lines.last().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}

} // namespace

Sandbox::Sandbox(Module where)
    : m_program(path(QLatin1String("host/") + QFileInfo(hostProgram()).fileName())),
      m_module(libraryPath("kv_config_gui_mvc", where == Module::Apart ? "module" : "host"))
{
    QDir(m_directory.path()).mkdir(QStringLiteral("host"));
    QDir(m_directory.path()).mkdir(QStringLiteral("module"));
    copy(hostProgram(), m_program);
    copy(qEnvironmentVariable("KV_BIN_DIR") + QLatin1String("/kv_config_gui_mvc") + librarySuffix,
         m_module);
}

Sandbox::~Sandbox()
{
    // Windows may hold the files of a process for a moment after its end.
    const QDeadlineTimer patience(5000);
    while (!QDir(m_directory.path()).removeRecursively() && !patience.hasExpired()) {
        QThread::msleep(20);
    }
}

void Sandbox::add(const char* stub, const char* name, const char* folder) const
{
    copy(qEnvironmentVariable("KV_ENTRY_STUBS") + QLatin1Char('/') + QLatin1String(stub) +
             librarySuffix,
         libraryPath(name, folder));
}

QString Sandbox::libraryPath(const char* name, const char* folder) const
{
    return path(QLatin1String(folder) + QLatin1Char('/') + QLatin1String(name) + librarySuffix);
}

QMap<QString, QString> Sandbox::findingBesideTheModule() const
{
#ifdef Q_OS_WIN
    return {{QStringLiteral("PATH"), QDir::toNativeSeparators(path(QStringLiteral("module"))) +
                                         QDir::listSeparator() + qEnvironmentVariable("PATH")}};
#elif defined(__SANITIZE_ADDRESS__)
    // It calls dlopen() in the module's place, so that the run path is that of its own library.
    return {{QStringLiteral("LD_LIBRARY_PATH"), path(QStringLiteral("module"))}};
#else
    return {};
#endif
}

void Sandbox::addRequired() const
{
    add("stub_entry_settings_io", "kv_mvc_settings_io");
    add("stub_entry_encoder", "kv_mvcenc");
}

void Sandbox::addReference() const
{
    for (const char* name : {"kv_mvcenc", "kv_mvc_settings_io", "kv_media_probe"}) {
        const QString file = qEnvironmentVariable("KV_BIN_DIR") + QLatin1Char('/') +
                             QLatin1String(name) + librarySuffix;
        if (QFile::exists(file)) {
            copy(file, libraryPath(name, "host"));
        }
    }
}

Sandbox::Result Sandbox::run(const QStringList& steps,
                             const QMap<QString, QString>& environment) const
{
    const QString log = path(QStringLiteral("log"));
    QFile::remove(log);
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QStringLiteral("KV_STUB_LOG"), log);
    // Without one the toolkit warns.
    variables.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_directory.path());
    for (auto at = environment.begin(); at != environment.end(); ++at) {
        if (at->isEmpty()) {
            variables.remove(at.key());
        } else {
            variables.insert(at.key(), at.value());
        }
    }

    QProcess process;
    process.setProcessEnvironment(variables);
    process.setWorkingDirectory(m_directory.path());
    process.start(m_program, QStringList(m_module) + steps);
    if (!process.waitForFinished(patience)) {
        process.kill();
        process.waitForFinished();
        return {-1, {QStringLiteral("did not end")}, {}, {}};
    }
    QFile file(log);
    const QByteArray written = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -2,
            linesOf(process.readAllStandardOutput()), linesOf(written),
            QString::fromUtf8(process.readAllStandardError())};
}

QString Sandbox::Result::value(const char* beginning) const
{
    return values(beginning).value(0);
}

QStringList Sandbox::Result::values(const char* beginning) const
{
    const QString start = QLatin1String(beginning) + QLatin1Char(' ');
    QStringList found;
    for (const QString& line : lines) {
        if (line.startsWith(start) || line == QLatin1String(beginning)) {
            found += line.mid(start.size());
        }
    }
    return found;
}
