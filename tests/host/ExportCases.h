// Settings that are exported, encoded and imported again.
#pragma once

/// What is set, and what the stream is to tell. A setting has the value that was set for it, or
/// else the preset's, in all views.
struct ExportCase {
    const char* name;
    int preset;
    const char* set;
    /// Over `toldByAll`: "-name" is not told, "name=value" is not told as it was set.
    const char* told;
    int frames = 30;
    /// From which frame on the pictures are others; 0: there is no change.
    int sceneChange = 0;
};

/// Every case has these, of small pictures.
inline constexpr char setByAll[] = "width=176 height=144";
inline constexpr char toldByAll[] =
    "num_views=1 profile level width height frame_rate interlace_mode field_order pulldown "
    "pixel_aspect_x=16 pixel_aspect_y=11 chroma_format bit_depth_luma bit_depth_chroma "
    "i_interval idr_marker ref_distance adaptive_b reference_b pyramid_b "
    "num_ref_frames weighted_p entropy_mode deblocking num_slices multi_slice "
    "hrd_mode bitrate_mode max_bitrate bitrate_buffer";

// What has no buffer model.
#define KV_NO_HRD "hrd_mode=0 -bitrate_mode -max_bitrate -bitrate_buffer "
// What is nothing but I-frames.
#define KV_NO_GROUPS                                                                               \
    "-ref_distance -adaptive_b -reference_b -pyramid_b -weighted_p -num_ref_frames "
#define KV_QUANTIZERS "quant_i quant_p quant_b "

// clang-format off
inline constexpr ExportCase exportCases[] = {
    {"as they come",          0, "", ""},
    {"a wide picture",        0, "width=320 height=180", "pixel_aspect_x=1 pixel_aspect_y=1"},
    {"half blocks",           0, "width=200 height=110", "pixel_aspect_x=44 pixel_aspect_y=45"},
    {"European television",   0, "width=720 height=576 frame_rate=25 level=30 display_aspect_x=4 display_aspect_y=3 "
                                 "bitrate=4000000 max_bitrate=8000000 bitrate_buffer=1000000",
                                 "pixel_aspect_x=16 pixel_aspect_y=15"},
    {"American television",   0, "width=720 height=480 frame_rate=30000/1001 level=30 display_aspect_x=-1 display_aspect_y=-1 "
                                 "pixel_aspect_x=10 pixel_aspect_y=11 bitrate=4000000 max_bitrate=8000000 bitrate_buffer=1000000",
                                 "pixel_aspect_x=10 pixel_aspect_y=11"},
    {"both aspect ratios",    0, "pixel_aspect_x=10 pixel_aspect_y=11", ""},
    {"no aspect ratio",       0, "display_aspect_x=-1 display_aspect_y=-1", "pixel_aspect_x=1 pixel_aspect_y=1"},

    {"24 frames",             0, "frame_rate=24", ""},
    {"25 frames",             0, "frame_rate=25", ""},
    {"29.97 frames",          0, "frame_rate=30000/1001", ""},
    {"50 frames",             0, "frame_rate=50", ""},
    {"59.94 frames",          0, "frame_rate=60000/1001", ""},
    {"12.5 frames",           0, "frame_rate=12.5", ""},

    {"top field first",       0, "interlace_mode=2 frame_rate=25", ""},
    {"bottom field first",    0, "interlace_mode=2 field_order=1 frame_rate=25", ""},
    {"fields",                0, "interlace_mode=1 frame_rate=30000/1001 num_slices=2", "interlace_mode=2"},

    {"a short interval",      0, "i_interval=10", ""},
    {"a long interval",       0, "i_interval=60", "", 70},
    {"the first I-frame",     0, "i_interval=0", "-idr_marker"},
    {"nothing but I-frames",  0, "i_interval=1", KV_NO_GROUPS},
    {"one IDR picture",       0, "i_interval=9 idr_marker=0", ""},
    {"every third as IDR",    0, "i_interval=6 idr_marker=3", "idr_marker=1"},
    {"no B-frames",           0, "ref_distance=1", ""},
    {"one B-frame",           0, "ref_distance=2 i_interval=12", ""},
    {"three B-frames",        0, "ref_distance=4 i_interval=12", ""},
    {"adaptive B-frames",     0, "adaptive_b=1", "-adaptive_b -ref_distance"},
    {"a pyramid",             0, "ref_distance=4 reference_b=1 pyramid_b=1 num_ref_frames=4 i_interval=16", ""},
    {"a pyramid of three",    0, "ref_distance=4 reference_b=1 pyramid_b=1 num_ref_frames=3 i_interval=16", "num_ref_frames=4"},
    {"referenced B-frames",   0, "ref_distance=4 reference_b=1 i_interval=16 num_ref_frames=3", "pyramid_b=1"},
    {"two referenced",        0, "ref_distance=3 reference_b=1 i_interval=15", ""},
    {"a pyramid of two",      0, "ref_distance=3 reference_b=1 pyramid_b=1 num_ref_frames=4 i_interval=15", "pyramid_b=0"},
    {"referenced, of six",    0, "ref_distance=3 reference_b=1 i_interval=15 num_ref_frames=6", ""},
    {"a pyramid unreferenced", 0, "ref_distance=4 pyramid_b=1 i_interval=16", "pyramid_b=0"},

    {"one reference",         0, "num_ref_frames=1 ref_distance=1", ""},
    {"one, and B-frames",     0, "num_ref_frames=1", "num_ref_frames=2"},
    {"eight references",      0, "num_ref_frames=8", ""},
    {"sixteen references",    0, "num_ref_frames=16", ""},
    {"CAVLC",                 0, "entropy_mode=0", ""},
    {"no deblocking",         0, "deblocking=0", ""},
    {"weighted prediction",   0, "weighted_p=1", ""},
    {"one slice",             0, "num_slices=1 multi_slice=0", ""},
    {"nine slices",           0, "num_slices=9", ""},

    {"quick tools",           0, "simple_rd=1 fast_inter=1 min_partition=0 motion_search=8 complexity=50 num_threads=2", ""},
    {"slow tools",            0, "fast_reference=0 fast_subblock=0 motion_search=99 quant_min=10 quant_max=40", ""},
    {"coarse tools",          0, "subpixel_mode=0 hadamard=0", ""},
    {"plain differences",     0, "hadamard=0", ""},

    {"Baseline",              0, "profile=0 entropy_mode=0 ref_distance=1 num_slices=1 multi_slice=0", ""},
    {"Main",                  0, "profile=1", ""},
    {"Main without its tools", 0, "profile=1 entropy_mode=0 ref_distance=1", "profile=0"},
    {"High, without chroma",  0, "chroma_format=1", ""},
    {"High 10",               0, "profile=4 bit_depth_luma=10 bit_depth_chroma=10", ""},
    {"High 10 of 8 bits",     0, "profile=4", "profile=3"},
    {"High 4:2:2",            0, "profile=5 chroma_format=3", ""},
    {"High 4:2:2 of 10 bits", 0, "profile=5 chroma_format=3 bit_depth_luma=10 bit_depth_chroma=10", ""},
    {"4:2:2 fields",          0, "profile=5 chroma_format=3 interlace_mode=2 frame_rate=25", ""},

    {"level 1.1",             0, "level=11 frame_rate=15 bitrate=100000 max_bitrate=192000 bitrate_buffer=24000", ""},
    {"level 2.0",             0, "level=20 bitrate=1000000 max_bitrate=1600000 bitrate_buffer=200000", ""},
    {"level 5.1",             0, "level=51", ""},
    {"any level",             0, "level=100 bitrate=1000000 max_bitrate=1600000 bitrate_buffer=200000", "level=20"},

    {"a constant rate",       0, "bitrate_mode=0 bitrate=2000000 max_bitrate=2000000 bitrate_buffer=250000", ""},
    {"a constant rate in bits", 0, "bitrate_mode=0 bitrate=1280000 bitrate_units=1 bitrate_buffer=640000 vbv_initial=320000 vbv_target=320000",
                                 "max_bitrate=1280000 bitrate_buffer=80000"},
    {"a variable rate in ticks", 0, "bitrate=1000000 max_bitrate=2000000 bitrate_units=2 bitrate_buffer=1600000 vbv_initial=36000 vbv_target=36000",
                                 "bitrate_buffer=200000"},
    {"no HRD",                0, "hrd_mode=0 bitrate=500000", KV_NO_HRD},
    {"constant quantizers",   0, "bitrate_mode=1 quant_i=20 quant_p=23 quant_b=27", KV_NO_HRD KV_QUANTIZERS},
    {"deep quantizers",       0, "profile=4 bit_depth_luma=10 bit_depth_chroma=10 bitrate_mode=1 quant_i=-3 quant_p=0 quant_b=4",
                                 KV_NO_HRD KV_QUANTIZERS},
    {"falling quantizers",    0, "bitrate_mode=1 quant_i=30 quant_p=28 quant_b=25", KV_NO_HRD KV_QUANTIZERS},
    {"an average quantizer",  0, "bitrate_mode=3 quant_p=26", KV_NO_HRD},

    {"no preset",             0, "width=1920 height=1080", "pixel_aspect_x=1 pixel_aspect_y=1"},
    {"Multiview High",        1, "width=1920 height=1080", "pixel_aspect_x=1 pixel_aspect_y=1"},
    {"Stereo High",           2, "width=1920 height=1080", "pixel_aspect_x=1 pixel_aspect_y=1"},
    {"Blu-ray 3D",            3, "width=1920 height=1080", "pixel_aspect_x=1 pixel_aspect_y=1"},
};
// clang-format on
