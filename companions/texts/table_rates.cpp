// Rate control of each view.

#include "text_rows.h"

namespace kv::texts
{

#define KV_NEGATIVE(english, german, japanese)                                                     \
    english " was %d; it cannot be negative and is now 0.",                                        \
        "„" german "“ war %d, kann aber nicht negativ sein und ist jetzt 0.",                      \
        japanese "は %d でしたが、負の値にはできないため 0 にしました。"

// clang-format off
static const Text texts[] = {
    KV_EACH_VIEW("The bitrate mode code %d is unknown; it is now Variable Bitrate.",
                 "Der Code %d für den Bitratenmodus ist unbekannt; er ist jetzt „Variable Bitrate“.",
                 "レート制御のコード %d は不明なため、可変ビットレートにしました。"),
    KV_EACH_VIEW("The units code %d is unknown; the units are now bytes and percent.",
                 "Der Code %d für die Einheiten ist unbekannt; sie sind jetzt Byte und Prozent.",
                 "単位のコード %d は不明なため、バイトとパーセントにしました。"),
    KV_EACH_VIEW(KV_SWITCH("HRD conformance", "HRD-Konformität", "HRD 準拠")),

    KV_EACH_VIEW(KV_NEGATIVE("The target bitrate", "Zielbitrate", "目標ビットレート")),
    KV_EACH_VIEW(KV_NEGATIVE("The max bitrate", "Max. Bitrate", "最大ビットレート")),
    KV_EACH_VIEW(KV_NEGATIVE("The bitrate buffer", "Puffer", "ビットレートバッファ")),
    KV_EACH_VIEW(KV_NEGATIVE("VBV buffer initial", "VBV-Anfangsfüllung", "VBV 初期値")),
    KV_EACH_VIEW(KV_NEGATIVE("VBV buffer target", "VBV-Zielfüllung", "VBV 目標値")),
    KV_EACH_VIEW(KV_NEGATIVE("The maximum I-frame size", "Max. Größe der I-Bilder", "I フレーム最大サイズ")),
    KV_EACH_VIEW(KV_NEGATIVE("The maximum P-frame size", "Max. Größe der P-Bilder", "P フレーム最大サイズ")),
    KV_EACH_VIEW(KV_NEGATIVE("The maximum B-frame size", "Max. Größe der B-Bilder", "B フレーム最大サイズ")),
    KV_EACH_VIEW(KV_NEGATIVE("The maximum Br-frame size", "Max. Größe der Br-Bilder", "Br フレーム最大サイズ")),
    KV_EACH_VIEW("VBV buffer initial was %d %%; it is now 100 %%.",
                 "„VBV-Anfangsfüllung“ war %d %% und ist jetzt 100 %%.",
                 "VBV 初期値は %d %% でしたが、100 %% にしました。"),
    KV_EACH_VIEW("VBV buffer target was %d %%; it is now 100 %%.",
                 "„VBV-Zielfüllung“ war %d %% und ist jetzt 100 %%.",
                 "VBV 目標値は %d %% でしたが、100 %% にしました。"),
    KV_EACH_VIEW(KV_RANGE("quantizer of I-frames", "Quantisierer der I-Bilder", "I フレーム量子化値")),
    KV_EACH_VIEW(KV_RANGE("quantizer of P-frames", "Quantisierer der P-Bilder", "P フレーム量子化値")),
    KV_EACH_VIEW(KV_RANGE("quantizer of B-frames", "Quantisierer der B-Bilder", "B フレーム量子化値")),
    KV_EACH_VIEW(KV_RANGE("maximum quantizer", "Größter Quantisierer", "最大量子化値")),
    KV_EACH_VIEW(KV_RANGE("minimum quantizer", "Kleinster Quantisierer", "最小量子化値")),

    KV_EACH_VIEW("The bitrate is constant, so the max bitrate is now the target bitrate, %d.%0*d Mbit/s.",
                 "Die Bitrate ist konstant, daher ist die max. Bitrate jetzt gleich der Zielbitrate: %d,%0*d Mbit/s.",
                 "固定ビットレートのため、最大ビットレートを目標ビットレートと同じ %d.%0*d Mbit/s にしました。"),
    KV_EACH_VIEW("The target bitrate exceeded the max bitrate; it is now %d.%0*d Mbit/s.",
                 "Die Zielbitrate lag über der max. Bitrate und ist jetzt %d,%0*d Mbit/s.",
                 "目標ビットレートが最大ビットレートを超えていたため、%d.%0*d Mbit/s に下げました。"),
    KV_EACH_VIEW("The max bitrate was below the target bitrate; it is now %d.%0*d Mbit/s.",
                 "Die max. Bitrate lag unter der Zielbitrate und ist jetzt %d,%0*d Mbit/s.",
                 "最大ビットレートが目標ビットレートを下回っていたため、%d.%0*d Mbit/s に上げました。"),
    KV_EACH_VIEW("VBV buffer target was %d, more than the bitrate buffer holds; it is now %d.",
                 "„VBV-Zielfüllung“ war %d, mehr als der Puffer fasst, und ist jetzt %d.",
                 "VBV 目標値は %d でビットレートバッファの容量を超えていたため、%d にしました。"),
    KV_EACH_VIEW("The target bitrate has to be above 0.",
                 "Die Zielbitrate muss über 0 liegen.",
                 "目標ビットレートは 0 より大きくしてください。"),
    KV_EACH_VIEW("HRD conformance needs a max bitrate above 0.",
                 "HRD-Konformität braucht eine max. Bitrate über 0.",
                 "HRD 準拠には 0 より大きい最大ビットレートが必要です。"),
    KV_EACH_VIEW("HRD conformance needs a bitrate buffer above 0.",
                 "HRD-Konformität braucht einen Puffer, der größer als 0 ist.",
                 "HRD 準拠には 0 より大きいビットレートバッファが必要です。"),
    KV_EACH_VIEW("HRD conformance needs a frame rate: choose one.",
                 "HRD-Konformität braucht eine Bildrate: Bildrate wählen.",
                 "HRD 準拠にはフレームレートが必要です。フレームレートを選んでください。"),
    KV_EACH_VIEW("VBV buffer initial has to be above 0.",
                 "Die VBV-Anfangsfüllung muss über 0 liegen.",
                 "VBV 初期値は 0 より大きくしてください。"),
    KV_EACH_VIEW("VBV buffer initial can be at most %d with this bitrate buffer (now %d): lower it.",
                 "Die VBV-Anfangsfüllung kann bei diesem Puffer höchstens %d sein (jetzt %d): senken.",
                 "VBV 初期値はこのビットレートバッファでは最大 %d ですが、現在は %d です。下げてください。"),
    KV_EACH_VIEW("The bitrate buffer of %.0f bytes is smaller than the maximum I-frame size of %d bytes: enlarge it.",
                 "Der Puffer von %.0f Byte ist kleiner als die max. Größe der I-Bilder von %d Byte: Puffer vergrößern.",
                 "ビットレートバッファ (%.0f バイト) が I フレーム最大サイズ (%d バイト) を下回っています。大きくしてください。"),
    KV_EACH_VIEW("VBV buffer initial is less than one frame, so the first may come late.",
                 "Die VBV-Anfangsfüllung ist kleiner als ein Bild, daher kann das erste zu spät kommen.",
                 "VBV 初期値が 1 フレーム分に満たないため、最初のフレームが遅れるおそれがあります。"),
    KV_EACH_VIEW("The bitrate buffer holds %d.%0*d s, which leaves little room for I-frames.",
                 "Der Puffer reicht für %d,%0*d s, was I-Bildern wenig Raum lässt.",
                 "ビットレートバッファは %d.%0*d 秒分しかなく、I フレームの余裕がほとんどありません。"),
    KV_EACH_VIEW("The bitrate buffer holds %d.%0*d s; decoding starts after %d.%0*d s.",
                 "Der Puffer reicht für %d,%0*d s; die Decodierung beginnt nach %d,%0*d s.",
                 "ビットレートバッファは %d.%0*d 秒分で、復号は %d.%0*d 秒後に始まります。"),
    KV_EACH_VIEW("The stream names the bitrate in steps of 64 bit/s, the buffer in steps of 16 bits.",
                 "Der Datenstrom nennt die Bitrate in Schritten von 64 Bit/s, den Puffer in Schritten von 16 Bit.",
                 "ストリームには、ビットレートは 64 ビット/秒単位、ビットレートバッファは 16 ビット単位で書き込まれます。"),
    KV_EACH_VIEW("HRD conformance cannot be guaranteed in a constant quality mode.",
                 "HRD-Konformität lässt sich bei konstanter Qualität nicht garantieren.",
                 "固定品質では、HRD 準拠を保証できません。"),
    KV_EACH_VIEW("Without HRD conformance the bitrate has no maximum; the target bitrate was checked.",
                 "Ohne HRD-Konformität hat die Bitrate keine Obergrenze; geprüft wurde die Zielbitrate.",
                 "HRD 準拠がオフの場合はビットレートに上限がないため、目標ビットレートを検査しました。"),
    KV_EACH_VIEW("The minimum quantizer %d is above the maximum quantizer %d: lower it, or raise the maximum.",
                 "Der kleinste Quantisierer %d liegt über dem größten, %d: den kleinsten senken oder den größten erhöhen.",
                 "最小量子化値 %d が最大量子化値 %d を超えています。最小を下げるか、最大を上げてください。"),
    KV_EACH_VIEW("The quantizer of I-frames has to lie between the minimum %d and the maximum %d (now %d).",
                 "Der Quantisierer der I-Bilder muss zwischen dem kleinsten, %d, und dem größten, %d, liegen (jetzt %d).",
                 "I フレーム量子化値は、最小 %d ～ 最大 %d の範囲にしてください (現在 %d)。"),
    KV_EACH_VIEW("The quantizer of P-frames has to lie between the minimum %d and the maximum %d (now %d).",
                 "Der Quantisierer der P-Bilder muss zwischen dem kleinsten, %d, und dem größten, %d, liegen (jetzt %d).",
                 "P フレーム量子化値は、最小 %d ～ 最大 %d の範囲にしてください (現在 %d)。"),
    KV_EACH_VIEW("The quantizer of B-frames has to lie between the minimum %d and the maximum %d (now %d).",
                 "Der Quantisierer der B-Bilder muss zwischen dem kleinsten, %d, und dem größten, %d, liegen (jetzt %d).",
                 "B フレーム量子化値は、最小 %d ～ 最大 %d の範囲にしてください (現在 %d)。"),
    {"With constant quality, whether the bitrate fits the level shows only when encoding.",
     "Bei konstanter Qualität zeigt sich erst beim Codieren, ob die Bitrate zum Level passt.",
     "固定品質では、ビットレートがレベルに収まるかどうかは符号化するまで分かりません。"},
};
// clang-format on

Table ratesTable()
{
    return texts;
}

} // namespace kv::texts
