// The whole chain: file, ISD, plug-in, sensor model, coordinates; held against GDAL's transformer for the same files.

#if defined(ORMO_EXAMPLE_PLUGIN)

#include "examples/rpc/Geodetic.h"
#include "isd/ImageSupportData.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/TSMSensorModelInfo.h"
#include "tests/support/Corpus.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/TempFile.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

#include <cpl_string.h>
#include <dlfcn.h>
#include <gdal_alg.h>
#include <gdal_priv.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

constexpr const char* MODEL = "EXAMPLE_RPC00B";
constexpr double PIXELS = 1.0e-6;

struct Destroyer
{
    void operator()(ImageSupportData* aIsd) const { ImageSupportDataFactory::Destroy(&aIsd); }
    void operator()(GDALDataset* aDataset) const { GDALClose(aDataset); }
    void operator()(void* aTransformer) const { GDALDestroyRPCTransformer(aTransformer); }
};

/// A file with our model of its first image and GDAL's transformer; both null when the image carries no RPC00B.
struct Opened
{
    explicit Opened(const std::string& aPath)
    {
        ImageSupportData* made = nullptr;
        try {
            ImageSupportDataFactory::Create(aPath.c_str(), &made, true, false);
        } catch (...) {
            return;  // a damaged file
        }
        isd.reset(made);
        model.reset(isd->GetTSMSensorModel(MODEL, 0));
        if (model == nullptr) {
            return;
        }
        dataset.reset(GDALDataset::FromHandle(GDALOpen(aPath.c_str(), GA_ReadOnly)));
        if (dataset != nullptr && GDALExtractRPCInfoV2(dataset->GetMetadata("RPC"), &rpc) != 0) {
            transformer.reset(GDALCreateRPCTransformerV2(&rpc, FALSE, 0.0, nullptr));
        }
    }

    /// Line and sample of a ground point by both; the answer is how far they are apart.
    double Difference(double aLatitude, double aLongitude, double aHeight) const
    {
        double x = aLongitude;
        double y = aLatitude;
        double z = aHeight;
        int success = 0;
        EXPECT_TRUE(GDALRPCTransform(transformer.get(), TRUE, 1, &x, &y, &z, &success));
        EXPECT_TRUE(success);
        const Ecef point = ToEcef({aLatitude, aLongitude, aHeight});
        double line = 0.0;
        double sample = 0.0;
        double precision = 0.0;
        delete model->groundToImage(point.x, point.y, point.z, line, sample, precision);
        return std::max(std::fabs(line - y), std::fabs(sample - x));
    }

    std::unique_ptr<ImageSupportData, Destroyer> isd;
    std::unique_ptr<TSMSensorModel> model;
    std::unique_ptr<GDALDataset, Destroyer> dataset;
    std::unique_ptr<void, Destroyer> transformer;
    GDALRPCInfoV2 rpc{};
};

/// Seven by seven points in three heights over the box in which the polynomials hold.
void ExpectAgreement(const Opened& aOpened)
{
    ASSERT_NE(aOpened.transformer, nullptr);
    const GDALRPCInfoV2& rpc = aOpened.rpc;
    for (int i = -3; i <= 3; ++i) {
        for (int j = -3; j <= 3; ++j) {
            for (int k = -1; k <= 1; ++k) {
                EXPECT_LT(aOpened.Difference(rpc.dfLAT_OFF + rpc.dfLAT_SCALE * i / 3.0,
                                             rpc.dfLONG_OFF + rpc.dfLONG_SCALE * j / 3.0,
                                             rpc.dfHEIGHT_OFF + rpc.dfHEIGHT_SCALE * k * 0.9),
                          PIXELS)
                    << i << ' ' << j << ' ' << k;
            }
        }
    }
}

/// Pixels to the ground and back, with the line of sight and the derivatives.
void ExpectConsistency(TSMSensorModel& aModel)
{
    int lines = 0;
    int samples = 0;
    double low = 0.0;
    double high = 0.0;
    double precision = 0.0;
    delete aModel.getImageSize(lines, samples);
    delete aModel.getValidAltitudeRange(low, high);
    for (const double height : {low, (low + high) / 2.0, high}) {
        const double line = lines * 0.3;
        const double sample = samples * 0.7;
        double x = 0.0;
        double y = 0.0;
        double z = 0.0;
        EXPECT_EQ(aModel.imageToGround(line, sample, height, x, y, z, precision), nullptr);
        EXPECT_NEAR(ToGeodetic({x, y, z}).height, height, 1.0e-6);
        double back[2] = {};
        EXPECT_EQ(aModel.groundToImage(x, y, z, back[0], back[1], precision), nullptr);
        EXPECT_NEAR(back[0], line, PIXELS);
        EXPECT_NEAR(back[1], sample, PIXELS);

        double locus[6] = {};
        delete aModel.imageToProximateImagingLocus(line, sample, x, y, z, locus, precision);
        EXPECT_NEAR(std::hypot(locus[0] - x, locus[1] - y, locus[2] - z), 0.0, 1.0e-3);
        double partials[6] = {};
        delete aModel.computeGroundPartials(x, y, z, partials);
        // Along the line of sight the image does not move; across it, it moves as the derivatives say.
        double along[2] = {};
        double moved[2] = {};
        const double step[3] = {0.2, -0.1, 0.3};
        delete aModel.groundToImage(x + step[0], y + step[1], z + step[2], moved[0], moved[1], precision);
        for (int row = 0; row != 2; ++row) {
            double change = 0.0;
            for (int axis = 0; axis != 3; ++axis) {
                along[row] += partials[row * 3 + axis] * locus[3 + axis];
                change += partials[row * 3 + axis] * step[axis];
            }
            EXPECT_NEAR(along[row], 0.0, 1.0e-5);
            EXPECT_NEAR(moved[row] - back[row], change, 1.0e-5);
        }

        // A covariance goes to the ground and comes back.
        const double image[4] = {0.25, 0.1, 0.1, 0.36};
        double ground[9] = {};
        double returned[4] = {};
        delete aModel.imageToGround(line, sample, image, height, 0.0, x, y, z, ground, precision);
        delete aModel.groundToImage(x, y, z, ground, back[0], back[1], returned, precision);
        for (int i = 0; i != 4; ++i) {
            EXPECT_NEAR(returned[i], image[i], 1.0e-3);
        }
    }
}

class RpcModelTest : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        GDALAllRegister();
        ASSERT_NE(dlopen(ORMO_EXAMPLE_PLUGIN, RTLD_NOW), nullptr) << dlerror();
    }
};

TEST_F(RpcModelTest, RealFilesWithCoefficientsGiveGdalsCoordinates)
{
    const std::filesystem::path directory = Tests::CorpusFile("");
    if (!std::filesystem::exists(directory)) {
        GTEST_SKIP() << "the corpus is absent";
    }
    int found = 0;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        if (!entry.is_regular_file()) {
            continue;
        }
        const Opened opened(entry.path());
        if (opened.model != nullptr) {
            SCOPED_TRACE(entry.path());
            ++found;
            ExpectAgreement(opened);
            ExpectConsistency(*opened.model);
        }
    }
    EXPECT_GT(found, 0);
}

/// An image of GDAL's NITF writer with a record at the 180th meridian in the south.
std::string WriteWithGdal(const Tests::TempFile& aFile, const char* aVersion = "NITF02.10")
{
    std::string line = "0.001 0.02 -1.01 0.05";
    std::string sample = "-0.002 0.99 0.03 -0.04";
    std::string denominator = "1 0.0003 -0.0002 0.0001";
    for (int i = 4; i != 20; ++i) {
        line += " " + std::to_string(0.0001 * (i - 10));
        sample += " " + std::to_string(0.0002 * (7 - i));
        denominator += " " + std::to_string(0.00001 * (i - 12));
    }
    CPLStringList metadata;
    const std::pair<const char*, std::string> items[] = {{"LINE_OFF", "150"},        {"SAMP_OFF", "100"},
                                                         {"LAT_OFF", "-41.25"},      {"LONG_OFF", "179.99"},
                                                         {"HEIGHT_OFF", "300"},      {"LINE_SCALE", "160"},
                                                         {"SAMP_SCALE", "120"},      {"LAT_SCALE", "0.02"},
                                                         {"LONG_SCALE", "0.03"},     {"HEIGHT_SCALE", "500"},
                                                         {"ERR_BIAS", "2.5"},        {"ERR_RAND", "0.5"},
                                                         {"LINE_NUM_COEFF", line},   {"LINE_DEN_COEFF", denominator},
                                                         {"SAMP_NUM_COEFF", sample}, {"SAMP_DEN_COEFF", denominator}};
    for (const auto& [key, value] : items) {
        metadata.SetNameValue(key, value.c_str());
    }
    CPLStringList options;
    options.SetNameValue("FHDR", aVersion);
    options.SetNameValue("IID1", "EXAMPLE");
    auto* const memory = GetGDALDriverManager()->GetDriverByName("MEM");
    const std::unique_ptr<GDALDataset, Destroyer> source(memory->Create("", 200, 300, 1, GDT_Byte, nullptr));
    source->SetMetadata(metadata.List(), "RPC");
    auto* const driver = GetGDALDriverManager()->GetDriverByName("NITF");
    const std::unique_ptr<GDALDataset, Destroyer> written(
        driver->CreateCopy(aFile.CStr(), source.get(), FALSE, options.List(), nullptr, nullptr));
    EXPECT_NE(written, nullptr);
    return aFile.Path();
}

/// The same image and record as NITF 2.0, which GDAL does not write.
std::string WriteNitf20(const Tests::TempFile& aFile)
{
    const Tests::TempFile file;
    const Opened opened(WriteWithGdal(file));
    const tsm_ISD** forms = nullptr;
    std::size_t count = 0;
    EXPECT_TRUE(opened.isd->GetAllTsmISDs(forms, count));
    const tre& record = dynamic_cast<const NITF_2_1_ISD&>(*forms[0]).images[0].imageTREs[0];
    EXPECT_STREQ(record.name, "RPC00B");
    Tests::NitfBuilder builder(Tests::Format::Nitf20);
    builder.AddImage(300, 200)
        .Set("IID", "EXAMPLE")
        .Area("UDID", Tests::Tre(record.name, {record.record, static_cast<std::size_t>(record.length)}))
        .Event("when it may be shown");
    std::ofstream(aFile.Path(), std::ios::binary) << builder.Bytes();
    return aFile.Path();
}

TEST_F(RpcModelTest, FilesOfEveryVersionGiveGdalsCoordinatesAcrossTheDateLine)
{
    for (const char* const version : {"NITF02.00", "NITF02.10", "NSIF01.00"}) {
        SCOPED_TRACE(version);
        const Tests::TempFile file;
        const Opened opened(std::string(version) == "NITF02.00" ? WriteNitf20(file) : WriteWithGdal(file, version));
        ASSERT_NE(opened.model, nullptr);
        EXPECT_STREQ(opened.isd->GetFileTypeAndVersion(), version);
        ExpectAgreement(opened);
        ExpectConsistency(*opened.model);
        const TSMSensorModelInfo info(opened.model.get());
        int lines = 0;
        int samples = 0;
        info.GetImageSegmentSize(lines, samples);
        EXPECT_EQ(lines, 300);
        EXPECT_EQ(samples, 200);
        EXPECT_STREQ(info.GetImageIdentifier(), "EXAMPLE");
        EXPECT_STREQ(info.GetSensorModelName(), MODEL);
        EXPECT_EQ(info.GetNumSensorModelParameters(), 2);
    }
}

TEST_F(RpcModelTest, ModelComesBackFromItsStateWithItsParameters)
{
    const Tests::TempFile file;
    const Opened opened(WriteWithGdal(file));
    ASSERT_NE(opened.model, nullptr);
    delete opened.model->setCurrentParameterValue(0, 1.5);
    std::string state;
    delete opened.model->getSensorModelState(state);
    TSMPlugin* plugin = nullptr;
    ASSERT_EQ(TSMPlugin::findPlugin("EXAMPLE_RPC_PLUGIN", plugin), nullptr);
    TSMSensorModel* built = nullptr;
    delete plugin->constructSensorModelFromState(state, built);
    const std::unique_ptr<TSMSensorModel> model(built);
    double point[3] = {};
    delete model->getReferencePoint(point[0], point[1], point[2]);
    double lines[2] = {};
    double sample = 0.0;
    double precision = 0.0;
    delete opened.model->groundToImage(point[0], point[1], point[2], lines[0], sample, precision);
    delete model->groundToImage(point[0], point[1], point[2], lines[1], sample, precision);
    EXPECT_EQ(lines[0], lines[1]);
    EXPECT_NEAR(lines[0], 150.0 + 0.5 + 1.5 + 0.001 * 160.0, 1.0);
    EXPECT_THROW(plugin->constructSensorModelFromState("another model's state", built), TSMError);
}

TEST_F(RpcModelTest, ModelsOfAnImageAreListedWithTheirVersionsAndOursIsNot)
{
    const Tests::TempFile file;
    const Opened opened(WriteWithGdal(file));
    const char** names = nullptr;
    const char** versions = nullptr;
    std::size_t count = 0;
    ASSERT_TRUE(opened.isd->GetSensorModelsOfImageSegment(names, versions, count, 0));
    ASSERT_EQ(count, 1U);
    EXPECT_STREQ(names[0], MODEL);
    EXPECT_STREQ(versions[0], "1");
    const char** again = nullptr;
    ASSERT_TRUE(opened.isd->GetSensorModelsOfImageSegment(again, versions, count, 0));
    EXPECT_EQ(again, names);
    EXPECT_FALSE(opened.isd->GetSensorModelsOfImageSegment(names, versions, count, 1));
    EXPECT_EQ(count, 0U);
    EXPECT_EQ(opened.isd->GetTSMSensorModel("ORMO_CSM", 0), nullptr);
    EXPECT_EQ(opened.isd->GetTSMSensorModel(MODEL, 1), nullptr);
    EXPECT_EQ(opened.isd->GetTSMSensorModel(nullptr, 0), nullptr);
}

TEST_F(RpcModelTest, ModelSaysWhatCanBeMeasuredInAnImage)
{
    const Tests::TempFile file;
    const Opened opened(WriteWithGdal(file));
    ASSERT_NE(opened.isd, nullptr);
    ImageSupportData& isd = *opened.isd;
    bool can[5] = {};
    const auto ask = [&](const char* aModel, auto aSegment) {
        return isd.GetMensurationCapabilities(can[0], can[1], can[2], can[3], can[4], aModel, aSegment);
    };
    EXPECT_TRUE(ask(MODEL, 0));
    EXPECT_EQ(std::count(std::begin(can), std::end(can), true), 5);
    EXPECT_TRUE(ask(MODEL, isd.GetUniqueImageSegmentIdentifier(0)));
    EXPECT_EQ(std::count(std::begin(can), std::end(can), true), 5);
    EXPECT_FALSE(ask("NO_SUCH_MODEL", 0));
    EXPECT_EQ(std::count(std::begin(can), std::end(can), true), 0);
    EXPECT_NE(std::string(isd.GetErrorMessage()).find("NO_SUCH_MODEL"), std::string::npos);
    EXPECT_FALSE(ask(MODEL, 1));
    EXPECT_NE(isd.GetErrorMessage(), nullptr);
    EXPECT_FALSE(ask(MODEL, "NITF_IM:1:elsewhere"));
    EXPECT_NE(isd.GetErrorMessage(), nullptr);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

#endif
