#include "tre/SupportedTREs.h"

#include "fields/Number.h"
#include "foundation/detail/Ascii.h"
#include "nitf/NITFCnst.h"
#include "tre/detail/TreMaker.h"
#include "tre/detail/TreParts.h"
#include "tre/groups/SupportedTreGroups.h"
#include "tre/groups/SupportedTreNSDE.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace ORMO::SensorModel::CSM {

namespace {

/// A group, the special providers included, and the code by which it is found.
struct GroupRow
{
    SupportedTreFactory::Enum code;
    const SupportedTRE& (*instance)();
};

template<typename Group>
const SupportedTRE& InstanceOf()
{
    return Group::Instance();
}

// In the order in which they are asked.
constexpr GroupRow GROUPS[] = {
    {SupportedTreFactory::ASDE, &InstanceOf<SupportedTreASDE>},
    {SupportedTreFactory::CommercialSDE, &InstanceOf<SupportedTreCommercialSDE>},
    {SupportedTreFactory::DPPDB, &InstanceOf<SupportedTreDPPDB>},
    {SupportedTreFactory::ESD, &InstanceOf<SupportedTreESD>},
    {SupportedTreFactory::GeoSDE, &InstanceOf<SupportedTreGeoSDE>},
    {SupportedTreFactory::MISC, &InstanceOf<SupportedTreMISC>},
    {SupportedTreFactory::NSDE, &InstanceOf<SupportedTreNSDE>},
    {SupportedTreFactory::PIAE, &InstanceOf<SupportedTrePIAE>},
    {SupportedTreFactory::ResearchSDE, &InstanceOf<SupportedTreResearchSDE>},
    {SupportedTreFactory::RPF, &InstanceOf<SupportedTreRPF>},
    {SupportedTreFactory::RSM, &InstanceOf<SupportedTreRSM>},
    {SupportedTreFactory::Public, &InstanceOf<SupportedTrePublic>},
};

/// A tag of the groups with a fixed list.
struct ListedTag
{
    std::string_view tag;
    const SupportedTreGroup* group;
    const Detail::TreEntry* entry;
    bool special;  ///< whether the special providers are asked before the group
};

/// The tags of all groups in order of the tags.
const std::vector<ListedTag>& AllTags()
{
    static const std::vector<ListedTag> tags = [] {
        std::vector<ListedTag> found;
        bool special = false;
        for (const GroupRow& row : GROUPS) {
            const auto* const group = dynamic_cast<const SupportedTreGroup*>(&row.instance());
            if (group == nullptr) {
                special = true;
                continue;
            }
            std::size_t count = 0;
            const Detail::TreEntry* const entries = group->GetEntries(count);
            for (std::size_t i = 0; i != count; ++i) {
                found.push_back({entries[i].tag, group, &entries[i], special});
            }
        }
        std::stable_sort(found.begin(), found.end(),
                         [](const ListedTag& aLeft, const ListedTag& aRight) { return aLeft.tag < aRight.tag; });
        return found;
    }();
    return tags;
}

/// The tag as the first group with a fixed list has it, or null.
const ListedTag* FindListed(const char* aTag)
{
    const std::string_view tag = Detail::Trimmed(aTag);
    const std::vector<ListedTag>& tags = AllTags();
    const auto it =
        std::lower_bound(tags.begin(), tags.end(), tag,
                         [](const ListedTag& aListed, std::string_view aWanted) { return aListed.tag < aWanted; });
    return it != tags.end() && it->tag == tag ? &*it : nullptr;
}

/// The group that releases and copies a TRE: who made the object, whatever was assigned to it.
SupportedTreFactory::Enum MakerOf(const TRE& aTre) noexcept
{
    const TRE::Parts& parts = TRE::Parts::Of(aTre);
    return parts.maker == SupportedTreFactory::UNKNOWN ? parts.group : parts.maker;
}

/// The first group that knows the tag, or null.
const SupportedTRE* GroupThatKnows(const char* aTag)
{
    const ListedTag* const listed = FindListed(aTag);
    const SupportedTreNSDE& special = SupportedTreNSDE::Instance();
    if ((listed == nullptr || listed->special) && special.AbleToCreateTRE(aTag, nullptr)) {
        return &special;
    }
    return listed == nullptr ? nullptr : listed->group;
}

}  // namespace

Detail::KnownTag Detail::FindKnown(const char* aTag)
{
    KnownTag known;
    const ListedTag* const listed = FindListed(aTag);
    if (listed != nullptr) {
        known.entry = listed->entry;
        known.group = listed->group->GetCode();
    }
    const SupportedTreNSDE& special = SupportedTreNSDE::Instance();
    SupportedTreFactory::Enum code = SupportedTreFactory::UNKNOWN;
    if ((listed == nullptr || listed->special) && special.AbleToCreateTRE(aTag, &code)) {
        known.special = &special;
        known.group = code;
    }
    return known;
}

const SupportedTREs& SupportedTREs::Instance()
{
    static const SupportedTREs registry;
    return registry;
}

SupportedTREs::SupportedTREs()
{
    for (const GroupRow& row : GROUPS) {
        const SupportedTRE& group = row.instance();
        m_tags.insert(m_tags.end(), group.GetAllSupportedTREs().begin(), group.GetAllSupportedTREs().end());
        m_typeMap.insert(group.GetTRETypeMap().begin(), group.GetTRETypeMap().end());
    }
    for (const char* const tag : m_tags) {
        m_types.push_back(m_typeMap.at(tag));
    }
}

const std::vector<const SupportedTreGroup*>& SupportedTREs::GetGroups()
{
    static const std::vector<const SupportedTreGroup*> groups = [] {
        std::vector<const SupportedTreGroup*> found;
        for (const GroupRow& row : GROUPS) {
            if (const auto* const listed = dynamic_cast<const SupportedTreGroup*>(&row.instance()); listed != nullptr) {
                found.push_back(listed);
            }
        }
        return found;
    }();
    return groups;
}

const SupportedTRE* SupportedTREs::GroupOf(SupportedTreFactory::Enum aGroup)
{
    // Both codes of the special providers lead to the one group that asks them.
    const auto code = aGroup == SupportedTreFactory::NSDESecond ? SupportedTreFactory::NSDE : aGroup;
    const auto* const row =
        std::find_if(std::begin(GROUPS), std::end(GROUPS), [code](const GroupRow& aRow) { return aRow.code == code; });
    return row == std::end(GROUPS) ? nullptr : &row->instance();
}

bool SupportedTREs::AbleToCreateTRE(const char* aTag, SupportedTreFactory::Enum* aGroup) const
{
    const SupportedTRE* const group = GroupThatKnows(aTag);
    if (group != nullptr) {
        return group->AbleToCreateTRE(aTag, aGroup);
    }
    if (aGroup != nullptr) {
        *aGroup = SupportedTreFactory::UNKNOWN;
    }
    return false;
}

bool SupportedTREs::CloneTRE(const TRE& aSource, TRE** aCopy) const
{
    const SupportedTRE* const group = GroupOf(MakerOf(aSource));
    if (group == nullptr || aCopy == nullptr) {
        return false;
    }
    try {
        return group->CloneTRE(aSource, aCopy);
    } catch (...) {  // a special provider may throw anything; the caller learns that there is no copy
        *aCopy = nullptr;
        return false;
    }
}

bool SupportedTREs::CreateTRE(const char* aTag, const char* aData, TRE** aTre, char** aErrors, std::size_t aLength,
                              bool aValidate, Util::CSMCnst::ByteOrder aByteOrder,
                              SupportedTreFactory::Enum aGroup) const
{
    const SupportedTRE* const group = GroupOf(aGroup);
    return group != nullptr && aTre != nullptr &&
           group->CreateTRE(aTag, aData, aTre, aErrors, aLength, aValidate, aByteOrder, aGroup);
}

bool SupportedTREs::Destroy(TRE** aTre) const
{
    if (aTre == nullptr || *aTre == nullptr) {
        return false;
    }
    const SupportedTRE* const group = GroupOf(MakerOf(**aTre));
    return group != nullptr && group->Destroy(aTre);
}

const std::vector<const char*>& SupportedTREs::GetAllSupportedTREs() const
{
    return m_tags;
}

TRE::Type SupportedTREs::GetTREType(const char* aTag) const
{
    return GetTreFieldType(aTag);
}

const SupportedTRE::TypeMap& SupportedTREs::GetTRETypeMap() const
{
    return m_typeMap;
}

void SupportedTREs::GetTRETypes(const char**& aTags, const TRE::Type*& aTypes, std::size_t& aCount) const
{
    aTags = const_cast<const char**>(m_tags.data());
    aTypes = m_types.data();
    aCount = m_tags.size();
}

TRE::Type SupportedTREs::GetTreFieldType(const char* aTag)
{
    const SupportedTRE* const group = GroupThatKnows(aTag);
    return group == nullptr ? TRE::TRE_TYPE_UNKNOWN : group->GetTREType(aTag);
}

const char* SupportedTREs::GetGroupDescription(const char* aTag)
{
    const ListedTag* const listed = FindListed(aTag);
    return listed == nullptr ? NITFCnst::TRE_TYPE_UNKNOWN : listed->group->GetDescription();
}

bool TRE::GetNamesOfAllSupportedTREs(const char**& aNames, std::size_t& aCount)
{
    const auto& tags = SupportedTREs::Instance().GetAllSupportedTREs();
    aCount = tags.size();
    aNames = new const char*[aCount];
    for (std::size_t i = 0; i != aCount; ++i) {
        aNames[i] = tags[i];
    }
    return true;
}

std::size_t TRE::GetNumOfSupportedTREs()
{
    return SupportedTREs::Instance().GetAllSupportedTREs().size();
}

const char* TRE::IsSupportedTRE(const char* aTag, bool aTypedOnly)
{
    const ListedTag* const listed = FindListed(aTag);
    return listed != nullptr && (!aTypedOnly || listed->entry->IsTyped()) ? listed->entry->tag : nullptr;
}

}  // namespace ORMO::SensorModel::CSM
