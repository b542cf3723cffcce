#pragma once

#include "../foundation/CSMCnst.h"
#include "../foundation/CSMUtilWindows.h"
#include "../foundation/Export.h"
#include "SupportedISD.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM {

class ImageSupportData;
class ImageSupportDataNITF;
class SupportedTRE;

/// What a companion ISD library exports, and how the exports are found; never instantiated. All that the author of such
/// a library has to keep to stands here.
///
/// A companion exports all thirteen functions, under their plain names (extern "C"); one that lacks any is not used at
/// all. It is built with the same C++ runtime and linked with this library, whose classes it may use and derive from.
/// Any function may throw anything: a failure counts as "no answer" and goes no further. Functions may be called from
/// several threads at once. What a companion hands out stays its own unless the function says that it is new; what is
/// new is released through the same companion. The library stays loaded to the end of the process.
///
/// To have the compiler check an export against its signature, declare it so:
/// `extern "C" SpecialOrmoISDsDLL::DelISDFunction DelISD;`
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

    /// GetAcceptableImageCategories: the image categories (ICAT) that the library makes ISDs of, a new array of new
    /// texts for DeleteCStringArray.
    using GetAcceptableImageCategoriesFunction = void(char*** aCategories, std::size_t* aCount);
    /// CreateISD: makes an ISD of the file, of a version that ISDType told. Leaves `*aOut` null when it cannot; may
    /// throw, and what it has left in `*aOut` is then released with DelISD of the same library. The two flags are those
    /// of ImageSupportDataFactory::Create.
    using CreateISDFunction = void(bool aAllSegments, bool aFlag2, const char* aPath, ImageSupportData** aOut,
                                   int aVersion, SupportedISD::Type aType);
    /// CreateIsdNITF: the same for a NITF file, with the arguments of ImageSupportDataNITFFactory::Create.
    using CreateIsdNITFFunction = void(const char* aPath, ImageSupportDataNITF** aOut, bool aImageSegmentsOnly,
                                       bool aFlag2, int aImageSegment, int aVersion);
    /// DelCString: releases a new text of this library and nulls the pointer.
    using DelCStringFunction = void(char** aText);
    /// DeleteCStringArray: releases a new array of new texts of this library and nulls the pointer.
    using DeleteCStringArrayFunction = void(char*** aTexts, std::size_t aCount);
    /// DelISD: releases an ISD of this library and nulls the pointer; leaves any other ISD as it is.
    using DelISDFunction = void(ImageSupportData** aIsd);
    /// DelSupportedSpecialNitfTREs: releases a provider of this library and nulls the pointer. For hosts that ask for a
    /// provider by themselves; the one that the TRE factory has taken lives as long as the process.
    using DelSupportedSpecialNitfTREsFunction = void(const SupportedTRE** aProvider);
    /// GetAllSupportedTreCERETags: the tags that the library's provider makes TREs of, controlled and registered ones
    /// apart, as two new arrays of new texts for DeleteCStringArray.
    using GetAllSupportedTreCERETagsFunction = void(char*** aControlled, std::size_t* aControlledCount,
                                                    char*** aRegistered, std::size_t* aRegisteredCount);
    /// GetDefaultClassificationLevelString: the marking of a level; null for none.
    using GetDefaultClassificationLevelStringFunction = const char*(Util::CSMCnst::ClassType aLevel);
    /// GetSupportedSpecialNitfTREs: the library's provider of TREs, which is asked once per process; null when it has
    /// none. Error texts that its CreateTRE hands out are new and released with DelCString.
    using GetSupportedSpecialNitfTREsFunction = const SupportedTRE*();
    /// ISDType: identifies a file; type and version are -1 when it is none that the library knows.
    using ISDTypeFunction = void(const char* aPath, SupportedISD::Type* aType, int* aVersion);
    /// IsSupportedISDFile: whether an ISD can be made of the file, and the name of its format; null when it cannot.
    using IsSupportedISDFileFunction = bool(const char* aPath, const char** aFormatName);
    /// IsValidSecurityClassificationMarking: whether a text is a marking of the system that the library serves.
    using IsValidSecurityClassificationMarkingFunction = bool(const char* aMarking);

    /// The first of the names above that the library does not export; null when it exports all.
    static const char* FirstMissingExport(Util::CSMUtilWindows::ModuleHandle aLibrary) noexcept;

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
