#pragma once

#include "dialog/AVCVideoEncoderDlg.h"

/// What a test may know of a dialog beyond what a user sees.
class DialogProbe
{
public:
    explicit DialogProbe(AVCVideoEncoderDlg& dialog) : m_dialog(dialog) {}

    WorkingRecord& record() const { return m_dialog.m_record; }
    int currentView() const { return m_dialog.m_currentView; }
    bool& suppressNextAccept() const { return m_dialog.m_suppressNextAccept; }
    bool& updating() const { return m_dialog.m_updating; }
    bool check() const { return m_dialog.check(); }
    void load(const QString& path) const { m_dialog.loadFromFile(path); }
    void save(const QString& path) const { m_dialog.saveToFile(path); }
    void settingsToState() const { m_dialog.settingsToState(); }
    QString lastLoadDirectory() const { return m_dialog.m_lastLoadDirectory; }
    QString lastSaveDirectory() const { return m_dialog.m_lastSaveDirectory; }
    BasicPage*& basicPage() const { return m_dialog.m_basicPage; }
    AdvancedPage*& advancedPage() const { return m_dialog.m_advancedPage; }
    ViewsPage*& viewsPage() const { return m_dialog.m_viewsPage; }

private:
    AVCVideoEncoderDlg& m_dialog;
};
