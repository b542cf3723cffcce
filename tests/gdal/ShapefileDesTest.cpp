#include "isd/ImageSupportDataNITF.h"
#include "isd/ImageSupportDataNITFFactory.h"
#include "segments/des/DesDESDATACSSHPA.h"
#include "segments/des/DesDESSHFCSSHPA.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/TempFile.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <gdal_priv.h>
#include <gtest/gtest.h>
#include <ogrsf_frmts.h>

namespace ORMO::SensorModel::CSM {
namespace {

struct DatasetCloser
{
    void operator()(GDALDataset* aDataset) const { GDALClose(aDataset); }
};
using Dataset = std::unique_ptr<GDALDataset, DatasetCloser>;

constexpr const char* OUTLINE = "POLYGON ((10 20,30 40,30 20,10 20))";

std::string MemoryFile(const std::string& aPath)
{
    vsi_l_offset length = 0;
    const GByte* const bytes = VSIGetMemFileBuffer(aPath.c_str(), &length, FALSE);
    return bytes == nullptr ? std::string()
                            : std::string(static_cast<const char*>(static_cast<const void*>(bytes)),
                                          static_cast<std::size_t>(length));
}

/// A shapefile with one polygon and one attribute, as OGR writes it.
void WriteShapefile(const char* aPath)
{
    GDALDriver* const driver = GetGDALDriverManager()->GetDriverByName("ESRI Shapefile");
    ASSERT_NE(nullptr, driver);
    const Dataset shapefile(driver->Create(aPath, 0, 0, 0, GDT_Unknown, nullptr));
    ASSERT_NE(nullptr, shapefile);
    OGRLayer* const layer = shapefile->CreateLayer("outline", nullptr, wkbPolygon, nullptr);
    ASSERT_NE(nullptr, layer);
    OGRFieldDefn name("NAME", OFTString);
    ASSERT_EQ(OGRERR_NONE, layer->CreateField(&name));
    OGRFeature feature(layer->GetLayerDefn());
    feature.SetField("NAME", "image");
    OGRGeometry* geometry = nullptr;
    ASSERT_EQ(OGRERR_NONE, OGRGeometryFactory::createFromWkt(OUTLINE, nullptr, &geometry));
    feature.SetGeometryDirectly(geometry);
    ASSERT_EQ(OGRERR_NONE, layer->CreateFeature(&feature));
}

TEST(ShapefileDesTest, ShapefileThatOgrWroteIsOpenedByOgrAgain)
{
    GDALAllRegister();
    WriteShapefile("/vsimem/outline.shp");
    const std::string shp = MemoryFile("/vsimem/outline.shp");
    const std::string shx = MemoryFile("/vsimem/outline.shx");
    const std::string dbf = MemoryFile("/vsimem/outline.dbf");
    ASSERT_FALSE(shp.empty() || shx.empty() || dbf.empty());

    std::string fields = "IMAGE_SHAPE              POLYGON   SHP";
    fields +=
        Tests::Padded(0, 6) + "SHX" + Tests::Padded(shp.size(), 6) + "DBF" + Tests::Padded(shp.size() + shx.size(), 6);
    Tests::NitfBuilder builder;
    builder.AddDes("CSSHPA DES", shp + shx + dbf).UserFields(fields);
    const Tests::TempFile file(builder.Bytes());

    ImageSupportDataNITF* isd = nullptr;
    ASSERT_TRUE(ImageSupportDataNITFFactory::Create(file.CStr(), &isd, false, false, -1,
                                                    NITFCnst::NITF_VERSION_NUMBER_UNKNOWN));
    const NITFDESSubheader* const des = isd->GetDataExtensionSegment(0);
    ASSERT_NE(nullptr, des);
    const auto* const data = dynamic_cast<const DesDESDATACSSHPA*>(des->GetDESDATAFields());
    const auto* const subheader = dynamic_cast<const DesDESSHFCSSHPA*>(des->GetDESSHF());
    ASSERT_TRUE(data != nullptr && subheader != nullptr);
    std::vector<DesDESDATACSSHPA::ShapeFile> files;
    ASSERT_TRUE(data->GetShapeFiles(*subheader, files));
    for (const DesDESDATACSSHPA::ShapeFile& part : files) {
        const std::string path = "/vsimem/again." + std::string(part.name == "SHP"   ? "shp"
                                                                : part.name == "SHX" ? "shx"
                                                                                     : "dbf");
        VSILFILE* const out = VSIFOpenL(path.c_str(), "wb");
        ASSERT_NE(nullptr, out);
        EXPECT_EQ(part.length, VSIFWriteL(part.data, 1, part.length, out));
        VSIFCloseL(out);
    }
    EXPECT_EQ(shx, MemoryFile("/vsimem/again.shx"));
    const Dataset again(GDALDataset::Open("/vsimem/again.shp", GDAL_OF_VECTOR));
    ASSERT_NE(nullptr, again);
    OGRLayer* const layer = again->GetLayer(0);
    ASSERT_EQ(1, layer->GetFeatureCount());
    const std::unique_ptr<OGRFeature> feature(layer->GetNextFeature());
    EXPECT_STREQ("image", feature->GetFieldAsString("NAME"));
    OGRGeometry* wanted = nullptr;
    ASSERT_EQ(OGRERR_NONE, OGRGeometryFactory::createFromWkt(OUTLINE, nullptr, &wanted));
    EXPECT_TRUE(feature->GetGeometryRef()->Equals(wanted));
    OGRGeometryFactory::destroyGeometry(wanted);
    ImageSupportDataNITFFactory::Destroy(&isd);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
