// GOP structure, reference frames and slices.

#include "cases.h"

namespace
{

using Record = KvMvcSettings;
using encoder::setBoth;
using encoder::setFrameRate;

constexpr RuleCase rows[] = {
    {"gop.b-fit", "2 between I-frames 3 apart", 0, [](Record& r) { setBoth(r, &V::i_interval, 3); },
     false},
    {"gop.b-fit", "2 between I-frames 2 apart", 0, [](Record& r) { setBoth(r, &V::i_interval, 2); },
     true},
    {"gop.b-fit", "only the first an I-frame", 0, [](Record& r) { setBoth(r, &V::i_interval, 0); },
     false},
    {"gop.b-fit", "I-frames only", 0, [](Record& r) { setBoth(r, &V::i_interval, 1); }, false},
    {"gop.force-i", "equal", 0, [](Record& r) { setBoth(r, &V::force_i, 24); }, false},
    {"gop.force-i", "above", 0, [](Record& r) { setBoth(r, &V::force_i, 25); }, true},
    {"gop.force-i", "above without scene detection", 0,
     [](Record& r) {
         setBoth(r, &V::force_i, 25);
         setBoth(r, &V::scene_detection, 0);
     },
     false},
    {"gop.force-i", "above without interval", 0,
     [](Record& r) {
         setBoth(r, &V::force_i, 25);
         setBoth(r, &V::i_interval, 0);
     },
     false},
    {"gop.multiple", "24 of 3", 0, [](Record&) {}, false},
    {"gop.multiple", "25 of 3", 0, [](Record& r) { setBoth(r, &V::i_interval, 25); }, true},
    {"gop.multiple", "25 of 3, adaptive", 0,
     [](Record& r) {
         setBoth(r, &V::i_interval, 25);
         setBoth(r, &V::adaptive_b, 1);
     },
     false},
    {"gop.intra", "1", 0, [](Record& r) { setBoth(r, &V::i_interval, 1); }, true},
    {"gop.intra", "2", 0,
     [](Record& r) {
         setBoth(r, &V::i_interval, 2);
         setBoth(r, &V::ref_distance, 1);
     },
     false},
    {"gop.references-p", "1", 0,
     [](Record& r) {
         setBoth(r, &V::ref_distance, 1);
         setBoth(r, &V::num_ref_frames, 1);
     },
     false},
    {"gop.references-p", "0", 0,
     [](Record& r) {
         setBoth(r, &V::ref_distance, 1);
         setBoth(r, &V::num_ref_frames, 0);
     },
     true},
    {"gop.references-p", "0 of I-frames", 0,
     [](Record& r) {
         setBoth(r, &V::i_interval, 1);
         setBoth(r, &V::num_ref_frames, 0);
     },
     false},
    {"gop.references-b", "2", 0, [](Record& r) { setBoth(r, &V::num_ref_frames, 2); }, false},
    {"gop.references-b", "1", 0, [](Record& r) { setBoth(r, &V::num_ref_frames, 1); }, true},
    {"gop.references-b", "1 in view 1", 2, [](Record& r) { r.views[1].num_ref_frames = 1; }, true},
    {"gop.references-br", "3", 0,
     [](Record& r) {
         setBoth(r, &V::reference_b, 1);
         setBoth(r, &V::num_ref_frames, 3);
     },
     false},
    {"gop.references-br", "2", 0,
     [](Record& r) {
         setBoth(r, &V::reference_b, 1);
         setBoth(r, &V::num_ref_frames, 2);
     },
     true},
    {"gop.references-br", "2 for one B-frame", 0,
     [](Record& r) {
         setBoth(r, &V::reference_b, 1);
         setBoth(r, &V::num_ref_frames, 2);
         setBoth(r, &V::ref_distance, 2);
     },
     false},
    {"gop.pyramid", "of reference B-frames", 0,
     [](Record& r) {
         setBoth(r, &V::pyramid_b, 1);
         setBoth(r, &V::reference_b, 1);
     },
     false},
    {"gop.pyramid", "of others", 0, [](Record& r) { setBoth(r, &V::pyramid_b, 1); }, true},
    {"gop.pyramid-flat", "2 B-frames", 0,
     [](Record& r) {
         setBoth(r, &V::pyramid_b, 1);
         setBoth(r, &V::reference_b, 1);
     },
     false},
    {"gop.pyramid-flat", "1 B-frame", 0,
     [](Record& r) {
         setBoth(r, &V::pyramid_b, 1);
         setBoth(r, &V::ref_distance, 2);
     },
     true},
    {"gop.b-options", "adaptive without B-frames", 0,
     [](Record& r) {
         setBoth(r, &V::adaptive_b, 1);
         setBoth(r, &V::ref_distance, 1);
     },
     true},
    {"gop.b-options", "adaptive with B-frames", 0, [](Record& r) { setBoth(r, &V::adaptive_b, 1); },
     false},
    {"slices.rows", "as many as rows", 0, [](Record& r) { setBoth(r, &V::num_slices, 68); }, false},
    {"slices.rows", "one more", 0, [](Record& r) { setBoth(r, &V::num_slices, 69); }, true},
    {"slices.rows", "as many as rows of a field", 0,
     [](Record& r) {
         setBoth(r, &V::num_slices, 34);
         setBoth(r, &V::interlace_mode, 1);
     },
     false},
    {"slices.rows", "one more than rows of a field", 0,
     [](Record& r) {
         setBoth(r, &V::num_slices, 35);
         setBoth(r, &V::interlace_mode, 1);
     },
     true},
    {"slices.rows", "one more than pairs of rows", 0,
     [](Record& r) {
         setBoth(r, &V::num_slices, 35);
         setBoth(r, &V::interlace_mode, 2);
     },
     true},
    {"slices.rows", "as many as rows of a field of 720 lines", 0,
     [](Record& r) {
         setBoth(r, &V::height, 720);
         setBoth(r, &V::interlace_mode, 1);
         setBoth(r, &V::num_slices, 23);
     },
     false},
    {"slices.rows", "one more than rows of a field of 720 lines", 0,
     [](Record& r) {
         setBoth(r, &V::height, 720);
         setBoth(r, &V::interlace_mode, 1);
         setBoth(r, &V::num_slices, 24);
     },
     true},
    {"slices.flag", "off for 4", 0, [](Record& r) { setBoth(r, &V::multi_slice, 0); }, true},
    {"slices.flag", "on for 1", 0, [](Record& r) { setBoth(r, &V::num_slices, 1); }, true},
    {"slices.flag", "off for 1", 0,
     [](Record& r) {
         setBoth(r, &V::num_slices, 1);
         setBoth(r, &V::multi_slice, 0);
     },
     false},
    {"slices.flag", "another value", 0, [](Record& r) { setBoth(r, &V::multi_slice, 7); }, true},
};

} // namespace

std::span<const RuleCase> gopCases()
{
    return rows;
}
