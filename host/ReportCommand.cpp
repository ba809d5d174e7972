// report: which levels the settings fit, and how much of the limits they use.

#include "Commands.h"
#include "Encoder.h"
#include "MessageJson.h"
#include "MessageTexts.h"
#include "Printable.h"
#include "SettingsFiles.h"
#include "SettingsJson.h"
#include "SettingsTable.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

namespace
{

/// What the encoder says of the settings at a level.
struct LevelReport {
    QString level;
    bool fits;
    std::vector<CheckMessage> objections; ///< errors and risks of the level's limits
    std::vector<LimitUse> exceeded;
};

struct Report {
    CheckResult asSet;
    bool isAuto;
    QString set; ///< the level that is set, as its list spells it; empty when the list lacks it
    std::vector<LevelReport> levels;
};

bool isExceeded(const LimitUse& use)
{
    return use.used > use.limit;
}

/// @param told Whether this encoder says which level an error is about.
LevelReport reportOf(const QString& level, const CheckResult& result, bool told)
{
    LevelReport report = {level, told || result.accepted, {}, {}};
    for (const CheckMessage& message : result.messages) {
        const bool refuses = message.kind == CheckMessage::Error;
        if (message.level == level && (refuses || message.kind == CheckMessage::Risk)) {
            report.fits = report.fits && !refuses;
            report.objections.push_back(message);
        }
    }
    std::copy_if(result.uses.begin(), result.uses.end(), std::back_inserter(report.exceeded),
                 [&](const LimitUse& use) { return use.level == level && isExceeded(use); });
    return report;
}

Report makeReport(const Encoder& encoder, const KvMvcSettings& settings)
{
    const qint32 set = settings.views[0].level;
    Report report = {encoder.check(settings), set == KV_MVC_LEVEL_AUTO, {}, {}};
    const bool told =
        std::any_of(report.asSet.messages.begin(), report.asSet.messages.end(),
                    [](const CheckMessage& message) { return !message.rule.isEmpty(); });
    for (const ValueName& level : levelNames()) {
        if (level.value == KV_MVC_LEVEL_AUTO) {
            continue;
        }
        if (level.value == set) {
            report.set = level.text;
        }
        KvMvcSettings other = settings;
        for (KvMvcViewSettings& view : other.views) {
            view.level = level.value;
        }
        report.levels.push_back(reportOf(level.text, encoder.check(other), told));
    }
    return report;
}

QString nameOf(const LimitUse& use)
{
    return printable(use.title);
}

/// How many columns of a terminal it takes: letters of East Asia have two (UAX #11).
qsizetype columnsOf(const QString& text)
{
    constexpr ushort wide[][2] = {{0x1100, 0x115F}, {0x2E80, 0xA4CF}, {0xAC00, 0xD7A3},
                                  {0xF900, 0xFAFF}, {0xFE30, 0xFE6F}, {0xFF00, 0xFF60}};
    return text.size() + std::count_if(text.begin(), text.end(), [&](QChar sign) {
               return std::any_of(std::begin(wide), std::end(wide), [sign](const auto& range) {
                   return sign.unicode() >= range[0] && sign.unicode() <= range[1];
               });
           });
}

/// Bits are many: millions of them, with as many decimals as it takes.
QString amountText(double amount, bool inMillions)
{
    QString text = QString::number(inMillions ? amount / 1e6 : amount, 'f', inMillions ? 3 : 1);
    while (text.endsWith(QLatin1Char('0'))) {
        text.chop(1);
    }
    return text.endsWith(QLatin1Char('.')) ? text.chopped(1) : text;
}

/// "######....  60 %"; what is beyond the limit fills the bar.
QString bar(const LimitUse& use)
{
    constexpr int width = 20;
    const double share = use.limit > 0 ? use.used / use.limit : 1;
    // Never full below the limit, nor 100 %.
    const int filled = static_cast<int>(std::floor(std::min(share, 1.0) * width));
    const double percent = share > 1 ? std::ceil(share * 100) : std::floor(share * 100);
    return QString(filled, QLatin1Char('#')) + QString(width - filled, QLatin1Char('.')) +
           QString::number(std::min(percent, 9999.0), 'f', 0).rightJustified(5) +
           QStringLiteral(" %");
}

/// Whether it goes without saying that a limit is exceeded when the other one is: of one view, of
/// all views; of a part ("Bitrate of pictures"), of the whole ("Bitrate").
bool follows(const LimitUse& use, const LimitUse& other)
{
    const bool isPart = use.name.startsWith(other.name + QLatin1Char(' '));
    return isPart || (use.name == other.name && use.view >= 0 && other.view < 0);
}

/// What keeps the settings from a level: the limits that they exceed, and the messages about what
/// is no limit of an amount.
QString reasonsText(const LevelReport& level)
{
    QStringList reasons;
    for (const LimitUse& use : level.exceeded) {
        if (std::none_of(level.exceeded.begin(), level.exceeded.end(),
                         [&](const LimitUse& other) { return follows(use, other); })) {
            reasons << nameOf(use);
        }
    }
    for (const CheckMessage& objection : level.objections) {
        const bool counted =
            std::any_of(level.exceeded.begin(), level.exceeded.end(),
                        [&](const LimitUse& use) { return use.rule == objection.rule; });
        if (!counted) {
            reasons << printable(objection.text);
        }
    }
    return reasons.join(QStringLiteral("; "));
}

QString levelsText(const Report& report)
{
    QString text;
    for (const LevelReport& level : report.levels) {
        text += QStringLiteral("  %1  ").arg(level.level.leftJustified(4));
        text += level.fits ? QStringLiteral("fits") : QStringLiteral("no");
        if (level.level == report.set) {
            text += QStringLiteral(", set");
        } else if (report.isAuto && level.level == report.asSet.level()) {
            text += QStringLiteral(", taken");
        }
        const QString reasons = reasonsText(level);
        if (!reasons.isEmpty()) {
            text +=
                (level.fits ? QStringLiteral(", with a risk: ") : QStringLiteral(": ")) + reasons;
        }
        text += QLatin1Char('\n');
    }
    return text;
}

QString limitsText(const CheckResult& result)
{
    qsizetype width = 0;
    for (const LimitUse& use : result.uses) {
        width = std::max(width, columnsOf(nameOf(use)));
    }
    QString text;
    for (const LimitUse& use : result.uses) {
        const bool inMillions = use.unit.startsWith(QLatin1String("bit"));
        text +=
            QStringLiteral("  %1  %2  %3 of %4 %5%6\n")
                .arg(nameOf(use) + QString(width - columnsOf(nameOf(use)), QLatin1Char(' ')),
                     bar(use), amountText(use.used, inMillions), amountText(use.limit, inMillions),
                     inMillions ? QStringLiteral("M") : QString(), printable(use.unit));
    }
    return text;
}

QString reportText(const Report& report)
{
    QString text = QStringLiteral("Levels\n") + levelsText(report);
    if (report.asSet.uses.empty()) {
        return text;
    }
    text += QStringLiteral("\nLevel %1").arg(printable(report.asSet.level()));
    text += report.isAuto ? QStringLiteral(", which Auto comes to\n") : QStringLiteral("\n");
    return text + limitsText(report.asSet);
}

QJsonArray limitsJson(const std::vector<LimitUse>& uses)
{
    QJsonArray limits;
    for (const LimitUse& use : uses) {
        limits.append(limitJson(use));
    }
    return limits;
}

QByteArray reportJson(const Report& report)
{
    QJsonArray levels;
    for (const LevelReport& level : report.levels) {
        QJsonArray objections;
        for (const CheckMessage& objection : level.objections) {
            objections.append(messageJson(objection));
        }
        levels.append(QJsonObject{{QStringLiteral("level"), level.level},
                                  {QStringLiteral("fits"), level.fits},
                                  {QStringLiteral("messages"), objections},
                                  {QStringLiteral("exceeded"), limitsJson(level.exceeded)}});
    }
    return jsonText({{QStringLiteral("accepted"), report.asSet.accepted},
                     {QStringLiteral("level"), textOrNull(report.asSet.level())},
                     {QStringLiteral("auto"), report.isAuto},
                     {QStringLiteral("limits"), limitsJson(report.asSet.uses)},
                     {QStringLiteral("levels"), levels}});
}

} // namespace

QList<QCommandLineOption> reportOptions()
{
    return {jsonOption(), languageOption()};
}

Outcome runReport(const Invocation& call)
{
    const KvMvcSettings settings = SettingsFiles(call.directory).read(call.files.first());
    const MessageTexts texts(call.value("language"));
    const Report report = makeReport(Encoder(call.directory, texts.convert()), settings);
    return {report.asSet.accepted ? ExitYes : ExitNo,
            call.has("json") ? reportJson(report) : reportText(report).toUtf8()};
}
