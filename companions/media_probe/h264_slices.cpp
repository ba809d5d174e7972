#include "h264_slices.h"

#include "bit_reader.h"

#include <algorithm>

namespace kv
{
namespace
{

constexpr uint32_t mostReferences = 32; // num_ref_idx_active: fields, 7.4.3
constexpr uint32_t mostPictureParameters = 255;
constexpr uint32_t mostSequences = 31;
constexpr int mostListEntries = 66; // far more changes than a list has entries

bool isPredicted(SliceKind kind)
{
    return kind != SliceKind::I && kind != SliceKind::SwitchingI;
}

/// pic_order_cnt_lsb or the differences of order type 1.
void readOrder(BitReader& reader, const PictureOrder& order, bool inFrames, SliceHeader& slice)
{
    const bool second = inFrames && !slice.field;
    if (order.type == 0) {
        slice.orderBits = reader.bits(order.bits);
        slice.orderDeltas[1] = second ? reader.signedGolomb() : 0;
    } else if (order.type == 1 && !order.alwaysZero) {
        slice.orderDeltas[0] = reader.signedGolomb();
        slice.orderDeltas[1] = second ? reader.signedGolomb() : 0;
    }
}

/// ref_pic_list_modification (7.3.3.1) and the form of further views (H.7.3.3.1.1).
void skipListChanges(BitReader& reader, int lists)
{
    constexpr uint32_t end = 3;
    constexpr uint32_t last = 5; // inter-view differences are 4 and 5
    for (int list = 0; list < lists; ++list) {
        if (!reader.flag()) {
            continue;
        }
        for (int entry = 0;; ++entry) {
            const uint32_t change = reader.unsignedGolomb();
            if (change == end || reader.overrun()) {
                break;
            }
            if (change > last || entry > mostListEntries) {
                reader.fail();
            }
            reader.unsignedGolomb();
        }
    }
}

/// pred_weight_table (7.3.3.2).
void skipWeights(BitReader& reader, bool chroma, int lists, const uint32_t (&references)[2])
{
    reader.unsignedGolomb();
    if (chroma) {
        reader.unsignedGolomb();
    }
    for (int list = 0; list < lists; ++list) {
        for (uint32_t entry = 0; entry < references[list] && !reader.overrun(); ++entry) {
            for (int plane = 0; plane < (chroma ? 2 : 1); ++plane) {
                const int values = !reader.flag() ? 0 : plane == 0 ? 2 : 4;
                for (int value = 0; value < values; ++value) {
                    reader.signedGolomb();
                }
            }
        }
    }
}

/// dec_ref_pic_marking (7.3.3.3).
void readMarking(BitReader& reader, SliceHeader& slice)
{
    constexpr uint32_t reset = 5;
    if (slice.isIdr) {
        reader.bits(2);
        return;
    }
    if (!reader.flag()) {
        return;
    }
    for (int entry = 0; !reader.overrun(); ++entry) {
        const uint32_t operation = reader.unsignedGolomb();
        if (operation == 0) {
            return;
        }
        if (operation > 6 || entry > mostListEntries) {
            reader.fail();
        }
        slice.resetsOrder = slice.resetsOrder || operation == reset;
        const int values = operation == reset ? 0 : operation == 3 ? 2 : 1;
        for (int value = 0; value < values; ++value) {
            reader.unsignedGolomb();
        }
    }
}

/// The number of references that the slice itself tells, or the one that its set does.
void readReferences(BitReader& reader, bool both, uint32_t (&references)[2])
{
    if (!reader.flag()) {
        return;
    }
    references[0] = reader.unsignedGolomb() + 1;
    if (both) {
        references[1] = reader.unsignedGolomb() + 1;
    }
    if (references[0] > mostReferences || references[1] > mostReferences) {
        reader.fail();
    }
}

/// 26 and what the set says, and slice_qp_delta (7.4.2.2, 7.4.3).
std::optional<int32_t> quantizerOf(BitReader& reader, int32_t initial)
{
    constexpr int64_t least = -36; // of 14 bits a sample
    constexpr int64_t most = 51;
    const int64_t quantizer = int64_t(initial) + reader.signedGolomb();
    return reader.overrun() || quantizer < least || quantizer > most
               ? std::nullopt
               : std::optional(static_cast<int32_t>(quantizer));
}

/// From the order of pictures to the deblocking filter.
void readPrediction(BitReader& reader, const SequenceParameters& sequence,
                    const PictureParameters& picture, SliceHeader& slice)
{
    const bool both = slice.kind == SliceKind::B;
    const bool predicted = isPredicted(slice.kind);
    const int lists = both ? 2 : predicted ? 1 : 0;
    uint32_t references[2] = {picture.references[0], picture.references[1]};
    if (both) {
        reader.bits(1); // direct_spatial_mv_pred_flag
    }
    if (predicted) {
        readReferences(reader, both, references);
    }
    skipListChanges(reader, lists);
    if (both ? picture.weightedB == 1 : predicted && picture.weightedP) {
        const bool chroma = sequence.chromaFormat != 0 && !sequence.separatePlanes;
        skipWeights(reader, chroma, lists, references);
    }
    if (slice.isReference) {
        readMarking(reader, slice);
    }
    if (picture.cabac && predicted) {
        reader.unsignedGolomb(); // cabac_init_idc
    }
    slice.quantizer = quantizerOf(reader, picture.quantizer);
    if (slice.kind == SliceKind::SwitchingP) {
        reader.bits(1);
    }
    if (slice.kind == SliceKind::SwitchingP || slice.kind == SliceKind::SwitchingI) {
        reader.signedGolomb();
    }
    const bool deblocking = !picture.deblockingControl || reader.unsignedGolomb() != 1;
    if (!reader.overrun()) {
        slice.deblocking = deblocking;
    }
}

/// One message of a supplemental enhancement information unit (7.3.2.3.1).
uint64_t readExtended(Bytes& rest)
{
    uint64_t value = 0;
    while (!rest.empty()) {
        const uint8_t byte = rest[0];
        rest = rest.subspan(1);
        value += byte;
        if (byte != 0xFF) {
            break;
        }
    }
    return value;
}

std::optional<int> pictureStructure(Bytes message, const Usability& usability)
{
    constexpr uint32_t last = 8; // Table D-1
    BitReader reader(message);
    for (int bit = 0; bit < usability.delayBits; ++bit) {
        reader.bits(1);
    }
    const uint32_t structure = reader.bits(4);
    return reader.overrun() || structure > last ? std::nullopt
                                                : std::optional(static_cast<int>(structure));
}

} // namespace

std::optional<PictureParameters> parsePictureParameters(Bytes payload)
{
    BitReader reader(payload);
    PictureParameters picture;
    picture.id = reader.unsignedGolomb();
    picture.sequence = reader.unsignedGolomb();
    picture.cabac = reader.flag();
    picture.orderInFrames = reader.flag();
    const bool groups = reader.unsignedGolomb() != 0; // num_slice_groups_minus1
    for (uint32_t& references : picture.references) {
        references = reader.unsignedGolomb() + 1;
    }
    picture.weightedP = reader.flag();
    picture.weightedB = reader.bits(2);
    constexpr int32_t middle = 26;
    constexpr int32_t widest = 100; // far beyond what can be
    picture.quantizer = middle + std::clamp(reader.signedGolomb(), -widest, widest);
    reader.signedGolomb(); // pic_init_qs_minus26
    reader.signedGolomb(); // chroma_qp_index_offset
    picture.deblockingControl = reader.flag();
    reader.bits(1); // constrained_intra_pred_flag
    picture.redundantPictures = reader.flag();
    const bool possible = picture.id <= mostPictureParameters &&
                          picture.sequence <= mostSequences &&
                          std::ranges::max(picture.references) <= mostReferences;
    return reader.overrun() || groups || !possible ? std::nullopt : std::optional(picture);
}

std::optional<uint32_t> pictureParametersOfSlice(Bytes payload)
{
    BitReader reader(payload);
    reader.unsignedGolomb(); // first_mb_in_slice
    reader.unsignedGolomb(); // slice_type
    const uint32_t id = reader.unsignedGolomb();
    return reader.overrun() || id > mostPictureParameters ? std::nullopt : std::optional(id);
}

std::optional<SliceHeader> parseSlice(Bytes head, Bytes payload, const SequenceParameters& sequence,
                                      const PictureParameters& picture)
{
    constexpr uint32_t kinds = 5;
    SliceHeader slice;
    const int type = head[0] & 31;
    slice.isReference = (head[0] & 0x60) != 0;
    slice.isIdr =
        type == NalIdrSlice || (type == NalViewSlice && head.size() > 1 && (head[1] & 0x40) == 0);
    BitReader reader(payload);
    reader.unsignedGolomb(); // first_mb_in_slice
    slice.kind = static_cast<SliceKind>(reader.unsignedGolomb() % kinds);
    slice.pictureParameters = reader.unsignedGolomb();
    if (sequence.separatePlanes) {
        reader.bits(2);
    }
    slice.frameNumber = reader.bits(sequence.frameNumBits);
    slice.field = !sequence.framesOnly && reader.flag();
    slice.bottomField = slice.field && reader.flag();
    if (slice.isIdr) {
        slice.idrPicture = reader.unsignedGolomb();
    }
    readOrder(reader, sequence.order, picture.orderInFrames, slice);
    if (picture.redundantPictures) {
        reader.unsignedGolomb();
    }
    if (reader.overrun()) {
        return std::nullopt;
    }
    readPrediction(reader, sequence, picture, slice);
    return slice;
}

std::optional<int> parsePictureStructure(Bytes payload, const Usability& usability)
{
    constexpr uint64_t pictureTiming = 1;
    if (!usability.pictureStructure) {
        return std::nullopt;
    }
    while (payload.size() > 2) { // the trailing bits are one byte
        const uint64_t type = readExtended(payload);
        const uint64_t size = readExtended(payload);
        const Bytes message = payload.first(std::min<uint64_t>(size, payload.size()));
        if (type == pictureTiming) {
            return pictureStructure(message, usability);
        }
        payload = payload.subspan(message.size());
    }
    return std::nullopt;
}

} // namespace kv
