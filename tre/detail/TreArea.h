#pragma once

#include "fields/FindingList.h"
#include "foundation/CSMCnst.h"
#include "tre/TRE.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ORMO::SensorModel::CSM {

class TREStore;

namespace Detail {

/// Where an extension area stands in its file.
struct AreaPlace
{
    const char* name = nullptr;                     ///< "UDHD", "XHD", "UDID" ...; must live as long as the process
    std::uint64_t offset = 0;                       ///< of the first byte of the area in the file
    TRE::Type unknownType = TRE::TRE_TYPE_UNKNOWN;  ///< for tags that no group knows
    const char* rule = "TR-01";                     ///< the validation rule that says what an area holds
};

/// How an area is cut.
struct AreaOptions
{
    bool typedOnly = false;  ///< TREs without a typed form are left out, with a finding
    bool validate = false;   ///< a typed TRE must hold only values that its standard allows
};

/// Cuts an area into TREs, in which NUL bytes are data, and adds them to the store; answers how many. Each fault is one
/// warning; the finding's text is what the operations of the library have always said. Raises std::bad_alloc when
/// memory is short, with the TREs before it in the store.
int ExtractTREs(std::string_view aArea, TREStore& aStore, const AreaOptions& aOptions,
                Util::CSMCnst::ByteOrder aByteOrder, const AreaPlace& aPlace, FindingList& aFindings);

/// What a validation says of the records of an area: one that ends before the area does, bytes behind the last one, and
/// tags and lengths that are not written as they should be. Padding is worth a warning only.
void CheckArea(std::string_view aArea, const AreaPlace& aPlace, FindingList& aFindings);

}  // namespace Detail
}  // namespace ORMO::SensorModel::CSM
