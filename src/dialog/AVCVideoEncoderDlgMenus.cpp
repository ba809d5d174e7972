// Menus of the log and of the load button, and the lists of settings that open over the dialog.

#include "AVCVideoEncoderDlg.h"

#include "FindBox.h"
#include "LogMenu.h"
#include "RecentFiles.h"
#include "SettingControls.h"
#include "SettingsText.h"
#include "Shortcuts.h"
#include "model/KeyNames.h"
#include "model/SettingFacts.h"
#include "model/SettingsToState.h"
#include "pages/EnglishTips.h"
#include "pages/SettingsPage.h"

#include <QClipboard>
#include <QPointer>

void AVCVideoEncoderDlg::addMenus()
{
    log_menu::attach(ui.errorLog);
    //: In the context menu of the message log: all settings, as lines of text.
    log_menu::add(ui.errorLog, tr("Copy settings as text"), [this] {
        QGuiApplication::clipboard()->setText(settings_text::linesOf(this, allStates(m_record)));
    });
    //: In the context menu of the message log: a list of the settings that differ from those
    //: that the dialog was opened with, or from the last preset or file.
    log_menu::add(ui.errorLog, tr("Show changes"), [this] { showChanges(); });
    if (m_flags & KV_MVC_GUI_FILE_BUTTONS) {
        recent_files::attachMenu(ui.buttonLoad,
                                 [this](const QString& path) { loadRecentFile(path); });
    }
    shortcuts::addMenus(
        this, [this] { findSetting(); },
        [this] {
            if ((m_flags & KV_MVC_GUI_FILE_BUTTONS) && endTyping()) {
                recent_files::showMenu(ui.buttonLoad);
            }
        });
}

ConfigState AVCVideoEncoderDlg::allStates(const WorkingRecord& record) const
{
    const KvMvcViewSettings& view = record.view(m_currentView);
    ConfigState all;
    for (const ConfigState& state : {describeBasic(m_vocabulary, m_flags, view).state,
                                     describeAdvanced(m_vocabulary, m_flags, view),
                                     describeViews(m_vocabulary, m_flags, record)}) {
        const auto& entries = state.entries();
        for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
            all.insert(entry.key(), entry->value, entry->enabled);
        }
    }
    return all;
}

void AVCVideoEncoderDlg::loadRecentFile(const QString& path)
{
    const QPointer<AVCVideoEncoderDlg> self(this);
    if (loadFromFile(path)) {
        recent_files::add(path);
    } else if (self) {
        // Gone, or no settings file any more.
        recent_files::remove(path);
    }
}

void AVCVideoEncoderDlg::findSetting()
{
    if (!endTyping()) {
        return;
    }
    // The one setting that is on no page.
    const QString preset = setting_controls::captionOf(ui.presetList);
    QVector<FindBox::Entry> entries = {{preset,
                                        ui.presetList->toolTip(),
                                        {preset, QStringLiteral("Preset"), keys::videoType},
                                        ui.presetList}};
    const auto settings = settings_text::settingsOf(this);
    for (const settings_text::Setting& setting : settings) {
        const auto facts = settingFacts(setting.key);
        entries += {setting.caption + QStringLiteral(" \u2013 ") + setting.tab,
                    setting.control->toolTip(),
                    {setting.caption, facts ? facts->name : QString(), setting.key,
                     facts ? facts->member : QString(), setting.control->toolTip(),
                     englishTip(setting.page, setting.control), setting.tab},
                    setting.control};
    }
    const FindBox::Texts texts = {tr("Find a setting"), tr("No setting has these words.")};
    (new FindBox(this, texts, entries))->openOver(ui.tabWidget);
}

void AVCVideoEncoderDlg::showChanges()
{
    if (!endTyping()) {
        return;
    }
    const ConfigState before = allStates(m_start->record);
    const ConfigState after = allStates(m_record);
    QVector<FindBox::Entry> entries;
    const auto settings = settings_text::settingsOf(this);
    for (const settings_text::Setting& setting : settings) {
        const QVariant old = before.value(setting.key);
        const QVariant now = after.value(setting.key);
        if (old != now && setting.isCoded()) {
            const QString text = QStringLiteral("%1: %2 \u2192 %3")
                                     .arg(setting.caption, setting.page->textOf(setting.key, old),
                                          setting.page->textOf(setting.key, now));
            entries += {text, setting.control->toolTip(), {text}, setting.control};
        }
    }
    const QString title = m_start->name.isEmpty() ? tr("Changed settings")
                                                  : tr("Changed since: %1").arg(m_start->name);
    (new FindBox(this, {title, tr("No setting has changed.")}, entries))->openOver(ui.tabWidget);
}
