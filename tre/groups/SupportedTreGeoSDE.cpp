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
    Typed<TreACCHZB>(Tag::ACCHZB, Tag::TreCodeACCHZB), Typed<TreACCPOB>(Tag::ACCPOB, Tag::TreCodeACCPOB),
    Typed<TreACCVTB>(Tag::ACCVTB, Tag::TreCodeACCVTB), Typed<TreBNDPLB>(Tag::BNDPLB, Tag::TreCodeBNDPLB),
    Typed<TreFACCBB>(Tag::FACCBB, Tag::TreCodeFACCBB), Typed<TreGEOLOB>(Tag::GEOLOB, Tag::TreCodeGEOLOB),
    Typed<TreGEOPSB>(Tag::GEOPSB, Tag::TreCodeGEOPSB), Typed<TreGRDPSB>(Tag::GRDPSB, Tag::TreCodeGRDPSB),
    Typed<TreMAPLOB>(Tag::MAPLOB, Tag::TreCodeMAPLOB), Typed<TrePRJPSB>(Tag::PRJPSB, Tag::TreCodePRJPSB),
    Typed<TreREGPTB>(Tag::REGPTB, Tag::TreCodeREGPTB), Typed<TreREGPTC>(Tag::REGPTC, Tag::TreCodeREGPTC),
    Typed<TreSNSPSB>(Tag::SNSPSB, Tag::TreCodeSNSPSB), Typed<TreSOURCB>(Tag::SOURCB, Tag::TreCodeSOURCB),
};

}  // namespace

SupportedTreGeoSDE::SupportedTreGeoSDE()
    : SupportedTreGroup(SupportedTreFactory::GeoSDE, "GeoSDE (Geospatial Support Data Extension)", ENTRIES,
                        std::size(ENTRIES))
{
}

const SupportedTreGeoSDE& SupportedTreGeoSDE::Instance()
{
    static const SupportedTreGeoSDE group;
    return group;
}

const std::vector<const char*>& SupportedTreGeoSDE::GetSupportedTREs()
{
    return Instance().GetAllSupportedTREs();
}

}  // namespace ORMO::SensorModel::CSM
