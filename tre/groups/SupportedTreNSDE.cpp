#include "tre/groups/SupportedTreNSDE.h"

#include "foundation/CSMException.h"
#include "foundation/CSMUtilString.h"
#include "isd/SpecialOrmoDLLsLoader.h"
#include "isd/SpecialOrmoISDsDLL.h"
#include "tre/detail/TreMaker.h"

#include <exception>
#include <stdexcept>

namespace ORMO::SensorModel::CSM {

namespace {

using Dll = SpecialOrmoISDsDLL;

constexpr std::array<SupportedTreFactory::Enum, 2> CODES{SupportedTreFactory::NSDE, SupportedTreFactory::NSDESecond};

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

/// Hands a text of a companion out as one of this library, which callers release, and gives the companion's back.
void TakeOver(char** aText, Util::CSMUtilWindows::ModuleHandle aLibrary)
{
    if (aText == nullptr || *aText == nullptr) {
        return;
    }
    char* theirs = *aText;
    *aText = nullptr;
    Util::CSMUtilString::Copy(theirs, aText);
    if (auto* const release = Dll::FindFunction<Dll::DelCStringFunction>(aLibrary, Dll::DEL_CSTRING)) {
        Asked(false, [&] { return release(&theirs), true; });
    }
}

/// Notes on a TRE from which provider it is: that one copies and destroys it.
void Claim(TRE& aTre, const char* aTag, SupportedTreFactory::Enum aGroup)
{
    Detail::TreMaker::SetIdentity(aTre, aTag, aTre.GetUniqueExtensionTypeID(), aGroup);
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

SupportedTreNSDE::Provider SupportedTreNSDE::ProviderFrom(Util::CSMUtilWindows::ModuleHandle aLibrary) noexcept
{
    auto* const get =
        Dll::FindFunction<Dll::GetSupportedSpecialNitfTREsFunction>(aLibrary, Dll::GET_SUPPORTED_SPECIAL_NITF_TRES);
    // A provider that throws counts as none.
    return {aLibrary, get == nullptr ? nullptr : Asked<const SupportedTRE*>(nullptr, get)};
}

SupportedTreNSDE::SupportedTreNSDE()
    : m_providers{ProviderFrom(SpecialOrmoDLLsLoader::GetRedOrmoISDsDLL()),
                  ProviderFrom(SpecialOrmoDLLsLoader::GetGoldOrmoISDsDLL())}
{
    for (const Provider& provider : m_providers) {
        if (provider.group == nullptr) {
            continue;
        }
        try {
            for (const auto& [tag, type] : provider.group->GetTRETypeMap()) {
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

const SupportedTreNSDE::Provider* SupportedTreNSDE::ProviderOf(SupportedTreFactory::Enum aGroup) const noexcept
{
    for (std::size_t i = 0; i != CODES.size(); ++i) {
        if (CODES[i] == aGroup && m_providers[i].group != nullptr) {
            return &m_providers[i];
        }
    }
    return nullptr;
}

bool SupportedTreNSDE::AbleToCreateTRE(const char* aTag, SupportedTreFactory::Enum* aGroup) const
{
    for (std::size_t i = 0; i != CODES.size(); ++i) {
        const SupportedTRE* const provider = m_providers[i].group;
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
    const Provider* const provider = ProviderOf(aSource.GetSupportedTREFactoryCode());
    if (provider == nullptr || !Asked(false, [&] { return provider->group->CloneTRE(aSource, aCopy); }) ||
        *aCopy == nullptr) {
        return false;
    }
    Claim(**aCopy, aSource.GetTag(), aSource.GetSupportedTREFactoryCode());
    return true;
}

bool SupportedTreNSDE::CreateTRE(const char* aTag, const char* aData, TRE** aTre, char** aErrors, std::size_t aLength,
                                 bool aValidate, Util::CSMCnst::ByteOrder aByteOrder,
                                 SupportedTreFactory::Enum aGroup) const
{
    const Provider* const provider = ProviderOf(aGroup);
    if (provider == nullptr) {
        return false;
    }
    bool isMade = false;
    std::exception_ptr known;
    try {
        isMade = provider->group->CreateTRE(aTag, aData, aTre, aErrors, aLength, aValidate, aByteOrder, aGroup);
    } catch (const CSMException&) {
        known = std::current_exception();
    } catch (const std::invalid_argument&) {
        known = std::current_exception();
    } catch (...) {  // what no caller knows how to take means that the TRE stays generic
        isMade = false;
    }
    TakeOver(aErrors, provider->library);
    if (isMade && *aTre != nullptr) {
        Claim(**aTre, aTag, aGroup);
        return true;
    }
    if (*aTre != nullptr) {
        Asked(false, [&] { return provider->group->Destroy(aTre); });
        *aTre = nullptr;
    }
    if (known != nullptr) {
        std::rethrow_exception(known);
    }
    return false;
}

bool SupportedTreNSDE::Destroy(TRE** aTre) const
{
    if (aTre == nullptr || *aTre == nullptr) {
        return false;
    }
    const Provider* const provider = ProviderOf((*aTre)->GetSupportedTREFactoryCode());
    return provider != nullptr && Asked(false, [&] { return provider->group->Destroy(aTre); });
}

const std::vector<const char*>& SupportedTreNSDE::GetAllSupportedTREs() const
{
    return m_tags;
}

TRE::Type SupportedTreNSDE::GetTREType(const char* aTag) const
{
    for (const Provider& provider : m_providers) {
        if (provider.group != nullptr) {
            const TRE::Type type = Asked(TRE::TRE_TYPE_UNKNOWN, [&] { return provider.group->GetTREType(aTag); });
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
