#pragma once

#include "fields/ByteSource.h"
#include "fields/FindingList.h"
#include "nitf/NITFCnst.h"

#include <string>

namespace ORMO::SensorModel::CSM::Detail {

/// For salvage: a file header whose counts and lengths do not lead to the marks of the segments, while exactly one
/// other number in one of them does and adds up to the size of the file, gets that number. `aRaw` is then the header
/// with it, an error among the findings says what was taken in place of what, and the answer is true. A header that
/// needs no repair, or in which more than one number is wrong, stays as it is.
[[nodiscard]] bool RepairFileHeader(const ByteSource& aSource, NITFCnst::Version aVersion, std::string& aRaw,
                                    FindingList& aFindings);

}  // namespace ORMO::SensorModel::CSM::Detail
