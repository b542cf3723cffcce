#pragma once

#include "fields/FieldStore.h"

#include <cstddef>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

/// What the first two attributes of a field's element say.
enum class FieldNaming : std::uint8_t
{
    TagAndLongName,          ///< field="LISH001" name="Length of nth Image Subheader"
    PositionAndTag,          ///< field="7" name="SUN_EL"
    PositionTagAndLongName,  ///< field="7" name="TXTFMT", and longName="Text Format" behind all others
};

/// Appends the attributes of a field: field, name, size, type and editable, and the long name. The position is counted
/// from 1.
void AppendFieldAttributes(const FieldStore& aFields, const FieldEntry& aEntry, FieldNaming aNaming,
                           std::size_t aPosition, std::string& aXml);

/// Appends an element with the attributes of a field and its value as stored.
void AppendFieldElement(const FieldStore& aFields, const FieldEntry& aEntry, FieldNaming aNaming, std::size_t aPosition,
                        const char* aIndent, const char* aElement, std::string& aXml);

}  // namespace ORMO::SensorModel::CSM::Detail
