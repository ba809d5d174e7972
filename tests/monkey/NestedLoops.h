#pragma once

#include "Random.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

class QFileDialog;
class QWidget;

/// Ends the event loops that an event of the monkey's starts and waits for: of file dialogs,
/// message boxes and menus. File dialogs get one of a few names, or are left; nothing else is done
/// in them, since they can delete files.
class NestedLoops : public QObject
{
public:
    NestedLoops();

    /// Names for file dialogs.
    void setFiles(const QStringList& files) { m_files = files; }
    /// An event begins, or has ended. `seed` decides what is done in a loop meanwhile.
    void begin(quint32 seed);
    void end();
    /// How many windows were answered.
    int answered() const { return m_answered; }

private:
    void look();
    void answer(QWidget* window);
    void answerFileDialog(QFileDialog* dialog);

    QTimer m_timer;
    QStringList m_files;
    Random m_random;
    bool m_isBusy = false;
    int m_looks = 0;
    int m_answered = 0;
};
