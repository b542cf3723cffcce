// Every layout, those too that no other program reads, by records made from its rows.

#include "fields/FieldRecord.h"
#include "foundation/CSMUtilString.h"
#include "tests/support/TreRecordMaker.h"
#include "tests/tre/TreLayoutList.h"
#include "tre/TREFactory.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Detail;

constexpr std::size_t LEAST_RECORDS = 6;
constexpr std::size_t MOST_RECORDS = 150;
constexpr std::uint32_t SEED = 20260131;

/// Without the two whose rows look at the whole length and at places in the data, which a record in the making has not.
std::vector<NumberedLayout> LayoutsThatRecordsCanBeMadeOf()
{
    std::vector<NumberedLayout> layouts = EveryLayout();
    std::erase_if(layouts,
                  [](const NumberedLayout& aLayout) { return aLayout.name == "BCKGDA" || aLayout.name == "RPFIMG"; });
    return layouts;
}

class RandomRecordTest : public testing::TestWithParam<NumberedLayout>
{
};

INSTANTIATE_TEST_SUITE_P(AllTags, RandomRecordTest, testing::ValuesIn(LayoutsThatRecordsCanBeMadeOf()),
                         [](const testing::TestParamInfo<NumberedLayout>& aInfo) { return aInfo.param.name; });

TEST_P(RandomRecordTest, IsTypedWithoutAFaultAndReadByItsOwnLayout)
{
    const FieldTable& table = GetParam().layout->table;
    Tests::TreRecordMaker maker(table, SEED);
    for (std::size_t made = 0; made < LEAST_RECORDS || (made < MOST_RECORDS && !maker.NotSeen().empty()); ++made) {
        const std::string data = maker.Next();
        TRE* tre = nullptr;
        char* errors = nullptr;
        TREFactory::Create(GetParam().tag, data.data(), TRE::TRE_TYPE_UNKNOWN, &tre, true, true, &errors, data.size());
        const std::unique_ptr<TRE, void (*)(TRE*)> owned(tre, [](TRE* aTre) { TREFactory::Destroy(&aTre); });
        const std::string text = errors == nullptr ? "" : errors;
        Util::CSMUtilString::DeleteCString(errors);
        ASSERT_NE(nullptr, tre) << text;
        ASSERT_EQ("", text);
        FieldStore store(table);
        ASSERT_TRUE(FieldWalk::Read(data, store).IsGood());
        ASSERT_EQ(store.Entries().size(), tre->GetNumOfFields()) << data.size() << " bytes";
        const char* value = nullptr;
        std::size_t length = 0;
        std::string name;
        ASSERT_TRUE(tre->GetFieldAt(tre->GetNumOfFields() - 1, name, value, length));
        EXPECT_EQ(store.Name(store.Entries().back()), name);
        EXPECT_EQ(store.Value(store.Entries().back()), std::string(value, length));
    }
    for (const std::string& missing : maker.NotSeen()) {
        EXPECT_EQ("OUTPUT_MAP_VALUE", missing) << "4096 values of IOMAPA are more than a made record holds";
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
