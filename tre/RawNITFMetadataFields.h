#pragma once

#include "../foundation/Export.h"
#include "RawNITFMetadata.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// What raw metadata says of one field.
struct ORMO_CSM_API RawNITFMetadataField
{
    std::string tag;  ///< with the numbers of its turns
    std::string longName;
    std::string type;      ///< as NITFCnst::GetFieldTypeForDisplay has it
    int declaredSize = 0;  ///< bytes
    bool editable = false;
    bool binary = false;
    std::string description;
};

/// The fields of one header, subheader or TRE, collected one by one: an owned copy of all that GetMatadata hands out.
class ORMO_CSM_API RawNITFMetadataFields
{
public:
    /// A field without a value. False, with nothing added, when there is one of this tag.
    bool AddDefined(const RawNITFMetadataField& aField);
    /// A field with a value, whose size in the file is that of the value; the value may hold any bytes.
    bool AddPresent(const RawNITFMetadataField& aField, std::string_view aValue);

    /// Number of fields, with and without a value.
    std::size_t Size() const noexcept { return m_tags.size(); }

    /// Hands out the containers. False when any output pointer is null.
    bool HandOut(const RawNITFMetadata::EditabilityMap** aEditability, const RawNITFMetadata::TextMap** aDescriptions,
                 const RawNITFMetadata::SizeMap** aSizes, const std::vector<std::string>** aTags,
                 const RawNITFMetadata::TextMap** aValues, const RawNITFMetadata::SizeMap** aActualSizes,
                 const RawNITFMetadata::TextMap** aLongNames, const RawNITFMetadata::TextMap** aTypes,
                 const std::vector<bool>** aBinaryFields) const noexcept;

private:
    std::vector<std::string> m_tags;
    std::vector<bool> m_binary;
    RawNITFMetadata::EditabilityMap m_editability;
    RawNITFMetadata::SizeMap m_sizes;
    RawNITFMetadata::SizeMap m_actualSizes;
    RawNITFMetadata::TextMap m_descriptions;
    RawNITFMetadata::TextMap m_longNames;
    RawNITFMetadata::TextMap m_types;
    RawNITFMetadata::TextMap m_values;
};

}  // namespace ORMO::SensorModel::CSM
