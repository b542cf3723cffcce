#include "segments/NITFHeaderCatalogue.h"
#include "tools/Commands.h"
#include "tools/Csv.h"
#include "tools/Files.h"
#include "tools/Isd.h"
#include "tools/JsonWriter.h"
#include "tools/Nearest.h"
#include "tools/Output.h"
#include "tools/SegmentName.h"
#include "tools/TypedValue.h"
#include "tre/TRECatalogue.h"

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

/// A field of a header or of a TRE, as a column.
struct Column
{
    std::string title;
    std::string tre;      ///< tag; empty for a field of a header
    SegmentName segment;  ///< of a header
    std::string field;
};

struct Options
{
    FileOptions files;
    std::vector<std::string> fields;
    std::string format = "csv";
    std::string each;
    std::vector<Column> columns;
    SegmentName rows;  ///< the kind of segment that has a row each; unknown for a row per file
};

bool KnowsHeaderField(const SegmentName& aSegment, const std::string& aField, std::string& aReason)
{
    std::vector<std::string> known;
    for (const NITFCnst::Version version : {NITFCnst::NITF_VERSION_NUMBER_20, NITFCnst::NITF_VERSION_NUMBER_21}) {
        std::string text;
        if (NITFHeaderCatalogue::DescribeField(aSegment.kind, version, aField.c_str(), text)) {
            return true;
        }
        const std::vector<std::string> names = NITFHeaderCatalogue::GetFieldNames(aSegment.kind, version);
        known.insert(known.end(), names.begin(), names.end());
    }
    aReason = "ERROR: " + aField + " is no field of the " + SegmentWord(aSegment.kind) + " header." +
              DidYouMean(aField, known);
    return false;
}

bool KnowsTreField(const std::string& aTag, const std::string& aField, std::string& aReason)
{
    std::string text;
    std::vector<std::string> known;
    if (TRECatalogue::DescribeField(aTag.c_str(), aField.c_str(), text)) {
        return true;
    }
    if (TRECatalogue::DescribeTag(aTag.c_str(), text)) {
        for (const TreDetailedInfo& field : TRECatalogue::GetFields(aTag.c_str())) {
            known.push_back(field.fieldName);
        }
        aReason = "ERROR: " + aField + " is no field of TRE " + aTag + '.' + DidYouMean(aField, known);
        return false;
    }
    for (const TRECatalogue::Tag& tag : TRECatalogue::GetAllTags()) {
        known.push_back(tag.tag);
    }
    aReason = "ERROR: " + aTag + " is neither a segment nor a TRE that is known." + DidYouMean(aTag, known);
    return false;
}

/// "image:0.IDATIM", "ImageSegment.IDATIM", "USE00A.SUN_EL".
bool ParseColumn(const std::string& aText, Column& aColumn, std::string& aReason)
{
    const auto point = aText.find('.');
    if (point == std::string::npos || point == 0 || point + 1 == aText.size()) {
        aReason = "ERROR: " + aText + " is no field: it is written as image.IDATIM or USE00A.SUN_EL.";
        return false;
    }
    const std::string owner = aText.substr(0, point);
    aColumn.title = aText;
    aColumn.field = aText.substr(point + 1);
    std::string ignored;
    if (ParseSegment(owner, aColumn.segment, ignored)) {
        return KnowsHeaderField(aColumn.segment, aColumn.field, aReason);
    }
    aColumn.tre = owner;
    return KnowsTreField(owner, aColumn.field, aReason);
}

/// The first TRE of a tag in a segment.
const TRE* FindTre(const NITFFieldSegment* aSegment, const std::string& aTag)
{
    return aSegment == nullptr ? nullptr : NITFSegmentTREs::GetFirst(*aSegment, aTag);
}

/// The rows of one file.
class Rows
{
public:
    Rows(const std::string& aPath, const ImageSupportDataNITF& aIsd, const Options& aOptions)
        : m_path(aPath), m_isd(aIsd), m_options(aOptions)
    {
    }

    void Print()
    {
        if (m_options.rows.kind == NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN) {
            PrintRow(nullptr);
            return;
        }
        for (const NITFStdDataSegmentInfo* const info : m_isd.GetSegmentInfos().InFileOrder()) {
            if (m_options.rows.Holds(info->GetDataSegmentType(), static_cast<std::size_t>(info->GetSegmentIndex()))) {
                PrintRow(info);
            }
        }
    }

private:
    const NITFFieldSegment* SegmentOf(const NITFStdDataSegmentInfo& aInfo) const
    {
        return m_isd.GetSegment(aInfo.GetDataSegmentType(), static_cast<std::size_t>(aInfo.GetSegmentIndex()));
    }

    /// The TRE of the row's segment, else of the header; of a file the first in the order of its segments.
    const TRE* TreOf(const Column& aColumn, const NITFStdDataSegmentInfo* aRow) const
    {
        if (aRow != nullptr) {
            const TRE* const own = FindTre(SegmentOf(*aRow), aColumn.tre);
            return own != nullptr ? own : FindTre(m_isd.GetNITFFileHeader(), aColumn.tre);
        }
        if (const TRE* const tre = FindTre(m_isd.GetNITFFileHeader(), aColumn.tre); tre != nullptr) {
            return tre;
        }
        for (const NITFStdDataSegmentInfo* const info : m_isd.GetSegmentInfos().InFileOrder()) {
            if (const TRE* const tre = FindTre(SegmentOf(*info), aColumn.tre); tre != nullptr) {
                return tre;
            }
        }
        return nullptr;
    }

    const NITFFieldSegment* HeaderOf(const Column& aColumn, const NITFStdDataSegmentInfo* aRow) const
    {
        const SegmentName& name = aColumn.segment;
        const bool ofRow = aRow != nullptr && !name.isIndexed && aRow->GetDataSegmentType() == name.kind;
        return ofRow ? SegmentOf(*aRow) : m_isd.GetSegment(name.kind, name.index);
    }

    void PrintRow(const NITFStdDataSegmentInfo* aRow)
    {
        const std::string segment = aRow == nullptr ? ""
                                                    : ShownSegment(aRow->GetDataSegmentType(),
                                                                   static_cast<std::size_t>(aRow->GetSegmentIndex()));
        const bool asJson = m_options.format == "ndjson";
        JsonWriter json(Results());
        std::string line = CsvCell(PathText(m_path));
        if (asJson) {
            json.BeginObject().Key("file").Text(m_path);
        }
        if (aRow != nullptr) {
            line += ',' + CsvCell(segment);
            asJson ? static_cast<void>(json.Key("segment").Text(segment)) : void();
        }
        for (const Column& column : m_options.columns) {
            const TRE* const tre = column.tre.empty() ? nullptr : TreOf(column, aRow);
            const NITFFieldSegment* const header = column.tre.empty() ? HeaderOf(column, aRow) : nullptr;
            const NITFFieldValue value = tre != nullptr      ? NITFFieldValue::Of(*tre, column.field)
                                         : header != nullptr ? NITFFieldValue::Of(*header, column.field)
                                                             : NITFFieldValue{};
            if (asJson) {
                json.Key(column.title);
                WriteTyped(value, json);
            } else {
                line += ',' + CsvCell(ValueText(value.text));
            }
        }
        if (asJson) {
            json.EndObject();
        }
        Results() << (asJson ? "" : line) << '\n';
    }

private:
    const std::string& m_path;
    const ImageSupportDataNITF& m_isd;
    const Options& m_options;
};

int Table(Options& aOptions)
{
    std::string reason;
    bool good = aOptions.each.empty() || ParseSegment(aOptions.each, aOptions.rows, reason);
    aOptions.columns.clear();
    for (std::size_t i = 0; good && i != aOptions.fields.size(); ++i) {
        good = ParseColumn(aOptions.fields[i], aOptions.columns.emplace_back(), reason);
    }
    if (!good) {
        std::cerr << "ormo-nitf: " << Printable(reason) << '\n';
        return EXIT_WRONG_USE;
    }
    if (aOptions.format == "csv") {
        std::string line = aOptions.each.empty() ? "file" : "file,segment";
        for (const Column& column : aOptions.columns) {
            line += ',' + CsvCell(column.title);
        }
        std::puts(line.c_str());
    }
    return ForEachFile(aOptions.files, [&aOptions](const std::string& aPath) {
        const Isd isd = OpenFile(aPath, {.salvage = aOptions.files.salvage});
        if (isd == nullptr) {
            return static_cast<int>(EXIT_WRONG_USE);
        }
        Rows(aPath, *isd, aOptions).Print();
        return ExitCodeOf(*isd);
    });
}

Action DeclareTable(CLI::App& aApp)
{
    auto options = std::make_shared<Options>();
    aApp.add_option("--field", options->fields,
                    "Field of a header (image.IDATIM, image:1.IDATIM, ImageSegment.IDATIM) or TRE (USE00A.SUN_EL)")
        ->type_name("OWNER.FIELD")
        ->allow_extra_args(false)
        ->required();
    aApp.add_option("-f,--format", options->format, "csv or ndjson; ndjson has numbers and ISO dates")
        ->type_name("FORMAT")
        ->check(CLI::IsMember({"csv", "ndjson"}).description(""));
    aApp.add_option("--each", options->each, "A row for each segment of this kind in place of one for each file")
        ->type_name("KIND");
    AddFileOptions(aApp, options->files, true);
    return [options] { return Table(*options); };
}

}  // namespace

constexpr Command TABLE{.name = "table",
                        .summary = "Fields of many files as a table",
                        .examples =
                            "table --field image.IDATIM --field USE00A.SUN_EL -r images > table.csv\n"
                            "table --each image --field image.NROWS --field image.IC -f ndjson *.ntf",
                        .exitCodes = EXIT_CODES_OF_FILES,
                        .declare = DeclareTable};

}  // namespace OrmoNitf
