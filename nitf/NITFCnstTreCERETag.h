#pragma once

#include "../foundation/Export.h"

#include <cstdint>

namespace ORMO::SensorModel::CSM {

/// The tags of the tagged record extensions that the system knows, and their codes.
///
/// Holder of constants only, reached as NITFCnst::TreCERETag. `<TAG>` is the text of the CETAG or RETAG field,
/// `TreCode<TAG>` the number by which hosts know the tag. A code never changes. The codes run on from group to group,
/// with two irregularities that are kept: 79 is not in use, and RPC00A stands apart at 1020.
class ORMO_CSM_API NITFCnstTreCERETag
{
public:
    /// Any tag that has no code of its own.
    static constexpr std::int32_t TreCodeUNKNOWN = -1;

    // clang-format off
    // ASDE (Airborne Support Data Extension)
    static constexpr const char* ACFTA  = "ACFTA";  static constexpr std::int32_t TreCodeACFTA  =  1;
    static constexpr const char* ACFTB  = "ACFTB";  static constexpr std::int32_t TreCodeACFTB  =  2;
    static constexpr const char* AIMIDA = "AIMIDA"; static constexpr std::int32_t TreCodeAIMIDA =  3;
    static constexpr const char* AIMIDB = "AIMIDB"; static constexpr std::int32_t TreCodeAIMIDB =  4;
    static constexpr const char* ASTORA = "ASTORA"; static constexpr std::int32_t TreCodeASTORA =  5;
    static constexpr const char* BANDSA = "BANDSA"; static constexpr std::int32_t TreCodeBANDSA =  6;
    static constexpr const char* BANDSB = "BANDSB"; static constexpr std::int32_t TreCodeBANDSB =  7;
    static constexpr const char* BLOCKA = "BLOCKA"; static constexpr std::int32_t TreCodeBLOCKA =  8;
    static constexpr const char* EXOPTA = "EXOPTA"; static constexpr std::int32_t TreCodeEXOPTA =  9;
    static constexpr const char* EXPLTA = "EXPLTA"; static constexpr std::int32_t TreCodeEXPLTA = 10;
    static constexpr const char* EXPLTB = "EXPLTB"; static constexpr std::int32_t TreCodeEXPLTB = 11;
    static constexpr const char* MENSRA = "MENSRA"; static constexpr std::int32_t TreCodeMENSRA = 12;
    static constexpr const char* MENSRB = "MENSRB"; static constexpr std::int32_t TreCodeMENSRB = 13;
    static constexpr const char* MPDSRA = "MPDSRA"; static constexpr std::int32_t TreCodeMPDSRA = 14;
    static constexpr const char* MSTGTA = "MSTGTA"; static constexpr std::int32_t TreCodeMSTGTA = 15;
    static constexpr const char* MTIRPA = "MTIRPA"; static constexpr std::int32_t TreCodeMTIRPA = 16;
    static constexpr const char* MTIRPB = "MTIRPB"; static constexpr std::int32_t TreCodeMTIRPB = 17;
    static constexpr const char* PATCHA = "PATCHA"; static constexpr std::int32_t TreCodePATCHA = 18;
    static constexpr const char* PATCHB = "PATCHB"; static constexpr std::int32_t TreCodePATCHB = 19;
    static constexpr const char* RPC00B = "RPC00B"; static constexpr std::int32_t TreCodeRPC00B = 20;
    static constexpr const char* SECTGA = "SECTGA"; static constexpr std::int32_t TreCodeSECTGA = 21;
    static constexpr const char* SENSRA = "SENSRA"; static constexpr std::int32_t TreCodeSENSRA = 22;
    static constexpr const char* STREOB = "STREOB"; static constexpr std::int32_t TreCodeSTREOB = 23;

    // Commercial SDE (Support Data Extensions for Commercial Imagery Products)
    static constexpr const char* CSCCGA = "CSCCGA"; static constexpr std::int32_t TreCodeCSCCGA = 24;
    static constexpr const char* CSCRNA = "CSCRNA"; static constexpr std::int32_t TreCodeCSCRNA = 25;
    static constexpr const char* CSDIDA = "CSDIDA"; static constexpr std::int32_t TreCodeCSDIDA = 26;
    static constexpr const char* CSEPHA = "CSEPHA"; static constexpr std::int32_t TreCodeCSEPHA = 27;
    static constexpr const char* CSEXRA = "CSEXRA"; static constexpr std::int32_t TreCodeCSEXRA = 28;
    static constexpr const char* CSPROA = "CSPROA"; static constexpr std::int32_t TreCodeCSPROA = 29;
    static constexpr const char* CSSFAA = "CSSFAA"; static constexpr std::int32_t TreCodeCSSFAA = 30;
    static constexpr const char* STDIDC = "STDIDC"; static constexpr std::int32_t TreCodeSTDIDC = 31;
    static constexpr const char* USE00A = "USE00A"; static constexpr std::int32_t TreCodeUSE00A = 32;

    // DPPDB (Digital Point Positioning Database)
    static constexpr const char* IMASDA = "IMASDA"; static constexpr std::int32_t TreCodeIMASDA = 33;
    static constexpr const char* IMCBDA = "IMCBDA"; static constexpr std::int32_t TreCodeIMCBDA = 34;
    static constexpr const char* IMRFCA = "IMRFCA"; static constexpr std::int32_t TreCodeIMRFCA = 35;
    static constexpr const char* MSDIRA = "MSDIRA"; static constexpr std::int32_t TreCodeMSDIRA = 36;
    static constexpr const char* PPRSDA = "PPRSDA"; static constexpr std::int32_t TreCodePPRSDA = 37;
    static constexpr const char* PRADAA = "PRADAA"; static constexpr std::int32_t TreCodePRADAA = 38;
    static constexpr const char* PRADRA = "PRADRA"; static constexpr std::int32_t TreCodePRADRA = 39;
    static constexpr const char* PSUPDA = "PSUPDA"; static constexpr std::int32_t TreCodePSUPDA = 40;
    static constexpr const char* PTPRAA = "PTPRAA"; static constexpr std::int32_t TreCodePTPRAA = 41;
    static constexpr const char* RGRDRA = "RGRDRA"; static constexpr std::int32_t TreCodeRGRDRA = 42;

    // ESD (Exploitation Support Data)
    static constexpr const char* ESD001 = "ESD001"; static constexpr std::int32_t TreCodeESD001 = 43;

    // GeoSDE (Geospatial Support Data Extension)
    static constexpr const char* ACCHZB = "ACCHZB"; static constexpr std::int32_t TreCodeACCHZB = 44;
    static constexpr const char* ACCPOB = "ACCPOB"; static constexpr std::int32_t TreCodeACCPOB = 45;
    static constexpr const char* ACCVTB = "ACCVTB"; static constexpr std::int32_t TreCodeACCVTB = 46;
    static constexpr const char* BNDPLB = "BNDPLB"; static constexpr std::int32_t TreCodeBNDPLB = 47;
    static constexpr const char* FACCBB = "FACCBB"; static constexpr std::int32_t TreCodeFACCBB = 48;
    static constexpr const char* GEOLOB = "GEOLOB"; static constexpr std::int32_t TreCodeGEOLOB = 49;
    static constexpr const char* GEOPSB = "GEOPSB"; static constexpr std::int32_t TreCodeGEOPSB = 50;
    static constexpr const char* GRDPSB = "GRDPSB"; static constexpr std::int32_t TreCodeGRDPSB = 51;
    static constexpr const char* MAPLOB = "MAPLOB"; static constexpr std::int32_t TreCodeMAPLOB = 52;
    static constexpr const char* PRJPSB = "PRJPSB"; static constexpr std::int32_t TreCodePRJPSB = 53;
    static constexpr const char* REGPTB = "REGPTB"; static constexpr std::int32_t TreCodeREGPTB = 54;
    static constexpr const char* REGPTC = "REGPTC"; static constexpr std::int32_t TreCodeREGPTC = 55;
    static constexpr const char* SNSPSB = "SNSPSB"; static constexpr std::int32_t TreCodeSNSPSB = 56;
    static constexpr const char* SOURCB = "SOURCB"; static constexpr std::int32_t TreCodeSOURCB = 57;

    // MISC (miscellaneous)
    static constexpr const char* BCKGDA = "BCKGDA"; static constexpr std::int32_t TreCodeBCKGDA = 58;
    static constexpr const char* CMETAA = "CMETAA"; static constexpr std::int32_t TreCodeCMETAA = 59;
    static constexpr const char* ENGRDA = "ENGRDA"; static constexpr std::int32_t TreCodeENGRDA = 60;
    static constexpr const char* HISTOA = "HISTOA"; static constexpr std::int32_t TreCodeHISTOA = 61;
    static constexpr const char* ICHIPA = "ICHIPA"; static constexpr std::int32_t TreCodeICHIPA = 62;
    static constexpr const char* ICHIPB = "ICHIPB"; static constexpr std::int32_t TreCodeICHIPB = 63;
    static constexpr const char* IOMAPA = "IOMAPA"; static constexpr std::int32_t TreCodeIOMAPA = 64;
    static constexpr const char* J2KLRA = "J2KLRA"; static constexpr std::int32_t TreCodeJ2KLRA = 65;
    static constexpr const char* MITOCA = "MITOCA"; static constexpr std::int32_t TreCodeMITOCA = 66;
    static constexpr const char* NBLOCA = "NBLOCA"; static constexpr std::int32_t TreCodeNBLOCA = 67;
    static constexpr const char* OFFSET = "OFFSET"; static constexpr std::int32_t TreCodeOFFSET = 68;

    // PIAE (Profile for Imagery Archives Extensions)
    static constexpr const char* PIAEQA = "PIAEQA"; static constexpr std::int32_t TreCodePIAEQA = 69;
    static constexpr const char* PIAEVA = "PIAEVA"; static constexpr std::int32_t TreCodePIAEVA = 70;
    static constexpr const char* PIAIMB = "PIAIMB"; static constexpr std::int32_t TreCodePIAIMB = 71;
    static constexpr const char* PIAIMC = "PIAIMC"; static constexpr std::int32_t TreCodePIAIMC = 72;
    static constexpr const char* PIAPEA = "PIAPEA"; static constexpr std::int32_t TreCodePIAPEA = 73;
    static constexpr const char* PIAPEB = "PIAPEB"; static constexpr std::int32_t TreCodePIAPEB = 74;
    static constexpr const char* PIAPRC = "PIAPRC"; static constexpr std::int32_t TreCodePIAPRC = 75;
    static constexpr const char* PIAPRD = "PIAPRD"; static constexpr std::int32_t TreCodePIAPRD = 76;
    static constexpr const char* PIATGA = "PIATGA"; static constexpr std::int32_t TreCodePIATGA = 77;
    static constexpr const char* PIATGB = "PIATGB"; static constexpr std::int32_t TreCodePIATGB = 78;

    // ResearchSDE (Research Tagged Record Extensions)
    static constexpr const char* CLCTNA = "CLCTNA"; static constexpr std::int32_t TreCodeCLCTNA = 80;
    static constexpr const char* CLCTNB = "CLCTNB"; static constexpr std::int32_t TreCodeCLCTNB = 81;
    static constexpr const char* IMGDTA = "IMGDTA"; static constexpr std::int32_t TreCodeIMGDTA = 82;
    static constexpr const char* OBJCTA = "OBJCTA"; static constexpr std::int32_t TreCodeOBJCTA = 83;
    static constexpr const char* PLTFMA = "PLTFMA"; static constexpr std::int32_t TreCodePLTFMA = 84;
    static constexpr const char* SNSRA  = "SNSRA";  static constexpr std::int32_t TreCodeSNSRA  = 85;
    static constexpr const char* TRGTA  = "TRGTA";  static constexpr std::int32_t TreCodeTRGTA  = 86;

    // RPF (Raster Product Format)
    static constexpr const char* RPFDES = "RPFDES"; static constexpr std::int32_t TreCodeRPFDES = 87;
    static constexpr const char* RPFHDR = "RPFHDR"; static constexpr std::int32_t TreCodeRPFHDR = 88;
    static constexpr const char* RPFIMG = "RPFIMG"; static constexpr std::int32_t TreCodeRPFIMG = 89;

    // RSM (Replacement Sensor Model)
    static constexpr const char* RSMAPA = "RSMAPA"; static constexpr std::int32_t TreCodeRSMAPA = 90;
    static constexpr const char* RSMDCA = "RSMDCA"; static constexpr std::int32_t TreCodeRSMDCA = 91;
    static constexpr const char* RSMECA = "RSMECA"; static constexpr std::int32_t TreCodeRSMECA = 92;
    static constexpr const char* RSMGGA = "RSMGGA"; static constexpr std::int32_t TreCodeRSMGGA = 93;
    static constexpr const char* RSMGIA = "RSMGIA"; static constexpr std::int32_t TreCodeRSMGIA = 94;
    static constexpr const char* RSMIDA = "RSMIDA"; static constexpr std::int32_t TreCodeRSMIDA = 95;
    static constexpr const char* RSMPCA = "RSMPCA"; static constexpr std::int32_t TreCodeRSMPCA = 96;
    static constexpr const char* RSMPIA = "RSMPIA"; static constexpr std::int32_t TreCodeRSMPIA = 97;

    // Belongs to no group: it is read through RPC00B.
    static constexpr const char* RPC00A = "RPC00A"; static constexpr std::int32_t TreCodeRPC00A = 1020;
    // clang-format on

private:
    explicit NITFCnstTreCERETag() = delete;
};

}  // namespace ORMO::SensorModel::CSM
