// What a level allows each picture: slices, bytes and vectors.

#include <algorithm>
#include <limits>

#include "level_rule.h"
#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr const char* slicesClause =
    "A.3.3 a, b, H.10.2.1 l, n: SliceRate; the slices of each view by itself";
constexpr Subject slicesSubject = {.setting = "num_slices", .value = 3, .limit = 2, .level = 1};
constexpr LevelViewRule<const char*, int, int> slicesMost = {
    {"level.slices-most", Severity::Error,
     KV_ALL_VIEWS("Level %s allows at most %d slices per picture at this size and rate (now %d): "
                  "use fewer, or choose level %s."),
     slicesClause, slicesSubject},
    {"level.slices-most-none", Severity::Error,
     KV_ALL_VIEWS("Level %s allows at most %d slices per picture at this size and rate (now %d): "
                  "use fewer."),
     slicesClause, inOtherWords("level.slices-most", slicesSubject)}};
constexpr const char* viewsSlicesClause =
    "H.10.2.1 k, m: mvcScaleFactor 2 times SliceRate's limit; the slices of all view components of "
    "an access unit";
constexpr Subject viewsSlicesSubject = {
    .setting = "num_slices", .value = 4, .limit = 2, .level = 1};
constexpr LevelRule<const char*, int, int, int> slicesTogether = {
    {"level.slices-most-views", Severity::Error,
     "Level %s allows at most %d slices in %d views together at this size and rate (now %d): use "
     "fewer, or choose level %s.",
     viewsSlicesClause, viewsSlicesSubject},
    {"level.slices-most-views-none", Severity::Error,
     "Level %s allows at most %d slices in %d views together at this size and rate (now %d): use "
     "fewer.",
     viewsSlicesClause, inOtherWords("level.slices-most-views", viewsSlicesSubject)}};
constexpr ViewRule<const char*, int, int> slicesLeast = {
    "level.slices-least",
    Severity::Error,
    KV_ALL_VIEWS("Level %s needs at least %d slices per picture at this size (now %d): use more."),
    "H.10.2.1 w, A.3.3 k: no slice of more than MaxFS / 4 macroblocks, whole rows",
    {.setting = "num_slices", .value = 3, .limit = 2, .level = 1}};
constexpr ViewRule<int, const char*, int> vectors = {
    "level.vectors",
    Severity::Note,
    KV_ALL_VIEWS(
        "The motion vector search range %d applies horizontally; vertically, level %s ends "
        "at %d."),
    "A.3.1 k, A.3.2 g, H.10.2.1 g, Table A-1: MaxVmvR",
    {.setting = "motion_search", .value = 1, .limit = 3, .level = 2}};

#define KV_PICTURE_BYTES(kind)                                                                     \
    KV_EACH_VIEW("The maximum " kind                                                               \
                 "-frame size of %d bytes exceeds the %.0f bytes of level %s: lower it.")

#define KV_VIEWS_BYTES(kind)                                                                       \
    "The maximum " kind                                                                            \
    "-frame sizes of all views add up to %.0f bytes, more than level %s allows (%.0f): lower one."

// Largest coded pictures, one row a frame size limit.
constexpr const char* pictureBytesClause =
    "A.3.1 c, d, A.3.3 i, j, H.10.2.1 t, v: MinCR; the bytes of each view component";
constexpr const char* viewsBytesClause =
    "H.10.2.1 s, u: mvcScaleFactor 2 times MinCR's limit; the bytes of all view components of an "
    "access unit";
struct PictureBytes {
    std::int32_t KvMvcViewSettings::*field;
    bool first; ///< the first picture of a stream is one of these
    ViewRule<int, double, const char*> rule;
    Rule<double, const char*, double> together;
};
constexpr PictureBytes pictureBytes[] = {
    {&KvMvcViewSettings::frame_size_i,
     true,
     {"level.size-i",
      Severity::Error,
      KV_PICTURE_BYTES("I"),
      pictureBytesClause,
      {.setting = "frame_size_i", .value = 1, .limit = 2, .level = 3}},
     {"level.size-i-views",
      Severity::Error,
      KV_VIEWS_BYTES("I"),
      viewsBytesClause,
      {.setting = "frame_size_i", .value = 1, .limit = 3, .level = 2}}},
    {&KvMvcViewSettings::frame_size_p,
     false,
     {"level.size-p",
      Severity::Error,
      KV_PICTURE_BYTES("P"),
      pictureBytesClause,
      {.setting = "frame_size_p", .value = 1, .limit = 2, .level = 3}},
     {"level.size-p-views",
      Severity::Error,
      KV_VIEWS_BYTES("P"),
      viewsBytesClause,
      {.setting = "frame_size_p", .value = 1, .limit = 3, .level = 2}}},
    {&KvMvcViewSettings::frame_size_b,
     false,
     {"level.size-b",
      Severity::Error,
      KV_PICTURE_BYTES("B"),
      pictureBytesClause,
      {.setting = "frame_size_b", .value = 1, .limit = 2, .level = 3}},
     {"level.size-b-views",
      Severity::Error,
      KV_VIEWS_BYTES("B"),
      viewsBytesClause,
      {.setting = "frame_size_b", .value = 1, .limit = 3, .level = 2}}},
    {&KvMvcViewSettings::frame_size_bref,
     false,
     {"level.size-br",
      Severity::Error,
      KV_PICTURE_BYTES("Br"),
      pictureBytesClause,
      {.setting = "frame_size_bref", .value = 1, .limit = 2, .level = 3}},
     {"level.size-br-views",
      Severity::Error,
      KV_VIEWS_BYTES("Br"),
      viewsBytesClause,
      {.setting = "frame_size_bref", .value = 1, .limit = 3, .level = 2}}},
};

/// Pictures that a frame is coded as: field pictures have half the size and half the time.
int picturesAFrame(const Stream& stream)
{
    return stream.base.interlace_mode == KV_MVC_INTERLACED ? 2 : 1;
}

/// Macroblocks that the time before the first picture is worth, at least one picture.
double firstPictureMbs(const Stream& stream, const Level& level)
{
    return std::max(static_cast<double>(stream.pictureMbs),
                    static_cast<double>(level.mbRate) / (maxFrameRate * picturesAFrame(stream)));
}

/// Macroblocks that the time from one picture to the next is worth; no limit without a rate.
double laterPictureMbs(const Stream& stream, const Level& level)
{
    if (stream.frameRate == 0) {
        return std::numeric_limits<double>::infinity();
    }
    return static_cast<double>(level.mbRate) / (stream.frameRate * picturesAFrame(stream));
}

constexpr double unlimited = std::numeric_limits<std::int32_t>::max();

/// Most slices of a picture in one view, and in all views.
struct SliceLimit {
    int ofView;
    int ofAll;
};

SliceLimit mostSlices(const Stream& stream, const Level& level)
{
    if (level.sliceRate == 0 || !stream.streamProfile()->limitsSliceCount) {
        return {static_cast<int>(unlimited), static_cast<int>(unlimited)};
    }
    const double most =
        std::min(firstPictureMbs(stream, level), laterPictureMbs(stream, level)) / level.sliceRate;
    const auto whole = [](double limit, double least) {
        return static_cast<int>(std::clamp(limit, least, unlimited));
    };
    return {whole(most, 1), whole(2 * most, stream.views)};
}

/// Whether a sum over all views is told, and not what each of them is by itself: of more than two
/// views it binds first, since an access unit may have twice what a view may.
bool isToldTogether(const Stream& stream, bool sumExceeds, bool eachFits)
{
    return stream.multiview && sumExceeds && (eachFits || stream.views > 2);
}

void judgeSlices(const Stream& stream, const Level& level, const Level* other, Report& report)
{
    const SliceLimit most = mostSlices(stream, level);
    const int least = leastSlices(stream, level);
    int total = 0;
    int largest = 0;
    for (int v = 0; v < stream.subRecords; ++v) {
        const int slices = stream.record.views[v].num_slices;
        total += stream.viewsLike(v) * slices;
        largest = std::max(largest, slices);
    }
    if (isToldTogether(stream, total > most.ofAll, largest <= most.ofView)) {
        sayLevel(report, slicesTogether, other, level.name, most.ofAll, stream.views, total);
        return;
    }
    for (int v = 0; v < stream.subRecords; ++v) {
        const int slices = stream.record.views[v].num_slices;
        if (slices > most.ofView) {
            sayLevelOf(report, v, slicesMost, other, level.name, most.ofView, slices);
            return;
        }
        if (slices < least) {
            report.sayOf(v, slicesLeast, level.name, least, slices);
            return;
        }
    }
}

/// Holds the size limits of one kind of picture against a level's, in bytes.
void judgeBytesOf(const Stream& stream, const Level& level, const PictureBytes& row, double limit,
                  Report& report)
{
    std::int32_t bytes[KV_MVC_RECORD_VIEWS] = {};
    double total = 0;
    for (int v = 0; v < stream.subRecords; ++v) {
        const KvMvcViewSettings& view = stream.record.views[v];
        if (view.bitrate_mode != KV_MVC_CONSTANT_QUANTIZER) { // which holds no picture to a size
            bytes[v] = view.*row.field;
        }
        total += static_cast<double>(stream.viewsLike(v)) * bytes[v];
    }
    if (isToldTogether(stream, total > 2 * limit, std::ranges::max(bytes) <= limit)) {
        report.say(row.together, total, level.name, 2 * limit);
        return;
    }
    for (int v = 0; v < stream.subRecords; ++v) {
        if (bytes[v] > limit) {
            report.sayOf(v, row.rule, bytes[v], limit, level.name);
        }
    }
}

void judgePictureBytes(const Stream& stream, const Level& level, Report& report)
{
    if (!stream.streamProfile()->limitsPictureBytes) {
        return;
    }
    const double later = 384 * laterPictureMbs(stream, level) / level.minCompression;
    for (const PictureBytes& row : pictureBytes) {
        judgeBytesOf(stream, level, row, row.first ? mostBytes(stream, level) : later, report);
    }
}

void judgeVectors(const Stream& stream, const Level& level, Report& report)
{
    for (int v = 0; stream.predicts && v < stream.subRecords; ++v) {
        const int range = stream.record.views[v].motion_search;
        if (range > level.verticalVector) {
            report.sayOf(v, vectors, range, level.name, level.verticalVector);
            return;
        }
    }
}

constexpr auto singles = std::to_array<const RuleInfo*>({&slicesLeast, &vectors});
constexpr auto togetherRules = [] {
    std::array<const RuleInfo*, std::size(pictureBytes)> list{};
    std::ranges::transform(pictureBytes, list.begin(),
                           [](const PictureBytes& row) { return &row.together; });
    return list;
}();
constexpr auto rules =
    joinRules(bothRules(slicesMost, slicesTogether), singles, rulesOf(pictureBytes), togetherRules);

} // namespace

int leastSlices(const Stream& stream, const Level& level)
{
    const bool refused = stream.interlaced && !stream.mayInterlace;
    if (!stream.streamProfile()->limitsSliceSize || stream.pictureMbs <= freeSliceMbs || refused) {
        return 1;
    }
    const bool pairs = stream.base.interlace_mode == KV_MVC_MBAFF;
    const std::int64_t rowMbs = stream.widthMbs * (pairs ? 2 : 1);
    const std::int64_t rowsASlice = std::max<std::int64_t>(level.frameMbs / 4 / rowMbs, 1);
    return static_cast<int>((sliceRows(stream.base) + rowsASlice - 1) / rowsASlice);
}

double mostBytes(const Stream& stream, const Level& level)
{
    if (!stream.streamProfile()->limitsPictureBytes) {
        return std::numeric_limits<double>::infinity();
    }
    const double mbs = std::min(firstPictureMbs(stream, level), laterPictureMbs(stream, level));
    return 384 * mbs / level.minCompression;
}

void judgeLevelPictures(const Stream& stream, const Level& level, const Level* other,
                        Report& report)
{
    judgeSlices(stream, level, other, report);
    judgePictureBytes(stream, level, report);
    judgeVectors(stream, level, report);
}

RuleGroup levelPictureRules()
{
    return {"Pictures of a level", rules};
}

} // namespace kv::encoder
