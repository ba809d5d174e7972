// Tools of the profiles.

#include "cases.h"

namespace
{

using Record = KvMvcSettings;
using encoder::setBoth;
using encoder::setFrameRate;

constexpr RuleCase rows[] = {
    {"profile.code", "High", 0, [](Record&) {}, false},
    {"profile.code", "2", 0, [](Record& r) { setBoth(r, &V::profile, 2); }, true},
    {"profile.code", "6", 0, [](Record& r) { setBoth(r, &V::profile, 6); }, true},
    {"profile.code", "negative", 0, [](Record& r) { setBoth(r, &V::profile, -1); }, true},
    {"profile.b-frames", "Baseline without", 0,
     [](Record& r) {
         setBoth(r, &V::ref_distance, 1);
         setBoth(r, &V::entropy_mode, 0);
         setBoth(r, &V::profile, 0);
     },
     false},
    {"profile.b-frames", "Baseline with", 0, [](Record& r) { setBoth(r, &V::profile, 0); }, true},
    {"profile.b-frames", "Baseline of I-frames", 0,
     [](Record& r) {
         setBoth(r, &V::profile, 0);
         setBoth(r, &V::i_interval, 1);
     },
     false},
    {"profile.b-frames", "Main with", 0, [](Record& r) { setBoth(r, &V::profile, 1); }, false},
    {"profile.interlace", "Baseline progressive", 0,
     [](Record& r) {
         setBoth(r, &V::ref_distance, 1);
         setBoth(r, &V::entropy_mode, 0);
         setBoth(r, &V::profile, 0);
     },
     false},
    {"profile.interlace", "Baseline interlaced", 0,
     [](Record& r) {
         setBoth(r, &V::ref_distance, 1);
         setBoth(r, &V::entropy_mode, 0);
         setBoth(r, &V::profile, 0);
         setBoth(r, &V::interlace_mode, 1);
     },
     true},
    {"profile.interlace", "Main MBAFF", 0,
     [](Record& r) {
         setBoth(r, &V::profile, 1);
         setBoth(r, &V::interlace_mode, 2);
     },
     false},
    {"profile.cabac", "Baseline CAVLC", 0,
     [](Record& r) {
         setBoth(r, &V::ref_distance, 1);
         setBoth(r, &V::entropy_mode, 0);
         setBoth(r, &V::profile, 0);
     },
     false},
    {"profile.cabac", "Baseline CABAC", 0, [](Record& r) { setBoth(r, &V::profile, 0); }, true},
    {"profile.cabac", "Main CABAC", 0, [](Record& r) { setBoth(r, &V::profile, 1); }, false},
    {"profile.weighted", "Baseline off", 0,
     [](Record& r) {
         setBoth(r, &V::ref_distance, 1);
         setBoth(r, &V::entropy_mode, 0);
         setBoth(r, &V::profile, 0);
     },
     false},
    {"profile.weighted", "Baseline on", 0,
     [](Record& r) {
         setBoth(r, &V::ref_distance, 1);
         setBoth(r, &V::entropy_mode, 0);
         setBoth(r, &V::profile, 0);
         setBoth(r, &V::weighted_p, 1);
     },
     true},
    {"profile.weighted", "Main on", 0,
     [](Record& r) {
         setBoth(r, &V::profile, 1);
         setBoth(r, &V::weighted_p, 1);
     },
     false},
    {"profile.4-0-0", "Main", 0,
     [](Record& r) {
         setBoth(r, &V::profile, 1);
         setBoth(r, &V::chroma_format, 1);
     },
     true},
    {"profile.4-0-0", "Baseline", 0,
     [](Record& r) {
         setBoth(r, &V::ref_distance, 1);
         setBoth(r, &V::entropy_mode, 0);
         setBoth(r, &V::profile, 0);
         setBoth(r, &V::chroma_format, 1);
     },
     true},
    {"profile.4-0-0", "High", 0, [](Record& r) { setBoth(r, &V::chroma_format, 1); }, false},
    {"profile.4-2-2", "High", 0, [](Record& r) { setBoth(r, &V::chroma_format, 3); }, true},
    {"profile.4-2-2", "High 10", 0,
     [](Record& r) {
         setBoth(r, &V::profile, 4);
         setBoth(r, &V::chroma_format, 3);
     },
     true},
    {"profile.4-2-2", "High 422", 0,
     [](Record& r) {
         setBoth(r, &V::profile, 5);
         setBoth(r, &V::chroma_format, 3);
     },
     false},
    {"profile.chroma", "4:2:0", 0, [](Record&) {}, false},
    {"profile.chroma", "the fourth format", 0, [](Record& r) { setBoth(r, &V::chroma_format, 4); },
     true},
    {"profile.depth-luma", "10 in High", 0, [](Record& r) { setBoth(r, &V::bit_depth_luma, 10); },
     true},
    {"profile.depth-luma", "10 in High 10", 0,
     [](Record& r) {
         setBoth(r, &V::profile, 4);
         setBoth(r, &V::bit_depth_luma, 10);
     },
     false},
    {"profile.depth-luma", "10 in High 422", 0,
     [](Record& r) {
         setBoth(r, &V::profile, 5);
         setBoth(r, &V::bit_depth_luma, 10);
     },
     false},
    {"profile.depth-chroma", "10 in Main", 0,
     [](Record& r) {
         setBoth(r, &V::profile, 1);
         setBoth(r, &V::bit_depth_chroma, 10);
     },
     true},
    {"profile.depth-chroma", "10 in High 10", 0,
     [](Record& r) {
         setBoth(r, &V::profile, 4);
         setBoth(r, &V::bit_depth_chroma, 10);
     },
     false},
    {"profile.depth-chroma", "10 of no chroma", 0,
     [](Record& r) {
         setBoth(r, &V::chroma_format, 1);
         setBoth(r, &V::bit_depth_chroma, 10);
     },
     false},
    {"profile.depth-unused", "10 of no chroma", 0,
     [](Record& r) {
         setBoth(r, &V::chroma_format, 1);
         setBoth(r, &V::bit_depth_chroma, 10);
     },
     true},
    {"profile.depth-unused", "8 of no chroma", 0,
     [](Record& r) { setBoth(r, &V::chroma_format, 1); }, false},
    {"profile.cavlc", "CAVLC in High", 0, [](Record& r) { setBoth(r, &V::entropy_mode, 0); }, true},
    {"profile.cavlc", "CAVLC in Baseline", 0,
     [](Record& r) {
         setBoth(r, &V::ref_distance, 1);
         setBoth(r, &V::entropy_mode, 0);
         setBoth(r, &V::profile, 0);
     },
     false},
    {"profile.no-b-frames", "none in High", 0, [](Record& r) { setBoth(r, &V::ref_distance, 1); },
     true},
    {"profile.no-b-frames", "none in Baseline", 0,
     [](Record& r) {
         setBoth(r, &V::ref_distance, 1);
         setBoth(r, &V::entropy_mode, 0);
         setBoth(r, &V::profile, 0);
     },
     false},
    {"profile.no-b-frames", "I-frames only", 0,
     [](Record& r) {
         setBoth(r, &V::ref_distance, 1);
         setBoth(r, &V::i_interval, 1);
     },
     false},
};

} // namespace

std::span<const RuleCase> profileCases()
{
    return rows;
}
