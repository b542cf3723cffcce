#include "tools/TypedValue.h"

#include "foundation/CSMUtilString.h"
#include "segments/NITFHeaderCatalogue.h"
#include "segments/NITFWords.h"
#include "tools/Output.h"

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;
using Util::CSMCnst;

namespace {

/// Whether a value rule is the picture of a date.
bool IsDateRule(std::string_view aRule) noexcept
{
    return aRule.substr(0, 5) == "{CCYY" || aRule.substr(0, 5) == "{YYYY" || aRule.substr(0, 5) == "{DDHH";
}

template<typename Owner>
void Write(const Owner& aOwner, CSMCnst::DataType aType, std::string_view aRule, const std::string& aField,
           std::string_view aValue, JsonWriter& aOut)
{
    const std::string_view text = TrimmedBlanks(aValue);
    std::int64_t integer = 0;
    double real = 0.0;
    std::string date;
    switch (aType) {
        case CSMCnst::DATA_TYPE_INT32:
        case CSMCnst::DATA_TYPE_UINT32:
        case CSMCnst::DATA_TYPE_INT64:
        case CSMCnst::DATA_TYPE_UINT64:
            if (!text.empty() && aOwner.GetFieldAsInt64(aField.c_str(), integer)) {
                aOut.Number(integer);
                return;
            }
            break;
        case CSMCnst::DATA_TYPE_DOUBLE:
            if (!text.empty() && aOwner.GetFieldAsDouble(aField.c_str(), real)) {
                aOut.Number(real);
                return;
            }
            break;
        default:
            if (IsDateRule(aRule) && NITFWords::ToIsoDate(text, 'T', date)) {
                aOut.Latin1(date);
                return;
            }
    }
    if (text.empty()) {
        aOut.Null();
    } else {
        aOut.Value(text);
    }
}

}  // namespace

std::string_view TrimmedBlanks(std::string_view aText) noexcept
{
    const auto first = aText.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view{}
                                           : aText.substr(first, aText.find_last_not_of(' ') - first + 1);
}

std::string ValueText(std::string_view aLatin1)
{
    const std::string_view trimmed = TrimmedBlanks(aLatin1);
    if (HasControls(trimmed)) {
        return Printable(std::string(trimmed));
    }
    std::string text;
    Util::CSMUtilString::AppendLatin1AsUtf8(trimmed, text);
    return text;
}

void WriteTyped(const TRE& aOwner, const std::string& aField, std::string_view aValue, JsonWriter& aOut)
{
    const TRE::FieldInfos* const infos = aOwner.GetAllTreFieldInfos();
    const auto info = infos == nullptr ? TRE::FieldInfos::const_iterator{} : infos->find(aField);
    const bool known = infos != nullptr && info != infos->end();
    Write(aOwner, known ? info->second.dataType : CSMCnst::DATA_TYPE_TEXT, known ? info->second.values : "", aField,
          aValue, aOut);
}

void WriteTyped(const NITFFieldSegment& aOwner, const std::string& aField, std::string_view aValue, JsonWriter& aOut)
{
    Write(aOwner, aOwner.GetFieldValueDataType(aField.c_str()), NITFHeaderCatalogue::GetValueRule(aOwner, aField),
          aField, aValue, aOut);
}

}  // namespace OrmoNitf
