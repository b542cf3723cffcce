#include "foundation/CSMExceptions.h"
#include "nitf/NITFCnst.h"
#include "tests/support/Refusal.h"
#include "tre/SupportedTREs.h"
#include "tre/TREFactory.h"
#include "tre/detail/TreMaker.h"
#include "tre/groups/SupportedTreGroup.h"
#include "tre/groups/SupportedTreGroups.h"

#include <cstdint>
#include <memory>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using testing::EndsWith;
using testing::IsSupersetOf;
using Tests::RefusalOf;

/// A group as hosts know it.
struct Group
{
    SupportedTreFactory::Enum code;
    const char* description;
    std::int32_t firstTag;  ///< code of the first tag; the others follow
    const char* tags;
};

// In the order in which groups are asked.
const std::vector<Group> GROUPS{
    {SupportedTreFactory::ASDE, "ASDE (Airborne Support Data Extension)", 1,
     "ACFTA ACFTB AIMIDA AIMIDB ASTORA BANDSA BANDSB BLOCKA EXOPTA EXPLTA EXPLTB MENSRA MENSRB MPDSRA MSTGTA MTIRPA "
     "MTIRPB PATCHA PATCHB RPC00B SECTGA SENSRA STREOB"},
    {SupportedTreFactory::CommercialSDE, "Commercial SDE (Support Data Extensions for Commercial Imagery Products)", 24,
     "CSCCGA CSCRNA CSDIDA CSEPHA CSEXRA CSPROA CSSFAA STDIDC USE00A"},
    {SupportedTreFactory::DPPDB, "DPPDB (Digital Point Positioning Database)", 33,
     "IMASDA IMCBDA IMRFCA MSDIRA PPRSDA PRADAA PRADRA PSUPDA PTPRAA RGRDRA"},
    {SupportedTreFactory::ESD, "ESD (Exploitation Support Data)", 43, "ESD001"},
    {SupportedTreFactory::GeoSDE, "GeoSDE (Geospatial Support Data Extension)", 44,
     "ACCHZB ACCPOB ACCVTB BNDPLB FACCBB GEOLOB GEOPSB GRDPSB MAPLOB PRJPSB REGPTB REGPTC SNSPSB SOURCB"},
    {SupportedTreFactory::MISC, "MISC (miscellaneous)", 58,
     "BCKGDA CMETAA ENGRDA HISTOA ICHIPA ICHIPB IOMAPA J2KLRA MITOCA NBLOCA OFFSET"},
    {SupportedTreFactory::PIAE, "PIAE (Profile for Imagery Archives Extensions)", 69,
     "PIAEQA PIAEVA PIAIMB PIAIMC PIAPEA PIAPEB PIAPRC PIAPRD PIATGA PIATGB"},
    {SupportedTreFactory::ResearchSDE, "ResearchSDE (Research Tagged Record Extensions)", 80,
     "CLCTNA CLCTNB IMGDTA OBJCTA PLTFMA SNSRA TRGTA"},
    {SupportedTreFactory::RPF, "RPF (Raster Product Format)", 87, "RPFDES RPFHDR RPFIMG"},
    {SupportedTreFactory::RSM, "RSM (Replacement Sensor Model)", 90,
     "RSMAPA RSMDCA RSMECA RSMGGA RSMGIA RSMIDA RSMPCA RSMPIA"},
};
const std::set<std::string_view> UNTYPED{"CLCTNB", "IMGDTA", "OBJCTA", "PLTFMA", "SNSRA", "TRGTA", "RPFDES"};
const std::set<std::string_view> REGISTERED{"ASTORA", "RPFDES", "RPFHDR", "RPFIMG"};

std::vector<std::string> TagsOf(const Group& aGroup)
{
    std::istringstream words(aGroup.tags);
    std::vector<std::string> tags;
    for (std::string tag; words >> tag;) {
        tags.push_back(tag);
    }
    return tags;
}

const SupportedTREs& Registry()
{
    return SupportedTREs::Instance();
}

TEST(SupportedTREsTest, EveryTagHasItsCodeGroupAndType)
{
    ASSERT_EQ(GROUPS.size() + 1, SupportedTREs::GetGroups().size());  // and the public ones, behind
    for (std::size_t i = 0; i != GROUPS.size(); ++i) {
        const Group& expected = GROUPS[i];
        const SupportedTreGroup& group = *SupportedTREs::GetGroups()[i];
        EXPECT_STREQ(expected.description, group.GetDescription());
        std::int32_t code = expected.firstTag;
        for (const std::string& tag : TagsOf(expected)) {
            const Detail::TreEntry* const entry = group.FindEntry(tag);
            ASSERT_NE(nullptr, entry) << tag;
            EXPECT_EQ(code++, entry->code) << tag;
            EXPECT_EQ(UNTYPED.count(tag) == 0, entry->IsTyped()) << tag;
            const TRE::Type type =
                REGISTERED.count(tag) != 0 ? TRE::TRE_TYPE_REGISTERED_EXTENSION : TRE::TRE_TYPE_CONTROLLED_EXTENSION;
            EXPECT_EQ(type, SupportedTREs::GetTreFieldType(tag.c_str())) << tag;
            EXPECT_EQ(type, group.GetTRETypeMap().at(tag.c_str())) << tag;
            SupportedTreFactory::Enum found = SupportedTreFactory::UNKNOWN;
            EXPECT_TRUE(Registry().AbleToCreateTRE((tag + "  ").c_str(), &found)) << tag;
            EXPECT_EQ(expected.code, found) << tag;
            EXPECT_STREQ(expected.description, SupportedTREs::GetGroupDescription(tag.c_str()));
        }
        EXPECT_EQ(static_cast<std::size_t>(code - expected.firstTag), group.GetAllSupportedTREs().size());
    }
}

TEST(SupportedTREsTest, PublicTagsAreAGroupBehindTheOthersWithCodesOfTheirOwn)
{
    const SupportedTreGroup& group = *SupportedTREs::GetGroups().back();
    EXPECT_STREQ("Public (publicly documented extensions)", group.GetDescription());
    EXPECT_EQ(&SupportedTrePublic::Instance(), &group);
    std::set<std::int32_t> codes;
    for (const char* const tag : SupportedTrePublic::GetSupportedTREs()) {
        const Detail::TreEntry* const entry = group.FindEntry(tag);
        EXPECT_LE(1100, entry->code) << tag;
        EXPECT_TRUE(codes.insert(entry->code).second) << tag;
        EXPECT_TRUE(entry->IsTyped()) << tag;
        SupportedTreFactory::Enum found = SupportedTreFactory::UNKNOWN;
        EXPECT_TRUE(Registry().AbleToCreateTRE(tag, &found)) << tag;
        EXPECT_EQ(SupportedTreFactory::Public, found) << tag;
    }
    EXPECT_EQ(1128, group.FindEntry("SENSRB")->code);
    EXPECT_EQ(12, SupportedTreFactory::Public);
}

TEST(SupportedTREsTest, EachTagIsClaimedByOneGroupAndTheEntriesAreSorted)
{
    std::set<std::string_view> seen;
    for (const SupportedTreGroup* const group : SupportedTREs::GetGroups()) {
        std::size_t count = 0;
        const Detail::TreEntry* const entries = group->GetEntries(count);
        for (std::size_t i = 0; i != count; ++i) {
            EXPECT_TRUE(seen.insert(entries[i].tag).second) << entries[i].tag;
            EXPECT_TRUE(i == 0 || std::string_view(entries[i - 1].tag) < entries[i].tag) << entries[i].tag;
        }
    }
    EXPECT_EQ(97U + SupportedTrePublic::GetSupportedTREs().size(), seen.size());  // with RPC00A, which no group lists
}

TEST(SupportedTREsTest, ListsOfTagsAgree)
{
    const char** tags = nullptr;
    const TRE::Type* types = nullptr;
    std::size_t count = 0;
    Registry().GetTRETypes(tags, types, count);
    ASSERT_EQ(96U + SupportedTrePublic::GetSupportedTREs().size(), count);
    EXPECT_EQ(count, TRE::GetNumOfSupportedTREs());
    for (std::size_t i = 0; i != count; ++i) {
        EXPECT_EQ(types[i], Registry().GetTREType(tags[i])) << tags[i];
        EXPECT_STREQ(tags[i], TRE::IsSupportedTRE(tags[i], false));
    }
    const char** names = nullptr;
    ASSERT_TRUE(TRE::GetNamesOfAllSupportedTREs(names, count));
    const std::unique_ptr<const char*[]> owned(names);
    EXPECT_EQ(std::vector<const char*>(names, names + count), Registry().GetAllSupportedTREs());
    EXPECT_THAT(std::vector<std::string>(names, names + count), IsSupersetOf(SupportedTreRPF::GetSupportedTREs()));
}

TEST(SupportedTREsTest, TypedOnlyLeavesOutTagsWithoutALayout)
{
    EXPECT_STREQ("RPFDES", TRE::IsSupportedTRE("RPFDES", false));
    EXPECT_EQ(nullptr, TRE::IsSupportedTRE("RPFDES", true));
    EXPECT_STREQ("ACFTA", TRE::IsSupportedTRE(" ACFTA ", true));
    for (const char* const unknown : {"", "acfta", "ACFTAX", "ACFT", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(nullptr, TRE::IsSupportedTRE(unknown, false));
        SupportedTreFactory::Enum group = SupportedTreFactory::RSM;
        EXPECT_FALSE(Registry().AbleToCreateTRE(unknown, &group));
        EXPECT_EQ(SupportedTreFactory::UNKNOWN, group);
        EXPECT_EQ(TRE::TRE_TYPE_UNKNOWN, SupportedTREs::GetTreFieldType(unknown));
        EXPECT_STREQ("UNKNOWN", SupportedTREs::GetGroupDescription(unknown));
    }
    EXPECT_TRUE(Registry().AbleToCreateTRE("ACFTA", nullptr));
}

TEST(SupportedTREsTest, NullDataWithALengthIsAWrongArgument)
{
    TRE* tre = nullptr;
    EXPECT_THROW(Registry().CreateTRE("OFFSET", nullptr, &tre, nullptr, 16, false, Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN,
                                      SupportedTreFactory::MISC),
                 std::invalid_argument);
    EXPECT_EQ(nullptr, tre);
}

TEST(SupportedTREsTest, GroupsRefuseTagsOfOthers)
{
    TRE* tre = nullptr;
    for (const SupportedTreGroup* const group : SupportedTREs::GetGroups()) {
        EXPECT_THAT(RefusalOf([&] {
                        group->CreateTRE("NOBODY", "data", &tre, nullptr, 4, false,
                                         Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN);
                    }),
                    EndsWith(std::string(" does not belong to the ") + group->GetDescription() + " TRE Group."));
    }
    EXPECT_THROW(SupportedTreRSM::Instance().CreateTRE("ACFTA", "data", &tre, nullptr, 4, false,
                                                       Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN),
                 UnsupportedTREException);
}

TEST(SupportedTREsTest, RegistryDispatchesByGroupCode)
{
    const std::string data = "0000001200000034";
    TRE* tre = nullptr;
    const auto create = [&](SupportedTreFactory::Enum aGroup, TRE** aOut) {
        return Registry().CreateTRE("OFFSET", data.c_str(), aOut, nullptr, data.size(), true,
                                    Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN, aGroup);
    };
    EXPECT_FALSE(create(SupportedTreFactory::Enum{13}, &tre));
    EXPECT_FALSE(create(SupportedTreFactory::UNKNOWN, &tre));
    EXPECT_FALSE(create(SupportedTreFactory::NSDE, &tre));
    EXPECT_FALSE(create(SupportedTreFactory::MISC, nullptr));
    ASSERT_TRUE(create(SupportedTreFactory::MISC, &tre));
    EXPECT_EQ(68, tre->GetUniqueExtensionTypeID());
    EXPECT_EQ(SupportedTreFactory::MISC, tre->GetSupportedTREFactoryCode());

    TRE* copy = nullptr;
    EXPECT_FALSE(SupportedTreRSM::Instance().CloneTRE(*tre, &copy));
    EXPECT_EQ(nullptr, copy);
    EXPECT_FALSE(SupportedTreRSM::Instance().Destroy(&tre));
    ASSERT_TRUE(Registry().CloneTRE(*tre, &copy));
    EXPECT_TRUE(*copy == *tre);
    EXPECT_TRUE(Registry().Destroy(&copy));
    EXPECT_EQ(nullptr, copy);
    EXPECT_TRUE(Registry().Destroy(&tre));
    EXPECT_FALSE(Registry().Destroy(&tre));
}

TEST(SupportedTREsTest, RPC00AIsReadThroughTheClassOfRPC00BUnderItsOwnTag)
{
    TRE* tre = nullptr;
    const std::string data(1041, '0');
    TREFactory::Create("RPC00A", data.c_str(), TRE::TRE_TYPE_UNKNOWN, &tre, true, false, nullptr, data.size());
    TRE* copy = nullptr;
    ASSERT_TRUE(TREFactory::CloneTRE(*tre, &copy));
    TREFactory::Destroy(&tre);
    EXPECT_STREQ("RPC00A", copy->GetTag());
    EXPECT_EQ(1020, copy->GetUniqueExtensionTypeID());
    EXPECT_EQ(0U, SupportedTreASDE::Instance().GetTRETypeMap().count("RPC00A"));
    EXPECT_EQ(SupportedTreFactory::ASDE, copy->GetSupportedTREFactoryCode());
    EXPECT_EQ(93U, copy->GetNumOfFields());
    EXPECT_EQ(TRE::TRE_TYPE_CONTROLLED_EXTENSION, copy->GetTREType());
    TREFactory::Destroy(&copy);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
