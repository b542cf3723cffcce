#pragma once

#include "fields/FieldTable.h"

#include <string>
#include <string_view>

// Tables as a person reads them.
namespace ORMO::SensorModel::CSM::Detail {

/// The row of a field named with or without the numbers of its turns, letter case aside; null when there is none.
const FieldRow* FindRow(const FieldTable& aTable, std::string_view aName);

/// Appends a line per row, indented as they nest, with the values behind it where they are a list.
void AppendRowList(const FieldTable& aTable, std::string& aText);

/// Appends what a row says besides label and explanation: width when it varies, unit, values, other spelling.
void AppendRowDetails(const FieldRow& aRow, std::string& aText);

/// "8 bytes", "width by NBANDS".
std::string WidthText(const FieldRow& aRow);

}  // namespace ORMO::SensorModel::CSM::Detail
