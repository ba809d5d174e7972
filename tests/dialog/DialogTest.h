#pragma once

#include "DialogProbe.h"
#include "RecordCells.h"
#include "RecordingCompanions.h"
#include "UserInput.h"

#include <kv_config_gui_mvc/config_gui.h>

#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTextEdit>

#include <memory>

class QMimeData;

/// The flags of most tests: both tabs and the file buttons, distinct colours, no check at first.
constexpr qint32 usualFlags = KV_MVC_GUI_BASIC_TAB | KV_MVC_GUI_ADVANCED_TAB |
                              KV_MVC_GUI_FILE_BUTTONS | KV_MVC_GUI_NO_INITIAL_CHECK |
                              KV_MVC_GUI_LOG_COLOURS;

/// One open dialog on a caller's record, over recording companions. Made anew for each test, with
/// the process-wide message log as at the start of the process.
class OpenDialog
{
public:
    explicit OpenDialog(qint32 flags = usualFlags);
    /// On a record of the test's own. `prepare` sees the companions before the dialog is built.
    OpenDialog(qint32 flags, const KvMvcSettings& settings,
               const std::function<void(RecordingCompanions&)>& prepare = {});
    OpenDialog(const OpenDialog&) = delete;
    OpenDialog& operator=(const OpenDialog&) = delete;
    ~OpenDialog();

    RecordingCompanions companions;
    KvMvcSettings caller;
    /// The caller's record as it was given.
    const QByteArray given;

    AVCVideoEncoderDlg* operator->() const { return m_dialog.get(); }
    AVCVideoEncoderDlg* get() const { return m_dialog.get(); }
    DialogProbe probe() const { return DialogProbe(*m_dialog); }
    /// Bytes of the working copy of the record.
    QByteArray bytes() const { return bytesOf(probe().record().settings); }
    /// The same with the slots of views 2 and 3 behind it.
    QByteArray bytesOfAllViews() const { return bytesOf(probe().record()); }

    QPushButton* button(const char* name) const;
    QComboBox* presetList() const;
    QTextEdit* log() const;
    QTabWidget* tabs() const;

    /// Replaces the working record's fields and tells the pages, as a check does that corrects
    /// them.
    void put(const Cells& cells);

    /// Drags the data over the tabs and, if they would take it, drops it there.
    /// @return Whether the drop was accepted.
    bool drop(const QMimeData& data) const;
    /// A file with these settings is dropped on the tabs, which loads it.
    void dropSettings(const KvMvcSettings& settings);

private:
    std::unique_ptr<AVCVideoEncoderDlg> m_dialog;
};

/// A control of one of the dialog's pages, by the page's class and its own name.
template <class Control>
Control* on(const OpenDialog& dialog, const char* page, const char* name)
{
    return findControl<Control>(dialog.get(), page, name);
}
