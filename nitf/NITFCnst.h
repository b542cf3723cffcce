#pragma once

#include "../foundation/Export.h"
#include "NITFCnstLimits.h"
#include "NITFCnstXml.h"

#include <string>

namespace ORMO::SensorModel::CSM {

class NITFCnstTreCERETag;

/// Constants of the NITF and NSIF formats as the system knows them: codes, texts, limits and switches.
///
/// Holder of constants and static functions; no object of it exists. Texts are NUL-terminated, live as long as the
/// program and are never freed. A header of constants only: it may be included from everywhere. The limits and the
/// XML names have headers of their own, which this one brings.
class ORMO_CSM_API NITFCnst : public NITFCnstXml
{
public:
    using Limits = NITFCnstLimits;
    /// The TRE tags and their codes; whoever names one includes tre/NITFCnstTreCERETag.h.
    using TreCERETag = NITFCnstTreCERETag;

    /// Scope of the constants that only the segments of NITF 2.0 files have.
    class NITF20SegmentType
    {
    };

    /// Scope of the constants that only the segments of NITF 2.1 and NSIF 1.0 files have.
    class NITF21SegmentType
    {
    };

    // The enumerations have a fixed type, so that a number from a file or a host may be cast to one without harm; the
    // functions below answer "unknown" for a value that is none of the enumerators.

    /// Format and version of a file.
    enum Version : int
    {
        NITF_VERSION_NUMBER_UNKNOWN = -1,
        NITF_VERSION_NUMBER_UNINITIALIZED = 0,
        NSIF_VERSION_NUMBER_10 = 10,
        NITF_VERSION_NUMBER_11 = 11,
        NITF_VERSION_NUMBER_20 = 20,
        NITF_VERSION_NUMBER_21 = 21
    };

    /// How a field of a header is read, and whether its absence is an error. SPACE_OK: blanks are a valid value.
    enum FieldType : int
    {
        FIELD_TYPE_UNKNOWN = -1,
        FIELD_TYPE_CONDITIONAL = 0,
        FIELD_TYPE_CONDITIONAL_SPACE_OK = 1,
        FIELD_TYPE_OPTIONAL = 2,
        FIELD_TYPE_REQUIRED = 3,
        FIELD_TYPE_REQUIRED_SPACE_OK = 4
    };

    /// Security classification, named by its letter. The codes follow the alphabet; the ranks below tell which is
    /// higher.
    enum SecurityClassification : int
    {
        SECURITY_CLASSIFICATION_UNKNOWN = -1,
        SECURITY_CLASSIFICATION_C = 0,
        SECURITY_CLASSIFICATION_R = 1,
        SECURITY_CLASSIFICATION_S = 2,
        SECURITY_CLASSIFICATION_T = 3,
        SECURITY_CLASSIFICATION_U = 4
    };

    /// Image compression, named by the value of the field IC.
    enum IC : int
    {
        IC_UNKNOWN = -1,
        IC_C0 = 0,
        IC_C1 = 1,
        IC_C2 = 2,
        IC_C3 = 3,
        IC_C4 = 4,
        IC_C5 = 5,
        IC_C6 = 6,
        IC_C7 = 7,
        IC_C8 = 8,
        IC_I1 = 9,
        IC_M0 = 10,
        IC_M1 = 11,
        IC_M2 = 12,
        IC_M3 = 13,
        IC_M4 = 14,
        IC_M5 = 15,
        IC_M6 = 16,
        IC_M7 = 17,
        IC_M8 = 18,
        IC_NC = 19,
        IC_NM = 20
    };

    /// Kind of a segment; the file header counts as one.
    enum DataSegmentType : int
    {
        DATA_SEGMENT_TYPE_UNKNOWN = -1,
        DATA_SEGMENT_TYPE_DATA_EXTENSION = 0,
        DATA_SEGMENT_TYPE_FILE_HEADER = 1,
        DATA_SEGMENT_TYPE_GRAPHIC = 2,
        DATA_SEGMENT_TYPE_IMAGE = 3,
        DATA_SEGMENT_TYPE_LABEL = 4,
        DATA_SEGMENT_TYPE_RESERVED = 5,
        DATA_SEGMENT_TYPE_RESERVED_EXTENSION = 6,
        DATA_SEGMENT_TYPE_SYMBOL = 7,
        DATA_SEGMENT_TYPE_TEXT = 8
    };

    /// Pixel value type, named by the value of the field PVTYPE, which itself never holds U.
    enum PixelType : int
    {
        PIXEL_TYPE_UNKNOWN = -1,
        PIXEL_TYPE_B = 0,
        PIXEL_TYPE_C = 1,
        PIXEL_TYPE_INT = 2,
        PIXEL_TYPE_R = 3,
        PIXEL_TYPE_SI = 4,
        PIXEL_TYPE_U = 5
    };

    /// What a raw metadata object describes: a header, with the code of its DataSegmentType, or a TRE.
    enum NITFMetadataType : int
    {
        NITF_METADATA_TYPE_UNKNOWN = DATA_SEGMENT_TYPE_UNKNOWN,
        NITF_METADATA_TYPE_DATA_EXTENSION = DATA_SEGMENT_TYPE_DATA_EXTENSION,
        NITF_METADATA_TYPE_FILE_HEADER = DATA_SEGMENT_TYPE_FILE_HEADER,
        NITF_METADATA_TYPE_GRAPHIC = DATA_SEGMENT_TYPE_GRAPHIC,
        NITF_METADATA_TYPE_IMAGE = DATA_SEGMENT_TYPE_IMAGE,
        NITF_METADATA_TYPE_LABEL = DATA_SEGMENT_TYPE_LABEL,
        NITF_METADATA_TYPE_RESERVED = DATA_SEGMENT_TYPE_RESERVED,
        NITF_METADATA_TYPE_RESERVED_EXTENSION = DATA_SEGMENT_TYPE_RESERVED_EXTENSION,
        NITF_METADATA_TYPE_SYMBOL = DATA_SEGMENT_TYPE_SYMBOL,
        NITF_METADATA_TYPE_TEXT = DATA_SEGMENT_TYPE_TEXT,
        NITF_METADATA_TYPE_TRE = 9
    };

    /// Code of the field IC's value: exactly two characters, no blanks around them. IC_UNKNOWN for anything else.
    static IC GetFieldICCode(const char* aIC);

    /// Compact letter of a field type: "C", "O", "R", "<R>", and "?" for the rest. FIELD_TYPE_CONDITIONAL_SPACE_OK is
    /// among the rest on purpose; GetFieldTypeForDisplay tells it apart.
    static const char* GetFieldType(FieldType aType);

    /// Letter of a field type as documents show it: "C", "(C)", "O", "R", "(R)", and "?" for an unknown type.
    static const char* GetFieldTypeForDisplay(FieldType aType);

    /// Version named by the five characters that follow "NITF" or "NSIF" in the file header, such as "02.10". White
    /// space around them does not count. "01.00" is NSIF 1.0. NITF_VERSION_NUMBER_UNKNOWN for anything else.
    static Version GetNITFFileVersionCode(const char* aVersion);

    /// The nine characters with which a file of this version begins, or STR_NITF_UNKNOWN.
    static const char* GetNITFVersionString(Version aVersion);

    /// Code of a classification letter; white space around it does not count. SECURITY_CLASSIFICATION_UNKNOWN for
    /// anything else, a word such as "SECRET" included.
    static SecurityClassification GetSecurityClassificationCode(const char* aClassification);

    /// Rank (RANK_SC_...) of a classification given as letter or as word in capitals; the higher the rank the better
    /// protected. White space around it does not count. RANK_SC_UNKNOWN for anything else.
    static int GetSecurityClassificationRank(const char* aClassification);

    /// Precision at which iterations stop when a caller names none.
    static double GetDefaultIterationPrecision() noexcept;

    // Versions: the part after the format name, and the whole.
    static constexpr const char* NITF_VERSION_110 = "01.10";
    static constexpr const char* NITF_VERSION_200 = "02.00";
    static constexpr const char* NITF_VERSION_210 = "02.10";
    static constexpr const char* NSIF_VERSION_100 = "01.00";
    static constexpr const char* STR_NITF_0110 = "NITF01.10";
    static constexpr const char* STR_NITF_0200 = "NITF02.00";
    static constexpr const char* STR_NITF_0210 = "NITF02.10";
    static constexpr const char* STR_NSIF_0100 = "NSIF01.00";
    static constexpr const char* STR_NITF_UNKNOWN = "NITF UNKNOWN Version";
    static constexpr const char* NITF_HEADER_ID_NITF11 = STR_NITF_0110;
    static constexpr const char* NITF_HEADER_ID_NITF20 = STR_NITF_0200;
    static constexpr const char* NITF_HEADER_ID_NITF21 = STR_NITF_0210;
    static constexpr const char* NITF_HEADER_ID_NSIF10 = STR_NSIF_0100;
    static constexpr const char* NSIF_FILE_FORMAT = "NSIF";

    // Files.
    static constexpr const char* NITF_DEFAULT_FILE_EXTENSION = "ntf";
    /// Name of the table of contents of a raster product format directory.
    static constexpr const char* RPF_ATOC = "A.TOC";
    static constexpr const char* SRS_WKT_STR_WGS84 = "WGS84";
    static constexpr const char* STR_TALVIK_NITF_DRIVER_UNIQUE_ID = "Talvik NITF System";

    // Field types. The texts in angle brackets are the compact form, those in round brackets the form in documents.
    static constexpr const char* NITF_FIELD_TYPE_CONDITIONAL = "C";
    static constexpr const char* NITF_FIELD_TYPE_CONDITIONAL_SPACE_OK = "<C>";
    static constexpr const char* NITF_FIELD_TYPE_CONDITIONAL_SPACE_OK_XML_OUTPUT = "(C)";
    static constexpr const char* NITF_FIELD_TYPE_OPTIONAL = "O";
    static constexpr const char* NITF_FIELD_TYPE_REQUIRED = "R";
    static constexpr const char* NITF_FIELD_TYPE_REQUIRED_SPACE_OK = "<R>";
    static constexpr const char* NITF_FIELD_TYPE_REQUIRED_SPACE_OK_XML_OUTPUT = "(R)";
    static constexpr const char* NITF_FIELD_TYPE_UNKNOWN = "?";

    // Field tags that are used by name: file header.
    static constexpr const char* NITF_FIELD_CLEVEL = "CLEVEL";
    static constexpr const char* NITF_FIELD_FDT = "FDT";
    static constexpr const char* NITF_FIELD_FHDR = "FHDR";
    static constexpr const char* NITF_FIELD_FL = "FL";
    static constexpr const char* NITF_FIELD_FSCLAS = "FSCLAS";
    static constexpr const char* NITF_FIELD_FTITLE = "FTITLE";
    static constexpr const char* NITF_FIELD_ONAME = "ONAME";
    static constexpr const char* NITF_FIELD_OPHONE = "OPHONE";
    static constexpr const char* NITF_FIELD_OSTAID = "OSTAID";
    static constexpr const char* NITF_FIELD_UDHOFL = "UDHOFL";
    static constexpr const char* NITF_FIELD_XHD = "XHD";
    static constexpr const char* NITF21_FIELD_XHDLOFL = "XHDLOFL";

    // Field tags: image subheader.
    static constexpr const char* NITF_IS_FIELD_ABPP = "ABPP";
    static constexpr const char* NITF_IS_FIELD_IALVL = "IALVL";
    static constexpr const char* NITF_IS_FIELD_IC = "IC";
    static constexpr const char* NITF_IS_FIELD_ICAT = "ICAT";
    static constexpr const char* NITF_IS_FIELD_ICORDS = "ICORDS";
    static constexpr const char* NITF_IS_FIELD_IDATIM = "IDATIM";
    static constexpr const char* NITF_IS_FIELD_IDLVL = "IDLVL";
    static constexpr const char* NITF_IS_FIELD_IGEOLO = "IGEOLO";
    static constexpr const char* NITF_IS_FIELD_ILOC = "ILOC";
    static constexpr const char* NITF_IS_FIELD_IM = "IM";
    static constexpr const char* NITF_IS_FIELD_IMAG = "IMAG";
    static constexpr const char* NITF_IS_FIELD_IREP = "IREP";
    static constexpr const char* NITF_IS_FIELD_IREPBAND = "IREPBAND";
    static constexpr const char* NITF_IS_FIELD_ISCLAS = "ISCLAS";
    static constexpr const char* NITF_IS_FIELD_ISORCE = "ISORCE";
    static constexpr const char* NITF_IS_FIELD_ISUBCAT = "ISUBCAT";
    static constexpr const char* NITF_IS_FIELD_IXSHD = "IXSHD";
    static constexpr const char* NITF_IS_FIELD_IXSHDL = "IXSHDL";
    static constexpr const char* NITF_IS_FIELD_IXSOFL = "IXSOFL";
    static constexpr const char* NITF_IS_FIELD_LUTD = "LUTD";
    static constexpr const char* NITF_IS_FIELD_NBANDS = "NBANDS";
    static constexpr const char* NITF_IS_FIELD_NBPC = "NBPC";
    static constexpr const char* NITF_IS_FIELD_NBPP = "NBPP";
    static constexpr const char* NITF_IS_FIELD_NBPR = "NBPR";
    static constexpr const char* NITF_IS_FIELD_NCOLS = "NCOLS";
    static constexpr const char* NITF_IS_FIELD_NELUT = "NELUT";
    static constexpr const char* NITF_IS_FIELD_NLUTS = "NLUTS";
    static constexpr const char* NITF_IS_FIELD_NROWS = "NROWS";
    static constexpr const char* NITF_IS_FIELD_PJUST = "PJUST";
    static constexpr const char* NITF_IS_FIELD_PVTYPE = "PVTYPE";
    static constexpr const char* NITF_IS_FIELD_TGTID = "TGTID";
    static constexpr const char* NITF_IS_FIELD_UDID = "UDID";
    static constexpr const char* NITF_IS_FIELD_UDIDL = "UDIDL";
    static constexpr const char* NITF_IS_FIELD_UDOFL = "UDOFL";
    static constexpr const char* NITF20_IS_FIELD_IID = "IID";
    static constexpr const char* NITF20_IS_FIELD_ITITLE = "ITITLE";
    static constexpr const char* NITF21_IS_FIELD_IID1 = "IID1";
    static constexpr const char* NITF21_IS_FIELD_IID2 = "IID2";
    static constexpr const char* NITF21_IS_FIELD_XBANDS = "XBANDS";

    // Field tags: text, data extension and reserved extension subheaders.
    static constexpr const char* NITF_TS_FIELD_TE = "TE";
    static constexpr const char* NITF_TS_FIELD_TSCLAS = "TSCLAS";
    static constexpr const char* NITF_TS_FIELD_TXSOFL = "TXSOFL";
    static constexpr const char* NITF21_TS_FIELD_TXTALVL = "TXTALVL";
    static constexpr const char* NITF_DES_FIELD_DE = "DE";
    static constexpr const char* NITF_DES_FIELD_DESDATA = "DESDATA";
    static constexpr const char* NITF_DES_FIELD_DESSHF = "DESSHF";
    static constexpr const char* NITF_DES_FIELD_DESVER = "DESVER";
    static constexpr const char* NITF_RES_FIELD_RE = "RE";
    static constexpr const char* NITF_RES_FIELD_RESDATA = "RESDATA";
    static constexpr const char* NITF_RES_FIELD_RESID = "RESID";
    static constexpr const char* NITF_RES_FIELD_RESSHF = "RESSHF";
    static constexpr const char* NITF_RES_FIELD_RESVER = "RESVER";

    // Security classification: letters, words, ranks.
    static constexpr const char* NITF_SC_CONFIDENTIAL = "C";
    static constexpr const char* NITF_SC_RESTRICTED = "R";
    static constexpr const char* NITF_SC_SECRET = "S";
    static constexpr const char* NITF_SC_TOP_SECRET = "T";
    static constexpr const char* NITF_SC_UNCLASSIFIED = "U";
    static constexpr const char* STR_SC_CONFIDENTIAL = "CONFIDENTIAL";
    static constexpr const char* STR_SC_RESTRICTED = "RESTRICTED";
    static constexpr const char* STR_SC_SECRET = "SECRET";
    static constexpr const char* STR_SC_TOP_SECRET = "TOP SECRET";
    static constexpr const char* STR_SC_UNCLASSIFIED = "UNCLASSIFIED";
    static constexpr const char* STR_SC_UNKNOWN = "UNKNOWN";
    static constexpr int RANK_SC_CONFIDENTIAL = 100;
    static constexpr int RANK_SC_RESTRICTED = 200;
    static constexpr int RANK_SC_SECRET = 20000;
    static constexpr int RANK_SC_TOP_SECRET = 40000;
    static constexpr int RANK_SC_UNCLASSIFIED = 0;
    static constexpr int RANK_SC_UNKNOWN = -1;

    // Field values: any header.
    static constexpr const char* NITF_FIELD_VALUE_FALSE = "F";
    static constexpr const char* NITF_FIELD_VALUE_TRUE = "T";
    static constexpr const char* STR_VAL_CC = "CC";
    // Lengths of which every digit is 9, or the largest length below it.
    static constexpr const char* STR_VAL_999998 = "999998";
    static constexpr const char* STR_VAL_9999998 = "9999998";
    static constexpr const char* STR_VAL_999999999999 = "999999999999";

    // Field values: DESID.
    static constexpr const char* DES_DESID_STREAMING_FILE_HEADER = "STREAMING_FILE_HEADER";
    static constexpr const char* DES_DESID_TRE_OVERFLOW = "TRE_OVERFLOW";

    // Field values: image compression (IC), mode (IMODE), pixel value type (PVTYPE).
    static constexpr const char* STR_VAL_IC_C0 = "C0";
    static constexpr const char* STR_VAL_IC_C1 = "C1";
    static constexpr const char* STR_VAL_IC_C2 = "C2";
    static constexpr const char* STR_VAL_IC_C3 = "C3";
    static constexpr const char* STR_VAL_IC_C4 = "C4";
    static constexpr const char* STR_VAL_IC_C5 = "C5";
    static constexpr const char* STR_VAL_IC_C6 = "C6";
    static constexpr const char* STR_VAL_IC_C7 = "C7";
    static constexpr const char* STR_VAL_IC_C8 = "C8";
    static constexpr const char* STR_VAL_IC_I1 = "I1";
    static constexpr const char* STR_VAL_IC_M0 = "M0";
    static constexpr const char* STR_VAL_IC_M1 = "M1";
    static constexpr const char* STR_VAL_IC_M2 = "M2";
    static constexpr const char* STR_VAL_IC_M3 = "M3";
    static constexpr const char* STR_VAL_IC_M4 = "M4";
    static constexpr const char* STR_VAL_IC_M5 = "M5";
    static constexpr const char* STR_VAL_IC_M6 = "M6";
    static constexpr const char* STR_VAL_IC_M7 = "M7";
    static constexpr const char* STR_VAL_IC_M8 = "M8";
    static constexpr const char* STR_VAL_IC_NC = "NC";
    static constexpr const char* STR_VAL_IC_NM = "NM";
    static constexpr const char* STR_VAL_IMG_MODE_B = "B";
    static constexpr const char* STR_VAL_IMG_MODE_P = "P";
    static constexpr const char* STR_VAL_IMG_MODE_R = "R";
    static constexpr const char* STR_VAL_IMG_MODE_S = "S";
    static constexpr const char* STR_VAL_PIXEL_TYPE_B = "B";
    static constexpr const char* STR_VAL_PIXEL_TYPE_C = "C";
    static constexpr const char* STR_VAL_PIXEL_TYPE_INT = "INT";
    static constexpr const char* STR_VAL_PIXEL_TYPE_R = "R";
    static constexpr const char* STR_VAL_PIXEL_TYPE_SI = "SI";
    static constexpr const char* STR_VAL_PIXEL_TYPE_U = "U";

    // Field values: band representation (IREPBAND) and subcategory (ISUBCAT).
    static constexpr const char* STR_VAL_IREP_BAND_B = "B";
    static constexpr const char* STR_VAL_IREP_BAND_CB = "Cb";
    static constexpr const char* STR_VAL_IREP_BAND_CR = "Cr";
    static constexpr const char* STR_VAL_IREP_BAND_G = "G";
    static constexpr const char* STR_VAL_IREP_BAND_LU = "LU";
    static constexpr const char* STR_VAL_IREP_BAND_M = "M";
    static constexpr const char* STR_VAL_IREP_BAND_R = "R";
    static constexpr const char* STR_VAL_IREP_BAND_Y = "Y";
    static constexpr const char* STR_VAL_ISUBCAT_CGX = "CGX";
    static constexpr const char* STR_VAL_ISUBCAT_CGY = "CGY";
    static constexpr const char* STR_VAL_ISUBCAT_DIRECT = "DIRECT";
    static constexpr const char* STR_VAL_ISUBCAT_FL = "FL";
    static constexpr const char* STR_VAL_ISUBCAT_GGX = "GGX";
    static constexpr const char* STR_VAL_ISUBCAT_GGY = "GGY";
    static constexpr const char* STR_VAL_ISUBCAT_I = "I";
    static constexpr const char* STR_VAL_ISUBCAT_IR = "IR";
    static constexpr const char* STR_VAL_ISUBCAT_M = "M";
    static constexpr const char* STR_VAL_ISUBCAT_P = "P";
    static constexpr const char* STR_VAL_ISUBCAT_Q = "Q";
    static constexpr const char* STR_VAL_ISUBCAT_SPEED = "SPEED";
    static constexpr const char* STR_VAL_ISUBCAT_TI = "TI";

    // Field values: image representation (IREP).
    static constexpr const char* STR_VAL_IREP_MONO = "MONO";
    static constexpr const char* STR_VAL_IREP_MULTI = "MULTI";
    static constexpr const char* STR_VAL_IREP_NODISPLY = "NODISPLY";
    static constexpr const char* STR_VAL_IREP_NVECTOR = "NVECTOR";
    static constexpr const char* STR_VAL_IREP_POLAR = "POLAR";
    static constexpr const char* STR_VAL_IREP_RGB = "RGB";
    static constexpr const char* STR_VAL_IREP_RGB_LUT = "RGB/LUT";
    static constexpr const char* STR_VAL_IREP_VPH = "VPH";
    static constexpr const char* STR_VAL_IREP_YCBCR601 = "YCbCr601";

    // Field values: image category (ICAT).
    static constexpr const char* STR_VAL_ICAT_BARO = "BARO";
    static constexpr const char* STR_VAL_ICAT_BP = "BP";
    static constexpr const char* STR_VAL_ICAT_CAT = "CAT";
    static constexpr const char* STR_VAL_ICAT_CLOUD = "CLOUD";
    static constexpr const char* STR_VAL_ICAT_CP = "CP";
    static constexpr const char* STR_VAL_ICAT_CURRENT = "CURRENT";
    static constexpr const char* STR_VAL_ICAT_DEPTH = "DEPTH";
    static constexpr const char* STR_VAL_ICAT_DTEM = "DTEM";
    static constexpr const char* STR_VAL_ICAT_EO = "EO";
    static constexpr const char* STR_VAL_ICAT_FL = "FL";
    static constexpr const char* STR_VAL_ICAT_FP = "FP";
    static constexpr const char* STR_VAL_ICAT_HR = "HR";
    static constexpr const char* STR_VAL_ICAT_HS = "HS";
    static constexpr const char* STR_VAL_ICAT_IR = "IR";
    static constexpr const char* STR_VAL_ICAT_LEG = "LEG";
    static constexpr const char* STR_VAL_ICAT_LOCG = "LOCG";
    static constexpr const char* STR_VAL_ICAT_MAP = "MAP";
    static constexpr const char* STR_VAL_ICAT_MATR = "MATR";
    static constexpr const char* STR_VAL_ICAT_MRI = "MRI";
    static constexpr const char* STR_VAL_ICAT_MS = "MS";
    static constexpr const char* STR_VAL_ICAT_OP = "OP";
    static constexpr const char* STR_VAL_ICAT_PAT = "PAT";
    static constexpr const char* STR_VAL_ICAT_RD = "RD";
    static constexpr const char* STR_VAL_ICAT_SAR = "SAR";
    static constexpr const char* STR_VAL_ICAT_SARIQ = "SARIQ";
    static constexpr const char* STR_VAL_ICAT_SL = "SL";
    static constexpr const char* STR_VAL_ICAT_TI = "TI";
    static constexpr const char* STR_VAL_ICAT_VD = "VD";
    static constexpr const char* STR_VAL_ICAT_VIS = "VIS";
    static constexpr const char* STR_VAL_ICAT_WIND = "WIND";
    static constexpr const char* STR_VAL_ICAT_XRAY = "XRAY";

    // Images: resolution levels, coordinates, and the offset in a data mask of a block that is not in the file.
    static constexpr const char* NITF_IMG_RESOL_R0 = "R0";
    static constexpr const char* NITF_IMG_RESOL_R1 = "R1";
    static constexpr const char* NITF_IMG_RESOL_R2 = "R2";
    static constexpr const char* NITF_IMG_RESOL_R3 = "R3";
    static constexpr const char* NITF_IMG_RESOL_R4 = "R4";
    static constexpr const char* NITF_IMG_RESOL_R5 = "R5";
    static constexpr const char* NITF_IMG_RESOL_R6 = "R6";
    static constexpr const char* NITF_IMG_RESOL_R7 = "R7";
    static constexpr const char* STR_IMAGE_COORD_TYPE_FULL_IMAGE = "Full Image";
    static constexpr const char* STR_IMAGE_COORD_TYPE_IMAGE_CHIP = "Image Chip";
    static constexpr const char* STR_IMG_DATA_BLOCK_NOT_RECORDED = "0xFFFFFFFF";
    /// Bytes of one offset in a data mask.
    static constexpr int NITF_IMG_DATA_MASK_FIELD_SZ = 4;
    /// Largest pixel depth that the library handles, in bits and in bytes; files may declare more.
    static constexpr int CURRENT_LIMIT_IS_FIELD_NBPP = 64;
    static constexpr int CURRENT_LIMIT_IS_FIELD_NBPP_IN_BYTES = CURRENT_LIMIT_IS_FIELD_NBPP / 8;

    // What an image segment brings along to place its pixels.
    static constexpr char ICHIPA_AVAILABLE = 'A';
    static constexpr char ICHIPB_AVAILABLE = 'B';
    static constexpr char RPC00A_AVAILABLE = 'A';
    static constexpr char RPC00B_AVAILABLE = 'B';
    static constexpr char RPC00_NOT_AVAILABLE = 'N';

    // Stand-ins: for a background colour that a file does not give, and for a zero byte in a text.
    static constexpr char DEFAULT_BACKGROUND_VALUE = '~';
    static constexpr char NITF20_DEFAULT_FBKGC_VALUE = '~';
    static constexpr char NITF_BYTE_VAL_0_REPLACEMENT = 'Z';

    /// Whether a TRE without a class of its own is left out instead of kept as raw bytes.
    static constexpr bool CREATE_SPECIFIC_TRE_ONLY = false;
    /// Whether a segment's TREs include those that a TRE_OVERFLOW segment carries for it.
    static constexpr bool INCLUDE_OVERFLOW_TRES = true;
    /// Whether the first three bytes of ONAME in a NITF 2.0 file header are taken as the background colour.
    static constexpr bool MODIFY_NITF_FILE_HEADER_FIELD_FBKGC = true;
    /// Whether the XML of headers leaves out fields that are not editable. Name kept as hosts know it.
    static constexpr bool OUTPUT_EDIABLE_NITF_ATTR = false;
    static constexpr bool OUTPUT_GRAPHIC_METADATA = true;
    /// Whether corners that CSCRNA gives as predicted, not measured, are good enough for an extent.
    static constexpr bool PREDICTED_EXTENT_OK = true;

    static constexpr double ITER_PRECISION = 0.0001;

    // Symbols and labels.
    static constexpr const char* STR_VAL_APEX = "apex";
    static constexpr const char* STR_VAL_BOTTOM_OF_VERTICAL_SHAFT = "bottom of vertical shaft";
    static constexpr const char* STR_VAL_CENTER = "center";
    static constexpr const char* STR_VAL_CENTER_OF_SHAFT = "center of shaft";
    static constexpr const char* STR_VAL_EMPTY = "empty";
    static constexpr const char* STR_VAL_NONE = "none";
    static constexpr const char* STR_VAL_SOLID_COLOR = "solid color";
    /// The number is the value of SNUM; 7 to 9 name no shape.
    static constexpr const char* NITF_OBJ_SYMBOL_TYPE_1_SOLID_LINE = "solid line";
    static constexpr const char* NITF_OBJ_SYMBOL_TYPE_2_DASHED_LINE = "dashed line (type 2)";
    static constexpr const char* NITF_OBJ_SYMBOL_TYPE_3_DASHED_LINE = "dashed line (type 3)";
    static constexpr const char* NITF_OBJ_SYMBOL_TYPE_4_DASHED_LINE = "dashed line (type 4)";
    static constexpr const char* NITF_OBJ_SYMBOL_TYPE_5_DASHED_LINE = "dashed line (type 5)";
    static constexpr const char* NITF_OBJ_SYMBOL_TYPE_6_DASHED_LINE = "dashed line (type 6)";
    static constexpr const char* NITF_OBJ_SYMBOL_TYPE_10_TRIANGLE = "triangle";
    static constexpr const char* NITF_OBJ_SYMBOL_TYPE_11_RECTANGLE = "rectangle";
    static constexpr const char* NITF_OBJ_SYMBOL_TYPE_12_SQUARE = "square";
    static constexpr const char* NITF_OBJ_SYMBOL_TYPE_13_CIRCLE = "circle";
    static constexpr const char* NITF_OBJ_SYMBOL_TYPE_14_ELLIPSE = "ellipse";
    static constexpr const char* NITF_OBJ_SYMBOL_TYPE_15_BRACKET = "bracket";
    static constexpr const char* NITF_OBJ_SYMBOL_TYPE_16_DIAMOND = "diamond";
    static constexpr const char* NITF_OBJ_SYMBOL_TYPE_17_HEXAGON = "hexagon";
    static constexpr const char* NITF_OBJ_SYMBOL_TYPE_18_ARROW = "arrow";

    // Names of the segment kinds: keys of raw metadata and of segment tables, the same as in documents.
    static constexpr const char* KEY_CSM_NITF_METADATA_NITF_FILE_HEADER = XML_ELEMENT_NITF_FILE_HEADER;
    static constexpr const char* KEY_CSM_NITF_METADATA_IMAGE_SEGMENT = XML_ELEMENT_IMAGE_SEGMENT;
    static constexpr const char* KEY_CSM_NITF_METADATA_GRAPHIC_SEGMENT = XML_ELEMENT_GRAPHIC_SEGMENT;
    static constexpr const char* KEY_CSM_NITF_METADATA_SYMBOL_SEGMENT = XML_ELEMENT_SYMBOL_SEGMENT;
    static constexpr const char* KEY_CSM_NITF_METADATA_LABEL_SEGMENT = XML_ELEMENT_LABEL_SEGMENT;
    static constexpr const char* KEY_CSM_NITF_METADATA_TEXT_SEGMENT = XML_ELEMENT_TEXT_SEGMENT;
    static constexpr const char* KEY_CSM_NITF_METADATA_DATA_EXTENSION_SEGMENT = XML_ELEMENT_DATA_EXTENSION_SEGMENT;
    static constexpr const char* KEY_CSM_NITF_METADATA_RESERVED_EXTENSION_SEGMENT =
        XML_ELEMENT_RESERVED_EXTENSION_SEGMENT;
    static constexpr const char* KEY_CSM_NITF_METADATA_RESERVED_SEGMENT = XML_ELEMENT_RESERVED_SEGMENT;
    /// All image segments at once.
    static constexpr const char* KEY_CSM_NITF_METADATA_ALL_IMAGE_SEGMENTS = "ImageSegment*";
    static constexpr const char* STR_UNKNOWN_DATA_SEGMENT = "UnknownDataSegment";

    // Keys of the raw metadata of all TREs of a segment kind.
    static constexpr const char* KEY_CSM_NITF_METADATA_NITF_FILE_HEADER_TRE = "NITFFileHeader:TRE*";
    static constexpr const char* KEY_CSM_NITF_METADATA_IMAGE_SEGMENT_TRE = "ImageSegment:TRE*";
    static constexpr const char* KEY_CSM_NITF_METADATA_GRAPHIC_SEGMENT_TRE = "GraphicSegment:TRE*";
    static constexpr const char* KEY_CSM_NITF_METADATA_SYMBOL_SEGMENT_TRE = "SymbolSegment:TRE*";
    static constexpr const char* KEY_CSM_NITF_METADATA_LABEL_SEGMENT_TRE = "LabelSegment:TRE*";
    static constexpr const char* KEY_CSM_NITF_METADATA_TEXT_SEGMENT_TRE = "TextSegment:TRE*";
    static constexpr const char* KEY_CSM_NITF_METADATA_DATA_EXTENSION_SEGMENT_TRE = "DataExtensionSegment:TRE*";
    static constexpr const char* KEY_CSM_NITF_METADATA_RESERVED_EXTENSION_SEGMENT_TRE = "ReservedExtensionSegment:TRE*";
    static constexpr const char* KEY_CSM_NITF_METADATA_RESERVED_SEGMENT_TRE = "ReservedSegment:TRE*";
    static constexpr const char* KEY_TRE = XML_ELEMENT_TRE;

    // Headings that a person reads.
    static constexpr const char* STR_NITF_HEADER_NITF_FILE_HEADER = "NITF File Header";
    static constexpr const char* STR_NITF_HEADER_IMAGE_SEGMENT = "Image Segment";
    static constexpr const char* STR_NITF_HEADER_GRAPHIC_SEGMENT = "Graphic Segment";
    static constexpr const char* STR_NITF_HEADER_SYMBOL_SEGMENT = "Symbol Segment";
    static constexpr const char* STR_NITF_HEADER_LABEL_SEGMENT = "Label Segment";
    static constexpr const char* STR_NITF_HEADER_TEXT_SEGMENT = "Text Segment";
    static constexpr const char* STR_NITF_HEADER_DATA_EXTENSION_SEGMENT = "Data Extension Segment";
    static constexpr const char* STR_NITF_HEADER_RESERVED_EXTENSION_SEGMENT = "Reserved Extension Segment";
    static constexpr const char* STR_NITF_HEADER_RESERVED_SEGMENT = "Reserved Segment";
    static constexpr const char* STR_NITF_HEADER_TRE = "Tagged Record Extension";

    // Kinds of TRE.
    static constexpr const char* TRE_TYPE_CE = "CE";
    static constexpr const char* TRE_TYPE_RE = "RE";
    static constexpr const char* TRE_TYPE_UNKNOWN = "UNKNOWN";
    static constexpr const char* STR_EXT_CONTROLLED_EXTENSIONS = "Controlled Extensions";
    static constexpr const char* STR_EXT_REGISTERED_EXTENSIONS = "Registered Extensions";

private:
    explicit NITFCnst() = delete;

    /// Copy without the white space at both ends, whatever the locale. Throws std::invalid_argument for null.
    static std::string TrimString(const char* aText);
};

}  // namespace ORMO::SensorModel::CSM
