// Where the image of a subheader lies on the ground, and the queries for it.

#include "fields/Number.h"
#include "segments/image/NITFImageSubheader.h"
#include "segments/image/detail/ImageAttributes.h"

#include <algorithm>
#include <numeric>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM {

namespace {

/// The text of a TRE field; empty when it is not there.
std::string TextOf(const TRE& aTre, const char* aName)
{
    const char* text = nullptr;
    std::size_t length = 0;
    return aTre.GetFieldAsString(aName, text, length) ? std::string(text, length) : std::string();
}

std::uint64_t NumberIn(const TRE& aTre, const char* aName)
{
    std::uint64_t number = 0;
    return aTre.GetFieldAsUInt64(aName, number) ? number : 0;
}

}  // namespace

NITFImgExtent NITFImageSubheader::CreateImageExtentObj() const
{
    const Detail::PixelLayout& layout = TheAttributes().layout;
    NITFImgExtent extent(GetNITFStdDataSegmentInfo()->GetNITFVersion(), static_cast<unsigned long>(layout.rows),
                         static_cast<unsigned long>(layout.columns), nullptr);
    SetImageExtentInformation(extent);
    SetTreBLOCKExtentInformation(extent);
    SetTreGEOLOExtentInformation(extent);
    SetTreCSCRNExtentInformation(extent);
    SetTreBNDPLExtentInformation(extent);
    CheckImageChipInformation(extent);
    FinalizeSettingOfImageExtentInformation(extent);
    return extent;
}

bool NITFImageSubheader::SetImageExtentInformation(NITFImgExtent& aOut) const
{
    const char icords = TheAttributes().icords;
    const std::string igeolo(FieldText("IGEOLO"));
    const bool isSet = icords != '\0' && aOut.SetIGEOLO(icords, igeolo.c_str());
    return aOut.SetUTMGeographicCoordinates(icords, igeolo.c_str()) || isSet;
}

bool NITFImageSubheader::SetTreBLOCKExtentInformation(NITFImgExtent& aOut) const
{
    std::vector<const TRE*> blocks = FindTREs("BLOCKA");
    std::stable_sort(blocks.begin(), blocks.end(), [](const TRE* aLeft, const TRE* aRight) {
        return NumberIn(*aLeft, "BLOCK_INSTANCE") < NumberIn(*aRight, "BLOCK_INSTANCE");
    });
    if (blocks.empty()) {
        return false;
    }
    // Blocks that follow one another down the image: the first rows are those of the first, the last of the last.
    const TRE& first = *blocks.front();
    const std::uint64_t lines =
        std::accumulate(blocks.begin(), blocks.end(), std::uint64_t{0},
                        [](std::uint64_t aSum, const TRE* aTre) { return aSum + NumberIn(*aTre, "L_LINES"); });
    const TRE& last = lines == TheAttributes().layout.rows ? *blocks.back() : first;
    const std::string frfc = TextOf(first, "FRFC_LOC");
    const std::string frlc = TextOf(first, "FRLC_LOC");
    const std::string lrlc = TextOf(last, "LRLC_LOC");
    const std::string lrfc = TextOf(last, "LRFC_LOC");
    const bool isDecimal = !frfc.empty() && (frfc.front() == '+' || frfc.front() == '-');
    return aOut.SetBLOCKGeographicCoordinates(frfc.c_str(), frlc.c_str(), lrlc.c_str(), lrfc.c_str(),
                                              isDecimal ? 'D' : 'G');
}

bool NITFImageSubheader::SetTreGEOLOExtentInformation(NITFImgExtent& aOut) const
{
    return SetGeopositioningInfoTRE(FindTRE("GEOLOB"), aOut);
}

bool NITFImageSubheader::SetTreCSCRNExtentInformation(NITFImgExtent& aOut) const
{
    return SetGeopositioningInfoTRE(FindTRE("CSCRNA"), aOut);
}

bool NITFImageSubheader::SetTreBNDPLExtentInformation(NITFImgExtent& aOut) const
{
    return SetGeopositioningInfoTRE(FindTRE("BNDPLB"), aOut);
}

bool NITFImageSubheader::CheckImageChipInformation(NITFImgExtent& aOut) const
{
    const TRE* const chip = FindTRE("ICHIPB");
    return SetGeopositioningInfoTRE(chip != nullptr ? chip : FindTRE("ICHIPA"), aOut);
}

bool NITFImageSubheader::SetGeopositioningInfoTRE(const TRE* aTre, NITFImgExtent& aOut) const
{
    const std::string_view tag = aTre == nullptr ? "" : aTre->GetTag();
    if (tag == "GEOLOB") {
        return aOut.SetTreGEOLOGeographicCoordinates(aTre, aOut.GetNumOfRows(), aOut.GetNumOfColumns());
    }
    if (tag == "CSCRNA") {
        return aOut.SetTreCSCRNGeographicCoordinates(aTre);
    }
    if (tag == "BNDPLB") {
        // The points are in the unit of the image's GEOPSB; without one they are degrees.
        const TRE* const system = FindTRE("GEOPSB");
        const std::string unit = system == nullptr ? "DEG" : TextOf(*system, "UNI");
        return aOut.SetTreBNDPLExtentBoundingPolygon(aTre, Detail::TrimBlanks(unit) == "DEG");
    }
    return (tag == "ICHIPB" || tag == "ICHIPA") && aOut.SetICHIPInformation(aTre);
}

bool NITFImageSubheader::FinalizeSettingOfImageExtentInformation(NITFImgExtent& aOut) const
{
    if (m_derived->sensorModel.has_value()) {
        const Derived::SensorModelCorners& corners = *m_derived->sensorModel;
        aOut.SetSensorModelComputedExtentCoord(corners.latitudes, corners.longitudes, corners.heights,
                                               corners.model.c_str(), corners.source.c_str());
    }
    return aOut.SetApproxGeographicBoundingBox();
}

const NITFImgExtent& NITFImageSubheader::GetImageExtentInformation() const
{
    return m_derived->extent.Get([this] { return CreateImageExtentObj(); });
}

// ---- Queries

char NITFImageSubheader::GetFieldICORDS() const
{
    return TheAttributes().icords;
}

bool NITFImageSubheader::IsFieldICORDSAvailable() const
{
    return TheAttributes().icords != '\0';
}

bool NITFImageSubheader::IsGeographicCoordinate() const
{
    return TheAttributes().isGeographic;
}

bool NITFImageSubheader::HasBLOCKGeographicExtent() const
{
    double latitudes[NITFImgExtent::NUM_OF_CORNERS];
    double longitudes[NITFImgExtent::NUM_OF_CORNERS];
    return GetBLOCKGeographicExtent(latitudes, longitudes);
}

bool NITFImageSubheader::GetBLOCKGeographicExtent(double* aLatitudes, double* aLongitudes) const
{
    return GetImageExtentInformation().GetBLOCKGeographicExtent(aLatitudes, aLongitudes);
}

bool NITFImageSubheader::HasCSCRNGeographicExtent() const
{
    bool isMeasured = false;
    double latitudes[NITFImgExtent::NUM_OF_CORNERS];
    double longitudes[NITFImgExtent::NUM_OF_CORNERS];
    return GetCSCRNGeographicExtent(isMeasured, latitudes, longitudes);
}

bool NITFImageSubheader::GetCSCRNGeographicExtent(bool& aIsMeasured, double* aLatitudes, double* aLongitudes) const
{
    return GetImageExtentInformation().GetCSCRNGeographicExtent(aIsMeasured, aLatitudes, aLongitudes);
}

bool NITFImageSubheader::HasGEOLOGeographicExtent() const
{
    double latitudes[NITFImgExtent::NUM_OF_CORNERS];
    double longitudes[NITFImgExtent::NUM_OF_CORNERS];
    return GetGEOLOGeographicExtent(latitudes, longitudes);
}

bool NITFImageSubheader::GetGEOLOGeographicExtent(double* aLatitudes, double* aLongitudes) const
{
    return GetImageExtentInformation().GetGEOLOGeographicExtent(aLatitudes, aLongitudes);
}

bool NITFImageSubheader::HasIGEOLOGeographicExtent() const
{
    double latitudes[NITFImgExtent::NUM_OF_CORNERS];
    double longitudes[NITFImgExtent::NUM_OF_CORNERS];
    return GetIGEOLOGeographicExtent(latitudes, longitudes);
}

bool NITFImageSubheader::GetIGEOLOGeographicExtent(double* aLatitudes, double* aLongitudes) const
{
    return GetImageExtentInformation().GetIGEOLOGeographicExtent(aLatitudes, aLongitudes);
}

bool NITFImageSubheader::GetMostPreciseGeographicExtent(bool& aIsMeasured, const char*& aSource, double* aLatitudes,
                                                        double* aLongitudes) const
{
    return GetImageExtentInformation().GetMostPreciseGeographicExtent(aIsMeasured, aSource, aLatitudes, aLongitudes);
}

bool NITFImageSubheader::GetApproxGeographicCenterOfExtent(double& aLatitude, double& aLongitude) const
{
    return GetImageExtentInformation().GetApproxGeographicCenterOfExtent(aLatitude, aLongitude);
}

bool NITFImageSubheader::GetApproxGeographicExtentBoundingBox(double& aSouth, double& aWest, double& aNorth,
                                                              double& aEast) const
{
    return GetImageExtentInformation().GetApproxGeographicExtentBoundingBox(aSouth, aWest, aNorth, aEast);
}

bool NITFImageSubheader::GetFootprint(NITFImgExtent::Footprint& aFootprint) const
{
    return GetImageExtentInformation().GetFootprint(aFootprint);
}

const TRE* NITFImageSubheader::GetICHIPTRE() const
{
    const TRE* const chip = FindTRE("ICHIPB");
    return chip != nullptr ? chip : FindTRE("ICHIPA");
}

bool NITFImageSubheader::IsImageChip() const
{
    return GetImageExtentInformation().IsImageChip();
}

bool NITFImageSubheader::IsUnityTransform() const
{
    return GetImageExtentInformation().IsUnityTransform();
}

bool NITFImageSubheader::GetImageChipTransformCoeffs(bool& aIsChip, const double*& aChipToFull,
                                                     const double*& aFullToChip) const
{
    return GetImageExtentInformation().GetImageChipTransformCoeffs(aIsChip, aChipToFull, aFullToChip);
}

bool NITFImageSubheader::HasAverageHeight() const
{
    double height = 0.0;
    return GetImageSegmentAverageHeight(height);
}

bool NITFImageSubheader::GetImageSegmentAverageHeight(double& aHeight) const
{
    constexpr std::size_t CORNERS = NITFImgExtent::NUM_OF_CORNERS;
    bool isMeasured = false;
    double latitudes[CORNERS];
    double longitudes[CORNERS];
    double heights[CORNERS];
    if (GetImageExtentInformation().GetCSCRNGeographicExtent(isMeasured, latitudes, longitudes, heights)) {
        aHeight = std::accumulate(heights, heights + CORNERS, 0.0) / CORNERS;
        return true;
    }
    double latitude = 0.0;
    double longitude = 0.0;
    long line = 0;
    long sample = 0;
    return GetRPC00Offsets(latitude, longitude, aHeight, line, sample);
}

bool NITFImageSubheader::SetSensorModelComputedExtentCoord(const double* aLatitudes, const double* aLongitudes,
                                                           const double* aHeights, const char* aModel,
                                                           const char* aSource)
{
    ClearSensorModelComputedExtentCoord();
    if (aLatitudes == nullptr || aLongitudes == nullptr || aHeights == nullptr) {
        return false;
    }
    Derived::SensorModelCorners& corners = m_derived->sensorModel.emplace();
    std::copy_n(aLatitudes, NITFImgExtent::NUM_OF_CORNERS, corners.latitudes);
    std::copy_n(aLongitudes, NITFImgExtent::NUM_OF_CORNERS, corners.longitudes);
    std::copy_n(aHeights, NITFImgExtent::NUM_OF_CORNERS, corners.heights);
    corners.model = aModel == nullptr ? "" : aModel;
    corners.source = aSource == nullptr ? "" : aSource;
    return true;
}

bool NITFImageSubheader::GetSensorModelComputedExtentCoord(double* aLatitudes, double* aLongitudes, double* aHeights,
                                                           std::string& aModel, std::string& aSource) const
{
    return GetImageExtentInformation().GetSensorModelComputedExtentCoord(aLatitudes, aLongitudes, aHeights, aModel,
                                                                         aSource);
}

bool NITFImageSubheader::SensorModelComputedExtentCoordSet() const
{
    return m_derived->sensorModel.has_value();
}

void NITFImageSubheader::ClearSensorModelComputedExtentCoord()
{
    m_derived->sensorModel.reset();
    m_derived->extent.Reset();
}

}  // namespace ORMO::SensorModel::CSM
