#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <kv_config_gui_mvc/settings_record.h>

#include <optional>
#include <span>

/// Every setting of the record, written down once for all tests and from nothing but the record's
/// and the dialog's documents: a test that goes through all settings goes through these rows.
namespace ledger
{

/// How a setting is held, shown and carried under its key.
enum class Kind {
    Number,    ///< whole number: spin box or slider; a number under its key
    Switch,    ///< 0 or 1: check box; a boolean under its key
    List,      ///< code with a name: list; the item's text under its key
    Radio,     ///< code with a name: radio buttons; the code under its key
    FrameRate, ///< 64-bit frames per second: list; the item's text under its key
    Aspect,    ///< half of a pair, which one list and one key stand for
};

/// What settings belong together: in settings files, and in what views share.
enum class Group {
    Record,      ///< of the record, not of a view
    Stream,      ///< all views have the base view's
    Picture,     ///< all views have the base view's
    Gop,         ///< all views have the base view's
    RateControl, ///< each view's own, under a key of its own
    Motion,      ///< each view's own in the record, one key for all
    Distortion,  ///< like Motion
    Coding,      ///< like Motion
};

/// A value as the field holds it and as its key carries it.
struct Value {
    Value(int number) : code(number), state(number) {}
    Value(bool on) : code(on ? 1 : 0), state(on) {}
    Value(int number, int shown) : code(number), state(shown) {}
    Value(int number, const char* text) : code(number), state(QString::fromLatin1(text)) {}
    Value(double rate, const char* text) : code(rate), state(QString::fromLatin1(text)) {}

    double code;
    QVariant state;
};

struct Setting {
    /// Name in the record and in settings files.
    const char* member;
    /// From the start of the record or view.
    int offset;
    Kind kind;
    Group group;

    /// Without the suffix of the view where each view has its own; null: no key stands for it.
    const char* key;
    /// The bit of the host's flags that locks the control; -1: none.
    int lockBit;
    /// Class of the page, "View%1Page" for those of the views; null as the key is.
    const char* page;
    /// Object name of the control; "units" for the three radio buttons of a view's units.
    const char* control;
    /// Object name of the label that bears the caption; null: the control bears it.
    const char* label;
    /// Text beside the control; null: it has none of its own.
    const char* caption;
    /// Name where the setting stands alone; null: the caption, without colon and blanks.
    const char* title;

    /// Two different values that the control can show.
    Value first;
    Value second;
    /// What the control shows at least and at most, of numbers.
    int least;
    int most;
    /// What the encoder's presets have in every view; none where they differ.
    std::optional<double> preset;

    int width() const { return kind == Kind::FrameRate ? 8 : 4; }
    bool is(const char* name) const { return QLatin1String(name) == QLatin1String(member); }
    bool isOfRecord() const { return group == Group::Record; }
    bool isOfEachView() const { return group == Group::RateControl; }
    /// What the field has more than the key's number.
    int added() const { return int(first.code) - first.state.toInt(); }
    QString name() const;

    /// The key and page, with the view's number where each view has its own.
    QString keyOf(int view = 0) const;
    QString pageOf(int view = 0) const;
    /// How many keys and controls it has: one, or one in each view.
    int viewCount() const { return isOfEachView() ? 4 : 1; }
    /// From the start of the record; views lie one behind the other.
    int position(int view = 0) const;
};

/// All rows, page by page and as they stand there from top to bottom.
const QVector<Setting>& settings();
/// The one row of that member; a test that asks for another stops.
const Setting& setting(const QString& member);
/// The rows of a view that hold a whole number: all but the frame rate.
QVector<Setting> viewNumbers();
/// The rows with a key on the page; all pages without one. View pages are named "View%1Page".
QVector<Setting> settingsOn(const char* page);

/// A value that has a name.
struct NamedValue {
    int code;
    /// As the dialog and the program show it.
    const char* text;
    /// As settings files have it; null: the number.
    const char* spelling;
    /// Whether the dialog's list has it.
    bool isListed = true;
};

/// The named values of a setting, in the order of the dialog's list; none: it has only numbers.
const QVector<NamedValue>& namedValues(const QString& member);
/// Those that the dialog's list has.
QVector<NamedValue> listedValues(const QString& member);
/// Their texts.
QStringList listedTexts(const QString& member);

/// Bytes between the settings, which belong to the encoder library.
struct ReservedRange {
    int offset;
    int size;
};
inline constexpr ReservedRange recordReserved = {8, 248};
std::span<const ReservedRange> viewReserved();

/// The field of a view, or of the record, in the record's bytes.
void put(KvMvcSettings& record, const Setting& setting, int view, double value);
double get(const KvMvcSettings& record, const Setting& setting, int view);

} // namespace ledger
