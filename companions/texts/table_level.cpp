// Limits of levels, and references.

#include "text_rows.h"

namespace kv::texts
{

#define KV_PICTURE_BYTES(kind)                                                                                  \
    KV_EACH_VIEW("The maximum " kind                                                                            \
                 "-frame size of %d bytes exceeds the %.0f bytes of level %s: lower it.",                       \
                 "„Max. Größe der " kind                                                                        \
                 "-Bilder“ ist %d Byte, mehr als die %.0f Byte von Level %s: senken.",                          \
                 kind " フレーム最大サイズ %d バイトは、上限の %.0f バイト (レベル %s) " \
                      "を超えています。下げてください。")

// clang-format off
static const Text texts[] = {
    {"Level %s is none of the H.264 levels from 1.0 to 5.2: choose another level, or Auto.",
     "Level %s gehört nicht zu den H.264-Levels von 1.0 bis 5.2: anderes Level oder „Auto“ wählen.",
     "レベル %s は、H.264 の 1.0 ～ 5.2 にはありません。別のレベルか自動を選んでください。"},
    {"These settings fit no level from 1.0 to 5.2.",
     "Zu diesen Einstellungen passt kein Level von 1.0 bis 5.2.",
     "この設定に合うレベルは 1.0 ～ 5.2 にありません。"},
    {"With level Auto, the stream has level %s, the lowest that fits.",
     "Mit „Auto“ hat der Datenstrom Level %s, das niedrigste, das ausreicht.",
     "自動では、条件を満たす最小のレベル %s になります。"},
    {"Level %s is the lowest that fits.",
     "Level %s ist das niedrigste, das ausreicht.",
     "レベル %s が、条件を満たす最小のレベルです。"},
    {"These settings do not fit level %s, which Blu-ray 3D requires.",
     "Diese Einstellungen passen nicht zu Level %s, das Blu-ray 3D verlangt.",
     "この設定は、Blu-ray 3D に必要なレベル %s に収まりません。"},
    {"With level Auto, the stream has level %s, which Blu-ray 3D requires.",
     "Mit „Auto“ hat der Datenstrom Level %s, das Blu-ray 3D verlangt.",
     "自動では、Blu-ray 3D に必要なレベル %s になります。"},
    {"These settings fit level %s, which Blu-ray 3D requires.",
     "Diese Einstellungen passen zu Level %s, das Blu-ray 3D verlangt.",
     "この設定は、Blu-ray 3D に必要なレベル %s に収まります。"},
    {"Level %s allows at most %d macroblocks in a picture (now %.0f): choose a higher level.",
     "Level %s erlaubt höchstens %d Makroblöcke je Bild (jetzt %.0f): höheres Level wählen.",
     "レベル %s のピクチャは最大 %d マクロブロックですが、現在は %.0f です。上のレベルを選んでください。"},
    {"Level %s allows at most %d macroblocks in a row or column (now %.0f x %.0f): choose a higher level.",
     "Level %s erlaubt höchstens %d Makroblöcke je Zeile oder Spalte (jetzt %.0f x %.0f): höheres Level wählen.",
     "レベル %s のピクチャは縦横とも最大 %d マクロブロックですが、現在は %.0f x %.0f です。上のレベルを選んでください。"},
    {"Level %s allows at most %d macroblocks/s (now %.0f): choose a higher level or a lower frame rate.",
     "Level %s erlaubt höchstens %d Makroblöcke/s (jetzt %.0f): höheres Level oder niedrigere Bildrate wählen.",
     "レベル %s は最大 %d マクロブロック/秒ですが、現在は %.0f です。上のレベルか、より低いフレームレートを選んでください。"},
    {"Level %s allows at most %d macroblocks/s for %d views (now %.0f): choose a higher level or a lower frame rate.",
     "Level %s erlaubt höchstens %d Makroblöcke/s für %d Ansichten (jetzt %.0f): höheres Level oder niedrigere Bildrate wählen.",
     "レベル %s は最大 %d マクロブロック/秒 (%d ビュー合計) ですが、現在は %.0f です。上のレベルか、より低いフレームレートを選んでください。"},
    {"Level %s allows progressive pictures only: choose Progressive, or a level from 2.1 to 4.1.",
     "Level %s erlaubt nur progressive Bilder: „Progressiv“ oder ein Level von 2.1 bis 4.1 wählen.",
     "レベル %s はプログレッシブ専用です。プログレッシブか、2.1 ～ 4.1 のレベルを選んでください。"},
    {"Level %s allows the base view at most %d.%0*d Mbit/s (now %d.%0*d): lower its bitrate, or choose a higher level.",
     "Level %s erlaubt der Basisansicht höchstens %d,%0*d Mbit/s (jetzt %d,%0*d): ihre Bitrate senken oder höheres Level wählen.",
     "レベル %s のベースビューは最大 %d.%0*d Mbit/s ですが、現在は %d.%0*d です。ビットレートを下げるか、上のレベルを選んでください。"},
    {"Level %s allows at most %d.%0*d Mbit/s for %d views together (now %d.%0*d): lower a bitrate, or choose a higher level.",
     "Level %s erlaubt höchstens %d,%0*d Mbit/s für %d Ansichten zusammen (jetzt %d,%0*d): eine Bitrate senken oder höheres Level wählen.",
     "レベル %s は最大 %d.%0*d Mbit/s (%d ビュー合計) ですが、現在は %d.%0*d です。ビットレートを下げるか、上のレベルを選んでください。"},
    {"Of %d.%0*d Mbit/s, level %s allows at most %d.%0*d for picture data; the rest is for headers.",
     "Von %d,%0*d Mbit/s erlaubt Level %s höchstens %d,%0*d für Bilddaten; der Rest ist für Header.",
     "%d.%0*d Mbit/s のうち、レベル %s で映像データに使えるのは最大 %d.%0*d です。残りはヘッダー用です。"},
    {"Level %s allows the base view a bitrate buffer of at most %d.%0*d Mbit (now %d.%0*d): make it smaller.",
     "Level %s erlaubt der Basisansicht einen Puffer von höchstens %d,%0*d Mbit (jetzt %d,%0*d): Puffer verkleinern.",
     "レベル %s のベースビューのビットレートバッファは最大 %d.%0*d Mbit ですが、現在は %d.%0*d です。小さくしてください。"},
    {"Level %s allows bitrate buffers of at most %d.%0*d Mbit for %d views together (now %d.%0*d): make one smaller.",
     "Level %s erlaubt Puffer von höchstens %d,%0*d Mbit für %d Ansichten zusammen (jetzt %d,%0*d): einen Puffer verkleinern.",
     "レベル %s のビットレートバッファは最大 %d.%0*d Mbit (%d ビュー合計) ですが、現在は %d.%0*d です。小さくしてください。"},
    {"Of %d.%0*d Mbit in bitrate buffers, level %s allows at most %d.%0*d for picture data; the rest is for headers.",
     "Von %d,%0*d Mbit in Puffern erlaubt Level %s höchstens %d,%0*d für Bilddaten; der Rest ist für Header.",
     "ビットレートバッファ %d.%0*d Mbit のうち、レベル %s で映像データに使えるのは最大 %d.%0*d です。残りはヘッダー用です。"},
    {"Level %s can store %d frames of this size (now %d): use fewer reference frames.",
     "Level %s kann %d Bilder dieser Größe speichern (jetzt %d): weniger Referenzbilder verwenden.",
     "レベル %s で保持できるこのサイズのフレームは %d 枚ですが、現在は %d 枚です。参照フレーム数を減らしてください。"},
    {"Level %s can store %d frames of this size for %d views (now %d): use fewer reference frames.",
     "Level %s kann %d Bilder dieser Größe für %d Ansichten speichern (jetzt %d): weniger Referenzbilder verwenden.",
     "レベル %s で保持できるこのサイズのフレームは %d 枚 (%d ビュー合計) ですが、現在は %d 枚です。参照フレーム数を減らしてください。"},
    KV_ALL_VIEWS("Level %s allows a view %d reference frames of this size (now %d): use fewer.",
                 "Level %s erlaubt einer Ansicht %d Referenzbilder dieser Größe (jetzt %d): weniger verwenden.",
                 "レベル %s では、このサイズの参照フレームは 1 ビューあたり %d 枚までですが、現在は %d 枚です。減らしてください。"),
    KV_ALL_VIEWS("Level %s allows at most %d slices per picture at this size and rate (now %d): use fewer.",
                 "Level %s erlaubt bei dieser Größe und Bildrate höchstens %d Slices je Bild (jetzt %d): weniger verwenden.",
                 "レベル %s のスライスは、このサイズとフレームレートではピクチャあたり最大 %d ですが、現在は %d です。減らしてください。"),
    KV_ALL_VIEWS("Level %s needs at least %d slices per picture at this size (now %d): use more.",
                 "Level %s braucht bei dieser Größe mindestens %d Slices je Bild (jetzt %d): mehr verwenden.",
                 "レベル %s のスライスは、このサイズではピクチャあたり %d 以上必要ですが、現在は %d です。増やしてください。"),
    KV_ALL_VIEWS("The motion vector search range %d applies horizontally; vertically, level %s ends at %d.",
                 "Der Suchbereich der Vektoren von %d gilt waagerecht; senkrecht erlaubt Level %s höchstens %d.",
                 "動き探索範囲 %d は水平方向に有効です。垂直方向は、レベル %s では %d までです。"),
    KV_PICTURE_BYTES("I"),
    KV_PICTURE_BYTES("P"),
    KV_PICTURE_BYTES("B"),
    KV_PICTURE_BYTES("Br"),
};
// clang-format on

Table levelTable()
{
    return texts;
}

} // namespace kv::texts
