// Many threads over many files, and over one. A program of its own, so that it can be built alone under a thread
// sanitizer.

#include "segments/RawNITFMetadataStdDataSegment.h"
#include "tests/support/Corpus.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/OpenedIsd.h"
#include "tests/support/TempFile.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <latch>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;

constexpr std::size_t THREADS = 8;

/// Runs the action once in each of the threads, all at the same time, with the number of the thread.
template<typename Action>
void InThreads(Action aAction)
{
    std::latch start(THREADS);
    std::vector<std::jthread> threads;
    for (std::size_t i = 0; i != THREADS; ++i) {
        threads.emplace_back([&, i] {
            start.arrive_and_wait();
            aAction(i);
        });
    }
}

void AppendMetadata(const RawNITFMetadata& aMetadata, std::string& aOut)
{
    const char** tags = nullptr;
    const char** values = nullptr;
    std::size_t count = 0;
    if (aMetadata.GetMetadataFieldValue(tags, values, count)) {
        for (std::size_t i = 0; i != count; ++i) {
            aOut.append(tags[i]).append("=").append(values[i]).append(";");
        }
    }
}

void AppendSegment(const NITFFieldSegment& aSegment, std::string& aOut)
{
    std::string name;
    const char* value = nullptr;
    std::size_t length = 0;
    for (std::size_t i = 0; aSegment.GetFieldAt(i, name, value, length); ++i) {
        aOut.append(name).append(value, length);
    }
    double number = 0;
    aOut += std::to_string(aSegment.GetFieldAsDouble("NROWS", number));
    aOut += aSegment.GetErrorMessage();
    const RawNITFMetadataStdDataSegment& metadata = *aSegment.GetAllMetadata();
    AppendMetadata(metadata, aOut);
    std::vector<const RawNITFMetadata*> tres;
    for (const bool overflow : {false, true}) {
        overflow ? metadata.GetRawNITFMetadataOverflowTREs(tres) : metadata.GetRawNITFMetadataTREs(tres);
        for (const RawNITFMetadata* const tre : tres) {
            AppendMetadata(*tre, aOut);
        }
    }
    aOut += std::to_string(aSegment.GetFieldEditabilityMap()->size() + aSegment.GetAllFieldDescriptions()->size());
}

void AppendImage(const ImageSupportDataNITF& aIsd, std::size_t aIndex, std::string& aOut)
{
    std::array<double, 4> latitudes{};
    std::array<double, 4> longitudes{};
    bool isMeasured = false;
    const char* source = "";
    if (aIsd.GetMostPreciseGeographicExtent(isMeasured, source, latitudes.data(), longitudes.data(), aIndex)) {
        aOut.append(source).append(std::to_string(latitudes[0] + longitudes[1]));
    }
    char rpc = 'N';
    aOut += std::to_string(aIsd.GetRPC00Availability(rpc, aIndex)) + rpc;
    aOut += aIsd.GetUniqueImageSegmentIdentifier(aIndex);
    aOut += std::to_string(aIsd.GetImageSegmentIndex(aIsd.GetUniqueImageSegmentIdentifier(aIndex)));
    for (int band = 0; aIsd.GetImageBandInfo(band, aIndex) != nullptr; ++band) {
        aOut += aIsd.GetImageBandInfo(band, aIndex)->GetFieldIREPBAND();
    }
    aOut += aIsd.GetErrorMessage();
    aOut += std::to_string(aIsd.GetImagePixelReader(aIndex)->GetBytesPerSample());
}

/// What const queries tell of a file.
std::string Told(const ImageSupportDataNITF& aIsd)
{
    std::string told = aIsd.GetFileTypeAndVersion();
    AppendSegment(*aIsd.GetNITFFileHeader(), told);
    for (const NITFStdDataSegmentInfo* const info : aIsd.GetSegmentInfos().InFileOrder()) {
        const NITFFieldSegment* const segment =
            aIsd.GetSegment(info->GetDataSegmentType(), static_cast<std::size_t>(info->GetSegmentIndex()));
        if (segment != nullptr) {
            AppendSegment(*segment, told);
        }
    }
    for (std::size_t i = 0; aIsd.GetImageSubheader(i) != nullptr; ++i) {
        AppendImage(aIsd, i, told);
    }
    ImageSupportDataNITF::MetadataList list;
    ImageSupportDataNITF::Markings markings;
    aIsd.GetAllMetadataImageSegments(list);
    aIsd.RetrieveAllSecurityClassificationMarkings(markings);
    told += std::to_string(list.size() + markings.size());
    told += std::to_string(aIsd.GetDisplayableDataSegmentOrderedByDisplayLevels().size());
    told += aIsd.GetFileHandle() == aIsd.GetFileHandle() ? "one stream" : "two streams";
    return told;
}

/// Opens a file, asks it for everything, changes what is the thread's own, and releases it.
std::string OpenAndAsk(const std::string& aPath)
{
    const OpenedIsd isd = OpenedIsd::IfReadable(aPath);
    if (!isd) {
        return ImageSupportDataFactory::GetErrorMessage();
    }
    std::string told = Told(*isd);
    unsigned long errors = 0;
    unsigned long warnings = 0;
    isd->RigorousValidation(errors, warnings);
    told += std::to_string(errors) + ' ' + std::to_string(warnings);
    return told + std::to_string(ImageSupportDataFactory::AreEqual(*isd, *isd.Clone()));
}

NitfBuilder BuiltFile()
{
    NitfBuilder file;
    file.File().Area("XHD", Tre("ONEHDR", "ten bytes!"));
    for (int i = 0; i != 3; ++i) {
        file.AddImage(4, 6).Area("IXSHD", Tre("STDIDC", std::string(89, '0')) + Tre("OWNTRE", "own"), i == 0 ? 1 : 0);
    }
    file.AddGraphic();
    file.AddText();
    file.AddOverflow("IXSHD", 1, Tre("OVERA", "first"));
    return file;
}

/// Real files, or a built one where there are none.
struct Files
{
    TempFile built{BuiltFile().Bytes()};
    std::vector<std::string> paths{built.Path()};

    Files()
    {
        if (std::filesystem::exists(CorpusFile("."))) {
            for (const auto& entry : std::filesystem::directory_iterator(CorpusFile("."))) {
                paths.push_back(entry.path());
            }
        }
    }
};

TEST(ThreadsTest, DifferentFilesAreOpenedAskedAndReleasedAtOnce)
{
    const Files files;
    // The first thread to need a table makes it, so nothing may be asked before: what is right is seen afterwards.
    std::array<std::vector<std::string>, THREADS> told;
    InThreads([&](std::size_t aThread) {
        told[aThread].resize(files.paths.size());
        for (std::size_t i = 0; i != files.paths.size(); ++i) {
            const std::size_t place = (i + aThread * files.paths.size() / THREADS) % files.paths.size();
            told[aThread][place] = OpenAndAsk(files.paths[place]);
        }
    });
    for (std::size_t i = 0; i != files.paths.size(); ++i) {
        const std::string expected = OpenAndAsk(files.paths[i]);
        for (const std::vector<std::string>& ofThread : told) {
            EXPECT_EQ(ofThread[i], expected) << files.paths[i];
        }
    }
}

TEST(ThreadsTest, OneConstObjectAnswersAllThreads)
{
    const Files files;
    for (const std::string& path : files.paths) {
        const OpenedIsd owner = OpenedIsd::IfReadable(path);
        if (!owner) {
            continue;
        }
        const ImageSupportDataNITF& isd = *owner;
        std::array<std::string, THREADS> told;
        // A copy is made of what others are asking at the same time.
        InThreads([&](std::size_t aThread) { told[aThread] = Told(isd) + Told(*owner.Clone()); });
        EXPECT_EQ(static_cast<std::size_t>(std::count(told.begin(), told.end(), told[0])), THREADS) << path;
    }
}

TEST(ThreadsTest, EachThreadReadsWhatItsOwnQuerySaid)
{
    const OpenedIsd isd = OpenedIsd::OfBytes(BuiltFile().Bytes());
    std::array<bool, THREADS> own{};
    InThreads([&](std::size_t aThread) {
        const ImageSupportDataNITF& shared = *isd;
        const std::string mine = "\"ImageSegment " + std::to_string(100 + aThread) + '"';
        own[aThread] = true;
        for (int turn = 0; turn != 200; ++turn) {
            const bool isNull = shared.GetImageSubheader(100 + aThread) == nullptr;
            own[aThread] =
                own[aThread] && isNull && std::string(shared.GetErrorMessage()).find(mine) != std::string::npos;
            static_cast<void>(shared.GetImageSubheader(0));
            own[aThread] = own[aThread] && shared.GetErrorMessage() == nullptr;
        }
    });
    EXPECT_EQ(static_cast<std::size_t>(std::count(own.begin(), own.end(), true)), THREADS);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
