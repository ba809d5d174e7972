// Every code that the record may hold, and what the controls show for it: text and enabled state.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include <climits>
#include <memory>
#include <set>

using ledger::Kind;
using ledger::Setting;

namespace
{

/// What a user reads off a control: the text of a list or field, "on" or "off", a slider's number.
QString shownBy(const QWidget* widget)
{
    if (const auto* list = qobject_cast<const QComboBox*>(widget)) {
        return list->currentText();
    }
    if (const auto* field = qobject_cast<const QSpinBox*>(widget)) {
        return field->text();
    }
    if (const auto* slider = qobject_cast<const QSlider*>(widget)) {
        return QString::number(slider->value());
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        return button->isChecked() ? QStringLiteral("on") : QStringLiteral("off");
    }
    return QStringLiteral("?");
}

/// A code of the record, and what its control shows for it.
struct Coded {
    int code;
    QString text;
};

/// Fullness beyond 100 percent is corrected, not only shown as another.
int mostOf(const Setting& setting)
{
    return setting.is("vbv_initial") || setting.is("vbv_target") ? 100 : setting.most;
}

QVector<Coded> codesOfNumber(const Setting& setting)
{
    std::set<int> numbers = {setting.least, mostOf(setting), setting.first.state.toInt(),
                             setting.second.state.toInt()};
    const bool isFullness = mostOf(setting) != setting.most;
    if (!isFullness) {
        numbers.insert({setting.least - 1, setting.least - 7});
    }
    if (setting.most < INT_MAX) {
        numbers.insert({setting.most + 1, setting.most + 5000});
    }
    QVector<Coded> codes;
    for (const int number : numbers) {
        const int shown = qBound(setting.least, number, setting.most);
        const bool isAuto = setting.is("num_threads") && shown == 0;
        codes +=
            {number + setting.added(), isAuto ? QStringLiteral("Auto") : QString::number(shown)};
    }
    return codes;
}

QVector<Coded> codesOfList(const Setting& setting)
{
    // Any other format shows 4:2:0, but for the one without a name; all else shows no item.
    const bool isChroma = setting.is("chroma_format");
    QVector<Coded> codes;
    QVector<int> others = {-1, 0, 1, 2, 3, 4, 5, 8, 9, 97};
    for (const auto& item : ledger::listedValues(QString::fromLatin1(setting.member))) {
        codes += {item.code, QString::fromLatin1(item.text)};
        others.removeAll(item.code);
    }
    for (const int code : std::as_const(others)) {
        codes += {code, isChroma && code != 4 ? QStringLiteral("4:2:0") : QString()};
    }
    return codes;
}

QVector<Coded> codesOf(const Setting& setting)
{
    const QString on = QStringLiteral("on");
    if (setting.kind == Kind::Switch) {
        return {{0, QStringLiteral("off")}, {1, on}, {7, on}};
    }
    return setting.kind == Kind::List ? codesOfList(setting) : codesOfNumber(setting);
}

} // namespace

class TestDialogCodes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_dialog.reset(); }
    void init() { failOnToolkitWarnings(); }

    void shown_data();
    void shown();
    void rateControlShown_data();
    void rateControlShown();
    void currentViewIsDescribed();

private:
    void describe(const Cells& cells);

    std::unique_ptr<OpenDialog> m_dialog;
};

void TestDialogCodes::initTestCase()
{
    // One dialog for all rows, each of which loads a file: what one row leaves must not show in
    // the next.
    m_dialog = std::make_unique<OpenDialog>();
}

void TestDialogCodes::shown_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Cells>("cells");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("enabled");

    struct Place {
        const char* page;
        const char* name;
    };
    const auto row = [](Place place, const char* given, const Cells& cells, const char* text,
                        bool enabled = true) {
        QTest::addRow("%s, %s", place.name, given)
            << QString::fromLatin1(place.page) << QString::fromLatin1(place.name) << cells
            << QString::fromLatin1(text) << enabled;
    };
    const Place aspect = {"VideoFormatPage", "aspectRatioList"};
    const Place pixelX = {"VideoFormatPage", "pixelXSpin"};
    const Place pixelY = {"VideoFormatPage", "pixelYSpin"};
    const struct {
        int x;
        int y;
        const char* text;
        bool pixelsFree;
    } ratios[] = {{-1, -1, "Custom", true}, {1, 1, "1:1", false}, {4, 3, "4:3", false},
                  {16, 9, "16:9", false},   {5, 4, "", false},    {-1, 3, "", false}};
    for (const auto& ratio : ratios) {
        const QByteArray given = QByteArray::number(ratio.x) + ':' + QByteArray::number(ratio.y);
        const Cells cells = {{0, 2888, ratio.x}, {0, 2892, ratio.y}, {0, 100, 10}, {0, 104, 11}};
        row(aspect, given.constData(), cells, ratio.text);
        row(pixelX, given.constData(), cells, "10", ratio.pixelsFree);
        row(pixelY, given.constData(), cells, "11", ratio.pixelsFree);
    }

    const Place frameRate = {"VideoFormatPage", "framerateList"};
    const struct {
        double rate;
        const char* text;
    } rates[] = {{7.6, "7.60"},
                 {9.1, "9.10"},
                 {10, "10.00"},
                 {12.5, "12.50"},
                 {12.8, "12.80"},
                 {15, "15.00"},
                 {24000.0 / 1001, "23.98"},
                 {23.97605, "23.98"},
                 {24, "24.00"},
                 {25, "25.00"},
                 {30000.0 / 1001, "29.97"},
                 {30, "30.00"},
                 {50, "50.00"},
                 {60000.0 / 1001, "59.94"},
                 {59.94, "59.94"},
                 {60, "60.00"},
                 {0, ""}};
    for (const auto& rate : rates) {
        row(frameRate, QByteArray::number(rate.rate, 'g', 12).constData(), {{0, 32, rate.rate}},
            rate.text);
    }

    const Place fieldOrder = {"VideoFormatPage", "fieldOrderList"};
    row(fieldOrder, "top, progressive", {{0, 4112, 0}, {0, 20, 0}}, "Top Field First", false);
    row(fieldOrder, "top, interlaced", {{0, 4112, 0}, {0, 20, 1}}, "Top Field First");
    row(fieldOrder, "top, MBAFF", {{0, 4112, 0}, {0, 20, 2}}, "Top Field First");
    row(fieldOrder, "bottom, progressive", {{0, 4112, 1}, {0, 20, 0}}, "");
    row(fieldOrder, "bottom, interlaced", {{0, 4112, 1}, {0, 20, 1}}, "Bot Field First");
    row(fieldOrder, "bottom, MBAFF", {{0, 4112, 1}, {0, 20, 2}}, "Bot Field First");
    row(fieldOrder, "other, MBAFF", {{0, 4112, 5}, {0, 20, 2}}, "Bot Field First");

    for (const Setting& setting : ledger::settings()) {
        // Those above, and those that rateControlShown() looks at.
        if (!setting.key || setting.kind == Kind::FrameRate || setting.kind == Kind::Aspect ||
            setting.is("field_order") || setting.isOfEachView()) {
            continue;
        }
        for (const Coded& item : codesOf(setting)) {
            row({setting.page, setting.control}, QByteArray::number(item.code).constData(),
                {Cell(0, setting, item.code)}, item.text.toLatin1().constData());
        }
    }
}

void TestDialogCodes::describe(const Cells& cells)
{
    KvMvcSettings settings = exampleSettings();
    put(settings, cells);
    m_dialog->dropSettings(settings);
    // As the row has it, not as a page made it.
    QVERIFY(m_dialog->bytes() == bytesOf(settings));
}

void TestDialogCodes::shown()
{
    QFETCH(QString, page);
    QFETCH(QString, name);
    QFETCH(Cells, cells);
    QFETCH(QString, text);
    QFETCH(bool, enabled);

    const auto* control = findControl<QWidget>(m_dialog->get(), page.toLatin1().constData(),
                                               name.toLatin1().constData());
    QVERIFY(control);
    describe(cells);
    QCOMPARE(shownBy(control), text);
    QCOMPARE(control->isEnabled(), enabled);
}

void TestDialogCodes::rateControlShown_data()
{
    QTest::addColumn<int>("view");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Cells>("cells");
    QTest::addColumn<QString>("text");

    // The record has two views.
    for (int view = 0; view < 2; ++view) {
        for (const Setting& setting : ledger::settings()) {
            if (!setting.isOfEachView() || setting.kind == Kind::Radio) {
                continue;
            }
            for (const Coded& item : codesOf(setting)) {
                QTest::addRow("view %d %s, %d", view, setting.control, item.code)
                    << view << QString::fromLatin1(setting.control)
                    << Cells{Cell(view, setting, item.code)} << item.text;
            }
        }
        const Setting& units = ledger::setting(QStringLiteral("bitrate_units"));
        for (int radio = 0; radio < 3; ++radio) {
            for (int code = 0; code < 3; ++code) {
                QTest::addRow("view %d units%dRadio, %d", view, radio + 1, code)
                    << view << QStringLiteral("units%1Radio").arg(radio + 1)
                    << Cells{Cell(view, units, code)}
                    << (code == radio ? QStringLiteral("on") : QStringLiteral("off"));
            }
        }
    }
}

void TestDialogCodes::rateControlShown()
{
    QFETCH(int, view);
    QFETCH(QString, name);
    QFETCH(Cells, cells);
    QFETCH(QString, text);

    const QByteArray page = QStringLiteral("View%1Page").arg(view).toLatin1();
    const auto* control =
        findControl<QWidget>(m_dialog->get(), page.constData(), name.toLatin1().constData());
    QVERIFY(control);
    describe(cells);
    QCOMPARE(shownBy(control), text);
    QVERIFY(control->isEnabled());
}

void TestDialogCodes::currentViewIsDescribed()
{
    // The base view when the dialog opens, and after an edit the last view that it visited.
    KvMvcSettings settings = exampleSettings();
    put(settings, {{0, 24, 640}, {1, 24, 1024}});
    m_dialog.reset();
    OpenDialog dialog(usualFlags, settings);
    auto* width = findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin");
    QCOMPARE(width->value(), 640);
    QCOMPARE(dialog.probe().currentView(), 0);
    user::type(findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "heightSpin"),
               QStringLiteral("480"));
    QCOMPARE(width->value(), 1024);
    QCOMPARE(dialog.probe().currentView(), 1);
}

QTEST_MAIN(TestDialogCodes)
#include "tst_dialog_codes.moc"
