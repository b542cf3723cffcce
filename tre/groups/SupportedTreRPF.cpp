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
    Untyped(Tag::RPFDES, Tag::TreCodeRPFDES).Registered(),
    Typed<TreRPFHDR>(Tag::RPFHDR, Tag::TreCodeRPFHDR).Registered(),
    Typed<TreRPFIMG>(Tag::RPFIMG, Tag::TreCodeRPFIMG).Registered(),
};

}  // namespace

SupportedTreRPF::SupportedTreRPF()
    : SupportedTreGroup(SupportedTreFactory::RPF, "RPF (Raster Product Format)", ENTRIES, std::size(ENTRIES))
{
}

const SupportedTreRPF& SupportedTreRPF::Instance()
{
    static const SupportedTreRPF group;
    return group;
}

const std::vector<const char*>& SupportedTreRPF::GetSupportedTREs()
{
    return Instance().GetAllSupportedTREs();
}

}  // namespace ORMO::SensorModel::CSM
