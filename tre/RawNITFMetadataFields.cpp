#include "tre/RawNITFMetadataFields.h"

namespace ORMO::SensorModel::CSM {

bool RawNITFMetadataFields::AddDefined(const RawNITFMetadataField& aField)
{
    if (!m_editability.emplace(aField.tag, aField.editable).second) {
        return false;
    }
    m_tags.push_back(aField.tag);
    m_binary.push_back(aField.binary);
    m_sizes.emplace(aField.tag, aField.declaredSize);
    m_descriptions.emplace(aField.tag, aField.description);
    m_longNames.emplace(aField.tag, aField.longName);
    m_types.emplace(aField.tag, aField.type);
    return true;
}

bool RawNITFMetadataFields::AddPresent(const RawNITFMetadataField& aField, std::string_view aValue)
{
    if (!AddDefined(aField)) {
        return false;
    }
    m_values.emplace(aField.tag, aValue);
    m_actualSizes.emplace(aField.tag, static_cast<int>(aValue.size()));
    return true;
}

bool RawNITFMetadataFields::HandOut(const RawNITFMetadata::EditabilityMap** aEditability,
                                    const RawNITFMetadata::TextMap** aDescriptions,
                                    const RawNITFMetadata::SizeMap** aSizes, const std::vector<std::string>** aTags,
                                    const RawNITFMetadata::TextMap** aValues,
                                    const RawNITFMetadata::SizeMap** aActualSizes,
                                    const RawNITFMetadata::TextMap** aLongNames,
                                    const RawNITFMetadata::TextMap** aTypes,
                                    const std::vector<bool>** aBinaryFields) const noexcept
{
    if (aEditability == nullptr || aDescriptions == nullptr || aSizes == nullptr || aTags == nullptr ||
        aValues == nullptr || aActualSizes == nullptr || aLongNames == nullptr || aTypes == nullptr ||
        aBinaryFields == nullptr) {
        return false;
    }
    *aEditability = &m_editability;
    *aDescriptions = &m_descriptions;
    *aSizes = &m_sizes;
    *aTags = &m_tags;
    *aValues = &m_values;
    *aActualSizes = &m_actualSizes;
    *aLongNames = &m_longNames;
    *aTypes = &m_types;
    *aBinaryFields = &m_binary;
    return true;
}

}  // namespace ORMO::SensorModel::CSM
