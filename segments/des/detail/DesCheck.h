#pragma once

#include "segments/detail/SegmentLayout.h"

namespace ORMO::SensorModel::CSM::Detail {

/// Holds an overflow DES against what its kind demands, and the fields and data of a known type against that type.
void CheckDesSegment(const NITFFieldSegment& aSegment, FindingList& aFindings);

}  // namespace ORMO::SensorModel::CSM::Detail
