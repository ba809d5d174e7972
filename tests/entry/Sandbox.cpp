#include "Sandbox.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

namespace
{

void copy(const QString& from, const QString& to)
{
    QVERIFY2(QFile::copy(from, to), qPrintable(from + QLatin1String(" -> ") + to));
}

QStringList linesOf(const QByteArray& text)
{
    QStringList lines = QString::fromUtf8(text).split(QLatin1Char('\n'));
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

} // namespace

Sandbox::Sandbox(Module where)
    : m_module(path(where == Module::Apart ? QStringLiteral("module/kv_config_gui_mvc.so")
                                           : QStringLiteral("host/kv_config_gui_mvc.so")))
{
    QDir(m_directory.path()).mkdir(QStringLiteral("host"));
    QDir(m_directory.path()).mkdir(QStringLiteral("module"));
    copy(qEnvironmentVariable("KV_MODULE_HOST"), path(QStringLiteral("host/module_host")));
    copy(qEnvironmentVariable("KV_BIN_DIR") + QLatin1String("/kv_config_gui_mvc.so"), m_module);
}

void Sandbox::add(const char* stub, const char* name, const char* folder) const
{
    copy(qEnvironmentVariable("KV_ENTRY_STUBS") + QStringLiteral("/%1.so").arg(QLatin1String(stub)),
         path(QStringLiteral("%1/%2.so").arg(QLatin1String(folder), QLatin1String(name))));
}

void Sandbox::addRequired() const
{
    add("stub_entry_settings_io", "kv_mvc_settings_io");
    add("stub_entry_encoder", "kv_mvcenc");
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
        if (at->isEmpty())
            variables.remove(at.key());
        else
            variables.insert(at.key(), at.value());
    }

    QProcess process;
    process.setProcessEnvironment(variables);
    process.setWorkingDirectory(m_directory.path());
    process.start(path(QStringLiteral("host/module_host")), QStringList(m_module) + steps);
    if (!process.waitForFinished(30000)) {
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
    for (const QString& line : lines)
        if (line.startsWith(start) || line == QLatin1String(beginning))
            found += line.mid(start.size());
    return found;
}
