// What a file answers by property key.

#include "fields/MessageText.h"
#include "foundation/CSMException.h"
#include "foundation/detail/Ascii.h"
#include "isd/detail/IsdParts.h"
#include "isd/detail/PropertyTable.h"

#include <exception>

namespace ORMO::SensorModel::CSM {

namespace {

using Detail::PropertyRow;
using Detail::PropertySet;

/// The answers of one set that are there.
void Fill(const ImageSupportDataNITF& aIsd, PropertySet aSet, std::size_t aImage,
          ImageSupportDataNITF::OrmoMetadata& aMetadata)
{
    for (const PropertyRow& row : Detail::PropertyRows()) {
        std::string value;
        const Detail::PropertySource* source = nullptr;
        if (row.set == aSet && Detail::AnswerOfProperty(row, aIsd, aImage, value, source)) {
            aMetadata[row.key] = std::move(value);
        }
    }
}

std::size_t IndexOf(const NITFImageSubheader& aImage) noexcept
{
    return static_cast<std::size_t>(aImage.GetImageSegmentNumber());
}

}  // namespace

bool ImageSupportDataNITF::FindOrmoMetadata(const char* aKey, std::size_t aImage, std::string& aValue,
                                            std::string& aSource) const
{
    const PropertyRow* const row = Detail::FindPropertyRow(Detail::ViewOf(aKey));
    const Detail::PropertySource* source = nullptr;
    if (row == nullptr || !Detail::AnswerOfProperty(*row, *this, aImage, aValue, source)) {
        aValue.clear();
        aSource.clear();
        return false;
    }
    aSource = source->Text();
    return true;
}

const char* ImageSupportDataNITF::GetOrmoMetadata(const char* aKey, std::size_t aImage) const noexcept
{
    try {
        ClearMessages();
        const PropertyRow* const row = Detail::FindPropertyRow(Detail::ViewOf(aKey));
        if (row == nullptr) {
            RefuseQuery("ERROR: There is no property " + Detail::Quoted(Detail::ViewOf(aKey)) + '.');
            return nullptr;
        }
        if (row->IsOfImage() && GetImageSubheader(aImage) == nullptr) {
            return nullptr;
        }
        const std::scoped_lock lock(m_parts->propertyLock);
        const std::pair key{row, row->IsOfImage() ? aImage : 0};
        auto place = m_parts->properties.find(key);
        if (place == m_parts->properties.end()) {
            std::string value;
            const Detail::PropertySource* source = nullptr;
            if (!Detail::AnswerOfProperty(*row, *this, aImage, value, source)) {
                value.clear();
            }
            place = m_parts->properties.emplace(key, std::move(value)).first;
            ClearMessages();  // what was asked on the way may not have been there
        }
        return place->second.empty() ? nullptr : place->second.c_str();
    } catch (const CSMException&) {
        return nullptr;
    } catch (const std::exception&) {
        return nullptr;
    }
}

ImageSupportDataNITF::OrmoMetadata ImageSupportDataNITF::RetrieveOrmoMetadata(std::size_t aImage) const
{
    OrmoMetadata metadata;
    for (const PropertySet set : {PropertySet::Identity, PropertySet::Sensor, PropertySet::Texts}) {
        Fill(*this, set, aImage, metadata);
    }
    return metadata;
}

void ImageSupportDataNITF::RetrieveOrmoMetadataSet1(const NITFImageSubheader& aImage, OrmoMetadata& aMetadata) const
{
    Fill(*this, PropertySet::Identity, IndexOf(aImage), aMetadata);
}

void ImageSupportDataNITF::RetrieveOrmoMetadataSet2(const NITFImageSubheader& aImage, OrmoMetadata& aMetadata) const
{
    Fill(*this, PropertySet::Sensor, IndexOf(aImage), aMetadata);
}

void ImageSupportDataNITF::RetrieveOrmoMetadataSet3(const NITFImageSubheader& aImage, OrmoMetadata& aMetadata) const
{
    Fill(*this, PropertySet::Texts, IndexOf(aImage), aMetadata);
}

}  // namespace ORMO::SensorModel::CSM
