// The files of translations: their rows, and how they write what many messages have in common.

#include "EncoderMessages.h"
#include "ToolkitWarnings.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>

#include "languages.h"

namespace
{

/// How a language writes what many messages have in common.
struct Habits {
    int language;
    const char* name;
    const char* decimals; ///< of the English "%d.%0*d"
    const char* baseView;
    const char* otherView;
    const char* catalogue; ///< the dialog's texts in this language
    const char* quotation; ///< expression of a name of the dialog in quotation marks
    /// What the dialog says in a group's title and a label, or on both sides of a control.
    QStringList namesInParts;
};

const Habits habits[] = {
    {7,
     "German",
     "%d,%0*d",
     "Basisansicht: ",
     "Ansicht %d: ",
     "gui_mvc_de.ts",
     "„([^“]+)“",
     {QStringLiteral("Ein IDR-Bild je … I-Bilder"),
      QStringLiteral("Adaptive Quantisierung nach Helligkeit"),
      QStringLiteral("Adaptive Quantisierung nach Kontrast"),
      QStringLiteral("Adaptive Quantisierung nach Komplexität")}},
    {17,
     "Japanese",
     "%d.%0*d",
     "ベースビュー: ",
     "ビュー %d: ",
     "gui_mvc_jp.ts",
     "「([^」]+)」",
     {}},
};

/// The rows of a language's file; none where it has no file.
std::span<const kv::texts::Text> textsOf(int code)
{
    for (const kv::texts::Language& language : kv::texts::languages()) {
        if (language.code == code) {
            return language.texts;
        }
    }
    return {};
}

/// A row for each language that has a file.
void addLanguageRows()
{
    QTest::addColumn<const Habits*>("habit");
    for (const Habits& habit : habits) {
        QTest::newRow(habit.name) << &habit;
    }
}

} // namespace

Q_DECLARE_METATYPE(const Habits*)

class TestTextRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void everyLanguageIsTested();
    void rowsFollowTheRules_data() { addLanguageRows(); }
    void rowsFollowTheRules();
    void decimalsHaveASignOfTheLanguage_data() { addLanguageRows(); }
    void decimalsHaveASignOfTheLanguage();
    void viewsAreNamedInEachLanguage_data() { addLanguageRows(); }
    void viewsAreNamedInEachLanguage();
    void quotedNamesAreTheDialogs_data();
    void quotedNamesAreTheDialogs();
};

void TestTextRows::everyLanguageIsTested()
{
    QList<int> tested;
    QStringList catalogues;
    for (const Habits& habit : habits) {
        tested += habit.language;
        catalogues += QString::fromUtf8(habit.catalogue);
    }
    QList<int> translated;
    for (const kv::texts::Language& language : kv::texts::languages()) {
        translated += language.code;
    }
    QCOMPARE(translated, tested);
    const QDir folder(QStringLiteral(KV_TRANSLATIONS));
    const QStringList found = folder.entryList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name);
    QCOMPARE(found.join(QLatin1Char(' ')), catalogues.join(QLatin1Char(' ')));
}

void TestTextRows::rowsFollowTheRules()
{
    QFETCH(const Habits*, habit);
    QStringList rules;
    for (const Message& message : encoderMessages()) {
        rules += QString::fromUtf8(message.rule + ": " + message.format);
    }
    QStringList rows;
    for (const kv::texts::Text& text : textsOf(habit->language)) {
        rows += QString::fromUtf8(QByteArray(text.rule) + ": " + text.format);
    }
    // First the part that both have, as that names the row where they part.
    const auto common = std::min(rows.size(), rules.size());
    QCOMPARE(rows.mid(0, common), rules.mid(0, common));
    QCOMPARE(rows.size(), rules.size());
}

void TestTextRows::decimalsHaveASignOfTheLanguage()
{
    QFETCH(const Habits*, habit);
    int seen = 0;
    for (const kv::texts::Text& text : textsOf(habit->language)) {
        const int decimals = QByteArray(text.format).count("%d.%0*d");
        // The second count is of any sign.
        QVERIFY2(QByteArray(text.translation).count(habit->decimals) == decimals &&
                     QByteArray(text.translation).count("%0*d") == decimals,
                 text.translation);
        seen += decimals;
    }
    QVERIFY(seen > 0);
}

void TestTextRows::viewsAreNamedInEachLanguage()
{
    QFETCH(const Habits*, habit);
    int seen = 0;
    for (const kv::texts::Text& text : textsOf(habit->language)) {
        const QByteArray format(text.format);
        const QByteArray translation(text.translation);
        const bool base = format.startsWith("Base view: ");
        const bool other = format.startsWith("View %d: ");
        QVERIFY2(translation.startsWith(habit->baseView) == base, text.translation);
        QVERIFY2(translation.startsWith(habit->otherView) == other, text.translation);
        seen += base + other;
    }
    QVERIFY(seen > 0);
}

void TestTextRows::quotedNamesAreTheDialogs_data()
{
    QTest::addColumn<QString>("catalogue");
    QTest::addColumn<QString>("element");
    QTest::addColumn<QString>("quoted");
    QTest::addColumn<QStringList>("others");
    QTest::addColumn<QStringList>("texts");
    QStringList formats;
    for (const Message& message : encoderMessages()) {
        formats += QString::fromUtf8(message.format);
    }
    QTest::newRow("English") << QStringLiteral("gui_mvc_de.ts") << QStringLiteral("source")
                             << QStringLiteral("\"([^\"]+)\"") << QStringList() << formats;
    for (const Habits& habit : habits) {
        QStringList translations;
        for (const kv::texts::Text& text : textsOf(habit.language)) {
            translations += QString::fromUtf8(text.translation);
        }
        QTest::newRow(habit.name) << QString::fromUtf8(habit.catalogue)
                                  << QStringLiteral("translation")
                                  << QString::fromUtf8(habit.quotation) << habit.namesInParts
                                  << translations;
    }
}

void TestTextRows::quotedNamesAreTheDialogs()
{
    QFETCH(QString, catalogue);
    QFETCH(QString, element);
    QFETCH(QString, quoted);
    QFETCH(QStringList, others);
    QFETCH(QStringList, texts);
    QFile file(QStringLiteral(KV_TRANSLATIONS "/") + catalogue);
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.errorString()));
    // Labels lose their unit: "Max bitrate (bps)".
    static const QRegularExpression unit(QStringLiteral(" \\([^)]*\\)$"));
    QSet<QString> names(others.cbegin(), others.cend());
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == element) {
            names +=
                xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed().remove(unit);
        }
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));

    const QRegularExpression expression(quoted);
    QStringList unknown;
    int seen = 0;
    for (const QString& text : texts) {
        for (auto match = expression.globalMatch(text); match.hasNext(); ++seen) {
            if (const QString name = match.next().captured(1); !names.contains(name)) {
                unknown += name;
            }
        }
    }
    QVERIFY(seen > 0);
    QCOMPARE(unknown.join(QStringLiteral(", ")), QString());
}

QTEST_GUILESS_MAIN(TestTextRows)
#include "tst_text_rows.moc"
