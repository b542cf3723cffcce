// What a file says of its classification: the markings of its segments and TREs, and what they call for.

#include "tests/support/NitfBuilder.h"
#include "tests/support/OpenedIsd.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using std::string_literals::operator""s;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::StrEq;

/// RPFHDR with its class: the one TRE that marks the data that it stands with.
std::string Frame(const char* aClass)
{
    return Tre("RPFHDR", "\0\0\x30"s + "FRAME001.RPF" + "\0"s + "STANDARD MILSTD" + "20000101" + aClass + "US" + "  " +
                             "\0\0\0\x30"s);
}

TEST(ClassificationTest, IsThatOfTheHighestMarkingWherever)
{
    struct Case
    {
        const char* file;
        const char* image;
        const char* graphic;
        const char* text;
        const char* frame;
        const char* highest;
        Util::CSMCnst::ClassType level;
    };
    using Util::CSMCnst;
    const Case cases[] = {
        {"U", "U", "U", "U", "U", "U", CSMCnst::CLASS_TYPE_UNCLASSIFIED},
        {"C", "U", "U", "U", "U", "C", CSMCnst::CLASS_TYPE_SECRET},
        {"C", "R", "U", "U", "U", "R", CSMCnst::CLASS_TYPE_SECRET},
        {"U", "U", "S", "C", "U", "S", CSMCnst::CLASS_TYPE_SECRET},
        {"U", "S", "U", "T", "U", "T", CSMCnst::CLASS_TYPE_SCI},
        {"U", "U", "U", "U", "S", "S", CSMCnst::CLASS_TYPE_SECRET},
        {"x", "?", "u", "U", "U", "U", CSMCnst::CLASS_TYPE_UNCLASSIFIED},
    };
    for (const Case& one : cases) {
        NitfBuilder file;
        file.File().Set("FSCLAS", one.file).Area("UDHD", Frame(one.frame));
        file.AddImage().Set("ISCLAS", one.image);
        file.AddGraphic().Set("SSCLAS", one.graphic);
        file.AddText().Set("TSCLAS", one.text);
        const OpenedIsd isd = OpenedIsd::OfBytes(file.Bytes());
        EXPECT_STREQ(isd->GetHighestSecurityClassificationMarking(), one.highest);
        EXPECT_EQ(isd->GetClassificationLevel(), one.level) << one.highest;
    }
}

TEST(ClassificationTest, ListsEachMarkingOnceWithItsRank)
{
    NitfBuilder file;
    file.File().Set("FSCLAS", "C").Area("UDHD", Frame("R"));
    file.AddImage().Set("ISCLAS", "U");
    file.AddImage().Set("ISCLAS", "C");
    file.AddGraphic().Set("SSCLAS", "S");
    file.AddText().Set("TSCLAS", " ");
    file.AddDes("SOME DES", "data").Set("DECLAS", "T");
    const OpenedIsd isd = OpenedIsd::OfBytes(file.Bytes());
    // In the order of the file: the header, its TRE, the segments.
    EXPECT_THAT(isd->GetAllSecurityClassificationMarkings(),
                ElementsAre(StrEq("C"), StrEq("R"), StrEq("U"), StrEq("S"), StrEq("T")));
    ImageSupportDataNITF::Markings markings{{"old", 1}};
    ASSERT_TRUE(isd->RetrieveAllSecurityClassificationMarkings(markings));
    EXPECT_THAT(markings,
                ElementsAre(Pair("C", NITFCnst::RANK_SC_CONFIDENTIAL), Pair("R", NITFCnst::RANK_SC_RESTRICTED),
                            Pair("S", NITFCnst::RANK_SC_SECRET), Pair("T", NITFCnst::RANK_SC_TOP_SECRET),
                            Pair("U", NITFCnst::RANK_SC_UNCLASSIFIED)));
    ASSERT_TRUE(isd->GetVersionSpecificStdDataSegmentsSecurityClassificationMarkings(markings));
    EXPECT_THAT(markings, ElementsAre(Pair("S", NITFCnst::RANK_SC_SECRET)));

    NitfBuilder plain(Format::Nitf20);
    plain.AddImage();
    const OpenedIsd without = OpenedIsd::OfBytes(plain.Bytes());
    EXPECT_FALSE(without->GetVersionSpecificStdDataSegmentsSecurityClassificationMarkings(markings));
    EXPECT_THAT(markings, IsEmpty());
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
