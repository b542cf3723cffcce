// The raw metadata of every header of a file against the fields that its segments list.

#include "segments/RawNITFMetadataStdDataSegment.h"
#include "tests/support/Corpus.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/OpenedIsd.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using List = ImageSupportDataNITF::MetadataList;

/// The fields of a header or TRE, one behind the other, as the owner lists them.
template<typename Owner>
std::vector<std::pair<std::string, std::string>> FieldsOf(const Owner& aOwner)
{
    std::vector<std::pair<std::string, std::string>> fields;
    std::string name;
    const char* value = nullptr;
    std::size_t length = 0;
    for (std::size_t i = 0; aOwner.GetFieldAt(i, name, value, length); ++i) {
        fields.emplace_back(name, std::string(value, length));
    }
    return fields;
}

void ExpectFields(const std::vector<std::pair<std::string, std::string>>& aFields, const RawNITFMetadata& aMetadata)
{
    const char** tags = nullptr;
    std::size_t count = 77;
    EXPECT_EQ(aMetadata.GetMetadataOrderedOutputFieldTags(tags, count), !aFields.empty());
    ASSERT_EQ(count, aFields.size());
    for (std::size_t i = 0; i != count; ++i) {
        const char* value = nullptr;
        std::size_t length = 0;
        ASSERT_TRUE(aMetadata.GetFieldValue(tags[i], value, length));
        EXPECT_EQ(aFields[i].first, tags[i]);
        EXPECT_EQ(aFields[i].second, std::string_view(value, length)) << tags[i];
    }
    const char** others = nullptr;
    int* sizes = nullptr;
    EXPECT_EQ(aMetadata.GetMetadataActualFieldSize(others, sizes, count), !aFields.empty());
    const std::map<std::string, std::string> values(aFields.begin(), aFields.end());
    for (std::size_t i = 0; i != count; ++i) {
        EXPECT_EQ(static_cast<std::size_t>(sizes[i]), values.at(others[i]).size()) << others[i];
    }
    const char** again = nullptr;
    aMetadata.GetMetadataOrderedOutputFieldTags(again, count);
    EXPECT_EQ(again, tags) << "built once";
}

void ExpectTREs(const TREStore& aTres, const std::vector<const RawNITFMetadata*>& aMetadata)
{
    ASSERT_EQ(aTres.Size(), aMetadata.size());
    for (std::size_t i = 0; i != aMetadata.size(); ++i) {
        const TRE& tre = *aTres.InOrder()[i];
        SCOPED_TRACE(tre.GetTag());
        const auto& metadata = dynamic_cast<const RawNITFMetadataTRE&>(*aMetadata[i]);
        EXPECT_STREQ(tre.GetTag(), metadata.GetTRECERETag());
        ExpectFields(FieldsOf(tre), metadata);
        std::size_t length = 0;
        std::size_t rawLength = 0;
        const char* const data = tre.GetRawTREDataString(length);
        const char* const raw = metadata.GetRawDataStream(rawLength);
        EXPECT_EQ(std::string_view(data, length), std::string_view(raw == nullptr ? "" : raw, rawLength));
    }
}

/// All headers of a kind, in both forms; answers how many there are.
std::size_t ExpectKind(const ImageSupportDataNITF& aIsd, NITFCnst::DataSegmentType aKind, const List& aList)
{
    std::size_t next = 0;
    const std::size_t places = aKind == NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER ? 1
                               : aIsd.GetSegmentInfos().Get(aKind) == nullptr
                                   ? 0
                                   : aIsd.GetSegmentInfos().Get(aKind)->size();
    for (std::size_t i = 0; i != places; ++i) {
        const NITFFieldSegment* const segment = aIsd.GetSegment(aKind, i);
        if (segment == nullptr) {
            continue;
        }
        SCOPED_TRACE(NITFStdDataSegment::GetDataSegmentName(aKind) + std::string(" ") + std::to_string(i));
        if (next >= aList.size()) {
            ADD_FAILURE() << "no raw metadata";
            return next;
        }
        const RawNITFMetadataStdDataSegment& metadata = *aList[next++];
        ExpectFields(FieldsOf(*segment), metadata);
        std::size_t length = 0;
        std::size_t rawLength = 0;
        const char* const header = segment->GetRawHeader(length);
        const char* const raw = metadata.GetRawDataStream(rawLength);
        EXPECT_EQ(std::string_view(header, length), std::string_view(raw, rawLength));
        std::vector<const RawNITFMetadata*> tres;
        if (aKind != NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION) {
            metadata.GetRawNITFMetadataTREs(tres);
            ExpectTREs(segment->GetTREStore(), tres);
        }
        metadata.GetRawNITFMetadataOverflowTREs(tres);
        ExpectTREs(segment->GetOverflowTREStore(), tres);
    }
    EXPECT_EQ(next, aList.size());
    return next;
}

/// All headers of a file, by all of the operations; answers how many there are.
std::size_t ExpectAll(const ImageSupportDataNITF& aIsd)
{
    const auto both = [&](auto aFill, auto aHand) {
        List list{nullptr};
        const bool filled = aFill(list);
        ImageSupportDataNITF::MetadataArray array = nullptr;
        std::size_t count = 77;
        EXPECT_EQ(aHand(array, count), filled);
        EXPECT_EQ(List(array, array + count), list);
        EXPECT_EQ(filled, !list.empty());
        return list;
    };
    using Array = ImageSupportDataNITF::MetadataArray;
    std::size_t headers = 0;
    headers += ExpectKind(aIsd, NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER,
                          both([&](List& aList) { return aIsd.GetAllMetadataNITFFileHeader(aList); },
                               [&](Array& a, std::size_t& n) { return aIsd.GetAllMetadataNITFFileHeader(a, n); }));
    headers += ExpectKind(aIsd, NITFCnst::DATA_SEGMENT_TYPE_IMAGE,
                          both([&](List& aList) { return aIsd.GetAllMetadataImageSegments(aList); },
                               [&](Array& a, std::size_t& n) { return aIsd.GetAllMetadataImageSegments(a, n); }));
    headers += ExpectKind(aIsd, NITFCnst::DATA_SEGMENT_TYPE_TEXT,
                          both([&](List& aList) { return aIsd.GetAllMetadataTextSegments(aList); },
                               [&](Array& a, std::size_t& n) { return aIsd.GetAllMetadataTextSegments(a, n); }));
    headers += ExpectKind(aIsd, NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION,
                          both([&](List& aList) { return aIsd.GetAllMetadataDESs(aList); },
                               [&](Array& a, std::size_t& n) { return aIsd.GetAllMetadataDESs(a, n); }));
    headers += ExpectKind(aIsd, NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION,
                          both([&](List& aList) { return aIsd.GetAllMetadataRESs(aList); },
                               [&](Array& a, std::size_t& n) { return aIsd.GetAllMetadataReservedSegments(a, n); }));
    const bool is20 = aIsd.GetNITFFileVersionCode() == NITFCnst::NITF_VERSION_NUMBER_20;
    for (const auto& [kind, inOld] :
         {std::pair{NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC, false}, std::pair{NITFCnst::DATA_SEGMENT_TYPE_SYMBOL, true},
          std::pair{NITFCnst::DATA_SEGMENT_TYPE_LABEL, true}}) {
        const char* const name = NITFStdDataSegment::GetDataSegmentName(kind);
        const List list =
            both([&](List& aList) { return aIsd.GetAllMetadataVersionSpecificDataSegments(name, aList); },
                 [&](Array& a, std::size_t& n) { return aIsd.GetAllMetadataVersionSpecificDataSegments(name, a, n); });
        EXPECT_EQ(aIsd.GetErrorMessage() == nullptr, inOld == is20) << name;
        headers += ExpectKind(aIsd, kind, list);
    }
    List none{nullptr};
    EXPECT_FALSE(aIsd.GetAllMetadataVersionSpecificDataSegments("TextSegment", none));
    EXPECT_TRUE(none.empty());
    EXPECT_NE(aIsd.GetErrorMessage(), nullptr);
    return headers;
}

TEST(RawMetadataOfFilesTest, IsThatOfEveryHeaderTreAndOverflowTre)
{
    for (const Format format : {Format::Nitf20, Format::Nitf21, Format::Nsif10}) {
        NitfBuilder file(format);
        file.File().Area("XHD", Tre("ONEHDR", "ten bytes!") + Tre("ACCPOB", "damaged"));
        file.AddImage().Area("IXSHD", Tre("OWNTRE", std::string("\0zero", 5)), 1);
        file.AddImage();
        file.AddGraphic().Area("SXSHD", Tre("OFDRAW", "data"));
        if (format == Format::Nitf20) {
            file.AddLabel();
        }
        file.AddText();
        file.AddOverflow("IXSHD", 1, Tre("OVERA", "first"));
        file.AddRes("SOME RES", "data");
        const OpenedIsd isd = OpenedIsd::OfBytes(file.Bytes());
        EXPECT_EQ(ExpectAll(*isd), 1 + file.Segments().size());
    }
}

TEST(RawMetadataOfFilesTest, IsThatOfEveryHeaderOfRealFiles)
{
    if (!std::filesystem::exists(CorpusFile("."))) {
        GTEST_SKIP() << "the corpus is absent";
    }
    for (const auto& entry : std::filesystem::directory_iterator(CorpusFile("."))) {
        SCOPED_TRACE(entry.path().filename());
        const OpenedIsd isd = OpenedIsd::IfReadable(entry.path());
        if (isd) {
            EXPECT_GE(ExpectAll(*isd), 1U);
        }
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
