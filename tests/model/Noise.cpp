#include "Noise.h"

#include <cstring>

WorkingRecord noisyRecord(int views, int seed)
{
    QByteArray bytes(int(sizeof(WorkingRecord)), '\0');
    for (int i = 0; i < bytes.size(); ++i)
        bytes[i] = char((i * 151 + i / 256 * 13 + seed * 67) | 0x40);
    WorkingRecord record;
    std::memcpy(&record, bytes.constData(), sizeof record);

    Cells consistent = {{Cell::Record, 0, views}};
    for (int view = 0; view < 4; ++view)
        consistent += {{view, 2844, 1}, {view, 2848, 4}};
    put(record, consistent);
    return record;
}

void apply(const ConfigState& state, WorkingRecord& record, const CustomFrameRate& customFrameRate)
{
    const Vocabulary vocabulary;
    const Applying edit{vocabulary, customFrameRate, state};
    const int views = record.viewCount();
    for (int view = 0; view < views; ++view)
        applyToView(edit, record.view(view));
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
