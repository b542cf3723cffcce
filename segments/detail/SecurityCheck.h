#pragma once

#include "fields/FieldStore.h"

#include <cstdint>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

class Findings;

/// What the fields of a NITF 2.1 security block say of one another (MIL-STD-2500C, table A-1 and its kin). A header
/// without such a block has nothing to check.
void CheckSecurity(const FieldStore& aFields, std::string_view aOwner, std::uint64_t aFileOffset, Findings& aFindings);

}  // namespace ORMO::SensorModel::CSM::Detail
