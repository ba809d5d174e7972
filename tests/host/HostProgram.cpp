#include "HostProgram.h"

#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QProcess>

namespace
{

#ifdef Q_OS_WIN
const QString programName = QStringLiteral("kv-mvc-settings.exe");
const QString librarySuffix = QStringLiteral(".dll");
#else
const QString programName = QStringLiteral("kv-mvc-settings");
const QString librarySuffix = QStringLiteral(".so");
#endif

QString builtFile(const QString& name)
{
    return QDir(qEnvironmentVariable("KV_BIN_DIR")).filePath(name);
}

void copy(const QString& from, const QString& to)
{
    if (!QFile::copy(from, to)) {
        qFatal("cannot copy %s to %s", qPrintable(from), qPrintable(to));
    }
}

/// What the program wrote, with the line ends of Unix.
QString textOf(QByteArray written)
{
#ifdef Q_OS_WIN
    written.replace("\r\n", "\n");
#endif
    return QString::fromUtf8(written);
}

} // namespace

HostProgram::HostProgram()
{
    const QDir directory(m_directory.path());
    if (!directory.mkdir(QStringLiteral("bin")) || !directory.mkdir(QStringLiteral("files"))) {
        qFatal("no temporary directory");
    }
    copy(builtFile(programName), program());
    addBuiltLibrary(QStringLiteral("kv_mvc_settings_window"));
    const QString settingsIo = QStringLiteral("kv_mvc_settings_io");
    addBuiltLibrary(settingsIo);

    const auto getApi = reinterpret_cast<KvMvcSettingsIoGetApi>(
        QLibrary::resolve(builtFile(settingsIo + librarySuffix), KV_MVC_SETTINGS_IO_GET_API));
    if (getApi == nullptr) {
        qFatal("no settings file library");
    }
    m_read = reinterpret_cast<KvMvcReadSettings>(getApi(KV_MVC_SETTINGS_IO_READER));
    m_write = reinterpret_cast<KvMvcWriteSettings>(getApi(KV_MVC_SETTINGS_IO_WRITER));
}

QString HostProgram::libraryPath(const QString& baseName) const
{
    return m_directory.filePath(QStringLiteral("bin/") + baseName + librarySuffix);
}

void HostProgram::addLibrary(const QString& path, const QString& baseName)
{
    copy(path, libraryPath(baseName));
}

void HostProgram::addBuiltLibrary(const QString& baseName)
{
    addLibrary(builtFile(baseName + librarySuffix), baseName);
}

void HostProgram::addTexts()
{
    addBuiltLibrary(QStringLiteral("mvc_gui_texts"));
    for (const char* const file : {"gui_mvc_de.qm", "gui_mvc_jp.qm"}) {
        const QString name = QString::fromLatin1(file);
        copy(builtFile(name), m_directory.filePath(QStringLiteral("bin/") + name));
    }
}

bool HostProgram::addMediaProbe()
{
    const QString library = QStringLiteral("kv_media_probe");
    const QString worker = QStringLiteral("kv_media_probe_worker");
    if (!QFile::exists(builtFile(library + librarySuffix))) {
        return false;
    }
    addBuiltLibrary(library);
    copy(builtFile(worker), m_directory.filePath(QStringLiteral("bin/") + worker));
    return true;
}

void HostProgram::addStub(const QString& stub, const QString& baseName)
{
    addLibrary(stubPath(stub), baseName);
}

QString HostProgram::stubPath(const QString& stub)
{
    return qEnvironmentVariable("KV_HOST_STUBS") + QLatin1Char('/') + stub + librarySuffix;
}

void HostProgram::removeLibrary(const QString& baseName)
{
    QFile::remove(libraryPath(baseName));
}

HostProgram::Result HostProgram::run(const QStringList& arguments,
                                     const QMap<QString, QString>& environment,
                                     const QByteArray& input) const
{
    return start(program(), arguments, environment, input);
}

HostProgram::Result HostProgram::runScript(const QString& script) const
{
    return start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), script},
                 {{QStringLiteral("program"), program()}}, {});
}

HostProgram::Result HostProgram::start(const QString& command, const QStringList& arguments,
                                       const QMap<QString, QString>& environment,
                                       const QByteArray& input) const
{
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    // Without it the toolkit says so on standard error.
    variables.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_directory.path());
    for (auto variable = environment.begin(); variable != environment.end(); ++variable) {
        variables.insert(variable.key(), variable.value());
    }
    process.setProcessEnvironment(variables);
    process.setWorkingDirectory(path(QString()));
    process.start(command, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) {
        return {-1, textOf(process.readAllStandardOutput()),
                process.errorString() + QLatin1Char('\n') + textOf(process.readAllStandardError())};
    }
    return {process.exitCode(), textOf(process.readAllStandardOutput()),
            textOf(process.readAllStandardError())};
}

QString HostProgram::program() const
{
    return m_directory.filePath(QStringLiteral("bin/") + programName);
}

QString HostProgram::path(const QString& name) const
{
    return m_directory.filePath(QStringLiteral("files/") + name);
}

QByteArray HostProgram::content(const QString& name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void HostProgram::setContent(const QString& name, const QByteArray& content) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
}

QStringList HostProgram::fileNames() const
{
    return QDir(path(QString())).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

void HostProgram::writeSettings(const QString& name, const KvMvcSettings& settings) const
{
    KvMvcSettings copy = settings;
    if (m_write(&copy, path(name).toUtf8().constData()) != 0) {
        qFatal("cannot write %s", qPrintable(name));
    }
}

KvMvcSettings HostProgram::readSettings(const QString& name) const
{
    KvMvcSettings settings = {};
    if (m_read(&settings, path(name).toUtf8().constData()) != 0) {
        qFatal("cannot read %s", qPrintable(name));
    }
    return settings;
}
