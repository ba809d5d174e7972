// What helps the user to find and to understand a setting.

#include "AVCVideoEncoderDlg.h"

#include "LimitBars.h"
#include "MessageLinks.h"
#include "MessageLog.h"
#include "SettingControls.h"
#include "SettingHelp.h"
#include "SettingMenu.h"
#include "Shortcuts.h"
#include "model/KeyNames.h"
#include "model/SettingFacts.h"
#include "model/SettingsToState.h"
#include "pages/SettingsPage.h"

#include <QPointer>
#include <QSpinBox>

#include <algorithm>

void AVCVideoEncoderDlg::buildHelp()
{
    m_help = new SettingHelp(this, m_vocabulary, m_flags);
    new MessageLinks(
        ui.errorLog, [this](const MessageFacts& facts) { return controlOf(facts); },
        &setting_controls::goTo);
    new SettingMenu(
        this, m_help, [this] { return describeViews(m_vocabulary, m_flags, m_record); },
        [this](SettingsPage* page, const ConfigState& state) {
            // A step of its own, also after numbers that were typed there.
            m_history.interrupt();
            const QPointer<AVCVideoEncoderDlg> self(this);
            Q_EMIT page->stateChanged(state);
            if (self) {
                m_history.interrupt();
            }
        });
    shortcuts::addLimits(this, [this] {
        if (endTyping()) {
            limit_bars::showOver(this, messageLog().limits);
        }
    });
}

QWidget* AVCVideoEncoderDlg::controlOf(const MessageFacts& facts) const
{
    return setting_controls::find(this, keyOfSetting(facts.setting, facts.view));
}

void AVCVideoEncoderDlg::goToFirstError()
{
    const auto& told = messageLog().told;
    const auto first = std::find_if(told.begin(), told.end(), [](const CheckMessage& message) {
        return message.kind == KV_MVC_MESSAGE_ERROR;
    });
    if (m_isClosed || first == told.end()) {
        return;
    }
    const auto& facts = first->facts;
    QWidget* const control = facts ? controlOf(*facts) : nullptr;
    if (control) {
        setting_controls::goTo(control);
    }
}
