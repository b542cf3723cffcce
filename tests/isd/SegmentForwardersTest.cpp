// What the object for the whole file answers about a segment of any kind, and about the file header.

#include "tests/support/NitfBuilder.h"
#include "tests/support/OpenedIsd.h"

#include <cstdio>
#include <functional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using std::string_literals::operator""s;
using testing::HasSubstr;

struct KindOfFile
{
    Format format;
    NITFCnst::DataSegmentType kind;
    const char* classification;
    bool isVersionSpecific;
};

class SegmentKindsTest : public testing::TestWithParam<KindOfFile>
{
protected:
    OpenedIsd Open() const
    {
        NitfBuilder builder(GetParam().format);
        builder.File().Area("XHD", Tre("HEADER", "of the header"));
        builder.AddImage().Area("IXSHD", Tre("OFIMAG", "data"));
        builder.AddGraphic().Area("SXSHD", Tre("OFDRAW", "data"));
        if (GetParam().format == Format::Nitf20) {
            builder.AddLabel().Area("LXSHD", Tre("OFLABL", "data"));
        }
        builder.AddText().Area("TXSHD", Tre("OFTEXT", "data"));
        builder.AddDes("SOME DES", "data");
        builder.AddRes("SOME RES", "data");
        return OpenedIsd::OfBytes(builder.Bytes());
    }
};

constexpr KindOfFile KINDS[] = {
    {Format::Nitf21, NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, "FSCLAS", false},
    {Format::Nitf20, NITFCnst::DATA_SEGMENT_TYPE_IMAGE, "ISCLAS", false},
    {Format::Nitf21, NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC, "SSCLAS", true},
    {Format::Nitf20, NITFCnst::DATA_SEGMENT_TYPE_SYMBOL, "SSCLAS", true},
    {Format::Nitf20, NITFCnst::DATA_SEGMENT_TYPE_LABEL, "LSCLAS", true},
    {Format::Nsif10, NITFCnst::DATA_SEGMENT_TYPE_TEXT, "TSCLAS", false},
    {Format::Nitf21, NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION, "DECLAS", false},
    {Format::Nitf21, NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION, "RECLAS", false},
};

INSTANTIATE_TEST_SUITE_P(All, SegmentKindsTest, testing::ValuesIn(KINDS),
                         [](const auto& aInfo) { return NITFStdDataSegment::GetDataSegmentName(aInfo.param.kind); });

TEST_P(SegmentKindsTest, AgreeWithTheSegmentAndRefuseANumberBeyond)
{
    const OpenedIsd isd = Open();
    const auto& [format, kind, classification, isVersionSpecific] = GetParam();
    const std::string name = NITFStdDataSegment::GetDataSegmentName(kind);
    const NITFFieldSegment* const segment = isd->GetSegment(kind, 0);
    ASSERT_NE(segment, nullptr);
    for (const std::size_t index : {std::size_t{0}, std::size_t{1}}) {
        SCOPED_TRACE(index);
        const bool there = index == 0;
        const char* value = nullptr;
        std::size_t length = 0;
        const TRE** tres = nullptr;
        std::size_t count = 77;
        ImageSupportDataNITF::CCSInformation place;
        const std::string one = name + ':' + std::to_string(index);
        const auto free = [&] {
            NITFStdDataSegment::DeleteTREPointerArray(tres, count, false);
            return true;
        };
        bool flag = false;
        double number = 0;
        long whole = 0;
        unsigned long natural = 0;
        const OpenedIsd other = Open();
        std::FILE* const out = std::tmpfile();
        const std::vector<std::pair<const char*, std::function<bool()>>> queries = {
            {"GetSegment", [&] { return isd->GetSegment(kind, index) == (there ? segment : nullptr) && there; }},
            {"GetDataSegmentTRE",
             [&] { return isd->GetDataSegmentTRE(kind, index, "X", tres, count, true) && free(); }},
            {"GetAllDataSegmentTREs",
             [&] {
                 return isd->GetAllDataSegmentTREs(kind, index, tres, count, true) &&
                        count == segment->GetTREStore().Size() && free();
             }},
            {"IsDataSegmentField", [&] { return isd->IsDataSegmentField(kind, index, classification); }},
            {"GetFieldAsString", [&] { return isd->GetFieldAsString(one.c_str(), classification, value, length); }},
            {"IsFieldValueInRange", [&] { return isd->IsFieldValueInRange(one.c_str(), classification, "U") == 1; }},
            {"SerializeDataSegment", [&] { return isd->SerializeDataSegment(one.c_str()) != nullptr; }},
            {"CompareDataSegment", [&] { return isd->CompareDataSegment(kind, *other, index); }},
        };
        for (const auto& [query, ask] : queries) {
            EXPECT_EQ(ask(), there) << query;
            EXPECT_EQ(isd->GetErrorMessage() == nullptr, there) << query;
        }
        const std::vector<std::pair<const char*, std::function<bool()>>> never = {
            {"GetFieldAsBool", [&] { return isd->GetFieldAsBool(one.c_str(), classification, flag); }},
            {"GetFieldAsLong", [&] { return isd->GetFieldAsLong(one.c_str(), classification, whole); }},
            {"GetFieldAsUnsignedLong",
             [&] { return isd->GetFieldAsUnsignedLong(one.c_str(), classification, natural); }},
            {"GetFieldAsDouble", [&] { return isd->GetFieldAsDouble(one.c_str(), classification, number); }},
            {"IsDataSegmentTRE", [&] { return isd->IsDataSegmentTRE(kind, index, "NOTRE"); }},
            {"IsDataSegmentField", [&] { return isd->IsDataSegmentField(kind, index, "NO_SUCH"); }},
        };
        for (const auto& [query, ask] : never) {
            EXPECT_FALSE(ask()) << query;
            EXPECT_NE(isd->GetErrorMessage(), nullptr) << query;
        }
        const std::vector<std::pair<const char*, std::function<bool()>>> specific = {
            {"GetVersionSpecificDataSegment",
             [&] { return isd->GetVersionSpecificDataSegment(kind, index) != nullptr; }},
            {"GetVersionSpecificDataSegmentTRE",
             [&] { return isd->GetVersionSpecificDataSegmentTRE(kind, index, "X", tres, count, true) && free(); }},
            {"GetAllVersionSpecificDataSegmentTREs",
             [&] { return isd->GetAllVersionSpecificDataSegmentTREs(kind, index, tres, count, true) && free(); }},
            {"GetVersionSpecificDataSegmentCCSInformation",
             [&] { return isd->GetVersionSpecificDataSegmentCCSInformation(kind, place, index); }},
        };
        for (const auto& [query, ask] : specific) {
            EXPECT_EQ(ask(), there && isVersionSpecific) << query;
            EXPECT_EQ(isd->GetErrorMessage() == nullptr, there && isVersionSpecific) << query;
        }
        if (kind != NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER) {
            EXPECT_EQ(isd->WriteSegmentData(kind, index, out), there);
            EXPECT_EQ(isd->GetErrorMessage() == nullptr, there);
        }
        std::fclose(out);
    }
}

TEST(SegmentForwardersTest, OfOneKindRefuseANumberBeyond)
{
    NitfBuilder builder;
    builder.AddText();
    builder.AddDes("SOME DES", "data");
    builder.AddRes("SOME RES", "data");
    builder.AddGraphic();
    const OpenedIsd isd = OpenedIsd::OfBytes(builder.Bytes());
    const std::vector<std::pair<const char*, std::function<const void*(std::size_t)>>> getters = {
        {"TextSegment", [&](std::size_t i) { return isd->GetTextSubheader(i); }},
        {"DataExtensionSegment", [&](std::size_t i) { return isd->GetDataExtensionSegment(i); }},
        {"ReservedExtensionSegment", [&](std::size_t i) { return isd->GetReservedExtensionSegment(i); }},
        {"GraphicSegment", [&](std::size_t i) { return isd->GetGraphicSubheader(i); }},
    };
    for (const auto& [name, get] : getters) {
        EXPECT_NE(get(0), nullptr) << name;
        EXPECT_EQ(isd->GetErrorMessage(), nullptr);
        EXPECT_EQ(get(1), nullptr) << name;
        EXPECT_THAT(isd->GetErrorMessage(), HasSubstr(name + " 1"s));
    }
    EXPECT_EQ(isd->GetSymbolSubheader(0), nullptr);
    EXPECT_NE(isd->GetErrorMessage(), nullptr);
    EXPECT_EQ(isd->GetLabelSubheader(0), nullptr);
    EXPECT_FALSE(isd->IsOverflowPlaced(1));
    EXPECT_NE(isd->GetErrorMessage(), nullptr);
    EXPECT_FALSE(isd->SetCurrentImageSegment(0));
    EXPECT_NE(isd->GetErrorMessage(), nullptr);
    const char* value = nullptr;
    std::size_t length = 0;
    EXPECT_FALSE(isd->GetFieldAsString("NoSuchSegment", "X", value, length));
    EXPECT_THAT(isd->GetErrorMessage(), HasSubstr("\"NoSuchSegment\""));
}

TEST(SegmentForwardersTest, OfTheFileAgreeWithItsHeader)
{
    for (const auto& [format, fhdr, fver] :
         {std::tuple{Format::Nitf20, "NITF02.00", "02.00"}, std::tuple{Format::Nitf21, "NITF", "02.10"},
          std::tuple{Format::Nsif10, "NSIF", "01.00"}}) {
        NitfBuilder builder(format);
        builder.File().Set("CLEVEL", 5).Set("FTITLE", "A title").Area("XHD", Tre("ONEHDR", "ten bytes."));
        const OpenedIsd isd = OpenedIsd::OfBytes(builder.Bytes());
        EXPECT_STREQ(isd->GetNITFFileHeaderFieldFHDR(), fhdr);
        EXPECT_STREQ(isd->GetNITFFileHeaderFieldFVER(), fver);
        int level = 0;
        EXPECT_TRUE(isd->GetNITFFileHeaderFieldCLEVEL(level));
        EXPECT_EQ(level, 5);
        EXPECT_STREQ(isd->GetNITFFileHeaderFieldFDT(), isd->GetNITFFileHeader()->GetFieldValueFDT());
        EXPECT_STREQ(isd->GetNITFFileHeaderFieldFSCLAS(), "U");
        EXPECT_EQ(std::string(isd->GetNITFFileTitle()).substr(0, 7), "A title");
        const TRE** tres = nullptr;
        std::size_t count = 0;
        ASSERT_TRUE(isd->GetNITFFileHeaderTRE("ONEHDR", tres, count, false));
        EXPECT_EQ(count, 1U);
        NITFStdDataSegment::DeleteTREPointerArray(tres, count, false);
        ASSERT_TRUE(isd->GetAllNITFFileHeaderTREs(tres, count));
        EXPECT_EQ(count, 1U);
        NITFStdDataSegment::DeleteTREPointerArray(tres, count, false);
        ASSERT_TRUE(isd->GetAllFileHeaderTREs(tres, count, false));
        EXPECT_EQ(count, 1U);
        NITFStdDataSegment::DeleteTREPointerArray(tres, count, false);
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
