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
    Typed<TreCSCCGA>(Tag::CSCCGA, Tag::TreCodeCSCCGA), Typed<TreCSCRNA>(Tag::CSCRNA, Tag::TreCodeCSCRNA),
    Typed<TreCSDIDA>(Tag::CSDIDA, Tag::TreCodeCSDIDA), Typed<TreCSEPHA>(Tag::CSEPHA, Tag::TreCodeCSEPHA),
    Typed<TreCSEXRA>(Tag::CSEXRA, Tag::TreCodeCSEXRA), Typed<TreCSPROA>(Tag::CSPROA, Tag::TreCodeCSPROA),
    Typed<TreCSSFAA>(Tag::CSSFAA, Tag::TreCodeCSSFAA), Typed<TreSTDIDC>(Tag::STDIDC, Tag::TreCodeSTDIDC),
    Typed<TreUSE00A>(Tag::USE00A, Tag::TreCodeUSE00A),
};

}  // namespace

SupportedTreCommercialSDE::SupportedTreCommercialSDE()
    : SupportedTreGroup(SupportedTreFactory::CommercialSDE,
                        "Commercial SDE (Support Data Extensions for Commercial Imagery Products)", ENTRIES,
                        std::size(ENTRIES))
{
}

const SupportedTreCommercialSDE& SupportedTreCommercialSDE::Instance()
{
    static const SupportedTreCommercialSDE group;
    return group;
}

const std::vector<const char*>& SupportedTreCommercialSDE::GetSupportedTREs()
{
    return Instance().GetAllSupportedTREs();
}

}  // namespace ORMO::SensorModel::CSM
