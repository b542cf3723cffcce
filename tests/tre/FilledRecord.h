#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {

/// A record of zeros with some values written into their fields, one after another, so that later names may stand in
/// repeats and conditions that earlier values open.
struct Filled
{
    const char* tag;
    std::uint64_t length;  ///< by the formula that the standard gives
    std::vector<std::pair<const char*, std::string>> values;
};

inline void PrintTo(const Filled& aCase, std::ostream* aOut)
{
    *aOut << aCase.tag << ' ' << aCase.length;
}

class VariableLengthTest : public testing::TestWithParam<Filled>
{
};

}  // namespace ORMO::SensorModel::CSM
