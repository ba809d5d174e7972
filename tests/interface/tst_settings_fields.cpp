// The field table has every member of the settings record, once, and contradicts itself nowhere.

#include "field_rows.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <kv_config_gui_mvc/settings_record.h>

#include <algorithm>
#include <string_view>

class TestSettingsFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void membersHaveOneRow_data();
    void membersHaveOneRow();
    void rowsAndReservedBytesFillTheStructure_data() { membersHaveOneRow_data(); }
    void rowsAndReservedBytesFillTheStructure();
    void placesAreTakenOnce();
    void rulesHaveNamesOfTheirOwn();
    void valuesAreToldApart();
};

namespace
{

struct Span {
    std::size_t offset;
    std::size_t size;
};

/// What the header has between the braces of a structure.
QString bodyOf(const QString& structure)
{
    QFile file(QStringLiteral(KV_RECORD_HEADER));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return {};
    }
    const QString text = QString::fromUtf8(file.readAll());
    const QRegularExpression body(
        QStringLiteral("typedef struct %1 \\{(.*?)\\} %1;").arg(structure),
        QRegularExpression::DotMatchesEverythingOption);
    return body.match(text).captured(1);
}

/// What the pattern's group has at each place.
QStringList matches(const QString& text, const char* pattern)
{
    QStringList found;
    const QRegularExpression expression(QString::fromLatin1(pattern));
    for (auto match = expression.globalMatch(text); match.hasNext();) {
        found += match.next().captured(1);
    }
    return found;
}

QVector<FieldRow> rowsOf(const QString& structure)
{
    QVector<FieldRow> rows;
    for (const FieldRow* row = fieldRows(); row->structure; ++row) {
        if (structure == QLatin1String(row->structure)) {
            rows += *row;
        }
    }
    return rows;
}

/// Those that are there more than once.
QStringList repeated(QStringList texts)
{
    texts.sort();
    QStringList found;
    for (int i = 1; i < texts.size(); ++i) {
        if (texts[i] == texts[i - 1]) {
            found += texts[i];
        }
    }
    return found;
}

} // namespace

void TestSettingsFields::membersHaveOneRow_data()
{
    QTest::addColumn<std::size_t>("bytes");
    QTest::newRow("KvMvcSettings") << std::size_t{256};
    QTest::newRow("KvMvcViewSettings") << std::size_t{8316};
}

void TestSettingsFields::membersHaveOneRow()
{
    const QString structure = QString::fromLatin1(QTest::currentDataTag());
    QStringList named = matches(bodyOf(structure), "\\b(?:int32_t|double) (\\w+);");
    QStringList listed;
    for (const FieldRow& row : rowsOf(structure)) {
        listed += QString::fromLatin1(row.member);
    }
    named.sort();
    listed.sort();
    QVERIFY(!named.isEmpty());
    QCOMPARE(listed, named);
}

void TestSettingsFields::rowsAndReservedBytesFillTheStructure()
{
    QFETCH(const std::size_t, bytes);
    const QString structure = QString::fromLatin1(QTest::currentDataTag());
    QVector<Span> spans;
    for (const FieldRow& row : rowsOf(structure)) {
        spans += {row.offset, row.size};
    }
    // Their names have their offsets.
    const QString body = bodyOf(structure);
    const QStringList offsets = matches(body, "uint8_t reserved_(\\d+)\\[");
    const QStringList sizes = matches(body, "uint8_t reserved_\\d+\\[(\\d+)\\]");
    for (int i = 0; i < offsets.size(); ++i) {
        spans += {offsets[i].toULong(), sizes[i].toULong()};
    }
    std::sort(spans.begin(), spans.end(),
              [](const Span& a, const Span& b) { return a.offset < b.offset; });
    std::size_t end = 0;
    for (const Span& span : std::as_const(spans)) {
        QCOMPARE(span.offset, end);
        end += span.size;
    }
    QCOMPARE(end, bytes);
}

void TestSettingsFields::placesAreTakenOnce()
{
    QStringList shown;
    QStringList said;
    for (const FieldRow* row = fieldRows(); row->structure; ++row) {
        shown += QString::number(row->shown);
        QCOMPARE(row->said == 0, *row->rule == '\0');
        if (row->said != 0) {
            // Amounts in all their forms are one table of the encoder.
            const QString kind = QString::fromLatin1(row->kind);
            const bool amount =
                kind == QLatin1String("Buffer") || kind == QLatin1String("Fullness");
            const QString each = row->shared == std::string_view("RateControl")
                                     ? QStringLiteral(" of each view")
                                     : QString();
            said += QString::fromLatin1(row->structure) + each + QLatin1Char(' ') +
                    (amount ? QStringLiteral("Amount") : kind) + QLatin1Char(' ') +
                    QString::number(row->said);
        }
    }
    QCOMPARE(repeated(shown), QStringList());
    QCOMPARE(repeated(said), QStringList());
}

void TestSettingsFields::rulesHaveNamesOfTheirOwn()
{
    QStringList rules;
    for (const FieldRow* row = fieldRows(); row->structure; ++row) {
        if (*row->rule) {
            rules += QString::fromLatin1(row->rule);
        }
    }
    QVERIFY(!rules.isEmpty());
    QCOMPARE(repeated(rules), QStringList());
}

void TestSettingsFields::valuesAreToldApart()
{
    QString list;
    QStringList codes;
    QStringList keys;
    QStringList texts;
    for (const ValueRow* row = valueRows(); row->list; ++row) {
        if (*row->list) {
            list = QString::fromLatin1(row->list) + QLatin1Char(' ');
            continue;
        }
        codes += list + QString::number(row->code);
        texts += list + QString::fromLatin1(row->text);
        if (*row->key) {
            keys += list + QString::fromLatin1(row->key);
        }
    }
    QVERIFY(!keys.isEmpty());
    QCOMPARE(repeated(codes), QStringList());
    QCOMPARE(repeated(keys), QStringList());
    QCOMPARE(repeated(texts), QStringList());
}

QTEST_APPLESS_MAIN(TestSettingsFields)
#include "tst_settings_fields.moc"
