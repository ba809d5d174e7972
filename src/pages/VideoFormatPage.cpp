#include "VideoFormatPage.h"

#include "TextFit.h"
#include "model/KeyNames.h"

namespace
{

void refill(QComboBox* box, const QStringList& items)
{
    box->clear();
    box->addItems(items);
}

} // namespace

VideoFormatPage::VideoFormatPage(QWidget* parent)
    : SettingsPage(parent),
      m_customAspect(tr("Custom")),
      m_aspects{{tr("1:1"), 1.0}, {tr("4:3"), 4.0 / 3}, {tr("16:9"), 16.0 / 9}}
{
    using Page = VideoFormatPage;
    ui.setupUi(this);
    constexpr int besideTwoFields = 150;
    const auto labels = findChildren<QLabel*>();
    for (QLabel* label : labels) {
        text_fit::shrink(label, besideTwoFields);
    }
    bind(ui.widthSpin, keys::horizontalSize, &Page::slotChangeWidth);
    bind(ui.heightSpin, keys::verticalSize, &Page::slotChangeHeight);
    bind(ui.aspectRatioList, keys::pictureAspectRatio, &Page::slotChangeAspectRatio);
    bind(ui.framerateList, keys::frameRate, &Page::slotChangeFramerate);
    bind(ui.pixelXSpin, keys::pixelX, &Page::slotChangePixelX);
    bind(ui.pixelYSpin, keys::pixelY, &Page::slotChangePixelY);
    bind(ui.interlaceList, keys::interlace, &Page::slotChangeInterlace);
    bind(ui.fieldOrderList, keys::fieldOrder, &Page::slotChangeFieldOrder);
    bind(ui.pulldownList, keys::pulldown, &Page::slotChangePulldown);
    bind(ui.chromaList, keys::chromaFormat, &Page::slotChangeChroma);
    bind(ui.bitdepthLList, keys::bitDepthLuma, &Page::slotChangeBitdepthLuma);
    bind(ui.bitdepthCList, keys::bitDepthChroma, &Page::slotChangeBitdepthChroma);
    // A check box stands where its label would: assistive technology looks for one.
    auto* const aspectLabel =
        new QLabel(ui.aspectRatioList->accessibleName(), ui.aspectRatioList->parentWidget());
    aspectLabel->setObjectName(QStringLiteral("aspectRatioLabel"));
    aspectLabel->setBuddy(ui.aspectRatioList);
    aspectLabel->hide();
    // No setting of the record: it only couples the edits that this page reports.
    connect(ui.aspectRatioCheck, &QCheckBox::toggled, this, &Page::slotChangeAspectRatioCheck);
}

void VideoFormatPage::fillLists()
{
    refill(ui.aspectRatioList, {m_customAspect});
    for (const Aspect& aspect : m_aspects) {
        ui.aspectRatioList->addItem(aspect.text);
    }
    refill(ui.framerateList, {tr("7.60"), tr("9.10"), tr("10.00"), tr("12.50"), tr("12.80"),
                              tr("15.00"), tr("23.98"), tr("24.00"), tr("25.00"), tr("29.97"),
                              tr("30.00"), tr("50.00"), tr("59.94"), tr("60.00")});
    refill(ui.interlaceList, {tr("Progressive"), tr("Interlaced"), tr("MBAFF")});
    refill(ui.fieldOrderList, {tr("Top Field First"), tr("Bot Field First")});
    refill(ui.pulldownList, {tr("Off"), tr("2:3"), tr("3:2"), tr("2:3 P"), tr("3:2 P"), tr("Auto"),
                             tr("2:2"), tr("3:3")});
    refill(ui.chromaList, {tr("4:0:0"), tr("4:2:0"), tr("4:2:2")});
    for (QComboBox* depths : {ui.bitdepthLList, ui.bitdepthCList}) {
        refill(depths, {tr("8 bits"), tr("10 bits")});
    }
}

void VideoFormatPage::addFramerateItem(const QString& text)
{
    if (m_extraFrameRateAdded) {
        return;
    }
    ui.framerateList->addItem(text);
    m_extraFrameRateAdded = true;
}

void VideoFormatPage::receiveState(const ConfigState& state)
{
    SettingsPage::receiveState(state);
    const bool sizeIsFree = ui.widthSpin->isEnabledTo(this) && ui.heightSpin->isEnabledTo(this);
    ui.aspectRatioCheck->setEnabled(sizeIsFree);
    ui.aspectRatioList->setEnabled(sizeIsFree);
}

bool VideoFormatPage::isCustomAspect() const
{
    return ui.aspectRatioList->currentText() == m_customAspect;
}

std::optional<double> VideoFormatPage::chosenRatio() const
{
    const QString text = ui.aspectRatioList->currentText();
    for (const Aspect& aspect : m_aspects) {
        if (text == aspect.text) {
            return aspect.ratio;
        }
    }
    return std::nullopt;
}

void VideoFormatPage::addWidthFromHeight(ConfigState& state) const
{
    if (const auto ratio = chosenRatio()) {
        state.insert(keys::horizontalSize, int(ui.heightSpin->value() * *ratio));
    }
}

void VideoFormatPage::addHeightFromWidth(ConfigState& state) const
{
    if (isCustomAspect()) {
        return;
    }
    // Without a choice the present ratio is kept, and the height is reported all the same.
    const int width = ui.widthSpin->value();
    const double present = double(width) / ui.heightSpin->value();
    state.insert(keys::verticalSize, int(width / chosenRatio().value_or(present)));
}

void VideoFormatPage::slotChangeWidth(int width)
{
    ConfigState state;
    state.insert(senderKey(), width);
    if (ui.aspectRatioCheck->isChecked()) {
        addHeightFromWidth(state);
    }
    Q_EMIT stateChanged(state);
}

void VideoFormatPage::slotChangeHeight(int height)
{
    ConfigState state;
    state.insert(senderKey(), height);
    if (ui.aspectRatioCheck->isChecked()) {
        addWidthFromHeight(state);
    }
    Q_EMIT stateChanged(state);
}

void VideoFormatPage::slotChangeAspectRatio(const QString& text)
{
    ConfigState state;
    state.insert(senderKey(), text);
    if (ui.aspectRatioCheck->isChecked()) {
        addWidthFromHeight(state);
    }
    Q_EMIT stateChanged(state);
}

void VideoFormatPage::slotChangeAspectRatioCheck(bool)
{
    ConfigState state;
    // The box itself, whoever calls.
    if (ui.aspectRatioCheck->isChecked()) {
        addWidthFromHeight(state);
    }
    if (!state.entries().isEmpty()) {
        Q_EMIT stateChanged(state);
    }
}
