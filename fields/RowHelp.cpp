#include "fields/RowHelp.h"

#include "fields/FieldValue.h"
#include "fields/ValueRule.h"
#include "foundation/CSMUtilString.h"

namespace ORMO::SensorModel::CSM::Detail {

namespace {

std::string Adjusted(std::string_view aTag, std::int32_t aAdjust)
{
    std::string text(aTag);
    if (aAdjust != 0) {
        text += aAdjust < 0 ? " - " : " + ";
        text += std::to_string(aAdjust < 0 ? -aAdjust : aAdjust);
    }
    return text;
}

/// What a mark says, as a person would put it.
std::string MarkText(const FieldRow& aRow)
{
    if (aRow.kind == RowKind::Repeat && aRow.rest) {
        return "repeat to the end of the data:";
    }
    if (aRow.kind == RowKind::Repeat) {
        return "repeat " +
               (aRow.number != 0        ? std::to_string(aRow.number)
                : aRow.count != nullptr ? std::string(aRow.label)
                                        : Adjusted(aRow.tag, aRow.sizeAdjust)) +
               " times:";
    }
    const std::string tag(aRow.tag);
    switch (aRow.test) {
        case Test::IsOneOf:
            return "when " + tag + " is " + aRow.values + ":";
        case Test::IsNoneOf:
            return "when " + tag + " is not " + aRow.values + ":";
        case Test::Filled:
            return "when " + tag + " is filled:";
        case Test::Positive:
            return "when " + tag + " is above 0:";
        case Test::AtLeast:
            return "when " + tag + " is at least " + std::to_string(aRow.number) + ":";
        case Test::AnyBit: {
            std::string bits;
            for (unsigned bit = 0; bit != 64; ++bit) {
                if (((aRow.number >> bit) & 1U) != 0) {
                    bits += (bits.empty() ? "" : " or ") + std::to_string(bit);
                }
            }
            return "when " + tag + " has bit " + bits + " set:";
        }
        default:
            return std::string("when ") + aRow.label + ":";
    }
}

/// The alternatives of a value rule, one line each when they carry meanings.
std::string ValuesText(const char* aValues)
{
    std::string text;
    std::string_view rest(aValues);
    while (!rest.empty()) {
        const std::string_view alternative = NextAlternative(rest);
        const auto mark = alternative.find('=', 1);
        text += text.empty() ? "" : "; ";
        text += alternative.substr(0, mark);
        if (mark != std::string_view::npos) {
            text += " (";
            text += alternative.substr(mark + 1);
            text += ')';
        }
    }
    return text;
}

}  // namespace

std::string WidthText(const FieldRow& aRow)
{
    if (aRow.width != 0) {
        return std::to_string(aRow.width) + (aRow.width == 1 ? " byte" : " bytes");
    }
    if (aRow.count != nullptr && aRow.sizeTag != nullptr) {
        return std::string("width by ") + aRow.sizeTag;
    }
    if (aRow.sizeTag != nullptr) {
        return Adjusted(aRow.sizeTag, aRow.sizeAdjust) + " bytes";
    }
    return aRow.rest ? "all bytes left" : "computed width";
}

const FieldRow* FindRow(const FieldTable& aTable, std::string_view aName)
{
    const std::string name = Util::CSMUtilString::ToUpper(std::string(aName));
    Turns turns{};
    std::uint16_t index = aTable.Resolve(name, turns);
    index = index == NO_ROW ? aTable.FindAny(name) : index;
    return index == NO_ROW ? nullptr : &aTable.Row(index);
}

void AppendRowList(const FieldTable& aTable, std::string& aText)
{
    std::string indent = "  ";
    for (const FieldRow& row : aTable.Rows()) {
        if (row.kind == RowKind::End) {
            indent.resize(indent.size() - 2);
        } else if (row.IsGroup()) {
            aText += indent + MarkText(row) + '\n';
            indent += "  ";
        } else {
            aText += indent + row.tag + "  " + row.label + " [" + WidthText(row) + ", " + NeedLetter(row.need);
            aText += *row.unit == '\0' ? "]\n" : std::string(", ") + row.unit + "]\n";
            if (std::string_view(row.values).find_first_of("=|", 1) != std::string_view::npos) {
                aText += indent + "    " + ValuesText(row.values) + '\n';
            }
        }
    }
}

void AppendRowDetails(const FieldRow& aRow, std::string& aText)
{
    if (aRow.width == 0) {
        aText += "Width: " + WidthText(aRow) + ".\n";
    }
    if (*aRow.unit != '\0') {
        aText += std::string("Unit: ") + aRow.unit + ".\n";
    }
    if (*aRow.values != '\0') {
        aText += "Values: " + ValuesText(aRow.values) + ".\n";
    }
    if (aRow.alias != nullptr) {
        aText += std::string("Also spelled ") + aRow.alias + ".\n";
    }
}

}  // namespace ORMO::SensorModel::CSM::Detail
