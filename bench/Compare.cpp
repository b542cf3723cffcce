// Files read by this library, by GDAL and as fast as the machine can: everything in one run, so that the ratios hold
// whatever the machine is busy with. Measured is the processor's time of the calling thread, kernel included; the best
// of seven interleaved rounds counts.
//
// ormo-compare FILES...: one line per file, the geometric means, and one line per sample.
// ormo-compare --sample NAME: reads one sample once, for instructions.sh.

#include "bench/Samples.h"
#include "foundation/CSMException.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "segments/NITFFieldSegment.h"
#include "segments/NITFSegmentTREs.h"
#include "segments/NITFStdDataSegmentInfo.h"
#include "tests/support/TempFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <cpl_string.h>
#include <fcntl.h>
#include <gdal.h>
#include <malloc.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace ORMO::SensorModel::CSM;

constexpr int ROUNDS = 7;
constexpr double LEAST_SECONDS = 2e-3;
constexpr std::uint64_t GAP = 4096;

// What is read must be used, or it would not be read.
std::size_t theSum = 0;

struct IsdReleaser
{
    void operator()(ImageSupportData* aIsd) const noexcept { ImageSupportDataFactory::Destroy(&aIsd); }
};
using OwnedIsd = std::unique_ptr<ImageSupportData, IsdReleaser>;

OwnedIsd Open(const std::string& aPath)
{
    ImageSupportData* isd = nullptr;
    try {
        ImageSupportDataFactory::Create(aPath.c_str(), &isd, true, false);
    } catch (const CSMException&) {
        return nullptr;
    } catch (const std::exception&) {
        return nullptr;
    }
    return OwnedIsd(isd);
}

/// Every header of the file, and with it every field and every TRE.
void ForEachSegment(const ImageSupportDataNITF& aIsd, const std::function<void(const NITFFieldSegment&)>& aDo)
{
    aDo(*aIsd.GetSegment(NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, 0));
    for (const NITFStdDataSegmentInfo* const info : aIsd.GetSegmentInfos().InFileOrder()) {
        const NITFFieldSegment* const segment =
            aIsd.GetSegment(info->GetDataSegmentType(), static_cast<std::size_t>(info->GetSegmentIndex()));
        if (segment != nullptr) {
            aDo(*segment);
        }
    }
}

template<typename Owner>
void AddFields(const Owner& aOwner, std::string& aName)
{
    for (std::size_t i = 0; i != aOwner.GetNumOfFields(); ++i) {
        const char* value = nullptr;
        std::size_t length = 0;
        if (aOwner.GetFieldAt(i, aName, value, length)) {
            theSum += length + static_cast<unsigned char>(*value);
        }
    }
}

/// All metadata: every field of every header and TRE, with its name.
void ReadAll(const std::string& aPath)
{
    const OwnedIsd isd = Open(aPath);
    std::string name;
    ForEachSegment(dynamic_cast<const ImageSupportDataNITF&>(*isd), [&name](const NITFFieldSegment& aSegment) {
        AddFields(aSegment, name);
        for (const TRE* const tre : NITFSegmentTREs::GetAll(aSegment)) {
            AddFields(*tre, name);
        }
    });
}

void AddMetadata(GDALDatasetH aDataset)
{
    char** const domains = GDALGetMetadataDomainList(aDataset);
    for (char** domain = domains; domain != nullptr && *domain != nullptr; ++domain) {
        for (char** line = GDALGetMetadata(aDataset, *domain); line != nullptr && *line != nullptr; ++line) {
            theSum += std::strlen(*line);
        }
    }
    CSLDestroy(domains);
}

/// What GDAL tells of the same file: all domains of the file and of every image.
void ReadByGdal(const std::string& aPath)
{
    GDALDatasetH const file = GDALOpenEx(aPath.c_str(), GDAL_OF_RASTER | GDAL_OF_READONLY, nullptr, nullptr, nullptr);
    if (file == nullptr) {
        return;
    }
    AddMetadata(file);
    std::vector<std::string> images;
    char** const subdatasets = GDALGetMetadata(file, "SUBDATASETS");
    for (char** line = subdatasets; line != nullptr && *line != nullptr; ++line) {
        const std::string text(*line);
        const std::size_t name = text.find("_NAME=");
        if (name != std::string::npos) {
            images.push_back(text.substr(name + 6));
        }
    }
    GDALClose(file);
    for (std::size_t i = 1; i < images.size(); ++i) {  // the first image was open with the file
        GDALDatasetH const image =
            GDALOpenEx(images[i].c_str(), GDAL_OF_RASTER | GDAL_OF_READONLY, nullptr, nullptr, nullptr);
        if (image != nullptr) {
            AddMetadata(image);
            GDALClose(image);
        }
    }
}

/// The least that any reader does: the file opened, one read for each run of headers, every value copied out.
class Limit
{
public:
    Limit(const std::string& aPath, const ImageSupportDataNITF& aIsd) : m_path(aPath)
    {
        ForEachSegment(aIsd, [&](const NITFFieldSegment& aSegment) {
            std::string name;
            Add(aSegment, name, [&aSegment](std::size_t aIndex) { return aSegment.GetFieldOffset(aIndex); });
            for (const TRE* const tre : NITFSegmentTREs::GetAll(aSegment)) {
                std::uint64_t at = tre->GetFileOffset() + 11;
                for (std::size_t i = 0; i != tre->GetNumOfFields(); ++i) {
                    const char* value = nullptr;
                    std::size_t length = 0;
                    tre->GetFieldAt(i, name, value, length);
                    m_fields.push_back({at, length});
                    at += length;
                }
            }
        });
        std::sort(m_fields.begin(), m_fields.end(), [](const Span& a, const Span& b) { return a.start < b.start; });
        for (const Span& field : m_fields) {
            if (m_runs.empty() || field.start > m_runs.back().start + m_runs.back().length + GAP) {
                m_runs.push_back(field);
            }
            m_runs.back().length = std::max(m_runs.back().length,
                                            static_cast<std::size_t>(field.start - m_runs.back().start) + field.length);
        }
        for (const Span& run : m_runs) {
            m_headerBytes += run.length;
        }
    }

    std::size_t HeaderBytes() const noexcept { return m_headerBytes; }

    void Read() const
    {
        const int file = open(m_path.c_str(), O_RDONLY | O_CLOEXEC);
        std::string bytes;
        std::vector<char> values(m_headerBytes + m_fields.size());
        std::size_t end = 0;
        auto field = m_fields.begin();
        for (const Span& run : m_runs) {
            bytes.resize(run.length);
            theSum += static_cast<std::size_t>(pread(file, bytes.data(), run.length, static_cast<off_t>(run.start)));
            for (; field != m_fields.end() && field->start < run.start + run.length; ++field) {
                std::memcpy(values.data() + end, bytes.data() + (field->start - run.start), field->length);
                end += field->length;
            }
        }
        theSum += end;
        close(file);
    }

private:
    struct Span
    {
        std::uint64_t start;
        std::size_t length;
    };

    template<typename OffsetOf>
    void Add(const NITFFieldSegment& aSegment, std::string& aName, OffsetOf aOffsetOf)
    {
        for (std::size_t i = 0; i != aSegment.GetNumOfFields(); ++i) {
            const char* value = nullptr;
            std::size_t length = 0;
            // An extension area is a field of its header, and told TRE by TRE.
            if (aSegment.GetFieldAt(i, aName, value, length) &&
                aSegment.GetFieldValueDataType(aName.c_str()) != Util::CSMCnst::DATA_TYPE_EXTENSION_DATA) {
                m_fields.push_back({aOffsetOf(i), length});
            }
        }
    }

    std::string m_path;
    std::vector<Span> m_fields;
    std::vector<Span> m_runs;
    std::size_t m_headerBytes = 0;
};

double Now()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// Seconds for one call, as the mean of calls that take long enough to be measured.
double SecondsOf(const std::function<void()>& aCall)
{
    const double start = Now();
    int calls = 0;
    double passed = 0.0;
    do {
        aCall();
        ++calls;
        passed = Now() - start;
    } while (passed < LEAST_SECONDS);
    return passed / calls;
}

struct Times
{
    double ours = 0.0;
    double gdal = 0.0;
    double limit = 0.0;
};

Times Measure(const std::string& aPath, const Limit& aLimit, bool aWithGdal)
{
    Times best{1e9, aWithGdal ? 1e9 : 0.0, 1e9};
    for (int round = 0; round != ROUNDS; ++round) {
        best.ours = std::min(best.ours, SecondsOf([&] { ReadAll(aPath); }));
        best.limit = std::min(best.limit, SecondsOf([&] { aLimit.Read(); }));
        if (aWithGdal && round < 3) {
            best.gdal = std::min(best.gdal, SecondsOf([&] { ReadByGdal(aPath); }));
        }
    }
    return best;
}

void Print(const std::string& aName, std::size_t aHeaderBytes, const Times& aTimes)
{
    std::printf("%-44.44s %9zu %10.1f %10.1f %10.1f %7.1f %7.0f\n", aName.c_str(), aHeaderBytes, aTimes.ours * 1e6,
                aTimes.gdal * 1e6, aTimes.limit * 1e6, aTimes.ours / aTimes.limit, aTimes.gdal / aTimes.ours);
}

void PrintHead()
{
    std::printf("%-44s %9s %10s %10s %10s %7s %7s\n", "", "header", "ours", "GDAL", "limit", "ours /", "GDAL /");
    std::printf("%-44s %9s %10s %10s %10s %7s %7s\n", "", "bytes", "us", "us", "us", "limit", "ours");
}

void CompareFiles(const std::vector<std::string>& aPaths)
{
    PrintHead();
    std::array<double, 5> logs{};
    std::size_t files = 0;
    for (const std::string& path : aPaths) {
        const OwnedIsd isd = Open(path);
        const auto* const nitf = dynamic_cast<const ImageSupportDataNITF*>(isd.get());
        if (nitf == nullptr) {
            continue;
        }
        const Limit limit(path, *nitf);
        const Times times = Measure(path, limit, true);
        Print(path.substr(path.rfind('/') + 1), limit.HeaderBytes(), times);
        const std::array<double, 5> values{times.ours, times.gdal, times.limit, times.ours / times.limit,
                                           times.gdal / times.ours};
        for (std::size_t i = 0; i != values.size(); ++i) {
            logs[i] += std::log(values[i]);
        }
        ++files;
    }
    if (files == 0) {
        return;
    }
    std::array<double, 5> means{};
    std::transform(logs.begin(), logs.end(), means.begin(),
                   [files](double aLog) { return std::exp(aLog / static_cast<double>(files)); });
    std::printf("%-44s %9zu %10.1f %10.1f %10.1f %7.1f %7.0f\n", "geometric mean over files", files, means[0] * 1e6,
                means[1] * 1e6, means[2] * 1e6, means[3], means[4]);
}

void CompareSamples()
{
    std::printf("\n");
    PrintHead();
    for (const auto& [name, bytes] : Bench::Samples()) {
        const Tests::TempFile file(bytes);
        const std::size_t before = mallinfo2().uordblks;
        const OwnedIsd isd = Open(file.Path());
        const std::size_t heap = mallinfo2().uordblks - before;
        const Limit limit(file.Path(), dynamic_cast<const ImageSupportDataNITF&>(*isd));
        // GDAL opens every image on its own, which takes minutes for many.
        Print(name, limit.HeaderBytes(), Measure(file.Path(), limit, bytes.size() < 100000));
        std::printf("%44s heap after opening: %zu bytes, %.1f per header byte\n", "", heap,
                    static_cast<double>(heap) / static_cast<double>(limit.HeaderBytes()));
    }
}

}  // namespace

/// Where counting of instructions begins and ends.
extern "C" [[gnu::noinline]] void ReadOnce(const char* aPath)
{
    ReadAll(aPath);
}

int main(int aCount, char** aArguments)
{
    if (aCount == 3 && std::string_view(aArguments[1]) == "--sample") {
        for (const auto& [name, bytes] : Bench::Samples()) {
            if (std::string_view(name) == aArguments[2]) {
                const Tests::TempFile file(bytes);
                ReadOnce(file.CStr());
                return 0;
            }
        }
        return 1;
    }
    GDALAllRegister();
    CPLSetErrorHandler(CPLQuietErrorHandler);
    CompareFiles({aArguments + 1, aArguments + aCount});
    CompareSamples();
    return theSum == 0 ? 1 : 0;
}
