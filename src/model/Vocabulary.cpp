#include "Vocabulary.h"

#include "ValueLists.h"

#include <QCoreApplication>

#include <kv_config_gui_mvc/settings_record.h>

namespace
{

using Items = std::initializer_list<value_lists::CodedText>;

QString displayText(const char* text)
{
    return QCoreApplication::translate("QObject", text);
}

void fill(ItemList& list, const Items& items)
{
    for (const value_lists::CodedText& item : items) {
        list.append(displayText(item.text), item.code);
    }
}

void fill(NameMap& map, const Items& items)
{
    for (const value_lists::CodedText& item : items) {
        map.insert(QCoreApplication::translate("AVCVideoEncoderDlg", item.text), item.code);
    }
}

void fill(ItemList& list, const NameMap& map)
{
    for (auto name = map.begin(); name != map.end(); ++name) {
        list.append(name.key(), name.value());
    }
}

} // namespace

std::optional<qint32> ItemList::codeOf(const QString& text) const
{
    for (const Item& item : m_items) {
        if (item.text == text) {
            return item.code;
        }
    }
    return std::nullopt;
}

std::optional<QString> ItemList::textOf(qint32 code) const
{
    for (const Item& item : m_items) {
        if (item.code == code) {
            return item.text;
        }
    }
    return std::nullopt;
}

Vocabulary::Vocabulary(bool offer422)
{
    for (const auto& item : value_lists::aspectRatios) {
        m_aspectRatios.append({displayText(item.text), item.x, item.y});
    }
    for (const auto& item : value_lists::frameRates) {
        m_frameRates.append({displayText(item.text), item.rate, item.tolerance});
    }

    fill(at(ListName::FieldOrders), value_lists::itemsOfFieldOrder);
    fill(at(ListName::InterlaceModes), value_lists::itemsOfInterlaceMode);
    fill(at(ListName::BitDepths), value_lists::itemsOfBitDepth);
    fill(at(ListName::PulldownModes), value_lists::itemsOfPulldown);
    fill(at(ListName::ChromaFormats), value_lists::itemsOfChromaFormat);
    // The unnamed fourth format is an item without a text.
    at(ListName::ChromaFormats).append(QString(), KV_MVC_CHROMA_UNNAMED);
    fill(at(ListName::BitrateModes), value_lists::itemsOfBitrateMode);
    fill(at(ListName::MacroblockPartitions), value_lists::itemsOfMinPartition);
    fill(at(ListName::SubpixelPrecisions), value_lists::itemsOfSubpixelMode);
    fill(at(ListName::EntropyCoders), value_lists::itemsOfEntropyMode);

    fill(m_videoTypes, value_lists::itemsOfVideoType);
    fill(m_profiles, value_lists::itemsOfProfile);
    if (!offer422) {
        m_profiles.remove(m_profiles.key(KV_MVC_PROFILE_HIGH_422));
    }
    fill(m_levels, value_lists::itemsOfLevel);
    fill(at(ListName::VideoTypes), m_videoTypes);
    fill(at(ListName::Profiles), m_profiles);
    fill(at(ListName::Levels), m_levels);
}
