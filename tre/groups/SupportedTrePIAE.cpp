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
    Typed<TrePIAEQA>(Tag::PIAEQA, Tag::TreCodePIAEQA), Typed<TrePIAEVA>(Tag::PIAEVA, Tag::TreCodePIAEVA),
    Typed<TrePIAIMB>(Tag::PIAIMB, Tag::TreCodePIAIMB), Typed<TrePIAIMC>(Tag::PIAIMC, Tag::TreCodePIAIMC),
    Typed<TrePIAPEA>(Tag::PIAPEA, Tag::TreCodePIAPEA), Typed<TrePIAPEB>(Tag::PIAPEB, Tag::TreCodePIAPEB),
    Typed<TrePIAPRC>(Tag::PIAPRC, Tag::TreCodePIAPRC), Typed<TrePIAPRD>(Tag::PIAPRD, Tag::TreCodePIAPRD),
    Typed<TrePIATGA>(Tag::PIATGA, Tag::TreCodePIATGA), Typed<TrePIATGB>(Tag::PIATGB, Tag::TreCodePIATGB),
};

}  // namespace

SupportedTrePIAE::SupportedTrePIAE()
    : SupportedTreGroup(SupportedTreFactory::PIAE, "PIAE (Profile for Imagery Archives Extensions)", ENTRIES,
                        std::size(ENTRIES))
{
}

const SupportedTrePIAE& SupportedTrePIAE::Instance()
{
    static const SupportedTrePIAE group;
    return group;
}

const std::vector<const char*>& SupportedTrePIAE::GetSupportedTREs()
{
    return Instance().GetAllSupportedTREs();
}

}  // namespace ORMO::SensorModel::CSM
