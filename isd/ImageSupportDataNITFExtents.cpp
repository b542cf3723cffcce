// Where the images of a file lie on the ground, by their number: footprints, chips, height and polynomials.

#include "isd/detail/IsdParts.h"

#include <cstddef>
#include <string>

namespace ORMO::SensorModel::CSM {

using Image = NITFImageSubheader;

namespace {

/// A negative number is no index; it becomes one that no file has.
constexpr std::size_t IndexOf(long aSegment) noexcept
{
    return static_cast<std::size_t>(aSegment);
}

}  // namespace

const NITFImgExtent* ImageSupportDataNITF::GetImageExtentInformation(std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image == nullptr ? nullptr : &image->GetImageExtentInformation();
}

bool ImageSupportDataNITF::HasIGEOLOGeographicExtent(std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->HasIGEOLOGeographicExtent();
}

bool ImageSupportDataNITF::GetIGEOLOGeographicExtent(double* aLatitudes, double* aLongitudes, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->GetIGEOLOGeographicExtent(aLatitudes, aLongitudes);
}

bool ImageSupportDataNITF::HasBLOCKGeographicExtent(std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->HasBLOCKGeographicExtent();
}

bool ImageSupportDataNITF::GetBLOCKGeographicExtent(double* aLatitudes, double* aLongitudes, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->GetBLOCKGeographicExtent(aLatitudes, aLongitudes);
}

bool ImageSupportDataNITF::HasGEOLOGeographicExtent(std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->HasGEOLOGeographicExtent();
}

bool ImageSupportDataNITF::GetGEOLOGeographicExtent(double* aLatitudes, double* aLongitudes, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->GetGEOLOGeographicExtent(aLatitudes, aLongitudes);
}

bool ImageSupportDataNITF::HasCSCRNGeographicExtent(std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->HasCSCRNGeographicExtent();
}

bool ImageSupportDataNITF::GetCSCRNGeographicExtent(bool& aIsMeasured, double* aLatitudes, double* aLongitudes,
                                                    std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->GetCSCRNGeographicExtent(aIsMeasured, aLatitudes, aLongitudes);
}

bool ImageSupportDataNITF::GetMostPreciseGeographicExtent(bool& aIsMeasured, const char*& aSource, double* aLatitudes,
                                                          double* aLongitudes, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->GetMostPreciseGeographicExtent(aIsMeasured, aSource, aLatitudes, aLongitudes);
}

bool ImageSupportDataNITF::GetApproxGeographicCenterOfExtent(double& aLatitude, double& aLongitude,
                                                             std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->GetApproxGeographicCenterOfExtent(aLatitude, aLongitude);
}

bool ImageSupportDataNITF::GetApproxGeographicExtentBoundingBox(double& aSouth, double& aWest, double& aNorth,
                                                                double& aEast, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->GetApproxGeographicExtentBoundingBox(aSouth, aWest, aNorth, aEast);
}

bool ImageSupportDataNITF::GetSensorModelComputedExtentCoord(double* aLatitudes, double* aLongitudes, double* aHeights,
                                                             std::string& aModel, std::string& aSource,
                                                             std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr &&
           image->GetSensorModelComputedExtentCoord(aLatitudes, aLongitudes, aHeights, aModel, aSource);
}

bool ImageSupportDataNITF::SetSensorModelComputedExtentCoord(const double* aLatitudes, const double* aLongitudes,
                                                             const double* aHeights, const char* aModel,
                                                             const char* aSource, std::size_t aIndex)
{
    Image* const image = GetImageSubheader(aIndex) == nullptr ? nullptr : m_parts->Image(aIndex);
    return image != nullptr &&
           image->SetSensorModelComputedExtentCoord(aLatitudes, aLongitudes, aHeights, aModel, aSource);
}

bool ImageSupportDataNITF::ClearSensorModelComputedExtentCoord(std::size_t aIndex)
{
    if (GetImageSubheader(aIndex) == nullptr) {
        return false;
    }
    m_parts->Image(aIndex)->ClearSensorModelComputedExtentCoord();
    return true;
}

bool ImageSupportDataNITF::GetImageSegmentAverageHeight(double& aHeight, long aSegment) const
{
    const Image* const image = GetImageSubheader(IndexOf(aSegment));
    return (image != nullptr && image->GetImageSegmentAverageHeight(aHeight)) ||
           ImageSupportData::GetImageSegmentAverageHeight(aHeight, aSegment);
}

bool ImageSupportDataNITF::IsImageSegmentCoordGeographic(unsigned int aSegment) const
{
    const Image* const image = GetImageSubheader(aSegment);
    return image != nullptr && image->IsGeographicCoordinate();
}

bool ImageSupportDataNITF::IsImageChip(std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->IsImageChip();
}

bool ImageSupportDataNITF::IsUnityTransform(int aSegment) const
{
    const Image* const image = GetImageSubheader(IndexOf(aSegment));
    return image != nullptr && image->IsUnityTransform();
}

bool ImageSupportDataNITF::GetImageChipTransformCoeffs(bool& aIsChip, const double*& aChipToFull,
                                                       const double*& aFullToChip, int aSegment) const
{
    const Image* const image = GetImageSubheader(IndexOf(aSegment));
    return image != nullptr && image->GetImageChipTransformCoeffs(aIsChip, aChipToFull, aFullToChip);
}

const TRE* ImageSupportDataNITF::GetICHIPTRE(std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image == nullptr ? nullptr : image->GetICHIPTRE();
}

bool ImageSupportDataNITF::GetRPC00Availability(char& aAvailability, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    if (image == nullptr || image->GetRPC00Availability() == NITFCnst::RPC00_NOT_AVAILABLE) {
        return false;
    }
    aAvailability = image->GetRPC00Availability();
    return true;
}

bool ImageSupportDataNITF::GetRPC00Coefficients(double* aLineNumerator, double* aLineDenominator,
                                                double* aSampleNumerator, double* aSampleDenominator,
                                                std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr &&
           image->GetRPC00Coefficients(aLineNumerator, aLineDenominator, aSampleNumerator, aSampleDenominator);
}

bool ImageSupportDataNITF::GetRPC00Offsets(double& aLatitude, double& aLongitude, double& aHeight, long& aLine,
                                           long& aSample, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->GetRPC00Offsets(aLatitude, aLongitude, aHeight, aLine, aSample);
}

bool ImageSupportDataNITF::GetRPC00Scales(double& aLatitude, double& aLongitude, double& aHeight, long& aLine,
                                          long& aSample, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->GetRPC00Scales(aLatitude, aLongitude, aHeight, aLine, aSample);
}

bool ImageSupportDataNITF::GetRPC00Errors(double& aBias, double& aRandom, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->GetRPC00Errors(aBias, aRandom);
}

bool ImageSupportDataNITF::GetRPCFields(const char**& aNames, const char**& aValues, std::size_t& aCount,
                                        std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->GetRPCFields(aNames, aValues, aCount);
}

}  // namespace ORMO::SensorModel::CSM
