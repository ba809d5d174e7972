#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

/// Collects what the dialog's module tells of its calls, by the toolkit's logging category
/// "kv.config_gui_mvc". One at a time.
class ModuleTrace
{
public:
    ModuleTrace();
    ~ModuleTrace();
    ModuleTrace(const ModuleTrace&) = delete;
    ModuleTrace& operator=(const ModuleTrace&) = delete;

    [[nodiscard]] static const QStringList& lines();
    /// Why the last call returned an error; empty when none did, or the module does not tell.
    [[nodiscard]] static QString reason();

private:
    QtMessageHandler m_former;
};
