// What helps the user to find and to understand a setting.

#include "AVCVideoEncoderDlg.h"

#include "MessageLinks.h"
#include "MessageLog.h"
#include "SettingControls.h"
#include "SettingHelp.h"
#include "model/KeyNames.h"
#include "model/SettingFacts.h"

#include <QSpinBox>

#include <algorithm>

void AVCVideoEncoderDlg::buildHelp()
{
    m_help = new SettingHelp(this, m_vocabulary, m_flags);
    new MessageLinks(
        ui.errorLog, [this](const MessageFacts& facts) { return controlOf(facts); },
        &setting_controls::goTo);

    // It reports nothing, and goes back to what the settings have.
    for (int view = 0; view < KV_MVC_MAX_VIEWS; ++view) {
        QWidget* const target = setting_controls::find(this, keys::ofView(keys::vbvTarget, view));
        const auto showAgain = [this] {
            if (!m_updating) {
                QMetaObject::invokeMethod(this, &AVCVideoEncoderDlg::describeAllViews,
                                          Qt::QueuedConnection);
            }
        };
        connect(qobject_cast<QSpinBox*>(target), qOverload<int>(&QSpinBox::valueChanged), this,
                showAgain);
    }
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
    if (m_isClosed || first == told.end() || !first->facts) {
        return;
    }
    if (QWidget* const control = controlOf(*first->facts)) {
        setting_controls::goTo(control);
    }
}
