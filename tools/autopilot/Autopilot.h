#pragma once

#include <QGenericPlugin>
#include <QObject>
#include <QPointer>
#include <QStringList>

class QWidget;

class AutopilotPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "autopilot.json")

public:
    /// @param script Path of the script.
    QObject* create(const QString& key, const QString& script) override;
};

/// Plays a script, one command a line, on the modal dialog that is open; each step runs from the
/// event loop when the dialog is idle. A step that cannot be done ends the program with status 3.
///
/// | command              | does                                                              |
/// |----------------------|-------------------------------------------------------------------|
/// | tab INDEX            | shows a tab of `tabWidget`                                         |
/// | choose LIST TEXT     | chooses an item of a combo box, as the user does                   |
/// | type FIELD TEXT      | replaces the content of a spin box by typing, and leaves the field |
/// | click BUTTON         | clicks a button, found by object name or by accessible name        |
/// | host BUTTON          | clicks a button of the host's own window, when no dialog is open   |
/// | key NAME             | presses a key on the dialog ("F6")                                 |
/// | show WIDGET          | scrolls until the widget is visible                                |
/// | size WIDTH HEIGHT    | resizes the dialog                                                 |
/// | grab FILE            | writes a picture of the dialog                                     |
///
/// Empty lines and lines that start with "#" are skipped. $NAME is a variable of the environment.
class Autopilot : public QObject
{
    Q_OBJECT

public:
    explicit Autopilot(const QStringList& lines);

private:
    void playNext();
    bool isReady(QWidget* dialog);
    void play(QWidget* dialog, const QString& line);

    QStringList m_lines;
    QPointer<QWidget> m_dialog; // that the last step was for
    int m_waited = 0;
};
