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
    Typed<TreBCKGDA>(Tag::BCKGDA, Tag::TreCodeBCKGDA), Typed<TreCMETAA>(Tag::CMETAA, Tag::TreCodeCMETAA),
    Typed<TreENGRDA>(Tag::ENGRDA, Tag::TreCodeENGRDA), Typed<TreHISTOA>(Tag::HISTOA, Tag::TreCodeHISTOA),
    Typed<TreICHIPA>(Tag::ICHIPA, Tag::TreCodeICHIPA), Typed<TreICHIPB>(Tag::ICHIPB, Tag::TreCodeICHIPB),
    Typed<TreIOMAPA>(Tag::IOMAPA, Tag::TreCodeIOMAPA), Typed<TreJ2KLRA>(Tag::J2KLRA, Tag::TreCodeJ2KLRA),
    Typed<TreMITOCA>(Tag::MITOCA, Tag::TreCodeMITOCA), Typed<TreNBLOCA>(Tag::NBLOCA, Tag::TreCodeNBLOCA),
    Typed<TreOFFSET>(Tag::OFFSET, Tag::TreCodeOFFSET),
};

}  // namespace

SupportedTreMISC::SupportedTreMISC()
    : SupportedTreGroup(SupportedTreFactory::MISC, "MISC (miscellaneous)", ENTRIES, std::size(ENTRIES))
{
}

const SupportedTreMISC& SupportedTreMISC::Instance()
{
    static const SupportedTreMISC group;
    return group;
}

const std::vector<const char*>& SupportedTreMISC::GetSupportedTREs()
{
    return Instance().GetAllSupportedTREs();
}

}  // namespace ORMO::SensorModel::CSM
