// What holds for every tag alike, from its shortest record through the factory and back.

#include "fields/FieldWalk.h"
#include "foundation/CSMUtilString.h"
#include "tests/tre/TreLayoutList.h"
#include "tre/TREFactory.h"

#include <memory>
#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Detail;

struct TreDestroyer
{
    void operator()(TRE* aTre) const { TREFactory::Destroy(&aTre); }
};
using OwnedTre = std::unique_ptr<TRE, TreDestroyer>;

struct Made
{
    OwnedTre tre;
    std::string errors;
};

Made Make(const char* aTag, const std::string& aData)
{
    TRE* tre = nullptr;
    char* errors = nullptr;
    TREFactory::Create(aTag, aData.data(), TRE::TRE_TYPE_CONTROLLED_EXTENSION, &tre, false, false, &errors,
                       aData.size());
    Made made{OwnedTre(tre), errors == nullptr ? "" : errors};
    Util::CSMUtilString::DeleteCString(errors);
    return made;
}

class TreRegistryTest : public testing::TestWithParam<NamedLayout>
{
protected:
    std::string ShortestRecord() const { return CSM::ShortestRecord(GetParam().layout().table); }
    /// A record of a table with an open end.
    std::string OpenRecord() const
    {
        FieldStore store(GetParam().layout().table);
        std::string record(200, '0');
        const auto read = [&](std::size_t aLength) {
            return FieldWalk::Read(std::string_view(record).substr(0, aLength), store).IsGood();
        };
        for (std::size_t length = 60; length != record.size(); ++length) {
            if (read(length)) {
                return record.substr(0, length);
            }
        }
        return {};
    }
    const char* Tag() const { return GetParam().tag; }
};

INSTANTIATE_TEST_SUITE_P(AllTags, TreRegistryTest, testing::ValuesIn(TRE_LAYOUTS),
                         [](const testing::TestParamInfo<NamedLayout>& aInfo) { return std::string(aInfo.param.tag); });

TEST_P(TreRegistryTest, EveryOtherLengthIsKeptAsAGenericTreWithOneReason)
{
    const std::string record = ShortestRecord();
    for (std::size_t length = 1; length <= record.size() + 1; ++length) {
        // Long records change little from byte to byte; their ends and every seventh length stand for the rest.
        if (length == record.size() || (length > 100 && length + 30 < record.size() && length % 7 != 0)) {
            continue;
        }
        std::string data = record.substr(0, length);
        data.resize(length, '0');
        const Made made = Make(Tag(), data);
        ASSERT_NE(nullptr, made.tre) << length;
        std::size_t kept = 0;
        const char* const bytes = made.tre->GetRawTREDataString(kept);
        EXPECT_EQ(data, std::string(bytes, kept));
        if (made.tre->IsGenericTRE()) {
            EXPECT_NE(std::string::npos, made.errors.find(Tag())) << length << ": " << made.errors;
            EXPECT_EQ(std::string::npos, made.errors.find("\n\n")) << "more than one reason: " << made.errors;
        } else {
            // A length that another form of the same tag has: every byte of it must be in a field.
            std::size_t sum = 0;
            std::string name;
            for (std::size_t i = 0; i != made.tre->GetNumOfFields(); ++i) {
                const char* value = nullptr;
                std::size_t width = 0;
                made.tre->GetFieldAt(i, name, value, width);
                sum += width;
            }
            EXPECT_EQ(length, sum);
        }
    }
}

TEST_P(TreRegistryTest, CopyEqualsTheOriginalAndAnswersTheSame)
{
    const std::string shortest = ShortestRecord();
    const Made made = Make(Tag(), shortest.empty() ? OpenRecord() : shortest);
    ASSERT_FALSE(made.tre->IsGenericTRE()) << made.errors;
    TRE* clone = nullptr;
    ASSERT_TRUE(TREFactory::CloneTRE(*made.tre, &clone));
    const OwnedTre copy(clone);
    EXPECT_TRUE(*copy == *made.tre);
    EXPECT_STREQ(Tag(), copy->GetTag());
    EXPECT_EQ(made.tre->GetUniqueExtensionTypeID(), copy->GetUniqueExtensionTypeID());
    EXPECT_EQ(made.tre->GetSupportedTREFactoryCode(), copy->GetSupportedTREFactoryCode());
    EXPECT_EQ(*made.tre->GetTREKeyValuePairsMap(), *copy->GetTREKeyValuePairsMap());
}

TEST_P(TreRegistryTest, EveryViewSpeaksOfTheSameFields)
{
    const std::string shortest = ShortestRecord();
    const Made made = Make(Tag(), shortest.empty() ? OpenRecord() : shortest);
    const TRE& tre = *made.tre;
    const std::size_t count = tre.GetNumOfFields();
    ASSERT_EQ(count, tre.GetAllTreFields()->size());
    EXPECT_EQ(count, tre.GetAllTREFieldDescriptions()->size());
    EXPECT_EQ(count, tre.GetTREKeyValuePairsMap()->size());
    EXPECT_EQ(count, tre.GetTREFieldWidthsMap()->size());
    EXPECT_EQ(count, tre.GetFieldEditabilityMap()->size());
    EXPECT_EQ(count, tre.GetAllTreFieldInfos()->size());
    EXPECT_EQ(count, tre.GetBinaryFieldList()->size());
    for (std::size_t i = 0; i != count; ++i) {
        const std::string name = (*tre.GetAllTreFields())[i];
        const TreDetailedInfo& info = tre.GetAllTreFieldInfos()->at(name);
        const std::string head = info.longName + " [= \"" + name + "\", " + std::to_string(info.width) + " bytes, ";
        EXPECT_EQ(0U, std::string((*tre.GetAllTREFieldDescriptions())[i]).find(head)) << name;
        const char* value = nullptr;
        std::size_t width = 0;
        ASSERT_TRUE(tre.GetFieldAsString(name.c_str(), value, width)) << name;
        EXPECT_EQ(info.width, width) << name;
        EXPECT_EQ((*tre.GetBinaryFieldList())[i], tre.IsBinaryField(name.c_str())) << name;
    }
}

TEST_P(TreRegistryTest, WrittenBackItIsWhatWasReadAndItsXmlHasEveryField)
{
    const std::string shortest = ShortestRecord();
    const std::string data = shortest.empty() ? OpenRecord() : shortest;
    const Made made = Make(Tag(), data);
    char* text = nullptr;
    ASSERT_TRUE(made.tre->Write(&text));
    std::string head = Tag();
    head.resize(6, ' ');
    std::string length = std::to_string(data.size());
    length.insert(0, 5 - length.size(), '0');
    EXPECT_EQ(head + length + data, std::string(text, head.size() + length.size() + data.size()));
    Util::CSMUtilString::DeleteCString(text);

    std::string xml;
    made.tre->AppendXml(xml, "U", 3);
    std::size_t elements = 0;
    for (std::size_t at = xml.find("<TREField "); at != std::string::npos; at = xml.find("<TREField ", at + 1)) {
        ++elements;
    }
    EXPECT_EQ(made.tre->GetNumOfFields(), elements);
    EXPECT_EQ(0U, xml.find("      <TRE index=\"3\" type=\""));
    EXPECT_NE(std::string::npos, xml.find(std::string("tag=\"") + Tag() + "\""));
    EXPECT_EQ(xml.size() - std::string("      </TRE>\n").size(), xml.rfind("      </TRE>\n"));
}

TEST_P(TreRegistryTest, HelpNamesTagGroupPlacementAndSources)
{
    const std::string shortest = ShortestRecord();
    const Made made = Make(Tag(), shortest.empty() ? OpenRecord() : shortest);
    const std::string help = made.tre->GetTREDescription();
    const bool registered = made.tre->GetTREType() == TRE::TRE_TYPE_REGISTERED_EXTENSION;
    EXPECT_EQ(0U, help.find(registered ? "[Registered Extension]\nTagged Record Extension "
                                       : "[Controlled Extension]\nTagged Record Extension "));
    EXPECT_NE(std::string::npos, help.find(made.tre->GetTREName()));
    EXPECT_NE(std::string::npos,
              help.find(std::string("This TRE belongs to the ") + made.tre->GetTRERegisterGroup() + " TRE Group."));
    EXPECT_NE(std::string::npos, help.find("\nSources:\n1. "));
    const TreLayout& layout = GetParam().layout();
    EXPECT_EQ(layout.certainty == LayoutCertainty::NotPublic, help.find("not public") != std::string::npos);
    EXPECT_EQ(layout.certainty == LayoutCertainty::OneSource,
              help.find("Layout from one source.") != std::string::npos);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
