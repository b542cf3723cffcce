#include "segments/text/NITFTextSubheader.h"

#include "fields/FieldWalk.h"
#include "fields/MessageText.h"
#include "fields/Number.h"
#include "foundation/CSMMsg.h"
#include "foundation/detail/Ascii.h"
#include "segments/detail/Findings.h"
#include "segments/detail/SegmentContents.h"
#include "segments/detail/SegmentData.h"
#include "segments/detail/SegmentWords.h"
#include "segments/detail/TextCheck.h"

#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr std::uint64_t MOST_ATTACHMENT_LEVEL = 998;

}  // namespace

NITFTextSubheader::NITFTextSubheader(const char* aVersionText, const Detail::FieldTable& aTable)
    : NITFDataSegment(aVersionText, NITFCnst::DATA_SEGMENT_TYPE_TEXT, aTable)
{
}

NITFTextSubheader::NITFTextSubheader(const NITFTextSubheader& aOther) = default;
NITFTextSubheader::~NITFTextSubheader() = default;

std::string NITFTextSubheader::FaultText(const Detail::WalkResult& aResult, const std::string& aTag) const
{
    return aResult.fault == Detail::Fault::Short
               ? std::string()
               : "ERROR: Value of text subheader field " + Detail::Quoted(aTag) + " is invalid.";
}

std::string NITFTextSubheader::DataFaultText() const
{
    return Data().HasSource() ? "ERROR: Failed to copy input text data."
                              : "ERROR: Text segment subheader data stream has not been properly initialized.";
}

void NITFTextSubheader::InitNITFTextSegment(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo,
                                            std::shared_ptr<const Detail::ByteSource> aSource,
                                            Util::CSMCnst::ByteOrder aByteOrder, bool aSpecificOnly,
                                            const char* aReader)
{
    ReadSubheader(aRaw, aLength, aInfo, std::move(aSource), "NITFTextSubheader::InitNITFTextSegment", aReader);
    ReadTREs("TXSHD", aSpecificOnly, false, TRE::TRE_TYPE_CONTROLLED_EXTENSION, aByteOrder);
    SetAttachmentLevel();
}

bool NITFTextSubheader::SetAttachmentLevel()
{
    std::uint64_t level = 0;
    if (!Detail::ToCount(FieldText(NITFCnst::NITF21_TS_FIELD_TXTALVL), level) || level > MOST_ATTACHMENT_LEVEL) {
        return false;
    }
    SetLevels(GetDataSegmentDisplayLevel(), level);
    return true;
}

std::string NITFTextSubheader::GetTextFormat() const
{
    return std::string(Detail::Trimmed(FieldText("TXTFMT")));
}

unsigned long NITFTextSubheader::GetOverflowTextExtendedSubheaderData() const noexcept
{
    return static_cast<unsigned long>(NumberOf(NITFCnst::NITF_TS_FIELD_TXSOFL));
}

void NITFTextSubheader::AppendDataElements(std::string& aXml) const
{
    AppendDataElement(NITFCnst::XML_ELEMENT_TS_DATA, aXml);
}

void NITFTextSubheader::Validate(Detail::Findings& aFindings) const
{
    NITFDataSegment::Validate(aFindings);
    std::string text;
    if (!Data().Read(text)) {
        return;  // whoever read the file has warned of it
    }
    const Detail::TextFault fault = Detail::CheckText(text, GetTextFormat());
    if (fault.reason != nullptr) {
        // Conformance samples end lines with a line feed alone or the text with Ctrl-Z; nothing is lost by that.
        aFindings.AddWarning(std::string(CSMMsg::Warn::DATA_NOT_STANDARDS_COMPLIANT) + " The text of " + Words().owner +
                             " does not fit its TXTFMT " + Detail::Quoted(GetTextFormat()) + ": " + fault.reason +
                             " at byte offset " + std::to_string(Data().Start() + fault.offset) + ".");
    }
}

}  // namespace ORMO::SensorModel::CSM
