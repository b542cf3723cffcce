#pragma once

#include "../foundation/Export.h"
#include "../nitf/NITFCnst.h"

#include <cstdint>

namespace ORMO::SensorModel::CSM {

/// The tags of the tagged record extensions that the system knows, and their codes.
///
/// Holder of constants only, reached as NITFCnst::TreCERETag. `TAG` is the text of the CETAG or RETAG field,
/// `TreCodeTAG` the number by which hosts know the tag. A code never changes.
class ORMO_CSM_API NITFCnstTreCERETag
{
public:
    /// Any tag that has no code of its own.
    static constexpr std::int32_t TreCodeUNKNOWN = -1;

#define ORMO_TAG_CONSTANTS(aTag, aCode)        \
    static constexpr const char* aTag = #aTag; \
    static constexpr std::int32_t TreCode##aTag = aCode;
#define ORMO_TYPED_TAG(aGroup, aTag, aCode, aType) ORMO_TAG_CONSTANTS(aTag, aCode)
#define ORMO_OWN_CLASS_TAG(aGroup, aTag, aCode, aType) ORMO_TAG_CONSTANTS(aTag, aCode)
#define ORMO_READ_AS_TAG(aGroup, aTag, aCode, aType, aOther) ORMO_TAG_CONSTANTS(aTag, aCode)
#define ORMO_UNTYPED_TAG(aGroup, aTag, aCode, aType) ORMO_TAG_CONSTANTS(aTag, aCode)
#include "tags/TreTagList.h"
#undef ORMO_TAG_CONSTANTS

private:
    explicit NITFCnstTreCERETag() = delete;
};

}  // namespace ORMO::SensorModel::CSM
