// Settings that were taken into their range, and codes and switches that mean nothing.

#include "text_rows.h"

namespace kv::texts
{

// clang-format off
static const Text texts[] = {
    {KV_RANGE("number of views", "Anzahl der Ansichten", "ビューの数")},
    {KV_RANGE("I-frame interval", "I-Bild-Abstand", "I フレーム間隔")},
    {KV_RANGE("min. I-frame distance", "Min. I-Bild-Abstand", "I フレーム最小間隔")},
    {KV_RANGE("interval of I-frames marked as IDR", "Ein IDR-Bild je … I-Bilder", "IDR にする I フレームの間隔")},
    {KV_RANGE("number of B-frames", "Anzahl der B-Bilder", "B フレーム数")},
    KV_ALL_VIEWS(KV_RANGE("number of reference frames", "Referenzbilder", "参照フレーム数")),
    KV_ALL_VIEWS(KV_RANGE("motion vector search range", "Suchbereich der Vektoren", "動き探索範囲")),
    KV_ALL_VIEWS(KV_RANGE("number of slices per picture", "Slices je Bild", "ピクチャのスライス数")),
    KV_ALL_VIEWS(KV_RANGE("number of threads", "Threads", "スレッド数")),
    KV_ALL_VIEWS(KV_RANGE("brightness based adaptive quantization", "Adaptive Quantisierung nach Helligkeit", "明るさに基づく適応量子化")),
    KV_ALL_VIEWS(KV_RANGE("contrast based adaptive quantization", "Adaptive Quantisierung nach Kontrast", "コントラストに基づく適応量子化")),
    KV_ALL_VIEWS(KV_RANGE("complexity based adaptive quantization", "Adaptive Quantisierung nach Komplexität", "複雑さに基づく適応量子化")),

    {KV_SWITCH("Split views", "Ansichten trennen", "ビューを分離")},
    {KV_SWITCH("Enable scene detection", "Szenenwechsel erkennen", "シーン検出を使用")},
    {KV_SWITCH("Fixed I-frames distance", "Fester I-Bild-Abstand", "I フレーム間隔を固定")},
    {KV_SWITCH("Adaptive B-frame placement", "B-Bilder adaptiv setzen", "B フレームの適応配置")},
    {KV_SWITCH("Pyramidal structure for B-frames", "Pyramidenstruktur der B-Bilder", "B フレームのピラミッド構造")},
    {KV_SWITCH("B-frames as reference frames", "B-Bilder als Referenzbilder", "B フレームを参照に使用")},
    KV_ALL_VIEWS(KV_SWITCH("Weighted prediction for P-frames", "Gewichtete Prädiktion für P-Bilder", "P フレームの重み付き予測")),
    KV_ALL_VIEWS(KV_SWITCH("Fast multi-reference frame search", "Schnelle Suche in mehreren Referenzen", "複数参照フレームの高速探索")),
    KV_ALL_VIEWS(KV_SWITCH("Fast sub-block search", "Schnelle Suche in Teilblöcken", "サブブロックの高速探索")),
    KV_ALL_VIEWS(KV_SWITCH("Fast intra decisions", "Schnelle Intra-Entscheidung", "イントラ判定の高速化")),
    KV_ALL_VIEWS(KV_SWITCH("Fast inter decisions", "Schnelle Inter-Entscheidung", "インター判定の高速化")),
    KV_ALL_VIEWS(KV_SWITCH("Simplified RD optimization", "Vereinfachte RD-Optimierung", "RD 最適化の簡略化")),
    KV_ALL_VIEWS(KV_SWITCH("Hadamard transformation", "Hadamard-Transformation", "アダマール変換")),
    KV_ALL_VIEWS(KV_SWITCH("Deblocking filter", "Deblocking-Filter", "デブロッキングフィルター")),

    {"The bit-depth of luma was %d; it is now %d (8 or 10).",
     "„Bittiefe Luma“ war %d und ist jetzt %d (8 oder 10).",
     "輝度ビット深度は %d でしたが、%d にしました (8 または 10)。"},
    {"The bit-depth of chroma was %d; it is now %d (8 or 10).",
     "„Bittiefe Chroma“ war %d und ist jetzt %d (8 oder 10).",
     "色差ビット深度は %d でしたが、%d にしました (8 または 10)。"},
    {"The frame rate %g cannot be coded; no frame rate is set now.",
     "Die Bildrate %g lässt sich nicht codieren; jetzt ist keine Bildrate gesetzt.",
     "フレームレート %g は符号化できないため、未設定にしました。"},
    {"The field order was %d; it is now bottom field first (1).",
     "„Halbbildreihenfolge“ war %d und ist jetzt „Unteres zuerst“ (1).",
     "フィールドオーダーは %d でしたが、ボトムファースト (1) にしました。"},
    {"The preset code %d is unknown; no preset is set now.",
     "Der Code %d für die Voreinstellung ist unbekannt; jetzt ist keine gewählt.",
     "プリセットのコード %d は不明なため、プリセットなしにしました。"},
    {"The picture structure code %d is unknown; it is now Progressive.",
     "Der Code %d für die Bildstruktur ist unbekannt; sie ist jetzt „Progressiv“.",
     "ピクチャ構造のコード %d は不明なため、プログレッシブにしました。"},
    {"The pulldown code %d is unknown; it is now Off.",
     "Der Code %d für den Pulldown ist unbekannt; er ist jetzt „Aus“.",
     "プルダウンのコード %d は不明なため、オフにしました。"},
    {"The chroma format code %d is unknown; it is now 4:2:0.",
     "Der Code %d für das Chroma-Format ist unbekannt; es ist jetzt 4:2:0.",
     "色差フォーマットのコード %d は不明なため、4:2:0 にしました。"},
    KV_ALL_VIEWS("The macroblock search block size code %d is unknown; it is now 8 x 8.",
                 "Der Code %d für den kleinsten Suchblock ist unbekannt; er ist jetzt 8 x 8.",
                 "探索ブロックサイズのコード %d は不明なため、8 x 8 にしました。"),
    KV_ALL_VIEWS("The subpixel search depth code %d is unknown; it is now Quarter.",
                 "Der Code %d für die Subpixel-Suche ist unbekannt; sie ist jetzt „Viertelpixel“.",
                 "サブピクセル精度のコード %d は不明なため、1/4 ピクセルにしました。"),
    KV_ALL_VIEWS("The entropy coding mode code %d is unknown; it is now CAVLC.",
                 "Der Code %d für die Entropiecodierung ist unbekannt; sie ist jetzt CAVLC.",
                 "エントロピー符号化のコード %d は不明なため、CAVLC にしました。"),
    KV_ALL_VIEWS("The number of slices per picture was %d; it is now %d, the most at this height.",
                 "„Slices je Bild“ war %d und ist jetzt %d, das Höchste bei dieser Bildhöhe.",
                 "ピクチャのスライス数は %d でしたが、この画面の高さでの最大値 %d にしました。"),
    KV_ALL_VIEWS("The multi_slice switch did not match the slices per picture; now it does.",
                 "Der Schalter multi_slice passte nicht zur Anzahl der Slices; jetzt passt er.",
                 "multi_slice スイッチがスライス数と一致していなかったため、修正しました。"),
    {"The picture aspect ratio %d:%d is not valid; it is now Custom.",
     "Das Bildseitenverhältnis %d:%d ist ungültig; es ist jetzt „Benutzerdefiniert“.",
     "画面アスペクト比 %d:%d は無効なため、カスタムにしました。"},
    {"The pixel aspect ratio was set as well; it now follows from the picture aspect ratio.",
     "Das Pixelseitenverhältnis war auch gesetzt; es folgt jetzt aus dem Bildseitenverhältnis.",
     "ピクセルアスペクト比も設定されていたため、画面アスペクト比から求めるようにしました。"},
};
// clang-format on

Table rangesTable()
{
    return texts;
}

} // namespace kv::texts
