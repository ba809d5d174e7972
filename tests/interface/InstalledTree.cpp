#include "InstalledTree.h"

#include <QFile>
#include <QProcess>

RunResult run(const QString& program, const QStringList& arguments,
              const QMap<QString, QString>& variables)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto at = variables.begin(); at != variables.end(); ++at) {
        environment.insert(at.key(), at.value());
    }
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(100000)) {
        process.kill();
        process.waitForFinished();
        return {-1, {}, QStringLiteral("did not end")};
    }
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -2,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

bool InstalledTree::install()
{
    const RunResult installed =
        run(QStringLiteral(KV_CMAKE), {QStringLiteral("--install"), QStringLiteral(KV_BUILD),
                                       QStringLiteral("--prefix"), path("installed")});
    if (installed.exitCode != 0) {
        qWarning("%s", qPrintable(installed.output + installed.error));
    }
    return installed.exitCode == 0;
}

bool InstalledTree::build(const QString& project, const char* directory) const
{
    const QStringList configure = {QStringLiteral("-S"),
                                   project,
                                   QStringLiteral("-B"),
                                   path(directory),
                                   QStringLiteral("-G"),
                                   QStringLiteral(KV_GENERATOR),
                                   QStringLiteral("-DCMAKE_C_COMPILER=" KV_C_COMPILER),
                                   QStringLiteral("-DCMAKE_CXX_COMPILER=" KV_CXX_COMPILER),
                                   QStringLiteral("-DCMAKE_C_FLAGS=" KV_C_FLAGS),
                                   QStringLiteral("-DCMAKE_CXX_FLAGS=" KV_C_FLAGS),
                                   QStringLiteral("-DCMAKE_PREFIX_PATH=") + path("installed")};
    for (const QStringList& arguments :
         {configure, QStringList{QStringLiteral("--build"), path(directory)}}) {
        const RunResult result = run(QStringLiteral(KV_CMAKE), arguments);
        if (result.exitCode != 0) {
            qWarning("%s", qPrintable(result.output + result.error));
            return false;
        }
    }
    return true;
}

QMap<QString, QString> InstalledTree::playing(const QByteArray& script) const
{
    QFile file(path("script.txt"));
    if (!file.open(QIODevice::WriteOnly) || file.write(script) != script.size()) {
        qWarning("cannot write the script");
    }
    return {{QStringLiteral("XDG_RUNTIME_DIR"), m_directory.path()},
            {QStringLiteral("QT_PLUGIN_PATH"), qEnvironmentVariable("KV_PLUGINS")},
            {QStringLiteral("QT_QPA_GENERIC_PLUGINS"),
             QLatin1String("kvautopilot:") + file.fileName()}};
}

QString InstalledTree::example(const char* name) const
{
    return path("installed/" KV_DOCDIR "/examples/") + QLatin1String(name);
}

QString InstalledTree::moduleFolder() const
{
    return path("installed/" KV_MODULEDIR);
}
