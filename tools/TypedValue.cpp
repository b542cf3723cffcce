#include "tools/TypedValue.h"

#include "foundation/CSMUtilString.h"
#include "tools/Output.h"

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

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

void WriteTyped(const NITFFieldValue& aValue, JsonWriter& aOut)
{
    switch (aValue.kind) {
        case NITFFieldValue::Kind::None:
            aOut.Null();
            break;
        case NITFFieldValue::Kind::Integer:
            aOut.Number(aValue.integer);
            break;
        case NITFFieldValue::Kind::Real:
            aOut.Number(aValue.real);
            break;
        case NITFFieldValue::Kind::Date:
            aOut.Text(aValue.date.Iso());
            break;
        case NITFFieldValue::Kind::Text:
        case NITFFieldValue::Kind::Bytes:
            aOut.Value(aValue.text);
            break;
    }
}

}  // namespace OrmoNitf
