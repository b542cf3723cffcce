#pragma once

#include "../foundation/CSMCnst.h"
#include "../foundation/CSMUtilWindows.h"
#include "../foundation/Export.h"
#include "SupportedISD.h"

namespace ORMO::SensorModel::CSM {

class ImageSupportData;
class ImageSupportDataNITF;

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
    /// CreateISD: makes an ISD of the file, of a version that ISDType told. Leaves `*aOut` null when it cannot; may
    /// throw, and what it has left in `*aOut` is then released with DelISD of the same library. The two flags are those
    /// of ImageSupportDataFactory::Create.
    using CreateISDFunction = void(bool aAllSegments, bool aFlag2, const char* aPath, ImageSupportData** aOut,
                                   int aVersion, SupportedISD::Type aType);
    /// CreateIsdNITF: the same for a NITF file, with the arguments of ImageSupportDataNITFFactory::Create.
    using CreateIsdNITFFunction = void(const char* aPath, ImageSupportDataNITF** aOut, bool aImageSegmentsOnly,
                                       bool aFlag2, int aImageSegment, int aVersion);
    /// DelISD: releases an ISD of this library and nulls the pointer; leaves any other ISD as it is.
    using DelISDFunction = void(ImageSupportData** aIsd);
    /// ISDType: identifies a file; type and version are -1 when it is none that the library knows.
    using ISDTypeFunction = void(const char* aPath, SupportedISD::Type* aType, int* aVersion);
    /// IsSupportedISDFile: whether an ISD can be made of the file, and the name of its format, which stays the
    /// library's own; null when it cannot.
    using IsSupportedISDFileFunction = bool(const char* aPath, const char** aFormatName);

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
