// The report on how the dialog gets on, and the reasons that it and `edit` give, with the real
// module.

#include "HostProgram.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace
{

/// With the real module; the encoder is beside it unless it is taken away.
class DoctorProgram : public HostProgram
{
public:
    DoctorProgram()
    {
        addBuiltLibrary(QStringLiteral("kv_config_gui_mvc"));
        addBuiltLibrary(QStringLiteral("kv_mvcenc"));
    }

    [[nodiscard]] Result doctor(const QMap<QString, QString>& environment = {}) const
    {
        return run({QStringLiteral("doctor")}, environment);
    }
};

bool hasLine(const QString& text, const char* pattern)
{
    const QRegularExpression line(
        QRegularExpression::anchoredPattern(QString::fromLatin1(pattern)));
    return text.split(QLatin1Char('\n')).indexOf(line) >= 0;
}

} // namespace

class TestHostDoctor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialogThatOpensIsLeftAtOnce();
    void missingEncoderIsTheReason();
    void encoderWithoutACheckIsTheReason();
    void missingModuleIsTheReason();
    void noDisplayIsTheReason();
    void editSaysTheReason();
    void reportGoesToAFile();
};

void TestHostDoctor::dialogThatOpensIsLeftAtOnce()
{
    const auto result = DoctorProgram().doctor();
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
    for (const char* pattern :
         {R"(kv-mvc-settings \d+\.\d+\.\d+, libraries in .+)", R"(language of the user: \S+)",
          R"(version \d.*, Qt [56]\..*)", R"(kv_mvcenc_b: not loaded: .+)",
          R"(kv_mvcenc: loaded .*[/\\]bin[/\\]kv_mvcenc\.\w+)",
          R"(kv_mvcenc\.\w+: has mvcOutVideoChkSettings)", R"(platform plug-in offscreen: works)",
          R"(result 1001)", R"(The dialog opens\.)"}) {
        QVERIFY2(hasLine(result.output, pattern),
                 qPrintable(QLatin1String(pattern) + result.output));
    }
}

void TestHostDoctor::missingEncoderIsTheReason()
{
    DoctorProgram program;
    program.removeLibrary(QStringLiteral("kv_mvcenc"));
    const auto result = program.doctor();
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(hasLine(result.output, R"(kv_mvcenc: not loaded: \S.*)"), qPrintable(result.output));
    QVERIFY(hasLine(result.output,
                    "The dialog does not open: no encoder library with both its functions"));
}

void TestHostDoctor::encoderWithoutACheckIsTheReason()
{
    DoctorProgram program;
    program.removeLibrary(QStringLiteral("kv_mvcenc"));
    // A library, but no encoder.
    program.addStub(QStringLiteral("stub_settings_io"), QStringLiteral("kv_mvcenc"));
    const auto result = program.doctor();
    QCOMPARE(result.exitCode, 1);
    QVERIFY(hasLine(result.output, R"(kv_mvcenc\.\w+: lacks mvcOutVideoChkSettings)"));
}

void TestHostDoctor::missingModuleIsTheReason()
{
    DoctorProgram program;
    program.removeLibrary(QStringLiteral("kv_config_gui_mvc"));
    const auto result = program.doctor();
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(hasLine(result.output, "The dialog does not open: .*cannot find the library "
                                    R"(kv_config_gui_mvc\.\w+, .*)"),
             qPrintable(result.output));
}

void TestHostDoctor::noDisplayIsTheReason()
{
    const auto result =
        DoctorProgram().doctor({{QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("nosuch")}});
    QCOMPARE(result.exitCode, 1);
    QVERIFY(hasLine(result.output, "QT_QPA_PLATFORM=nosuch"));
    QVERIFY(hasLine(result.output,
                    "The dialog does not open: no platform plug-in with a display that answers"));
}

void TestHostDoctor::editSaysTheReason()
{
    const auto result = DoctorProgram().run(
        {QStringLiteral("edit")}, {{QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("nosuch")}});
    QCOMPARE(result.error,
             QStringLiteral("kv-mvc-settings: the dialog could not be opened (result 1): no "
                            "platform plug-in with a display that answers\n"));
    QCOMPARE(result.exitCode, 2);
}

void TestHostDoctor::reportGoesToAFile()
{
    const DoctorProgram program;
    const auto result =
        program.run({QStringLiteral("doctor"), QStringLiteral("-o"), QStringLiteral("report.txt")});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QString());
    QVERIFY(program.content(QStringLiteral("report.txt")).endsWith("The dialog opens.\n"));

    program.setContent(QStringLiteral("film.cfg"), "kept");
    const auto refused =
        program.run({QStringLiteral("doctor"), QStringLiteral("-o"), QStringLiteral("film.cfg")});
    QCOMPARE(refused.exitCode, 2);
    QCOMPARE(program.content(QStringLiteral("film.cfg")), QByteArray("kept"));
}

QTEST_GUILESS_MAIN(TestHostDoctor)
#include "tst_host_doctor.moc"
