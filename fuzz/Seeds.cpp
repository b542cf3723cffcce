#include "fuzz/Seeds.h"

#include "fields/ValueRule.h"
#include "segments/cgm/NITFCGMMetaFile.h"
#include "segments/des/SupportedDESSHFs.h"
#include "segments/detail/SegmentKind.h"
#include "segments/detail/SegmentLayout.h"
#include "tests/support/IndependentWalk.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/SmallFiles.h"
#include "tests/support/TreRecordMaker.h"
#include "tests/tre/TreLayoutList.h"
#include "tre/TRECatalogue.h"

#include <algorithm>
#include <random>
#include <set>
#include <stdexcept>

namespace OrmoFuzz {

using namespace ORMO::SensorModel::CSM;

namespace {

constexpr std::uint32_t SEED = 7;
constexpr int RECORDS = 4;

/// The segments of a file that tells all its lengths; nothing for one written as a stream.
std::vector<Tests::WalkedSegment> SegmentsOf(const std::string& aFile)
{
    const auto segments = Tests::WalkSegments(aFile);
    const bool isWhole =
        segments && !segments->empty() && segments->back().dataOffset + segments->back().dataSize == aFile.size();
    return isWhole ? *segments : std::vector<Tests::WalkedSegment>();
}

std::vector<std::string> Files()
{
    std::vector<std::string> seeds;
    for (const Tests::SmallFile& file : Tests::SmallFiles()) {
        seeds.push_back(file.bytes);
    }
    return seeds;
}

/// Records for every layout; those that no record can be made of stand as zeros.
std::vector<std::string> Tres()
{
    std::vector<std::string> seeds;
    for (const NumberedLayout& layout : EveryLayout()) {
        Tests::TreRecordMaker maker(layout.layout->table, SEED);
        for (int i = 0; i != RECORDS; ++i) {
            try {
                seeds.push_back(Tests::Tre(layout.tag, maker.Next()));
            } catch (const std::runtime_error&) {
                seeds.push_back(Tests::Tre(layout.tag, std::string(200, '0')));
            }
        }
    }
    seeds.push_back(Tests::Tre("OFFSET", "0000001200000034") + Tests::Tre("NOBODY", "x") + Tests::Tre("OFFSET", "") +
                    "LARGE 00099ABC");
    return seeds;
}

/// The headers of the small files, each with its data and the three bytes in front that the target wants.
std::vector<std::string> Headers()
{
    std::vector<std::string> seeds;
    const auto add = [&](std::size_t aKind, std::string_view aHeader, std::string_view aData) {
        std::string seed{static_cast<char>(aKind), static_cast<char>(aData.size() >> 8U),
                         static_cast<char>(aData.size() & 0xFFU)};
        seeds.push_back(seed.append(aHeader).append(aData));
    };
    for (const Tests::SmallFile& file : Tests::SmallFiles()) {
        const std::size_t version = file.bytes.compare(0, 9, "NITF02.00") == 0 ? 0 : 1;
        const std::vector<Tests::WalkedSegment> segments = SegmentsOf(file.bytes);
        if (segments.empty()) {
            continue;
        }
        add(version, std::string_view(file.bytes).substr(0, segments.front().headerOffset), "");
        for (const Tests::WalkedSegment& segment : segments) {
            const std::string_view header =
                std::string_view(file.bytes).substr(segment.headerOffset, segment.headerSize);
            for (std::size_t kind = 0; kind != std::size(Detail::SEGMENT_KINDS); ++kind) {
                const Detail::SegmentKind& row = Detail::SEGMENT_KINDS[kind];
                if (header.substr(0, 2) == row.mark && (row.version == 20) == (version == 0)) {
                    add(kind, header, std::string_view(file.bytes).substr(segment.dataOffset, segment.dataSize));
                }
            }
        }
    }
    return seeds;
}

std::vector<std::string> Recipes()
{
    std::mt19937 random(SEED);
    std::vector<std::string> seeds;
    for (std::size_t length = 8; length != 72; length += 2) {
        std::string seed(length, '\0');
        std::generate(seed.begin(), seed.end(), [&] { return static_cast<char>(random() & 0xFFU); });
        seeds.push_back(seed);
    }
    return seeds;
}

std::vector<std::string> Metafiles()
{
    std::vector<std::string> seeds;
    for (const Tests::SmallFile& file : Tests::SmallFiles()) {
        for (const Tests::WalkedSegment& segment : SegmentsOf(file.bytes)) {
            if (file.bytes.compare(segment.headerOffset, 2, "SY") == 0) {
                seeds.push_back(file.bytes.substr(segment.dataOffset, segment.dataSize));
            }
        }
    }
    char* text = nullptr;
    int length = -1;
    std::size_t size = 0;
    const char* descriptions[] = {"metafile", "picture"};
    if (NITFCGMMetaFile::BinaryEncodeNITFCGMText(&text, descriptions, "one line", length, 3, 4, nullptr, size)) {
        seeds.emplace_back(text, size);
        NITFCGMMetaFile::DeleteCString(text);
    }
    return seeds;
}

/// The texts that a row allows by name.
void AddValues(const Detail::FieldTable& aTable, std::set<std::string>& aWords)
{
    for (const Detail::FieldRow& row : aTable.Rows()) {
        for (std::string_view rest(row.values); !rest.empty();) {
            const std::string_view value = Detail::WithoutMeaning(Detail::NextAlternative(rest));
            const bool isRule = value == "blank" || value == "any" || value.find("..") != std::string_view::npos ||
                                value.starts_with('{');
            if (!isRule && value.size() > 1) {
                aWords.emplace(value);
            }
        }
    }
}

}  // namespace

std::vector<std::string> SeedsOf(std::string_view aTarget)
{
    if (aTarget == "file") {
        return Files();
    }
    if (aTarget == "header") {
        return Headers();
    }
    if (aTarget == "tre") {
        return Tres();
    }
    if (aTarget == "overflow") {
        return Recipes();
    }
    if (aTarget == "cgm") {
        return Metafiles();
    }
    return {"", "key=value\n# comment\n key = value \nother=\n", "a=1\r\na=2\r\n=\nnothing\n",
            "long=" + std::string(5000, 'x')};
}

std::vector<std::string> Words()
{
    std::set<std::string> words{"NITF02.10",
                                "NITF02.00",
                                "NSIF01.00",
                                "TRE_OVERFLOW",
                                "STREAMING_FILE_HEADER",
                                "Registered Extensions",
                                "Controlled Extensions",
                                "999999999999",
                                "999998"};
    for (const TRECatalogue::Tag& tag : TRECatalogue::GetAllTags()) {
        words.insert(tag.tag);
    }
    for (const NumberedLayout& layout : EveryLayout()) {
        AddValues(layout.layout->table, words);
    }
    for (const Detail::SegmentKind& kind : Detail::SEGMENT_KINDS) {
        AddValues(Detail::LayoutOf(kind.kind, kind.version)->table, words);
        for (const Detail::ExtensionArea& area : kind.areas) {
            words.insert(area.area);
        }
        words.insert(kind.mark);
    }
    for (const char* const type : SupportedDESSHFs::GetAllSupportedDESSHFs()) {
        words.insert(type);
    }
    words.erase("");
    return {words.begin(), words.end()};
}

}  // namespace OrmoFuzz
