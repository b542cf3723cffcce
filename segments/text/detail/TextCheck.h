#pragma once

#include "segments/detail/SegmentLayout.h"

namespace ORMO::SensorModel::CSM::Detail {

/// Holds the text of a text segment against its TXTFMT.
void CheckTextSegment(const NITFFieldSegment& aSegment, FindingList& aFindings);

}  // namespace ORMO::SensorModel::CSM::Detail
