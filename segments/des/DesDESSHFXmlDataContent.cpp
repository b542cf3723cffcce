#include "segments/des/DesDESSHFXmlDataContent.h"

#include "fields/FieldWalk.h"
#include "segments/des/SupportedDESSHFs.h"
#include "segments/des/detail/DesLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// The fields stand in three steps: DESSHL is 5, 283 or 773; with 0 there are none.
constexpr std::uint64_t LENGTH_WITH_DOCUMENT = 283;
constexpr std::uint64_t LENGTH_WITH_LOCATION = 773;

bool HasDocument(const WalkContext& aContext)
{
    return aContext.Total() >= LENGTH_WITH_DOCUMENT;
}

bool HasLocation(const WalkContext& aContext)
{
    return aContext.Total() >= LENGTH_WITH_LOCATION;
}

// STDI-0002 Vol 2 App F.
// clang-format off
constexpr FieldRow ROWS[] = {
    Field("DESCRC", 5, Required, Integer, "00000..65535|99999=not calculated", "", "Cyclic Redundancy Check", "Check value of the segment data."),
    WhenBy("DESSHL is at least 283", HasDocument),
        Field("DESSHFT",    8, Conditional, Text, "XSD|XML|DTD|XSL|XSLT|any=other", "", "XML File Type", "Kind of the XML document."),
        Field("DESSHDT",   20, Conditional, Date, "{YYYY-MM-DDThh:mm:ssZ}", "UTC", "Date and Time", "Moment at which the XML document was made."),
        Field("DESSHRP",   40, Conditional, Utf8, "", "", "Responsible Party", "Organization that answers for the content."),
        Field("DESSHSI",   60, Conditional, Utf8, "", "", "Specification Identifier", "Name of the specification that the document follows."),
        Field("DESSHSV",   10, Conditional, Text, "", "", "Specification Version", "Version of that specification."),
        Field("DESSHSD",   20, Conditional, Date, "{YYYY-MM-DDThh:mm:ssZ}", "UTC", "Specification Date", "Date of that specification."),
        Field("DESSHTN",  120, ConditionalBlank, Text, "", "", "Target Namespace", "Name space that the document declares."),
        WhenBy("DESSHL is at least 773", HasLocation),
            Field("DESSHLPG", 125, ConditionalBlank, Text, "", "degrees", "Location Polygon", "Closed outline of four corners around the area that the document concerns, latitude before longitude."),
            Field("DESSHLPT",  25, ConditionalBlank, Text, "", "degrees", "Location Point", "Single place that the document concerns."),
            Field("DESSHLI",   20, ConditionalBlank, Text, "", "", "Location Identifier", "Code of the area that the document concerns."),
            Field("DESSHLIN", 120, ConditionalBlank, Text, "", "", "Location Identifier Namespace URI", "Place where the location code is defined."),
            Field("DESSHABS", 200, ConditionalBlank, Utf8, "", "", "Abstract", "Short summary of the document."),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 5);

}  // namespace

DesDESSHFXmlDataContent::DesDESSHFXmlDataContent(const char* aType, const char* aData, std::size_t aLength)
{
    InitDesDESSHF(aType, aData, aLength);
}

const DesFieldSet::Layout& DesDESSHFXmlDataContent::InitDESSHFFieldsMap() const
{
    static constexpr Layout LAYOUT{SupportedDESSHFs::XML_DATA_CONTENT,
                                   "High Resolution Elevation (HRE) Product XML_DATA_CONTENT", "5, 283 or 773",
                                   "DesDESSHFXmlDataContent", TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
