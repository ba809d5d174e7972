#include "AVCVideoEncoderDlg.h"

#include "Companions.h"
#include "FocusMark.h"
#include "ForeignText.h"
#include "FrameEdges.h"
#include "LogGround.h"
#include "MessageLog.h"
#include "PaletteCare.h"
#include "SettingHelp.h"
#include "Shortcuts.h"
#include "TipWrap.h"
#include "model/FurtherViews.h"
#include "model/KeyNames.h"
#include "model/SettingsToState.h"
#include "model/StateToSettings.h"
#include "pages/AdvancedPage.h"
#include "pages/BasicPage.h"
#include "pages/ControlLabel.h"
#include "pages/PaletteIcon.h"
#include "pages/TextFit.h"
#include "pages/ToolBox.h"
#include "pages/ViewsPage.h"
#include "pages/WheelGuard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QFile>
#include <QGuiApplication>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShowEvent>
#include <QStackedWidget>
#include <QTabBar>
#include <QtMath>

#include <initializer_list>

namespace
{

/// In the screen's density. Not by way of an icon, which leaves each of them in the toolkit's cache
/// of pictures: that is the host's, and would fill with ours.
QPixmap builtInBanner(double density)
{
    constexpr QSize size(380, 74);
    const int drawn = qBound(1, qCeil(density), 3);
    const QString mark = drawn == 1 ? QString() : QStringLiteral("@%1x").arg(drawn);
    QImage image(QStringLiteral(":/res_mvc/banners/banner%1.png").arg(mark));
    if (const QSize pixels = size * density; !image.isNull() && image.size() != pixels) {
        image = image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    image.setDevicePixelRatio(density);
    return QPixmap::fromImage(image);
}

} // namespace

// Outside any namespace, as the macro demands.
static void registerResources()
{
    Q_INIT_RESOURCE(res_mvc);
}

AVCVideoEncoderDlg::AVCVideoEncoderDlg(KvMvcSettings* settings, const KvMvcHosting* hosting,
                                       QWidget* parent)
    : QDialog(parent), m_flags(hosting ? hosting->flags : 0)
{
    ui.setupUi(this);
    registerResources();

    setWindowTitle(hosting && hosting->title ? foreignText(hosting->title)
                                             : tr("Korvane MVC Video Encoder Settings"));
    if (hosting && hosting->banner) {
        m_banner.load(foreignText(hosting->banner));
    }
    applySkin(QStringLiteral("default"));
    const struct {
        QPushButton* button;
        const char* icon;
    } icons[] = {{ui.presetButton, "restore"},
                 {ui.buttonLoad, "load"},
                 {ui.buttonSave, "save"},
                 {ui.buttonOk, "ok"},
                 {ui.buttonCancel, "cancel"}};
    for (const auto& row : icons) {
        PaletteIcon::set(row.button,
                         QStringLiteral(":/res_mvc/icons/%1.png").arg(QLatin1String(row.icon)));
    }
    // Before what is drawn over them.
    for (QWidget* framed : std::initializer_list<QWidget*>{
             ui.presetFrame, ui.infoFrame, ui.errorLog, ui.tabWidget, ui.buttonFrame}) {
        new FrameEdges(framed);
    }
    new FocusMark(ui.buttonOk);
    new FocusMark(ui.errorLog);
    new LogGround(ui.errorLog);
    if (!settings) {
        return;
    }

    buildPresetRow();
    m_caller = settings;
    takeSettings(*settings);
    startHere({});
    messageLog().showIn(ui.errorLog);
    ui.bannerFrame->setHidden(m_flags & KV_MVC_GUI_NO_BANNER);
    connect(ui.presetList, &QComboBox::textActivated, this, &AVCVideoEncoderDlg::slotChangePreset);
    connect(ui.presetButton, &QPushButton::clicked, this, &AVCVideoEncoderDlg::slotRestorePreset);
    connect(this, &AVCVideoEncoderDlg::stateChanged, this, &AVCVideoEncoderDlg::slotReceiveState);
    buildPages();
    buildHelp();

    if (!(m_flags & KV_MVC_GUI_FILE_BUTTONS)) {
        ui.buttonLoad->hide();
        ui.buttonSave->hide();
    } else if (!(m_flags & KV_MVC_GUI_NO_INITIAL_CHECK)) {
        check();
    }
    // After the first check, whose messages thus keep their colours until the next one.
    if (!(m_flags & KV_MVC_GUI_LOG_COLOURS)) {
        messageLog().dropDistinctColours();
    }
    new PaletteCare(this);
    new TipWrap(this);
    limitHeight();
    settingsToState();
    showTabInFrontWhole();

    addMenus();
    shortcuts::add(this, ui.tabWidget, ui.errorLog);
    shortcuts::addHistory(
        this, [this] { turnHistory(&EditHistory::undo, tr("Undo: %1")); },
        [this] { turnHistory(&EditHistory::redo, tr("Redo: %1")); });
    connect(qApp, &QApplication::focusChanged, m_focusWatch, [this] { m_history.interrupt(); });
    m_lastLoadDirectory = QStringLiteral("./");
    m_lastSaveDirectory = QStringLiteral("./");
    ui.tabWidget->setAcceptDrops(true);
    setAcceptDrops(true);
    ui.tabWidget->installEventFilter(this);
    installEventFilter(this);
    m_isUnderConstruction = false;
}

AVCVideoEncoderDlg::~AVCVideoEncoderDlg()
{
    delete m_focusWatch;
    // A field that loses the focus while the dialog is deleted still reports what was typed.
    for (SettingsPage* page :
         std::initializer_list<SettingsPage*>{m_basicPage, m_advancedPage, m_viewsPage}) {
        if (page) {
            page->disconnect(this);
        }
    }
}

void AVCVideoEncoderDlg::buildPresetRow()
{
    m_widgetKeys = {{ui.presetList, keys::videoType}, {ui.presetButton, keys::restorePreset}};
    ui.presetList->clear();
    ui.presetList->addItems(m_vocabulary.videoTypes().keys());
    // A turn of the wheel in passing would replace every setting.
    WheelGuard::protect(ui.presetList);
    text_fit::shrink(ui.presetList);
    constexpr int besideListAndButtons = 110;
    text_fit::shrink(ui.presetLabel, besideListAndButtons);
    ControlLabel::attachBuddies(ui.presetList);
}

void AVCVideoEncoderDlg::buildPages()
{
    // The layout's own pages stand for the real ones at design time only.
    ui.tabWidget->clear();
    QWidget* const designTimePages[] = {ui.basicPage, ui.advancedPage, ui.miscPage};
    for (QWidget* page : designTimePages) {
        delete page;
    }

    // Built where they stay: elsewhere each widget would be styled a second time, and each list
    // make what it opens at once.
    auto* const stack = ui.tabWidget->findChild<QStackedWidget*>();
    if (m_flags & KV_MVC_GUI_BASIC_TAB) {
        m_basicPage = new BasicPage(stack);
        addPage(m_basicPage, tr("Basic Settings"));
    }
    if (m_flags & KV_MVC_GUI_ADVANCED_TAB) {
        m_advancedPage = new AdvancedPage(stack);
        m_advancedPage->setProfileLevelLists(m_vocabulary.profiles(), m_vocabulary.levels());
        addPage(m_advancedPage, tr("Advanced Settings"));
    }
    m_viewsPage = new ViewsPage(stack);
    addPage(m_viewsPage, tr("Views"));
    m_pages = findChildren<SettingsPage*>();

    text_fit::shrink(ui.tabWidget->tabBar());

    // The pages came last, but stand before the buttons. Labels are in the chain, too.
    QWidget* last = previousInFocusChain();
    while (last->focusPolicy() == Qt::NoFocus || last->focusProxy()) {
        last = last->previousInFocusChain();
    }
    setTabOrder(last, ui.buttonCancel);
    setTabOrder(ui.buttonCancel, ui.buttonOk);
}

void AVCVideoEncoderDlg::addPage(SettingsPage* page, const QString& title)
{
    ui.tabWidget->addTab(page, title);
    connect(page, &SettingsPage::stateChanged, this, &AVCVideoEncoderDlg::slotReceiveState);
}

void AVCVideoEncoderDlg::limitHeight()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) {
        return;
    }
    const int limit = int(screen->availableGeometry().height() * 0.95);
    // The layout's minimum is too much for a small screen, whose user needs the buttons at the end.
    setMinimumHeight(qMin(minimumHeight(), limit));
    setMaximumHeight(limit);
}

void AVCVideoEncoderDlg::showTabInFrontWhole()
{
    // Of the tab that fits a usual screen, the only one for which more height is worth its place.
    if (!m_basicPage) {
        return;
    }
    // What stands beside the sections.
    constexpr int beside = 34;
    const int missing = m_basicPage->findChild<ToolBox*>()->missingHeight(width() - beside);
    resize(width(), qMax(height(), sizeHint().height() + missing));
}

void AVCVideoEncoderDlg::applySkin(const QString& name)
{
    QFile sheet(QLatin1String(":/") + QLatin1String("res_mvc") + QLatin1String("/skins/") + name +
                QLatin1String(".qss"));
    QString text;
    if (sheet.open(QIODevice::ReadOnly)) {
        text = QString::fromLatin1(sheet.readAll());
    }
    // Setting a sheet anew costs as much as another one, even the same.
    if (styleSheet() != text) {
        setStyleSheet(text);
    }

    if (m_banner.isNull()) {
        ui.bannerFrame->setPixmap(builtInBanner(qApp->devicePixelRatio()));
    } else {
        ui.bannerFrame->setAlignment(Qt::AlignCenter);
        ui.bannerFrame->setPixmap(m_banner);
    }
}

void AVCVideoEncoderDlg::settingsToState()
{
    tellPages();
    m_help->follow(m_record, m_currentView, m_start);
}

void AVCVideoEncoderDlg::tellPages()
{
    describeCurrentView();
    describeAllViews();
}

void AVCVideoEncoderDlg::describeCurrentView()
{
    const QScopedValueRollback<bool> updating(m_updating, true);
    const KvMvcViewSettings& view = currentView();

    const ConfigEntry videoType = describeVideoType(m_vocabulary, m_flags, view);
    ui.presetList->setCurrentIndex(ui.presetList->findText(videoType.value.toString()));
    ui.presetList->setEnabled(videoType.enabled);

    const BasicDescription basic = describeBasic(m_vocabulary, m_flags, view);
    takeFrameRate(basic);
    if (m_basicPage) {
        m_basicPage->receiveState(basic.state);
    }
    if (m_advancedPage) {
        m_advancedPage->receiveState(describeAdvanced(m_vocabulary, m_flags, view));
    }
}

void AVCVideoEncoderDlg::takeFrameRate(const BasicDescription& description)
{
    if (!description.customFrameRate) {
        return;
    }
    m_customFrameRate = *description.customFrameRate;
    if (m_basicPage) {
        m_basicPage->addFramerateItem(m_customFrameRate.text);
    }
}

void AVCVideoEncoderDlg::describeAllViews()
{
    const QScopedValueRollback<bool> updating(m_updating, true);
    m_viewsPage->receiveState(describeViews(m_vocabulary, m_flags, m_record));
}

void AVCVideoEncoderDlg::stateToSettings(const ConfigState& state)
{
    const auto preset = requestedPreset(m_vocabulary, state);
    bool isNew = false;
    if (preset && companionFunctions().defaults) {
        // On a copy, as the check.
        const QPointer<AVCVideoEncoderDlg> self(this);
        alignas(8) KvMvcSettings settings = m_record.settings;
        const auto call = [&] {
            const auto result = companionFunctions().defaults(&settings, 0, *preset, 0);
            trace::say([&] {
                return QStringLiteral(KV_MVC_ENCODER_DEFAULTS ", preset %1: %2")
                    .arg(*preset)
                    .arg(result);
            });
        };
        const bool thrown = thrownBy(KV_MVC_ENCODER_DEFAULTS, call).has_value();
        if (!self) {
            return;
        }
        if (!thrown) {
            takeSettings(settings);
            isNew = true;
        }
    }

    const Applying edit{m_vocabulary, m_customFrameRate, state};
    const int views = m_record.viewCount();
    for (int view = 0; view < views; ++view) {
        m_currentView = view;
        applyToView(edit, currentView());
        // All that stays of a description when the next one comes.
        takeFrameRate(describeBasic(m_vocabulary, m_flags, currentView()));
    }
    applyViews(edit, m_record);
    if (isNew) {
        startHere(describeEdit(state));
    }
}

void AVCVideoEncoderDlg::slotReceiveState(const ConfigState& state)
{
    // An empty shell has no pages to tell.
    if (!m_caller) {
        return;
    }
    const QPointer<AVCVideoEncoderDlg> self(this);
    const auto apply = [&] {
        stateToSettings(state);
        if (self) {
            // The check tells the rest of what the pages are told.
            tellPages();
            check();
        }
    };
    // What a page clamps while it is told is no step of the user's.
    if (m_updating) {
        apply();
    } else {
        takeStep(describeEdit(state), keysOfNumber(state), apply);
    }
}

void AVCVideoEncoderDlg::takeSettings(const KvMvcSettings& settings)
{
    m_record.settings = settings;
    resetFurtherViews(m_record);
}

bool AVCVideoEncoderDlg::check()
{
    if (m_updating || !m_caller) {
        return false;
    }
    messageLog().clearMessages();
    // On a copy: the check may handle events, and meanwhile the host may delete the dialog, or the
    // user go on.
    const QPointer<AVCVideoEncoderDlg> self(this);
    const int number = ++m_checks;
    alignas(8) KvMvcSettings settings = m_record.settings;
    bool accepted = false;
    {
        const RunningCheck running;
        accepted = runCheck(settings);
    }
    // Settings that another check has seen meanwhile, and shown, are not these any more.
    if (!self || m_isClosed || number != m_checks) {
        return false;
    }
    m_record.settings = settings;
    followSecondView(m_record);
    settingsToState();

    m_suppressNextAccept = false;
    messageLog().rewriteWidget();
    m_help->showMessages(messageLog().told);
    m_help->showLimits(messageLog().limits);
    return accepted;
}

bool AVCVideoEncoderDlg::runCheck(KvMvcSettings& settings)
{
    const auto encoderCheck = companionFunctions().check;
    const KvMvcSettings given = settings;
    bool accepted = false;
    const auto call = [&] {
        if (!encoderCheck) {
            return;
        }
        const auto result = encoderCheck(&lookUpCheckFunction, &settings, KV_MVC_CHECK_STAGE, 0);
        trace::say([&] { return QStringLiteral(KV_MVC_ENCODER_CHECK ": %1").arg(result); });
        accepted = result == 0;
    };
    if (m_isUnderConstruction) {
        // Nothing is shown yet: who constructs it is told.
        call();
        return accepted;
    }
    const auto thrown = thrownBy(KV_MVC_ENCODER_CHECK, call);
    if (thrown) {
        settings = given;
        messageLog().addError(tr("The encoder failed to check the settings.") +
                              (thrown->isEmpty() ? QString() : QLatin1Char(' ') + *thrown));
    }
    return accepted;
}

void AVCVideoEncoderDlg::slotAccept()
{
    if (m_suppressNextAccept) {
        m_suppressNextAccept = false;
        return;
    }
    // The log is another dialog's then.
    if (!m_caller) {
        return;
    }
    const QPointer<AVCVideoEncoderDlg> self(this);
    if (!endTyping()) {
        return;
    }
    if (!check()) {
        // The same messages may have been there before: that nothing happened must not be all.
        if (self) {
            messageLog().pointOutError();
        }
        if (self) {
            goToFirstError();
        }
        return;
    }
    *m_caller = m_record.settings;
    accept();
}

bool AVCVideoEncoderDlg::endTyping()
{
    const QPointer<AVCVideoEncoderDlg> self(this);
    if (auto* const field = qobject_cast<QAbstractSpinBox*>(focusWidget())) {
        field->interpretText();
    }
    return self;
}

void AVCVideoEncoderDlg::done(int result)
{
    // The first word counts: a check that handles events may hear another one before it returns.
    if (m_isClosed) {
        return;
    }
    const QPointer<AVCVideoEncoderDlg> self(this);
    m_isClosed = true;
    const bool wasOpen = isVisible();
    QDialog::done(result);
    // A host may have refused it, and what was not open can still be used.
    if (self && (isVisible() || !wasOpen)) {
        m_isClosed = false;
    }
}

void AVCVideoEncoderDlg::showEvent(QShowEvent* event)
{
    // Not when the window system shows it again.
    if (!event->spontaneous()) {
        m_isClosed = false;
        // Also where the host has made it the active window before it was shown, when the toolkit
        // found another place for the focus: the tab bar has no setting that a key could change.
        ui.tabWidget->setFocus();
    }
    QDialog::showEvent(event);
}

void AVCVideoEncoderDlg::slotReject()
{
    reject();
}

void AVCVideoEncoderDlg::slotChangePreset(const QString& text)
{
    reportPreset(text);
}

void AVCVideoEncoderDlg::slotRestorePreset()
{
    reportPreset(ui.presetList->currentText());
}

void AVCVideoEncoderDlg::reportPreset(const QString& text)
{
    ConfigState state;
    state.insert(m_widgetKeys.value(sender()), text);
    Q_EMIT stateChanged(state);
}
