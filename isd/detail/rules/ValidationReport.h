#pragma once

#include "fields/FindingList.h"

#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// The validation summary document: the errors and then the warnings, those of one segment together.
std::string ValidationReport(const FindingList& aFindings);
/// Its sections alone, without the frame of the document.
std::string ValidationSections(const FindingList& aFindings);
/// The document of a validation that could not be made: one section with the reason.
std::string ValidationReport(std::string_view aFailure);

}  // namespace ORMO::SensorModel::CSM::Detail
