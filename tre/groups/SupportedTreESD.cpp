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
    Typed<TreESD001>(Tag::ESD001, Tag::TreCodeESD001),
};

}  // namespace

SupportedTreESD::SupportedTreESD()
    : SupportedTreGroup(SupportedTreFactory::ESD, "ESD (Exploitation Support Data)", ENTRIES, std::size(ENTRIES))
{
}

const SupportedTreESD& SupportedTreESD::Instance()
{
    static const SupportedTreESD group;
    return group;
}

const std::vector<const char*>& SupportedTreESD::GetSupportedTREs()
{
    return Instance().GetAllSupportedTREs();
}

}  // namespace ORMO::SensorModel::CSM
