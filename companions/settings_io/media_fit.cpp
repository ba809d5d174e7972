#include "media_fit.h"

#include "media_coding.h"
#include "media_rates.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace kv
{
namespace
{

/// The views that the stream has of those that the record holds.
std::span<KvMvcViewSettings> viewsInUse(KvMvcSettings& settings)
{
    return std::span(settings.views).first(settings.num_views > 1 ? 2 : 1);
}

/// Takes a maximum rate that is made up, and its buffer, in four steps towards the average.
bool lowerMaximum(const KvMediaInfo& info, KvMvcSettings& settings, int step)
{
    constexpr int fittingSteps = 4;
    const auto views = viewsInUse(settings);
    for (KvMvcViewSettings& view : views.subspan(hasSignalledBuffer(info) ? 1 : 0)) {
        const double above = view.max_bitrate - view.bitrate;
        if (above > 0) {
            scaleLimits((view.max_bitrate - above * step / fittingSteps) / view.max_bitrate, view);
        }
    }
    return step <= fittingSteps;
}

/// Slices are whole rows of blocks.
bool raiseSlices(const KvMediaInfo&, KvMvcSettings& settings, int step)
{
    constexpr int row = 16;
    for (KvMvcViewSettings& view : settings.views) {
        view.num_slices += step;
        view.multi_slice = 1;
    }
    return settings.views[0].num_slices <= (settings.views[0].height + row - 1) / row;
}

/// First none that others refer to, then fewer.
bool lowerBFrames(const KvMediaInfo&, KvMvcSettings& settings, int step)
{
    for (KvMvcViewSettings& view : settings.views) {
        view.reference_b = view.pyramid_b = 0;
        view.ref_distance -= step - 1;
        if (view.ref_distance == 1) {
            view.adaptive_b = 0;
        }
    }
    return settings.views[0].ref_distance >= 1;
}

/// Those of further views; of all views where the file does not tell them.
bool lowerUntoldReferences(const KvMediaInfo& info, KvMvcSettings& settings, int step)
{
    const auto views = viewsInUse(settings).subspan(info.num_ref_frames < 0 ? 0 : 1);
    for (KvMvcViewSettings& view : views) {
        view.num_ref_frames -= step;
    }
    return !views.empty() && std::ranges::all_of(views, [](const KvMvcViewSettings& view) {
        return view.num_ref_frames >= 1;
    });
}

bool leaveLevelOpen(const KvMediaInfo&, KvMvcSettings& settings, int step)
{
    const bool isOpen = settings.views[0].level == KV_MVC_LEVEL_AUTO;
    for (KvMvcViewSettings& view : settings.views) {
        view.level = KV_MVC_LEVEL_AUTO;
    }
    return step == 1 && !isOpen;
}

/// Up to one column and three rows: what cropping cannot tell, with interlaced 4:2:0 at most.
bool cutPicture(const KvMediaInfo&, KvMvcSettings& settings, int step)
{
    for (KvMvcViewSettings& view : settings.views) {
        view.width -= step % 2;
        view.height -= step / 2;
    }
    return step < 8;
}

bool roundAspect(const KvMediaInfo&, KvMvcSettings& settings, int step)
{
    for (KvMvcViewSettings& view : settings.views) {
        view.pixel_aspect_x = std::max(view.pixel_aspect_x >> step, 1);
        view.pixel_aspect_y = std::max(view.pixel_aspect_y >> step, 1);
    }
    return step < 31;
}

bool lowerReferences(const KvMediaInfo&, KvMvcSettings& settings, int step)
{
    for (KvMvcViewSettings& view : settings.views) {
        view.num_ref_frames = std::max(view.num_ref_frames - step, 1);
    }
    return step < 16;
}

bool divideFrameRate(const KvMediaInfo&, KvMvcSettings& settings, int step)
{
    for (KvMvcViewSettings& view : settings.views) {
        view.frame_rate = view.frame_rate / (step + 1);
    }
    return step < 8;
}

bool lowerRates(const KvMediaInfo&, KvMvcSettings& settings, int step)
{
    for (KvMvcViewSettings& view : viewsInUse(settings)) {
        scaleRates(std::pow(0.9, step), view);
    }
    return step <= 100; // to a thirty thousandth
}

struct Remedy {
    /// Takes so many steps at once, from 1 on; false when there is no such step.
    bool (*take)(const KvMediaInfo&, KvMvcSettings&, int step);
    const char* note; ///< what of the file is lost; null for what no file says
    bool (*isTold)(const KvMediaInfo&) = [](const KvMediaInfo&) { return true; };
};

bool tellsFurtherReferences(const KvMediaInfo& info)
{
    return info.num_views > 1 && info.dependent_ref_frames > 0;
}

/// What costs least comes first.
constexpr Remedy remedies[] = {
    {lowerMaximum, nullptr},
    {raiseSlices, "more slices are taken than it has", showsCoding},
    {lowerUntoldReferences, "fewer reference frames are taken in further views than it has",
     tellsFurtherReferences},
    {lowerBFrames, "fewer B-frames, and no references to them, are taken than it has", showsCoding},
    {leaveLevelOpen, "its level is not kept, Auto is taken"},
    {cutPicture, "its picture is cut to a size that can be coded"},
    {roundAspect, "its pixel aspect ratio is rounded"},
    {lowerReferences, "fewer reference frames are taken than it has"},
    {divideFrameRate, "a part of its frame rate is taken"},
    {lowerRates, "a lower bit rate is taken than it has"},
};

/// Settings on their way.
struct Attempt {
    KvMvcSettings settings;
    Verdict verdict;
    std::vector<std::string> notes;
};

std::string noteOf(const Remedy& remedy, const Verdict& former)
{
    const std::string note = remedy.note;
    return former.errors.empty() ? note : note + " (" + former.errors.front() + ")";
}

/// The first remedy's first step that comes as near to accepted as that.
bool improve(KvMvcCheck check, const KvMediaInfo& info, std::size_t distance, Attempt& attempt)
{
    for (const Remedy& remedy : remedies) {
        KvMvcSettings tried = attempt.settings;
        for (int step = 1; remedy.take(info, tried, step); ++step) {
            Verdict verdict = checkSettings(check, tried);
            if (verdict.distance() <= distance) {
                if (remedy.note && remedy.isTold(info)) {
                    attempt.notes.push_back(noteOf(remedy, attempt.verdict));
                }
                attempt.settings = tried;
                attempt.verdict = std::move(verdict);
                return true;
            }
            tried = attempt.settings;
        }
    }
    return false;
}

/// One remedy that is enough, or else several of which each takes an error away.
Attempt remedied(KvMvcCheck check, const KvMediaInfo& info, Attempt attempt)
{
    bool improved = true;
    while (!attempt.verdict.accepted && improved) {
        improved = improve(check, info, 0, attempt) ||
                   improve(check, info, attempt.verdict.distance() - 1, attempt);
    }
    return attempt;
}

/// The warnings of what was corrected. One that the corrected settings get again corrects nothing,
/// and is told whenever they are checked.
std::vector<std::string> corrections(KvMvcCheck check, const Verdict& verdict)
{
    if (verdict.warnings.empty()) {
        return {};
    }
    const Verdict again = checkSettings(check, verdict.corrected);
    std::vector<std::string> told = verdict.warnings;
    std::erase_if(told, [&](const std::string& warning) {
        return std::ranges::find(again.warnings, warning) != again.warnings.end();
    });
    return told;
}

std::vector<std::string> refusals(const Verdict& verdict)
{
    const std::string note = "the encoder refuses the settings";
    std::vector<std::string> notes;
    for (const std::string& error : verdict.errors) {
        notes.emplace_back(note).append(": ").append(error);
    }
    return notes.empty() ? std::vector{note} : notes;
}

} // namespace

std::vector<std::string> fitToEncoder(KvMvcCheck check, const KvMediaInfo& info,
                                      KvMvcSettings& settings)
{
    const Attempt plain = {settings, checkSettings(check, settings), {}};
    Attempt fitted = remedied(check, info, plain);
    if (!fitted.verdict.accepted) {
        return refusals(plain.verdict);
    }
    std::vector<std::string> notes = std::move(fitted.notes);
    settings = fitted.verdict.corrected;
    for (const std::string& warning : corrections(check, fitted.verdict)) {
        notes.push_back("the encoder corrects the settings: " + warning);
    }
    return notes;
}

} // namespace kv
