#include "TSMError.h"
#include "TSMISDByteStream.h"
#include "TSMISDFilename.h"
#include "TSMISDNITF20.h"
#include "TSMISDNITF21.h"

#include <cstdio>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

namespace {

void Set(tre& aTre, std::string aText)
{
    aTre.setTRE(aText.data());
}

std::string Format(const tsm_ISD& aIsd)
{
    std::string format;
    aIsd.getFormat(format);
    return format;
}

TEST(CsmApiRecordsTest, TreKeepsTagLengthAndDataWithTheirNulBytes)
{
    tre extension;
    Set(extension, std::string("RPFHDR00004a\0b\0", 15));
    Set(extension, std::string("AB    00003x\0y", 14));
    EXPECT_STREQ(extension.name, "AB    ");
    ASSERT_EQ(extension.length, 3);
    EXPECT_EQ(std::string(extension.record, 4), std::string("x\0y\0", 4));
}

TEST(CsmApiRecordsTest, TreLengthThatIsNoNumberCountsAsNone)
{
    for (const char* text : {"BLOCKA-0001x", "BLOCKA1 3  x", "BLOCKA", "BLOCKA12", "BLO", ""}) {
        tre extension;
        Set(extension, text);
        EXPECT_EQ(extension.length, 0) << text;
        EXPECT_STREQ(extension.record, "") << text;
        EXPECT_EQ(std::string(extension.name), std::string(text).substr(0, 6));
    }
}

TEST(CsmApiRecordsTest, NothingBehindTheEndOfAShortTextIsTaken)
{
    tre extension;
    Set(extension, std::string("BLO\0KA00001x", 12));
    EXPECT_STREQ(extension.name, "BLO");
    EXPECT_EQ(std::string(extension.name, sizeof extension.name), std::string("BLO\0\0\0\0", 7));
    EXPECT_EQ(extension.length, 0);
}

TEST(CsmApiRecordsTest, ClearedRecordsAreEmptyAndCanBeFilledAgain)
{
    tre extension;
    Set(extension, "BLOCKA00001x");
    extension.clear();
    EXPECT_EQ(extension.record, nullptr);
    EXPECT_STREQ(extension.name, "");
    EXPECT_EQ(extension.length, 0);
    Set(extension, "BANDSB00001y");
    EXPECT_STREQ(extension.record, "y");

    des segment;
    char header[] = {'D', '\0', 'E'};
    char data[] = {'\0', '1'};
    segment.setDES(3, header, 2, data);
    EXPECT_EQ(std::string(segment.desSh, 4), std::string("D\0E\0", 4));
    EXPECT_EQ(std::string(segment.desData, 3), std::string("\0001\0", 3));
    segment.clear();
    EXPECT_EQ(segment.desSh, nullptr);
    EXPECT_EQ(segment.desDataLength, 0);
    segment.setDES(-1, header, 5, nullptr);
    EXPECT_EQ(segment.desShLength, 0);
    EXPECT_STREQ(segment.desSh, "");
    EXPECT_EQ(segment.desDataLength, 0);
}

template<typename Isd>
class CsmApiNitfIsdTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_isd.fileHeader = "NITF";
        m_isd.numTREs = 1;
        m_isd.fileTREs = new tre[1];
        Set(m_isd.fileTREs[0], "BLOCKA00001x");
        m_isd.numDESs = 1;
        m_isd.fileDESs = new des[1];
        char text[] = "DE";
        m_isd.fileDESs[0].setDES(2, text, 2, text);
        m_isd.numImages = 2;
        m_isd.images = new image[2];
        m_isd.images[1].imageSubHeader = "IM";
        m_isd.images[1].numTREs = 1;
        m_isd.images[1].imageTREs = new tre[1];
        Set(m_isd.images[1].imageTREs[0], "BANDSB00001y");
    }

    static void ExpectFilled(const Isd& aIsd)
    {
        EXPECT_EQ(aIsd.fileHeader, "NITF");
        ASSERT_EQ(aIsd.numTREs, 1);
        EXPECT_STREQ(aIsd.fileTREs[0].record, "x");
        ASSERT_EQ(aIsd.numDESs, 1);
        EXPECT_STREQ(aIsd.fileDESs[0].desData, "DE");
        ASSERT_EQ(aIsd.numImages, 2);
        EXPECT_EQ(aIsd.images[1].imageSubHeader, "IM");
        EXPECT_STREQ(aIsd.images[1].imageTREs[0].name, "BANDSB");
    }

    Isd m_isd;
};

using NitfIsds = testing::Types<NITF_2_0_ISD, NITF_2_1_ISD>;
TYPED_TEST_SUITE(CsmApiNitfIsdTest, NitfIsds);

TYPED_TEST(CsmApiNitfIsdTest, CopiesOwnTheirRecords)
{
    TypeParam assigned;
    assigned.numTREs = 1;
    assigned.fileTREs = new tre[1];
    {
        const TypeParam copy(this->m_isd);
        Set(this->m_isd.fileTREs[0], "BLOCKA00001z");
        this->m_isd.fileDESs[0].clear();
        Set(this->m_isd.images[1].imageTREs[0], "BLOCKA00001z");
        this->ExpectFilled(copy);
        assigned = copy;
    }
    TypeParam& same = assigned;
    assigned = same;
    this->ExpectFilled(assigned);
    EXPECT_EQ(Format(assigned), Format(TypeParam()));
}

TYPED_TEST(CsmApiNitfIsdTest, CountWithoutRecordsIsNotFollowed)
{
    TypeParam isd;
    isd.numTREs = 1000;
    isd.numImages = -1;
    const TypeParam copy(isd);
    EXPECT_EQ(copy.fileTREs, nullptr);
    EXPECT_EQ(copy.images, nullptr);
}

TEST(CsmApiIsdTest, FormatTellsTheClass)
{
    EXPECT_EQ(Format(tsm_ISD()), "UNKNOWN");
    EXPECT_EQ(Format(filenameISD()), "FILENAME");
    EXPECT_EQ(Format(bytestreamISD()), "BYTESTREAM");
    EXPECT_EQ(Format(NITF_2_0_ISD()), "NITF2.0");
    EXPECT_EQ(Format(NITF_2_1_ISD()), "NITF2.1");
}

TEST(CsmApiIsdTest, ByteStreamTakesTheWholeFile)
{
    const std::string path = testing::TempDir() + "ormo_bytestream.bin";
    std::string bytes(70000, '\0');
    bytes.front() = '\n';
    bytes.back() = '\r';
    std::ofstream(path, std::ios::binary) << bytes;
    const bytestreamISD isd(path);
    EXPECT_EQ(isd._isd, bytes);
    EXPECT_EQ(Format(isd), "BYTESTREAM");
    std::remove(path.c_str());
}

TEST(CsmApiIsdTest, ByteStreamRefusesWhatIsNoFile)
{
    for (const std::string& path : {testing::TempDir() + "ormo_absent.bin", testing::TempDir()}) {
        try {
            const bytestreamISD isd(path);
            ADD_FAILURE() << path << " was read";
        } catch (TSMError& error) {
            EXPECT_EQ(error.getError(), TSMError::FILE_READ) << path;
        }
    }
}

}  // namespace
