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
    Typed<TreRSMAPA>(Tag::RSMAPA, Tag::TreCodeRSMAPA), Typed<TreRSMDCA>(Tag::RSMDCA, Tag::TreCodeRSMDCA),
    Typed<TreRSMECA>(Tag::RSMECA, Tag::TreCodeRSMECA), Typed<TreRSMGGA>(Tag::RSMGGA, Tag::TreCodeRSMGGA),
    Typed<TreRSMGIA>(Tag::RSMGIA, Tag::TreCodeRSMGIA), Typed<TreRSMIDA>(Tag::RSMIDA, Tag::TreCodeRSMIDA),
    Typed<TreRSMPCA>(Tag::RSMPCA, Tag::TreCodeRSMPCA), Typed<TreRSMPIA>(Tag::RSMPIA, Tag::TreCodeRSMPIA),
};

}  // namespace

SupportedTreRSM::SupportedTreRSM()
    : SupportedTreGroup(SupportedTreFactory::RSM, "RSM (Replacement Sensor Model)", ENTRIES, std::size(ENTRIES))
{
}

const SupportedTreRSM& SupportedTreRSM::Instance()
{
    static const SupportedTreRSM group;
    return group;
}

const std::vector<const char*>& SupportedTreRSM::GetSupportedTREs()
{
    return Instance().GetAllSupportedTREs();
}

}  // namespace ORMO::SensorModel::CSM
