#pragma once

#include "../foundation/Export.h"

#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM {

class NITFFieldSegment;
class TRE;
class TREStore;

/// All TREs of a segment wherever they stand: its own first and then those of overflow DESs; of a DES whose TREs belong
/// to no segment those that it carries. Never instantiated.
class ORMO_CSM_API NITFSegmentTREs
{
public:
    static std::vector<const TREStore*> GetStores(const NITFFieldSegment& aSegment);
    /// In order of appearance; they belong to the segment.
    static std::vector<const TRE*> GetAll(const NITFFieldSegment& aSegment);
    /// The first one of a tag; null when there is none.
    static const TRE* GetFirst(const NITFFieldSegment& aSegment, std::string_view aTag);

    NITFSegmentTREs() = delete;
};

}  // namespace ORMO::SensorModel::CSM
