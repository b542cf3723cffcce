#include "segments/text/NITFTextSubheader.h"

#include "fields/MessageText.h"
#include "foundation/CSMMsg.h"
#include "foundation/detail/Ascii.h"
#include "segments/detail/SegmentLayout.h"
#include "segments/text/detail/TextCharacters.h"
#include "segments/text/detail/TextCheck.h"

namespace ORMO::SensorModel::CSM {

NITFTextSubheader::NITFTextSubheader(const Layout& aLayout, Input& aInput) : NITFDataSegment(aLayout, aInput) {}
NITFTextSubheader::NITFTextSubheader(const NITFTextSubheader& aOther) = default;
NITFTextSubheader::~NITFTextSubheader() = default;

std::string NITFTextSubheader::DataFaultText() const
{
    return HasDataSource() ? "ERROR: Failed to copy input text data."
                           : "ERROR: Text segment subheader data stream has not been properly initialized.";
}

std::string NITFTextSubheader::GetTextFormat() const
{
    return std::string(Detail::Trimmed(FieldText("TXTFMT")));
}

unsigned long NITFTextSubheader::GetOverflowTextExtendedSubheaderData() const noexcept
{
    return static_cast<unsigned long>(NumberOf(NITFCnst::NITF_TS_FIELD_TXSOFL));
}

void NITFTextSubheader::AppendDataElements(Document& aOut) const
{
    AppendDataElement(NITFCnst::XML_ELEMENT_TS_DATA, aOut);
}

void Detail::CheckTextSegment(const NITFFieldSegment& aSegment, FindingList& aFindings)
{
    const auto& text = dynamic_cast<const NITFTextSubheader&>(aSegment);
    const char* data = nullptr;
    std::size_t length = 0;
    if (!text.GetTextData(data, length)) {
        return;  // whoever read the file has warned of it
    }
    const TextFault fault = CheckText({data, length}, text.GetTextFormat());
    if (fault.reason != nullptr) {
        // Conformance samples end lines with a line feed alone or the text with Ctrl-Z; nothing is lost by that.
        Finding finding =
            MakeFinding(std::string(CSMMsg::Warn::DATA_NOT_STANDARDS_COMPLIANT) + " The text does not fit its TXTFMT " +
                        Quoted(text.GetTextFormat()) + ": " + fault.reason + '.');
        finding.offset = text.GetSegmentDataStart() + fault.offset;
        finding.value = std::string_view(data, length).substr(fault.offset, 16);
        aFindings.Add(std::move(finding));
    }
}

}  // namespace ORMO::SensorModel::CSM
