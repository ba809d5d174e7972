#pragma once

#include "ExportTable.h"

/// Settings as values of JM's parameters; null where one is left out.
namespace jm
{

QString numberOfViews(const ExportJob& job);
QString profileIdc(const ExportJob& job);
QString levelIdc(const ExportJob& job);
QString transform8x8Mode(const ExportJob& job);
QString sendAud(const ExportJob& job);

QString width(const ExportJob& job);
QString height(const ExportJob& job);
QString frameRate(const ExportJob& job);
QString timingPresent(const ExportJob& job);
QString unitsInTick(const ExportJob& job);
QString timeScale(const ExportJob& job);
QString aspectPresent(const ExportJob& job);
QString aspectIdc(const ExportJob& job);
QString sarWidth(const ExportJob& job);
QString sarHeight(const ExportJob& job);
QString picInterlace(const ExportJob& job);
QString mbInterlace(const ExportJob& job);
QString yuvFormat(const ExportJob& job);
QString depthLuma(const ExportJob& job);
QString depthChroma(const ExportJob& job);

QString rateControlEnable(const ExportJob& job);
QString rcUpdateMode(const ExportJob& job);
QString bitrate(const ExportJob& job);
QString hrdPresent(const ExportJob& job);
QString hrdIsConstant(const ExportJob& job);
QString hrdRate(const ExportJob& job);
QString hrdBuffer(const ExportJob& job);
QString quantizerI(const ExportJob& job);
QString quantizerP(const ExportJob& job);
QString quantizerB(const ExportJob& job);
QString quantizerMin(const ExportJob& job);
QString quantizerMax(const ExportJob& job);

QString intraPeriod(const ExportJob& job);
QString idrPeriod(const ExportJob& job);
QString bFrames(const ExportJob& job);
QString bReferencePictures(const ExportJob& job);
QString hierarchicalCoding(const ExportJob& job);

QString references(const ExportJob& job);
QString searchRange(const ExportJob& job);
QString restrictSearchRange(const ExportJob& job);
QString halfBlocks(const ExportJob& job);
QString disableSubpelMe(const ExportJob& job);
QString rdOptimization(const ExportJob& job);
QString costMeasure(const ExportJob& job);
QString fullSampleMeasure(const ExportJob& job);
QString weightedPrediction(const ExportJob& job);
QString sliceMode(const ExportJob& job);
QString sliceArgument(const ExportJob& job);
QString isDeblockingSaid(const ExportJob& job);
QString disableDeblocking(const ExportJob& job);

/// Whether JM has to be given another level than the settings do.
bool isLevelChosen(const ExportJob& job);
/// Whether pictures cannot be cut into that many slices of equal macroblock counts.
bool isSliceCountMissed(const ExportJob& job);
/// Whether there are too few B-frames in a row for a pyramid.
bool isPyramidTooSmall(const ExportJob& job);
/// Whether B-frames are coded as a pyramid.
bool isPyramid(const ExportJob& job);
/// Whether IDR pictures but the first would not be decodable.
bool lacksIdrPictures(const ExportJob& job);
/// Whether a rate or a buffer is told in units that it is no multiple of.
bool isRateRounded(const ExportJob& job);
bool isBufferRounded(const ExportJob& job);

} // namespace jm
