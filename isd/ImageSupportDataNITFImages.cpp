// What a file answers for its image segments by their number.

#include "isd/ImageSupportDataNITF.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM {

namespace {

/// A negative number is no index; it becomes one that no file has.
constexpr std::size_t IndexOf(long aSegment) noexcept
{
    return static_cast<std::size_t>(aSegment);
}

}  // namespace

const NITFImagePixelReader* ImageSupportDataNITF::GetImagePixelReader(std::size_t aIndex) const noexcept
{
    return GetImageSubheader(aIndex);
}

bool ImageSupportDataNITF::GetImageChipTransformCoeffs(bool& aIsChip, const double*& aChipToFull,
                                                       const double*& aFullToChip, int aSegment) const
{
    const NITFImageSubheader* const image = GetImageSubheader(IndexOf(aSegment));
    return image != nullptr
               ? image->GetImageChipTransformCoeffs(aIsChip, aChipToFull, aFullToChip)
               : ImageSupportData::GetImageChipTransformCoeffs(aIsChip, aChipToFull, aFullToChip, aSegment);
}

bool ImageSupportDataNITF::GetImageSegmentAverageHeight(double& aHeight, long aSegment) const
{
    const NITFImageSubheader* const image = GetImageSubheader(IndexOf(aSegment));
    return (image != nullptr && image->GetImageSegmentAverageHeight(aHeight)) ||
           ImageSupportData::GetImageSegmentAverageHeight(aHeight, aSegment);
}

bool ImageSupportDataNITF::IsImageSegmentCoordGeographic(unsigned int aSegment) const
{
    const NITFImageSubheader* const image = GetImageSubheader(aSegment);
    return image != nullptr && image->IsGeographicCoordinate();
}

bool ImageSupportDataNITF::IsUnityTransform(int aSegment) const
{
    const NITFImageSubheader* const image = GetImageSubheader(IndexOf(aSegment));
    return image != nullptr ? image->IsUnityTransform() : ImageSupportData::IsUnityTransform(aSegment);
}

}  // namespace ORMO::SensorModel::CSM
