#include "tre/NITFMetadataHelper.h"

#include "foundation/CSMException.h"
#include "foundation/PropertyKey.h"
#include "foundation/detail/Ascii.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "isd/detail/PropertyTable.h"

#include <exception>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM {

using Detail::PropertyForm;
using Detail::PropertyPlace;
using Detail::PropertyRow;
using Detail::PropertySource;

namespace {

bool HandOut(std::string_view aText, bool aFound, const char*& aValue, std::size_t& aLength) noexcept
{
    aValue = aFound ? aText.data() : nullptr;
    aLength = aFound ? aText.size() : 0;
    return aFound;
}

/// What is raised below, above all for want of memory, is no answer.
template<typename Ask>
bool Guarded(Ask aAsk) noexcept
{
    try {
        return aAsk();
    } catch (const CSMException&) {
        return false;
    } catch (const std::exception&) {
        return false;
    }
}

template<typename Ask>
bool GuardedText(const char*& aValue, std::size_t& aLength, Ask aAsk) noexcept
{
    return Guarded(aAsk) || HandOut({}, false, aValue, aLength);
}

}  // namespace

struct ORMO_CSM_LOCAL NITFMetadataHelper::Parts
{
    const ImageSupportDataNITF* isd = nullptr;
    ImageSupportData* own = nullptr;  ///< opened by the helper itself
    std::optional<std::string> productId;
    std::map<const PropertyRow*, std::string> composed;  ///< the last text of each key
    std::string serialized;

    ~Parts() { ImageSupportDataFactory::Destroy(&own); }

    /// The first source that hosts are answered from and that has the field, angles only as numbers.
    bool Field(const PropertyRow& aRow, std::size_t aImage, std::string_view& aValue) const
    {
        if (isd == nullptr) {
            return false;
        }
        for (const PropertySource& source : aRow.Sources()) {
            double number = 0.0;
            if (source.isForHosts && Detail::FieldOfSource(source, *isd, aImage, aValue) &&
                (aRow.form != PropertyForm::Degrees || Detail::NumberOfText(aValue, number))) {
                return true;
            }
        }
        aValue = {};
        return false;
    }
    bool Angle(const char* aKey, std::size_t aImage, double& aAngle) const
    {
        std::string_view text;
        aAngle = UNKNOWN_ANGLE;
        return Field(*Detail::FindPropertyRow(aKey), aImage, text) && Detail::NumberOfText(text, aAngle);
    }
    bool TextOfAngle(const char* aKey, std::size_t aImage, const char*& aValue, std::size_t& aLength) const
    {
        return GuardedText(aValue, aLength, [&] {
            std::string_view text;
            const bool found = Field(*Detail::FindPropertyRow(aKey), aImage, text);
            return HandOut(text, found, aValue, aLength);
        });
    }
    /// A field of a header by its name.
    bool FieldOfHeader(PropertyPlace aPlace, const char* aField, std::size_t aImage, const char*& aValue,
                       std::size_t& aLength) const
    {
        return GuardedText(aValue, aLength, [&] {
            const PropertySource source{aPlace, "", aField == nullptr ? "" : aField};
            std::string_view text;
            const bool found = isd != nullptr && Detail::FieldOfSource(source, *isd, aImage, text);
            return HandOut(text, found, aValue, aLength);
        });
    }
    const PropertySource* Composed(const PropertyRow& aRow) const noexcept
    {
        const PropertySource& first = aRow.sources.front();
        return isd != nullptr && first.isForHosts && first.place == PropertyPlace::Composed ? &first : nullptr;
    }
};

NITFMetadataHelper::NITFMetadataHelper() : m_parts(std::make_unique<Parts>()) {}

NITFMetadataHelper::~NITFMetadataHelper() = default;

bool NITFMetadataHelper::Set(const char* aFile, bool aAllSegments, bool aFlag2)
{
    Set(nullptr);
    return Guarded([&] {
        ImageSupportDataFactory::Create(aFile, &m_parts->own, aAllSegments, aFlag2);
        m_parts->isd = dynamic_cast<const ImageSupportDataNITF*>(m_parts->own);
        if (m_parts->isd == nullptr) {
            ImageSupportDataFactory::Destroy(&m_parts->own);
        }
        return m_parts->isd != nullptr;
    });
}

bool NITFMetadataHelper::Set(const ImageSupportDataNITF* aIsd) noexcept
{
    CleanupNITFMetadataHelper();
    ImageSupportDataFactory::Destroy(&m_parts->own);
    m_parts->isd = aIsd;
    return aIsd != nullptr;
}

bool NITFMetadataHelper::GetPropertyAsString(const char* aKey, const char*& aValue, std::size_t& aLength,
                                             unsigned int aImage)
{
    return GuardedText(aValue, aLength, [&] {
        const std::string_view key = Detail::ViewOf(aKey);
        const PropertyRow* const row = Detail::FindPropertyRow(key);
        if (row == nullptr) {
            return HandOut({}, false, aValue, aLength);
        }
        if (key == PropertyKey::PRODUCT_ID) {
            return GetProductID(aValue, aLength);
        }
        if (const PropertySource* const source = m_parts->Composed(*row); source != nullptr) {
            std::string text;
            if (!source->compose(*m_parts->isd, aImage, text)) {
                return HandOut({}, false, aValue, aLength);
            }
            std::string& kept = m_parts->composed[row];
            kept = std::move(text);
            return HandOut(kept, true, aValue, aLength);
        }
        std::string_view text;
        const bool found = m_parts->Field(*row, aImage, text);
        return HandOut(text, found, aValue, aLength);
    });
}

bool NITFMetadataHelper::GetAngleToNorth(double& aAngle, unsigned int aImage) const
{
    aAngle = UNKNOWN_ANGLE;
    return Guarded([&] { return m_parts->Angle(PropertyKey::ANGLE_TO_NORTH, aImage, aAngle); });
}

bool NITFMetadataHelper::GetSunAzimuthAndElevationAngles(double& aAzimuth, double& aElevation,
                                                         unsigned int aImage) const
{
    aAzimuth = aElevation = UNKNOWN_ANGLE;
    return Guarded([&] {
        const bool azimuth = m_parts->Angle(PropertyKey::SUN_AZIMUTH_ANGLE, aImage, aAzimuth);
        const bool elevation = m_parts->Angle(PropertyKey::SUN_ELEVATION_ANGLE, aImage, aElevation);
        return azimuth && elevation;
    });
}

bool NITFMetadataHelper::GetStringFieldAngleToNorth(const char*& aValue, std::size_t& aLength,
                                                    unsigned int aImage) const
{
    return m_parts->TextOfAngle(PropertyKey::ANGLE_TO_NORTH, aImage, aValue, aLength);
}

bool NITFMetadataHelper::GetStringFieldSunAzimuthAngle(const char*& aValue, std::size_t& aLength,
                                                       unsigned int aImage) const
{
    return m_parts->TextOfAngle(PropertyKey::SUN_AZIMUTH_ANGLE, aImage, aValue, aLength);
}

bool NITFMetadataHelper::GetStringFieldSunElevationAngle(const char*& aValue, std::size_t& aLength,
                                                         unsigned int aImage) const
{
    return m_parts->TextOfAngle(PropertyKey::SUN_ELEVATION_ANGLE, aImage, aValue, aLength);
}

bool NITFMetadataHelper::GetStringFieldNITFFileHeader(const char* aField, const char*& aValue,
                                                      std::size_t& aLength) const
{
    return m_parts->FieldOfHeader(PropertyPlace::File, aField, 0, aValue, aLength);
}

bool NITFMetadataHelper::GetStringFieldImageSegment(const char* aField, const char*& aValue, std::size_t& aLength,
                                                    unsigned int aImage) const
{
    return m_parts->FieldOfHeader(PropertyPlace::Image, aField, aImage, aValue, aLength);
}

bool NITFMetadataHelper::GetProductID(const char*& aValue, std::size_t& aLength)
{
    return GuardedText(aValue, aLength, [&] {
        std::string text;
        if (!m_parts->productId && m_parts->isd != nullptr && Detail::ComposeProductId(*m_parts->isd, 0, text)) {
            m_parts->productId = std::move(text);
        }
        return HandOut(m_parts->productId ? std::string_view(*m_parts->productId) : std::string_view{},
                       m_parts->productId.has_value(), aValue, aLength);
    });
}

bool NITFMetadataHelper::IsCloudCoverImageSegment(unsigned int aImage) const
{
    return Guarded([&] {
        const NITFImageSubheader* const image =
            m_parts->isd == nullptr ? nullptr : m_parts->isd->GetImageSubheader(aImage);
        return image != nullptr && image->IsCloudCoverImageSegment();
    });
}

const char* NITFMetadataHelper::SerializeNITFMetadata()
{
    const bool written = m_parts->isd != nullptr && Guarded([&] {
                             std::string text;
                             for (unsigned int i = 0; i != m_parts->isd->GetNumOfImageSegments(); ++i) {
                                 for (const PropertyRow& row : Detail::PropertyRows()) {
                                     const char* value = nullptr;
                                     std::size_t length = 0;
                                     if (GetPropertyAsString(row.key, value, length, i)) {
                                         text += "image " + std::to_string(i) + ": " + row.key + " = ";
                                         text += Detail::Trimmed(std::string_view(value, length));
                                         text += '\n';
                                     }
                                 }
                             }
                             m_parts->serialized = std::move(text);
                             return true;
                         });
    return written ? m_parts->serialized.c_str() : nullptr;
}

void NITFMetadataHelper::CleanupNITFMetadataHelper() noexcept
{
    m_parts->productId.reset();
    m_parts->composed.clear();
    m_parts->serialized.clear();
}

}  // namespace ORMO::SensorModel::CSM
