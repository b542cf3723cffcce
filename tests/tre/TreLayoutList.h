#pragma once

#include "tre/TreRPC00B.h"
#include "tre/detail/TreLayout.h"
#include "tre/tags/TreTags.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <ostream>
#include <string_view>

namespace ORMO::SensorModel::CSM {

/// A tag as its class is named, and the table behind that class.
struct NamedLayout
{
    const char* tag;
    const Detail::TreLayout& (*layout)();
};

inline std::ostream& operator<<(std::ostream& aOut, const NamedLayout& aNamed)
{
    return aOut << aNamed.tag;
}

/// The most bytes of data that a record can have (STDI-0002).
inline constexpr std::size_t LONGEST_TRE = 99985;

inline constexpr std::array TRE_LAYOUTS{
    NamedLayout{"ACCHZB", &TreACCHZB::Layout}, NamedLayout{"ACCPOB", &TreACCPOB::Layout},
    NamedLayout{"ACCVTB", &TreACCVTB::Layout}, NamedLayout{"ACFTA", &TreACFTA::Layout},
    NamedLayout{"ACFTB", &TreACFTB::Layout},   NamedLayout{"AIMIDA", &TreAIMIDA::Layout},
    NamedLayout{"AIMIDB", &TreAIMIDB::Layout}, NamedLayout{"ASTORA", &TreASTORA::Layout},
    NamedLayout{"BANDSA", &TreBANDSA::Layout}, NamedLayout{"BANDSB", &TreBANDSB::Layout},
    NamedLayout{"BCKGDA", &TreBCKGDA::Layout}, NamedLayout{"BLOCKA", &TreBLOCKA::Layout},
    NamedLayout{"BNDPLB", &TreBNDPLB::Layout}, NamedLayout{"CLCTNA", &TreCLCTNA::Layout},
    NamedLayout{"CMETAA", &TreCMETAA::Layout}, NamedLayout{"CSCCGA", &TreCSCCGA::Layout},
    NamedLayout{"CSCRNA", &TreCSCRNA::Layout}, NamedLayout{"CSDIDA", &TreCSDIDA::Layout},
    NamedLayout{"CSEPHA", &TreCSEPHA::Layout}, NamedLayout{"CSEXRA", &TreCSEXRA::Layout},
    NamedLayout{"CSPROA", &TreCSPROA::Layout}, NamedLayout{"CSSFAA", &TreCSSFAA::Layout},
    NamedLayout{"ENGRDA", &TreENGRDA::Layout}, NamedLayout{"ESD001", &TreESD001::Layout},
    NamedLayout{"EXOPTA", &TreEXOPTA::Layout}, NamedLayout{"EXPLTA", &TreEXPLTA::Layout},
    NamedLayout{"EXPLTB", &TreEXPLTB::Layout}, NamedLayout{"FACCBB", &TreFACCBB::Layout},
    NamedLayout{"GEOLOB", &TreGEOLOB::Layout}, NamedLayout{"GEOPSB", &TreGEOPSB::Layout},
    NamedLayout{"GRDPSB", &TreGRDPSB::Layout}, NamedLayout{"HISTOA", &TreHISTOA::Layout},
    NamedLayout{"ICHIPA", &TreICHIPA::Layout}, NamedLayout{"ICHIPB", &TreICHIPB::Layout},
    NamedLayout{"IMASDA", &TreIMASDA::Layout}, NamedLayout{"IMCBDA", &TreIMCBDA::Layout},
    NamedLayout{"IMRFCA", &TreIMRFCA::Layout}, NamedLayout{"IOMAPA", &TreIOMAPA::Layout},
    NamedLayout{"J2KLRA", &TreJ2KLRA::Layout}, NamedLayout{"MAPLOB", &TreMAPLOB::Layout},
    NamedLayout{"MENSRA", &TreMENSRA::Layout}, NamedLayout{"MENSRB", &TreMENSRB::Layout},
    NamedLayout{"MITOCA", &TreMITOCA::Layout}, NamedLayout{"MPDSRA", &TreMPDSRA::Layout},
    NamedLayout{"MSDIRA", &TreMSDIRA::Layout}, NamedLayout{"MSTGTA", &TreMSTGTA::Layout},
    NamedLayout{"MTIRPA", &TreMTIRPA::Layout}, NamedLayout{"MTIRPB", &TreMTIRPB::Layout},
    NamedLayout{"NBLOCA", &TreNBLOCA::Layout}, NamedLayout{"OFFSET", &TreOFFSET::Layout},
    NamedLayout{"PATCHA", &TrePATCHA::Layout}, NamedLayout{"PATCHB", &TrePATCHB::Layout},
    NamedLayout{"PIAEQA", &TrePIAEQA::Layout}, NamedLayout{"PIAEVA", &TrePIAEVA::Layout},
    NamedLayout{"PIAIMB", &TrePIAIMB::Layout}, NamedLayout{"PIAIMC", &TrePIAIMC::Layout},
    NamedLayout{"PIAPEA", &TrePIAPEA::Layout}, NamedLayout{"PIAPEB", &TrePIAPEB::Layout},
    NamedLayout{"PIAPRC", &TrePIAPRC::Layout}, NamedLayout{"PIAPRD", &TrePIAPRD::Layout},
    NamedLayout{"PIATGA", &TrePIATGA::Layout}, NamedLayout{"PIATGB", &TrePIATGB::Layout},
    NamedLayout{"PPRSDA", &TrePPRSDA::Layout}, NamedLayout{"PRADAA", &TrePRADAA::Layout},
    NamedLayout{"PRADRA", &TrePRADRA::Layout}, NamedLayout{"PRJPSB", &TrePRJPSB::Layout},
    NamedLayout{"PSUPDA", &TrePSUPDA::Layout}, NamedLayout{"PTPRAA", &TrePTPRAA::Layout},
    NamedLayout{"REGPTB", &TreREGPTB::Layout}, NamedLayout{"REGPTC", &TreREGPTC::Layout},
    NamedLayout{"RGRDRA", &TreRGRDRA::Layout}, NamedLayout{"RPC00B", &TreRPC00B::Layout},
    NamedLayout{"RPFHDR", &TreRPFHDR::Layout}, NamedLayout{"RPFIMG", &TreRPFIMG::Layout},
    NamedLayout{"RSMAPA", &TreRSMAPA::Layout}, NamedLayout{"RSMDCA", &TreRSMDCA::Layout},
    NamedLayout{"RSMECA", &TreRSMECA::Layout}, NamedLayout{"RSMGGA", &TreRSMGGA::Layout},
    NamedLayout{"RSMGIA", &TreRSMGIA::Layout}, NamedLayout{"RSMIDA", &TreRSMIDA::Layout},
    NamedLayout{"RSMPCA", &TreRSMPCA::Layout}, NamedLayout{"RSMPIA", &TreRSMPIA::Layout},
    NamedLayout{"SECTGA", &TreSECTGA::Layout}, NamedLayout{"SENSRA", &TreSENSRA::Layout},
    NamedLayout{"SNSPSB", &TreSNSPSB::Layout}, NamedLayout{"SOURCB", &TreSOURCB::Layout},
    NamedLayout{"STDIDC", &TreSTDIDC::Layout}, NamedLayout{"STREOB", &TreSTREOB::Layout},
    NamedLayout{"USE00A", &TreUSE00A::Layout},
};

inline const Detail::TreLayout& LayoutOf(std::string_view aTag)
{
    const auto it = std::find_if(TRE_LAYOUTS.begin(), TRE_LAYOUTS.end(),
                                 [aTag](const NamedLayout& aNamed) { return aNamed.tag == aTag; });
    return it->layout();
}

}  // namespace ORMO::SensorModel::CSM
