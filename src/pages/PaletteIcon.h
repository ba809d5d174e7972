#pragma once

#include <QObject>
#include <QStringList>

class QAbstractButton;

/// The icon of a button in lighter tones while the button's text is light: pictures that stand out
/// from white and from black alike do so from the greys between them no more.
class PaletteIcon : public QObject
{
public:
    /// @param expanded, collapsed Image files of the checked state and of the other; the same for a
    /// button that has but one.
    static void set(QAbstractButton* button, const QString& expanded, const QString& collapsed);
    static void set(QAbstractButton* button, const QString& file) { set(button, file, file); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    PaletteIcon(QAbstractButton* button, const QString& expanded, const QString& collapsed);
    bool isOnDark() const;
    void show(bool light);

    QAbstractButton* m_button;
    QString m_expanded;
    QString m_collapsed;
    bool m_light = false;
};
