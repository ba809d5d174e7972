#include "BareDialog.h"

#include "ui_AVCVideoEncoderDlg.h"
#include "ui_AdvancedPage.h"
#include "ui_BasicPage.h"
#include "ui_GOPStructurePage.h"
#include "ui_MiscPage.h"
#include "ui_MotionEstimationPage.h"
#include "ui_RateDistortionPage.h"
#include "ui_VideoFormatPage.h"
#include "ui_View0Page.h"
#include "ui_View1Page.h"
#include "ui_View2Page.h"
#include "ui_View3Page.h"
#include "ui_ViewsPage.h"

#include <QFile>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QToolButton>

namespace
{

QFont weighted(QFont font, QFont::Weight weight)
{
    font.setWeight(weight);
    return font;
}

template <class Layout>
QFrame* makePage(QWidget* parent)
{
    auto* const page = new QFrame(parent);
    Layout().setupUi(page);
    return page;
}

/// The layout classes' names.
bool isPage(const QWidget* widget)
{
    return widget->objectName().startsWith(QLatin1Char('I')) &&
           widget->objectName().endsWith(QLatin1String("Page"));
}

/// What stands for the widget in the other dialog: of the same name, on the page of the same name.
template <class Widget>
const Widget* modelOf(const Widget* widget, const QDialog& like)
{
    const QString name = widget->objectName();
    if (name.isEmpty() || name.startsWith(QLatin1String("qt_"))) {
        return nullptr;
    }
    if (isPage(widget)) {
        return like.findChild<const Widget*>(name);
    }
    const QWidget* page = widget->parentWidget();
    while (page && !isPage(page)) {
        page = page->parentWidget();
    }
    const QWidget* const among = page ? like.findChild<const QWidget*>(page->objectName()) : &like;
    return among ? among->findChild<const Widget*>(name) : nullptr;
}

} // namespace

BareDialog::BareDialog(const QDialog& like)
{
    QFile sheet(QStringLiteral(":/res_mvc/skins/default.qss"));
    sheet.open(QIODevice::ReadOnly);
    setStyleSheet(QString::fromLatin1(sheet.readAll()));
    Ui::IAVCVideoEncoderDlg ui;
    ui.setupUi(this);
    m_tabs = ui.tabWidget;
    m_log = ui.errorLog;
    m_tabs->clear();
    delete ui.basicPage;
    delete ui.advancedPage;
    delete ui.miscPage;

    auto* const stack = m_tabs->findChild<QStackedWidget*>();
    const auto addTab = [&](QWidget* page, const QString& title) {
        m_tabs->addTab(page, title);
        return makeSections(page->findChild<QFrame*>(QStringLiteral("collectionFrame")));
    };
    QWidget* column = addTab(makePage<Ui::IBasicPage>(stack), QStringLiteral("Basic Settings"));
    addSection(column, QStringLiteral("Video Format"), makePage<Ui::IVideoFormatPage>);
    column = addTab(makePage<Ui::IAdvancedPage>(stack), QStringLiteral("Advanced Settings"));
    addSection(column, QStringLiteral("GOP Structure"), makePage<Ui::IGOPStructurePage>);
    addSection(column, QStringLiteral("Motion Estimation"), makePage<Ui::IMotionEstimationPage>);
    addSection(column, QStringLiteral("Rate Distortion"), makePage<Ui::IRateDistortionPage>);
    addSection(column, QStringLiteral("Miscellaneous"), makePage<Ui::IMiscPage>);
    column = addTab(makePage<Ui::IViewsPage>(stack), QStringLiteral("Views"));
    addSection(column, QStringLiteral("Base View"), makePage<Ui::IView0Page>);
    addSection(column, QStringLiteral("View 1"), makePage<Ui::IView1Page>);
    addSection(column, QStringLiteral("View 2"), makePage<Ui::IView2Page>);
    addSection(column, QStringLiteral("View 3"), makePage<Ui::IView3Page>);

    follow(like);
    setMaximumHeight(like.maximumHeight());
    resize(like.size());
}

QWidget* BareDialog::makeSections(QWidget* frame)
{
    auto* const outer = new QVBoxLayout(frame);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* const area = new QScrollArea(frame);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    outer->addWidget(area);
    auto* const column = new QFrame(area->viewport());
    auto* const grid = new QGridLayout(column);
    grid->setAlignment(Qt::AlignTop);
    grid->setContentsMargins(2, 2, 2, 2);
    grid->setColumnStretch(1, 1);
    area->setWidget(column);
    return column;
}

void BareDialog::addSection(QWidget* column, const QString& title,
                            const std::function<QWidget*(QWidget*)>& make)
{
    auto* const grid = static_cast<QGridLayout*>(column->layout());
    const int row = grid->rowCount();
    auto* const button = new QToolButton(column);
    button->setCheckable(true);
    button->setChecked(true);
    button->setAutoRaise(true);
    constexpr int side = 24;
    button->setFixedSize(side, side);
    button->setIcon(QIcon(QStringLiteral(":/res_mvc/icons/down.png")));
    auto* const label = new QLabel(title, column);
    label->setFont(weighted(label->font(), QFont::Bold));
    grid->addWidget(button, row, 0);
    grid->addWidget(label, row, 1);
    grid->addWidget(make(column), row + 1, 0, 1, 2);
}

template <class Control, class Set>
void BareDialog::addSetters(const QDialog& like, Set set)
{
    const auto controls = findChildren<Control*>();
    for (Control* control : controls) {
        const auto* const model = modelOf(control, like);
        if (!model) {
            continue;
        }
        const bool enabled = model->isEnabledTo(model->parentWidget());
        const auto setTo = set(control, *model);
        m_setters.emplace_back([control, enabled, setTo] {
            const QSignalBlocker blocker(control);
            setTo();
            control->setEnabled(enabled);
        });
    }
}

void BareDialog::follow(const QDialog& like)
{
    addSetters<QComboBox>(like, [](QComboBox* box, const QComboBox& shown) {
        for (int i = 0; i < shown.count(); ++i) {
            box->addItem(shown.itemText(i));
        }
        return [box, text = shown.currentText()] {
            box->setCurrentIndex(box->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
        };
    });
    addSetters<QSpinBox>(like, [this](QSpinBox* box, const QSpinBox& shown) {
        box->setRange(shown.minimum(), shown.maximum());
        const bool isWidth = box->objectName() == QLatin1String("widthSpin");
        return
            [this, box, value = shown.value(), isWidth] { box->setValue(isWidth ? width : value); };
    });
    addSetters<QSlider>(like, [](QSlider* slider, const QSlider& shown) {
        return [slider, value = shown.value()] { slider->setValue(value); };
    });
    addSetters<QCheckBox>(like, [](QCheckBox* box, const QCheckBox& shown) {
        return [box, checked = shown.isChecked()] { box->setChecked(checked); };
    });
    addSetters<QRadioButton>(like, [](QRadioButton* button, const QRadioButton& shown) {
        return [button, checked = shown.isChecked()] { button->setChecked(checked); };
    });
    const auto widgets = m_tabs->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        const auto* const model = modelOf(widget, like);
        if (model && isPage(widget)) {
            widget->setEnabled(model->isEnabledTo(model->parentWidget()));
        } else if (model && model->isHidden()) {
            widget->hide();
        }
    }
}

void BareDialog::setAll() const
{
    for (const auto& set : m_setters) {
        set();
    }
}
