#pragma once

#include "tests/support/NitfBuilder.h"

#include <cstdint>
#include <string>

namespace ORMO::SensorModel::CSM::Tests {

/// An RPC00A or RPC00B whose eighty coefficients can be told apart: they end in 10 to 89.
inline std::string Rpc(const char* aTag)
{
    std::string data =
        "1"
        "0012.50"
        "0003.25"
        "004000"
        "05000"
        "+45.0000"
        "+007.0000"
        "+0250"
        "003900"
        "04900"
        "+00.5000"
        "+000.6000"
        "+0300";
    for (int group = 0; group != 4; ++group) {
        for (int i = 0; i != 20; ++i) {
            data += "+0.0000" + Padded(static_cast<std::uint64_t>(group * 20 + i + 10), 2) + "E+3";
        }
    }
    return Tre(aTag, data);
}

}  // namespace ORMO::SensorModel::CSM::Tests
