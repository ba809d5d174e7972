#pragma once

#include "SettingsPage.h"

#include <QButtonGroup>

class QLabel;

/// Rate control of one view: what View0Page to View3Page have in common, which is everything but
/// the context of their texts. Each of them builds its layout and then binds the controls.
class ViewPage : public SettingsPage
{
    Q_OBJECT

public:
    /// Fills the mode list; once, after construction.
    void fillBitrateModes();

    /// Of a rate, with what it pulls along.
    ConfigState edited(const QString& key, const QVariant& value) override;

    /// Names the page and, after it, what is on it: the four have the same captions.
    void nameForAccess(const QString& view);

    /// Also shows what fits the mode, and sets labels and limits by the units.
    void receiveState(const ConfigState& state) override;

public Q_SLOTS:
    void slotChangeBitrateMode(const QString& text) { reportEdit(text); }
    void slotChangeTargetRate(int rate);
    void slotChangeMaxRate(int rate);
    void slotChangeBuffer(int size) { reportEdit(size); }
    void slotChangeISize(int bytes) { reportEdit(bytes); }
    void slotChangePSize(int bytes) { reportEdit(bytes); }
    void slotChangeBSize(int bytes) { reportEdit(bytes); }
    void slotChangeBrSize(int bytes) { reportEdit(bytes); }
    void slotChangeQuantI(int quantizer) { reportEdit(quantizer); }
    void slotChangeQuantP(int quantizer) { reportEdit(quantizer); }
    void slotChangeQuantB(int quantizer) { reportEdit(quantizer); }
    void slotChangeQuantMax(int quantizer) { reportEdit(quantizer); }
    void slotChangeQuantMin(int quantizer) { reportEdit(quantizer); }
    void slotChangeHRD(bool on) { reportEdit(on); }
    void slotChangeVBVInitial(int fullness) { reportEdit(fullness); }
    void slotChangeVBVTarget(int fullness) { reportEdit(fullness); }
    void slotChangeUnits(QAbstractButton* button);
    void slotChangeOneSec(bool onesec);

protected:
    /// @param view 0 to 3: the suffix of the page's keys.
    ViewPage(int view, QWidget* parent);

    void bindControls();
    /// The items of the mode list, in the context of the page's own class.
    virtual QStringList bitrateModeTexts() const = 0;

    /// The labels that tell the units.
    struct UnitTexts {
        QString buffer;
        QString vbvInitial;
        QString vbvTarget;
    };
    /// By the units' codes, in the context of the page's own class.
    virtual QVector<UnitTexts> unitTexts() const = 0;

private:
    /// What a new rate sets, under the key that it is reported with.
    ConfigState withTargetRate(const QString& key, int rate);
    ConfigState withMaxRate(const QString& key, int rate);
    ConfigState withUnits(const QString& key, int units);
    /// Keeps the buffer as large as one second at `rate` (bit/s) while the box for it is checked.
    void applyOneSecondBuffer(ConfigState& state, int rate, int units);
    void setGroupFromState(QButtonGroup* group, const ConfigState& state);
    /// Finds what a mode or a choice of units changes; once, when the layout has been built.
    void findRows();
    void showFor(const QString& mode, bool hrd);
    /// Names the label and the control that it is the caption of, for assistive technology.
    void nameLabel(QLabel* label);
    /// Labels, steps and limits of the units, whose code must be a known one.
    void setUnits(int units);
    void setCaption(QLabel* label, const QString& text);
    /// Lifts the limit of a fullness that the state would be cut at.
    void makeRoomFor(QSpinBox* field, const ConfigState& state);
    /// The largest fullness, initial and target, that the page takes.
    void limitFullness(int maximum);

    QString key(QLatin1String base) const;
    template <class Control>
    Control* control(const char* name) const;

    const int m_view;
    QButtonGroup* m_unitGroup;
    QComboBox* m_modeList = nullptr;
    QSpinBox* m_targetRate = nullptr;
    QSpinBox* m_maxRate = nullptr;
    QSpinBox* m_buffer = nullptr;
    QSpinBox* m_vbvInitial = nullptr;
    QSpinBox* m_vbvTarget = nullptr;
    QCheckBox* m_oneSecond = nullptr;
    QCheckBox* m_hrd = nullptr;
    QLabel* m_bufferLabel = nullptr;
    QLabel* m_vbvInitialLabel = nullptr;
    QLabel* m_vbvTargetLabel = nullptr;
    QVector<UnitTexts> m_unitTexts;
    QVector<QWidget*> m_targetRateRow;
    QVector<QWidget*> m_maxRateRow;
    QVector<QWidget*> m_bufferRows;
    QVector<QWidget*> m_quantizerRows;
    QVector<QWidget*> m_sizeRows;

    /// The mode texts as states carry them.
    const QString m_constantBitrate;
    const QString m_variableBitrate;
    const QString m_constantQuantizer;
    const QString m_averageQuantizer;
};
