#include "segments/image/NITFImgExtent.h"

#include "foundation/CSMCnst.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "foundation/detail/HandOut.h"
#include "segments/image/detail/ChipMapping.h"
#include "segments/image/detail/CornerText.h"
#include "segments/image/detail/UtmGrid.h"
#include "tre/TRE.h"
#include "tre/TREFactory.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr std::size_t IGEOLO_LENGTH = 60;
constexpr std::size_t CORNER_LENGTH = 15;
constexpr std::size_t LATITUDE_LENGTH = 7;
constexpr double FULL_CIRCLE = 360.0;
constexpr double DEGREES = 180.0 / std::numbers::pi;

Detail::ChipMapping MappingOf(const std::array<double, NITFImgExtent::NUM_OF_CHIP_COEFFICIENTS>& aCoefficients)
{
    Detail::ChipMapping mapping;
    std::copy_n(aCoefficients.begin(), mapping.row.size(), mapping.row.begin());
    std::copy_n(aCoefficients.begin() + mapping.row.size(), mapping.column.size(), mapping.column.begin());
    return mapping;
}

std::array<double, NITFImgExtent::NUM_OF_CHIP_COEFFICIENTS> CoefficientsOf(const Detail::ChipMapping& aMapping)
{
    std::array<double, NITFImgExtent::NUM_OF_CHIP_COEFFICIENTS> coefficients{};
    std::copy(aMapping.column.begin(), aMapping.column.end(),
              std::copy(aMapping.row.begin(), aMapping.row.end(), coefficients.begin()));
    return coefficients;
}

/// The grid points of a chip TRE under a prefix, "OP" in the chip and "FI" in the full image; false for a text that is
/// no number.
bool GridPointsOf(const TRE& aTre, const std::string& aPrefix, Detail::GridPoints& aPoints)
{
    constexpr const char* PLACES[] = {"11", "12", "21", "22"};
    for (std::size_t i = 0; i != aPoints.size(); ++i) {
        if (!aTre.GetFieldAsDouble((aPrefix + "_ROW_" + PLACES[i]).c_str(), aPoints[i].row) ||
            !aTre.GetFieldAsDouble((aPrefix + "_COL_" + PLACES[i]).c_str(), aPoints[i].column)) {
            return false;
        }
    }
    return true;
}

std::shared_ptr<const TRE> CopyOf(const TRE* aTre)
{
    TRE* copy = nullptr;
    if (aTre == nullptr || !TREFactory::CloneTRE(*aTre, &copy)) {
        return nullptr;
    }
    return {copy, [](TRE* aOwned) { TREFactory::Destroy(&aOwned); }};
}

}  // namespace

NITFImgExtent::NITFImgExtent(NITFCnst::Version aVersion, unsigned long aRows, unsigned long aColumns, const TRE* aChip)
    : m_version(aVersion), m_rows(aRows), m_columns(aColumns)
{
    ResetImageChipInfoToDefaultValues();
    SetICHIPInformation(aChip);
}

bool NITFImgExtent::Corners::CopyTo(double* aLatitudes, double* aLongitudes) const noexcept
{
    if (!isSet || aLatitudes == nullptr || aLongitudes == nullptr) {
        return false;
    }
    std::copy(latitudes.begin(), latitudes.end(), aLatitudes);
    std::copy(longitudes.begin(), longitudes.end(), aLongitudes);
    return true;
}

// ---- IGEOLO

double NITFImgExtent::NITFWGS84GeocentricLatToGeodeticLatitude(double aLatitude) noexcept
{
    using Geodesy = Util::CSMCnst::Geodesy;
    static constexpr double RATIO = 40680631590769.0 / (Geodesy::WGS84_SEMIMINOR_AXIS * Geodesy::WGS84_SEMIMINOR_AXIS);
    return std::atan(std::tan(aLatitude / DEGREES) * RATIO) * DEGREES;
}

bool NITFImgExtent::SetIGEOLO(char aIcords, const char* aIgeolo)
{
    switch (aIcords) {
        case 'C':
        case 'D':
        case 'G':
            return SetIGEOLOGeographicCoordinates(aIcords, aIgeolo);
        case 'N':
        case 'S':
            return SetUTMCoordSysParameters(aIcords, aIgeolo);
        case 'U':
            return m_utmZone >= 1 && m_utmZone <= 60 && (m_utmHemisphere == 'N' || m_utmHemisphere == 'S');
        default:
            return false;
    }
}

bool NITFImgExtent::SetIGEOLOGeographicCoordinates(char aIcords, const char* aIgeolo)
{
    m_igeolo = {};
    m_box = {};
    m_coordinateSystem = '?';
    const std::string_view igeolo = Detail::Trimmed(aIgeolo);
    if (igeolo.size() != IGEOLO_LENGTH) {
        return false;
    }
    Corners corners;
    for (std::size_t i = 0; i != NUM_OF_CORNERS; ++i) {
        const std::string_view latitude = igeolo.substr(i * CORNER_LENGTH, LATITUDE_LENGTH);
        const std::string_view longitude =
            igeolo.substr(i * CORNER_LENGTH + LATITUDE_LENGTH, CORNER_LENGTH - LATITUDE_LENGTH);
        Detail::GroundPoint point;
        if (aIcords == 'D' ? !Detail::ParseDecimalDegrees(latitude, longitude, point)
                           : !Detail::ParseDegreesMinutesSeconds(latitude, longitude, point)) {
            return false;
        }
        corners.latitudes[i] =
            aIcords == 'C' ? NITFWGS84GeocentricLatToGeodeticLatitude(point.latitude) : point.latitude;
        corners.longitudes[i] = point.longitude;
    }
    corners.isSet = true;
    m_igeolo = corners;
    m_coordinateSystem = aIcords;
    return true;
}

bool NITFImgExtent::SetUTMCoordSysParameters(char aHemisphere, const char* aIgeolo)
{
    m_utmHemisphere = aHemisphere;
    m_utmZone = 0;
    m_coordinateSystem = '?';
    const std::string_view igeolo = Detail::Trimmed(aIgeolo);
    Detail::UtmPoint point;
    if (igeolo.size() != IGEOLO_LENGTH ||
        !Detail::ParseUtm(igeolo.substr(0, CORNER_LENGTH), aHemisphere == 'N', point)) {
        return false;
    }
    m_utmZone = point.zone;
    m_utmEasting = point.easting;
    m_utmNorthing = point.northing;
    m_coordinateSystem = aHemisphere;
    return true;
}

bool NITFImgExtent::SetUTMGeographicCoordinates(char aIcords, const char* aIgeolo)
{
    m_utm = {};
    m_box = {};
    const std::string_view igeolo = Detail::Trimmed(aIgeolo);
    if (igeolo.size() != IGEOLO_LENGTH || (aIcords != 'N' && aIcords != 'S' && aIcords != 'U')) {
        return false;
    }
    Corners corners;
    for (std::size_t i = 0; i != NUM_OF_CORNERS; ++i) {
        const std::string_view text = igeolo.substr(i * CORNER_LENGTH, CORNER_LENGTH);
        Detail::UtmPoint grid;
        if (aIcords == 'U' ? !Detail::ParseMgrs(text, grid) : !Detail::ParseUtm(text, aIcords == 'N', grid)) {
            return false;
        }
        const Detail::GroundPoint point = Detail::ToGeographic(grid);
        corners.latitudes[i] = point.latitude;
        corners.longitudes[i] = point.longitude;
    }
    corners.isSet = true;
    m_utm = corners;
    m_utmIsMgrs = aIcords == 'U';
    return true;
}

bool NITFImgExtent::GetIGEOLOGeographicExtent(double* aLatitudes, double* aLongitudes) const noexcept
{
    return m_igeolo.CopyTo(aLatitudes, aLongitudes);
}

bool NITFImgExtent::GetUTMGeographicExtent(double* aLatitudes, double* aLongitudes) const noexcept
{
    return m_utm.CopyTo(aLatitudes, aLongitudes);
}

bool NITFImgExtent::GetUTMParameters(int& aZone, char& aHemisphere, double& aEasting, double& aNorthing) const noexcept
{
    if (m_utmZone == 0) {
        return false;
    }
    aZone = m_utmZone;
    aHemisphere = m_utmHemisphere;
    aEasting = m_utmEasting;
    aNorthing = m_utmNorthing;
    return true;
}

// ---- TREs

bool NITFImgExtent::SetBLOCKGeographicCoordinates(const char* aFRFC, const char* aFRLC, const char* aLRLC,
                                                  const char* aLRFC, char aFormat)
{
    m_block = {};
    m_box = {};
    const char* const texts[NUM_OF_CORNERS] = {aFRFC, aFRLC, aLRLC, aLRFC};
    Corners corners;
    for (std::size_t i = 0; i != NUM_OF_CORNERS; ++i) {
        const std::string_view text = Detail::Trimmed(texts[i]);
        Detail::GroundPoint point;
        if (!(aFormat == 'D' && Detail::ParseBlockDecimal(text, point)) &&
            !(aFormat == 'G' && Detail::ParseBlockSeconds(text, point))) {
            return false;
        }
        corners.latitudes[i] = point.latitude;
        corners.longitudes[i] = point.longitude;
    }
    corners.isSet = true;
    m_block = corners;
    return true;
}

bool NITFImgExtent::GetBLOCKGeographicExtent(double* aLatitudes, double* aLongitudes) const noexcept
{
    return m_block.CopyTo(aLatitudes, aLongitudes);
}

bool NITFImgExtent::SetTreGEOLOGeographicCoordinates(const TRE* aTre, unsigned long aRows, unsigned long aColumns)
{
    m_geolo = {};
    m_box = {};
    double across = 0.0;
    double down = 0.0;
    Detail::GroundPoint origin;
    if (aTre == nullptr || aRows == 0 || aColumns == 0 || !aTre->GetFieldAsDouble("ARV", across) ||
        !aTre->GetFieldAsDouble("BRV", down) || !aTre->GetFieldAsDouble("LSO", origin.longitude) ||
        !aTre->GetFieldAsDouble("PSO", origin.latitude) || !(across > 0.0) || !(down > 0.0) ||
        !Detail::IsOnTheGlobe(origin)) {
        return false;
    }
    const double south = origin.latitude - static_cast<double>(aRows - 1) * FULL_CIRCLE / down;
    const double width = static_cast<double>(aColumns - 1) * FULL_CIRCLE / across;
    if (south < -90.0 || width > FULL_CIRCLE) {
        return false;
    }
    const double east = origin.longitude + width;
    m_geolo.latitudes = {origin.latitude, origin.latitude, south, south};
    m_geolo.longitudes = {origin.longitude, east, east, origin.longitude};
    for (double& longitude : m_geolo.longitudes) {
        longitude = longitude > 180.0 ? longitude - FULL_CIRCLE : longitude;
    }
    m_geolo.isSet = true;
    return true;
}

bool NITFImgExtent::GetGEOLOGeographicExtent(double* aLatitudes, double* aLongitudes) const noexcept
{
    return m_geolo.CopyTo(aLatitudes, aLongitudes);
}

bool NITFImgExtent::SetTreCSCRNGeographicCoordinates(const TRE* aTre)
{
    m_cscrn = {};
    m_box = {};
    const char* predicted = nullptr;
    std::size_t length = 0;
    if (aTre == nullptr || !aTre->GetFieldAsString("PREDICT_CORNERS", predicted, length) || length != 1 ||
        (*predicted != 'Y' && *predicted != 'N')) {
        return false;
    }
    constexpr const char* NAMES[NUM_OF_CORNERS] = {"ULCRN", "URCRN", "LRCRN", "LLCRN"};
    CornersWithHeights corners;
    for (std::size_t i = 0; i != NUM_OF_CORNERS; ++i) {
        const std::string name = NAMES[i];
        if (!aTre->GetFieldAsDouble((name + "_LAT").c_str(), corners.latitudes[i]) ||
            !aTre->GetFieldAsDouble((name + "_LON").c_str(), corners.longitudes[i]) ||
            !aTre->GetFieldAsDouble((name + "_HT").c_str(), corners.heights[i]) ||
            !Detail::IsOnTheGlobe({corners.latitudes[i], corners.longitudes[i]})) {
            return false;
        }
    }
    corners.isSet = true;
    m_cscrn = corners;
    m_isCscrnMeasured = *predicted == 'N';
    return true;
}

bool NITFImgExtent::GetCSCRNGeographicExtent(bool& aIsMeasured, double* aLatitudes, double* aLongitudes,
                                             double* aHeights) const noexcept
{
    if (!m_cscrn.CopyTo(aLatitudes, aLongitudes)) {
        return false;
    }
    aIsMeasured = m_isCscrnMeasured;
    if (aHeights != nullptr) {
        std::copy(m_cscrn.heights.begin(), m_cscrn.heights.end(), aHeights);
    }
    return true;
}

bool NITFImgExtent::SetTreBNDPLExtentBoundingPolygon(const TRE* aTre, bool aIsDegrees)
{
    m_polygonLatitudes.clear();
    m_polygonLongitudes.clear();
    std::uint64_t count = 0;
    if (aTre == nullptr || !aIsDegrees || !aTre->GetFieldAsUInt64("NUM_PTS", count)) {
        return false;
    }
    std::vector<double> latitudes;
    std::vector<double> longitudes;
    for (std::uint64_t i = 1; i <= count; ++i) {
        const std::string turn = "_" + std::to_string(i);
        Detail::GroundPoint point;
        if (!aTre->GetFieldAsDouble(("LAT" + turn).c_str(), point.latitude) ||
            !aTre->GetFieldAsDouble(("LON" + turn).c_str(), point.longitude) || !Detail::IsOnTheGlobe(point)) {
            return false;
        }
        latitudes.push_back(point.latitude);
        longitudes.push_back(point.longitude);
    }
    m_polygonLatitudes = std::move(latitudes);
    m_polygonLongitudes = std::move(longitudes);
    return !m_polygonLatitudes.empty();
}

bool NITFImgExtent::GetBNDPLGeographicExtentBoundingPolygon(double*& aLatitudes, double*& aLongitudes,
                                                            std::size_t& aCount) const
{
    const std::size_t count = m_polygonLatitudes.size();
    double* latitudes = nullptr;
    double* longitudes = nullptr;
    if (count == 0 || Detail::HandOutArray(&latitudes, count) != count ||
        Detail::HandOutArray(&longitudes, count) != count) {
        DeleteDoubleArray(latitudes);
        return false;
    }
    std::copy(m_polygonLatitudes.begin(), m_polygonLatitudes.end(), latitudes);
    std::copy(m_polygonLongitudes.begin(), m_polygonLongitudes.end(), longitudes);
    aLatitudes = latitudes;
    aLongitudes = longitudes;
    aCount = count;
    return true;
}

void NITFImgExtent::DeleteDoubleArray(double*& aArray) noexcept
{
    delete[] aArray;
    aArray = nullptr;
}

// ---- Chips

void NITFImgExtent::SetUnityChipTransformationCoeff() noexcept
{
    m_chipToFull = CoefficientsOf(Detail::ChipMapping{});
    m_fullToChip = m_chipToFull;
    m_chipIsMapped = true;
}

void NITFImgExtent::ResetImageChipInfoToDefaultValues() noexcept
{
    m_chip.reset();
    SetUnityChipTransformationCoeff();
}

bool NITFImgExtent::SetICHIPInformation(const TRE* aTre)
{
    ResetImageChipInfoToDefaultValues();
    m_chip = CopyOf(aTre);
    if (m_chip == nullptr) {
        return false;
    }
    std::int64_t flag = 0;
    Detail::GridPoints chip;
    Detail::GridPoints full;
    Detail::ChipMapping chipToFull;
    Detail::ChipMapping fullToChip;
    m_chipIsMapped = m_chip->GetFieldAsInt64("XFRM_FLAG", flag) && flag == 0 && GridPointsOf(*m_chip, "OP", chip) &&
                     GridPointsOf(*m_chip, "FI", full) && Detail::SolveChipMapping(chip, full, chipToFull) &&
                     Detail::SolveChipMapping(full, chip, fullToChip);
    if (m_chipIsMapped) {
        m_chipToFull = CoefficientsOf(chipToFull);
        m_fullToChip = CoefficientsOf(fullToChip);
    }
    return m_chipIsMapped;
}

bool NITFImgExtent::GetImageChipTransformCoeffs(bool& aIsChip, const double*& aChipToFull,
                                                const double*& aFullToChip) const noexcept
{
    aIsChip = IsImageChip();
    if (!m_chipIsMapped) {
        return false;
    }
    aChipToFull = m_chipToFull.data();
    aFullToChip = m_fullToChip.data();
    return true;
}

bool NITFImgExtent::IsUnityTransform() const noexcept
{
    return m_chipIsMapped && MappingOf(m_chipToFull).IsUnity();
}

bool NITFImgExtent::MapChipToFullImage(double aRow, double aColumn, double& aFullRow,
                                       double& aFullColumn) const noexcept
{
    if (!m_chipIsMapped) {
        return false;
    }
    const Detail::PixelPlace place = MappingOf(m_chipToFull).Apply({aRow, aColumn});
    aFullRow = place.row;
    aFullColumn = place.column;
    return true;
}

bool NITFImgExtent::MapFullImageToChip(double aFullRow, double aFullColumn, double& aRow,
                                       double& aColumn) const noexcept
{
    const Detail::PixelPlace full{aFullRow, aFullColumn};
    Detail::PixelPlace place;
    if (!m_chipIsMapped ||
        !Detail::InvertChipMapping(MappingOf(m_chipToFull), full, MappingOf(m_fullToChip).Apply(full), place)) {
        return false;
    }
    aRow = place.row;
    aColumn = place.column;
    return true;
}

// ---- Sensor model

bool NITFImgExtent::SetSensorModelComputedExtentCoord(const double* aLatitudes, const double* aLongitudes,
                                                      const double* aHeights, const char* aModel, const char* aSource)
{
    ClearSensorModelComputedExtentCoord();
    if (aLatitudes == nullptr || aLongitudes == nullptr || aHeights == nullptr) {
        return false;
    }
    std::copy_n(aLatitudes, NUM_OF_CORNERS, m_sensorModel.latitudes.begin());
    std::copy_n(aLongitudes, NUM_OF_CORNERS, m_sensorModel.longitudes.begin());
    std::copy_n(aHeights, NUM_OF_CORNERS, m_sensorModel.heights.begin());
    m_sensorModelName = Detail::ViewOf(aModel);
    m_sensorModelSource = Detail::ViewOf(aSource);
    m_sensorModel.isSet = true;
    return true;
}

bool NITFImgExtent::GetSensorModelComputedExtentCoord(double* aLatitudes, double* aLongitudes, double* aHeights,
                                                      std::string& aModel, std::string& aSource) const
{
    if (aHeights == nullptr || !m_sensorModel.CopyTo(aLatitudes, aLongitudes)) {
        return false;
    }
    std::copy(m_sensorModel.heights.begin(), m_sensorModel.heights.end(), aHeights);
    aModel = m_sensorModelName;
    aSource = m_sensorModelSource;
    return true;
}

void NITFImgExtent::ClearSensorModelComputedExtentCoord() noexcept
{
    m_sensorModel = {};
    m_sensorModelName.clear();
    m_sensorModelSource.clear();
}

// ---- The best of them

const NITFImgExtent::Corners* NITFImgExtent::MostPrecise(bool& aIsMeasured, const char*& aSource) const noexcept
{
    aIsMeasured = true;
    if (m_block.isSet) {
        aSource = "BLOCKA";
        return &m_block;
    }
    if (m_geolo.isSet) {
        aSource = "GEOLOB";
        return &m_geolo;
    }
    if (m_cscrn.isSet && (m_isCscrnMeasured || NITFCnst::PREDICTED_EXTENT_OK)) {
        aIsMeasured = m_isCscrnMeasured;
        aSource = m_isCscrnMeasured ? "CSCRNA [measured]" : "CSCRNA [predicted]";
        return &m_cscrn;
    }
    aSource = "IGEOLO";
    return m_igeolo.isSet ? &m_igeolo : nullptr;
}

const NITFImgExtent::Corners* NITFImgExtent::Best(bool& aIsMeasured, const char*& aSource) const noexcept
{
    if (const Corners* const precise = MostPrecise(aIsMeasured, aSource); precise != nullptr) {
        return precise;
    }
    aSource = m_utmIsMgrs ? "IGEOLO [MGRS]" : "IGEOLO [UTM]";
    return m_utm.isSet ? &m_utm : nullptr;
}

bool NITFImgExtent::GetMostPreciseGeographicExtent(bool& aIsMeasured, const char*& aSource, double* aLatitudes,
                                                   double* aLongitudes) const noexcept
{
    bool measured = false;
    const char* source = nullptr;
    const Corners* const corners = MostPrecise(measured, source);
    if (corners == nullptr || !corners->CopyTo(aLatitudes, aLongitudes)) {
        return false;
    }
    aIsMeasured = measured;
    aSource = source;
    return true;
}

NITFImgExtent::Box NITFImgExtent::BoxAround(const Corners& aCorners) noexcept
{
    std::array<double, NUM_OF_CORNERS> longitudes = aCorners.longitudes;
    const auto isClockwise = [&] {
        double area = 0.0;
        for (std::size_t i = 0; i != NUM_OF_CORNERS; ++i) {
            const std::size_t next = (i + 1) % NUM_OF_CORNERS;
            area += longitudes[i] * aCorners.latitudes[next] - longitudes[next] * aCorners.latitudes[i];
        }
        return area < 0.0;
    };
    // More than half the globe is either a footprint across the 180th meridian or a map of the world. Images are not
    // mirrored: the corners go round clockwise in that of the two that is meant.
    const auto [first, last] = std::minmax_element(longitudes.begin(), longitudes.end());
    if (*last - *first > FULL_CIRCLE / 2.0) {
        const bool isWide = isClockwise();
        for (double& longitude : longitudes) {
            longitude += longitude < 0.0 ? FULL_CIRCLE : 0.0;
        }
        longitudes = isWide && !isClockwise() ? aCorners.longitudes : longitudes;
    }
    Box box;
    box.isSet = true;
    box.south = *std::min_element(aCorners.latitudes.begin(), aCorners.latitudes.end());
    box.north = *std::max_element(aCorners.latitudes.begin(), aCorners.latitudes.end());
    box.west = *std::min_element(longitudes.begin(), longitudes.end());
    box.east = *std::max_element(longitudes.begin(), longitudes.end());
    return box;
}

bool NITFImgExtent::SetApproxGeographicBoundingBox() noexcept
{
    bool measured = false;
    const char* source = nullptr;
    const Corners* const corners = Best(measured, source);
    m_box = corners == nullptr ? Box{} : BoxAround(*corners);
    return m_box.isSet;
}

bool NITFImgExtent::GetApproxGeographicExtentBoundingBox(double& aSouth, double& aWest, double& aNorth,
                                                         double& aEast) const noexcept
{
    if (!m_box.isSet) {
        return false;
    }
    aSouth = m_box.south;
    aWest = m_box.west;
    aNorth = m_box.north;
    aEast = m_box.east;
    return true;
}

bool NITFImgExtent::GetApproxGeographicCenterOfExtent(double& aLatitude, double& aLongitude) const noexcept
{
    if (!m_box.isSet) {
        return false;
    }
    aLatitude = (m_box.south + m_box.north) / 2.0;
    const double longitude = (m_box.west + m_box.east) / 2.0;
    aLongitude = longitude > 180.0 ? longitude - FULL_CIRCLE : longitude;
    return true;
}

bool NITFImgExtent::GetFootprint(Footprint& aFootprint) const
{
    Footprint footprint;
    const Corners* const corners = Best(footprint.isMeasured, footprint.source);
    if (corners == nullptr) {
        return false;
    }
    const Box box = BoxAround(*corners);
    footprint.latitudes = corners->latitudes;
    footprint.longitudes = corners->longitudes;
    footprint.crosses180 = box.east > 180.0;
    footprint.south = box.south;
    footprint.west = box.west;
    footprint.north = box.north;
    footprint.east = footprint.crosses180 ? box.east - FULL_CIRCLE : box.east;
    aFootprint = footprint;
    return true;
}

}  // namespace ORMO::SensorModel::CSM
