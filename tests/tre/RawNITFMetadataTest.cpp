#include "segments/RawNITFMetadataStdDataSegment.h"
#include "tests/foundation/OwnedText.h"
#include "tre/RawNITFMetadata.h"
#include "tre/RawNITFMetadataTRE.h"
#include "tre/TREFactory.h"
#include "tre/TREStore.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::ElementsAreArray;

/// Three defined fields, two of them present; everything may be changed before the first question.
class HostMetadata : public RawNITFMetadata
{
public:
    HostMetadata() : RawNITFMetadata(NITFCnst::NITF_METADATA_TYPE_TEXT, NITFCnst::NITF_VERSION_NUMBER_21) {}
    using RawNITFMetadata::SetNoMetadata;

    bool GetMatadata(const char** aDataType, const EditabilityMap** aEditability, const TextMap** aDescriptions,
                     const SizeMap** aSizes, const std::vector<std::string>** aTags, const TextMap** aValues,
                     const SizeMap** aActualSizes, const TextMap** aLongNames, const TextMap** aTypes,
                     const std::vector<bool>** aBinaryFields) const override
    {
        std::atomic_ref<int>(calls).fetch_add(1);
        if (throws) {
            throw std::runtime_error("not now");
        }
        *aDataType = "TextSegment";
        *aEditability = &editability;
        *aDescriptions = &descriptions;
        *aSizes = &sizes;
        *aTags = &tags;
        *aValues = valuesMissing ? nullptr : &values;
        *aActualSizes = &actualSizes;
        *aLongNames = &longNames;
        *aTypes = &types;
        *aBinaryFields = binaryUnknown ? nullptr : &binary;
        return answer;
    }

    EditabilityMap editability = {{"TE", false}, {"TSOFL", false}, {"ABC", true}};
    TextMap descriptions = {{"TE", "part"}, {"TSOFL", "overflow"}, {"ABC", "letters"}};
    SizeMap sizes = {{"TE", 2}, {"TSOFL", 3}, {"ABC", 4}};
    std::vector<std::string> tags = {"TE", "TSOFL", "ABC"};
    TextMap values = {{"TE", "TE"}, {"ABC", "a\0b "s}};
    SizeMap actualSizes = {{"TE", 2}, {"ABC", 4}};
    TextMap longNames = {{"TE", "Text"}, {"TSOFL", "Overflow"}, {"ABC", "Letters"}};
    TextMap types = {{"TE", "R"}, {"TSOFL", "C"}, {"ABC", "(R)"}};
    std::vector<bool> binary = {false, false, true};
    bool answer = true;
    bool throws = false;
    bool valuesMissing = false;
    bool binaryUnknown = false;
    mutable int calls = 0;
};

std::vector<std::string> Texts(const char** aTexts, std::size_t aCount)
{
    return {aTexts, aTexts + aCount};
}

/// How many of the array queries answer; those that do not must hand out null and 0.
int Answers(const RawNITFMetadata& aMetadata)
{
    using Meta = RawNITFMetadata;
    const std::array texts = {&Meta::GetMetadataFieldName, &Meta::GetMetadataFieldType,
                              &Meta::GetMetadataFieldDescription, &Meta::GetMetadataFieldValue};
    const std::array numbers = {&Meta::GetMetadataFieldSize, &Meta::GetMetadataActualFieldSize};
    int answers = 0;
    const auto ask = [&answers](const auto& aQuestion) {
        const char* something = "";
        const char** tags = &something;
        std::size_t count = 99;
        if (aQuestion(tags, count)) {
            ++answers;
            EXPECT_NE(tags, nullptr);
            EXPECT_NE(count, 0U);
        } else {
            EXPECT_EQ(tags, nullptr);
            EXPECT_EQ(count, 0U);
        }
    };
    const auto askPair = [&](auto aQuery, auto aSomething) {
        ask([&](const char**& aTags, std::size_t& aCount) {
            auto* second = &aSomething;
            const bool answer = (aMetadata.*aQuery)(aTags, second, aCount);
            EXPECT_EQ(second != nullptr, answer);
            return answer;
        });
    };
    for (const auto query : texts) {
        askPair(query, static_cast<const char*>(nullptr));
    }
    for (const auto query : numbers) {
        askPair(query, 0);
    }
    askPair(&Meta::GetMetadataEditability, false);
    ask([&](const char**& aTags, std::size_t& aCount) {
        return aMetadata.GetMetadataOrderedOutputFieldTags(aTags, aCount);
    });
    return answers;
}

constexpr int ALL_QUERIES = 8;

TEST(RawNITFMetadataTest, ArraysHoldWhatTheSubclassHandsOut)
{
    const HostMetadata metadata;
    const char** tags = nullptr;
    const char** texts = nullptr;
    int* sizes = nullptr;
    bool* flags = nullptr;
    std::size_t count = 0;
    ASSERT_TRUE(metadata.GetMetadataFieldName(tags, texts, count));
    EXPECT_THAT(Texts(tags, count), ElementsAre("TE", "TSOFL", "ABC"));
    EXPECT_THAT(Texts(texts, count), ElementsAre("Text", "Overflow", "Letters"));
    ASSERT_TRUE(metadata.GetMetadataFieldType(tags, texts, count));
    EXPECT_THAT(Texts(texts, count), ElementsAre("R", "C", "(R)"));
    ASSERT_TRUE(metadata.GetMetadataFieldDescription(tags, texts, count));
    EXPECT_THAT(Texts(texts, count), ElementsAre("part", "overflow", "letters"));
    ASSERT_TRUE(metadata.GetMetadataFieldSize(tags, sizes, count));
    EXPECT_THAT(std::vector(sizes, sizes + count), ElementsAre(2, 3, 4));
    ASSERT_TRUE(metadata.GetMetadataEditability(tags, flags, count));
    EXPECT_THAT(std::vector(flags, flags + count), ElementsAre(false, false, true));
    ASSERT_TRUE(metadata.GetBinaryFieldList(flags, count));
    EXPECT_THAT(std::vector(flags, flags + count), ElementsAre(false, false, true));
    EXPECT_TRUE(metadata.ContainsBinaryFields());

    ASSERT_TRUE(metadata.GetMetadataFieldValue(tags, texts, count));
    EXPECT_THAT(Texts(tags, count), ElementsAre("ABC", "TE"));
    EXPECT_EQ(std::string(texts[0], 5), "a\0b \0"s);
    EXPECT_STREQ(texts[1], "TE");
    ASSERT_TRUE(metadata.GetMetadataActualFieldSize(tags, sizes, count));
    EXPECT_THAT(Texts(tags, count), ElementsAre("ABC", "TE"));
    EXPECT_THAT(std::vector(sizes, sizes + count), ElementsAre(4, 2));
    ASSERT_TRUE(metadata.GetMetadataOrderedOutputFieldTags(tags, count));
    EXPECT_THAT(Texts(tags, count), ElementsAre("TE", "ABC"));
    EXPECT_STREQ(metadata.GetDataType(), "TextSegment");

    const char* value = nullptr;
    std::size_t length = 0;
    ASSERT_TRUE(metadata.GetFieldValue("ABC", value, length));
    EXPECT_EQ(std::string(value, length), "a\0b "s);
    EXPECT_FALSE(metadata.GetFieldValue("TSOFL", value, length)) << "defined, but not present";
    EXPECT_EQ(value, nullptr);
    EXPECT_EQ(length, 0U);
    EXPECT_FALSE(metadata.GetFieldValue(nullptr, value, length));
}

TEST(RawNITFMetadataTest, ArraysAreBuiltOnce)
{
    const HostMetadata metadata;
    ASSERT_EQ(Answers(metadata), ALL_QUERIES);
    const char** first[2] = {};
    const char** second[2] = {};
    std::size_t count = 0;
    metadata.GetMetadataFieldValue(first[0], first[1], count);
    metadata.GetMetadataFieldValue(second[0], second[1], count);
    EXPECT_THAT(first, ElementsAreArray(second));
    EXPECT_EQ(metadata.calls, 1);
}

TEST(RawNITFMetadataTest, SeveralThreadsMayAskFirst)
{
    const HostMetadata metadata;
    std::array<const char**, 8> arrays{};
    std::vector<std::thread> threads;
    for (const char**& array : arrays) {
        threads.emplace_back([&] {
            std::size_t count = 0;
            metadata.GetMetadataOrderedOutputFieldTags(array, count);
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_NE(arrays[0], nullptr);
    EXPECT_THAT(arrays, testing::Each(arrays[0])) << "who is second to finish throws his arrays away";
}

TEST(RawNITFMetadataTest, ContainersThatDisagreeAnswerNothingUntilTheyAgree)
{
    using Change = std::function<void(HostMetadata&)>;
    const std::vector<std::pair<const char*, Change>> changes = {
        {"refusal", [](HostMetadata& a) { a.answer = false; }},
        {"exception", [](HostMetadata& a) { a.throws = true; }},
        {"container missing", [](HostMetadata& a) { a.valuesMissing = true; }},
        {"no field defined", [](HostMetadata& a) { a.tags.clear(); }},
        {"no field present", [](HostMetadata& a) { a.values.clear(), a.actualSizes.clear(); }},
        {"editability", [](HostMetadata& a) { a.editability.erase("TE"); }},
        {"descriptions", [](HostMetadata& a) { a.descriptions["X"] = ""; }},
        {"sizes", [](HostMetadata& a) { a.sizes.erase("ABC"); }},
        {"types", [](HostMetadata& a) { a.types.erase("ABC"); }},
        {"long names", [](HostMetadata& a) { a.longNames["X"] = ""; }},
        {"actual sizes", [](HostMetadata& a) { a.actualSizes["X"] = 1; }},
        {"binary fields", [](HostMetadata& a) { a.binary.pop_back(); }},
        {"same number, other field", [](HostMetadata& a) { a.types.erase("TE"), a.types["X"] = "R"; }},
        {"same number, other present field",
         [](HostMetadata& a) { a.actualSizes.erase("TE"), a.actualSizes["X"] = 1; }},
        {"tag twice", [](HostMetadata& a) { a.tags[1] = "ABC"; }},
        {"flag", [](HostMetadata& a) { a.SetNoMetadata(true); }},
    };
    for (const auto& [name, change] : changes) {
        SCOPED_TRACE(name);
        HostMetadata metadata;
        const HostMetadata sound;
        change(metadata);
        bool* flags = nullptr;
        std::size_t count = 99;
        std::vector<bool> list = {true};
        const char* value = "";
        EXPECT_EQ(Answers(metadata), 0);
        EXPECT_FALSE(metadata.GetBinaryFieldList(flags, count));
        EXPECT_EQ(count, 0U);
        EXPECT_FALSE(metadata.GetBinaryFieldList(list));
        EXPECT_TRUE(list.empty());
        EXPECT_FALSE(metadata.ContainsBinaryFields());
        EXPECT_FALSE(metadata.GetFieldValue("ABC", value, count));
        EXPECT_EQ(value, nullptr);
        metadata = sound;
        EXPECT_EQ(Answers(metadata), ALL_QUERIES) << "a failed build starts afresh";
    }
}

TEST(RawNITFMetadataTest, BinaryFieldsMayBeUnknown)
{
    HostMetadata metadata;
    metadata.binaryUnknown = true;
    EXPECT_EQ(Answers(metadata), ALL_QUERIES);
    std::vector<bool> list = {true};
    EXPECT_FALSE(metadata.GetBinaryFieldList(list));
    EXPECT_TRUE(list.empty());
    EXPECT_FALSE(metadata.ContainsBinaryFields());
}

TEST(RawNITFMetadataTest, PresentFieldsWithoutDefinitionAreShownLast)
{
    HostMetadata metadata;
    metadata.values["AAA"] = "1";
    metadata.values["ZZZ"] = "2";
    metadata.actualSizes["AAA"] = metadata.actualSizes["ZZZ"] = 1;
    const char** tags = nullptr;
    std::size_t count = 0;
    ASSERT_TRUE(metadata.GetMetadataOrderedOutputFieldTags(tags, count));
    EXPECT_THAT(Texts(tags, count), ElementsAre("TE", "ABC", "AAA", "ZZZ"));
}

struct Release
{
    void operator()(TRE* aTre) const { TREFactory::Destroy(&aTre); }
};
using TrePointer = std::unique_ptr<TRE, Release>;

TrePointer MakeTre(const char* aTag, const std::string& aData, TRE::Type aType = TRE::TRE_TYPE_CONTROLLED_EXTENSION)
{
    TRE* tre = nullptr;
    Text errors;
    TREFactory::Create(aTag, aData.data(), aType, &tre, false, false, errors.Out(), aData.size());
    return TrePointer(tre);
}

std::string BlockaData()
{
    return "01"
           "00000"
           "01234"
           "   "
           "   "
           "a\0\0\0\0\0\0\0\0\0\0\0\0\0\0z"
           "+32.100000-117.000000"
           "+32.000000-117.000000"
           "+32.000000-117.100000"
           "+32.100000-117.100000"
           "010.0"s;
}

TEST(RawNITFMetadataTest, TreMetadataOutliveTheirTre)
{
    auto tre = MakeTre("BLOCKA", BlockaData());
    const std::vector<const char*>& fields = *tre->GetAllTreFields();
    const std::vector<std::string> names(fields.begin(), fields.end());
    const std::string description = tre->GetTREDescription();
    const std::string group = tre->GetTRERegisterGroup();
    const auto infos = *tre->GetAllTreFieldInfos();
    auto editability = *tre->GetFieldEditabilityMap();
    const RawNITFMetadata* const owned = tre->GetAllTreMetadata();
    ASSERT_NE(owned, nullptr);
    EXPECT_EQ(owned, tre->GetAllTreMetadata());
    const RawNITFMetadataTRE metadata = dynamic_cast<const RawNITFMetadataTRE&>(*owned);
    tre.reset();

    EXPECT_EQ(metadata.GetMetadataTypeCode(), NITFCnst::NITF_METADATA_TYPE_TRE);
    EXPECT_STREQ(metadata.GetDataType(), "TRE");
    EXPECT_STREQ(metadata.GetTRECERETag(), "BLOCKA");
    EXPECT_STREQ(metadata.GetTREType(), "CE");
    EXPECT_STREQ(metadata.GetTREName(), "Image Block Information");
    EXPECT_EQ(metadata.GetTREDescription(), description);
    EXPECT_EQ(metadata.GetTRERegistrationGroup(), group);
    EXPECT_STREQ(metadata.GetSecurityClassification(), "UNKNOWN");
    EXPECT_FALSE(metadata.IsGenericTRE());
    EXPECT_FALSE(metadata.ContainsBinaryFields());
    EXPECT_EQ(Answers(metadata), ALL_QUERIES);

    const char** tags = nullptr;
    const char** texts = nullptr;
    int* sizes = nullptr;
    bool* flags = nullptr;
    std::size_t count = 0;
    ASSERT_TRUE(metadata.GetMetadataFieldDescription(tags, texts, count));
    EXPECT_THAT(Texts(tags, count), ElementsAreArray(names));
    ASSERT_TRUE(metadata.GetMetadataFieldSize(tags, sizes, count));
    ASSERT_TRUE(metadata.GetMetadataEditability(tags, flags, count));
    for (std::size_t i = 0; i != count; ++i) {
        const TreDetailedInfo& info = infos.at(tags[i]);
        EXPECT_EQ(texts[i], info.description);
        EXPECT_EQ(sizes[i], static_cast<int>(info.width));
        EXPECT_EQ(flags[i], editability[tags[i]] == "T") << tags[i];
    }
    ASSERT_TRUE(metadata.GetMetadataOrderedOutputFieldTags(tags, count));
    EXPECT_THAT(Texts(tags, count), ElementsAreArray(names));
    std::string joined;
    for (std::size_t i = 0; i != count; ++i) {
        const char* value = nullptr;
        std::size_t length = 0;
        ASSERT_TRUE(metadata.GetFieldValue(tags[i], value, length));
        joined.append(value, length);
    }
    EXPECT_EQ(joined, BlockaData());

    Text data;
    ASSERT_TRUE(metadata.CopyTRERawData(data.Out(), count));
    EXPECT_EQ(std::string(data.Get(), count), BlockaData());
    EXPECT_EQ(metadata.GetRawDataStreamSize(), 123U);
}

TEST(RawNITFMetadataTest, AnAssignedTreMetadataShowsTheOtherTre)
{
    const auto first = MakeTre("BLOCKA", BlockaData());
    const auto second = MakeTre("BLOCKA", BlockaData().replace(0, 2, "77"));
    RawNITFMetadataTRE metadata(*first);
    ASSERT_EQ(Answers(metadata), ALL_QUERIES);
    metadata = RawNITFMetadataTRE(*second, NITFCnst::NITF_VERSION_NUMBER_20, "S");
    const char* value = nullptr;
    std::size_t length = 0;
    ASSERT_TRUE(metadata.GetFieldValue("BLOCK_INSTANCE", value, length));
    EXPECT_EQ(std::string(value, length), "77");
    EXPECT_STREQ(metadata.GetSecurityClassification(), "S");
    EXPECT_EQ(metadata.GetNITFFileVersionNumber(), NITFCnst::NITF_VERSION_NUMBER_20);
}

TEST(RawNITFMetadataTest, AGenericTreHasItsBytesButNoMetadata)
{
    const auto tre = MakeTre("NOSUCH", "x\0y"s, TRE::TRE_TYPE_REGISTERED_EXTENSION);
    EXPECT_EQ(tre->GetAllTreMetadata(), nullptr);
    const RawNITFMetadataTRE metadata(*tre);
    EXPECT_TRUE(metadata.HasNoMetadata());
    EXPECT_TRUE(metadata.IsGenericTRE());
    EXPECT_STREQ(metadata.GetTRECERETag(), "NOSUCH");
    EXPECT_EQ(Answers(metadata), 0);
    std::size_t length = 0;
    const char* const data = metadata.GetRawDataStream(length);
    EXPECT_EQ(std::string(data, length), "x\0y"s);
}

TEST(RawNITFMetadataTest, HandingOutNeedsEveryPointer)
{
    const auto tre = MakeTre("BLOCKA", BlockaData());
    const RawNITFMetadataTRE metadata(*tre);
    for (int missing = 0; missing != 11; ++missing) {
        const char* dataType = nullptr;
        const RawNITFMetadata::EditabilityMap* editability = nullptr;
        const RawNITFMetadata::SizeMap* sizes[2] = {};
        const RawNITFMetadata::TextMap* texts[4] = {};
        const std::vector<std::string>* tags = nullptr;
        const std::vector<bool>* binary = nullptr;
        int place = 0;
        const auto unlessMissing = [&](auto* aPointer) { return place++ == missing ? nullptr : aPointer; };
        const auto a = unlessMissing(&dataType);
        const auto b = unlessMissing(&editability);
        const auto c = unlessMissing(&texts[0]);
        const auto d = unlessMissing(&sizes[0]);
        const auto e = unlessMissing(&tags);
        const auto f = unlessMissing(&texts[1]);
        const auto g = unlessMissing(&sizes[1]);
        const auto h = unlessMissing(&texts[2]);
        const auto i = unlessMissing(&texts[3]);
        const auto j = unlessMissing(&binary);
        EXPECT_EQ(metadata.GetMatadata(a, b, c, d, e, f, g, h, i, j), missing == place) << missing;
    }
}

TEST(RawNITFMetadataTest, ASegmentHasTheMetadataOfItsTres)
{
    RawNITFMetadataStdDataSegment::Contents contents;
    contents.typeCode = NITFCnst::NITF_METADATA_TYPE_IMAGE;
    contents.dataType = NITFCnst::KEY_CSM_NITF_METADATA_IMAGE_SEGMENT;
    contents.versionNumber = NITFCnst::NITF_VERSION_NUMBER_21;
    contents.classification = "R";
    RawNITFMetadataField field;
    field.tag = "IM";
    field.declaredSize = 2;
    EXPECT_TRUE(contents.fields.AddPresent(field, "IM"));
    EXPECT_FALSE(contents.fields.AddPresent(field, "XX")) << "one of this tag is there";
    field.tag = "UDID";
    EXPECT_TRUE(contents.fields.AddDefined(field));
    contents.rawData = "IM\0"s;
    RawNITFMetadataStdDataSegment segment(std::move(contents));

    EXPECT_STREQ(segment.GetDataType(), "ImageSegment");
    EXPECT_EQ(segment.GetMetadataTypeCode(), NITFCnst::NITF_METADATA_TYPE_IMAGE);
    const char** tags = nullptr;
    const char** texts = nullptr;
    std::size_t count = 0;
    EXPECT_TRUE(segment.GetMetadataFieldName(tags, texts, count));
    EXPECT_THAT(Texts(tags, count), ElementsAre("IM", "UDID"));
    EXPECT_TRUE(segment.GetMetadataFieldValue(tags, texts, count));
    EXPECT_THAT(Texts(texts, count), ElementsAre("IM"));
    segment.GetRawDataStream(count);
    EXPECT_EQ(count, 3U);

    const RawNITFMetadata* const* tres = nullptr;
    std::vector<const RawNITFMetadata*> list(3);
    EXPECT_FALSE(segment.GetRawNITFMetadataTREs(tres, count));
    EXPECT_FALSE(segment.GetRawNITFMetadataOverflowTREs(list));
    EXPECT_TRUE(list.empty());
    {
        TREStore store;
        store.Add(MakeTre("NOSUCH", "1").release());
        store.Add(MakeTre("BLOCKA", BlockaData()).release());
        const auto overflow = MakeTre("BLOCKA", BlockaData().replace(0, 2, "55"));
        segment.SetTRERawNITFMetadata(store, {nullptr, overflow.get()});
    }
    ASSERT_TRUE(segment.GetRawNITFMetadataTREs(tres, count));
    ASSERT_EQ(count, 2U);
    const auto& second = dynamic_cast<const RawNITFMetadataTRE&>(*tres[1]);
    EXPECT_STREQ(second.GetTRECERETag(), "BLOCKA");
    EXPECT_STREQ(second.GetSecurityClassification(), "R");
    EXPECT_EQ(second.GetNITFFileVersionNumber(), NITFCnst::NITF_VERSION_NUMBER_21);
    ASSERT_TRUE(segment.GetRawNITFMetadataOverflowTREs(list));
    ASSERT_EQ(list.size(), 1U);
    const char* value = nullptr;
    ASSERT_TRUE(list[0]->GetFieldValue("BLOCK_INSTANCE", value, count));
    EXPECT_STREQ(value, "55");

    segment.SetTRERawNITFMetadata(TREStore(), {});
    EXPECT_FALSE(segment.GetRawNITFMetadataTREs(list));
    EXPECT_FALSE(segment.GetRawNITFMetadataOverflowTREs(tres, count));
    EXPECT_EQ(tres, nullptr);
    EXPECT_EQ(count, 0U);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests
