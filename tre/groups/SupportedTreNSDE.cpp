#include "tre/groups/SupportedTreNSDE.h"

#include "isd/SpecialOrmoDLLsLoader.h"
#include "isd/SpecialOrmoISDsDLL.h"

namespace ORMO::SensorModel::CSM {

namespace {

using GetSupportedSpecialNitfTREsFunction = const SupportedTRE*();

constexpr std::array<SupportedTreFactory::Enum, 2> CODES{SupportedTreFactory::NSDE, SupportedTreFactory::NSDESecond};

const SupportedTRE* ProviderFrom(Util::CSMUtilWindows::ModuleHandle aLibrary) noexcept
{
    auto* const get = SpecialOrmoISDsDLL::FindFunction<GetSupportedSpecialNitfTREsFunction>(
        aLibrary, SpecialOrmoISDsDLL::GET_SUPPORTED_SPECIAL_NITF_TRES);
    if (get == nullptr) {
        return nullptr;
    }
    try {
        return get();
    } catch (...) {  // a provider that throws counts as none
        return nullptr;
    }
}

/// What a provider answers, or `aOtherwise` when it throws.
template<typename Answer, typename Ask>
Answer Asked(Answer aOtherwise, Ask aAsk) noexcept
{
    try {
        return aAsk();
    } catch (...) {
        return aOtherwise;
    }
}

}  // namespace

const SupportedTreNSDE& SupportedTreNSDE::Instance()
{
    static const SupportedTreNSDE group;
    return group;
}

const std::vector<const char*>& SupportedTreNSDE::GetSupportedTREs()
{
    return Instance().GetAllSupportedTREs();
}

SupportedTreNSDE::SupportedTreNSDE()
    : m_providers{ProviderFrom(SpecialOrmoDLLsLoader::GetRedOrmoISDsDLL()),
                  ProviderFrom(SpecialOrmoDLLsLoader::GetGoldOrmoISDsDLL())}
{
    for (const SupportedTRE* const provider : m_providers) {
        if (provider == nullptr) {
            continue;
        }
        try {
            for (const auto& [tag, type] : provider->GetTRETypeMap()) {
                if (m_typeMap.emplace(tag, type).second) {
                    m_tags.push_back(tag);
                    m_types.push_back(type);
                }
            }
        } catch (...) {  // its tags stay unlisted; it is still asked for each tag
            continue;
        }
    }
}

const SupportedTRE* SupportedTreNSDE::ProviderOf(SupportedTreFactory::Enum aGroup) const noexcept
{
    for (std::size_t i = 0; i != CODES.size(); ++i) {
        if (CODES[i] == aGroup) {
            return m_providers[i];
        }
    }
    return nullptr;
}

bool SupportedTreNSDE::AbleToCreateTRE(const char* aTag, SupportedTreFactory::Enum* aGroup) const
{
    for (std::size_t i = 0; i != CODES.size(); ++i) {
        const SupportedTRE* const provider = m_providers[i];
        if (provider != nullptr && Asked(false, [&] { return provider->AbleToCreateTRE(aTag, nullptr); })) {
            if (aGroup != nullptr) {
                *aGroup = CODES[i];
            }
            return true;
        }
    }
    if (aGroup != nullptr) {
        *aGroup = SupportedTreFactory::UNKNOWN;
    }
    return false;
}

bool SupportedTreNSDE::CloneTRE(const TRE& aSource, TRE** aCopy) const
{
    const SupportedTRE* const provider = ProviderOf(aSource.GetSupportedTREFactoryCode());
    return provider != nullptr && provider->CloneTRE(aSource, aCopy);
}

bool SupportedTreNSDE::CreateTRE(const char* aTag, const char* aData, TRE** aTre, char** aErrors, std::size_t aLength,
                                 bool aValidate, Util::CSMCnst::ByteOrder aByteOrder,
                                 SupportedTreFactory::Enum aGroup) const
{
    const SupportedTRE* const provider = ProviderOf(aGroup);
    return provider != nullptr &&
           provider->CreateTRE(aTag, aData, aTre, aErrors, aLength, aValidate, aByteOrder, aGroup);
}

bool SupportedTreNSDE::Destroy(TRE** aTre) const
{
    if (aTre == nullptr || *aTre == nullptr) {
        return false;
    }
    const SupportedTRE* const provider = ProviderOf((*aTre)->GetSupportedTREFactoryCode());
    return provider != nullptr && provider->Destroy(aTre);
}

const std::vector<const char*>& SupportedTreNSDE::GetAllSupportedTREs() const
{
    return m_tags;
}

TRE::Type SupportedTreNSDE::GetTREType(const char* aTag) const
{
    for (const SupportedTRE* const provider : m_providers) {
        if (provider != nullptr) {
            const TRE::Type type = Asked(TRE::TRE_TYPE_UNKNOWN, [&] { return provider->GetTREType(aTag); });
            if (type != TRE::TRE_TYPE_UNKNOWN) {
                return type;
            }
        }
    }
    return TRE::TRE_TYPE_UNKNOWN;
}

const SupportedTRE::TypeMap& SupportedTreNSDE::GetTRETypeMap() const
{
    return m_typeMap;
}

void SupportedTreNSDE::GetTRETypes(const char**& aTags, const TRE::Type*& aTypes, std::size_t& aCount) const
{
    aTags = const_cast<const char**>(m_tags.data());
    aTypes = m_types.data();
    aCount = m_tags.size();
}

}  // namespace ORMO::SensorModel::CSM
