#pragma once

#include "../../foundation/CSMCnst.h"
#include "../../foundation/Export.h"
#include "../TRE.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM {

namespace Detail {
struct TreLayout;
class TreMaker;
}  // namespace Detail

// One class per tag. They differ only in the table behind Layout(), which stands in tre/tags/Tre<TAG>.cpp, so one
// pattern declares them all. Objects are made by the TRE factory only.
#define ORMO_TYPED_TRE(aClass)                                                                               \
    /** The typed form of one tagged record extension; see TRE for all queries. */                           \
    class ORMO_CSM_API aClass : public TRE                                                                   \
    {                                                                                                        \
    public:                                                                                                  \
        using TRE::operator=;                                                                                \
        /** The table of this tag. */                                                                        \
        static const Detail::TreLayout& Layout();                                                            \
                                                                                                             \
    private:                                                                                                 \
        friend class Detail::TreMaker;                                                                       \
        aClass(const char* aData, std::size_t aLength, TRE::Type aType, Util::CSMCnst::ByteOrder aByteOrder) \
            : TRE(Layout(), aData, aLength, aType, aByteOrder)                                               \
        {                                                                                                    \
        }                                                                                                    \
        aClass(const aClass&) = default;                                                                     \
    }

ORMO_TYPED_TRE(TreACCHZB);
ORMO_TYPED_TRE(TreACCPOB);
ORMO_TYPED_TRE(TreACCVTB);
ORMO_TYPED_TRE(TreACFTA);
ORMO_TYPED_TRE(TreACFTB);
ORMO_TYPED_TRE(TreAIMIDA);
ORMO_TYPED_TRE(TreAIMIDB);
ORMO_TYPED_TRE(TreASTORA);
ORMO_TYPED_TRE(TreBANDSA);
ORMO_TYPED_TRE(TreBANDSB);
ORMO_TYPED_TRE(TreBCKGDA);
ORMO_TYPED_TRE(TreBLOCKA);
ORMO_TYPED_TRE(TreBNDPLB);
ORMO_TYPED_TRE(TreCLCTNA);
ORMO_TYPED_TRE(TreCMETAA);
ORMO_TYPED_TRE(TreCSCCGA);
ORMO_TYPED_TRE(TreCSCRNA);
ORMO_TYPED_TRE(TreCSDIDA);
ORMO_TYPED_TRE(TreCSEPHA);
ORMO_TYPED_TRE(TreCSEXRA);
ORMO_TYPED_TRE(TreCSPROA);
ORMO_TYPED_TRE(TreCSSFAA);
ORMO_TYPED_TRE(TreENGRDA);
ORMO_TYPED_TRE(TreESD001);
ORMO_TYPED_TRE(TreEXOPTA);
ORMO_TYPED_TRE(TreEXPLTA);
ORMO_TYPED_TRE(TreEXPLTB);
ORMO_TYPED_TRE(TreFACCBB);
ORMO_TYPED_TRE(TreGEOLOB);
ORMO_TYPED_TRE(TreGEOPSB);
ORMO_TYPED_TRE(TreGRDPSB);
ORMO_TYPED_TRE(TreHISTOA);
ORMO_TYPED_TRE(TreICHIPA);
ORMO_TYPED_TRE(TreICHIPB);
ORMO_TYPED_TRE(TreIMASDA);
ORMO_TYPED_TRE(TreIMCBDA);
ORMO_TYPED_TRE(TreIMRFCA);
ORMO_TYPED_TRE(TreIOMAPA);
ORMO_TYPED_TRE(TreJ2KLRA);
ORMO_TYPED_TRE(TreMAPLOB);
ORMO_TYPED_TRE(TreMENSRA);
ORMO_TYPED_TRE(TreMENSRB);
ORMO_TYPED_TRE(TreMITOCA);
ORMO_TYPED_TRE(TreMPDSRA);
ORMO_TYPED_TRE(TreMSDIRA);
ORMO_TYPED_TRE(TreMSTGTA);
ORMO_TYPED_TRE(TreMTIRPA);
ORMO_TYPED_TRE(TreMTIRPB);
ORMO_TYPED_TRE(TreNBLOCA);
ORMO_TYPED_TRE(TreOFFSET);
ORMO_TYPED_TRE(TrePATCHA);
ORMO_TYPED_TRE(TrePATCHB);
ORMO_TYPED_TRE(TrePIAEQA);
ORMO_TYPED_TRE(TrePIAEVA);
ORMO_TYPED_TRE(TrePIAIMB);
ORMO_TYPED_TRE(TrePIAIMC);
ORMO_TYPED_TRE(TrePIAPEA);
ORMO_TYPED_TRE(TrePIAPEB);
ORMO_TYPED_TRE(TrePIAPRC);
ORMO_TYPED_TRE(TrePIAPRD);
ORMO_TYPED_TRE(TrePIATGA);
ORMO_TYPED_TRE(TrePIATGB);
ORMO_TYPED_TRE(TrePPRSDA);
ORMO_TYPED_TRE(TrePRADAA);
ORMO_TYPED_TRE(TrePRADRA);
ORMO_TYPED_TRE(TrePRJPSB);
ORMO_TYPED_TRE(TrePSUPDA);
ORMO_TYPED_TRE(TrePTPRAA);
ORMO_TYPED_TRE(TreREGPTB);
ORMO_TYPED_TRE(TreREGPTC);
ORMO_TYPED_TRE(TreRGRDRA);
ORMO_TYPED_TRE(TreRPFHDR);
ORMO_TYPED_TRE(TreRPFIMG);
ORMO_TYPED_TRE(TreRSMAPA);
ORMO_TYPED_TRE(TreRSMDCA);
ORMO_TYPED_TRE(TreRSMECA);
ORMO_TYPED_TRE(TreRSMGGA);
ORMO_TYPED_TRE(TreRSMGIA);
ORMO_TYPED_TRE(TreRSMIDA);
ORMO_TYPED_TRE(TreRSMPCA);
ORMO_TYPED_TRE(TreRSMPIA);
ORMO_TYPED_TRE(TreSECTGA);
ORMO_TYPED_TRE(TreSENSRA);
ORMO_TYPED_TRE(TreSNSPSB);
ORMO_TYPED_TRE(TreSOURCB);
ORMO_TYPED_TRE(TreSTDIDC);
ORMO_TYPED_TRE(TreSTREOB);
ORMO_TYPED_TRE(TreUSE00A);

#undef ORMO_TYPED_TRE

}  // namespace ORMO::SensorModel::CSM
