#include "segments/res/NITFRESSubheader.h"

#include "fields/FieldWalk.h"
#include "fields/MessageText.h"
#include "foundation/detail/Ascii.h"

#include <utility>

namespace ORMO::SensorModel::CSM {

NITFRESSubheader::NITFRESSubheader(const char* aVersionText, const Detail::FieldTable& aTable)
    : NITFDataSegment(aVersionText, NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION, aTable)
{
}

NITFRESSubheader::NITFRESSubheader(const NITFRESSubheader& aOther) = default;
NITFRESSubheader::~NITFRESSubheader() = default;

std::string NITFRESSubheader::GetRESTypeID() const
{
    return std::string(Detail::Trimmed(FieldText(NITFCnst::NITF_RES_FIELD_RESID)));
}

std::string NITFRESSubheader::FaultText(const Detail::WalkResult& aResult, const std::string& aTag) const
{
    return aResult.fault == Detail::Fault::Short
               ? std::string()
               : "ERROR: Value of RES subheader field " + Detail::Quoted(aTag) + " is invalid.";
}

void NITFRESSubheader::InitNITFRES(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo,
                                   std::shared_ptr<const Detail::ByteSource> aSource, const char* aReader)
{
    ReadSubheader(aRaw, aLength, aInfo, std::move(aSource), "NITFRESSubheader::InitNITFRES", aReader);
}

void NITFRESSubheader::AppendDataElements(std::string& aXml) const
{
    AppendDataElement(NITFCnst::XML_ELEMENT_DATA, aXml);
}

}  // namespace ORMO::SensorModel::CSM
