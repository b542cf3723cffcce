#pragma once

#include "../SupportedTRE.h"

#include <string_view>

namespace ORMO::SensorModel::CSM {

/// A group with a fixed list of tags: everything that the groups have in common. A group is its table of entries.
class ORMO_CSM_API SupportedTreGroup : public SupportedTRE
{
public:
    /// One tag of a group: how its TREs are made is known inside the library only.
    struct Entry;

    bool AbleToCreateTRE(const char* aTag, SupportedTreFactory::Enum* aGroup) const override;
    bool CloneTRE(const TRE& aSource, TRE** aCopy) const override;
    bool CreateTRE(const char* aTag, const char* aData, TRE** aTre, char** aErrors, std::size_t aLength, bool aValidate,
                   Util::CSMCnst::ByteOrder aByteOrder,
                   SupportedTreFactory::Enum aGroup = SupportedTreFactory::UNKNOWN) const override;
    bool Destroy(TRE** aTre) const override;
    const std::vector<const char*>& GetAllSupportedTREs() const override;
    TRE::Type GetTREType(const char* aTag) const override;
    const TypeMap& GetTRETypeMap() const override;
    void GetTRETypes(const char**& aTags, const TRE::Type*& aTypes, std::size_t& aCount) const override;

    SupportedTreFactory::Enum GetCode() const noexcept { return m_code; }
    /// The group's description as messages quote it.
    const char* GetDescription() const noexcept { return m_description; }
    /// The entry of a tag without trailing blanks, or null.
    const Entry* FindEntry(std::string_view aTag) const noexcept;
    const Entry* GetEntries(std::size_t& aCount) const noexcept;

protected:
    /// `aEntries` live as long as the process and stand in the order of their tags.
    SupportedTreGroup(SupportedTreFactory::Enum aCode, const char* aDescription, const Entry* aEntries,
                      std::size_t aCount);

private:
    SupportedTreFactory::Enum m_code;
    const char* m_description;
    const Entry* m_entries;
    std::size_t m_count;
    std::vector<const char*> m_tags;
    std::vector<TRE::Type> m_types;  // parallel to m_tags
    TypeMap m_typeMap;
};

}  // namespace ORMO::SensorModel::CSM
