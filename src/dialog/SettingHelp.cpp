#include "SettingHelp.h"

#include "LimitBars.h"
#include "SettingControls.h"
#include "TypingHint.h"
#include "model/Differences.h"
#include "model/KeyNames.h"
#include "model/SettingsToState.h"
#include "pages/ControlTip.h"
#include "pages/SettingsPage.h"
#include "pages/ValueMarks.h"

#include <QComboBox>
#include <QDialog>
#include <QHash>
#include <QLocale>
#include <QSlider>
#include <QSpinBox>
#include <QToolTip>

#include <kv_config_gui_mvc/config_gui.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace
{

/// What the control lets through; no value for what is no number.
std::optional<std::pair<int, int>> rangeOf(const QWidget* control)
{
    if (const auto* field = qobject_cast<const QSpinBox*>(control)) {
        return std::pair(field->minimum(), field->maximum());
    }
    if (const auto* slider = qobject_cast<const QAbstractSlider*>(control)) {
        return std::pair(slider->minimum(), slider->maximum());
    }
    return std::nullopt;
}

/// "22 Mbit/s"; whole where it is no more than thousands.
QString rateText(int rate, QLocale locale)
{
    constexpr int million = 1000000;
    constexpr int thousand = 1000;
    const bool isLarge = rate >= million;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const double shown = isLarge ? double(rate) / million : double(rate) / thousand;
    QString number = locale.toString(shown, 'f', isLarge ? 6 : 3);
    while (number.endsWith(locale.zeroDigit())) {
        number.chop(1);
    }
    if (number.endsWith(locale.decimalPoint())) {
        number.chop(1);
    }
    return number + (isLarge ? QStringLiteral("\u00a0Mbit/s") : QStringLiteral("\u00a0kbit/s"));
}

/// Of a view that the record has no place for.
QString goesNoFurther()
{
    return SettingHelp::tr(
        "The settings hold two views: what is set for this one goes no further.");
}

void add(ConfigState& state, const ConfigState& more)
{
    const auto& entries = more.entries();
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        state.insert(entry.key(), entry->value);
    }
}

} // namespace

SettingHelp::SettingHelp(QDialog* dialog, const Vocabulary& vocabulary, qint32 flags)
    : QObject(dialog), m_dialog(dialog), m_vocabulary(vocabulary), m_flags(flags)
{
    const QString preset = keys::videoType;
    m_rows.append({preset,
                   nullptr,
                   {setting_controls::find(dialog, preset)},
                   settingFacts(preset).value_or(SettingFacts()),
                   {}});
    const auto pages = dialog->findChildren<SettingsPage*>();
    for (SettingsPage* page : pages) {
        addRows(page);
    }
}

void SettingHelp::addRows(SettingsPage* page)
{
    const QStringList keys = page->keys();
    for (const QString& key : keys) {
        m_rows.append(
            {key, page, page->widgetsOf(key), settingFacts(key).value_or(SettingFacts()), {}});
        addHints(m_rows.last());
    }
}

void SettingHelp::addHints(const Row& row)
{
    auto* const field = qobject_cast<QSpinBox*>(row.widgets.value(0));
    const QString& member = row.facts.member;
    const bool isRate =
        member == QLatin1String("bitrate") || member == QLatin1String("max_bitrate");
    QStringList words;
    if (member == QLatin1String("vbv_target")) {
        words += tr("Only shown here: a preset or file sets it.");
    } else if (row.facts.view >= KV_MVC_RECORD_VIEWS) {
        words += goesNoFurther();
    }
    if (field && (isRate || !words.isEmpty())) {
        TypingHint::attach(field, [field, isRate, words](int number) {
            const QString reading =
                //: The reading of a rate in bits per second that is being typed: "= 22 Mbit/s".
                isRate ? tr("= %1").arg(rateText(number, field->locale())) : QString();
            return (QStringList(reading) + words).join(QLatin1Char('\n')).trimmed();
        });
    }
}

void SettingHelp::follow(const WorkingRecord& record, int view, const StartingPointPtr& start)
{
    const bool isNew = start != m_start || view != m_startView;
    m_start = start;
    if (isNew) {
        describeStart(view);
    }
    const QSet<QString> differing = differingKeys(start->record, record, view);
    for (Row& row : m_rows) {
        tellFacts(row);
        tellStart(row, isNew, differing.contains(row.key));
        tellReason(row);
    }
}

void SettingHelp::describeStart(int view)
{
    m_startView = view;
    const KvMvcViewSettings& shown = m_start->record.view(view);
    m_startState = describeBasic(m_vocabulary, 0, shown).state;
    add(m_startState, describeAdvanced(m_vocabulary, 0, shown));
    add(m_startState, describeViews(m_vocabulary, 0, m_start->record));
}

void SettingHelp::tellFacts(Row& row)
{
    const auto range = rangeOf(row.widgets.value(0));
    if (std::exchange(row.isFactTold, true) && row.range == range) {
        return;
    }
    row.range = range;
    QStringList lines;
    if (range) {
        const int low = std::max(range->first, row.facts.low.value_or(range->first));
        const int high = std::min(range->second, row.facts.high.value_or(range->second));
        const QString unit = row.facts.unit.isEmpty()
                                 ? QString()
                                 : QLatin1Char(' ') + tr(row.facts.unit.toLatin1().constData());
        //: %3 is empty or a unit with a blank before it.
        lines += tr("Range: %1 to %2%3.").arg(low).arg(high).arg(unit);
    }
    if (!row.facts.basis.isEmpty()) {
        // A clause of a standard alone is the same in every language.
        const QString basis = row.facts.basis.at(0).isLower()
                                  ? tr(row.facts.basis.toLatin1().constData())
                                  : row.facts.basis;
        lines += tr("The range rests on: %1.").arg(basis);
    }
    if (row.facts.view >= KV_MVC_RECORD_VIEWS) {
        lines += goesNoFurther();
    }
    for (QWidget* widget : row.widgets) {
        ControlTip::of(widget)->setLines(ControlTip::Facts, lines);
    }
}

void SettingHelp::tellStart(Row& row, bool isNew, bool isChanged)
{
    if (!row.page) {
        return;
    }
    const QWidget* const chosen =
        row.widgets.size() > 1 ? row.page->widgetOf(row.key) : row.widgets.value(0);
    if (!isNew && row.isChanged == isChanged && row.chosen == chosen) {
        return;
    }
    row.isChanged = isChanged;
    row.chosen = chosen;
    const QString name = m_start->name.isEmpty() ? tr("as opened") : m_start->name;
    const QString start = startTextOf(row.key);
    QStringList lines;
    if (!start.isEmpty()) {
        //: What a setting was at the start, and what the start was: a preset, a file.
        lines += isChanged ? tr("Changed; the starting value is %1 (%2).").arg(start, name)
                           : tr("Starting value: %1 (%2).").arg(start, name);
    } else if (isChanged) {
        lines += tr("Changed.");
    }
    for (QWidget* widget : row.widgets) {
        ControlTip::of(widget)->setLines(ControlTip::Start, lines);
        ValueMarks::setChanged(widget, isChanged && widget == chosen);
    }
}

void SettingHelp::tellReason(Row& row) const
{
    const QWidget* const control = row.widgets.value(0);
    const bool isEnabled = control->isEnabledTo(m_dialog);
    const bool isPageEnabled = isEnabled || !row.page || row.page->isEnabledTo(m_dialog);
    if (row.isEnabled == isEnabled && row.isPageEnabled == isPageEnabled) {
        return;
    }
    row.isEnabled = isEnabled;
    row.isPageEnabled = isPageEnabled;
    const QString reason = isEnabled ? QString() : reasonOf(row);
    for (QWidget* widget : row.widgets) {
        ControlTip::of(widget)->setLines(ControlTip::Reason,
                                         reason.isEmpty() ? QStringList() : QStringList(reason));
    }
}

QString SettingHelp::reasonOf(const Row& row) const
{
    if (!row.isPageEnabled) {
        return tr("Greyed because this view is not coded; see \"Number of additional views\".");
    }
    const bool sizeLocked = m_flags & KV_MVC_GUI_LOCK_SIZE;
    if ((m_flags & row.facts.lock) || (row.key == keys::pictureAspectRatio && sizeLocked)) {
        return tr("Greyed because the program that opened the dialog has set it.");
    }
    if (row.key == keys::pixelX || row.key == keys::pixelY) {
        return tr("Greyed because the picture aspect ratio sets it, unless that is \"Custom\".");
    }
    if (row.key == keys::fieldOrder) {
        return tr("Greyed because progressive pictures have no fields.");
    }
    if (row.facts.member == QLatin1String("bitrate_buffer")) {
        return tr("Greyed because the buffer is kept at the length of 1 second.");
    }
    return {};
}

void SettingHelp::showMessages(const QVector<CheckMessage>& messages)
{
    // More of one setting nobody reads in a tip.
    constexpr int mostLines = 5;
    struct Words {
        QStringList lines;
        ValueMarks::Severity severity = ValueMarks::Severity::None;
    };
    QHash<QString, Words> byKey;
    for (const CheckMessage& message : messages) {
        const bool isError = message.kind == KV_MVC_MESSAGE_ERROR;
        if (!message.facts || (!isError && message.kind != KV_MVC_MESSAGE_WARNING)) {
            continue;
        }
        Words& words = byKey[keyOfSetting(message.facts->setting, message.facts->view)];
        words.severity = std::max(words.severity, isError ? ValueMarks::Severity::Error
                                                          : ValueMarks::Severity::Warning);
        if (words.lines.size() < mostLines) {
            words.lines += (isError ? tr("Error: %1") : tr("Warning: %1")).arg(message.text);
        }
    }
    for (Row& row : m_rows) {
        const bool hasMessages = byKey.contains(row.key);
        if (!std::exchange(row.hasMessages, hasMessages) && !hasMessages) {
            continue;
        }
        const Words words = byKey.value(row.key);
        QWidget* const chosen = row.page ? row.page->widgetOf(row.key) : row.widgets.value(0);
        for (QWidget* widget : row.widgets) {
            ControlTip::of(widget)->setLines(ControlTip::Messages, words.lines);
            ValueMarks::setSeverity(widget,
                                    widget == chosen ? words.severity : ValueMarks::Severity::None);
        }
    }
}

void SettingHelp::showLimits(const QVector<LimitUse>& limits)
{
    if (const Row* const level = rowOf(keys::level)) {
        ControlTip::of(level->widgets.first())
            ->setPicture(limit_bars::table(limits, QToolTip::palette()));
    }
}

const SettingHelp::Row* SettingHelp::rowOf(const QString& key) const
{
    const auto row = std::find_if(m_rows.begin(), m_rows.end(),
                                  [&key](const Row& each) { return each.key == key; });
    return row == m_rows.end() ? nullptr : &*row;
}

bool SettingHelp::isChanged(const QString& key) const
{
    const Row* const row = rowOf(key);
    return row && row->isChanged;
}

QString SettingHelp::startTextOf(const QString& key) const
{
    const Row* const row = rowOf(key);
    const QVariant start = startOf(key);
    return row && row->page && start.isValid() ? row->page->textOf(key, start) : QString();
}
