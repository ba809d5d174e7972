#pragma once

#include "ExportTable.h"

/// Settings as values of x264's options, by the option's name; null where it is left out.
namespace x264
{

QString profile(const ExportJob& job);
QString level(const ExportJob& job);
QString blurayCompat(const ExportJob& job);

QString inputRes(const ExportJob& job);
QString fps(const ExportJob& job);
QString tff(const ExportJob& job);
QString bff(const ExportJob& job);
QString pulldown(const ExportJob& job);
QString sar(const ExportJob& job);
QString outputCsp(const ExportJob& job);
QString inputCsp(const ExportJob& job);
QString outputDepth(const ExportJob& job);
QString inputDepth(const ExportJob& job);

QString bitrate(const ExportJob& job);
QString vbvMaxrate(const ExportJob& job);
QString vbvBufsize(const ExportJob& job);
QString vbvInit(const ExportJob& job);
QString nalHrd(const ExportJob& job);
QString qp(const ExportJob& job);
QString crf(const ExportJob& job);
QString ipratio(const ExportJob& job);
QString pbratio(const ExportJob& job);
QString qpmin(const ExportJob& job);
QString qpmax(const ExportJob& job);

QString keyint(const ExportJob& job);
QString minKeyint(const ExportJob& job);
QString openGop(const ExportJob& job);
QString bframes(const ExportJob& job);
QString bAdapt(const ExportJob& job);
QString bPyramid(const ExportJob& job);

QString ref(const ExportJob& job);
QString merange(const ExportJob& job);
QString me(const ExportJob& job);
QString partitions(const ExportJob& job);
QString subme(const ExportJob& job);
QString weightp(const ExportJob& job);
QString trellis(const ExportJob& job);
QString aqMode(const ExportJob& job);
QString aqStrength(const ExportJob& job);
QString noCabac(const ExportJob& job);
QString slices(const ExportJob& job);
QString threads(const ExportJob& job);

/// Rates and buffers are in thousands of bits there.
qint64 thousands(qint64 bits);

bool isConstantQuantizer(const ExportJob& job);
bool isQuantizerMode(const ExportJob& job);
/// Whether P-frames have a quantizer that would be lossless coding.
bool isLosslessQuantizer(const ExportJob& job);
/// x264 writes the lowest profile that has the tools in use.
bool isLowerProfileWritten(const ExportJob& job);
/// Whether there are B-frames as reference frames; of three and more in a row they are a pyramid.
bool hasReferenceB(const ExportJob& job);
/// Whether max_num_ref_frames will be more than was set.
bool needsMoreReferences(const ExportJob& job);

} // namespace x264
