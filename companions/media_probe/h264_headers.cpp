#include "h264_headers.h"

#include "bit_reader.h"

#include <algorithm>

namespace kv
{
namespace
{

/// Profiles whose parameter sets hold chroma format and bit depths (7.3.2.1.1).
constexpr uint32_t highProfiles[] = {100, 110, 122, 244, 44, 83, 86, 118, 128, 138, 139, 134, 135};

/// Profiles of Annex H, whose subset parameter sets hold the multiview extension (7.3.2.1.3).
constexpr uint32_t multiviewProfiles[] = {118, 128, 134};

constexpr uint32_t mostRefFrames = 16;
constexpr uint32_t mostViews = 1024;          // H.7.4.2.1.4
constexpr uint32_t mostMacroblocks = 1 << 14; // in a row or column; far beyond every level
constexpr uint32_t mostBufferSets = 32;       // cpb_cnt_minus1 + 1 (E.2.2)
constexpr uint32_t extendedAspect = 255;
constexpr uint32_t mostOrderBits = 12; // log2_max_pic_order_cnt_lsb_minus4
constexpr uint32_t longestCycle = 255; // num_ref_frames_in_pic_order_cnt_cycle

/// aspect_ratio_idc (Table E-1).
constexpr uint32_t aspects[][2] = {{0, 0},   {1, 1},    {12, 11}, {10, 11}, {16, 11}, {40, 33},
                                   {24, 11}, {20, 11},  {32, 11}, {80, 33}, {18, 11}, {15, 11},
                                   {64, 33}, {160, 99}, {4, 3},   {3, 2},   {2, 1}};

bool contains(std::span<const uint32_t> values, uint32_t value)
{
    return std::ranges::find(values, value) != values.end();
}

void skipScalingList(BitReader& reader, int size)
{
    int32_t last = 8;
    int32_t next = 8;
    for (int at = 0; at < size && !reader.overrun() && next != 0; ++at) {
        next = (last + reader.signedGolomb() % 256 + 256) % 256;
        last = next == 0 ? last : next;
    }
}

/// @return Whether the values are possible.
bool readColour(BitReader& reader, SequenceParameters& sequence)
{
    constexpr int smallLists = 6;
    sequence.chromaFormat = reader.unsignedGolomb();
    if (sequence.chromaFormat == 3) {
        sequence.separatePlanes = reader.flag();
    }
    sequence.bitDepthLuma = 8 + reader.unsignedGolomb();
    sequence.bitDepthChroma = 8 + reader.unsignedGolomb();
    reader.bits(1);      // qpprime_y_zero_transform_bypass_flag
    if (reader.flag()) { // seq_scaling_matrix_present_flag
        const int lists = sequence.chromaFormat == 3 ? 12 : 8;
        for (int list = 0; list < lists && !reader.overrun(); ++list) {
            if (reader.flag()) {
                skipScalingList(reader, list < smallLists ? 16 : 64);
            }
        }
    }
    return sequence.chromaFormat <= 3 && sequence.bitDepthLuma <= 14 &&
           sequence.bitDepthChroma <= 14;
}

/// @return Whether the values are possible.
bool readPictureOrder(BitReader& reader, PictureOrder& order)
{
    order.type = reader.unsignedGolomb();
    if (order.type == 0) {
        const uint32_t bits = reader.unsignedGolomb();
        order.bits = 4 + static_cast<int>(std::min(bits, mostOrderBits));
        return bits <= mostOrderBits;
    }
    if (order.type != 1) {
        return order.type == 2;
    }
    order.alwaysZero = reader.flag();
    order.nonReference = reader.signedGolomb();
    order.topToBottom = reader.signedGolomb();
    const uint32_t frames = reader.unsignedGolomb();
    for (uint32_t frame = 0; frame < std::min(frames, longestCycle + 1); ++frame) {
        order.cycle.push_back(reader.signedGolomb());
    }
    return frames <= longestCycle;
}

/// Width and height, cropped (7.4.2.1.1, equations 7-19 to 7-22).
bool readSize(BitReader& reader, SequenceParameters& sequence)
{
    const uint64_t columns = uint64_t(reader.unsignedGolomb()) + 1;
    const uint64_t mapRows = uint64_t(reader.unsignedGolomb()) + 1;
    sequence.framesOnly = reader.flag();
    if (!sequence.framesOnly) {
        sequence.mbaff = reader.flag();
    }
    reader.bits(1); // direct_8x8_inference_flag
    const uint64_t rows = mapRows * (sequence.framesOnly ? 1 : 2);
    if (columns > mostMacroblocks || rows > mostMacroblocks) {
        return false;
    }
    uint64_t crop[4] = {}; // left, right, top, bottom
    if (reader.flag()) {
        for (uint64_t& side : crop) {
            side = reader.unsignedGolomb();
        }
    }
    const bool planar = sequence.separatePlanes || sequence.chromaFormat == 0;
    const uint64_t unitX = !planar && sequence.chromaFormat < 3 ? 2 : 1;
    const uint64_t unitY =
        (!planar && sequence.chromaFormat == 1 ? 2u : 1u) * (sequence.framesOnly ? 1u : 2u);
    const uint64_t cropX = (crop[0] + crop[1]) * unitX;
    const uint64_t cropY = (crop[2] + crop[3]) * unitY;
    if (cropX >= columns * 16 || cropY >= rows * 16) {
        return false;
    }
    sequence.width = static_cast<uint32_t>(columns * 16 - cropX);
    sequence.height = static_cast<uint32_t>(rows * 16 - cropY);
    return true;
}

/// The presence flag and hrd_parameters (E.1.2); the last of several buffers has the highest rate.
bool readBufferModel(BitReader& reader, Usability& usability)
{
    if (!reader.flag()) {
        return false;
    }
    const uint32_t last = reader.unsignedGolomb();
    const int rateShift = 6 + static_cast<int>(reader.bits(4));
    const int sizeShift = 4 + static_cast<int>(reader.bits(4));
    if (last >= mostBufferSets) {
        reader.fail();
    }
    for (uint32_t set = 0; set <= last && !reader.overrun(); ++set) {
        usability.bitRate = (uint64_t(reader.unsignedGolomb()) + 1) << rateShift;
        usability.bufferSize = (uint64_t(reader.unsignedGolomb()) + 1) << sizeShift;
        usability.constantRate = reader.flag();
    }
    reader.bits(5); // of the initial delay
    usability.delayBits = static_cast<int>(reader.bits(5)) + 1;
    usability.delayBits += static_cast<int>(reader.bits(5)) + 1;
    reader.bits(5); // of a time offset
    return true;
}

void readAspect(BitReader& reader, Usability& usability)
{
    const uint32_t code = reader.bits(8);
    if (code == extendedAspect) {
        usability.aspectX = reader.bits(16);
        usability.aspectY = reader.bits(16);
    } else if (code < std::size(aspects)) {
        usability.aspectX = aspects[code][0];
        usability.aspectY = aspects[code][1];
    }
    if (usability.aspectX == 0 || usability.aspectY == 0) {
        usability.aspectX = usability.aspectY = 0;
    }
}

/// The NAL model, or else the VCL model.
void readBufferModels(BitReader& reader, Usability& usability)
{
    Usability other;
    const bool nal = readBufferModel(reader, usability);
    const bool vcl = readBufferModel(reader, nal ? other : usability);
    if (nal || vcl) {
        reader.bits(1); // low_delay_hrd_flag
    }
}

/// vui_parameters (E.1.1).
Usability readUsability(BitReader& reader)
{
    Usability usability;
    if (reader.flag()) {
        readAspect(reader, usability);
    }
    if (reader.flag()) { // overscan_info_present_flag
        reader.bits(1);
    }
    if (reader.flag()) { // video_signal_type_present_flag
        reader.bits(4);
        if (reader.flag()) {
            reader.bits(24);
        }
    }
    if (reader.flag()) { // chroma_loc_info_present_flag
        reader.unsignedGolomb();
        reader.unsignedGolomb();
    }
    if (reader.flag()) { // timing_info_present_flag
        usability.unitsInTick = reader.bits(32);
        usability.timeScale = reader.bits(32);
        reader.bits(1);
    }
    readBufferModels(reader, usability);
    usability.pictureStructure = reader.flag();
    if (reader.flag()) { // bitstream_restriction_flag
        reader.bits(1);
        for (int value = 0; value < 6; ++value) {
            reader.unsignedGolomb();
        }
    }
    return usability;
}

/// The number of views of seq_parameter_set_mvc_extension (H.7.3.2.1.4).
bool readViews(BitReader& reader, SequenceParameters& sequence)
{
    const bool one = reader.flag(); // bit_equal_to_one
    const uint64_t views = uint64_t(reader.unsignedGolomb()) + 1;
    if (!one || reader.overrun() || views > mostViews) {
        return false;
    }
    sequence.views = static_cast<uint32_t>(views);
    return true;
}

} // namespace

bool isMultiviewProfile(uint32_t profile)
{
    return contains(multiviewProfiles, profile);
}

std::optional<SequenceParameters> parseSequenceParameters(Bytes payload, bool subset)
{
    BitReader reader(payload);
    SequenceParameters sequence;
    sequence.profile = reader.bits(8);
    sequence.constraintFlags = reader.bits(8);
    sequence.level = reader.bits(8);
    sequence.id = reader.unsignedGolomb();
    if (contains(highProfiles, sequence.profile) && !readColour(reader, sequence)) {
        return std::nullopt;
    }
    const uint32_t frameNumBits = reader.unsignedGolomb();
    const bool ordered = readPictureOrder(reader, sequence.order);
    sequence.refFrames = reader.unsignedGolomb();
    reader.bits(1); // gaps_in_frame_num_value_allowed_flag
    if (reader.overrun() || sequence.id > 31 || frameNumBits > 12 || !ordered ||
        sequence.refFrames > mostRefFrames || !readSize(reader, sequence)) {
        return std::nullopt;
    }
    sequence.frameNumBits = 4 + static_cast<int>(frameNumBits);
    if (reader.overrun()) {
        return std::nullopt;
    }
    if (reader.flag()) {
        sequence.usability = readUsability(reader);
    }
    if (reader.overrun()) { // some encoders end a set early; what follows is not known, then
        sequence.usability = {};
        return sequence;
    }
    if (subset && isMultiviewProfile(sequence.profile) && !readViews(reader, sequence)) {
        return std::nullopt;
    }
    return sequence;
}

} // namespace kv
