#include "tre/groups/SupportedTreGroup.h"

#include "fields/Number.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "tre/detail/TreMaker.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>

namespace ORMO::SensorModel::CSM {

using Detail::TreEntry;
using Detail::Trimmed;

SupportedTRE::~SupportedTRE() = default;

SupportedTreGroup::SupportedTreGroup(SupportedTreFactory::Enum aCode, const char* aDescription,
                                     const TreEntry* aEntries, std::size_t aCount)
    : m_code(aCode), m_description(aDescription), m_entries(aEntries), m_count(aCount)
{
    for (std::size_t i = 0; i != aCount; ++i) {
        if (aEntries[i].listed) {
            m_typeMap[aEntries[i].tag] = aEntries[i].type;
            m_tags.push_back(aEntries[i].tag);
            m_types.push_back(aEntries[i].type);
        }
    }
}

const TreEntry* SupportedTreGroup::FindEntry(std::string_view aTag) const noexcept
{
    const TreEntry* const last = m_entries + m_count;
    const TreEntry* const entry = std::lower_bound(
        m_entries, last, aTag, [](const TreEntry& aEntry, std::string_view aWanted) { return aEntry.tag < aWanted; });
    return entry != last && aTag == entry->tag ? entry : nullptr;
}

const TreEntry* SupportedTreGroup::GetEntries(std::size_t& aCount) const noexcept
{
    aCount = m_count;
    return m_entries;
}

bool SupportedTreGroup::AbleToCreateTRE(const char* aTag, SupportedTreFactory::Enum* aGroup) const
{
    const bool able = FindEntry(Trimmed(aTag)) != nullptr;
    if (aGroup != nullptr) {
        *aGroup = able ? m_code : SupportedTreFactory::UNKNOWN;
    }
    return able;
}

bool SupportedTreGroup::CloneTRE(const TRE& aSource, TRE** aCopy) const
{
    if (aCopy == nullptr) {
        return false;
    }
    *aCopy = nullptr;
    const TreEntry* const entry = FindEntry(aSource.GetTag());
    if (entry == nullptr || !entry->IsTyped() || aSource.GetSupportedTREFactoryCode() != m_code) {
        return false;
    }
    *aCopy = entry->clone(aSource);
    return true;
}

bool SupportedTreGroup::CreateTRE(const char* aTag, const char* aData, TRE** aTre, char** aErrors, std::size_t aLength,
                                  bool aValidate, Util::CSMCnst::ByteOrder aByteOrder, SupportedTreFactory::Enum) const
{
    if (aTre == nullptr) {
        return false;
    }
    *aTre = nullptr;
    if (aData == nullptr && aLength != 0) {
        throw std::invalid_argument("ERROR: Invalid/NULL input argument(s).");
    }
    const std::string_view tag = Trimmed(aTag);
    const TreEntry* const entry = FindEntry(tag);
    if (entry == nullptr) {
        const std::string message =
            "ERROR: TRE \"" + std::string(tag) + "\" does not belong to the " + m_description + " TRE Group.";
        throw UnsupportedTREException(message.c_str(), "SupportedTreGroup::CreateTRE");
    }
    if (!entry->IsTyped()) {
        return false;
    }
    std::unique_ptr<TRE> tre(entry->make(aData, aLength, entry->type, aByteOrder));
    Detail::TreMaker::SetIdentity(*tre, entry->tag, entry->code, m_code);
    if (aValidate) {
        std::string problems;
        const int count = tre->ValidateFieldValues(problems);
        if (count > 0) {
            if (aErrors != nullptr) {
                Util::CSMUtilString::Copy(problems.c_str(), aErrors);
            }
            const std::string message =
                "ERROR: The field value(s) of " + std::to_string(count) + " field(s) is/are invalid.";
            throw InitializationException(message.c_str(),
                                          ("Tre" + std::string(tag) + "::Init" + std::string(tag)).c_str());
        }
    }
    *aTre = tre.release();
    return true;
}

bool SupportedTreGroup::Destroy(TRE** aTre) const
{
    if (aTre == nullptr || *aTre == nullptr || (*aTre)->GetSupportedTREFactoryCode() != m_code) {
        return false;
    }
    delete *aTre;
    *aTre = nullptr;
    return true;
}

const std::vector<const char*>& SupportedTreGroup::GetAllSupportedTREs() const
{
    return m_tags;
}

TRE::Type SupportedTreGroup::GetTREType(const char* aTag) const
{
    const TreEntry* const entry = FindEntry(Trimmed(aTag));
    return entry == nullptr ? TRE::TRE_TYPE_UNKNOWN : entry->type;
}

const SupportedTRE::TypeMap& SupportedTreGroup::GetTRETypeMap() const
{
    return m_typeMap;
}

void SupportedTreGroup::GetTRETypes(const char**& aTags, const TRE::Type*& aTypes, std::size_t& aCount) const
{
    aTags = const_cast<const char**>(m_tags.data());
    aTypes = m_types.data();
    aCount = m_tags.size();
}

}  // namespace ORMO::SensorModel::CSM
