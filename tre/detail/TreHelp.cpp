#include "tre/detail/TreHelp.h"

#include "fields/FieldValue.h"

namespace ORMO::SensorModel::CSM::Detail {

std::string FieldHelp(const FieldRow& aRow, std::string_view aName, std::uint64_t aWidth)
{
    std::string text(aRow.label);
    text += " [= \"";
    text += aName;
    text += "\", ";
    text += std::to_string(aWidth);
    text += " bytes, ";
    text += NeedLetter(aRow.need);
    text += "]. ";
    text += aRow.explanation;
    return text;
}

std::string_view CertaintyText(LayoutCertainty aCertainty) noexcept
{
    switch (aCertainty) {
        case LayoutCertainty::OneSource:
            return "Layout from one source.";
        case LayoutCertainty::Recalled:
            return "Layout recalled, without a source at hand.";
        case LayoutCertainty::NotPublic:
            return "The layout of this extension is not public; its data are kept whole.";
        default:
            return {};
    }
}

std::string LayoutHelp(const TreLayout& aLayout)
{
    std::string text(aLayout.purpose);
    text += "\n\nPlacement: ";
    text += aLayout.placement;
    text += ".\n";
    if (aLayout.length != 0) {
        text += "Length: " + std::to_string(aLayout.length) + " bytes.\n";
    } else if (*aLayout.lengthRule != '\0') {
        text += "Length: ";
        text += aLayout.lengthRule;
        text += ".\n";
    }
    const std::string_view certainty = CertaintyText(aLayout.certainty);
    if (!certainty.empty()) {
        text += certainty;
        text += '\n';
    }
    if (*aLayout.notes != '\0') {
        text += "Notes: ";
        text += aLayout.notes;
        text += '\n';
    }
    return text;
}

std::string SourcesHelp(const TreLayout& aLayout)
{
    std::string text("Sources:\n");
    std::string_view rest(aLayout.sources);
    for (int number = 1; !rest.empty(); ++number) {
        const auto mark = rest.find("; ");
        text += std::to_string(number) + ". ";
        text += rest.substr(0, mark);
        text += '\n';
        rest = mark == std::string_view::npos ? std::string_view{} : rest.substr(mark + 2);
    }
    return text;
}

std::string TagHead(const TreLayout& aLayout, std::string_view aTag, bool aRegistered, std::string_view aGroup)
{
    // The description of IMASDA names the tag without its last letter; hosts have come to know it so.
    const std::string_view shownTag = aTag == "IMASDA" ? aTag.substr(0, aTag.size() - 1) : aTag;
    std::string text(aRegistered ? "[Registered Extension]" : "[Controlled Extension]");
    text += "\nTagged Record Extension ";
    text += shownTag;
    text += " (";
    text += aLayout.name;
    text += ").\nThis TRE belongs to the ";
    text += aGroup;
    text += " TRE Group.\n\n";
    return text;
}

std::string TagHelp(const TreLayout& aLayout, std::string_view aTag, bool aRegistered, std::string_view aGroup)
{
    return TagHead(aLayout, aTag, aRegistered, aGroup) + LayoutHelp(aLayout) + '\n' + SourcesHelp(aLayout);
}

TreDetailedInfo FieldInfo(const FieldRow& aRow, std::string_view aName, std::uint64_t aWidth)
{
    TreDetailedInfo info;
    info.fieldName = aName;
    info.width = static_cast<std::uint32_t>(aWidth);
    info.requirement = static_cast<NITFCnst::FieldType>(aRow.need);
    info.dataType = DataTypeOf(aRow);
    info.longName = aRow.label;
    info.unit = aRow.unit;
    info.values = aRow.values;
    info.description = FieldHelp(aRow, aName, aWidth);
    return info;
}

}  // namespace ORMO::SensorModel::CSM::Detail
