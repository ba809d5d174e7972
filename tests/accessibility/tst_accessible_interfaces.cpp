// What assistive technology is told of each control: name, role and value; and that each has a tip,
// and each label its buddy.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

using ledger::Kind;
using ledger::Setting;

namespace
{

/// The controls that a user can work with, apart from those inside others.
QList<QWidget*> controlsOf(const QWidget* window)
{
    QList<QWidget*> controls;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        const bool control =
            qobject_cast<QAbstractButton*>(widget) || qobject_cast<QAbstractSpinBox*>(widget) ||
            qobject_cast<QComboBox*>(widget) || qobject_cast<QAbstractSlider*>(widget) ||
            qobject_cast<QTextEdit*>(widget) || qobject_cast<QTabWidget*>(widget);
        const bool inner = qobject_cast<QScrollBar*>(widget) ||
                           qobject_cast<QTabBar*>(widget->parentWidget()) ||
                           widget->objectName() == QLatin1String("deviceList");
        if (control && !inner) {
            controls += widget;
        }
    }
    return controls;
}

QString nameOf(const QWidget* widget)
{
    QString place;
    for (const QWidget* parent = widget; parent; parent = parent->parentWidget()) {
        if (parent->objectName().startsWith(QLatin1String("I"))) {
            place = parent->objectName() + QLatin1Char('/');
            break;
        }
    }
    return place + widget->objectName();
}

QAccessibleInterface* accessible(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

QString textOf(QWidget* widget, QAccessible::Text kind)
{
    return accessible(widget)->text(kind);
}

/// What a screen reader announces a control by. The toolkit's lists bear their item as a name where
/// the platform tells labels by relation, as Linux does; the one whose label is a check box is told
/// by its description.
QString announced(QWidget* widget)
{
    if (!qobject_cast<QComboBox*>(widget)) {
        return textOf(widget, QAccessible::Name);
    }
    QAccessibleInterface* const list = accessible(widget);
    for (const auto& relation : list->relations(QAccessible::Label)) {
        return relation.first->text(QAccessible::Name);
    }
    // Of a tip of several lines the first one names it.
    return widget->accessibleName().isEmpty()
               ? QString()
               : list->text(QAccessible::Description).section(QLatin1Char('\n'), 0, 0);
}

bool isSlider(const Setting& setting)
{
    return QByteArray(setting.control).endsWith("Slider");
}

/// The caption; where one stands for two controls, or for half a sentence, the setting's name.
const char* spokenName(const Setting& setting)
{
    if (setting.is("display_aspect_x")) {
        return "Picture aspect ratio";
    }
    // With the units that they are in.
    if (setting.is("bitrate_buffer")) {
        return "Bitrate buffer (bytes)";
    }
    if (setting.is("vbv_initial")) {
        return "VBV buffer initial (%)";
    }
    if (setting.is("vbv_target")) {
        return "VBV buffer target (%)";
    }
    return setting.title && !isSlider(setting) ? setting.title : setting.caption;
}

} // namespace

class TestAccessibleInterfaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void control_data();
    void control();
    void everyControlHasNameRoleAndTip();
    void namesTellControlsOfAPageApart();
    void valuesFollowTheRecord();
    void labelsHaveBuddies();
    void sectionButtonsTellTheirState();
    void tabsAreNamed();
    void namesTellControlsOfTheDialogApart();
    void unitButtonsAreInTheGroupOfUnits();
    void nameFollowsTheUnits();
    void errorsThatComeAndGoAreTold();
    void descriptionsHaveNoMarks();
};

void TestAccessibleInterfaces::control_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("role");
    const auto row = [](const char* page, const char* control, const char* name, int role) {
        const QByteArray ofView = QByteArray(page).startsWith("View0") ? "Base View, "
                                  : QByteArray(page) == "View1Page"    ? "View 1, "
                                  : QByteArray(page) == "View2Page"    ? "View 2, "
                                  : QByteArray(page) == "View3Page"    ? "View 3, "
                                                                       : "";
        QTest::addRow("%s/%s", page, control)
            << QString::fromLatin1(page) << QString::fromLatin1(control)
            << QString::fromLatin1(ofView + name) << role;
    };
    const int list = QAccessible::ComboBox;
    const int number = QAccessible::SpinBox;
    const int box = QAccessible::CheckBox;
    const int button = QAccessible::Button;
    const int slider = QAccessible::Slider;

    row("AVCVideoEncoderDlg", "presetButton", "Restore preset", button);
    row("AVCVideoEncoderDlg", "buttonLoad", "Load settings", button);
    row("AVCVideoEncoderDlg", "buttonSave", "Save settings", button);
    row("AVCVideoEncoderDlg", "buttonCancel", "Cancel", button);
    row("AVCVideoEncoderDlg", "buttonOk", "OK", button);
    row("AVCVideoEncoderDlg", "errorLog", "Message log", QAccessible::EditableText);

    row("VideoFormatPage", "aspectRatioCheck", "Keep aspect ratio", box);
    row("AdvancedPage", "toggleIGOPStructurePage", "GOP Structure", box);
    row("AdvancedPage", "toggleIMotionEstimationPage", "Motion Estimation", box);
    row("AdvancedPage", "toggleIRateDistortionPage", "Rate Distortion", box);
    row("AdvancedPage", "toggleIMiscPage", "Miscellaneous", box);
    for (const char* page : {"View0Page", "View1Page", "View2Page", "View3Page"}) {
        row(page, "units1Radio", "Bitrate buffer (bytes), VBV buffers (%)",
            QAccessible::RadioButton);
        row(page, "onesecCheck", "Force bitrate buffer length to 1 second", box);
    }
    for (const Setting& setting : ledger::settings()) {
        if (!setting.key || setting.kind == Kind::Radio) {
            continue;
        }
        for (int view = 0; view < setting.viewCount(); ++view) {
            row(qPrintable(setting.pageOf(view)), setting.control, spokenName(setting),
                setting.kind == Kind::Switch   ? box
                : setting.kind != Kind::Number ? list
                : isSlider(setting)            ? slider
                                               : number);
        }
    }
}

void TestAccessibleInterfaces::control()
{
    QFETCH(QString, page);
    QFETCH(QString, control);
    QFETCH(QString, name);
    QFETCH(int, role);
    OpenDialog dialog;
    for (int view = 0; view < KV_MVC_MAX_VIEWS; ++view) {
        dialog.probe().record().view(view).bitrate_units = KV_MVC_UNITS_BYTES_PERCENT;
    }
    dialog.probe().settingsToState();
    auto* widget = findControl<QWidget>(dialog.get(), page.toLatin1().constData(),
                                        control.toLatin1().constData());
    QVERIFY(widget);
    QCOMPARE(announced(widget), name);
    QCOMPARE(int(accessible(widget)->role()), role);
}

void TestAccessibleInterfaces::everyControlHasNameRoleAndTip()
{
    OpenDialog dialog;
    const QList<QWidget*> controls = controlsOf(dialog.get());
    QVERIFY(controls.size() > 120);
    QStringList faults;
    for (QWidget* widget : controls) {
        if (announced(widget).trimmed().isEmpty()) {
            faults += nameOf(widget) + QLatin1String(" has no name");
        }
        if (accessible(widget)->role() == QAccessible::NoRole) {
            faults += nameOf(widget) + QLatin1String(" has no role");
        }
        const bool hasTip = !widget->toolTip().isEmpty();
        if (!hasTip && !qobject_cast<QTabWidget*>(widget)) {
            faults += nameOf(widget) + QLatin1String(" has no tip");
        }
        if (hasTip && !widget->toolTip().endsWith(QLatin1Char('.'))) {
            faults += nameOf(widget) + QLatin1String(": the tip is no sentence");
        }
        // A control that reads as its class is not named at all.
        if (announced(widget).startsWith(QLatin1Char('Q')) &&
            !announced(widget).startsWith(QLatin1String("Quantizer"))) {
            faults += nameOf(widget) + QLatin1String(" reads as its class");
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestAccessibleInterfaces::namesTellControlsOfAPageApart()
{
    OpenDialog dialog;
    QSet<QString> seen;
    QStringList twice;
    for (QWidget* widget : controlsOf(dialog.get())) {
        const QWidget* page = widget;
        while (page && !page->objectName().startsWith(QLatin1Char('I'))) {
            page = page->parentWidget();
        }
        const QString key =
            (page ? page->objectName() : QString()) + QLatin1String(": ") + announced(widget);
        if (seen.contains(key)) {
            twice += key;
        }
        seen += key;
    }
    QCOMPARE(twice, QStringList());
}

void TestAccessibleInterfaces::valuesFollowTheRecord()
{
    OpenDialog dialog;
    KvMvcViewSettings& view = dialog.probe().record().settings.views[0];
    view.width = 1280;
    view.interlace_mode = KV_MVC_MBAFF;
    view.deblocking = 1;
    view.contrast = -40;
    view.num_threads = 0;
    view.bitrate_units = KV_MVC_UNITS_BITS;
    dialog.probe().settingsToState();

    const auto value = [&](const char* page, const char* control) {
        return textOf(findControl<QWidget>(dialog.get(), page, control), QAccessible::Value);
    };
    const auto state = [&](const char* page, const char* control) {
        return accessible(findControl<QWidget>(dialog.get(), page, control))->state();
    };
    QCOMPARE(value("VideoFormatPage", "widthSpin"), QStringLiteral("1280"));
    QCOMPARE(value("VideoFormatPage", "interlaceList"), QStringLiteral("MBAFF"));
    QCOMPARE(value("RateDistortionPage", "contrastSlider"), QStringLiteral("-40"));
    QCOMPARE(value("MiscPage", "threadsSpin"), QStringLiteral("Auto"));
    QVERIFY(state("MiscPage", "deblockingCheck").checked);
    QVERIFY(state("View0Page", "units2Radio").checked);
    QVERIFY(!state("View0Page", "units1Radio").checked);
    QVERIFY(state("VideoFormatPage", "pixelXSpin").disabled ==
            !findControl<QWidget>(dialog.get(), "VideoFormatPage", "pixelXSpin")->isEnabled());

    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "wrn_printf", "a warning");
        return 0;
    };
    dialog.probe().check();
    QVERIFY(textOf(dialog.log(), QAccessible::Value).contains(QLatin1String("a warning")));
}

void TestAccessibleInterfaces::labelsHaveBuddies()
{
    // Texts that stand for themselves: read-outs, and the second half of a sentence.
    const QStringList loose = {QStringLiteral("bannerFrame"), QStringLiteral("brightnessLabel"),
                               QStringLiteral("contrastLabel"), QStringLiteral("complexityLabel"),
                               QStringLiteral("IGOPStructurePage/label_2")};
    OpenDialog dialog;
    QStringList faults;
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
        const bool stands = loose.contains(label->objectName()) || loose.contains(nameOf(label));
        if (!stands && !label->buddy()) {
            faults += nameOf(label) + QLatin1String(": ") + label->text();
        }
    }
    QCOMPARE(faults, QStringList());
}

void TestAccessibleInterfaces::sectionButtonsTellTheirState()
{
    OpenDialog dialog;
    auto* button = findControl<QToolButton>(dialog.get(), "ViewsPage", "toggleIView0Page");
    QVERIFY(accessible(button)->state().checkable);
    QVERIFY(accessible(button)->state().checked);
    user::click(button);
    QVERIFY(!accessible(button)->state().checked);
}

void TestAccessibleInterfaces::tabsAreNamed()
{
    OpenDialog dialog;
    auto* bar = dialog->findChild<QTabBar*>();
    QAccessibleInterface* tabs = accessible(bar);
    QCOMPARE(int(tabs->role()), int(QAccessible::PageTabList));
    QStringList names;
    for (int i = 0; i < tabs->childCount(); ++i) {
        if (tabs->child(i)->role() == QAccessible::PageTab) {
            names += tabs->child(i)->text(QAccessible::Name);
        }
    }
    QCOMPARE(names, QStringList({QStringLiteral("Basic Settings"),
                                 QStringLiteral("Advanced Settings"), QStringLiteral("Views")}));
    for (const QGroupBox* group : dialog->findChildren<QGroupBox*>()) {
        if (group->objectName() != QLatin1String("deviceGroup")) {
            QVERIFY2(!textOf(const_cast<QGroupBox*>(group), QAccessible::Name).isEmpty(),
                     qPrintable(nameOf(group)));
        }
    }
}

void TestAccessibleInterfaces::namesTellControlsOfTheDialogApart()
{
    OpenDialog dialog;
    QSet<QString> seen;
    QStringList twice;
    for (QWidget* widget : controlsOf(dialog.get())) {
        const QString name = announced(widget);
        if (seen.contains(name)) {
            twice += name;
        }
        seen += name;
    }
    // The buttons that fold a section are called as the section.
    QCOMPARE(twice, QStringList());
    QVERIFY(seen.contains(QStringLiteral("View 1, Target bitrate (bps)")));
}

void TestAccessibleInterfaces::unitButtonsAreInTheGroupOfUnits()
{
    OpenDialog dialog;
    auto* const button = findControl<QWidget>(dialog.get(), "View1Page", "units2Radio");
    QCOMPARE(accessible(button)->parent()->text(QAccessible::Name),
             QStringLiteral("View 1, Units"));
    QStringList groups;
    for (const auto& relation : accessible(button)->relations(QAccessible::Label)) {
        groups += relation.first->text(QAccessible::Name);
    }
    QCOMPARE(groups, QStringList(QStringLiteral("View 1, Units")));
}

void TestAccessibleInterfaces::nameFollowsTheUnits()
{
    OpenDialog dialog;
    auto* const buffer = findControl<QWidget>(dialog.get(), "View0Page", "vbvInitialSpin");
    const char* const names[] = {"Base View, VBV buffer initial (%)",
                                 "Base View, VBV buffer initial (bits)",
                                 "Base View, VBV buffer initial (90 kHz)"};
    for (int units = 0; units < 3; ++units) {
        dialog.probe().record().settings.views[0].bitrate_units = units;
        dialog.probe().settingsToState();
        QCOMPARE(announced(buffer), QLatin1String(names[units]));
    }
}

void TestAccessibleInterfaces::errorsThatComeAndGoAreTold()
{
    OpenDialog dialog;
    const auto described = [&dialog](const char* sink) {
        dialog.companions.onCheck = [sink](KvMvcLookup lookUp, KvMvcSettings&) {
            print(lookUp, sink, "a message");
            return 0;
        };
        dialog.probe().check();
        return textOf(dialog.log(), QAccessible::Description);
    };
    const QString before = textOf(dialog.log(), QAccessible::Description);
    const QString refused = QStringLiteral("There are errors: the settings are refused.");
    QCOMPARE(described("wrn_printf"), before);
    QCOMPARE(described("err_printf"), refused);
    QCOMPARE(described("inf_printf"), before);
}

void TestAccessibleInterfaces::descriptionsHaveNoMarks()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        const KvMvcLimitUse use = {
            sizeof use, KV_MVC_ALL_VIEWS, "Picture size", "", "", "4.1", 8160, 8192};
        reinterpret_cast<KvMvcTellLimitUse>(lookUp(KV_MVC_LIMIT_USE))(&use);
        return 0;
    };
    dialog.probe().check();
    auto* const level = on<QComboBox>(dialog, "AdvancedPage", "levelList");
    QVERIFY2(level->toolTip().contains(QLatin1String("<table")), qPrintable(level->toolTip()));
    const auto widgets = dialog->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        const QString description = textOf(widget, QAccessible::Description);
        QVERIFY2(!description.contains(QLatin1Char('<')), qPrintable(description));
    }
}

QTEST_MAIN(TestAccessibleInterfaces)
#include "tst_accessible_interfaces.moc"
