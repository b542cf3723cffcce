#pragma once

#include "foundation/Finding.h"

#include <string>

namespace OrmoNitf {

bool IsError(const ORMO::SensorModel::CSM::Finding& aFinding) noexcept;
/// "WARN", "ERROR" or "FATAL"
const char* LevelWord(const ORMO::SensorModel::CSM::Finding& aFinding) noexcept;
/// The sentence without the level that it begins with.
std::string Sentence(const ORMO::SensorModel::CSM::Finding& aFinding);
/// What was found and, beside it, what is wanted.
std::string Facts(const ORMO::SensorModel::CSM::Finding& aFinding);
/// "ImageSegment 2"; empty for the file as a whole.
std::string SegmentOf(const ORMO::SensorModel::CSM::Finding& aFinding);

}  // namespace OrmoNitf
