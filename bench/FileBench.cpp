// What opening a whole file costs: header, subheaders and TREs; no pixels.

#include "bench/Samples.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/TempFile.h"

#include <cstdint>
#include <cstdio>
#include <string>

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

/// Opened only, for files of one kind after another.
void OpenSample(benchmark::State& aState, std::string (*aMake)(unsigned))
{
    const TempFile file(aMake(static_cast<unsigned>(aState.range(0))));
    for (auto turn : aState) {
        ImageSupportData* isd = nullptr;
        ImageSupportDataFactory::Create(file.CStr(), &isd, true, false);
        benchmark::DoNotOptimize(isd);
        ImageSupportDataFactory::Destroy(&isd);
    }
}
BENCHMARK_CAPTURE(OpenSample, ImagesOfFiveTres, &Bench::FileOfImages)->Arg(1)->Arg(10)->Arg(100)->Arg(999);
BENCHMARK_CAPTURE(OpenSample, Texts, &Bench::FileOfTexts)->Arg(500);
BENCHMARK_CAPTURE(OpenSample, BandsOfBandsb, &Bench::FileOfBands)->Arg(6000);

/// One image with a hundred texts and as many DESs, of which nobody may want to know.
void OpenFileWithOthers(benchmark::State& aState)
{
    NitfBuilder builder;
    builder.AddImage();
    for (int i = 0; i != 100; ++i) {
        builder.AddText().Area("TXSHD", Tre("OFTEXT", "data"));
        builder.AddDes("SOME DES", "data");
    }
    const TempFile file(builder.Bytes());
    const bool allSegments = aState.range(0) != 0;
    for (auto turn : aState) {
        ImageSupportData* isd = nullptr;
        ImageSupportDataFactory::Create(file.CStr(), &isd, allSegments, false);
        benchmark::DoNotOptimize(isd);
        ImageSupportDataFactory::Destroy(&isd);
    }
}
BENCHMARK(OpenFileWithOthers)->ArgName("all")->Arg(0)->Arg(1);

/// A deep copy of a file with images, its release included.
void CloneFileWithImages(benchmark::State& aState)
{
    NitfBuilder builder;
    for (long i = 0; i != aState.range(0); ++i) {
        builder.AddImage();
    }
    const TempFile file(builder.Bytes());
    ImageSupportData* isd = nullptr;
    ImageSupportDataFactory::Create(file.CStr(), &isd, true, false);
    for (auto turn : aState) {
        ImageSupportData* copy = nullptr;
        ImageSupportDataFactory::Clone(isd, &copy);
        benchmark::DoNotOptimize(copy);
        ImageSupportDataFactory::Destroy(&copy);
    }
    ImageSupportDataFactory::Destroy(&isd);
}
BENCHMARK(CloneFileWithImages)->Arg(1)->Arg(99);

/// What a validation costs beyond the opening; compare with OpenFileWithImages.
void ValidateFileWithImages(benchmark::State& aState)
{
    NitfBuilder builder;
    for (long i = 0; i != aState.range(0); ++i) {
        builder.AddImage();
    }
    const TempFile file(builder.Bytes());
    ImageSupportData* made = nullptr;
    ImageSupportDataFactory::Create(file.CStr(), &made, true, false);
    auto& isd = dynamic_cast<ImageSupportDataNITF&>(*made);
    unsigned long errors = 0;
    unsigned long warnings = 0;
    for (auto turn : aState) {
        isd.Validate({"20260601000000", {}}, errors, warnings);
    }
    ImageSupportDataFactory::Destroy(&made);
}
BENCHMARK(ValidateFileWithImages)->Arg(0)->Arg(1)->Arg(99)->Arg(999);

/// The XML of a file with images of two TREs each, written in pieces; the rate is that of the document.
void WriteXmlOfFileWithImages(benchmark::State& aState)
{
    NitfBuilder builder;
    for (long i = 0; i != aState.range(0); ++i) {
        builder.AddImage().Area("IXSHD", Tre("OFFSET", "0000001200000034") + Tre("NOBODY", std::string(500, 'x')));
    }
    const TempFile file(builder.Bytes());
    ImageSupportData* made = nullptr;
    ImageSupportDataFactory::Create(file.CStr(), &made, true, false);
    const auto& isd = dynamic_cast<const ImageSupportDataNITF&>(*made);
    std::FILE* const out = std::tmpfile();
    long length = 0;
    for (auto turn : aState) {
        std::rewind(out);
        isd.WriteXml(out);
        length = std::ftell(out);
    }
    aState.SetBytesProcessed(static_cast<std::int64_t>(aState.iterations()) * length);
    std::fclose(out);
    ImageSupportDataFactory::Destroy(&made);
}
BENCHMARK(WriteXmlOfFileWithImages)->Arg(1)->Arg(99)->Arg(999);

}  // namespace
