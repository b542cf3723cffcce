#pragma once

#include "segments/detail/rules/HeaderView.h"

// Fields that are no part of a header, each held against its row.
namespace ORMO::SensorModel::CSM::Detail {

/// Those of an image data mask; nothing for a header without one.
void CheckMaskFields(const HeaderView& aHeader, FindingList& aFindings);
/// Those of the user-defined subheader and of the data of a DES whose type is known; nothing for any other header.
void CheckDesFields(const HeaderView& aHeader, FindingList& aFindings);

}  // namespace ORMO::SensorModel::CSM::Detail
