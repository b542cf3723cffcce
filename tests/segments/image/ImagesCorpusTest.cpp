#include "foundation/CSMException.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "segments/image/NITFImageDataMaskSubheader.h"
#include "segments/image/NITFImageSubheader.h"
#include "tests/support/Corpus.h"

#include <array>
#include <cmath>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using Reader = NITFImagePixelReader;

struct Destroyer
{
    void operator()(ImageSupportDataNITF* aIsd) const
    {
        ImageSupportData* isd = aIsd;
        ImageSupportDataFactory::Destroy(&isd);
    }
};
using Isd = std::unique_ptr<ImageSupportDataNITF, Destroyer>;

/// Null for what cannot be opened.
Isd Open(const std::filesystem::path& aPath)
{
    ImageSupportData* isd = nullptr;
    try {
        ImageSupportDataFactory::Create(aPath.c_str(), &isd, true, false);
    } catch (const CSMException&) {           // a damaged file
    } catch (const std::invalid_argument&) {  // no NITF file
    }
    return Isd(dynamic_cast<ImageSupportDataNITF*>(isd));
}

/// Asks for everything that an image answers, and holds the answers against one another.
void AskEverything(const NITFImageSubheader& aImage)
{
    std::array<double, 4> latitudes{};
    std::array<double, 4> longitudes{};
    double real = 0;
    double imaginary = 0;
    long row = 0;
    long column = 0;
    unsigned long columns = 0;
    unsigned long rows = 0;
    std::string text;
    EXPECT_NE(aImage.GetImageCompressionCode(), nullptr);
    EXPECT_NE(aImage.GetEnumFieldIC(), NITFCnst::IC_UNKNOWN);
    EXPECT_EQ(aImage.GetImageRepresentation(), aImage.IsValidImageRepresentation(aImage.GetImageSegmentField("IREP")));
    EXPECT_EQ(aImage.GetImageCategory(), aImage.IsValidImageCategory(aImage.GetImageSegmentField("ICAT")));
    EXPECT_GT(aImage.GetImageMagnificationFactor(), 0.0);
    aImage.IsCloudCoverImageSegment();
    aImage.GetOverflowUserDefinedImageData();
    aImage.GetOverflowImageExtendedSubheaderData();

    const int bands = static_cast<int>(aImage.GetNumOfImageBands());
    std::vector<NITFImgBandInfo::WideTable> tables;
    for (int band = 0; band != bands; ++band) {
        const NITFImgBandInfo* const info = aImage.GetImageBandInfo(band);
        ASSERT_NE(info, nullptr);
        EXPECT_STREQ(info->GetErrorMessage(), "");
        EXPECT_EQ(aImage.HasLUTsForBand(band), aImage.GetLUTs(band, tables));
    }
    EXPECT_EQ(aImage.GetImageBandInfo(bands), nullptr);
    EXPECT_FALSE(aImage.GetLUTs(bands, tables));
    ASSERT_TRUE(aImage.GetImageSignificantColumnsAndRows(columns, rows));
    std::uint64_t start = 0;
    EXPECT_TRUE(aImage.GetImageBlockStart(0, start, start));
    EXPECT_FALSE(aImage.GetImageBlockStart(std::uint64_t{aImage.GetFieldNBPR()} * aImage.GetFieldNBPC(), start, start));
    char justification = '\0';
    int bits = 0;
    int actual = 0;
    NITFCnst::PixelType type = NITFCnst::PIXEL_TYPE_UNKNOWN;
    EXPECT_TRUE(aImage.GetPixelBitValues(justification, bits, actual, type));
    EXPECT_EQ(type, aImage.GetImagePixelValueType());
    EXPECT_EQ(justification, aImage.GetImagePixelJustification());

    const auto mask = aImage.GetImageDataMask();
    EXPECT_EQ(mask != nullptr, aImage.HasDataMaskSubheader()) << aImage.GetErrorMessage();
    EXPECT_EQ(aImage.HasPadPixelValue(), aImage.GetPadPixelComplex(real, imaginary));
    std::uint32_t offset = 0;
    if (mask != nullptr && mask->HasBlockMask()) {
        EXPECT_TRUE(mask->GetBlockOffset(mask->GetNumOfBlocks() - 1, mask->GetNumOfBands() - 1, offset));
        EXPECT_FALSE(mask->GetBlockOffset(mask->GetNumOfBlocks(), 0, offset));
    }
    std::array<char, 8> sample{};
    EXPECT_EQ(aImage.RetrieveImagePixels(0, 0, 1, 1, bands, 8, sample.data(), nullptr), Reader::STATUS_OUT_OF_RANGE);

    EXPECT_TRUE(aImage.GetILOC(row, column));
    EXPECT_EQ(row, aImage.GetLOCRowValue());
    EXPECT_EQ(column, aImage.GetLOCColumnValue());
    EXPECT_TRUE(aImage.GetCCSColumnAndRow(column, row));

    NITFImgExtent::Footprint footprint;
    const bool hasFootprint = aImage.GetFootprint(footprint);
    EXPECT_EQ(hasFootprint, aImage.GetApproxGeographicCenterOfExtent(real, imaginary));
    EXPECT_EQ(aImage.HasBLOCKGeographicExtent(), aImage.GetBLOCKGeographicExtent(latitudes.data(), longitudes.data()));
    EXPECT_EQ(aImage.IsGeographicCoordinate(), aImage.HasIGEOLOGeographicExtent());
    aImage.HasCSCRNGeographicExtent();
    aImage.HasGEOLOGeographicExtent();
    aImage.HasAverageHeight();
    EXPECT_EQ(aImage.IsImageChip(), aImage.GetICHIPTRE() != nullptr);
    EXPECT_EQ(aImage.IsUnityTransform(), !aImage.IsImageChip());

    const char** names = nullptr;
    const char** values = nullptr;
    std::size_t count = 0;
    EXPECT_EQ(aImage.GetRPCFields(names, values, count),
              aImage.GetRPC00Availability() != NITFCnst::RPC00_NOT_AVAILABLE);
    NITFImageSubheader::DeleteRPCFields(names, values, count);
}

TEST(ImagesCorpusTest, EveryGoodImageAnswersEveryQuery)
{
    const std::filesystem::path list = Tests::CorpusFile("README.md");
    if (!std::filesystem::exists(list)) {
        GTEST_SKIP() << "the corpus is absent";
    }
    int images = 0;
    for (const auto& entry : std::filesystem::directory_iterator(list.parent_path())) {
        SCOPED_TRACE(entry.path().string());
        const Isd isd = Open(entry.path());
        for (std::size_t i = 0; isd != nullptr && i != static_cast<std::size_t>(isd->GetNumOfImageSegments()); ++i) {
            const NITFImageSubheader* const image = isd->GetImageSubheader(i);
            ASSERT_NE(image, nullptr);
            AskEverything(*image);
            EXPECT_EQ(isd->GetImagePixelReader(i), image);
            EXPECT_EQ(isd->IsUnityTransform(static_cast<int>(i)), image->IsUnityTransform());
            EXPECT_EQ(isd->IsImageSegmentCoordGeographic(static_cast<unsigned>(i)), image->IsGeographicCoordinate());
            ++images;
        }
        double height = 0;
        if (isd != nullptr) {
            EXPECT_EQ(isd->GetImagePixelReader(1000), nullptr);
            EXPECT_FALSE(isd->GetImageSegmentAverageHeight(height, -1));
            EXPECT_FALSE(isd->IsImageSegmentCoordGeographic(1000));
        }
    }
    EXPECT_GE(images, 60);
}

TEST(ImagesCorpusTest, PolynomialsOfRpc00aKeepTheirValuesInTheOtherOrder)
{
    const Isd isd = Open(Tests::CorpusFile("ff_grey16bit_uncompressed.nitf"));
    if (isd == nullptr) {
        GTEST_SKIP() << "the corpus is absent";
    }
    const NITFImageSubheader& image = *isd->GetImageSubheader(0);
    ASSERT_EQ(image.GetRPC00Availability(), NITFCnst::RPC00A_AVAILABLE);
    std::array<std::array<double, 20>, 4> handedOut{};
    ASSERT_TRUE(
        image.GetRPC00Coefficients(handedOut[0].data(), handedOut[1].data(), handedOut[2].data(), handedOut[3].data()));
    const TRE** tres = nullptr;
    std::size_t count = 0;
    ASSERT_TRUE(image.GetTRE("RPC00A", tres, count, true));
    ASSERT_EQ(count, 1U);
    constexpr const char* GROUPS[] = {"LINE_NUM_COEFF_", "LINE_DEN_COEFF_", "SAMP_NUM_COEFF_", "SAMP_DEN_COEFF_"};
    for (int step = 0; step != 10; ++step) {
        const double p = -0.9 + 0.2 * step;
        const double l = 0.7 - 0.15 * step;
        const double h = -0.4 + 0.1 * step;
        // The terms of both tags in the order of their own standard.
        const std::array<double, 20> ofB{1,         l,         p,         h,         l * p,     l * h,     p * h,
                                         l * l,     p * p,     h * h,     l * p * h, l * l * l, l * p * p, l * h * h,
                                         l * l * p, p * p * p, p * h * h, l * l * h, p * p * h, h * h * h};
        const std::array<double, 20> ofA{1,         l,         p,         h,         l * p,     l * h,     p * h,
                                         l * p * h, l * l,     p * p,     h * h,     l * l * l, l * l * p, l * l * h,
                                         l * p * p, p * p * p, p * p * h, l * h * h, p * h * h, h * h * h};
        for (std::size_t group = 0; group != handedOut.size(); ++group) {
            double sumOfB = 0;
            double sumOfA = 0;
            for (std::size_t i = 0; i != ofA.size(); ++i) {
                double coefficient = 0;
                ASSERT_TRUE(tres[0]->GetFieldAsDouble((GROUPS[group] + std::to_string(i + 1)).c_str(), coefficient));
                sumOfA += coefficient * ofA[i];
                sumOfB += handedOut[group][i] * ofB[i];
            }
            EXPECT_NEAR(sumOfA, sumOfB, 1e-12 * std::max(1.0, std::abs(sumOfA))) << GROUPS[group] << step;
        }
    }
    NITFStdDataSegment::DeleteTREPointerArray(tres, count, false);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
