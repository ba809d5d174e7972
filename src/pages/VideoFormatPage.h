#pragma once

#include "SettingsPage.h"

#include "ui_VideoFormatPage.h"

#include <optional>

/// Picture size and shape, frame rate, interlacing, chroma format and bit depths.
class VideoFormatPage : public SettingsPage
{
    Q_OBJECT

public:
    explicit VideoFormatPage(QWidget* parent = nullptr);

    /// Fills the lists; once, after construction.
    void fillLists();

    /// Adds a frame rate that the list lacks. Only the first call adds one: the list holds at most
    /// one further rate for the life of the page.
    void addFramerateItem(const QString& text);

    /// Also lets the aspect ratio be chosen only while both sizes may be changed.
    void receiveState(const ConfigState& state) override;

public Q_SLOTS:
    void slotChangeWidth(int width);
    void slotChangeHeight(int height);
    void slotChangeAspectRatio(const QString& text);
    void slotChangeFramerate(const QString& text) { reportEdit(text); }
    void slotChangePixelX(int value) { reportEdit(value); }
    void slotChangePixelY(int value) { reportEdit(value); }
    void slotChangeInterlace(const QString& text) { reportEdit(text); }
    void slotChangeFieldOrder(const QString& text) { reportEdit(text); }
    void slotChangePulldown(const QString& text) { reportEdit(text); }
    void slotChangeChroma(const QString& text) { reportEdit(text); }
    void slotChangeBitdepthChroma(const QString& text) { reportEdit(text); }
    void slotChangeBitdepthLuma(const QString& text) { reportEdit(text); }
    void slotChangeAspectRatioCheck(bool);

private:
    bool isCustomAspect() const;
    /// The ratio of width to height that `aspectRatioList` shows, when it shows one.
    std::optional<double> chosenRatio() const;
    void addWidthFromHeight(ConfigState& state) const;
    void addHeightFromWidth(ConfigState& state) const;

    struct Aspect {
        QString text;
        double ratio;
    };

    Ui::IVideoFormatPage ui;
    bool m_extraFrameRateAdded = false;
    /// The list's texts as the aspect ratio arithmetic compares them.
    const QString m_customAspect;
    const QVector<Aspect> m_aspects;
};
