#include "ViewPage.h"

#include "model/KeyNames.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QSignalBlocker>

#include <initializer_list>
#include <iterator>
#include <limits>

namespace
{

// Ids of the unit buttons, which are the stored codes.
enum Units { BytesAndPercent, Bits, BitsAndClock };

constexpr int unlimited = std::numeric_limits<int>::max();

/// What a choice of units sets, beside the labels.
struct UnitRow {
    int vbvMaximum;
    int bufferStep;
    int vbvStep;
};

constexpr UnitRow unitRows[] = {{100, 1024, 1}, {unlimited, 8192, 8192}, {unlimited, 8192, 1}};

bool isKnown(int units)
{
    return units >= 0 && units < int(std::size(unitRows));
}

void setStep(QSpinBox* field, int step)
{
    if (field->singleStep() != step) {
        field->setSingleStep(step);
    }
}

void showAll(const QVector<QWidget*>& widgets, bool visible)
{
    for (QWidget* widget : widgets) {
        widget->setVisible(visible);
    }
}

} // namespace

ViewPage::ViewPage(int view, QWidget* parent)
    : SettingsPage(parent),
      m_view(view),
      m_unitGroup(new QButtonGroup(this)),
      m_constantBitrate(QObject::tr("Constant Bitrate")),
      m_variableBitrate(QObject::tr("Variable Bitrate")),
      m_constantQuantizer(QObject::tr("Const. Quality - Constant Quantizer")),
      m_averageQuantizer(QObject::tr("Const. Quality - Average Quantizer"))
{
}

template <class Control>
Control* ViewPage::control(const char* name) const
{
    auto* found = findChild<Control*>(QLatin1String(name));
    Q_ASSERT(found);
    return found;
}

QString ViewPage::key(QLatin1String base) const
{
    return keys::ofView(base, m_view);
}

void ViewPage::bindControls()
{
    struct SpinRow {
        const char* control;
        QLatin1String key;
        void (ViewPage::*slot)(int);
    };
    static const SpinRow spinRows[] = {
        {"targetRateSpin", keys::targetBitrate, &ViewPage::slotChangeTargetRate},
        {"maxRateSpin", keys::maxBitrate, &ViewPage::slotChangeMaxRate},
        {"bitrateBufferSpin", keys::bitrateBuffer, &ViewPage::slotChangeBuffer},
        {"iSizeSpin", keys::iSize, &ViewPage::slotChangeISize},
        {"pSizeSpin", keys::pSize, &ViewPage::slotChangePSize},
        {"bSizeSpin", keys::bSize, &ViewPage::slotChangeBSize},
        {"brSizeSpin", keys::brSize, &ViewPage::slotChangeBrSize},
        {"quantISpin", keys::iQuantizer, &ViewPage::slotChangeQuantI},
        {"quantPSpin", keys::pQuantizer, &ViewPage::slotChangeQuantP},
        {"quantBSpin", keys::bQuantizer, &ViewPage::slotChangeQuantB},
        {"maxQuantSpin", keys::maxQuantizer, &ViewPage::slotChangeQuantMax},
        {"minQuantSpin", keys::minQuantizer, &ViewPage::slotChangeQuantMin},
    };

    findRows();
    m_modeList = control<QComboBox>("bitrateModeList");
    m_targetRate = control<QSpinBox>("targetRateSpin");
    m_maxRate = control<QSpinBox>("maxRateSpin");
    m_buffer = control<QSpinBox>("bitrateBufferSpin");
    m_vbvInitial = control<QSpinBox>("vbvInitialSpin");
    m_vbvTarget = control<QSpinBox>("vbvTargetSpin");
    m_oneSecond = control<QCheckBox>("onesecCheck");
    m_hrd = control<QCheckBox>("hrdCheck");

    bind(m_modeList, key(keys::bitrateMode), &ViewPage::slotChangeBitrateMode);
    for (const SpinRow& row : spinRows) {
        bind(control<QSpinBox>(row.control), key(row.key), row.slot);
    }
    bind(m_hrd, key(keys::hrd), &ViewPage::slotChangeHRD);

    // Both slots hang on the initial fullness; the target is shown but reports nothing.
    bind(m_vbvInitial, key(keys::vbvInitial), &ViewPage::slotChangeVBVInitial);
    connect(m_vbvInitial, qOverload<int>(&QSpinBox::valueChanged), this,
            &ViewPage::slotChangeVBVTarget);
    bindWith(m_vbvTarget, key(keys::vbvTarget),
             [this](const ConfigState& state) { setSpinFromState(m_vbvTarget, state); });

    m_unitGroup->addButton(control<QAbstractButton>("units1Radio"), BytesAndPercent);
    m_unitGroup->addButton(control<QAbstractButton>("units2Radio"), Bits);
    m_unitGroup->addButton(control<QAbstractButton>("units3Radio"), BitsAndClock);
    bindWith(m_unitGroup, key(keys::units),
             [this](const ConfigState& state) { setGroupFromState(m_unitGroup, state); });
    connect(m_unitGroup, qOverload<QAbstractButton*>(&QButtonGroup::buttonClicked), this,
            &ViewPage::slotChangeUnits);

    connect(m_oneSecond, &QCheckBox::toggled, this, &ViewPage::slotChangeOneSec);
}

void ViewPage::findRows()
{
    const auto widgets = [this](std::initializer_list<const char*> names) {
        QVector<QWidget*> found;
        for (const char* name : names) {
            found.append(control<QWidget>(name));
        }
        return found;
    };
    m_targetRateRow = widgets({"targetRateLabel", "targetRateSpin"});
    m_maxRateRow = widgets({"maxRateLabel", "maxRateSpin"});
    m_bufferRows = widgets({"groupBoxBuffers", "bitrateBufferSpin"});
    m_quantizerRows =
        widgets({"line_3", "quantILabel", "quantISpin", "quantPLabel", "quantPSpin", "quantBLabel",
                 "quantBSpin", "maxQuantLabel", "maxQuantSpin", "minQuantLabel", "minQuantSpin"});
    m_sizeRows = widgets({"line_2", "iSizeLabel", "iSizeSpin", "pSizeLabel", "pSizeSpin",
                          "bSizeLabel", "bSizeSpin", "brSizeLabel", "brSizeSpin"});
    m_bufferLabel = control<QLabel>("bitrateBufferLabel");
    m_vbvInitialLabel = control<QLabel>("vbvInitialLabel");
    m_vbvTargetLabel = control<QLabel>("vbvTargetLabel");
    m_unitTexts = unitTexts();
}

void ViewPage::fillBitrateModes()
{
    m_modeList->clear();
    m_modeList->addItems(bitrateModeTexts());
}

void ViewPage::nameForAccess(const QString& view)
{
    setAccessibleName(view);
    const auto labels = findChildren<QLabel*>();
    for (QLabel* label : labels) {
        nameLabel(label);
    }
    const auto buttons = findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        button->setAccessibleName(withPageName(button->text()));
    }
    const auto groups = findChildren<QGroupBox*>();
    for (QGroupBox* group : groups) {
        group->setAccessibleName(withPageName(group->title()));
    }
}

void ViewPage::nameLabel(QLabel* label)
{
    const QString name = withPageName(label->text());
    label->setAccessibleName(name);
    // A list is called by its label where the platform tells one.
    if (auto* const field = qobject_cast<QSpinBox*>(label->buddy())) {
        field->setAccessibleName(name);
    }
}

void ViewPage::applyOneSecondBuffer(ConfigState& state, int rate, int units)
{
    if (!m_oneSecond->isChecked()) {
        return;
    }
    state.insert(keyOf(m_buffer), units == BytesAndPercent ? rate / 8 : rate);
    setSpinFromState(m_buffer, state);
    m_buffer->setEnabled(false);
}

void ViewPage::setGroupFromState(QButtonGroup* group, const ConfigState& state)
{
    const ConfigEntry entry = state.entry(keyOf(group));
    const QSignalBlocker blocker(group);
    // An exclusive group does not let go of its last button.
    QAbstractButton* const chosen = group->button(entry.value.toInt());
    group->setExclusive(false);
    const auto buttons = group->buttons();
    for (QAbstractButton* button : buttons) {
        button->setChecked(button == chosen);
        button->setEnabled(entry.enabled);
        // The Tab key goes to the chosen button, the arrow keys from there to the others.
        button->setFocusPolicy(!chosen || button == chosen ? Qt::StrongFocus : Qt::ClickFocus);
    }
    group->setExclusive(true);
}

ConfigState ViewPage::withTargetRate(const QString& key, int rate)
{
    ConfigState state;
    state.insert(key, rate);
    if (rate > m_maxRate->value()) {
        state.insert(keyOf(m_maxRate), rate);
        setSpinFromState(m_maxRate, state);
    }
    applyOneSecondBuffer(state, rate, m_unitGroup->checkedId());
    return state;
}

ConfigState ViewPage::withMaxRate(const QString& key, int rate)
{
    ConfigState state;
    state.insert(key, rate);
    if (rate < m_targetRate->value()) {
        state.insert(keyOf(m_targetRate), rate);
        setSpinFromState(m_targetRate, state);
        applyOneSecondBuffer(state, rate, m_unitGroup->checkedId());
    }
    return state;
}

ConfigState ViewPage::withUnits(const QString& key, int units)
{
    ConfigState state;
    state.insert(key, units);
    applyOneSecondBuffer(state, m_targetRate->value(), units);
    return state;
}

ConfigState ViewPage::edited(const QString& key, const QVariant& value)
{
    if (key == keyOf(m_targetRate)) {
        return withTargetRate(key, value.toInt());
    }
    if (key == keyOf(m_maxRate)) {
        return withMaxRate(key, value.toInt());
    }
    if (key == keyOf(m_unitGroup)) {
        return withUnits(key, value.toInt());
    }
    return SettingsPage::edited(key, value);
}

void ViewPage::slotChangeTargetRate(int rate)
{
    Q_EMIT stateChanged(withTargetRate(senderKey(), rate));
}

void ViewPage::slotChangeMaxRate(int rate)
{
    Q_EMIT stateChanged(withMaxRate(senderKey(), rate));
}

void ViewPage::slotChangeUnits(QAbstractButton* button)
{
    Q_EMIT stateChanged(withUnits(senderKey(), m_unitGroup->id(button)));
}

void ViewPage::slotChangeOneSec(bool onesec)
{
    m_buffer->setEnabled(!onesec);
    // The sender has no key, so the rate travels under the empty one, which no setting has.
    slotChangeTargetRate(m_targetRate->value());
}

void ViewPage::receiveState(const ConfigState& state)
{
    const int units = state.value(keyOf(m_unitGroup)).toInt();
    if (isKnown(units)) {
        // The limit of the units before would cut what is told, in silence.
        makeRoomFor(m_vbvInitial, state);
        makeRoomFor(m_vbvTarget, state);
    }
    SettingsPage::receiveState(state);
    showFor(state.value(keyOf(m_modeList)).toString(), state.value(keyOf(m_hrd)).toInt() == 1);
    if (isKnown(units)) {
        setUnits(units);
    }
    m_buffer->setEnabled(!m_oneSecond->isChecked());
}

void ViewPage::showFor(const QString& mode, bool hrd)
{
    const bool variable = mode == m_variableBitrate;
    const bool byRate = variable || mode == m_constantBitrate;
    const bool constantQuantizer = mode == m_constantQuantizer;
    const bool byQuantizer = constantQuantizer || mode == m_averageQuantizer;

    showAll(m_targetRateRow, byRate);
    showAll(m_maxRateRow, variable && hrd);
    showAll(m_bufferRows, byRate && hrd);
    showAll(m_quantizerRows, byQuantizer);
    showAll(m_sizeRows, !constantQuantizer);
}

void ViewPage::setUnits(int units)
{
    const UnitTexts& texts = m_unitTexts[units];
    setCaption(m_bufferLabel, texts.buffer);
    setCaption(m_vbvInitialLabel, texts.vbvInitial);
    setCaption(m_vbvTargetLabel, texts.vbvTarget);
    const UnitRow& row = unitRows[units];
    setStep(m_buffer, row.bufferStep);
    setStep(m_vbvInitial, row.vbvStep);
    setStep(m_vbvTarget, row.vbvStep);
    // With signals on: a fullness beyond 100 % is clamped, and the clamp is reported like an edit.
    limitFullness(row.vbvMaximum);
}

void ViewPage::setCaption(QLabel* label, const QString& text)
{
    if (label->text() != text) {
        label->setText(text);
        nameLabel(label);
    }
}

void ViewPage::makeRoomFor(QSpinBox* field, const ConfigState& state)
{
    if (state.value(keyOf(field)).toInt() > field->maximum()) {
        field->setMaximum(unlimited);
    }
}

void ViewPage::limitFullness(int maximum)
{
    for (QSpinBox* field : {m_vbvInitial, m_vbvTarget}) {
        if (field->maximum() != maximum) {
            field->setMaximum(maximum);
        }
    }
}
