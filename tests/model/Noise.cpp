#include "Noise.h"

namespace
{

WorkingRecord noise(int seed)
{
    WorkingRecord record;
    auto* const bytes = reinterpret_cast<unsigned char*>(&record);
    for (size_t i = 0; i < sizeof record; ++i) {
        bytes[i] = static_cast<unsigned char>((i * 151 + i / 256 * 13 + size_t(seed) * 67) | 0x40);
    }
    return record;
}

} // namespace

WorkingRecord noisyRecord(int views, int seed)
{
    static const WorkingRecord usual = noise(1);
    WorkingRecord record = seed == 1 ? usual : noise(seed);

    Cells consistent = {{Cell::Record, 0, views}};
    for (int view = 0; view < 4; ++view) {
        consistent += {{view, 2844, 1}, {view, 2848, 4}};
    }
    put(record, consistent);
    return record;
}

void apply(const ConfigState& state, WorkingRecord& record, const CustomFrameRate& customFrameRate)
{
    const Vocabulary vocabulary;
    const Applying edit{vocabulary, customFrameRate, state};
    const int views = record.viewCount();
    for (int view = 0; view < views; ++view) {
        applyToView(edit, record.view(view));
    }
    applyViews(edit, record);
}

ConfigState oneEntry(const char* key, const QVariant& value)
{
    ConfigState state;
    state.insert(QLatin1String(key), value);
    return state;
}

QStringList changedBy(const ConfigState& state, const WorkingRecord& before)
{
    WorkingRecord after = before;
    apply(state, after);
    return differences(bytesOf(before), bytesOf(after));
}

QStringList expected(const WorkingRecord& before, const Cells& cells)
{
    return expectedDifferences(bytesOf(before), cells);
}
