#include "nitf/NITFCnst.h"
#include "tre/detail/TreMaker.h"
#include "tre/groups/SupportedTreGroups.h"
#include "tre/tags/TreTags.h"

#include <iterator>

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using Tag = NITFCnst::TreCERETag;

// In the order of the tags.
constexpr TreEntry ENTRIES[] = {
    Typed<TreIMASDA>(Tag::IMASDA, Tag::TreCodeIMASDA), Typed<TreIMCBDA>(Tag::IMCBDA, Tag::TreCodeIMCBDA),
    Typed<TreIMRFCA>(Tag::IMRFCA, Tag::TreCodeIMRFCA), Typed<TreMSDIRA>(Tag::MSDIRA, Tag::TreCodeMSDIRA),
    Typed<TrePPRSDA>(Tag::PPRSDA, Tag::TreCodePPRSDA), Typed<TrePRADAA>(Tag::PRADAA, Tag::TreCodePRADAA),
    Typed<TrePRADRA>(Tag::PRADRA, Tag::TreCodePRADRA), Typed<TrePSUPDA>(Tag::PSUPDA, Tag::TreCodePSUPDA),
    Typed<TrePTPRAA>(Tag::PTPRAA, Tag::TreCodePTPRAA), Typed<TreRGRDRA>(Tag::RGRDRA, Tag::TreCodeRGRDRA),
};

}  // namespace

SupportedTreDPPDB::SupportedTreDPPDB()
    : SupportedTreGroup(SupportedTreFactory::DPPDB, "DPPDB (Digital Point Positioning Database)", ENTRIES,
                        std::size(ENTRIES))
{
}

const SupportedTreDPPDB& SupportedTreDPPDB::Instance()
{
    static const SupportedTreDPPDB group;
    return group;
}

const std::vector<const char*>& SupportedTreDPPDB::GetSupportedTREs()
{
    return Instance().GetAllSupportedTREs();
}

}  // namespace ORMO::SensorModel::CSM
