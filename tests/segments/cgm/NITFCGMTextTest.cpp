#include "tests/segments/cgm/CgmBytes.h"

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;

/// Encodes with the defaults; empty when that is refused.
std::string Encode(const char* aText, int aLength, const char* aMetafile = nullptr, const char* aFont = nullptr,
                   short* aColor = nullptr, short aHeight = 10)
{
    char* out = nullptr;
    std::size_t size = 77;
    const char* descriptions[] = {aMetafile, "picture"};
    const bool good = NITFCGMMetaFile::BinaryEncodeNITFCGMText(&out, descriptions, aText, aLength, 20, 30, aColor, size,
                                                               aFont, aHeight);
    EXPECT_EQ(good, out != nullptr);
    EXPECT_EQ(good, size != 0);
    const std::string bytes(good ? out : "", size);
    NITFCGMMetaFile::DeleteCString(out);
    return bytes;
}

TEST(NITFCGMTextTest, TheBytesAreThoseOfTheProfile)
{
    EXPECT_EQ(CgmElementBytes(0, 1, CgmText("")) + CgmElementBytes(1, 1, {1}) +
                  CgmElementBytes(1, 2, CgmText("NITF/CGM-APP-2.0.")) + CgmElementBytes(1, 11, {1, -1, 1}) +
                  CgmElementBytes(1, 13, CgmText("COURIER_BOLD")) + CgmElementBytes(0, 3, CgmText("picture")) +
                  CgmElementBytes(2, 2, {1}) + CgmElementBytes(2, 6, {0, 32767, 32767, 0}) + CgmElementBytes(0, 4, "") +
                  CgmElementBytes(5, 10, {1}) + CgmElementBytes(5, 14, {"\0\0\0", 3}) + CgmElementBytes(5, 15, {10}) +
                  CgmElementBytes(5, 16, {0, -1, 1, 0}) + CgmElementBytes(4, 4, CgmWords({30, 20, 1}) + CgmText("Hi")) +
                  CgmElementBytes(0, 5, "") + CgmElementBytes(0, 2, ""),
              Encode("Hi there", 2));
}

TEST(NITFCGMTextTest, DecodesToTheTextInEveryLengthWithoutADeviation)
{
    for (const std::size_t length : std::initializer_list<std::size_t>{0, 1, 23, 24, 25, 26, 29, 30, 31, 254, 255, 256,
                                                                       320, 32767, 32768, 65000}) {
        const std::string text(length, 'x');
        const std::string bytes = Encode(text.c_str(), -1, text.c_str());
        const NITFCGMMetaFile metafile = Metafile(bytes);
        EXPECT_EQ(nullptr, metafile.GetFault()) << length;
        EXPECT_EQ(0U, metafile.GetNumNonNITFCGMCompliantInputs()) << length;
        ASSERT_EQ(1U, metafile.GetAllGraphicalPrimitiveElements().size()) << length;
        EXPECT_EQ("BEGMF " + text + ';', metafile.GetClearTextLine(0).substr(6)) << length;
        EXPECT_EQ("TEXT (30,20) final " + text + ';', metafile.GetClearTextLine(13).substr(6)) << length;
        auto counts = CountCgmElements(bytes);
        EXPECT_EQ(0U, (counts[{-1, -1}])) << length;
        EXPECT_EQ(17U, counts.size()) << length;  // sixteen elements, each once
    }
    EXPECT_EQ("", Encode(std::string(70000, 'x').c_str(), -1));
    EXPECT_EQ("", Encode("x", 1, std::string(70000, 'x').c_str()));
}

TEST(NITFCGMTextTest, FontColourAndHeightAreTheCallers)
{
    short colour[] = {255, 128, 0};
    const std::string clear = ClearText(Metafile(Encode("x", 1, nullptr, "TIMES_ROMAN", colour, 33)));
    for (const char* const line : {"FONTLIST TIMES_ROMAN;\n", "TEXTCOLR 255 128 0;\n", "CHARHEIGHT 33;\n"}) {
        EXPECT_NE(std::string::npos, clear.find(line)) << clear;
    }
    colour[1] = 256;
    EXPECT_EQ("", Encode("x", 1, nullptr, nullptr, colour));
    colour[1] = -1;
    EXPECT_EQ("", Encode("x", 1, nullptr, nullptr, colour));
    EXPECT_EQ("", Encode("x", 1, nullptr, nullptr, nullptr, 0));
    EXPECT_EQ("", Encode(nullptr, 1));
    int length = -1;
    std::size_t size = 0;
    char* out = nullptr;
    EXPECT_TRUE(NITFCGMMetaFile::BinaryEncodeNITFCGMText(&out, nullptr, "four", length, 0, 0, nullptr, size));
    EXPECT_EQ(4, length);
    NITFCGMMetaFile::DeleteCString(out);
    EXPECT_FALSE(NITFCGMMetaFile::BinaryEncodeNITFCGMText(nullptr, nullptr, "four", length, 0, 0, nullptr, size));
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
