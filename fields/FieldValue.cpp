#include "fields/FieldValue.h"

#include "fields/Number.h"
#include "foundation/CSMUtilString.h"

#include <bit>
#include <limits>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using Util::CSMCnst;

// The widest decimal text that always fits 32 bits.
constexpr std::uint32_t DIGITS_IN_32_BITS = 9;

std::int64_t SignExtended(std::uint64_t aBits, std::size_t aBytes) noexcept
{
    const auto unused = static_cast<unsigned>(8 * (sizeof aBits - aBytes));
    return static_cast<std::int64_t>(aBits << unused) >> unused;
}

}  // namespace

CSMCnst::DataType DataTypeOf(const FieldRow& aRow) noexcept
{
    switch (aRow.form) {
        case Form::Integer:
        case Form::Digits:
            return aRow.width <= DIGITS_IN_32_BITS ? CSMCnst::DATA_TYPE_INT32 : CSMCnst::DATA_TYPE_INT64;
        case Form::Real:
        case Form::Float:
            return CSMCnst::DATA_TYPE_DOUBLE;
        case Form::Date:
            return CSMCnst::DATA_TYPE_DATE;
        case Form::FileProfile:
            return CSMCnst::DATA_TYPE_FILE_PROFILE;
        case Form::ClassificationReason:
            return CSMCnst::DATA_TYPE_CLASSIFICATION_REASON;
        case Form::Colour:
            return CSMCnst::DATA_TYPE_BINARY_COLOR;
        case Form::Unsigned:
            return aRow.width <= sizeof(std::uint32_t) ? CSMCnst::DATA_TYPE_UINT32 : CSMCnst::DATA_TYPE_UINT64;
        case Form::Signed:
            return aRow.width <= sizeof(std::int32_t) ? CSMCnst::DATA_TYPE_INT32 : CSMCnst::DATA_TYPE_INT64;
        case Form::Bytes:
            return CSMCnst::DATA_TYPE_BINARY;
        case Form::Records:
            return CSMCnst::DATA_TYPE_EXTENSION_DATA;
        default:
            return CSMCnst::DATA_TYPE_TEXT;
    }
}

bool IsIntegral(const FieldRow& aRow) noexcept
{
    return aRow.form == Form::Integer || aRow.form == Form::Digits || aRow.form == Form::Unsigned ||
           aRow.form == Form::Signed;
}

bool ValueAsInt64(const FieldRow& aRow, std::string_view aValue, CSMCnst::ByteOrder aOrder, std::int64_t& aOut)
{
    if (!aRow.IsBinary()) {
        return aValue.find('\0') == std::string_view::npos && Util::CSMUtilString::ToInt64(aValue.data(), aOut);
    }
    std::uint64_t bits = 0;
    if ((aRow.form != Form::Unsigned && aRow.form != Form::Signed) || !BinaryUnsigned(aValue, aOrder, bits)) {
        return false;
    }
    if (aRow.form == Form::Signed) {
        aOut = SignExtended(bits, aValue.size());
        return true;
    }
    if (bits > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) {
        return false;
    }
    aOut = static_cast<std::int64_t>(bits);
    return true;
}

bool ValueAsUInt64(const FieldRow& aRow, std::string_view aValue, CSMCnst::ByteOrder aOrder, std::uint64_t& aOut)
{
    if (!aRow.IsBinary()) {
        return aValue.find('\0') == std::string_view::npos && Util::CSMUtilString::ToUInt64(aValue.data(), aOut);
    }
    if (aRow.form == Form::Unsigned) {
        return BinaryUnsigned(aValue, aOrder, aOut);
    }
    std::int64_t number = 0;
    if (!ValueAsInt64(aRow, aValue, aOrder, number) || number < 0) {
        return false;
    }
    aOut = static_cast<std::uint64_t>(number);
    return true;
}

bool ValueAsDouble(const FieldRow& aRow, std::string_view aValue, CSMCnst::ByteOrder aOrder, double& aOut)
{
    if (!aRow.IsBinary()) {
        return aValue.find('\0') == std::string_view::npos && Util::CSMUtilString::ToDouble(aValue.data(), aOut);
    }
    std::uint64_t bits = 0;
    if (aRow.form == Form::Float) {
        if (!BinaryUnsigned(aValue, aOrder, bits)) {
            return false;
        }
        if (aValue.size() == sizeof(float)) {
            aOut = static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(bits)));
            return true;
        }
        aOut = std::bit_cast<double>(bits);
        return aValue.size() == sizeof(double);
    }
    std::int64_t number = 0;
    if (aRow.form == Form::Unsigned && BinaryUnsigned(aValue, aOrder, bits)) {
        aOut = static_cast<double>(bits);
        return true;
    }
    if (!ValueAsInt64(aRow, aValue, aOrder, number)) {
        return false;
    }
    aOut = static_cast<double>(number);
    return true;
}

const char* NeedLetter(Need aNeed) noexcept
{
    switch (aNeed) {
        case Need::Conditional:
        case Need::ConditionalBlank:
            return "C";
        case Need::Optional:
            return "O";
        default:
            return "R";
    }
}

}  // namespace ORMO::SensorModel::CSM::Detail
