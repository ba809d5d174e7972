#include "RecordCells.h"

#include <QHash>

#include <cstring>

namespace
{

constexpr int recordHead = 256;
constexpr int viewSize = 8316;
constexpr int wordSize = 4;

template <class Number>
QByteArray littleEndian(Number number)
{
    return {reinterpret_cast<const char*>(&number), int(sizeof number)};
}

QString place(int position)
{
    if (position < recordHead) {
        return QStringLiteral("record +%1").arg(position);
    }
    return QStringLiteral("view %1 +%2")
        .arg((position - recordHead) / viewSize)
        .arg((position - recordHead) % viewSize);
}

template <class Target>
void putInto(Target& target, const Cells& cells)
{
    for (const Cell& cell : cells) {
        if (cell.position() + cell.bytes.size() <= qsizetype(sizeof target)) {
            std::memcpy(reinterpret_cast<char*>(&target) + cell.position(), cell.bytes.constData(),
                        size_t(cell.bytes.size()));
        }
    }
}

} // namespace

Cell::Cell(int view_, int offset_, int number)
    : view(view_), offset(offset_), bytes(littleEndian(qint32(number)))
{
}

Cell::Cell(int view_, int offset_, double number)
    : view(view_), offset(offset_), bytes(littleEndian(number))
{
}

Cell::Cell(int view_, const ledger::Setting& setting, double value)
    : view(setting.isOfRecord() ? int(Record) : view_),
      offset(setting.offset),
      bytes(setting.kind == ledger::Kind::FrameRate ? littleEndian(value)
                                                    : littleEndian(qint32(value)))
{
}

int Cell::position() const
{
    return view == Record ? offset : recordHead + view * viewSize + offset;
}

QByteArray bytesOf(const WorkingRecord& record)
{
    return {reinterpret_cast<const char*>(&record), int(sizeof record)};
}

void put(WorkingRecord& record, const Cells& cells)
{
    putInto(record, cells);
}

void put(KvMvcSettings& settings, const Cells& cells)
{
    putInto(settings, cells);
}

QStringList differences(const QByteArray& before, const QByteArray& after)
{
    QStringList list;
    for (int at = 0; at < before.size(); at += wordSize) {
        if (std::memcmp(before.constData() + at, after.constData() + at, wordSize) != 0) {
            list +=
                place(at) + QLatin1String(": ") + QLatin1String(after.mid(at, wordSize).toHex());
        }
    }
    return list;
}

QStringList expectedDifferences(const QByteArray& before, const Cells& cells)
{
    QByteArray after = before;
    for (const Cell& cell : cells) {
        if (cell.position() + cell.bytes.size() <= before.size()) {
            after.replace(cell.position(), cell.bytes.size(), cell.bytes);
        }
    }
    return differences(before, after);
}

KvMvcSettings exampleSettings()
{
    KvMvcSettings settings;
    auto* const bytes = reinterpret_cast<unsigned char*>(&settings);
    for (size_t i = 0; i < sizeof settings; ++i) {
        bytes[i] = static_cast<unsigned char>(i * 31 + i / 256 * 7 + 1);
    }

    // What tests rely on; all else is the ledger's first value, and switches are off.
    const QHash<QString, double> own = {
        {QStringLiteral("num_views"), 2},      {QStringLiteral("profile"), 3},
        {QStringLiteral("level"), 40},         {QStringLiteral("interlace_mode"), 1},
        {QStringLiteral("frame_rate"), 25},    {QStringLiteral("num_ref_frames"), 3},
        {QStringLiteral("motion_search"), 64}, {QStringLiteral("max_bitrate"), 6000000},
        {QStringLiteral("min_partition"), 1},  {QStringLiteral("entropy_mode"), 1},
        {QStringLiteral("bitrate_units"), 0},  {QStringLiteral("bit_depth_chroma"), 8},
        {QStringLiteral("chroma_format"), 2},  {QStringLiteral("num_slices"), 4},
        {QStringLiteral("multi_slice"), 1},    {QStringLiteral("subpixel_mode"), 2},
        {QStringLiteral("num_threads"), 2},    {QStringLiteral("quant_max"), 50},
        {QStringLiteral("force_i"), 2},        {QStringLiteral("idr_marker"), 3},
        {QStringLiteral("hrd_mode"), 1},       {QStringLiteral("brightness"), 0},
        {QStringLiteral("contrast"), 0},       {QStringLiteral("complexity"), 0},
    };
    for (const ledger::Setting& setting : ledger::settings()) {
        const bool isSwitch = setting.kind == ledger::Kind::Switch;
        const double value =
            own.value(QString::fromLatin1(setting.member), isSwitch ? 0 : setting.first.code);
        for (int view = 0; view < 2; ++view) {
            ledger::put(settings, setting, view, value);
        }
    }
    return settings;
}
