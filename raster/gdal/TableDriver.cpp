#include "raster/detail/TableDriver.h"

#include "foundation/Export.h"
#include "raster/gdal/detail/Listener.h"

#include <climits>
#include <exception>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include <ogrsf_frmts.h>

using ORMO::SensorModel::CSM::Detail::CopyReason;
using ORMO::SensorModel::CSM::Detail::Listener;

namespace {

/// Does one call; what fails or raises leaves its reason.
template<typename Work>
int Do(char* aReason, std::size_t aSize, const Work& aWork)
{
    try {
        const Listener listener;
        const bool good = aWork() && !listener.HasHeard();
        if (!good) {
            CopyReason(listener.Heard(), aReason, aSize);
        }
        return good ? 1 : 0;
    } catch (const std::exception& exception) {
        CopyReason(exception.what(), aReason, aSize);
        return 0;
    }
}

GDALDataset& FileOf(void* aFile)
{
    return *static_cast<GDALDataset*>(aFile);
}

void* Open(const char* aPath, int aIsNew, char* aReason, std::size_t aReasonSize)
{
    constexpr const char* const DRIVERS[] = {"GPKG", nullptr};
    // Counts that are kept beside the rows would be wrong after a run that was killed.
    constexpr const char* const OPTIONS[] = {"ADD_GPKG_OGR_CONTENTS=NO", nullptr};
    GDALDataset* file = nullptr;
    Do(aReason, aReasonSize, [&] {
        static std::once_flag isRegistered;
        std::call_once(isRegistered, [] { GDALAllRegister(); });
        if (aIsNew == 0) {
            file = GDALDataset::Open(aPath, GDAL_OF_VECTOR | GDAL_OF_UPDATE, DRIVERS);
        } else if (GDALDriver* const driver = GetGDALDriverManager()->GetDriverByName("GPKG"); driver != nullptr) {
            file = driver->Create(aPath, 0, 0, 0, GDT_Unknown, const_cast<char**>(OPTIONS));
        }
        return file != nullptr;
    });
    return file;
}

int Close(void* aFile, char* aReason, std::size_t aReasonSize)
{
    return Do(aReason, aReasonSize, [aFile] {
        GDALClose(aFile);
        return true;
    });
}

OGRFieldType TypeOf(OrmoValueType aType) noexcept
{
    switch (aType) {
        case ORMO_VALUE_INTEGER:
            return OFTInteger64;
        case ORMO_VALUE_REAL:
            return OFTReal;
        case ORMO_VALUE_BYTES:
            return OFTBinary;
        default:
            return OFTString;
    }
}

int AddTable(void* aFile, const char* aName, const char* aShapes, const OrmoTableColumn* aColumns, std::uint32_t aCount,
             char* aReason, std::size_t aReasonSize)
{
    return Do(aReason, aReasonSize, [&] {
        OGRSpatialReference system;
        system.SetWellKnownGeogCS("WGS84");
        system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        CPLStringList options;
        options.SetNameValue("FID", "id");
        if (aShapes != nullptr) {
            options.SetNameValue("GEOMETRY_NAME", aShapes);
        }
        OGRLayer* const layer = FileOf(aFile).CreateLayer(aName, aShapes == nullptr ? nullptr : &system,
                                                          aShapes == nullptr ? wkbNone : wkbMultiPolygon, options);
        bool good = layer != nullptr;
        for (std::uint32_t i = 0; good && i != aCount; ++i) {
            OGRFieldDefn field(aColumns[i].name, TypeOf(aColumns[i].type));
            good = layer->CreateField(&field) == OGRERR_NONE;
        }
        return good && layer->SyncToDisk() == OGRERR_NONE;
    });
}

int Begin(void* aFile, char* aReason, std::size_t aReasonSize)
{
    return Do(aReason, aReasonSize, [aFile] { return FileOf(aFile).StartTransaction() == OGRERR_NONE; });
}

int Commit(void* aFile, char* aReason, std::size_t aReasonSize)
{
    return Do(aReason, aReasonSize, [aFile] { return FileOf(aFile).CommitTransaction() == OGRERR_NONE; });
}

bool SetShape(OGRFeature& aFeature, const char* aShape)
{
    OGRGeometry* const read = aShape == nullptr ? nullptr : OGRGeometryFactory::createFromGeoJson(aShape);
    return aShape == nullptr || (read != nullptr && aFeature.SetGeometryDirectly(
                                                        OGRGeometryFactory::forceToMultiPolygon(read)) == OGRERR_NONE);
}

int Insert(void* aFile, const char* aTable, const OrmoTableValue* aValues, std::uint32_t aCount, const char* aShape,
           std::int64_t* aKey, char* aReason, std::size_t aReasonSize)
{
    return Do(aReason, aReasonSize, [&] {
        OGRLayer* const layer = FileOf(aFile).GetLayerByName(aTable);
        if (layer == nullptr) {
            return false;
        }
        OGRFeature row(layer->GetLayerDefn());
        for (std::uint32_t i = 0; i != aCount; ++i) {
            const OrmoTableValue& value = aValues[i];
            const int column = static_cast<int>(value.column);
            if (value.type == ORMO_VALUE_INTEGER) {
                row.SetField(column, static_cast<GIntBig>(value.integer));
            } else if (value.type == ORMO_VALUE_REAL) {
                row.SetField(column, value.real);
            } else if (value.type == ORMO_VALUE_TEXT) {
                row.SetField(column, value.bytes);
            } else if (value.size <= INT_MAX) {
                row.SetField(column, static_cast<int>(value.size), value.bytes);
            }
        }
        const bool good = SetShape(row, aShape) && layer->CreateFeature(&row) == OGRERR_NONE;
        if (good && aKey != nullptr) {
            *aKey = row.GetFID();
        }
        return good;
    });
}

int Query(void* aFile, const char* aSql, OrmoTableRow aRow, void* aContext, char* aReason, std::size_t aReasonSize)
{
    return Do(aReason, aReasonSize, [&] {
        GDALDataset& file = FileOf(aFile);
        OGRLayer* const answer = file.ExecuteSQL(aSql, nullptr, nullptr);
        if (answer == nullptr) {
            return aRow == nullptr;
        }
        bool goesOn = aRow != nullptr;
        // A feature keeps one number as text at a time.
        std::vector<std::string> kept(static_cast<std::size_t>(answer->GetLayerDefn()->GetFieldCount()));
        std::vector<const char*> texts(kept.size());
        for (std::unique_ptr<OGRFeature> row; goesOn && (row.reset(answer->GetNextFeature()), row != nullptr);) {
            for (std::size_t i = 0; i != texts.size(); ++i) {
                const int column = static_cast<int>(i);
                const bool isNull = row->IsFieldSetAndNotNull(column) == 0;
                kept[i] = isNull ? "" : row->GetFieldAsString(column);
                texts[i] = isNull ? nullptr : kept[i].c_str();
            }
            goesOn = aRow(aContext, texts.data(), static_cast<std::uint32_t>(texts.size())) != 0;
        }
        file.ReleaseResultSet(answer);
        return true;
    });
}

}  // namespace

extern "C" ORMO_CSM_API const OrmoTableDriver* ormo_csm_table_driver();

extern "C" const OrmoTableDriver* ormo_csm_table_driver()
{
    static constexpr OrmoTableDriver DRIVER{
        ORMO_TABLE_DRIVER_VERSION, &Open, &Close, &AddTable, &Begin, &Commit, &Insert, &Query};
    return &DRIVER;
}
