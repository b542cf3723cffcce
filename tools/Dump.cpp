#include "segments/NITFWords.h"
#include "tools/Commands.h"
#include "tools/Files.h"
#include "tools/Filter.h"
#include "tools/Isd.h"
#include "tools/Lines.h"
#include "tools/Output.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

struct Options
{
    std::string file;
    std::string segment;
    bool salvage = false;
};

std::string Hex(std::string_view aBytes)
{
    constexpr std::string_view DIGITS = "0123456789abcdef";
    std::string text;
    for (const char character : aBytes) {
        const auto byte = static_cast<unsigned char>(character);
        text += text.empty() ? "" : " ";
        text += DIGITS[byte >> 4U];
        text += DIGITS[byte & 0xFU];
    }
    return text;
}

std::string Right(std::uint64_t aNumber, std::size_t aWidth)
{
    const std::string digits = std::to_string(aNumber);
    return std::string(digits.size() < aWidth ? aWidth - digits.size() : 0, ' ') + digits;
}

/// A header as a map of its bytes: where each field stands, how long it is, and what stands in it.
class Map
{
public:
    Map(const std::string& aPath, const ImageSupportDataNITF& aIsd)
        : m_path(aPath), m_isd(aIsd), m_findings(aIsd.GetFindings())
    {
    }

    void Print(NITFCnst::DataSegmentType aKind, std::size_t aIndex, const NITFStdDataSegmentInfo* aInfo)
    {
        const std::uint64_t start = aInfo == nullptr ? 0 : aInfo->GetSegmentHeaderStart();
        const std::uint64_t size =
            aInfo == nullptr ? m_isd.GetNITFFileHeader()->GetFileHeaderLength() : aInfo->GetSegmentHeaderSize();
        std::cout << ShownSegment(aKind, aIndex) << ": header of " << NITFWords::Count(size, "byte") << " at byte "
                  << start;
        if (aInfo != nullptr) {
            std::cout << ", data of " << NITFWords::Count(aInfo->GetSegmentDataSize(), "byte") << " at byte "
                      << aInfo->GetSegmentDataStart();
        }
        std::cout << '\n';
        const NITFFieldSegment* const segment = m_isd.GetSegment(aKind, aIndex);
        if (const Finding* const error = ErrorOf(m_findings, aKind, aIndex); error != nullptr) {
            Lines(std::cout).Add(2, error->Line(), Lines::Style::Error);
        }
        if (segment == nullptr) {
            PrintBytes(start, size);
            return;
        }
        PrintFields(*segment, start, size);
        for (const TREStore* const store : StoresOf(*segment)) {
            PrintTREs(*store);
        }
    }

private:
    static constexpr std::size_t NAME_WIDTH = 16;

    static void PrintRow(std::uint64_t aOffset, std::uint64_t aLength, std::string aName, std::string_view aBytes)
    {
        constexpr std::size_t MOST_HEX = 16;
        const bool isText = std::all_of(aBytes.begin(), aBytes.end(), [](char aByte) {
            return static_cast<unsigned char>(aByte) >= 0x20 && static_cast<unsigned char>(aByte) < 0x7F;
        });
        aName.resize(std::max(aName.size(), NAME_WIDTH), ' ');
        std::string line = Right(aOffset, 12) + Right(aLength, 8) + "  " + aName + "  ";
        const std::size_t room = Lines::WIDTH > line.size() ? Lines::WIDTH - line.size() : 0;
        if (isText) {
            // Blanks at the ends are part of the value.
            line += '"' + std::string(aBytes.substr(0, room < 5 ? 0 : room - 5)) + '"';
            line += aBytes.size() + 5 > room ? "..." : "";
        } else {
            line += Hex(aBytes.substr(0, MOST_HEX)) + (aBytes.size() > MOST_HEX ? " ..." : "");
        }
        std::cout << line << '\n';
    }

    static void PrintFields(const NITFFieldSegment& aSegment, std::uint64_t aStart, std::uint64_t aSize)
    {
        std::size_t length = 0;
        const char* const raw = aSegment.GetRawHeader(length);
        std::string name;
        for (std::size_t i = 0; i != aSegment.GetNumOfFields(); ++i) {
            const char* value = nullptr;
            std::size_t valueLength = 0;
            aSegment.GetFieldAt(i, name, value, valueLength);
            const std::uint64_t offset = aSegment.GetFieldOffset(i);
            const std::uint64_t end = aSegment.GetFieldOffset(i + 1);
            const std::uint64_t at = offset - aStart;
            // The bytes as they stand: a field may be read as another value than is written.
            const std::string_view bytes =
                at < length && end >= offset
                    ? std::string_view(raw, length)
                          .substr(static_cast<std::size_t>(at), static_cast<std::size_t>(end - offset))
                    : std::string_view(value, valueLength);
            PrintRow(offset, bytes.size(), name, bytes);
        }
        const std::uint64_t end = aSegment.GetFieldOffset(aSegment.GetNumOfFields());
        if (end < aStart + aSize) {
            std::cout << Right(end, 12) << Right(aStart + aSize - end, 8) << "  (no field)\n";
        }
    }

    static void PrintTREs(const TREStore& aStore)
    {
        constexpr std::uint64_t TAG_AND_LENGTH = 11;
        for (const TRE* const tre : aStore.InOrder()) {
            std::uint64_t offset = tre->GetFileOffset();
            std::cout << "  TRE " << NITFWords::Shown(tre->GetTag()) << " in " << tre->GetExtensionArea() << ": "
                      << NITFWords::Count(tre->GetLengthOfDataField(), "byte") << " of data\n";
            PrintRow(offset, TAG_AND_LENGTH, "(tag, length)", NITFWords::Shown(tre->GetTag()));
            offset += TAG_AND_LENGTH;
            std::string name;
            const char* value = nullptr;
            std::size_t length = 0;
            for (std::size_t i = 0; i != tre->GetNumOfFields(); ++i) {
                tre->GetFieldAt(i, name, value, length);
                PrintRow(offset, length, name, {value, length});
                offset += length;
            }
            if (tre->GetNumOfFields() == 0) {
                value = tre->GetRawTREDataString(length);
                PrintRow(offset, length, "(data)", {value, length});
            }
        }
    }

    /// What stands where a subheader should, for a person to judge.
    void PrintBytes(std::uint64_t aStart, std::uint64_t aSize) const
    {
        constexpr std::uint64_t MOST = 512;
        constexpr std::size_t IN_A_ROW = 16;
        std::ifstream file(m_path, std::ios::binary);
        std::string bytes(static_cast<std::size_t>(std::min(aSize, MOST)), '\0');
        file.seekg(static_cast<std::streamoff>(aStart));
        file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(file.gcount(), 0)));
        for (std::size_t at = 0; at < bytes.size(); at += IN_A_ROW) {
            std::string row = bytes.substr(at, IN_A_ROW);
            std::string hex = Hex(row);
            hex.resize(IN_A_ROW * 3 - 1, ' ');
            std::replace_if(
                row.begin(), row.end(), [](char aByte) { return aByte < 0x20 || aByte == 0x7F; }, '.');
            std::cout << Right(aStart + at, 12) << "  " << hex << "  " << row << '\n';
        }
        if (bytes.size() < aSize) {
            std::cout << "              and " << NITFWords::Count(aSize - bytes.size(), "byte") << " more\n";
        }
    }

    const std::string& m_path;
    const ImageSupportDataNITF& m_isd;
    std::vector<Finding> m_findings;
};

int Dump(const Options& aOptions)
{
    SegmentName wanted;
    std::string reason;
    const bool all = aOptions.segment.empty();
    if (!all && !ParseSegment(aOptions.segment, wanted, reason)) {
        std::cerr << "ormo-nitf: " << Printable(reason) << '\n';
        return EXIT_WRONG_USE;
    }
    const Isd isd = OpenFile(aOptions.file, {.salvage = aOptions.salvage});
    if (isd == nullptr) {
        return EXIT_WRONG_USE;
    }
    Map map(aOptions.file, *isd);
    bool found = all || wanted.IsHeader();
    std::cout << "      offset   bytes  field             value\n";
    if (found) {
        map.Print(NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, 0, nullptr);
    }
    for (const NITFStdDataSegmentInfo* const info : isd->GetSegmentInfos().InFileOrder()) {
        const auto index = static_cast<std::size_t>(info->GetSegmentIndex());
        if (all || wanted.Holds(info->GetDataSegmentType(), index)) {
            map.Print(info->GetDataSegmentType(), index, info);
            found = true;
        }
    }
    if (!found) {
        PrintProblem(aOptions.file, "ERROR: There is no segment " + aOptions.segment + " in the file.");
        return EXIT_FILE_HAS_ERRORS;
    }
    return ExitCodeOf(*isd);
}

Action DeclareDump(CLI::App& aApp)
{
    auto options = std::make_shared<Options>();
    aApp.add_option("FILE", options->file, "NITF or NSIF file")->required();
    aApp.add_option("SEGMENT", options->segment,
                    std::string(SEGMENT_WORDS) + ", with an index such as image:0; all without it");
    aApp.add_flag("--salvage", options->salvage, "Show what can be read of a damaged file, and say what cannot");
    return [options] { return Dump(*options); };
}

}  // namespace

constexpr Command DUMP{.name = "dump",
                       .summary = "Headers and TREs as a map of their bytes: offset, length, field, value",
                       .examples =
                           "dump image.ntf header\n"
                           "dump --salvage damaged.ntf image:0",
                       .exitCodes =
                           "0 done, 1 no such segment, or errors that salvage lets pass, 2 wrong use or a file "
                           "that cannot be opened",
                       .declare = DeclareDump};

}  // namespace OrmoNitf
