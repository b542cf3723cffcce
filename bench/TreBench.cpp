// What decoding the TREs of one image costs: cutting the area and looking up every field by its name.

#include "bench/Samples.h"
#include "tre/TREStore.h"
#include "tre/detail/TreArea.h"

#include <atomic>
#include <cstdlib>
#include <new>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace {

std::atomic<long> theAllocations{0};

}  // namespace

// Counts allocations of the whole program, so that none can hide.
void* operator new(std::size_t aSize)
{
    ++theAllocations;
    if (void* const memory = std::malloc(aSize == 0 ? 1 : aSize)) {
        return memory;
    }
    throw std::bad_alloc();
}
void operator delete(void* aMemory) noexcept
{
    std::free(aMemory);
}
void operator delete(void* aMemory, std::size_t) noexcept
{
    std::free(aMemory);
}

namespace {

using namespace ORMO::SensorModel::CSM;

std::size_t Decode(const std::string& aArea, TREStore& aStore)
{
    Detail::FindingList findings;
    Detail::ExtractTREs(aArea, aStore, {}, Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN,
                        {"IXSHD", 0, TRE::TRE_TYPE_CONTROLLED_EXTENSION}, findings);
    std::size_t fields = 0;
    for (const TRE* const tre : aStore.InOrder()) {
        fields += tre->GetNumOfFields();
    }
    return fields;
}

void DecodeTresOfOneImage(benchmark::State& aState)
{
    const std::string area = Bench::AreaOfFiveTres();
    std::vector<std::string> names;
    {
        TREStore store;
        const std::size_t fields = Decode(area, store);
        std::string name;
        for (const TRE* const tre : store.InOrder()) {
            for (std::size_t i = 0; i != tre->GetNumOfFields(); ++i) {
                const char* value = nullptr;
                std::size_t length = 0;
                tre->GetFieldAt(i, name, value, length);
                names.push_back(name);
            }
        }
        aState.counters["fields"] = static_cast<double>(fields);
    }
    long allocations = 0;
    for (auto turn : aState) {
        const long before = theAllocations;
        TREStore store;
        Decode(area, store);
        std::size_t found = 0;
        std::size_t place = 0;
        for (const TRE* const tre : store.InOrder()) {
            for (std::size_t i = 0; i != tre->GetNumOfFields(); ++i) {
                const char* value = nullptr;
                std::size_t length = 0;
                found += tre->GetFieldAsString(names[place++].c_str(), value, length) ? 1U : 0U;
            }
        }
        if (found != names.size()) {
            aState.SkipWithError("a field is not found by its name");
        }
        allocations += theAllocations - before;
    }
    aState.counters["allocations"] =
        benchmark::Counter(static_cast<double>(allocations), benchmark::Counter::kAvgIterations);
}
BENCHMARK(DecodeTresOfOneImage);

}  // namespace
