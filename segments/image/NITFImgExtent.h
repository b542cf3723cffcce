#pragma once

#include "../../foundation/Export.h"
#include "../../nitf/NITFCnst.h"

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

class TRE;

/// Where on the ground an image segment lies, by each source that tells it: IGEOLO, the TREs BLOCKA, GEOLOB, CSCRNA and
/// BNDPLB, and a sensor model; and how a chip lies in the image that it was cut from (ICHIPB).
///
/// Latitudes and longitudes are geodetic degrees of WGS 84, north and east positive. Four corners always stand in the
/// order of IGEOLO: first row first column, first row last column, last row last column, last row first column; they
/// are the places of the corner pixels. Queries answer false, with their outputs left as they were, for what was not
/// set. Setters answer false, with that source unset, for what they cannot understand.
class ORMO_CSM_API NITFImgExtent
{
public:
    static constexpr std::size_t NUM_OF_CORNERS = 4;
    static constexpr std::size_t NUM_OF_CHIP_COEFFICIENTS = 8;

    /// The best footprint there is, as one object.
    struct Footprint
    {
        std::array<double, NUM_OF_CORNERS> latitudes{};
        std::array<double, NUM_OF_CORNERS> longitudes{};
        /// "BLOCKA", "GEOLOB", "CSCRNA [measured]", "CSCRNA [predicted]", "IGEOLO", or "IGEOLO [UTM]" and
        /// "IGEOLO [MGRS]" for corners that were converted from a grid.
        const char* source = "";
        bool isMeasured = false;
        /// Whether the footprint lies on both sides of the 180th meridian.
        bool crosses180 = false;
        /// The box around the corners. West of a footprint that crosses the 180th meridian is above east.
        double south = 0.0;
        double west = 0.0;
        double north = 0.0;
        double east = 0.0;
    };

    /// `aRows` and `aColumns` are those of the image segment. A chip TRE is copied.
    NITFImgExtent(NITFCnst::Version aVersion, unsigned long aRows, unsigned long aColumns, const TRE* aChip = nullptr);

    void ClearSensorModelComputedExtentCoord() noexcept;
    static void DeleteDoubleArray(double*& aArray) noexcept;
    /// The middle of the box that GetApproxGeographicExtentBoundingBox answers; the longitude lies within -180 to 180.
    bool GetApproxGeographicCenterOfExtent(double& aLatitude, double& aLongitude) const noexcept;
    /// The smallest and largest latitude and longitude of the four corners. Of a footprint that crosses the 180th
    /// meridian the largest longitude lies beyond 180, so that the box is as narrow as the footprint.
    bool GetApproxGeographicExtentBoundingBox(double& aSouth, double& aWest, double& aNorth,
                                              double& aEast) const noexcept;
    // Corners by source: each array takes four numbers.
    bool GetBLOCKGeographicExtent(double* aLatitudes, double* aLongitudes) const noexcept;
    /// New arrays with the points of the polygon; the caller frees them with DeleteDoubleArray.
    bool GetBNDPLGeographicExtentBoundingPolygon(double*& aLatitudes, double*& aLongitudes, std::size_t& aCount) const;
    /// Whether the corners were measured (not predicted); heights in metres above the ellipsoid.
    bool GetCSCRNGeographicExtent(bool& aIsMeasured, double* aLatitudes, double* aLongitudes,
                                  double* aHeights = nullptr) const noexcept;
    /// ICORDS after IGEOLO was understood, '?' after it was not; '\0' before.
    char GetCoordinateSysType() const noexcept { return m_coordinateSystem; }
    /// The best footprint there is, corners of map grids included; false when no source is set.
    bool GetFootprint(Footprint& aFootprint) const;
    bool GetGEOLOGeographicExtent(double* aLatitudes, double* aLongitudes) const noexcept;
    /// The chip TRE, null when there is none.
    const TRE* GetICHIPTRE() const noexcept { return m_chip.get(); }
    bool GetIGEOLOGeographicExtent(double* aLatitudes, double* aLongitudes) const noexcept;
    /// Whether the image is a chip, and the coefficients of the mappings from chip to full image and back: row' =
    /// c[0] + c[1] row + c[2] column + c[3] row column, column' the same with c[4] to c[7]. They belong to the extent.
    /// Unity, and true, for an image that is no chip; false for a chip whose mapping its TRE does not give.
    bool GetImageChipTransformCoeffs(bool& aIsChip, const double*& aChipToFull,
                                     const double*& aFullToChip) const noexcept;
    /// The first source there is of BLOCKA, GEOLOB, CSCRNA and IGEOLO, with its name; predicted corners count when
    /// NITFCnst::PREDICTED_EXTENT_OK says so.
    bool GetMostPreciseGeographicExtent(bool& aIsMeasured, const char*& aSource, double* aLatitudes,
                                        double* aLongitudes) const noexcept;
    /// The corners that a sensor model gave, with heights in metres and the names of the model and of its source.
    bool GetSensorModelComputedExtentCoord(double* aLatitudes, double* aLongitudes, double* aHeights,
                                           std::string& aModel, std::string& aSource) const;
    const TRE* GetTreICHIP() const noexcept { return m_chip.get(); }
    /// Corners of ICORDS N, S and U converted to latitude and longitude.
    bool GetUTMGeographicExtent(double* aLatitudes, double* aLongitudes) const noexcept;
    /// Zone (1 to 60) and metres of the first corner in the UTM grid, as SetIGEOLO read them.
    bool GetUTMParameters(int& aZone, char& aHemisphere, double& aEasting, double& aNorthing) const noexcept;
    bool IsImageChip() const noexcept { return m_chip != nullptr; }
    /// Whether the mapping from chip to full image changes nothing; also true for an image that is no chip.
    bool IsUnityTransform() const noexcept;
    NITFCnst::Version GetNITFVersion() const noexcept { return m_version; }
    unsigned long GetNumOfColumns() const noexcept { return m_columns; }
    unsigned long GetNumOfRows() const noexcept { return m_rows; }
    /// A place of the chip in the full image and back, both in rows and columns as ICHIPB counts them.
    bool MapChipToFullImage(double aRow, double aColumn, double& aFullRow, double& aFullColumn) const noexcept;
    bool MapFullImageToChip(double aFullRow, double aFullColumn, double& aRow, double& aColumn) const noexcept;
    /// The geodetic latitude of WGS 84 for a geocentric one, both in degrees.
    static double NITFWGS84GeocentricLatToGeodeticLatitude(double aLatitude) noexcept;
    void ResetImageChipInfoToDefaultValues() noexcept;
    bool SensorModelComputedExtentCoordSet() const noexcept { return m_sensorModel.isSet; }

    /// Works out the box from the most precise extent, or from corners of a map grid when there is none.
    bool SetApproxGeographicBoundingBox() noexcept;
    /// The corners in the order of this class; 'G' for degrees, minutes and seconds, 'D' for decimal degrees.
    bool SetBLOCKGeographicCoordinates(const char* aFRFC, const char* aFRLC, const char* aLRLC, const char* aLRFC,
                                       char aFormat);
    /// Takes the chip-to-full mapping from an ICHIPB or ICHIPA; false when it holds none.
    bool SetICHIPInformation(const TRE* aTre);
    /// By the character of ICORDS: C, D and G are parsed as corners, N and S as UTM parameters.
    bool SetIGEOLO(char aIcords, const char* aIgeolo);
    /// The four corners, four numbers each, with the names of the model and its source.
    bool SetSensorModelComputedExtentCoord(const double* aLatitudes, const double* aLongitudes, const double* aHeights,
                                           const char* aModel, const char* aSource);
    /// `aIsDegrees` says whether the TRE's points are latitudes and longitudes, which GEOPSB tells.
    bool SetTreBNDPLExtentBoundingPolygon(const TRE* aTre, bool aIsDegrees = true);
    bool SetTreCSCRNGeographicCoordinates(const TRE* aTre);
    bool SetTreGEOLOGeographicCoordinates(const TRE* aTre, unsigned long aRows, unsigned long aColumns);
    /// Converts all four corners of ICORDS N, S (UTM) or U (MGRS; UTM by its old name).
    bool SetUTMGeographicCoordinates(char aIcords, const char* aIgeolo);
    void SetUnityChipTransformationCoeff() noexcept;

private:
    struct Corners
    {
        bool isSet = false;
        std::array<double, NUM_OF_CORNERS> latitudes{};
        std::array<double, NUM_OF_CORNERS> longitudes{};

        bool CopyTo(double* aLatitudes, double* aLongitudes) const noexcept;
    };
    struct CornersWithHeights : Corners
    {
        std::array<double, NUM_OF_CORNERS> heights{};
    };
    struct Box
    {
        bool isSet = false;
        double south = 0.0;
        double west = 0.0;
        double north = 0.0;
        double east = 0.0;
    };

    bool SetIGEOLOGeographicCoordinates(char aIcords, const char* aIgeolo);
    bool SetUTMCoordSysParameters(char aHemisphere, const char* aIgeolo);
    const Corners* MostPrecise(bool& aIsMeasured, const char*& aSource) const noexcept;
    const Corners* Best(bool& aIsMeasured, const char*& aSource) const noexcept;
    static Box BoxAround(const Corners& aCorners) noexcept;

    NITFCnst::Version m_version;
    unsigned long m_rows;
    unsigned long m_columns;
    std::shared_ptr<const TRE> m_chip;
    bool m_chipIsMapped = true;
    std::array<double, NUM_OF_CHIP_COEFFICIENTS> m_chipToFull{};
    std::array<double, NUM_OF_CHIP_COEFFICIENTS> m_fullToChip{};

    char m_coordinateSystem = '\0';
    int m_utmZone = 0;
    char m_utmHemisphere = '\0';
    double m_utmEasting = 0.0;
    double m_utmNorthing = 0.0;
    bool m_utmIsMgrs = false;
    bool m_isCscrnMeasured = false;
    Corners m_igeolo;
    Corners m_utm;
    Corners m_block;
    Corners m_geolo;
    CornersWithHeights m_cscrn;
    CornersWithHeights m_sensorModel;
    std::string m_sensorModelName;
    std::string m_sensorModelSource;
    std::vector<double> m_polygonLatitudes;
    std::vector<double> m_polygonLongitudes;
    Box m_box;
};

}  // namespace ORMO::SensorModel::CSM
