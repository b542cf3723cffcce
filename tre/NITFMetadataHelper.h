#pragma once

#include "../foundation/Export.h"

#include <cstddef>
#include <memory>

namespace ORMO::SensorModel::CSM {

class ImageSupportDataNITF;

/// Answers a host's questions about an opened NITF file by property key (PropertyKey). Image segments count from 0.
///
/// A question that has no answer - no such image, TRE or field - is answered false with a null text; nothing is raised.
/// Texts are those of the fields as stored, blanks included. They belong to the image support data, those that the
/// helper puts together to the helper, and live until it is set anew, asked for the same property again or destroyed.
/// ImageSupportDataNITF::GetOrmoMetadata answers more keys from more sources.
class ORMO_CSM_API NITFMetadataHelper
{
public:
    /// What an angle that is not known is set to.
    static constexpr double UNKNOWN_ANGLE = 999.9;

    NITFMetadataHelper();
    ~NITFMetadataHelper();
    NITFMetadataHelper(const NITFMetadataHelper&) = delete;
    NITFMetadataHelper& operator=(const NITFMetadataHelper&) = delete;

    /// Opens a file for this helper alone; the flags are those of ImageSupportDataFactory::Create. False, with the
    /// helper bound to nothing, when it cannot be opened as a NITF file.
    bool Set(const char* aFile, bool aAllSegments, bool aFlag2);
    /// Binds the helper to image support data that must outlive it; null binds it to nothing and is answered false.
    bool Set(const ImageSupportDataNITF* aIsd) noexcept;

    /// One of the keys that docs/properties.md marks as the helper's; false for any other.
    bool GetPropertyAsString(const char* aKey, const char*& aValue, std::size_t& aLength, unsigned int aImage);

    // Angles in degrees: those of CSEXRA, else those of USE00A. An angle that neither has as a number becomes
    // UNKNOWN_ANGLE, and the answer false.
    bool GetAngleToNorth(double& aAngle, unsigned int aImage) const;
    bool GetSunAzimuthAndElevationAngles(double& aAzimuth, double& aElevation, unsigned int aImage) const;
    // The same as the texts of the fields.
    bool GetStringFieldAngleToNorth(const char*& aValue, std::size_t& aLength, unsigned int aImage) const;
    bool GetStringFieldSunAzimuthAngle(const char*& aValue, std::size_t& aLength, unsigned int aImage) const;
    bool GetStringFieldSunElevationAngle(const char*& aValue, std::size_t& aLength, unsigned int aImage) const;

    bool GetStringFieldNITFFileHeader(const char* aField, const char*& aValue, std::size_t& aLength) const;
    bool GetStringFieldImageSegment(const char* aField, const char*& aValue, std::size_t& aLength,
                                    unsigned int aImage) const;
    /// PRODUCT_ID of CSDIDA and what it means: "G2 (geo-referenced multispectral)". Built once.
    bool GetProductID(const char*& aValue, std::size_t& aLength);
    /// As NITFImageSubheader::IsCloudCoverImageSegment; false when there is no such image.
    bool IsCloudCoverImageSegment(unsigned int aImage) const;
    /// Every property of every image that has an answer, a line each: "image 0: sensor = PAN"; null when the helper is
    /// bound to nothing or memory is short.
    const char* SerializeNITFMetadata();

    /// Frees the texts that were put together.
    void CleanupNITFMetadataHelper() noexcept;

private:
    struct Parts;

    std::unique_ptr<Parts> m_parts;
};

}  // namespace ORMO::SensorModel::CSM
