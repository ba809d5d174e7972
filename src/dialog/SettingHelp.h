#pragma once

#include "CheckFacts.h"
#include "StartingPoint.h"
#include "model/ConfigState.h"
#include "model/SettingFacts.h"
#include "model/Vocabulary.h"

#include <QObject>
#include <QVector>

#include <optional>
#include <utility>

class QDialog;
class QSpinBox;
class SettingsPage;

/// What the dialog tells at its controls: in the tips what a setting may be, where it started, why
/// it is greyed and what the check says of it; marks at what is changed or has a message; and a
/// word on a number while it is typed.
class SettingHelp : public QObject
{
    Q_OBJECT

public:
    /// Of all controls that the dialog has now; owned by it.
    /// @param flags The host's.
    SettingHelp(QDialog* dialog, const Vocabulary& vocabulary, qint32 flags);

    /// Follows the record, of which the controls show this view.
    void follow(const WorkingRecord& record, int view, const StartingPointPtr& start);
    /// Tells what a check has said, until the next one.
    void showMessages(const QVector<CheckMessage>& messages);
    /// How much of the limits is used, in the tip of the level.
    void showLimits(const QVector<LimitUse>& limits);

    /// Whether the setting is not as it was at the starting point.
    bool isChanged(const QString& key) const;
    /// What it was there; invalid where no value of the control stands for it.
    QVariant startOf(const QString& key) const { return m_startState.value(key); }
    /// The same as the control shows it.
    QString startTextOf(const QString& key) const;

private:
    struct Row {
        QString key;
        SettingsPage* page; ///< null: the dialog's own
        QVector<QWidget*> widgets;
        SettingFacts facts;

        /// What is told of it now.
        std::optional<std::pair<int, int>> range = {};
        bool isFactTold = false;
        bool isChanged = false;
        const QWidget* chosen = nullptr;
        bool isEnabled = true;
        bool isPageEnabled = true;
        bool hasMessages = false;
    };

    void addRows(SettingsPage* page);
    void addHints(const Row& row);
    void describeStart(int view);
    static void tellFacts(Row& row);
    void tellStart(Row& row, bool isNew, bool isChanged);
    void tellReason(Row& row) const;
    QString reasonOf(const Row& row) const;
    const Row* rowOf(const QString& key) const;

    QDialog* const m_dialog;
    const Vocabulary& m_vocabulary;
    const qint32 m_flags;
    QVector<Row> m_rows;
    StartingPointPtr m_start;
    int m_startView = -1;
    ConfigState m_startState;
};
