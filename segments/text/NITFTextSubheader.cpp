#include "segments/text/NITFTextSubheader.h"

#include "foundation/detail/Ascii.h"
#include "segments/detail/SegmentLayout.h"

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

}  // namespace ORMO::SensorModel::CSM
