#include "Differences.h"

#include "KeyNames.h"
#include "KeyTable.h"

#include <bit>
#include <tuple>

namespace
{

/// Of a row that is a rule of its own.
bool differs(const QString& key, const KvMvcViewSettings& a, const KvMvcViewSettings& b)
{
    if (key == keys::frameRate) {
        // The field is not aligned, and read by value only.
        const double rate = a.frame_rate;
        const double other = b.frame_rate;
        return std::bit_cast<quint64>(rate) != std::bit_cast<quint64>(other);
    }
    if (key == keys::pictureAspectRatio) {
        const auto pair = [](const KvMvcViewSettings& view) {
            return std::tuple<qint32, qint32>(view.display_aspect_x, view.display_aspect_y);
        };
        return pair(a) != pair(b);
    }
    return false;
}

bool differs(const ViewRow& row, const KvMvcViewSettings& a, const KvMvcViewSettings& b)
{
    return row.field ? a.*row.field != b.*row.field : differs(row.key, a, b);
}

} // namespace

QSet<QString> differingKeys(const WorkingRecord& a, const WorkingRecord& b, int view)
{
    QSet<QString> found;
    const KeyTable& table = keyTable();
    for (const auto* rows : {&table.basic, &table.advanced}) {
        for (const ViewRow& row : *rows) {
            if (differs(row, a.view(view), b.view(view))) {
                found += row.key;
            }
        }
    }
    for (const RecordRow& row : table.record) {
        if (a.settings.*row.field != b.settings.*row.field) {
            found += row.key;
        }
    }
    for (int each = 0; each < KV_MVC_MAX_VIEWS; ++each) {
        for (const ViewRow& row : table.rateControl) {
            if (differs(row, a.view(each), b.view(each))) {
                found += row.keyIn(each);
            }
        }
    }
    return found;
}
