#pragma once

#include "segments/detail/SegmentLayout.h"

namespace ORMO::SensorModel::CSM::Detail {

/// What the fields of a NITF 2.1 security block say of one another (MIL-STD-2500C, table A-1 and its kin). A header
/// without such a block has nothing to check.
void CheckSecurity(const NITFFieldSegment::Parts& aHeader, FindingList& aFindings);

}  // namespace ORMO::SensorModel::CSM::Detail
