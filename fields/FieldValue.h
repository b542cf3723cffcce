#pragma once

#include "fields/FieldStore.h"
#include "foundation/CSMCnst.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// How the value of a row is to be understood.
[[nodiscard]] Util::CSMCnst::DataType DataTypeOf(const FieldRow& aRow) noexcept;

/// True for whole numbers, in text or in binary form.
[[nodiscard]] bool IsIntegral(const FieldRow& aRow) noexcept;

/// The value as a number, by the conversion rules of CSMUtilString for text and by the byte order for binary fields.
/// The value is one of a store, with the NUL that follows it there.
/// False when the value is no such number or does not fit.
[[nodiscard]] bool ValueAsInt64(const FieldRow& aRow, std::string_view aValue, Util::CSMCnst::ByteOrder aOrder,
                                std::int64_t& aOut);
[[nodiscard]] bool ValueAsUInt64(const FieldRow& aRow, std::string_view aValue, Util::CSMCnst::ByteOrder aOrder,
                                 std::uint64_t& aOut);
[[nodiscard]] bool ValueAsDouble(const FieldRow& aRow, std::string_view aValue, Util::CSMCnst::ByteOrder aOrder,
                                 double& aOut);

/// The requirement as the catalogue prints it: R, C or O; blanks allowed shows in brackets in XML only.
[[nodiscard]] const char* NeedLetter(Need aNeed) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail
