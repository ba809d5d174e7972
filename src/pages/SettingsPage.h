#pragma once

#include "model/ConfigState.h"

#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QHash>
#include <QMap>
#include <QSpinBox>
#include <QVector>

#include <functional>

/// The common base of the pages: controls bound to keys. An edit by the user goes out as a state of
/// one entry, and a state that comes back sets every bound control without being echoed.
///
/// A page never holds settings of its own and never sees the settings record.
class SettingsPage : public QFrame
{
    Q_OBJECT

public:
    /// Sets every bound control, in the order of binding. A key that the state lacks reads as an
    /// empty value: no item, the smallest number, not checked, and enabled.
    virtual void receiveState(const ConfigState& state);

    /// The keys that the page's own controls edit, in the order of binding.
    const QStringList& keys() const { return m_keys; }
    /// What edits the key: a control, or the group of buttons of which one is chosen; null when
    /// none of this page's own does.
    const QObject* controlOf(const QString& key) const { return controlKeys.key(key); }
    /// The control itself: of a group the chosen button, or else the first one.
    QWidget* widgetOf(const QString& key) const;
    /// All that a user may take for it: the control, or every button of a group.
    QVector<QWidget*> widgetsOf(const QString& key) const;
    /// How the control shows a value of its key.
    QString textOf(const QString& key, const QVariant& value) const;
    /// The state that an edit of the key to this value reports.
    virtual ConfigState edited(const QString& key, const QVariant& value);
    /// What the page calls that, in the user's language, with the page's own name before it where
    /// it has one.
    QString captionOf(const QString& key) const { return captionOf(widgetOf(key)); }
    QString captionOf(const QWidget* control) const;
    /// The caption with the page's own name before it, where it has one that does not stand there.
    QString withPageName(const QString& caption) const;
    /// The same of a control on no page.
    static QString plainCaptionOf(const QWidget* control);

Q_SIGNALS:
    /// One edit by the user.
    void stateChanged(const ConfigState& state);

protected:
    using StateSetter = std::function<void(const ConfigState&)>;

    explicit SettingsPage(QWidget* parent);

    /// Binds a control to a key, and its change signal to a slot of the page.
    template <class Page>
    void bind(QComboBox* box, const QString& key, void (Page::*slot)(const QString&))
    {
        bindWith(box, key,
                 [this, box](const ConfigState& state) { setComboFromState(box, state); });
        // By the signal that only the user causes, so that a page may set the box.
        connect(box, &QComboBox::textActivated, static_cast<Page*>(this), slot);
    }
    template <class Page>
    void bind(QSpinBox* box, const QString& key, void (Page::*slot)(int))
    {
        bindWith(box, key, [this, box](const ConfigState& state) { setSpinFromState(box, state); });
        connect(box, qOverload<int>(&QSpinBox::valueChanged), static_cast<Page*>(this), slot);
    }
    template <class Page>
    void bind(QAbstractSlider* slider, const QString& key, void (Page::*slot)(int))
    {
        bindWith(slider, key,
                 [this, slider](const ConfigState& state) { setSpinFromState(slider, state); });
        connect(slider, &QAbstractSlider::valueChanged, static_cast<Page*>(this), slot);
    }
    template <class Page>
    void bind(QCheckBox* box, const QString& key, void (Page::*slot)(bool))
    {
        bindWith(box, key,
                 [this, box](const ConfigState& state) { setCheckFromState(box, state); });
        connect(box, &QCheckBox::toggled, static_cast<Page*>(this), slot);
    }
    /// Binds a control that is set in a way of its own; connecting it is left to the page.
    void bindWith(QObject* control, const QString& key, StateSetter setFromState);

    /// The body that the slots share: reports the value under the key of the sender, which is empty
    /// for a control that is not bound.
    void reportEdit(const QVariant& value);
    QString senderKey() const { return keyOf(sender()); }
    QString keyOf(const QObject* control) const { return controlKeys.value(control); }

    /// Set one control from the state's entry for its key, with its signals blocked. One that shows
    /// that already is left alone: the toolkit would paint it again, and lay out what it stands in.
    void setComboFromState(QComboBox* box, const ConfigState& state);
    void setSpinFromState(QSpinBox* box, const ConfigState& state);
    void setSpinFromState(QAbstractSlider* slider, const ConfigState& state);
    void setCheckFromState(QCheckBox* box, const ConfigState& state);

private:
    QMap<const QObject*, QString> controlKeys;
    QStringList m_keys;
    QVector<StateSetter> m_setters;
    /// Of the fields, since they were last set.
    QHash<const QSpinBox*, QString> m_shownTexts;
};
