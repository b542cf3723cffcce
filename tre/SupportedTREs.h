#pragma once

#include "SupportedTRE.h"

#include <vector>

namespace ORMO::SensorModel::CSM {

class SupportedTreGroup;

/// The registry of all TRE groups: one instance, which asks the groups in a fixed order.
class ORMO_CSM_API SupportedTREs : public SupportedTRE
{
public:
    static const SupportedTREs& Instance();

    bool AbleToCreateTRE(const char* aTag, SupportedTreFactory::Enum* aGroup) const override;
    /// Through the group that made the source; exceptions of the group turn into false.
    bool CloneTRE(const TRE& aSource, TRE** aCopy) const override;
    /// `aGroup` is the code found by AbleToCreateTRE; false for a code without a group.
    bool CreateTRE(const char* aTag, const char* aData, TRE** aTre, char** aErrors, std::size_t aLength, bool aValidate,
                   Util::CSMCnst::ByteOrder aByteOrder,
                   SupportedTreFactory::Enum aGroup = SupportedTreFactory::UNKNOWN) const override;
    bool Destroy(TRE** aTre) const override;
    const std::vector<const char*>& GetAllSupportedTREs() const override;
    TRE::Type GetTREType(const char* aTag) const override;
    const TypeMap& GetTRETypeMap() const override;
    void GetTRETypes(const char**& aTags, const TRE::Type*& aTypes, std::size_t& aCount) const override;

    /// Controlled or registered, as the first group that knows the tag says; unknown when none does.
    static TRE::Type GetTreFieldType(const char* aTag);
    /// The description of the group that knows the tag, or "UNKNOWN".
    static const char* GetGroupDescription(const char* aTag);
    /// The groups with a fixed list of tags, in the order in which they are asked.
    static const std::vector<const SupportedTreGroup*>& GetGroups();

private:
    SupportedTREs();

    static const SupportedTRE* GroupOf(SupportedTreFactory::Enum aGroup);

    std::vector<const char*> m_tags;
    std::vector<TRE::Type> m_types;
    TypeMap m_typeMap;
};

}  // namespace ORMO::SensorModel::CSM
