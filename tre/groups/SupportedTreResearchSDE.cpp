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
    Typed<TreCLCTNA>(Tag::CLCTNA, Tag::TreCodeCLCTNA),
    Untyped(Tag::CLCTNB, Tag::TreCodeCLCTNB),
    Untyped(Tag::IMGDTA, Tag::TreCodeIMGDTA),
    Untyped(Tag::OBJCTA, Tag::TreCodeOBJCTA),
    Untyped(Tag::PLTFMA, Tag::TreCodePLTFMA),
    Untyped(Tag::SNSRA, Tag::TreCodeSNSRA),
    Untyped(Tag::TRGTA, Tag::TreCodeTRGTA),
};

}  // namespace

SupportedTreResearchSDE::SupportedTreResearchSDE()
    : SupportedTreGroup(SupportedTreFactory::ResearchSDE, "ResearchSDE (Research Tagged Record Extensions)", ENTRIES,
                        std::size(ENTRIES))
{
}

const SupportedTreResearchSDE& SupportedTreResearchSDE::Instance()
{
    static const SupportedTreResearchSDE group;
    return group;
}

const std::vector<const char*>& SupportedTreResearchSDE::GetSupportedTREs()
{
    return Instance().GetAllSupportedTREs();
}

}  // namespace ORMO::SensorModel::CSM
