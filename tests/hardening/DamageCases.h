#pragma once

#include "isd/ImageSupportDataNITF.h"

#include <ostream>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM::Tests {

enum class Answer
{
    Opens,
    Refused
};

/// A damaged file and the answer that it must get.
struct DamageCase
{
    const char* name;
    std::string file;
    Answer answer;
    /// A part of each line that is told on reading; no other line is told.
    std::vector<std::string> lines;
    /// Parts of what a validation tells besides.
    std::vector<std::string> validated = {};
    void (*check)(const ImageSupportDataNITF& aIsd) = nullptr;
};

inline void PrintTo(const DamageCase& aCase, std::ostream* aOut)
{
    *aOut << aCase.name;
}

/// Lengths, counts and versions of the file header.
std::vector<DamageCase> HeaderDamage();
/// Subheaders and the data behind them.
std::vector<DamageCase> SegmentDamage();
/// Extension areas, their overflow and data extension segments.
std::vector<DamageCase> TreDamage();
/// What is drawn, where it is drawn, and where on the ground an image lies.
std::vector<DamageCase> DrawingDamage();

}  // namespace ORMO::SensorModel::CSM::Tests
