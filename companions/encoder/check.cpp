#include "check.h"

#include "rules.h"

namespace kv::encoder
{

namespace
{

/// @return The level, or null when there is none.
const Level* judge(const Stream& stream, Report& report)
{
    judgePicture(stream, report);
    judgeProfile(stream, report);
    judgeViews(stream, report);
    judgeGop(stream, report);
    judgeRates(stream, report);
    const Level* level = judgeLevel(stream, report);
    judgeDisc(stream, report);
    return level;
}

} // namespace

bool checkSettings(KvMvcSettings& record, Report& report)
{
    // First what the views share, so that what is said of a field holds for all of them.
    correctCounts(record, report);
    alignViews(record, report);
    correctFields(record, report);
    correctRateFields(record, report);
    correctSlices(record, report);
    correctAspect(record, report);
    correctRates(record, report);

    const Stream stream(record);
    // What binds stands above all notes, and only where nothing is refused: that is known before.
    Report silent;
    const Level* level = judge(stream, silent);
    tellLimits(stream, level, report);
    if (silent.errors() == 0) {
        tellHeadroom(stream, level, report);
    }
    judge(stream, report);
    tellSummary(stream, level, report);
    return report.errors() == 0;
}

std::span<const RuleGroup> ruleGroups()
{
    static const RuleGroup groups[] = {
        fieldRules(),          rateFieldRules(),    sharedRules(),      viewRules(),
        pictureRules(),        profileRules(),      levelChoiceRules(), levelRules(),
        levelReferenceRules(), levelPictureRules(), gopRules(),         rateRules(),
        discFormatRules(),     discRules(),         headroomRules(),    summaryRules(),
    };
    return groups;
}

} // namespace kv::encoder
