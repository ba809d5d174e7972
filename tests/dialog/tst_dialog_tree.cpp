// The dialog's widgets as hosts' documents, skins and screen readers know them.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QMetaMethod>
#include <QSplitter>
#include <QTest>
#include <QToolButton>

namespace
{

constexpr int unlimited = 16777215;

/// Where the dialog's tree fixes no size, or another test looks at it.
constexpr QSize anySize;

QStringList ownMethods(const QMetaObject& type, QMetaMethod::MethodType kind)
{
    QStringList names;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        if (type.method(i).methodType() == kind) {
            names += QString::fromLatin1(type.method(i).methodSignature());
        }
    }
    return names;
}

} // namespace

/// The layout without a skin.
class BareLayout : public QDialog
{
    Q_OBJECT

public:
    BareLayout() { Ui::IAVCVideoEncoderDlg().setupUi(this); }

public Q_SLOTS:
    void slotAccept() {}
    void slotReject() {}
    void slotLoadSettings() {}
    void slotSaveSettings() {}
};

class TestDialogTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void dialogItself();
    void titleOfTheLayout();
    void widgets_data();
    void widgets();
    void parents_data();
    void parents();
    void layouts_data();
    void layouts();
    void orderInRows();
    void rows_data();
    void rows();
    void buttonsAreSquareAndFixed_data();
    void buttonsAreSquareAndFixed();
    void buttons_data();
    void buttons();
    void frames_data();
    void frames();
    void presetLabelIsPlainBoldText();
    void logIsReadOnly();
    void splitterChildrenStayOpen();
    void sectionsAreOpenInEveryDialog();
    void tabWidgetProperties();
    void designTimePagesAreGone();
    void signalsAndSlotsInOrder();
    void widthIsFixedAt400();
    void tabKeyRunsFromTopToBottom();
};

void TestDialogTree::dialogItself()
{
    OpenDialog dialog;
    QCOMPARE(dialog->objectName(), QStringLiteral("IAVCVideoEncoderDlg"));
    QCOMPARE(dialog->minimumSize(), QSize(400, 500));
    QCOMPARE(dialog->focusPolicy(), Qt::StrongFocus);
    QVERIFY(!dialog->isSizeGripEnabled());
    QVERIFY(dialog->inherits("QDialog"));
}

void TestDialogTree::titleOfTheLayout()
{
    QCOMPARE(BareLayout().windowTitle(), QStringLiteral("Korvane AVC Video Encoder Dialog"));
}

void TestDialogTree::widgets_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QSize>("smallest");
    QTest::addColumn<QSize>("largest");
    QTest::addColumn<QString>("toolTip");

    const auto row = [](const char* name, const char* type, QSize smallest, QSize largest,
                        const char* toolTip = nullptr) {
        QTest::newRow(name) << QString::fromLatin1(type) << smallest << largest
                            << (toolTip ? QString::fromLatin1(toolTip) : QString());
    };
    row("bannerFrame", "QLabel", {16, 75}, {unlimited, 75});
    row("presetFrame", "QFrame", anySize, {unlimited, 50});
    row("presetLabel", "QLabel", anySize, {unlimited, unlimited});
    row("presetList", "QComboBox", {140, 20}, {unlimited, unlimited});
    row("presetButton", "QPushButton", anySize, anySize,
        "Click this button to load/restore the default settings for selected preset.");
    row("buttonLoad", "QPushButton", anySize, anySize);
    row("buttonSave", "QPushButton", anySize, anySize);
    row("splitter", "QSplitter", anySize, {unlimited, unlimited});
    row("infoFrame", "QFrame", {0, 24}, {unlimited, 98}, "Info Window");
    row("errorLog", "QTextEdit", {100, 2}, {unlimited, 80});
    row("tabWidget", "QTabWidget", {320, 200}, {unlimited, unlimited});
    row("buttonFrame", "QFrame", anySize, {unlimited, unlimited});
    row("buttonCancel", "QPushButton", anySize, anySize);
    row("buttonOk", "QPushButton", anySize, anySize);
}

void TestDialogTree::widgets()
{
    QFETCH(QString, type);
    QFETCH(QSize, smallest);
    QFETCH(QSize, largest);
    QFETCH(QString, toolTip);
    OpenDialog dialog;
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const QWidget* const widget = findOnly(dialog.get(), type, name);
    QVERIFY(widget);
    if (smallest != anySize) {
        QCOMPARE(widget->minimumSize(), smallest);
    }
    if (largest != anySize) {
        QCOMPARE(widget->maximumSize(), largest);
    }
    if (!toolTip.isEmpty()) {
        QCOMPARE(widget->toolTip(), toolTip);
    }
}

void TestDialogTree::parents_data()
{
    QTest::addColumn<QString>("parent");
    QTest::newRow("bannerFrame") << QStringLiteral("IAVCVideoEncoderDlg");
    QTest::newRow("presetFrame") << QStringLiteral("IAVCVideoEncoderDlg");
    for (const char* name :
         {"presetLabel", "presetList", "presetButton", "buttonLoad", "buttonSave"}) {
        QTest::newRow(name) << QStringLiteral("presetFrame");
    }
    QTest::newRow("splitter") << QStringLiteral("IAVCVideoEncoderDlg");
    QTest::newRow("infoFrame") << QStringLiteral("splitter");
    QTest::newRow("errorLog") << QStringLiteral("infoFrame");
    QTest::newRow("tabWidget") << QStringLiteral("splitter");
    QTest::newRow("buttonFrame") << QStringLiteral("IAVCVideoEncoderDlg");
    QTest::newRow("buttonCancel") << QStringLiteral("buttonFrame");
    QTest::newRow("buttonOk") << QStringLiteral("buttonFrame");
}

void TestDialogTree::parents()
{
    QFETCH(QString, parent);
    OpenDialog dialog;
    const auto* widget = dialog->findChild<QWidget*>(QLatin1String(QTest::currentDataTag()));
    QVERIFY(widget);
    QCOMPARE(widget->parentWidget()->objectName(), parent);
}

void TestDialogTree::layouts_data()
{
    QTest::addColumn<QString>("owner");
    QTest::addColumn<bool>("vertical");
    QTest::newRow("vboxLayout") << QStringLiteral("IAVCVideoEncoderDlg") << true;
    QTest::newRow("hboxLayout") << QStringLiteral("presetFrame") << false;
    QTest::newRow("hboxLayout1") << QStringLiteral("infoFrame") << false;
    QTest::newRow("hboxLayout2") << QStringLiteral("buttonFrame") << false;
}

void TestDialogTree::layouts()
{
    QFETCH(QString, owner);
    QFETCH(bool, vertical);
    OpenDialog dialog;
    const QWidget* const widget = owner == dialog->objectName()
                                      ? static_cast<QWidget*>(dialog.get())
                                      : dialog->findChild<QWidget*>(owner);
    const auto* layout = qobject_cast<QBoxLayout*>(widget->layout());
    QVERIFY(layout);
    QCOMPARE(layout->objectName(), QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(layout->direction(), vertical ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    QCOMPARE(layout->spacing(), 6);
    QCOMPARE(layout->contentsMargins(), QMargins(11, 11, 11, 11));
}

void TestDialogTree::orderInRows()
{
    OpenDialog dialog;
    const auto leftOf = [&](const char* left, const char* right) {
        const auto* a = dialog->findChild<QWidget*>(QLatin1String(left));
        const auto* b = dialog->findChild<QWidget*>(QLatin1String(right));
        return a->geometry().right() < b->geometry().left();
    };
    const char* presetRow[] = {"presetLabel", "presetList", "presetButton", "buttonLoad",
                               "buttonSave"};
    for (int i = 1; i < 5; ++i) {
        QVERIFY2(leftOf(presetRow[i - 1], presetRow[i]), presetRow[i]);
    }
    QVERIFY(leftOf("buttonCancel", "buttonOk"));
}

void TestDialogTree::rows_data()
{
    QTest::addColumn<QString>("items");
    const auto row = [](const char* layout, const char* items) {
        QTest::newRow(layout) << QString::fromLatin1(items);
    };
    // A spacer by the size that it asks for.
    row("vboxLayout", "bannerFrame presetFrame splitter buttonFrame");
    row("hboxLayout", "presetLabel 33x20 presetList presetButton 35x20 buttonLoad buttonSave");
    row("hboxLayout1", "errorLog");
    row("hboxLayout2", "299x20 buttonCancel buttonOk");
}

void TestDialogTree::rows()
{
    QFETCH(QString, items);
    const BareLayout bare;
    const auto* layout = bare.findChild<QLayout*>(QLatin1String(QTest::currentDataTag()));
    QVERIFY(layout);
    QStringList found;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem* const item = layout->itemAt(i);
        if (const QWidget* const widget = item->widget()) {
            found += widget->objectName();
        } else {
            found += QStringLiteral("%1x%2")
                         .arg(item->sizeHint().width())
                         .arg(item->sizeHint().height());
            QCOMPARE(item->expandingDirections(), Qt::Orientations(Qt::Horizontal));
        }
    }
    QCOMPARE(found.join(QLatin1Char(' ')), items);
}

void TestDialogTree::buttonsAreSquareAndFixed_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"presetButton", "buttonLoad", "buttonSave", "buttonCancel", "buttonOk"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void TestDialogTree::buttonsAreSquareAndFixed()
{
    QFETCH(QString, name);
    BareLayout bare;
    const auto* button = bare.findChild<QPushButton*>(name);
    QCOMPARE(button->minimumSize(), QSize(24, 24));
    QCOMPARE(button->maximumSize(), QSize(24, 24));

    // A skin's 24 pixels are those inside the frame that the style draws.
    OpenDialog dialog;
    button = dialog->findChild<QPushButton*>(name);
    QCOMPARE(button->minimumSize(), button->maximumSize());
    QCOMPARE(button->width(), button->height());
    QVERIFY(button->width() >= 24 && button->width() <= 30);
}

void TestDialogTree::buttons_data()
{
    QTest::addColumn<QString>("icon");
    QTest::addColumn<bool>("autoDefault");
    QTest::addColumn<bool>("isDefault");
    QTest::addColumn<QString>("shortcut");
    QTest::newRow("presetButton") << QStringLiteral("restore") << true << false << QString();
    QTest::newRow("buttonLoad") << QStringLiteral("load") << true << false
                                << QStringLiteral("Alt+L");
    QTest::newRow("buttonSave") << QStringLiteral("save") << true << false
                                << QStringLiteral("Alt+S");
    QTest::newRow("buttonCancel") << QStringLiteral("cancel") << true << false << QString();
    QTest::newRow("buttonOk") << QStringLiteral("ok") << true << true << QString();
}

void TestDialogTree::buttons()
{
    QFETCH(QString, icon);
    QFETCH(bool, autoDefault);
    QFETCH(bool, isDefault);
    QFETCH(QString, shortcut);
    OpenDialog dialog;
    const QPushButton* const button = dialog.button(QTest::currentDataTag());
    QVERIFY(button);
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->autoDefault(), autoDefault);
    QCOMPARE(button->isDefault(), isDefault);
    QCOMPARE(button->shortcut(), QKeySequence(shortcut));
    QCOMPARE(button->styleSheet(), QString());

    // The picture of that name, not just any.
    const QPixmap picture(QStringLiteral(":/res_mvc/icons/%1.png").arg(icon));
    QVERIFY(!picture.isNull());
    QCOMPARE(button->icon().pixmap(16, 16).toImage(),
             QIcon(QStringLiteral(":/res_mvc/icons/%1.png").arg(icon)).pixmap(16, 16).toImage());
    QVERIFY(!button->icon().pixmap(16, 16).isNull());
}

void TestDialogTree::frames_data()
{
    QTest::addColumn<int>("shape");
    QTest::newRow("bannerFrame") << int(QFrame::Panel);
    QTest::newRow("presetFrame") << int(QFrame::StyledPanel);
    QTest::newRow("infoFrame") << int(QFrame::StyledPanel);
    QTest::newRow("buttonFrame") << int(QFrame::StyledPanel);
}

void TestDialogTree::frames()
{
    QFETCH(int, shape);
    OpenDialog dialog;
    const auto* frame = dialog->findChild<QFrame*>(QLatin1String(QTest::currentDataTag()));
    QVERIFY(frame);
    QCOMPARE(int(frame->frameShape()), shape);
    QCOMPARE(frame->frameShadow(), QFrame::Sunken);
    if (shape == QFrame::Panel) {
        QCOMPARE(frame->lineWidth(), 1);
    }
}

void TestDialogTree::presetLabelIsPlainBoldText()
{
    OpenDialog dialog;
    const auto* label = dialog->findChild<QLabel*>(QStringLiteral("presetLabel"));
    QCOMPARE(label->text(), QStringLiteral("Preset:"));
    QVERIFY(label->font().bold());
    QCOMPARE(label->frameShape(), QFrame::NoFrame);
    QVERIFY(!label->wordWrap());
}

void TestDialogTree::logIsReadOnly()
{
    OpenDialog dialog;
    QVERIFY(dialog.log()->isReadOnly());
    QTest::keyClicks(dialog.log(), QStringLiteral("typed"));
    QVERIFY(!dialog.log()->toPlainText().contains(QLatin1String("typed")));
}

void TestDialogTree::splitterChildrenStayOpen()
{
    OpenDialog dialog;
    const auto* splitter = dialog->findChild<QSplitter*>(QStringLiteral("splitter"));
    QCOMPARE(splitter->orientation(), Qt::Vertical);
    QVERIFY(!splitter->childrenCollapsible());
    QCOMPARE(splitter->count(), 2);
    QCOMPARE(splitter->widget(0)->objectName(), QStringLiteral("infoFrame"));
    QCOMPARE(splitter->widget(1)->objectName(), QStringLiteral("tabWidget"));
}

void TestDialogTree::sectionsAreOpenInEveryDialog()
{
    // The second one, too, after all were closed in the first.
    for (int time = 0; time < 2; ++time) {
        OpenDialog dialog;
        int sections = 0;
        for (auto* button : dialog.tabs()->findChildren<QToolButton*>()) {
            if (button->isCheckable()) {
                ++sections;
                QVERIFY(button->isChecked());
                button->click();
                QVERIFY(!button->isChecked());
            }
        }
        QCOMPARE(sections, 9);
    }
}

void TestDialogTree::tabWidgetProperties()
{
    OpenDialog dialog;
    QCOMPARE(dialog.tabs()->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(dialog.tabs()->tabPosition(), QTabWidget::North);
    QCOMPARE(dialog.tabs()->tabShape(), QTabWidget::Rounded);
    QVERIFY(dialog.tabs()->usesScrollButtons());
    QVERIFY(dialog.tabs()->acceptDrops());
    QCOMPARE(dialog->findChild<QWidget*>(QStringLiteral("buttonOk"))->focusPolicy(),
             Qt::StrongFocus);
}

void TestDialogTree::designTimePagesAreGone()
{
    OpenDialog dialog;
    for (int i = 0; i < dialog.tabs()->count(); ++i) {
        const QString name = dialog.tabs()->widget(i)->objectName();
        QVERIFY2(name != QLatin1String("basicPage") && name != QLatin1String("advancedPage") &&
                     name != QLatin1String("miscPage"),
                 qPrintable(name));
    }
}

void TestDialogTree::signalsAndSlotsInOrder()
{
    const QMetaObject& type = AVCVideoEncoderDlg::staticMetaObject;
    QCOMPARE(QString::fromLatin1(type.className()), QStringLiteral("AVCVideoEncoderDlg"));
    QCOMPARE(ownMethods(type, QMetaMethod::Signal),
             QStringList({QStringLiteral("stateChanged(ConfigState)")}));
    QCOMPARE(
        ownMethods(type, QMetaMethod::Slot),
        QStringList({QStringLiteral("slotAccept()"), QStringLiteral("slotReject()"),
                     QStringLiteral("slotLoadSettings()"), QStringLiteral("slotSaveSettings()"),
                     QStringLiteral("slotReceiveState(ConfigState)"),
                     QStringLiteral("slotChangePreset(QString)"),
                     QStringLiteral("slotRestorePreset()")}));
}

void TestDialogTree::widthIsFixedAt400()
{
    OpenDialog dialog;
    QCOMPARE(dialog->width(), 400);
    dialog->resize(900, 520);
    QCOMPARE(dialog->size(), QSize(400, 520));
    // Content asks for more.
    auto* label = dialog->findChild<QLabel*>(QStringLiteral("presetLabel"));
    label->setText(QString(200, QLatin1Char('w')));
    QCoreApplication::processEvents();
    QCOMPARE(dialog->width(), 400);
    QCOMPARE(dialog->maximumWidth(), 400);
    QCOMPARE(dialog->minimumWidth(), 400);
}

void TestDialogTree::tabKeyRunsFromTopToBottom()
{
    OpenDialog dialog;
    dialog.presetList()->setFocus();
    QStringList visited;
    for (int i = 0; i < 300; ++i) {
        const QWidget* const focus = dialog->focusWidget();
        if (i > 0 && focus == dialog.presetList()) {
            break;
        }
        visited += focus->objectName();
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    }
    const QStringList frame = {QStringLiteral("presetList"), QStringLiteral("presetButton"),
                               QStringLiteral("buttonLoad"), QStringLiteral("buttonSave"),
                               QStringLiteral("errorLog")};
    QCOMPARE(visited.mid(0, 5), frame);
    // Then the dialog itself, for F5 and F6.
    QCOMPARE(visited.mid(visited.size() - 3),
             QStringList({QStringLiteral("buttonCancel"), QStringLiteral("buttonOk"),
                          QStringLiteral("IAVCVideoEncoderDlg")}));
    // Between them the front page, also from top to bottom.
    QVERIFY(visited.contains(QLatin1String("widthSpin")));
    QVERIFY(visited.indexOf(QLatin1String("widthSpin")) <
            visited.indexOf(QLatin1String("bitdepthCList")));
}

QTEST_MAIN(TestDialogTree)
#include "tst_dialog_tree.moc"
