#pragma once

#include "fields/FieldRow.h"
#include "tre/TreDetailedInfo.h"
#include "tre/detail/TreLayout.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// The catalogue text of a field: LONG NAME [= "FIELD", WIDTH bytes, R]. explanation
std::string FieldHelp(const FieldRow& aRow, std::string_view aName, std::uint64_t aWidth);

/// Purpose, placement, length, certainty and notes of one layout.
std::string LayoutHelp(const TreLayout& aLayout);

/// The numbered sources of one layout.
std::string SourcesHelp(const TreLayout& aLayout);

/// Kind, name and group of a tag: the front of its help.
std::string TagHead(const TreLayout& aLayout, std::string_view aTag, bool aRegistered, std::string_view aGroup);

/// The help text of a tag: kind, name, group, purpose, placement, certainty and numbered sources.
std::string TagHelp(const TreLayout& aLayout, std::string_view aTag, bool aRegistered, std::string_view aGroup);

/// How sure a layout is, as a sentence; empty when two sources agree.
std::string_view CertaintyText(LayoutCertainty aCertainty) noexcept;

/// All that the table says of a field.
TreDetailedInfo FieldInfo(const FieldRow& aRow, std::string_view aName, std::uint64_t aWidth);

}  // namespace ORMO::SensorModel::CSM::Detail
