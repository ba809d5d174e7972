// The translation files hold every text of the sources, and nothing else; no translation loses what
// its text is filled with; and all keep to the rules of their language's typography.

#include "Language.h"
#include "ToolkitWarnings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

namespace
{

struct Message {
    QString context;
    QString source;
    QString translation;
    /// "unfinished", "vanished", "obsolete", or empty.
    QString state;
};

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QVector<Message> messagesOf(const QByteArray& catalogue)
{
    QVector<Message> messages;
    QXmlStreamReader reader(catalogue);
    QString context;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == QLatin1String("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QLatin1String("message")) {
            messages.append({context, {}, {}, {}});
        } else if (reader.name() == QLatin1String("source")) {
            messages.last().source = reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            messages.last().state = reader.attributes().value(QLatin1String("type")).toString();
            messages.last().translation = reader.readElementText();
        }
    }
    return messages;
}

QStringList placesIn(const QString& text)
{
    static const QRegularExpression place(QStringLiteral("%\\d"));
    QStringList places;
    for (auto match = place.globalMatch(text); match.hasNext();) {
        places += match.next().captured();
    }
    places.sort();
    return places;
}

/// The file patterns of a filter, by which the toolkit chooses files.
QStringList patternsIn(const QString& text)
{
    static const QRegularExpression group(QStringLiteral("\\(\\*[^)]*\\)"));
    QStringList patterns;
    for (auto match = group.globalMatch(text); match.hasNext();) {
        patterns += match.next().captured();
    }
    return patterns;
}

} // namespace

class TestCatalogues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void everyTranslationIsTested();
    void holdsEveryText_data() { rows(); }
    void holdsEveryText();
    void isFinished_data() { rows(); }
    void isFinished();
    void keepsPlacesAndPatterns_data() { rows(); }
    void keepsPlacesAndPatterns();
    void givesATextOneTranslation_data() { rows(); }
    void givesATextOneTranslation();
    void endsSentencesAlike_data() { rows(); }
    void endsSentencesAlike();
    void keepsToTypography_data();
    void keepsToTypography();

private:
    static void rows() { Language::addRows(Language::translations()); }
    static QString pathOf(const QString& language);
};

QString TestCatalogues::pathOf(const QString& language)
{
    return QStringLiteral(KV_TRANSLATIONS "/gui_mvc_%1.ts").arg(language);
}

void TestCatalogues::everyTranslationIsTested()
{
    QStringList files;
    for (const QString& code : Language::translations()) {
        files += QFileInfo(pathOf(code)).fileName();
    }
    const QDir folder(QStringLiteral(KV_TRANSLATIONS));
    const QStringList found = folder.entryList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name);
    QCOMPARE(found.join(QLatin1Char(' ')), files.join(QLatin1Char(' ')));
}

void TestCatalogues::holdsEveryText()
{
    QFETCH(QString, language);

    QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("copy.ts"));
    QVERIFY(QFile::copy(pathOf(language), copy));
    QProcess lupdate;
    lupdate.start(QStringLiteral(KV_LUPDATE),
                  {QStringLiteral("-locations"), QStringLiteral("none"),
                   QStringLiteral("-no-obsolete"), QStringLiteral("-silent"),
                   QStringLiteral("@" KV_TEXTS_LIST), QStringLiteral("-ts"), copy});
    QVERIFY(lupdate.waitForFinished());
    QCOMPARE(lupdate.exitCode(), 0);

    const auto sources = [](const QByteArray& catalogue) {
        QStringList texts;
        for (const Message& message : messagesOf(catalogue)) {
            texts += message.context + QLatin1String(": ") + message.source;
        }
        texts.sort();
        return texts;
    };
    const QStringList held = sources(contentOf(pathOf(language)));
    QVERIFY(held.size() > 600);
    QCOMPARE(held, sources(contentOf(copy)));
}

void TestCatalogues::isFinished()
{
    QFETCH(QString, language);

    QStringList unfinished;
    for (const Message& message : messagesOf(contentOf(pathOf(language)))) {
        if (!message.state.isEmpty() || message.translation.isEmpty()) {
            unfinished += message.context + QLatin1String(": ") + message.source;
        }
    }
    QCOMPARE(unfinished, QStringList());
}

void TestCatalogues::keepsPlacesAndPatterns()
{
    QFETCH(QString, language);

    int withPlaces = 0;
    int withPatterns = 0;
    for (const Message& message : messagesOf(contentOf(pathOf(language)))) {
        QCOMPARE(placesIn(message.translation), placesIn(message.source));
        QCOMPARE(patternsIn(message.translation), patternsIn(message.source));
        withPlaces += !placesIn(message.source).isEmpty();
        withPatterns += !patternsIn(message.source).isEmpty();
    }
    QVERIFY(withPlaces > 0);
    QVERIFY(withPatterns > 0);
}

void TestCatalogues::givesATextOneTranslation()
{
    QFETCH(QString, language);

    QMap<QString, QStringList> translations;
    for (const Message& message : messagesOf(contentOf(pathOf(language)))) {
        translations[message.source] += message.translation;
    }
    int repeated = 0;
    QStringList faults;
    for (auto row = translations.begin(); row != translations.end(); ++row) {
        repeated += row.value().size() > 1;
        row.value().removeDuplicates();
        if (row.value().size() > 1) {
            faults += row.key() + QLatin1String(": ") + row.value().join(QLatin1String(" / "));
        }
    }
    QVERIFY(repeated > 50);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestCatalogues::endsSentencesAlike()
{
    QFETCH(QString, language);

    // Part of a label around a number, worded anew in each language.
    const QString labelPart = QStringLiteral("I-frame as IDR.");
    const QChar stop = language == QLatin1String("jp") ? QChar(0x3002) : QLatin1Char('.');
    int sentences = 0;
    QStringList faults;
    for (const Message& message : messagesOf(contentOf(pathOf(language)))) {
        if (message.source == labelPart || message.source.endsWith(QLatin1String("..."))) {
            continue;
        }
        const bool sentence = message.source.endsWith(QLatin1Char('.'));
        sentences += sentence;
        if (message.translation.endsWith(stop) != sentence) {
            faults += message.context + QLatin1String(": ") + message.translation;
        }
    }
    QVERIFY(sentences > 100);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestCatalogues::keepsToTypography_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char* language, const char* name, const char* fault) {
        QTest::addRow("%s, %s", language, name)
            << QString::fromLatin1(language) << QString::fromUtf8(fault);
    };
    row("de", "straight quotation marks", "[\"']");
    row("de", "three full stops for an ellipsis", "\\.\\.\\.");
    row("de", "ellipsis without a blank", "[^ ]\u2026");
    row("de", "hyphen for a dash", " - ");
    row("de", "two blanks", "  ");
    row("de", "unit that is no noun", "\\b(bit|byte|bits|bytes)\\b");
    row("jp", "straight quotation marks", "[\"']");
    row("jp", "half-width question or exclamation mark", "[?!]");
    row("jp", "half-width kana", "[\uFF61-\uFF9F]");
    row("jp", "hyphen for a dash", " - ");
    row("jp", "two blanks", "  ");
    row("jp", "kanji word beside the loan word", "縦横比");
}

void TestCatalogues::keepsToTypography()
{
    QFETCH(QString, language);
    QFETCH(QString, fault);

    const QRegularExpression pattern(fault, QRegularExpression::UseUnicodePropertiesOption);
    QVERIFY2(pattern.isValid(), qPrintable(pattern.errorString()));
    QStringList faults;
    for (const Message& message : messagesOf(contentOf(pathOf(language)))) {
        if (message.translation.contains(pattern)) {
            faults += message.context + QLatin1String(": ") + message.translation;
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

QTEST_GUILESS_MAIN(TestCatalogues)
#include "tst_catalogues.moc"
