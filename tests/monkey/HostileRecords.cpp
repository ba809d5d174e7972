#include "HostileRecords.h"

#include "pages/SettingsPage.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include <algorithm>
#include <cstring>
#include <limits>

namespace
{

constexpr qint32 extremes[] = {std::numeric_limits<qint32>::min(),
                               std::numeric_limits<qint32>::max(),
                               -1,
                               0,
                               1,
                               2,
                               0x7FFF,
                               -0x8000,
                               0x1000000};

/// Infinities, both kinds of what is no number, the smallest, the largest, and zeros.
constexpr quint64 rateBits[] = {0x7FF0000000000000, 0xFFF0000000000000, 0x7FF8000000000000,
                                0x7FF0000000000001, 0xFFFFFFFFFFFFFFFF, 0x0000000000000001,
                                0x7FEFFFFFFFFFFFFF, 0xFFEFFFFFFFFFFFFF, 0x8000000000000000,
                                0x0000000000000000, 0x3FF0000000000001, 0x43E0000000000000};

/// What the pages have of their own, without those that they hold.
QVector<QWidget*> controlsOf(const QWidget* page)
{
    QVector<QWidget*> found;
    for (QWidget* widget : page->findChildren<QWidget*>()) {
        const QWidget* owner = widget->parentWidget();
        while (!qobject_cast<const SettingsPage*>(owner)) {
            owner = owner->parentWidget();
        }
        const bool isControl =
            qobject_cast<QSpinBox*>(widget) || qobject_cast<QComboBox*>(widget) ||
            qobject_cast<QSlider*>(widget) ||
            (qobject_cast<QAbstractButton*>(widget) && !widget->inherits("QToolButton"));
        if (owner == page && isControl && widget->isEnabled() && widget->isVisibleTo(page)) {
            found += widget;
        }
    }
    return found;
}

QString anyNumber(Random& random)
{
    const int number = random.oneIn(2) ? random.below(5000) : int(random.any());
    return QString::number(number);
}

} // namespace

HostileRecords::HostileRecords(quint32 seed) : m_seed(seed)
{
    m_time.start();
}

QString HostileRecords::play(int records, int first)
{
    if (!m_encoder.isComplete()) {
        return QStringLiteral("the reference companions are not there");
    }
    for (int number = first; number < first + records; ++number) {
        const QString broken = playOne(number);
        if (!broken.isEmpty()) {
            return QStringLiteral("seed %1, record %2:\n  %3").arg(m_seed).arg(number).arg(broken);
        }
    }
    return {};
}

QString HostileRecords::report() const
{
    return QStringLiteral("seed %1: %2 records, %3 edits, %4 accepted, %5 s")
        .arg(m_seed)
        .arg(m_records)
        .arg(m_edits)
        .arg(m_accepted)
        .arg(m_time.elapsed() / 1000);
}

KvMvcSettings HostileRecords::record(Random& random) const
{
    KvMvcSettings settings = random.oneIn(2) ? exampleSettings() : m_encoder.defaults(1);
    auto* const bytes = reinterpret_cast<unsigned char*>(&settings);
    switch (random.below(3)) {
    case 0:
        std::generate_n(bytes, sizeof settings, [&] { return quint8(random.any()); });
        break;
    case 1:
        for (int i = random.below(3000); i >= 0; --i) {
            bytes[random.below(sizeof settings)] ^= quint8(1 << random.below(8));
        }
        break;
    default:
        for (const ledger::Setting& setting : ledger::settings()) {
            for (int view = 0; view < 2; ++view) {
                if (setting.kind != ledger::Kind::FrameRate) {
                    ledger::put(settings, setting, view, random.oneOf(extremes));
                }
            }
        }
    }
    for (KvMvcViewSettings& view : settings.views) {
        if (random.oneIn(2)) {
            std::memcpy(reinterpret_cast<char*>(&view) +
                            ledger::setting(QStringLiteral("frame_rate")).offset,
                        &random.oneOf(rateBits), sizeof(double));
        }
    }
    // Most edits need a view.
    if (random.oneIn(2)) {
        settings.num_views = 1 + random.below(4);
    }
    return settings;
}

bool HostileRecords::edit(QWidget* page, Random& random)
{
    const QVector<QWidget*> controls = controlsOf(page);
    if (controls.isEmpty()) {
        return false;
    }
    QWidget* const control = random.oneOf(controls);
    if (auto* const field = qobject_cast<QSpinBox*>(control)) {
        user::type(field, anyNumber(random));
    } else if (auto* const list = qobject_cast<QComboBox*>(control)) {
        user::choose(list, list->itemText(random.below(list->count())));
    } else if (auto* const slider = qobject_cast<QSlider*>(control)) {
        user::pageUp(slider);
    } else {
        user::click(qobject_cast<QAbstractButton*>(control));
    }
    ++m_edits;
    return true;
}

QString HostileRecords::playOne(int number)
{
    Random random({m_seed, quint32(number)});
    const KvMvcSettings given = record(random);
    const qint32 flags = KV_MVC_GUI_BASIC_TAB | KV_MVC_GUI_ADVANCED_TAB | KV_MVC_GUI_FILE_BUTTONS |
                         KV_MVC_GUI_LOG_COLOURS |
                         (random.oneIn(2) ? KV_MVC_GUI_NO_INITIAL_CHECK : 0);
    const auto manner = random.oneIn(2) ? Encoder::Manner::Reference : Encoder::Manner::Accepting;
    OpenDialog dialog(flags, given, [&](RecordingCompanions& companions) {
        m_encoder.serve(companions, given, manner, random);
    });
    ++m_records;
    const Invariants invariants(dialog, m_encoder, flags);
    QStringList broken = invariants.broken(false);
    for (SettingsPage* page : dialog->findChildren<SettingsPage*>()) {
        if (broken.isEmpty() && edit(page, random)) {
            broken = invariants.broken(false);
        }
    }
    if (!broken.isEmpty()) {
        return broken.join(QLatin1String("\n  "));
    }
    const bool wanted = random.oneIn(2);
    user::click(dialog.button(wanted ? "buttonOk" : "buttonCancel"));
    const bool accepted = !dialog->isVisible() && dialog->result() == QDialog::Accepted;
    m_accepted += accepted ? 1 : 0;
    if (wanted && manner == Encoder::Manner::Accepting && !accepted) {
        return QStringLiteral("what the encoder accepts is not accepted");
    }
    if (bytesOf(dialog.caller) != (accepted ? dialog.bytes() : dialog.given)) {
        return QStringLiteral("result and record of the caller do not agree");
    }
    return {};
}
