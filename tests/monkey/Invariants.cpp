#include "Invariants.h"

#include "model/WorkingRecord.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QWhatsThis>

#include <cmath>
#include <cstring>

namespace
{

using ledger::Kind;

/// Frames per second as the list has them; the three of NTSC within a tolerance.
struct Rate {
    double rate;
    const char* text;
    double tolerance;
};

constexpr Rate rates[] = {
    {7.6, "7.60", 0},
    {9.1, "9.10", 0},
    {10, "10.00", 0},
    {12.5, "12.50", 0},
    {12.8, "12.80", 0},
    {15, "15.00", 0},
    {24000.0 / 1001, "23.98", 1e-4},
    {24, "24.00", 0},
    {25, "25.00", 0},
    {30000.0 / 1001, "29.97", 1e-4},
    {30, "30.00", 0},
    {50, "50.00", 0},
    {60000.0 / 1001, "59.94", 1e-4},
    {60, "60.00", 0},
};

QString rateText(double rate)
{
    for (const Rate& row : rates) {
        if (rate == row.rate || std::abs(rate - row.rate) < row.tolerance) {
            return QString::fromLatin1(row.text);
        }
    }
    return rate == 0 ? QStringLiteral("0") : QString();
}

QString aspectText(int x, int y)
{
    const struct {
        int x;
        int y;
        const char* text;
    } rows[] = {{-1, -1, "Custom"}, {1, 1, "1:1"}, {4, 3, "4:3"}, {16, 9, "16:9"}};
    for (const auto& row : rows) {
        if (row.x == x && row.y == y) {
            return QString::fromLatin1(row.text);
        }
    }
    return {};
}

/// The item that a list shows for a code.
QString listText(const ledger::Setting& setting, int code)
{
    for (const ledger::NamedValue& value : ledger::listedValues(QLatin1String(setting.member))) {
        if (value.code == code) {
            return QString::fromLatin1(value.text);
        }
    }
    // The fourth format has no name; any other unknown one is shown as the usual one.
    return setting.is("chroma_format") && code != 4 ? QStringLiteral("4:2:0") : QString();
}

bool isInterlaced(const KvMvcViewSettings& view)
{
    return view.interlace_mode == 1 || view.interlace_mode == 2;
}

/// What a control shows, as text.
QString shown(const QWidget* widget)
{
    if (const auto* box = qobject_cast<const QComboBox*>(widget)) {
        return box->currentIndex() < 0 ? QString() : box->currentText();
    }
    if (const auto* field = qobject_cast<const QSpinBox*>(widget)) {
        return QString::number(field->value());
    }
    if (const auto* slider = qobject_cast<const QAbstractSlider*>(widget)) {
        return QString::number(slider->value());
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        return button->isChecked() ? QStringLiteral("on") : QStringLiteral("off");
    }
    return {};
}

template <class Ranged>
QString within(const Ranged* control, int number)
{
    return QString::number(qBound(control->minimum(), number, control->maximum()));
}

int fieldOf(const KvMvcViewSettings& view, const ledger::Setting& setting)
{
    qint32 number = 0;
    std::memcpy(&number, reinterpret_cast<const char*>(&view) + setting.offset, sizeof number);
    return number;
}

} // namespace

Invariants::Invariants(const OpenDialog& dialog, const Encoder& encoder, qint32 flags)
    : m_dialog(dialog), m_encoder(encoder), m_flags(flags)
{
    for (const ledger::Setting& setting : ledger::settings()) {
        if (!setting.page || !setting.control) {
            continue;
        }
        for (int view = 0; view < setting.viewCount(); ++view) {
            const bool isRadio = setting.kind == Kind::Radio;
            for (int choice = 0; choice < (isRadio ? 3 : 1); ++choice) {
                const QString name = isRadio ? QStringLiteral("units%1Radio").arg(choice + 1)
                                             : QString::fromLatin1(setting.control);
                const QByteArray page = setting.pageOf(view).toLatin1();
                auto* const widget = findControl<QWidget>(dialog.get(), page.constData(),
                                                          name.toLatin1().constData());
                if (widget) {
                    m_controls.append(
                        {setting, view, widget, QLatin1String(page) + QLatin1Char('.') + name});
                }
            }
        }
    }
    for (int view = 0; view < 4; ++view) {
        const QByteArray page = QStringLiteral("View%1Page").arg(view).toLatin1();
        m_oneSecond.append(findControl<QWidget>(dialog.get(), page.constData(), "onesecCheck"));
    }
}

QStringList Invariants::broken(bool movedByKey) const
{
    QStringList broken;
    for (const Control& control : m_controls) {
        checkControl(control, broken);
    }
    if (bytesOf(m_dialog.caller) != m_dialog.given) {
        broken += QStringLiteral("the caller's record changes while the dialog is open");
    }
    if (!m_encoder.hasGiven(reservedBytes(m_dialog.probe().record().settings))) {
        broken += QStringLiteral("bytes that are no settings are nobody's");
    }
    checkLog(broken);
    checkFocus(movedByKey, broken);
    return broken;
}

void Invariants::checkControl(const Control& control, QStringList& broken) const
{
    const DialogProbe probe = m_dialog.probe();
    const bool isOwn = control.setting.isOfEachView();
    const KvMvcViewSettings& view = probe.record().view(isOwn ? control.view : probe.currentView());
    const QString should = expected(control, view);
    const QString is = shown(control.widget);
    // An edit of this one is reported by nobody.
    if (is != should && !control.setting.is("vbv_target")) {
        broken += QStringLiteral("%1 shows '%2', not '%3'").arg(control.name, is, should);
    }
    if (control.widget->isEnabledTo(m_dialog.get()) != isEnabled(control, view)) {
        broken += QStringLiteral("%1 is %2")
                      .arg(control.name, control.widget->isEnabled() ? QStringLiteral("enabled")
                                                                     : QStringLiteral("disabled"));
    }
}

QString Invariants::expected(const Control& control, const KvMvcViewSettings& view) const
{
    const ledger::Setting& setting = control.setting;
    const KvMvcSettings& record = m_dialog.probe().record().settings;
    int code = fieldOf(view, setting);
    if (setting.isOfRecord()) {
        code = setting.is("num_views") ? record.num_views : record.split_views;
    }
    const auto* const list = qobject_cast<const QComboBox*>(control.widget);
    // A list shows nothing that it does not have.
    const auto listed = [list](const QString& text) {
        return list && list->findText(text) >= 0 ? text : QString();
    };
    switch (setting.kind) {
    case Kind::Number: {
        const int number = int(quint32(code) - quint32(setting.added()));
        if (const auto* field = qobject_cast<const QSpinBox*>(control.widget)) {
            return within(field, number);
        }
        return within(qobject_cast<const QAbstractSlider*>(control.widget), number);
    }
    case Kind::Switch:
        return code != 0 ? QStringLiteral("on") : QStringLiteral("off");
    case Kind::Radio:
        return control.name.endsWith(QStringLiteral("units%1Radio").arg(qint64(code) + 1))
                   ? QStringLiteral("on")
                   : QStringLiteral("off");
    case Kind::FrameRate: {
        const double rate = view.frame_rate;
        const QString text = rateText(rate);
        return listed(text.isEmpty() ? QVariant(rate).toString() : text);
    }
    case Kind::Aspect:
        return listed(aspectText(view.display_aspect_x, view.display_aspect_y));
    case Kind::List:
        if (setting.is("field_order")) {
            const bool topFirst = view.field_order == 0;
            return topFirst || isInterlaced(view) ? listText(setting, topFirst ? 0 : 1) : QString();
        }
        return listed(listText(setting, code));
    }
    return {};
}

bool Invariants::isEnabled(const Control& control, const KvMvcViewSettings& view) const
{
    const ledger::Setting& setting = control.setting;
    // A count that is out of range leaves all views free.
    const quint32 further = quint32(m_dialog.probe().record().settings.num_views) - 1;
    if (setting.isOfEachView() && control.view > 0 && further < quint32(control.view)) {
        return false;
    }
    const bool isFree = setting.lockBit < 0 || !(m_flags & (1 << setting.lockBit));
    if (setting.is("pixel_aspect_x") || setting.is("pixel_aspect_y")) {
        return isFree && view.display_aspect_x == -1 && view.display_aspect_y == -1;
    }
    if (setting.is("frame_rate")) {
        return isFree || rateText(view.frame_rate).isEmpty();
    }
    if (setting.kind == Kind::Aspect) {
        return !(m_flags & KV_MVC_GUI_LOCK_SIZE);
    }
    if (setting.is("field_order")) {
        return isInterlaced(view) || view.field_order != 0;
    }
    if (setting.is("bitrate_buffer")) {
        return !qobject_cast<const QCheckBox*>(m_oneSecond[control.view])->isChecked();
    }
    return isFree;
}

void Invariants::checkLog(QStringList& broken) const
{
    if (m_encoder.checks() == 0) {
        return;
    }
    const QStringList lines =
        m_dialog.log()->toPlainText().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (lines != m_encoder.lines()) {
        broken += QStringLiteral("the log is not that of the last check:\n    %1\nbut\n    %2")
                      .arg(lines.join(QStringLiteral("\n    ")),
                           m_encoder.lines().join(QStringLiteral("\n    ")));
    }
}

void Invariants::checkFocus(bool movedByKey, QStringList& broken) const
{
    if (!m_dialog->isActiveWindow() || QApplication::activePopupWidget() ||
        QWhatsThis::inWhatsThisMode()) {
        return;
    }
    const QWidget* const focus = QApplication::focusWidget();
    if (!focus || focus->window() != m_dialog.get()) {
        broken += QStringLiteral("nothing has the focus");
    } else if (!focus->isVisible() || !focus->isEnabled()) {
        broken += QStringLiteral("what has the focus cannot be used: ") + focus->objectName();
    } else if (movedByKey && focus->visibleRegion().isEmpty()) {
        broken += QStringLiteral("what has the focus is out of view: ") + focus->objectName();
    }
}
