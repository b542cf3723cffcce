#include "tre/groups/SupportedTreGroups.h"

#include "tre/TreRPC00B.h"
#include "tre/detail/TreMaker.h"
#include "tre/tags/TreTags.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using Group = SupportedTreFactory::Enum;

/// A line of the list of tags.
struct ListedTag
{
    Group group;
    TreEntry entry;
};

constexpr TRE::Type CONTROLLED = TRE::TRE_TYPE_CONTROLLED_EXTENSION;
constexpr TRE::Type REGISTERED = TRE::TRE_TYPE_REGISTERED_EXTENSION;

constexpr ListedTag Line(Group aGroup, TreEntry aEntry, TRE::Type aType, bool aListed = true) noexcept
{
    aEntry.type = aType;
    aEntry.listed = aListed;
    return {aGroup, aEntry};
}

#define ORMO_TYPED_TAG(aGroup, aTag, aCode, aType) \
    Line(SupportedTreFactory::aGroup, Typed<Tre##aTag>(#aTag, aCode), aType),
#define ORMO_OWN_CLASS_TAG(aGroup, aTag, aCode, aType) ORMO_TYPED_TAG(aGroup, aTag, aCode, aType)
#define ORMO_READ_AS_TAG(aGroup, aTag, aCode, aType, aOther) \
    Line(SupportedTreFactory::aGroup, Typed<Tre##aOther>(#aTag, aCode), aType, false),
#define ORMO_UNTYPED_TAG(aGroup, aTag, aCode, aType) Line(SupportedTreFactory::aGroup, Untyped(#aTag, aCode), aType),

constexpr ListedTag LIST[] = {
#include "tre/tags/TreTagList.h"
};

/// Groups are cut out of the list as they stand, and look their tags up by halves.
constexpr bool IsInOrder() noexcept
{
    return std::adjacent_find(std::begin(LIST), std::end(LIST), [](const ListedTag& aLeft, const ListedTag& aRight) {
               return aLeft.group != aRight.group
                          ? aLeft.group > aRight.group
                          : std::string_view(aLeft.entry.tag) >= std::string_view(aRight.entry.tag);
           }) == std::end(LIST);
}
static_assert(IsInOrder());

/// A code means one tag.
constexpr bool CodesDiffer() noexcept
{
    std::array<std::int32_t, std::size(LIST)> codes{};
    std::transform(std::begin(LIST), std::end(LIST), codes.begin(),
                   [](const ListedTag& aTag) { return aTag.entry.code; });
    std::sort(codes.begin(), codes.end());
    return std::adjacent_find(codes.begin(), codes.end()) == codes.end();
}
static_assert(CodesDiffer());

constexpr std::size_t CountOf(Group aGroup) noexcept
{
    return static_cast<std::size_t>(std::count_if(std::begin(LIST), std::end(LIST),
                                                  [aGroup](const ListedTag& aTag) { return aTag.group == aGroup; }));
}

template<Group GROUP>
constexpr auto EntriesOf() noexcept
{
    std::array<TreEntry, CountOf(GROUP)> entries{};
    auto next = entries.begin();
    for (const ListedTag& tag : LIST) {
        if (tag.group == GROUP) {
            *next++ = tag.entry;
        }
    }
    return entries;
}

template<Group GROUP>
constexpr auto ENTRIES = EntriesOf<GROUP>();

}  // namespace

#define ORMO_TRE_GROUP(aName, aDescription)                                                                       \
    SupportedTre##aName::SupportedTre##aName()                                                                    \
        : SupportedTreGroup(SupportedTreFactory::aName, aDescription, ENTRIES<SupportedTreFactory::aName>.data(), \
                            ENTRIES<SupportedTreFactory::aName>.size())                                           \
    {                                                                                                             \
    }                                                                                                             \
    const SupportedTre##aName& SupportedTre##aName::Instance()                                                    \
    {                                                                                                             \
        static const SupportedTre##aName group;                                                                   \
        return group;                                                                                             \
    }                                                                                                             \
    const std::vector<const char*>& SupportedTre##aName::GetSupportedTREs()                                       \
    {                                                                                                             \
        return Instance().GetAllSupportedTREs();                                                                  \
    }                                                                                                             \
    static_assert(true)

ORMO_TRE_GROUP(ASDE, "ASDE (Airborne Support Data Extension)");
ORMO_TRE_GROUP(CommercialSDE, "Commercial SDE (Support Data Extensions for Commercial Imagery Products)");
ORMO_TRE_GROUP(DPPDB, "DPPDB (Digital Point Positioning Database)");
ORMO_TRE_GROUP(ESD, "ESD (Exploitation Support Data)");
ORMO_TRE_GROUP(GeoSDE, "GeoSDE (Geospatial Support Data Extension)");
ORMO_TRE_GROUP(MISC, "MISC (miscellaneous)");
ORMO_TRE_GROUP(PIAE, "PIAE (Profile for Imagery Archives Extensions)");
ORMO_TRE_GROUP(ResearchSDE, "ResearchSDE (Research Tagged Record Extensions)");
ORMO_TRE_GROUP(RPF, "RPF (Raster Product Format)");
ORMO_TRE_GROUP(RSM, "RSM (Replacement Sensor Model)");
ORMO_TRE_GROUP(Public, "Public (publicly documented extensions)");

#undef ORMO_TRE_GROUP

}  // namespace ORMO::SensorModel::CSM
