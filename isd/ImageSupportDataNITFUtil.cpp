#include "isd/ImageSupportDataNITFUtil.h"

#include "foundation/CSMMsg.h"
#include "foundation/CSMUtilGeneric.h"
#include "foundation/detail/Ascii.h"

namespace ORMO::SensorModel::CSM {

std::size_t ImageSupportDataNITFUtil::EnsureRequiredFieldsExist(const char* aOwner,
                                                                const std::vector<const char*>& aRequired,
                                                                const std::map<std::string, std::string>& aValues,
                                                                std::string& aErrors)
{
    const std::string prefix = std::string(CSMMsg::Error::MISSING_REQUIRED_FIELD) + ' ';
    std::size_t missing = 0;
    for (const char* const field : aRequired) {
        if (field != nullptr && aValues.find(field) == aValues.end()) {
            Util::CSMUtilGeneric::ConstructMessage(true, prefix.c_str(), aOwner, field, aErrors);
            ++missing;
        }
    }
    return missing;
}

bool ImageSupportDataNITFUtil::GetTreFieldInfos(const TRE& aTre, NITFTreInfoMap& aInfos)
{
    const TRE::FieldInfos& infos = *aTre.GetAllTreFieldInfos();
    if (infos.empty()) {
        return false;
    }
    aInfos[aTre.GetTag()] = infos;
    return true;
}

bool ImageSupportDataNITFUtil::CloneTreFieldInfos(const NITFTreInfoMap& aFrom, const char* aTag, NITFTreInfoMap& aTo)
{
    const auto infos = aFrom.find(std::string(Detail::Trimmed(aTag)));
    if (infos == aFrom.end()) {
        return false;
    }
    aTo[infos->first] = infos->second;
    return true;
}

}  // namespace ORMO::SensorModel::CSM
