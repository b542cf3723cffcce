#pragma once

#include "../foundation/Export.h"

namespace ORMO::SensorModel::CSM {

/// Smallest and largest value of the header fields that hold a number; both ends belong to the range.
///
/// Holder of constants only, reached as NITFCnst::Limits. The names say to which version a limit belongs: NITF20_ for
/// NITF 2.0, NITF21_ for NITF 2.1 and NSIF 1.0, NITF_ for all.
class ORMO_CSM_API NITFCnstLimits
{
public:
    // clang-format off

    // File header. FBKGC: each of the three colour bytes. LSSH: the length of one symbol or graphic subheader, bytes.
    static constexpr long MIN_NITF_FIELD_FBKGC           = 0,     MAX_NITF_FIELD_FBKGC           = 255;
    static constexpr long MIN_NITF20_FIELD_LSSH          = 0,     MAX_NITF20_FIELD_LSSH          = 9999;
    static constexpr long MIN_NITF21_FIELD_LSSH          = 258,   MAX_NITF21_FIELD_LSSH          = 9998;

    // Image subheader: bits per pixel.
    static constexpr long MIN_NITF20_IS_FIELD_NBPP       = 1,     MAX_NITF20_IS_FIELD_NBPP       = 64;
    static constexpr long MIN_NITF20_IS_FIELD_ABPP       = 1,     MAX_NITF20_IS_FIELD_ABPP       = 64;
    static constexpr long MIN_NITF21_IS_FIELD_NBPP       = 1,     MAX_NITF21_IS_FIELD_NBPP       = 96;
    static constexpr long MIN_NITF21_IS_FIELD_ABPP       = 1,     MAX_NITF21_IS_FIELD_ABPP       = 96;

    // Image subheader: pixels per block. In NITF 2.1 a 0 stands for one block that is wider or taller than 8192 pixels.
    static constexpr long MIN_NITF20_IS_FIELD_NPPBH      = 1,     MAX_NITF20_IS_FIELD_NPPBH      = 9999;
    static constexpr long MIN_NITF20_IS_FIELD_NPPBV      = 1,     MAX_NITF20_IS_FIELD_NPPBV      = 9999;
    static constexpr long MIN_NITF21_IS_FIELD_NPPBH      = 0,     MAX_NITF21_IS_FIELD_NPPBH      = 8192;
    static constexpr long MIN_NITF21_IS_FIELD_NPPBV      = 0,     MAX_NITF21_IS_FIELD_NPPBV      = 8192;

    // Image subheader: blocks per row and column, look-up tables per band, location in pixels.
    static constexpr long MIN_NITF_IS_FIELD_NBPR         = 1,     MAX_NITF_IS_FIELD_NBPR         = 9999;
    static constexpr long MIN_NITF_IS_FIELD_NBPC         = 1,     MAX_NITF_IS_FIELD_NBPC         = 9999;
    static constexpr long MIN_NITF_IS_FIELD_NLUTS        = 0,     MAX_NITF_IS_FIELD_NLUTS        = 4;
    static constexpr long MIN_NITF_IS_FIELD_ILOC_ROW     = -9999, MAX_NITF_IS_FIELD_ILOC_ROW     = 99999;
    static constexpr long MIN_NITF_IS_FIELD_ILOC_COL     = -9999, MAX_NITF_IS_FIELD_ILOC_COL     = 99999;

    // Label subheader: character cell in pixels, length of the label in bytes, location in pixels.
    static constexpr long MIN_NITF20_LS_FIELD_LCW        = 1,     MAX_NITF20_LS_FIELD_LCW        = 99;
    static constexpr long MIN_NITF20_LS_FIELD_LCH        = 1,     MAX_NITF20_LS_FIELD_LCH        = 99;
    static constexpr long MIN_NITF20_LS_FIELD_LL         = 0,     MAX_NITF20_LS_FIELD_LL         = 320;
    static constexpr long MIN_NITF20_LS_FIELD_LLOC_ROW   = -9999, MAX_NITF20_LS_FIELD_LLOC_ROW   = 99999;
    static constexpr long MIN_NITF20_LS_FIELD_LLOC_COL   = -9999, MAX_NITF20_LS_FIELD_LLOC_COL   = 99999;

    // Symbol subheader: location and second location, pixels.
    static constexpr long MIN_NITF20_SS_FIELD_SLOC_ROW   = -9999, MAX_NITF20_SS_FIELD_SLOC_ROW   = 99999;
    static constexpr long MIN_NITF20_SS_FIELD_SLOC_COL   = -9999, MAX_NITF20_SS_FIELD_SLOC_COL   = 99999;
    static constexpr long MIN_NITF20_SS_FIELD_SLOC2_ROW  = -9999, MAX_NITF20_SS_FIELD_SLOC2_ROW  = 99999;
    static constexpr long MIN_NITF20_SS_FIELD_SLOC2_COL  = -9999, MAX_NITF20_SS_FIELD_SLOC2_COL  = 99999;

    // Graphic subheader: location and corners of the bounding box, pixels.
    static constexpr long MIN_NITF21_GS_FIELD_SLOC_ROW   = -9999, MAX_NITF21_GS_FIELD_SLOC_ROW   = 99999;
    static constexpr long MIN_NITF21_GS_FIELD_SLOC_COL   = -9999, MAX_NITF21_GS_FIELD_SLOC_COL   = 99999;
    static constexpr long MIN_NITF21_GS_FIELD_SBND_ROW   = -9999, MAX_NITF21_GS_FIELD_SBND_ROW   = 99999;
    static constexpr long MIN_NITF21_GS_FIELD_SBND_COL   = -9999, MAX_NITF21_GS_FIELD_SBND_COL   = 99999;

    // Text subheader: attachment level.
    static constexpr long MIN_NITF21_TS_FIELD_TXTALVL    = 0,     MAX_NITF21_TS_FIELD_TXTALVL    = 998;
    // clang-format on

    /// Largest magnification; the field has no smallest one, because it also knows the forms "/2", "/4" and so on.
    static constexpr double MAX_NITF21_IS_FIELD_IMAG = 999.0;

private:
    explicit NITFCnstLimits() = delete;
};

}  // namespace ORMO::SensorModel::CSM
