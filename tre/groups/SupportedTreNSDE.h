#pragma once

#include "../../foundation/CSMUtilWindows.h"
#include "../SupportedTRE.h"

#include <array>

namespace ORMO::SensorModel::CSM {

/// The tags of special TRE providers: up to two, brought by the companion libraries of a classified system. A provider
/// is an object of its library that implements SupportedTRE; without one this group knows no tag.
class ORMO_CSM_API SupportedTreNSDE : public SupportedTRE
{
public:
    static const SupportedTreNSDE& Instance();
    /// The tags that the providers list.
    static const std::vector<const char*>& GetSupportedTREs();

    /// Asks the first provider and then the second; a provider that throws counts as no.
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

private:
    SupportedTreNSDE();

    /// A provider and the library that it comes from, which both live until the process ends.
    struct Provider
    {
        Util::CSMUtilWindows::ModuleHandle library = nullptr;
        const SupportedTRE* group = nullptr;
    };

    static Provider ProviderFrom(Util::CSMUtilWindows::ModuleHandle aLibrary) noexcept;
    const Provider* ProviderOf(SupportedTreFactory::Enum aGroup) const noexcept;

    std::array<Provider, 2> m_providers;
    std::vector<const char*> m_tags;
    std::vector<TRE::Type> m_types;
    TypeMap m_typeMap;
};

}  // namespace ORMO::SensorModel::CSM
