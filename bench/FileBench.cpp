// What opening a whole file costs: header, subheaders and TREs; no pixels.

#include "isd/ImageSupportDataFactory.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/TempFile.h"

#include <benchmark/benchmark.h>

namespace {

using namespace ORMO::SensorModel::CSM;
using namespace ORMO::SensorModel::CSM::Tests;

void OpenFileWithImages(benchmark::State& aState)
{
    NitfBuilder builder;
    for (long i = 0; i != aState.range(0); ++i) {
        builder.AddImage();
    }
    const TempFile file(builder.Bytes());
    for (auto turn : aState) {
        ImageSupportData* isd = nullptr;
        ImageSupportDataFactory::Create(file.CStr(), &isd, true, false);
        benchmark::DoNotOptimize(isd);
        ImageSupportDataFactory::Destroy(&isd);
    }
}
BENCHMARK(OpenFileWithImages)->Arg(0)->Arg(1)->Arg(99)->Arg(999);

}  // namespace
