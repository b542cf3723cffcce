#include "TSMError.h"
#include "TSMISDByteStream.h"
#include "TSMISDFilename.h"
#include "TSMISDNITF20.h"
#include "TSMISDNITF21.h"
#include "TSMPlugin.h"
#include "TSMSensorModel.h"
#include "TSMWarning.h"

#include <cstddef>
#include <cstring>

#include <gtest/gtest.h>

// Hosts and plug-ins that were built with other base libraries of this generation rely on these numbers.
#if defined(__x86_64__) && defined(_GLIBCXX_USE_CXX11_ABI) && _GLIBCXX_USE_CXX11_ABI

namespace {

static_assert(sizeof(tsm_ISD) == 40);
static_assert(sizeof(filenameISD) == 72);
static_assert(sizeof(bytestreamISD) == 72);
static_assert(sizeof(tre) == 24);
static_assert(sizeof(des) == 32);
static_assert(sizeof(image) == 48);
static_assert(sizeof(NITF_2_0_ISD) == 120);
static_assert(sizeof(NITF_2_1_ISD) == 120);
static_assert(sizeof(TSMError) == 72);
static_assert(sizeof(TSMWarning) == 72);
static_assert(sizeof(TSMPlugin) == 8);
static_assert(sizeof(TSMSensorModel) == 8);

template<typename Object, typename Field>
std::size_t Offset(const Object& aObject, const Field& aField)
{
    return static_cast<std::size_t>(reinterpret_cast<const char*>(&aField) - reinterpret_cast<const char*>(&aObject));
}

template<typename Isd>
void ExpectNitfOffsets()
{
    const Isd isd;
    EXPECT_EQ(Offset(isd, isd.fileHeader), 40u);
    EXPECT_EQ(Offset(isd, isd.numTREs), 72u);
    EXPECT_EQ(Offset(isd, isd.fileTREs), 80u);
    EXPECT_EQ(Offset(isd, isd.numDESs), 88u);
    EXPECT_EQ(Offset(isd, isd.fileDESs), 96u);
    EXPECT_EQ(Offset(isd, isd.numImages), 104u);
    EXPECT_EQ(Offset(isd, isd.images), 112u);
}

TEST(CsmApiLayoutTest, BothNitfIsdsKeepTheirFieldsAtTheSamePlaces)
{
    ExpectNitfOffsets<NITF_2_0_ISD>();
    ExpectNitfOffsets<NITF_2_1_ISD>();
}

TEST(CsmApiLayoutTest, RecordsKeepTheOrderOfTheirFields)
{
    const tre extension;
    EXPECT_EQ(Offset(extension, extension.record), 0u);
    EXPECT_EQ(Offset(extension, extension.name), 8u);
    EXPECT_EQ(Offset(extension, extension.length), 16u);
    const des segment;
    EXPECT_EQ(Offset(segment, segment.desShLength), 0u);
    EXPECT_EQ(Offset(segment, segment.desSh), 8u);
    EXPECT_EQ(Offset(segment, segment.desDataLength), 16u);
    EXPECT_EQ(Offset(segment, segment.desData), 24u);
    const image picture;
    EXPECT_EQ(Offset(picture, picture.imageSubHeader), 0u);
    EXPECT_EQ(Offset(picture, picture.imageTREs), 32u);
    EXPECT_EQ(Offset(picture, picture.numTREs), 40u);
}

/// Place of a virtual operation behind the two destructors. The Itanium ABI keeps it in the member pointer as one plus
/// the byte offset in the table.
template<typename Operation>
std::size_t Slot(Operation aOperation)
{
    std::size_t word = 0;
    std::memcpy(&word, &aOperation, sizeof word);
    return (word - 1) / sizeof(void*) - 1;
}

TEST(CsmApiLayoutTest, PluginOperationsKeepTheirSlots)
{
    EXPECT_EQ(Slot(&TSMPlugin::getPluginName), 1u);
    EXPECT_EQ(Slot(&TSMPlugin::getReleaseDate), 3u);
    EXPECT_EQ(Slot(&TSMPlugin::getSensorModelVersion), 6u);
    EXPECT_EQ(Slot(&TSMPlugin::canSensorModelBeConstructedFromISD), 8u);
    EXPECT_EQ(Slot(&TSMPlugin::constructSensorModelFromISD), 10u);
    EXPECT_EQ(Slot(&TSMPlugin::convertISDToSensorModelState), 13u);
}

TEST(CsmApiLayoutTest, SensorModelOperationsKeepTheirSlots)
{
    using ByTime = TSMWarning* (TSMSensorModel::*)(const double&, double&, double&, double&);
    using ByPixel = TSMWarning* (TSMSensorModel::*)(const double&, const double&, double&, double&, double&);
    EXPECT_EQ(Slot(&TSMSensorModel::imageToProximateImagingLocus), 5u);
    EXPECT_EQ(Slot(&TSMSensorModel::getCurrentParameterCovariance), 10u);
    EXPECT_EQ(Slot(&TSMSensorModel::setOriginalParameterCovariance), 12u);
    EXPECT_EQ(Slot(&TSMSensorModel::getImageTime), 16u);
    EXPECT_EQ(Slot(static_cast<ByPixel>(&TSMSensorModel::getSensorPosition)), 17u);
    EXPECT_EQ(Slot(static_cast<ByTime>(&TSMSensorModel::getSensorPosition)), 18u);
    EXPECT_EQ(Slot(static_cast<ByTime>(&TSMSensorModel::getSensorVelocity)), 20u);
    EXPECT_EQ(Slot(&TSMSensorModel::getPedigree), 29u);
    EXPECT_EQ(Slot(&TSMSensorModel::getSensorModelState), 38u);
    EXPECT_EQ(Slot(&TSMSensorModel::getParameterSharingCriteria), 50u);
}

}  // namespace

#endif
