// The rules of the check, by subject: what each subject corrects or judges, and its rule list.
//
// Corrections come first, in the order below; a corrected record is a fixed point of them. What a
// user may be in the middle of changing is never corrected, only judged.
#pragma once

#include <kv_config_gui_mvc/settings_record.h>

#include <functional>
#include <span>

#include "level_limits.h"
#include "report.h"
#include "rule.h"
#include "stream.h"

namespace kv::encoder
{

/// The number of views, and whether they are split.
void correctCounts(KvMvcSettings& record, Report& report);
/// Gives the second view what all views have in common.
void alignViews(KvMvcSettings& record, Report& report);
/// Takes the general fields of the views in use into their ranges.
void correctFields(KvMvcSettings& record, Report& report);
/// The rate control's fields; quantizers need the bit depth that all views have.
void correctRateFields(KvMvcSettings& record, Report& report);
/// Fits settings that follow from others: slices, aspect pairs, rates, fullness.
void correctSlices(KvMvcSettings& record, Report& report);
void correctAspect(KvMvcSettings& record, Report& report);
void correctRates(KvMvcSettings& record, Report& report);

void judgePicture(const Stream& stream, Report& report);
void judgeProfile(const Stream& stream, Report& report);
void judgeViews(const Stream& stream, Report& report);
void judgeGop(const Stream& stream, Report& report);
void judgeRates(const Stream& stream, Report& report);
/// @return The chosen level, or what "Auto" comes to; null when there is none.
const Level* judgeLevel(const Stream& stream, Report& report);
/// What a level does not allow. @param other The level that would do; null when none would.
void judgeLimits(const Stream& stream, const Level& level, const Level* other, Report& report);
/// The parts of it for a picture whose size the level takes.
void judgeLevelReferences(const Stream& stream, const Level& level, const Level* other,
                          Report& report);
void judgeLevelPictures(const Stream& stream, const Level& level, const Level* other,
                        Report& report);
/// Gives away how much of the limits of the level, if there is one, and of the disc is used.
using TakeLimit = std::function<void(const KvMvcLimitUse&)>;
void eachLimit(const Stream& stream, const Level* level, const TakeLimit& take);
void eachDiscLimit(const Stream& stream, const TakeLimit& take);
/// Tells them, where anybody wants to know.
void tellLimits(const Stream& stream, const Level* level, const Report& report);
/// What binds first, of settings that are accepted.
void tellHeadroom(const Stream& stream, const Level* level, Report& report);
/// Whether rates or buffers are more than a level allows for picture data (VCL NAL units), which
/// is less than for all.
bool exceedsPictureData(const Stream& stream, const Level& level);
/// Fewest slices of a picture at a level. Needs a size and a profile.
int leastSlices(const Stream& stream, const Level& level);
/// Most bytes of an I picture of one view at a level; infinite without a limit. Likewise.
double mostBytes(const Stream& stream, const Level& level);
/// Whether a disc may have the picture format.
bool isDiscFormat(const Stream& stream);
/// The part of a disc's limits for a picture that has a size.
void judgeDiscFormat(const Stream& stream, Report& report);
void judgeDisc(const Stream& stream, Report& report);
void tellSummary(const Stream& stream, const Level* level, Report& report);

RuleGroup fieldRules();
RuleGroup rateFieldRules();
RuleGroup sharedRules();
RuleGroup viewRules();
RuleGroup pictureRules();
RuleGroup profileRules();
RuleGroup levelChoiceRules();
RuleGroup levelRules();
RuleGroup levelReferenceRules();
RuleGroup levelPictureRules();
RuleGroup gopRules();
RuleGroup rateRules();
RuleGroup discFormatRules();
RuleGroup discRules();
RuleGroup headroomRules();
RuleGroup summaryRules();

/// All of the above, in the order of the documentation.
std::span<const RuleGroup> ruleGroups();

} // namespace kv::encoder
