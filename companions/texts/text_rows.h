/**
 * @file text_rows.h
 * Rows of the tables that stand for several texts.
 */
#ifndef KV_TEXTS_TEXT_ROWS_H
#define KV_TEXTS_TEXT_ROWS_H

#include "tables.h"

// One row of a message that comes in two formats: about the base view, or all views, and about
// another view. The arguments are the three sentences.
#define KV_EACH_VIEW(...)                                                                          \
    KV_VIEW_TEXTS("Base view: ", "Basisansicht: ", "ベースビュー: ", __VA_ARGS__)
#define KV_ALL_VIEWS(...) KV_VIEW_TEXTS("", "", "", __VA_ARGS__)
#define KV_VIEW_TEXTS(...) KV_VIEW_ROWS(__VA_ARGS__)
#define KV_VIEW_ROWS(english0, german0, japanese0, english, german, japanese)                      \
    {english0 english, german0 german, japanese0 japanese},                                        \
    {                                                                                              \
        "View %d: " english, "Ansicht %d: " german, "ビュー %d: " japanese                         \
    }

// The three sentences of a corrected setting. The arguments are its names in the dialog.
#define KV_RANGE(english, german, japanese)                                                        \
    "The " english " was %d; it is now %d (%d to %d).",                                            \
        "„" german "“ war %d und ist jetzt %d (%d bis %d).",                                       \
        japanese "は %d でしたが、%d にしました (%d ～ %d)。"
#define KV_SWITCH(english, german, japanese)                                                       \
    "The switch \"" english "\" was %d; it is now on (1).",                                        \
        "„" german "“ war %d und ist jetzt an (1).",                                               \
        "「" japanese "」は %d でしたが、オン (1) にしました。"

#endif
