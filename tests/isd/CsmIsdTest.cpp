#include "foundation/CSMExceptions.h"
#include "isd/ITSMISDCreator.h"
#include "isd/OrmoTSMISD.h"
#include "isd/TSMISDCreators.h"
#include "isd/TSMISDFactory.h"
#include "isd/WrapperCSMIsdNITF.h"
#include "tests/support/TempFile.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using Tests::TempFile;

constexpr int KINDS = 5;

SupportedTSMISD::ISDType Kind(int aNumber)
{
    return static_cast<SupportedTSMISD::ISDType>(aNumber);
}

std::string Format(const tsm_ISD& aIsd)
{
    std::string format;
    aIsd.getFormat(format);
    return format;
}

/// The message of the std::invalid_argument, or the source and additional message of the exception of the library.
template<typename Call>
std::string Refusal(Call aCall)
{
    try {
        aCall();
    } catch (const std::invalid_argument& exception) {
        return exception.what();
    } catch (const CSMException& exception) {
        return std::string(exception.GetSource()) + "|" + exception.GetAdditionalMessage();
    }
    return "";
}

TEST(CsmIsdTest, OnlyAFileNameIsdIsMadeFromAName)
{
    const TempFile file("any bytes");
    for (int number = 0; number != KINDS; ++number) {
        tsm_ISD* isd = nullptr;
        TSMISDFactory::CreateISD(file.CStr(), Kind(number), &isd);
        const std::unique_ptr<tsm_ISD> owner(isd);
        ASSERT_EQ(isd != nullptr, number == SupportedTSMISD::ISD_TYPE_FILE_NAME) << number;
        if (isd != nullptr) {
            EXPECT_EQ(dynamic_cast<filenameISD&>(*isd)._filename, file.Path());
            EXPECT_EQ(Format(*isd), "FILENAME");
        }
        // What stood there stays where nothing is made.
        OrmoTSMISD before;
        tsm_ISD* kept = &before;
        if (number != SupportedTSMISD::ISD_TYPE_FILE_NAME) {
            TSMISDFactory::CreateISD(file.CStr(), Kind(number), &kept);
            EXPECT_EQ(kept, &before) << number;
        }
    }
}

TEST(CsmIsdTest, ArgumentsAreRefusedWithTheirOwnTexts)
{
    const TempFile file("any bytes");
    tsm_ISD* isd = nullptr;
    EXPECT_EQ(Refusal([&] { TSMISDFactory::CreateISD(file.CStr(), Kind(9), nullptr); }),
              "Input argument \"aTsmISD\" cannot be NULL.");
    for (const int number : {5, -1}) {
        EXPECT_THROW(TSMISDFactory::CreateISD(file.CStr(), Kind(number), &isd), UnsupportedTSMISDTypeException);
        EXPECT_EQ(Refusal([&] { TSMISDFactory::CreateISD(file.CStr(), Kind(number), &isd); }),
                  "TSMISDFactory::CreateISD|");
    }
    const char* const creators[KINDS] = {"ByteStream", "FileName", "NITF20", "NITF21", "OrmoTSMISD"};
    for (int number = 0; number != KINDS; ++number) {
        const std::string expected = std::string("TSMISDCreator") + creators[number] +
                                     "::Create|Input file name is NULL or the file doesn't exist.";
        for (const char* const path : {static_cast<const char*>(nullptr), "", "/nowhere/at/all"}) {
            EXPECT_EQ(Refusal([&] { TSMISDFactory::CreateISD(path, Kind(number), &isd); }), expected);
        }
    }
    TSMISDCreatorNITF21 creator;
    EXPECT_EQ(Refusal([&] { creator.Create("/nowhere/at/all", nullptr); }),
              "Input argument \"aTsmISD\" cannot be NULL.");
}

TEST(CsmIsdTest, KindsAreToldByTheClassAndNotByTheFormat)
{
    class Disguised : public tsm_ISD
    {
    public:
        Disguised() { _format = SupportedTSMISD::ISD_NITF21_FORMAT_STR; }
    };
    class Derived : public NITF_2_0_ISD
    {
    };
    EXPECT_TRUE(TSMISDFactory::IsSupportedISD(bytestreamISD()));
    EXPECT_TRUE(TSMISDFactory::IsSupportedISD(OrmoTSMISD()));
    EXPECT_TRUE(TSMISDFactory::IsSupportedISD(filenameISD()));
    EXPECT_TRUE(TSMISDFactory::IsSupportedISD(NITF_2_0_ISD()));
    EXPECT_TRUE(TSMISDFactory::IsSupportedISD(NITF_2_1_ISD()));
    EXPECT_TRUE(TSMISDFactory::IsSupportedISD(Derived()));
    EXPECT_FALSE(TSMISDFactory::IsSupportedISD(Disguised()));
    EXPECT_FALSE(TSMISDFactory::IsSupportedISD(tsm_ISD()));
    for (const int number : {-1, 0, 4, 5}) {
        EXPECT_EQ(SupportedTSMISD::IsSupportedTSMISDType(Kind(number)), number == 0 || number == 4) << number;
    }
}

TEST(CsmIsdTest, DeletingNullsAndTakesNull)
{
    tsm_ISD* isd = new filenameISD;
    TSMISDFactory::DeleteISD(&isd);
    EXPECT_EQ(isd, nullptr);
    TSMISDFactory::DeleteISD(&isd);
    TSMISDFactory::DeleteISD(nullptr);
}

template<typename NitfISD>
std::unique_ptr<NitfISD> Filled()
{
    auto isd = std::make_unique<NitfISD>();
    isd->fileHeader = std::string("NITF\0header", 11);
    isd->numTREs = 1;
    isd->fileTREs = new tre[1];
    std::string text("AB    00003x\0y", 14);
    isd->fileTREs[0].setTRE(text.data());
    isd->numDESs = 1;
    isd->fileDESs = new des[1];
    char bytes[] = {'D', '\0', 'E'};
    isd->fileDESs[0].setDES(3, bytes, 2, bytes);
    isd->numImages = 2;
    isd->images = new image[2];
    isd->images[1].imageSubHeader = "IM";
    isd->images[1].numTREs = 1;
    isd->images[1].imageTREs = new tre[1];
    isd->images[1].imageTREs[0].setTRE(text.data());
    return isd;
}

void ExpectFilled(const tre& aTre)
{
    EXPECT_STREQ(aTre.name, "AB    ");
    ASSERT_EQ(aTre.length, 3);
    EXPECT_EQ(std::string(aTre.record, 4), std::string("x\0y\0", 4));
}

template<typename NitfISD>
void ExpectDeepCopy(SupportedTSMISD::ISDType aKind)
{
    SupportedTSMISD::ISDType kind = Kind(-1);
    tsm_ISD* cloned = nullptr;
    {
        auto source = Filled<NitfISD>();
        ASSERT_TRUE(ITSMISDCreator::CloneTSMISD(*source, kind, &cloned));
        source->fileTREs[0].record[0] = '!';
        source->fileDESs[0].desSh[0] = '!';
    }
    const std::unique_ptr<tsm_ISD> owner(cloned);
    EXPECT_EQ(kind, aKind);
    const auto& copy = dynamic_cast<const NitfISD&>(*cloned);
    EXPECT_EQ(Format(copy), Format(NitfISD()));
    EXPECT_EQ(copy.fileHeader, std::string("NITF\0header", 11));
    ASSERT_EQ(copy.numTREs, 1);
    ExpectFilled(copy.fileTREs[0]);
    ASSERT_EQ(copy.numDESs, 1);
    EXPECT_EQ(std::string(copy.fileDESs[0].desSh, 4), std::string("D\0E\0", 4));
    EXPECT_EQ(std::string(copy.fileDESs[0].desData, 3), std::string("D\0\0", 3));
    ASSERT_EQ(copy.numImages, 2);
    EXPECT_EQ(copy.images[0].numTREs, 0);
    EXPECT_EQ(copy.images[1].imageSubHeader, "IM");
    ExpectFilled(copy.images[1].imageTREs[0]);
}

TEST(CsmIsdTest, ClonesOfNitfIsdsOutliveTheirSource)
{
    ExpectDeepCopy<NITF_2_0_ISD>(SupportedTSMISD::ISD_TYPE_NITF20);
    ExpectDeepCopy<NITF_2_1_ISD>(SupportedTSMISD::ISD_TYPE_NITF21);
}

TEST(CsmIsdTest, EveryKindIsClonedAndNothingElse)
{
    bytestreamISD bytes;
    bytes._isd = std::string("a\0b", 3);
    filenameISD name;
    name._filename = "/a/file";
    const OrmoTSMISD own("/a/file", 3);
    SupportedTSMISD::ISDType kind = Kind(-1);
    tsm_ISD* copy = nullptr;
    ASSERT_TRUE(ITSMISDCreator::CloneTSMISD(bytes, kind, &copy));
    EXPECT_EQ(kind, SupportedTSMISD::ISD_TYPE_BYTE_STREAM);
    EXPECT_EQ(dynamic_cast<bytestreamISD&>(*copy)._isd, bytes._isd);
    TSMISDFactory::DeleteISD(&copy);
    ASSERT_TRUE(ITSMISDCreator::CloneTSMISD(name, kind, &copy));
    EXPECT_EQ(kind, SupportedTSMISD::ISD_TYPE_FILE_NAME);
    EXPECT_EQ(dynamic_cast<filenameISD&>(*copy)._filename, "/a/file");
    TSMISDFactory::DeleteISD(&copy);
    ASSERT_TRUE(ITSMISDCreator::CloneTSMISD(own, kind, &copy));
    EXPECT_EQ(kind, SupportedTSMISD::ISD_TYPE_ORMO);
    EXPECT_STREQ(dynamic_cast<OrmoTSMISD&>(*copy).GetImageFileName(), "/a/file");
    EXPECT_EQ(dynamic_cast<OrmoTSMISD&>(*copy).GetImageSegment(), 3);
    TSMISDFactory::DeleteISD(&copy);
    EXPECT_FALSE(ITSMISDCreator::CloneTSMISD(tsm_ISD(), kind, &copy));
    EXPECT_EQ(copy, nullptr);
    EXPECT_FALSE(ITSMISDCreator::CloneTSMISD(own, kind, nullptr));
}

TEST(CsmIsdTest, CountsWithoutArraysAreNotFollowed)
{
    NITF_2_1_ISD isd;
    isd.numTREs = 1000;
    isd.numDESs = -1;
    isd.numImages = 1;
    isd.images = new image[1];
    isd.images[0].numTREs = 1000;
    SupportedTSMISD::ISDType kind = Kind(-1);
    tsm_ISD* cloned = nullptr;
    ASSERT_TRUE(ITSMISDCreator::CloneTSMISD(isd, kind, &cloned));
    const std::unique_ptr<tsm_ISD> owner(cloned);
    const auto& copy = dynamic_cast<const NITF_2_1_ISD&>(*cloned);
    EXPECT_EQ(copy.numTREs, 0);
    EXPECT_EQ(copy.numDESs, 0);
    EXPECT_EQ(copy.images[0].numTREs, 0);

    const WrapperCSMIsdNITF21 wrapper(isd);
    std::size_t count = 99;
    EXPECT_EQ(wrapper.GetFileTREs(count), nullptr);
    EXPECT_EQ(count, 0U);
    EXPECT_EQ(wrapper.GetNumOfDESs(), 0U);
    EXPECT_TRUE(wrapper.GetDESData(7).empty());
    EXPECT_EQ(wrapper.GetImage(0).GetTREs(count), nullptr);
}

TEST(CsmIsdTest, WrappersCarryFormatFileAndParts)
{
    const auto isd20 = Filled<NITF_2_0_ISD>();
    WrapperCSMIsdNITF20 wrapper(*isd20, "  /a/file ");
    EXPECT_STREQ(wrapper.GetISDFormat(), "NITF2.0");
    EXPECT_STREQ(wrapper.GetImageFileName(), "/a/file");
    EXPECT_FALSE(wrapper.SetImageFileName(" "));
    EXPECT_FALSE(wrapper.SetImageFileName(nullptr));
    EXPECT_STREQ(wrapper.GetImageFileName(), "/a/file");
    EXPECT_TRUE(wrapper.SetImageFileName("/b"));
    EXPECT_STREQ(wrapper.GetImageFileName(), "/b");
    EXPECT_EQ(wrapper.GetFileHeader(), std::string_view("NITF\0header", 11));
    EXPECT_EQ(wrapper.GetDESSubheader(0), std::string_view("D\0E", 3));
    EXPECT_EQ(wrapper.GetDESData(0), std::string_view("D\0", 2));
    ASSERT_EQ(wrapper.GetNumOfImages(), 2U);
    std::size_t count = 0;
    ExpectFilled(*wrapper.GetImage(1).GetTREs(count));
    EXPECT_EQ(wrapper.GetImage(1).GetImageSubheader(), "IM");

    const auto isd21 = Filled<NITF_2_1_ISD>();
    EXPECT_STREQ(WrapperCSMIsdNITF21(*isd21).GetISDFormat(), "NITF2.1");
    EXPECT_STREQ(WrapperCSMIsdNITF21(*isd21).GetImageFileName(), "");
}

TEST(CsmIsdTest, OwnIsdIsNoneOfTheOthersByItsFormat)
{
    const OrmoTSMISD isd(nullptr, -7);
    EXPECT_STREQ(isd.GetImageFileName(), "");
    EXPECT_EQ(isd.GetImageSegment(), OrmoTSMISD::ALL_IMAGE_SEGMENTS);
    for (const char* const format :
         {SupportedTSMISD::ISD_BYTE_STREAM_FORMAT_STR, SupportedTSMISD::ISD_FILE_NAME_FORMAT_STR,
          SupportedTSMISD::ISD_NITF20_FORMAT_STR, SupportedTSMISD::ISD_NITF21_FORMAT_STR, "UNKNOWN"}) {
        EXPECT_NE(Format(isd), format);
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
