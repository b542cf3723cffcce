#pragma once

#include "foundation/CSMCnst.h"
#include "foundation/CSMUtilWindows.h"
#include "foundation/Export.h"

namespace ORMO::SensorModel::CSM {

/// What a companion ISD library exports, under C names, and how the exports are found; never instantiated.
class ORMO_CSM_API SpecialOrmoISDsDLL
{
public:
    static constexpr const char* GET_ACCEPTABLE_IMAGE_CATEGORIES = "GetAcceptableImageCategories";
    static constexpr const char* CREATE_ISD = "CreateISD";
    static constexpr const char* CREATE_ISD_NITF = "CreateIsdNITF";
    static constexpr const char* DEL_CSTRING = "DelCString";
    static constexpr const char* DELETE_CSTRING_ARRAY = "DeleteCStringArray";
    static constexpr const char* DEL_ISD = "DelISD";
    static constexpr const char* DEL_SUPPORTED_SPECIAL_NITF_TRES = "DelSupportedSpecialNitfTREs";
    static constexpr const char* GET_ALL_SUPPORTED_TRE_CE_RE_TAGS = "GetAllSupportedTreCERETags";
    static constexpr const char* GET_DEFAULT_CLASSIFICATION_LEVEL_STRING = "GetDefaultClassificationLevelString";
    static constexpr const char* GET_SUPPORTED_SPECIAL_NITF_TRES = "GetSupportedSpecialNitfTREs";
    static constexpr const char* ISD_TYPE = "ISDType";
    static constexpr const char* IS_SUPPORTED_ISD_FILE = "IsSupportedISDFile";
    static constexpr const char* IS_VALID_SECURITY_CLASSIFICATION_MARKING = "IsValidSecurityClassificationMarking";

    /// GetDefaultClassificationLevelString of a companion: the text stays its own, and may be null.
    using GetDefaultClassificationLevelStringFunction = const char*(Util::CSMCnst::ClassType);

    /// True when the library exports all of the above; a library that does not is no ISD library.
    static bool ExportsAll(Util::CSMUtilWindows::ModuleHandle aLibrary) noexcept;

    /// The address of an exported function, null when it is not exported or an argument is null.
    static void* FindExport(Util::CSMUtilWindows::ModuleHandle aLibrary, const char* aName) noexcept;

    /// The same as a function of the given type, which the caller vouches for.
    template<typename Function>
    static Function* FindFunction(Util::CSMUtilWindows::ModuleHandle aLibrary, const char* aName) noexcept
    {
        return reinterpret_cast<Function*>(FindExport(aLibrary, aName));
    }

private:
    SpecialOrmoISDsDLL();
};

}  // namespace ORMO::SensorModel::CSM
