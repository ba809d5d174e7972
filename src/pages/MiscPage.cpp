#include "MiscPage.h"

#include "model/KeyNames.h"

MiscPage::MiscPage(QWidget* parent) : SettingsPage(parent)
{
    ui.setupUi(this);
    bind(ui.deblockingCheck, keys::deblocking, &MiscPage::slotChangeDeblocking);
    bind(ui.entropyList, keys::entropy, &MiscPage::slotChangeEntropy);
    bind(ui.slicesSpin, keys::slices, &MiscPage::slotChangeSlices);
    bind(ui.threadsSpin, keys::threads, &MiscPage::slotChangeThreads);
}

void MiscPage::fillEntropyList()
{
    ui.entropyList->addItems({tr("CAVLC"), tr("CABAC")});
}
