// What all views have in common: view 1 gets it from the base view, and messages name it.

#include <array>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <utility>

#include "field_table.h"
#include "rules.h"

namespace kv::encoder
{

namespace
{

using V = KvMvcViewSettings;
using Row = FieldRow<V>;

constexpr const char* pictureClause =
    "H.7.4.2.1.1, H.7.4.3: size, frame coding and chroma format are the same in all views";
constexpr const char* streamClause =
    "H.10.1.2: level_idc is the same in all parameter sets; the preset names the stream";
constexpr const char* gopClause =
    "H.7.4.1.1: IDR, anchor and temporal identifiers are those of the access unit";

constexpr Rule<> pictureCopied = {
    "views.picture",
    Severity::Warning,
    "View 1 now has the base view's picture format, which all views share.",
    pictureClause,
    {.view = 1}};
constexpr Rule<> gopCopied = {
    "views.gop",
    Severity::Warning,
    "View 1 now has the base view's GOP structure, which all views share.",
    gopClause,
    {.view = 1}};

/// As many settings of a kind are named one by one; of more, the kind.
constexpr std::size_t mostNamed = 4;

constexpr bool isShared(const Row& row)
{
    return row.shared == Sharing::Picture || row.shared == Sharing::Stream ||
           row.shared == Sharing::Gop;
}
constexpr auto rows = selectFields<viewFields, isShared>();

/// The name of the rule about a member: "views.frame-rate".
constexpr Text idOfMember(const char* member)
{
    Text id = {"views.", member};
    for (char& letter : id.at) {
        letter = letter == '_' ? '-' : letter;
    }
    return id;
}

struct Message {
    Text id;
    Text sentence;
};
template <std::size_t... at>
constexpr auto messagesOf(std::index_sequence<at...>)
{
    return std::array{Message{
        idOfMember(rows[at]->member),
        {"View 1 now has the base view's value, which all views share: ", rows[at]->name, "."}}...};
}
constexpr auto messages = messagesOf(std::make_index_sequence<rows.size()>());

constexpr const char* basisOf(Sharing shared)
{
    return shared == Sharing::Picture  ? pictureClause
           : shared == Sharing::Stream ? streamClause
                                       : gopClause;
}

/// A setting that view 1 may have to get from the base view.
struct Shared {
    const Row* row;
    ViewRule<> rule;
};
constexpr ViewRule<> ruleAt(std::size_t at)
{
    return {messages[at].id.at,
            Severity::Warning,
            {messages[at].sentence.at, nullptr, false},
            basisOf(rows[at]->shared),
            {.setting = rows[at]->member, .view = 1}};
}
template <std::size_t... at>
constexpr auto tableOf(std::index_sequence<at...>)
{
    return std::array{Shared{rows[at], ruleAt(at)}...};
}
constexpr auto table = tableOf(std::make_index_sequence<rows.size()>());

// The frame rate of the picture is the one field that is no whole number.
static_assert(std::ranges::count_if(viewFields, [](const Row& row) { return !row.field; }) == 1);

bool differs(const Row& row, const V& a, const V& b)
{
    if (row.field) {
        return a.*row.field != b.*row.field;
    }
    const double rate = a.frame_rate;
    const double other = b.frame_rate;
    return rate != other && !(std::isnan(rate) && std::isnan(other));
}

void copy(const Row& row, const V& from, V& to)
{
    if (row.field) {
        to.*row.field = from.*row.field;
    } else {
        const double rate = from.frame_rate;
        to.frame_rate = rate;
    }
}

/// Copies what the views share of a kind. @param whole Said when that are many; may be null.
void align(Sharing shared, const Rule<>* whole, const V& base, V& second, Report& report)
{
    const auto isCopied = [&](const Shared& each) {
        return each.row->shared == shared && differs(*each.row, base, second);
    };
    const auto count = static_cast<std::size_t>(std::ranges::count_if(table, isCopied));
    const bool named = !whole || count <= mostNamed;
    if (!named) {
        report.say(*whole);
    }
    for (const Shared& each : table) {
        if (isCopied(each)) {
            copy(*each.row, base, second);
            if (named) {
                report.sayOf(0, each.rule);
            }
        }
    }
}

constexpr auto singles = std::to_array<const RuleInfo*>({&pictureCopied, &gopCopied});
constexpr auto rules = joinRules(rulesOf(table), singles);

} // namespace

void alignViews(KvMvcSettings& record, Report& report)
{
    if (countSubRecords(record) < 2) {
        return;
    }
    const V& base = record.views[0];
    V& second = record.views[1];
    align(Sharing::Picture, &pictureCopied, base, second, report);
    align(Sharing::Stream, nullptr, base, second, report);
    align(Sharing::Gop, &gopCopied, base, second, report);
}

RuleGroup sharedRules()
{
    return {"Shared by all views", rules};
}

} // namespace kv::encoder
