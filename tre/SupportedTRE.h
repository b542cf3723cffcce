#pragma once

#include "../foundation/CSMCnst.h"
#include "../foundation/Export.h"
#include "SupportedTreFactory.h"
#include "TRE.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// What the registry of TRE groups and every group can be asked. Also the interface of special TRE providers that a
/// companion library brings.
class ORMO_CSM_API SupportedTRE
{
public:
    using TypeMap = std::map<const char*, TRE::Type, CharStrCompare>;

    virtual ~SupportedTRE();
    /// True when the tag is known; writes the code of the group that makes it, or -1.
    virtual bool AbleToCreateTRE(const char* aTag, SupportedTreFactory::Enum* aGroup) const = 0;
    /// A deep copy of a typed TRE; false, with a null copy, when this is not the source's group.
    virtual bool CloneTRE(const TRE& aSource, TRE** aCopy) const = 0;
    /// Makes a typed TRE from its data. False, with a null TRE, for a listed tag that has no typed class. Raises
    /// UnsupportedTREException for a tag outside the list, std::invalid_argument for null data with a length, and what
    /// the TRE's constructor raises. With `aValidate`
    /// values that the standard does not allow raise InitializationException, and `aErrors` receives a new text with a
    /// line for each. The group code is only looked at by the registry.
    virtual bool CreateTRE(const char* aTag, const char* aData, TRE** aTre, char** aErrors, std::size_t aLength,
                           bool aValidate, Util::CSMCnst::ByteOrder aByteOrder,
                           SupportedTreFactory::Enum aGroup = SupportedTreFactory::UNKNOWN) const = 0;
    /// Releases a TRE that this group made and nulls the pointer; false when it did not make it.
    virtual bool Destroy(TRE** aTre) const = 0;
    virtual const std::vector<const char*>& GetAllSupportedTREs() const = 0;
    /// Controlled or registered; unknown for a tag outside the list.
    virtual TRE::Type GetTREType(const char* aTag) const = 0;
    virtual const TypeMap& GetTRETypeMap() const = 0;
    /// The tags and their types as parallel arrays that belong to the group.
    virtual void GetTRETypes(const char**& aTags, const TRE::Type*& aTypes, std::size_t& aCount) const = 0;
};

}  // namespace ORMO::SensorModel::CSM
