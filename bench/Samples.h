#pragma once

#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM::Bench {

/// BLOCKA, RPC00B, USE00A, STDIDC and ICHIPB: 168 fields.
std::string AreaOfFiveTres();
/// BANDSB with a flag and two wavelengths for each band.
std::string Bandsb(unsigned aBands);

// Whole NITF 2.1 files.

/// Every image with five TREs.
std::string FileOfImages(unsigned aImages);
/// One image with 25 TREs.
std::string FileOf25Tres();
/// One image whose five TREs stand in an overflow DES.
std::string FileWithOverflow();
std::string FileOfTexts(unsigned aTexts);
/// One image with a BANDSB.
std::string FileOfBands(unsigned aBands);

struct Sample
{
    const char* name;  ///< one word
    std::string bytes;
};

/// One of each kind and size.
std::vector<Sample> Samples();

}  // namespace ORMO::SensorModel::CSM::Bench
