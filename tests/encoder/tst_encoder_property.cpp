// What holds for every record, whatever its bytes: the check is deterministic, its corrections are
// stable, and it writes nothing but listed fields.

#include <QTest>

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <random>
#include <set>
#include <string>

#include "Encoder.h"
#include "SettingsLedger.h"

namespace
{

const QVector<ledger::Setting>& numbers()
{
    static const QVector<ledger::Setting> rows = ledger::viewNumbers();
    return rows;
}

/// Errors, corrections, notes, and the warnings that correct nothing.
enum Heard { Errors, Corrections, Notes, Risks };
std::string texts[4];

/// What the next message is about, of this check.
int kindToCome = -1;
std::string ruleToCome;

std::set<std::string> refusing;
/// Limits that are used beyond their end, and the others, by the rule that speaks of them.
std::set<std::string> exceeded;
std::set<std::string> held;

void hearAbout(const KvMvcMessageAbout* about)
{
    kindToCome = about->kind;
    ruleToCome = about->rule;
}

void hearUse(const KvMvcLimitUse* use)
{
    // A rate such as 24000/1001 is rounded.
    (use->used > use->limit * (1 + 1e-9) ? exceeded : held).insert(use->rule);
}

template <Heard heard>
int sink(const char* format, ...)
{
    const bool isRisk = heard == Corrections && kindToCome == KV_MVC_MESSAGE_RISK;
    const Heard kind = isRisk ? Risks : heard;
    if (kind == Errors) {
        refusing.insert(ruleToCome);
    }
    char text[512];
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    texts[kind].append(text).append("\n");
    return length;
}

KvMvcFunction lookUp(const char* name)
{
    const struct {
        const char* name;
        KvMvcFunction function;
    } known[] = {{"err_printf", reinterpret_cast<KvMvcFunction>(sink<Errors>)},
                 {"wrn_printf", reinterpret_cast<KvMvcFunction>(sink<Corrections>)},
                 {"inf_printf", reinterpret_cast<KvMvcFunction>(sink<Notes>)},
                 {"msg_about", reinterpret_cast<KvMvcFunction>(hearAbout)},
                 {"lim_usage", reinterpret_cast<KvMvcFunction>(hearUse)}};
    for (const auto& row : known) {
        if (std::strcmp(row.name, name) == 0) {
            return row.function;
        }
    }
    return nullptr;
}

struct Verdict {
    qint32 result;
    std::string errors, corrections, notes, risks;

    bool operator==(const Verdict&) const = default;
};

Verdict check(KvMvcSettings& record)
{
    for (std::string& text : texts) {
        text.clear();
    }
    for (std::set<std::string>* rules : {&refusing, &exceeded, &held}) {
        rules->clear();
    }
    const qint32 result = encoder::checkFunction()(lookUp, &record, 3, 0);
    return {result, texts[Errors], texts[Corrections], texts[Notes], texts[Risks]};
}

class Records
{
public:
    KvMvcSettings next(bool nearValid)
    {
        KvMvcSettings record = encoder::preset(pick(0, 3));
        if (nearValid) {
            scatterReserved(record);
            for (int edits = pick(1, 6); edits > 0; --edits) {
                edit(record);
            }
            return record;
        }
        auto* bytes = reinterpret_cast<unsigned char*>(&record);
        for (std::size_t i = 0; i + 8 <= sizeof record; i += 8) {
            const std::uint64_t word = m_random();
            std::memcpy(bytes + i, &word, 8);
        }
        record.num_views = pick(-1, 6);
        for (int v = 0; v < 2; ++v) {
            for (const ledger::Setting& field : numbers()) {
                ledger::put(record, field, v, value());
            }
            setFrameRate(record, v);
        }
        return record;
    }

private:
    int pick(int low, int high) { return std::uniform_int_distribution(low, high)(m_random); }

    int value()
    {
        static constexpr int odd[] = {INT32_MIN, INT32_MIN + 1,
                                      -65536,    -1,
                                      0,         1,
                                      2,         3,
                                      4,         7,
                                      8,         10,
                                      15,        16,
                                      41,        51,
                                      52,        62,
                                      100,       101,
                                      255,       300,
                                      1080,      1920,
                                      4096,      65535,
                                      65536,     46341,
                                      30000000,  INT32_MAX - 1,
                                      INT32_MAX};
        switch (pick(0, 3)) {
        case 0:
            return static_cast<int>(static_cast<std::uint32_t>(m_random()));
        case 1:
            return pick(-2, 12);
        case 2:
            return pick(0, 5000);
        default:
            return odd[static_cast<std::size_t>(pick(0, int{std::size(odd)} - 1))];
        }
    }

    void setFrameRate(KvMvcSettings& record, int v)
    {
        static constexpr double odd[] = {0.0,  -0.0,   -1.0, 1.0,  7.6,  24.0,   25.0,  30.0,
                                         60.0, 171.99, 172., 173., 1e-9, 1e-310, 1e300, 5e-324};
        const int choice = pick(0, 18);
        double rate = 24000.0 / 1001;
        if (choice < 16) {
            rate = odd[choice];
        } else if (choice == 16) {
            rate = qInf();
        } else if (choice == 17) {
            rate = qQNaN();
        } else {
            const std::uint64_t bits = m_random();
            std::memcpy(&rate, &bits, sizeof rate);
        }
        record.views[v].frame_rate = rate;
    }

    // An edit as the dialog makes it, or as a file brings it: one field, of both views or of one.
    void edit(KvMvcSettings& record)
    {
        const int what = pick(0, 9);
        if (what == 0) {
            record.num_views = pick(-1, 6);
        } else if (what == 1) {
            record.split_views = pick(-1, 2);
        } else if (what == 2) {
            setFrameRate(record, 0);
            if (pick(0, 1) == 0) {
                const double rate = record.views[0].frame_rate;
                record.views[1].frame_rate = rate;
            }
        } else {
            const ledger::Setting& field = numbers()[pick(0, int(numbers().size()) - 1)];
            const int now = value();
            const int which = pick(0, 3);
            for (int v = 0; v < 2; ++v) {
                if (which >= 2 || which == v) {
                    ledger::put(record, field, v, now);
                }
            }
        }
    }

    void scatterReserved(KvMvcSettings& record)
    {
        for (std::uint8_t& byte : record.reserved_8) {
            byte = static_cast<std::uint8_t>(m_random());
        }
        for (KvMvcViewSettings& view : record.views) {
            for (std::uint8_t& byte : view.reserved_260) {
                byte = static_cast<std::uint8_t>(m_random());
            }
        }
    }

    std::mt19937_64 m_random{20240229};
};

bool same(const KvMvcSettings& a, const KvMvcSettings& b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

/// Whether nothing changed but the counts and the listed fields of the views in use.
bool touchesOnlyFields(const KvMvcSettings& before, const KvMvcSettings& after, int viewsInUse)
{
    KvMvcSettings undone = after;
    auto* to = reinterpret_cast<unsigned char*>(&undone);
    const auto* from = reinterpret_cast<const unsigned char*>(&before);
    for (int v = 0; v < viewsInUse; ++v) {
        for (const ledger::Setting& field : ledger::settings()) {
            const int position = field.position(v);
            std::memcpy(to + position, from + position, std::size_t(field.width()));
        }
    }
    return same(undone, before);
}

} // namespace

class TestEncoderProperty : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsForEveryRecord_data();
    void holdsForEveryRecord();
};

void TestEncoderProperty::holdsForEveryRecord_data()
{
    QTest::addColumn<bool>("nearValid");
    QTest::addColumn<int>("count");
    QTest::newRow("random") << false << 100000;
    QTest::newRow("a few edits away from a preset") << true << 100000;
}

void TestEncoderProperty::holdsForEveryRecord()
{
    QFETCH(const bool, nearValid);
    QFETCH(const int, count);
    Records records;
    int accepted = 0;
    int corrected = 0;
    int risky = 0;
    for (int i = 0; i < count; ++i) {
        const KvMvcSettings original = records.next(nearValid);
        KvMvcSettings record = original;
        const Verdict first = check(record);
        const auto context = [&] {
            return "record " + std::to_string(i) + ":\n" + first.errors + first.corrections;
        };

        QVERIFY2((first.result == 0) == first.errors.empty(), context().c_str());
        QVERIFY2(touchesOnlyFields(original, record, original.num_views > 1 ? 2 : 1),
                 context().c_str());
        QVERIFY2(same(original, record) == first.corrections.empty(), context().c_str());

        // What is told of the limits is what refuses the settings.
        for (const std::string& rule : refusing) {
            QVERIFY2(exceeded.contains(rule) || !held.contains(rule),
                     (context() + "in the limit of " + rule).c_str());
        }
        QVERIFY2(exceeded.empty() || !first.errors.empty() || !first.risks.empty(),
                 (context() + "beyond a limit").c_str());

        KvMvcSettings again = record;
        const Verdict second = check(again);
        QVERIFY2(same(record, again), context().c_str());
        QVERIFY2(second.corrections.empty(), (context() + second.corrections).c_str());
        QVERIFY2(second.errors == first.errors && second.notes == first.notes &&
                     second.risks == first.risks && second.result == first.result,
                 (context() + second.errors).c_str());

        if (i % 16 == 0) {
            KvMvcSettings twin = original;
            QVERIFY2(check(twin) == first && same(twin, record), context().c_str());
        }
        accepted += first.result == 0 ? 1 : 0;
        corrected += first.corrections.empty() ? 0 : 1;
        risky += first.risks.empty() ? 0 : 1;
    }
    // Both sides were met, so the loop above looked at more than refusals.
    QVERIFY(corrected > count / 10 && risky > count / 10 && risky < count * 9 / 10);
    QVERIFY(!nearValid || (accepted > count / 10 && accepted < count * 9 / 10));
}

QTEST_GUILESS_MAIN(TestEncoderProperty)
#include "tst_encoder_property.moc"
