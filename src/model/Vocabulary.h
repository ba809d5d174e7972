#pragma once

#include <QMap>
#include <QString>
#include <QVector>

#include <optional>

/// Display text to code, in the order of the texts.
using NameMap = QMap<QString, qint32>;

/// The item texts of one list, translated, with the codes they stand for.
class ItemList
{
public:
    struct Item {
        QString text;
        qint32 code;
    };

    void append(const QString& text, qint32 code) { m_items.append({text, code}); }

    /// The code of the first item that reads exactly so.
    std::optional<qint32> codeOf(const QString& text) const;
    /// The text of the first item with this code.
    std::optional<QString> textOf(qint32 code) const;

    const QVector<Item>& items() const { return m_items; }

private:
    QVector<Item> m_items;
};

/// Names the lists of a Vocabulary.
enum class ListName {
    FieldOrders,
    InterlaceModes,
    BitDepths,
    PulldownModes,
    ChromaFormats,
    BitrateModes,
    MacroblockPartitions,
    SubpixelPrecisions,
    EntropyCoders,
    VideoTypes,
    Profiles,
    Levels,
    Count
};

/// Every item text that travels in a state, in the language that was installed when the object was
/// made. States are compared with these texts, so one object serves a dialog for its whole life.
class Vocabulary
{
public:
    struct AspectRatio {
        QString text;
        qint32 x;
        qint32 y;
    };
    struct FrameRate {
        QString text;
        double rate;
        double tolerance;
    };

    /// @param offer422 Whether the profile names include "High 422".
    explicit Vocabulary(bool offer422 = false);

    const ItemList& list(ListName name) const { return m_lists[static_cast<int>(name)]; }
    const QVector<AspectRatio>& aspectRatios() const { return m_aspectRatios; }
    const QVector<FrameRate>& frameRates() const { return m_frameRates; }

    const NameMap& videoTypes() const { return m_videoTypes; }
    const NameMap& profiles() const { return m_profiles; }
    const NameMap& levels() const { return m_levels; }

private:
    ItemList& at(ListName name) { return m_lists[static_cast<int>(name)]; }

    static constexpr int listCount = static_cast<int>(ListName::Count);
    ItemList m_lists[listCount];
    QVector<AspectRatio> m_aspectRatios;
    QVector<FrameRate> m_frameRates;
    NameMap m_videoTypes;
    NameMap m_profiles;
    NameMap m_levels;
};
