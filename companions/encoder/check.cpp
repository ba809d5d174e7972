#include "check.h"

#include "rules.h"

namespace kv::encoder
{

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
    judgePicture(stream, report);
    judgeProfile(stream, report);
    judgeViews(stream, report);
    judgeGop(stream, report);
    judgeRates(stream, report);
    const Level* level = judgeLevel(stream, report);
    tellLimits(stream, level, report);
    tellDiscLimits(stream, report);
    judgeDisc(stream, report);
    tellSummary(stream, level, report);
    return report.errors() == 0;
}

std::span<const RuleGroup> ruleGroups()
{
    static const RuleGroup groups[] = {
        fieldRules(),          rateFieldRules(),    sharedRules(),      viewRules(),
        pictureRules(),        profileRules(),      levelChoiceRules(), levelRules(),
        levelReferenceRules(), levelPictureRules(), gopRules(),         rateRules(),
        discFormatRules(),     discRules(),         summaryRules(),
    };
    return groups;
}

} // namespace kv::encoder
