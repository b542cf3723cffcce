#pragma once

#include "../foundation/Export.h"
#include "../tre/TRE.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// Helpers for lists of fields, for hosts that keep such lists of their own; never instantiated.
class ORMO_CSM_API ImageSupportDataNITFUtil
{
public:
    /// What is known of the fields of each of several TREs, by the tag.
    using NITFTreInfoMap = std::map<std::string, TRE::FieldInfos>;

    /// The number of required fields without a value; appends a line for each to `aErrors`, which names the owner. An
    /// empty value counts as one; null names are left out.
    static std::size_t EnsureRequiredFieldsExist(const char* aOwner, const std::vector<const char*>& aRequired,
                                                 const std::map<std::string, std::string>& aValues,
                                                 std::string& aErrors);
    /// What is known of the fields of a TRE, in place of what the map holds for its tag. False, with the map as it
    /// was, for a TRE without fields.
    static bool GetTreFieldInfos(const TRE& aTre, NITFTreInfoMap& aInfos);
    /// Copies what is known of one tag; false when nothing is.
    static bool CloneTreFieldInfos(const NITFTreInfoMap& aFrom, const char* aTag, NITFTreInfoMap& aTo);
    static void ClearNITFTreInfoMap(NITFTreInfoMap& aInfos) noexcept { aInfos.clear(); }

private:
    ImageSupportDataNITFUtil();
};

}  // namespace ORMO::SensorModel::CSM
