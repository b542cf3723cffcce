#include "nitf/NITFCnst.h"
#include "tre/TreRPC00B.h"
#include "tre/detail/TreMaker.h"
#include "tre/groups/SupportedTreGroups.h"
#include "tre/tags/TreTags.h"

#include <iterator>

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using Tag = NITFCnst::TreCERETag;

/// RPC00A has the fields of RPC00B with the coefficients in another order; it is known but not listed.
constexpr TreEntry ReadThroughRPC00B() noexcept
{
    TreEntry entry = Typed<TreRPC00B>(Tag::RPC00A, Tag::TreCodeRPC00A);
    entry.listed = false;
    return entry;
}

// In the order of the tags.
constexpr TreEntry ENTRIES[] = {
    Typed<TreACFTA>(Tag::ACFTA, Tag::TreCodeACFTA),
    Typed<TreACFTB>(Tag::ACFTB, Tag::TreCodeACFTB),
    Typed<TreAIMIDA>(Tag::AIMIDA, Tag::TreCodeAIMIDA),
    Typed<TreAIMIDB>(Tag::AIMIDB, Tag::TreCodeAIMIDB),
    Typed<TreASTORA>(Tag::ASTORA, Tag::TreCodeASTORA).Registered(),
    Typed<TreBANDSA>(Tag::BANDSA, Tag::TreCodeBANDSA),
    Typed<TreBANDSB>(Tag::BANDSB, Tag::TreCodeBANDSB),
    Typed<TreBLOCKA>(Tag::BLOCKA, Tag::TreCodeBLOCKA),
    Typed<TreEXOPTA>(Tag::EXOPTA, Tag::TreCodeEXOPTA),
    Typed<TreEXPLTA>(Tag::EXPLTA, Tag::TreCodeEXPLTA),
    Typed<TreEXPLTB>(Tag::EXPLTB, Tag::TreCodeEXPLTB),
    Typed<TreMENSRA>(Tag::MENSRA, Tag::TreCodeMENSRA),
    Typed<TreMENSRB>(Tag::MENSRB, Tag::TreCodeMENSRB),
    Typed<TreMPDSRA>(Tag::MPDSRA, Tag::TreCodeMPDSRA),
    Typed<TreMSTGTA>(Tag::MSTGTA, Tag::TreCodeMSTGTA),
    Typed<TreMTIRPA>(Tag::MTIRPA, Tag::TreCodeMTIRPA),
    Typed<TreMTIRPB>(Tag::MTIRPB, Tag::TreCodeMTIRPB),
    Typed<TrePATCHA>(Tag::PATCHA, Tag::TreCodePATCHA),
    Typed<TrePATCHB>(Tag::PATCHB, Tag::TreCodePATCHB),
    ReadThroughRPC00B(),
    Typed<TreRPC00B>(Tag::RPC00B, Tag::TreCodeRPC00B),
    Typed<TreSECTGA>(Tag::SECTGA, Tag::TreCodeSECTGA),
    Typed<TreSENSRA>(Tag::SENSRA, Tag::TreCodeSENSRA),
    Typed<TreSTREOB>(Tag::STREOB, Tag::TreCodeSTREOB),
};

}  // namespace

SupportedTreASDE::SupportedTreASDE()
    : SupportedTreGroup(SupportedTreFactory::ASDE, "ASDE (Airborne Support Data Extension)", ENTRIES,
                        std::size(ENTRIES))
{
}

const SupportedTreASDE& SupportedTreASDE::Instance()
{
    static const SupportedTreASDE group;
    return group;
}

const std::vector<const char*>& SupportedTreASDE::GetSupportedTREs()
{
    return Instance().GetAllSupportedTREs();
}

}  // namespace ORMO::SensorModel::CSM
