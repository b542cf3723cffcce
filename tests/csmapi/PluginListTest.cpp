#include "TSMError.h"
#include "TSMPlugin.h"
#include "TSMWarning.h"

#include <algorithm>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

/// Registers a plug-in that was built as C++11; the caller deletes it.
TSMPlugin* MakeOldPlugin(const std::string& aName);

namespace {

using PluginPtr = std::unique_ptr<TSMPlugin>;

bool IsListed(const TSMPlugin* aPlugin)
{
    TSMPlugin::TSMPluginList* list = nullptr;
    EXPECT_EQ(TSMPlugin::getList(list), nullptr);
    return std::find(list->begin(), list->end(), aPlugin) != list->end();
}

TEST(CsmApiPluginListTest, FirstOfTwoPluginsOfOneNameIsFound)
{
    const PluginPtr first(MakeOldPlugin("TWIN"));
    const PluginPtr second(MakeOldPlugin("TWIN"));
    TSMPlugin* found = nullptr;
    EXPECT_EQ(TSMPlugin::findPlugin("TWIN", found), nullptr);
    EXPECT_EQ(found, first.get());

    EXPECT_EQ(TSMPlugin::removePlugin("TWIN"), nullptr);
    EXPECT_FALSE(IsListed(first.get()));
    EXPECT_EQ(TSMPlugin::findPlugin("TWIN", found), nullptr);
    EXPECT_EQ(found, second.get());
}

TEST(CsmApiPluginListTest, DestroyedPluginLeavesTheList)
{
    PluginPtr plugin(MakeOldPlugin("SHORT_LIVED"));
    EXPECT_TRUE(IsListed(plugin.get()));
    const TSMPlugin* const address = plugin.get();
    plugin.reset();
    EXPECT_FALSE(IsListed(address));
}

TEST(CsmApiPluginListTest, UnknownNameIsAWarningToFindersAndAnErrorToRemovers)
{
    const PluginPtr plugin(MakeOldPlugin("KNOWN"));
    TSMPlugin* found = plugin.get();
    const std::unique_ptr<TSMWarning> warning(TSMPlugin::findPlugin("known", found));
    ASSERT_NE(warning, nullptr);
    EXPECT_EQ(warning->getWarning(), TSMWarning::DATA_NOT_AVAILABLE);
    EXPECT_EQ(warning->getMessage(), "No matching plugin found\n");
    EXPECT_EQ(warning->getFunction(), "TSMPlugin::findPlugin");
    EXPECT_EQ(found, plugin.get());
    try {
        TSMPlugin::removePlugin("known");
        ADD_FAILURE() << "an unknown plug-in was removed";
    } catch (TSMError& error) {
        EXPECT_EQ(error.getError(), TSMError::UNKNOWN_ERROR);
        EXPECT_EQ(error.getMessage(), "Plugin Name Not Found");
        EXPECT_EQ(error.getFunction(), "removePlugin");
    }
}

TEST(CsmApiPluginListTest, ErrorOfAnOlderPluginIsCaughtByType)
{
    const PluginPtr plugin(MakeOldPlugin("OLD"));
    std::string name;
    try {
        plugin->getSensorModelName(3, name);
        ADD_FAILURE() << "no error came through";
    } catch (TSMError& error) {
        EXPECT_EQ(error.getError(), TSMError::INDEX_OUT_OF_RANGE);
    }
}

TEST(CsmApiPluginListTest, ThreadsRegisterAndLeaveAtOnce)
{
    TSMPlugin::TSMPluginList* list = nullptr;
    TSMPlugin::getList(list);
    const std::size_t before = list->size();
    std::vector<std::thread> threads;
    for (int i = 0; i != 4; ++i) {
        threads.emplace_back([] {
            for (int round = 0; round != 200; ++round) {
                const PluginPtr first(MakeOldPlugin("FIRST"));
                const PluginPtr second(MakeOldPlugin("SECOND"));
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(list->size(), before);
}

}  // namespace
