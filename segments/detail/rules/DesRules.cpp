#include "fields/MessageText.h"
#include "fields/ValueRule.h"
#include "foundation/CSMMsg.h"
#include "foundation/detail/Ascii.h"
#include "segments/des/DesDESDATA.h"
#include "segments/des/DesDESSHF.h"
#include "segments/des/NITFDESSubheader.h"
#include "segments/des/SupportedDESDATAs.h"
#include "segments/des/SupportedDESSHFs.h"
#include "segments/des/detail/DesParts.h"
#include "segments/detail/rules/FieldChecks.h"
#include "segments/detail/rules/HeaderView.h"
#include "tre/detail/TreArea.h"

#include <algorithm>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using namespace RuleWords;

const NITFDESSubheader& DesOf(const HeaderView& aHeader) noexcept
{
    return static_cast<const NITFDESSubheader&>(aHeader.Segment());
}

void OverflowFields(const HeaderView& aHeader, const Report& aReport)
{
    if (!DesOf(aHeader).IsTREOverflow()) {
        return;
    }
    if (aHeader.Number("DESVER") != 1) {
        aReport(aHeader, {.field = "DESVER",
                          .allowed = "01 for TRE_OVERFLOW",
                          .sentence = CSMMsg::Error::INVALID_REQUIRED_FIELD_VALUE});
    }
    if (aHeader.Number("DESSHL") != 0) {
        aReport(aHeader, {.field = "DESSHL",
                          .allowed = "0000 for TRE_OVERFLOW",
                          .sentence = CSMMsg::Error::INVALID_REQUIRED_FIELD_VALUE});
    }
}

void OverflowRun(const HeaderView& aHeader, const Report& aReport)
{
    std::string data;
    if (!DesOf(aHeader).IsTREOverflow()) {
        return;
    }
    if (aHeader.DataSize() == 0) {
        aReport(aHeader, {.detail = "The DES has no data."});
    } else if (aHeader.HasData() && aHeader.ReadData(0, aHeader.DataSize(), data)) {
        CheckArea(data, {NITFCnst::DES_DESID_TRE_OVERFLOW, aHeader.DataStart(), TRE::TRE_TYPE_UNKNOWN, "DE-05"},
                  aReport.Findings());
    }
}

void OverflowKind(const HeaderView& aHeader, const Report& aReport)
{
    if (!DesOf(aHeader).IsTREOverflow()) {
        return;
    }
    const bool isRegistered =
        LowerCase(aHeader.Text("DESTAG").substr(0, 1).empty() ? ' ' : aHeader.Text("DESTAG")[0]) == 'r';
    const AreaOfKind target = FindArea(Trimmed(aHeader.Text("DESOFLW")), aHeader.Version());
    if (target.area != nullptr && target.area->registered != isRegistered) {
        aReport(aHeader, {.field = "DESOFLW",
                          .allowed = isRegistered ? "UDHD | UDID" : "XHD | IXSHD | SXSHD | LXSHD | TXSHD",
                          .detail = "DESTAG is " + Shown(aHeader.Text("DESTAG"))});
    }
}

void XmlLengths(const HeaderView& aHeader, const Report& aReport)
{
    if (DesOf(aHeader).GetDESTypeID() == SupportedDESSHFs::XML_DATA_CONTENT &&
        !IsListed(aHeader.Text("DESSHL"), "0000|0005|0283|0773")) {
        aReport(aHeader, {.field = "DESSHL", .allowed = "0000 | 0005 | 0283 | 0773"});
    }
}

void Registered(const HeaderView& aHeader, const Report& aReport)
{
    constexpr std::string_view OTHERS = "STREAMING_FILE_HEADER|SICD_XML|SIDD_XML";
    const std::string type = DesOf(aHeader).GetDESTypeID();
    if (!DesOf(aHeader).IsTREOverflow() && !IsListed(type, OTHERS) &&
        !SupportedDESSHFs::AbleToCreateDESSHF(type.c_str()) && !SupportedDESDATAs::AbleToCreateDESDATA(type.c_str())) {
        aReport(aHeader, {.field = aHeader.Is20() ? "DESTAG" : "DESID"});
    }
}

/// The data of a DES that has a type with fields; null, with the reason, when they do not fit it.
const DesDESDATA* TypedData(const HeaderView& aHeader, std::string& aFault)
{
    const NITFDESSubheader& des = DesOf(aHeader);
    return des.GetDESSHF() != nullptr && aHeader.HasData() &&
                   SupportedDESDATAs::AbleToCreateDESDATA(des.GetDESTypeID().c_str())
               ? des.GetDESDATAFields(&aFault)
               : nullptr;
}

void DataFit(const HeaderView& aHeader, const Report& aReport)
{
    std::string fault;
    if (TypedData(aHeader, fault) == nullptr && !fault.empty()) {
        aReport(aHeader, {.detail = fault, .offset = aHeader.DataStart()});
    }
}

void DataAgree(const HeaderView& aHeader, const Report& aReport)
{
    std::string fault;
    const DesDESDATA* const data = TypedData(aHeader, fault);
    const std::string disagreement = data == nullptr ? "" : data->CheckAgainst(*DesOf(aHeader).GetDESSHF());
    if (!disagreement.empty()) {
        aReport(aHeader, {.detail = disagreement, .offset = aHeader.DataStart()});
    }
}

// clang-format off
constexpr Rule RULES[] = {
    {"DE-01", ERROR, V21, Subject::Des, "DESVER, DESSHL",
     "An overflow DES has a version or user-defined fields that it cannot have.",
     "A TRE_OVERFLOW DES has DESVER 01 and DESSHL 0000.",
     "MIL-STD-2500C table A-8(B)", &OverflowFields},
    {"DE-05", ERROR, ALL, Subject::Des, "overflow data, CEL",
     "The data of an overflow DES are not a run of whole TREs.",
     "At least one TRE, one behind the other without a gap. A TRE stands whole in its area or in the DES; padding at the end is warned of only.",
     "MIL-STD-2500C 5.8.1.3; JBP-2021.2-037", &OverflowRun},
    {"DE-06", ERROR, V20, Subject::Des, "DESTAG, DESOFLW",
     "TREs of one kind overflow an area of the other.",
     "Registered Extensions overflow UDHD or UDID; Controlled Extensions overflow XHD, IXSHD, SXSHD, LXSHD or TXSHD.",
     "MIL-STD-2500A table XVIII", &OverflowKind},
    {"DE-07", WARN, V21, Subject::Des, "DESSHL of XML_DATA_CONTENT",
     "The user-defined fields of an XML document have a length that was never published.",
     "DESSHL is 0000, 0005, 0283 or 0773.",
     "STDI-0002 Volume 2 Appendix F", &XmlLengths},
    {"DE-09", WARN, ALL, Subject::Des, "DESID, DESTAG",
     "The type of a DES is not known.",
     "The identifier is one of those that are registered and public; data of other types are kept as they are.",
     "register of DES identifiers", &Registered},
    {"DE-11", ERROR, ALL, Subject::Des, "DESDATA",
     "The data of the DES do not fit its type.",
     "Types whose data are described here are cut into fields.",
     "the definition of the DES", &DataFit},
    {"DE-12", ERROR, ALL, Subject::Des, "DESSHF, DESDATA",
     "The data of the DES do not agree with its subheader fields.",
     "Offsets and lengths in the user-defined subheader fields are those of the data.",
     "the definition of the DES", &DataAgree},
};
// clang-format on

}  // namespace

void CheckDesFields(const HeaderView& aHeader, FindingList& aFindings)
{
    const DesDESSHF* const subheader = aHeader.Looks(Subject::Des) ? DesOf(aHeader).GetDESSHF() : nullptr;
    if (subheader == nullptr) {
        return;
    }
    Finding place = aHeader.Inside().About(Finding::Level::Error, "", NITFCnst::NITF_DES_FIELD_DESSHF);
    place.owner = subheader->GetUniqueDESTypeID();
    place.field.clear();
    place.value.clear();
    DesFieldSet::Parts::Of(*subheader).fields.Check(place, aFindings);
    std::string fault;
    if (const DesDESDATA* const data = TypedData(aHeader, fault); data != nullptr) {
        place.offset = aHeader.DataStart();
        DesFieldSet::Parts::Of(*data).fields.Check(place, aFindings);
    }
}

RuleList DesRules() noexcept
{
    return RULES;
}

}  // namespace ORMO::SensorModel::CSM::Detail
