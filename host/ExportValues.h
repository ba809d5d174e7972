#pragma once

#include "ExportTable.h"

#include <initializer_list>

// What settings come to, for encoders that have other units and names.

struct Fraction {
    qint64 num;
    qint64 den;
};

/// In lowest terms.
Fraction reduced(qint64 num, qint64 den);

/// Frames a second: over 1001 where it is such a rate, to a thousandth else; 0/1: not set.
Fraction frameRate(const KvMvcViewSettings& view);

/// The sample aspect ratio in lowest terms, from the display aspect ratio if that is set; 0/1:
/// unspecified.
Fraction sampleAspect(const KvMvcViewSettings& view);

/// "24000/1001", "25".
QString fractionText(Fraction fraction);

bool isInterlaced(const KvMvcViewSettings& view);
/// Whether there are pictures other than I pictures.
bool predicts(const KvMvcViewSettings& view);
bool hasBFrames(const KvMvcViewSettings& view);

/// Whether the rate control has a bit rate, and not quantizers.
bool aimsAtRate(const KvMvcViewSettings& view);
/// In bit/s: what the buffer is filled with; 0 without a bit rate.
qint64 bufferRate(const KvMvcViewSettings& view);
qint64 bufferBits(const KvMvcViewSettings& view);
/// Whether rate and buffer hold: constant rates, and the HRD.
bool keepsBuffer(const KvMvcViewSettings& view);
/// Whether the stream tells rate and buffer.
bool signalsBuffer(const KvMvcViewSettings& view);
/// The part of the buffer that is full, 0 to 1, for a value of the fullness fields.
double bufferShare(const KvMvcViewSettings& view, qint32 fullness);

/// By how much quantizers of deep samples begin below 0 (H.264 7.4.2.2).
int quantizerOffset(const KvMvcViewSettings& view);

/// An option that is its name alone: empty, or null where it is left out.
QString flag(bool isSet);
/// A number that may be left out; a null text then.
QString numberIf(bool isSaid, qint64 number);

/// The text of a code; a null text for one that has none.
struct CodeText {
    qint32 code;
    const char* text;
};
QString textOf(std::initializer_list<CodeText> texts, qint32 code);

/// The level's number, "4.1"; a null text for Auto and for what is no level of H.264 (A.3).
QString levelText(const KvMvcViewSettings& view);
bool isOddLevel(const KvMvcViewSettings& view);
