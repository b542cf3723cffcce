// What decoding a metafile costs per element.

#include "tests/segments/cgm/CgmBytes.h"

#include <benchmark/benchmark.h>

namespace {

using namespace ORMO::SensorModel::CSM;
using namespace ORMO::SensorModel::CSM::Tests;

void Decode(benchmark::State& aState, const std::string& aElements, std::size_t aCount)
{
    constexpr std::size_t TURNS = 1000;
    std::string bytes;
    for (std::size_t i = 0; i != TURNS; ++i) {
        bytes += aElements;
    }
    std::size_t elements = 0;
    for (auto turn : aState) {
        const NITFCGMMetaFile metafile = Metafile(bytes);
        if (metafile.GetNumOfClearTextLines() != TURNS * aCount) {
            aState.SkipWithError("an element is not decoded");
        }
        elements += TURNS * aCount;
    }
    aState.counters["per_element"] =
        benchmark::Counter(static_cast<double>(elements), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void DecodeAttributes(benchmark::State& aState)
{
    Decode(aState,
           CgmElementBytes(5, 2, {1}) + CgmElementBytes(5, 3, {2}) + CgmElementBytes(5, 4, "abc") +
               CgmElementBytes(5, 16, {0, -1, 1, 0}),
           4);
}
BENCHMARK(DecodeAttributes);

void DecodePrimitives(benchmark::State& aState)
{
    Decode(aState,
           CgmElementBytes(4, 1, {1, 2, 3, 4}) + CgmElementBytes(4, 12, {1, 2, 3}) +
               CgmElementBytes(4, 4, CgmWords({1, 2, 1}) + CgmText("a text of some length")) +
               CgmElementBytes(4, 18, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}),
           4);
}
BENCHMARK(DecodePrimitives);

}  // namespace
