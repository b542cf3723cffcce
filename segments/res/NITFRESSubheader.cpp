#include "segments/res/NITFRESSubheader.h"

#include "foundation/detail/Ascii.h"

namespace ORMO::SensorModel::CSM {

NITFRESSubheader::NITFRESSubheader(const Layout& aLayout, Input& aInput) : NITFDataSegment(aLayout, aInput) {}
NITFRESSubheader::NITFRESSubheader(const NITFRESSubheader& aOther) = default;
NITFRESSubheader::~NITFRESSubheader() = default;

std::string NITFRESSubheader::GetRESTypeID() const
{
    return std::string(Detail::Trimmed(FieldText(NITFCnst::NITF_RES_FIELD_RESID)));
}

bool NITFRESSubheader::GetDataField(std::string_view aName, const char*& aValue, std::size_t& aLength) const
{
    return aName == NITFCnst::NITF_RES_FIELD_RESDATA && GetData(aValue, aLength, nullptr);
}

void NITFRESSubheader::AppendDataElements(Document& aOut) const
{
    AppendDataElement(NITFCnst::XML_ELEMENT_DATA, aOut);
}

}  // namespace ORMO::SensorModel::CSM
