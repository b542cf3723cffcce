#include "examples/rpc/PlainSensorModel.h"
#include "foundation/PropertyKey.h"
#include "isd/TSMPluginInfo.h"
#include "isd/TSMSensorModelInfo.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

const char* const NAMES[] = {" first ", "second"};

/// The sentence with which an info is refused; empty when it is made.
std::string Refusal(const char* aLibrary, const char* aName, const char* const* aNames, int aTotal, int aActive)
{
    try {
        const TSMPluginInfo info(aLibrary, "maker", aName, "date", nullptr, aNames, aTotal, aActive, "", nullptr);
        return "";
    } catch (const std::invalid_argument& exception) {
        return exception.what();
    }
}

TEST(TSMPluginInfoTest, TextsAreTrimmedAndMissingKindsAreUnknown)
{
    TSMPluginInfo info(" lib ", "maker\t", " name", "date", " what it does ", NAMES, 2, 1, " ", nullptr);
    EXPECT_STREQ(info.GetLibraryName(), "lib");
    EXPECT_STREQ(info.GetManufacturer(), "maker");
    EXPECT_STREQ(info.GetPluginName(), "name");
    EXPECT_STREQ(info.GetPluginReleaseDate(), "date");
    EXPECT_STREQ(info.GetDescription(), "what it does");
    EXPECT_STREQ(info.GetSensorModelName(0), "first");
    EXPECT_STREQ(info.GetSensorModelName(1), "second");
    EXPECT_EQ(info.GetSensorModelName(2), nullptr);
    EXPECT_EQ(info.GetSensorModelName(-1), nullptr);
    EXPECT_EQ(info.GetTotalNumberOfSensorModelsInPlugin(), 2);
    EXPECT_EQ(info.GetTotalNumberOfActiveSensorModels(), 1);
    EXPECT_STREQ(info.GetSensorType(), "UNKNOWN");
    EXPECT_STREQ(info.GetSensorCategory(), "UNKNOWN");

    EXPECT_FALSE(info.SetPluginName(" "));
    EXPECT_FALSE(info.SetSensorModelNames(NAMES, 0, 0));
    EXPECT_STREQ(info.GetPluginName(), "name");
    EXPECT_EQ(info.GetTotalNumberOfSensorModelsInPlugin(), 2);
    EXPECT_TRUE(info.SetSensorModelNames(NAMES + 1, 1, 0));
    EXPECT_STREQ(info.GetSensorModelName(0), "second");
    EXPECT_TRUE(info.SetSensorType(" frame "));
    EXPECT_STREQ(info.GetSensorType(), "frame");
}

TEST(TSMPluginInfoTest, WhatIsRefusedIsToldInOneSentence)
{
    const std::string texts =
        "ERROR: Library name, manufacturer name, plug-in name, and release date cannot be NULL or an empty string.";
    EXPECT_EQ(Refusal(" ", "name", NAMES, 2, 0), texts);
    EXPECT_EQ(Refusal("lib", nullptr, nullptr, 0, -1), texts);
    const std::string names =
        "ERROR: TSMSensorModel array list cannot be NULL and must contain at least one TSMSensorModel name.";
    EXPECT_EQ(Refusal("lib", "name", nullptr, 2, 0), names);
    EXPECT_EQ(Refusal("lib", "name", NAMES, 0, -1), names);
    EXPECT_EQ(Refusal("lib", "name", NAMES, 2, -1), "ERROR: Value of \"aTotNumOfActiveSensorModels\" is invalid.");
    const char* const withNull[] = {"first", nullptr};
    EXPECT_EQ(Refusal("lib", "name", withNull, 2, 0),
              "ERROR: System failed to initialize all required member variables using the input parameters.");
    EXPECT_EQ(Refusal("lib", "name", NAMES, 2, 0), "");
}

/// A plug-in that fails at nearly everything it is asked.
class BrokenPlugin : public TSMPlugin
{
public:
    TSMWarning* getPluginName(std::string&) const override { throw 7; }
    TSMWarning* getManufacturer(std::string& aText) const override
    {
        aText = "somebody";
        return new TSMWarning(TSMWarning::UNKNOWN_WARNING, "by the way", "getManufacturer");
    }
    TSMWarning* getReleaseDate(std::string&) const override { throw std::runtime_error("none"); }
    TSMWarning* getNSensorModels(int& aCount) const override
    {
        aCount = 3;
        return nullptr;
    }
    TSMWarning* getSensorModelName(const int& aIndex, std::string& aName) const override
    {
        if (aIndex == 1) {
            throw TSMError(TSMError::ALGORITHM, "no", "no");
        }
        aName = aIndex == 0 ? "WITH_VERSION" : "WITHOUT";
        return nullptr;
    }
    TSMWarning* getSensorModelVersion(const std::string& aName, int& aVersion) const override
    {
        aVersion = 4;
        return aName == "WITHOUT" ? new TSMWarning(TSMWarning::DATA_NOT_AVAILABLE, "none", "here") : nullptr;
    }
    TSMWarning* canSensorModelBeConstructedFromState(const std::string&, const std::string&, bool&) const override
    {
        throw 7;
    }
    TSMWarning* canSensorModelBeConstructedFromISD(const tsm_ISD&, const std::string&, bool&) const override
    {
        throw 7;
    }
    TSMWarning* constructSensorModelFromState(const std::string&, TSMSensorModel*&) const override { throw 7; }
    TSMWarning* constructSensorModelFromISD(const tsm_ISD&, const std::string&, TSMSensorModel*&) const override
    {
        throw 7;
    }
    TSMWarning* getSensorModelNameFromSensorModelState(const std::string&, std::string&) const override { throw 7; }
    TSMWarning* canISDBeConvertedToSensorModelState(const tsm_ISD&, const std::string&, bool&) const override
    {
        throw 7;
    }
    TSMWarning* convertISDToSensorModelState(const tsm_ISD&, const std::string&, std::string&) const override
    {
        throw 7;
    }
};

TEST(TSMPluginInfoTest, RegisteredPluginsAreListedWhateverTheyThrow)
{
    const BrokenPlugin plugin;
    const std::vector<TSMPluginInfo> infos = TSMPluginInfo::OfRegisteredPlugins();
    const auto broken = std::find_if(infos.begin(), infos.end(), [](const TSMPluginInfo& aInfo) {
        return std::string("somebody") == aInfo.GetManufacturer();
    });
    ASSERT_NE(broken, infos.end());
    EXPECT_STREQ(broken->GetPluginName(), "UNKNOWN");
    EXPECT_STREQ(broken->GetPluginReleaseDate(), "UNKNOWN");
    EXPECT_EQ(broken->GetTotalNumberOfSensorModelsInPlugin(), 2);
    EXPECT_STREQ(broken->GetSensorModelName(1), "WITHOUT");
    EXPECT_EQ(broken->GetTotalNumberOfActiveSensorModels(), 1);
    EXPECT_EQ(std::filesystem::path(broken->GetLibraryName()).filename(),
              std::filesystem::read_symlink("/proc/self/exe").filename());
}

/// Tells its texts and sizes, with a warning each, and the names of two of its three parameters.
class TalkativeModel : public PlainSensorModel
{
public:
    TSMWarning* getSensorModelName(std::string& aText) override { return Tell(aText, "model"); }
    TSMWarning* getPedigree(std::string& aText) override { return Tell(aText, "pedigree"); }
    TSMWarning* getImageIdentifier(std::string& aText) override { return Tell(aText, "image"); }
    TSMWarning* getReferenceDateAndTime(std::string& aText) override { return Tell(aText, "date"); }
    TSMWarning* getTrajectoryIdentifier(std::string& aText) override { return Tell(aText, "trajectory"); }
    TSMWarning* getSensorModelState(std::string& aText) override { return Tell(aText, "state"); }
    TSMWarning* getNumParameters(int& aCount) override
    {
        aCount = 3;
        return nullptr;
    }
    TSMWarning* getParameterName(const int& aIndex, std::string& aName) override
    {
        aName = "half told";
        if (aIndex == 1) {
            throw TSMError(TSMError::ALGORITHM, "no", "no");
        }
        return Tell(aName, "parameter " + std::to_string(aIndex));
    }
    TSMWarning* getImageSize(int& aLines, int& aSamples) override
    {
        aLines = 10;
        aSamples = 20;
        return nullptr;
    }
    TSMWarning* getValidAltitudeRange(double& aMinimum, double& aMaximum) override
    {
        aMinimum = -5.0;
        aMaximum = 7.0;
        return nullptr;
    }
    TSMWarning* getReferencePoint(double& aX, double& aY, double& aZ) override
    {
        aX = 1.0;
        aY = 2.0;
        aZ = 3.0;
        return hasReferencePoint ? nullptr : new TSMWarning(TSMWarning::DATA_NOT_AVAILABLE, "none", "here");
    }

    bool hasReferencePoint = true;

private:
    static TSMWarning* Tell(std::string& aText, const std::string& aAnswer)
    {
        aText = aAnswer;
        return new TSMWarning(TSMWarning::UNKNOWN_WARNING, "by the way", "here");
    }
};

TEST(TSMSensorModelInfoTest, EveryFieldIsReadFromTheModel)
{
    TalkativeModel model;
    const TSMSensorModelInfo info(&model);
    const std::pair<const char*, const char*> properties[] = {
        {PropertyKey::SENSOR_MODEL_NAME, "model"},
        {PropertyKey::SENSOR_MODEL_PEDIGREE, "pedigree"},
        {PropertyKey::IMAGE_IDENTIFIER, "image"},
        {PropertyKey::IMAGE_REFERENCE_DATETIME, "date"},
        {PropertyKey::SENSOR_PLATFORM_TRAJECTORY_ID, "trajectory"},
        {PropertyKey::SENSOR_MODEL_STATE, "state"}};
    for (const auto& [key, value] : properties) {
        EXPECT_STREQ(info.GetProperty(key), value);
    }
    EXPECT_EQ(info.GetProperty("sensor.type"), nullptr);
    EXPECT_EQ(info.GetProperty(nullptr), nullptr);
    EXPECT_STREQ(info.GetCurrentSensroModelState(), "state");
    ASSERT_EQ(info.GetNumSensorModelParameters(), 3);
    EXPECT_STREQ(info.GetSensorModelParameter(0), "parameter 0");
    EXPECT_STREQ(info.GetSensorModelParameter(1), "");
    EXPECT_STREQ(info.GetSensorModelParameter(2), "parameter 2");
    EXPECT_EQ(info.GetSensorModelParameter(3), nullptr);
    int lines = 0;
    int samples = 0;
    info.GetImageSegmentSize(lines, samples);
    EXPECT_EQ(lines, 10);
    EXPECT_EQ(samples, 20);
    double minimum = 0.0;
    double maximum = 0.0;
    info.GetSensorModelValidAltitudeRange(minimum, maximum);
    EXPECT_EQ(minimum, -5.0);
    EXPECT_EQ(maximum, 7.0);
    double point[3] = {};
    EXPECT_TRUE(info.GetGeocentricGroundReferencePoint(point[0], point[1], point[2]));
    EXPECT_EQ(point[2], 3.0);
}

TEST(TSMSensorModelInfoTest, WhatAModelDoesNotTellKeepsItsDefault)
{
    TalkativeModel pointless;
    pointless.hasReferencePoint = false;
    EXPECT_FALSE(TSMSensorModelInfo(&pointless).HasGeocentricGroundRefPts());

    PlainSensorModel silent;
    const TSMSensorModelInfo info(&silent);
    EXPECT_STREQ(info.GetSensorModelName(), "");
    EXPECT_EQ(info.GetNumSensorModelParameters(), 0);
    double point[3] = {9.0, 9.0, 9.0};
    EXPECT_FALSE(info.GetGeocentricGroundReferencePoint(point[0], point[1], point[2]));
    EXPECT_EQ(point[0], 9.0);
    try {
        const TSMSensorModelInfo none(nullptr);
        ADD_FAILURE() << "a null model was taken";
    } catch (const std::invalid_argument& exception) {
        EXPECT_STREQ(exception.what(), "ERROR: TSMSensorModel input argument cannot be NULL.");
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
