#include "tre/groups/SupportedTreNSDE.h"

#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "isd/SpecialOrmoDLLsLoader.h"
#include "isd/SpecialOrmoISDsDLL.h"
#include "tre/detail/TreMaker.h"
#include "tre/detail/TreParts.h"

#include <exception>
#include <new>
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

/// Raises what a provider threw: exceptions of other kinds than callers know as one of this library.
[[noreturn]] void ThrowKnown(const std::exception_ptr& aThrown)
{
    constexpr const char* SOURCE = "SupportedTreNSDE::CreateTRE";
    try {
        std::rethrow_exception(aThrown);
    } catch (const CSMException&) {
        throw;
    } catch (const std::invalid_argument&) {
        throw;
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& exception) {
        throw InitializationException(exception.what(), SOURCE);
    } catch (...) {
        throw InitializationException("ERROR: A special TRE provider threw an unknown exception.", SOURCE);
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
    const auto maker = TRE::Parts::Of(aSource).maker;
    const Provider* const provider = ProviderOf(maker);
    if (aCopy == nullptr) {
        return false;
    }
    *aCopy = nullptr;
    if (provider == nullptr || !Asked(false, [&] { return provider->group->CloneTRE(aSource, aCopy); }) ||
        *aCopy == nullptr) {
        return false;
    }
    Detail::TreMaker::SetMaker(**aCopy, maker);
    return true;
}

bool SupportedTreNSDE::CreateTRE(const char* aTag, const char* aData, TRE** aTre, char** aErrors, std::size_t aLength,
                                 bool aValidate, Util::CSMCnst::ByteOrder aByteOrder,
                                 SupportedTreFactory::Enum aGroup) const
{
    const Provider* const provider = ProviderOf(aGroup);
    if (provider == nullptr || aTre == nullptr) {
        return false;
    }
    *aTre = nullptr;
    if (aData == nullptr && aLength != 0) {
        throw std::invalid_argument("ERROR: Invalid/NULL input argument(s).");
    }
    bool isMade = false;
    std::exception_ptr thrown;
    try {
        isMade = provider->group->CreateTRE(aTag, aData, aTre, aErrors, aLength, aValidate, aByteOrder, aGroup);
    } catch (...) {
        thrown = std::current_exception();
    }
    TakeOver(aErrors, provider->library);
    if (isMade && *aTre != nullptr) {
        Detail::TreMaker::SetMaker(**aTre, aGroup);
        return true;
    }
    if (*aTre != nullptr) {
        Asked(false, [&] { return provider->group->Destroy(aTre); });
        *aTre = nullptr;
    }
    if (thrown != nullptr) {
        ThrowKnown(thrown);
    }
    return false;
}

bool SupportedTreNSDE::Destroy(TRE** aTre) const
{
    if (aTre == nullptr || *aTre == nullptr) {
        return false;
    }
    const Provider* const provider = ProviderOf(TRE::Parts::Of(**aTre).maker);
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
