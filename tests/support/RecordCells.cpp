#include "RecordCells.h"

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
    if (position < recordHead)
        return QStringLiteral("record +%1").arg(position);
    return QStringLiteral("view %1 +%2")
        .arg((position - recordHead) / viewSize)
        .arg((position - recordHead) % viewSize);
}

template <class Target>
void putInto(Target& target, const Cells& cells)
{
    for (const Cell& cell : cells)
        if (cell.position() + cell.bytes.size() <= qsizetype(sizeof target))
            std::memcpy(reinterpret_cast<char*>(&target) + cell.position(), cell.bytes.constData(),
                        size_t(cell.bytes.size()));
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
    for (int at = 0; at < before.size(); at += wordSize)
        if (std::memcmp(before.constData() + at, after.constData() + at, wordSize) != 0)
            list +=
                place(at) + QLatin1String(": ") + QLatin1String(after.mid(at, wordSize).toHex());
    return list;
}

QStringList expectedDifferences(const QByteArray& before, const Cells& cells)
{
    QByteArray after = before;
    for (const Cell& cell : cells)
        if (cell.position() + cell.bytes.size() <= before.size())
            after.replace(cell.position(), cell.bytes.size(), cell.bytes);
    return differences(before, after);
}

KvMvcSettings exampleSettings()
{
    KvMvcSettings settings;
    auto* const bytes = reinterpret_cast<unsigned char*>(&settings);
    for (size_t i = 0; i < sizeof settings; ++i)
        bytes[i] = static_cast<unsigned char>(i * 31 + i / 256 * 7 + 1);

    put(settings, {{Cell::Record, 0, 2}, {Cell::Record, 4, 0}});
    for (int view = 0; view < 2; ++view)
        put(settings,
            {{view, 0, 3},        {view, 4, 40},      {view, 8, 12},      {view, 12, 3},
             {view, 20, 1},       {view, 24, 720},    {view, 28, 576},    {view, 32, 25.0},
             {view, 40, 3},       {view, 44, 64},     {view, 60, 28},     {view, 64, 30},
             {view, 68, 32},      {view, 72, 2},      {view, 76, 500000}, {view, 80, 4000000},
             {view, 84, 6000000}, {view, 88, 1},      {view, 92, 1},      {view, 96, 0},
             {view, 100, 12},     {view, 104, 11},    {view, 124, 70},    {view, 128, 80},
             {view, 132, 0},      {view, 160, 90000}, {view, 164, 60000}, {view, 168, 30000},
             {view, 172, 40000},  {view, 176, 1},     {view, 256, 0},     {view, 1804, 1},
             {view, 1808, 0},     {view, 2244, 8},    {view, 2248, 8},    {view, 2252, 2},
             {view, 2836, 0},     {view, 2844, 1},    {view, 2848, 4},    {view, 2852, 0},
             {view, 2856, 0},     {view, 2868, 2},    {view, 2872, 0},    {view, 2880, 0},
             {view, 2884, 0},     {view, 2888, -1},   {view, 2892, -1},   {view, 2904, 2},
             {view, 2916, 10},    {view, 2920, 50},   {view, 4100, 2},    {view, 4104, 0},
             {view, 4108, 3},     {view, 4112, 0},    {view, 4116, 0},    {view, 4316, 0},
             {view, 4320, 0},     {view, 5116, 0},    {view, 5492, 0},    {view, 5496, 0},
             {view, 5500, 0}});
    return settings;
}
