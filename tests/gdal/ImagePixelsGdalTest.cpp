#include "foundation/CSMException.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "raster/GDALNITFFileReader.h"
#include "segments/image/NITFImageDataMaskSubheader.h"
#include "segments/image/NITFImageSubheader.h"
#include "tests/segments/image/PixelSupport.h"
#include "tests/support/Corpus.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/TempFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <gdal_alg.h>
#include <gdal_priv.h>
#include <gtest/gtest.h>
#include <ogr_spatialref.h>

namespace ORMO::SensorModel::CSM {
namespace {

using Reader = NITFImagePixelReader;

struct Closer
{
    void operator()(GDALDataset* aDataset) const { GDALClose(aDataset); }
    void operator()(ImageSupportDataNITF* aIsd) const
    {
        ImageSupportData* isd = aIsd;
        ImageSupportDataFactory::Destroy(&isd);
    }
};
using Raster = std::unique_ptr<GDALDataset, Closer>;
using Isd = std::unique_ptr<ImageSupportDataNITF, Closer>;

Raster OpenGdal(const std::string& aPath, std::size_t aImage)
{
    GDALAllRegister();
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const std::string name = "NITF_IM:" + std::to_string(aImage) + ":" + aPath;
    return Raster(GDALDataset::Open(name.c_str(), GDAL_OF_RASTER | GDAL_OF_READONLY));
}

/// Null for what cannot be opened.
Isd OpenIsd(const std::string& aPath)
{
    ImageSupportData* isd = nullptr;
    try {
        ImageSupportDataFactory::Create(aPath.c_str(), &isd, true, false);
    } catch (const CSMException&) {           // a damaged file
    } catch (const std::invalid_argument&) {  // no NITF file
    }
    return Isd(dynamic_cast<ImageSupportDataNITF*>(isd));
}

struct Window
{
    int row, column, rows, columns;
};

/// The type of GDAL with the samples that we hand out; unknown for 8 bytes of integer.
GDALDataType TypeOf(const NITFImageSubheader& aImage)
{
    const std::size_t size = aImage.GetBytesPerSample();
    switch (aImage.GetImagePixelValueType()) {
        case NITFCnst::PIXEL_TYPE_C:
            return GDT_CFloat32;
        case NITFCnst::PIXEL_TYPE_R:
            return size == 4 ? GDT_Float32 : GDT_Float64;
        case NITFCnst::PIXEL_TYPE_SI:
            return size == 1 ? GDT_Byte : size == 2 ? GDT_Int16 : size == 4 ? GDT_Int32 : GDT_Unknown;
        default:
            return size == 1 ? GDT_Byte : size == 2 ? GDT_UInt16 : size == 4 ? GDT_UInt32 : GDT_Unknown;
    }
}

/// Reads a window of every band both ways; the text tells where they differ.
std::string Compare(const NITFImageSubheader& aImage, GDALDataset& aRaster, const Window& aWindow)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const GDALDataType type = TypeOf(aImage);
    const std::size_t bytes =
        static_cast<std::size_t>(aWindow.rows) * static_cast<std::size_t>(aWindow.columns) * aImage.GetBytesPerSample();
    std::vector<char> ours(bytes);
    std::vector<char> theirs(bytes);
    for (int band = 0; band != aRaster.GetRasterCount(); ++band) {
        const Reader::Status status =
            aImage.RetrieveImagePixels(aWindow.row, aWindow.column, aWindow.rows, aWindow.columns, band,
                                       static_cast<int>(bytes), ours.data(), nullptr);
        const CPLErr error = aRaster.GetRasterBand(band + 1)->RasterIO(
            GF_Read, aWindow.column, aWindow.row, aWindow.columns, aWindow.rows, theirs.data(), aWindow.columns,
            aWindow.rows, type, 0, 0, nullptr);
        if (status != Reader::STATUS_OK || error != CE_None) {
            return std::string(Reader::GetStatusName(status)) + " against " + std::to_string(error) + ": " +
                   Reader::GetLastPixelError();
        }
        const auto place = std::mismatch(ours.begin(), ours.end(), theirs.begin());
        if (place.first != ours.end()) {
            return "band " + std::to_string(band) + " differs at byte " + std::to_string(place.first - ours.begin());
        }
    }
    return {};
}

std::vector<Window> WindowsOf(int aRows, int aColumns)
{
    std::vector<Window> windows{{0, 0, std::min(aRows, 1500), std::min(aColumns, 1500)},
                                {aRows - 1, aColumns - 1, 1, 1},
                                {aRows / 3, aColumns / 2, std::max(1, aRows / 4), std::max(1, aColumns / 5)}};
    return windows;
}

TEST(ImagePixelsGdalTest, UncompressedCorpusImagesEqualWhatGdalReads)
{
    if (!std::filesystem::exists(Tests::CorpusFile("README.md"))) {
        GTEST_SKIP() << "the corpus is absent";
    }
    int compared = 0;
    for (const auto& entry : std::filesystem::directory_iterator(Tests::CorpusFile("README.md").parent_path())) {
        const std::string path = entry.path().string();
        const Isd isd = OpenIsd(path);
        for (std::size_t i = 0; isd != nullptr && i != static_cast<std::size_t>(isd->GetNumOfImageSegments()); ++i) {
            const NITFImageSubheader& image = *isd->GetImageSubheader(i);
            const NITFCnst::IC code = image.GetEnumFieldIC();
            const Raster raster = OpenGdal(path, i);
            if ((code != NITFCnst::IC_NC && code != NITFCnst::IC_NM) || raster == nullptr) {
                continue;
            }
            unsigned long rows = 0;
            unsigned long columns = 0;
            ASSERT_TRUE(image.GetImageSignificantColumnsAndRows(columns, rows)) << path;
            char first = 0;
            if (image.RetrieveImagePixels(static_cast<int>(rows) - 1, static_cast<int>(columns) - 1, 1, 1, 0, 1, &first,
                                          nullptr) == Reader::STATUS_DATA_SHORT) {
                continue;  // headers of larger images; GDAL fills up what is not there
            }
            for (const Window& window : WindowsOf(static_cast<int>(rows), static_cast<int>(columns))) {
                EXPECT_EQ(Compare(image, *raster, window), "") << path << " image " << i << " window " << window.row;
            }
            ++compared;
        }
    }
    EXPECT_GE(compared, 20);
}

TEST(ImagePixelsGdalTest, CompressedCorpusImagesAreDecodedOrRefusedByName)
{
    struct Expected
    {
        const char* file;
        Reader::Status status;
    };
    for (const auto& [file, status] :
         {Expected{"two_images_jpeg.ntf", Reader::STATUS_OK}, Expected{"0000M033.GN3", Reader::STATUS_OK},
          Expected{"file4_jp2.ntf", Reader::STATUS_OK}, Expected{"066_389x298_s_11_3_rgb_jp2.ntf", Reader::STATUS_OK},
          Expected{"i_3301h.ntf", Reader::STATUS_OK}}) {
        const std::string path = Tests::CorpusFile(file).string();
        if (!std::filesystem::exists(path)) {
            GTEST_SKIP() << "the corpus is absent";
        }
        const Isd isd = OpenIsd(path);
        ASSERT_NE(isd, nullptr);
        const NITFImageSubheader& image = *isd->GetImageSubheader(0);
        unsigned long rows = 0;
        unsigned long columns = 0;
        ASSERT_TRUE(image.GetImageSignificantColumnsAndRows(columns, rows));
        std::vector<char> samples(rows * columns * image.GetBytesPerSample());
        EXPECT_EQ(image.RetrieveImagePixels(0, 0, static_cast<int>(rows), static_cast<int>(columns), 0,
                                            static_cast<int>(samples.size()), samples.data(), nullptr),
                  status)
            << file << ' ' << image.GetImageCompressionCode() << Reader::GetLastPixelError();
        const Raster raster = OpenGdal(path, 0);
        if (status == Reader::STATUS_OK && raster != nullptr) {
            EXPECT_EQ(Compare(image, *raster, {0, 0, static_cast<int>(rows), static_cast<int>(columns)}), "") << file;
        }
        // The same through the reader of any segment.
        std::string reason;
        const auto reader = GDALNITFFileReader::Open(path.c_str(), 0, reason);
        ASSERT_NE(reader, nullptr) << reason;
        EXPECT_EQ(reader->GetNumOfRows(), rows);
        const auto band = reader->GetRasterBand(0);
        ASSERT_TRUE(band.has_value());
        EXPECT_FALSE(reader->GetRasterBand(reader->GetNumOfBands()).has_value());
        char sample[8];
        EXPECT_TRUE(band->Read(0, 0, 1, 1, 1, 1, GDALNITFRasterBand::DATA_TYPE_FLOAT64, sample, 8, reason)) << reason;
        EXPECT_FALSE(band->Read(0, 0, 1, 1, 1, 1, GDALNITFRasterBand::DATA_TYPE_FLOAT64, sample, 7, reason));
        EXPECT_FALSE(
            band->Read(reader->GetNumOfRows(), 0, 1, 1, 1, 1, GDALNITFRasterBand::DATA_TYPE_UINT8, sample, 8, reason));
    }
}

TEST(ImagePixelsGdalTest, CompressionThatGdalCannotDecodeIsNamed)
{
    Tests::NitfBuilder builder;
    builder.AddImage(16, 16).Compression("C6", "").Set("IC", "C6");
    const Tests::TempFile file(builder.Bytes());
    const Isd isd = OpenIsd(file.Path());
    ASSERT_NE(isd, nullptr);
    char sample = 0;
    EXPECT_EQ(isd->GetImageSubheader(0)->RetrieveImagePixels(0, 0, 1, 1, 0, 1, &sample, nullptr),
              Reader::STATUS_UNSUPPORTED_COMPRESSION);
    EXPECT_NE(std::string(Reader::GetLastPixelError()).find("C6"), std::string::npos) << Reader::GetLastPixelError();
    EXPECT_EQ(isd->GetImageSubheader(0)->RetrieveImagePixels(0, 0, 1, 1, 7, 1, &sample, nullptr),
              Reader::STATUS_OUT_OF_RANGE);
}

TEST(ImagePixelsGdalTest, FilesWrittenByGdalAreReadAsTheyWereWritten)
{
    GDALAllRegister();
    GDALDriver* const driver = GetGDALDriverManager()->GetDriverByName("NITF");
    ASSERT_NE(driver, nullptr);
    const std::filesystem::path directory = std::filesystem::temp_directory_path() / "ormo-gdal-written";
    std::filesystem::create_directories(directory);
    constexpr int ROWS = 83;
    constexpr int COLUMNS = 101;
    for (const GDALDataType type :
         {GDT_Byte, GDT_UInt16, GDT_Int16, GDT_UInt32, GDT_Int32, GDT_Float32, GDT_Float64, GDT_CFloat32}) {
        for (const int bands : {1, 3, 11}) {
            for (const char* const block : {"0", "32"}) {
                const std::string path =
                    (directory / (std::to_string(type) + "_" + std::to_string(bands) + "_" + block + ".ntf")).string();
                {
                    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
                    CPLStringList options;
                    if (block[0] != '0') {
                        options.SetNameValue("BLOCKSIZE", block);
                    }
                    const Raster raster(driver->Create(path.c_str(), COLUMNS, ROWS, bands, type, options.List()));
                    ASSERT_NE(raster, nullptr) << path;
                    const int size = GDALGetDataTypeSizeBytes(type);
                    std::vector<char> samples(static_cast<std::size_t>(ROWS * COLUMNS * size));
                    for (int band = 1; band <= bands; ++band) {
                        for (std::size_t i = 0; i != samples.size(); ++i) {
                            samples[i] = static_cast<char>(
                                Tests::Scrambled(static_cast<std::uint64_t>(band), i, 3) >> 20U & 0x3FU);
                        }
                        ASSERT_EQ(raster->GetRasterBand(band)->RasterIO(GF_Write, 0, 0, COLUMNS, ROWS, samples.data(),
                                                                        COLUMNS, ROWS, type, 0, 0, nullptr),
                                  CE_None);
                    }
                }
                const Isd isd = OpenIsd(path);
                const Raster raster = OpenGdal(path, 0);
                ASSERT_NE(isd, nullptr);
                ASSERT_NE(raster, nullptr);
                for (const Window& window : WindowsOf(ROWS, COLUMNS)) {
                    EXPECT_EQ(Compare(*isd->GetImageSubheader(0), *raster, window), "") << path;
                }
            }
        }
    }
    std::filesystem::remove_all(directory);
}

/// A file with one image of scrambled pixels in a layout.
std::string FileOf(const Detail::PixelLayout& aLayout)
{
    Tests::NitfBuilder builder;
    Tests::HeaderFields& header = builder.AddImage(1, 1);
    header.NoBands();
    for (std::uint64_t band = 0; band != aLayout.bands; ++band) {
        header.Band("M");
    }
    const auto set = [&header](const char* aName, std::uint64_t aValue) { header.Set(aName, aValue); };
    set("NROWS", aLayout.rows);
    set("NCOLS", aLayout.columns);
    set("NBPR", aLayout.blocksPerRow);
    set("NBPC", aLayout.blocksPerColumn);
    set("NPPBH", aLayout.blockColumns);
    set("NPPBV", aLayout.blockRows);
    set("NBPP", aLayout.bits);
    set("ABPP", aLayout.bits);
    header.Set("IREP", aLayout.bands == 1 ? "MONO" : "MULTI").Set("IMODE", std::string(1, aLayout.mode));
    header.Set("PVTYPE", aLayout.type == NITFCnst::PIXEL_TYPE_SI  ? "SI"
                         : aLayout.type == NITFCnst::PIXEL_TYPE_R ? "R"
                         : aLayout.type == NITFCnst::PIXEL_TYPE_B ? "B"
                         : aLayout.type == NITFCnst::PIXEL_TYPE_C ? "C"
                                                                  : "INT");
    builder.LastData() = Tests::ImageBytes(aLayout);
    return builder.Bytes();
}

TEST(ImagePixelsGdalTest, EveryInterleaveEqualsWhatGdalReads)
{
    struct Depth
    {
        NITFCnst::PixelType type;
        unsigned bits;
    };
    for (const char mode : {'B', 'P', 'R', 'S'}) {
        for (const auto& [type, bits] :
             {Depth{NITFCnst::PIXEL_TYPE_INT, 8}, Depth{NITFCnst::PIXEL_TYPE_INT, 16},
              Depth{NITFCnst::PIXEL_TYPE_SI, 16}, Depth{NITFCnst::PIXEL_TYPE_SI, 32}, Depth{NITFCnst::PIXEL_TYPE_R, 32},
              Depth{NITFCnst::PIXEL_TYPE_R, 64}, Depth{NITFCnst::PIXEL_TYPE_C, 64}}) {
            // GDAL reads one block of all bands as lines; several blocks of either kind too.
            for (const std::uint64_t block : {64U, 24U}) {
                const Detail::PixelLayout layout = Tests::Layout(mode, bits, type, 3, 64, 64, block, block);
                const Tests::TempFile file(FileOf(layout));
                const Isd isd = OpenIsd(file.Path());
                const Raster raster = OpenGdal(file.Path(), 0);
                ASSERT_NE(isd, nullptr);
                ASSERT_NE(raster, nullptr);
                for (const Window& window : WindowsOf(64, 64)) {
                    EXPECT_EQ(Compare(*isd->GetImageSubheader(0), *raster, window), "") << mode << bits << ' ' << block;
                }
            }
        }
    }
    // GDAL reads pixels that fill no bytes in images of one block. It takes the three parts of 12 bits in another order
    // than the standard, so those are left out.
    for (const unsigned bits : {1U, 2U, 4U}) {
        const Detail::PixelLayout layout =
            Tests::Layout('B', bits, bits == 1 ? NITFCnst::PIXEL_TYPE_B : NITFCnst::PIXEL_TYPE_INT, 1, 64, 64, 64, 64);
        const Tests::TempFile file(FileOf(layout));
        const Isd isd = OpenIsd(file.Path());
        const Raster raster = OpenGdal(file.Path(), 0);
        ASSERT_NE(isd, nullptr);
        ASSERT_NE(raster, nullptr);
        EXPECT_EQ(Compare(*isd->GetImageSubheader(0), *raster, {0, 0, 64, 64}), "") << bits;
    }
}

// ---- Footprints

/// The corners as GDAL has them: ground control points in the order of IGEOLO, or the geotransform of pixel centres,
/// as latitude and longitude.
bool GdalCorners(GDALDataset& aRaster, std::array<double, 4>& aLatitudes, std::array<double, 4>& aLongitudes,
                 double& aTolerance)
{
    aTolerance = 1e-8;  // degrees, a millimetre
    const OGRSpatialReference* system = aRaster.GetGCPSpatialRef();
    std::array<double, 6> transform{};
    if (aRaster.GetGCPCount() == 4) {
        for (std::size_t i = 0; i != 4; ++i) {
            aLongitudes[i] = aRaster.GetGCPs()[i].dfGCPX;
            aLatitudes[i] = aRaster.GetGCPs()[i].dfGCPY;
        }
    } else if (aRaster.GetGeoTransform(transform.data()) == CE_None) {
        system = aRaster.GetSpatialRef();
        // GDAL fits the transform to the corners when it comes near enough to them.
        aTolerance = std::hypot(transform[1], transform[2]) / 4 + 1e-8;
        const double right = aRaster.GetRasterXSize() - 0.5;
        const double bottom = aRaster.GetRasterYSize() - 0.5;
        const std::array<double, 4> columns{0.5, right, right, 0.5};
        const std::array<double, 4> rows{0.5, 0.5, bottom, bottom};
        for (std::size_t i = 0; i != 4; ++i) {
            aLongitudes[i] = transform[0] + transform[1] * columns[i] + transform[2] * rows[i];
            aLatitudes[i] = transform[3] + transform[4] * columns[i] + transform[5] * rows[i];
        }
    } else {
        return false;
    }
    if (system == nullptr || system->IsGeographic() != 0) {
        return true;
    }
    OGRSpatialReference geographic;
    geographic.SetWellKnownGeogCS("WGS84");
    geographic.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    const std::unique_ptr<OGRCoordinateTransformation> towards(OGRCreateCoordinateTransformation(system, &geographic));
    return towards != nullptr && towards->Transform(4, aLongitudes.data(), aLatitudes.data()) != 0;
}

TEST(FootprintGdalTest, CornersEqualThoseThatGdalReports)
{
    struct Location
    {
        const char* icords;
        const char* igeolo;
    };
    for (const auto& [icords, igeolo] :
         {Location{"G", "453000N0071500E453000N0081500E444500N0081500E444500N0071500E"},
          Location{"G", "123456S1234512W130000S1224512W140000S1230000W133000S1240000W"},
          Location{"D", "+45.500-071.250+45.500-070.250+44.500-070.250+44.500-071.250"},
          Location{"N", "335000004500000336000004500000336000004400000335000004400000"},
          Location{"N", "011700008900000011800008900000011800008800000011700008800000"},
          Location{"S", "563341546251235564341546251235564341546151235563341546151235"},
          Location{"S", "190166000010000198330000010000198330001000000190166001000000"},
          Location{"U", "18SUJ234800647018SUJ334800647018SUH334809647018SUH2348096470"},
          Location{"U", "56HLH341545123556HMH341545123556HMG341545123556HLG3415451235"}}) {
        Tests::NitfBuilder builder;
        builder.AddImage(64, 64).Location(icords, igeolo);
        const Tests::TempFile file(builder.Bytes());
        const Isd isd = OpenIsd(file.Path());
        const Raster raster = OpenGdal(file.Path(), 0);
        ASSERT_NE(isd, nullptr);
        ASSERT_NE(raster, nullptr);
        std::array<double, 4> latitudes{};
        std::array<double, 4> longitudes{};
        NITFImgExtent::Footprint footprint;
        ASSERT_TRUE(isd->GetImageSubheader(0)->GetFootprint(footprint)) << icords;
        double ignored = 0;
        ASSERT_TRUE(GdalCorners(*raster, latitudes, longitudes, ignored)) << icords;
        for (std::size_t i = 0; i != 4; ++i) {
            EXPECT_NEAR(footprint.latitudes[i], latitudes[i], 1e-8) << igeolo << ' ' << i;
            EXPECT_NEAR(footprint.longitudes[i], longitudes[i], 1e-8) << igeolo << ' ' << i;
        }
    }
}

TEST(FootprintGdalTest, CorpusCornersEqualThoseThatGdalReports)
{
    if (!std::filesystem::exists(Tests::CorpusFile("README.md"))) {
        GTEST_SKIP() << "the corpus is absent";
    }
    int compared = 0;
    for (const auto& entry : std::filesystem::directory_iterator(Tests::CorpusFile("README.md").parent_path())) {
        const std::string path = entry.path().string();
        const Isd isd = OpenIsd(path);
        for (std::size_t i = 0; isd != nullptr && i != static_cast<std::size_t>(isd->GetNumOfImageSegments()); ++i) {
            const NITFImageSubheader& image = *isd->GetImageSubheader(i);
            NITFImgExtent::Footprint footprint;
            const Raster raster = OpenGdal(path, i);
            std::array<double, 4> latitudes{};
            std::array<double, 4> longitudes{};
            double tolerance = 0;
            if (raster == nullptr || image.IsTREOfThisDataSegment("RPFIMG") || !image.GetFootprint(footprint) ||
                std::string(footprint.source).rfind("IGEOLO", 0) != 0 ||
                !GdalCorners(*raster, latitudes, longitudes, tolerance)) {
                continue;
            }
            for (std::size_t corner = 0; corner != 4; ++corner) {
                EXPECT_NEAR(footprint.latitudes[corner], latitudes[corner], tolerance) << path << ' ' << corner;
                EXPECT_NEAR(footprint.longitudes[corner], longitudes[corner], tolerance) << path << ' ' << corner;
            }
            ++compared;
        }
    }
    EXPECT_GE(compared, 5);
}

// ---- Rational polynomial coefficients

double Polynomial(const std::array<double, 20>& aCoefficients, double aP, double aL, double aH)
{
    const std::array<double, 20> terms{1,
                                       aL,
                                       aP,
                                       aH,
                                       aL * aP,
                                       aL * aH,
                                       aP * aH,
                                       aL * aL,
                                       aP * aP,
                                       aH * aH,
                                       aL * aP * aH,
                                       aL * aL * aL,
                                       aL * aP * aP,
                                       aL * aH * aH,
                                       aL * aL * aP,
                                       aP * aP * aP,
                                       aP * aH * aH,
                                       aL * aL * aH,
                                       aP * aP * aH,
                                       aH * aH * aH};
    double sum = 0.0;
    for (std::size_t i = 0; i != terms.size(); ++i) {
        sum += aCoefficients[i] * terms[i];
    }
    return sum;
}

TEST(RpcGdalTest, ImagePlacesOfGroundPointsEqualThoseOfGdal)
{
    const std::string path = Tests::CorpusFile("po_39928_pan_0000000_chip_700_700_noICHIPB.nitf").string();
    if (!std::filesystem::exists(path)) {
        GTEST_SKIP() << "the corpus is absent";
    }
    const Isd isd = OpenIsd(path);
    const Raster raster = OpenGdal(path, 0);
    ASSERT_NE(isd, nullptr);
    ASSERT_NE(raster, nullptr);
    const NITFImageSubheader& image = *isd->GetImageSubheader(0);
    ASSERT_EQ(image.GetRPC00Availability(), NITFCnst::RPC00B_AVAILABLE);
    std::array<double, 20> lineNumerator{};
    std::array<double, 20> lineDenominator{};
    std::array<double, 20> sampleNumerator{};
    std::array<double, 20> sampleDenominator{};
    ASSERT_TRUE(image.GetRPC00Coefficients(lineNumerator.data(), lineDenominator.data(), sampleNumerator.data(),
                                           sampleDenominator.data()));
    double latitude = 0;
    double longitude = 0;
    double height = 0;
    long line = 0;
    long sample = 0;
    double latitudeScale = 0;
    double longitudeScale = 0;
    double heightScale = 0;
    long lineScale = 0;
    long sampleScale = 0;
    ASSERT_TRUE(image.GetRPC00Offsets(latitude, longitude, height, line, sample));
    ASSERT_TRUE(image.GetRPC00Scales(latitudeScale, longitudeScale, heightScale, lineScale, sampleScale));

    GDALRPCInfoV2 rpc{};
    ASSERT_TRUE(GDALExtractRPCInfoV2(raster->GetMetadata("RPC"), &rpc));
    void* const transformer = GDALCreateRPCTransformerV2(&rpc, FALSE, 0.001, nullptr);
    ASSERT_NE(transformer, nullptr);
    for (int i = 0; i != 10; ++i) {
        const double p = -0.9 + 0.19 * i;
        const double l = 0.8 - 0.17 * i;
        const double h = -0.5 + 0.1 * i;
        double x = longitude + l * longitudeScale;
        double y = latitude + p * latitudeScale;
        double z = height + h * heightScale;
        const double ourLine =
            Polynomial(lineNumerator, p, l, h) / Polynomial(lineDenominator, p, l, h) * static_cast<double>(lineScale) +
            static_cast<double>(line);
        const double ourSample = Polynomial(sampleNumerator, p, l, h) / Polynomial(sampleDenominator, p, l, h) *
                                     static_cast<double>(sampleScale) +
                                 static_cast<double>(sample);
        int good = 0;
        ASSERT_TRUE(GDALRPCTransform(transformer, TRUE, 1, &x, &y, &z, &good));
        ASSERT_TRUE(good);
        // GDAL counts from the edge of the first pixel, the polynomials from its middle.
        EXPECT_NEAR(ourSample + 0.5, x, 1e-6) << i;
        EXPECT_NEAR(ourLine + 0.5, y, 1e-6) << i;
    }
    GDALDestroyRPCTransformer(transformer);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
