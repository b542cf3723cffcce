#pragma once

#include "../foundation/Export.h"
#include "../nitf/NITFCnst.h"

#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM {

class NITFFieldSegment;

/// What the fields of file headers and subheaders mean, without a file at hand; never instantiated. All texts come from
/// the tables that the headers are read by. A version is 20 or 21, which stands for NSIF 1.0 too.
class ORMO_CSM_API NITFHeaderCatalogue
{
public:
    /// The fields of a header in their order, repeated ones once with their base name; empty when the version has no
    /// such segments.
    static std::vector<std::string> GetFieldNames(NITFCnst::DataSegmentType aKind, NITFCnst::Version aVersion);
    /// Its layout: one line per field, indented under the repeats and conditions that it stands in. False when the
    /// version has no such segments.
    static bool DescribeHeader(NITFCnst::DataSegmentType aKind, NITFCnst::Version aVersion, std::string& aText);
    /// All that is known of one field, named with or without the number of its turn. False when there is none.
    static bool DescribeField(NITFCnst::DataSegmentType aKind, NITFCnst::Version aVersion, const char* aField,
                              std::string& aText);
    /// The values that a field of a segment may have: alternatives between "|", pictures of dates in braces; empty when
    /// every value is allowed. It lives as long as the process.
    static const char* GetValueRule(const NITFFieldSegment& aSegment, std::string_view aField) noexcept;

    NITFHeaderCatalogue() = delete;
};

}  // namespace ORMO::SensorModel::CSM
