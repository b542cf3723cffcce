#pragma once

#include "isd/ImageSupportDataNITF.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM::Tests {

/// Asks a TRE everything that can be asked of any.
void AskEverything(const TRE& aTre);

/// Asks a segment, and every TRE of it, everything that can be asked of any. Answers how many fields there were.
std::size_t AskEverything(const NITFFieldSegment& aSegment);

/// Asks a file and all its segments everything that a host can ask without changing it; pixels are left out. For tests
/// in which nothing is to be learnt but that every question has an answer.
std::size_t AskEverything(ImageSupportDataNITF& aIsd);

}  // namespace ORMO::SensorModel::CSM::Tests
