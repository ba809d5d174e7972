// Every rule speaks beyond its limit and is silent at it; the rule list is what the documents say.

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include "cases.h"
#include "rules.h"

namespace
{

QList<const kv::encoder::RuleInfo*> allRules()
{
    QList<const kv::encoder::RuleInfo*> list;
    for (const kv::encoder::RuleGroup& group : kv::encoder::ruleGroups()) {
        for (const kv::encoder::RuleInfo* rule : group.rules) {
            list.append(rule);
        }
    }
    return list;
}

QList<const char*> formatsOf(const kv::encoder::RuleInfo& rule)
{
    QList<const char*> formats = {rule.format};
    if (rule.viewFormat) {
        formats.append(rule.viewFormat);
    }
    return formats;
}

QList<RuleCase> allCases()
{
    QList<RuleCase> list;
    for (const auto rows : {pictureCases(), profileCases(), viewCases(), gopCases(), rateCases(),
                            discCases(), levelCases(), headroomCases()}) {
        for (const RuleCase& row : rows) {
            list.append(row);
        }
    }
    return list;
}

/// Whether the record is as the check left it, except for what the other rules have to say.
void compareFields(const KvMvcSettings& before, const FieldCase& row, bool corrected)
{
    KvMvcSettings record = before;
    const Outcome outcome = encoder::check(record);
    const QString rule = QString::fromLatin1(row.rule);
    // A message that names the view is said of each of the two.
    const int wanted = !corrected ? 0 : row.setting->isOfEachView() ? 2 : 1;
    QVERIFY2(outcome.rules.count(rule) == wanted, outcome.all().constData());
    for (const int view : {0, 1}) {
        QCOMPARE(ledger::get(record, *row.setting, view), double(row.after));
    }
    KvMvcSettings again = record;
    QVERIFY2(!encoder::check(again).said(rule), "said again of the corrected record");
}

QByteArray outputOf(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(KV_RULES_DOC), arguments);
    QByteArray output = process.waitForFinished() ? process.readAllStandardOutput() : QByteArray();
#ifdef Q_OS_WIN
    output.replace("\r\n", "\n");
#endif
    return output;
}

} // namespace

class TestEncoderRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void speaksBeyondItsLimitOnly_data();
    void speaksBeyondItsLimitOnly();
    void takesFieldsIntoTheirRange_data();
    void takesFieldsIntoTheirRange();
    void takesFrameRatesThatCanBeCoded_data();
    void takesFrameRatesThatCanBeCoded();
    void countsViews_data();
    void countsViews();
    void splitsOnOrOff();
    void bothViewsGetOneMessageOfAGeneralField();
    void tenBitsLowerTheQuantizers();
    void everyRuleIsShownOnBothSides();
    void messagesNameTheView();
    void namesAndFormatsAreUnique();
    void messagesAreShortSentences();
    void documentIsTheRuleList();
    void formatsAreListedOneALine();
};

void TestEncoderRules::speaksBeyondItsLimitOnly_data()
{
    QTest::addColumn<int>("row");
    const QList<RuleCase> cases = allCases();
    for (int i = 0; i < cases.size(); ++i) {
        QTest::addRow("%s: %s%s", cases[i].rule, cases[i].name, cases[i].said ? "" : " (silent)")
            << i;
    }
}

void TestEncoderRules::speaksBeyondItsLimitOnly()
{
    QFETCH(const int, row);
    const RuleCase test = allCases()[row];
    KvMvcSettings record = encoder::preset(test.preset);
    test.change(record);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.said(QString::fromLatin1(test.rule)) == test.said, outcome.all().constData());
    QCOMPARE(outcome.accepted(), outcome.errors().isEmpty());
}

void TestEncoderRules::takesFieldsIntoTheirRange_data()
{
    QTest::addColumn<int>("row");
    const QList<FieldCase>& cases = fieldCases();
    for (int i = 0; i < int(cases.size()); ++i) {
        QTest::addRow("%s: %s %d", cases[i].rule.constData(), cases[i].setting->member,
                      cases[i].before)
            << i;
    }
}

void TestEncoderRules::takesFieldsIntoTheirRange()
{
    QFETCH(const int, row);
    const FieldCase& test = fieldCases().at(row);
    KvMvcSettings record = encoder::preset(2);
    for (const int view : {0, 1}) {
        ledger::put(record, *test.setting, view, test.before);
    }
    compareFields(record, test, test.before != test.after);
}

void TestEncoderRules::takesFrameRatesThatCanBeCoded_data()
{
    QTest::addColumn<double>("before");
    QTest::addColumn<double>("after");
    QTest::newRow("not set") << 0.0 << 0.0;
    QTest::newRow("least") << 1.2e-10 << 1.2e-10;
    QTest::newRow("too slow for 32-bit numbers") << 1.1e-10 << 0.0;
    QTest::newRow("denormal") << 5e-324 << 0.0;
    QTest::newRow("negative") << -25.0 << 0.0;
    QTest::newRow("infinite") << qInf() << 0.0;
    QTest::newRow("not a number") << qQNaN() << 0.0;
    QTest::newRow("a multitude is judged, not corrected") << 1e300 << 1e300;
}

void TestEncoderRules::takesFrameRatesThatCanBeCoded()
{
    QFETCH(const double, before);
    QFETCH(const double, after);
    KvMvcSettings record = encoder::preset(2);
    encoder::setFrameRate(record, before);
    const Outcome outcome = encoder::check(record);
    QCOMPARE(outcome.rules.count(QStringLiteral("field.frame-rate")), before == after ? 0 : 1);
    for (const KvMvcViewSettings& view : record.views) {
        const double now = view.frame_rate;
        QVERIFY(now == after);
    }
}

void TestEncoderRules::countsViews_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("lowest") << INT32_MIN << 1;
    QTest::newRow("0") << 0 << 1;
    QTest::newRow("1") << 1 << 1;
    QTest::newRow("4") << 4 << 4;
    QTest::newRow("5") << 5 << 4;
    QTest::newRow("highest") << INT32_MAX << 4;
}

void TestEncoderRules::countsViews()
{
    QFETCH(const int, before);
    QFETCH(const int, after);
    KvMvcSettings record = encoder::preset(1);
    record.num_views = before;
    const Outcome outcome = encoder::check(record);
    QCOMPARE(record.num_views, after);
    QCOMPARE(outcome.said(QStringLiteral("field.views")), before != after);
}

void TestEncoderRules::splitsOnOrOff()
{
    for (const int value : {0, 1, 2, -1}) {
        KvMvcSettings record = encoder::preset(1);
        record.split_views = value;
        const Outcome outcome = encoder::check(record);
        QCOMPARE(record.split_views, value == 0 ? 0 : 1);
        QCOMPARE(outcome.said(QStringLiteral("switch.split")), value < 0 || value > 1);
    }
}

void TestEncoderRules::bothViewsGetOneMessageOfAGeneralField()
{
    // The dialog writes a general setting into every view.
    KvMvcSettings record = encoder::preset(2);
    encoder::setBoth(record, &V::i_interval, 301);
    const Outcome outcome = encoder::check(record);
    QCOMPARE(outcome.warnings(),
             QByteArrayList{"The I-frame interval was 301; it is now 300 (0 to 300)."});
    QCOMPARE(record.views[1].i_interval, 300);
}

void TestEncoderRules::tenBitsLowerTheQuantizers()
{
    KvMvcSettings record = encoder::preset(0);
    record.views[0].profile = KV_MVC_PROFILE_HIGH_10;
    record.views[0].bit_depth_luma = 10;
    record.views[0].quant_min = -12;
    QVERIFY(encoder::check(record).accepted());
    QCOMPARE(record.views[0].quant_min, -12);
    record.views[0].quant_min = -13;
    QCOMPARE(
        encoder::check(record).warnings(),
        QByteArrayList{"Base view: The minimum quantizer was -13; it is now -12 (-12 to 51)."});
    record.views[0].bit_depth_luma = 8;
    QCOMPARE(encoder::check(record).warnings(),
             QByteArrayList{"Base view: The minimum quantizer was -12; it is now 0 (0 to 51)."});
}

void TestEncoderRules::everyRuleIsShownOnBothSides()
{
    QSet<QString> speaking = {QStringLiteral("field.frame-rate"), QStringLiteral("field.views"),
                              QStringLiteral("switch.split")};
    QSet<QString> silent = speaking;
    for (const RuleCase& row : allCases()) {
        (row.said ? speaking : silent).insert(QString::fromLatin1(row.rule));
    }
    for (const FieldCase& row : fieldCases()) {
        (row.before != row.after ? speaking : silent).insert(QString::fromLatin1(row.rule));
    }
    QStringList missing;
    for (const kv::encoder::RuleInfo* rule : allRules()) {
        const QString id = QString::fromLatin1(rule->id);
        if (!speaking.remove(id) || !silent.remove(id)) {
            missing.append(id);
        }
    }
    QCOMPARE(missing, QStringList());
    QCOMPARE(speaking, QSet<QString>()); // a row about a rule that does not exist
}

void TestEncoderRules::messagesNameTheView()
{
    // Both formats of a rule are one sentence; the dialog calls the views by these names.
    for (const kv::encoder::RuleInfo* rule : allRules()) {
        const QByteArray format = rule->format;
        QVERIFY2(!format.startsWith("View %d"), format.constData());
        if (!rule->viewFormat) {
            QVERIFY2(!format.startsWith("Base view:"), format.constData());
            continue;
        }
        QByteArray sentence = format;
        if (sentence.startsWith("Base view: ")) {
            sentence.remove(0, 11);
        }
        QCOMPARE(QByteArray(rule->viewFormat), "View %d: " + sentence);
    }
}

void TestEncoderRules::namesAndFormatsAreUnique()
{
    QSet<QByteArray> names;
    QSet<QByteArray> formats;
    for (const kv::encoder::RuleInfo* rule : allRules()) {
        QVERIFY2(!names.contains(rule->id), rule->id);
        names.insert(rule->id);
        for (const char* const format : formatsOf(*rule)) {
            QVERIFY2(!formats.contains(format), format);
            formats.insert(format);
        }
    }
}

void TestEncoderRules::messagesAreShortSentences()
{
    static const QRegularExpression sentence(QStringLiteral("^[A-Z0-9%][^\\n|]*\\.$"));
    for (const kv::encoder::RuleInfo* rule : allRules()) {
        for (const char* const format : formatsOf(*rule)) {
            const QString text = QString::fromLatin1(format);
            QVERIFY2(sentence.match(text).hasMatch(), format);
            QVERIFY2(text.size() <= 120, format);
        }
        QVERIFY2(*rule->basis != '\0', rule->id);
    }
}

void TestEncoderRules::documentIsTheRuleList()
{
    QFile committed(QStringLiteral(KV_RULES_FILE));
    QVERIFY2(committed.open(QIODevice::ReadOnly), qPrintable(committed.errorString()));
    const QByteArray text = committed.readAll();
    const QByteArray written = outputOf({});
    QVERIFY(!written.isEmpty());
    QVERIFY2(text == written, "docs/check-rules.md is not what kv_check_rules_doc writes: "
                              "./dev docs mends it");
}

void TestEncoderRules::formatsAreListedOneALine()
{
    QByteArrayList wanted;
    for (const kv::encoder::RuleInfo* rule : allRules()) {
        for (const char* const format : formatsOf(*rule)) {
            wanted.append(format);
        }
    }
    QCOMPARE(outputOf({QStringLiteral("--formats")}), wanted.join('\n') + '\n');
}

QTEST_GUILESS_MAIN(TestEncoderRules)
#include "tst_encoder_rules.moc"
