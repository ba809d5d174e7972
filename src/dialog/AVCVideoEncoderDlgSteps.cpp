// What the user did, in steps that can be taken back.

#include "AVCVideoEncoderDlg.h"

#include "model/KeyNames.h"
#include "model/SettingFacts.h"
#include "pages/ControlTip.h"
#include "pages/SettingsPage.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QPointer>
#include <QToolTip>

#include <algorithm>
#include <memory>

namespace
{

/// Whether the state has the setting of the key for every view.
bool isInAllViews(const ConfigState& state, const QString& key)
{
    const auto facts = settingFacts(key);
    bool isInAll = facts && facts->view >= 0;
    for (int view = 0; isInAll && view < KV_MVC_MAX_VIEWS; ++view) {
        isInAll = state.contains(keyOfSetting(facts->member, view));
    }
    return isInAll;
}

} // namespace

void AVCVideoEncoderDlg::takeStep(const QString& text, const QString& goesOn,
                                  const std::function<void()>& change)
{
    // What a page reports while it is told of an edit belongs to the edit.
    if (m_isTakingStep) {
        change();
        return;
    }
    // Not a guard object: the host may delete the dialog meanwhile.
    const QPointer<AVCVideoEncoderDlg> self(this);
    const EditedState before = editedState();
    m_isTakingStep = true;
    change();
    if (self) {
        m_isTakingStep = false;
        m_history.add(before, editedState(), text, goesOn);
    }
}

void AVCVideoEncoderDlg::turnHistory(std::optional<EditHistory::Turn> (EditHistory::*turn)(),
                                     const QString& message)
{
    if (m_isTakingStep) {
        return;
    }
    const auto reached = (m_history.*turn)();
    if (!reached) {
        return;
    }
    const QPointer<AVCVideoEncoderDlg> self(this);
    m_isTakingStep = true;
    m_record = reached->state.record;
    m_currentView = reached->state.currentView;
    m_start = reached->state.start;
    settingsToState();
    check();
    if (!self) {
        return;
    }
    m_isTakingStep = false;
    if (isVisible()) {
        QToolTip::showText(ui.presetFrame->mapToGlobal(QPoint()),
                           plainTip(message.arg(reached->text)));
    }
}

void AVCVideoEncoderDlg::startHere(const QString& name)
{
    m_start = std::make_shared<const StartingPoint>(StartingPoint{m_record, name});
}

QString AVCVideoEncoderDlg::describeEdit(const ConfigState& state) const
{
    QStringList captions;
    const auto& entries = state.entries();
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        if (entry.key() == keys::videoType || entry.key() == keys::restorePreset) {
            return tr("Preset %1").arg(entry->value.toString());
        }
        for (const SettingsPage* page : m_pages) {
            const QWidget* const control = page->widgetOf(entry.key());
            if (!control) {
                continue;
            }
            //: A setting of the rate control that was changed in all views at once.
            const QString caption =
                isInAllViews(state, entry.key())
                    ? tr("%1 in all views").arg(SettingsPage::plainCaptionOf(control))
                    : page->captionOf(control);
            if (!caption.isEmpty() && !captions.contains(caption)) {
                captions += caption;
            }
            break;
        }
    }
    return captions.join(QLatin1String("; "));
}

QString AVCVideoEncoderDlg::keysOfNumber(const ConfigState& state) const
{
    const QStringList keys = state.entries().keys();
    for (const QString& key : keys) {
        const auto isNumber = [&key](const SettingsPage* page) {
            const QObject* const control = page->controlOf(key);
            return qobject_cast<const QAbstractSpinBox*>(control) ||
                   qobject_cast<const QAbstractSlider*>(control);
        };
        if (std::none_of(m_pages.begin(), m_pages.end(), isNumber)) {
            return {};
        }
    }
    return keys.join(QLatin1Char('\n'));
}
