#include "segments/NITFWords.h"
#include "segments/cgm/NITFCGMMetaFile.h"
#include "segments/des/DesXmlProduct.h"
#include "tools/Commands.h"
#include "tools/Files.h"
#include "tools/Isd.h"
#include "tools/Lines.h"
#include "tools/Output.h"
#include "tools/SegmentName.h"

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

struct Options
{
    FileOptions files;
    bool all = false;
};

/// What `info` prints of one file.
class Report
{
public:
    Report(std::ostream& aOut, const ImageSupportDataNITF& aIsd, bool aAll)
        : m_lines(aOut), m_isd(aIsd), m_findings(aIsd.GetFindings()), m_all(aAll)
    {
    }

    void Print(const std::string& aPath)
    {
        m_lines.AddWhole(Printable(aPath), Lines::Style::Heading);
        std::istringstream summary(m_isd.GetFileSummary());
        for (std::string line; std::getline(summary, line);) {
            m_lines.Add(2, line);
        }
        PrintFindings();
        PrintTREs(StoresOf(*m_isd.GetNITFFileHeader()), 2);
        const auto& infos = m_isd.GetSegmentInfos().InFileOrder();
        for (std::size_t i = 0; i != infos.size();) {
            const std::size_t run = m_all ? 1 : RunOf(infos, i);
            if (run > MOST_ALIKE) {
                PrintRun(infos, i, run);
                i += run;
            } else {
                PrintSegment(*infos[i]);
                ++i;
            }
        }
        PrintTotal();
    }

private:
    using Info = NITFStdDataSegmentInfo;

    // More like segments in a row are told in one line: a chart may have hundreds of symbols.
    static constexpr std::size_t MOST_ALIKE = 4;
    static constexpr std::size_t MOST_FINDINGS = 20;

    const NITFFieldSegment* SegmentOf(const Info& aInfo) const
    {
        return m_isd.GetSegment(aInfo.GetDataSegmentType(), static_cast<std::size_t>(aInfo.GetSegmentIndex()));
    }
    static std::string NameOf(const Info& aInfo)
    {
        return ShownSegment(aInfo.GetDataSegmentType(), static_cast<std::size_t>(aInfo.GetSegmentIndex()));
    }

    void PrintFindings()
    {
        constexpr std::size_t MOST_BYTES = 32;
        const std::size_t shown = m_all ? m_findings.size() : std::min(m_findings.size(), MOST_FINDINGS);
        for (std::size_t i = 0; i != shown; ++i) {
            Finding finding = m_findings[i];
            if (finding.value.size() > MOST_BYTES) {
                finding.value.resize(MOST_BYTES);
                finding.value += "...";
            }
            const bool isWarning = finding.level == Finding::Level::Warning;
            m_lines.Add(2, finding.Line(), isWarning ? Lines::Style::Warning : Lines::Style::Error);
        }
        if (shown != m_findings.size()) {
            m_lines.Add(2, "and " + std::to_string(m_findings.size() - shown) + " more: --all shows them");
        } else if (const auto lines = m_isd.GetWarnings(); lines.size() > m_findings.size()) {
            m_lines.Add(2, lines.back());
        }
    }

    /// A line for each tag, in the order in which they first appear.
    void PrintTREs(const std::vector<const TREStore*>& aStores, std::size_t aIndent)
    {
        struct Entry
        {
            std::string name;
            std::string area;
            std::size_t count = 0;
            std::uint64_t bytes = 0;
        };
        std::vector<std::pair<std::string, Entry>> tags;
        for (const TREStore* const store : aStores) {
            for (const TRE* const tre : store->InOrder()) {
                const std::string tag = NITFWords::Shown(tre->GetTag());
                const std::string area = tre->GetExtensionArea();
                auto entry = std::find_if(tags.begin(), tags.end(), [&](const auto& aEntry) {
                    return !m_all && aEntry.first == tag && aEntry.second.area == area;
                });
                if (entry == tags.end()) {
                    const std::string name = tre->IsGenericTRE() ? "not decoded" : tre->GetTREName();
                    tags.push_back({tag, {name, area}});
                    entry = tags.end() - 1;
                }
                ++entry->second.count;
                entry->second.bytes += tre->GetLengthOfDataField();
                ++m_tres;
            }
        }
        for (const auto& [tag, entry] : tags) {
            const std::string count = entry.count == 1 ? "" : std::to_string(entry.count) + " of them, ";
            m_lines.Add(aIndent, "TRE " + tag + std::string(tag.size() < 6 ? 6 - tag.size() : 0, ' ') + "  " +
                                     entry.name + ", " + count + NITFWords::Size(entry.bytes) +
                                     (entry.area.empty() ? "" : ", " + entry.area));
        }
    }

    /// A segment in which something is wrong, and which may be another than it seems.
    bool IsDoubtful(const Info& aInfo) const
    {
        return ErrorOf(m_findings, aInfo.GetDataSegmentType(), static_cast<std::size_t>(aInfo.GetSegmentIndex())) !=
               nullptr;
    }

    void PrintSegment(const Info& aInfo)
    {
        const NITFFieldSegment* const segment = SegmentOf(aInfo);
        if (segment == nullptr) {
            ++m_unread;
            m_lines.Add(2,
                        NameOf(aInfo) + ": not readable; header of " + NITFWords::Size(aInfo.GetSegmentHeaderSize()) +
                            " at byte " + std::to_string(aInfo.GetSegmentHeaderStart()) + ", data of " +
                            NITFWords::Size(aInfo.GetSegmentDataSize()) + " at byte " +
                            std::to_string(aInfo.GetSegmentDataStart()),
                        Lines::Style::Error);
            return;
        }
        const std::string name = NameOf(aInfo) + (IsDoubtful(aInfo) ? " (doubtful)" : "") + ": ";
        if (const auto* const image = dynamic_cast<const NITFImageSubheader*>(segment); image != nullptr) {
            m_lines.Add(2, name + m_isd.GetImageSummary(static_cast<std::size_t>(aInfo.GetSegmentIndex())),
                        Lines::Style::Heading);
            PrintImage(*image);
        } else {
            m_lines.Add(2, name + OtherSummary(aInfo, *segment), Lines::Style::Heading);
        }
        PrintTREs(StoresOf(*segment), 4);
        if (const auto* const des = dynamic_cast<const NITFDESSubheader*>(segment); des != nullptr) {
            PrintXmlProduct(*des);
        }
    }

    void PrintImage(const NITFImageSubheader& aImage)
    {
        std::string identifier;
        for (const char* const field : {"IID1", "IID", "IID2"}) {
            const std::string_view part = aImage.FieldText(field);
            identifier += NITFWords::IsFilled(part) ? ' ' + NITFWords::Shown(part) : "";
        }
        m_lines.Add(
            4, NITFWords::Joined({identifier.empty() ? identifier : "identifier" + identifier,
                                  NITFWords::Date(aImage.FieldText("IDATIM")), NITFWords::Meaning(aImage, "ISCLAS")}));
        unsigned long columns = 0;
        unsigned long rows = 0;
        if (aImage.GetNumPixelsPerBlock(columns, rows) && aImage.GetFieldNBPR() * aImage.GetFieldNBPC() > 1) {
            m_lines.Add(4, std::to_string(aImage.GetFieldNBPR()) + " x " + std::to_string(aImage.GetFieldNBPC()) +
                               " blocks of " + std::to_string(columns) + " columns x " + std::to_string(rows) +
                               " rows, mode " + NITFWords::Shown(aImage.FieldText("IMODE")));
        }
        PrintFootprint(aImage);
        if (aImage.IsImageChip()) {
            double row = 0.0;
            double column = 0.0;
            std::ostringstream chip;
            chip << "chip of a larger image";
            if (aImage.GetImageExtentInformation().MapChipToFullImage(0.0, 0.0, row, column)) {
                chip << ": its column 0, row 0 is column " << column << ", row " << row << " there";
            }
            m_lines.Add(4, chip.str());
        }
        if (const char rpc = aImage.GetRPC00Availability(); rpc != NITFCnst::RPC00_NOT_AVAILABLE) {
            m_lines.Add(4, std::string("rational polynomial coefficients: RPC00") + rpc);
        }
    }

    void PrintFootprint(const NITFImageSubheader& aImage)
    {
        NITFImgExtent::Footprint footprint;
        if (aImage.GetFootprint(footprint)) {
            std::string line = "footprint (" + std::string(footprint.source) + "):";
            for (std::size_t i = 0; i != footprint.latitudes.size(); ++i) {
                line += (i == 0 ? " " : ", ") + NITFWords::Position(footprint.latitudes[i], footprint.longitudes[i]);
            }
            m_lines.Add(4, line + (footprint.crosses180 ? ", across the 180th meridian" : ""));
        } else if (const std::string igeolo = NITFWords::Shown(aImage.FieldText("IGEOLO")); !igeolo.empty()) {
            m_lines.Add(4, "no footprint: IGEOLO is no location of ICORDS " +
                               NITFWords::Shown(aImage.FieldText("ICORDS")) + ": " + igeolo);
        }
    }

    /// What names a segment best that is no image, and where it is drawn.
    static std::string OtherSummary(const Info& aInfo, const NITFFieldSegment& aSegment)
    {
        std::string text = NITFWords::Size(aInfo.GetSegmentDataSize());
        for (const char* const tag :
             {"TEXTID", "TXTITL", "DESID", "DESTAG", "RESID", "RESTAG", "SID", "SNAME", "LID"}) {
            const std::string value = NITFWords::Shown(aSegment.FieldText(tag));
            text += value.empty() ? "" : ", " + value;
        }
        const auto* const drawn = dynamic_cast<const NITFDrawnSegment*>(&aSegment);
        if (drawn == nullptr) {
            return text;
        }
        long row = 0;
        long column = 0;
        text += ", level " + std::to_string(drawn->GetDataSegmentDisplayLevel());
        if (drawn->GetCCSColumnAndRow(column, row)) {
            text += ", at column " + std::to_string(column) + ", row " + std::to_string(row);
        }
        if (const NITFCGMMetaFile* const metafile = drawn->GetCGMMetaFile(); metafile != nullptr) {
            text += ", " + NITFWords::Count(metafile->GetAllGraphicalPrimitiveElements().size(), "primitive");
            const std::size_t skipped = metafile->GetNumSkippedGraphicalPrimitives();
            text += skipped == 0 ? "" : " and " + std::to_string(skipped) + " outside the NITF profile";
        }
        return text;
    }

    /// What an XML document of a radar product says of itself.
    void PrintXmlProduct(const NITFDESSubheader& aDes)
    {
        DesXmlProduct product;
        if (!aDes.GetXmlProduct(product)) {
            return;
        }
        std::string line = NITFWords::Shown(product.standard) + ' ' + NITFWords::Shown(product.version);
        for (const auto& [word, value] :
             {std::pair{"collector", &product.collector}, std::pair{"mode", &product.mode},
              std::pair{"centre", &product.centre}, std::pair{"reference point", &product.reference}}) {
            line += value->empty() ? "" : ", " + std::string(word) + ' ' + NITFWords::Shown(*value);
        }
        m_lines.Add(4, line);
    }

    /// What segments of a run have in common; empty for one that stands alone.
    std::string LikenessOf(const Info& aInfo) const
    {
        const NITFFieldSegment* const segment = SegmentOf(aInfo);
        if (segment == nullptr || IsDoubtful(aInfo)) {
            return {};
        }
        std::string likeness = NITFStdDataSegment::GetDataSegmentName(aInfo.GetDataSegmentType());
        for (const char* const tag : {"NROWS", "NCOLS", "NBPP", "PVTYPE", "IREP", "ICAT", "IC", "DESID", "DESTAG"}) {
            likeness += '|';
            likeness += segment->FieldText(tag);
        }
        return likeness;
    }

    std::size_t RunOf(const std::vector<const Info*>& aInfos, std::size_t aFrom) const
    {
        const std::string likeness = LikenessOf(*aInfos[aFrom]);
        std::size_t count = 1;
        while (!likeness.empty() && aFrom + count != aInfos.size() && LikenessOf(*aInfos[aFrom + count]) == likeness) {
            ++count;
        }
        return count;
    }

    /// "symbols 0-99: 100, 82.5 kB" with what is alike in them, and their TREs together.
    void PrintRun(const std::vector<const Info*>& aInfos, std::size_t aFrom, std::size_t aCount)
    {
        const Info& first = *aInfos[aFrom];
        const std::string word = SegmentWord(first.GetDataSegmentType());
        std::uint64_t bytes = 0;
        std::size_t primitives = 0;
        std::vector<const TREStore*> stores;
        for (std::size_t i = aFrom; i != aFrom + aCount; ++i) {
            const NITFFieldSegment& segment = *SegmentOf(*aInfos[i]);
            bytes += aInfos[i]->GetSegmentDataSize();
            const std::vector<const TREStore*> own = StoresOf(segment);
            stores.insert(stores.end(), own.begin(), own.end());
            const auto* const drawn = dynamic_cast<const NITFDrawnSegment*>(&segment);
            if (drawn != nullptr && drawn->GetCGMMetaFile() != nullptr) {
                primitives += drawn->GetCGMMetaFile()->GetAllGraphicalPrimitiveElements().size();
            }
        }
        std::string line = word + (word == "des" || word == "res" ? " " : "s ") +
                           std::to_string(first.GetSegmentIndex()) + '-' +
                           std::to_string(aInfos[aFrom + aCount - 1]->GetSegmentIndex()) + ": " +
                           std::to_string(aCount) + ", " + NITFWords::Size(bytes);
        line += primitives == 0 ? "" : ", " + NITFWords::Count(primitives, "primitive");
        if (first.GetDataSegmentType() == NITFCnst::DATA_SEGMENT_TYPE_IMAGE) {
            line += ", each " + m_isd.GetImageSummary(static_cast<std::size_t>(first.GetSegmentIndex()));
        }
        m_lines.Add(2, line, Lines::Style::Heading);
        PrintTREs(stores, 4);
    }

    void PrintTotal()
    {
        std::size_t warnings = 0;
        for (const Finding& finding : m_findings) {
            warnings += finding.level == Finding::Level::Warning ? 1U : 0U;
        }
        std::string line = NITFWords::Count(m_isd.GetSegmentInfos().InFileOrder().size(), "segment") + ", " +
                           NITFWords::Count(m_tres, "TRE") + ", " + NITFWords::Count(warnings, "warning");
        const std::size_t errors = m_findings.size() - warnings;
        line += errors == 0 ? "" : ", " + NITFWords::Count(errors, "error");
        line += m_unread == 0 ? "" : ", " + std::to_string(m_unread) + " not readable";
        m_lines.Add(2, line);
    }

    Lines m_lines;
    const ImageSupportDataNITF& m_isd;
    std::vector<Finding> m_findings;
    bool m_all;
    std::size_t m_tres = 0;
    std::size_t m_unread = 0;
};

int Print(const std::string& aPath, const Options& aOptions)
{
    const Isd isd = OpenFile(aPath, {.salvage = aOptions.files.salvage});
    if (isd == nullptr) {
        return EXIT_WRONG_USE;
    }
    Report(Results(), *isd, aOptions.all).Print(aPath);
    return ExitCodeOf(*isd);
}

Action DeclareInfo(CLI::App& aApp)
{
    auto options = std::make_shared<Options>();
    AddFileOptions(aApp, options->files, true);
    aApp.add_flag("--all", options->all, "Every segment, TRE and warning on a line of its own");
    return [options] {
        return ForEachFile(options->files, [&options](const std::string& aPath) { return Print(aPath, *options); });
    };
}

}  // namespace

constexpr Command INFO{.name = "info",
                       .summary = "What a person wants to see first",
                       .examples =
                           "info image.ntf\n"
                           "info --salvage damaged.ntf",
                       .exitCodes = EXIT_CODES_OF_FILES,
                       .declare = DeclareInfo};

}  // namespace OrmoNitf
