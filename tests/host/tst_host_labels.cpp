// Settings are called what the dialog calls them; the pages' tests hold the dialog to the same
// names.

#include "HostProgram.h"
#include "SettingsLedger.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

class TestHostLabels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreTheDialogs_data();
    void namesAreTheDialogs();
    void everySettingIsNamed();

private:
    /// @return The name of each setting, by its key.
    static QHash<QString, QString> namesOfSettings();
};

QHash<QString, QString> TestHostLabels::namesOfSettings()
{
    KvMvcSettings other = {};
    for (const ledger::Setting& setting : ledger::settings()) {
        ledger::put(other, setting, 0, 1);
    }
    const HostProgram program;
    program.writeSettings(QStringLiteral("a.ini"), {});
    program.writeSettings(QStringLiteral("b.ini"), other);
    const HostProgram::Result result =
        program.run({QStringLiteral("diff"), QStringLiteral("--json"), QStringLiteral("a.ini"),
                     QStringLiteral("b.ini")});
    QHash<QString, QString> names;
    const QJsonObject object = QJsonDocument::fromJson(result.output.toUtf8()).object();
    for (const QJsonValue& difference : object[QStringLiteral("differences")].toArray()) {
        names[difference.toObject()[QStringLiteral("setting")].toString()] =
            difference.toObject()[QStringLiteral("name")].toString();
    }
    return names;
}

void TestHostLabels::namesAreTheDialogs_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("dialogs");
    const QHash<QString, QString> names = namesOfSettings();
    for (const ledger::Setting& setting : ledger::settings()) {
        QTest::newRow(setting.member)
            << names[QString::fromLatin1(setting.member)] << setting.name();
    }
}

void TestHostLabels::namesAreTheDialogs()
{
    QFETCH(QString, name);
    QFETCH(QString, dialogs);
    QCOMPARE(name, dialogs);
}

void TestHostLabels::everySettingIsNamed()
{
    QStringList members;
    for (const ledger::Setting& setting : ledger::settings()) {
        members += QString::fromLatin1(setting.member);
    }
    QStringList named = namesOfSettings().keys();
    members.sort();
    named.sort();
    QCOMPARE(named, members);
}

QTEST_GUILESS_MAIN(TestHostLabels)
#include "tst_host_labels.moc"
