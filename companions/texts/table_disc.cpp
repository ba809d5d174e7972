// Blu-ray 3D.

#include "text_rows.h"

namespace kv::texts
{

// clang-format off
static const Text texts[] = {
    {"Blu-ray 3D has two views (now 1): set 1 additional view.",
     "Blu-ray 3D hat zwei Ansichten (jetzt 1): 1 weitere Ansicht einstellen.",
     "Blu-ray 3D のビューは 2 つですが、1 つしか設定されていません。追加ビュー数を 1 にしてください。"},
    {"Blu-ray 3D requires profile High (now %s): choose High.",
     "Blu-ray 3D verlangt das Profil High (jetzt %s): High wählen.",
     "Blu-ray 3D にはプロファイル High が必要ですが、現在は %s です。High を選んでください。"},
    {"Blu-ray 3D requires level 4.1 (now %s): choose 4.1.",
     "Blu-ray 3D muss als Level 4.1 gekennzeichnet sein (jetzt %s): 4.1 wählen.",
     "Blu-ray 3D にはレベル 4.1 が必要ですが、現在は %s です。4.1 を選んでください。"},
    {"Blu-ray 3D requires the chroma format 4:2:0: choose 4:2:0.",
     "Blu-ray 3D verlangt das Chroma-Format 4:2:0: 4:2:0 wählen.",
     "Blu-ray 3D の色差フォーマットは 4:2:0 だけです。4:2:0 を選んでください。"},
    {"Blu-ray does not allow %d x %d at %d.%0*d frames/s in this picture structure: use another format.",
     "Blu-ray erlaubt %d x %d mit %d,%0*d Bildern/s in dieser Bildstruktur nicht: anderes Format verwenden.",
     "Blu-ray では、このピクチャ構造で %d x %d、%d.%0*d フレーム/秒は使えません。別のフォーマットにしてください。"},
    {"Blu-ray requires the pixel aspect ratio %d:%d at this picture size: set it.",
     "Blu-ray verlangt bei dieser Bildgröße das Pixelseitenverhältnis %d:%d: dieses einstellen.",
     "Blu-ray では、この画面サイズのピクセルアスペクト比は %d:%d です。そのように設定してください。"},
    {"Blu-ray requires the pixel aspect ratio %d:%d (4:3) or %d:%d (16:9) at this picture size.",
     "Blu-ray verlangt bei dieser Bildgröße das Pixelseitenverhältnis %d:%d (4:3) oder %d:%d (16:9).",
     "Blu-ray では、この画面サイズのピクセルアスペクト比を %d:%d (4:3) か %d:%d (16:9) にする必要があります。"},
    {"Blu-ray requires an I-frame interval from 1 to %d at this frame rate (now %d).",
     "Blu-ray verlangt bei dieser Bildrate einen I-Bild-Abstand von 1 bis %d (jetzt %d).",
     "Blu-ray では、このフレームレートの I フレーム間隔を 1 ～ %d にする必要があります (現在 %d)。"},
    {"Blu-ray requires at least 4 slices per picture at level 4.1 (now %d): use more.",
     "Blu-ray verlangt bei Level 4.1 mindestens 4 Slices je Bild (jetzt %d): mehr verwenden.",
     "レベル 4.1 の Blu-ray にはピクチャあたり 4 つ以上のスライスが必要ですが、現在は %d です。増やしてください。"},
    {"Blu-ray allows at most %d reference frames per view at this size (now %d): use fewer.",
     "Blu-ray erlaubt bei dieser Bildgröße höchstens %d Referenzbilder je Ansicht (jetzt %d): weniger verwenden.",
     "Blu-ray の参照フレームは、この画面サイズではビューあたり最大 %d 枚ですが、現在は %d 枚です。減らしてください。"},
    {"Blu-ray requires HRD conformance in the base view: switch it on.",
     "Blu-ray verlangt HRD-Konformität in der Basisansicht: einschalten.",
     "Blu-ray ではベースビューの HRD 準拠が必要です。オンにしてください。"},
    {"Blu-ray allows the base view a bitrate buffer of at most %d.%0*d Mbit (%d bytes): make it smaller.",
     "Blu-ray erlaubt der Basisansicht einen Puffer von höchstens %d,%0*d Mbit (%d Byte): Puffer verkleinern.",
     "Blu-ray のベースビューのビットレートバッファは最大 %d.%0*d Mbit (%d バイト) です。小さくしてください。"},
    KV_EACH_VIEW("Blu-ray does not allow constant quality: choose Variable Bitrate.",
                 "Blu-ray erlaubt keine konstante Qualität: „Variable Bitrate“ wählen.",
                 "Blu-ray では固定品質を使えません。可変ビットレートを選んでください。"),
    KV_EACH_VIEW("Blu-ray 3D allows at most %d.%0*d Mbit/s (now %d.%0*d): lower the bitrate.",
                 "Blu-ray 3D erlaubt höchstens %d,%0*d Mbit/s (jetzt %d,%0*d): Bitrate senken.",
                 "Blu-ray 3D では最大 %d.%0*d Mbit/s ですが、現在は %d.%0*d です。ビットレートを下げてください。"),
    {"Blu-ray 3D allows both views together at most %d.%0*d Mbit/s (now %d.%0*d): lower a bitrate.",
     "Blu-ray 3D erlaubt beiden Ansichten zusammen höchstens %d,%0*d Mbit/s (jetzt %d,%0*d): eine Bitrate senken.",
     "Blu-ray 3D では両ビューの合計で最大 %d.%0*d Mbit/s ですが、現在は %d.%0*d です。ビットレートを下げてください。"},
    {"Blu-ray allows one reference B-frame in a row: switch the pyramidal structure on.",
     "Blu-ray erlaubt nur ein Referenz-B-Bild in Folge: Pyramidenstruktur einschalten.",
     "Blu-ray では、参照 B フレームを 2 枚以上続けられません。ピラミッド構造をオンにしてください。"},
    {"Blu-ray 3D is only known to play 1920 x 1080 at 23.976 frames/s, progressive; others may fail.",
     "Sicher abspielbar ist Blu-ray 3D nur mit 1920 x 1080 und 23,976 Bildern/s, progressiv; anderes kann scheitern.",
     "Blu-ray 3D で再生が確認されているのは 1920 x 1080、23.976 フレーム/秒、プログレッシブだけです。ほかは再生できないおそれがあります。"},
    {"Blu-ray 3D players expect HRD conformance in view 1, too.",
     "Blu-ray-3D-Player erwarten auch in Ansicht 1 HRD-Konformität.",
     "Blu-ray 3D プレーヤーはビュー 1 にも HRD 準拠を求めます。"},
    {"In view 1, a bitrate buffer above %d.%0*d Mbit (%d bytes) may fail on some players.",
     "In Ansicht 1 kann ein Puffer über %d,%0*d Mbit (%d Byte) auf manchen Playern scheitern.",
     "ビュー 1 のビットレートバッファが %d.%0*d Mbit (%d バイト) を超えると、一部のプレーヤーで再生できないおそれがあります。"},
    {"Blu-ray 3D plays its frame rate as it is, so pulldown is not needed.",
     "Blu-ray 3D gibt seine Bildrate unverändert wieder und braucht keinen Pulldown.",
     "Blu-ray 3D はそのままのフレームレートで再生されるため、プルダウンは不要です。"},
    {"More than 3 reference frames per view may fail on some Blu-ray 3D players.",
     "Mehr als 3 Referenzbilder je Ansicht können auf manchen Blu-ray-3D-Playern scheitern.",
     "参照フレームがビューあたり 3 枚を超えると、一部の Blu-ray 3D プレーヤーで再生できないおそれがあります。"},
    {"Weighted prediction for P-frames is known to fail on some Blu-ray players.",
     "Gewichtete Prädiktion für P-Bilder scheitert bekanntlich auf manchen Blu-ray-Playern.",
     "P フレームの重み付き予測は、一部の Blu-ray プレーヤーで正しく再生されないことが知られています。"},
};
// clang-format on

Table discTable()
{
    return texts;
}

} // namespace kv::texts
