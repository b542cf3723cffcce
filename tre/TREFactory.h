#pragma once

#include "../foundation/CSMCnst.h"
#include "../foundation/Export.h"
#include "TRE.h"
#include "TREStore.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM {

/// Cuts extension areas into TREs and makes, copies and destroys TREs; never instantiated. A malformed area never
/// fails its header: the TREs before the fault are kept and the rest is reported.
class ORMO_CSM_API TREFactory
{
public:
    /// Cuts a NUL-terminated area and adds its TREs to the store; answers how many. With `aSpecificOnly`, TREs without
    /// a typed form are reported and left out; otherwise they become generic TREs. With `aValidate`, a typed TRE must
    /// hold only values that its standard allows. Warnings are handed out as a new text that the caller frees with
    /// CSMUtilString::DeleteCString. Raises std::invalid_argument for a null area.
    static int ExtractTREs(const char* aArea, TREStore& aStore, bool aSpecificOnly, bool aValidate, char** aErrors,
                           Util::CSMCnst::ByteOrder aByteOrder = Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN);

    /// Makes one TRE from its data; the caller releases it with Destroy. The output is null unless a TRE was made.
    /// Raises std::invalid_argument for missing arguments, UnsupportedTREException for a tag without a typed form when
    /// `aSpecificOnly` is set, and ObjectConstructionException when not even a generic TRE can be made. What kept a TRE
    /// from being typed is handed out through `aErrors` as a new text.
    static void Create(const char* aTag, const char* aData, TRE::Type aType, TRE** aTre, bool aSpecificOnly,
                       bool aValidate, char** aErrors, std::size_t aLength,
                       Util::CSMCnst::ByteOrder aByteOrder = Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN);

    /// The same from a whole text of tag, length and data.
    static void Create(const char* aTreString, TRE::Type aType, TRE** aTre, bool aSpecificOnly, bool aValidate,
                       char** aErrors, Util::CSMCnst::ByteOrder aByteOrder = Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN);

    /// A deep copy; the caller releases it with Destroy. False, with null, when it cannot be made.
    static bool CloneTRE(const TRE& aSource, TRE** aCopy);

    /// Releases a TRE that this factory made and nulls the pointer.
    static void Destroy(TRE** aTre);

private:
    TREFactory();
};

}  // namespace ORMO::SensorModel::CSM
