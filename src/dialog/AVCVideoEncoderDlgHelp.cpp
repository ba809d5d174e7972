// What helps the user to find and to understand a setting.

#include "AVCVideoEncoderDlg.h"

#include "MessageLog.h"
#include "SettingControls.h"
#include "model/SettingFacts.h"

#include <algorithm>

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
    if (m_isClosed || first == told.end() || !first->facts) {
        return;
    }
    if (QWidget* const control = controlOf(*first->facts)) {
        setting_controls::goTo(control);
    }
}
