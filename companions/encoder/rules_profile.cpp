// Tools that a profile does not have, and tools that it has and that are left out.

#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr Rule<int> unassigned = {"profile.code",
                                  Severity::Error,
                                  "The profile code %d is unknown: choose a profile.",
                                  "A.2",
                                  {.setting = "profile", .value = 1}};
constexpr Rule<const char*> bFrames = {
    "profile.b-frames",
    Severity::Error,
    "Profile %s does not allow B-frames: set their number to 0, or choose Main or High.",
    "A.2.1",
    {.setting = "ref_distance"}};
constexpr Rule<const char*> interlace = {
    "profile.interlace",
    Severity::Error,
    "Profile %s allows progressive pictures only: choose Progressive, or profile Main or High.",
    "A.2.1",
    {.setting = "interlace_mode"}};
constexpr Rule<const char*> cabac = {
    "profile.cabac",
    Severity::Error,
    "Profile %s does not allow CABAC: choose CAVLC, or profile Main or High.",
    "A.2.1",
    {.setting = "entropy_mode"}};
constexpr Rule<const char*> weighted = {
    "profile.weighted",
    Severity::Error,
    "Profile %s does not allow weighted prediction: switch it off, or choose Main or High.",
    "A.2.1",
    {.setting = "weighted_p"}};
constexpr Rule<const char*> monochrome = {
    "profile.4-0-0",
    Severity::Error,
    "Profile %s does not allow 4:0:0: choose 4:2:0, or profile High.",
    "A.2.1, A.2.2",
    {.setting = "chroma_format"}};
constexpr Rule<const char*> chroma422 = {"profile.4-2-2",
                                         Severity::Error,
                                         "Profile %s does not allow 4:2:2: choose 4:2:0.",
                                         "A.2.1 to A.2.5",
                                         {.setting = "chroma_format"}};
constexpr Rule<> unnamed = {"profile.chroma",
                            Severity::Error,
                            "No profile allows the chroma format that is set: choose 4:2:0.",
                            "A.2: the profiles end at 4:2:2",
                            {.setting = "chroma_format"}};
constexpr Rule<const char*, int> lumaDepth = {
    "profile.depth-luma",
    Severity::Error,
    "Profile %s does not allow %d bits of luma: choose 8 bits, or profile High 10.",
    "A.2.1 to A.2.4",
    {.setting = "bit_depth_luma", .value = 2}};
constexpr Rule<const char*, int> chromaDepth = {
    "profile.depth-chroma",
    Severity::Error,
    "Profile %s does not allow %d bits of chroma: choose 8 bits, or profile High 10.",
    "A.2.1 to A.2.4",
    {.setting = "bit_depth_chroma", .value = 2}};
constexpr Rule<> unusedDepth = {"profile.depth-unused",
                                Severity::Note,
                                "The bit-depth of chroma has no effect: 4:0:0 has no chroma.",
                                "7.4.2.1.1",
                                {.setting = "bit_depth_chroma"}};
constexpr Rule<const char*> cavlc = {"profile.cavlc",
                                     Severity::Note,
                                     "Profile %s allows CABAC, which needs fewer bits than CAVLC.",
                                     "A.2.2",
                                     {.setting = "entropy_mode"}};
constexpr Rule<const char*> noBFrames = {
    "profile.no-b-frames",
    Severity::Note,
    "Profile %s allows B-frames, which save bits; their number is 0.",
    "A.2.2",
    {.setting = "ref_distance"}};

struct Tool {
    bool used;
    bool allowed;
    const Rule<const char*>& rule;
};

// The base view has to conform by itself; the multiview profiles have all that other views may use.
// What several views or a disc do not allow in any profile is told as their own limit.
void judgeTools(const Stream& stream, const Profile& profile, Report& report)
{
    const KvMvcViewSettings& base = stream.base;
    const Tool tools[] = {
        {stream.bFrames, profile.bFrames, bFrames},
        {stream.interlaced && (!stream.multiview || stream.multiview->interlace), profile.interlace,
         interlace},
        {base.entropy_mode == KV_MVC_CABAC, profile.cabac, cabac},
        {base.weighted_p != 0, profile.weighted, weighted},
        {base.chroma_format == KV_MVC_CHROMA_400, profile.monochrome, monochrome},
        {base.chroma_format == KV_MVC_CHROMA_422 && !stream.multiview && !stream.disc,
         profile.chroma422, chroma422},
    };
    for (const Tool& tool : tools) {
        if (tool.used && !tool.allowed) {
            report.say(tool.rule, profile.name);
        }
    }
}

void judgeDepth(const Stream& stream, const Profile& profile, Report& report)
{
    const KvMvcViewSettings& base = stream.base;
    const bool noChroma = base.chroma_format == KV_MVC_CHROMA_400;
    if (noChroma && base.bit_depth_chroma != 8) {
        report.say(unusedDepth);
    }
    if (stream.multiview) {
        return; // several views have 8 bits in any profile
    }
    if (base.bit_depth_luma > profile.maxDepth) {
        report.say(lumaDepth, profile.name, base.bit_depth_luma);
    }
    if (!noChroma && base.bit_depth_chroma > profile.maxDepth) {
        report.say(chromaDepth, profile.name, base.bit_depth_chroma);
    }
}

void tellUnused(const Stream& stream, const Profile& profile, Report& report)
{
    if (profile.cabac && stream.base.entropy_mode == KV_MVC_CAVLC) {
        report.say(cavlc, profile.name);
    }
    if (profile.bFrames && stream.predicts && !stream.bFrames) {
        report.say(noBFrames, profile.name);
    }
}

constexpr const RuleInfo* rules[] = {
    &unassigned, &bFrames,   &interlace,   &cabac,       &weighted, &monochrome, &chroma422,
    &unnamed,    &lumaDepth, &chromaDepth, &unusedDepth, &cavlc,    &noBFrames,
};

} // namespace

void judgeProfile(const Stream& stream, Report& report)
{
    if (!stream.disc && stream.base.chroma_format == KV_MVC_CHROMA_UNNAMED) {
        report.say(unnamed);
    }
    if (!stream.profile) {
        report.say(unassigned, stream.base.profile);
        return;
    }
    if (stream.disc && stream.profile->code != KV_MVC_PROFILE_HIGH) {
        return; // the disc requires High, which has all that it allows
    }
    judgeTools(stream, *stream.profile, report);
    judgeDepth(stream, *stream.profile, report);
    tellUnused(stream, *stream.profile, report);
}

RuleGroup profileRules()
{
    return {"Profile", rules};
}

} // namespace kv::encoder
