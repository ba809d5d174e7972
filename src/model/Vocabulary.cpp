#include "Vocabulary.h"

#include "ValueLists.h"

#include <QCoreApplication>
#include <QObject>

namespace
{

QString displayText(const char* context, const char* text)
{
    // The empty text is an item of its own and has no translation.
    return *text ? QCoreApplication::translate(context, text) : QString();
}

template <class Texts>
void fill(ItemList& list, const Texts& texts)
{
    for (const value_lists::CodedText& item : texts)
        list.append(displayText("QObject", item.text), item.code);
}

template <class Texts>
void fill(NameMap& map, const Texts& texts)
{
    for (const value_lists::CodedText& item : texts)
        map.insert(displayText("AVCVideoEncoderDlg", item.text), item.code);
}

void fill(ItemList& list, const NameMap& map)
{
    for (auto name = map.begin(); name != map.end(); ++name)
        list.append(name.key(), name.value());
}

} // namespace

std::optional<qint32> ItemList::codeOf(const QString& text) const
{
    for (const Item& item : m_items)
        if (item.text == text)
            return item.code;
    return std::nullopt;
}

std::optional<QString> ItemList::textOf(qint32 code) const
{
    for (const Item& item : m_items)
        if (item.code == code)
            return item.text;
    return std::nullopt;
}

Vocabulary::Vocabulary(bool offer422)
{
    for (const auto& item : value_lists::aspectRatios)
        m_aspectRatios.append({displayText("QObject", item.text), item.x, item.y});
    for (const auto& item : value_lists::frameRates)
        m_frameRates.append({displayText("QObject", item.text), item.rate, item.tolerance});

    fill(at(ListName::FieldOrders), value_lists::fieldOrders);
    fill(at(ListName::InterlaceModes), value_lists::interlaceModes);
    fill(at(ListName::BitDepths), value_lists::bitDepths);
    fill(at(ListName::PulldownModes), value_lists::pulldownModes);
    fill(at(ListName::ChromaFormats), value_lists::chromaFormats);
    fill(at(ListName::BitrateModes), value_lists::bitrateModes);
    fill(at(ListName::MacroblockPartitions), value_lists::macroblockPartitions);
    fill(at(ListName::SubpixelPrecisions), value_lists::subpixelPrecisions);
    fill(at(ListName::EntropyCoders), value_lists::entropyCoders);

    fill(m_videoTypes, value_lists::videoTypes);
    fill(m_profiles, value_lists::profiles);
    if (offer422)
        fill(m_profiles, std::array{value_lists::profile422});
    fill(m_levels, value_lists::levels);
    fill(at(ListName::VideoTypes), m_videoTypes);
    fill(at(ListName::Profiles), m_profiles);
    fill(at(ListName::Levels), m_levels);
}
