// The media of the tests: what ffmpeg makes them of, and what is in them.
#pragma once

#include "MediaMaker.h"

#include <kv_config_gui_mvc/media_info.h>

namespace kvtest
{

/// What a file is made of, and what is to be found.
struct Medium {
    const char* file;
    const char* size;
    const char* rate;
    const char* arguments;
    int width, height, rateNum, rateDen, scan, order, aspectNum, aspectDen;
    int chroma, luma, profile, level, references;
    bool lossless = false; // its rate is no aim
};

inline constexpr int P = KV_MEDIA_PROGRESSIVE;
inline constexpr int I = KV_MEDIA_INTERLACED;
inline constexpr int M = KV_MEDIA_MBAFF;
inline constexpr int T = KV_MEDIA_TOP_FIELD_FIRST;
inline constexpr int B = KV_MEDIA_BOTTOM_FIELD_FIRST;

// clang-format off
inline constexpr Medium media[] = {
    // file                size         rate          arguments of ffmpeg                                w     h     rate         scan ord aspect  chroma bits prof level refs
    {"qcif.mp4",          "176x144",   "15",         "-c:v libx264 -profile:v baseline -level 1.1 -pix_fmt yuv420p -refs 1", 176, 144, 15, 1,      P, T, 1, 1,   1, 8,  66, 11, 1},
    {"main.mp4",          "352x288",   "25",         "-c:v libx264 -profile:v main -level 2 -pix_fmt yuv420p -refs 2 -x264-params b-pyramid=none", 352, 288, 25, 1, P, T, 1, 1, 1, 8, 77, 20, 2},
    {"high.ts",           "1280x720",  "60000/1001", "-c:v libx264 -preset ultrafast -x264-params 8x8dct=1 -pix_fmt yuv420p -level 3.2", 1280, 720, 60000, 1001, P, T, 1, 1, 1, 8, 100, 32, 1},
    {"high.m2t",          "1920x1080", "24000/1001", "-c:v libx264 -preset ultrafast -x264-params 8x8dct=1 -pix_fmt yuv420p -level 4.1 -refs 3", 1920, 1080, 24000, 1001, P, T, 1, 1, 1, 8, 100, 41, 3},
    {"tff.ts",            "720x576",   "25",         "-c:v libx264 -flags +ilme+ildct -x264-params tff=1:b-pyramid=none:ref=2 -pix_fmt yuv420p -level 3 -aspect 16:9", 720, 576, 25, 1, M, T, 64, 45, 1, 8, 100, 30, 2},
    {"bff.mp4",           "720x480",   "30000/1001", "-c:v libx264 -flags +ilme+ildct -x264-params bff=1:b-pyramid=none:ref=2 -pix_fmt yuv420p -level 3 -aspect 4:3", 720, 480, 30000, 1001, M, B, 8, 9, 1, 8, 100, 30, 2},
    {"fake.h264",         "720x576",   "25",         "-c:v libx264 -x264-params fake-interlaced=1:b-pyramid=none:ref=2 -pix_fmt yuv420p -level 3", 720, 576, 25, 1, P, T, 1, 1, 1, 8, 100, 30, 2},
    {"ten.m4p",           "640x360",   "24",         "-f mp4 -c:v libx264 -pix_fmt yuv420p10le -x264-params b-pyramid=none:ref=2 -level 3", 640, 360, 24, 1, P, T, 1, 1, 1, 10, 110, 30, 2},
    {"tenTwoTwo.trp",     "640x360",   "50",         "-f mpegts -c:v libx264 -pix_fmt yuv422p10le -x264-params b-pyramid=none:ref=2 -level 3.1", 640, 360, 50, 1, P, T, 1, 1, 2, 10, 122, 31, 2},
    {"grey.mp4",          "320x240",   "10",         "-c:v libx264 -pix_fmt gray -x264-params b-pyramid=none:ref=2 -level 1.3", 320, 240, 10, 1, P, T, 1, 1, 0, 8, 100, 13, 2},
    {"full.mp4",          "320x240",   "10",         "-c:v libx264 -pix_fmt yuv444p -x264-params b-pyramid=none:ref=2 -level 1.3", 320, 240, 10, 1, P, T, 1, 1, 3, 8, 244, 13, 2},
    {"odd.mp4",           "350x286",   "12.5",       "-c:v libx264 -pix_fmt yuv420p -x264-params b-pyramid=none:ref=2 -level 1.3 -aspect 4:3", 350, 286, 25, 2, P, T, 572, 525, 1, 8, 100, 13, 2},
    {"uhd.mp4",           "3840x2160", "30",         "-c:v libx264 -preset ultrafast -pix_fmt yuv420p -level 5.1", 3840, 2160, 30, 1, P, T, 1, 1, 1, 8, 66, 51, 1},
    {"withAudio.ts",      "320x240",   "25",         "-f lavfi -i sine -t 1 -c:a mp2 -c:v libx264 -pix_fmt yuv420p -x264-params b-pyramid=none:ref=2 -level 1.3", 320, 240, 25, 1, P, T, 1, 1, 1, 8, 100, 13, 2},
    {"two.m2v",           "352x288",   "25",         "-c:v mpeg2video -pix_fmt yuv420p",   352, 288, 25, 1,      P, T, 1, 1,   1, 8,  0, 0, -1},
    {"two.mpv",           "352x288",   "24",         "-f mpeg2video -c:v mpeg2video -pix_fmt yuv420p", 352, 288, 24, 1, P, T, 1, 1, 1, 8,  0, 0, -1},
    {"one.mpeg",          "352x288",   "30",         "-f mpeg -c:v mpeg1video -pix_fmt yuv420p", 352, 288, 30, 1, P, T, 1, 1,   1, 8,  0, 0, -1},
    {"two.mpg",           "720x576",   "25",         "-c:v mpeg2video -pix_fmt yuv420p -flags +ilme+ildct -top 0 -aspect 4:3", 720, 576, 25, 1, I, B, 16, 15, 1, 8, 0, 0, -1},
    {"dvd.vob",           "720x576",   "25",         "-target pal-dvd -aspect 16:9",        720, 576, 25, 1,      P, T, 64, 45, 1, 8,  0, 0, -1},
    {"svcd.m2p",          "480x480",   "30000/1001", "-f svcd -c:v mpeg2video -pix_fmt yuv420p -aspect 4:3", 480, 480, 30000, 1001, P, T, 4, 3, 1, 8, 0, 0, -1},
    {"studio.mxf",        "1920x1080", "25",         "-c:v mpeg2video -pix_fmt yuv422p -flags +ilme+ildct -top 1 -b:v 50M -minrate 50M -maxrate 50M -bufsize 36408333", 1920, 1080, 25, 1, I, T, 1, 1, 2, 8, 0, 0, -1},
    {"player.mkv",        "320x240",   "25",         "-c:v libx264 -pix_fmt yuv420p -x264-params b-pyramid=none:ref=2 -level 1.3", 320, 240, 25, 1, P, T, 1, 1, 1, 8, 100, 13, 2},
    {"timed.m2ts",        "320x240",   "25",         "-c:v libx264 -pix_fmt yuv420p -x264-params b-pyramid=none:ref=2 -level 1.3", 320, 240, 25, 1, P, T, 1, 1, 1, 8, 100, 13, 2},
    {"flash.flv",         "320x240",   "25",         "-c:v libx264 -pix_fmt yuv420p -x264-params b-pyramid=none:ref=2 -level 1.3", 320, 240, 25, 1, P, T, 1, 1, 1, 8, 100, 13, 2},
    {"web.webm",          "320x240",   "25",         "-c:v libvpx -pix_fmt yuv420p",       320, 240, 25, 1,      P, T, 1, 1,   1, 8,  0, 0, -1},
    {"four.m4v",          "320x240",   "25",         "-f m4v -c:v mpeg4 -pix_fmt yuv420p", 320, 240, 25, 1,      P, T, 1, 1,   1, 8,  0, 0, -1},
    {"lossless.y4m",      "320x240",   "30000/1001", "-c:v wrapped_avframe -pix_fmt yuv422p -aspect 8:5", 320, 240, 30000, 1001, P, T, 6, 5, 2, 8, 0, 0, -1, true},
    {"ten.y4m",           "320x240",   "24",         "-c:v wrapped_avframe -strict -1 -pix_fmt yuv420p10le", 320, 240, 24, 1, P, T, 1, 1, 1, 10, 0, 0, -1, true},
    {"v210.mov",          "320x240",   "25",         "-c:v v210 -pix_fmt yuv422p10le",     320, 240, 25, 1,      P, T, 1, 1,   2, 10, 0, 0, -1, true},
    {"planar.avi",        "320x240",   "25",         "-c:v rawvideo -pix_fmt yuv422p",     320, 240, 25, 1,      P, T, 1, 1,   2, 8,  0, 0, -1, true},
    {"packed.mov",        "320x240",   "25",         "-c:v rawvideo -pix_fmt uyvy422",     320, 240, 25, 1,      P, T, 1, 1,   2, 8,  0, 0, -1, true},
    {"storedTopFirst.mov", "720x576",  "25",         "-c:v mjpeg -pix_fmt yuvj420p -field_order tb", 720, 576, 25, 1, I, B, 1, 1, 1, 8, 0, 0, -1},
    {"storedBottomFirst.mov", "720x576", "25",       "-c:v mjpeg -pix_fmt yuvj420p -field_order bt", 720, 576, 25, 1, I, T, 1, 1, 1, 8, 0, 0, -1},
    {"huffman.avi",       "320x240",   "25",         "-c:v huffyuv -pix_fmt yuv422p",      320, 240, 25, 1,      P, T, 1, 1,   2, 8,  0, 0, -1, true},
    {"windows.wmv",       "320x240",   "25",         "-c:v wmv2 -pix_fmt yuv420p",         320, 240, 25, 1,      P, T, 1, 1,   1, 8,  0, 0, -1},
    {"av1.mp4",           "320x240",   "25",         "-c:v libaom-av1 -cpu-used 8 -pix_fmt yuv420p10le", 320, 240, 25, 1, P, T, 1, 1, 1, 10, 0, 0, -1},
    {"av1.mkv",           "320x240",   "25",         "-c:v libaom-av1 -cpu-used 8 -profile:v 1 -pix_fmt yuv444p", 320, 240, 25, 1, P, T, 1, 1, 3, 8, 0, 0, -1},
    {"hevc.mp4",          "320x240",   "25",         "-c:v libx265 -x265-params log-level=0 -pix_fmt yuv420p10le", 320, 240, 25, 1, P, T, 1, 1, 1, 10, 0, 0, -1},
};
// clang-format on

inline QByteArray makeMedia(const Medium& medium, const QString& file)
{
    return makeMedia(picture(medium.size, medium.rate, 0.6) + QLatin1String(medium.arguments),
                     file);
}

} // namespace kvtest
