#include "tests/hardening/DamageCases.h"
#include "tests/support/NitfBuilder.h"

#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {

namespace {

const std::string GOOD = Tre("OFFSET", "0000001200000034");

std::string InArea(const std::string& aArea)
{
    NitfBuilder builder;
    builder.AddImage().Area("IXSHD", aArea);
    return builder.Bytes();
}

std::size_t CountTres(const ImageSupportDataNITF& aIsd)
{
    return aIsd.GetImageSubheader(0)->GetTREStore().Size();
}

void HasOne(const ImageSupportDataNITF& aIsd)
{
    ASSERT_EQ(1U, CountTres(aIsd));
    EXPECT_FALSE(aIsd.GetImageSubheader(0)->GetTREStore().InOrder()[0]->IsGenericTRE());
}

void HasNone(const ImageSupportDataNITF& aIsd)
{
    EXPECT_EQ(0U, CountTres(aIsd));
}

void HasOneGeneric(const ImageSupportDataNITF& aIsd)
{
    ASSERT_EQ(1U, CountTres(aIsd));
    EXPECT_TRUE(aIsd.GetImageSubheader(0)->GetTREStore().InOrder()[0]->IsGenericTRE());
}

void OverflowStaysOnTheDes(const ImageSupportDataNITF& aIsd)
{
    EXPECT_EQ(1U, aIsd.GetDataExtensionSegment(0)->GetOverflowTREs().Size());
    EXPECT_FALSE(aIsd.IsOverflowPlaced(0));
}

/// An image with an overflow number, and overflow DESs that name an item each.
std::string Overflow(unsigned aNumber, std::initializer_list<unsigned> aItems)
{
    NitfBuilder builder;
    builder.AddImage().Area("IXSHD", "", aNumber);
    char last = 'A';
    for (const unsigned item : aItems) {
        builder.AddOverflow("IXSHD", item, Tre(std::string("OVER") + last++, "data"));
    }
    builder.AddDes("SOME DES", "no TREs");
    return builder.Bytes();
}

}  // namespace

std::vector<DamageCase> TreDamage()
{
    const auto opens = Answer::Opens;
    return {
        {"TreBeyondItsArea", InArea(GOOD + "BLOCKA00500short"), opens, {"BLOCKA"}, {}, HasOne},
        {"TreOfNegativeLength", InArea(GOOD + "BLOCKA-0005data0"), opens, {"BLOCKA"}, {}, HasOne},
        {"TreOfLetters", InArea(GOOD + "BLOCKA000x5data0"), opens, {"BLOCKA"}, {}, HasOne},
        {"TreOfNoLength", InArea(GOOD + "BLOCKA00000"), opens, {"BLOCKA"}, {}, HasOne},
        {"FewBytesBehindTheLastTre", InArea(GOOD + "BLOCKA0001"), opens, {}, {"BLOCKA0001"}, HasOne},
        {"AreaOfNulBytes", InArea(std::string(40, '\0')), opens, {"IXSHD"}, {}, HasNone},
        {"AreaOfBlanks", InArea(std::string(40, ' ')), opens, {"IXSHD"}, {}, HasNone},
        {"JunkInOneAreaLeavesTheOther",
         [] {
             NitfBuilder builder;
             builder.AddImage().Area("UDID", "this is no record at all").Area("IXSHD", GOOD);
             return builder.Bytes();
         }(),
         opens,
         {"UDID"},
         {},
         HasOne},
        {"KnownTreTooShort", InArea(Tre("BLOCKA", "01")), opens, {"BLOCKA"}, {}, HasOneGeneric},
        {"KnownTreTooLong", InArea(Tre("OFFSET", std::string(17, '0'))), opens, {"OFFSET"}, {}, HasOneGeneric},
        {"KnownTreWithAnImpossibleCount",
         InArea(Tre("BANDSB", "99999" + std::string(40, '0'))),
         opens,
         {"BANDSB"},
         {},
         HasOneGeneric},
        {"NulInATre",
         InArea(Tre("OWNTRE", std::string("a\0b", 3))),
         opens,
         {},
         {},
         [](const ImageSupportDataNITF& aIsd) {
             std::size_t length = 0;
             const char* const data =
                 aIsd.GetImageSubheader(0)->GetTREStore().InOrder()[0]->GetRawTREDataString(length);
             EXPECT_EQ(std::string("a\0b", 3), std::string(data, length));
         }},
        {"OverflowOfAnImageThatIsNotThere",
         Overflow(0, {7}),
         opens,
         {"which is not in the file"},
         {},
         OverflowStaysOnTheDes},
        {"OverflowOfImageNumberZero", Overflow(0, {0}), opens, {"DESITEM"}, {}, OverflowStaysOnTheDes},
        {"TwoOverflowSegmentsForOneImage",
         Overflow(1, {1, 1}),
         opens,
         {"is a further one", "the DES decides"},
         {},
         [](const ImageSupportDataNITF& aIsd) {
             const auto& tres = aIsd.GetImageSubheader(0)->GetOverflowTREStore().InOrder();
             ASSERT_EQ(2U, tres.size());
             EXPECT_STREQ("OVERA", tres[0]->GetTag());
             EXPECT_STREQ("OVERB", tres[1]->GetTag());
         }},
        {"OverflowNumberOfAnotherDes",
         Overflow(2, {1}),
         opens,
         {"whose IXSOFL is", "names a DES that is no overflow DES"},
         {},
         [](const ImageSupportDataNITF& aIsd) {
             EXPECT_EQ(1U, aIsd.GetImageSubheader(0)->GetOverflowTREStore().Size()) << "the DES decides";
         }},
        {"OverflowNumberBeyondTheLastDes",
         Overflow(9, {1}),
         opens,
         {"whose IXSOFL is", "names no DES of the file"},
         {},
         [](const ImageSupportDataNITF& aIsd) {
             EXPECT_EQ(1U, aIsd.GetImageSubheader(0)->GetOverflowTREStore().Size()) << "the DES decides";
         }},
        {"OverflowThatNoNumberNames",
         Overflow(0, {1}),
         opens,
         {"IXSOFL"},
         {},
         [](const ImageSupportDataNITF& aIsd) {
             EXPECT_EQ(1U, aIsd.GetImageSubheader(0)->GetOverflowTREStore().Size()) << "the DES decides";
         }},
    };
}

}  // namespace ORMO::SensorModel::CSM::Tests
