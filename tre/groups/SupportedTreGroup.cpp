#include "tre/groups/SupportedTreGroup.h"

#include "fields/Number.h"
#include "foundation/CSMExceptions.h"
#include "foundation/detail/Ascii.h"
#include "foundation/detail/HandOut.h"
#include "tre/detail/TreMaker.h"
#include "tre/detail/TreParts.h"

#include <algorithm>
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
    const TRE::Parts& source = TRE::Parts::Of(aSource);
    if (source.layout == nullptr || source.group != m_code || source.maker != SupportedTreFactory::UNKNOWN) {
        return false;
    }
    *aCopy = Detail::TreMaker::Clone(aSource).release();
    return *aCopy != nullptr;
}

bool SupportedTreGroup::CreateTRE(const char* aTag, const char* aData, TRE** aTre, char** aErrors, std::size_t aLength,
                                  bool aValidate, Util::CSMCnst::ByteOrder aByteOrder, SupportedTreFactory::Enum) const
{
    if (aTre == nullptr) {
        return false;
    }
    *aTre = nullptr;
    if (aErrors != nullptr) {
        *aErrors = nullptr;
    }
    if (aData == nullptr && aLength != 0) {
        throw std::invalid_argument("ERROR: Invalid/NULL input argument(s).");
    }
    const std::string tag(Trimmed(aTag));
    const TreEntry* const entry = FindEntry(tag);
    if (entry == nullptr) {
        const std::string message =
            "ERROR: TRE \"" + tag + "\" does not belong to the " + m_description + " TRE Group.";
        throw UnsupportedTREException(message.c_str(), "SupportedTreGroup::CreateTRE");
    }
    if (!entry->IsTyped()) {
        return false;
    }
    Detail::TreFault fault;
    Detail::OwnedTre tre = Detail::TreMaker::Make(
        {entry, m_code, nullptr}, {tag.c_str(), {}, {aData, aLength}, entry->type, aByteOrder}, true, aValidate, fault);
    if (tre == nullptr) {
        if (fault.kind == Detail::TreFault::Kind::Values) {
            Detail::HandOutOrThrow(fault.text, aErrors);
        }
        fault.Throw(tag);
    }
    *aTre = tre.release();
    return true;
}

bool SupportedTreGroup::Destroy(TRE** aTre) const
{
    if (aTre == nullptr || *aTre == nullptr || TRE::Parts::Of(**aTre).group != m_code ||
        TRE::Parts::Of(**aTre).maker != SupportedTreFactory::UNKNOWN) {
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
