#pragma once

#include "CheckFacts.h"
#include "EditHistory.h"
#include "model/ConfigState.h"
#include "model/KeyTable.h"
#include "model/Vocabulary.h"
#include "model/WorkingRecord.h"

#include "ui_AVCVideoEncoderDlg.h"

#include <QDialog>
#include <QPixmap>

#include <kv_config_gui_mvc/config_gui.h>

class AdvancedPage;
class BasicPage;
struct BasicDescription;
class QDropEvent;
class QDragEnterEvent;
class SettingHelp;
class SettingsPage;
class ViewsPage;

/// The settings dialog. It edits a copy of the caller's record and copies it back when the user
/// accepts and the encoder's check does, too.
///
/// Pages report edits as states; each is applied to the copy, the copy is described to all pages
/// again, and then checked. Everything runs on the GUI thread.
class AVCVideoEncoderDlg : public QDialog
{
    Q_OBJECT

public:
    /// @param settings The caller's record, which must outlive the dialog. Null makes an empty
    /// shell.
    /// @param hosting  Flags, title and banner; read here only. May be null.
    AVCVideoEncoderDlg(KvMvcSettings* settings, const KvMvcHosting* hosting, QWidget* parent);
    ~AVCVideoEncoderDlg() override;

    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Closes it; what else would close it afterwards does nothing.
    void done(int result) override;

Q_SIGNALS:
    /// A choice in the dialog's own preset row.
    void stateChanged(const ConfigState& state);

public Q_SLOTS:
    /// Checks the settings; if the encoder accepts them, copies them to the caller and closes.
    void slotAccept();
    void slotReject();
    void slotLoadSettings();
    void slotSaveSettings();
    /// Applies an edit, tells all pages what followed from it, and checks the settings.
    void slotReceiveState(const ConfigState& state);
    void slotChangePreset(const QString& text);
    void slotRestorePreset();

protected:
    void showEvent(QShowEvent* event) override;
    /// What no widget inside takes; files dropped on the tabs the event filter sees to.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void buildPresetRow();
    void buildPages();
    void addPage(SettingsPage* page, const QString& title);
    void limitHeight();
    void showTabInFrontWhole();
    void applySkin(const QString& name);

    /// Describes the working copy to the pages, where nothing that they report meanwhile is
    /// checked, and tells what is said and marked at the controls.
    void settingsToState();
    void tellPages();
    void describeCurrentView();
    void describeAllViews();
    /// Takes a frame rate that is no item of the list, and makes it one.
    void takeFrameRate(const BasicDescription& description);
    void stateToSettings(const ConfigState& state);
    KvMvcViewSettings& currentView() { return m_record.view(m_currentView); }

    /// Makes settings from outside the working copy.
    void takeSettings(const KvMvcSettings& settings);
    /// The encoder's check of the working copy, which it may correct, with its messages in the log.
    /// @return Whether the encoder accepts the settings; false at once while pages are being told,
    /// and when the dialog was closed or its settings checked anew before the encoder returned.
    bool check();
    /// The encoder's part of it; while the dialog is constructed, an exception goes through.
    bool runCheck(KvMvcSettings& settings);

    /// Makes the words and marks at the controls, which follow the working copy and the checks.
    void buildHelp();
    /// The control that a message is about; null without one.
    QWidget* controlOf(const MessageFacts& facts) const;
    void goToFirstError();

    /// Makes a change, and a step of the history of it and of all that follows from it.
    void takeStep(const QString& text, const QString& goesOn, const std::function<void()>& change);
    EditedState editedState() const { return {m_record, m_currentView, m_start}; }
    /// From here on edits are changes of what the settings are now.
    /// @param name Of the preset or file.
    void startHere(const QString& name);
    /// Makes the state that a step of the history comes to the working copy, shows and checks it.
    /// @param message What is told of it, with %1 for the step.
    void turnHistory(std::optional<EditHistory::Turn> (EditHistory::*turn)(),
                     const QString& message);
    /// What the user chose, in words.
    QString describeEdit(const ConfigState& state) const;
    /// The keys of a number that is being changed, by which its changes in a row are known; empty
    /// for other edits.
    QString keysOfNumber(const ConfigState& state) const;

    /// What the log and the load button have in their menus, and Ctrl+F.
    void addMenus();
    /// All that the pages are told of the record.
    ConfigState allStates(const WorkingRecord& record) const;
    void loadRecentFile(const QString& path);
    void findSetting();
    /// Lists what differs from the starting point.
    void showChanges();

    /// @return Whether settings were taken from it.
    bool loadFromFile(const QString& path);
    bool saveToFile(const QString& path);
    /// Takes a number that is still being typed for typed, whether or not something takes the focus
    /// from its field.
    /// @return Whether the dialog is still there: the number was checked.
    bool endTyping();
    void takeDrag(QDragEnterEvent* event);
    void takeDrop(QDropEvent* event);
    void reportPreset(const QString& text);

    KvMvcSettings* m_caller = nullptr;
    WorkingRecord m_record;
    int m_currentView = 0;
    qint32 m_flags = 0;
    /// A hook: set, it makes the next OK do nothing but clear it. Every check clears it, too.
    bool m_suppressNextAccept = false;
    bool m_updating = false;
    EditHistory m_history;
    StartingPointPtr m_start;
    SettingHelp* m_help = nullptr;
    /// What hears of another focus, until the history goes.
    QObject* m_focusWatch = new QObject(this);
    bool m_isTakingStep = false;
    bool m_isUnderConstruction = true;
    bool m_isClosed = false;
    /// How often the encoder's check was called.
    int m_checks = 0;

    Ui::IAVCVideoEncoderDlg ui;
    QPixmap m_banner;
    BasicPage* m_basicPage = nullptr;
    AdvancedPage* m_advancedPage = nullptr;
    ViewsPage* m_viewsPage = nullptr;
    /// All of them, those in other pages, too.
    QList<SettingsPage*> m_pages;

    QMap<const QObject*, QString> m_widgetKeys;
    Vocabulary m_vocabulary;
    CustomFrameRate m_customFrameRate;
    QString m_lastLoadDirectory;
    QString m_lastSaveDirectory;

    friend class DialogProbe;
};
